#include "zip_directory.h"

#include <algorithm>
#include <optional>

#include "failure.h"
#include "zip_format.h"

namespace vantrel_rewrite {

using namespace zip;

namespace {

size_t size_of_record(const unsigned char* at) {
    return record::kSize + u2(at + record::kNameSize) + u2(at + record::kExtraSize) + u2(at + record::kCommentSize);
}

// Reads those numbers of an entry that do not fit into 32 bits from its extra field. Returns false if they are not
// there.
bool read_wide_numbers(const unsigned char* at, ZipEntry& entry) {
    std::vector<std::uint64_t*> missing;
    for (std::uint64_t* number : {&entry.size, &entry.packed_size, &entry.header}) {
        if (*number == kIsWide) {
            missing.push_back(number);
        }
    }
    const unsigned char* extra = at + record::kSize + u2(at + record::kNameSize);
    size_t left = u2(at + record::kExtraSize);
    while (!missing.empty() && left >= kExtraHeadSize) {
        const size_t size = u2(extra + 2);
        if (size > left - kExtraHeadSize) {
            return false;
        }
        if (u2(extra) == kWideNumbers) {
            for (size_t index = 0; index < missing.size() && 8 * (index + 1) <= size; ++index) {
                *missing[index] = u8(extra + kExtraHeadSize + 8 * index);
            }
            return size >= 8 * missing.size();
        }
        extra += kExtraHeadSize + size;
        left -= kExtraHeadSize + size;
    }
    return missing.empty();
}

ZipEntry entry_of(const unsigned char* at) {
    ZipEntry entry{};
    entry.name.assign(reinterpret_cast<const char*>(at + record::kSize), u2(at + record::kNameSize));
    entry.flags = u2(at + record::kFlags);
    entry.method = u2(at + record::kMethod);
    entry.crc = u4(at + record::kCrc);
    entry.packed_size = u4(at + record::kPackedSize);
    entry.size = u4(at + record::kUnpackedSize);
    entry.header = u4(at + record::kHeader);
    return entry;
}

// Where an end record, or the wide one before it, says that the directory is.
struct DirectoryPlace {
    std::uint64_t position;
    std::uint64_t size;
    std::uint64_t count;
    std::uint64_t end;  // of the directory, where the record begins
};

// The directory at a position, or nothing where there is none.
std::optional<ZipDirectory> directory_at(const ArchiveBytes& archive, std::uint64_t position,
                                         const DirectoryPlace& place) {
    if (!archive.holds(position, place.size) || position < place.position) {
        return std::nullopt;
    }
    ZipDirectory directory;
    directory.shift = position - place.position;
    directory.begin = position;
    directory.bytes.resize(place.size);
    archive.read(position, directory.bytes.data(), directory.bytes.size());
    for (size_t at = 0; directory.entries.size() < place.count;) {
        const unsigned char* begin = directory.bytes.data() + at;
        const size_t rest = directory.bytes.size() - at;
        if (rest < record::kSize || u4(begin) != record::kBegin || rest < size_of_record(begin)) {
            return std::nullopt;
        }
        ZipEntry entry = entry_of(begin);
        if (!read_wide_numbers(begin, entry)) {
            return std::nullopt;
        }
        entry.header += directory.shift;
        entry.record = at;
        entry.record_size = size_of_record(begin);
        at += entry.record_size;
        directory.entries.push_back(std::move(entry));
    }
    return directory;
}

DirectoryPlace place_in(const ArchiveBytes& archive, std::uint64_t end, const unsigned char* at) {
    unsigned char locator[wide_end_locator::kSize];
    if (end >= sizeof locator && archive.read(end - sizeof locator, locator, sizeof locator) &&
        u4(locator) == wide_end_locator::kBegin) {
        unsigned char wide[wide_end_record::kSize];
        // The locator may be wrong if something was put in front of the archive. Then the record stands right before
        // the locator.
        for (const std::uint64_t place :
             {u8(locator + wide_end_locator::kEndRecord), end - sizeof locator - sizeof wide}) {
            if (archive.read(place, wide, sizeof wide) && u4(wide) == wide_end_record::kBegin) {
                return {u8(wide + wide_end_record::kDirectory), u8(wide + wide_end_record::kDirectorySize),
                        u8(wide + wide_end_record::kCount), place};
            }
        }
    }
    return {u4(at + end_record::kDirectory), u4(at + end_record::kDirectorySize), u2(at + end_record::kCount), end};
}

// The directory ends where the record that describes it begins; VMs find it so. If it does not, it is at the position
// that the record tells.
std::optional<ZipDirectory> directory_before(const ArchiveBytes& archive, const DirectoryPlace& place) {
    if (place.size <= place.end) {
        if (auto directory = directory_at(archive, place.end - place.size, place)) {
            return directory;
        }
    }
    return directory_at(archive, place.position, place);
}

// Looks for the end record from the end on, for a comment of any length may come after it.
std::optional<ZipDirectory> find_directory(const ArchiveBytes& archive) {
    constexpr std::uint64_t kLongestEnd = end_record::kSize + UINT16_MAX;
    const std::uint64_t begin = archive.size() - std::min(archive.size(), kLongestEnd);
    Bytes end(archive.size() - begin);
    if (!archive.read(begin, end.data(), end.size()) || end.size() < end_record::kSize) {
        return std::nullopt;
    }
    for (size_t at = end.size() - end_record::kSize + 1; at-- > 0;) {
        if (u4(&end[at]) == end_record::kBegin &&
            u2(&end[at] + end_record::kCommentSize) <= end.size() - at - end_record::kSize) {
            if (auto directory = directory_before(archive, place_in(archive, begin + at, &end[at]))) {
                directory->end.assign(end.begin() + static_cast<std::ptrdiff_t>(at), end.end());
                return directory;
            }
        }
    }
    return std::nullopt;
}

// Reads the header in front of each entry's contents, which tells where these begin. Returns false if an entry is not
// there, or overlaps with another one: from such an archive, a copy of all entries could be of any size.
bool find_contents(const ArchiveBytes& archive, ZipDirectory& directory) {
    std::vector<std::pair<std::uint64_t, std::uint64_t>> places;
    const std::uint64_t end = directory.begin;
    for (ZipEntry& entry : directory.entries) {
        unsigned char head[header::kSize];
        if (!archive.read(entry.header, head, sizeof head) || u4(head) != header::kBegin) {
            return false;
        }
        entry.data = entry.header + sizeof head + u2(head + header::kNameSize) + u2(head + header::kExtraSize);
        if (entry.data > end || entry.packed_size > end - entry.data) {
            return false;
        }
        places.emplace_back(entry.header, entry.data + entry.packed_size);
        directory.begin = std::min(directory.begin, entry.header);
    }
    std::sort(places.begin(), places.end());
    return std::adjacent_find(places.begin(), places.end(), [](const auto& one, const auto& next) {
               return one.second > next.first;
           }) == places.end();
}

}  // namespace

ZipDirectory read_zip_directory(const ArchiveBytes& archive, const std::string& path) {
    auto directory = find_directory(archive);
    if (!directory) {
        throw command::Failure{"cannot read " + path + ": Not a zip archive (is it a whole jar?)"};
    }
    if (!find_contents(archive, *directory)) {
        throw command::Failure{"cannot read " + path + ": what it says of its entries is wrong"};
    }
    return *std::move(directory);
}

}  // namespace vantrel_rewrite
