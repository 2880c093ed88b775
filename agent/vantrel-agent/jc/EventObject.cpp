#include "EventObject.h"
#include "../common.h"
#include  <assert.h>

namespace NSEventObject{

	CACHE_JAVA_CLASS(EventObject) = NULL;

	//fields(0)

	//methods(3)

	CACHE_JAVA_CONSTRUCTOR(EventObject, 0) = NULL;

	CACHE_JAVA_METHOD(EventObject, toString, 1) = NULL;

	CACHE_JAVA_METHOD(EventObject, getSource, 2) = NULL;

	jobject EventObject(JNIEnv *env, jobject Object0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(EventObject), "java/util/EventObject");
		if (!JAVA_CONSTRUCTOR(EventObject, 0)){
			INIT_CACHE_CONSTRUCTOR(env, EventObject, "(Ljava/lang/Object;)V", 0);
		}
		return (jobject)env->NewObject(JAVA_CLASS(EventObject), JAVA_CONSTRUCTOR(EventObject, 0), Object0);
	}

	jobject toString(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(EventObject), "java/util/EventObject");
		INIT_CACHE_METHOD(env, EventObject, toString, "()Ljava/lang/String;", 1);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(EventObject, toString, 1));
	}

	jobject getSource(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(EventObject), "java/util/EventObject");
		INIT_CACHE_METHOD(env, EventObject, getSource, "()Ljava/lang/Object;", 2);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(EventObject, getSource, 2));
	}

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		INIT_CACHE_CLASS(jni_env, EventObject, "java/util/EventObject");
	}

	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		DELETE_CACHED_CLASS_REF(jni_env, EventObject);
	}

}
