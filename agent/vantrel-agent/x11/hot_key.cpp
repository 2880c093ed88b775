#include "hot_key.h"

#include <X11/keysym.h>
#include <dlfcn.h>
#include <strings.h>

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace x11 {

namespace {

struct ModifierName {
    const char* name;
    Modifier modifier;
};
constexpr ModifierName kModifierNames[] = {{"Shift", kShift}, {"Control", kControl}, {"Ctrl", kControl},
                                           {"Alt", kAlt},     {"Meta", kMeta},       {"Super", kSuper}};

// 0 if no modifier has that name.
uint8_t modifier_named(const std::string& name) {
    for (const ModifierName& known : kModifierNames) {
        if (strcasecmp(known.name, name.c_str()) == 0) {
            return known.modifier;
        }
    }
    return 0;
}

// The keysym of a name, by the table that Xlib has. Xlib is there wherever the AWT can open a window, but the agent
// must also load where it is not, so the one function is looked up at run time; that function needs no display and
// touches no error handler. Xlib is not unloaded again, because it keeps what it has read from its table.
xcb_keysym_t keysym_named(const std::string& name) {
    void* xlib = dlopen("libX11.so.6", RTLD_LAZY | RTLD_LOCAL);
    if (xlib == NULL) {
        return XCB_NO_SYMBOL;
    }
    const auto find = reinterpret_cast<unsigned long (*)(const char*)>(dlsym(xlib, "XStringToKeysym"));
    auto keysym = static_cast<xcb_keysym_t>(find != NULL ? find(name.c_str()) : XCB_NO_SYMBOL);
    if (keysym >= XK_A && keysym <= XK_Z) {
        keysym += XK_a - XK_A;  // pressed alone, a letter's key makes the small letter
    }
    return keysym;
}

// The hot key that a text names; its keysym is XCB_NO_SYMBOL if the text names none.
HotKey parse(std::string_view text) {
    HotKey key{XCB_NO_SYMBOL, 0, std::string(text)};
    for (size_t plus = text.find('+'); plus != std::string_view::npos; plus = text.find('+')) {
        const uint8_t modifier = modifier_named(std::string(text.substr(0, plus)));
        if (modifier == 0) {
            return key;
        }
        key.modifiers |= modifier;
        text.remove_prefix(plus + 1);
    }
    key.keysym = keysym_named(std::string(text));
    return key;
}

}  // namespace

HotKey default_hot_key() {
    return {XK_F12, kControl, "Control+F12"};
}

HotKey hot_key_named(const char* text) {
    if (text == NULL || *text == '\0') {
        return default_hot_key();
    }
    HotKey key = parse(text);
    if (key.keysym == XCB_NO_SYMBOL) {
        std::replace_if(
            key.name.begin(), key.name.end(), [](unsigned char c) { return c < ' '; }, '?');
        fprintf(stderr,
                "vantrel-agent: VANTREL_HOT_KEY names no key that X knows: %s (Control+Shift+F11 would be one); "
                "it stays %s.\n",
                key.name.c_str(), default_hot_key().name.c_str());
        return default_hot_key();
    }
    return key;
}

}  // namespace x11
