// The natives of linking.Rewriter: the rewriter for Java programs, and whether the VM has linked a class.
#include <jvmti.h>

#include <exception>
#include <string>
#include <vector>

#include "rewriting.h"

namespace {

ClassImage bytes_of(JNIEnv* env, jbyteArray array) {
    ClassImage bytes(env->GetArrayLength(array));
    env->GetByteArrayRegion(array, 0, static_cast<jsize>(bytes.size()), reinterpret_cast<jbyte*>(bytes.data()));
    return bytes;
}

// One for all calls: a VM sweeps up disposed ones late, and slows down until then.
jvmtiEnv* jvmti = nullptr;

void throw_refusal(JNIEnv* env, const std::exception& failure) {
    if (jclass refusal = env->FindClass("linking/Refusal")) {
        env->ThrowNew(refusal, failure.what());
    }
}

}  // namespace

extern "C" {

JNIEXPORT jint JNICALL JNI_OnLoad(JavaVM* vm, void* /*reserved*/) {
    return vm->GetEnv(reinterpret_cast<void**>(&jvmti), JVMTI_VERSION_1_2) == JNI_OK ? JNI_VERSION_1_8 : JNI_ERR;
}

JNIEXPORT jbyteArray JNICALL Java_linking_Rewriter_rewrite(JNIEnv* env, jclass /*type*/, jbyteArray original,
                                                           jstring name, jint trackers, jint number, jboolean system,
                                                           jboolean modern) {
    const char* text = name != nullptr ? env->GetStringUTFChars(name, nullptr) : nullptr;
    const std::string kept = text != nullptr ? text : "";
    if (text != nullptr) {
        env->ReleaseStringUTFChars(name, text);
    }
    try {
        const ClassImage image = rewrite(bytes_of(env, original), {.trackers = static_cast<unsigned>(trackers),
                                                                   .class_number = static_cast<unsigned>(number),
                                                                   .system_class = system == JNI_TRUE,
                                                                   .is_modern = modern == JNI_TRUE,
                                                                   .name = text != nullptr ? kept.c_str() : nullptr,
                                                                   .method_names = {}});
        const auto length = static_cast<jsize>(image.size());
        jbyteArray array = env->NewByteArray(length);
        if (array != nullptr) {
            env->SetByteArrayRegion(array, 0, length, reinterpret_cast<const jbyte*>(image.data()));
        }
        return array;
    } catch (const std::exception& failure) {
        throw_refusal(env, failure);
        return nullptr;
    }
}

JNIEXPORT jstring JNICALL Java_linking_Rewriter_className(JNIEnv* env, jclass /*type*/, jbyteArray image) {
    try {
        return env->NewStringUTF(class_name(bytes_of(env, image)).c_str());
    } catch (const std::exception& failure) {
        throw_refusal(env, failure);
        return nullptr;
    }
}

// Reflection is what has classes linked; JVMTI is asked whether that came to pass.
JNIEXPORT jboolean JNICALL Java_linking_Rewriter_isLinked(JNIEnv* env, jclass /*type*/, jclass asked) {
    jint status = 0;
    if (jvmti->GetClassStatus(asked, &status) != JVMTI_ERROR_NONE) {
        env->FatalError("no class status");
    }
    constexpr jint kLinked = JVMTI_CLASS_STATUS_VERIFIED | JVMTI_CLASS_STATUS_PREPARED;
    return (status & kLinked) == kLinked ? JNI_TRUE : JNI_FALSE;
}
}
