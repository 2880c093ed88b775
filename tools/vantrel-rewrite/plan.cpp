#include "plan.h"

#include <algorithm>
#include <iterator>
#include <system_error>

#include "destination.h"
#include "failure.h"
#include "interrupt.h"

namespace fs = std::filesystem;

namespace vantrel_rewrite {

namespace {

// What is in a folder, sorted by name.
std::vector<Result> contents_of(const Result& folder) {
    std::error_code error;
    std::vector<fs::directory_entry> entries;
    for (fs::directory_iterator entry(folder.source, error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
        entries.push_back(*entry);
    }
    if (error) {
        throw command::Failure{"cannot read " + folder.source.string() + ": " + error.message()};
    }
    std::sort(entries.begin(), entries.end());
    std::vector<Result> contents;
    contents.reserve(entries.size());
    for (const fs::directory_entry& entry : entries) {
        contents.push_back({kind_in_folder(entry), entry.path(), folder.target / entry.path().filename()});
    }
    return contents;
}

// To count, a tracker is put beside the classes, and a single class file has no place for one.
void check_for_counting(const Arguments& arguments, const Result& result) {
    if (arguments.counted.any() && result.kind == Kind::ClassFile) {
        throw command::Failure{result.source.string() + " is a single class file, and what counts has no place beside" +
                               " it; give the jar or folder that it is in"};
    }
}

// Adds a result to the plan, with all that is in it.
//   made   where the result is made
void add(Plan& plan, const Result& result, const fs::path& made) {
    const std::string label = own_name(result.source);
    if (result.kind == Kind::Folder) {
        plan.folders.push_back({{made, result.target}, label, plan.class_count, {}});
    }
    std::vector<Result> rest{result};
    while (!rest.empty()) {
        interrupt::check();
        const Result next = std::move(rest.back());
        rest.pop_back();
        const fs::path below = next.target.lexically_relative(result.target);
        Piece piece{next.kind, next.source, {made, next.target}, plan.class_count, {}, label, plan.folders.size() - 1};
        if (below != ".") {
            piece.target.path /= below;
            piece.label += '/' + below.string();
        }
        if (next.kind == Kind::ClassFile) {
            ++plan.class_count;
            if (result.kind == Kind::Folder) {
                plan.folders.back().class_files.push_back(below);
            }
        } else if (next.kind == Kind::Jar) {
            piece.jar = read_jar(next.source);
            plan.class_count += piece.jar.class_count;
        } else if (next.kind == Kind::Folder) {
            std::vector<Result> contents = contents_of(next);
            rest.insert(rest.end(), std::make_move_iterator(contents.rbegin()),
                        std::make_move_iterator(contents.rend()));
        }
        plan.pieces.push_back(std::move(piece));
    }
}

NewFile stage(Staging& staging, const fs::path& target) {
    return target == kStdout ? staging.stage_for_stdout() : staging.stage(target);
}

}  // namespace

Plan make_plan(const Arguments& arguments, Staging& staging) {
    const Destinations destinations = find_destinations(arguments);
    Plan plan;
    if (!destinations.new_folder.empty()) {
        const NewFile folder = staging.stage(destinations.new_folder);
        plan.pieces.push_back({Kind::Folder, {}, folder, 0, {}, {}, 0});
        for (const Result& result : destinations.results) {
            check_for_counting(arguments, result);
            add(plan, result, folder.path / result.target.filename());
        }
    } else {
        for (const Result& result : destinations.results) {
            check_for_counting(arguments, result);
            add(plan, result, stage(staging, result.target).path);
        }
    }
    if (!destinations.map.empty()) {
        plan.map = stage(staging, destinations.map);
    }
    return plan;
}

}  // namespace vantrel_rewrite
