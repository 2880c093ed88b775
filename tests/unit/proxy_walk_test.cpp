// Every wrapper, field and assertion of every proxy, against the fake VM: the names, descriptors and orders of all
// look-ups, the calls they lead to, and what comes back.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "all_proxies.h"
#include "fake_vm.h"

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::KilledBySignal;

namespace {

enum Kind { CONSTRUCTOR, METHOD, STATIC_METHOD, FIELD, STATIC_FIELD };

// The proxies whose methods only Init looks up.
const std::set<std::string, std::less<>> kEager = {"System", "Toolkit", "AlphaComposite", "Vantrel", "SwingContext"};

// The wrappers that call nothing, and those that make another call than the result asks for.
const std::set<std::string, std::less<>> kPlainReads = {"Vantrel.getInstance"};
const std::set<std::string, std::less<>> kCallForObject = {"System.setSecurityManager", "Toolkit.addAWTEventListener"};

struct Member {
    const char* proxy;
    const char* class_name;
    Kind kind;
    const char* name;
    const char* descriptor;
};

std::string path_of(const Member& member) {
    return std::string(member.proxy) + "." + member.name;
}

// C++ types as the descriptors of the types that they stand for; a reference of no special type is L.

template <typename T>
struct Code;
#define CODE(Type, Text)                                            \
    template <>                                                     \
    struct Code<Type> {                                             \
        [[maybe_unused]] static constexpr const char* value = Text; \
    }
CODE(void, "V");
CODE(jboolean, "Z");
CODE(jbyte, "B");
CODE(jchar, "C");
CODE(jshort, "S");
CODE(jint, "I");
CODE(jlong, "J");
CODE(jfloat, "F");
CODE(jdouble, "D");
CODE(jobject, "L");
CODE(jclass, "class");
CODE(jbooleanArray, "[Z");
CODE(jbyteArray, "[B");
CODE(jcharArray, "[C");
CODE(jshortArray, "[S");
CODE(jintArray, "[I");
CODE(jlongArray, "[J");
CODE(jfloatArray, "[F");
CODE(jdoubleArray, "[D");
CODE(jobjectArray, "[L");
#undef CODE

// The descriptors of the parameters, and last of the result.
std::vector<std::string> parts_of(const std::string& descriptor) {
    std::vector<std::string> parts;
    for (size_t at = 1; at < descriptor.size();) {
        if (descriptor[at] == ')') {
            ++at;
            continue;
        }
        size_t end = descriptor.find_first_not_of('[', at);
        end = descriptor[end] == 'L' ? descriptor.find(';', end) + 1 : end + 1;
        parts.push_back(descriptor.substr(at, end - at));
        at = end;
    }
    return parts;
}

std::string code_of(const std::string& descriptor) {
    if (descriptor == "Ljava/lang/Class;") {
        return "class";
    }
    if (descriptor[0] == '[') {
        const bool of_references = descriptor[1] == 'L' || descriptor[1] == '[';
        return of_references ? "[L" : descriptor;
    }
    return descriptor.substr(0, 1);
}

std::string call_word(const std::string& result) {
    static const std::map<char, std::string> words = {{'V', "Void"},   {'Z', "Boolean"}, {'B', "Byte"},  {'C', "Char"},
                                                      {'S', "Short"},  {'I', "Int"},     {'J', "Long"},  {'F', "Float"},
                                                      {'D', "Double"}, {'L', "Object"},  {'[', "Object"}};
    return words.at(result[0]);
}

// The argument at a position: a number that tells the position, or an object that does.
template <typename T>
T argument(FakeVm& vm, int position) {
    if constexpr (std::is_pointer_v<T>) {
        return static_cast<T>(vm.add_object("argument " + std::to_string(position)));
    } else if constexpr (std::is_floating_point_v<T>) {
        return static_cast<T>(position) + T{0.5};
    } else {
        return static_cast<T>(position);
    }
}

std::string argument_text(const std::string& descriptor, int position) {
    const std::string number = std::to_string(position);
    switch (descriptor[0]) {
        case 'L':
        case '[':
            return " argument " + number;
        case 'F':
        case 'D':
            return " " + number + ".5";
        default:
            return " " + number;
    }
}

// What the call of a member looks like, worked out from its descriptor alone. The object of an instance method is the
// argument at position 0.
std::string expected_call(const Member& member) {
    const std::vector<std::string> parts = parts_of(member.descriptor);
    const std::string result = kCallForObject.contains(path_of(member)) ? "L" : parts.back();
    std::string call;
    if (member.kind == CONSTRUCTOR) {
        call = "NewObjectV global " + std::string(member.class_name);
    } else if (member.kind == STATIC_METHOD) {
        call = "CallStatic" + call_word(result) + "MethodV global " + member.class_name;
    } else {
        call = "Call" + call_word(result) + "MethodV argument 0";
    }
    call += " " + std::string(member.class_name) + "." + member.name + ":" + member.descriptor;
    for (size_t i = 0; i + 1 < parts.size(); ++i) {
        call += argument_text(parts[i], static_cast<int>(i) + 1);
    }
    return call;
}

template <typename R>
R value_of(jvalue value) {
    R result;
    memcpy(&result, &value, sizeof result);  // NOLINT(bugprone-sizeof-expression): R may be a handle
    return result;
}

template <typename R, typename... Parameters>
struct Wrapper {
    R (*function)(JNIEnv*, Parameters...);
    jclass* class_variable;
    jmethodID* id_variable;

