#include "agent_util.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

// The longest token of a filter list, with its terminating zero.
constexpr int kMaxTokenSize = 1024;

// The longest path to a demo jar, with its terminating zero.
constexpr size_t kMaxJarPathSize = 1025;

constexpr int kFatalExitStatus = 3;

[[noreturn]] void report_jvmti_error(jvmtiEnv* jvmti, jvmtiError error, const char* message) {
    char* error_name = nullptr;
    jvmti->GetErrorName(error, &error_name);
    fatal_error("ERROR: JVMTI: %d(%s): %s\n", error, error_name != nullptr ? error_name : "Unknown", message);
}

bool begins_with(const char* text, const char* prefix, size_t prefix_length) {
    return strncmp(text, prefix, prefix_length) == 0;
}

bool pattern_matches(const char* pattern, const char* class_name, const char* method_name) {
    const size_t length = strlen(pattern);
    if (pattern[0] == '*') {
        return begins_with(method_name, pattern + 1, length - 1);
    }
    if (pattern[length - 1] == '*') {
        return begins_with(class_name, pattern, length - 1);
    }
    const size_t class_length = strlen(class_name);
    if (!begins_with(class_name, pattern, std::min(length, class_length))) {
        return false;
    }
    if (length <= class_length) {
        return true;
    }
    const char* method_pattern = pattern + class_length + 1;
    return begins_with(method_name, method_pattern, std::min(strlen(method_name), strlen(method_pattern)));
}

}  // namespace

void stdout_message(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    vfprintf(stdout, format, arguments);
    va_end(arguments);
}

void fatal_error(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    vfprintf(stderr, format, arguments);
    va_end(arguments);
    fflush(stderr);
    exit(kFatalExitStatus);
}

void check_jvmti_error(jvmtiEnv* jvmti, jvmtiError error, const char* message) {
    if (error != JVMTI_ERROR_NONE) {
        report_jvmti_error(jvmti, error, message != nullptr ? message : "");
    }
}

char* get_token(char* str, char* separators, char* token, int maxLength) {
    token[0] = '\0';
    if (str == nullptr) {
        return nullptr;
    }
    char* start = str + strspn(str, separators);
    if (*start == '\0') {
        return nullptr;
    }
    const size_t length = strcspn(start, separators);
    if (maxLength < 0 || length >= static_cast<size_t>(maxLength)) {
        return nullptr;
    }
    memcpy(token, start, length);
    token[length] = '\0';
    return start + length;
}

int covered_by_list(char* list, char* className, char* methodName) {
    char separators[] = ",";
    char token[kMaxTokenSize];
    char* rest = list;
    while ((rest = get_token(rest, separators, token, kMaxTokenSize)) != nullptr) {
        if (pattern_matches(token, className, methodName)) {
            return 1;
        }
    }
    return 0;
}

int interested(char* className, char* methodName, char* includeList, char* excludeList) {
    const auto given = [](const char* list) { return list != nullptr && list[0] != '\0'; };
    if (given(excludeList) && covered_by_list(excludeList, className, methodName) != 0) {
        return 0;
    }
    if (!given(includeList)) {
        return 1;
    }
    return covered_by_list(includeList, className, methodName);
}

void* allocate(jvmtiEnv* jvmti, jint len) {
    unsigned char* block = nullptr;
    check_jvmti_error(jvmti, jvmti->Allocate(len, &block), "Cannot allocate memory");
    return block;
}

void deallocate(jvmtiEnv* jvmti, void* ptr) {
    check_jvmti_error(jvmti, jvmti->Deallocate(static_cast<unsigned char*>(ptr)), "Cannot deallocate memory");
}

void add_demo_jar_to_bootclasspath(jvmtiEnv* jvmti, char* jarName) {
    char* java_home = nullptr;
    check_jvmti_error(jvmti, jvmti->GetSystemProperty("java.home", &java_home), "Cannot get java.home property value");
    if (java_home == nullptr || java_home[0] == '\0') {
        fatal_error("ERROR: Java home not found\n");
    }

    // Both paths have to fit, so the longer one is measured.
    char path[kMaxJarPathSize];
    if (strlen(java_home) + 2 * strlen(jarName) + sizeof "/../demo/jvmti//.jar" > sizeof path) {
        fatal_error("ERROR: Path to jar file too long\n");
    }
    snprintf(path, sizeof path, "%s/demo/jvmti/%s/%s.jar", java_home, jarName, jarName);
    if (jvmti->AddToBootstrapClassLoaderSearch(path) == JVMTI_ERROR_NONE) {
        return;
    }
    snprintf(path, sizeof path, "%s/../demo/jvmti/%s/%s.jar", java_home, jarName, jarName);
    check_jvmti_error(jvmti, jvmti->AddToBootstrapClassLoaderSearch(path), "Cannot add to boot classpath");
}
