#ifndef THREAD_H
#define THREAD_H

#include "../JCBase.h"
#include "../JavaInc.h"
#include  <assert.h>

namespace NSThread{

	extern CACHE_JAVA_CLASS(Thread);

	extern CACHE_JAVA_FIELD(Thread, threadLocals);

	extern CACHE_JAVA_FIELD(Thread, inheritableThreadLocals);

	extern CACHE_JAVA_FIELD(Thread, parkBlocker);

	extern CACHE_JAVA_STATIC_FIELD(Thread, MIN_PRIORITY);

	extern CACHE_JAVA_STATIC_FIELD(Thread, NORM_PRIORITY);

	extern CACHE_JAVA_STATIC_FIELD(Thread, MAX_PRIORITY);

	extern CACHE_JAVA_CONSTRUCTOR(Thread, 0);

	extern CACHE_JAVA_CONSTRUCTOR(Thread, 1);

	extern CACHE_JAVA_CONSTRUCTOR(Thread, 2);

	extern CACHE_JAVA_CONSTRUCTOR(Thread, 3);

	extern CACHE_JAVA_CONSTRUCTOR(Thread, 4);

	extern CACHE_JAVA_CONSTRUCTOR(Thread, 5);

	extern CACHE_JAVA_CONSTRUCTOR(Thread, 6);

	extern CACHE_JAVA_CONSTRUCTOR(Thread, 7);

	extern CACHE_JAVA_METHOD(Thread, run, 8);

	extern CACHE_JAVA_METHOD(Thread, toString, 9);

	extern CACHE_JAVA_METHOD(Thread, isInterrupted, 10);

	extern CACHE_JAVA_STATIC_METHOD(Thread, currentThread, 11);

	extern CACHE_JAVA_METHOD(Thread, getName, 12);

	extern CACHE_JAVA_METHOD(Thread, start, 13);

	extern CACHE_JAVA_METHOD(Thread, getThreadGroup, 14);

	extern CACHE_JAVA_METHOD(Thread, getStackTrace, 15);

	extern CACHE_JAVA_STATIC_METHOD(Thread, dumpStack, 16);

	extern CACHE_JAVA_METHOD(Thread, setPriority, 17);

	extern CACHE_JAVA_METHOD(Thread, setDaemon, 18);

	extern CACHE_JAVA_METHOD(Thread, blockedOn, 19);

	extern CACHE_JAVA_STATIC_METHOD(Thread, yield, 20);

	extern CACHE_JAVA_STATIC_METHOD(Thread, sleep, 21);

	extern CACHE_JAVA_STATIC_METHOD(Thread, sleep, 22);

	extern CACHE_JAVA_METHOD(Thread, stop, 23);

	extern CACHE_JAVA_METHOD(Thread, stop, 24);

	extern CACHE_JAVA_METHOD(Thread, interrupt, 25);

	extern CACHE_JAVA_STATIC_METHOD(Thread, interrupted, 26);

	extern CACHE_JAVA_METHOD(Thread, destroy, 27);

	extern CACHE_JAVA_METHOD(Thread, isAlive, 28);

	extern CACHE_JAVA_METHOD(Thread, suspend, 29);

	extern CACHE_JAVA_METHOD(Thread, resume, 30);

	extern CACHE_JAVA_METHOD(Thread, getPriority, 31);

	extern CACHE_JAVA_METHOD(Thread, setName, 32);

	extern CACHE_JAVA_STATIC_METHOD(Thread, activeCount, 33);

	extern CACHE_JAVA_STATIC_METHOD(Thread, enumerate, 34);

	extern CACHE_JAVA_METHOD(Thread, countStackFrames, 35);

	extern CACHE_JAVA_METHOD(Thread, join, 36);

	extern CACHE_JAVA_METHOD(Thread, join, 37);

	extern CACHE_JAVA_METHOD(Thread, join, 38);

	extern CACHE_JAVA_METHOD(Thread, isDaemon, 39);

	extern CACHE_JAVA_METHOD(Thread, checkAccess, 40);

	extern CACHE_JAVA_METHOD(Thread, getContextClassLoader, 41);

	extern CACHE_JAVA_METHOD(Thread, setContextClassLoader, 42);

	extern CACHE_JAVA_STATIC_METHOD(Thread, holdsLock, 43);

	extern CACHE_JAVA_STATIC_METHOD(Thread, getAllStackTraces, 44);

	extern CACHE_JAVA_METHOD(Thread, getId, 45);

	extern CACHE_JAVA_METHOD(Thread, getState, 46);

	extern CACHE_JAVA_STATIC_METHOD(Thread, setDefaultUncaughtExceptionHandler, 47);

	extern CACHE_JAVA_STATIC_METHOD(Thread, getDefaultUncaughtExceptionHandler, 48);

	extern CACHE_JAVA_METHOD(Thread, getUncaughtExceptionHandler, 49);

	extern CACHE_JAVA_METHOD(Thread, setUncaughtExceptionHandler, 50);

	jobject Thread(JNIEnv *env, jobject ThreadGroup0, jobject Runnable1, jobject String2); //0 (Ljava/lang/ThreadGroup;Ljava/lang/Runnable;Ljava/lang/String;)V

	jobject Thread(JNIEnv *env, jobject Runnable0, jobject String1); //1 (Ljava/lang/Runnable;Ljava/lang/String;)V

