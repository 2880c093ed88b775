#include "plan.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <string>
#include <system_error>

#include "failure.h"
#include "interrupt.h"

namespace fs = std::filesystem;

namespace {

// One of the results, or something in one.
struct Result {
    Kind kind;
    fs::path source;
    fs::path target;
};

// A file's status; what cannot be looked at is an error, what is not there is none.
fs::file_status status_of(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::none) {
        throw Failure{"cannot read " + path.string() + ": " + error.message()};
    }
    return status;
}

bool begins_with(const fs::path& file, BytesView bytes) {
    unsigned char begin[4] = {};
    const size_t count = InputFile(file).read_at(0, begin, bytes.size());
    return std::equal(bytes.begin(), bytes.end(), begin, begin + count);
}

Kind kind_by_name(const fs::path& file) {
    const fs::path extension = file.extension();
    return extension == ".class" ? Kind::ClassFile : extension == ".jar" ? Kind::Jar : Kind::Other;
}

// An input's name need not tell what it is; what begins like a class file or an archive is one.
Kind kind_of_input(const fs::path& input) {
    const fs::file_status status = status_of(input);
    if (!fs::exists(status)) {
        throw Failure{"cannot read " + input.string() + ": there is no such file"};
    }
    if (fs::is_directory(status)) {
        return Kind::Folder;
    }
    if (!fs::is_regular_file(status)) {
        throw Failure{input.string() + " is neither a file nor a folder"};
    }
    if (const Kind kind = kind_by_name(input); kind != Kind::Other) {
        return kind;
    }
    if (begins_with(input, bytes_of("\xCA\xFE\xBA\xBE"))) {
        return Kind::ClassFile;
    }
    if (begins_with(input, bytes_of("PK"))) {
        return Kind::Jar;
    }
    throw Failure{input.string() + " is neither a class file nor a jar"};
}

// The name that an input has in the folder that it is in, also if it was given as "." or "classes/".
fs::path own_name(const fs::path& input) {
    const fs::path absolute = (fs::absolute(input) / "").lexically_normal().parent_path();
    fs::path name = absolute.filename();
    if (name.empty()) {
        throw Failure{input.string() + " has no name of its own; give OUT a name that is not there yet"};
    }
    return name;
}

bool is_inside(const fs::path& path, const fs::path& folder) {
    return std::mismatch(folder.begin(), folder.end(), path.begin(), path.end()).first == folder.end();
}

// Whether the result can be put where it is to go.
void check_target(const Result& result) {
    const fs::path& target = result.target;
    const fs::file_status status = status_of(target);
    if (result.kind == Kind::Folder) {
        if (is_inside(target, fs::canonical(result.source))) {
            throw Failure{"the result " + target.string() + " would be in the input " + result.source.string() +
                          "; choose another OUT"};
        }
        if (fs::exists(status)) {
            throw Failure{target.string() + " is there already; remove it, or choose another OUT"};
        }
    } else if (fs::is_directory(status)) {
        throw Failure{target.string() + " is a folder; remove it, or choose another OUT"};
    } else if (fs::exists(status) && !fs::is_regular_file(status)) {
        throw Failure{target.string() + " is not a file that can be replaced"};
    }
}

// A link is seen through, so that what it leads to is replaced and not the link.
fs::path resolved(const fs::path& path) {
    std::error_code error;
    const fs::path absolute = fs::absolute(path);
    fs::path real = fs::weakly_canonical(absolute.has_filename() ? absolute : absolute.parent_path(), error);
    if (error) {
        throw Failure{"cannot write " + path.string() + ": " + error.message()};
    }
    const fs::path parent = real.parent_path();
    if (!fs::is_directory(parent, error)) {
        throw Failure{"cannot write " + path.string() + ": " + parent.string() + " is not a folder; make it first"};
    }
    return real;
}

