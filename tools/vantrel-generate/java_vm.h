// A Java VM inside of the command.
#ifndef VANTREL_GENERATE_JAVA_VM_H
#define VANTREL_GENERATE_JAVA_VM_H

#include <jvmti.h>

#include <string>
#include <vector>

namespace generate {

// The status of a run that was cut short.
constexpr int kNothingDone = 2;

// A running VM, as the thread that started it sees it. It is not shut down: threads that a class has started might keep
// it from that for ever. It ends with the process.
struct RunningVm {
    JNIEnv* env;
    jvmtiEnv* jvmti;
};

// Starts a VM. Throws Failure if there is none, or if it does not start; what the VM has to say about that is on
// stderr. A VM that ends the process, now or later, leaves a line on stderr and that status.
//   java_home  empty for JAVA_HOME's, or else the one that the java on the path belongs to
RunningVm start_vm(const std::string& java_home, const std::vector<std::string>& options);

}  // namespace generate

#endif
