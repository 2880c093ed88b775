#include "destination.h"

#include <unistd.h>

#include <algorithm>
#include <map>
#include <string>
#include <system_error>

#include "failure.h"

namespace fs = std::filesystem;

namespace vantrel_rewrite {

namespace {

bool is_inside(const fs::path& path, const fs::path& folder) {
    return std::mismatch(folder.begin(), folder.end(), path.begin(), path.end()).first == folder.end();
}

// Whether the result can be put where it is to go.
void check_target(const Result& result) {
    const fs::path& target = result.target;
    const fs::file_status status = status_of(target);
    if (result.kind == Kind::Folder) {
        if (is_inside(target, fs::canonical(result.source))) {
            throw command::Failure{"the result " + target.string() + " would be in the input " +
                                   result.source.string() + "; choose another OUT"};
        }
        if (fs::exists(status)) {
            throw command::Failure{target.string() + " is there already; remove it, or choose another OUT"};
        }
    } else if (fs::is_directory(status)) {
        throw command::Failure{target.string() + " is a folder; remove it, or choose another OUT"};
    } else if (fs::exists(status) && !fs::is_regular_file(status)) {
        throw command::Failure{target.string() + " is not a file that can be replaced"};
    }
}

// A link is seen through, so that what it leads to is replaced and not the link.
fs::path resolved(const fs::path& path) {
    std::error_code error;
    const fs::path absolute = fs::absolute(path);
    fs::path real = fs::weakly_canonical(absolute.has_filename() ? absolute : absolute.parent_path(), error);
    if (error) {
        throw command::Failure{"cannot write " + path.string() + ": " + error.message()};
    }
    if (fs::is_symlink(fs::symlink_status(real, error))) {
        throw command::Failure{"cannot write " + path.string() + ": it is a link to something that is not there"};
    }
    const fs::path parent = real.parent_path();
    if (!fs::is_directory(parent, error)) {
        throw command::Failure{"cannot write " + path.string() + ": " + parent.string() +
                               " is not a folder; make it first"};
    }
    return real;
}

void check_map(const fs::path& map, const std::vector<Result>& results) {
    if (const fs::file_status status = status_of(map); fs::exists(status) && !fs::is_regular_file(status)) {
        throw command::Failure{"--map: " + map.string() + " is not a file that can be replaced"};
    }
    for (const Result& result : results) {
        if (map == result.target || map == fs::canonical(result.source)) {
            throw command::Failure{"--map: " + map.string() + " is an input or a result; choose another name"};
        }
    }
}

// The one result that goes to stdout.
Result result_for_stdout(const Arguments& arguments) {
    const fs::path& input = arguments.inputs.front();
    const Kind kind = kind_of_input(input);
    if (arguments.inputs.size() > 1 || kind == Kind::Folder) {
        throw command::Failure{"-o -: only one class file or one jar can go to stdout"};
    }
    if (isatty(STDOUT_FILENO) != 0) {
        throw command::Failure{"-o -: stdout is a terminal; send it to a file or a pipe"};
    }
    if (arguments.map == kStdout) {
        throw command::Failure{"--map -: the result goes to stdout already"};
    }
    return {kind, input, kStdout};
}

// Results that go to files or folders.
void find_places(const Arguments& arguments, Destinations& destinations) {
    const fs::path& out = arguments.output;
    const fs::file_status out_status = status_of(out);
    const bool out_is_folder = fs::is_directory(out_status);
    const bool into_folder = out_is_folder || !out.has_filename() || arguments.inputs.size() > 1;
    if (into_folder && !out_is_folder && fs::exists(out_status)) {
        throw command::Failure{out.string() + " is a file; several results need a folder to go into"};
    }
    const fs::path real_out = resolved(out);

    std::map<fs::path, fs::path> sources;
    for (const fs::path& input : arguments.inputs) {
        const Kind kind = kind_of_input(input);
        Result result{kind, input, into_folder ? real_out / own_name(input) : real_out};
        if (out_is_folder) {
            result.target = resolved(result.target);
        }
        check_target(result);
        if (const auto [other, is_new] = sources.emplace(result.target, input); !is_new) {
            throw command::Failure{other->second.string() + " and " + input.string() + " would both become " +
                                   result.target.string() + "; rewrite them one by one"};
        }
        destinations.results.push_back(std::move(result));
    }
    if (into_folder && !out_is_folder) {
        destinations.new_folder = real_out;
    }
}

}  // namespace

fs::path own_name(const fs::path& input) {
    const fs::path absolute = (fs::absolute(input) / "").lexically_normal().parent_path();
    fs::path name = absolute.filename();
    if (name.empty()) {
        throw command::Failure{input.string() + " has no name of its own; give OUT a name that is not there yet"};
    }
    return name;
}

Destinations find_destinations(const Arguments& arguments) {
    Destinations destinations;
    if (arguments.output == kStdout) {
        destinations.results.push_back(result_for_stdout(arguments));
    } else {
        find_places(arguments, destinations);
    }
    if (arguments.map == kStdout) {
        destinations.map = kStdout;
    } else if (!arguments.map.empty()) {
        destinations.map = resolved(arguments.map);
        check_map(destinations.map, destinations.results);
    }
    return destinations;
}

}  // namespace vantrel_rewrite
