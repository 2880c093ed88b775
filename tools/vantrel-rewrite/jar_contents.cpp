#include "jar_contents.h"

#include <algorithm>

#include "failure.h"
#include "packed_entry.h"
#include "zip_format.h"

namespace fs = std::filesystem;

namespace vantrel_rewrite {

namespace {

// A jar's entries, without a look into the jars among them.
JarContents read_entries(const ArchiveBytes& bytes, const std::string& path) {
    JarContents contents;
    contents.directory = read_zip_directory(bytes, path);
    const auto& entries = contents.directory.entries;
    contents.class_count = static_cast<size_t>(std::count_if(entries.begin(), entries.end(), is_class));
    return contents;
}

bool is_read_in_place(const ZipEntry& entry) {
    return entry.method == zip::kStored && (entry.flags & zip::kEncrypted) == 0 && entry.size == entry.packed_size;
}

}  // namespace

bool is_class(const ZipEntry& entry) {
    return entry.name.ends_with(".class");
}

JarContents read_jar(const fs::path& path) {
    const InputFile file(path);
    const ArchiveBytes bytes(file);
    JarContents contents = read_entries(bytes, path);
    const auto& entries = contents.directory.entries;
    for (size_t index = 0; index < entries.size(); ++index) {
        if (!entries[index].name.ends_with(".jar")) {
            continue;
        }
        try {
            contents.class_count += InnerJar(bytes, entries[index], path).contents().class_count;
            contents.jars.insert(index);
        } catch (const command::Failure& failure) {
            contents.notes.push_back(failure.line + "; it is carried over");
        }
    }
    return contents;
}

InnerJar::InnerJar(const ArchiveBytes& outer, const ZipEntry& entry, const std::string& path)
    : unpacked_(is_read_in_place(entry) ? Bytes{} : read_entry(outer, entry, path)),
      bytes_(is_read_in_place(entry) ? outer.part(entry.data, entry.size) : ArchiveBytes(BytesView(unpacked_))),
      contents_(read_entries(bytes_, path + ": " + entry.name)) {}

}  // namespace vantrel_rewrite
