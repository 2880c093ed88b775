#include "Thread.h"
#include "../common.h"
#include  <assert.h>

namespace NSThread{

	CACHE_JAVA_CLASS(Thread) = NULL;

	//fields(6)

	CACHE_JAVA_FIELD(Thread, threadLocals) = NULL;

	CACHE_JAVA_FIELD(Thread, inheritableThreadLocals) = NULL;

	CACHE_JAVA_FIELD(Thread, parkBlocker) = NULL;

	CACHE_JAVA_STATIC_FIELD(Thread, MIN_PRIORITY) = NULL;

	CACHE_JAVA_STATIC_FIELD(Thread, NORM_PRIORITY) = NULL;

	CACHE_JAVA_STATIC_FIELD(Thread, MAX_PRIORITY) = NULL;

	//methods(51)

	CACHE_JAVA_CONSTRUCTOR(Thread, 0) = NULL;

	CACHE_JAVA_CONSTRUCTOR(Thread, 1) = NULL;

	CACHE_JAVA_CONSTRUCTOR(Thread, 2) = NULL;

	CACHE_JAVA_CONSTRUCTOR(Thread, 3) = NULL;

	CACHE_JAVA_CONSTRUCTOR(Thread, 4) = NULL;

	CACHE_JAVA_CONSTRUCTOR(Thread, 5) = NULL;

	CACHE_JAVA_CONSTRUCTOR(Thread, 6) = NULL;

	CACHE_JAVA_CONSTRUCTOR(Thread, 7) = NULL;

	CACHE_JAVA_METHOD(Thread, run, 8) = NULL;

	CACHE_JAVA_METHOD(Thread, toString, 9) = NULL;

	CACHE_JAVA_METHOD(Thread, isInterrupted, 10) = NULL;

	CACHE_JAVA_STATIC_METHOD(Thread, currentThread, 11) = NULL;

	CACHE_JAVA_METHOD(Thread, getName, 12) = NULL;

	CACHE_JAVA_METHOD(Thread, start, 13) = NULL;

	CACHE_JAVA_METHOD(Thread, getThreadGroup, 14) = NULL;

	CACHE_JAVA_METHOD(Thread, getStackTrace, 15) = NULL;

	CACHE_JAVA_STATIC_METHOD(Thread, dumpStack, 16) = NULL;

	CACHE_JAVA_METHOD(Thread, setPriority, 17) = NULL;

	CACHE_JAVA_METHOD(Thread, setDaemon, 18) = NULL;

	CACHE_JAVA_METHOD(Thread, blockedOn, 19) = NULL;

	CACHE_JAVA_STATIC_METHOD(Thread, yield, 20) = NULL;

	CACHE_JAVA_STATIC_METHOD(Thread, sleep, 21) = NULL;

	CACHE_JAVA_STATIC_METHOD(Thread, sleep, 22) = NULL;

	CACHE_JAVA_METHOD(Thread, stop, 23) = NULL;

	CACHE_JAVA_METHOD(Thread, stop, 24) = NULL;

	CACHE_JAVA_METHOD(Thread, interrupt, 25) = NULL;

	CACHE_JAVA_STATIC_METHOD(Thread, interrupted, 26) = NULL;

	CACHE_JAVA_METHOD(Thread, destroy, 27) = NULL;

	CACHE_JAVA_METHOD(Thread, isAlive, 28) = NULL;

	CACHE_JAVA_METHOD(Thread, suspend, 29) = NULL;

	CACHE_JAVA_METHOD(Thread, resume, 30) = NULL;

	CACHE_JAVA_METHOD(Thread, getPriority, 31) = NULL;

	CACHE_JAVA_METHOD(Thread, setName, 32) = NULL;

	CACHE_JAVA_STATIC_METHOD(Thread, activeCount, 33) = NULL;

	CACHE_JAVA_STATIC_METHOD(Thread, enumerate, 34) = NULL;

	CACHE_JAVA_METHOD(Thread, countStackFrames, 35) = NULL;

