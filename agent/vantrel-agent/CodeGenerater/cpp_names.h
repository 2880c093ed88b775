// Names that mean something else in C++, or in the headers that a proxy includes.
#ifndef VANTREL_CPP_NAMES_H
#define VANTREL_CPP_NAMES_H

#include <string_view>

namespace generator {

// A keyword of C++20, an alternative token, or a keyword of the compilers' own dialects.
bool is_cpp_word(std::string_view name);

// A macro that is replaced wherever its name stands.
bool is_object_macro(std::string_view name);

// A macro that is replaced where a '(' follows.
bool is_function_macro(std::string_view name);

}  // namespace generator

#endif
