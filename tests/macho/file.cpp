#include "file.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>

namespace macho {
namespace {

constexpr std::uint32_t kFatMagic = 0xCAFEBABE;
constexpr std::uint32_t kMagic64 = 0xFEEDFACF;
constexpr std::uint32_t kX86_64 = 0x01000007;
constexpr std::uint32_t kDylib = 6;

enum Command : std::uint32_t {
    kSymbols = 0x2,
    kDynamicSymbols = 0xB,
    kLoadLibrary = 0xC,
    kOwnName = 0xD,
    kSegment = 0x19,
    kUuid = 0x1B,
    kCodeSignature = 0x1D,
    kFunctionStarts = 0x26,
    kDataInCode = 0x29,
    kBuildVersion = 0x32,
    kDyldInfo = 0x80000022,
};

struct SegmentCommand {
    std::uint32_t command, size;
    char name[16];
    std::uint64_t address, memory_size, file_offset, file_size;
    std::uint32_t most_protection, protection, section_count, flags;
};
constexpr std::uint32_t kReadOnlyOnceFixed = 0x10;  // SG_READ_ONLY

struct SectionHeader {
    char name[16], segment[16];
    std::uint64_t address, size;
    std::uint32_t offset, alignment, relocations, relocation_count, flags, reserved[3];
};
constexpr std::uint32_t kSectionType = 0xFF;
constexpr std::uint32_t kThreadLocal[] = {0x11, 0x12, 0x13, 0x14, 0x15};

// Names in headers fill their fields, or end with a zero.
std::string field(const char (&text)[16]) {
    return {text, strnlen(text, sizeof text)};
}

std::string text_at(Bytes bytes, std::uint64_t offset) {
    const Bytes rest = part(bytes, offset, bytes.size() - std::min<std::uint64_t>(offset, bytes.size()));
    const auto* characters = reinterpret_cast<const char*>(rest.data());
    return {characters, strnlen(characters, rest.size())};
}

// The universal file's header is in network order.
std::vector<std::uint8_t> x86_64_part(Bytes universal) {
    const auto network_number = [&](std::uint64_t offset) {
        return __builtin_bswap32(number_at<std::uint32_t>(universal, offset));
    };
    if (network_number(0) != kFatMagic) {
        throw Error("it is not a universal Mach-O file");
    }
    constexpr std::uint64_t kHeader = 8;
    constexpr std::uint64_t kEntry = 20;
    for (std::uint64_t entry = kHeader; entry < kHeader + network_number(4) * kEntry; entry += kEntry) {
        if (network_number(entry) == kX86_64) {
            const Bytes found = part(universal, network_number(entry + 8), network_number(entry + 12));
            return {found.begin(), found.end()};
        }
    }
    throw Error("it has no part for x86-64");
}

void read_segment(File& file, Bytes command) {
    const auto segment = number_at<SegmentCommand>(command, 0);
    file.segments.push_back({field(segment.name), segment.address, segment.memory_size,
                             part(file.bytes, segment.file_offset, segment.file_size),
                             static_cast<int>(segment.protection), (segment.flags & kReadOnlyOnceFixed) != 0});
    if (segment.file_size > segment.memory_size) {
        throw Error("the file has more of " + field(segment.name) + " than fits there");
    }
    for (std::uint32_t i = 0; i < segment.section_count; ++i) {
        const auto section = number_at<SectionHeader>(command, sizeof segment + i * sizeof(SectionHeader));
        for (const std::uint32_t type : kThreadLocal) {
            if ((section.flags & kSectionType) == type) {
                throw Error("thread-local variables, in " + field(section.name) + ", are not known here");
            }
        }
        file.sections.emplace(field(section.segment) + "," + field(section.name),
                              Section{section.address, section.size});
    }
}

void read_dyld_info(File& file, Bytes command) {
    const auto range = [&](std::uint64_t at) {
        return part(file.bytes, number_at<std::uint32_t>(command, at), number_at<std::uint32_t>(command, at + 4));
    };
    file.rebases = range(8);
    file.binds = range(16);
    if (!range(24).empty()) {
        throw Error("names that are shared with other libraries (weak binding) are not known here");
    }
    file.lazy_binds = range(32);
    file.exports = range(40);
}

void read_command(File& file, Bytes command) {
    switch (const auto kind = number_at<std::uint32_t>(command, 0)) {
        case kSegment:
            return read_segment(file, command);
        case kDyldInfo:
            return read_dyld_info(file, command);
        case kLoadLibrary:
            file.libraries.push_back(text_at(command, number_at<std::uint32_t>(command, 8)));
            return;
        case kSymbols:
        case kDynamicSymbols:
        case kOwnName:
        case kUuid:
        case kCodeSignature:
        case kFunctionStarts:
        case kDataInCode:
        case kBuildVersion:
            return;  // nothing that the code needs to run
        default:
            throw Error("load command " + std::to_string(kind) + " is not known here");
    }
}

}  // namespace

Bytes part(Bytes bytes, std::uint64_t offset, std::uint64_t size) {
    if (offset > bytes.size() || size > bytes.size() - offset) {
        throw Error("it ends early");
    }
    return bytes.subspan(offset, size);
}

File read_file(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    if (!stream) {
        throw Error("it cannot be read");
    }
    const std::vector<std::uint8_t> universal{std::istreambuf_iterator<char>(stream), {}};
    File file;
    file.bytes = x86_64_part(universal);
    if (number_at<std::uint32_t>(file.bytes, 0) != kMagic64 || number_at<std::uint32_t>(file.bytes, 12) != kDylib) {
        throw Error("its part for x86-64 is not a dynamic library");
    }
    constexpr std::uint64_t kHeader = 32;
    std::uint64_t at = kHeader;
    for (auto count = number_at<std::uint32_t>(file.bytes, 16); count > 0; --count) {
        const auto size = number_at<std::uint32_t>(file.bytes, at + 4);
        read_command(file, part(file.bytes, at, size));
        at += size;
    }
    return file;
}

}  // namespace macho
