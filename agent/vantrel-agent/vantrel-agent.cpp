#include "vantrel-agent.h"

#include <dlfcn.h>
#include <unistd.h>

#include <cstddef>
#include <cstdio>
#include <cstring>
#include <string_view>

#include "agent_life.h"
#include "agent_util.h"
#include "assertion.h"
#include "jc/AWTEvent.h"
#include "jc/AlphaComposite.h"
#include "jc/AppContext.h"
#include "jc/Color.h"
#include "jc/Component.h"
#include "jc/EDTRunnable.h"
#include "jc/Graphics2D.h"
#include "jc/JComponent.h"
#include "jc/Object.h"
#include "jc/StackTraceManager.h"
#include "jc/SwingContext.h"
#include "jc/SwingUtilities.h"
#include "jc/System.h"
#include "jc/Thread.h"
#include "jc/Toolkit.h"
#include "jc/Vantrel.h"
#include "jc/VantrelFrame.h"
#include "keyboard.h"

AgentData gb_data;

namespace {

constexpr const char* kCompanionJarName = "vantrel-" VANTREL_VERSION ".jar";

// The longest library or jar path, with its terminating zero.
constexpr size_t kMaxPathSize = 1024;

// The callback table as JVMTI 1.0 defines it: 35 slots, up to VMObjectAlloc. Newer headers declare more, which a VM
// that was asked for 1.0 need not know.
constexpr jint kCallbackTableSize = 280;
static_assert(kCallbackTableSize == offsetof(jvmtiEventCallbacks, VMObjectAlloc) + sizeof(jvmtiEventVMObjectAlloc));

// Entering and leaving the monitor report the same text, although it is wrong for leaving.
constexpr const char* kMonitorError = "Cannot enter with raw monitor";

inline jvmtiError set_event_notification_mode(jvmtiEnv* jvmti, jvmtiEventMode mode, jvmtiEvent event, jthread thread) {
    return jvmti->functions->SetEventNotificationMode(jvmti, mode, event, thread);
}

const char* supplier_method_of(std::string_view class_name) {
    if (class_name == "java/awt/Container") {
        return "getContainerClassData";
    }
    if (class_name == "java/awt/Component") {
        return "getComponentClassData";
    }
    return NULL;
}

// A daemon, because the hot key's own thread must not keep the VM from ending.
bool attach_as_daemon(const char* name) {
    JNIEnv* env = NULL;
    JavaVMAttachArgs arguments = {JNI_VERSION_1_6, const_cast<char*>(name), NULL};
    return gb_data.jvm->AttachCurrentThreadAsDaemon(reinterpret_cast<void**>(&env), &arguments) == JNI_OK;
}

void detach() {
    gb_data.jvm->DetachCurrentThread();
}

// Some VMs throw instead: all from 24 on, and 17 if no Java method is on the stack. A pending exception would end the
// VM at the end of its VM-init event, and disturb the next JNI call anywhere else. So it is cleared.
void lift_security_manager(JNIEnv* jni) {
    NSSystem::setSecurityManager(jni, NULL);
    jni->ExceptionClear();
}

// What Java threw, with its causes, is all that tells a user why an assertion fails next, or why the hot key shows
// nothing.
void print_pending_exception(JNIEnv* jni) {
    if (jni->ExceptionCheck() == JNI_TRUE) {
        jni->ExceptionDescribe();
    }
}

void show_inspector() {
    JNIEnv* env = NULL;
    gb_data.jvm->AttachCurrentThread(reinterpret_cast<void**>(&env), NULL);
    if (env == NULL) {
        return;  // the VM has ended
    }
    lift_security_manager(env);
    NSVantrel::showVantrel(env, NULL);
    print_pending_exception(env);
    env->ExceptionClear();
}

}  // namespace

__attribute__((constructor)) void on_load() {
    Dl_info info{};
    dladdr(reinterpret_cast<const void*>(&on_load), &info);
    gb_data.libraryPath = info.dli_fname;
}

bool GetVantrelCassPath(char* dst, unsigned long size) {
    const std::string_view library = gb_data.libraryPath != NULL ? gb_data.libraryPath : "";
    // Without a separator find_last_of returns npos, and adding 1 to that gives 0: an empty folder.
    const std::string_view folder = library.substr(0, library.find_last_of("/\\") + 1);

    memset(dst, 0, size);
    snprintf(dst, size, "%.*s%s", static_cast<int>(folder.size()), folder.data(), kCompanionJarName);
    const size_t path_size = folder.size() + strlen(kCompanionJarName) + 1;
    if (library.size() >= kMaxPathSize || path_size > kMaxPathSize || path_size > size) {
        return false;
    }
    return access(dst, F_OK) == 0;
}

