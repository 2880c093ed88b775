// From a class to the generator's records: what is taken, what it is called, what does not fit.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "CodeGenerater/CodeGenerater.h"
#include "CodeGenerater/generator.h"
#include "fake_vm.h"

using generator::kPrivate;
using generator::kProtected;
using generator::kStatic;
using testing::AllOf;
using testing::ContainsRegex;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::KilledBySignal;

namespace {

constexpr int kPublic = 0x0001;
constexpr int kSynthetic = 0x1000;

struct Member {
    std::string name;
    std::string descriptor;
    int modifiers = kPublic;
};

// What a collector makes of a class with these members, in a VM of its own. No memory of the VM's is kept.
struct Collected {
    explicit Collected(const std::string& class_name, const std::vector<Member>& members,
                       EntityFilter field_filter = nullptr, EntityFilter method_filter = nullptr)
        : simple_name(class_name) {
        FakeVm vm;
        const jclass clazz = vm.add_class("p/" + class_name);
        for (const Member& member : members) {
            vm.add_member(clazz, member.name, member.descriptor, member.modifiers);
        }
        testing::internal::CaptureStderr();
        GetFieldEntities(vm.jvmti, clazz, simple_name.data(), &fields, &field_count, field_filter);
        GetMethodEntities(vm.jvmti, clazz, simple_name.data(), &method_count, &methods, method_filter);
        err = testing::internal::GetCapturedStderr();
        EXPECT_THAT(vm.allocated, IsEmpty());
    }
    ~Collected() {
        FreeFieldEntities(fields, field_count);
        FreeMethodEntiry(methods, method_count);
    }
    Collected(const Collected&) = delete;
    Collected& operator=(const Collected&) = delete;

    [[nodiscard]] std::vector<std::string> func_names() const {
        std::vector<std::string> names(method_count);
        std::transform(methods, methods + method_count, names.begin(), [](auto* method) { return method->func_name; });
        return names;
    }
    [[nodiscard]] std::vector<std::string> field_names() const {
        std::vector<std::string> names(field_count);
        std::transform(fields, fields + field_count, names.begin(), [](auto* field) { return field->name; });
        return names;
    }

