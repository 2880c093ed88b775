// The agent from the VM's initialisation to its end, with the hot key's presses in between.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "agent_life.h"
#include "all_proxies.h"
#include "fake_vm.h"
#include "proxied_classes.h"
#include "vantrel-agent.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::KilledBySignal;
using testing::Not;
using testing::StartsWith;

namespace {

// A VM that has everything the proxies look for, and proxies that have not looked yet.
struct VmLifecycle : testing::Test {
    void SetUp() override {
        add_proxied_classes(vm);
        empty_the_proxies();
        std::construct_at(&agent_life);
        gb_data.jvm = vm.java_vm;
        gb_data.jvmti = vm.jvmti;
        vm.jvmti->CreateRawMonitor("agent data", &gb_data.lock);
        vm.calls.clear();
    }
    void TearDown() override {
        gb_data = before;
        empty_the_proxies();
        std::construct_at(&agent_life);
    }

    // What a new process has: the proxies keep what they were filled with, even after it was given back.
    static void empty_the_proxies() {
#define PROXY(C, CLASS) NS##C::_c_Class = nullptr;
#define PROXY_METHOD(C, CLASS, KIND, NAME, DESCRIPTOR, VARIABLE, ...) NS##C::VARIABLE = nullptr;
#include "members.inc"
    }

    FakeMember& method(const std::string& class_name, const std::string& name) {
        for (FakeMember& member : vm.members) {
            if (member.owner == vm.classes.at(class_name) && member.name == name) {
                return member;
            }
        }
        throw std::invalid_argument(name);
    }

    void initialise() {
        const RecordedStdout recorded;
        testing::internal::CaptureStderr();
        cbVMInit(vm.jvmti, vm.jni, nullptr);
        err = testing::internal::GetCapturedStderr();
    }

    // The calls so far, but for the look-ups.
    std::vector<std::string> telling_calls() const {
        std::vector<std::string> telling;
        for (const std::string& call : vm.calls) {
            const std::string function = call.substr(0, call.find(' '));
            if (function != "FindClass" && !function.ends_with("ID")) {
                telling.push_back(call);
            }
        }
        return telling;
    }

    const std::string set_security_manager =
        "CallStaticObjectMethodV global java/lang/System "
        "java/lang/System.setSecurityManager:(Ljava/lang/SecurityManager;)V null";
    const std::string show_vantrel =
        "CallStaticVoidMethodV global com/vantrel/Vantrel "
        "com/vantrel/Vantrel.showVantrel:(Ljava/awt/Component;)V null";

