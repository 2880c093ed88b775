// The agent's proxies against what the generator makes of their members: the same text, but for what is listed here.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "CodeGenerater/CodeGenerater.h"
#include "CodeGenerater/generator.h"
#include "fake_vm.h"
#include "own_folder.h"

using generator::Method;
using testing::AnyOf;

namespace {

enum Kind { CONSTRUCTOR, METHOD, STATIC_METHOD, FIELD, STATIC_FIELD };

struct ProxyMember {
    const char* class_name;
    Kind kind;
    const char* name;
    const char* descriptor;
    const char* function;  // the wrapper's name
};

// All members of the agent's proxies, in the order of their numbers.
constexpr ProxyMember kMembers[] = {
#define PROXY_FIELD(C, CLASS, KIND, NAME, DESCRIPTOR) {CLASS, KIND, #NAME, DESCRIPTOR, ""},
#define PROXY_METHOD(C, CLASS, KIND, NAME, DESCRIPTOR, VARIABLE, FUNCTION) {CLASS, KIND, NAME, DESCRIPTOR, #FUNCTION},
#include "members.inc"
};

// Internal names of the classes, by simple name.
const std::map<std::string, std::string> kClasses = {
#define PROXY(C, CLASS) {#C, CLASS},
#include "members.inc"
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

// Gives a method the differences that the agent's proxies have throughout: a result that is an array is a jobject, a
// java.lang.Class is a jclass, and overloads that C++ can tell apart may have Java's name.
void differ_as_the_agent(Method& method, const std::string& function) {
    std::string with_arguments = method.name + "With";
    if (method.result.dimensions > 0) {
        method.result = {"jobject", "Object"};
    }
    for (generator::Argument& argument : method.arguments) {
        with_arguments += argument.word;
        if (argument.word == "Class") {
            argument.type = "jclass";
        }
    }
    EXPECT_THAT(function, AnyOf(method.wrapper, method.name, with_arguments));
    method.wrapper = function;
}

// Adds a class with the members of the agent's proxy to a fake VM. Returns the names of the proxy's wrappers, too.
std::pair<jclass, std::vector<std::string>> add_class(FakeVm& vm, const std::string& class_name) {
    const jclass clazz = vm.add_class(class_name);
    std::vector<std::string> functions;
    for (const ProxyMember& member : kMembers) {
        if (class_name != member.class_name) {
            continue;
        }
        const jint modifiers = member.kind == STATIC_METHOD || member.kind == STATIC_FIELD ? generator::kStatic : 0;
        vm.add_member(clazz, member.name, member.descriptor, modifiers);
        if (member.kind != FIELD && member.kind != STATIC_FIELD) {
            functions.emplace_back(member.function);
        }
    }
    return {clazz, functions};
}

// What the generator makes of a class with the members of the agent's proxy.
generator::Proxy generate_proxy(const std::string& class_name) {
    FakeVm vm;
    const auto [clazz, functions] = add_class(vm, class_name);
    generator::Proxy proxy = generator::read_proxy(vm.jvmti, clazz, class_name);
    EXPECT_EQ(proxy.methods.size(), functions.size());
    for (size_t i = 0; i < functions.size(); ++i) {
        differ_as_the_agent(proxy.methods[i], functions[i]);
    }
    return proxy;
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

struct Counts {
    int constructors = 0;
    int methods = 0;
    int static_methods = 0;
    int fields = 0;
    int static_fields = 0;
    bool operator==(const Counts&) const = default;
};

void PrintTo(const Counts& counts, std::ostream* out) {
    *out << counts.constructors << " constructors, " << counts.methods << " methods (" << counts.static_methods
         << " static), " << counts.fields << " fields (" << counts.static_fields << " static)";
}

Counts counts_of(const std::string& class_name) {
    Counts counts;
    for (const ProxyMember& member : kMembers) {
        if (class_name == member.class_name) {
            counts.constructors += member.kind == CONSTRUCTOR ? 1 : 0;
            counts.methods += member.kind == METHOD || member.kind == STATIC_METHOD ? 1 : 0;
            counts.static_methods += member.kind == STATIC_METHOD ? 1 : 0;
            counts.fields += member.kind == FIELD || member.kind == STATIC_FIELD ? 1 : 0;
            counts.static_fields += member.kind == STATIC_FIELD ? 1 : 0;
        }
    }
    return counts;
}

TEST(Proxies, HoldWhatTheyAreMeantToHold) {
    const std::map<std::string, Counts> expected = {
        {"AWTEvent", {2, 8, 0, 23, 21}},   {"AlphaComposite", {0, 1, 1, 0, 0}},
        {"AppContext", {1, 15, 3, 3, 3}},  {"ArrayList", {3, 19, 0, 0, 0}},
        {"Color", {7, 26, 7, 27, 26}},     {"Component", {0, 289, 4, 69, 27}},
        {"Container", {1, 124, 0, 11, 3}}, {"EDTRunnable", {1, 1, 0, 0, 0}},
        {"EventObject", {1, 2, 0, 0, 0}},  {"Graphics", {0, 50, 0, 0, 0}},
        {"Graphics2D", {0, 39, 0, 0, 0}},  {"JComponent", {1, 151, 12, 8, 7}},
        {"Object", {1, 9, 0, 0, 0}},       {"StackTraceManager", {1, 3, 3, 0, 0}},
        {"SwingContext", {0, 1, 1, 0, 0}}, {"SwingUtilities", {0, 56, 56, 0, 0}},
        {"System", {0, 1, 1, 0, 0}},       {"Thread", {8, 43, 12, 6, 3}},
        {"Toolkit", {0, 2, 1, 0, 0}},      {"Vantrel", {0, 3, 2, 0, 0}},
        {"VantrelFrame", {0, 3, 1, 0, 0}},
    };
    std::map<std::string, Counts> counted;
    for (const auto& [name, class_name] : kClasses) {
        counted[name] = counts_of(class_name);
    }
    EXPECT_EQ(counted, expected);
}

TEST(GeneratorShape, IsThatOfTheAgentsProxies) {
    for (const auto& [name, class_name] : kClasses) {
        if (kByHand.contains(name)) {
            continue;
        }
        SCOPED_TRACE(name);
        const generator::Proxy proxy = generate_proxy(class_name);
        EXPECT_EQ(with_additions(generator::header_text(proxy), name + ".h"), proxy_file(name + ".h"));
        EXPECT_EQ(with_additions(generator::body_text(proxy), name + ".cpp"), proxy_file(name + ".cpp"));
    }
}

// The library's own way to the files goes by records of fixed sizes, the command's does not. What fits into the records
// comes out the same.
TEST(GeneratorShape, IsTheSameByTheLibrarysRecords) {
    const OwnFolder folder;
    for (const auto& [name, class_name] : kClasses) {
        SCOPED_TRACE(name);
        FakeVm vm;
        const jclass clazz = add_class(vm, class_name).first;
        std::string internal_name = class_name;
        char out[] = "out";
        ASSERT_TRUE(GenerateFiles(vm.jvmti, vm.jni, internal_name.data(), out));
        const generator::Proxy proxy = generator::read_proxy(vm.jvmti, clazz, class_name);
        EXPECT_EQ(text_of("out\\" + name + ".h"), generator::header_text(proxy));
        EXPECT_EQ(text_of("out\\" + name + ".cpp"), generator::body_text(proxy));
    }
}

}  // namespace