	CACHE_JAVA_METHOD(Thread, join, 36) = NULL;

	CACHE_JAVA_METHOD(Thread, join, 37) = NULL;

	CACHE_JAVA_METHOD(Thread, join, 38) = NULL;

	CACHE_JAVA_METHOD(Thread, isDaemon, 39) = NULL;

	CACHE_JAVA_METHOD(Thread, checkAccess, 40) = NULL;

	CACHE_JAVA_METHOD(Thread, getContextClassLoader, 41) = NULL;

	CACHE_JAVA_METHOD(Thread, setContextClassLoader, 42) = NULL;

	CACHE_JAVA_STATIC_METHOD(Thread, holdsLock, 43) = NULL;

	CACHE_JAVA_STATIC_METHOD(Thread, getAllStackTraces, 44) = NULL;

	CACHE_JAVA_METHOD(Thread, getId, 45) = NULL;

	CACHE_JAVA_METHOD(Thread, getState, 46) = NULL;

	CACHE_JAVA_STATIC_METHOD(Thread, setDefaultUncaughtExceptionHandler, 47) = NULL;

	CACHE_JAVA_STATIC_METHOD(Thread, getDefaultUncaughtExceptionHandler, 48) = NULL;

	CACHE_JAVA_METHOD(Thread, getUncaughtExceptionHandler, 49) = NULL;

	CACHE_JAVA_METHOD(Thread, setUncaughtExceptionHandler, 50) = NULL;

	jobject Thread(JNIEnv *env, jobject ThreadGroup0, jobject Runnable1, jobject String2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		if (!JAVA_CONSTRUCTOR(Thread, 0)){
			INIT_CACHE_CONSTRUCTOR(env, Thread, "(Ljava/lang/ThreadGroup;Ljava/lang/Runnable;Ljava/lang/String;)V", 0);
		}
		return (jobject)env->NewObject(JAVA_CLASS(Thread), JAVA_CONSTRUCTOR(Thread, 0), ThreadGroup0, Runnable1, String2);
	}

	jobject Thread(JNIEnv *env, jobject Runnable0, jobject String1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		if (!JAVA_CONSTRUCTOR(Thread, 1)){
			INIT_CACHE_CONSTRUCTOR(env, Thread, "(Ljava/lang/Runnable;Ljava/lang/String;)V", 1);
		}
		return (jobject)env->NewObject(JAVA_CLASS(Thread), JAVA_CONSTRUCTOR(Thread, 1), Runnable0, String1);
	}

	jobject ThreadWithThreadGroupString(JNIEnv *env, jobject ThreadGroup0, jobject String1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		if (!JAVA_CONSTRUCTOR(Thread, 2)){
			INIT_CACHE_CONSTRUCTOR(env, Thread, "(Ljava/lang/ThreadGroup;Ljava/lang/String;)V", 2);
		}
		return (jobject)env->NewObject(JAVA_CLASS(Thread), JAVA_CONSTRUCTOR(Thread, 2), ThreadGroup0, String1);
	}

	jobject Thread(JNIEnv *env, jobject String0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		if (!JAVA_CONSTRUCTOR(Thread, 3)){
			INIT_CACHE_CONSTRUCTOR(env, Thread, "(Ljava/lang/String;)V", 3);
		}
		return (jobject)env->NewObject(JAVA_CLASS(Thread), JAVA_CONSTRUCTOR(Thread, 3), String0);
	}

	jobject ThreadWithThreadGroupRunnable(JNIEnv *env, jobject ThreadGroup0, jobject Runnable1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		if (!JAVA_CONSTRUCTOR(Thread, 4)){
			INIT_CACHE_CONSTRUCTOR(env, Thread, "(Ljava/lang/ThreadGroup;Ljava/lang/Runnable;)V", 4);
		}
		return (jobject)env->NewObject(JAVA_CLASS(Thread), JAVA_CONSTRUCTOR(Thread, 4), ThreadGroup0, Runnable1);
	}

