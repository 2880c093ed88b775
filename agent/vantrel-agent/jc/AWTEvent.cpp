#include "AWTEvent.h"
#include "../common.h"
#include  <assert.h>

namespace NSAWTEvent{

	CACHE_JAVA_CLASS(AWTEvent) = NULL;

	//fields(23)

	CACHE_JAVA_FIELD(AWTEvent, focusManagerIsDispatching) = NULL;

	CACHE_JAVA_FIELD(AWTEvent, isPosted) = NULL;

	CACHE_JAVA_STATIC_FIELD(AWTEvent, COMPONENT_EVENT_MASK) = NULL;

	CACHE_JAVA_STATIC_FIELD(AWTEvent, CONTAINER_EVENT_MASK) = NULL;

	CACHE_JAVA_STATIC_FIELD(AWTEvent, FOCUS_EVENT_MASK) = NULL;

	CACHE_JAVA_STATIC_FIELD(AWTEvent, KEY_EVENT_MASK) = NULL;

	CACHE_JAVA_STATIC_FIELD(AWTEvent, MOUSE_EVENT_MASK) = NULL;

	CACHE_JAVA_STATIC_FIELD(AWTEvent, MOUSE_MOTION_EVENT_MASK) = NULL;

	CACHE_JAVA_STATIC_FIELD(AWTEvent, WINDOW_EVENT_MASK) = NULL;

	CACHE_JAVA_STATIC_FIELD(AWTEvent, ACTION_EVENT_MASK) = NULL;

	CACHE_JAVA_STATIC_FIELD(AWTEvent, ADJUSTMENT_EVENT_MASK) = NULL;

	CACHE_JAVA_STATIC_FIELD(AWTEvent, ITEM_EVENT_MASK) = NULL;

	CACHE_JAVA_STATIC_FIELD(AWTEvent, TEXT_EVENT_MASK) = NULL;

	CACHE_JAVA_STATIC_FIELD(AWTEvent, INPUT_METHOD_EVENT_MASK) = NULL;

	CACHE_JAVA_STATIC_FIELD(AWTEvent, INPUT_METHODS_ENABLED_MASK) = NULL;

	CACHE_JAVA_STATIC_FIELD(AWTEvent, PAINT_EVENT_MASK) = NULL;

	CACHE_JAVA_STATIC_FIELD(AWTEvent, INVOCATION_EVENT_MASK) = NULL;

	CACHE_JAVA_STATIC_FIELD(AWTEvent, HIERARCHY_EVENT_MASK) = NULL;

	CACHE_JAVA_STATIC_FIELD(AWTEvent, HIERARCHY_BOUNDS_EVENT_MASK) = NULL;

	CACHE_JAVA_STATIC_FIELD(AWTEvent, MOUSE_WHEEL_EVENT_MASK) = NULL;

	CACHE_JAVA_STATIC_FIELD(AWTEvent, WINDOW_STATE_EVENT_MASK) = NULL;

	CACHE_JAVA_STATIC_FIELD(AWTEvent, WINDOW_FOCUS_EVENT_MASK) = NULL;

	CACHE_JAVA_STATIC_FIELD(AWTEvent, RESERVED_ID_MAX) = NULL;

	//methods(10)

	CACHE_JAVA_CONSTRUCTOR(AWTEvent, 0) = NULL;

	CACHE_JAVA_CONSTRUCTOR(AWTEvent, 1) = NULL;

	CACHE_JAVA_METHOD(AWTEvent, toString, 2) = NULL;

	CACHE_JAVA_METHOD(AWTEvent, paramString, 3) = NULL;

	CACHE_JAVA_METHOD(AWTEvent, getID, 4) = NULL;

	CACHE_JAVA_METHOD(AWTEvent, getAccessControlContext, 5) = NULL;

	CACHE_JAVA_METHOD(AWTEvent, convertToOld, 6) = NULL;

	CACHE_JAVA_METHOD(AWTEvent, copyPrivateDataInto, 7) = NULL;

	CACHE_JAVA_METHOD(AWTEvent, setSource, 8) = NULL;

	CACHE_JAVA_METHOD(AWTEvent, dispatched, 9) = NULL;

