#include "ArrayList.h"
#include "../common.h"
#include  <assert.h>

namespace NSArrayList{

	CACHE_JAVA_CLASS(ArrayList) = NULL;

	//fields(0)

	//methods(22)

	CACHE_JAVA_CONSTRUCTOR(ArrayList, 0) = NULL;

	CACHE_JAVA_CONSTRUCTOR(ArrayList, 1) = NULL;

	CACHE_JAVA_CONSTRUCTOR(ArrayList, 2) = NULL;

	CACHE_JAVA_METHOD(ArrayList, add, 3) = NULL;

	CACHE_JAVA_METHOD(ArrayList, add, 4) = NULL;

	CACHE_JAVA_METHOD(ArrayList, get, 5) = NULL;

	CACHE_JAVA_METHOD(ArrayList, clone, 6) = NULL;

	CACHE_JAVA_METHOD(ArrayList, indexOf, 7) = NULL;

	CACHE_JAVA_METHOD(ArrayList, clear, 8) = NULL;

	CACHE_JAVA_METHOD(ArrayList, size, 9) = NULL;

	CACHE_JAVA_METHOD(ArrayList, isEmpty, 10) = NULL;

	CACHE_JAVA_METHOD(ArrayList, lastIndexOf, 11) = NULL;

	CACHE_JAVA_METHOD(ArrayList, contains, 12) = NULL;

	CACHE_JAVA_METHOD(ArrayList, addAll, 13) = NULL;

	CACHE_JAVA_METHOD(ArrayList, addAll, 14) = NULL;

	CACHE_JAVA_METHOD(ArrayList, toArray, 15) = NULL;

	CACHE_JAVA_METHOD(ArrayList, toArray, 16) = NULL;

	CACHE_JAVA_METHOD(ArrayList, remove, 17) = NULL;

	CACHE_JAVA_METHOD(ArrayList, remove, 18) = NULL;

	CACHE_JAVA_METHOD(ArrayList, set, 19) = NULL;

	CACHE_JAVA_METHOD(ArrayList, ensureCapacity, 20) = NULL;

	CACHE_JAVA_METHOD(ArrayList, trimToSize, 21) = NULL;

	jobject ArrayList(JNIEnv *env){
		INIT_CACHE_CLASS(env, JAVA_CLASS(ArrayList), "java/util/ArrayList");
		if (!JAVA_CONSTRUCTOR(ArrayList, 0)){
			INIT_CACHE_CONSTRUCTOR(env, ArrayList, "()V", 0);
		}
		return (jobject)env->NewObject(JAVA_CLASS(ArrayList), JAVA_CONSTRUCTOR(ArrayList, 0));
	}

