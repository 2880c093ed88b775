// Texts in the records' fixed-size arrays.
#ifndef VANTREL_FITTING_H
#define VANTREL_FITTING_H

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

}  // namespace generator

#endif
