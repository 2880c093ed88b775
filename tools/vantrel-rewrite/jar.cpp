#include "jar.h"

#include "failure.h"
#include "interrupt.h"
#include "jar_signature.h"

namespace fs = std::filesystem;

namespace {

// An entry's name as it stands in the archive; empty where it has none.
std::string entry_name(zip_t* zip, zip_uint64_t index) {
    const char* name = zip_get_name(zip, index, ZIP_FL_ENC_RAW);
    return name == nullptr ? "" : name;
}

zip_uint64_t entry_count(zip_t* zip) {
    return static_cast<zip_uint64_t>(zip_get_num_entries(zip, 0));
}

// libzip writes an archive from its first entry on: a program in front of it would be lost.
void check_begin(const fs::path& path) {
    unsigned char begin[2] = {};
    InputFile(path).read_at(0, begin, sizeof begin);
    if (begin[0] != 'P' || begin[1] != 'K') {
        throw Failure{path.string() + " has something before its first entry (a script?), which would be lost; take " +
                      "that off first"};
    }
}

}  // namespace

std::vector<JarClass> classes_of_jar(const fs::path& path) {
    const Zip zip = open_jar(path);
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

size_t write_jar(const fs::path& source, const fs::path& target, const std::vector<PackedEntry>& changes) {
    if (changes.empty()) {
        copy_whole_file(source, target);
        return 0;
    }
    const InputFile input(source);
    OutputFile output(target, input.permissions());
    JarTransfer transfer(input, output);
    PackedEntry manifest{};
    size_t signature_files = 0;
    Zip zip = transfer.open(source);
    for (const PackedEntry& change : changes) {
        replace_entry(zip.get(), change, source);
    }
    for (zip_uint64_t index = 0; index < entry_count(zip.get()); ++index) {
        const std::string name = entry_name(zip.get(), index);
        if (is_signature_file(name)) {
            if (zip_delete(zip.get(), index) != 0) {
                fail_on_zip("change", source, zip_strerror(zip.get()));
            }
            ++signature_files;
        } else if (is_manifest(name) && manifest.data.empty()) {
            const Bytes old = read_entry(zip.get(), index, source);
            const std::string cleaned = without_digests({reinterpret_cast<const char*>(old.data()), old.size()});
            if (cleaned.size() != old.size()) {
                zip_stat_t status;
                zip_stat_index(zip.get(), index, 0, &status);
                manifest = pack_entry(index, status.comp_method, bytes_of(cleaned));
                replace_entry(zip.get(), manifest, source);
            }
        }
    }
    zip_register_cancel_callback_with_state(
        zip.get(), [](zip_t*, void*) { return interrupt::requested() ? 1 : 0; }, nullptr, nullptr);
    if (zip_close(zip.get()) != 0) {
        interrupt::check();
        transfer.rethrow_failure();
        fail_on_zip("write", target, zip_strerror(zip.get()));
    }
    zip.release();  // NOLINT(bugprone-unused-return-value): closed
    output.close();
    return signature_files;
}
