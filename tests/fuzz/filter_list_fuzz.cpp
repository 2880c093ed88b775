// Class and method filters on any input: the first byte is a token's room, the rest is list, class and method, one a
// line.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "agent_util.h"

namespace {

std::string next_line(std::string& text) {
    const size_t end = std::min(text.find('\n'), text.size());
    std::string line = text.substr(0, end);
    text.erase(0, end + 1);
    return line.c_str();  // up to a zero, as the functions see it
}

// Every token that get_token returns is copied whole and ends at the returned position.
void check_tokens(std::string list, int room) {
    std::string separators = ",";
    std::vector<char> token(room);  // exactly as large as promised: the sanitizer watches its end
    char* at = list.data();
    char* end = nullptr;
    while ((end = get_token(at, separators.data(), token.data(), room)) != nullptr) {
        const size_t length = strlen(token.data());
        if (length == 0 || memcmp(end - length, token.data(), length) != 0 || end - length < at) {
            abort();
        }
        at = end;
    }
    if (token[0] != '\0') {
        abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) {
        return 0;
    }
    std::string text(reinterpret_cast<const char*>(data) + 1, size - 1);
    std::string list = next_line(text);
    std::string class_name = next_line(text);
    std::string method_name = next_line(text);

    check_tokens(list, data[0] + 1);
    const int covered = covered_by_list(list.data(), class_name.data(), method_name.data());
    if (interested(class_name.data(), method_name.data(), nullptr, list.data()) != 1 - covered) {
        abort();
    }
    const bool listed = !list.empty();
    if (interested(class_name.data(), method_name.data(), list.data(), nullptr) != (listed ? covered : 1)) {
        abort();
    }
    return 0;
}
