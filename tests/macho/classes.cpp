#include "classes.h"

#include <gtest/gtest.h>
#include <zip.h>

#include <memory>

std::vector<ClassFile> every_nth_class(const std::filesystem::path& archive, unsigned n) {
    // A jmod is a zip file after four bytes of its own.
    const zip_uint64_t begin = archive.extension() == ".jmod" ? 4 : 0;
    zip_source_t* source = zip_source_file_create(archive.c_str(), begin, -1, nullptr);
    const std::unique_ptr<zip_t, decltype(&zip_discard)> zip(zip_open_from_source(source, ZIP_RDONLY, nullptr),
                                                             zip_discard);
    std::vector<ClassFile> classes;
    if (!zip) {
        zip_source_free(source);
        ADD_FAILURE() << archive << " cannot be read";
        return classes;
    }
    unsigned count = 0;
    for (zip_int64_t index = 0; index < zip_get_num_entries(zip.get(), 0); ++index) {
        zip_stat_t status;
        zip_stat_index(zip.get(), static_cast<zip_uint64_t>(index), 0, &status);
        if (std::string_view(status.name).ends_with(".class") && ++count % n == 0) {
            ClassFile bytes(status.size);
            zip_file_t* file = zip_fopen_index(zip.get(), static_cast<zip_uint64_t>(index), 0);
            EXPECT_EQ(zip_fread(file, bytes.data(), bytes.size()), static_cast<zip_int64_t>(bytes.size()));
            zip_fclose(file);
            classes.push_back(std::move(bytes));
        }
    }
    return classes;
}
