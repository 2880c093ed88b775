#include "rewriting.h"

#include <java_crw_demo.h>
#include <vantrel_rewriter.h>

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

void pass_modern_names_on(void* context, uint32_t class_number, const char* const* names,
                          const char* const* descriptors, int count) {
    const auto& take = *static_cast<const MethodNames*>(context);
    std::vector<const char*> all_names(names, names + count);
    std::vector<const char*> all_descriptors(descriptors, descriptors + count);
    take(class_number, all_names, all_descriptors);
}

struct Modern {
    ClassImage image;
    std::string class_name;
};

Modern rewrite_modern(std::span<const unsigned char> image, const Rewriting& how) {
    VantrelRewriterOptions options{};
    options.size = sizeof options;
    options.tracker_class = "tracking/Tracker";
    options.call_tracker = if_wanted(how.trackers, kCallTracker, "enter");
    options.return_tracker = if_wanted(how.trackers, kReturnTracker, "leave");
    options.object_init_tracker = if_wanted(how.trackers, kObjectInitTracker, "object");
    options.newarray_tracker = if_wanted(how.trackers, kNewArrayTracker, "array");
    options.class_name = how.name;
    options.class_number = how.class_number;
    options.system_class = how.system_class ? 1 : 0;
    if (how.method_names) {
        options.methods = pass_modern_names_on;
        options.context = const_cast<MethodNames*>(&how.method_names);
    }
    VantrelRewriterResult result{};
    result.size = sizeof result;
    if (vantrel_rewriter_rewrite(image.data(), image.size(), &options, &result) > VANTREL_REWRITER_CARRIED_OVER) {
        throw std::runtime_error(std::string(result.method) + ": " + result.sentence);
    }
    Modern rewritten{{result.image, result.image + result.length}, result.class_name};
    vantrel_rewriter_release(&result);
    return rewritten;
}

}  // namespace

unsigned class_version(std::span<const unsigned char> image) {
    return image.size() < 8 ? 0 : image[6] * 256U + image[7];
}

ClassImage rewrite(std::span<const unsigned char> image, const Rewriting& how) {
    current_names = &how.method_names;
    if (how.is_modern) {
        return rewrite_modern(image, how).image;
    }
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
    constexpr unsigned kNewest = 52;  // of java_crw_demo_classname, as far as constants go
    if (class_version(image) > kNewest) {
        return rewrite_modern(image, {}).class_name;
    }
    const std::unique_ptr<char, Free> name(
        java_crw_demo_classname(image.data(), static_cast<long>(image.size()), throw_message));
    return name ? name.get() : "";
}
