// A question to a program under the agent, and its answer.
#ifndef VANTREL_QUESTION_H
#define VANTREL_QUESTION_H

#include <string>
#include <vector>

#include "programs.h"

namespace outside {

// Asks a program, and returns the bytes of its answer. Both go through files in a folder in the program's /tmp that
// only its user can read, and that is gone when this returns or throws; Visit.java has the other side.
//   words   the question's name and what it needs to know, as Questions.java has them; without zero bytes
// Throws FailureWithStatus if the answer is that there is none, or that there is no such thing, and if no answer comes:
// within three seconds if the program does not take the question, otherwise when it ends. Throws Interrupted if a
// signal comes meanwhile.
std::string ask(const Program& program, const std::vector<std::string>& words);

}  // namespace outside

#endif
