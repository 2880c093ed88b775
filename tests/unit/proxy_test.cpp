// What single proxies do beyond the shape that all share, and the order and texts of failures.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <string>

#include "all_proxies.h"
#include "common.h"
#include "fake_vm.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::KilledBySignal;

namespace {

std::string aborts_with(const std::string& proxy, const std::string& function, const std::string& expression) {
    return "vantrel-agent/jc/" + proxy + "\\.cpp:[0-9]+: .*NS" + proxy + "::" + function + ".*Assertion `" +
           expression + "' failed";
}

// A JNI identifier that is not null.
template <typename Id>
Id some_id() {
    static int target;
    return reinterpret_cast<Id>(&target);
}

TEST(ProxyFailures, NameTheExpressionAndTheFunction) {
    FakeVm vm;
    const jclass thread = vm.add_class("java/lang/Thread");
    NSThread::_c_Class = nullptr;
    NSThread::Thread_getStackTrace15 = NSThread::Thread_sleep21 = NSThread::ConstructorThread0 = nullptr;
    EXPECT_EXIT(
        {
            vm.fail("FindClass");
            vm.fail("NewGlobalRef");
            NSThread::currentThread(vm.jni);
        },
        KilledBySignal(SIGABRT), aborts_with("Thread", "currentThread", "_c_Class != NULL"));

    const struct {
        const char* failing;
        std::function<void()> run;
        std::string report;
    } cases[] = {
        {"GetMethodID", [&] { NSThread::getStackTrace(vm.jni, nullptr); },
         aborts_with("Thread", "getStackTrace", "JAVA_METHOD\\(Thread,getStackTrace,15\\) != NULL")},
        {"GetStaticMethodID", [&] { NSThread::sleep(vm.jni, 1, 2); },
         aborts_with("Thread", "sleep", "JAVA_METHOD\\(Thread,sleep,21\\) != NULL")},
        {"GetMethodID", [&] { NSThread::Thread(vm.jni, nullptr, nullptr, nullptr); },
         aborts_with("Thread", "Thread", "JAVA_CONSTRUCTOR\\(Thread,0\\)")},
        {"GetFieldID", [&] { NSThread::Init(vm.jvmti, vm.jni); },
         aborts_with("Thread", "Init", "JAVA_FIELD\\(Thread,threadLocals\\)")},
    };
    for (const auto& c : cases) {
        EXPECT_EXIT(
            {
                NSThread::_c_Class = thread;
                vm.fail(c.failing);
                c.run();
            },
            KilledBySignal(SIGABRT), c.report);
    }
}

TEST(ProxyFailures, DestroyBeforeInit) {
    FakeVm vm;
    NSThread::_c_Class = nullptr;
    NSThread::Thread_threadLocals = nullptr;
    NSSystem::_c_Class = nullptr;
    NSSystem::System_setSecurityManager0 = nullptr;
    EXPECT_EXIT(NSThread::Destroy(vm.jvmti, vm.jni), KilledBySignal(SIGABRT),
                aborts_with("Thread", "Destroy", "Thread_threadLocals != NULL"));
    EXPECT_EXIT(NSSystem::Destroy(vm.jvmti, vm.jni), KilledBySignal(SIGABRT),
                aborts_with("System", "Destroy", "System_setSecurityManager0 != NULL"));
    NSObject::_c_Class = nullptr;
    NSObject::Destroy(vm.jvmti, vm.jni);
    EXPECT_THAT(vm.calls, ElementsAre("DeleteGlobalRef null")) << "a proxy without fields has nothing to assert";
}

TEST(EagerProxies, LookUpTheirMethodsInInitOnly) {
    FakeVm vm;
    NSSystem::_c_Class = nullptr;
    NSSystem::System_setSecurityManager0 = nullptr;
    NSSystem::setSecurityManager(vm.jni, nullptr);
    EXPECT_THAT(vm.calls, ElementsAre("CallStaticObjectMethodV null null"));

    vm.calls.clear();
    const jclass system = vm.add_class("java/lang/System");
    vm.add_method(system, "setSecurityManager", "(Ljava/lang/SecurityManager;)V");
    NSSystem::Init(vm.jvmti, vm.jni);
    EXPECT_THAT(vm.calls, ElementsAre("FindClass java/lang/System", "NewGlobalRef java/lang/System",
                                      "GetStaticMethodID global java/lang/System setSecurityManager "
                                      "(Ljava/lang/SecurityManager;)V"));
    vm.calls.clear();
    NSSystem::Init(vm.jvmti, vm.jni);
    EXPECT_THAT(vm.calls, IsEmpty());
    NSSystem::setSecurityManager(vm.jni, nullptr);
    EXPECT_THAT(vm.calls, ElementsAre("CallStaticObjectMethodV global java/lang/System "
                                      "java/lang/System.setSecurityManager:(Ljava/lang/SecurityManager;)V null"));
}

TEST(EagerProxies, ToolkitIsNeverReleased) {
    FakeVm vm;
    const jclass toolkit = vm.add_class("java/awt/Toolkit");
    vm.add_method(toolkit, "getDefaultToolkit", "()Ljava/awt/Toolkit;");
    vm.add_method(toolkit, "addAWTEventListener", "(Ljava/awt/event/AWTEventListener;J)V");
    NSToolkit::_c_Class = nullptr;
    NSToolkit::Toolkit_getDefaultToolkit0 = NSToolkit::Toolkit_addAWTEventListener0 = nullptr;
    NSToolkit::Destroy(vm.jvmti, vm.jni);
    EXPECT_THAT(vm.calls, IsEmpty());
    NSToolkit::Init(vm.jvmti, vm.jni);
    EXPECT_THAT(vm.calls,
                ElementsAre("FindClass java/awt/Toolkit", "NewGlobalRef java/awt/Toolkit",
                            "GetStaticMethodID global java/awt/Toolkit getDefaultToolkit ()Ljava/awt/Toolkit;",
                            "GetMethodID global java/awt/Toolkit addAWTEventListener "
                            "(Ljava/awt/event/AWTEventListener;J)V"));
}

TEST(EagerProxies, AlphaCompositeAssertsItsMethod) {
    FakeVm vm;
    NSAlphaComposite::AlphaComposite_getInstance0 = nullptr;
    EXPECT_EXIT(NSAlphaComposite::Destroy(vm.jvmti, vm.jni), KilledBySignal(SIGABRT),
                aborts_with("AlphaComposite", "Destroy", "AlphaComposite_getInstance0 != NULL"));
}

TEST(SwingContext, RegistersItsNativeBeforeItLooksItUp) {
    FakeVm vm;
    const std::string name = "com/vantrel/SwingContext";
    const std::string descriptor = "(Ljava/awt/Component;Ljava/lang/Runnable;)V";
    const jclass owner = vm.add_class(name);
    vm.add_method(owner, "safeRun1", descriptor);
    NSSwingContext::_c_Class = nullptr;
    NSSwingContext::SwingContext_safeRun10 = nullptr;
    EXPECT_EXIT(NSSwingContext::Destroy(vm.jvmti, vm.jni), KilledBySignal(SIGABRT),
                aborts_with("SwingContext", "Destroy", "SwingContext_safeRun10 != NULL"));
    vm.fail("RegisterNatives", 1, JNI_ERR);  // not looked at
    NSSwingContext::Init(vm.jvmti, vm.jni);
    EXPECT_THAT(vm.calls, ElementsAre("FindClass " + name, "NewGlobalRef " + name,
                                      "RegisterNatives global " + name + " safeRun1:" + descriptor,
                                      "GetStaticMethodID global " + name + " safeRun1 " + descriptor));
    EXPECT_EQ(vm.natives.at("safeRun1"), reinterpret_cast<void*>(NSSwingContext::_safeRun1));
    vm.calls.clear();
    NSSwingContext::Destroy(vm.jvmti, vm.jni);
    EXPECT_THAT(vm.calls, ElementsAre("DeleteGlobalRef global " + name));
}

TEST(VantrelFrame, KeepsAPathThatFitsAndCutsOneThatDoesNot) {
    const std::string tail = "\\bin\\jawt.dll";
    for (const size_t length : {size_t{0}, size_t{9}, 1023 - tail.size(), 1024 - tail.size(), size_t{5000}}) {
        FakeVm vm;
        vm.add_class("com/vantrel/VantrelFrame");
        const std::string home(length, 'h');
        vm.add_property("java.home", home);
        NSVantrelFrame::_c_Class = nullptr;
        NSVantrelFrame::Init(vm.jvmti, vm.jni);
        EXPECT_STREQ(NSVantrelFrame::jawt_dll_path, (home + tail).substr(0, 1023).c_str()) << length;
        EXPECT_THAT(vm.calls, ElementsAre("FindClass com/vantrel/VantrelFrame", "NewGlobalRef com/vantrel/VantrelFrame",
                                          "RegisterNatives global com/vantrel/VantrelFrame setOpacity:(I)V",
                                          "GetSystemProperty java.home"));
        EXPECT_EQ(vm.natives.at("setOpacity"), reinterpret_cast<void*>(NSVantrelFrame::_setOpacity));
        vm.calls.clear();
        NSVantrelFrame::Destroy(vm.jvmti, vm.jni);
        EXPECT_THAT(vm.calls, ElementsAre("DeleteGlobalRef global com/vantrel/VantrelFrame"));
    }
    static_assert(sizeof NSVantrelFrame::jawt_dll_path == 1024);
}

struct VantrelProxy : testing::Test {
    void SetUp() override {
        NSVantrel::_c_Class = nullptr;
        NSVantrel::Vantrel_showVantrel0 = NSVantrel::Vantrel_getInstance0 = NSVantrel::Vantrel_selectOnComponentTree0 =
            nullptr;
        NSVantrel::VantrelInstance = NSVantrel::HighlightColor = nullptr;
        NSColor::_c_Class = nullptr;
        NSColor::ConstructorColor5 = nullptr;
        vm.add_class("java/awt/Container");
    }

