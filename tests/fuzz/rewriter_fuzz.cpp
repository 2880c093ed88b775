// The rewriter on whatever libFuzzer comes up with: no fault that a sanitizer sees, and the same image or the same
// words as the literal rewriter, and no fault of the second door either. The first two bytes of an input choose what
// is asked for, the rest is the image, or choices for one whose branches grow (verifiable_classes.h): that takes more
// code than a fuzzer comes up with. A class file is an input as it is, and everything is asked for.
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <optional>
#include <span>
#include <string>

#include "class_builder.h"
#include "java_crw_demo.h"
#include "literal_rewriter.h"
#include "product.h"
#include "verifiable_classes.h"

namespace {

// A message without its place: the literal rewriter finds a fault at another byte.
std::string without_place(const std::string& message) {
    const bool has_place = message.starts_with("CRW ASSERTION FAILURE") && message.ends_with(")");
    return has_place ? message.substr(0, message.rfind(" (")) : message;
}

[[noreturn]] void differ(const std::string& what, const std::string& ours, const std::string& literal) {
    fprintf(stderr, "%s: ours %s, literal %s\n", what.c_str(), ours.c_str(), literal.c_str());
    abort();
}

std::optional<std::string> name_where(bool wanted, const char* name) {
    return wanted ? std::optional<std::string>(name) : std::nullopt;
}

// A class of a version that both doors take.
class_builder::Bytes made_from(std::span<const uint8_t> choices, unsigned version) {
    class_builder::ClassFile file = verifiable_classes::from_choices(choices, "com/example/Sample");
    file.major = version;
    return class_builder::assemble(file);
}

[[noreturn]] void leave(const char* /*message*/, const char* /*source_file*/, int /*line*/) {
    throw std::exception();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    constexpr size_t kChoices = 2;
    if (size < kChoices) {
        return 0;
    }
    constexpr std::array<uint8_t, 4> kMagic = {0xCA, 0xFE, 0xBA, 0xBE};
    constexpr std::array<uint8_t, kChoices> kEverything = {15, 3};
    const bool is_class_file = size >= kMagic.size() && std::equal(kMagic.begin(), kMagic.end(), data);
    const uint8_t* choices = is_class_file ? kEverything.data() : data;
    const unsigned flags = choices[0];
    std::span image = is_class_file ? std::span(data, size) : std::span(data + kChoices, size - kChoices);
    class_builder::Bytes made;
    if ((flags & 128U) != 0) {
        made = made_from(image, (choices[1] & 8U) != 0 ? 49 : 52);
        image = made;
    }
    const unsigned class_numbers[] = {0, 6, 200, 40000};
    const RewriteOptions options{
        .class_number = class_numbers[choices[1] & 3U],
        .name = name_where((flags & 16U) != 0, (choices[1] & 4U) != 0 ? "java/lang/Thread" : "java/lang/Object"),
        .system_class = (flags & 32U) != 0,
        .call_name = name_where((flags & 1U) != 0, "call"),
        .return_name = name_where((flags & 2U) != 0, "ret"),
        .obj_init_name = name_where((flags & 4U) != 0, "init"),
        .newarray_name = name_where((flags & 8U) != 0, "array")};

    const Outcome ours = rewrite(image, options);
    try {
        free(java_crw_demo_classname(image.data(), static_cast<long>(image.size()), leave));
    } catch (const std::exception&) {
        // It fails where the image does.
    }
    if (image.empty()) {
        return 0;
    }
    const literal_rewriter::Result literal = literal_rewriter::rewrite(image, options);
    if (without_place(literal.failure) != without_place(ours.failure)) {
        differ("failure", ours.failure, literal.failure);
    }
    if (literal.image != ours.image) {
        differ("image", std::to_string(ours.image.size()) + " bytes", std::to_string(literal.image.size()));
    }
    // The second door takes more, and is the same where nothing of that plays a part.
    const Outcome modern = rewrite_modern(image, options);
    if (!ours.image.empty() && literal.widened == 0 && modern.image != ours.image) {
        differ("second door", std::to_string(modern.image.size()) + " bytes", std::to_string(ours.image.size()));
    }
    return 0;
}