	jobject AWTEvent(JNIEnv *env, jobject Event0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(AWTEvent), "java/awt/AWTEvent");
		if (!JAVA_CONSTRUCTOR(AWTEvent, 0)){
			INIT_CACHE_CONSTRUCTOR(env, AWTEvent, "(Ljava/awt/Event;)V", 0);
		}
		return (jobject)env->NewObject(JAVA_CLASS(AWTEvent), JAVA_CONSTRUCTOR(AWTEvent, 0), Event0);
	}

	jobject AWTEvent(JNIEnv *env, jobject Object0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(AWTEvent), "java/awt/AWTEvent");
		if (!JAVA_CONSTRUCTOR(AWTEvent, 1)){
			INIT_CACHE_CONSTRUCTOR(env, AWTEvent, "(Ljava/lang/Object;I)V", 1);
		}
		return (jobject)env->NewObject(JAVA_CLASS(AWTEvent), JAVA_CONSTRUCTOR(AWTEvent, 1), Object0, Int1);
	}

	jobject toString(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(AWTEvent), "java/awt/AWTEvent");
		INIT_CACHE_METHOD(env, AWTEvent, toString, "()Ljava/lang/String;", 2);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(AWTEvent, toString, 2));
	}

	jobject paramString(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(AWTEvent), "java/awt/AWTEvent");
		INIT_CACHE_METHOD(env, AWTEvent, paramString, "()Ljava/lang/String;", 3);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(AWTEvent, paramString, 3));
	}

	jint getID(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(AWTEvent), "java/awt/AWTEvent");
		INIT_CACHE_METHOD(env, AWTEvent, getID, "()I", 4);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(AWTEvent, getID, 4));
	}

	jobject getAccessControlContext(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(AWTEvent), "java/awt/AWTEvent");
		INIT_CACHE_METHOD(env, AWTEvent, getAccessControlContext, "()Ljava/security/AccessControlContext;", 5);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(AWTEvent, getAccessControlContext, 5));
	}

	jobject convertToOld(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(AWTEvent), "java/awt/AWTEvent");
		INIT_CACHE_METHOD(env, AWTEvent, convertToOld, "()Ljava/awt/Event;", 6);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(AWTEvent, convertToOld, 6));
	}

	void copyPrivateDataInto(JNIEnv *env, jobject _this, jobject AWTEvent0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(AWTEvent), "java/awt/AWTEvent");
		INIT_CACHE_METHOD(env, AWTEvent, copyPrivateDataInto, "(Ljava/awt/AWTEvent;)V", 7);
		env->CallVoidMethod(_this, JAVA_METHOD(AWTEvent, copyPrivateDataInto, 7), AWTEvent0);
	}

	void setSource(JNIEnv *env, jobject _this, jobject Object0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(AWTEvent), "java/awt/AWTEvent");
		INIT_CACHE_METHOD(env, AWTEvent, setSource, "(Ljava/lang/Object;)V", 8);
		env->CallVoidMethod(_this, JAVA_METHOD(AWTEvent, setSource, 8), Object0);
	}

	void dispatched(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(AWTEvent), "java/awt/AWTEvent");
		INIT_CACHE_METHOD(env, AWTEvent, dispatched, "()V", 9);
		env->CallVoidMethod(_this, JAVA_METHOD(AWTEvent, dispatched, 9));
	}

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		INIT_CACHE_CLASS(jni_env, AWTEvent, "java/awt/AWTEvent");
		INIT_CACHE_FIELD(jni_env, AWTEvent, focusManagerIsDispatching, "Z");
		INIT_CACHE_FIELD(jni_env, AWTEvent, isPosted, "Z");
		INIT_CACHE_STATIC_FIELD(jni_env, AWTEvent, COMPONENT_EVENT_MASK, "J");
		INIT_CACHE_STATIC_FIELD(jni_env, AWTEvent, CONTAINER_EVENT_MASK, "J");
		INIT_CACHE_STATIC_FIELD(jni_env, AWTEvent, FOCUS_EVENT_MASK, "J");
		INIT_CACHE_STATIC_FIELD(jni_env, AWTEvent, KEY_EVENT_MASK, "J");
		INIT_CACHE_STATIC_FIELD(jni_env, AWTEvent, MOUSE_EVENT_MASK, "J");
		INIT_CACHE_STATIC_FIELD(jni_env, AWTEvent, MOUSE_MOTION_EVENT_MASK, "J");
		INIT_CACHE_STATIC_FIELD(jni_env, AWTEvent, WINDOW_EVENT_MASK, "J");
		INIT_CACHE_STATIC_FIELD(jni_env, AWTEvent, ACTION_EVENT_MASK, "J");
		INIT_CACHE_STATIC_FIELD(jni_env, AWTEvent, ADJUSTMENT_EVENT_MASK, "J");
		INIT_CACHE_STATIC_FIELD(jni_env, AWTEvent, ITEM_EVENT_MASK, "J");
		INIT_CACHE_STATIC_FIELD(jni_env, AWTEvent, TEXT_EVENT_MASK, "J");
		INIT_CACHE_STATIC_FIELD(jni_env, AWTEvent, INPUT_METHOD_EVENT_MASK, "J");
		INIT_CACHE_STATIC_FIELD(jni_env, AWTEvent, INPUT_METHODS_ENABLED_MASK, "J");
		INIT_CACHE_STATIC_FIELD(jni_env, AWTEvent, PAINT_EVENT_MASK, "J");
		INIT_CACHE_STATIC_FIELD(jni_env, AWTEvent, INVOCATION_EVENT_MASK, "J");
		INIT_CACHE_STATIC_FIELD(jni_env, AWTEvent, HIERARCHY_EVENT_MASK, "J");
		INIT_CACHE_STATIC_FIELD(jni_env, AWTEvent, HIERARCHY_BOUNDS_EVENT_MASK, "J");
		INIT_CACHE_STATIC_FIELD(jni_env, AWTEvent, MOUSE_WHEEL_EVENT_MASK, "J");
		INIT_CACHE_STATIC_FIELD(jni_env, AWTEvent, WINDOW_STATE_EVENT_MASK, "J");
		INIT_CACHE_STATIC_FIELD(jni_env, AWTEvent, WINDOW_FOCUS_EVENT_MASK, "J");
		INIT_CACHE_STATIC_FIELD(jni_env, AWTEvent, RESERVED_ID_MAX, "I");
	}

	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		DELETE_CACHED_CLASS_REF(jni_env, AWTEvent);
		DELETE_CACHED_FIELD_REF(jni_env, AWTEvent, focusManagerIsDispatching);
		DELETE_CACHED_FIELD_REF(jni_env, AWTEvent, isPosted);
		DELETE_CACHED_FIELD_REF(jni_env, AWTEvent, COMPONENT_EVENT_MASK);
		DELETE_CACHED_FIELD_REF(jni_env, AWTEvent, CONTAINER_EVENT_MASK);
		DELETE_CACHED_FIELD_REF(jni_env, AWTEvent, FOCUS_EVENT_MASK);
		DELETE_CACHED_FIELD_REF(jni_env, AWTEvent, KEY_EVENT_MASK);
		DELETE_CACHED_FIELD_REF(jni_env, AWTEvent, MOUSE_EVENT_MASK);
		DELETE_CACHED_FIELD_REF(jni_env, AWTEvent, MOUSE_MOTION_EVENT_MASK);
		DELETE_CACHED_FIELD_REF(jni_env, AWTEvent, WINDOW_EVENT_MASK);
		DELETE_CACHED_FIELD_REF(jni_env, AWTEvent, ACTION_EVENT_MASK);
		DELETE_CACHED_FIELD_REF(jni_env, AWTEvent, ADJUSTMENT_EVENT_MASK);
		DELETE_CACHED_FIELD_REF(jni_env, AWTEvent, ITEM_EVENT_MASK);
		DELETE_CACHED_FIELD_REF(jni_env, AWTEvent, TEXT_EVENT_MASK);
		DELETE_CACHED_FIELD_REF(jni_env, AWTEvent, INPUT_METHOD_EVENT_MASK);
		DELETE_CACHED_FIELD_REF(jni_env, AWTEvent, INPUT_METHODS_ENABLED_MASK);
		DELETE_CACHED_FIELD_REF(jni_env, AWTEvent, PAINT_EVENT_MASK);
		DELETE_CACHED_FIELD_REF(jni_env, AWTEvent, INVOCATION_EVENT_MASK);
		DELETE_CACHED_FIELD_REF(jni_env, AWTEvent, HIERARCHY_EVENT_MASK);
		DELETE_CACHED_FIELD_REF(jni_env, AWTEvent, HIERARCHY_BOUNDS_EVENT_MASK);
		DELETE_CACHED_FIELD_REF(jni_env, AWTEvent, MOUSE_WHEEL_EVENT_MASK);
		DELETE_CACHED_FIELD_REF(jni_env, AWTEvent, WINDOW_STATE_EVENT_MASK);
		DELETE_CACHED_FIELD_REF(jni_env, AWTEvent, WINDOW_FOCUS_EVENT_MASK);
		DELETE_CACHED_FIELD_REF(jni_env, AWTEvent, RESERVED_ID_MAX);
	}

}
