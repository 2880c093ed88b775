#ifndef SYSTEM_H
#define SYSTEM_H

#include "../JCBase.h"
#include "../JavaInc.h"
#include  <assert.h>

namespace NSSystem{

	extern CACHE_JAVA_CLASS(System);

	extern CACHE_JAVA_STATIC_METHOD(System, setSecurityManager, 0);

	jobject setSecurityManager(JNIEnv *env, jobject SecurityManager0); //0 (Ljava/lang/SecurityManager;)V

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
}
#endif
