#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "agent_life.h"
#include "all_proxies.h"
#include "fake_vm.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::KilledBySignal;

namespace {

// Proxies' classes and methods, cached by hand so that calls are recorded without look-ups. Given back empty at the
// end.
struct ScriptedCaches : testing::Test {
    ~ScriptedCaches() override {
        for (jclass* variable : classes) {
            *variable = nullptr;
        }
        for (jmethodID* variable : methods) {
            *variable = nullptr;
        }
    }

    void script(jclass& class_variable, jmethodID& id_variable, const char* class_name, const char* name,
                const char* descriptor, jvalue result = kZero) {
        const auto known = vm.classes.find(class_name);
        class_variable = known != vm.classes.end() ? known->second : vm.add_class(class_name);
        id_variable = vm.add_method(class_variable, name, descriptor, result);
        classes.push_back(&class_variable);
        methods.push_back(&id_variable);
    }

    FakeVm vm;
    std::vector<jclass*> classes;
    std::vector<jmethodID*> methods;
};

struct Highlight : ScriptedCaches {
    void SetUp() override {
        script(NSGraphics::_c_Class, NSGraphics::Graphics_setColor2, "G", "setColor", "(LC;)V");
        script(NSGraphics::_c_Class, NSGraphics::Graphics_drawRect35, "G", "drawRect", "(IIII)V");
        script(NSGraphics::_c_Class, NSGraphics::Graphics_fillRect30, "G", "fillRect", "(IIII)V");
        script(NSGraphics2D::_c_Class, NSGraphics2D::Graphics2D_setComposite19, "G2", "setComposite", "(LC;)V");
        script(NSComponent::_c_Class, NSComponent::Component_getWidth99, "C", "getWidth", "()I", {.i = 10});
        script(NSComponent::_c_Class, NSComponent::Component_getHeight100, "C", "getHeight", "()I", {.i = 5});
        script(NSAlphaComposite::_c_Class, NSAlphaComposite::AlphaComposite_getInstance0, "A", "getInstance", "(IF)LA;",
               {.l = vm.add_object("the composite")});
        NSVantrel::HighlightColor = vm.add_object("orange");
    }
    void TearDown() override { NSVantrel::HighlightColor = nullptr; }
    void highlight() { NSVantrel::highlight(vm.jni, nullptr, vm.add_object("component"), vm.add_object("graphics")); }
};

TEST_F(Highlight, OutlinesAndTintsWithWidthAndHeightLessOne) {
    highlight();
    EXPECT_THAT(
        vm.calls,
        ElementsAre("CallVoidMethodV graphics G.setColor:(LC;)V orange", "CallIntMethodV component C.getWidth:()I",
                    "CallIntMethodV component C.getHeight:()I", "CallVoidMethodV graphics G.drawRect:(IIII)V 0 0 9 4",
                    "CallStaticObjectMethodV A A.getInstance:(IF)LA; 10 0.33",
                    "CallVoidMethodV graphics G2.setComposite:(LC;)V the composite",
                    "CallVoidMethodV graphics G.fillRect:(IIII)V 0 0 9 4"));
}

TEST_F(Highlight, AssertsItsColourAndComposite) {
    EXPECT_EXIT(
        {
            NSVantrel::HighlightColor = nullptr;
            highlight();
        },
        KilledBySignal(SIGABRT), "highlight.*Assertion `HighlightColor != NULL' failed");
    EXPECT_EXIT(
        {
            script(NSAlphaComposite::_c_Class, NSAlphaComposite::AlphaComposite_getInstance0, "A", "getInstance",
                   "(IF)LA;");
            highlight();
        },
        KilledBySignal(SIGABRT), "highlight.*Assertion `alphaComposite != NULL' failed");
}

TEST(CompanionNatives, DoNothingOnceTheAgentIsBeingUnloaded) {
    FakeVm vm;
    {
        const RecordedStdout recorded(_IOFBF);
        NSVantrel::beep(vm.jni, nullptr);
        EXPECT_EQ(NSVantrel::getOSVer(vm.jni, nullptr), -1);
        EXPECT_EQ(NSVantrel::canHighlight(vm.jni, nullptr), JNI_TRUE);
        EXPECT_THAT(vm.calls, ElementsAre("stdout \a", "isHotKeyModifierHeld")) << "flushed";

        vm.calls.clear();
        agent_life.begin();
        agent_life.end();
        NSVantrel::highlight(vm.jni, nullptr, nullptr, nullptr);
        NSVantrel::beep(vm.jni, nullptr);
        EXPECT_EQ(NSVantrel::getOSVer(vm.jni, nullptr), -1);
        EXPECT_EQ(NSVantrel::canHighlight(vm.jni, nullptr), JNI_FALSE);
        NSSwingContext::_safeRun1(vm.jni, nullptr, nullptr, nullptr);
        NSVantrelFrame::_setOpacity(vm.jni, nullptr, 50);
        std::construct_at(&agent_life);
    }
    EXPECT_THAT(vm.calls, IsEmpty());
}

struct SafeRun : ScriptedCaches {
    void SetUp() override {
        const jclass component = vm.add_class("C");
        NSComponent::Component_appContext = vm.add_field(component, "appContext", "LX;");
        comp = vm.add_object("component");
        set_field(comp, "appContext", vm.add_object("its context"));
        task = vm.add_object("task");
        script(NSAppContext::_c_Class, NSAppContext::AppContext_getAppContext11, "X", "getAppContext", "()LX;",
               {.l = vm.add_object("own context")});
        script(NSAppContext::_c_Class, NSAppContext::AppContext_getThreadGroup5, "X", "getThreadGroup", "()LG;",
               {.l = vm.add_object("its group")});
        script(NSSwingUtilities::_c_Class, NSSwingUtilities::SwingUtilities_invokeLater13, "S", "invokeLater",
               "(LR;)V");
        script(NSEDTRunnable::_c_Class, NSEDTRunnable::ConstructorEDTRunnable0, "E", "<init>", "(LR;)V",
               {.l = vm.add_object("wrapper")});
        script(NSThread::_c_Class, NSThread::ConstructorThread0, "T", "<init>", "(LG;LR;LS;)V",
               {.l = vm.add_object("thread")});
        script(NSThread::_c_Class, NSThread::Thread_start13, "T", "start", "()V");
        equal_contexts(false);
    }
    void TearDown() override { NSComponent::Component_appContext = nullptr; }
    void equal_contexts(bool equal) {
        script(NSObject::_c_Class, NSObject::Object_equals4, "O", "equals", "(LO;)Z",
               {.z = static_cast<jboolean>(equal)});
    }
    void run() { NSSwingContext::_safeRun1(vm.jni, nullptr, comp, task); }

