// An agent's life in a VM, from Agent_OnLoad to Agent_OnUnload and once more: the macOS library asks of the VM what the
// Linux library does, call for call, and of Carbon what belongs there. Both are called as a VM calls them: by what they
// export, the callbacks they set and the natives they register.
#include <dlfcn.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "fake_vm.h"
#include "image.h"
#include "proxied_classes.h"
#include "recording_carbon.h"

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::StartsWith;

namespace {

using Calls = std::vector<std::string>;

struct Agent {
    std::string folder;
    decltype(&Agent_OnLoad) on_load;
    decltype(&Agent_OnAttach) on_attach;
    decltype(&Agent_OnUnload) on_unload;
    std::function<void()> press;  // the hot key; may be empty
};

Agent for_macos() {
    const macho::Image& image = macho::load(VANTREL_MACHO_LIBRARY);
    return {fs::path(VANTREL_MACHO_LIBRARY).parent_path(), image.function<decltype(Agent_OnLoad)>("Agent_OnLoad"),
            image.function<decltype(Agent_OnAttach)>("Agent_OnAttach"),
            image.function<decltype(Agent_OnUnload)>("Agent_OnUnload"), [] { EXPECT_EQ(carbon.press(), noErr); }};
}

// Without a display there is no key to press.
Agent for_linux() {
    unsetenv("DISPLAY");
    void* library = dlopen(VANTREL_LINUX_LIBRARY, RTLD_NOW);
    EXPECT_NE(library, nullptr) << dlerror();
    return {fs::path(VANTREL_LINUX_LIBRARY).parent_path(),
            reinterpret_cast<decltype(&Agent_OnLoad)>(dlsym(library, "Agent_OnLoad")),
            reinterpret_cast<decltype(&Agent_OnAttach)>(dlsym(library, "Agent_OnAttach")),
            reinterpret_cast<decltype(&Agent_OnUnload)>(dlsym(library, "Agent_OnUnload")),
            {}};
}

void load_class(FakeVm& vm, const char* name) {
    const unsigned char own_bytes[] = {0xCA, 0xFE};
    jint length = 0;
    unsigned char* bytes = nullptr;
    vm.callbacks.ClassFileLoadHook(vm.jvmti, vm.jni, nullptr, nullptr, name, nullptr, sizeof own_bytes, own_bytes,
                                   &length, &bytes);
    record_call("replaced by " + std::to_string(length) + " bytes");
}

void call_natives(FakeVm& vm) {
    const jobject component = vm.add_object("component");
    set_field(component, "appContext", vm.add_object("its context"));
    const auto native = [&]<typename Function>(const char* name, Function*& function) {
        function = reinterpret_cast<Function*>(vm.natives.at(name));
    };
    void (*highlight)(JNIEnv*, jobject, jobject, jobject) = nullptr;
    native("highlight", highlight);
    highlight(vm.jni, nullptr, component, component);
    void (*beep)(JNIEnv*, jclass) = nullptr;
    native("beep", beep);
    beep(vm.jni, nullptr);
    jint (*version)(JNIEnv*, jclass) = nullptr;
    native("getOSVersion", version);
    record_call("version " + std::to_string(version(vm.jni, nullptr)));
    jboolean (*can_highlight)(JNIEnv*, jclass) = nullptr;
    native("canHighlight", can_highlight);
    record_call("can highlight " + std::to_string(can_highlight(vm.jni, nullptr)));
    void (*run)(JNIEnv*, jobject, jobject, jobject) = nullptr;
    native("safeRun1", run);
    run(vm.jni, nullptr, component, component);
    void (*opacity)(JNIEnv*, jobject, jint) = nullptr;
    native("setOpacity", opacity);
    opacity(vm.jni, nullptr, 50);
}

// The calls of two lives of a VM, one after the other.
Calls live(const Agent& agent) {
    FakeVm vm;
    add_proxied_classes(vm);
    vm.add_method(vm.add_class("com/vantrel/util/BCIUtil"), "getComponentClassData", "()[B",
                  vm.add_bytes("the class file", {-54, -2, -70, -66, 0}));
    const RecordedStdout recorded;
    record_call("attach " + std::to_string(agent.on_attach(vm.java_vm, nullptr, nullptr)));
    for (int life = 0; life < 2; ++life) {
        record_call("begin");
        record_call("load " + std::to_string(agent.on_load(vm.java_vm, nullptr, nullptr)));
        load_class(vm, "java/lang/Object");
        load_class(vm, "java/awt/Component");
        vm.callbacks.VMStart(vm.jvmti, vm.jni);
        vm.callbacks.VMInit(vm.jvmti, vm.jni, nullptr);
        call_natives(vm);
        record_call("press");
        if (agent.press) {
            agent.press();
        }
        record_call("unload");
        agent.on_unload(vm.java_vm);
        if (agent.press) {
            agent.press();
        }
        vm.deleted_may_be_used = true;  // what the first life left is not looked at by the second
    }
    for (std::string& call : vm.calls) {
        if (const size_t at = call.find(agent.folder); at != std::string::npos) {
            call.replace(at, agent.folder.size(), "FOLDER");
        }
    }
    return vm.calls;
}

TEST(SameLife, AsksTheSameOfTheVm) {
    const Calls expected = live(for_linux());
    Agent macos = for_macos();
    macos.press = {};
    testing::internal::CaptureStderr();
    const Calls actual = live(macos);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_GT(expected.size(), 400U);
    for (size_t i = 0; i < std::max(expected.size(), actual.size()); ++i) {
        ASSERT_EQ(i < actual.size() ? actual[i] : "nothing", i < expected.size() ? expected[i] : "nothing") << i;
    }
    std::cout << "compared: an agent's life: " << expected.size() << " calls\n";
}

// What Carbon is asked, with what the VM is asked just before and after.
TEST(SameLife, HasItsPlaceInCarbon) {
    carbon.on_call = [](const std::string& call) { record_call("carbon " + call); };
    carbon.flags = 0x10;
    Calls calls = live(for_macos());
    carbon.on_call = {};
    const auto second_life = std::find(std::next(std::ranges::find(calls, "begin")), calls.end(), "begin");
    EXPECT_EQ(std::count(second_life, calls.end(), "carbon register 111 256 1835559729 1 1 0 "), 1);
    calls.erase(second_life, calls.end());
    Calls around;
    for (size_t i = 1; i + 1 < calls.size(); ++i) {
        const auto is_carbon = [](const std::string& call) { return call.starts_with("carbon "); };
        if (is_carbon(calls[i - 1]) || is_carbon(calls[i]) || is_carbon(calls[i + 1])) {
            around.push_back(calls[i]);
        }
    }
    EXPECT_THAT(around, ElementsAre("stdout Vantrel Initializing.\n", "carbon install 1 1 1801812322 5 1 ",
                                    "carbon register 111 256 1835559729 1 1 0 ",
                                    "stdout Pressing \u2318+F12 to toggle the Vantrel window visible.\n", "version -1",
                                    "carbon flags 0 ", "carbon flags 0 ", "can highlight 1", "AttachCurrentThread null",
                                    "carbon unregister 1 ", StartsWith("UnregisterNatives ")));
    // A press shows the inspector, one after the unload does nothing.
    const auto after = [&](const char* call) { return std::ranges::find(calls, call) + 1; };
    EXPECT_THAT(Calls(after("press"), after("unload") - 1),
                ElementsAre("AttachCurrentThread null",
                            "CallStaticObjectMethodV global java/lang/System "
                            "java/lang/System.setSecurityManager:(Ljava/lang/SecurityManager;)V null",
                            "ExceptionClear",
                            "CallStaticVoidMethodV global com/vantrel/Vantrel "
                            "com/vantrel/Vantrel.showVantrel:(Ljava/awt/Component;)V null",
                            "ExceptionCheck", "ExceptionClear"));
    EXPECT_THAT(calls.back(), StartsWith("DeleteGlobalRef "));
}

}  // namespace
