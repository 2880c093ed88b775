// Chooses names that C++ takes for the names of Java that it does not take (make_compilable in generator.h).
#include <algorithm>
#include <set>

#include "cpp_names.h"
#include "generator.h"
#include "modified_utf8.h"

using generator::Field;
using generator::IsLetter;
using generator::Method;
using generator::Proxy;
using generator::Renaming;

namespace {

using Names = std::set<std::string, std::less<>>;

constexpr const char* kNoName = "C++ has no such names";
constexpr const char* kWord = "that is a word of C++";
constexpr const char* kMacro = "that is a macro";
constexpr const char* kType = "that is a type which the proxy uses";
constexpr const char* kVariable = "that is a variable of the proxy";
constexpr const char* kClash = "another wrapper has the same name and parameters";
constexpr const char* kTaken = "another one has that name";

bool is_digit(char32_t c) {
    return c >= '0' && c <= '9';
}

bool is_ascii_letter(char32_t c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == '$';
}

// The name with an underscore for each character that C++ does not take.
//   begins  whether the name stands by itself, so that its first character must be a letter
std::string identifier(std::string_view modified, const IsLetter& is_letter, bool begins) {
    std::u32string name;
    for (const char32_t c : generator::decode_modified_utf8(modified)) {
        if (begins && name.empty() && is_digit(c)) {
            name += U'_';
        }
        const bool is_taken = c < 0x80 ? is_digit(c) || is_ascii_letter(c) : is_letter(c, begins && name.empty());
        name += is_taken ? c : U'_';
    }
    return name.empty() && begins ? "_" : generator::to_utf8(name);
}

// Chooses names, and lists those that it had to change.
struct Namer {
    const IsLetter& is_letter;
    std::vector<Renaming>& renamings;

