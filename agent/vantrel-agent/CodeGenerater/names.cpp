// The exported functions that make names: of classes, header macros and files.
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>

#include "CodeGenerater.h"
#include "generator.h"

namespace {

// What lies between the last '/' and the ';' or the end; a view with a null pointer if there is no '/'.
std::string_view simple_name(std::string_view descriptor) {
    descriptor = descriptor.substr(0, descriptor.find(';'));
    const size_t slash = descriptor.rfind('/');
    return slash == std::string_view::npos ? std::string_view() : descriptor.substr(slash + 1);
}

// Appends `added` to the text in `to`, cut to what fits into `size` bytes with its terminating zero.
void append_cut(char* to, unsigned long size, std::string_view added) {
    if (size == 0) {
        return;
    }
    const size_t length = std::min(added.size(), size - 1);
    char* end = to + strlen(to);
    memcpy(end, added.data(), length);
    end[length] = '\0';
}

void format_path(char* path, const char* directory, const char* name, const char* ending) {
    const int length = snprintf(path, kFilePathSize, "%s\\%s%s", directory, name, ending);
    if (length < 0 || static_cast<unsigned long>(length) >= kFilePathSize) {
        path[0] = '\0';
    }
}

}  // namespace

std::string generator::header_macro(std::string_view class_name) {
    std::string macro(class_name);
    // Not toupper, which depends on the locale.
    std::transform(macro.begin(), macro.end(), macro.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return macro;
}

int GetSimpleName(const char* descriptor, char* name, unsigned long size) {
    memset(name, 0, size);
    const std::string_view found = simple_name(descriptor);
    if (found.data() == nullptr) {
        return 0;
    }
    append_cut(name, size, found);
    return 1;
}

int GetSimpleArgumentName(const char* descriptor, char* name, unsigned long size) {
    const std::string_view found = simple_name(descriptor);
    if (found.data() == nullptr) {
        return 0;
    }
    append_cut(name, size, found);
    return 1;
}

char* GetClassName(char* out, char* internal_name) {
    strcat(out, generator::simple_name(internal_name).data());  // NOLINT: the caller knows that there is room
    return out;
}

char* CopyOf(const char* text) {
    return strdup(text);
}

void GetHeaderMacro(char* macro, char* name) {
    strcat(macro, generator::header_macro(name).c_str());  // NOLINT: the caller knows that there is room
}

void GetHeaderFileName(char* path, char* directory, char* name) {
    format_path(path, directory, name, ".h");
}

void GetCPPFileName(char* path, char* directory, char* name) {
    format_path(path, directory, name, ".cpp");
}
