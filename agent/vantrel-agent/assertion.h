// Assertions are this library's failure model towards Java: a missing class, method or result ends the VM with a
// report that names the expression. A build without them would run on with null references instead, so there is none.
#ifndef VANTREL_ASSERTION_H
#define VANTREL_ASSERTION_H

#ifdef NDEBUG
#error "Assertions must stay enabled: build without NDEBUG (the presets in CMakePresets.json do)."
#endif

#include <cassert>

#endif
