#include "run.h"

#include <iostream>
#include <optional>
#include <string>
#include <system_error>

#include "class_rewriter.h"
#include "failure.h"
#include "interrupt.h"
#include "plan.h"
#include "progress.h"
#include "workers.h"

namespace fs = std::filesystem;

namespace {

// What all pieces share.
struct Run {
    const Arguments& arguments;
    Progress progress;
    std::optional<OutputFile> map;
    Summary summary;
};

// What becomes of a class, told in the order of the numbers.
struct Note {
    Outcome outcome;
    std::string reason;
    std::string map;
};

void note(Run& run, const std::string& where, const Note& note) {
    ++run.summary.classes;
    run.summary.too_new += note.outcome == Outcome::TooNew ? 1 : 0;
    run.summary.failed += note.outcome == Outcome::Failed ? 1 : 0;
    if (run.map) {
        run.map->write(bytes_of(note.map));
    }
    if (run.arguments.verbose && note.outcome != Outcome::Rewritten) {
        run.progress.clear();
        std::cerr << where << ": not rewritten: " << note.reason << '\n';
    }
}

void make_folder(const Piece& piece) {
    std::error_code error;
    fs::create_directory(piece.target, error);
    if (!error && !piece.source.empty()) {
        const fs::perms permissions = fs::status(piece.source, error).permissions();
        fs::permissions(piece.target, permissions | fs::perms::owner_all, error);
    }
    if (error) {
        throw Failure{"cannot write " + piece.target.string() + ": " + error.message()};
    }
}

void copy_link(const Piece& piece) {
    std::error_code error;
    fs::copy_symlink(piece.source, piece.target, error);
    if (error) {
        throw Failure{"cannot write " + piece.target.string() + ": " + error.message()};
    }
}

Note make_class_file(const Run& run, const Piece& piece) {
    const InputFile input(piece.source);
    const Bytes image = read_file(piece.source);
    RewrittenClass result = rewrite_class(run.arguments.tracker, static_cast<unsigned>(piece.first_class), image);
    OutputFile output(piece.target, input.permissions());
    output.write(result.outcome == Outcome::Rewritten ? result.bytes() : BytesView(image));
    output.close();
    return {result.outcome, std::move(result.reason), std::move(result.map)};
}

void make_jar(Run& run, const Piece& piece) {
    const Arguments& arguments = run.arguments;
    std::vector<Zip> jars(arguments.workers);  // libzip's are for one thread each
    std::vector<Note> notes(piece.classes.size());
    std::vector<std::optional<PackedEntry>> packed(piece.classes.size());
    for_each_index(arguments.workers, piece.classes.size(), [&](unsigned worker, size_t index) {
        if (!jars[worker]) {
            jars[worker] = open_jar(piece.source);
        }
        const JarClass& entry = piece.classes[index];
        Bytes image;
        try {
            image = read_entry(jars[worker].get(), entry.index, piece.source);
        } catch (const Failure& failure) {
            notes[index] = {Outcome::Failed, failure.line, {}};  // carried over, as damaged as it is
            run.progress.step();
            return;
        }
        RewrittenClass result =
            rewrite_class(arguments.tracker, static_cast<unsigned>(piece.first_class + index), image);
        if (result.outcome == Outcome::Rewritten) {
            packed[index] = pack_entry(entry.index, entry.method, result.bytes());
        }
        notes[index] = {result.outcome, std::move(result.reason), std::move(result.map)};
        run.progress.step();
    });
    std::vector<PackedEntry> changes;
    for (size_t index = 0; index < notes.size(); ++index) {
        note(run, piece.source.string() + ": " + piece.classes[index].name, notes[index]);
        if (packed[index]) {
            changes.push_back(std::move(*packed[index]));
        }
    }
    if (const size_t dropped = write_jar(piece.source, piece.target, changes); dropped > 0) {
        run.progress.clear();
        std::cerr << piece.source.string() << ": signed; the result is not (" << dropped
                  << " signature files dropped)\n";
    }
}

// Class files that follow each other are shared among the workers, and so are the classes of a jar.
void make_pieces(Run& run, const std::vector<Piece>& pieces) {
    for (size_t begin = 0; begin < pieces.size();) {
        interrupt::check();
        const Piece& piece = pieces[begin];
        if (piece.kind == Kind::ClassFile) {
            size_t end = begin;
            while (end < pieces.size() && pieces[end].kind == Kind::ClassFile) {
                ++end;
            }
            std::vector<Note> notes(end - begin);
            for_each_index(run.arguments.workers, notes.size(), [&](unsigned /*worker*/, size_t index) {
                notes[index] = make_class_file(run, pieces[begin + index]);
                run.progress.step();
            });
            for (size_t index = 0; index < notes.size(); ++index) {
                note(run, pieces[begin + index].source.string(), notes[index]);
            }
            begin = end;
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
        ++begin;
    }
}

}  // namespace

Summary rewrite(const Arguments& arguments) {
    Staging staging;
    const Plan plan = make_plan(arguments, staging);
    Run run{arguments, Progress(plan.class_count), std::nullopt, {}};
    if (!plan.map.empty()) {
        run.map.emplace(plan.map);
    }
    make_pieces(run, plan.pieces);
    if (run.map) {
        run.map->close();
    }
    interrupt::check();
    staging.put_in_place();
    return run.summary;
}
