#include "failure.h"

#include <cstdio>
#include <cstdlib>

#include "method_rewrite_state.h"

namespace crw {

namespace {

constexpr std::string_view kSources = "java_crw_demo/";

// The part of a source file's path that does not depend on where it was built.
const char* from_sources_on(const char* file) {
    const size_t start = std::string_view(file).rfind(kSources);
    return start == std::string_view::npos ? file : file + start;
}

}  // namespace

void fatal_error(JavaCrwDemoErrorHandler handler, const char* message, const char* file, int line) {
    file = from_sources_on(file);
    if (handler == nullptr) {
        fprintf(stderr, "CRW: %s [%s:%d]\n", message, file, line);
        abort();
    }
    handler(message, file, line);
    throw Failed{};
}

void assertion_failed(const ClassRewriteState& ci, const char* condition, const char* file, int line) {
    constexpr size_t kMessageSize = 512;
    char message[kMessageSize];
    const MethodRewriteState* method = ci.current_method;
    const std::string_view method_name = method != nullptr ? method->name : "?";
    const int position =
        method != nullptr ? static_cast<int>(ci.input_position - method->start_of_input_bytecodes) : -1;
    snprintf(message, sizeof message, "CRW ASSERTION FAILURE: %s (%s:%.*s:%d)", condition,
             ci.name ? ci.name->c_str() : "?", static_cast<int>(method_name.size()), method_name.data(), position);
    fatal_error(ci.fatal_error_handler, message, file, line);
}

}  // namespace crw
