#include "packed_entry.h"

#include <libdeflate.h>
#include <zlib.h>

#include <algorithm>
#include <memory>
#include <new>

#include "failure.h"
#include "zip_format.h"

namespace vantrel_rewrite {

namespace {

// Entries up to this size are unpacked as a whole when they are first read. Of larger ones only the first bytes are
// unpacked at first: most of those are not what a VM takes as a class, and some kilobytes may unpack to gigabytes.
constexpr std::uint64_t kSmall = std::uint64_t{1} << 20U;
// The largest entry that is read where it is no class: a manifest, or a jar inside of a jar.
constexpr std::uint64_t kLargest = std::uint64_t{1} << 30U;
// One deflated byte unpacks to this many at most.
constexpr std::uint64_t kMostGrowth = 1032;

struct FreeDecompressor {
    void operator()(libdeflate_decompressor* one) const { libdeflate_free_decompressor(one); }
};
struct FreeCompressor {
    void operator()(libdeflate_compressor* one) const { libdeflate_free_compressor(one); }
};

// One for each thread that needs one, for they are large.
libdeflate_decompressor* decompressor() {
    thread_local const std::unique_ptr<libdeflate_decompressor, FreeDecompressor> one(libdeflate_alloc_decompressor());
    return one ? one.get() : throw std::bad_alloc();
}

libdeflate_compressor* compressor() {
    constexpr int kUsualLevel = 5;  // as small as zlib's usual level, to some hundredths of a percent
    thread_local const std::unique_ptr<libdeflate_compressor, FreeCompressor> one(
        libdeflate_alloc_compressor(kUsualLevel));
    return one ? one.get() : throw std::bad_alloc();
}

}  // namespace

void EntryReader::fail(const std::string& why) const {
    throw command::Failure{"cannot read " + path_ + ": " + why};
}

Bytes EntryReader::packed(std::uint64_t at_most) const {
    Bytes bytes(std::min(entry_.packed_size, at_most));
    if (!archive_.read(entry_.data, bytes.data(), bytes.size())) {
        fail("it ends too early");
    }
    return bytes;
}

// The first bytes of the contents: `size` of them, or fewer if there are no more.
Bytes EntryReader::begin(size_t size) const {
    if (entry_.method == zip::kStored) {
        return packed(size);
    }
    constexpr size_t kEnough = 4096;  // of packed bytes: more than the tables that come first
    Bytes from = packed(kEnough);
    Bytes to(size);
    z_stream stream{};
    // Negative: without zlib's own header, as archives have it.
    if (inflateInit2(&stream, -MAX_WBITS) != Z_OK) {
        throw std::bad_alloc();
    }
    stream.next_in = from.data();
    stream.avail_in = static_cast<uInt>(from.size());
    stream.next_out = to.data();
    stream.avail_out = static_cast<uInt>(to.size());
    inflate(&stream, Z_SYNC_FLUSH);
    to.resize(stream.total_out);
    inflateEnd(&stream);
    return to;
}

Bytes EntryReader::whole() const {
    Bytes contents;
    if (entry_.method == zip::kStored) {
        contents = packed(entry_.packed_size);
    } else {
        if (entry_.size / kMostGrowth > entry_.packed_size) {
            fail("what is packed is damaged");
        }
        const Bytes from = packed(entry_.packed_size);
        contents.resize(entry_.size);
        if (libdeflate_deflate_decompress(decompressor(), from.data(), from.size(), contents.data(), contents.size(),
                                          nullptr) != LIBDEFLATE_SUCCESS) {
            fail("what is packed is damaged");
        }
    }
    if (contents.size() != entry_.size || libdeflate_crc32(0, contents.data(), contents.size()) != entry_.crc) {
        fail("CRC error");
    }
    return contents;
}

Bytes EntryReader::read(size_t at_most) {
    if ((entry_.flags & zip::kEncrypted) != 0) {
        fail("it is encrypted");
    }
    if (entry_.method != zip::kStored && entry_.method != zip::kDeflated) {
        fail("it is packed by method " + std::to_string(entry_.method) + ", which no VM knows");
    }
    if (position_ == 0 && entry_.size > kSmall && at_most < entry_.size) {
        Bytes result = begin(at_most);
        position_ = result.size();
        return result;
    }
    if (whole_.empty()) {
        whole_ = whole();
    }
    const size_t count = std::min(at_most, whole_.size() - std::min(position_, whole_.size()));
    const auto from = whole_.begin() + static_cast<std::ptrdiff_t>(position_);
    position_ += count;
    return {from, from + static_cast<std::ptrdiff_t>(count)};
}

Bytes read_entry(const ArchiveBytes& archive, const ZipEntry& entry, const std::string& path) {
    if (entry.size > kLargest) {
        throw command::Failure{"cannot read " + path + ": " + entry.name + " is too large"};
    }
    return EntryReader(archive, entry, path).read(kLargest);
}

PackedEntry pack_entry(std::uint16_t method, Bytes contents) {
    PackedEntry entry{method, {}, contents.size(), libdeflate_crc32(0, contents.data(), contents.size())};
    if (method == zip::kStored) {
        entry.data = std::move(contents);
        return entry;
    }
    entry.method = zip::kDeflated;
    entry.data.resize(libdeflate_deflate_compress_bound(compressor(), contents.size()));
    entry.data.resize(libdeflate_deflate_compress(compressor(), contents.data(), contents.size(), entry.data.data(),
                                                  entry.data.size()));
    entry.data.shrink_to_fit();
    return entry;
}

Bytes gzip(BytesView contents) {
    Bytes packed(libdeflate_gzip_compress_bound(compressor(), contents.size()));
    packed.resize(
        libdeflate_gzip_compress(compressor(), contents.data(), contents.size(), packed.data(), packed.size()));
    return packed;
}

}  // namespace vantrel_rewrite
