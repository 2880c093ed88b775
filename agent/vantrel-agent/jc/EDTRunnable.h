#ifndef EDTRUNNABLE_H
#define EDTRUNNABLE_H

#include "../JCBase.h"
#include "../JavaInc.h"
#include  <assert.h>

namespace NSEDTRunnable{

	extern CACHE_JAVA_CLASS(EDTRunnable);

	extern CACHE_JAVA_CONSTRUCTOR(EDTRunnable, 0);

	extern CACHE_JAVA_METHOD(EDTRunnable, run, 1);

	jobject EDTRunnable(JNIEnv *env, jobject Runnable0); //0 (Ljava/lang/Runnable;)V

	void run(JNIEnv *env, jobject _this); //1 ()V

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
}
#endif
