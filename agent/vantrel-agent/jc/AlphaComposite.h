#ifndef ALPHACOMPOSITE_H
#define ALPHACOMPOSITE_H

#include "../JCBase.h"
#include "../JavaInc.h"
#include  <assert.h>

namespace NSAlphaComposite{

	extern CACHE_JAVA_CLASS(AlphaComposite);

	//java.awt.AlphaComposite.SRC_ATOP
	static const jint SRC_ATOP = 10;

	extern CACHE_JAVA_STATIC_METHOD(AlphaComposite, getInstance, 0);

	jobject getInstance(JNIEnv *env, jint Int0, jfloat Float1); //0 (IF)Ljava/awt/AlphaComposite;

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
}
#endif
