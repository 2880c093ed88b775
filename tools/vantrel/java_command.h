// The command line of the java launcher.
#ifndef VANTREL_JAVA_COMMAND_H
#define VANTREL_JAVA_COMMAND_H

#include <cstddef>
#include <string>
#include <vector>

namespace launch {

// Where options with the agent go: after the last Java agent, or else first. A VM starts agents in the order of their
// options, and a Java agent that came after this one would not see the classes that it has the VM load.
//   words   the launcher's name and all words after it
size_t place_for_agent(const std::vector<std::string>& words);

}  // namespace launch

#endif
