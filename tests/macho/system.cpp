#include "system.h"

#include <Carbon/Carbon.h>
#include <sys/mman.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <initializer_list>

#include "lib_system.h"

#pragma weak GetApplicationEventTarget
#pragma weak InstallEventHandler
#pragma weak RegisterEventHotKey
#pragma weak UnregisterEventHotKey
#pragma weak CGEventSourceFlagsState

namespace macho {
namespace {

const void* in_framework(const std::string& library, const std::string& symbol) {
    static constexpr const char* kCarbon = "/System/Library/Frameworks/Carbon.framework/Versions/A/Carbon";
    static constexpr const char* kQuartz =
        "/System/Library/Frameworks/ApplicationServices.framework/Versions/A/ApplicationServices";
    static const struct {
        const char* library;
        const char* symbol;
        const void* function;
    } functions[] = {
        {kCarbon, "_GetApplicationEventTarget", reinterpret_cast<const void*>(&GetApplicationEventTarget)},
        {kCarbon, "_InstallEventHandler", reinterpret_cast<const void*>(&InstallEventHandler)},
        {kCarbon, "_RegisterEventHotKey", reinterpret_cast<const void*>(&RegisterEventHotKey)},
        {kCarbon, "_UnregisterEventHotKey", reinterpret_cast<const void*>(&UnregisterEventHotKey)},
        {kQuartz, "_CGEventSourceFlagsState", reinterpret_cast<const void*>(&CGEventSourceFlagsState)},
    };
    for (const auto& known : functions) {
        if (known.library == library && known.symbol == symbol) {
            return known.function;
        }
    }
    return nullptr;
}

// Machine code that calls give_up: mov rdi, what; mov rsi, name; mov rax, give_up; jmp rax.
const void* trap(const std::string& symbol) {
    constexpr std::size_t kRoom = 65536;  // for some two thousand
    static auto* next = static_cast<std::uint8_t*>(
        mmap(nullptr, kRoom, PROT_READ | PROT_WRITE | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    const std::uint8_t* const begin = next;
    const auto add = [](std::initializer_list<std::uint8_t> code, const void* operand = nullptr) {
        next = std::copy(code.begin(), code.end(), next);
        if (operand != nullptr) {
            memcpy(next, &operand, sizeof operand);
            next += sizeof operand;
        }
    };
    add({0x48, 0xBF}, "nothing here stands for ");
    add({0x48, 0xBE}, strdup(symbol.c_str()));
    add({0x48, 0xB8}, reinterpret_cast<const void*>(&give_up));
    add({0xFF, 0xE0});
    return begin;
}

}  // namespace

const void* in_system(const std::string& library, const std::string& symbol) {
    const void* found = library == "/usr/lib/libSystem.B.dylib" ? in_lib_system(symbol) : in_framework(library, symbol);
    return found != nullptr ? found : trap(symbol);
}

void give_up(const char* what, const char* name) {
    fprintf(stderr, "macho: %s%s\n", what, name);
    abort();
}

}  // namespace macho
