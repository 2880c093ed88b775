// What the VM sees of the agent's start: the calls of Agent_OnLoad in order, and the outcome of a failure of each.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "fake_vm.h"
#include "jc/StackTraceManager.h"
#include "own_folder.h"
#include "vantrel-agent.h"

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::ExitedWithCode;

namespace {

struct AgentLoad : testing::Test {
    void SetUp() override {
        std::ofstream create(jar);
        before = gb_data;
        gb_data = {.jvmti = nullptr, .jvm = nullptr, .lock = nullptr, .libraryPath = library.c_str(), .loaded = 0};
        steps = {
            "GetEnv 0x30010000",
            "AddCapabilities 0x24000000 0x0",
            "SetEventCallbacks 280",
            "CreateRawMonitor agent data",
            "AddToBootstrapClassLoaderSearch " + jar,
            "SetEventNotificationMode enable 50 null",
            "SetEventNotificationMode enable 54 null",
            "SetEventNotificationMode enable 57 null",
        };
    }
    void TearDown() override { gb_data = before; }

    std::vector<std::string> first_steps(size_t count) const {
        return {steps.begin(), std::next(steps.begin(), static_cast<std::ptrdiff_t>(count))};
    }

    struct Outcome {
        jint result;
        std::string out;
        std::string err;
    };
    Outcome load() const {
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        std::string options = "ignored";
        const jint result = Agent_OnLoad(vm.java_vm, options.data(), nullptr);
        return {result, testing::internal::GetCapturedStdout(), testing::internal::GetCapturedStderr()};
    }

    FakeVm vm;
    const OwnFolder folder;
    const std::string jar = folder.path / "vantrel-1.2.3.jar";
    const std::string library = folder.path / "libvantrel-agent.so.1";
    AgentData before{};
    std::vector<std::string> steps;
};

TEST_F(AgentLoad, SetsEverythingUpInOrder) {
    NSStackTraceManager::vantrelAddStackTrace = false;
    const Outcome outcome = load();
    EXPECT_EQ(outcome.result, 0);
    EXPECT_EQ(outcome.out + outcome.err, "");
    EXPECT_THAT(vm.calls, ElementsAreArray(steps));
    EXPECT_EQ(gb_data.jvm, vm.java_vm);
    EXPECT_EQ(gb_data.jvmti, vm.jvmti);
    EXPECT_NE(gb_data.lock, nullptr);
    EXPECT_EQ(gb_data.loaded, 1);
    EXPECT_TRUE(NSStackTraceManager::vantrelAddStackTrace);
}

TEST_F(AgentLoad, InstallsSevenCallbacks) {
    load();
    jvmtiEventCallbacks expected{};
    expected.VMInit = cbVMInit;
    expected.ClassFileLoadHook = cbClassFileLoadHook;
    expected.VMStart = cbVMStart;
    expected.Exception = cbException;
    expected.FieldModification = cbFieldModification;
    expected.MethodExit = cbMethodExit;
    expected.VMObjectAlloc = cbVMObjectAlloc;
    EXPECT_EQ(memcmp(&vm.callbacks, &expected, sizeof expected), 0);
}

TEST_F(AgentLoad, CapabilitiesAreTheSameEveryTime) {
    load();
    vm.calls.clear();
    load();
    EXPECT_EQ(vm.calls.at(1), "AddCapabilities 0x24000000 0x0");
}

TEST_F(AgentLoad, ReturnsMinusOneWhereAStepIsRefused) {
    struct {
        const char* function;
        size_t step;
        const char* out;
        bool tracking;
    } const cases[] = {
        {"GetEnv", 1, "ERROR: Unable to access JVMTI!\n", false},
        {"AddCapabilities", 2, "", false},
        {"SetEventCallbacks", 3, "ERROR: Can't set jvmti callback!", true},
        {"CreateRawMonitor", 4, "ERROR: Can't create raw monitor!", true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.function);
        gb_data = {.jvmti = nullptr, .jvm = nullptr, .lock = nullptr, .libraryPath = library.c_str(), .loaded = 0};
        NSStackTraceManager::vantrelAddStackTrace = false;
        vm.calls.clear();
        vm.fail(c.function);
        const Outcome outcome = load();
        EXPECT_EQ(outcome.result, -1);
        EXPECT_EQ(outcome.out, c.out);
        EXPECT_EQ(outcome.err, "");
        EXPECT_THAT(vm.calls, ElementsAreArray(first_steps(c.step)));
        EXPECT_EQ(gb_data.loaded, 0);
        EXPECT_EQ(NSStackTraceManager::vantrelAddStackTrace, c.tracking);
    }
}

TEST_F(AgentLoad, AnEnvironmentThatIsNullIsRefused) {
    vm.jvmti = nullptr;  // what GetEnv hands out
    const Outcome outcome = load();
    EXPECT_EQ(outcome.result, -1);
    EXPECT_EQ(outcome.out, "ERROR: Unable to access JVMTI!\n");
}

TEST_F(AgentLoad, AMissingJarIsNamed) {
    fs::remove(jar);
    const Outcome outcome = load();
    EXPECT_EQ(outcome.result, -1);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, jar + " doesn't exist.\n");
    EXPECT_THAT(vm.calls, ElementsAreArray(first_steps(4)));
}

