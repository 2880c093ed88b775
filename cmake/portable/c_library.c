/* The functions that glibc linked into each program until its versions 2.33 and 2.34 moved them into the shared
 * library. cmake/portable/c++ links this file into each library and program. The compiler has such functions of its
 * own, but they bring a second errno, and a library with that takes some of the little room that a process has for
 * variables of this kind (static TLS). */
#include <stddef.h>

struct stat;

/* In libc.so.6 for as long as there has been one for x86-64. */
int __xstat(int version, const char* path, struct stat* status);
int __lxstat(int version, const char* path, struct stat* status);
int __fxstat(int version, int file, struct stat* status);
int __fxstatat(int version, int folder, const char* path, struct stat* status, int flags);
int __cxa_atexit(void (*function)(void*), void* argument, void* library);

enum { LAYOUT_OF_STAT = 1 };

__attribute__((visibility("hidden"))) int stat(const char* path, struct stat* status) {
    return __xstat(LAYOUT_OF_STAT, path, status);
}

__attribute__((visibility("hidden"))) int lstat(const char* path, struct stat* status) {
    return __lxstat(LAYOUT_OF_STAT, path, status);
}

__attribute__((visibility("hidden"))) int fstat(int file, struct stat* status) {
    return __fxstat(LAYOUT_OF_STAT, file, status);
}

__attribute__((visibility("hidden"))) int fstatat(int folder, const char* path, struct stat* status, int flags) {
    return __fxstatat(LAYOUT_OF_STAT, folder, path, status, flags);
}

extern void* __dso_handle __attribute__((visibility("hidden")));

/* The cast is safe: on x86-64 a function may be given an argument that it does not take. */
__attribute__((visibility("hidden"))) int atexit(void (*function)(void)) {
    return __cxa_atexit((void (*)(void*))function, NULL, &__dso_handle);
}

typedef void Constructor(int count, char** arguments, char** environment);
extern Constructor* __init_array_start[] __attribute__((visibility("hidden")));
extern Constructor* __init_array_end[] __attribute__((visibility("hidden")));

/* Both are handed to __libc_start_main by Scrt1.o. Destructors are run by the dynamic linker. */
void __libc_csu_init(int count, char** arguments, char** environment) {
    for (Constructor** next = __init_array_start; next != __init_array_end; ++next) {
        (*next)(count, arguments, environment);
    }
}

void __libc_csu_fini(void) {}
