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

// The test classes, and how many tests each has: so that a test that is not run is noticed.
struct UnitTests {
    const char* name;
    int tests;
};
// clang-format off
constexpr UnitTests kUnitTests[] = {
    {"com.vantrel.hooks.HooksTest", 4},
    {"com.vantrel.model.AddedAtTest", 4},
    {"com.vantrel.model.ComponentTreeTest", 5},
    {"com.vantrel.model.EditorTest", 4},
    {"com.vantrel.model.LayoutFactsTest", 2},
    {"com.vantrel.pick.HotKeyTest", 2},
    {"com.vantrel.stacktrace.StackTraceManagerTest", 5},
    {"com.vantrel.util.ClassFileEditorTest", 6},
    {"program.ChangesTest", 5},
};
constexpr UnitTests kProgramsUnitTests[] = {
    {"com.vantrel.AgentTest", 1},
    {"com.vantrel.model.EditsTest", 4},
    {"com.vantrel.model.FormatsTest", 2},
    {"com.vantrel.model.KeysTest", 4},
    {"com.vantrel.model.ReadingTest", 4},
};
// clang-format on

// Runs tests, by the command that options of the VM make, and expects all of them to be there and to pass.
template <typename Tests, typename Command>
void expect_to_pass(const Tests& classes, const Command& command) {
    Arguments options = {"-Djava.awt.headless=true", "org.junit.runner.JUnitCore"};
    int count = 0;
    for (const auto& [name, tests] : classes) {
        options.emplace_back(name);
        count += tests;
    }
    const Finished finished = run(command(options));
    EXPECT_EQ(finished.status, 0) << finished.out << finished.err;
    EXPECT_THAT(finished.out, HasSubstr("\nOK (" + std::to_string(count) + " tests)\n"));
}

class Companion : public OnEachJdk {};
ON_EACH_JDK(Companion);

// Under the agent, for what it adds to the toolkit's classes. The tests are loaded by the loader that then has the
// companion's own classes, or they would not be in the same packages.
TEST_P(Companion, PassesItsUnitTests) {
    const std::string boot_path = (kTestFolder / "companion-tests.jar").string() + ":" + VANTREL_UNIT_TEST_JARS;
    expect_to_pass(kUnitTests, [&](const Arguments& options) {
        return java_under_agent(GetParam(), Arguments{"-Xbootclasspath/a:" + boot_path} + options);
    });
}

// On the class path, tests are a program's: the inspector tells its classes from the toolkit's.
TEST_P(Companion, PassesItsUnitTestsAsAProgram) {
    const std::string class_path =
        (kTestFolder / "companion-tests.jar").string() + ":" + kCompanionJar.string() + ":" + VANTREL_UNIT_TEST_JARS;
    expect_to_pass(kProgramsUnitTests, [&](const Arguments& options) {
        return Arguments{tool("java"), "-cp", class_path} + options;
    });
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
