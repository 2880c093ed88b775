// Which members of a class its proxy has.
#include <algorithm>
#include <iterator>
#include <string_view>

#include "CodeGenerater.h"
#include "generator.h"

using std::string_view;

bool generator::is_method_of_proxy(string_view class_name, string_view name, int modifiers) {
    const bool compilers_own = name.starts_with("access$") || name == "<clinit>";
    // The protected methods of Container are wanted: by these, components are added and laid out.
    const bool hidden = (modifiers & kPrivate) != 0 || ((modifiers & kProtected) != 0 && class_name != "Container");
    return !compilers_own && !hidden;
}

bool generator::is_field_of_proxy(string_view class_name, string_view name, int modifiers) {
    // Fields that some VMs lack or that are of no use in C++, and classes of which no field is wanted.
    static constexpr string_view kFields[] = {"eventCache", "nativeInLightFixer", "backgroundEraseDisabled",
                                              "serialVersionUID"};
    static constexpr string_view kClasses[] = {"EDTRunnable", "SwingUtilities"};
    const auto is_in = [](const auto& list, string_view text) {
        return std::find(std::begin(list), std::end(list), text) != std::end(list);
    };
    const bool hidden = (modifiers & (kPrivate | kProtected)) != 0;
    return !hidden && !is_in(kFields, name) && !is_in(kClasses, class_name);
}

int CanAcceptMethod(char* class_name, char* name, int modifiers) {
    return generator::is_method_of_proxy(class_name, name, modifiers) ? 1 : 0;
}

int CanAcceptField(char* class_name, char* name, int modifiers) {
    return generator::is_field_of_proxy(class_name, name, modifiers) ? 1 : 0;
}
