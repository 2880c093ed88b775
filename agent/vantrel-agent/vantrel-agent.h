// The agent core: the entry points that a Java VM calls, the agent's one record of state, and the JVMTI callbacks.
//
// The VM calls Agent_OnLoad while it starts (-agentpath). That puts the companion jar, which lies in the folder of this
// library, on the boot class path, and enables three events: VM start, VM initialisation and the class-file-load hook.
// From then on the core runs in the callbacks below, on whatever thread the VM reports an event. At VM initialisation
// the proxies are filled, which also gives the companion its native methods, and the hot key is bound.
//
// Names and messages that look like slips (GetVantrelCassPath, a message without an end of line) are part of what
// callers and users know, and stay as they are.
#ifndef VANTREL_AGENT_H
#define VANTREL_AGENT_H

#include <jvmti.h>

// The agent's state. The one instance is zero when the library is mapped, and is never freed. All but `loaded` is
// written before the first event is enabled, so callbacks read it without a lock.
struct AgentData {
    jvmtiEnv* jvmti;          // the environment that Agent_OnLoad obtained
    JavaVM* jvm;              // the VM that loaded the agent
    jrawMonitorID lock;       // the raw monitor "agent data"
    const char* libraryPath;  // this library's file; the dynamic loader owns the text
    jint loaded;              // 1 once Agent_OnLoad has succeeded; for a debugger's eyes
};
extern AgentData gb_data;

// Entry points, declared by jvmti.h and exported (JVMTI, "Agent Start-Up"):
//
// Agent_OnLoad sets the agent up. It ignores its options. It returns 0, or -1 if a step up to the search for the
// companion jar fails; a message says which, except where the VM refuses the capabilities. A JVMTI call that fails
// after that ends the process with status 3.
//
// Agent_OnAttach refuses with 1: in a running VM the classes that the agent replaces may already be loaded.
//
// Agent_OnUnload, which the VM calls while it shuts down, gives the hot key and the proxies' references back. It
// attaches the thread that it is called on. If the VM was never initialised, or the agent has been unloaded already,
// there are no references to give back. If a thread is inside the agent (agent_life.h), they are not given back. A VM
// that is initialised after that begins a new life.
//
// A library that is named twice is loaded, initialised and unloaded twice. The later initialisation fills the proxies
// once more, says so on stderr, and binds no second hot key.

// Records this library's path in gb_data. Run by the dynamic loader when it maps the library.
void on_load();

// Writes the path of the companion jar, "vantrel-VERSION.jar" in the folder of gb_data.libraryPath, to `dst` and says
// whether that file exists. The folder ends at the last '/' or '\'; a library path without either gives the bare name.
// A library or jar path of 1024 bytes or more counts as a jar that does not exist, and so does one that does not fit
// `dst`; `dst` then holds as much of the path as it can.
//   dst   room for `size` bytes; all zero after the path
bool GetVantrelCassPath(char* dst, unsigned long size);

// Enter and leave gb_data.lock. A failure ends the process with status 3.
void enter_critical_section(jvmtiEnv* jvmti);
void exit_critical_section(jvmtiEnv* jvmti);

// JVMTI callbacks whose events Agent_OnLoad enables.

void JNICALL cbVMStart(jvmtiEnv* jvmti, JNIEnv* jni);

// Begins the agent's life: fills the proxies, lifts the security manager where the VM lets it be lifted, and binds the
// hot key; all of it under gb_data.lock.
void JNICALL cbVMInit(jvmtiEnv* jvmti, JNIEnv* jni, jthread thread);

// Replaces the class files of java.awt.Component and java.awt.Container by those that the companion's helper class
// com.vantrel.util.BCIUtil makes; every other class passes untouched. A helper that is missing or fails ends the VM
// with an assertion, after what Java threw was printed. Takes no lock.
void JNICALL cbClassFileLoadHook(jvmtiEnv* jvmti, JNIEnv* jni, jclass class_being_redefined, jobject loader,
                                 const char* name, jobject protection_domain, jint class_data_len,
                                 const unsigned char* class_data, jint* new_class_data_len,
                                 unsigned char** new_class_data);

// Initialises the 17 proxies that the agent uses, each after those that it needs, and asks for a watch on
// java.awt.Component.parent. Returns the VM's answer to that: JVMTI_ERROR_MUST_POSSESS_CAPABILITY, because the agent
// does not take that capability.
jvmtiError InitCacheJavaObjects(jvmtiEnv* jvmti, JNIEnv* jni);

// Deletes the references of the same 17 proxies.
void DeleteCachedJavaObjects(JNIEnv* jni);

// What the hot key does. It attaches the thread that it is called on to the VM, and leaves it attached; lifts the
// security manager; and has the companion show the inspector. If Java throws, the exception is described on stderr and
// cleared.
void keyCallback();

// JVMTI callbacks that are installed and dormant: their events are never enabled.

void JNICALL cbVMObjectAlloc(jvmtiEnv* jvmti, JNIEnv* jni, jthread thread, jobject object, jclass object_klass,
                             jlong size);
void JNICALL cbException(jvmtiEnv* jvmti, JNIEnv* jni, jthread thread, jmethodID method, jlocation location,
                         jobject exception, jmethodID catch_method, jlocation catch_location);
void JNICALL cbFieldModification(jvmtiEnv* jvmti, JNIEnv* jni, jthread thread, jmethodID method, jlocation location,
                                 jclass field_klass, jobject object, jfieldID field, char signature_type,
                                 jvalue new_value);
void JNICALL cbMethodExit(jvmtiEnv* jvmti, JNIEnv* jni, jthread thread, jmethodID method,
                          jboolean was_popped_by_exception, jvalue return_value);

#endif