TEST_F(AgentLoad, ALibraryPathThatDoesNotFitIsAMissingJar) {
    const std::string deep = folder.path.string() + std::string(1100, '/') + "libvantrel-agent.so.1";
    gb_data.libraryPath = deep.c_str();
    const Outcome outcome = load();
    EXPECT_EQ(outcome.result, -1);
    EXPECT_EQ(outcome.err, deep.substr(0, 1023) + " doesn't exist.\n");
}

TEST_F(AgentLoad, LaterFailuresEndTheProcess) {
    struct {
        const char* function;
        int nth;
        const char* message;
    } const cases[] = {
        {"AddToBootstrapClassLoaderSearch", 1, "Cannot add to boot classpath"},
        {"SetEventNotificationMode", 1, "Cannot set event notification"},
        {"SetEventNotificationMode", 2, "Cannot set event notification"},
        {"SetEventNotificationMode", 3, "Cannot set event notification"},
    };
    for (const auto& c : cases) {
        EXPECT_EXIT(
            {
                vm.fail(c.function, c.nth);
                Agent_OnLoad(vm.java_vm, nullptr, nullptr);
            },
            ExitedWithCode(3), std::string("^ERROR: JVMTI: 113\\(error name 113\\): ") + c.message + "\n$")
            << c.function << " " << c.nth;
    }
}

TEST_F(AgentLoad, AttachIsRefusedAndTouchesNothing) {
    EXPECT_EQ(Agent_OnAttach(vm.java_vm, nullptr, nullptr), 1);
    EXPECT_EQ(Agent_OnAttach(nullptr, nullptr, nullptr), 1);
    EXPECT_THAT(vm.calls, ElementsAre());
}

TEST_F(AgentLoad, VmStartIsAnnounced) {
    testing::internal::CaptureStdout();
    cbVMStart(vm.jvmti, vm.jni);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Starting Vantrel.\n");
    EXPECT_THAT(vm.calls, ElementsAre());
}

TEST_F(AgentLoad, TheCriticalSectionIsTheAgentsMonitor) {
    load();
    vm.calls.clear();
    enter_critical_section(vm.jvmti);
    exit_critical_section(vm.jvmti);
    EXPECT_THAT(vm.calls, ElementsAre("RawMonitorEnter monitor agent data", "RawMonitorExit monitor agent data"));

    const std::string message = "^ERROR: JVMTI: 113\\(error name 113\\): Cannot enter with raw monitor\n$";
    EXPECT_EXIT(
        {
            vm.fail("RawMonitorEnter");
            enter_critical_section(vm.jvmti);
        },
        ExitedWithCode(3), message);
    EXPECT_EXIT(
        {
            vm.fail("RawMonitorExit");
            exit_critical_section(vm.jvmti);
        },
        ExitedWithCode(3), message);
}

}  // namespace
