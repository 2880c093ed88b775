#include "Object.h"
#include "../common.h"
#include  <assert.h>

namespace NSObject{

	CACHE_JAVA_CLASS(Object) = NULL;

	//fields(0)

	//methods(10)

	CACHE_JAVA_CONSTRUCTOR(Object, 0) = NULL;

	CACHE_JAVA_METHOD(Object, wait, 1) = NULL;

	CACHE_JAVA_METHOD(Object, wait, 2) = NULL;

	CACHE_JAVA_METHOD(Object, wait, 3) = NULL;

	CACHE_JAVA_METHOD(Object, equals, 4) = NULL;

	CACHE_JAVA_METHOD(Object, toString, 5) = NULL;

	CACHE_JAVA_METHOD(Object, hashCode, 6) = NULL;

	CACHE_JAVA_METHOD(Object, getClass, 7) = NULL;

	CACHE_JAVA_METHOD(Object, notify, 8) = NULL;

	CACHE_JAVA_METHOD(Object, notifyAll, 9) = NULL;

	jobject Object(JNIEnv *env){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Object), "java/lang/Object");
		if (!JAVA_CONSTRUCTOR(Object, 0)){
			INIT_CACHE_CONSTRUCTOR(env, Object, "()V", 0);
		}
		return (jobject)env->NewObject(JAVA_CLASS(Object), JAVA_CONSTRUCTOR(Object, 0));
	}

	void wait(JNIEnv *env, jobject _this, jlong Long0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Object), "java/lang/Object");
		INIT_CACHE_METHOD(env, Object, wait, "(J)V", 1);
		env->CallVoidMethod(_this, JAVA_METHOD(Object, wait, 1), Long0);
	}

	void wait(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Object), "java/lang/Object");
		INIT_CACHE_METHOD(env, Object, wait, "()V", 2);
		env->CallVoidMethod(_this, JAVA_METHOD(Object, wait, 2));
	}

	void wait(JNIEnv *env, jobject _this, jlong Long0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Object), "java/lang/Object");
		INIT_CACHE_METHOD(env, Object, wait, "(JI)V", 3);
		env->CallVoidMethod(_this, JAVA_METHOD(Object, wait, 3), Long0, Int1);
	}

	jboolean equals(JNIEnv *env, jobject _this, jobject Object0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Object), "java/lang/Object");
		INIT_CACHE_METHOD(env, Object, equals, "(Ljava/lang/Object;)Z", 4);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Object, equals, 4), Object0);
	}

	jobject toString(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Object), "java/lang/Object");
		INIT_CACHE_METHOD(env, Object, toString, "()Ljava/lang/String;", 5);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Object, toString, 5));
	}

	jint hashCode(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Object), "java/lang/Object");
		INIT_CACHE_METHOD(env, Object, hashCode, "()I", 6);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Object, hashCode, 6));
	}

	jobject getClass(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Object), "java/lang/Object");
		INIT_CACHE_METHOD(env, Object, getClass, "()Ljava/lang/Class;", 7);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Object, getClass, 7));
	}

	void notify(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Object), "java/lang/Object");
		INIT_CACHE_METHOD(env, Object, notify, "()V", 8);
		env->CallVoidMethod(_this, JAVA_METHOD(Object, notify, 8));
	}

	void notifyAll(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Object), "java/lang/Object");
		INIT_CACHE_METHOD(env, Object, notifyAll, "()V", 9);
		env->CallVoidMethod(_this, JAVA_METHOD(Object, notifyAll, 9));
	}

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		INIT_CACHE_CLASS(jni_env, Object, "java/lang/Object");
	}

	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		DELETE_CACHED_CLASS_REF(jni_env, Object);
	}

}