	jobject ArrayList(JNIEnv *env, jobject Collection0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(ArrayList), "java/util/ArrayList");
		if (!JAVA_CONSTRUCTOR(ArrayList, 1)){
			INIT_CACHE_CONSTRUCTOR(env, ArrayList, "(Ljava/util/Collection;)V", 1);
		}
		return (jobject)env->NewObject(JAVA_CLASS(ArrayList), JAVA_CONSTRUCTOR(ArrayList, 1), Collection0);
	}

	jobject ArrayList(JNIEnv *env, jint Int0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(ArrayList), "java/util/ArrayList");
		if (!JAVA_CONSTRUCTOR(ArrayList, 2)){
			INIT_CACHE_CONSTRUCTOR(env, ArrayList, "(I)V", 2);
		}
		return (jobject)env->NewObject(JAVA_CLASS(ArrayList), JAVA_CONSTRUCTOR(ArrayList, 2), Int0);
	}

	jboolean add(JNIEnv *env, jobject _this, jobject Object0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(ArrayList), "java/util/ArrayList");
		INIT_CACHE_METHOD(env, ArrayList, add, "(Ljava/lang/Object;)Z", 3);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(ArrayList, add, 3), Object0);
	}

	void add(JNIEnv *env, jobject _this, jint Int0, jobject Object1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(ArrayList), "java/util/ArrayList");
		INIT_CACHE_METHOD(env, ArrayList, add, "(ILjava/lang/Object;)V", 4);
		env->CallVoidMethod(_this, JAVA_METHOD(ArrayList, add, 4), Int0, Object1);
	}

	jobject get(JNIEnv *env, jobject _this, jint Int0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(ArrayList), "java/util/ArrayList");
		INIT_CACHE_METHOD(env, ArrayList, get, "(I)Ljava/lang/Object;", 5);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(ArrayList, get, 5), Int0);
	}

	jobject clone(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(ArrayList), "java/util/ArrayList");
		INIT_CACHE_METHOD(env, ArrayList, clone, "()Ljava/lang/Object;", 6);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(ArrayList, clone, 6));
	}

	jint indexOf(JNIEnv *env, jobject _this, jobject Object0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(ArrayList), "java/util/ArrayList");
		INIT_CACHE_METHOD(env, ArrayList, indexOf, "(Ljava/lang/Object;)I", 7);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(ArrayList, indexOf, 7), Object0);
	}

	void clear(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(ArrayList), "java/util/ArrayList");
		INIT_CACHE_METHOD(env, ArrayList, clear, "()V", 8);
		env->CallVoidMethod(_this, JAVA_METHOD(ArrayList, clear, 8));
	}

	jint size(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(ArrayList), "java/util/ArrayList");
		INIT_CACHE_METHOD(env, ArrayList, size, "()I", 9);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(ArrayList, size, 9));
	}

	jboolean isEmpty(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(ArrayList), "java/util/ArrayList");
		INIT_CACHE_METHOD(env, ArrayList, isEmpty, "()Z", 10);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(ArrayList, isEmpty, 10));
	}

	jint lastIndexOf(JNIEnv *env, jobject _this, jobject Object0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(ArrayList), "java/util/ArrayList");
		INIT_CACHE_METHOD(env, ArrayList, lastIndexOf, "(Ljava/lang/Object;)I", 11);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(ArrayList, lastIndexOf, 11), Object0);
	}

	jboolean contains(JNIEnv *env, jobject _this, jobject Object0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(ArrayList), "java/util/ArrayList");
		INIT_CACHE_METHOD(env, ArrayList, contains, "(Ljava/lang/Object;)Z", 12);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(ArrayList, contains, 12), Object0);
	}

	jboolean addAll(JNIEnv *env, jobject _this, jobject Collection0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(ArrayList), "java/util/ArrayList");
		INIT_CACHE_METHOD(env, ArrayList, addAll, "(Ljava/util/Collection;)Z", 13);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(ArrayList, addAll, 13), Collection0);
	}

	jboolean addAll(JNIEnv *env, jobject _this, jint Int0, jobject Collection1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(ArrayList), "java/util/ArrayList");
		INIT_CACHE_METHOD(env, ArrayList, addAll, "(ILjava/util/Collection;)Z", 14);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(ArrayList, addAll, 14), Int0, Collection1);
	}

	jobject toArray(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(ArrayList), "java/util/ArrayList");
		INIT_CACHE_METHOD(env, ArrayList, toArray, "()[Ljava/lang/Object;", 15);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(ArrayList, toArray, 15));
	}

	jobject toArray(JNIEnv *env, jobject _this, jobjectArray Object0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(ArrayList), "java/util/ArrayList");
		INIT_CACHE_METHOD(env, ArrayList, toArray, "([Ljava/lang/Object;)[Ljava/lang/Object;", 16);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(ArrayList, toArray, 16), Object0);
	}

	jboolean remove(JNIEnv *env, jobject _this, jobject Object0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(ArrayList), "java/util/ArrayList");
		INIT_CACHE_METHOD(env, ArrayList, remove, "(Ljava/lang/Object;)Z", 17);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(ArrayList, remove, 17), Object0);
	}

	jobject remove(JNIEnv *env, jobject _this, jint Int0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(ArrayList), "java/util/ArrayList");
		INIT_CACHE_METHOD(env, ArrayList, remove, "(I)Ljava/lang/Object;", 18);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(ArrayList, remove, 18), Int0);
	}

	jobject set(JNIEnv *env, jobject _this, jint Int0, jobject Object1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(ArrayList), "java/util/ArrayList");
		INIT_CACHE_METHOD(env, ArrayList, set, "(ILjava/lang/Object;)Ljava/lang/Object;", 19);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(ArrayList, set, 19), Int0, Object1);
	}

	void ensureCapacity(JNIEnv *env, jobject _this, jint Int0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(ArrayList), "java/util/ArrayList");
		INIT_CACHE_METHOD(env, ArrayList, ensureCapacity, "(I)V", 20);
		env->CallVoidMethod(_this, JAVA_METHOD(ArrayList, ensureCapacity, 20), Int0);
	}

	void trimToSize(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(ArrayList), "java/util/ArrayList");
		INIT_CACHE_METHOD(env, ArrayList, trimToSize, "()V", 21);
		env->CallVoidMethod(_this, JAVA_METHOD(ArrayList, trimToSize, 21));
	}

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		INIT_CACHE_CLASS(jni_env, ArrayList, "java/util/ArrayList");
	}

	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		DELETE_CACHED_CLASS_REF(jni_env, ArrayList);
	}

}