    std::string simple_name;
    FieldEntity** fields = nullptr;
    MethodEntity** methods = nullptr;
    int field_count = -1;
    int method_count = -1;
    std::string err;
};

std::string aborts_in(const std::string& function, const std::string& expression) {
    return "vantrel-agent/CodeGenerater/CodeGenerater\\.cpp:[0-9]+: .*" + function + "\\(.*Assertion `" + expression +
           "' failed";
}

// Reads a class with one method, with stderr as it is.
void read_method(const char* descriptor) {
    FakeVm vm;
    const jclass clazz = vm.add_class("p/C");
    vm.add_method(clazz, "m", descriptor);
    char name[] = "C";
    MethodEntity** methods = nullptr;
    int count = 0;
    GetMethodEntities(vm.jvmti, clazz, name, &count, &methods, nullptr);
}

TEST(GeneratorTypes, UnknownLettersFailAnAssertion) {
    for (const char* descriptor : {"E", "T", "A", "b", "[", "", ";"}) {
        int number = 0;
        char text[16];
        EXPECT_EXIT(GetTypeInformation(descriptor, &number, &number, text, text), KilledBySignal(SIGABRT),
                    aborts_in("GetTypeInformation", "FALSE"))
            << descriptor;
    }
    // A void argument, an argument of an unknown type, an array of nothing.
    for (const char* descriptor : {"(V)V", "(IQ)V", "([)V"}) {
        EXPECT_EXIT(read_method(descriptor), KilledBySignal(SIGABRT), aborts_in("GetMethodEntities", "FALSE"))
            << descriptor;
    }
    EXPECT_EXIT(
        read_method("(ILUnnamed;)V"), KilledBySignal(SIGABRT),
        aborts_in("GetMethodEntities", "GetSimpleArgumentName\\(str, arg->argu_name, sizeof\\(arg->argu_name\\)\\)"));
}

TEST(GeneratorNames, AreCutOutOfDescriptors) {
    const struct {
        const char* descriptor;
        int found;
        const char* name;
        const char* cut;  // to five bytes
    } cases[] = {
        {"Ljava/awt/Point;", 1, "Point", "Poin"},
        {"java/awt/Point", 1, "Point", "Poin"},
        {"La/B;Lc/D;", 1, "B", "B"},
        {"La/B$C;", 1, "B$C", "B$C"},
        {"LUnnamed;La/B;", 0, "", ""},
        {"I", 0, "", ""},
        {"La/;", 1, "", ""},
        {"", 0, "", ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.descriptor);
        std::string name(32, '#');
        EXPECT_EQ(GetSimpleName(c.descriptor, name.data(), 16), c.found);
        EXPECT_EQ(name, c.name + std::string(16 - strlen(c.name), '\0') + std::string(16, '#'));

        name.assign(32, '#');
        EXPECT_EQ(GetSimpleName(c.descriptor, name.data(), 5), c.found);
        EXPECT_STREQ(name.c_str(), c.cut);
        EXPECT_EQ(name.substr(5), std::string(27, '#'));

        char appended[32] = "to";
        EXPECT_EQ(GetSimpleArgumentName(c.descriptor, appended, sizeof appended), c.found);
        EXPECT_EQ(appended, std::string("to") + c.name);
    }
    std::string small("to\0######", 9);
    EXPECT_EQ(GetSimpleArgumentName("Ljava/awt/Point;", small.data(), 5), 1);
    EXPECT_EQ(small, std::string("toPoin\0##", 9)) << "the size is of what is added";
    EXPECT_EQ(GetSimpleArgumentName("Ljava/awt/Point;", small.data(), 0), 1);
    EXPECT_STREQ(small.c_str(), "toPoin");

    char of_class[32] = "NS";
    char internal[] = "java/awt/Point";
    EXPECT_EQ(GetClassName(of_class, internal), of_class);
    EXPECT_STREQ(of_class, "NSPoint");
    char unnamed[] = "Main";
    EXPECT_STREQ(GetClassName(of_class, unnamed), "NSPointMain");

    char* copy = CopyOf(internal);
    EXPECT_STREQ(copy, internal);
    EXPECT_NE(copy, internal);
    free(copy);
}

TEST(GeneratorOverloads, AllButTheLastOfACollisionAreRenamed) {
    const struct {
        const char* class_name;
        std::vector<Member> methods;
        std::vector<std::string> func_names;
    } cases[] = {
        {"C", {{"foo", "(I)V"}, {"foo", "(J)V"}}, {"fooWithInt", "foo"}},
        {"C",
         {{"foo", "(I)V"}, {"foo", "(Ljava/lang/String;)V"}, {"foo", "(S)V"}},
         {"fooWithInt", "fooWithString", "foo"}},
        {"C", {{"foo", "(S)V"}, {"bar", "()V"}, {"foo", "(Z)V"}}, {"fooWithshortVal", "bar", "foo"}},
        // The number of arguments tells overloads apart.
        {"C", {{"foo", "()V"}, {"foo", "(I)V"}, {"foo", "(IJ)V"}}, {"foo", "foo", "foo"}},
        {"C", {{"foo", "()V"}, {"foo", "(IB)V"}, {"foo", "(C[D)V"}}, {"foo", "fooWithIntByte", "foo"}},
        // Arrays have the word of their elements.
        {"C", {{"add", "(I)V"}, {"add", "([I)V"}, {"add", "([[F)V"}}, {"addWithInt", "addWithInt", "add"}},
        // A method whose name another one has been given is in its way.
        {"C", {{"foo", "(I)V"}, {"foo", "(J)V"}, {"fooWithInt", "(C)V"}}, {"fooWithInt", "foo", "fooWithIntWithChar"}},
        // A result alone makes no other name: two of these are the same to C++.
        {"C", {{"copy", "()Lp/A;"}, {"copy", "()Lp/B;"}, {"copy", "()Lp/C;"}}, {"copyWith", "copyWith", "copy"}},
        {"Point",
         {{"<init>", "(Ljava/awt/Point;)V"}, {"<init>", "(II)V"}, {"<init>", "(D)V"}, {"<init>", "()V"}},
         {"PointWithPoint", "Point", "Point", "Point"}},
        // The special cases: only the static methods of just these classes.
        {"Component",
         {{"getContainingWindow", "()Lp/W;"},
          {"getContainingWindow", "(Lp/C;)Lp/W;", kPublic | kStatic},
          {"computeVisibleRect", "()V", kStatic}},
         {"getContainingWindow", "staticGetContainingWindow", "computeVisibleRect"}},
        {"JComponent",
         {{"computeVisibleRect", "(Lp/R;)V"},
          {"computeVisibleRect", "(Lp/C;Lp/R;)V", kStatic},
          {"getContainingWindow", "()V", kStatic}},
         {"computeVisibleRect", "staticComputeVisibleRect", "getContainingWindow"}},
        {"JLabel",
         {{"computeVisibleRect", "()V", kStatic}, {"getContainingWindow", "()V", kStatic}},
         {"computeVisibleRect", "getContainingWindow"}},
        // They are tested after the renaming, on what came out of it.
        {"Component",
         {{"getContainingWindow", "(I)V", kStatic}, {"getContainingWindow", "(J)V", kStatic}},
         {"getContainingWindowWithInt", "staticGetContainingWindow"}},
    };
    for (const auto& c : cases) {
        const Collected collected(c.class_name, c.methods);
        EXPECT_EQ(collected.func_names(), c.func_names) << c.class_name << "." << c.methods.front().name;
        EXPECT_EQ(collected.err, "");
        for (int i = 0; i < collected.method_count; ++i) {
            const std::string& name = c.methods[i].name;
            EXPECT_EQ(collected.methods[i]->name, name == "<init>" ? c.class_name : name) << "Java's name stays";
        }
    }
}

TEST(GeneratorOverloads, CollideByNameAndNumberOfArguments) {
    const Collected c("C", {{"a", "(I)V"}, {"b", "(I)V"}, {"a", "(II)V"}});
    EXPECT_EQ(IsMethodEntityFuncNameExists(c.methods, 3, c.methods[0]), 0) << "neither itself nor the others";
    strcpy(c.methods[1]->func_name, "a");
    EXPECT_EQ(IsMethodEntityFuncNameExists(c.methods, 3, c.methods[0]), 1);
    EXPECT_EQ(IsMethodEntityFuncNameExists(c.methods, 3, c.methods[1]), 1);
    EXPECT_EQ(IsMethodEntityFuncNameExists(c.methods, 3, c.methods[2]), 0);
    EXPECT_EQ(IsMethodEntityFuncNameExists(c.methods, 1, c.methods[0]), 0) << "what comes after the count is not seen";
}

// What the texts of a proxy do not show of the records; the texts are compared to the byte in generator_files_test.cpp.
TEST(GeneratorRecords, HoldWhatTheirMemberIs) {
    const Collected c("Kind", {{"<init>", "(Ljava/lang/String;[[IS)V", kProtected},
                               {"names", "(J)[[Ljava/lang/String;", kPublic | kStatic | kSynthetic},
                               {"ORDER", "[[S", kPublic | kStatic}});
    ASSERT_EQ(c.method_count, 2);
    const MethodEntity& constructor = *c.methods[0];
    EXPECT_STREQ(constructor.name, "Kind");
    EXPECT_EQ(constructor.modifiers, kProtected);
    ASSERT_EQ(constructor.argu_count, 3);
    EXPECT_EQ(constructor.argus[1]->array_dims, 2);
    EXPECT_EQ(constructor.argus[1]->is_array, 1);
    EXPECT_STREQ(constructor.argus[2]->argu_name, "shortVal");
    EXPECT_EQ(constructor.argus[2]->is_array, 0);
    EXPECT_EQ(c.methods[1]->array_dims, 2);
    EXPECT_EQ(c.methods[1]->modifiers, kPublic | kStatic | kSynthetic);
    ASSERT_EQ(c.field_count, 1);
    EXPECT_STREQ(c.fields[0]->type_name, "jshort");
    EXPECT_STREQ(c.fields[0]->call_type, "Object");
    EXPECT_EQ(c.fields[0]->is_array, 1);
    EXPECT_EQ(c.fields[0]->array_dims, 2);

    int number = 0;
    char type[16];
    char word[16];
    EXPECT_EQ(GetTypeInformation("I", &number, &number, type, word), type);
}

TEST(GeneratorFilters, KeepWhatAProxyHas) {
    const struct {
        const char* class_name;
        std::vector<Member> members;
        std::vector<std::string> taken;
    } methods[] = {
        {"Panel",
         {{"open", "()V", kPublic},
          {"shared", "()V", 0},
          {"kept", "()V", kProtected},
          {"hidden", "()V", kPrivate},
          {"<init>", "()V", kPublic},
          {"<init>", "(I)V", kPrivate},
          {"<clinit>", "()V", kStatic},
          {"access$000", "()V", kStatic | kSynthetic},
          {"access", "()V", kPublic},
          {"lambda$open$0", "()V", kSynthetic},
          {"lambda$open$1", "()V", kSynthetic | kPrivate}},
         {"open", "shared", "Panel", "access", "lambda$open$0"}},
        {"Container",
         {{"addImpl", "()V", kProtected}, {"hidden", "()V", kPrivate}, {"access$1", "()V", kProtected}},
         {"addImpl"}},
        {"Container2", {{"addImpl", "()V", kProtected}}, {}},
    };
    for (const auto& c : methods) {
        EXPECT_THAT(Collected(c.class_name, c.members, nullptr, CanAcceptMethod).func_names(),
                    ElementsAreArray(c.taken))
            << c.class_name;
    }
    const struct {
        const char* class_name;
        std::vector<Member> members;
        std::vector<std::string> taken;
    } fields[] = {
        {"Container",
         {{"open", "I", kPublic},
          {"shared", "I", 0},
          {"kept", "I", kProtected},
          {"hidden", "I", kPrivate},
          {"eventCache", "I", 0},
          {"nativeInLightFixer", "I", 0},
          {"backgroundEraseDisabled", "I", 0},
          {"serialVersionUID", "J", kPublic | kStatic},
          {"eventCaches", "I", 0},
          {"$assertionsDisabled", "Z", kStatic | kSynthetic}},
         {"open", "shared", "eventCaches", "$assertionsDisabled"}},
        {"EDTRunnable", {{"open", "I", kPublic}}, {}},
        {"SwingUtilities", {{"open", "I", kPublic}}, {}},
    };
    for (const auto& c : fields) {
        EXPECT_THAT(Collected(c.class_name, c.members, CanAcceptField).field_names(), ElementsAreArray(c.taken))
            << c.class_name;
    }
}

// `count` descriptors of arguments in a row.
std::string repeated(const std::string& descriptor, int count) {
    std::string all;
    while (count-- > 0) {
        all += descriptor;
    }
    return all;
}

// A descriptor "(L<...>;)V" of `length` bytes, in which only the package is long.
std::string long_descriptor(size_t length) {
    return "(L" + std::string(length - 7, 'p') + "/C;)V";
}

TEST(GeneratorLimits, WhatDoesNotFitIsLeftOutAndNamed) {
    const std::string longest(255, 'n');
    const std::string too_long(256, 'n');
    // ", jobject <name>0" takes 11 bytes beside the name, and 127 are the most.
    const std::string longest_argument = "(Lp/" + std::string(116, 'A') + ";)V";
    const std::string too_long_argument = "(Lp/" + std::string(117, 'A') + ";)V";
    const struct {
        const char* what;
        Member fitting;
        Member refused;
        const char* reason;
    } cases[] = {
        {"a method's name", {longest, "()V"}, {too_long, "()V"}, "its name or descriptor is too long"},
        {"a method's descriptor",
         {"m", long_descriptor(255)},
         {"m", long_descriptor(256)},
         "its name or descriptor is too long"},
        {"a field's name", {longest, "I"}, {too_long, "I"}, "its name or descriptor is too long"},
        {"a field's descriptor",
         {"f", std::string(254, '[') + "I"},
         {"f", std::string(255, '[') + "I"},
         "its name or descriptor is too long"},
        {"the number of arguments",
         {"m", "(" + repeated("I", 36) + ")V"},
         {"m", "(" + repeated("I", 37) + ")V"},
         "it has more than 36 arguments"},
        {"a parameter", {"m", longest_argument}, {"m", too_long_argument}, "its parameter list is too long"},
        // ", jbooleanArray Boolean0" takes 24 bytes, from number 10 on 25; 511 are the most.
        {"the parameter list",
         {"m", "(" + repeated("[Z", 20) + ")V"},
         {"m", "(" + repeated("[Z", 21) + ")V"},
         "its parameter list is too long"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        const Collected kept("C", {c.fitting});
        EXPECT_EQ(kept.field_count + kept.method_count, 1);
        EXPECT_EQ(kept.err, "");
        const Collected refused("C", {c.refused, {"next", "()V"}});
        EXPECT_THAT(refused.func_names(), ElementsAre("next")) << "generation goes on";
        EXPECT_THAT(refused.field_names(), IsEmpty());
        EXPECT_EQ(refused.err,
                  "CodeGenerater: left out C." + c.refused.name + " " + c.refused.descriptor + ": " + c.reason + "\n");
    }
}

TEST(GeneratorLimits, AWrapperWhoseNewNameIsTooLongIsLeftOut) {
    // "WithInt" has seven letters, "WithLong" eight.
    const std::string name(248, 'n');
    const Collected c("C", {{name, "(I)V"}, {name, "(J)V"}, {name, "(Z)V"}, {"next", "()V"}});
    EXPECT_THAT(c.func_names(), ElementsAre(name + "WithInt", name, "next"));
    EXPECT_STREQ(c.methods[1]->signature, "(Z)V");
    EXPECT_EQ(c.err, "CodeGenerater: left out C." + name + " (J)V: the name of its wrapper is too long\n");
}

TEST(GeneratorLimits, AVmThatGivesNothingMakesNothing) {
    struct {
        const char* failing;
        int fields;
        int methods;
    } const cases[] = {
        {"GetClassFields", 0, 1}, {"GetClassMethods", 1, 0}, {"GetFieldName", 0, 1}, {"GetMethodName", 1, 0}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.failing);
        FakeVm vm;
        const jclass clazz = vm.add_class("p/C");
        vm.add_field(clazz, "f", "I");
        vm.add_method(clazz, "m", "()V");
        vm.fail(c.failing);
        char name[] = "C";
        FieldEntity** fields = nullptr;
        MethodEntity** methods = nullptr;
        int field_count = -1;
        int method_count = -1;
        GetFieldEntities(vm.jvmti, clazz, name, &fields, &field_count, nullptr);
        GetMethodEntities(vm.jvmti, clazz, name, &method_count, &methods, nullptr);
        EXPECT_EQ(field_count, c.fields);
        EXPECT_EQ(method_count, c.methods);
        EXPECT_THAT(vm.allocated, IsEmpty());
        FreeFieldEntities(fields, field_count);
        FreeMethodEntiry(methods, method_count);
    }
}

TEST(GeneratorSelfTest, SaysWhereItsRecordsLieAndWhatTheyHold) {
    static_assert(sizeof(ArgumentEntity) == 520);
    testing::internal::CaptureStdout();
    doTest();
    EXPECT_THAT(testing::internal::GetCapturedStdout(),
                AllOf(ContainsRegex("^(assign: -?[0-9]+\n)(assign: -?[0-9]+\n)(assign: -?[0-9]+\n)(assign: -?[0-9]+\n)"
                                    "(assign: -?[0-9]+\n)type"),
                      HasSubstr("\ntype: a0\ntype: a1\ntype: a2\ntype: a3\ntype: a4\n")));
}

}  // namespace
