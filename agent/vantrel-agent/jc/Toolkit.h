#ifndef TOOLKIT_H
#define TOOLKIT_H

#include "../JCBase.h"
#include "../JavaInc.h"
#include  <assert.h>

namespace NSToolkit{

	extern CACHE_JAVA_CLASS(Toolkit);

	extern CACHE_JAVA_STATIC_METHOD(Toolkit, getDefaultToolkit, 0);

	extern CACHE_JAVA_METHOD(Toolkit, addAWTEventListener, 0);

	jobject getDefaultToolkit(JNIEnv *env); //0 ()Ljava/awt/Toolkit;

	jobject addAWTEventListener(JNIEnv *env, jobject _this, jobject AWTEventListener0, jlong Long1); //0 (Ljava/awt/event/AWTEventListener;J)V

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
}
#endif