    // Returns `candidate` or a name like it. `objects` is asked for each name: it returns why that cannot be used, or
    // null if it can. If there is an objection, `suffix` is added once, and then underscores until there is none.
    // `stated` is the name that would be used if Java and C++ had the same rules.
    template <typename Objects>
    std::string choose(Renaming::Kind kind, size_t member, const std::string& stated, std::string candidate,
                       const std::string& suffix, Objects objects) const {
        const char* reason = candidate != stated ? kNoName : objects(candidate);
        if (objects(candidate) != nullptr) {
            candidate += suffix;
        }
        while (objects(candidate) != nullptr) {
            candidate += "_";
        }
        if (candidate != stated) {
            renamings.push_back({kind, member, stated, candidate, reason});
        }
        return candidate;
    }
};

void name_class(Proxy& proxy, const Namer& namer) {
    const std::string stated = generator::utf8_of_modified(proxy.class_name);
    const std::string valid = identifier(proxy.class_name, namer.is_letter, false);
    proxy.cpp_namespace = "NS" + valid;
    proxy.cpp_name =
        namer.choose(Renaming::kClass, 0, stated, identifier(proxy.class_name, namer.is_letter, true), "_",
                     [](const std::string& name) { return generator::is_object_macro(name) ? kMacro : nullptr; });
    const std::string guard = generator::header_macro(valid) + "_H";
    proxy.guard = namer.choose(Renaming::kClass, 0, guard, guard, "_", [](const std::string& name) {
        return generator::is_object_macro(name) ? kMacro : nullptr;
    });
}

// The variable of a method is called <class>_<method><number>, that of a field <class>_<field>.
std::string variable(const Proxy& proxy, std::string_view name, const std::string& number) {
    return proxy.cpp_name + "_" + std::string(name) + number;
}

// `whole` is the variable that `name` would give. `given` has the variables that are taken, and `stated` those that all
// members would have unchanged: a changed name must not take one of these from a member that comes later.
const char* objection_to_variable(const std::string& name, const std::string& whole, const Names& given,
                                  const Names& stated, bool is_stated) {
    return generator::is_object_macro(name) || generator::is_object_macro(whole) ? kMacro
           : given.contains(whole) || (!is_stated && stated.contains(whole))     ? kTaken
                                                                                 : nullptr;
}

// Chooses the variables of all members. Returns the names that are taken then.
Names name_variables(Proxy& proxy, const Namer& namer) {
    Names given = {"_c_Class"};
    Names stated;
    const auto number_of = [&](const Method& method) {
        return method.is_constructor ? "" : std::to_string(&method - proxy.methods.data());
    };
    for (const Field& field : proxy.fields) {
        stated.insert(variable(proxy, generator::utf8_of_modified(field.name), ""));
    }
    for (const Method& method : proxy.methods) {
        stated.insert(variable(proxy, generator::utf8_of_modified(method.name), number_of(method)));
    }
    const auto name_member = [&](auto& member, Renaming::Kind kind, size_t place, const std::string& number) {
        const std::string stated_name = generator::utf8_of_modified(member.name);
        const std::string chosen = namer.choose(
            kind, place, stated_name, identifier(member.name, namer.is_letter, false), "_",
            [&](const std::string& name) {
                return objection_to_variable(name, variable(proxy, name, number), given, stated, name == stated_name);
            });
        given.insert(variable(proxy, chosen, number));
        member.cpp_name = chosen != member.name ? chosen : "";
    };
    for (size_t i = 0; i < proxy.fields.size(); ++i) {
        if (proxy.fields[i].name != "serialVersionUID") {
            name_member(proxy.fields[i], Renaming::kField, i, "");
        }
    }
    for (size_t i = 0; i < proxy.methods.size(); ++i) {
        if (proxy.methods[i].is_constructor) {
            given.insert("Constructor" + proxy.cpp_name + std::to_string(i));
        } else {
            name_member(proxy.methods[i], Renaming::kMethod, i, std::to_string(i));
        }
    }
    return given;
}

std::string type_of(const std::string& name, int dimensions) {
    return name + (dimensions > 0 ? "Array" : "");
}

// The types that the files use. No function may have the name of one, for it would hide the type.
Names types_of(const Proxy& proxy) {
    Names types = {"JNIEnv", "jvmtiEnv", "jclass", "jmethodID"};
    if (!proxy.fields.empty()) {
        types.insert("jfieldID");
    }
    for (const Method& method : proxy.methods) {
        types.insert(type_of(method.result.name, method.result.dimensions));
        if (!generator::is_static(method) && !method.is_constructor) {
            types.insert("jobject");
        }
        for (const generator::Argument& argument : method.arguments) {
            types.insert(type_of(argument.type, argument.dimensions));
        }
    }
    return types;
}

// A function's name and types of parameters, which no other function may share.
std::string signature(const Method& method, const std::string& name) {
    std::string all = name + "(";
    if (!generator::is_static(method) && !method.is_constructor) {
        all += "jobject,";
    }
    for (const generator::Argument& argument : method.arguments) {
        all += type_of(argument.type, argument.dimensions) + ",";
    }
    return all;
}

void name_wrappers(Proxy& proxy, const Namer& namer, const Names& variables) {
    const Names types = types_of(proxy);
    Names given;
    Names stated;
    for (const Method& method : proxy.methods) {
        stated.insert(signature(method, generator::utf8_of_modified(method.wrapper)));
    }
    for (size_t i = 0; i < proxy.methods.size(); ++i) {
        Method& method = proxy.methods[i];
        const std::string stated_name = generator::utf8_of_modified(method.wrapper);
        const auto objection = [&](const std::string& name) -> const char* {
            const std::string whole = signature(method, name);
            return generator::is_cpp_word(name)                                               ? kWord
                   : generator::is_object_macro(name) || generator::is_function_macro(name)   ? kMacro
                   : types.contains(name)                                                     ? kType
                   : variables.contains(name)                                                 ? kVariable
                   : given.contains(whole) || (name != stated_name && stated.contains(whole)) ? kClash
                                                                                              : nullptr;
        };
        const bool is_clash = objection(stated_name) == kClash;
        method.wrapper =
            namer.choose(Renaming::kWrapper, i, stated_name, identifier(method.wrapper, namer.is_letter, true),
                         is_clash ? std::to_string(i) : "_", objection);
        given.insert(signature(method, method.wrapper));
    }
}

void name_parameters(Proxy& proxy, const Namer& namer, const Names& variables) {
    for (size_t i = 0; i < proxy.methods.size(); ++i) {
        Names given;
        int number = 0;
        for (generator::Argument& argument : proxy.methods[i].arguments) {
            const std::string place = std::to_string(number++);
            argument.word =
                namer.choose(Renaming::kParameter, i, generator::utf8_of_modified(argument.word),
                             identifier(argument.word, namer.is_letter, true), "_", [&](const std::string& word) {
                                 const std::string name = word + place;
                                 return generator::is_object_macro(name)                   ? kMacro
                                        : variables.contains(name) || given.contains(name) ? kTaken
                                                                                           : nullptr;
                             });
            given.insert(argument.word + place);
        }
    }
}

}  // namespace

std::vector<Renaming> generator::make_compilable(Proxy& proxy, const IsLetter& is_letter) {
    std::vector<Renaming> renamings;
    const Namer namer{is_letter, renamings};
    name_class(proxy, namer);
    const Names variables = name_variables(proxy, namer);
    name_wrappers(proxy, namer, variables);
    name_parameters(proxy, namer, variables);
    proxy.is_compilable = true;
    return renamings;
}
