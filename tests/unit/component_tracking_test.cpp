#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "all_proxies.h"
#include "fake_vm.h"
#include "vantrel-agent.h"

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

namespace {

struct ComponentTracking : testing::Test {
    void SetUp() override {
        vm.jvmti->CreateRawMonitor("agent data", &gb_data.lock);
        container = vm.add_class("java/awt/Container");
        NSComponent::_c_Class = vm.add_class("java/awt/Component");
        NSJComponent::_c_Class = vm.add_class("javax/swing/JComponent");
        NSObject::_c_Class = vm.add_class("O");
        NSThread::_c_Class = vm.add_class("T");
        NSThread::Thread_getStackTrace15 =
            vm.add_method(NSThread::_c_Class, "getStackTrace", "()[LE;", vm.add_object("trace"));
        NSStackTraceManager::_c_Class = vm.add_class("M");
        NSStackTraceManager::StackTraceManager_addStackTrace2 =
            vm.add_method(NSStackTraceManager::_c_Class, "addStackTrace", "(LC;[LE;)V");
        thread = vm.add_object("thread");
        object = vm.add_object("component");
        vm.calls.clear();
    }
    void TearDown() override {
        gb_data.lock = nullptr;
        NSComponent::_c_Class = NSJComponent::_c_Class = NSObject::_c_Class = NSThread::_c_Class =
            NSStackTraceManager::_c_Class = nullptr;
        NSObject::Object_equals4 = NSThread::Thread_getStackTrace15 = nullptr;
        NSStackTraceManager::StackTraceManager_addStackTrace2 = nullptr;
    }

    void modify_field(bool of_component, const char* field, const char* method, bool in_swing) {
        NSObject::Object_equals4 =
            vm.add_method(NSObject::_c_Class, "equals", "(LO;)Z", jvalue{.z = static_cast<jboolean>(of_component)});
        vm.instances.clear();
        if (in_swing) {
            vm.instances.emplace(object, NSJComponent::_c_Class);
        }
        vm.calls.clear();
        cbFieldModification(vm.jvmti, vm.jni, thread, vm.add_method(container, method, "()V"), 0, NSComponent::_c_Class,
                            object, vm.add_field(NSComponent::_c_Class, field, "LC;"), 'L', {});
    }
    void exit_method(const char* name, const char* descriptor) {
        vm.calls.clear();
        vm.local_object = object;
        cbMethodExit(vm.jvmti, vm.jni, thread, vm.add_method(container, name, descriptor), JNI_FALSE, {});
    }

    const std::string enter = "RawMonitorEnter monitor agent data";
    const std::string leave = "RawMonitorExit monitor agent data";
    const std::string equals = "CallBooleanMethodV java/awt/Component O.equals:(LO;)Z java/awt/Component";
    const std::string take = "CallObjectMethodV thread T.getStackTrace:()[LE;";
    const std::string store = "CallStaticVoidMethodV M M.addStackTrace:(LC;[LE;)V component trace";
    const std::string is_swing = "IsInstanceOf component javax/swing/JComponent";
    FakeVm vm;
    jclass container = nullptr;
    jthread thread = nullptr;
    jobject object = nullptr;
};

TEST_F(ComponentTracking, ANewParentOfASwingComponentIsRecorded) {
    const std::string method = "GetMethodName java/awt/Container.";
    const std::string field = "GetFieldName java/awt/Component.";
    modify_field(true, "parent", "addImpl", true);
    EXPECT_THAT(vm.calls,
                ElementsAre(enter, equals, method + "addImpl:()V", field + "parent:LC;", take, is_swing, store, leave));
    modify_field(true, "parent", "addImpl", false);
    EXPECT_THAT(vm.calls,
                ElementsAre(enter, equals, method + "addImpl:()V", field + "parent:LC;", take, is_swing, leave))
        << "the trace is taken before the test";
    modify_field(true, "parent", "remove", true);
    EXPECT_THAT(vm.calls, ElementsAre(enter, equals, method + "remove:()V", field + "parent:LC;", leave));
    modify_field(true, "peer", "addImpl", true);
    EXPECT_THAT(vm.calls, ElementsAre(enter, equals, method + "addImpl:()V", field + "peer:LC;", leave));
    modify_field(false, "parent", "addImpl", true);
    EXPECT_THAT(vm.calls, ElementsAre(enter, equals, leave));
}

TEST_F(ComponentTracking, NamesThatJvmtiDoesNotGiveMatchNothing) {
    vm.fail("GetMethodName");
    modify_field(true, "parent", "addImpl", true);
    EXPECT_THAT(vm.calls, Not(Contains(take)));
    vm.fail("GetFieldName");
    modify_field(true, "parent", "addImpl", true);
    EXPECT_THAT(vm.calls, Not(Contains(take)));
    vm.fail("GetMethodName");
    exit_method("addImpl", "(Ljava/awt/Component;Ljava/lang/Object;I)V");
    EXPECT_EQ(vm.calls.size(), 1u);
}

TEST_F(ComponentTracking, TheEndOfAddImplIsRecorded) {
    const std::string add_impl = "java/awt/Container.addImpl:(Ljava/awt/Component;Ljava/lang/Object;I)V";
    exit_method("addImpl", "(Ljava/awt/Component;Ljava/lang/Object;I)V");
    EXPECT_THAT(vm.calls, ElementsAre("GetMethodName " + add_impl, "GetLocalVariableTable " + add_impl,
                                      "GetLocalObject thread 0 1", take, store));
    exit_method("addImpl", "(Ljava/awt/Component;I)V");
    EXPECT_THAT(vm.calls, ElementsAre("GetMethodName java/awt/Container.addImpl:(Ljava/awt/Component;I)V"));
    exit_method("add", "(Ljava/awt/Component;Ljava/lang/Object;I)V");
    EXPECT_EQ(vm.calls.size(), 1u);
}

TEST_F(ComponentTracking, AnExceptionIsReported) {
    const jmethodID method = vm.add_method(container, "add", "()V");
    testing::internal::CaptureStdout();
    cbException(vm.jvmti, vm.jni, thread, method, 0, nullptr, nullptr, 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "In Agent: Got an exception from Method: add\n");
    EXPECT_THAT(vm.calls, ElementsAre(enter, "GetMethodName java/awt/Container.add:()V", leave));

    vm.calls.clear();
    vm.fail("GetMethodName");
    testing::internal::CaptureStdout();
    cbException(vm.jvmti, vm.jni, thread, method, 0, nullptr, nullptr, 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "ERROR:GetMethodName!\n");
    EXPECT_THAT(vm.calls, ElementsAre(enter, "GetMethodName java/awt/Container.add:()V")) << "the monitor stays held";
}

}  // namespace
