// What a Java class proxy is made of. A proxy is a namespace NS<C> for the Java class with the simple name C. It has
// the cached identifiers of the class and of its members, and one wrapper for each constructor and method. All 21
// proxies lie in jc/ and have the same shape. Where a class has a proxy, call its wrappers, and never FindClass or
// Call...Method.
//
//     jobject trace = NSThread::getStackTrace(env, thread);
//
// Wrappers take the calling thread's JNIEnv and, for instance methods, the object; they return what JNI returns. They
// neither look at nor clear a pending exception. Most look their class and method up on the first call (lazy); those
// of NSSystem, NSToolkit, NSAlphaComposite, NSVantrel and NSSwingContext rely on Init (eager). A class or member that
// the VM lacks ends the VM with an assertion that names it.
//
//     Init      looks up the class and all fields, and the methods of an eager proxy. Call it on an attached thread,
//               once; a second call keeps the class reference.
//     Destroy   deletes the class reference. The proxy must not be used any more: its variable keeps the old value.
//
// Wrappers may run on any attached thread. The variables are read and written without a lock: identifiers are the same
// for every thread that looks them up, and two threads that look a class up at once leak one global reference.
//
// Variables are named after Java's members; the macros below spell the names. The name of a constructor or method ends
// with its running index in the class, which tells overloads apart; in an eager proxy this index is always 0. A field
// has no index.
#ifndef JCBASE_H
#define JCBASE_H

#include "JavaInc.h"

// clang-format off

#define JAVA_CLASS(C)           _c_Class
#define JAVA_CONSTRUCTOR(C,N)   Constructor##C##N
#define JAVA_METHOD(C,m,N)      C##_##m##N
#define JAVA_FIELD(C,f)         C##_##f

// With `extern` before it a declaration, with an initialiser after it a definition.
#define CACHE_JAVA_CLASS(C)                 jclass JAVA_CLASS(C)
#define CACHE_JAVA_CONSTRUCTOR(C,N)         jmethodID JAVA_CONSTRUCTOR(C,N)
#define CACHE_JAVA_METHOD(C,m,N)            jmethodID JAVA_METHOD(C,m,N)
#define CACHE_JAVA_STATIC_METHOD(C,m,N)     jmethodID JAVA_METHOD(C,m,N)
#define CACHE_JAVA_FIELD(C,f)               jfieldID JAVA_FIELD(C,f)
#define CACHE_JAVA_STATIC_FIELD(C,f)        jfieldID JAVA_FIELD(C,f)

// clang-format on

#endif
