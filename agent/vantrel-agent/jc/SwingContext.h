#ifndef SWINGCONTEXT_H
#define SWINGCONTEXT_H

#include "../JCBase.h"
#include "../JavaInc.h"
#include  <assert.h>

namespace NSSwingContext{

	extern CACHE_JAVA_CLASS(SwingContext);

	extern CACHE_JAVA_STATIC_METHOD(SwingContext, safeRun1, 0);

	//Native method, registered by Init (companion_natives.cpp). Nothing calls it through a wrapper.
	void JNICALL _safeRun1(JNIEnv *env, jobject _this, jobject component, jobject runnable);

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
}
#endif
