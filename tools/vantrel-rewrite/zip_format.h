// The records of an archive, as the "APPNOTE" of its format describes them (4.3 and 4.5.3): at which offset in a record
// each of its numbers is. Numbers stand with their low bytes first. Each kind of record begins with a number of its
// own, kBegin.
#ifndef VANTREL_REWRITE_ZIP_FORMAT_H
#define VANTREL_REWRITE_ZIP_FORMAT_H

#include <cstddef>
#include <cstdint>

namespace vantrel_rewrite::zip {

namespace header {  // before an entry's contents, with name and extra fields after it
constexpr std::uint32_t kBegin = 0x04034b50;
constexpr size_t kSize = 30;
constexpr size_t kNeeded = 4;
constexpr size_t kFlags = 6;
constexpr size_t kMethod = 8;
constexpr size_t kDate = 12;
constexpr size_t kCrc = 14;
constexpr size_t kPackedSize = 18;
constexpr size_t kUnpackedSize = 22;
constexpr size_t kNameSize = 26;
constexpr size_t kExtraSize = 28;
}  // namespace header

namespace descriptor {  // after an entry's contents, if its flags say so; kBegin may be missing
constexpr std::uint32_t kBegin = 0x08074b50;
constexpr size_t kCrcAndSizes = 12;
constexpr size_t kCrcAndWideSizes = 20;
}  // namespace descriptor

namespace record {  // an entry's, in the directory, with name, extra fields and comment after it
constexpr std::uint32_t kBegin = 0x02014b50;
constexpr size_t kSize = 46;
constexpr size_t kMadeBy = 4;
constexpr size_t kNeeded = 6;
constexpr size_t kFlags = 8;
constexpr size_t kMethod = 10;
constexpr size_t kDate = 14;
constexpr size_t kCrc = 16;
constexpr size_t kPackedSize = 20;
constexpr size_t kUnpackedSize = 24;
constexpr size_t kNameSize = 28;
constexpr size_t kExtraSize = 30;
constexpr size_t kCommentSize = 32;
constexpr size_t kHeader = 42;
}  // namespace record

namespace end_record {
constexpr std::uint32_t kBegin = 0x06054b50;
constexpr size_t kSize = 22;
constexpr size_t kCountHere = 8;
constexpr size_t kCount = 10;
constexpr size_t kDirectorySize = 12;
constexpr size_t kDirectory = 16;
constexpr size_t kCommentSize = 20;
}  // namespace end_record

namespace wide_end_locator {  // immediately before the end record, of an archive that needs wide numbers
constexpr std::uint32_t kBegin = 0x07064b50;
constexpr size_t kSize = 20;
constexpr size_t kEndRecord = 8;
constexpr size_t kDisks = 16;
}  // namespace wide_end_locator

namespace wide_end_record {
constexpr std::uint32_t kBegin = 0x06064b50;
constexpr size_t kSize = 56;
constexpr size_t kSizeOfRest = 4;  // all but these 12 bytes
constexpr size_t kMadeBy = 12;
constexpr size_t kNeeded = 14;
constexpr size_t kCountHere = 24;
constexpr size_t kCount = 32;
constexpr size_t kDirectorySize = 40;
constexpr size_t kDirectory = 48;
constexpr std::uint16_t kVersion = 45;  // of the format, since which there are wide numbers
}  // namespace wide_end_record

// Flags and methods of an entry.
constexpr std::uint16_t kEncrypted = 1U << 0U;
constexpr std::uint16_t kHasDescriptor = 1U << 3U;
constexpr std::uint16_t kStored = 0;
constexpr std::uint16_t kDeflated = 8;

// Stands in the place of a number that is wide. The number itself is in the extra field of the kind kWideNumbers, which
// has such numbers in this order: unpacked size, packed size, position of the header. For the end record, it is in the
// wide end record.
constexpr std::uint32_t kIsWide = 0xFFFFFFFF;
constexpr std::uint16_t kManyEntries = 0xFFFF;
constexpr unsigned kWideNumbers = 1;
constexpr size_t kExtraHeadSize = 4;  // its kind and the size of what comes

inline std::uint64_t number_at(const unsigned char* at, size_t size) {
    std::uint64_t number = 0;
    while (size-- > 0) {
        number = number << 8U | at[size];
    }
    return number;
}

inline std::uint16_t u2(const unsigned char* at) {
    return static_cast<std::uint16_t>(number_at(at, 2));
}

inline std::uint32_t u4(const unsigned char* at) {
    return static_cast<std::uint32_t>(number_at(at, 4));
}

inline std::uint64_t u8(const unsigned char* at) {
    return number_at(at, 8);
}

inline void put_number(unsigned char* at, std::uint64_t number, size_t size) {
    for (size_t byte = 0; byte < size; ++byte, number >>= 8U) {
        at[byte] = static_cast<unsigned char>(number);
    }
}

}  // namespace vantrel_rewrite::zip

#endif
