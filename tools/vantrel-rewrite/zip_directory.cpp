#include "zip_directory.h"

#include <algorithm>
#include <optional>
#include <string>

#include "failure.h"

namespace fs = std::filesystem;

namespace vantrel_rewrite {

namespace {

// The records of an archive, as the "APPNOTE" of its format has them (4.3 and 4.5.3): numbers stand with their low
// bytes first, and each record begins with a number of its own.
namespace end_record {
constexpr std::uint32_t kBegin = 0x06054b50;
constexpr size_t kSize = 22;
constexpr size_t kCount = 10;
constexpr size_t kDirectorySize = 12;
constexpr size_t kDirectory = 16;
constexpr size_t kCommentSize = 20;
}  // namespace end_record

namespace wide_end_locator {  // immediately before the end record, of an archive that needs wide numbers
constexpr std::uint32_t kBegin = 0x07064b50;
constexpr size_t kSize = 20;
constexpr size_t kEndRecord = 8;
}  // namespace wide_end_locator

namespace wide_end_record {
constexpr std::uint32_t kBegin = 0x06064b50;
constexpr size_t kSize = 56;
constexpr size_t kCount = 32;
constexpr size_t kDirectorySize = 40;
constexpr size_t kDirectory = 48;
}  // namespace wide_end_record

namespace directory_entry {
constexpr std::uint32_t kBegin = 0x02014b50;
constexpr size_t kSize = 46;
constexpr size_t kTime = 12;  // and the date after it
constexpr size_t kPackedSize = 20;
constexpr size_t kUnpackedSize = 24;
constexpr size_t kNameSize = 28;
constexpr size_t kExtraSize = 30;
constexpr size_t kCommentSize = 32;
constexpr size_t kHeader = 42;
}  // namespace directory_entry

namespace header {
constexpr size_t kTime = 10;
}  // namespace header

constexpr std::uint32_t kIsWide = 0xFFFFFFFF;
constexpr unsigned kWideNumbers = 1;  // the kind of extra field that has the numbers which are kIsWide in the record

std::uint64_t number_at(const unsigned char* at, size_t size) {
    std::uint64_t number = 0;
    while (size-- > 0) {
        number = number << 8U | at[size];
    }
    return number;
}

std::uint16_t u2(const unsigned char* at) {
    return static_cast<std::uint16_t>(number_at(at, 2));
}

std::uint32_t u4(const unsigned char* at) {
    return static_cast<std::uint32_t>(number_at(at, 4));
}

bool read_exactly(const InputFile& file, std::uint64_t position, Bytes& to) {
    return file.read_at(static_cast<off_t>(position), to.data(), to.size()) == to.size();
}

size_t size_of_record(const unsigned char* record) {
    return directory_entry::kSize + u2(record + directory_entry::kNameSize) + u2(record + directory_entry::kExtraSize) +
           u2(record + directory_entry::kCommentSize);
}

// Where the header before an entry's contents is. Nothing if the record does not tell.
std::optional<std::uint64_t> header_of(const unsigned char* record) {
    const std::uint32_t position = u4(record + directory_entry::kHeader);
    if (position != kIsWide) {
        return position;
    }
    const unsigned char* extra = record + directory_entry::kSize + u2(record + directory_entry::kNameSize);
    const unsigned char* const end = extra + u2(record + directory_entry::kExtraSize);
    for (; end - extra >= 4; extra += 4 + u2(extra + 2)) {
        const size_t before = 8 * (static_cast<size_t>(u4(record + directory_entry::kUnpackedSize) == kIsWide) +
                                   static_cast<size_t>(u4(record + directory_entry::kPackedSize) == kIsWide));
        if (u2(extra) == kWideNumbers && static_cast<size_t>(end - extra) >= 4 + before + 8) {
            return number_at(extra + 4 + before, 8);
        }
        if (end - extra < 4 + u2(extra + 2)) {
            break;
        }
    }
    return std::nullopt;
}

std::string name_of(const unsigned char* record) {
    std::string name(reinterpret_cast<const char*>(record + directory_entry::kSize),
                     u2(record + directory_entry::kNameSize));
    std::replace(name.begin(), name.end(), '\0', ' ');
    return name;
}

// Nothing where there is no directory of that many entries.
std::optional<ZipDirectory> directory_at(const InputFile& file, std::uint64_t position, std::uint64_t size,
                                         std::uint64_t count) {
    const auto file_size = static_cast<std::uint64_t>(file.size());
    if (position > file_size || size > file_size - position) {
        return std::nullopt;
    }
    ZipDirectory directory{position, Bytes(size), {}};
    if (!read_exactly(file, position, directory.bytes)) {
        return std::nullopt;
    }
    for (size_t at = 0; directory.entries.size() < count;) {
        const unsigned char* record = directory.bytes.data() + at;
        const size_t rest = directory.bytes.size() - at;
        if (rest < directory_entry::kSize || u4(record) != directory_entry::kBegin || rest < size_of_record(record)) {
            return std::nullopt;
        }
        const auto header = header_of(record);
        if (!header) {
            return std::nullopt;
        }
        directory.entries.push_back({name_of(record), at + directory_entry::kTime, *header + header::kTime});
        at += size_of_record(record);
    }
    return directory;
}

// The directory that an end record tells of, or the wide one before it.
std::optional<ZipDirectory> directory_of(const InputFile& file, std::uint64_t end, const unsigned char* record) {
    Bytes locator(wide_end_locator::kSize);
    if (end >= locator.size() && read_exactly(file, end - locator.size(), locator) &&
        u4(locator.data()) == wide_end_locator::kBegin) {
        Bytes wide(wide_end_record::kSize);
        if (read_exactly(file, number_at(&locator[wide_end_locator::kEndRecord], 8), wide) &&
            u4(wide.data()) == wide_end_record::kBegin) {
            return directory_at(file, number_at(&wide[wide_end_record::kDirectory], 8),
                                number_at(&wide[wide_end_record::kDirectorySize], 8),
                                number_at(&wide[wide_end_record::kCount], 8));
        }
    }
    return directory_at(file, u4(record + end_record::kDirectory), u4(record + end_record::kDirectorySize),
                        u2(record + end_record::kCount));
}

}  // namespace

// Looks for the end record from the end of the file on, for a comment of any length may come after it.
ZipDirectory read_zip_directory(const InputFile& file, const fs::path& path) {
    constexpr std::uint64_t kLongestEnd = end_record::kSize + UINT16_MAX;
    const auto file_size = static_cast<std::uint64_t>(file.size());
    const std::uint64_t begin = file_size - std::min(file_size, kLongestEnd);
    Bytes end(file_size - begin);
    if (read_exactly(file, begin, end) && end.size() >= end_record::kSize) {
        for (size_t at = end.size() - end_record::kSize + 1; at-- > 0;) {
            if (u4(&end[at]) == end_record::kBegin &&
                u2(&end[at] + end_record::kCommentSize) <= end.size() - at - end_record::kSize) {
                if (auto directory = directory_of(file, begin + at, &end[at])) {
                    return *std::move(directory);
                }
            }
        }
    }
    throw command::Failure{"cannot read " + path.string() + ": it has no directory of its entries"};
}

}  // namespace vantrel_rewrite
