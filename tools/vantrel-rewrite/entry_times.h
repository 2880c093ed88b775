// The times of a jar's entries.
#ifndef VANTREL_REWRITE_ENTRY_TIMES_H
#define VANTREL_REWRITE_ENTRY_TIMES_H

#include <filesystem>

#include "file_io.h"

namespace vantrel_rewrite {

// Gives the entries of a written jar the times that they have in the jar that it was made from, bit for bit.
//
// An entry's time has no time zone. libzip takes it for a local one, makes a moment of it, and makes a local time of
// that again when it writes; an hour that summer time leaves out, and a date that no calendar has, come out as others.
// What libzip has written about times is therefore not kept at all.
//
//   source   the jar as it was
//   target   the jar as libzip has written it, of all entries in their order, but without signature files
//   file     the target's
//
// Throws a Failure.
void carry_times_over(const std::filesystem::path& source, OutputFile& target, const NewFile& file);

}  // namespace vantrel_rewrite

#endif
