#include "present_files.h"

#include <CodeGenerater/modified_utf8.h>

#include <fstream>
#include <iterator>
#include <optional>

namespace fs = std::filesystem;

namespace {

std::optional<std::string> text_of(const fs::path& path) {
    std::ifstream file(path);
    std::error_code error;
    if (!file || fs::is_directory(path, error)) {
        return std::nullopt;
    }
    return std::string(std::istreambuf_iterator<char>(file), {});
}

// The internal name of the class that a proxy's Init looks up, as its literal spells it. Empty if the body is no proxy.
std::string class_in(const std::string& body) {
    const size_t line = body.find("\tINIT_CACHE_CLASS(jni_env, ");
    const size_t begin = line != std::string::npos ? body.find('"', line) : line;
    const size_t end = begin != std::string::npos ? body.find("\");\n", begin) : begin;
    return end != std::string::npos ? body.substr(begin + 1, end - begin - 1) : "";
}

}  // namespace

std::string generate::not_to_be_replaced(const generator::Proxy& proxy, const fs::path& header, const fs::path& body) {
    if (const auto text = text_of(body)) {
        const std::string owner = class_in(*text);
        if (owner.empty()) {
            return body.string() + " is no proxy";
        }
        if (owner != proxy.internal_name && '"' + owner + '"' != generator::quoted_modified_utf8(proxy.internal_name)) {
            return body.string() + " is the proxy of " + owner;
        }
    }
    const auto text = text_of(header);
    return text && text->find("\nnamespace NS") == std::string::npos ? header.string() + " is no proxy" : "";
}
