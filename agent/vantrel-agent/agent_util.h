// Helpers for JVMTI agents: messages, the fatal exit, JVMTI error checks, memory, class and method filters, and a
// jar below the Java home on the boot class path.
//
// All are exported under their plain names. The agent itself calls check_jvmti_error (and through it fatal_error);
// the others are there for agents that link or look them up. They keep no state, may be called from any thread, and
// report every failure the same way: one message on stderr and exit status 3. None returns an error code.
#ifndef VANTREL_AGENT_UTIL_H
#define VANTREL_AGENT_UTIL_H

#include <jvmti.h>

extern "C" {

// Formats to stdout as printf does. Does not flush.
JNIEXPORT void stdout_message(const char* format, ...) __attribute__((format(printf, 1, 2)));

// Formats to stderr as printf does, flushes stderr and ends the process with status 3.
[[noreturn]] JNIEXPORT void fatal_error(const char* format, ...) __attribute__((format(printf, 1, 2)));

// Returns when `error` is JVMTI_ERROR_NONE; otherwise ends the process with "ERROR: JVMTI: CODE(NAME): MESSAGE".
//   jvmti    asked for the error's name (GetErrorName); "Unknown" is printed where it has none
//   message  what was tried; null counts as empty
JNIEXPORT void check_jvmti_error(jvmtiEnv* jvmti, jvmtiError error, const char* message);

// Copies the next token of `str` into `token` and returns the position right after it in `str`. Null, with an empty
// `token`, when there is no token left or when the next one has `maxLength` characters or more: a token that does not
// fit is refused, not cut.
//   str         text to read; null counts as empty
//   separators  the characters that separate tokens
//   token       room for `maxLength` bytes, at least one; zero-terminated on return
JNIEXPORT char* get_token(char* str, char* separators, char* token, int maxLength);

// Whether a comma-separated list of patterns covers a class and method: 1 or 0. A pattern is
//   *name     every method whose name begins with `name`, of any class
//   prefix*   every class whose name begins with `prefix`
//   Class     every class whose name begins with `Class`
//   Class.m   in the class `Class`, the methods that begin with `m`, and those that `m` begins with; the character
//             between class and method may be any
// A pattern of 1024 characters or more ends the list: it and all patterns after it are ignored.
JNIEXPORT int covered_by_list(char* list, char* className, char* methodName);

// Whether a pair of filters (see covered_by_list) lets a method of a class through: 1 unless the exclude list covers
// it, or there is an include list that does not cover it. A null or empty list filters nothing.
JNIEXPORT int interested(char* className, char* methodName, char* includeList, char* excludeList);

// Allocates `len` bytes with JVMTI Allocate. Give them back with deallocate, or to the VM where it takes ownership.
JNIEXPORT void* allocate(jvmtiEnv* jvmti, jint len);

// Gives back what JVMTI allocated.
JNIEXPORT void deallocate(jvmtiEnv* jvmti, void* ptr);

// Puts <java.home>/demo/jvmti/<jarName>/<jarName>.jar on the boot class path, or, where the VM refuses that, the same
// path below <java.home>/.. . Ends the process when both are refused, or when the longer of the two exceeds 1024
// bytes.
//   jarName  the jar's name without folder and ending
JNIEXPORT void add_demo_jar_to_bootclasspath(jvmtiEnv* jvmti, char* jarName);
}

#endif
