// An agent that passes every class of an application through the rewriter as it is loaded.
//
//     -agentpath:REWRITE_AT_LOAD=TRACKER_JAR:REPORT[:today]
//
// By java_crw_demo, which passes newer classes over, or "today" by vantrel_rewriter_rewrite.
//
// Writes REPORT (java/tracking/Tracker.java says what it holds) and REPORT.classes, which has a line "class" for each
// class that was rewritten, a line "method" for each method of it, and a line "refused" for each class that the
// rewriter refused; "live" is the number of calls of rewritten methods that are under way when the VM ends.
#include <jvmti.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <mutex>
#include <set>
#include <string>
#include <vector>

#include "rewriting.h"

namespace {

constexpr unsigned kNewestForJavaCrwDemo = 52;

struct State {
    jvmtiEnv* jvmti;
    std::string report;
    bool is_modern;
    jclass tracker;
    jmethodID thrown;
    std::atomic<unsigned> next_number{0};
    std::mutex lock;  // of what follows
    std::set<std::string> rewritten;
    std::ofstream classes;
};
State* state;

void check(jvmtiError error, const char* what) {
    if (error != JVMTI_ERROR_NONE) {
        fprintf(stderr, "rewrite-at-load: %s: error %d\n", what, static_cast<int>(error));
        abort();
    }
}

std::string with_numbers(const std::string& kind, unsigned class_number, size_t method_number) {
    return kind + "\t" + std::to_string(class_number) + "\t" + std::to_string(method_number);
}

ClassImage rewrite_loaded(std::span<const unsigned char> image, const std::string& name) {
    std::string lines;
    Rewriting how;
    how.class_number = state->next_number++;
    how.is_modern = state->is_modern;
    how.name = name.c_str();
    how.method_names = [&](unsigned number, std::span<const char*> names, std::span<const char*> descriptors) {
        for (size_t i = 0; i < names.size(); ++i) {
            lines += with_numbers("method", number, i) + "\t" + name + "\t" + names[i] + descriptors[i] + "\n";
        }
    };
    ClassImage result = rewrite(image, how);

    const std::lock_guard hold(state->lock);
    state->rewritten.insert(name);
    state->classes << "class\t" << name << '\n' << lines;
    return result;
}

void JNICALL on_class(jvmtiEnv* jvmti, JNIEnv* /*env*/, jclass redefined, jobject loader, const char* /*name*/,
                      jobject /*protection*/, jint length, const unsigned char* bytes, jint* new_length,
                      unsigned char** new_bytes) {
    const std::span image(bytes, static_cast<size_t>(length));
    const bool is_too_new = !state->is_modern && class_version(image) > kNewestForJavaCrwDemo;
    if (loader == nullptr || redefined != nullptr || is_too_new) {
        return;
    }
    try {
        const ClassImage result = rewrite_loaded(image, class_name(image));
        check(jvmti->Allocate(static_cast<jlong>(result.size()), new_bytes), "Allocate");
        std::copy(result.begin(), result.end(), *new_bytes);
        *new_length = static_cast<jint>(result.size());
    } catch (const std::exception& refusal) {
        const std::lock_guard hold(state->lock);
        state->classes << "refused\t" << refusal.what() << '\n';
    }
}

void JNICALL on_exception(jvmtiEnv* /*jvmti*/, JNIEnv* env, jthread /*thread*/, jmethodID /*method*/,
                          jlocation /*location*/, jobject /*exception*/, jmethodID /*catch_method*/,
                          jlocation /*catch_location*/) {
    env->CallStaticVoidMethod(state->tracker, state->thrown);
    env->ExceptionClear();  // no stack left
}

bool is_rewritten(jmethodID method) {
    jclass type = nullptr;
    char* signature = nullptr;
    check(state->jvmti->GetMethodDeclaringClass(method, &type), "GetMethodDeclaringClass");
    check(state->jvmti->GetClassSignature(type, &signature, nullptr), "GetClassSignature");
    const std::string text = signature;
    state->jvmti->Deallocate(reinterpret_cast<unsigned char*>(signature));
    return state->rewritten.contains(text.substr(1, text.size() - 2));
}

int live_calls() {
    jvmtiStackInfo* stacks = nullptr;
    jint threads = 0;
    check(state->jvmti->GetAllStackTraces(10'000, &stacks, &threads), "GetAllStackTraces");
    int live = 0;
    for (const jvmtiStackInfo& stack : std::span(stacks, static_cast<size_t>(threads))) {
        for (const jvmtiFrameInfo& frame : std::span(stack.frame_buffer, static_cast<size_t>(stack.frame_count))) {
            live += static_cast<int>(is_rewritten(frame.method));
        }
    }
    state->jvmti->Deallocate(reinterpret_cast<unsigned char*>(stacks));
    return live;
}

// A module reads the tracker's only when it is told to, and the class path is no module.
void let_all_modules_read(JNIEnv* env, jclass tracker) {
    jclass type = env->FindClass("java/lang/Class");
    jobject unnamed = env->CallObjectMethod(tracker, env->GetMethodID(type, "getModule", "()Ljava/lang/Module;"));
    jint count = 0;
    jobject* modules = nullptr;
    check(state->jvmti->GetAllModules(&count, &modules), "GetAllModules");
    for (jobject reader : std::span(modules, static_cast<size_t>(count))) {
        check(state->jvmti->AddModuleReads(reader, unnamed), "AddModuleReads");
        env->DeleteLocalRef(reader);
    }
    state->jvmti->Deallocate(reinterpret_cast<unsigned char*>(modules));
}

void JNICALL on_start(jvmtiEnv* jvmti, JNIEnv* env, jthread /*thread*/) {
    state->tracker = env->FindClass("tracking/Tracker");
    if (state->tracker == nullptr) {
        env->FatalError("no tracker");
    }
    state->tracker = static_cast<jclass>(env->NewGlobalRef(state->tracker));
    let_all_modules_read(env, state->tracker);
    state->thrown = env->GetStaticMethodID(state->tracker, "thrown", "()V");
    check(jvmti->SetEventNotificationMode(JVMTI_ENABLE, JVMTI_EVENT_EXCEPTION, nullptr), "exceptions");
}

void JNICALL on_end(jvmtiEnv* jvmti, JNIEnv* env) {
    check(jvmti->SetEventNotificationMode(JVMTI_DISABLE, JVMTI_EVENT_CLASS_FILE_LOAD_HOOK, nullptr), "classes");
    jmethodID report = env->GetStaticMethodID(state->tracker, "report", "(Ljava/lang/String;)V");
    env->CallStaticVoidMethod(state->tracker, report, env->NewStringUTF(state->report.c_str()));
    if (env->ExceptionCheck() != JNI_FALSE) {
        env->ExceptionDescribe();
        env->FatalError("no report");
    }
    const std::lock_guard hold(state->lock);
    state->classes << "live\t" << live_calls() << '\n' << std::flush;
    // Last, because a thread that throws stands there, too, once the report is made.
    check(jvmti->SetEventNotificationMode(JVMTI_DISABLE, JVMTI_EVENT_EXCEPTION, nullptr), "exceptions");
}

}  // namespace

extern "C" JNIEXPORT jint JNICALL Agent_OnLoad(JavaVM* vm, char* options, void* /*reserved*/) {
    const std::string text = options != nullptr ? options : "";
    const size_t colon = text.find(':');
    if (colon == std::string::npos) {
        fputs("rewrite-at-load: options are TRACKER_JAR:REPORT[:today]\n", stderr);
        return JNI_ERR;
    }
    state = new State{};  // for as long as the process lives: VM threads may still be at work when it ends
    const size_t second_colon = text.find(':', colon + 1);
    state->report = text.substr(colon + 1, second_colon - colon - 1);
    state->is_modern = second_colon != std::string::npos;
    state->classes.open(state->report + ".classes");
    if (vm->GetEnv(reinterpret_cast<void**>(&state->jvmti), JVMTI_VERSION_9) != JNI_OK) {
        return JNI_ERR;
    }
    jvmtiEnv* jvmti = state->jvmti;
    check(jvmti->AddToBootstrapClassLoaderSearch(text.substr(0, colon).c_str()), "boot class path");
    jvmtiCapabilities capabilities{};
    capabilities.can_generate_exception_events = 1;
    check(jvmti->AddCapabilities(&capabilities), "capabilities");
    jvmtiEventCallbacks callbacks{};
    callbacks.ClassFileLoadHook = on_class;
    callbacks.Exception = on_exception;
    callbacks.VMInit = on_start;
    callbacks.VMDeath = on_end;
    check(jvmti->SetEventCallbacks(&callbacks, sizeof callbacks), "callbacks");
    for (const jvmtiEvent event : {JVMTI_EVENT_CLASS_FILE_LOAD_HOOK, JVMTI_EVENT_VM_INIT, JVMTI_EVENT_VM_DEATH}) {
        check(jvmti->SetEventNotificationMode(JVMTI_ENABLE, event, nullptr), "events");
    }
    return JNI_OK;
}
