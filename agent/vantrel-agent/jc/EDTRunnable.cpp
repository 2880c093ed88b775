#include "EDTRunnable.h"
#include "../common.h"
#include  <assert.h>

namespace NSEDTRunnable{

	CACHE_JAVA_CLASS(EDTRunnable) = NULL;

	//fields(0)

	//methods(2)

	CACHE_JAVA_CONSTRUCTOR(EDTRunnable, 0) = NULL;

	CACHE_JAVA_METHOD(EDTRunnable, run, 1) = NULL;

	jobject EDTRunnable(JNIEnv *env, jobject Runnable0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(EDTRunnable), "com/vantrel/EDTRunnable");
		if (!JAVA_CONSTRUCTOR(EDTRunnable, 0)){
			INIT_CACHE_CONSTRUCTOR(env, EDTRunnable, "(Ljava/lang/Runnable;)V", 0);
		}
		return (jobject)env->NewObject(JAVA_CLASS(EDTRunnable), JAVA_CONSTRUCTOR(EDTRunnable, 0), Runnable0);
	}

	void run(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(EDTRunnable), "com/vantrel/EDTRunnable");
		INIT_CACHE_METHOD(env, EDTRunnable, run, "()V", 1);
		env->CallVoidMethod(_this, JAVA_METHOD(EDTRunnable, run, 1));
	}

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		if (JAVA_CLASS(EDTRunnable)){
			return;
		}
		INIT_CACHE_CLASS(jni_env, EDTRunnable, "com/vantrel/EDTRunnable");
	}

	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		DELETE_CACHED_CLASS_REF(jni_env, EDTRunnable);
	}

}
