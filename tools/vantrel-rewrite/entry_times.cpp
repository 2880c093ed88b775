#include "entry_times.h"

#include <algorithm>

#include "failure.h"
#include "jar_signature.h"
#include "zip_directory.h"

namespace fs = std::filesystem;

namespace vantrel_rewrite {

void carry_times_over(const fs::path& source, OutputFile& target, const NewFile& file) {
    ZipDirectory before = read_zip_directory(InputFile(source), source);
    ZipDirectory after = read_zip_directory(InputFile(file.path), file.final);
    std::erase_if(before.entries, [](const ZipDirectoryEntry& entry) { return is_signature_file(entry.name); });
    if (before.entries.size() != after.entries.size()) {
        throw command::Failure{"cannot write " + file.final.string() +
                               ": its entries are not those that it is to have"};
    }
    for (size_t index = 0; index < after.entries.size(); ++index) {
        const unsigned char* time = &before.bytes[before.entries[index].time];
        unsigned char* written = &after.bytes[after.entries[index].time];
        if (!std::equal(time, time + kZipTimeSize, written)) {
            std::copy_n(time, kZipTimeSize, written);
            target.write_at(static_cast<off_t>(after.entries[index].header_time), {time, kZipTimeSize});
        }
    }
    target.write_at(static_cast<off_t>(after.position), after.bytes);
}

}  // namespace vantrel_rewrite
