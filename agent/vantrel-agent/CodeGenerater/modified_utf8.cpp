#include "modified_utf8.h"

#include <algorithm>
#include <cstdio>

namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool is_high(char32_t c) {
    return c >= 0xD800 && c < 0xDC00;
}

bool is_low(char32_t c) {
    return c >= 0xDC00 && c < 0xE000;
}

// A character as its bytes encode it, which may be a surrogate, and how many bytes these are. A byte that begins no
// character is taken for U+FFFD.
struct Character {
    char32_t code;
    size_t length;
};

Character character_at(std::string_view text, size_t at) {
    const auto byte = [&](size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(at);
    if (lead < 0x80) {
        return {lead, 1};
    }
    const size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC0 || lead >= 0xF8 || at + length > text.size()) {
        return {kReplacement, 1};
    }
    char32_t code = lead & (0xFFU >> (length + 1));
    for (size_t i = at + 1; i < at + length; ++i) {
        if ((byte(i) & 0xC0) != 0x80) {
            return {kReplacement, 1};
        }
        code = code << 6 | (byte(i) & 0x3FU);
    }
    return {code, length};
}

// The fewest bytes that UTF-8 has for a character.
size_t length_of(char32_t code) {
    return code < 0x80 ? 1 : code < 0x800 ? 2 : code < 0x10000 ? 3 : 4;
}

void append(std::string& text, char32_t code) {
    const size_t length = length_of(code);
    if (length == 1) {
        text += static_cast<char>(code);
        return;
    }
    constexpr unsigned char leads[] = {0, 0, 0xC0, 0xE0, 0xF0};
    text += static_cast<char>(leads[length] | code >> (6 * (length - 1)));
    for (size_t i = length - 1; i-- > 0;) {
        text += static_cast<char>(0x80U | (code >> (6 * i) & 0x3FU));
    }
}

std::string escaped(char c) {
    // Always three digits: with fewer, a digit that follows in the text would be read as part of the escape.
    char octal[5];
    snprintf(octal, sizeof octal, "\\%03o", static_cast<unsigned char>(c));
    return octal;
}

}  // namespace

std::u32string generator::decode_modified_utf8(std::string_view text) {
    std::u32string decoded;
    for (size_t at = 0; at < text.size();) {
        auto [code, length] = character_at(text, at);
        at += length;
        if (is_high(code) && at < text.size()) {
            const Character next = character_at(text, at);
            if (is_low(next.code)) {
                code = 0x10000 + ((code - 0xD800) << 10) + (next.code - 0xDC00);
                at += next.length;
            }
        }
        decoded += is_high(code) || is_low(code) ? kReplacement : code;
    }
    return decoded;
}

std::string generator::to_utf8(std::u32string_view text) {
    std::string encoded;
    for (const char32_t c : text) {
        append(encoded, c);
    }
    return encoded;
}

std::string generator::utf8_of_modified(std::string_view text) {
    return to_utf8(decode_modified_utf8(text));
}

std::string generator::quoted_modified_utf8(std::string_view text) {
    std::string literal = "\"";
    for (size_t at = 0; at < text.size();) {
        const auto [code, length] = character_at(text, at);
        const std::string_view bytes = text.substr(at, length);
        const bool is_utf8 = length == length_of(code) && !is_high(code) && !is_low(code);
        if (code < 0x20 || code == 0x7F || code == '"' || code == '\\' || !is_utf8) {
            for (const char byte : bytes) {
                literal += escaped(byte);
            }
        } else {
            literal += bytes;
        }
        at += length;
    }
    return literal + "\"";
}
