#include "AlphaComposite.h"
#include "../common.h"
#include  <assert.h>

namespace NSAlphaComposite{

	CACHE_JAVA_CLASS(AlphaComposite) = NULL;

	//fields(0)

	//methods(1)

	CACHE_JAVA_STATIC_METHOD(AlphaComposite, getInstance, 0) = NULL;

	jobject getInstance(JNIEnv *env, jint Int0, jfloat Float1){
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(AlphaComposite), JAVA_METHOD(AlphaComposite, getInstance, 0), Int0, Float1);
	}

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		INIT_CACHE_CLASS(jni_env, AlphaComposite, "java/awt/AlphaComposite");
		INIT_CACHE_STATIC_METHOD(jni_env, AlphaComposite, getInstance, "(IF)Ljava/awt/AlphaComposite;", 0);
	}

	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		DELETE_CACHED_CLASS_REF(jni_env, AlphaComposite);
		DELETE_CACHED_METHOD_REF(jni_env, AlphaComposite, getInstance, 0);
	}

}
