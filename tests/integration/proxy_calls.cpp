// The native side of ProxyCalls: the agent's proxies, called in a real VM.
#include <cstdio>

#include "all_proxies.h"

namespace {

jvmtiEnv* jvmti_of(JNIEnv* env) {
    JavaVM* vm = nullptr;
    env->GetJavaVM(&vm);
    void* jvmti = nullptr;
    vm->GetEnv(&jvmti, JVMTI_VERSION_1_0);
    return static_cast<jvmtiEnv*>(jvmti);
}

enum Kind { CONSTRUCTOR, METHOD, STATIC_METHOD, FIELD, STATIC_FIELD };

void print_if_missing(JNIEnv* env, const char* class_name, Kind kind, const char* name, const char* descriptor) {
    jclass clazz = env->FindClass(class_name);
    const void* id = nullptr;
    if (clazz != nullptr) {
        id = kind == STATIC_METHOD  ? static_cast<void*>(env->GetStaticMethodID(clazz, name, descriptor))
             : kind == FIELD        ? static_cast<void*>(env->GetFieldID(clazz, name, descriptor))
             : kind == STATIC_FIELD ? static_cast<void*>(env->GetStaticFieldID(clazz, name, descriptor))
                                    : static_cast<void*>(env->GetMethodID(clazz, name, descriptor));
    }
    env->ExceptionClear();
    env->DeleteLocalRef(clazz);
    if (id == nullptr) {
        printf("missing %s.%s %s\n", class_name, name, descriptor);
    }
}

}  // namespace

extern "C" {

#define NATIVE(Result, name) JNIEXPORT Result JNICALL Java_ProxyCalls_##name

NATIVE(void, initialise)(JNIEnv* env, jclass) {
    jvmtiEnv* jvmti = jvmti_of(env);
    const struct {
        const char* name;
        void (*init)(jvmtiEnv*, JNIEnv*);
    } proxies[] = {
        {"Object", NSObject::Init},
        {"Color", NSColor::Init},
        {"AppContext", NSAppContext::Init},
        {"AWTEvent", NSAWTEvent::Init},
        {"Component", NSComponent::Init},
        {"AlphaComposite", NSAlphaComposite::Init},
        {"Toolkit", NSToolkit::Init},
        {"Graphics2D", NSGraphics2D::Init},
        {"System", NSSystem::Init},
        {"SwingUtilities", NSSwingUtilities::Init},
        {"SwingContext", NSSwingContext::Init},
        {"Thread", NSThread::Init},
        {"EDTRunnable", NSEDTRunnable::Init},
        {"Vantrel", NSVantrel::Init},
        {"JComponent", NSJComponent::Init},
        {"StackTraceManager", NSStackTraceManager::Init},
        {"VantrelFrame", NSVantrelFrame::Init},
    };
    for (const auto& proxy : proxies) {
        proxy.init(jvmti, env);
        printf("initialised %s\n", proxy.name);
    }
    fflush(stdout);
}

NATIVE(void, printMissingMembers)(JNIEnv* env, jclass) {
#define PROXY_FIELD(C, CLASS, KIND, NAME, DESCRIPTOR) print_if_missing(env, CLASS, KIND, #NAME, DESCRIPTOR);
#define PROXY_METHOD(C, CLASS, KIND, NAME, DESCRIPTOR, ...) print_if_missing(env, CLASS, KIND, NAME, DESCRIPTOR);
#include "members.inc"
    fflush(stdout);
}

NATIVE(jboolean, threadIsAlive)(JNIEnv* env, jclass, jobject thread) {
    return NSThread::isAlive(env, thread);
}

NATIVE(jlong, threadGetId)(JNIEnv* env, jclass, jobject thread) {
    return NSThread::getId(env, thread);
}

NATIVE(jfloat, componentGetAlignmentX)(JNIEnv* env, jclass, jobject component) {
    return NSComponent::getAlignmentX(env, component);
}

NATIVE(jobject, objectToString)(JNIEnv* env, jclass, jobject object) {
    return NSObject::toString(env, object);
}

NATIVE(jobject, threadNew)(JNIEnv* env, jclass, jobject group, jobject task, jobject name) {
    return NSThread::Thread(env, group, task, name);
}

NATIVE(void, threadSetPriority)(JNIEnv* env, jclass, jobject thread, jint priority) {
    NSThread::setPriority(env, thread, priority);
}

NATIVE(void, fireAll)(JNIEnv* env, jclass, jobject component) {
    const auto name = [env](const char* text) { return env->NewStringUTF(text); };
    NSJComponent::firePropertyChange(env, component, name("boolean"), jboolean{JNI_FALSE}, jboolean{JNI_TRUE});
    NSComponent::firePropertyChange(env, component, name("byte"), jbyte{1}, jbyte{2});
    NSComponent::firePropertyChangeWithStringCharChar(env, component, name("char"), jchar{1}, jchar{2});
    NSComponent::firePropertyChangeWithStringshortValshortVal(env, component, name("short"), jshort{1}, jshort{2});
    NSJComponent::firePropertyChange(env, component, name("int"), jint{1}, jint{2});
    NSComponent::firePropertyChangeWithStringLongLong(env, component, name("long"), jlong{1}, jlong{2});
    NSComponent::firePropertyChangeWithStringFloatFloat(env, component, name("float"), jfloat{1}, jfloat{2});
    NSComponent::firePropertyChangeWithStringDoubleDouble(env, component, name("double"), jdouble{1}, jdouble{2});
}
}
