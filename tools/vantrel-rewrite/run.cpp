#include "run.h"

#include <algorithm>
#include <iostream>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "class_rewriter.h"
#include "failure.h"
#include "interrupt.h"
#include "plan.h"
#include "progress.h"
#include "standard_output.h"
#include "tracker_check.h"
#include "workers.h"
#include "zip_archive.h"

namespace fs = std::filesystem;

namespace vantrel_rewrite {

namespace {

// What all pieces share.
struct Run {
    const Arguments& arguments;
    Progress& progress;
    ClassReports reports;
};

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

ClassReport report_on(RewrittenClass result) {
    return {result.outcome, std::move(result.reason), std::move(result.map_lines)};
}

ClassReport make_class_file(const Run& run, const Piece& piece) {
    const InputFile input(piece.source);
    off_t position = 0;
    RewrittenClass result = rewrite_class(run.arguments, static_cast<unsigned>(piece.first_class), [&](size_t at_most) {
        Bytes bytes = input.read(position, at_most);
        position += static_cast<off_t>(bytes.size());
        return bytes;
    });
    if (result.outcome == Outcome::Rewritten) {
        OutputFile output(piece.target, input.permissions());
        output.write(result.image);
        output.close();
    } else {
        copy_whole_file(piece.source, piece.target);
    }
    return report_on(std::move(result));
}

// Class files that follow each other are shared among the workers. Returns the end of those that begin at `begin`.
size_t make_class_files(Run& run, const std::vector<Piece>& pieces, size_t begin) {
    const auto first = pieces.begin() + static_cast<std::ptrdiff_t>(begin);
    const auto end =
        std::find_if(first, pieces.end(), [](const Piece& piece) { return piece.kind != Kind::ClassFile; });
    std::vector<ClassReport> reports(static_cast<size_t>(end - first));
    for_each_index(run.arguments.workers, reports.size(), [&](unsigned /*worker*/, size_t index) {
        reports[index] = make_class_file(run, pieces[begin + index]);
        run.progress.step();
    });
    for (size_t index = 0; index < reports.size(); ++index) {
        run.reports.add(pieces[begin + index].source.string(), reports[index]);
    }
    return begin + reports.size();
}

// A class of a jar, and its entry's new contents where it is rewritten.
struct EntryResult {
    ClassReport report;
    std::optional<PackedEntry> packed;
};

EntryResult rewrite_entry(const Run& run, const Piece& piece, size_t index, zip_t* jar) {
    const JarClass& entry = piece.classes[index];
    RewrittenClass result;
    try {
        EntryReader reader(jar, entry.index, piece.source);
        result = rewrite_class(run.arguments, static_cast<unsigned>(piece.first_class + index),
                               [&](size_t at_most) { return reader.read(at_most); });
    } catch (const command::Failure& failure) {
        return {{Outcome::Failed, failure.line, {}}, std::nullopt};  // carried over, as damaged as it is
    }
    EntryResult made;
    if (result.outcome == Outcome::Rewritten) {
        made.packed = pack_entry(entry.index, entry.method, result.image);
    }
    made.report = report_on(std::move(result));
    return made;
}

// The classes of a jar are shared among the workers; then one thread writes the jar.
void make_jar(Run& run, const Piece& piece) {
    std::vector<Zip> jars(run.arguments.workers);
    std::vector<EntryResult> results(piece.classes.size());
    for_each_index(run.arguments.workers, results.size(), [&](unsigned worker, size_t index) {
        if (!jars[worker]) {
            jars[worker] = open_archive(piece.source);
        }
        results[index] = rewrite_entry(run, piece, index, jars[worker].get());
        run.progress.step();
    });
    std::vector<PackedEntry> changes;
    for (size_t index = 0; index < results.size(); ++index) {
        run.reports.add(piece.source.string() + ": " + piece.classes[index].name, results[index].report);
        if (results[index].packed) {
            changes.push_back(std::move(*results[index].packed));
        }
    }
    if (const size_t dropped = write_rewritten_jar(piece.source, piece.target, changes); dropped > 0) {
        run.reports.note(piece.source.string() + ": signed; the result is not (" + std::to_string(dropped) +
                         " signature files dropped)");
    }
}

void make_pieces(Run& run, const std::vector<Piece>& pieces) {
    for (size_t at = 0; at < pieces.size();) {
        interrupt::check();
        const Piece& piece = pieces[at];
        if (piece.kind == Kind::ClassFile) {
            at = make_class_files(run, pieces, at);
            continue;
        }
        switch (piece.kind) {
            case Kind::Jar:
                make_jar(run, piece);
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
    Run run{arguments, progress, ClassReports(plan.map, arguments.verbose)};
    make_pieces(run, plan.pieces);
    const Summary summary = run.reports.finish();
    interrupt::check();
    staging.put_in_place();
    progress.clear();
    std::cerr << run.reports.notes();
    return summary;
}

}  // namespace vantrel_rewrite
