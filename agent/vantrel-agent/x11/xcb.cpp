#include "xcb.h"

#include <dlfcn.h>

namespace xcb {

namespace {

template <typename Function>
bool find(void* library, const char* name, Function*& function) {
    function = reinterpret_cast<Function*>(dlsym(library, name));
    return function != nullptr;
}

// The library stays: a thread may be waiting in it when the agent is unloaded.
bool find_all() {
    void* library = dlopen("libxcb.so.1", RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
        return false;
    }
    bool found = true;
#define VANTREL_XCB_FIND(name) found = find(library, "xcb_" #name, name) && found;
    VANTREL_XCB_FUNCTIONS(VANTREL_XCB_FIND)
#undef VANTREL_XCB_FIND
    return found;
}

}  // namespace

bool load() {
    static const bool found = find_all();
    return found;
}

}  // namespace xcb
