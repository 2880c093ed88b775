#include "run.h"

#include <algorithm>
#include <iostream>
#include <string>
#include <system_error>
#include <vector>

#include "failure.h"
#include "interrupt.h"
#include "plan.h"
#include "rewritten_jar.h"
#include "standard_output.h"
#include "tracker_check.h"
#include "work.h"
#include "workers.h"

namespace fs = std::filesystem;

namespace vantrel_rewrite {

namespace {

void check(const std::error_code& error, const Piece& piece) {
    if (error) {
        throw command::Failure{"cannot write " + piece.target.final.string() + ": " + error.message()};
    }
}

void make_folder(const Piece& piece) {
    std::error_code error;
    fs::create_directory(piece.target.path, error);
    if (!error && !piece.source.empty()) {
        const fs::perms permissions = fs::status(piece.source, error).permissions();
        fs::permissions(piece.target.path, permissions | fs::perms::owner_all, error);
    }
    check(error, piece);
}

void copy_link(const Piece& piece) {
    std::error_code error;
    fs::copy_symlink(piece.source, piece.target.path, error);
    check(error, piece);
}

// What class files that are not in a jar are counted by: nothing, or one for each folder.
using Countings = std::vector<Counting>;

Countings countings_of(const Plan& plan, const Arguments& arguments) {
    Countings countings;
    if (arguments.counted.any()) {
        for (const FolderInput& folder : plan.folders) {
            countings.emplace_back(arguments, folder.label, folder.class_files);
        }
    }
    return countings;
}

void add_trackers(const Plan& plan, const Countings& countings) {
    for (size_t index = 0; index < countings.size(); ++index) {
        const NewFile& folder = plan.folders[index].target;
        for (const AddedFile& added : countings[index].files()) {
            const NewFile target{folder.path / added.name, folder.final / added.name};
            std::error_code error;
            fs::create_directories(target.path.parent_path(), error);
            OutputFile output(target);
            output.write(added.contents);
            output.close();
        }
    }
}

ClassReport make_class_file(const Work& work, const Plan& plan, const Countings& countings, const Piece& piece) {
    const InputFile input(piece.source);
    off_t position = 0;
    ClassSource source;
    size_t number = piece.first_class;
    if (!countings.empty()) {
        const FolderInput& folder = plan.folders[piece.folder];
        source = {&countings[piece.folder], folder.name_in(piece.label)};
        number -= folder.first_class;
    }
    RewrittenClass result = rewrite_class(work.arguments, source, static_cast<unsigned>(number),
                                          static_cast<std::uint64_t>(input.size()), [&](size_t at_most) {
                                              Bytes bytes = input.read(position, at_most);
                                              position += static_cast<off_t>(bytes.size());
                                              return bytes;
                                          });
    if (!result.image.empty()) {
        OutputFile output(piece.target, input.permissions());
        output.write(result.image);
        output.close();
    } else {
        copy_whole_file(piece.source, piece.target);
    }
    return report_on(std::move(result));
}

// Class files that follow each other are shared among the workers. Returns the end of those that begin at `begin`.
size_t make_class_files(Work& work, const Plan& plan, Countings& countings, size_t begin) {
    const std::vector<Piece>& pieces = plan.pieces;
    const auto first = pieces.begin() + static_cast<std::ptrdiff_t>(begin);
    const auto end =
        std::find_if(first, pieces.end(), [](const Piece& piece) { return piece.kind != Kind::ClassFile; });
    std::vector<ClassReport> reports(static_cast<size_t>(end - first));
    for_each_index(work.arguments.workers, reports.size(), [&](unsigned /*worker*/, size_t index) {
        reports[index] = make_class_file(work, plan, countings, pieces[begin + index]);
        work.progress.step();
    });
    for (size_t index = 0; index < reports.size(); ++index) {
        const Piece& piece = pieces[begin + index];
        add_report(work, countings.empty() ? nullptr : &countings[piece.folder], piece.source.string(), reports[index]);
    }
    return begin + reports.size();
}

void make_pieces(Work& work, const Plan& plan) {
    Countings countings = countings_of(plan, work.arguments);
    for (size_t at = 0; at < plan.pieces.size();) {
        command::interrupt::check();
        const Piece& piece = plan.pieces[at];
        if (piece.kind == Kind::ClassFile) {
            at = make_class_files(work, plan, countings, at);
            continue;
        }
        switch (piece.kind) {
            case Kind::Jar:
                write_rewritten_jar(work, piece);
                break;
            case Kind::Folder:
                make_folder(piece);
                break;
            case Kind::Link:
                copy_link(piece);
                break;
            default:
                copy_whole_file(piece.source, piece.target);
        }
        ++at;
    }
    add_trackers(plan, countings);
}

}  // namespace

Summary run(const Arguments& arguments) {
    if (!arguments.tracker_path.empty()) {
        check_tracker(arguments.tracker_path, arguments.tracker);
    }
    if (arguments.output == kStdout || arguments.map == kStdout) {
        standard_output::reserve();
    }
    Staging staging;
    const Plan plan = make_plan(arguments, staging);
    Progress progress(plan.class_count);
    Work work{arguments, progress, ClassReports(plan.map, arguments.verbose)};
    make_pieces(work, plan);
    const Summary summary = work.reports.finish();
    command::interrupt::check();
    staging.put_in_place();
    progress.clear();
    std::cerr << work.reports.notes();
    return summary;
}

}  // namespace vantrel_rewrite
