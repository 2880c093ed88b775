#include "rewriting.h"

#include <java_crw_demo.h>

#include <cstdlib>
#include <memory>

namespace {

struct Free {
    void operator()(void* memory) const { free(memory); }
};

[[noreturn]] void throw_message(const char* message, const char* /*source_file*/, int /*line*/) {
    throw std::runtime_error(message);
}

// The rewriter's callback carries no pointer of the caller's.
thread_local const MethodNames* current_names = nullptr;

void pass_names_on(unsigned class_number, const char** names, const char** descriptors, int count) {
    if (current_names != nullptr && *current_names) {
        const auto methods = static_cast<size_t>(count);
        (*current_names)(class_number, {names, methods}, {descriptors, methods});
    }
}

const char* if_wanted(unsigned trackers, unsigned tracker, const char* text) {
    return (trackers & tracker) != 0 ? text : nullptr;
}

}  // namespace

unsigned class_version(std::span<const unsigned char> image) {
    return image.size() < 8 ? 0 : image[6] * 256U + image[7];
}

ClassImage rewrite(std::span<const unsigned char> image, const Rewriting& how) {
    current_names = &how.method_names;
    unsigned char* bytes = nullptr;
    long length = 0;
    java_crw_demo(how.class_number, how.name, image.data(), static_cast<long>(image.size()),
                  static_cast<int>(how.system_class), "tracking/Tracker", "Ltracking/Tracker;",
                  if_wanted(how.trackers, kCallTracker, "enter"), "(II)V",
                  if_wanted(how.trackers, kReturnTracker, "leave"), "(II)V",
                  if_wanted(how.trackers, kObjectInitTracker, "object"), "(Ljava/lang/Object;)V",
                  if_wanted(how.trackers, kNewArrayTracker, "array"), "(Ljava/lang/Object;)V", &bytes, &length,
                  throw_message, pass_names_on);
    const std::unique_ptr<unsigned char, Free> owner(bytes);
    return {bytes, bytes + length};
}

std::string class_name(std::span<const unsigned char> image) {
    const std::unique_ptr<char, Free> name(
        java_crw_demo_classname(image.data(), static_cast<long>(image.size()), throw_message));
    return name ? name.get() : "";
}
