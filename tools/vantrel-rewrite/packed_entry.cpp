#include "packed_entry.h"

#include <zlib.h>

#include <algorithm>
#include <memory>
#include <new>

#include "zip_archive.h"

namespace fs = std::filesystem;

namespace vantrel_rewrite {

namespace {

// The contents of a packed entry as libzip reads them. Freed by libzip.
struct PackedSource {
    const PackedEntry* entry;
    size_t position = 0;
    zip_error_t error{};
};

zip_int64_t read_packed(void* state, void* data, zip_uint64_t size, zip_source_cmd_t command) {
    auto* source = static_cast<PackedSource*>(state);
    const PackedEntry& entry = *source->entry;
    switch (command) {
        case ZIP_SOURCE_OPEN:
            source->position = 0;
            return 0;
        case ZIP_SOURCE_READ: {
            const size_t count = std::min<size_t>(size, entry.data.size() - source->position);
            std::copy_n(entry.data.begin() + static_cast<std::ptrdiff_t>(source->position), count,
                        static_cast<unsigned char*>(data));
            source->position += count;
            return static_cast<zip_int64_t>(count);
        }
        case ZIP_SOURCE_STAT: {
            auto* status = static_cast<zip_stat_t*>(data);
            zip_stat_init(status);
            status->valid = ZIP_STAT_SIZE | ZIP_STAT_COMP_SIZE | ZIP_STAT_COMP_METHOD | ZIP_STAT_CRC;
            status->size = entry.size;
            status->comp_size = entry.data.size();
            status->comp_method = static_cast<zip_uint16_t>(entry.method);
            status->crc = entry.crc;
            return sizeof(*status);
        }
        case ZIP_SOURCE_ERROR:
            return zip_error_to_data(&source->error, data, size);
        case ZIP_SOURCE_FREE:
            delete source;
            return 0;
        case ZIP_SOURCE_SUPPORTS:
            return ZIP_SOURCE_SUPPORTS_READABLE;
        default:
            return 0;
    }
}

Bytes deflated(BytesView contents) {
    z_stream stream{};
    // Negative: without zlib's own header, as archives have it.
    if (deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, -MAX_WBITS, MAX_MEM_LEVEL - 1, Z_DEFAULT_STRATEGY) !=
        Z_OK) {
        throw std::bad_alloc();
    }
    Bytes packed(deflateBound(&stream, contents.size()));
    stream.next_in = const_cast<unsigned char*>(contents.data());
    stream.avail_in = static_cast<uInt>(contents.size());
    stream.next_out = packed.data();
    stream.avail_out = static_cast<uInt>(packed.size());
    deflate(&stream, Z_FINISH);
    packed.resize(stream.total_out);
    deflateEnd(&stream);
    return packed;
}

}  // namespace

PackedEntry pack_entry(zip_uint64_t index, zip_int32_t method, BytesView contents) {
    PackedEntry entry{index, method, {}, contents.size(), 0};
    entry.crc = static_cast<zip_uint32_t>(crc32_z(0, contents.data(), contents.size()));
    if (method == ZIP_CM_STORE) {
        entry.data.assign(contents.begin(), contents.end());
    } else {
        entry.method = ZIP_CM_DEFLATE;
        entry.data = deflated(contents);
    }
    return entry;
}

void replace_entry(zip_t* zip, const PackedEntry& entry, const fs::path& path) {
    auto state = std::make_unique<PackedSource>(PackedSource{&entry});
    zip_source_t* source = zip_source_function(zip, read_packed, state.get());
    if (source != nullptr) {
        state.release();  // NOLINT(bugprone-unused-return-value): the source's now
    }
    if (source == nullptr || zip_file_replace(zip, entry.index, source, 0) != 0) {
        zip_source_free(source);
        fail_on_zip("change", path, zip_get_error(zip));
    }
    if (zip_set_file_compression(zip, entry.index, entry.method, 0) != 0) {
        fail_on_zip("change", path, zip_get_error(zip));
    }
}

}  // namespace vantrel_rewrite