	jobject ThreadWithThreadGroupString(JNIEnv *env, jobject ThreadGroup0, jobject String1); //2 (Ljava/lang/ThreadGroup;Ljava/lang/String;)V

	jobject Thread(JNIEnv *env, jobject String0); //3 (Ljava/lang/String;)V

	jobject ThreadWithThreadGroupRunnable(JNIEnv *env, jobject ThreadGroup0, jobject Runnable1); //4 (Ljava/lang/ThreadGroup;Ljava/lang/Runnable;)V

	jobject ThreadWithRunnable(JNIEnv *env, jobject Runnable0); //5 (Ljava/lang/Runnable;)V

	jobject Thread(JNIEnv *env); //6 ()V

	jobject Thread(JNIEnv *env, jobject ThreadGroup0, jobject Runnable1, jobject String2, jlong Long3); //7 (Ljava/lang/ThreadGroup;Ljava/lang/Runnable;Ljava/lang/String;J)V

	void run(JNIEnv *env, jobject _this); //8 ()V

	jobject toString(JNIEnv *env, jobject _this); //9 ()Ljava/lang/String;

	jboolean isInterrupted(JNIEnv *env, jobject _this); //10 ()Z

	jobject currentThread(JNIEnv *env); //11 ()Ljava/lang/Thread;

	jobject getName(JNIEnv *env, jobject _this); //12 ()Ljava/lang/String;

	void start(JNIEnv *env, jobject _this); //13 ()V

	jobject getThreadGroup(JNIEnv *env, jobject _this); //14 ()Ljava/lang/ThreadGroup;

	jobject getStackTrace(JNIEnv *env, jobject _this); //15 ()[Ljava/lang/StackTraceElement;

	void dumpStack(JNIEnv *env); //16 ()V

	void setPriority(JNIEnv *env, jobject _this, jint Int0); //17 (I)V

	void setDaemon(JNIEnv *env, jobject _this, jboolean Boolean0); //18 (Z)V

	void blockedOn(JNIEnv *env, jobject _this, jobject Interruptible0); //19 (Lsun/nio/ch/Interruptible;)V

	void yield(JNIEnv *env); //20 ()V

	void sleep(JNIEnv *env, jlong Long0, jint Int1); //21 (JI)V

	void sleep(JNIEnv *env, jlong Long0); //22 (J)V

	void stop(JNIEnv *env, jobject _this, jobject Throwable0); //23 (Ljava/lang/Throwable;)V

	void stop(JNIEnv *env, jobject _this); //24 ()V

	void interrupt(JNIEnv *env, jobject _this); //25 ()V

	jboolean interrupted(JNIEnv *env); //26 ()Z

	void destroy(JNIEnv *env, jobject _this); //27 ()V

	jboolean isAlive(JNIEnv *env, jobject _this); //28 ()Z

	void suspend(JNIEnv *env, jobject _this); //29 ()V

	void resume(JNIEnv *env, jobject _this); //30 ()V

	jint getPriority(JNIEnv *env, jobject _this); //31 ()I

	void setName(JNIEnv *env, jobject _this, jobject String0); //32 (Ljava/lang/String;)V

	jint activeCount(JNIEnv *env); //33 ()I

	jint enumerate(JNIEnv *env, jobjectArray Thread0); //34 ([Ljava/lang/Thread;)I

	jint countStackFrames(JNIEnv *env, jobject _this); //35 ()I

	void join(JNIEnv *env, jobject _this, jlong Long0); //36 (J)V

	void join(JNIEnv *env, jobject _this, jlong Long0, jint Int1); //37 (JI)V

	void join(JNIEnv *env, jobject _this); //38 ()V

	jboolean isDaemon(JNIEnv *env, jobject _this); //39 ()Z

	void checkAccess(JNIEnv *env, jobject _this); //40 ()V

	jobject getContextClassLoader(JNIEnv *env, jobject _this); //41 ()Ljava/lang/ClassLoader;

	void setContextClassLoader(JNIEnv *env, jobject _this, jobject ClassLoader0); //42 (Ljava/lang/ClassLoader;)V

	jboolean holdsLock(JNIEnv *env, jobject Object0); //43 (Ljava/lang/Object;)Z

	jobject getAllStackTraces(JNIEnv *env); //44 ()Ljava/util/Map;

	jlong getId(JNIEnv *env, jobject _this); //45 ()J

	jobject getState(JNIEnv *env, jobject _this); //46 ()Ljava/lang/Thread$State;

	void setDefaultUncaughtExceptionHandler(JNIEnv *env, jobject Thread$UncaughtExceptionHandler0); //47 (Ljava/lang/Thread$UncaughtExceptionHandler;)V

	jobject getDefaultUncaughtExceptionHandler(JNIEnv *env); //48 ()Ljava/lang/Thread$UncaughtExceptionHandler;

	jobject getUncaughtExceptionHandler(JNIEnv *env, jobject _this); //49 ()Ljava/lang/Thread$UncaughtExceptionHandler;

	void setUncaughtExceptionHandler(JNIEnv *env, jobject _this, jobject Thread$UncaughtExceptionHandler0); //50 (Ljava/lang/Thread$UncaughtExceptionHandler;)V

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
}
#endif
