#include "rewritten_jar.h"

#include <optional>

#include "archive_transfer.h"
#include "entry_times.h"
#include "failure.h"
#include "interrupt.h"
#include "jar_signature.h"
#include "zip_archive.h"

namespace fs = std::filesystem;

namespace vantrel_rewrite {

namespace {

// libzip writes an archive from its first entry on: a program in front of it would be lost.
void check_begin(const fs::path& path) {
    unsigned char begin[2] = {};
    InputFile(path).read_at(0, begin, sizeof begin);
    if (begin[0] != 'P' || begin[1] != 'K') {
        throw command::Failure{path.string() + " has something before its first entry (a script?), which would be " +
                               "lost; take that off first"};
    }
}

// Drops the files of signatures; returns how many there were.
size_t drop_signatures(zip_t* zip, const fs::path& source) {
    size_t dropped = 0;
    for (zip_uint64_t index = 0; index < entry_count(zip); ++index) {
        if (is_signature_file(entry_name(zip, index))) {
            if (zip_delete(zip, index) != 0) {
                fail_on_zip("change", source, zip_get_error(zip));
            }
            ++dropped;
        }
    }
    return dropped;
}

// The manifest without the digests of entries; nothing where there is none, or it has none.
std::optional<PackedEntry> manifest_without_digests(zip_t* zip, const fs::path& source) {
    for (zip_uint64_t index = 0; index < entry_count(zip); ++index) {
        if (is_manifest(entry_name(zip, index))) {
            const Bytes old = read_entry(zip, index, source);
            const std::string cleaned = without_digests({reinterpret_cast<const char*>(old.data()), old.size()});
            zip_stat_t status;
            if (cleaned.size() != old.size() && zip_stat_index(zip, index, 0, &status) == 0) {
                return pack_entry(index, status.comp_method, bytes_of(cleaned));
            }
        }
    }
    return std::nullopt;
}

}  // namespace

std::vector<JarClass> classes_of_jar(const fs::path& path) {
    const Zip zip = open_archive(path);
    check_begin(path);
    std::vector<JarClass> classes;
    for (zip_uint64_t index = 0; index < entry_count(zip.get()); ++index) {
        zip_stat_t status;
        std::string name = entry_name(zip.get(), index);
        if (name.ends_with(".class") && zip_stat_index(zip.get(), index, 0, &status) == 0) {
            classes.push_back({index, std::move(name), status.comp_method});
        }
    }
    return classes;
}

size_t write_rewritten_jar(const fs::path& source, const NewFile& target, const std::vector<PackedEntry>& changes) {
    if (changes.empty()) {
        copy_whole_file(source, target);
        return 0;
    }
    const InputFile input(source);
    OutputFile output(target, input.permissions());
    ArchiveTransfer transfer(input, output);
    std::optional<PackedEntry> manifest;
    Zip zip = transfer.open(source);
    for (const PackedEntry& change : changes) {
        replace_entry(zip.get(), change, source);
    }
    manifest = manifest_without_digests(zip.get(), source);
    if (manifest) {
        replace_entry(zip.get(), *manifest, source);
    }
    const size_t dropped = drop_signatures(zip.get(), source);
    zip_register_cancel_callback_with_state(
        zip.get(), [](zip_t*, void*) { return interrupt::requested() ? 1 : 0; }, nullptr, nullptr);
    if (zip_close(zip.get()) != 0) {
        interrupt::check();
        transfer.rethrow_failure();
        // What went wrong while it was written is a failure of the transfer. This is an entry that cannot be carried
        // over.
        fail_on_zip("read", source, zip_get_error(zip.get()));
    }
    zip.release();  // NOLINT(bugprone-unused-return-value): closed
    carry_times_over(source, output, target);
    output.close();
    return dropped;
}

}  // namespace vantrel_rewrite
