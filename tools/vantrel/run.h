// `vantrel run`: a program under the agent.
#ifndef VANTREL_RUN_H
#define VANTREL_RUN_H

#include <string>

#include "arguments.h"

namespace launch {

// Why a program could not be started, and the exit status that says so, as shells and `env` have it.
struct NotStarted {
    std::string line;
    int status;
};

// Becomes the program: the process stays, so that its terminal, its input, the signals that it gets and its exit status
// are the program's without anybody between. Returns only by throwing Failure or NotStarted; nothing has happened then.
[[noreturn]] void run(const Arguments& arguments);

}  // namespace launch

#endif
