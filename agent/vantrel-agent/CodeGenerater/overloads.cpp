// Names for the wrappers of overloaded methods.
#include <algorithm>
#include <string_view>

#include "generator.h"

using generator::Method;
using std::string_view;

namespace {

bool collide(const Method& method, const Method& other) {
    return &other != &method && other.arguments.size() == method.arguments.size() && other.wrapper == method.wrapper;
}

std::string name_with_arguments(const Method& method) {
    std::string name = method.name + "With";
    for (const generator::Argument& argument : method.arguments) {
        name += argument.word;
    }
    return name;
}

// Two classes have a static method and an instance method of the same name, where the instance method has one argument
// less. To C++ both wrappers have the same parameters, because an instance method's wrapper takes the object first.
bool is_special_case(string_view class_name, const Method& method) {
    return generator::is_static(method) && ((class_name == "Component" && method.wrapper == "getContainingWindow") ||
                                            (class_name == "JComponent" && method.wrapper == "computeVisibleRect"));
}

}  // namespace

void generator::rename_overloads(string_view class_name, std::vector<Method>& methods) {
    for (Method& method : methods) {
        if (std::any_of(methods.begin(), methods.end(), [&](const Method& other) { return collide(method, other); })) {
            method.wrapper = name_with_arguments(method);
        }
        if (is_special_case(class_name, method)) {
            method.wrapper = class_name == "Component" ? "staticGetContainingWindow" : "staticComputeVisibleRect";
        }
    }
}
