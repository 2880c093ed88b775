// Somebody else's agent, which uses a proxy that vantrel-generate has made: says how much of the heap is in use when
// the VM ends.
#include <jni.h>
#include <jvmti.h>

#include <cstdio>

#include "jc/Runtime.h"

namespace {

void JNICALL at_end(jvmtiEnv* jvmti, JNIEnv* env) {
    const jobject runtime = NSRuntime::getRuntime(env);
    const jlong used = NSRuntime::totalMemory(env, runtime) - NSRuntime::freeMemory(env, runtime);
    fprintf(stderr, "%lld bytes of the heap are in use\n", static_cast<long long>(used));
    NSRuntime::Destroy(jvmti, env);
}

}  // namespace

JNIEXPORT jint JNICALL Agent_OnLoad(JavaVM* vm, char* /*options*/, void* /*reserved*/) {
    jvmtiEnv* jvmti = nullptr;
    if (vm->GetEnv(reinterpret_cast<void**>(&jvmti), JVMTI_VERSION_1_2) != JNI_OK) {
        return JNI_ERR;
    }
    jvmtiEventCallbacks callbacks = {};
    callbacks.VMDeath = at_end;
    jvmti->SetEventCallbacks(&callbacks, sizeof callbacks);
    jvmti->SetEventNotificationMode(JVMTI_ENABLE, JVMTI_EVENT_VM_DEATH, nullptr);
    return JNI_OK;
}
