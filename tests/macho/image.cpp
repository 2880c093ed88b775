#include "image.h"

#include <sys/mman.h>

#include <cstring>
#include <deque>
#include <mutex>

#include "file.h"
#include "fix_ups.h"
#include "frames.h"
#include "system.h"

namespace macho {
namespace {

constexpr std::uint64_t kPage = 4096;

// Made when it is needed, which may be before the program's other variables are.
std::deque<Image>& images() {
    static std::deque<Image> all;
    return all;
}
std::mutex lock;  // guards images()

// The bytes of a pointer that is to be fixed: inside a segment that is written to.
std::uint8_t* pointer_in(const Image& image, const File& file, std::uint64_t address) {
    for (const Segment& segment : file.segments) {
        if ((segment.protection & PROT_WRITE) != 0 && address >= segment.address &&
            address + sizeof(void*) <= segment.address + segment.size) {
            return image.base + address;
        }
    }
    throw Error("a pointer that is to be fixed lies in no segment for data");
}

std::uint8_t* map(const File& file, std::uint64_t size, std::uintptr_t address) {
    auto* wanted = reinterpret_cast<void*>(address);  // NOLINT(performance-no-int-to-ptr): the linker knows it so
    void* place = mmap(wanted, size, PROT_READ | PROT_WRITE,
                       MAP_PRIVATE | MAP_ANONYMOUS | (address != 0 ? MAP_FIXED_NOREPLACE : 0), -1, 0);
    if (place == MAP_FAILED || (address != 0 && place != wanted)) {
        throw Error("there is no room for it in memory");
    }
    auto* base = static_cast<std::uint8_t*>(place);
    for (const Segment& segment : file.segments) {
        if (!segment.content.empty()) {
            memcpy(base + segment.address, segment.content.data(), segment.content.size());
        }
    }
    return base;
}

void fix(const Image& image, const File& file) {
    for (const std::uint64_t address : rebases(file)) {
        std::uint8_t* pointer = pointer_in(image, file, address);
        const auto linked = number_at<std::uint64_t>({pointer, sizeof(void*)}, 0);
        if (linked >= image.size) {
            throw Error("a pointer into itself leads out of it");
        }
        const std::uint8_t* target = image.base + linked;
        memcpy(pointer, &target, sizeof target);
    }
    for (const Bind& bind : binds(file)) {
        const void* target = in_system(bind.library, bind.symbol);
        memcpy(pointer_in(image, file, bind.address), &target, sizeof target);
    }
}

void protect(const Image& image, const File& file) {
    for (const Segment& segment : file.segments) {
        const int protection = segment.protection & (segment.read_only_once_fixed ? ~PROT_WRITE : ~0);
        if (mprotect(image.base + segment.address, segment.size, protection) != 0) {
            throw Error("segment " + segment.name + " cannot be protected");
        }
    }
}

void initialise(const Image& image, const File& file) {
    const auto section = file.sections.find("__DATA_CONST,__mod_init_func");
    if (section == file.sections.end()) {
        throw Error("it has nothing that runs when it is loaded");
    }
    for (std::uint64_t at = 0; at < section->second.size; at += sizeof(void*)) {
        number_at<void (*)()>({image.base + section->second.address + at, sizeof(void*)}, 0)();
    }
}

}  // namespace

void* Image::address_of(const std::string& name) const {
    const auto found = exported.find("_" + name);
    if (found == exported.end()) {
        give_up("the library has no ", name.c_str());
    }
    return base + found->second;
}

const Image& load(const std::filesystem::path& path, std::uintptr_t address) {
    try {
        const File file = read_file(path);
        const Segment& last = file.segments.at(file.segments.size() - 1);
        const std::uint64_t size = (last.address + last.size + kPage - 1) / kPage * kPage;
        Image* image = nullptr;
        {
            const std::lock_guard hold(lock);
            image = &images().emplace_back(Image{path, map(file, size, address), size, exports(file)});
        }
        fix(*image, file);
        protect(*image, file);
        register_frames(file, image->base);
        initialise(*image, file);
        return *image;
    } catch (const std::exception& error) {
        give_up((path.string() + ": ").c_str(), error.what());
    }
}

const Image* image_with(const void* address) {
    const std::lock_guard hold(lock);
    for (const Image& image : images()) {
        if (address >= image.base && address < image.base + image.size) {
            return &image;
        }
    }
    return nullptr;
}

}  // namespace macho