void check_map(const fs::path& map, const std::vector<Result>& results) {
    if (const fs::file_status status = status_of(map); fs::exists(status) && !fs::is_regular_file(status)) {
        throw Failure{"--map: " + map.string() + " is not a file that can be replaced"};
    }
    for (const Result& result : results) {
        if (map == result.target || map == fs::canonical(result.source)) {
            throw Failure{"--map: " + map.string() + " is an input or a result; choose another name"};
        }
    }
}

// What is in a folder, sorted by name.
std::vector<Result> contents_of(const Result& folder) {
    std::error_code error;
    std::vector<fs::directory_entry> entries;
    for (fs::directory_iterator entry(folder.source, error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
        entries.push_back(*entry);
    }
    if (error) {
        throw Failure{"cannot read " + folder.source.string() + ": " + error.message()};
    }
    std::sort(entries.begin(), entries.end());
    std::vector<Result> contents;
    for (const fs::directory_entry& entry : entries) {
        const fs::path& source = entry.path();
        Kind kind = kind_by_name(source);
        if (entry.is_symlink()) {
            kind = Kind::Link;
        } else if (entry.is_directory()) {
            kind = Kind::Folder;
        } else if (!entry.is_regular_file()) {
            throw Failure{source.string() + " is neither a file nor a folder; take it out of the input"};
        }
        contents.push_back({kind, source, folder.target / source.filename()});
    }
    return contents;
}

// Adds a result to the plan, with all that is in it.
void add(Plan& plan, Result result) {
    std::vector<Result> rest{std::move(result)};
    while (!rest.empty()) {
        interrupt::check();
        const Result next = std::move(rest.back());
        rest.pop_back();
        Piece piece{next.kind, next.source, next.target, plan.class_count, {}};
        if (next.kind == Kind::ClassFile) {
            ++plan.class_count;
        } else if (next.kind == Kind::Jar) {
            piece.classes = classes_of_jar(next.source);
            plan.class_count += piece.classes.size();
        } else if (next.kind == Kind::Folder) {
            std::vector<Result> contents = contents_of(next);
            rest.insert(rest.end(), std::make_move_iterator(contents.rbegin()),
                        std::make_move_iterator(contents.rend()));
        }
        plan.pieces.push_back(std::move(piece));
    }
}

}  // namespace

Plan make_plan(const Arguments& arguments, Staging& staging) {
    const fs::path& out = arguments.output;
    const fs::file_status out_status = status_of(out);
    const bool out_is_folder = fs::is_directory(out_status);
    const bool into_folder = out_is_folder || !out.has_filename() || arguments.inputs.size() > 1;
    if (into_folder && !out_is_folder && fs::exists(out_status)) {
        throw Failure{out.string() + " is a file; several results need a folder to go into"};
    }
    const fs::path real_out = resolved(out);

    std::vector<Result> results;
    std::map<fs::path, fs::path> sources;
    for (const fs::path& input : arguments.inputs) {
        const Kind kind = kind_of_input(input);
        Result result{kind, input, into_folder ? real_out / own_name(input) : real_out};
        if (out_is_folder) {
            result.target = resolved(result.target);
        }
        check_target(result);
        if (const auto [other, is_new] = sources.emplace(result.target, input); !is_new) {
            throw Failure{other->second.string() + " and " + input.string() + " would both become " +
                          result.target.string() + "; rewrite them one by one"};
        }
        results.push_back(std::move(result));
    }
    fs::path map;
    if (!arguments.map.empty()) {
        map = resolved(arguments.map);
        check_map(map, results);
    }

    Plan plan;
    if (into_folder && !out_is_folder) {
        const fs::path folder = staging.stage(real_out);
        plan.pieces.push_back({Kind::Folder, {}, folder, 0, {}});
        for (const Result& result : results) {
            add(plan, {result.kind, result.source, folder / result.target.filename()});
        }
    } else {
        for (const Result& result : results) {
            add(plan, {result.kind, result.source, staging.stage(result.target)});
        }
    }
    if (!map.empty()) {
        plan.map = staging.stage(map);
    }
    return plan;
}
