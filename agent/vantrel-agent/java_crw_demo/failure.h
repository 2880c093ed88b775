// How the rewriter fails: by throwing a Failure, which the exported functions catch and tell their callers, each in its
// own form (java_crw_demo.h, vantrel_rewriter.h). Callers of java_crw_demo know the texts, so these stay as they are.
//
// The last two arguments of these functions are the place in the source. Callers leave them to their defaults.
#ifndef JAVA_CRW_DEMO_FAILURE_H
#define JAVA_CRW_DEMO_FAILURE_H

#include <cstddef>

namespace crw {

struct ClassRewriteState;

struct Failure {
    static constexpr size_t kTextSize = 512;  // texts that are longer are cut

    const char* condition = "";       // the text in the source, or the condition that does not hold
    char message[kTextSize] = "";     // the same with what else is known, as java_crw_demo's callers are told
    char class_name[kTextSize] = "";  // empty where it is not known yet
    char method[kTextSize] = "";      // name and descriptor; empty outside a method's code
    int pc = -1;                      // up to which the method's code had been read; -1 outside
    const char* file = "";
    int line = 0;
    bool lacks_room = false;  // the new image has outgrown the room that it was given
};

// Fails with a text of its own: `message`, or else `condition`.
[[noreturn]] void fatal_error(const char* condition, const char* message = nullptr, const char* file = __builtin_FILE(),
                              int line = __builtin_LINE());
[[noreturn]] void fatal_error(const ClassRewriteState& ci, const char* condition, const char* message = nullptr,
                              const char* file = __builtin_FILE(), int line = __builtin_LINE());

// Fails because a condition does not hold. The message names the condition, and the class, the method and the position
// in the method's bytecodes as far as they are known.
[[noreturn]] void assertion_failed(const ClassRewriteState& ci, const char* condition,
                                   const char* file = __builtin_FILE(), int line = __builtin_LINE());

// Fails because the new image has no room left.
[[noreturn]] void output_is_full(const ClassRewriteState& ci, const char* file = __builtin_FILE(),
                                 int line = __builtin_LINE());

inline void require(const ClassRewriteState& ci, bool holds, const char* condition, const char* file = __builtin_FILE(),
                    int line = __builtin_LINE()) {
    if (!holds) [[unlikely]] {
        assertion_failed(ci, condition, file, line);
    }
}

}  // namespace crw

#endif
