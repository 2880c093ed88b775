// The VM's own form of UTF-8 (JVM specification, 4.4.7), in which JNI and JVMTI give and take names: a character
// outside the basic plane is encoded as its two surrogates, of three bytes each, and the character zero as two bytes.
// Everything else is as in UTF-8.
#ifndef VANTREL_MODIFIED_UTF8_H
#define VANTREL_MODIFIED_UTF8_H

#include <string>
#include <string_view>

namespace generator {

// A surrogate without its other half, which Java allows and UTF-8 does not, becomes U+FFFD; so does a malformed byte.
std::u32string decode_modified_utf8(std::string_view text);
std::string utf8_of_modified(std::string_view text);

std::string to_utf8(std::u32string_view text);

// The text as a string literal of C++, with its quotes. Bytes that are not UTF-8 and characters that a literal cannot
// hold are written as escapes, so that the file stays UTF-8 and the literal has exactly the bytes of the text.
std::string quoted_modified_utf8(std::string_view text);

}  // namespace generator

#endif
