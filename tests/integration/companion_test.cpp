// The companion by itself: its unit tests on each VM, and what its jar may hold.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "agent_in_vm.h"
#include "process.h"

using testing::HasSubstr;
using testing::StartsWith;

namespace {

// The test classes, and how many tests each has: one that is not run is missed.
constexpr struct {
    const char* name;
    int tests;
} kUnitTests[] = {
    {"hooks.HooksTest", 4},
    {"model.AddedAtTest", 4},
    {"model.EditorTest", 4},
    {"pick.HotKeyTest", 2},
    {"stacktrace.StackTraceManagerTest", 5},
    {"util.ClassFileEditorTest", 6},
};

class Companion : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(OnJdk, Companion, testing::ValuesIn(kReleases), testing::PrintToStringParamName());

// Under the agent, for what it adds to the toolkit's classes. The tests are loaded by the loader that then has the
// companion's own classes, or they would not be in the same packages.
TEST_P(Companion, PassesItsUnitTests) {
    SKIP_WITHOUT_JDK(GetParam());
    const std::string boot_path = (kTestFolder / "companion-tests.jar").string() + ":" + VANTREL_JUNIT_JARS;
    Arguments options = {"-Djava.awt.headless=true", "-Xbootclasspath/a:" + boot_path, "org.junit.runner.JUnitCore"};
    int count = 0;
    for (const auto& [name, tests] : kUnitTests) {
        options.push_back("com.vantrel." + std::string(name));
        count += tests;
    }
    const Finished tests = run(java_under_agent(GetParam(), options));
    EXPECT_EQ(tests.status, 0) << tests.out << tests.err;
    EXPECT_THAT(tests.out, HasSubstr("\nOK (" + std::to_string(count) + " tests)\n"));
}

// The jar is on the boot class path of somebody else's application: what it holds hides what that brings.
TEST(CompanionJar, HoldsOnlyPackagesOfItsOwnForJava8) {
    const Finished jar = run({"unzip", "-Z1", kCompanionJar});
    ASSERT_EQ(jar.status, 0) << jar.err;
    std::istringstream names(jar.out);
    int classes = 0;
    for (std::string name; std::getline(names, name);) {
        if (!name.ends_with(".class")) {
            EXPECT_THAT(name, StartsWith("META-INF/"));
            continue;
        }
        ++classes;
        EXPECT_THAT(name, StartsWith("com/vantrel/"));
        const std::string image = run({"unzip", "-p", kCompanionJar, name}).out;
        EXPECT_EQ(image.substr(0, 8), std::string("\xCA\xFE\xBA\xBE\0\0\0\x34", 8)) << name << ": not version 52";
    }
    EXPECT_GT(classes, 0);
}

}  // namespace
