// How the rewriter fails. There is one path: the caller's error handler is told, and the call ends without a result.
// Without a handler the process is aborted (java_crw_demo.h). The texts are part of the interface and stay as they
// are.
//
// Both functions leave by throwing Failed, which the exported functions catch; or by what the handler itself throws.
// The last two arguments are the place in the source. Callers leave them to their defaults.
#ifndef JAVA_CRW_DEMO_FAILURE_H
#define JAVA_CRW_DEMO_FAILURE_H

#include "java_crw_demo.h"

namespace crw {

struct ClassRewriteState;

struct Failed {};

// Fails with a text of its own.
[[noreturn]] void fatal_error(JavaCrwDemoErrorHandler handler, const char* message, const char* file = __builtin_FILE(),
                              int line = __builtin_LINE());

// Fails because a condition does not hold. The text names the condition, and the class, the method and the position in
// the method's bytecodes as far as they are known.
[[noreturn]] void assertion_failed(const ClassRewriteState& ci, const char* condition,
                                   const char* file = __builtin_FILE(), int line = __builtin_LINE());

inline void require(const ClassRewriteState& ci, bool holds, const char* condition, const char* file = __builtin_FILE(),
                    int line = __builtin_LINE()) {
    if (!holds) [[unlikely]] {
        assertion_failed(ci, condition, file, line);
    }
}

}  // namespace crw

#endif
