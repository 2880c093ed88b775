// Which members of a class its proxy has.
#include <algorithm>
#include <iterator>
#include <string_view>

#include "CodeGenerater.h"

using std::string_view;

int CanAcceptMethod(char* class_name, char* name, int modifiers) {
    const string_view method = name;
    const bool compilers_own = method.starts_with("access$") || method == "<clinit>";
    // Container's protected methods are where components are added and laid out.
    const bool hidden =
        (modifiers & kPrivate) != 0 || ((modifiers & kProtected) != 0 && string_view(class_name) != "Container");
    return !compilers_own && !hidden ? 1 : 0;
}

int CanAcceptField(char* class_name, char* name, int modifiers) {
    // Not in every VM, or of no use outside it.
    static constexpr string_view kFields[] = {"eventCache", "nativeInLightFixer", "backgroundEraseDisabled",
                                              "serialVersionUID"};
    static constexpr string_view kClasses[] = {"EDTRunnable", "SwingUtilities"};
    const auto is_in = [](const auto& list, string_view text) {
        return std::find(std::begin(list), std::end(list), text) != std::end(list);
    };
    const bool hidden = (modifiers & (kPrivate | kProtected)) != 0;
    return !hidden && !is_in(kFields, name) && !is_in(kClasses, class_name) ? 1 : 0;
}
