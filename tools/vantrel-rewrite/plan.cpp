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
    for (const fs::directory_entry& entry : entries) {
        contents.push_back({kind_in_folder(entry), entry.path(), folder.target / entry.path().filename()});
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
    const Destinations destinations = find_destinations(arguments);
    Plan plan;
    if (!destinations.new_folder.empty()) {
        const fs::path folder = staging.stage(destinations.new_folder);
        plan.pieces.push_back({Kind::Folder, {}, folder, 0, {}});
        for (const Result& result : destinations.results) {
            add(plan, {result.kind, result.source, folder / result.target.filename()});
        }
    } else {
        for (const Result& result : destinations.results) {
            add(plan, {result.kind, result.source, staging.stage(result.target)});
        }
    }
    if (!destinations.map.empty()) {
        plan.map = staging.stage(destinations.map);
    }
    return plan;
}

}  // namespace vantrel_rewrite
