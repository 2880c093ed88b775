// The commands that ask programs under the agent.
#ifndef VANTREL_ASK_H
#define VANTREL_ASK_H

#include "arguments.h"

namespace outside {

// Carries out such a command, prints its answer, and returns the exit status. Throws Failure, FailureWithStatus and
// Interrupted; nothing has been printed then.
int run(const launch::Question& question);

}  // namespace outside

#endif
