// Proxy of com.vantrel.stacktrace.StackTraceManager.
#ifndef VANTREL_JC_STACK_TRACE_MANAGER_H
#define VANTREL_JC_STACK_TRACE_MANAGER_H

namespace NSStackTraceManager {

// Whether added components are tracked. Set by Agent_OnLoad once it has asked for its capabilities; set back where
// they are refused.
extern bool vantrelAddStackTrace;

}  // namespace NSStackTraceManager

#endif
