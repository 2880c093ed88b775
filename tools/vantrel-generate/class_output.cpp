#include "class_output.h"

#include <CodeGenerater/descriptors.h>
#include <CodeGenerater/generator.h>

#include <algorithm>
#include <iostream>

#include "failure.h"

namespace fs = std::filesystem;
using generator::Argument;
using generator::Field;
using generator::Method;
using generator::Proxy;

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

void refuse_unnamed_arguments(const Proxy& proxy) {
    for (const Method& method : proxy.methods) {
        for (const Argument& argument : method.arguments) {
            if (generator::is_in_no_package(argument.descriptor)) {
                throw Failure{proxy.internal_name + ": its method " + method.name + " " + method.descriptor +
                              " has an argument whose class is in no package, which a proxy cannot have"};
            }
        }
    }
}

void list(const Proxy& proxy) {
    const auto word = [](int modifiers) { return (modifiers & generator::kStatic) != 0 ? "static " : ""; };
    std::cout << proxy.internal_name << "\n";
    for (const Field& field : proxy.fields) {
        std::cout << "    " << word(field.modifiers) << field.name << " " << field.descriptor << "\n";
    }
    int number = 0;
    for (const Method& method : proxy.methods) {
        std::cout << "    " << number++ << " " << word(method.modifiers) << method.wrapper << " " << method.descriptor
                  << "\n";
    }
    std::cout.flush();
}

void write(const Proxy& proxy, const fs::path& folder) {
    const std::string path = folder / proxy.class_name;
    const std::string fault = generator::write_proxy(proxy, path + ".h", path + ".cpp");
    if (!fault.empty()) {
        throw Failure{proxy.internal_name + ": " + fault};
    }
}

}  // namespace

void generate::write_or_list(const RunningVm& vm, const std::string& name, const fs::path& folder,
                             std::set<std::string>& written) {
    const std::string internal = internal_name(name);
    const LocalFrame frame(vm.env);
    const Proxy proxy = generator::read_proxy(vm.jvmti, load(vm.env, internal), internal);
    refuse_unnamed_arguments(proxy);
    if (folder.empty()) {
        list(proxy);
        return;
    }
    if (!written.insert(proxy.class_name).second) {
        throw Failure{internal + ": another class has been written to " + proxy.class_name + ".h in this run"};
    }
    write(proxy, folder);
}