    FakeVm vm;
    const AgentData before = gb_data;
    std::string err;
};

TEST_F(VmLifecycle, InitialisationFillsTheProxiesInOrderUnderTheMonitor) {
    method("java/lang/System", "setSecurityManager").thrown = vm.add_object("a refusal");
    vm.fail("SetFieldModificationWatch", 1, JVMTI_ERROR_MUST_POSSESS_CAPABILITY);
    initialise();
    EXPECT_EQ(err, "");
    EXPECT_EQ(vm.pending, nullptr);
    EXPECT_THAT(
        telling_calls(),
        ElementsAre("RawMonitorEnter monitor agent data", "NewGlobalRef java/lang/Object",
                    "NewGlobalRef java/awt/Color", "NewGlobalRef sun/awt/AppContext", "NewGlobalRef java/awt/AWTEvent",
                    "NewGlobalRef java/awt/Component", "NewGlobalRef java/awt/AlphaComposite",
                    "NewGlobalRef java/awt/Toolkit", "NewGlobalRef java/awt/Graphics2D",
                    "NewGlobalRef java/lang/System", "NewGlobalRef javax/swing/SwingUtilities",
                    "NewGlobalRef com/vantrel/SwingContext",
                    "RegisterNatives global com/vantrel/SwingContext "
                    "safeRun1:(Ljava/awt/Component;Ljava/lang/Runnable;)V",
                    "NewGlobalRef java/lang/Thread", "NewGlobalRef com/vantrel/EDTRunnable",
                    "RegisterNatives com/vantrel/Vantrel "
                    "highlight:(Ljava/awt/Component;Ljava/awt/Graphics2D;)V beep:()V getOSVersion:()I canHighlight:()Z",
                    "NewGlobalRef com/vantrel/Vantrel",
                    "CallStaticObjectMethodV global com/vantrel/Vantrel "
                    "com/vantrel/Vantrel.getInstance:()Lcom/vantrel/Vantrel;",
                    "NewGlobalRef result", "NewObjectV global java/awt/Color java/awt/Color.<init>:(I)V 16547328",
                    "NewGlobalRef result", "NewGlobalRef javax/swing/JComponent",
                    "NewGlobalRef com/vantrel/stacktrace/StackTraceManager", "NewGlobalRef com/vantrel/VantrelFrame",
                    "RegisterNatives global com/vantrel/VantrelFrame setOpacity:(I)V", "GetSystemProperty java.home",
                    "SetFieldModificationWatch global java/awt/Component "
                    "java/awt/Component.parent:Ljava/awt/Container;",
                    set_security_manager, "ExceptionClear", "stdout Vantrel Initializing.\n", "setHotKeyVmAttachment",
                    "bindMacHotKey keyCallback", "RawMonitorExit monitor agent data"));
}

// What a library gets that is named twice, or three times: every class is there already, and so is the hot key.
TEST_F(VmLifecycle, FurtherInitialisationsAreHarmlessAndToldOnce) {
    initialise();
    const std::string line =
        "vantrel-agent: loaded more than once; one -agentpath is enough (see JAVA_TOOL_OPTIONS).\n";
    for (const std::string& told : {line, std::string()}) {
        vm.calls.clear();
        initialise();
        EXPECT_EQ(err, told);
        EXPECT_THAT(telling_calls(), Not(Contains(StartsWith("NewGlobalRef java/"))));
        EXPECT_THAT(telling_calls(), Not(Contains(StartsWith("bindMacHotKey"))));
    }
}

TEST_F(VmLifecycle, InitCacheJavaObjectsReturnsTheWatchsError) {
    vm.fail("SetFieldModificationWatch", 1, JVMTI_ERROR_MUST_POSSESS_CAPABILITY);
    EXPECT_EQ(InitCacheJavaObjects(vm.jvmti, vm.jni), JVMTI_ERROR_MUST_POSSESS_CAPABILITY);
}

TEST_F(VmLifecycle, APressLiftsTheSecurityManagerAndShowsTheInspector) {
    initialise();
    method("java/lang/System", "setSecurityManager").thrown = vm.add_object("a refusal");
    jobject pending = vm.add_object("not looked at yet");
    method("com/vantrel/Vantrel", "showVantrel").body = [&] { pending = vm.pending; };
    for (int press = 0; press < 2; ++press) {
        vm.calls.clear();
        vm.pending = nullptr;
        keyCallback();
        EXPECT_THAT(vm.calls, ElementsAre("AttachCurrentThread null", set_security_manager, "ExceptionClear",
                                          show_vantrel, "ExceptionCheck", "ExceptionClear"));
        EXPECT_EQ(pending, nullptr) << "the refusal is cleared before Java is called again";
    }
}

TEST_F(VmLifecycle, WhatTheInspectorThrowsIsDescribedAndCleared) {
    initialise();
    method("com/vantrel/Vantrel", "showVantrel").thrown = vm.add_object("a fault");
    testing::internal::CaptureStderr();
    keyCallback();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "described: a fault\n");
    EXPECT_EQ(vm.pending, nullptr);
}

TEST_F(VmLifecycle, APressAfterTheVmHasEndedDoesNothing) {
    vm.fail("AttachCurrentThread");
    keyCallback();
    EXPECT_THAT(vm.calls, ElementsAre("AttachCurrentThread null"));
}

