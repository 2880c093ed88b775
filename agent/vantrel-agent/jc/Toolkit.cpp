#include "Toolkit.h"
#include "../common.h"
#include  <assert.h>

namespace NSToolkit{

	CACHE_JAVA_CLASS(Toolkit) = NULL;

	//fields(0)

	//methods(2)

	CACHE_JAVA_STATIC_METHOD(Toolkit, getDefaultToolkit, 0) = NULL;

	CACHE_JAVA_METHOD(Toolkit, addAWTEventListener, 0) = NULL;

	jobject getDefaultToolkit(JNIEnv *env){
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(Toolkit), JAVA_METHOD(Toolkit, getDefaultToolkit, 0));
	}

	jobject addAWTEventListener(JNIEnv *env, jobject _this, jobject AWTEventListener0, jlong Long1){
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Toolkit, addAWTEventListener, 0), AWTEventListener0, Long1);
	}

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		INIT_CACHE_CLASS(jni_env, Toolkit, "java/awt/Toolkit");
		INIT_CACHE_STATIC_METHOD(jni_env, Toolkit, getDefaultToolkit, "()Ljava/awt/Toolkit;", 0);
		INIT_CACHE_METHOD(jni_env, Toolkit, addAWTEventListener, "(Ljava/awt/event/AWTEventListener;J)V", 0);
	}

	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		//the toolkit outlives the agent: its class reference is kept until the VM ends
	}

}
