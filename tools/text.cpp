#include "text.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace command {

namespace {

// The character that a text begins with, and how many bytes it has.
struct Character {
    char32_t code;
    size_t size;
};

// Nothing where the text does not begin with a character of UTF-8 in its shortest form.
std::optional<Character> first_of(std::string_view text) {
    const auto byte = [&](size_t at) { return static_cast<unsigned char>(text[at]); };
    const unsigned lead = byte(0);
    if (lead < 0x80) {
        return Character{lead, 1};
    }
    const size_t size = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < size) {
        return std::nullopt;
    }
    char32_t code = lead & (0x7FU >> size);
    for (size_t at = 1; at < size; ++at) {
        if ((byte(at) & 0xC0U) != 0x80) {
            return std::nullopt;
        }
        code = code << 6U | (byte(at) & 0x3FU);
    }
    constexpr char32_t kFirstOfSize[] = {0, 0, 0x80, 0x800, 0x10000};
    const bool is_surrogate = code >= 0xD800 && code <= 0xDFFF;
    if (code < kFirstOfSize[size] || is_surrogate || code > 0x10FFFF) {
        return std::nullopt;
    }
    return Character{code, size};
}

void append_three_bytes(std::string& to, char32_t code) {
    to += static_cast<char>(0xE0U | code >> 12U);
    to += static_cast<char>(0x80U | (code >> 6U & 0x3FU));
    to += static_cast<char>(0x80U | (code & 0x3FU));
}

bool is_printable(char32_t code) {
    // Control characters, marks and overrides of direction, separators of lines and paragraphs.
    constexpr char32_t kRanges[][2] = {
        {0x00, 0x1F}, {0x7F, 0x9F}, {0x200E, 0x200F}, {0x2028, 0x202E}, {0x2066, 0x2069}};
    return std::none_of(std::begin(kRanges), std::end(kRanges),
                        [&](const auto& range) { return code >= range[0] && code <= range[1]; });
}

void append_escaped(std::string& to, std::string_view bytes) {
    constexpr const char* kDigits = "0123456789abcdef";
    for (const char byte : bytes) {
        const char* letter = byte == '\t' ? "\\t" : byte == '\n' ? "\\n" : byte == '\r' ? "\\r" : nullptr;
        if (letter != nullptr) {
            to += letter;
        } else {
            const auto value = static_cast<unsigned char>(byte);
            to += {'\\', 'x', kDigits[value >> 4U], kDigits[value & 0xFU]};
        }
    }
}

}  // namespace

std::optional<std::string> modified_utf8(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const auto character = first_of(text);
        if (!character || character->code == 0) {
            return std::nullopt;
        }
        if (character->code >= 0x10000) {
            append_three_bytes(result, 0xD800 + ((character->code - 0x10000) >> 10U));
            append_three_bytes(result, 0xDC00 + ((character->code - 0x10000) & 0x3FFU));
        } else {
            result += text.substr(0, character->size);
        }
        text.remove_prefix(character->size);
    }
    return result;
}

std::string printable(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const auto character = first_of(text);
        const size_t size = character ? character->size : 1;
        if (character && is_printable(character->code)) {
            result += text.substr(0, size);
        } else {
            append_escaped(result, text.substr(0, size));
        }
        text.remove_prefix(size);
    }
    return result;
}

}  // namespace command
