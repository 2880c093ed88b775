#include "product.h"

#include <cstdlib>
#include <stdexcept>

#include "java_crw_demo.h"

namespace {

struct Failure {
    std::string message;
    std::string source_file;
};

[[noreturn]] void throw_failure(const char* message, const char* source_file, int /*line*/) {
    throw Failure{message, source_file};
}

}  // namespace

Outcome rewrite(const class_builder::Bytes& image, const Request& request) {
    unsigned char* new_image = nullptr;
    long new_length = 0;
    const char* numbers = "(II)V";
    const char* object = "(Ljava/lang/Object;)V";
    try {
        java_crw_demo(request.class_number, request.name, image.data(), static_cast<long>(image.size()),
                      request.system_class, "Track", "LTrack;", request.call, numbers, request.ret, numbers,
                      request.object_init, object, request.newarray, object, &new_image, &new_length, throw_failure,
                      nullptr);
    } catch (const Failure& failure) {
        return {{}, failure.message, failure.source_file};
    }
    Outcome outcome{{new_image, new_image + new_length}, "", ""};
    free(new_image);
    return outcome;
}
