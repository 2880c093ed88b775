// Signals that ask the command to end. They only leave a mark, so that temporary files are removed on the way out.
#ifndef VANTREL_REWRITE_INTERRUPT_H
#define VANTREL_REWRITE_INTERRUPT_H

namespace vantrel_rewrite::interrupt {

// Thrown where the mark is seen.
struct Interrupted {};

// From now on all signals that would end the process leave the mark, unless they were ignored before; not KILL, which
// cannot, nor those that tell of faults, as SEGV does. A closed pipe and a file that
// grows too large are errors of writing, and no longer end the process.
void watch();

bool requested();

// Throws Interrupted if the mark is there.
void check();

// Ends the process by the signal that left the mark, as its parent expects.
[[noreturn]] void end_by_signal();

}  // namespace vantrel_rewrite::interrupt

#endif
