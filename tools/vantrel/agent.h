// The agent that lies beside the command, and how a VM is told of it.
#ifndef VANTREL_AGENT_OPTION_H
#define VANTREL_AGENT_OPTION_H

#include <string>
#include <vector>

namespace launch {

// The option that makes a VM load the agent. The library is looked for in the folder lib beside the command's own
// folder, where the build and an installation put it. Throws Failure if it is not there, if the companion jar is not
// beside it, or if a VM cannot take it from there.
std::string agent_option();

// Options for all VMs that a program starts, in the form that JAVA_TOOL_OPTIONS takes them.
//   already   what the variable holds so far, which stays; may be empty
std::string tool_options(const std::string& already, const std::vector<std::string>& options);

}  // namespace launch

#endif
