#include "records.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <string>

#include "reports.h"

using generator::Argument;
using generator::Field;
using generator::Method;
using generator::MethodPointer;
using generator::Proxy;
using std::string_view;

namespace {

constexpr size_t kTextSize = sizeof(MethodEntity::name);
constexpr const char* kTooLong = "its name or descriptor is too long";

const std::string& name_in_class(const Field& field) {
    return field.name;
}

std::string name_in_class(const Method& method) {
    return method.is_constructor ? "<init>" : method.name;
}

// Removes each member for which `reason` returns a text, and reports it with that text.
template <typename Member, typename Reason>
void leave_out(string_view class_name, std::vector<Member>& members, Reason reason) {
    std::erase_if(members, [&](const Member& member) {
        const std::string why = reason(member);
        if (!why.empty()) {
            generator::report("left out " + std::string(class_name) + "." + name_in_class(member) + " " +
                              member.descriptor + ": " + why);
        }
        return !why.empty();
    });
}

template <typename Member>
bool texts_fit(const Member& member) {
    return member.name.size() < kTextSize && member.descriptor.size() < kTextSize;
}

// Whether the parameter list, and each parameter in it, is short enough for the declaration of a wrapper. GenerateFiles
// has always had these limits, and its output must not change.
bool parameters_fit(const Method& method) {
    constexpr size_t one_size = 128;
    constexpr size_t all_size = 512;
    size_t all = 0;
    for (size_t i = 0; i < method.arguments.size(); ++i) {
        const Argument& argument = method.arguments[i];
        const size_t one = string_view(", ").size() + argument.type.size() +
                           (argument.dimensions > 0 ? string_view("Array").size() : 0) + string_view(" ").size() +
                           argument.word.size() + std::to_string(i).size();
        if (one >= one_size) {
            return false;
        }
        all += one;
    }
    return all < all_size;
}

// The number of dimensions, from a record's is_array and array_dims.
int dimensions_of(int is_array, int array_dims) {
    return is_array != 0 ? std::max(array_dims, 1) : 0;
}

Method method_of(const MethodEntity& record) {
    Method method;
    method.name = record.name;
    method.wrapper = record.func_name;
    method.descriptor = record.signature;
    method.modifiers = record.modifiers;
    method.is_constructor = record.is_constructor != 0;
    method.is_void = record.is_void != 0;
    method.result = {record.return_type, record.call_type, dimensions_of(record.is_array, record.array_dims)};
    for (int i = 0; i < record.argu_count; ++i) {
        const ArgumentEntity& argument = *record.argus[i];
        method.arguments.push_back(
            {"", argument.type_name, argument.argu_name, dimensions_of(argument.is_array, argument.array_dims)});
    }
    return method;
}

}  // namespace

void generator::DeleteMethod::operator()(MethodEntity* method) const {
    for (int i = 0; i < method->argu_count; ++i) {
        delete method->argus[i];
    }
    delete[] method->argus;
    delete method;
}

MethodPointer generator::new_method() {
    MethodPointer method(new MethodEntity{});
    method->argus = new ArgumentEntity* [kMaxArguments] {};
    return method;
}

void generator::leave_out_unfitting(string_view class_name, std::vector<Field>& fields) {
    leave_out(class_name, fields, [](const Field& field) { return texts_fit(field) ? "" : kTooLong; });
}

void generator::leave_out_unfitting(string_view class_name, std::vector<Method>& methods) {
    leave_out(class_name, methods, [](const Method& method) {
        return !texts_fit(method)                        ? kTooLong
               : method.arguments.size() > kMaxArguments ? "it has more than 36 arguments"
               : !parameters_fit(method)                 ? "its parameter list is too long"
                                                         : "";
    });
}

void generator::leave_out_long_wrappers(string_view class_name, std::vector<Method>& methods) {
    leave_out(class_name, methods, [](const Method& method) {
        return method.wrapper.size() < kTextSize ? "" : "the name of its wrapper is too long";
    });
}

Proxy generator::proxy_of(string_view class_name, string_view internal_name, MethodEntity** methods, int method_count,
                          FieldEntity** fields, int field_count) {
    Proxy proxy{std::string(class_name), std::string(internal_name), {}, {}};
    for (int i = 0; i < field_count; ++i) {
        proxy.fields.push_back({fields[i]->name, fields[i]->signature, fields[i]->modifiers});
    }
    for (int i = 0; i < method_count; ++i) {
        proxy.methods.push_back(method_of(*methods[i]));
    }
    return proxy;
}

void FreeFieldEntities(FieldEntity** fields, int count) {
    for (int i = 0; i < count; ++i) {
        delete fields[i];
    }
    delete[] fields;
}

void FreeMethodEntiry(MethodEntity** methods, int count) {
    for (int i = 0; i < count; ++i) {
        generator::DeleteMethod()(methods[i]);
    }
    delete[] methods;
}

void doTest() {
    std::array<std::unique_ptr<ArgumentEntity>, 5> blocks;
    for (auto& block : blocks) {
        block = std::make_unique<ArgumentEntity>();
        printf("assign: %d\n", static_cast<int>(reinterpret_cast<intptr_t>(block.get())));
    }
    int number = 0;
    for (auto& block : blocks) {
        snprintf(block->type_name, sizeof block->type_name, "a%d", number++);
    }
    for (const auto& block : blocks) {
        printf("type: %s\n", block->type_name);
    }
}
