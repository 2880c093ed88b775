#include "rewritten_jar.h"

#include <map>
#include <optional>
#include <utility>

#include "failure.h"
#include "interrupt.h"
#include "jar_signature.h"
#include "packed_entry.h"
#include "workers.h"
#include "zip_format.h"
#include "zip_writer.h"

namespace vantrel_rewrite {

namespace {

// How much of a jar is rewritten before it is written: enough to keep many threads busy, but little memory.
constexpr size_t kMostEntries = 4096;
constexpr std::uint64_t kMostBytes = std::uint64_t{64} << 20U;

// New contents of entries, by their numbers.
using Changes = std::map<size_t, PackedEntry>;

// A class of a jar, and its entry's new contents where it is rewritten.
struct ClassResult {
    ClassReport report;
    std::optional<PackedEntry> packed;
};

// One jar, in a file or in another jar.
struct Jar {
    Work& work;
    const std::string& path;  // for messages
    const ArchiveBytes& bytes;
    const JarContents& contents;
    std::string label;  // for the counting
    size_t next_class;  // the number of the next class to be rewritten
    ZipWriter::Sink sink;
    // Rewrites a jar in this one. Returns nothing if none of its classes was rewritten. Null for a jar that is itself
    // inside of another one: jars in that are carried over.
    std::optional<PackedEntry> (*rewrite_inner)(Jar& jar, const ZipEntry& entry);
    size_t first_class = next_class;
    std::optional<Counting> counting = {};
    std::optional<ZipWriter> writer = {};  // there is none before the first change
    size_t dropped = 0;                    // how many signature files
};

const std::vector<ZipEntry>& entries_of(const Jar& jar) {
    return jar.contents.directory.entries;
}

// Our own tracker is told the number of the class in this jar, the user's its number among all inputs.
ClassResult rewrite_entry(const Jar& jar, const ZipEntry& entry, size_t number) {
    RewrittenClass result;
    ClassSource source;
    if (jar.counting) {
        source = {&*jar.counting, entry.name};
        number -= jar.first_class;
    }
    try {
        EntryReader reader(jar.bytes, entry, jar.path);
        result = rewrite_class(jar.work.arguments, source, static_cast<unsigned>(number), entry.size,
                               [&](size_t at_most) { return reader.read(at_most); });
    } catch (const command::Failure& failure) {
        return {{Outcome::Failed, failure.line, {}, {}}, std::nullopt};  // carried over, as damaged as it is
    }
    ClassResult made;
    if (!result.image.empty()) {
        made.packed = pack_entry(entry.method, std::move(result.image));
    }
    made.report = report_on(std::move(result));
    return made;
}

// Rewrites some of a jar's classes, which the workers share.
Changes rewrite_classes(Jar& jar, const std::vector<size_t>& classes) {
    std::vector<ClassResult> results(classes.size());
    for_each_index(jar.work.arguments.workers, classes.size(), [&](unsigned /*worker*/, size_t index) {
        results[index] = rewrite_entry(jar, entries_of(jar)[classes[index]], jar.next_class + index);
        jar.work.progress.step();
    });
    jar.next_class += classes.size();
    Changes changes;
    for (size_t index = 0; index < classes.size(); ++index) {
        add_report(jar.work, jar.counting ? &*jar.counting : nullptr,
                   jar.path + ": " + entries_of(jar)[classes[index]].name, results[index].report);
        if (results[index].packed) {
            changes.emplace(classes[index], *std::move(results[index].packed));
        }
    }
    return changes;
}

// The manifest without the digests of entries; nothing if there are none in it.
std::optional<PackedEntry> cleaned_manifest(const Jar& jar, const ZipEntry& manifest) {
    const Bytes old = read_entry(jar.bytes, manifest, jar.path);
    const std::string cleaned = without_digests({reinterpret_cast<const char*>(old.data()), old.size()});
    if (cleaned.size() == old.size()) {
        return std::nullopt;
    }
    const BytesView bytes = bytes_of(cleaned);
    return pack_entry(manifest.method, {bytes.begin(), bytes.end()});
}

void write_unchanged(Jar& jar, const ZipEntry& entry) {
    if (is_signature_file(entry.name)) {
        ++jar.dropped;
        return;
    }
    if (is_manifest(entry.name)) {
        if (const auto cleaned = cleaned_manifest(jar, entry)) {
            jar.writer->replace(entry, *cleaned);
            return;
        }
    }
    jar.writer->carry_over(entry);
}

void write_entries(Jar& jar, size_t begin, size_t end, const Changes& changes) {
    for (size_t index = begin; index < end; ++index) {
        interrupt::check();
        const ZipEntry& entry = entries_of(jar)[index];
        if (const auto change = changes.find(index); change != changes.end()) {
            jar.writer->replace(entry, change->second);
        } else {
            write_unchanged(jar, entry);
        }
    }
}

// The next part of a jar, from an entry on: a jar in it, or some classes with what is between them.
struct Part {
    size_t end;
    Changes changes;
};

Part rewrite_part(Jar& jar, size_t begin) {
    const auto& entries = entries_of(jar);
    if (jar.contents.jars.contains(begin)) {
        Part part{begin + 1, {}};
        if (auto packed = jar.rewrite_inner(jar, entries[begin])) {
            part.changes.emplace(begin, *std::move(packed));
        }
        return part;
    }
    std::vector<size_t> classes;
    std::uint64_t bytes = 0;
    size_t end = begin;
    for (; end < entries.size() && end - begin < kMostEntries && bytes < kMostBytes; ++end) {
        if (jar.contents.jars.contains(end)) {
            break;
        }
        if (is_class(entries[end])) {
            classes.push_back(end);
            bytes += entries[end].size;
        }
    }
    return {end, rewrite_classes(jar, classes)};
}

void add_trackers(Jar& jar) {
    for (AddedFile& added : jar.counting->files()) {
        jar.writer->add(added.name, pack_entry(zip::kDeflated, std::move(added.contents)));
    }
}

// Returns whether anything has changed; nothing is written otherwise.
bool rewrite_jar(Jar& jar) {
    if (jar.work.arguments.counted.any()) {
        std::vector<std::string> class_files;
        for (const ZipEntry& entry : entries_of(jar)) {
            if (is_class(entry)) {
                class_files.push_back(entry.name);
            }
        }
        jar.counting.emplace(jar.work.arguments, jar.label, std::move(class_files));
    }
    const size_t count = entries_of(jar).size();
    for (size_t at = 0; at < count;) {
        const Part part = rewrite_part(jar, at);
        if (!jar.writer && !part.changes.empty()) {
            jar.writer.emplace(jar.bytes, jar.contents.directory, jar.path, jar.sink);
            write_entries(jar, 0, at, {});
        }
        if (jar.writer) {
            write_entries(jar, at, part.end, part.changes);
        }
        at = part.end;
    }
    if (!jar.writer) {
        return false;
    }
    if (jar.counting) {
        add_trackers(jar);
    }
    jar.writer->finish();
    if (jar.dropped > 0) {
        jar.work.reports.note(jar.path + ": signed; the result is not (" + std::to_string(jar.dropped) +
                              " signature files dropped)");
    }
    return true;
}

std::optional<PackedEntry> rewrite_inner_jar(Jar& outer, const ZipEntry& entry) {
    const std::string path = outer.path + ": " + entry.name;
    const InnerJar inner(outer.bytes, entry, outer.path);
    Bytes result;
    Jar jar{outer.work,
            path,
            inner.bytes(),
            inner.contents(),
            outer.label + '/' + entry.name,
            outer.next_class,
            [&](BytesView bytes) { result.insert(result.end(), bytes.begin(), bytes.end()); },
            nullptr};
    const bool is_changed = rewrite_jar(jar);
    outer.next_class = jar.next_class;
    return is_changed ? std::optional(pack_entry(entry.method, std::move(result))) : std::nullopt;
}

}  // namespace

void write_rewritten_jar(Work& work, const Piece& piece) {
    const InputFile input(piece.source);
    const ArchiveBytes bytes(input);
    const std::string path = piece.source.string();
    for (const std::string& note : piece.jar.notes) {
        work.reports.note(note);
    }
    std::optional<OutputFile> output;
    Jar jar{work,
            path,
            bytes,
            piece.jar,
            piece.label,
            piece.first_class,
            [&](BytesView written) {
                if (!output) {
                    output.emplace(piece.target, input.permissions());
                }
                output->write(written);
            },
            rewrite_inner_jar};
    if (rewrite_jar(jar)) {
        output->close();
    } else {
        copy_whole_file(piece.source, piece.target);
    }
}

}  // namespace vantrel_rewrite
