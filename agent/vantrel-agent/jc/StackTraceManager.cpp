#include "StackTraceManager.h"
#include "../common.h"
#include  <assert.h>

namespace NSStackTraceManager{

	CACHE_JAVA_CLASS(StackTraceManager) = NULL;

	bool vantrelAddStackTrace = false;

	//fields(0)

	//methods(4)

	CACHE_JAVA_CONSTRUCTOR(StackTraceManager, 0) = NULL;

	CACHE_JAVA_STATIC_METHOD(StackTraceManager, getStackTrace, 1) = NULL;

	CACHE_JAVA_STATIC_METHOD(StackTraceManager, addStackTrace, 2) = NULL;

	CACHE_JAVA_STATIC_METHOD(StackTraceManager, removeStackTrace, 3) = NULL;

	jobject StackTraceManager(JNIEnv *env){
		INIT_CACHE_CLASS(env, JAVA_CLASS(StackTraceManager), "com/vantrel/stacktrace/StackTraceManager");
		if (!JAVA_CONSTRUCTOR(StackTraceManager, 0)){
			INIT_CACHE_CONSTRUCTOR(env, StackTraceManager, "()V", 0);
		}
		return (jobject)env->NewObject(JAVA_CLASS(StackTraceManager), JAVA_CONSTRUCTOR(StackTraceManager, 0));
	}

	jobject getStackTrace(JNIEnv *env, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(StackTraceManager), "com/vantrel/stacktrace/StackTraceManager");
		INIT_CACHE_STATIC_METHOD(env, StackTraceManager, getStackTrace, "(Ljava/awt/Component;)[Ljava/lang/StackTraceElement;", 1);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(StackTraceManager), JAVA_METHOD(StackTraceManager, getStackTrace, 1), Component0);
	}

	void addStackTrace(JNIEnv *env, jobject Component0, jobjectArray StackTraceElement1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(StackTraceManager), "com/vantrel/stacktrace/StackTraceManager");
		INIT_CACHE_STATIC_METHOD(env, StackTraceManager, addStackTrace, "(Ljava/awt/Component;[Ljava/lang/StackTraceElement;)V", 2);
		env->CallStaticVoidMethod(JAVA_CLASS(StackTraceManager), JAVA_METHOD(StackTraceManager, addStackTrace, 2), Component0, StackTraceElement1);
	}

	void removeStackTrace(JNIEnv *env, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(StackTraceManager), "com/vantrel/stacktrace/StackTraceManager");
		INIT_CACHE_STATIC_METHOD(env, StackTraceManager, removeStackTrace, "(Ljava/awt/Component;)V", 3);
		env->CallStaticVoidMethod(JAVA_CLASS(StackTraceManager), JAVA_METHOD(StackTraceManager, removeStackTrace, 3), Component0);
	}

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		if (JAVA_CLASS(StackTraceManager)){
			return;
		}
		INIT_CACHE_CLASS(jni_env, StackTraceManager, "com/vantrel/stacktrace/StackTraceManager");
	}

	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		DELETE_CACHED_CLASS_REF(jni_env, StackTraceManager);
	}

}
