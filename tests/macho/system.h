// What a macOS library finds in other libraries, in a Linux process.
#ifndef VANTREL_MACHO_SYSTEM_H
#define VANTREL_MACHO_SYSTEM_H

#include <string>

namespace macho {

// What stands for a symbol of libSystem, Carbon or Quartz, by the names that a Mach-O file has for library and symbol:
//   - of the frameworks, the functions of tests/carbon/Carbon/Carbon.h as the program that this is linked into defines
//     them, which need not be all, nor any;
//   - of libSystem, what lib_system.h has;
//   - else a function that ends the process when it is called, with a line that names the symbol.
const void* in_system(const std::string& library, const std::string& symbol);

// A line on stderr, and the end of the process.
[[noreturn]] void give_up(const char* what, const char* name);

}  // namespace macho

#endif
