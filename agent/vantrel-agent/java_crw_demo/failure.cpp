#include "failure.h"

#include <cstdio>
#include <string_view>

#include "images.h"
#include "method_rewrite_state.h"

namespace crw {

namespace {

constexpr std::string_view kSources = "java_crw_demo/";

// The part of a source file's path that does not depend on where it was built.
const char* from_sources_on(const char* file) {
    const size_t start = std::string_view(file).rfind(kSources);
    return start == std::string_view::npos ? file : file + start;
}

Failure failure_at(const char* condition, const char* file, int line) {
    Failure failure;
    failure.condition = condition;
    failure.file = from_sources_on(file);
    failure.line = line;
    return failure;
}

Failure failure_in(const ClassRewriteState& ci, const char* condition, const char* file, int line) {
    Failure failure = failure_at(condition, file, line);
    const std::string_view name = ci.name.value_or("");
    snprintf(failure.class_name, sizeof failure.class_name, "%.*s", static_cast<int>(name.size()), name.data());
    if (const MethodRewriteState* method = ci.current_method) {
        snprintf(failure.method, sizeof failure.method, "%.*s%.*s", static_cast<int>(method->name.size()),
                 method->name.data(), static_cast<int>(method->descriptor.size()), method->descriptor.data());
        failure.pc = static_cast<int>(ci.input_position - method->start_of_input_bytecodes);
    }
    return failure;
}

Failure assertion(const ClassRewriteState& ci, const char* condition, const char* file, int line,
                  bool lacks_room = false) {
    Failure failure = failure_in(ci, condition, file, line);
    failure.lacks_room = lacks_room;
    const std::string_view name = ci.name.value_or("?");
    const std::string_view method = ci.current_method != nullptr ? c_string(ci.current_method->name) : "?";
    snprintf(failure.message, sizeof failure.message, "CRW ASSERTION FAILURE: %s (%.*s:%.*s:%d)", condition,
             static_cast<int>(name.size()), name.data(), static_cast<int>(method.size()), method.data(), failure.pc);
    return failure;
}

Failure with_message(Failure failure, const char* message) {
    snprintf(failure.message, sizeof failure.message, "%s", message != nullptr ? message : failure.condition);
    return failure;
}

}  // namespace

void fatal_error(const char* condition, const char* message, const char* file, int line) {
    throw with_message(failure_at(condition, file, line), message);
}

void fatal_error(const ClassRewriteState& ci, const char* condition, const char* message, const char* file, int line) {
    throw with_message(failure_in(ci, condition, file, line), message);
}

void assertion_failed(const ClassRewriteState& ci, const char* condition, const char* file, int line) {
    throw assertion(ci, condition, file, line);
}

void output_is_full(const ClassRewriteState& ci, const char* file, int line) {
    throw assertion(ci, kInsideImages, file, line, true);
}

}  // namespace crw
