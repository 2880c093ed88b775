#ifndef APPCONTEXT_H
#define APPCONTEXT_H

#include "../JCBase.h"
#include "../JavaInc.h"
#include  <assert.h>

namespace NSAppContext{

	extern CACHE_JAVA_CLASS(AppContext);

	extern CACHE_JAVA_STATIC_FIELD(AppContext, EVENT_QUEUE_KEY);

	extern CACHE_JAVA_STATIC_FIELD(AppContext, DISPOSED_PROPERTY_NAME);

	extern CACHE_JAVA_STATIC_FIELD(AppContext, GUI_DISPOSED);

	extern CACHE_JAVA_CONSTRUCTOR(AppContext, 0);

	extern CACHE_JAVA_METHOD(AppContext, get, 1);

	extern CACHE_JAVA_METHOD(AppContext, put, 2);

	extern CACHE_JAVA_METHOD(AppContext, toString, 3);

	extern CACHE_JAVA_METHOD(AppContext, remove, 4);

	extern CACHE_JAVA_METHOD(AppContext, getThreadGroup, 5);

	extern CACHE_JAVA_METHOD(AppContext, getContextClassLoader, 6);

	extern CACHE_JAVA_METHOD(AppContext, dispose, 7);

	extern CACHE_JAVA_METHOD(AppContext, getPropertyChangeListeners, 8);

	extern CACHE_JAVA_METHOD(AppContext, getPropertyChangeListeners, 9);

	extern CACHE_JAVA_METHOD(AppContext, addPropertyChangeListener, 10);

	extern CACHE_JAVA_STATIC_METHOD(AppContext, getAppContext, 11);

	extern CACHE_JAVA_METHOD(AppContext, removePropertyChangeListener, 12);

	extern CACHE_JAVA_METHOD(AppContext, isDisposed, 13);

	extern CACHE_JAVA_STATIC_METHOD(AppContext, getAppContexts, 14);

	extern CACHE_JAVA_STATIC_METHOD(AppContext, stopEventDispatchThreads, 15);

	jobject AppContext(JNIEnv *env, jobject ThreadGroup0); //0 (Ljava/lang/ThreadGroup;)V

	jobject get(JNIEnv *env, jobject _this, jobject Object0); //1 (Ljava/lang/Object;)Ljava/lang/Object;

	jobject put(JNIEnv *env, jobject _this, jobject Object0, jobject Object1); //2 (Ljava/lang/Object;Ljava/lang/Object;)Ljava/lang/Object;

	jobject toString(JNIEnv *env, jobject _this); //3 ()Ljava/lang/String;

	jobject remove(JNIEnv *env, jobject _this, jobject Object0); //4 (Ljava/lang/Object;)Ljava/lang/Object;

	jobject getThreadGroup(JNIEnv *env, jobject _this); //5 ()Ljava/lang/ThreadGroup;

	jobject getContextClassLoader(JNIEnv *env, jobject _this); //6 ()Ljava/lang/ClassLoader;

	void dispose(JNIEnv *env, jobject _this); //7 ()V

	jobject getPropertyChangeListeners(JNIEnv *env, jobject _this, jobject String0); //8 (Ljava/lang/String;)[Ljava/beans/PropertyChangeListener;

	jobject getPropertyChangeListeners(JNIEnv *env, jobject _this); //9 ()[Ljava/beans/PropertyChangeListener;

	void addPropertyChangeListener(JNIEnv *env, jobject _this, jobject String0, jobject PropertyChangeListener1); //10 (Ljava/lang/String;Ljava/beans/PropertyChangeListener;)V

	jobject getAppContext(JNIEnv *env); //11 ()Lsun/awt/AppContext;

	void removePropertyChangeListener(JNIEnv *env, jobject _this, jobject String0, jobject PropertyChangeListener1); //12 (Ljava/lang/String;Ljava/beans/PropertyChangeListener;)V

	jboolean isDisposed(JNIEnv *env, jobject _this); //13 ()Z

	jobject getAppContexts(JNIEnv *env); //14 ()Ljava/util/Set;

	void stopEventDispatchThreads(JNIEnv *env); //15 ()V

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
}
#endif