jint JNICALL Agent_OnLoad(JavaVM* vm, char* /*options*/, void* /*reserved*/) {
    gb_data.jvm = vm;

    const jint status = vm->GetEnv(reinterpret_cast<void**>(&gb_data.jvmti), JVMTI_VERSION_1_0);
    if (status != JNI_OK || gb_data.jvmti == NULL) {
        puts("ERROR: Unable to access JVMTI!");
        return -1;
    }
    jvmtiEnv* jvmti = gb_data.jvmti;

    static jvmtiCapabilities capabilities;
    capabilities = {};
    capabilities.can_generate_all_class_hook_events = 1;
    capabilities.can_generate_vm_object_alloc_events = 1;
    const jvmtiError capabilities_error = jvmti->AddCapabilities(&capabilities);
    NSStackTraceManager::vantrelAddStackTrace = true;
    if (capabilities_error != JVMTI_ERROR_NONE) {
        NSStackTraceManager::vantrelAddStackTrace = false;
        return -1;
    }

    jvmtiEventCallbacks callbacks{};
    callbacks.VMInit = cbVMInit;
    callbacks.ClassFileLoadHook = cbClassFileLoadHook;
    callbacks.VMStart = cbVMStart;
    callbacks.Exception = cbException;
    callbacks.FieldModification = cbFieldModification;
    callbacks.MethodExit = cbMethodExit;
    callbacks.VMObjectAlloc = cbVMObjectAlloc;
    if (jvmti->SetEventCallbacks(&callbacks, kCallbackTableSize) != JVMTI_ERROR_NONE) {
        printf("ERROR: Can't set jvmti callback!");
        return -1;
    }

    if (jvmti->CreateRawMonitor("agent data", &gb_data.lock) != JVMTI_ERROR_NONE) {
        printf("ERROR: Can't create raw monitor!");
        return -1;
    }

    char path[kMaxPathSize];
    if (!GetVantrelCassPath(path, sizeof path)) {
        fprintf(stderr, "%s doesn't exist.\n", path);
        fflush(stderr);
        return -1;
    }
    check_jvmti_error(jvmti, jvmti->AddToBootstrapClassLoaderSearch(path), "Cannot add to boot classpath");

    for (const jvmtiEvent event : {JVMTI_EVENT_VM_INIT, JVMTI_EVENT_CLASS_FILE_LOAD_HOOK, JVMTI_EVENT_VM_START}) {
        check_jvmti_error(jvmti, set_event_notification_mode(jvmti, JVMTI_ENABLE, event, NULL),
                          "Cannot set event notification");
    }

    gb_data.loaded = 1;
    return 0;
}

jint JNICALL Agent_OnAttach(JavaVM* /*vm*/, char* /*options*/, void* /*reserved*/) {
    return 1;
}

void enter_critical_section(jvmtiEnv* jvmti) {
    check_jvmti_error(jvmti, jvmti->RawMonitorEnter(gb_data.lock), kMonitorError);
}

void exit_critical_section(jvmtiEnv* jvmti) {
    check_jvmti_error(jvmti, jvmti->RawMonitorExit(gb_data.lock), kMonitorError);
}

void JNICALL cbVMStart(jvmtiEnv* /*jvmti*/, JNIEnv* /*jni*/) {
    puts("Starting Vantrel.");
}

void JNICALL cbVMInit(jvmtiEnv* jvmti, JNIEnv* jni, jthread /*thread*/) {
    // Another thread may end the VM at the same time. While this visitor is inside, it leaves the references alone.
    const Visit visit;
    enter_critical_section(jvmti);
    const int initialisation = agent_life.begin();
    InitCacheJavaObjects(jvmti, jni);
    lift_security_manager(jni);
    puts("Vantrel Initializing.");
    if (initialisation == 1) {
        setHotKeyVmAttachment({attach_as_daemon, detach});
        bindMacHotKey(keyCallback);
    } else if (initialisation == 2) {
        fprintf(stderr, "vantrel-agent: loaded more than once; one -agentpath is enough (see JAVA_TOOL_OPTIONS).\n");
    }
    exit_critical_section(jvmti);
}

