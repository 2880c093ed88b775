#include "jar_reader.h"

#include <gtest/gtest.h>
#include <zip.h>

#include <memory>

namespace {

struct Discard {
    void operator()(zip_t* archive) const { zip_discard(archive); }
    void operator()(zip_file_t* file) const { zip_fclose(file); }
};

}  // namespace

void each_class(const std::filesystem::path& jar,
                const std::function<void(const std::string& name, const ClassImage& image)>& take) {
    const std::unique_ptr<zip_t, Discard> archive(zip_open(jar.c_str(), ZIP_RDONLY, nullptr));
    ASSERT_TRUE(archive) << jar;
    for (zip_int64_t i = 0; i < zip_get_num_entries(archive.get(), 0); ++i) {
        zip_stat_t entry;
        ASSERT_EQ(zip_stat_index(archive.get(), i, 0, &entry), 0) << jar;
        const std::string name = entry.name;
        if (!name.ends_with(".class")) {
            continue;
        }
        ClassImage image(entry.size);
        const std::unique_ptr<zip_file_t, Discard> file(zip_fopen_index(archive.get(), i, 0));
        ASSERT_TRUE(file && zip_fread(file.get(), image.data(), image.size()) == static_cast<zip_int64_t>(image.size()))
            << jar << ' ' << name;
        take(name, image);
    }
}
