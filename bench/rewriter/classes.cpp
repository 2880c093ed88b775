#include "classes.h"

#include <zip.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace {

constexpr unsigned kNewestVersion = 52;

struct Close {
    void operator()(zip_t* archive) const { zip_discard(archive); }
    void operator()(zip_file_t* file) const { zip_fclose(file); }
};

void add_classes(const std::string& jar, std::vector<Image>& classes) {
    const std::unique_ptr<zip_t, Close> archive(zip_open(jar.c_str(), ZIP_RDONLY, nullptr));
    if (!archive) {
        fprintf(stderr, "%s is no jar\n", jar.c_str());
        exit(1);
    }
    for (zip_int64_t i = 0; i < zip_get_num_entries(archive.get(), 0); ++i) {
        zip_stat_t entry;
        zip_stat_index(archive.get(), static_cast<zip_uint64_t>(i), 0, &entry);
        Image image(entry.size);
        const std::unique_ptr<zip_file_t, Close> file(zip_fopen_index(archive.get(), static_cast<zip_uint64_t>(i), 0));
        if (std::string_view(entry.name).ends_with(".class") && file && image.size() > 8 &&
            zip_fread(file.get(), image.data(), image.size()) == static_cast<zip_int64_t>(image.size()) &&
            image[6] * 256U + image[7] <= kNewestVersion) {
            classes.push_back(std::move(image));
        }
    }
}

}  // namespace

std::vector<Image> classes_of(const std::vector<std::string>& jars) {
    std::vector<Image> classes;
    for (const std::string& jar : jars) {
        add_classes(jar, classes);
    }
    return classes;
}
