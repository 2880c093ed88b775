// The names that the generator changes because C++ does not take them, and those that it leaves alone. That the files
// compile then is for generator_test.cpp to say.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "CodeGenerater/generator.h"
#include "CodeGenerater/modified_utf8.h"
#include "fake_vm.h"

using generator::Proxy;
using generator::Renaming;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::Not;

namespace {

constexpr int kStatic = generator::kStatic;

struct NamedMember {
    std::string name;
    std::string descriptor;
    int modifiers = 0;
};

// The proxy of p/<class_name>, with a word for each name that was changed in it: "union>union_".
struct Compilable {
    Compilable(const std::string& class_name, const std::vector<NamedMember>& members) {
        FakeVm vm;
        const jclass clazz = vm.add_class("p/" + class_name);
        for (const NamedMember& member : members) {
            vm.add_member(clazz, member.name, member.descriptor, member.modifiers);
        }
        proxy = generator::read_proxy(vm.jvmti, clazz, "p/" + class_name);
        // Letters are what lies between U+00C0 and U+1D4B3, but for the euro sign.
        for (const Renaming& renaming : generator::make_compilable(
                 proxy, [](char32_t c, bool /*begins*/) { return c >= 0xC0 && c <= 0x1D4B3 && c != 0x20AC; })) {
            static constexpr const char* kinds[] = {"class ", "field ", "variable ", "", "parameter "};
            changed.push_back(kinds[renaming.kind] + renaming.from + ">" + renaming.to);
        }
    }
    Proxy proxy;
    std::vector<std::string> changed;
};

TEST(GeneratorNames, AreChangedOnlyWhereTheyWouldBeNoCpp) {
    const struct {
        const char* what;
        const char* class_name;
        std::vector<NamedMember> members;
        std::vector<std::string> changed;
    } cases[] = {
        {"plain names and overloads",
         "C",
         {{"f", "I"}, {"m", "(I)V"}, {"m", "(J)V"}, {"m", "()V"}, {"jbyte", "()V"}, {"az_AZ$09", "()V"}},
         {}},
        {"words; a variable may have one in its name",
         "C",
         {{"int", "I"}, {"union", "()V"}, {"co_await", "()V"}, {"xor", "()V"}, {"typeof", "()V"}},
         {"union>union_", "co_await>co_await_", "xor>xor_", "typeof>typeof_"}},
        {"the new name is taken", "C", {{"new", "()V"}, {"new_", "()V"}}, {"new>new__"}},
        {"macros, everywhere or with a parenthesis",
         "C",
         {{"NULL", "I"}, {"EOF", "()V"}, {"assert", "()V"}, {"stdin", "()V"}},
         {"field NULL>NULL_", "variable EOF>EOF_", "EOF>EOF_", "assert>assert_"}},
        {"a macro in two parts", "JNI", {{"TRUE", "Z"}, {"FALSES", "Z"}}, {"field TRUE>TRUE_"}},
        {"a macro for a class, a header's own guard", "NULL", {{"<init>", "()V"}}, {"class NULL>NULL_", "NULL>NULL_"}},
        {"the guard of a header that is included", "Common", {}, {"class COMMON_H>COMMON_H_"}},
        {"types that are used, and one that is not",
         "C",
         {{"f", "I"},
          {"jclass", "()V"},
          {"jfieldID", "()V"},
          {"JNIEnv", "()V"},
          {"jint", "()I"},
          {"jbyte", "()V"},
          {"jintArray", "([I)V"},
          {"jobject", "(I)V", kStatic}},
         {"jclass>jclass_", "jfieldID>jfieldID_", "JNIEnv>JNIEnv_", "jint>jint_", "jintArray>jintArray_",
          "jobject>jobject_"}},
        {"a constructor like a type", "jobject", {{"<init>", "(Lp/C;)V"}}, {"jobject>jobject_"}},
        {"variables of one name, and functions of a variable's",
         "C",
         {{"m2", "I"}, {"m", "()V"}, {"m1", "(I)V"}, {"m", "(JJ)V"}, {"m", "I"}, {"C_m0", "()V"}, {"_c_Class", "()V"}},
         {"variable m>m_", "C_m0>C_m0_", "_c_Class>_c_Class_"}},
        {"fields of one name", "C", {{"a", "I"}, {"a", "J"}, {"a_", "Z"}}, {"field a>a__"}},
        {"results alone differ",
         "C",
         {{"copy", "()Lp/A;"}, {"copy", "()Lp/B;"}, {"copy", "()Lp/C;"}},
         {"copyWith>copyWith1"}},
        {"packages and dimensions alone differ",
         "C",
         {{"a", "(Lp/List;)V"}, {"a", "(Lq/List;)V"}, {"a", "([Lp/List;)V"}, {"a", "([[Lp/List;)V"}, {"a", "(I)V"}},
         {"aWithList>aWithList1", "aWithList>aWithList3"}},
        {"the new name is a stated one",
         "C",
         {{"copy", "()Lp/A;"}, {"copy", "()Lp/B;"}, {"copy", "()Lp/C;"}, {"copyWith1", "()V"}},
         {"copyWith>copyWith1_"}},
        {"static beside instance",
         "C",
         {{"m", "()V"},
          {"m", "(Lp/C;)V", kStatic},
          {"n", "(Lp/C;)V", kStatic},
          {"n", "()V"},
          {"o", "(I)V", kStatic},
          {"o", "()V"}},
         {"m>m1", "n>n3"}},
        {"what is no letter",
         "a-b",
         {{"<init>", "()V"}, {"x-y", "()V"}, {"\xe2\x82\xac", "I"}, {"1a", "()V"}, {"größe", "()V"}},
         {"class a-b>a_b", "field \xe2\x82\xac>_", "variable x-y>x_y", "a-b>a_b", "x-y>x_y", "1a>_1a"}},
        {"parameters",
         "C",
         {{"m", "(Lp/A-B;Lp/Vector1;JJJJJJJJJLp/Vector;)V"}, {"n", "(LUnnamed;)V"}, {"o", "(Lp/C_n;I)V"}},
         {"parameter A-B>A_B", "parameter Vector>Vector_"}},
    };
    for (const auto& c : cases) {
        const Compilable compilable(c.class_name, c.members);
        EXPECT_THAT(compilable.changed, ElementsAreArray(c.changed)) << c.what;
    }
}

// The VM wants its own bytes back, whatever C++ calls the member.
TEST(GeneratorNames, LookUpsHaveJavasNames) {
    const std::string surrogates = "\xed\xa0\xb5\xed\xb2\xb3";
    const std::string script_x = "\xf0\x9d\x92\xb3";
    const Compilable c(surrogates,
                       {{surrogates, "Lp/" + surrogates + ";"}, {"NULL", "(Lp/" + surrogates + ";)V", kStatic}});
    const std::string header = generator::header_text(c.proxy);
    const std::string body = generator::body_text(c.proxy);
    EXPECT_THAT(header, HasSubstr("namespace NS" + script_x + "{\n"));
    EXPECT_THAT(header,
                HasSubstr("\tvoid NULL_(JNIEnv *env, jobject " + script_x + "0); //0 (Lp/" + script_x + ";)V\n"));
    EXPECT_THAT(body, HasSubstr("#include \"" + script_x + ".h\"\n"));
    EXPECT_THAT(body, HasSubstr("\"p/\\355\\240\\265\\355\\262\\263\");\n"));
    EXPECT_THAT(body, HasSubstr("\t\tJAVA_FIELD(" + script_x + ", " + script_x + ") = jni_env->GetFieldID(JAVA_CLASS(" +
                                script_x +
                                "), \"\\355\\240\\265\\355\\262\\263\", \"Lp/\\355\\240\\265\\355\\262\\263;\");\n"));
    EXPECT_THAT(body, HasSubstr(" = env->GetStaticMethodID(JAVA_CLASS(" + script_x + "), \"NULL\", \"(Lp/"));
    EXPECT_THAT(header + body, Not(HasSubstr(surrogates)));
}

TEST(ModifiedUtf8, IsTheVmsFormOfUtf8) {
    const struct {
        std::string utf8;
        std::string modified;
        std::string literal;
    } cases[] = {
        {"aä€", "aä€", R"("aä€")"},
        {"\xf0\x9d\x92\xb3", "\xed\xa0\xb5\xed\xb2\xb3", R"("\355\240\265\355\262\263")"},
        {"\xf4\x8f\xbf\xbf", "\xed\xaf\xbf\xed\xbf\xbf", R"("\355\257\277\355\277\277")"},
        {"\"\\\n", "\"\\\n", R"("\042\134\012")"},
        {std::string(1, '\0'), "\xc0\x80", R"("\300\200")"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(generator::utf8_of_modified(c.modified), c.utf8);
        EXPECT_EQ(generator::quoted_modified_utf8(c.modified), c.literal);
    }
    EXPECT_EQ(generator::utf8_of_modified("a\xed\xa0\xb5"), "a\xef\xbf\xbd") << "half of a pair";
}

}  // namespace
