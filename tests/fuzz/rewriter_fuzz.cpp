// The rewriter on whatever libFuzzer comes up with: no fault that a sanitizer sees, and the same image or the same
// words as the literal rewriter. The first two bytes of an input choose what is asked for, the rest is the image.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "java_crw_demo.h"
#include "literal_rewriter.h"

namespace {

struct Failure {
    std::string message;
};

[[noreturn]] void throw_failure(const char* message, const char* /*source_file*/, int /*line*/) {
    throw Failure{message};
}

// A message without the class, the method and the position: a literal reader stops at another byte.
std::string without_place(const std::string& message) {
    const bool has_place = message.starts_with("CRW ASSERTION FAILURE") && message.ends_with(")");
    return has_place ? message.substr(0, message.rfind(" (")) : message;
}

[[noreturn]] void differ(const std::string& what, const std::string& ours, const std::string& literal) {
    fprintf(stderr, "%s: ours %s, literal %s\n", what.c_str(), ours.c_str(), literal.c_str());
    abort();
}

const char* name_where(bool wanted, const char* name) {
    return wanted ? name : nullptr;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    constexpr size_t kChoices = 2;
    if (size < kChoices) {
        return 0;
    }
    const unsigned flags = data[0];
    const unsigned class_numbers[] = {0, 6, 200, 40000};
    const char* call = name_where((flags & 1U) != 0, "call");
    const char* ret = name_where((flags & 2U) != 0, "ret");
    const char* init = name_where((flags & 4U) != 0, "init");
    const char* array = name_where((flags & 8U) != 0, "array");
    const char* name = name_where((flags & 16U) != 0, (data[1] & 4U) != 0 ? "java/lang/Thread" : "java/lang/Object");
    const bool system_class = (flags & 32U) != 0;
    const unsigned class_number = class_numbers[data[1] & 3U];
    data += kChoices;
    size -= kChoices;

    std::string failure;
    unsigned char* image = nullptr;
    long length = 0;
    try {
        java_crw_demo(class_number, name, data, static_cast<long>(size), system_class ? 1 : 0, "com/example/Tracker",
                      "Lcom/example/Tracker;", call, "(II)V", ret, "(II)V", init, "(Ljava/lang/Object;)V", array,
                      "(Ljava/lang/Object;)V", &image, &length, throw_failure, nullptr);
    } catch (const Failure& f) {
        failure = without_place(f.message);
    }
    const std::string ours(reinterpret_cast<const char*>(image), static_cast<size_t>(length));
    free(image);
    try {
        free(java_crw_demo_classname(data, static_cast<long>(size), throw_failure));
    } catch (const Failure&) {
        // It fails where the image does.
    }
    if (size == 0) {
        return 0;
    }

    const auto optional = [](const char* text) {
        return text != nullptr ? std::optional<std::string>(text) : std::nullopt;
    };
    const literal_rewriter::Result literal =
        literal_rewriter::rewrite({data, size}, {.class_number = class_number,
                                                 .name = optional(name),
                                                 .system_class = system_class,
                                                 .tracker_class = "com/example/Tracker",
                                                 .call_name = optional(call),
                                                 .return_name = optional(ret),
                                                 .obj_init_name = optional(init),
                                                 .newarray_name = optional(array)});
    if (without_place(literal.failure) != failure) {
        differ("failure", failure, literal.failure);
    }
    if (std::string(literal.image.begin(), literal.image.end()) != ours) {
        differ("image", std::to_string(ours.size()) + " bytes", std::to_string(literal.image.size()));
    }
    return 0;
}
