// How the proxies in jc/ fill and release their caches: the macros that their bodies are written in. A failed look-up
// is an assertion whose text is the macro's own expression, which is why the spelling inside assert() is what it is.
#ifndef COMMON_H
#define COMMON_H

#include "JCBase.h"
#include "assertion.h"

// Init and Destroy have one signature for all proxies, whether they need all of it or not.
#pragma GCC diagnostic ignored "-Wunused-parameter"

// Method IDs are not references, so there is nothing to make global or to delete. Every method that a proxy looks up
// goes through NewGlobalMethodRef all the same; constructors do not.
inline jmethodID NewGlobalMethodRef(JNIEnv* /*env*/, jmethodID method) {
    return method;
}
inline void DeleteGlobalMethodRef(JNIEnv* /*env*/, jmethodID /*method*/) {}

// The class as it is: the cache's own global reference is made where the class is looked up.
inline jclass NewGlobalClassRef(JNIEnv* /*env*/, jclass clazz) {
    return clazz;
}
inline void DeleteGlobalClassRef(JNIEnv* /*env*/, jclass /*clazz*/) {}

// clang-format off

// `var` says which class to the reader; the variable has the same name in every proxy.
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

// Fields are looked up by every Init, filled or not.
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

// Identifiers are not references: these only make sure that Init has been here.
#define DELETE_CACHED_FIELD_REF(env,C,f)    assert(C##_##f != NULL)
#define DELETE_CACHED_METHOD_REF(env,C,m,N) assert(C##_##m##N != NULL)

// clang-format on

#endif
