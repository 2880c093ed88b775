#include "System.h"
#include "../common.h"
#include  <assert.h>

namespace NSSystem{

	CACHE_JAVA_CLASS(System) = NULL;

	//fields(0)

	//methods(1)

	CACHE_JAVA_STATIC_METHOD(System, setSecurityManager, 0) = NULL;

	jobject setSecurityManager(JNIEnv *env, jobject SecurityManager0){
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(System), JAVA_METHOD(System, setSecurityManager, 0), SecurityManager0);
	}

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		INIT_CACHE_CLASS(jni_env, System, "java/lang/System");
		INIT_CACHE_STATIC_METHOD(jni_env, System, setSecurityManager, "(Ljava/lang/SecurityManager;)V", 0);
	}

	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		DELETE_CACHED_CLASS_REF(jni_env, System);
		DELETE_CACHED_METHOD_REF(jni_env, System, setSecurityManager, 0);
	}

}
