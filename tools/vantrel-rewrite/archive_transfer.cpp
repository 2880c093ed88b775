#include "archive_transfer.h"

#include <algorithm>

namespace fs = std::filesystem;

namespace vantrel_rewrite {

Zip ArchiveTransfer::open(const fs::path& path) {
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* source = zip_source_function_create(callback, this, &error);
    Zip zip(source == nullptr ? nullptr : zip_open_from_source(source, 0, &error));
    if (!zip) {
        zip_source_free(source);
        rethrow_failure();
        fail_on_zip("read", path, &error);
    }
    zip_error_fini(&error);
    return zip;
}

void ArchiveTransfer::rethrow_failure() const {
    if (failure_) {
        std::rethrow_exception(failure_);
    }
}

zip_int64_t ArchiveTransfer::callback(void* self, void* data, zip_uint64_t size, zip_source_cmd_t command) {
    auto* transfer = static_cast<ArchiveTransfer*>(self);
    try {
        return transfer->perform(data, size, command);
    } catch (...) {
        transfer->failure_ = std::current_exception();
        zip_error_set(&transfer->error_, ZIP_ER_WRITE, 0);
        return -1;
    }
}

zip_int64_t ArchiveTransfer::perform(void* data, zip_uint64_t size, zip_source_cmd_t command) {
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

}  // namespace vantrel_rewrite
