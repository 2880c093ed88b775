#include "overloads.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>

#include "fitting.h"
#include "reports.h"

using std::string_view;

namespace {

bool collides(const MethodEntity& method, const MethodEntity& other) {
    return &other != &method && other.argu_count == method.argu_count && strcmp(other.func_name, method.func_name) == 0;
}

std::string name_with_arguments(const MethodEntity& method) {
    std::string name = std::string(method.name) + "With";
    for (int i = 0; i < method.argu_count; ++i) {
        name += method.argus[i]->argu_name;
    }
    return name;
}

// Two static methods have an instance method of the same name and arguments but one, which C++ takes for the same as
// the instance method's wrapper has its object in front.
void rename_special_case(string_view class_name, MethodEntity& method) {
    if ((method.modifiers & kStatic) == 0) {
        return;
    }
    const string_view name = method.func_name;
    if (class_name == "Component" && name == "getContainingWindow") {
        generator::copy_fitting(method.func_name, "staticGetContainingWindow");
    } else if (class_name == "JComponent" && name == "computeVisibleRect") {
        generator::copy_fitting(method.func_name, "staticComputeVisibleRect");
    }
}

}  // namespace

int IsMethodEntityFuncNameExists(MethodEntity** methods, int count, MethodEntity* entity) {
    return std::any_of(methods, methods + count, [&](MethodEntity* other) { return collides(*entity, *other); }) ? 1
                                                                                                                 : 0;
}

void generator::rename_overloads(const char* class_name, std::vector<MethodPointer>& methods) {
    for (size_t i = 0; i < methods.size();) {
        MethodEntity& method = *methods[i];
        const bool found = std::any_of(methods.begin(), methods.end(),
                                       [&](const MethodPointer& other) { return collides(method, *other); });
        if (found && !copy_fitting(method.func_name, name_with_arguments(method))) {
            report_left_out(class_name, method.name, method.signature, "the name of its wrapper is too long");
            methods.erase(methods.begin() + static_cast<std::ptrdiff_t>(i));
            continue;
        }
        rename_special_case(class_name, method);
        ++i;
    }
}
