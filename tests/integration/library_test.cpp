// The shared library as a linker sees it.
#include <dlfcn.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "agent_in_vm.h"
#include "java_crw_demo.h"
#include "process.h"

using testing::HasSubstr;
using testing::Not;
using testing::Pair;
using testing::ThrowsMessage;
using testing::UnorderedElementsAre;
using testing::UnorderedElementsAreArray;

namespace {

TEST(Library, ExportsItsInterfaceAndNothingElse) {
    const Finished nm = run({"nm", "-D", "-C", "--defined-only", kLibrary});
    ASSERT_EQ(nm.status, 0) << nm.err;
    std::istringstream lines(nm.out);
    std::vector<std::string> exported;
    std::map<std::string, int> of_proxies;
    for (std::string line; std::getline(lines, line);) {
        const std::string name = line.substr(line.find(' ', line.find(' ') + 1) + 1);  // behind address and type
        std::smatch function;
        if (std::regex_match(name, function, std::regex("NS[A-Za-z0-9]+(::.*)"))) {
            ++of_proxies[function[1]];
        } else {
            exported.push_back(name);
        }
    }
    EXPECT_THAT(of_proxies, UnorderedElementsAre(Pair("::Init(_jvmtiEnv*, JNIEnv_*)", 21),
                                                 Pair("::Destroy(_jvmtiEnv*, JNIEnv_*)", 21)));
    const std::vector<std::string> expected = {
        // the agent and its helpers
        "Agent_OnAttach",
        "Agent_OnLoad",
        "Agent_OnUnload",
        "add_demo_jar_to_bootclasspath",
        "allocate",
        "check_jvmti_error",
        "covered_by_list",
        "deallocate",
        "fatal_error",
        "get_token",
        "interested",
        "stdout_message",
        // the rewriter
        "java_crw_demo",
        "java_crw_demo_classname",
        "vantrel_rewriter_interface_version",
        "vantrel_rewriter_newest_class_file_version",
        "vantrel_rewriter_release",
        "vantrel_rewriter_rewrite",
        // the generator
        "CanAcceptField(char*, char*, int)",
        "CanAcceptMethod(char*, char*, int)",
        "CopyOf(char const*)",
        "FreeFieldEntities(FieldEntity**, int)",
        "FreeMethodEntiry(MethodEntity**, int)",
        "GenerateFiles(_jvmtiEnv*, JNIEnv_*, char*)",
        "GenerateFiles(_jvmtiEnv*, JNIEnv_*, char*, char*)",
        "GetCPPFileName(char*, char*, char*)",
        "GetClassName(char*, char*)",
        "GetFieldEntities(_jvmtiEnv*, _jclass*, char*, FieldEntity***, int*, int (*)(char*, char*, int))",
        "GetHeaderFileName(char*, char*, char*)",
        "GetHeaderMacro(char*, char*)",
        "GetMethodEntities(_jvmtiEnv*, _jclass*, char*, int*, MethodEntity***, int (*)(char*, char*, int))",
        "GetSimpleArgumentName(char const*, char*, unsigned long)",
        "GetSimpleName(char const*, char*, unsigned long)",
        "GetTypeInformation(char const*, int*, int*, char*, char*)",
        "IsMethodEntityFuncNameExists(MethodEntity**, int, MethodEntity*)",
        "WriteCPPFile(char*, char*, char*, MethodEntity**, int, FieldEntity**, int)",
        "WriteHeaderFile(char*, char*, MethodEntity**, int, FieldEntity**, int)",
        "doTest()",
    };
    EXPECT_THAT(exported, UnorderedElementsAreArray(expected));
}

// Another library's `allocate` must not come between ours and its callers.
TEST(Library, ItsOwnReferencesBindInside) {
    const Finished readelf = run({"readelf", "--relocs", "--wide", kLibrary});
    ASSERT_THAT(readelf.out, HasSubstr("vfprintf")) << "what is imported is listed";
    for (const char* name : {"allocate", "check_jvmti_error", "covered_by_list", "fatal_error", "get_token"}) {
        EXPECT_THAT(readelf.out, Not(HasSubstr(std::string(" ") + name)));
    }
}

// The library has a C++ runtime of its own: an exception that a caller's error handler throws must still find its way.
TEST(Library, AnErrorHandlerMayThrowThroughIt) {
    void* library = dlopen(kLibrary.c_str(), RTLD_NOW);
    ASSERT_NE(library, nullptr) << dlerror();
    auto* const class_name =
        reinterpret_cast<decltype(&java_crw_demo_classname)>(dlsym(library, "java_crw_demo_classname"));
    ASSERT_NE(class_name, nullptr);
    const unsigned char image[] = {0xCA, 0xFE, 0xBA};
    const auto handler = [](const char* message, const char*, int) { throw std::runtime_error(message); };
    for (int round = 0; round < 2; ++round) {
        EXPECT_THAT([&] { class_name(image, sizeof image, handler); },
                    ThrowsMessage<std::runtime_error>(HasSubstr("(ci)->input_position <= (ci)->input_len")));
    }
    dlclose(library);
}

TEST(Library, NeedsNoCppRuntime) {
    const Finished readelf = run({"readelf", "--dynamic", "--wide", kLibrary});
    EXPECT_THAT(readelf.out, HasSubstr("libc.so"));
    EXPECT_THAT(readelf.out, Not(HasSubstr("stdc++")));
}

}  // namespace