jvmtiError InitCacheJavaObjects(jvmtiEnv* jvmti, JNIEnv* jni) {
    NSObject::Init(jvmti, jni);
    NSColor::Init(jvmti, jni);
    NSAppContext::Init(jvmti, jni);
    NSAWTEvent::Init(jvmti, jni);
    NSComponent::Init(jvmti, jni);
    NSAlphaComposite::Init(jvmti, jni);
    NSToolkit::Init(jvmti, jni);
    NSGraphics2D::Init(jvmti, jni);
    NSSystem::Init(jvmti, jni);
    NSSwingUtilities::Init(jvmti, jni);
    NSSwingContext::Init(jvmti, jni);
    NSThread::Init(jvmti, jni);
    NSEDTRunnable::Init(jvmti, jni);
    NSVantrel::Init(jvmti, jni);
    NSJComponent::Init(jvmti, jni);
    NSStackTraceManager::Init(jvmti, jni);
    NSVantrelFrame::Init(jvmti, jni);
    return jvmti->SetFieldModificationWatch(NSComponent::_c_Class, NSComponent::Component_parent);
}

void DeleteCachedJavaObjects(JNIEnv* jni) {
    jvmtiEnv* jvmti = gb_data.jvmti;
    NSVantrel::Destroy(jvmti, jni);
    NSGraphics2D::Destroy(jvmti, jni);
    NSSystem::Destroy(jvmti, jni);
    NSSwingUtilities::Destroy(jvmti, jni);
    NSSwingContext::Destroy(jvmti, jni);
    NSThread::Destroy(jvmti, jni);
    NSEDTRunnable::Destroy(jvmti, jni);
    NSAppContext::Destroy(jvmti, jni);
    NSToolkit::Destroy(jvmti, jni);
    NSAlphaComposite::Destroy(jvmti, jni);
    NSColor::Destroy(jvmti, jni);
    NSComponent::Destroy(jvmti, jni);
    NSAWTEvent::Destroy(jvmti, jni);
    NSObject::Destroy(jvmti, jni);
    NSJComponent::Destroy(jvmti, jni);
    NSStackTraceManager::Destroy(jvmti, jni);
    NSVantrelFrame::Destroy(jvmti, jni);
}

void JNICALL Agent_OnUnload(JavaVM* vm) {
    JNIEnv* jni_env = NULL;
    vm->AttachCurrentThread(reinterpret_cast<void**>(&jni_env), NULL);
    // The report of a failed assertion shows the expression as it is spelled here, so clang-format must not touch it.
    // clang-format off
    assert(jni_env!= NULL);
    // clang-format on
    const bool has_proxies = agent_life.end();
    unbindMacHotKey();
    if (has_proxies && agent_life.is_empty()) {
        DeleteCachedJavaObjects(jni_env);
    }
}

void keyCallback() {
    const Visit visit;
    if (!visit.turned_away()) {
        show_inspector();
    }
}

void JNICALL cbVMObjectAlloc(jvmtiEnv* /*jvmti*/, JNIEnv* /*jni*/, jthread /*thread*/, jobject /*object*/,
                             jclass /*object_klass*/, jlong /*size*/) {}

void JNICALL cbClassFileLoadHook(jvmtiEnv* jvmti, JNIEnv* jni, jclass /*class_being_redefined*/, jobject /*loader*/,
                                 const char* name, jobject /*protection_domain*/, jint /*class_data_len*/,
                                 const unsigned char* /*class_data*/, jint* new_class_data_len,
                                 unsigned char** new_class_data) {
    if (name == NULL) {
        return;
    }
    const char* methodName = supplier_method_of(name);
    if (methodName == NULL) {
        return;
    }

    jclass clazz = jni->FindClass("com/vantrel/util/BCIUtil");
    print_pending_exception(jni);
    assert(clazz != NULL);

    jmethodID method = jni->GetStaticMethodID(clazz, methodName, "()[B");
    print_pending_exception(jni);
    assert(method != NULL);

    auto byteArrayData = static_cast<jbyteArray>(jni->CallStaticObjectMethod(clazz, method));
    print_pending_exception(jni);
    assert(byteArrayData);

    const jsize length = jni->GetArrayLength(byteArrayData);
    jboolean is_copy = JNI_FALSE;
    const jbyte* bytes = jni->GetByteArrayElements(byteArrayData, &is_copy);

    // The VM owns the buffer from here on (JVMTI, ClassFileLoadHook).
    unsigned char* buffer = NULL;
    jvmti->Allocate(length, &buffer);
    memcpy(buffer, bytes, length);
    *new_class_data_len = length;
    *new_class_data = buffer;
}
