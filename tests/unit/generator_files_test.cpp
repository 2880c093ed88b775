// The generator's files: what they hold, their names, and what happens when they cannot be written.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "CodeGenerater/CodeGenerater.h"
#include "CodeGenerater/generator.h"
#include "fake_vm.h"
#include "own_folder.h"

namespace fs = std::filesystem;
using generator::kPrivate;
using generator::kProtected;
using generator::kStatic;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::KilledBySignal;
using testing::Not;
using testing::StartsWith;

namespace {

constexpr int kAccPublic = 0x0001;

// Generates into the working directory; whether both files were written.
bool generate(FakeVm& vm, std::string name, std::string directory = "out") {
    return GenerateFiles(vm.jvmti, vm.jni, name.data(), directory.data());
}

// Their text is compared in generator_shape_test.cpp with that of the agent's proxies, but for results that are arrays.
TEST(GeneratorFiles, AreWrittenToAFolderAndReplaced) {
    const OwnFolder folder;
    FakeVm vm;
    const jclass gauge = vm.add_class("com/example/Gauge2D");
    vm.add_member(gauge, "secret", "I", kPrivate);
    vm.add_member(gauge, "measure", "()V", kProtected);
    vm.add_method(gauge, "show", "([[Ljava/lang/String;)[Ljava/lang/String;");
    vm.add_member(gauge, "steps", "(D)[I", kAccPublic | kStatic);

    EXPECT_TRUE(generate(vm, "com/example/Gauge2D"));
    ASSERT_THAT(folder.files(), ElementsAre("out\\Gauge2D.cpp", "out\\Gauge2D.h"));
    const std::string header = text_of("out\\Gauge2D.h");
    const std::string body = text_of("out\\Gauge2D.cpp");
    EXPECT_THAT(header, AllOf(HasSubstr("\tjintArray steps(JNIEnv *env, jdouble Double0); //1 (D)[I\n"),
                              Not(HasSubstr("secret")), Not(HasSubstr("measure"))));
    EXPECT_THAT(body, HasSubstr("\t\treturn (jobjectArray)env->CallObjectMethod(_this, JAVA_METHOD(Gauge2D, show, 0), "
                                "String0);\n"));
    EXPECT_THAT(vm.allocated, IsEmpty());

    std::ofstream("out\\Gauge2D.h") << std::string(10000, 'x');
    EXPECT_TRUE(generate(vm, "com/example/Gauge2D"));
    EXPECT_EQ(text_of("out\\Gauge2D.h"), header);
    char name[] = "com/example/Gauge2D";
    EXPECT_TRUE(GenerateFiles(vm.jvmti, vm.jni, name)) << "to the folder that is built in";
    EXPECT_EQ(text_of("C:\\generated-files\\Gauge2D.h"), header);
    EXPECT_EQ(text_of("C:\\generated-files\\Gauge2D.cpp"), body);
}

TEST(GeneratorFiles, OfAnEmptyClassHaveTheClassAlone) {
    const OwnFolder folder;
    FakeVm vm;
    vm.add_class("Main");
    ASSERT_TRUE(generate(vm, "Main"));
    EXPECT_EQ(text_of("out\\Main.h"),
              "#ifndef MAIN_H\n#define MAIN_H\n\n#include \"../JCBase.h\"\n#include \"../JavaInc.h\"\n"
              "#include  <assert.h>\n\nnamespace NSMain{\n\n\textern CACHE_JAVA_CLASS(Main);\n\n"
              "\tJNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env);\n"
              "\tJNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env);\n}\n#endif\n");
    EXPECT_EQ(text_of("out\\Main.cpp"),
              "#include \"Main.h\"\n#include \"../common.h\"\n#include  <assert.h>\n\nnamespace NSMain{\n\n"
              "\tCACHE_JAVA_CLASS(Main) = NULL;\n\n\t//fields(0)\n\n\t//methods(0)\n\n"
              "\tJNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env){\n"
              "\t\tINIT_CACHE_CLASS(jni_env, Main, \"Main\");\n\t}\n\n"
              "\tJNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env){\n"
              "\t\tDELETE_CACHED_CLASS_REF(jni_env, Main);\n\t}\n\n}\n");
}

TEST(GeneratorFiles, CountButDoNotWriteTheVersionOfASerialForm) {
    const OwnFolder folder;
    FakeVm vm;
    const jclass clazz = vm.add_class("p/C");
    vm.add_field(clazz, "serialVersionUID", "J");
    vm.add_field(clazz, "kept", "I");
    FieldEntity** fields = nullptr;
    int count = 0;
    char name[] = "C";
    char signature[] = "Lp/C;";
    char header[] = "C.h";
    char body[] = "C.cpp";
    GetFieldEntities(vm.jvmti, clazz, name, &fields, &count, nullptr);
    ASSERT_EQ(count, 2);
    EXPECT_TRUE(WriteHeaderFile(header, name, nullptr, 0, fields, count));
    EXPECT_TRUE(WriteCPPFile(signature, body, name, nullptr, 0, fields, count));
    FreeFieldEntities(fields, count);
    EXPECT_STREQ(signature, "p/C") << "edited in place";
    EXPECT_THAT(text_of(header), AllOf(HasSubstr("_FIELD(C, kept)"), Not(HasSubstr("serialVersionUID"))));
    EXPECT_THAT(text_of(body),
                AllOf(HasSubstr("//fields(2)\n"), HasSubstr("_FIELD(C, kept)"), Not(HasSubstr("serialVersionUID"))));
}

TEST(GeneratorFiles, AskTheVmInOrder) {
    const OwnFolder folder;
    FakeVm vm;
    const jclass clazz = vm.add_class("p/C");
    vm.add_field(clazz, "f", "I");
    vm.add_method(clazz, "m", "()V");
    ASSERT_TRUE(generate(vm, "p/C"));
    std::erase(vm.calls, "Deallocate");
    EXPECT_THAT(vm.calls, ElementsAre("FindClass p/C", "GetClassSignature p/C", "GetClassFields p/C",
                                      "GetFieldModifiers p/C.f:I", "GetFieldName p/C.f:I", "GetClassMethods p/C",
                                      "GetMethodModifiers p/C.m:()V", "GetMethodName p/C.m:()V"));
}

TEST(GeneratorFiles, OfAClassThatIsNotThereAreAFailedAssertion) {
    EXPECT_EXIT(
        {
            FakeVm vm;
            vm.fail("FindClass");
            generate(vm, "p/Missing");
        },
        KilledBySignal(SIGABRT),
        "vantrel-agent/CodeGenerater/CodeGenerater\\.cpp:[0-9]+: .*GenerateFiles\\(.*Assertion `clazz' failed");
}

TEST(GeneratorFiles, ThatCannotBeWrittenAreReportedAndNotLeftHalf) {
    const OwnFolder folder;
    FakeVm vm;
    vm.add_class("p/C");
    vm.add_class("p/" + std::string(63, 'n'));
    vm.add_class("p/" + std::string(64, 'n'));
    fs::create_directories("taken\\C.cpp/in it");
    const std::string deep = std::string(1023 - strlen("\\C.cpp"), 'd');
    const struct {
        std::string what;
        std::string name;
        std::string directory;
        std::string err;
        std::vector<std::string> files;
    } cases[] = {
        {"a missing folder",
         "p/C",
         "missing/out",
         "CodeGenerater: cannot write missing/out\\C.h: No such file or directory\n",
         {"taken\\C.cpp"}},
        {"a folder in the body's place",
         "p/C",
         "taken",
         "CodeGenerater: cannot write taken\\C.cpp: Is a directory\n",
         {"taken\\C.cpp"}},
        {"a name that is too long",
         "p/" + std::string(64, 'n'),
         "out",
         "CodeGenerater: nothing written for p/" + std::string(64, 'n') + ": its name is too long\n",
         {"taken\\C.cpp"}},
        {"a path that is too long",
         "p/C",
         deep + "d",
         "CodeGenerater: nothing written for p/C: the path of its files is too long\n",
         {"taken\\C.cpp"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        testing::internal::CaptureStderr();
        EXPECT_FALSE(generate(vm, c.name, c.directory));
        EXPECT_EQ(testing::internal::GetCapturedStderr(), c.err);
        EXPECT_EQ(folder.files(), c.files);
        EXPECT_THAT(vm.allocated, IsEmpty());
    }
    EXPECT_TRUE(generate(vm, "p/" + std::string(63, 'n'))) << "the longest name";
    EXPECT_THAT(text_of("out\\" + std::string(63, 'n') + ".h"), StartsWith("#ifndef " + std::string(63, 'N') + "_H\n"));
}

// A full disk is seen only when the buffers are written out. The old file is still whole then.
TEST(GeneratorFiles, OnAFullDiskLeaveTheOldOnes) {
    if (!fs::exists("/dev/full")) {
        GTEST_SKIP() << "no /dev/full on this system";
    }
    const OwnFolder folder;
    std::ofstream("C.h") << "old";
    fs::create_symlink("/dev/full", "C.h.part");
    char path[] = "C.h";
    char name[] = "C";
    testing::internal::CaptureStderr();
    EXPECT_FALSE(WriteHeaderFile(path, name, nullptr, 0, nullptr, 0));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "CodeGenerater: cannot write C.h: No space left on device\n");
    EXPECT_EQ(text_of(path), "old");
    EXPECT_THAT(folder.files(), ElementsAre("C.h"));
}

TEST(GeneratorPaths, HaveABackslashAndAreEmptyWhereTheyDoNotFit) {
    char directory[] = "/tmp/out";
    char name[] = "C$1";
    char path[kFilePathSize];
    GetHeaderFileName(path, directory, name);
    EXPECT_STREQ(path, "/tmp/out\\C$1.h");
    GetCPPFileName(path, directory, name);
    EXPECT_STREQ(path, "/tmp/out\\C$1.cpp");
    std::string longest(kFilePathSize - 1 - strlen("\\C$1.h"), 'd');
    GetHeaderFileName(path, longest.data(), name);
    EXPECT_EQ(path, longest + "\\C$1.h");
    GetCPPFileName(path, longest.data(), name);
    EXPECT_STREQ(path, "") << "two letters more than the header's";
}

TEST(GeneratorMacros, HaveLettersInUpperCase) {
    const struct {
        const char* name;
        const char* macro;
    } cases[] = {{"JComponent", "JCOMPONENT"},
                 {"Graphics2D", "GRAPHICS2D"},
                 {"A_b$c9", "A_B$C9"},
                 {"\xc3\xa4z{`a", "\xc3\xa4Z{`A"}};
    for (const auto& c : cases) {
        std::string name = c.name;
        char macro[kClassNameSize] = "X";
        GetHeaderMacro(macro, name.data());
        EXPECT_EQ(macro, std::string("X") + c.macro) << "added to what is there";
    }
}

}  // namespace
