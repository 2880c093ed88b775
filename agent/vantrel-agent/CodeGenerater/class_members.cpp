// Reads a class in the VM into a Proxy, by JVMTI.
#include <memory>

#include "descriptors.h"
#include "generator.h"
#include "jvmti_memory.h"

using generator::Field;
using generator::JvmtiArray;
using generator::Method;
using generator::Proxy;
using std::string_view;

namespace {

// A member as JVMTI tells it.
struct Member {
    JvmtiArray<char> name;
    JvmtiArray<char> descriptor;
    jint modifiers;
};

Member look_up(jvmtiEnv* jvmti, jclass clazz, jfieldID field) {
    jint modifiers = 0;
    jvmti->GetFieldModifiers(clazz, field, &modifiers);
    char* name = nullptr;
    char* descriptor = nullptr;
    jvmti->GetFieldName(clazz, field, &name, &descriptor, nullptr);
    return {{name, {jvmti}}, {descriptor, {jvmti}}, modifiers};
}

Member look_up(jvmtiEnv* jvmti, jclass /*clazz*/, jmethodID method) {
    jint modifiers = 0;
    jvmti->GetMethodModifiers(method, &modifiers);
    char* name = nullptr;
    char* descriptor = nullptr;
    jvmti->GetMethodName(method, &name, &descriptor, nullptr);
    return {{name, {jvmti}}, {descriptor, {jvmti}}, modifiers};
}

// Calls `action` for each of a class's fields or methods that the filter wants.
//   list  GetClassFields or GetClassMethods
template <typename Id, typename Action>
void for_each_member(jvmtiEnv* jvmti, jclass clazz, jvmtiError (jvmtiEnv::*list)(jclass, jint*, Id**),
                     string_view class_name, const generator::Filter& filter, Action action) {
    jint count = 0;
    Id* ids = nullptr;
    (jvmti->*list)(clazz, &count, &ids);
    const JvmtiArray<Id> given(ids, {jvmti});
    for (jint i = 0; i < count; ++i) {
        const Member member = look_up(jvmti, clazz, ids[i]);
        // JVMTI may give no name, as for a member that is not there any more. There is nothing to call such a member
        // by.
        const bool is_known = member.name != nullptr && member.descriptor != nullptr;
        if (is_known && filter(class_name, member.name.get(), member.modifiers)) {
            action(member.name.get(), member.descriptor.get(), member.modifiers);
        }
    }
}

}  // namespace

string_view generator::simple_name(string_view internal_name) {
    return internal_name.substr(internal_name.rfind('/') + 1);
}

std::vector<Field> generator::read_fields(jvmtiEnv* jvmti, jclass clazz, string_view class_name, const Filter& filter) {
    std::vector<Field> fields;
    for_each_member(jvmti, clazz, &jvmtiEnv::GetClassFields, class_name, filter,
                    [&](const char* name, const char* descriptor, int modifiers) {
                        fields.push_back({name, descriptor, modifiers});
                    });
    return fields;
}

std::vector<Method> generator::read_methods(jvmtiEnv* jvmti, jclass clazz, string_view class_name,
                                            const Filter& filter) {
    std::vector<Method> methods;
    for_each_member(jvmti, clazz, &jvmtiEnv::GetClassMethods, class_name, filter,
                    [&](const char* name, const char* descriptor, int modifiers) {
                        Method& method = methods.emplace_back();
                        method.is_constructor = string_view(name) == "<init>";
                        method.name = method.is_constructor ? class_name : name;
                        method.wrapper = method.name;
                        method.descriptor = descriptor;
                        method.modifiers = modifiers;
                        method.result = read_type(method.is_constructor ? "L" : result_of(descriptor));
                        method.is_void = method.result.name == "void";
                        method.arguments = read_arguments(descriptor);
                    });
    return methods;
}

Proxy generator::read_proxy(jvmtiEnv* jvmti, jclass clazz, string_view internal_name) {
    Proxy proxy{std::string(simple_name(internal_name)), std::string(internal_name), {}, {}};
    proxy.fields = read_fields(jvmti, clazz, proxy.class_name, is_field_of_proxy);
    proxy.methods = read_methods(jvmti, clazz, proxy.class_name, is_method_of_proxy);
    rename_overloads(proxy.class_name, proxy.methods);
    return proxy;
}
