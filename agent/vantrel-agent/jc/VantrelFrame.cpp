#include "VantrelFrame.h"
#include "../common.h"
#include  <assert.h>
#include <stdio.h>

namespace NSVantrelFrame{

	CACHE_JAVA_CLASS(VantrelFrame) = NULL;

	char jawt_dll_path[1024];

	//fields(0)

	//methods(3)

	CACHE_JAVA_STATIC_METHOD(VantrelFrame, getInstance, 0) = NULL;

	CACHE_JAVA_METHOD(VantrelFrame, setVisible, 1) = NULL;

	CACHE_JAVA_METHOD(VantrelFrame, setOpacity, 2) = NULL;

	jobject getInstance(JNIEnv *env){
		INIT_CACHE_CLASS(env, JAVA_CLASS(VantrelFrame), "com/vantrel/VantrelFrame");
		INIT_CACHE_STATIC_METHOD(env, VantrelFrame, getInstance, "()Lcom/vantrel/VantrelFrame;", 0);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(VantrelFrame), JAVA_METHOD(VantrelFrame, getInstance, 0));
	}

	void setVisible(JNIEnv *env, jobject _this, jboolean Boolean0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(VantrelFrame), "com/vantrel/VantrelFrame");
		INIT_CACHE_METHOD(env, VantrelFrame, setVisible, "(Z)V", 1);
		env->CallVoidMethod(_this, JAVA_METHOD(VantrelFrame, setVisible, 1), Boolean0);
	}

	void setOpacity(JNIEnv *env, jobject _this, jint Int0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(VantrelFrame), "com/vantrel/VantrelFrame");
		INIT_CACHE_METHOD(env, VantrelFrame, setOpacity, "(I)V", 2);
		env->CallVoidMethod(_this, JAVA_METHOD(VantrelFrame, setOpacity, 2), Int0);
	}

	static const JNINativeMethod natives[] = {
		{const_cast<char *>("setOpacity"), const_cast<char *>("(I)V"), reinterpret_cast<void *>(_setOpacity)},
	};

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		INIT_CACHE_CLASS(jni_env, VantrelFrame, "com/vantrel/VantrelFrame");
		jni_env->RegisterNatives(JAVA_CLASS(VantrelFrame), natives, 1);

		char *java_home = NULL;
		jvmti_env->GetSystemProperty("java.home", &java_home);
		snprintf(jawt_dll_path, sizeof(jawt_dll_path), "%s\\bin\\jawt.dll", java_home != NULL ? java_home : "");
	}

	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		DELETE_CACHED_CLASS_REF(jni_env, VantrelFrame);
	}

}