TEST_F(VmLifecycle, UnloadWithoutAnEnvironmentIsAnAssertion) {
    EXPECT_EXIT(
        {
            vm.fail("AttachCurrentThread");
            Agent_OnUnload(vm.java_vm);
        },
        KilledBySignal(SIGABRT), "vantrel-agent\\.cpp:[0-9]+: .*Agent_OnUnload.*Assertion `jni_env!= NULL' failed");
}

TEST_F(VmLifecycle, UnloadGivesTheProxiesBackInOrderAndOnce) {
    const auto unload = [this] {
        vm.calls.clear();
        Agent_OnUnload(vm.java_vm);
    };
    unload();
    EXPECT_THAT(vm.calls, ElementsAre("AttachCurrentThread null", "unbindMacHotKey")) << "never initialised";

    initialise();
    unload();
    EXPECT_THAT(
        vm.calls,
        ElementsAre("AttachCurrentThread null", "unbindMacHotKey", "UnregisterNatives global com/vantrel/Vantrel",
                    "DeleteGlobalRef global com/vantrel/Vantrel", "DeleteGlobalRef global result",
                    "DeleteGlobalRef global result", "DeleteGlobalRef global java/awt/Graphics2D",
                    "DeleteGlobalRef global java/lang/System", "DeleteGlobalRef global javax/swing/SwingUtilities",
                    "DeleteGlobalRef global com/vantrel/SwingContext", "DeleteGlobalRef global java/lang/Thread",
                    "DeleteGlobalRef global com/vantrel/EDTRunnable", "DeleteGlobalRef global sun/awt/AppContext",
                    "DeleteGlobalRef global java/awt/AlphaComposite", "DeleteGlobalRef global java/awt/Color",
                    "DeleteGlobalRef global java/awt/Component", "DeleteGlobalRef global java/awt/AWTEvent",
                    "DeleteGlobalRef global java/lang/Object", "DeleteGlobalRef global javax/swing/JComponent",
                    "DeleteGlobalRef global com/vantrel/stacktrace/StackTraceManager",
                    "DeleteGlobalRef global com/vantrel/VantrelFrame"));
    unload();
    EXPECT_THAT(vm.calls, ElementsAre("AttachCurrentThread null", "unbindMacHotKey")) << "given back already";
    vm.calls.clear();
    keyCallback();
    EXPECT_THAT(vm.calls, IsEmpty()) << "no press begins after the unload";

    empty_the_proxies();
    initialise();
    EXPECT_THAT(vm.calls, Contains("bindMacHotKey keyCallback")) << "a new life";
    keyCallback();
    EXPECT_THAT(vm.calls, Contains(show_vantrel));
}

// Every way in whose work is done in Java, ended at a moment when Java is at work.
TEST_F(VmLifecycle, UnloadLeavesTheProxiesToWhoIsInside) {
    const jobject component = vm.add_object("component");
    set_field(component, "appContext", vm.add_object("its context"));
    const struct {
        const char* class_name;
        const char* method_name;
        std::function<void()> enter;
    } cases[] = {
        {"com/vantrel/Vantrel", "getInstance", [this] { initialise(); }},
        {"com/vantrel/Vantrel", "showVantrel", keyCallback},
        {"java/awt/Graphics", "fillRect", [&] { NSVantrel::highlight(vm.jni, nullptr, component, component); }},
        {"java/lang/Object", "equals", [&] { NSSwingContext::_safeRun1(vm.jni, nullptr, component, component); }},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.method_name);
        initialise();
        bool unloaded = false;
        method(c.class_name, c.method_name).body = [&] {
            Agent_OnUnload(vm.java_vm);
            unloaded = true;
        };
        vm.calls.clear();
        c.enter();
        method(c.class_name, c.method_name).body = {};
        EXPECT_TRUE(unloaded);
        EXPECT_THAT(vm.calls, Not(Contains(StartsWith("Delete"))));
    }
}

}  // namespace
