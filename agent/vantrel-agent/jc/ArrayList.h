#ifndef ARRAYLIST_H
#define ARRAYLIST_H

#include "../JCBase.h"
#include "../JavaInc.h"
#include  <assert.h>

namespace NSArrayList{

	extern CACHE_JAVA_CLASS(ArrayList);

	extern CACHE_JAVA_CONSTRUCTOR(ArrayList, 0);

	extern CACHE_JAVA_CONSTRUCTOR(ArrayList, 1);

	extern CACHE_JAVA_CONSTRUCTOR(ArrayList, 2);

	extern CACHE_JAVA_METHOD(ArrayList, add, 3);

	extern CACHE_JAVA_METHOD(ArrayList, add, 4);

	extern CACHE_JAVA_METHOD(ArrayList, get, 5);

	extern CACHE_JAVA_METHOD(ArrayList, clone, 6);

	extern CACHE_JAVA_METHOD(ArrayList, indexOf, 7);

	extern CACHE_JAVA_METHOD(ArrayList, clear, 8);

	extern CACHE_JAVA_METHOD(ArrayList, size, 9);

	extern CACHE_JAVA_METHOD(ArrayList, isEmpty, 10);

	extern CACHE_JAVA_METHOD(ArrayList, lastIndexOf, 11);

	extern CACHE_JAVA_METHOD(ArrayList, contains, 12);

	extern CACHE_JAVA_METHOD(ArrayList, addAll, 13);

	extern CACHE_JAVA_METHOD(ArrayList, addAll, 14);

	extern CACHE_JAVA_METHOD(ArrayList, toArray, 15);

	extern CACHE_JAVA_METHOD(ArrayList, toArray, 16);

	extern CACHE_JAVA_METHOD(ArrayList, remove, 17);

	extern CACHE_JAVA_METHOD(ArrayList, remove, 18);

	extern CACHE_JAVA_METHOD(ArrayList, set, 19);

	extern CACHE_JAVA_METHOD(ArrayList, ensureCapacity, 20);

	extern CACHE_JAVA_METHOD(ArrayList, trimToSize, 21);

	jobject ArrayList(JNIEnv *env); //0 ()V

	jobject ArrayList(JNIEnv *env, jobject Collection0); //1 (Ljava/util/Collection;)V

	jobject ArrayList(JNIEnv *env, jint Int0); //2 (I)V

	jboolean add(JNIEnv *env, jobject _this, jobject Object0); //3 (Ljava/lang/Object;)Z

	void add(JNIEnv *env, jobject _this, jint Int0, jobject Object1); //4 (ILjava/lang/Object;)V

	jobject get(JNIEnv *env, jobject _this, jint Int0); //5 (I)Ljava/lang/Object;

	jobject clone(JNIEnv *env, jobject _this); //6 ()Ljava/lang/Object;

	jint indexOf(JNIEnv *env, jobject _this, jobject Object0); //7 (Ljava/lang/Object;)I

	void clear(JNIEnv *env, jobject _this); //8 ()V

	jint size(JNIEnv *env, jobject _this); //9 ()I

	jboolean isEmpty(JNIEnv *env, jobject _this); //10 ()Z

	jint lastIndexOf(JNIEnv *env, jobject _this, jobject Object0); //11 (Ljava/lang/Object;)I

	jboolean contains(JNIEnv *env, jobject _this, jobject Object0); //12 (Ljava/lang/Object;)Z

	jboolean addAll(JNIEnv *env, jobject _this, jobject Collection0); //13 (Ljava/util/Collection;)Z

	jboolean addAll(JNIEnv *env, jobject _this, jint Int0, jobject Collection1); //14 (ILjava/util/Collection;)Z

	jobject toArray(JNIEnv *env, jobject _this); //15 ()[Ljava/lang/Object;

	jobject toArray(JNIEnv *env, jobject _this, jobjectArray Object0); //16 ([Ljava/lang/Object;)[Ljava/lang/Object;

	jboolean remove(JNIEnv *env, jobject _this, jobject Object0); //17 (Ljava/lang/Object;)Z

	jobject remove(JNIEnv *env, jobject _this, jint Int0); //18 (I)Ljava/lang/Object;

	jobject set(JNIEnv *env, jobject _this, jint Int0, jobject Object1); //19 (ILjava/lang/Object;)Ljava/lang/Object;

	void ensureCapacity(JNIEnv *env, jobject _this, jint Int0); //20 (I)V

	void trimToSize(JNIEnv *env, jobject _this); //21 ()V

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
}
#endif
