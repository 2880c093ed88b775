// Maps the macOS library into a test program before its main, where the linker was told that its functions and
// variables are.
#include <cstdint>

#include "image.h"

namespace {

// Before the program's own variables are made, some of which may be of the library's.
__attribute__((constructor(101))) void place() {
    macho::load(VANTREL_MACHO_LIBRARY, VANTREL_MACHO_ADDRESS);
}

}  // namespace
