// The Attach API of HotSpot VMs, from the side of who asks: the few steps of its protocol that have a VM load a jar's
// agent. No JDK is needed for that, neither here nor in the program.
#ifndef VANTREL_ATTACH_H
#define VANTREL_ATTACH_H

#include <chrono>
#include <string>

#include "programs.h"

namespace outside {

using Deadline = std::chrono::steady_clock::time_point;

// Has a program's VM load a jar that is loaded already, which calls its Agent-Class.
//   jar       as the program sees it; without a '=' in its path
//   options   what the class is called with
// Returns when the class's method has returned. Throws FailureWithStatus if the VM does not listen, does not load the
// jar, or has not done so by the deadline, and Interrupted.
void load_jar(const Program& program, const std::filesystem::path& jar, const std::string& options, Deadline deadline);

// Sleeps between two looks at something that takes its time. Throws Interrupted if a signal has come.
void pause_between_looks();

}  // namespace outside

#endif
