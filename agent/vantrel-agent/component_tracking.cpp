// The dormant callbacks that would pair an added component with the stack of the thread that adds it. Their events
// are never enabled and the capabilities they need are never asked for.
#include "vantrel-agent.h"

void JNICALL cbException(jvmtiEnv* /*jvmti*/, JNIEnv* /*jni*/, jthread /*thread*/, jmethodID /*method*/,
                         jlocation /*location*/, jobject /*exception*/, jmethodID /*catch_method*/,
                         jlocation /*catch_location*/) {}

void JNICALL cbFieldModification(jvmtiEnv* /*jvmti*/, JNIEnv* /*jni*/, jthread /*thread*/, jmethodID /*method*/,
                                 jlocation /*location*/, jclass /*field_klass*/, jobject /*object*/, jfieldID /*field*/,
                                 char /*signature_type*/, jvalue /*new_value*/) {}

void JNICALL cbMethodExit(jvmtiEnv* /*jvmti*/, JNIEnv* /*jni*/, jthread /*thread*/, jmethodID /*method*/,
                          jboolean /*was_popped_by_exception*/, jvalue /*return_value*/) {}
