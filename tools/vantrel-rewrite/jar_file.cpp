#include "jar_file.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include "failure.h"

namespace fs = std::filesystem;

namespace {

constexpr size_t kBlock = size_t{1} << 16;

std::string text_of(zip_error_t& error) {
    return zip_error_strerror(&error);
}

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

void use_exact_zip_times() {
    setenv("TZ", "UTC0", 1);
    tzset();
}

void fail_on_zip(const char* what, const fs::path& path, const std::string& reason) {
    throw Failure{std::string("cannot ") + what + " " + path.string() + ": " + reason};
}

Zip open_jar(const fs::path& path) {
    int code = 0;
    Zip zip(zip_open(path.c_str(), ZIP_RDONLY, &code));
    if (!zip) {
        zip_error_t error;
        zip_error_init_with_code(&error, code);
        const std::string reason = text_of(error);
        zip_error_fini(&error);
        fail_on_zip("read", path, reason + " (is it a whole jar, with nothing before it?)");
    }
    return zip;
}

Zip JarTransfer::open(const fs::path& path) {
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* source = zip_source_function_create(callback, this, &error);
    Zip zip(source == nullptr ? nullptr : zip_open_from_source(source, 0, &error));
    if (!zip) {
        zip_source_free(source);
        rethrow_failure();
        fail_on_zip("read", path, text_of(error));
    }
    zip_error_fini(&error);
    return zip;
}

void JarTransfer::rethrow_failure() const {
    if (failure_) {
        std::rethrow_exception(failure_);
    }
}

zip_int64_t JarTransfer::callback(void* self, void* data, zip_uint64_t size, zip_source_cmd_t command) {
    auto* transfer = static_cast<JarTransfer*>(self);
    try {
        return transfer->perform(data, size, command);
    } catch (...) {
        transfer->failure_ = std::current_exception();
        zip_error_set(&transfer->error_, ZIP_ER_WRITE, 0);
        return -1;
    }
}

zip_int64_t JarTransfer::perform(void* data, zip_uint64_t size, zip_source_cmd_t command) {
    switch (command) {
        case ZIP_SOURCE_OPEN:
            read_position_ = 0;
            return 0;
        case ZIP_SOURCE_READ: {
            const size_t count = from_.read_at(read_position_, static_cast<unsigned char*>(data), size);
            read_position_ += static_cast<off_t>(count);
            return static_cast<zip_int64_t>(count);
        }
        case ZIP_SOURCE_SEEK:
            read_position_ = zip_source_seek_compute_offset(read_position_, from_.size(), data, size, &error_);
            return read_position_ < 0 ? -1 : 0;
        case ZIP_SOURCE_TELL:
            return read_position_;
        case ZIP_SOURCE_STAT: {
            auto* status = static_cast<zip_stat_t*>(data);
            zip_stat_init(status);
            status->valid = ZIP_STAT_SIZE;
            status->size = static_cast<zip_uint64_t>(from_.size());
            return sizeof(*status);
        }
        case ZIP_SOURCE_BEGIN_WRITE:
            write_position_ = written_ = 0;
            return 0;
        case ZIP_SOURCE_WRITE:
            to_.write_at(write_position_, {static_cast<const unsigned char*>(data), size});
            write_position_ += static_cast<off_t>(size);
            written_ = std::max(written_, write_position_);
            return static_cast<zip_int64_t>(size);
        case ZIP_SOURCE_SEEK_WRITE:
            write_position_ = zip_source_seek_compute_offset(write_position_, written_, data, size, &error_);
            return write_position_ < 0 ? -1 : 0;
        case ZIP_SOURCE_TELL_WRITE:
            return write_position_;
        case ZIP_SOURCE_ERROR:
            return zip_error_to_data(&error_, data, size);
        case ZIP_SOURCE_SUPPORTS:
            return ZIP_SOURCE_SUPPORTS_WRITABLE;
        default:  // closing, committing and rolling back: the files' owner does that
            return 0;
    }
}

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
    zip_stat_t old;
    auto state = std::make_unique<PackedSource>(PackedSource{&entry});
    zip_source_t* source = zip_source_function(zip, read_packed, state.get());
    if (source != nullptr) {
        state.release();  // NOLINT(bugprone-unused-return-value): the source's now
    }
    if (source == nullptr || zip_stat_index(zip, entry.index, 0, &old) != 0 ||
        zip_file_replace(zip, entry.index, source, 0) != 0) {
        const std::string reason = zip_strerror(zip);
        zip_source_free(source);
        fail_on_zip("change", path, reason);
    }
    if (zip_set_file_compression(zip, entry.index, entry.method, 0) != 0 ||
        zip_file_set_mtime(zip, entry.index, old.mtime, 0) != 0) {
        fail_on_zip("change", path, zip_strerror(zip));
    }
}

Bytes read_entry(zip_t* zip, zip_uint64_t index, const fs::path& path) {
    struct CloseEntry {
        void operator()(zip_file_t* file) const { zip_fclose(file); }
    };
    const std::unique_ptr<zip_file_t, CloseEntry> file(zip_fopen_index(zip, index, 0));
    if (!file) {
        fail_on_zip("read", path, zip_strerror(zip));
    }
    // What the archive says about the size need not be true.
    Bytes contents;
    std::array<unsigned char, kBlock> block;
    for (;;) {
        const zip_int64_t count = zip_fread(file.get(), block.data(), block.size());
        if (count < 0) {
            fail_on_zip("read", path, zip_file_strerror(file.get()));
        }
        if (count == 0) {
            return contents;
        }
        contents.insert(contents.end(), block.begin(), block.begin() + count);
    }
}
