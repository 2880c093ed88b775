#include "Vantrel.h"
#include "Color.h"
#include "../common.h"
#include  <assert.h>

namespace NSVantrel{

	CACHE_JAVA_CLASS(Vantrel) = NULL;

	jobject VantrelInstance = NULL;
	jobject HighlightColor = NULL;

	//fields(0)

	//methods(3)

	CACHE_JAVA_STATIC_METHOD(Vantrel, showVantrel, 0) = NULL;

	CACHE_JAVA_STATIC_METHOD(Vantrel, getInstance, 0) = NULL;

	CACHE_JAVA_METHOD(Vantrel, selectOnComponentTree, 0) = NULL;

	void showVantrel(JNIEnv *env, jobject Component0){
		env->CallStaticVoidMethod(JAVA_CLASS(Vantrel), JAVA_METHOD(Vantrel, showVantrel, 0), Component0);
	}

	jobject getInstance(JNIEnv *env){
		return VantrelInstance;
	}

	void selectOnComponentTree(JNIEnv *env, jobject _this, jobject Component0){
		env->CallVoidMethod(_this, JAVA_METHOD(Vantrel, selectOnComponentTree, 0), Component0);
	}

	//red 252, green 126, blue 0
	static const jint HIGHLIGHT_RGB = 0xFC7E00;

	static const JNINativeMethod natives[] = {
		{const_cast<char *>("highlight"), const_cast<char *>("(Ljava/awt/Component;Ljava/awt/Graphics2D;)V"), reinterpret_cast<void *>(highlight)},
		{const_cast<char *>("beep"), const_cast<char *>("()V"), reinterpret_cast<void *>(beep)},
		{const_cast<char *>("getOSVersion"), const_cast<char *>("()I"), reinterpret_cast<void *>(getOSVer)},
		{const_cast<char *>("canHighlight"), const_cast<char *>("()Z"), reinterpret_cast<void *>(canHighlight)},
	};

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		assert(jni_env->FindClass("java/awt/Container") != NULL);
		assert(jni_env->FindClass("com/vantrel/Vantrel") != NULL);
		jni_env->RegisterNatives(jni_env->FindClass("com/vantrel/Vantrel"), natives, 4);
		INIT_CACHE_CLASS(jni_env, Vantrel, "com/vantrel/Vantrel");
		INIT_CACHE_STATIC_METHOD(jni_env, Vantrel, showVantrel, "(Ljava/awt/Component;)V", 0);
		INIT_CACHE_STATIC_METHOD(jni_env, Vantrel, getInstance, "()Lcom/vantrel/Vantrel;", 0);
		INIT_CACHE_METHOD(jni_env, Vantrel, selectOnComponentTree, "(Ljava/awt/Component;)V", 0);

		jobject instance = jni_env->CallStaticObjectMethod(JAVA_CLASS(Vantrel), JAVA_METHOD(Vantrel, getInstance, 0));
		assert(instance != NULL);
		VantrelInstance = jni_env->NewGlobalRef(instance);
		HighlightColor = jni_env->NewGlobalRef(NSColor::Color(jni_env, HIGHLIGHT_RGB));
	}

	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		jni_env->UnregisterNatives(JAVA_CLASS(Vantrel));
		DELETE_CACHED_CLASS_REF(jni_env, Vantrel);
		DELETE_CACHED_METHOD_REF(jni_env, Vantrel, showVantrel, 0);
		DELETE_CACHED_METHOD_REF(jni_env, Vantrel, selectOnComponentTree, 0);
		jni_env->DeleteGlobalRef(VantrelInstance);
		jni_env->DeleteGlobalRef(HighlightColor);
	}

}
