// Somebody else's program in C++: rewrites a class file through each of the rewriter's headers, names its methods by
// their numbers, and says whether both made the same of it.
#include <java_crw_demo.h>
#include <vantrel_rewriter.h>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

using Bytes = std::vector<unsigned char>;

namespace {

void print_methods(void* /*context*/, uint32_t class_number, const char* const* names, const char* const* descriptors,
                   int method_count) {
    for (int method = 0; method < method_count; ++method) {
        std::cout << class_number << " " << method << " " << names[method] << descriptors[method] << "\n";
    }
}

Bytes rewrite(const Bytes& class_file, uint32_t class_number) {
    VantrelRewriterOptions options = {};
    options.size = sizeof options;
    options.tracker_class = "com/x/Tracker";
    options.call_tracker = "entered";
    options.return_tracker = "left";
    options.class_number = class_number;
    options.methods = print_methods;
    VantrelRewriterResult result = {};
    result.size = sizeof result;
    if (vantrel_rewriter_rewrite(class_file.data(), class_file.size(), &options, &result) >=
        VANTREL_REWRITER_WRONG_ARGUMENT) {
        throw std::runtime_error(std::string(result.class_name) + ": " + result.sentence);
    }
    Bytes image(result.image, result.image + result.length);
    vantrel_rewriter_release(&result);
    return image;
}

void fail(const char* message, const char* /*source_file*/, int /*line*/) {
    throw std::runtime_error(message);
}

Bytes rewrite_by_the_first_door(const Bytes& class_file, unsigned class_number) {
    unsigned char* image = nullptr;
    long length = 0;
    java_crw_demo(class_number, nullptr, class_file.data(), static_cast<long>(class_file.size()), 0, "com/x/Tracker",
                  "Lcom/x/Tracker;", "entered", "(II)V", "left", "(II)V", nullptr, nullptr, nullptr, nullptr, &image,
                  &length, fail, nullptr);
    Bytes copy(image, image + length);
    free(image);
    return copy;
}

}  // namespace

int main(int argument_count, char** arguments) try {
    std::ifstream file(argument_count == 2 ? arguments[1] : "", std::ios::binary);
    const Bytes class_file{std::istreambuf_iterator<char>(file), {}};
    const bool same = rewrite(class_file, 0) == rewrite_by_the_first_door(class_file, 0);
    std::cout << "the doors " << (same ? "agree" : "differ") << "\n";
} catch (const std::exception& failure) {
    std::cerr << failure.what() << "\n";
    return EXIT_FAILURE;
}