	jobject ThreadWithRunnable(JNIEnv *env, jobject Runnable0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		if (!JAVA_CONSTRUCTOR(Thread, 5)){
			INIT_CACHE_CONSTRUCTOR(env, Thread, "(Ljava/lang/Runnable;)V", 5);
		}
		return (jobject)env->NewObject(JAVA_CLASS(Thread), JAVA_CONSTRUCTOR(Thread, 5), Runnable0);
	}

	jobject Thread(JNIEnv *env){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		if (!JAVA_CONSTRUCTOR(Thread, 6)){
			INIT_CACHE_CONSTRUCTOR(env, Thread, "()V", 6);
		}
		return (jobject)env->NewObject(JAVA_CLASS(Thread), JAVA_CONSTRUCTOR(Thread, 6));
	}

	jobject Thread(JNIEnv *env, jobject ThreadGroup0, jobject Runnable1, jobject String2, jlong Long3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		if (!JAVA_CONSTRUCTOR(Thread, 7)){
			INIT_CACHE_CONSTRUCTOR(env, Thread, "(Ljava/lang/ThreadGroup;Ljava/lang/Runnable;Ljava/lang/String;J)V", 7);
		}
		return (jobject)env->NewObject(JAVA_CLASS(Thread), JAVA_CONSTRUCTOR(Thread, 7), ThreadGroup0, Runnable1, String2, Long3);
	}

