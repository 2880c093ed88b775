// Names and messages as bytes: the UTF-8 of the system, the form of it that is in class files, and what may be sent to
// a terminal.
#ifndef VANTREL_TEXT_H
#define VANTREL_TEXT_H

#include <optional>
#include <string>
#include <string_view>

namespace command {

// UTF-8 as "modified UTF-8", which the names in class files are in (JVM specification 4.4.7): a character outside of
// the basic plane is two surrogates of three bytes each. Nothing if the text is not UTF-8, or holds a zero byte.
std::optional<std::string> modified_utf8(std::string_view text);

// A text for a terminal, in one line: control characters, characters that change the direction of writing, and bytes
// that are not UTF-8 come out as \t, \n, \r or \x and two digits for each byte. All else stays.
std::string printable(std::string_view text);

}  // namespace command

#endif
