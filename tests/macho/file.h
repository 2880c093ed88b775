// The x86-64 part of a universal Mach-O library, as its load commands describe it (Apple's mach-o/loader.h and fat.h).
// Nothing is mapped or changed here: image.h does that.
//
// Addresses are those that the linker gave: the first segment begins at 0.
#ifndef VANTREL_MACHO_FILE_H
#define VANTREL_MACHO_FILE_H

#include <cstdint>
#include <filesystem>
#include <map>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace macho {

// What is wrong with a file, or what of it is not known here.
using Error = std::runtime_error;
using Bytes = std::span<const std::uint8_t>;

// A part of `bytes`; throws Error where it is not whole.
Bytes part(Bytes bytes, std::uint64_t offset, std::uint64_t size);

// A number, or a plain struct of numbers, in this machine's byte order, which is the file's.
template <typename Number>
Number number_at(Bytes bytes, std::uint64_t offset) {
    Number number;
    __builtin_memcpy(&number, part(bytes, offset, sizeof number).data(), sizeof number);
    return number;
}

struct Segment {
    std::string name;
    std::uint64_t address;
    std::uint64_t size;
    Bytes content;  // what the file has of it; the rest is zero
    int protection;
    bool read_only_once_fixed;
};

struct Section {
    std::uint64_t address;
    std::uint64_t size;
};

struct File {
    std::vector<std::uint8_t> bytes;  // what the spans below are parts of
    std::vector<Segment> segments;    // in order of their addresses
    std::map<std::string, Section> sections;
    std::vector<std::string> libraries;  // by the names they are loaded by; ordinal 1 is the first
    // Instructions for the loader: fix_ups.h.
    Bytes rebases, binds, lazy_binds;
    Bytes exports;

    File() = default;
    File(const File&) = delete;
    File(File&&) = default;
    File& operator=(const File&) = delete;
    File& operator=(File&&) = delete;
    ~File() = default;
};

// Throws Error where the file is not such a library, or has in it what is not known here.
File read_file(const std::filesystem::path& path);

}  // namespace macho

#endif
