#ifndef EVENTOBJECT_H
#define EVENTOBJECT_H

#include "../JCBase.h"
#include "../JavaInc.h"
#include  <assert.h>

namespace NSEventObject{

	extern CACHE_JAVA_CLASS(EventObject);

	extern CACHE_JAVA_CONSTRUCTOR(EventObject, 0);

	extern CACHE_JAVA_METHOD(EventObject, toString, 1);

	extern CACHE_JAVA_METHOD(EventObject, getSource, 2);

	jobject EventObject(JNIEnv *env, jobject Object0); //0 (Ljava/lang/Object;)V

	jobject toString(JNIEnv *env, jobject _this); //1 ()Ljava/lang/String;

	jobject getSource(JNIEnv *env, jobject _this); //2 ()Ljava/lang/Object;

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
}
#endif
