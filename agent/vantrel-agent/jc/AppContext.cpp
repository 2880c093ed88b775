#include "AppContext.h"
#include "../common.h"
#include  <assert.h>

namespace NSAppContext{

	CACHE_JAVA_CLASS(AppContext) = NULL;

	//fields(3)

	CACHE_JAVA_STATIC_FIELD(AppContext, EVENT_QUEUE_KEY) = NULL;

	CACHE_JAVA_STATIC_FIELD(AppContext, DISPOSED_PROPERTY_NAME) = NULL;

	CACHE_JAVA_STATIC_FIELD(AppContext, GUI_DISPOSED) = NULL;

	//methods(16)

	CACHE_JAVA_CONSTRUCTOR(AppContext, 0) = NULL;

	CACHE_JAVA_METHOD(AppContext, get, 1) = NULL;

	CACHE_JAVA_METHOD(AppContext, put, 2) = NULL;

	CACHE_JAVA_METHOD(AppContext, toString, 3) = NULL;

	CACHE_JAVA_METHOD(AppContext, remove, 4) = NULL;

	CACHE_JAVA_METHOD(AppContext, getThreadGroup, 5) = NULL;

	CACHE_JAVA_METHOD(AppContext, getContextClassLoader, 6) = NULL;

	CACHE_JAVA_METHOD(AppContext, dispose, 7) = NULL;

	CACHE_JAVA_METHOD(AppContext, getPropertyChangeListeners, 8) = NULL;

	CACHE_JAVA_METHOD(AppContext, getPropertyChangeListeners, 9) = NULL;

	CACHE_JAVA_METHOD(AppContext, addPropertyChangeListener, 10) = NULL;

	CACHE_JAVA_STATIC_METHOD(AppContext, getAppContext, 11) = NULL;

	CACHE_JAVA_METHOD(AppContext, removePropertyChangeListener, 12) = NULL;

	CACHE_JAVA_METHOD(AppContext, isDisposed, 13) = NULL;

	CACHE_JAVA_STATIC_METHOD(AppContext, getAppContexts, 14) = NULL;

	CACHE_JAVA_STATIC_METHOD(AppContext, stopEventDispatchThreads, 15) = NULL;

