#include "product.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <optional>

#include "java_crw_demo.h"
#include "vantrel_rewriter.h"

namespace {

struct Failure {
    std::string message;
    std::string source_file;
};

[[noreturn]] void throw_failure(const char* message, const char* source_file, int /*line*/) {
    throw Failure{message, source_file};
}

const char* chars(const std::optional<std::string>& text) {
    return text ? text->c_str() : nullptr;
}

}  // namespace

Outcome rewrite(std::span<const std::uint8_t> image, const RewriteOptions& options) {
    // A block of its own lets the sanitizers see a read past the image's end.
    const std::unique_ptr<unsigned char[]> input(new unsigned char[image.size()]);
    std::ranges::copy(image, input.get());
    const std::string signature = "L" + options.tracker_class + ";";
    const char* numbers = "(II)V";
    const char* object = "(Ljava/lang/Object;)V";
    unsigned char* new_image = nullptr;
    long new_length = 0;
    try {
        java_crw_demo(options.class_number, chars(options.name), input.get(), static_cast<long>(image.size()),
                      options.system_class ? 1 : 0, options.tracker_class.c_str(), signature.c_str(),
                      chars(options.call_name), numbers, chars(options.return_name), numbers,
                      chars(options.obj_init_name), object, chars(options.newarray_name), object, &new_image,
                      &new_length, throw_failure, nullptr);
    } catch (const Failure& failure) {
        return {{}, failure.message, failure.source_file};
    }
    Outcome outcome{{new_image, new_image + new_length}, "", ""};
    free(new_image);
    return outcome;
}

Outcome rewrite_modern(std::span<const std::uint8_t> image, const RewriteOptions& options) {
    const std::unique_ptr<unsigned char[]> input(new unsigned char[image.size()]);
    std::ranges::copy(image, input.get());
    const VantrelRewriterOptions asked{sizeof asked,
                                       options.tracker_class.c_str(),
                                       chars(options.call_name),
                                       chars(options.return_name),
                                       chars(options.obj_init_name),
                                       chars(options.newarray_name),
                                       chars(options.name),
                                       options.class_number,
                                       options.system_class ? 1 : 0,
                                       nullptr,
                                       nullptr,
                                       nullptr};
    VantrelRewriterResult result{};
    result.size = sizeof result;
    vantrel_rewriter_rewrite(input.get(), image.size(), &asked, &result);
    Outcome outcome{{result.image, result.image + result.length}, result.sentence, ""};
    vantrel_rewriter_release(&result);
    return outcome;
}
