#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fake_vm.h"
#include "vantrel-agent.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::KilledBySignal;

namespace {

constexpr const char* kHelper = "com/vantrel/util/BCIUtil";
constexpr const char* kComponent = "java/awt/Component";
constexpr const char* kComponentSupplier = "getComponentClassData";

struct ClassReplacement : testing::Test {
    void load(const char* name) {
        const unsigned char own_bytes[] = {0xCA, 0xFE};
        cbClassFileLoadHook(vm.jvmti, vm.jni, nullptr, nullptr, name, nullptr, sizeof own_bytes, own_bytes, &length,
                            &data);
    }

    FakeVm vm;
    jint length = -1;
    unsigned char* data = nullptr;
};

TEST_F(ClassReplacement, OtherClassesPassUntouched) {
    for (const char* name : {static_cast<const char*>(nullptr), "", "java/awt/ComponentX", "java/awt/component",
                             "java/awt/Compon", "java.awt.Component", "java/lang/Object"}) {
        load(name);
    }
    EXPECT_THAT(vm.calls, IsEmpty());
    EXPECT_EQ(length, -1);
    EXPECT_EQ(data, nullptr);
}

TEST_F(ClassReplacement, TheHelpersBytesReplaceTheClass) {
    struct {
        const char* name;
        const char* supplier;
        std::vector<jbyte> bytes;
    } const cases[] = {
        {kComponent, kComponentSupplier, {-54, -2, -70, -66, 0}},  // longer than the VM's own
        {"java/awt/Container", "getContainerClassData", {1}},      // shorter
    };
    jclass helper = vm.add_class(kHelper);
    for (const auto& c : cases) {
        vm.calls.clear();
        vm.add_method(helper, c.supplier, "()[B", vm.add_bytes("the class file", c.bytes));
        load(c.name);
        EXPECT_THAT(
            vm.calls,
            ElementsAre(std::string("FindClass ") + kHelper, "ExceptionCheck",
                        std::string("GetStaticMethodID ") + kHelper + " " + c.supplier + " ()[B", "ExceptionCheck",
                        std::string("CallStaticObjectMethodV ") + kHelper + " " + kHelper + "." + c.supplier + ":()[B",
                        "ExceptionCheck", "GetArrayLength the class file", "GetByteArrayElements the class file",
                        "Allocate " + std::to_string(c.bytes.size())));
        ASSERT_EQ(length, static_cast<jint>(c.bytes.size()));
        EXPECT_EQ(std::vector<jbyte>(data, data + length), c.bytes);
        EXPECT_TRUE(vm.allocated.contains(data)) << "the VM frees the bytes with JVMTI's own means";
    }
}

// The report names the source, the function and the expression; what Java threw comes before it.
std::string report(const std::string& thrown, const std::string& expression) {
    return "^" + (thrown.empty() ? "" : "described: " + thrown + "\n") +
           ".*vantrel-agent/vantrel-agent\\.cpp:[0-9]+: .*cbClassFileLoadHook.*Assertion `" + expression +
           "' failed\\.\n";
}

TEST_F(ClassReplacement, ABrokenHelperEndsTheVm) {
    EXPECT_EXIT(
        {
            vm.fail("FindClass");
            load(kComponent);
        },
        KilledBySignal(SIGABRT), report("exception of FindClass", "clazz != NULL"));

    jclass helper = vm.add_class(kHelper);
    EXPECT_EXIT(
        {
            vm.fail("GetStaticMethodID");
            load(kComponent);
        },
        KilledBySignal(SIGABRT), report("exception of GetStaticMethodID", "method != NULL"));
    EXPECT_EXIT(
        {
            vm.add_method(helper, kComponentSupplier, "()[B", nullptr);
            load(kComponent);
        },
        KilledBySignal(SIGABRT), report("", "byteArrayData"));
    EXPECT_EXIT(
        {
            vm.add_throwing_method(helper, kComponentSupplier, "()[B", vm.add_object("the supplier's exception"));
            load(kComponent);
        },
        KilledBySignal(SIGABRT), report("the supplier's exception", "byteArrayData"));
}

}  // namespace
