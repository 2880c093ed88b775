// Signals that ask the command to end. They only leave a mark, so that temporary files are removed on the way out.
#ifndef VANTREL_REWRITE_INTERRUPT_H
#define VANTREL_REWRITE_INTERRUPT_H

namespace vantrel_rewrite::interrupt {

// Thrown where the mark is seen.
struct Interrupted {};

// From now on each signal that would end the process leaves the mark, unless it was ignored before. Exceptions are
// KILL, which cannot be caught, and those that report a fault of the process, such as SEGV. Writing to a closed pipe,
// or more to a file than is allowed, becomes an error of writing and no longer ends the process.
void watch();

bool requested();

// Throws Interrupted if the mark is there.
void check();

// Ends the process by the signal that left the mark, as its parent expects.
[[noreturn]] void end_by_signal();

}  // namespace vantrel_rewrite::interrupt

#endif
