#ifndef VANTREL_H
#define VANTREL_H

#include "../JCBase.h"
#include "../JavaInc.h"
#include  <assert.h>

namespace NSVantrel{

	extern CACHE_JAVA_CLASS(Vantrel);

	//Global references from Init to Destroy: the companion's main object, and the java.awt.Color of a highlight.
	extern jobject VantrelInstance;
	extern jobject HighlightColor;

	extern CACHE_JAVA_STATIC_METHOD(Vantrel, showVantrel, 0);

	extern CACHE_JAVA_STATIC_METHOD(Vantrel, getInstance, 0);

	extern CACHE_JAVA_METHOD(Vantrel, selectOnComponentTree, 0);

	void showVantrel(JNIEnv *env, jobject Component0); //0 (Ljava/awt/Component;)V

	jobject getInstance(JNIEnv *env); //0 ()Lcom/vantrel/Vantrel;

	void selectOnComponentTree(JNIEnv *env, jobject _this, jobject Component0); //0 (Ljava/awt/Component;)V

	//Native methods, registered by Init (companion_natives.cpp).
	void JNICALL highlight(JNIEnv *env, jobject _this, jobject component, jobject graphics);
	void JNICALL beep(JNIEnv *env, jclass clazz);
	jint JNICALL getOSVer(JNIEnv *env, jclass clazz);
	jboolean JNICALL canHighlight(JNIEnv *env, jclass clazz);

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
}
#endif
