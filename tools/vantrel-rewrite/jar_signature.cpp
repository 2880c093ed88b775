#include "jar_signature.h"

#include <algorithm>
#include <cctype>

namespace vantrel_rewrite {

namespace {

constexpr std::string_view kFolder = "META-INF/";

std::string upper(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](unsigned char character) { return static_cast<char>(std::toupper(character)); });
    return result;
}

// Takes the next line, with its end (CR LF, LF or CR), off a text.
std::string_view take_line(std::string_view& text) {
    size_t end = std::min(text.find_first_of("\r\n"), text.size());
    if (end < text.size()) {
        end += text.substr(end, 2) == "\r\n" ? 2 : 1;
    }
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end);
    return line;
}

// Takes the next attribute, with the lines that continue it, off a text.
std::string_view take_attribute(std::string_view& text) {
    std::string_view rest = text;
    take_line(rest);
    while (rest.starts_with(' ')) {
        take_line(rest);
    }
    const std::string_view attribute = text.substr(0, text.size() - rest.size());
    text = rest;
    return attribute;
}

bool is_blank(std::string_view line) {
    return line.starts_with('\r') || line.starts_with('\n');
}

// SHA-256-Digest, and SHA-256-Digest-fr for a language.
bool is_digest(std::string_view attribute) {
    const std::string name = upper(attribute.substr(0, attribute.find(':'))) + "-";
    return name.find("-DIGEST-") != std::string::npos;
}

}  // namespace

bool is_signature_file(std::string_view entry) {
    const std::string path = upper(entry);
    if (!path.starts_with(kFolder) || path.find('/', kFolder.size()) != std::string::npos) {
        return false;
    }
    const std::string name = path.substr(kFolder.size());
    return name.starts_with("SIG-") || name.ends_with(".SF") || name.ends_with(".RSA") || name.ends_with(".DSA") ||
           name.ends_with(".EC");
}

bool is_manifest(std::string_view entry) {
    return upper(entry) == "META-INF/MANIFEST.MF";
}

std::string without_digests(std::string_view manifest) {
    std::string result;
    bool is_main_section = true;
    while (!manifest.empty()) {
        std::string section;
        int kept = 0;
        int dropped = 0;
        while (!manifest.empty() && !is_blank(manifest)) {
            const std::string_view attribute = take_attribute(manifest);
            if (!is_main_section && is_digest(attribute)) {
                ++dropped;
            } else {
                ++kept;
                section += attribute;
            }
        }
        while (is_blank(manifest)) {
            section += take_line(manifest);
        }
        // The first attribute of an entry's section is its name.
        if (dropped == 0 || kept > 1) {
            result += section;
        }
        is_main_section = false;
    }
    return result;
}

}  // namespace vantrel_rewrite
