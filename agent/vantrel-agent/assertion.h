// Assertions are how this library fails where Java does: a missing class, method or result ends the VM with a report
// that names the expression. Without them the library would go on with null references, so it does not compile without
// them.
#ifndef VANTREL_ASSERTION_H
#define VANTREL_ASSERTION_H

#ifdef NDEBUG
#error "Assertions must stay enabled: build without NDEBUG (the presets in CMakePresets.json do)."
#endif

#include <cassert>

#endif
