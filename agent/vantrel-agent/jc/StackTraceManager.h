#ifndef STACKTRACEMANAGER_H
#define STACKTRACEMANAGER_H

#include "../JCBase.h"
#include "../JavaInc.h"
#include  <assert.h>

namespace NSStackTraceManager{

	extern CACHE_JAVA_CLASS(StackTraceManager);

	//Whether added components are tracked. Set by Agent_OnLoad once it has asked for its capabilities; set back where
	//they are refused.
	extern bool vantrelAddStackTrace;

	extern CACHE_JAVA_CONSTRUCTOR(StackTraceManager, 0);

	extern CACHE_JAVA_STATIC_METHOD(StackTraceManager, getStackTrace, 1);

	extern CACHE_JAVA_STATIC_METHOD(StackTraceManager, addStackTrace, 2);

	extern CACHE_JAVA_STATIC_METHOD(StackTraceManager, removeStackTrace, 3);

	jobject StackTraceManager(JNIEnv *env); //0 ()V

	jobject getStackTrace(JNIEnv *env, jobject Component0); //1 (Ljava/awt/Component;)[Ljava/lang/StackTraceElement;

	void addStackTrace(JNIEnv *env, jobject Component0, jobjectArray StackTraceElement1); //2 (Ljava/awt/Component;[Ljava/lang/StackTraceElement;)V

	void removeStackTrace(JNIEnv *env, jobject Component0); //3 (Ljava/awt/Component;)V

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
}
#endif