    void expect_types(const Member& member) const {
        const std::vector<std::string> parts = parts_of(member.descriptor);
        std::vector<std::string> expected;
        if (member.kind == METHOD) {
            expected.emplace_back("L");
        }
        for (size_t i = 0; i + 1 < parts.size(); ++i) {
            expected.push_back(code_of(parts[i]));
        }
        EXPECT_EQ((std::vector<std::string>{Code<Parameters>::value...}), expected);
        const std::string& result = parts.back();
        const bool reference = result[0] == 'L' || result[0] == '[' || member.kind == CONSTRUCTOR ||
                               kCallForObject.contains(path_of(member));
        EXPECT_EQ(Code<R>::value, reference ? "L" : result);
    }

    // Calls it and checks what comes back.
    void call(FakeVm& vm, const Member& member, jvalue scripted) const {
        vm.calls.clear();
        const int first = member.kind == METHOD ? 0 : 1;
        const auto with_arguments = [&]<size_t... I>(std::index_sequence<I...>) {
            return function(vm.jni, argument<Parameters>(vm, static_cast<int>(I) + first)...);
        };
        if constexpr (std::is_void_v<R>) {
            with_arguments(std::index_sequence_for<Parameters...>());
        } else {
            const R result = with_arguments(std::index_sequence_for<Parameters...>());
            const R expected = value_of<R>(scripted);
            EXPECT_EQ(result, expected) << "the result comes back unchanged";
        }
    }
};

// A wrapper of the parameters that members.inc gives, the JNIEnv among them.
template <typename R, typename Env, typename... Parameters>
struct WrapperOf {
    static Wrapper<R, Parameters...> make(R (*function)(JNIEnv*, Parameters...), jclass* class_variable,
                                          jmethodID* id_variable) {
        return {function, class_variable, id_variable};
    }
};

template <typename R, typename... Parameters>
void check(const Member& member, const Wrapper<R, Parameters...>& wrapper) {
    SCOPED_TRACE(path_of(member) + member.descriptor);
    wrapper.expect_types(member);
    if (kPlainReads.contains(path_of(member))) {
        return;
    }

    FakeVm vm;
    const jclass owner = vm.add_class(member.class_name);
    jvalue result;
    memset(&result, 0x41, sizeof result);
    const jobject object = vm.add_object("the result");
    if (std::is_pointer_v<R>) {
        result.l = object;
    }
    const jmethodID id = vm.add_method(owner, member.name, member.descriptor, result);
    const jobject thrown = vm.add_object("an exception");
    *wrapper.class_variable = nullptr;
    *wrapper.id_variable = nullptr;

    const std::string name = member.class_name;
    if (kEager.contains(member.proxy)) {
        *wrapper.class_variable = static_cast<jclass>(vm.jni->NewGlobalRef(owner));
        *wrapper.id_variable = id;
    } else {
        wrapper.call(vm, member, result);
        EXPECT_THAT(vm.calls,
                    ElementsAre("FindClass " + name, "NewGlobalRef " + name,
                                std::string(member.kind == STATIC_METHOD ? "GetStaticMethodID" : "GetMethodID") +
                                    " global " + name + " " + member.name + " " + member.descriptor,
                                expected_call(member)));
        EXPECT_EQ(*wrapper.id_variable, id);
    }

    wrapper.call(vm, member, result);
    EXPECT_THAT(vm.calls, ElementsAre(expected_call(member))) << "a second call looks up nothing";

    vm.pending = thrown;
    wrapper.call(vm, member, result);
    EXPECT_THAT(vm.calls, ElementsAre(expected_call(member)));
    EXPECT_EQ(vm.pending, thrown) << "an exception stays as it is";

    *wrapper.class_variable = nullptr;
    *wrapper.id_variable = nullptr;
}

struct Counts {
    int constructors;
    int methods;
    int static_methods;
    int fields;
    int static_fields;
    bool operator==(const Counts&) const = default;
};

void PrintTo(const Counts& counts, std::ostream* out) {
    *out << counts.constructors << " constructors, " << counts.methods << " methods (" << counts.static_methods
         << " static), " << counts.fields << " fields (" << counts.static_fields << " static)";
}

struct Field {
    Kind kind;
    const char* name;
    const char* descriptor;
    jfieldID* variable;
};

struct Proxy {
    const char* class_name;
    void (*Init)(jvmtiEnv*, JNIEnv*);
    void (*Destroy)(jvmtiEnv*, JNIEnv*);
    jclass* class_variable;
    std::vector<Field> fields;
    Counts counts;
};

void count(Counts& counts, Kind kind) {
    counts.constructors += kind == CONSTRUCTOR ? 1 : 0;
    counts.methods += kind == METHOD || kind == STATIC_METHOD ? 1 : 0;
    counts.static_methods += kind == STATIC_METHOD ? 1 : 0;
    counts.fields += kind == FIELD || kind == STATIC_FIELD ? 1 : 0;
    counts.static_fields += kind == STATIC_FIELD ? 1 : 0;
}

const std::map<std::string, Proxy>& proxies() {
    static const std::map<std::string, Proxy> all = [] {
        std::map<std::string, Proxy> table;
#define PROXY(C, CLASS) table.emplace(#C, Proxy{CLASS, &NS##C::Init, &NS##C::Destroy, &NS##C::_c_Class, {}, {}});
#define PROXY_FIELD(C, CLASS, KIND, NAME, DESCRIPTOR)                                  \
    table.at(#C).fields.push_back(Field{KIND, #NAME, DESCRIPTOR, &NS##C::C##_##NAME}); \
    count(table.at(#C).counts, KIND);
#define PROXY_WRAPPER(C, CLASS, KIND, ...) count(table.at(#C).counts, KIND);
#define PROXY_UNWRAPPED(C, CLASS, KIND, ...) count(table.at(#C).counts, KIND);
#include "members.inc"
#undef PROXY
#undef PROXY_FIELD
#undef PROXY_WRAPPER
#undef PROXY_UNWRAPPED
        return table;
    }();
    return all;
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
    ASSERT_EQ(proxies().size(), expected.size());
    for (const auto& [name, counts] : expected) {
        EXPECT_EQ(proxies().at(name).counts, counts) << name;
    }
}

// One function a wrapper would be 872 of them in one: a table of calls compiles faster.
TEST(Proxies, EveryWrapperLooksUpOnceAndCallsThrough) {
    int walked = 0;
#define PROXY(...)
#define PROXY_FIELD(...)
#define PROXY_UNWRAPPED(...)
#define PROXY_WRAPPER(C, CLASS, KIND, NAME, DESCRIPTOR, VARIABLE, FUNCTION, R, ...)               \
    check(Member{#C, CLASS, KIND, NAME, DESCRIPTOR},                                              \
          WrapperOf<R, __VA_ARGS__>::make(&NS##C::FUNCTION, &NS##C::_c_Class, &NS##C::VARIABLE)); \
    ++walked;
#include "members.inc"
#undef PROXY
#undef PROXY_FIELD
#undef PROXY_UNWRAPPED
#undef PROXY_WRAPPER
    EXPECT_EQ(walked, 872);
}

// The proxies that do more than the others; proxy_test.cpp looks at those.
bool is_plain(const std::string& name) {
    return !kEager.contains(name) && name != "VantrelFrame";
}

TEST(Proxies, InitLooksUpTheClassOnceAndEveryFieldEachTime) {
    for (const auto& [name, proxy] : proxies()) {
        if (!is_plain(name)) {
            continue;
        }
        SCOPED_TRACE(name);
        FakeVm vm;
        const jclass owner = vm.add_class(proxy.class_name);
        std::vector<std::string> fields;
        for (const Field& field : proxy.fields) {
            vm.add_field(owner, field.name, field.descriptor);
            fields.push_back(std::string(field.kind == STATIC_FIELD ? "GetStaticFieldID" : "GetFieldID") + " global " +
                             proxy.class_name + " " + field.name + " " + field.descriptor);
        }
        *proxy.class_variable = nullptr;
        proxy.Init(vm.jvmti, vm.jni);
        std::vector<std::string> expected = {std::string("FindClass ") + proxy.class_name,
                                             std::string("NewGlobalRef ") + proxy.class_name};
        expected.insert(expected.end(), fields.begin(), fields.end());
        EXPECT_THAT(vm.calls, ElementsAreArray(expected));

        vm.calls.clear();
        proxy.Init(vm.jvmti, vm.jni);
        EXPECT_THAT(vm.calls, ElementsAreArray(fields));

        vm.calls.clear();
        const jclass cached = *proxy.class_variable;
        proxy.Destroy(vm.jvmti, vm.jni);
        EXPECT_THAT(vm.calls, ElementsAre(std::string("DeleteGlobalRef global ") + proxy.class_name));
        EXPECT_EQ(*proxy.class_variable, cached) << "the stale value stays";
        vm.calls.clear();
        vm.deleted_may_be_used = true;
        proxy.Init(vm.jvmti, vm.jni);
        EXPECT_THAT(vm.calls, ElementsAreArray(fields)) << "after Destroy, Init does not look the class up again";
        *proxy.class_variable = nullptr;
    }
}

TEST(Proxies, DestroyAssertsEveryFieldInOrder) {
    static int target;
    auto* const some_field = reinterpret_cast<jfieldID>(&target);
    for (const auto& [name, proxy] : proxies()) {
        for (const Field& field : proxy.fields) {
            *field.variable = nullptr;
        }
        for (const Field& field : proxy.fields) {
            EXPECT_EXIT(
                {
                    FakeVm vm;
                    proxy.Destroy(vm.jvmti, vm.jni);
                },
                KilledBySignal(SIGABRT),
                "vantrel-agent/jc/" + name + "\\.cpp:[0-9]+: .*NS" + name + "::Destroy.*Assertion `" + name + "_" +
                    (field.name[0] == '$' ? "\\" : "") + field.name + " != NULL' failed");
            *field.variable = some_field;
        }
        for (const Field& field : proxy.fields) {
            *field.variable = nullptr;
        }
    }
}

}  // namespace
