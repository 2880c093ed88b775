// The native side of GeneratedCalls. A test generates the proxies and compiles this with them, warnings as errors.
#include <cstring>
#include <string>

#include "jc/Container.h"
#include "jc/EventObject.h"
#include "jc/Graphics2D.h"
#include "jc/SwingUtilities.h"
#include "jc/Thread.h"

namespace {

jvmtiEnv* jvmti_of(JNIEnv* env) {
    JavaVM* vm = nullptr;
    env->GetJavaVM(&vm);
    void* jvmti = nullptr;
    vm->GetEnv(&jvmti, JVMTI_VERSION_1_0);
    return static_cast<jvmtiEnv*>(jvmti);
}

bool is_text(JNIEnv* env, jobject text, const char* expected) {
    const char* characters = env->GetStringUTFChars(static_cast<jstring>(text), nullptr);
    const bool same = strcmp(characters, expected) == 0;
    env->ReleaseStringUTFChars(static_cast<jstring>(text), characters);
    return same;
}

}  // namespace

extern "C" JNIEXPORT jstring JNICALL Java_GeneratedCalls_failures(JNIEnv* env, jclass, jobject graphics,
                                                                  jobject paint) {
    std::string failures;
    const auto expect = [&](bool condition, const char* what) {
        if (!condition || env->ExceptionCheck() != JNI_FALSE) {
            env->ExceptionDescribe();
            failures += std::string("failed: ") + what + "\n";
        }
    };

    // Lazily first, then with what Init has looked up.
    jobject event = NSEventObject::EventObject(env, paint);
    expect(env->IsSameObject(NSEventObject::getSource(env, event), paint) == JNI_TRUE, "EventObject.getSource");

    jvmtiEnv* jvmti = jvmti_of(env);
    NSContainer::Init(jvmti, env);
    NSEventObject::Init(jvmti, env);
    NSGraphics2D::Init(jvmti, env);
    NSSwingUtilities::Init(jvmti, env);
    NSThread::Init(jvmti, env);
    expect(NSThread::Thread_MAX_PRIORITY != nullptr &&
               env->GetStaticIntField(NSThread::_c_Class, NSThread::Thread_MAX_PRIORITY) == 10,
           "Thread.MAX_PRIORITY");

    jobject outer = NSContainer::Container(env);
    jobject inner = NSContainer::Container(env);
    NSContainer::add(env, outer, inner);
    expect(NSContainer::getComponentCount(env, outer) == 1, "Container.getComponentCount");
    jobjectArray components = NSContainer::getComponents(env, outer);
    expect(env->GetArrayLength(components) == 1 &&
               env->IsSameObject(env->GetObjectArrayElement(components, 0), inner) == JNI_TRUE,
           "Container.getComponents");
    NSContainer::addImpl(env, outer, NSContainer::Container(env), nullptr, 0);
    expect(NSContainer::getComponentCount(env, outer) == 2, "Container.addImpl, which is protected");

    expect(NSSwingUtilities::isEventDispatchThread(env) == JNI_FALSE, "SwingUtilities.isEventDispatchThread");

    jobject thread = NSThread::currentThread(env);
    expect(is_text(env, NSThread::getName(env, thread), "main"), "Thread.getName");
    expect(NSThread::isAlive(env, thread) == JNI_TRUE, "Thread.isAlive");
    expect(NSThread::getPriority(env, thread) == 5, "Thread.getPriority");
    expect(NSThread::holdsLock(env, thread) == JNI_FALSE, "Thread.holdsLock");

    NSGraphics2D::setPaint(env, graphics, paint);
    expect(env->IsSameObject(NSGraphics2D::getPaint(env, graphics), paint) == JNI_TRUE, "Graphics2D.getPaint");

    NSContainer::Destroy(jvmti, env);
    NSThread::Destroy(jvmti, env);
    return env->NewStringUTF(failures.c_str());
}
