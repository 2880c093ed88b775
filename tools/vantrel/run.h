// `vantrel run`: a program under the agent.
#ifndef VANTREL_RUN_H
#define VANTREL_RUN_H

#include "arguments.h"

namespace launch {

// Becomes the program: the process stays, so that its terminal, its input, the signals that it gets and its exit status
// are the program's without anybody between. Returns only by throwing Failure or
// FailureWithStatus, whose status is the one that shells and `env` have for it; nothing has happened then.
[[noreturn]] void run(const Arguments& arguments);

}  // namespace launch

#endif
