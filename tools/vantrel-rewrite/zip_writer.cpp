#include "zip_writer.h"

#include <algorithm>
#include <utility>

#include "failure.h"
#include "zip_format.h"

namespace vantrel_rewrite {

using namespace zip;

namespace {

constexpr size_t kBlock = size_t{1} << 20U;

template <size_t size>
void append_number(Bytes& to, std::uint64_t number) {
    to.resize(to.size() + size);
    put_number(&to[to.size() - size], number, size);
}

// A number of 32 bits, or what stands for one that is wide.
std::uint32_t narrow(std::uint64_t number) {
    return static_cast<std::uint32_t>(std::min<std::uint64_t>(number, kIsWide));
}

// Extra fields without the one for wide numbers. Bytes at their end that are no whole field stay.
Bytes without_wide_numbers(BytesView extra) {
    Bytes kept;
    while (extra.size() >= kExtraHeadSize && u2(&extra[2]) <= extra.size() - kExtraHeadSize) {
        const size_t size = kExtraHeadSize + u2(&extra[2]);
        if (u2(extra.data()) != kWideNumbers) {
            kept.insert(kept.end(), extra.begin(), extra.begin() + static_cast<std::ptrdiff_t>(size));
        }
        extra = extra.subspan(size);
    }
    kept.insert(kept.end(), extra.begin(), extra.end());
    return kept;
}

bool has_wide_numbers(BytesView extra) {
    return without_wide_numbers(extra).size() != extra.size();
}

// How long the descriptor after an entry's contents is.
//   begin   what comes after the contents
size_t size_of_descriptor(const ZipEntry& entry, BytesView begin, bool is_wide) {
    const size_t size = is_wide ? descriptor::kCrcAndWideSizes : descriptor::kCrcAndSizes;
    // A descriptor may begin with its number or without. An entry whose CRC is that very number is taken to have none.
    const bool has_number = u4(begin.data()) == descriptor::kBegin && entry.crc != descriptor::kBegin;
    return has_number ? 4 + size : size;
}

}  // namespace

ZipWriter::ZipWriter(const ArchiveBytes& from, const ZipDirectory& directory, const std::string& path, Sink sink)
    : from_(from), directory_(directory), path_(path), sink_(std::move(sink)) {
    copy(0, directory.begin);
}

void ZipWriter::write(BytesView bytes) {
    buffer_.insert(buffer_.end(), bytes.begin(), bytes.end());
    written_ += bytes.size();
    if (buffer_.size() >= kBlock) {
        flush();
    }
}

void ZipWriter::flush() {
    sink_(buffer_);
    buffer_.clear();
}

void ZipWriter::read(std::uint64_t position, unsigned char* to, size_t size) const {
    if (!from_.read(position, to, size)) {
        throw command::Failure{"cannot read " + path_ + ": it ends in the middle of an entry"};
    }
}

void ZipWriter::copy(std::uint64_t position, std::uint64_t size) {
    while (size > 0) {
        Bytes block(std::min<std::uint64_t>(size, kBlock));
        read(position, block.data(), block.size());
        write(block);
        position += block.size();
        size -= block.size();
    }
}

BytesView ZipWriter::record_of(const ZipEntry& entry) const {
    return BytesView(directory_.bytes).subspan(entry.record, entry.record_size);
}

void ZipWriter::carry_over(const ZipEntry& entry) {
    const std::uint64_t header = written_;
    std::uint64_t size = entry.data - entry.header + entry.packed_size;
    if ((entry.flags & kHasDescriptor) != 0) {
        Bytes head(static_cast<size_t>(entry.data - entry.header));
        unsigned char begin[4];
        read(entry.header, head.data(), head.size());
        read(entry.header + size, begin, sizeof begin);
        const size_t extra_size = u2(&head[header::kExtraSize]);
        size += size_of_descriptor(entry, begin, has_wide_numbers(BytesView(head).last(extra_size)));
    }
    copy(entry.header, size);
    add_record(record_of(entry), entry, header, nullptr);
}

// Sizes are known here, so there is no descriptor, and they are not wide.
void ZipWriter::replace(const ZipEntry& entry, const PackedEntry& contents) {
    const std::uint64_t header = written_;
    Bytes head(static_cast<size_t>(entry.data - entry.header));
    read(entry.header, head.data(), head.size());
    const size_t extra_size = u2(&head[header::kExtraSize]);
    const Bytes extra = without_wide_numbers(BytesView(head).last(extra_size));
    head.resize(head.size() - extra_size);
    put_number(&head[header::kFlags], entry.flags & ~kHasDescriptor, 2);
    put_number(&head[header::kMethod], contents.method, 2);
    put_number(&head[header::kCrc], contents.crc, 4);
    put_number(&head[header::kPackedSize], contents.data.size(), 4);
    put_number(&head[header::kUnpackedSize], contents.size, 4);
    put_number(&head[header::kExtraSize], extra.size(), 2);
    write(head);
    write(extra);
    write(contents.data);
    add_record(record_of(entry), entry, header, &contents);
}

void ZipWriter::add(const std::string& name, const PackedEntry& contents) {
    constexpr std::uint16_t kVersion = 20;       // of the format, since which there are deflated entries
    constexpr std::uint16_t kOldestDate = 0x21;  // the first of January 1980
    const std::uint64_t header = written_;
    Bytes head(header::kSize);
    put_number(head.data(), header::kBegin, 4);
    put_number(&head[header::kNeeded], kVersion, 2);
    put_number(&head[header::kMethod], contents.method, 2);
    put_number(&head[header::kDate], kOldestDate, 2);
    put_number(&head[header::kCrc], contents.crc, 4);
    put_number(&head[header::kPackedSize], contents.data.size(), 4);
    put_number(&head[header::kUnpackedSize], contents.size, 4);
    put_number(&head[header::kNameSize], name.size(), 2);
    write(head);
    write(bytes_of(name));
    write(contents.data);

    Bytes record(record::kSize);
    put_number(record.data(), record::kBegin, 4);
    put_number(&record[record::kMadeBy], kVersion, 2);
    put_number(&record[record::kNeeded], kVersion, 2);
    put_number(&record[record::kDate], kOldestDate, 2);
    put_number(&record[record::kNameSize], name.size(), 2);
    record.insert(record.end(), name.begin(), name.end());
    ZipEntry entry{};
    entry.name = name;
    add_record(record, entry, header, &contents);
}

// Adds an entry's record to the directory: the old one, with what has changed.
void ZipWriter::add_record(BytesView old, const ZipEntry& entry, std::uint64_t header, const PackedEntry* contents) {
    const size_t fixed_and_name = record::kSize + u2(&old[record::kNameSize]);
    const size_t extra_size = u2(&old[record::kExtraSize]);
    Bytes head(old.begin(), old.begin() + static_cast<std::ptrdiff_t>(fixed_and_name));
    Bytes extra = without_wide_numbers(old.subspan(fixed_and_name, extra_size));

    const std::uint64_t size = contents != nullptr ? contents->size : entry.size;
    const std::uint64_t packed_size = contents != nullptr ? contents->data.size() : entry.packed_size;
    const std::uint64_t position = header - directory_.shift;
    Bytes wide;
    for (const std::uint64_t number : {size, packed_size, position}) {
        if (number >= kIsWide) {
            append_number<8>(wide, number);
        }
    }
    if (!wide.empty()) {
        append_number<2>(extra, kWideNumbers);
        append_number<2>(extra, wide.size());
        extra.insert(extra.end(), wide.begin(), wide.end());
        if (extra.size() > UINT16_MAX) {
            throw command::Failure{"cannot rewrite " + path_ + ": " + entry.name + " has no room for its position"};
        }
    }
    if (contents != nullptr) {
        put_number(&head[record::kFlags], entry.flags & ~kHasDescriptor, 2);
        put_number(&head[record::kMethod], contents->method, 2);
        put_number(&head[record::kCrc], contents->crc, 4);
    }
    put_number(&head[record::kPackedSize], narrow(packed_size), 4);
    put_number(&head[record::kUnpackedSize], narrow(size), 4);
    put_number(&head[record::kExtraSize], extra.size(), 2);
    put_number(&head[record::kHeader], narrow(position), 4);
    records_.insert(records_.end(), head.begin(), head.end());
    records_.insert(records_.end(), extra.begin(), extra.end());
    const BytesView comment = old.subspan(fixed_and_name + extra_size);
    records_.insert(records_.end(), comment.begin(), comment.end());
    ++count_;
}

void ZipWriter::finish() {
    const std::uint64_t position = written_ - directory_.shift;
    const std::uint64_t size = records_.size();
    write(records_);
    if (count_ >= kManyEntries || position >= kIsWide || size >= kIsWide) {
        Bytes wide(wide_end_record::kSize + wide_end_locator::kSize);
        put_number(wide.data(), wide_end_record::kBegin, 4);
        put_number(&wide[wide_end_record::kSizeOfRest], wide_end_record::kSize - 12, 8);
        put_number(&wide[wide_end_record::kMadeBy], wide_end_record::kVersion, 2);
        put_number(&wide[wide_end_record::kNeeded], wide_end_record::kVersion, 2);
        put_number(&wide[wide_end_record::kCountHere], count_, 8);
        put_number(&wide[wide_end_record::kCount], count_, 8);
        put_number(&wide[wide_end_record::kDirectorySize], size, 8);
        put_number(&wide[wide_end_record::kDirectory], position, 8);
        unsigned char* locator = &wide[wide_end_record::kSize];
        put_number(locator, wide_end_locator::kBegin, 4);
        put_number(locator + wide_end_locator::kEndRecord, position + size, 8);
        put_number(locator + wide_end_locator::kDisks, 1, 4);
        write(wide);
    }
    Bytes end = directory_.end;
    const auto count = std::min<std::uint64_t>(count_, kManyEntries);
    put_number(&end[end_record::kCountHere], count, 2);
    put_number(&end[end_record::kCount], count, 2);
    put_number(&end[end_record::kDirectorySize], narrow(size), 4);
    put_number(&end[end_record::kDirectory], narrow(position), 4);
    write(end);
    flush();
}

}  // namespace vantrel_rewrite
