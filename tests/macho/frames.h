// Exceptions through the code of a Mach-O library. macOS unwinds by a compact table (Apple's
// mach-o/compact_unwind_encoding.h); the unwinder of this process reads DWARF only, so the table is translated to
// DWARF.
#ifndef VANTREL_MACHO_FRAMES_H
#define VANTREL_MACHO_FRAMES_H

#include <cstdint>

#include "file.h"

namespace macho {

// Tells the unwinder of a library that is mapped at `base`, with its pointers fixed, for as long as the process lives.
void register_frames(const File& file, const std::uint8_t* base);

}  // namespace macho

#endif
