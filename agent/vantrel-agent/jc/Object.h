#ifndef OBJECT_H
#define OBJECT_H

#include "../JCBase.h"
#include "../JavaInc.h"
#include  <assert.h>

namespace NSObject{

	extern CACHE_JAVA_CLASS(Object);

	extern CACHE_JAVA_CONSTRUCTOR(Object, 0);

	extern CACHE_JAVA_METHOD(Object, wait, 1);

	extern CACHE_JAVA_METHOD(Object, wait, 2);

	extern CACHE_JAVA_METHOD(Object, wait, 3);

	extern CACHE_JAVA_METHOD(Object, equals, 4);

	extern CACHE_JAVA_METHOD(Object, toString, 5);

	extern CACHE_JAVA_METHOD(Object, hashCode, 6);

	extern CACHE_JAVA_METHOD(Object, getClass, 7);

	extern CACHE_JAVA_METHOD(Object, notify, 8);

	extern CACHE_JAVA_METHOD(Object, notifyAll, 9);

	jobject Object(JNIEnv *env); //0 ()V

	void wait(JNIEnv *env, jobject _this, jlong Long0); //1 (J)V

	void wait(JNIEnv *env, jobject _this); //2 ()V

	void wait(JNIEnv *env, jobject _this, jlong Long0, jint Int1); //3 (JI)V

	jboolean equals(JNIEnv *env, jobject _this, jobject Object0); //4 (Ljava/lang/Object;)Z

	jobject toString(JNIEnv *env, jobject _this); //5 ()Ljava/lang/String;

	jint hashCode(JNIEnv *env, jobject _this); //6 ()I

	jobject getClass(JNIEnv *env, jobject _this); //7 ()Ljava/lang/Class;

	void notify(JNIEnv *env, jobject _this); //8 ()V

	void notifyAll(JNIEnv *env, jobject _this); //9 ()V

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
}
#endif
