// What single proxies do beyond the shape that all share, and the order and texts of failures.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "all_proxies.h"
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

// All proxies are made of the same macros (common.h), and but for five of them of the same text, which the shape test
// compares. So what the macros do is seen on one.
TEST(LazyProxies, LookUpOnceAndCallThrough) {
    FakeVm vm;
    const std::string name = "java/lang/Thread";
    const jclass owner = vm.add_class(name);
    const jobject made = vm.add_object("made");
    const jobject thread = vm.add_object("thread");
    vm.add_method(owner, "<init>", "(Ljava/lang/String;)V", made);
    vm.add_method(owner, "isAlive", "()Z", jvalue{.z = JNI_TRUE});
    vm.add_method(owner, "sleep", "(JI)V");
    NSThread::_c_Class = nullptr;
    NSThread::ConstructorThread3 = NSThread::Thread_isAlive28 = NSThread::Thread_sleep21 = nullptr;
    const struct {
        const char* look_up;
        std::string call;
        std::function<void()> run;
    } cases[] = {
        {"GetMethodID global java/lang/Thread isAlive ()Z", "CallBooleanMethodV thread java/lang/Thread.isAlive:()Z",
         [&] { EXPECT_EQ(NSThread::isAlive(vm.jni, thread), JNI_TRUE); }},
        {"GetStaticMethodID global java/lang/Thread sleep (JI)V",
         "CallStaticVoidMethodV global java/lang/Thread java/lang/Thread.sleep:(JI)V 1 2",
         [&] { NSThread::sleep(vm.jni, 1, 2); }},
        {"GetMethodID global java/lang/Thread <init> (Ljava/lang/String;)V",
         "NewObjectV global java/lang/Thread java/lang/Thread.<init>:(Ljava/lang/String;)V thread",
         [&] { EXPECT_EQ(NSThread::Thread(vm.jni, thread), made); }},
    };
    for (const auto& c : cases) {
        std::vector<std::string> expected;
        if (NSThread::_c_Class == nullptr) {
            expected = {"FindClass " + name, "NewGlobalRef " + name};
        }
        vm.calls.clear();
        c.run();
        expected.insert(expected.end(), {c.look_up, c.call});
        EXPECT_EQ(vm.calls, expected);

        vm.calls.clear();
        const jobject thrown = vm.pending = vm.add_object("an exception");
        c.run();
        EXPECT_THAT(vm.calls, ElementsAre(c.call)) << "a second call looks up nothing";
        EXPECT_EQ(vm.pending, thrown) << "an exception stays as it is";
        vm.pending = nullptr;
    }
}

TEST(LazyProxies, InitLooksUpTheClassOnceAndEveryFieldEachTime) {
    FakeVm vm;
    const jclass owner = vm.add_class("java/awt/Component");
    std::vector<std::string> fields;
#define PROXY_FIELD(C, CLASS, KIND, NAME, DESCRIPTOR)                                                      \
    if (std::string_view(CLASS) == "java/awt/Component") {                                                 \
        vm.add_field(owner, #NAME, DESCRIPTOR);                                                            \
        fields.push_back((std::string_view(#KIND) == "STATIC_FIELD" ? "GetStaticFieldID" : "GetFieldID") + \
                         std::string(" global java/awt/Component " #NAME " " DESCRIPTOR));                 \
    }
#include "members.inc"
    NSComponent::_c_Class = nullptr;
    NSComponent::Init(vm.jvmti, vm.jni);
    const jclass cached = NSComponent::_c_Class;
    std::vector<std::string> all = {"FindClass java/awt/Component", "NewGlobalRef java/awt/Component"};
    all.insert(all.end(), fields.begin(), fields.end());
    EXPECT_EQ(vm.calls, all);

    vm.calls.clear();
    NSComponent::Destroy(vm.jvmti, vm.jni);
    EXPECT_THAT(vm.calls, ElementsAre("DeleteGlobalRef global java/awt/Component"));
    EXPECT_EQ(NSComponent::_c_Class, cached) << "the stale value stays";
    vm.calls.clear();
    vm.deleted_may_be_used = true;
    NSComponent::Init(vm.jvmti, vm.jni);
    EXPECT_EQ(vm.calls, fields) << "a second Init does not look the class up, not even after Destroy";
    NSComponent::_c_Class = nullptr;
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

TEST(EagerProxies, CallThrough) {
    FakeVm vm;
    const jclass owner = vm.add_class("the class");
    const jobject object = vm.add_object("object");
    const jobject other = vm.add_object("other");
    const jobject result = vm.add_object("result");
    NSAlphaComposite::_c_Class = NSToolkit::_c_Class = NSVantrel::_c_Class = owner;
    NSAlphaComposite::AlphaComposite_getInstance0 = vm.add_method(owner, "a", "(IF)LA;", result);
    NSToolkit::Toolkit_getDefaultToolkit0 = vm.add_method(owner, "b", "()LB;", result);
    NSToolkit::Toolkit_addAWTEventListener0 = vm.add_method(owner, "c", "(LL;J)V", result);
    NSVantrel::Vantrel_showVantrel0 = vm.add_method(owner, "d", "(LC;)V");
    NSVantrel::Vantrel_selectOnComponentTree0 = vm.add_method(owner, "e", "(LC;)V");
    EXPECT_EQ(NSAlphaComposite::getInstance(vm.jni, 3, 0.5F), result);
    EXPECT_EQ(NSToolkit::getDefaultToolkit(vm.jni), result);
    EXPECT_EQ(NSToolkit::addAWTEventListener(vm.jni, object, other, jlong{1} << 40), result);
    NSVantrel::showVantrel(vm.jni, other);
    NSVantrel::selectOnComponentTree(vm.jni, object, other);
    EXPECT_THAT(vm.calls, ElementsAre("CallStaticObjectMethodV the class the class.a:(IF)LA; 3 0.5",
                                      "CallStaticObjectMethodV the class the class.b:()LB;",
                                      "CallObjectMethodV object the class.c:(LL;J)V other 1099511627776",
                                      "CallStaticVoidMethodV the class the class.d:(LC;)V other",
                                      "CallVoidMethodV object the class.e:(LC;)V other"));
    NSAlphaComposite::_c_Class = NSToolkit::_c_Class = NSVantrel::_c_Class = nullptr;
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

}  // namespace
