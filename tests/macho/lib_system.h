// What stands for macOS's libSystem: the C library of this system where both are the same, and a translation where they
// are not.
#ifndef VANTREL_MACHO_LIB_SYSTEM_H
#define VANTREL_MACHO_LIB_SYSTEM_H

#include <string>

namespace macho {

// A symbol by the name that a Mach-O file has for it, or null: what the agent never comes to call is not here.
const void* in_lib_system(const std::string& symbol);

}  // namespace macho

#endif
