#include "kept_classes.h"

#include <algorithm>
#include <string_view>

namespace vantrel_rewrite {

namespace {

// Whether a pattern fits a name. In it, `*` stands for any characters or none.
bool matches(std::string_view pattern, std::string_view name) {
    const size_t star = pattern.find('*');
    if (star == std::string_view::npos) {
        return pattern == name;
    }
    if (name.substr(0, star) != pattern.substr(0, star)) {
        return false;
    }
    pattern.remove_prefix(star + 1);
    name.remove_prefix(star);
    // The parts between stars are taken where they first come; the last part stands at the end.
    for (size_t next = pattern.find('*'); next != std::string_view::npos; next = pattern.find('*')) {
        const size_t found = name.find(pattern.substr(0, next));
        if (found == std::string_view::npos) {
            return false;
        }
        name.remove_prefix(found + next);
        pattern.remove_prefix(next + 1);
    }
    return name.ends_with(pattern);
}

}  // namespace

std::optional<std::string> reason_to_keep(const Arguments& arguments, const std::string& name) {
    const std::string& tracker = arguments.tracker.class_name;
    if (name == tracker) {
        return "it is the tracker class";
    }
    if (name.starts_with(tracker + "$")) {
        return "it is a part of the tracker class";
    }
    if (name == "java/lang/Object" && !arguments.tracker.object_init) {
        return "no VM would start with a method added to it; --object-init rewrites it all the same";
    }
    const auto& patterns = arguments.keep;
    if (std::any_of(patterns.begin(), patterns.end(), [&](const auto& pattern) { return matches(pattern, name); })) {
        return "--keep names it";
    }
    return std::nullopt;
}

}  // namespace vantrel_rewrite
