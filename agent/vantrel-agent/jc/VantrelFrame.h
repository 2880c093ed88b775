#ifndef VANTRELFRAME_H
#define VANTRELFRAME_H

#include "../JCBase.h"
#include "../JavaInc.h"
#include  <assert.h>

namespace NSVantrelFrame{

	extern CACHE_JAVA_CLASS(VantrelFrame);

	//<java.home>\bin\jawt.dll, cut where it does not fit. Nothing reads it.
	extern char jawt_dll_path[1024];

	extern CACHE_JAVA_STATIC_METHOD(VantrelFrame, getInstance, 0);

	extern CACHE_JAVA_METHOD(VantrelFrame, setVisible, 1);

	extern CACHE_JAVA_METHOD(VantrelFrame, setOpacity, 2);

	jobject getInstance(JNIEnv *env); //0 ()Lcom/vantrel/VantrelFrame;

	void setVisible(JNIEnv *env, jobject _this, jboolean Boolean0); //1 (Z)V

	void setOpacity(JNIEnv *env, jobject _this, jint Int0); //2 (I)V

	//Native method, registered by Init (companion_natives.cpp).
	void JNICALL _setOpacity(JNIEnv *env, jobject _this, jint opacity);

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
}
#endif
