// From the plan to the results.
#ifndef VANTREL_REWRITE_RUN_H
#define VANTREL_REWRITE_RUN_H

#include <cstddef>

#include "arguments.h"

struct Summary {
    size_t classes = 0;
    size_t too_new = 0;
    size_t failed = 0;
};

// Does what the command line asks for; notes go to stderr. Nothing is left behind where it throws: a Failure, or
// Interrupted.
Summary rewrite(const Arguments& arguments);

#endif