    jobject comp = nullptr;
    jobject task = nullptr;
};

TEST_F(SafeRun, InTheCallersOwnContextMakesNoThread) {
    equal_contexts(true);
    run();
    EXPECT_THAT(vm.calls, ElementsAre("GetObjectField component C.appContext:LX;",
                                      "CallStaticObjectMethodV X X.getAppContext:()LX;",
                                      "CallBooleanMethodV its context O.equals:(LO;)Z own context",
                                      "CallStaticVoidMethodV S S.invokeLater:(LR;)V task"));
}

TEST_F(SafeRun, InAnotherContextStartsAThreadOfItsGroup) {
    run();
    EXPECT_THAT(
        vm.calls,
        ElementsAre("GetObjectField component C.appContext:LX;", "CallStaticObjectMethodV X X.getAppContext:()LX;",
                    "CallBooleanMethodV its context O.equals:(LO;)Z own context",
                    "CallObjectMethodV its context X.getThreadGroup:()LG;", "NewObjectV E E.<init>:(LR;)V task",
                    "NewStringUTF vantrel-context-thread",
                    "NewObjectV T T.<init>:(LG;LR;LS;)V its group wrapper string vantrel-context-thread",
                    "CallVoidMethodV thread T.start:()V"));
}

TEST_F(SafeRun, AssertsWhatItNeeds) {
    EXPECT_EXIT(
        {
            comp = nullptr;
            run();
        },
        KilledBySignal(SIGABRT), "_safeRun1.*Assertion `comp' failed");
    EXPECT_EXIT(
        {
            script(NSAppContext::_c_Class, NSAppContext::AppContext_getThreadGroup5, "X", "getThreadGroup", "()LG;");
            run();
        },
        KilledBySignal(SIGABRT), "_safeRun1.*Assertion `threadGroup' failed");
    EXPECT_EXIT(
        {
            script(NSThread::_c_Class, NSThread::ConstructorThread0, "T", "<init>", "(LG;LR;LS;)V");
            run();
        },
        KilledBySignal(SIGABRT), "_safeRun1.*Assertion `thread' failed");
}

}  // namespace
