// Whole files, read and written with every error noticed. All throw a Failure that names the file.
#ifndef VANTREL_REWRITE_FILE_IO_H
#define VANTREL_REWRITE_FILE_IO_H

#include <sys/types.h>

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel_rewrite {

using Bytes = std::vector<unsigned char>;
using BytesView = std::span<const unsigned char>;

BytesView bytes_of(std::string_view text);

// A file that is open for reading.
class InputFile {
  public:
    explicit InputFile(const std::filesystem::path& path);
    ~InputFile();
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    // As many bytes from a position as there are, at most `size`.
    size_t read_at(off_t position, unsigned char* to, size_t size) const;
    // The same, for a size that may be much larger than the file.
    [[nodiscard]] Bytes read(off_t position, size_t at_most) const;
    [[nodiscard]] off_t size() const;
    [[nodiscard]] mode_t permissions() const;

  private:
    std::filesystem::path path_;
    int descriptor_;
};

// A new file that is made in one place and is meant for another one.
struct NewFile {
    std::filesystem::path path;   // where it is made
    std::filesystem::path final;  // where it is put when all is done; for messages
};

// A new file that is open for writing. The constructor makes it, with the given permissions less those that the umask
// takes away, as `cp` does.
class OutputFile {
  public:
    explicit OutputFile(const NewFile& file, mode_t permissions = 0666);
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    void write(BytesView bytes);
    void write_at(off_t position, BytesView bytes);
    // What closing a file says about it is an error of writing too.
    void close();

  private:
    std::filesystem::path final_;
    int descriptor_;
    off_t end_ = 0;
};

Bytes read_file(const std::filesystem::path& path);
void copy_whole_file(const std::filesystem::path& from, const NewFile& to);

}  // namespace vantrel_rewrite

#endif