	jobject AppContext(JNIEnv *env, jobject ThreadGroup0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(AppContext), "sun/awt/AppContext");
		if (!JAVA_CONSTRUCTOR(AppContext, 0)){
			INIT_CACHE_CONSTRUCTOR(env, AppContext, "(Ljava/lang/ThreadGroup;)V", 0);
		}
		return (jobject)env->NewObject(JAVA_CLASS(AppContext), JAVA_CONSTRUCTOR(AppContext, 0), ThreadGroup0);
	}

	jobject get(JNIEnv *env, jobject _this, jobject Object0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(AppContext), "sun/awt/AppContext");
		INIT_CACHE_METHOD(env, AppContext, get, "(Ljava/lang/Object;)Ljava/lang/Object;", 1);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(AppContext, get, 1), Object0);
	}

	jobject put(JNIEnv *env, jobject _this, jobject Object0, jobject Object1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(AppContext), "sun/awt/AppContext");
		INIT_CACHE_METHOD(env, AppContext, put, "(Ljava/lang/Object;Ljava/lang/Object;)Ljava/lang/Object;", 2);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(AppContext, put, 2), Object0, Object1);
	}

	jobject toString(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(AppContext), "sun/awt/AppContext");
		INIT_CACHE_METHOD(env, AppContext, toString, "()Ljava/lang/String;", 3);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(AppContext, toString, 3));
	}

	jobject remove(JNIEnv *env, jobject _this, jobject Object0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(AppContext), "sun/awt/AppContext");
		INIT_CACHE_METHOD(env, AppContext, remove, "(Ljava/lang/Object;)Ljava/lang/Object;", 4);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(AppContext, remove, 4), Object0);
	}

	jobject getThreadGroup(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(AppContext), "sun/awt/AppContext");
		INIT_CACHE_METHOD(env, AppContext, getThreadGroup, "()Ljava/lang/ThreadGroup;", 5);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(AppContext, getThreadGroup, 5));
	}

	jobject getContextClassLoader(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(AppContext), "sun/awt/AppContext");
		INIT_CACHE_METHOD(env, AppContext, getContextClassLoader, "()Ljava/lang/ClassLoader;", 6);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(AppContext, getContextClassLoader, 6));
	}

	void dispose(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(AppContext), "sun/awt/AppContext");
		INIT_CACHE_METHOD(env, AppContext, dispose, "()V", 7);
		env->CallVoidMethod(_this, JAVA_METHOD(AppContext, dispose, 7));
	}

	jobject getPropertyChangeListeners(JNIEnv *env, jobject _this, jobject String0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(AppContext), "sun/awt/AppContext");
		INIT_CACHE_METHOD(env, AppContext, getPropertyChangeListeners, "(Ljava/lang/String;)[Ljava/beans/PropertyChangeListener;", 8);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(AppContext, getPropertyChangeListeners, 8), String0);
	}

	jobject getPropertyChangeListeners(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(AppContext), "sun/awt/AppContext");
		INIT_CACHE_METHOD(env, AppContext, getPropertyChangeListeners, "()[Ljava/beans/PropertyChangeListener;", 9);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(AppContext, getPropertyChangeListeners, 9));
	}

	void addPropertyChangeListener(JNIEnv *env, jobject _this, jobject String0, jobject PropertyChangeListener1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(AppContext), "sun/awt/AppContext");
		INIT_CACHE_METHOD(env, AppContext, addPropertyChangeListener, "(Ljava/lang/String;Ljava/beans/PropertyChangeListener;)V", 10);
		env->CallVoidMethod(_this, JAVA_METHOD(AppContext, addPropertyChangeListener, 10), String0, PropertyChangeListener1);
	}

	jobject getAppContext(JNIEnv *env){
		INIT_CACHE_CLASS(env, JAVA_CLASS(AppContext), "sun/awt/AppContext");
		INIT_CACHE_STATIC_METHOD(env, AppContext, getAppContext, "()Lsun/awt/AppContext;", 11);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(AppContext), JAVA_METHOD(AppContext, getAppContext, 11));
	}

	void removePropertyChangeListener(JNIEnv *env, jobject _this, jobject String0, jobject PropertyChangeListener1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(AppContext), "sun/awt/AppContext");
		INIT_CACHE_METHOD(env, AppContext, removePropertyChangeListener, "(Ljava/lang/String;Ljava/beans/PropertyChangeListener;)V", 12);
		env->CallVoidMethod(_this, JAVA_METHOD(AppContext, removePropertyChangeListener, 12), String0, PropertyChangeListener1);
	}

	jboolean isDisposed(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(AppContext), "sun/awt/AppContext");
		INIT_CACHE_METHOD(env, AppContext, isDisposed, "()Z", 13);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(AppContext, isDisposed, 13));
	}

	jobject getAppContexts(JNIEnv *env){
		INIT_CACHE_CLASS(env, JAVA_CLASS(AppContext), "sun/awt/AppContext");
		INIT_CACHE_STATIC_METHOD(env, AppContext, getAppContexts, "()Ljava/util/Set;", 14);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(AppContext), JAVA_METHOD(AppContext, getAppContexts, 14));
	}

	void stopEventDispatchThreads(JNIEnv *env){
		INIT_CACHE_CLASS(env, JAVA_CLASS(AppContext), "sun/awt/AppContext");
		INIT_CACHE_STATIC_METHOD(env, AppContext, stopEventDispatchThreads, "()V", 15);
		env->CallStaticVoidMethod(JAVA_CLASS(AppContext), JAVA_METHOD(AppContext, stopEventDispatchThreads, 15));
	}

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		INIT_CACHE_CLASS(jni_env, AppContext, "sun/awt/AppContext");
		INIT_CACHE_STATIC_FIELD(jni_env, AppContext, EVENT_QUEUE_KEY, "Ljava/lang/Object;");
		INIT_CACHE_STATIC_FIELD(jni_env, AppContext, DISPOSED_PROPERTY_NAME, "Ljava/lang/String;");
		INIT_CACHE_STATIC_FIELD(jni_env, AppContext, GUI_DISPOSED, "Ljava/lang/String;");
	}

	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		DELETE_CACHED_CLASS_REF(jni_env, AppContext);
		DELETE_CACHED_FIELD_REF(jni_env, AppContext, EVENT_QUEUE_KEY);
		DELETE_CACHED_FIELD_REF(jni_env, AppContext, DISPOSED_PROPERTY_NAME);
		DELETE_CACHED_FIELD_REF(jni_env, AppContext, GUI_DISPOSED);
	}

}
