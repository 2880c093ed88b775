#include "proxied_classes.h"

#include <string>
#include <string_view>

void add_proxied_classes(FakeVm& vm) {
    vm.add_property("java.home", "/jdk");
    const jobject result = vm.add_object("result");
    const auto method = [&](const char* owner, const char* name, const std::string& descriptor) {
        const char returned = descriptor[descriptor.find(')') + 1];
        const bool is_object = returned == 'L' || returned == '[' || std::string_view(name) == "<init>";
        vm.add_method(vm.classes.at(owner), name, descriptor, is_object ? jvalue{.l = result} : kZero);
    };
#define PROXY(C, CLASS) vm.add_class(CLASS);
#define PROXY_FIELD(C, CLASS, KIND, NAME, DESCRIPTOR) vm.add_field(vm.classes.at(CLASS), #NAME, DESCRIPTOR);
#define PROXY_METHOD(C, CLASS, KIND, NAME, DESCRIPTOR, ...) method(CLASS, NAME, DESCRIPTOR);
#include "members.inc"
}
