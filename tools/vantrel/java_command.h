// The command line of the java launcher.
#ifndef VANTREL_JAVA_COMMAND_H
#define VANTREL_JAVA_COMMAND_H

#include <cstddef>
#include <string>
#include <vector>

namespace launch {

// Where the options with our agent go: after the last Java agent, or else first. A VM starts agents in the order of
// their options. If a Java agent came after ours, it would not see the classes that the VM loads for ours.
//   words   the launcher's name and all words after it
size_t place_for_agent(const std::vector<std::string>& words);

}  // namespace launch

#endif
