// The VM's own form of UTF-8 (JVM specification, 4.4.7), in which JNI and JVMTI give and take names: a character
// outside of the basic plane is two surrogates of three bytes each, and a zero is two bytes. Everything else is as in
// UTF-8.
#ifndef VANTREL_MODIFIED_UTF8_H
#define VANTREL_MODIFIED_UTF8_H

#include <string>
#include <string_view>

namespace generator {

// Half of a pair that has no other half, which Java allows and UTF-8 does not, becomes U+FFFD.
std::u32string decode_modified_utf8(std::string_view text);
std::string utf8_of_modified(std::string_view text);

std::string to_utf8(std::u32string_view text);

// The text as a string literal of C++, with its quotes. What is no UTF-8, and what a literal cannot hold, is escaped,
// so that the literal has the text's own bytes in a file of UTF-8.
std::string quoted_modified_utf8(std::string_view text);

}  // namespace generator

#endif
