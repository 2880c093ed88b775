// The agent's proxies against what the generator makes of their members: the same text, but for what is listed here.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "CodeGenerater/fitting.h"
#include "CodeGenerater/writers.h"
#include "fake_vm.h"
#include "own_folder.h"

using generator::copy_fitting;
using testing::AnyOf;

namespace {

enum Kind { CONSTRUCTOR, METHOD, STATIC_METHOD, FIELD, STATIC_FIELD };

struct Member {
    const char* class_name;
    Kind kind;
    const char* name;
    const char* descriptor;
    const char* function;  // the wrapper's name
};

// All members of the agent's proxies, in the order of their numbers.
constexpr Member kMembers[] = {
#define PROXY(C, CLASS)
#define PROXY_FIELD(C, CLASS, KIND, NAME, DESCRIPTOR) {CLASS, KIND, #NAME, DESCRIPTOR, ""},
#define PROXY_WRAPPER(C, CLASS, KIND, NAME, DESCRIPTOR, VARIABLE, FUNCTION, ...) \
    {CLASS, KIND, NAME, DESCRIPTOR, #FUNCTION},
#define PROXY_UNWRAPPED(C, CLASS, KIND, NAME, DESCRIPTOR, VARIABLE) {CLASS, KIND, NAME, DESCRIPTOR, ""},
#include "members.inc"
#undef PROXY
#undef PROXY_FIELD
#undef PROXY_WRAPPER
#undef PROXY_UNWRAPPED
};

// Internal names of the classes, by simple name.
const std::map<std::string, std::string> kClasses = {
#define PROXY(C, CLASS) {#C, CLASS},
#define PROXY_FIELD(...)
#define PROXY_WRAPPER(...)
#define PROXY_UNWRAPPED(...)
#include "members.inc"
#undef PROXY
#undef PROXY_FIELD
#undef PROXY_WRAPPER
#undef PROXY_UNWRAPPED
};

// The proxies that are written by hand as a whole: Init looks up their methods, and some have native methods.
const std::set<std::string, std::less<>> kByHand = {"AlphaComposite", "SwingContext", "System", "Toolkit", "Vantrel"};

// What else was added by hand, in front of a line of a file.
const struct {
    std::string file;
    std::string line;
    std::string added;
} kAdded[] = {
    {"EDTRunnable.cpp", "\t\tINIT_CACHE_CLASS(jni_env, ", "\t\tif (JAVA_CLASS(EDTRunnable)){\n\t\t\treturn;\n\t\t}\n"},
    {"StackTraceManager.cpp", "\t\tINIT_CACHE_CLASS(jni_env, ",
     "\t\tif (JAVA_CLASS(StackTraceManager)){\n\t\t\treturn;\n\t\t}\n"},
    {"StackTraceManager.cpp", "\t//fields(", "\tbool vantrelAddStackTrace = false;\n\n"},
    {"StackTraceManager.h", "\textern CACHE_JAVA_CONSTRUCTOR(StackTraceManager, 0)",
     "\t//Whether added components are tracked. Set by Agent_OnLoad once it has asked for its capabilities; set back "
     "where\n"
     "\t//they are refused.\n"
     "\textern bool vantrelAddStackTrace;\n\n"},
    {"VantrelFrame.h", "\textern CACHE_JAVA_STATIC_METHOD(VantrelFrame, getInstance, 0)",
     "\t//<java.home>\\bin\\jawt.dll, cut where it does not fit. Nothing reads it.\n"
     "\textern char jawt_dll_path[1024];\n\n"},
    {"VantrelFrame.h", "\tJNIEXPORT void JNICALL Init(",
     "\t//Native method, registered by Init (companion_natives.cpp).\n"
     "\tvoid JNICALL _setOpacity(JNIEnv *env, jobject _this, jint opacity);\n\n"},
    {"VantrelFrame.cpp", "\nnamespace ", "#include <stdio.h>\n"},
    {"VantrelFrame.cpp", "\t//fields(", "\tchar jawt_dll_path[1024];\n\n"},
    {"VantrelFrame.cpp", "\tJNIEXPORT void JNICALL Init(",
     "\tstatic const JNINativeMethod natives[] = {\n"
     "\t\t{const_cast<char *>(\"setOpacity\"), const_cast<char *>(\"(I)V\"), "
     "reinterpret_cast<void *>(_setOpacity)},\n"
     "\t};\n\n"},
    {"VantrelFrame.cpp", "\t}\n\n\tJNIEXPORT void JNICALL Destroy(",
     "\t\tjni_env->RegisterNatives(JAVA_CLASS(VantrelFrame), natives, 1);\n\n"
     "\t\tchar *java_home = NULL;\n"
     "\t\tjvmti_env->GetSystemProperty(\"java.home\", &java_home);\n"
     "\t\tsnprintf(jawt_dll_path, sizeof(jawt_dll_path), \"%s\\\\bin\\\\jawt.dll\", java_home != NULL ? java_home : "
     "\"\");\n"},
};

// Gives the record the differences that the agent's proxies have throughout: a result that is an array is a jobject, a
// java.lang.Class is a jclass, and overloads that C++ can tell apart may have Java's name.
void differ_as_the_agent(MethodEntity& method, const std::string& function) {
    std::string with_arguments = std::string(method.name) + "With";
    if (method.is_array != 0) {
        copy_fitting(method.return_type, "jobject");
        method.is_array = 0;
    }
    for (int i = 0; i < method.argu_count; ++i) {
        ArgumentEntity& argument = *method.argus[i];
        with_arguments += argument.argu_name;
        if (strcmp(argument.argu_name, "Class") == 0) {
            copy_fitting(argument.type_name, "jclass");
        }
    }
    EXPECT_THAT(function, AnyOf(method.func_name, method.name, with_arguments));
    copy_fitting(method.func_name, function);
}

struct Texts {
    std::string header;
    std::string body;
};

// What the generator writes for a class with the members of its proxy.
Texts generate(const std::string& name, const std::string& class_name) {
    FakeVm vm;
    const jclass clazz = vm.add_class(class_name);
    std::vector<std::string> functions;
    for (const Member& member : kMembers) {
        if (class_name != member.class_name) {
            continue;
        }
        const jint modifiers = member.kind == STATIC_METHOD || member.kind == STATIC_FIELD ? kStatic : 0;
        if (member.kind == FIELD || member.kind == STATIC_FIELD) {
            set_modifiers(vm.add_field(clazz, member.name, member.descriptor), modifiers);
        } else {
            set_modifiers(vm.add_method(clazz, member.name, member.descriptor), modifiers);
            functions.emplace_back(member.function);
        }
    }
    std::string simple_name = name;
    const generator::AcceptedEntities accepted(vm.jvmti, clazz, simple_name.data());
    EXPECT_EQ(accepted.all.method_count, functions.size());
    for (size_t i = 0; i < functions.size(); ++i) {
        differ_as_the_agent(*accepted.all.methods[i], functions[i]);
    }
    const OwnFolder folder;
    EXPECT_EQ(generator::write_proxy("header", "body", class_name.c_str(), accepted.all), "");
    return {text_of("header"), text_of("body")};
}

std::string with_additions(std::string text, const std::string& file) {
    for (const auto& addition : kAdded) {
        if (addition.file == file) {
            const size_t at = text.find(addition.line);
            EXPECT_NE(at, std::string::npos) << addition.line;
            text.insert(std::min(at, text.size()), addition.added);
        }
    }
    return text;
}

std::string proxy_file(const std::string& file) {
    return text_of(std::filesystem::path(VANTREL_PROXIES) / file);
}

TEST(GeneratorShape, IsThatOfTheAgentsProxies) {
    EXPECT_EQ(kClasses.size(), 21);
    for (const auto& [name, class_name] : kClasses) {
        if (kByHand.contains(name)) {
            continue;
        }
        SCOPED_TRACE(name);
        const Texts generated = generate(name, class_name);
        EXPECT_EQ(with_additions(generated.header, name + ".h"), proxy_file(name + ".h"));
        EXPECT_EQ(with_additions(generated.body, name + ".cpp"), proxy_file(name + ".cpp"));
    }
}

}  // namespace