    void add_companion(const char* instance) {
        const jclass vantrel = vm.add_class(kName);
        vm.add_method(vantrel, "showVantrel", "(Ljava/awt/Component;)V");
        vm.add_method(vantrel, "getInstance", "()Lcom/vantrel/Vantrel;",
                      instance != nullptr ? vm.add_object(instance) : nullptr);
        vm.add_method(vantrel, "selectOnComponentTree", "(Ljava/awt/Component;)V");
        const jclass color = vm.add_class("java/awt/Color");
        vm.add_method(color, "<init>", "(I)V", vm.add_object("the colour"));
    }

    const std::string kName = "com/vantrel/Vantrel";
    FakeVm vm;
};

TEST_F(VantrelProxy, InitAndDestroyInTheirOrders) {
    add_companion("the companion");
    EXPECT_EQ(NSVantrel::getInstance(vm.jni), nullptr);
    EXPECT_THAT(vm.calls, IsEmpty());
    NSVantrel::Init(vm.jvmti, vm.jni);
    const std::string global = "global " + kName;
    EXPECT_THAT(vm.calls,
                ElementsAre("FindClass java/awt/Container", "FindClass " + kName, "FindClass " + kName,
                            "RegisterNatives " + kName +
                                " highlight:(Ljava/awt/Component;Ljava/awt/Graphics2D;)V beep:()V getOSVersion:()I "
                                "canHighlight:()Z",
                            "FindClass " + kName, "NewGlobalRef " + kName,
                            "GetStaticMethodID " + global + " showVantrel (Ljava/awt/Component;)V",
                            "GetStaticMethodID " + global + " getInstance ()Lcom/vantrel/Vantrel;",
                            "GetMethodID " + global + " selectOnComponentTree (Ljava/awt/Component;)V",
                            "CallStaticObjectMethodV " + global + " " + kName + ".getInstance:()Lcom/vantrel/Vantrel;",
                            "NewGlobalRef the companion", "FindClass java/awt/Color", "NewGlobalRef java/awt/Color",
                            "GetMethodID global java/awt/Color <init> (I)V",
                            "NewObjectV global java/awt/Color java/awt/Color.<init>:(I)V 16547328",  // 0xFC7E00
                            "NewGlobalRef the colour"));
    EXPECT_EQ(vm.natives.at("highlight"), reinterpret_cast<void*>(NSVantrel::highlight));
    EXPECT_EQ(vm.natives.at("beep"), reinterpret_cast<void*>(NSVantrel::beep));
    EXPECT_EQ(vm.natives.at("getOSVersion"), reinterpret_cast<void*>(NSVantrel::getOSVer));
    EXPECT_EQ(vm.natives.at("canHighlight"), reinterpret_cast<void*>(NSVantrel::canHighlight));
    EXPECT_EQ(NSVantrel::getInstance(vm.jni), NSVantrel::VantrelInstance);
    EXPECT_NE(NSVantrel::VantrelInstance, nullptr);

    vm.calls.clear();
    NSVantrel::Vantrel_getInstance0 = nullptr;  // is not asserted
    NSVantrel::Destroy(vm.jvmti, vm.jni);
    EXPECT_THAT(vm.calls, ElementsAre("UnregisterNatives " + global, "DeleteGlobalRef " + global,
                                      "DeleteGlobalRef global the companion", "DeleteGlobalRef global the colour"));
}

TEST_F(VantrelProxy, FailuresNameWhatIsMissing) {
    const auto init = [&] { NSVantrel::Init(vm.jvmti, vm.jni); };
    EXPECT_EXIT(
        {
            vm.fail("FindClass", 1);
            init();
        },
        KilledBySignal(SIGABRT),
        aborts_with("Vantrel", "Init", "jni_env->FindClass\\(\"java/awt/Container\"\\) != NULL"));
    EXPECT_EXIT(
        {
            vm.fail("FindClass", 2);
            init();
        },
        KilledBySignal(SIGABRT),
        aborts_with("Vantrel", "Init", "jni_env->FindClass\\(\"com/vantrel/Vantrel\"\\) != NULL"));
    EXPECT_EXIT(
        {
            add_companion(nullptr);
            init();
        },
        KilledBySignal(SIGABRT), aborts_with("Vantrel", "Init", "instance != NULL"));
    EXPECT_EXIT(NSVantrel::Destroy(vm.jvmti, vm.jni), KilledBySignal(SIGABRT),
                aborts_with("Vantrel", "Destroy", "Vantrel_showVantrel0 != NULL"));
    EXPECT_EXIT(
        {
            NSVantrel::Vantrel_showVantrel0 = some_id<jmethodID>();
            NSVantrel::Destroy(vm.jvmti, vm.jni);
        },
        KilledBySignal(SIGABRT), aborts_with("Vantrel", "Destroy", "Vantrel_selectOnComponentTree0 != NULL"));
}

TEST(RuntimeHelpers, MakeAndDeleteNothing) {
    FakeVm vm;
    const jclass clazz = vm.add_class("A");
    EXPECT_EQ(NewGlobalMethodRef(vm.jni, some_id<jmethodID>()), some_id<jmethodID>());
    EXPECT_EQ(NewGlobalClassRef(vm.jni, clazz), clazz);
    DeleteGlobalMethodRef(vm.jni, some_id<jmethodID>());
    DeleteGlobalClassRef(vm.jni, clazz);
    EXPECT_THAT(vm.calls, IsEmpty());
}

}  // namespace
