// From the plan to the results.
#ifndef VANTREL_REWRITE_RUN_H
#define VANTREL_REWRITE_RUN_H

#include "arguments.h"
#include "class_reports.h"

namespace vantrel_rewrite {

// Does what the command line asks for; notes go to stderr. Nothing is left behind where it throws: a Failure, or
// Interrupted.
Summary run(const Arguments& arguments);

}  // namespace vantrel_rewrite

#endif
