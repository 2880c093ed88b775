#include "SwingContext.h"
#include "../common.h"
#include  <assert.h>

namespace NSSwingContext{

	CACHE_JAVA_CLASS(SwingContext) = NULL;

	//fields(0)

	//methods(1)

	CACHE_JAVA_STATIC_METHOD(SwingContext, safeRun1, 0) = NULL;

	static const JNINativeMethod natives[] = {
		{const_cast<char *>("safeRun1"), const_cast<char *>("(Ljava/awt/Component;Ljava/lang/Runnable;)V"), reinterpret_cast<void *>(_safeRun1)},
	};

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		INIT_CACHE_CLASS(jni_env, SwingContext, "com/vantrel/SwingContext");
		jni_env->RegisterNatives(JAVA_CLASS(SwingContext), natives, 1);
		INIT_CACHE_STATIC_METHOD(jni_env, SwingContext, safeRun1, "(Ljava/awt/Component;Ljava/lang/Runnable;)V", 0);
	}

	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		DELETE_CACHED_CLASS_REF(jni_env, SwingContext);
		DELETE_CACHED_METHOD_REF(jni_env, SwingContext, safeRun1, 0);
	}

}
