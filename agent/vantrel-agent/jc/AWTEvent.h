#ifndef AWTEVENT_H
#define AWTEVENT_H

#include "../JCBase.h"
#include "../JavaInc.h"
#include  <assert.h>

namespace NSAWTEvent{

	extern CACHE_JAVA_CLASS(AWTEvent);

	extern CACHE_JAVA_FIELD(AWTEvent, focusManagerIsDispatching);

	extern CACHE_JAVA_FIELD(AWTEvent, isPosted);

	extern CACHE_JAVA_STATIC_FIELD(AWTEvent, COMPONENT_EVENT_MASK);

	extern CACHE_JAVA_STATIC_FIELD(AWTEvent, CONTAINER_EVENT_MASK);

	extern CACHE_JAVA_STATIC_FIELD(AWTEvent, FOCUS_EVENT_MASK);

	extern CACHE_JAVA_STATIC_FIELD(AWTEvent, KEY_EVENT_MASK);

	extern CACHE_JAVA_STATIC_FIELD(AWTEvent, MOUSE_EVENT_MASK);

	extern CACHE_JAVA_STATIC_FIELD(AWTEvent, MOUSE_MOTION_EVENT_MASK);

	extern CACHE_JAVA_STATIC_FIELD(AWTEvent, WINDOW_EVENT_MASK);

	extern CACHE_JAVA_STATIC_FIELD(AWTEvent, ACTION_EVENT_MASK);

	extern CACHE_JAVA_STATIC_FIELD(AWTEvent, ADJUSTMENT_EVENT_MASK);

	extern CACHE_JAVA_STATIC_FIELD(AWTEvent, ITEM_EVENT_MASK);

	extern CACHE_JAVA_STATIC_FIELD(AWTEvent, TEXT_EVENT_MASK);

	extern CACHE_JAVA_STATIC_FIELD(AWTEvent, INPUT_METHOD_EVENT_MASK);

	extern CACHE_JAVA_STATIC_FIELD(AWTEvent, INPUT_METHODS_ENABLED_MASK);

	extern CACHE_JAVA_STATIC_FIELD(AWTEvent, PAINT_EVENT_MASK);

	extern CACHE_JAVA_STATIC_FIELD(AWTEvent, INVOCATION_EVENT_MASK);

	extern CACHE_JAVA_STATIC_FIELD(AWTEvent, HIERARCHY_EVENT_MASK);

	extern CACHE_JAVA_STATIC_FIELD(AWTEvent, HIERARCHY_BOUNDS_EVENT_MASK);

	extern CACHE_JAVA_STATIC_FIELD(AWTEvent, MOUSE_WHEEL_EVENT_MASK);

	extern CACHE_JAVA_STATIC_FIELD(AWTEvent, WINDOW_STATE_EVENT_MASK);

	extern CACHE_JAVA_STATIC_FIELD(AWTEvent, WINDOW_FOCUS_EVENT_MASK);

	extern CACHE_JAVA_STATIC_FIELD(AWTEvent, RESERVED_ID_MAX);

	extern CACHE_JAVA_CONSTRUCTOR(AWTEvent, 0);

	extern CACHE_JAVA_CONSTRUCTOR(AWTEvent, 1);

	extern CACHE_JAVA_METHOD(AWTEvent, toString, 2);

	extern CACHE_JAVA_METHOD(AWTEvent, paramString, 3);

	extern CACHE_JAVA_METHOD(AWTEvent, getID, 4);

	extern CACHE_JAVA_METHOD(AWTEvent, getAccessControlContext, 5);

	extern CACHE_JAVA_METHOD(AWTEvent, convertToOld, 6);

	extern CACHE_JAVA_METHOD(AWTEvent, copyPrivateDataInto, 7);

	extern CACHE_JAVA_METHOD(AWTEvent, setSource, 8);

	extern CACHE_JAVA_METHOD(AWTEvent, dispatched, 9);

	jobject AWTEvent(JNIEnv *env, jobject Event0); //0 (Ljava/awt/Event;)V

	jobject AWTEvent(JNIEnv *env, jobject Object0, jint Int1); //1 (Ljava/lang/Object;I)V

	jobject toString(JNIEnv *env, jobject _this); //2 ()Ljava/lang/String;

	jobject paramString(JNIEnv *env, jobject _this); //3 ()Ljava/lang/String;

	jint getID(JNIEnv *env, jobject _this); //4 ()I

	jobject getAccessControlContext(JNIEnv *env, jobject _this); //5 ()Ljava/security/AccessControlContext;

	jobject convertToOld(JNIEnv *env, jobject _this); //6 ()Ljava/awt/Event;

	void copyPrivateDataInto(JNIEnv *env, jobject _this, jobject AWTEvent0); //7 (Ljava/awt/AWTEvent;)V

	void setSource(JNIEnv *env, jobject _this, jobject Object0); //8 (Ljava/lang/Object;)V

	void dispatched(JNIEnv *env, jobject _this); //9 ()V

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
}
#endif