	void run(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, run, "()V", 8);
		env->CallVoidMethod(_this, JAVA_METHOD(Thread, run, 8));
	}

	jobject toString(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, toString, "()Ljava/lang/String;", 9);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Thread, toString, 9));
	}

	jboolean isInterrupted(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, isInterrupted, "()Z", 10);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Thread, isInterrupted, 10));
	}

	jobject currentThread(JNIEnv *env){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_STATIC_METHOD(env, Thread, currentThread, "()Ljava/lang/Thread;", 11);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(Thread), JAVA_METHOD(Thread, currentThread, 11));
	}

	jobject getName(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, getName, "()Ljava/lang/String;", 12);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Thread, getName, 12));
	}

	void start(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, start, "()V", 13);
		env->CallVoidMethod(_this, JAVA_METHOD(Thread, start, 13));
	}

	jobject getThreadGroup(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, getThreadGroup, "()Ljava/lang/ThreadGroup;", 14);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Thread, getThreadGroup, 14));
	}

	jobject getStackTrace(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, getStackTrace, "()[Ljava/lang/StackTraceElement;", 15);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Thread, getStackTrace, 15));
	}

	void dumpStack(JNIEnv *env){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_STATIC_METHOD(env, Thread, dumpStack, "()V", 16);
		env->CallStaticVoidMethod(JAVA_CLASS(Thread), JAVA_METHOD(Thread, dumpStack, 16));
	}

	void setPriority(JNIEnv *env, jobject _this, jint Int0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, setPriority, "(I)V", 17);
		env->CallVoidMethod(_this, JAVA_METHOD(Thread, setPriority, 17), Int0);
	}

	void setDaemon(JNIEnv *env, jobject _this, jboolean Boolean0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, setDaemon, "(Z)V", 18);
		env->CallVoidMethod(_this, JAVA_METHOD(Thread, setDaemon, 18), Boolean0);
	}

	void blockedOn(JNIEnv *env, jobject _this, jobject Interruptible0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, blockedOn, "(Lsun/nio/ch/Interruptible;)V", 19);
		env->CallVoidMethod(_this, JAVA_METHOD(Thread, blockedOn, 19), Interruptible0);
	}

	void yield(JNIEnv *env){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_STATIC_METHOD(env, Thread, yield, "()V", 20);
		env->CallStaticVoidMethod(JAVA_CLASS(Thread), JAVA_METHOD(Thread, yield, 20));
	}

	void sleep(JNIEnv *env, jlong Long0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_STATIC_METHOD(env, Thread, sleep, "(JI)V", 21);
		env->CallStaticVoidMethod(JAVA_CLASS(Thread), JAVA_METHOD(Thread, sleep, 21), Long0, Int1);
	}

	void sleep(JNIEnv *env, jlong Long0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_STATIC_METHOD(env, Thread, sleep, "(J)V", 22);
		env->CallStaticVoidMethod(JAVA_CLASS(Thread), JAVA_METHOD(Thread, sleep, 22), Long0);
	}

	void stop(JNIEnv *env, jobject _this, jobject Throwable0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, stop, "(Ljava/lang/Throwable;)V", 23);
		env->CallVoidMethod(_this, JAVA_METHOD(Thread, stop, 23), Throwable0);
	}

	void stop(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, stop, "()V", 24);
		env->CallVoidMethod(_this, JAVA_METHOD(Thread, stop, 24));
	}

	void interrupt(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, interrupt, "()V", 25);
		env->CallVoidMethod(_this, JAVA_METHOD(Thread, interrupt, 25));
	}

	jboolean interrupted(JNIEnv *env){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_STATIC_METHOD(env, Thread, interrupted, "()Z", 26);
		return (jboolean)env->CallStaticBooleanMethod(JAVA_CLASS(Thread), JAVA_METHOD(Thread, interrupted, 26));
	}

	void destroy(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, destroy, "()V", 27);
		env->CallVoidMethod(_this, JAVA_METHOD(Thread, destroy, 27));
	}

	jboolean isAlive(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, isAlive, "()Z", 28);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Thread, isAlive, 28));
	}

	void suspend(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, suspend, "()V", 29);
		env->CallVoidMethod(_this, JAVA_METHOD(Thread, suspend, 29));
	}

	void resume(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, resume, "()V", 30);
		env->CallVoidMethod(_this, JAVA_METHOD(Thread, resume, 30));
	}

	jint getPriority(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, getPriority, "()I", 31);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Thread, getPriority, 31));
	}

	void setName(JNIEnv *env, jobject _this, jobject String0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, setName, "(Ljava/lang/String;)V", 32);
		env->CallVoidMethod(_this, JAVA_METHOD(Thread, setName, 32), String0);
	}

	jint activeCount(JNIEnv *env){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_STATIC_METHOD(env, Thread, activeCount, "()I", 33);
		return (jint)env->CallStaticIntMethod(JAVA_CLASS(Thread), JAVA_METHOD(Thread, activeCount, 33));
	}

	jint enumerate(JNIEnv *env, jobjectArray Thread0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_STATIC_METHOD(env, Thread, enumerate, "([Ljava/lang/Thread;)I", 34);
		return (jint)env->CallStaticIntMethod(JAVA_CLASS(Thread), JAVA_METHOD(Thread, enumerate, 34), Thread0);
	}

	jint countStackFrames(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, countStackFrames, "()I", 35);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Thread, countStackFrames, 35));
	}

	void join(JNIEnv *env, jobject _this, jlong Long0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, join, "(J)V", 36);
		env->CallVoidMethod(_this, JAVA_METHOD(Thread, join, 36), Long0);
	}

	void join(JNIEnv *env, jobject _this, jlong Long0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, join, "(JI)V", 37);
		env->CallVoidMethod(_this, JAVA_METHOD(Thread, join, 37), Long0, Int1);
	}

	void join(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, join, "()V", 38);
		env->CallVoidMethod(_this, JAVA_METHOD(Thread, join, 38));
	}

	jboolean isDaemon(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, isDaemon, "()Z", 39);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Thread, isDaemon, 39));
	}

	void checkAccess(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, checkAccess, "()V", 40);
		env->CallVoidMethod(_this, JAVA_METHOD(Thread, checkAccess, 40));
	}

	jobject getContextClassLoader(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, getContextClassLoader, "()Ljava/lang/ClassLoader;", 41);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Thread, getContextClassLoader, 41));
	}

	void setContextClassLoader(JNIEnv *env, jobject _this, jobject ClassLoader0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, setContextClassLoader, "(Ljava/lang/ClassLoader;)V", 42);
		env->CallVoidMethod(_this, JAVA_METHOD(Thread, setContextClassLoader, 42), ClassLoader0);
	}

	jboolean holdsLock(JNIEnv *env, jobject Object0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_STATIC_METHOD(env, Thread, holdsLock, "(Ljava/lang/Object;)Z", 43);
		return (jboolean)env->CallStaticBooleanMethod(JAVA_CLASS(Thread), JAVA_METHOD(Thread, holdsLock, 43), Object0);
	}

	jobject getAllStackTraces(JNIEnv *env){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_STATIC_METHOD(env, Thread, getAllStackTraces, "()Ljava/util/Map;", 44);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(Thread), JAVA_METHOD(Thread, getAllStackTraces, 44));
	}

	jlong getId(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, getId, "()J", 45);
		return (jlong)env->CallLongMethod(_this, JAVA_METHOD(Thread, getId, 45));
	}

	jobject getState(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, getState, "()Ljava/lang/Thread$State;", 46);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Thread, getState, 46));
	}

	void setDefaultUncaughtExceptionHandler(JNIEnv *env, jobject Thread$UncaughtExceptionHandler0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_STATIC_METHOD(env, Thread, setDefaultUncaughtExceptionHandler, "(Ljava/lang/Thread$UncaughtExceptionHandler;)V", 47);
		env->CallStaticVoidMethod(JAVA_CLASS(Thread), JAVA_METHOD(Thread, setDefaultUncaughtExceptionHandler, 47), Thread$UncaughtExceptionHandler0);
	}

	jobject getDefaultUncaughtExceptionHandler(JNIEnv *env){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_STATIC_METHOD(env, Thread, getDefaultUncaughtExceptionHandler, "()Ljava/lang/Thread$UncaughtExceptionHandler;", 48);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(Thread), JAVA_METHOD(Thread, getDefaultUncaughtExceptionHandler, 48));
	}

	jobject getUncaughtExceptionHandler(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, getUncaughtExceptionHandler, "()Ljava/lang/Thread$UncaughtExceptionHandler;", 49);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Thread, getUncaughtExceptionHandler, 49));
	}

	void setUncaughtExceptionHandler(JNIEnv *env, jobject _this, jobject Thread$UncaughtExceptionHandler0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Thread), "java/lang/Thread");
		INIT_CACHE_METHOD(env, Thread, setUncaughtExceptionHandler, "(Ljava/lang/Thread$UncaughtExceptionHandler;)V", 50);
		env->CallVoidMethod(_this, JAVA_METHOD(Thread, setUncaughtExceptionHandler, 50), Thread$UncaughtExceptionHandler0);
	}

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		INIT_CACHE_CLASS(jni_env, Thread, "java/lang/Thread");
		INIT_CACHE_FIELD(jni_env, Thread, threadLocals, "Ljava/lang/ThreadLocal$ThreadLocalMap;");
		INIT_CACHE_FIELD(jni_env, Thread, inheritableThreadLocals, "Ljava/lang/ThreadLocal$ThreadLocalMap;");
		INIT_CACHE_FIELD(jni_env, Thread, parkBlocker, "Ljava/lang/Object;");
		INIT_CACHE_STATIC_FIELD(jni_env, Thread, MIN_PRIORITY, "I");
		INIT_CACHE_STATIC_FIELD(jni_env, Thread, NORM_PRIORITY, "I");
		INIT_CACHE_STATIC_FIELD(jni_env, Thread, MAX_PRIORITY, "I");
	}

	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		DELETE_CACHED_CLASS_REF(jni_env, Thread);
		DELETE_CACHED_FIELD_REF(jni_env, Thread, threadLocals);
		DELETE_CACHED_FIELD_REF(jni_env, Thread, inheritableThreadLocals);
		DELETE_CACHED_FIELD_REF(jni_env, Thread, parkBlocker);
		DELETE_CACHED_FIELD_REF(jni_env, Thread, MIN_PRIORITY);
		DELETE_CACHED_FIELD_REF(jni_env, Thread, NORM_PRIORITY);
		DELETE_CACHED_FIELD_REF(jni_env, Thread, MAX_PRIORITY);
	}

}
