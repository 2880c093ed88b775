#include "generation.h"

#include <CodeGenerater/entities.h>
#include <CodeGenerater/jvmti_memory.h>
#include <CodeGenerater/writers.h>

#include <algorithm>
#include <iostream>
#include <memory>
#include <string_view>

#include "failure.h"

namespace fs = std::filesystem;
using generator::AcceptedEntities;
using generator::ClassEntities;
using generator::JvmtiArray;

namespace {

// Local references that are given back together.
struct LocalFrame {
    explicit LocalFrame(JNIEnv* jni) : env(jni) { env->PushLocalFrame(16); }
    ~LocalFrame() { env->PopLocalFrame(nullptr); }
    LocalFrame(const LocalFrame&) = delete;
    LocalFrame& operator=(const LocalFrame&) = delete;
    JNIEnv* env;
};

std::string internal_name(const std::string& name) {
    std::string internal = name;
    std::replace(internal.begin(), internal.end(), '.', '/');
    const bool empty_part = internal.empty() || internal.front() == '/' || internal.back() == '/' ||
                            internal.find("//") != std::string::npos;
    if (empty_part || internal.find_first_of(";[") != std::string::npos) {
        throw Failure{"'" + name + "' is not a class name; write it like java.awt.Container or java/awt/Container"};
    }
    return internal;
}

// What Java has to say about the pending exception, from its innermost cause. Nothing is pending afterwards.
std::string take_exception(JNIEnv* env) {
    jthrowable thrown = env->ExceptionOccurred();
    env->ExceptionClear();
    jclass throwable = env->FindClass("java/lang/Throwable");
    jmethodID get_cause = env->GetMethodID(throwable, "getCause", "()Ljava/lang/Throwable;");
    jmethodID to_string = env->GetMethodID(throwable, "toString", "()Ljava/lang/String;");
    // A cause may be its own.
    for (int depth = 0; depth < 8; ++depth) {
        auto* const cause = static_cast<jthrowable>(env->CallObjectMethod(thrown, get_cause));
        if (env->ExceptionCheck() != JNI_FALSE || cause == nullptr) {
            break;
        }
        thrown = cause;
    }
    env->ExceptionClear();
    auto* const text = static_cast<jstring>(env->CallObjectMethod(thrown, to_string));
    if (env->ExceptionCheck() != JNI_FALSE || text == nullptr) {
        env->ExceptionClear();
        return "an exception without a text";
    }
    const char* characters = env->GetStringUTFChars(text, nullptr);
    std::string line = characters;
    env->ReleaseStringUTFChars(text, characters);
    std::replace(line.begin(), line.end(), '\n', ' ');
    return line;
}

jclass load(JNIEnv* env, const std::string& name) {
    jclass clazz = env->FindClass(name.c_str());
    if (clazz == nullptr) {
        throw Failure{name + ": cannot be loaded: " + take_exception(env)};
    }
    return clazz;
}

// Whether an argument's class is in the unnamed package.
bool has_unnamed_argument(std::string_view descriptor) {
    const std::string_view arguments = descriptor.substr(0, descriptor.rfind(')'));
    for (size_t at = 1; at < arguments.size(); ++at) {
        if (arguments[at] == 'L') {
            const size_t end = arguments.find(';', at);
            if (arguments.substr(at, end - at).find('/') == std::string_view::npos) {
                return true;
            }
            at = end;
        }
    }
    return false;
}

// The generator fails an assertion at such an argument, which would end the command with classes still to be written.
void refuse_unnamed_arguments(jvmtiEnv* jvmti, jclass clazz, const std::string& name, char* class_name) {
    jint count = 0;
    jmethodID* methods = nullptr;
    jvmti->GetClassMethods(clazz, &count, &methods);
    const JvmtiArray<jmethodID> given(methods, {jvmti});
    for (jint i = 0; i < count; ++i) {
        jint modifiers = 0;
        char* method = nullptr;
        char* descriptor = nullptr;
        jvmti->GetMethodModifiers(methods[i], &modifiers);
        jvmti->GetMethodName(methods[i], &method, &descriptor, nullptr);
        const JvmtiArray<char> given_name(method, {jvmti});
        const JvmtiArray<char> given_descriptor(descriptor, {jvmti});
        if (method != nullptr && descriptor != nullptr && CanAcceptMethod(class_name, method, modifiers) != 0 &&
            has_unnamed_argument(descriptor)) {
            throw Failure{name + ": its method " + method + " " + descriptor +
                          " has an argument whose class is in no package, which a proxy cannot have"};
        }
    }
}

void list(const std::string& name, const ClassEntities& entities) {
    const auto word = [](int modifiers) { return (modifiers & kStatic) != 0 ? "static " : ""; };
    std::cout << name << "\n";
    for (int i = 0; i < entities.field_count; ++i) {
        const FieldEntity& field = *entities.fields[i];
        std::cout << "    " << word(field.modifiers) << field.name << " " << field.signature << "\n";
    }
    for (int i = 0; i < entities.method_count; ++i) {
        const MethodEntity& method = *entities.methods[i];
        std::cout << "    " << i << " " << word(method.modifiers) << method.func_name << " " << method.signature
                  << "\n";
    }
    std::cout.flush();
}

void write(const std::string& name, const ClassEntities& entities, const fs::path& folder) {
    const std::string path = folder / entities.name;
    const std::string error = generator::write_proxy(path + ".h", path + ".cpp", name.c_str(), entities);
    if (!error.empty()) {
        throw Failure{name + ": " + error};
    }
}

}  // namespace

void generate(const RunningVm& vm, const std::string& name, const fs::path& folder, std::set<std::string>& written) {
    const std::string internal = internal_name(name);
    const std::string simple_name = internal.substr(internal.rfind('/') + 1);
    if (simple_name.size() >= kClassNameSize) {
        throw Failure{internal + ": its name is too long"};
    }
    char class_name[kClassNameSize] = {};
    simple_name.copy(class_name, kClassNameSize - 1);

    const LocalFrame frame(vm.env);
    jclass clazz = load(vm.env, internal);
    refuse_unnamed_arguments(vm.jvmti, clazz, internal, class_name);
    if (folder.empty()) {
        list(internal, AcceptedEntities(vm.jvmti, clazz, class_name).all);
        return;
    }
    if (!written.insert(simple_name).second) {
        throw Failure{internal + ": another class has been written to " + simple_name + ".h in this run"};
    }
    write(internal, AcceptedEntities(vm.jvmti, clazz, class_name).all, folder);
}
