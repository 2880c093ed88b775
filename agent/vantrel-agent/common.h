// The macros that the bodies of the proxies in jc/ are made of: they fill the caches and release them. A failed look-up
// is an assertion, and its report shows the macro's own expression. That is why the expressions inside assert() are
// spelled as they are.
#ifndef COMMON_H
#define COMMON_H

#include "JCBase.h"
#include "assertion.h"

// Init and Destroy have one signature for all proxies, whether they need all of it or not.
#pragma GCC diagnostic ignored "-Wunused-parameter"

// Method IDs are not references, so there is nothing to make global or to delete. Methods go through these functions
// all the same, and constructors do not: all proxies are written so.
inline jmethodID NewGlobalMethodRef(JNIEnv* /*env*/, jmethodID method) {
    return method;
}
inline void DeleteGlobalMethodRef(JNIEnv* /*env*/, jmethodID /*method*/) {}

// Returns the class itself. The global reference that the cache holds is made where the class is looked up.
inline jclass NewGlobalClassRef(JNIEnv* /*env*/, jclass clazz) {
    return clazz;
}
inline void DeleteGlobalClassRef(JNIEnv* /*env*/, jclass /*clazz*/) {}

// clang-format off

// The variable has the same name, _c_Class, in every proxy. `var` only shows the reader which class it is.
#define INIT_CACHE_CLASS(env,var,name)                                                      \
    do {                                                                                    \
        if (_c_Class == NULL) {                                                             \
            _c_Class = static_cast<jclass>((env)->NewGlobalRef((env)->FindClass(name)));    \
        }                                                                                   \
        assert(_c_Class != NULL);                                                           \
    } while (false)

#define INIT_CACHE_CONSTRUCTOR(env,C,signature,N)                                           \
    do {                                                                                    \
        if (JAVA_CONSTRUCTOR(C,N) == NULL) {                                                \
            JAVA_CONSTRUCTOR(C,N) = (env)->GetMethodID(_c_Class, "<init>", signature);      \
        }                                                                                   \
        assert(JAVA_CONSTRUCTOR(C,N));                                                      \
    } while (false)

#define INIT_CACHE_METHOD_BY(lookup,env,C,m,signature,N)                                    \
    do {                                                                                    \
        if (JAVA_METHOD(C,m,N) == NULL) {                                                   \
            JAVA_METHOD(C,m,N) =                                                            \
                NewGlobalMethodRef(env, (env)->lookup(_c_Class, #m, signature));            \
        }                                                                                   \
        assert(JAVA_METHOD(C,m,N) != NULL);                                                 \
    } while (false)
#define INIT_CACHE_METHOD(env,C,m,signature,N)                                              \
    INIT_CACHE_METHOD_BY(GetMethodID,env,C,m,signature,N)
#define INIT_CACHE_STATIC_METHOD(env,C,m,signature,N)                                       \
    INIT_CACHE_METHOD_BY(GetStaticMethodID,env,C,m,signature,N)

// Unlike classes and methods, fields are looked up again by every Init.
#define INIT_CACHE_FIELD_BY(lookup,env,C,f,signature)                                       \
    do {                                                                                    \
        JAVA_FIELD(C,f) = (env)->lookup(_c_Class, #f, signature);                           \
        assert(JAVA_FIELD(C,f));                                                            \
    } while (false)
#define INIT_CACHE_FIELD(env,C,f,signature)                                                 \
    INIT_CACHE_FIELD_BY(GetFieldID,env,C,f,signature)
#define INIT_CACHE_STATIC_FIELD(env,C,f,signature)                                          \
    INIT_CACHE_FIELD_BY(GetStaticFieldID,env,C,f,signature)

#define DELETE_CACHED_CLASS_REF(env,C)      (env)->DeleteGlobalRef(JAVA_CLASS(C))

// Field and method IDs are not references, so nothing is deleted. These only check that Init has filled the cache.
#define DELETE_CACHED_FIELD_REF(env,C,f)    assert(C##_##f != NULL)
#define DELETE_CACHED_METHOD_REF(env,C,m,N) assert(C##_##m##N != NULL)

// clang-format on

#endif
