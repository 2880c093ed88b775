// Texts in the records' fixed-size arrays: what fits goes in, what does not fit is reported.
#ifndef VANTREL_FITTING_H
#define VANTREL_FITTING_H

#include <cstdio>
#include <cstring>
#include <string_view>

namespace generator {

// Copies a text into an array, with its terminating zero; false, and the array as it was, if it does not fit.
template <unsigned long Size>
bool copy_fitting(char (&to)[Size], std::string_view text) {
    if (text.size() >= Size) {
        return false;
    }
    memcpy(to, text.data(), text.size());
    to[text.size()] = '\0';
    return true;
}

// Says on stderr that the generator goes on without a member.
inline void report_left_out(const char* class_name, const char* member, const char* descriptor, const char* reason) {
    fprintf(stderr, "CodeGenerater: left out %s.%s %s: %s\n", class_name, member, descriptor, reason);
}

}  // namespace generator

#endif
