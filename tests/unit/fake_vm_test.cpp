// The fake VM's own promises: what the other tests rely on without seeing it.
#include "fake_vm.h"

#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <memory>

using testing::ElementsAre;

TEST(FakeVm, UnscriptedThingsFailTheTestAndNameThemselves) {
    static std::unique_ptr<FakeVm> vm;  // EXPECT_NONFATAL_FAILURE sees no locals
    vm = std::make_unique<FakeVm>();
    EXPECT_NONFATAL_FAILURE(vm->jni->GetVersion(), "unscripted call of GetVersion");
    EXPECT_NONFATAL_FAILURE(vm->jni->GetModule(nullptr), "unscripted call of GetModule");
    EXPECT_NONFATAL_FAILURE(vm->jvmti->DisposeEnvironment(), "unscripted call of DisposeEnvironment");
    EXPECT_NONFATAL_FAILURE(vm->java_vm->DestroyJavaVM(), "unscripted call of DestroyJavaVM");
    EXPECT_NONFATAL_FAILURE(vm->jni->FindClass("java/lang/Object"), "unscripted class java/lang/Object");
    static jclass owner;
    owner = vm->add_class("A");
    vm->add_method(owner, "m", "()V");
    EXPECT_NONFATAL_FAILURE(vm->jni->GetMethodID(owner, "m", "()I"), "unscripted member A.m:()I");
    static char* value;
    EXPECT_NONFATAL_FAILURE(vm->jvmti->GetSystemProperty("os.name", &value), "unscripted property os.name");
    EXPECT_NONFATAL_FAILURE(
        {
            vm->fail("Allocate");
            vm.reset();
        },
        "Allocate was to fail");
}

TEST(FakeVm, FailsTheNthCall) {
    FakeVm vm;
    vm.fail("Allocate", 2, JVMTI_ERROR_OUT_OF_MEMORY);
    unsigned char* block = nullptr;
    EXPECT_EQ(vm.jvmti->Allocate(3, &block), JVMTI_ERROR_NONE);
    EXPECT_EQ(vm.jvmti->Allocate(4, &block), JVMTI_ERROR_OUT_OF_MEMORY);
    EXPECT_EQ(vm.jvmti->Allocate(5, &block), JVMTI_ERROR_NONE);
    EXPECT_EQ(vm.allocated.at(block).size(), 5u);
    EXPECT_THAT(vm.calls, ElementsAre("Allocate 3", "Allocate 4", "Allocate 5"));
}

TEST(FakeVm, RecordsArgumentsAsTheDescriptorGivesThem) {
    FakeVm vm;
    jclass owner = vm.add_class("A");
    jobject object = vm.add_object("an object");
    jmethodID method = vm.add_method(owner, "m", "(IJZ[[Ljava/lang/String;FLjava/lang/Object;D[IC)J", jvalue{.j = -7});
    EXPECT_EQ(vm.jni->CallLongMethod(object, method, jint{-1}, jlong{1} << 40, JNI_TRUE, object, jfloat{0.5}, nullptr,
                                     2.25, nullptr, jchar{65535}),
              -7);
    vm.jni->CallStaticVoidMethod(nullptr, nullptr);
    EXPECT_THAT(vm.calls,
                ElementsAre("CallLongMethodV an object A.m:(IJZ[[Ljava/lang/String;FLjava/lang/Object;D[IC)J -1 "
                            "1099511627776 1 an object 0.5 null 2.25 null 65535",
                            "CallStaticVoidMethodV null null"));
}

TEST(FakeVm, ServesFieldsAndGlobalReferences) {
    FakeVm vm;
    jclass owner = vm.add_class("A");
    jfieldID field = vm.add_field(owner, "f", "LB;");
    jobject object = vm.add_object("an object");
    jobject value = vm.add_object("its value");
    set_field(object, "f", value);
    EXPECT_EQ(vm.jni->GetFieldID(owner, "f", "LB;"), field);
    EXPECT_EQ(vm.jni->GetObjectField(object, field), value);
    static jobject global;  // EXPECT_NONFATAL_FAILURE sees no locals
    global = vm.jni->NewGlobalRef(value);
    EXPECT_NE(global, value);
    vm.jni->DeleteGlobalRef(global);
    EXPECT_THAT(vm.calls, ElementsAre("GetFieldID A f LB;", "GetObjectField an object A.f:LB;",
                                      "NewGlobalRef its value", "DeleteGlobalRef global its value"));
    static JNIEnv* jni;
    jni = vm.jni;
    EXPECT_NONFATAL_FAILURE(jni->DeleteGlobalRef(global), "use of a deleted reference: global its value");
}
