#include "class_output.h"

#include <CodeGenerater/descriptors.h>
#include <CodeGenerater/generator.h>
#include <CodeGenerater/modified_utf8.h>

#include <algorithm>
#include <cerrno>
#include <map>
#include <system_error>
#include <vector>

#include "failure.h"
#include "loaded_class.h"
#include "present_files.h"
#include "text.h"

using generator::Argument;
using generator::Field;
using generator::Method;
using generator::Proxy;
using generator::Renaming;
using generator::utf8_of_modified;

namespace {

// A descriptor for a message, with its middle left out where it is long.
std::string shortened(const std::string& descriptor) {
    constexpr size_t longest = 80;
    constexpr size_t end_size = 20;
    std::u32string text = generator::decode_modified_utf8(descriptor);
    if (text.size() > longest) {
        text = text.substr(0, longest - end_size) + U"…" + text.substr(text.size() - end_size);
    }
    return generator::to_utf8(text);
}

std::string described(const Proxy& proxy, const Renaming& renaming) {
    switch (renaming.kind) {
        case Renaming::kClass:
            return renaming.from;
        case Renaming::kField:
            return "field " + renaming.from;
        case Renaming::kMethod:
            return "the variable of " + renaming.from + " " + shortened(proxy.methods[renaming.member].descriptor);
        case Renaming::kWrapper:
            return "the wrapper " + renaming.from + " of " + shortened(proxy.methods[renaming.member].descriptor);
        case Renaming::kParameter:
            break;
    }
    return "a parameter of " + proxy.methods[renaming.member].wrapper + ", " + renaming.from + ",";
}

// Whether the renaming of a method's variable need not be reported, because the method's wrapper has been given the
// same name.
bool is_told_of_the_wrapper(const Renaming& renaming, const std::vector<Renaming>& all) {
    return renaming.kind == Renaming::kMethod && std::any_of(all.begin(), all.end(), [&](const Renaming& other) {
               return other.kind == Renaming::kWrapper && other.member == renaming.member && other.to == renaming.to;
           });
}

// A literal proxy is what GenerateFiles would write, and that takes no argument whose class is in no package.
void refuse_unnamed_arguments(const Proxy& proxy) {
    for (const Method& method : proxy.methods) {
        for (const Argument& argument : method.arguments) {
            if (generator::is_in_no_package(argument.descriptor)) {
                throw command::Failure{
                    utf8_of_modified(proxy.internal_name + ": its method " + method.name) + " " +
                    shortened(method.descriptor) +
                    " has an argument whose class is in no package, which a literal proxy cannot have"};
            }
        }
    }
}

// For each renamed member, by its place in the proxy, a note of the name that it would have otherwise.
std::map<size_t, std::string> changed(const std::vector<Renaming>& renamings, Renaming::Kind kind) {
    std::map<size_t, std::string> names;
    for (const Renaming& renaming : renamings) {
        if (renaming.kind == kind) {
            names[renaming.member] = " (instead of " + renaming.from + ")";
        }
    }
    return names;
}

std::string list_of(const Proxy& proxy, const std::vector<Renaming>& renamings) {
    const auto static_word = [](const auto& member) { return generator::is_static(member) ? "static " : ""; };
    std::string text = utf8_of_modified(proxy.internal_name) + "\n";
    auto instead = changed(renamings, Renaming::kField);
    for (size_t i = 0; i < proxy.fields.size(); ++i) {
        const Field& field = proxy.fields[i];
        const std::string name = field.cpp_name.empty() ? utf8_of_modified(field.name) : field.cpp_name;
        text += std::string("    ") + static_word(field) + name + " " + utf8_of_modified(field.descriptor) +
                instead[i] + "\n";
    }
    instead = changed(renamings, Renaming::kWrapper);
    for (size_t i = 0; i < proxy.methods.size(); ++i) {
        const Method& method = proxy.methods[i];
        text += "    " + std::to_string(i) + " " + static_word(method) + utf8_of_modified(method.wrapper) + " " +
                utf8_of_modified(method.descriptor) + instead[i] + "\n";
    }
    return text;
}

void print_list(const std::string& text, FILE* list) {
    if (list == nullptr || fputs(text.c_str(), list) < 0 || fflush(list) != 0) {
        throw std::system_error(list == nullptr ? EBADF : errno, std::generic_category(),
                                "cannot write to standard output");
    }
}

void write_files(const Proxy& proxy, generate::Output& output) {
    const std::string shown = utf8_of_modified(proxy.internal_name);
    const std::string file_name = utf8_of_modified(proxy.class_name);
    const bool is_quotable = std::none_of(file_name.begin(), file_name.end(),
                                          [](char c) { return (c >= 0 && c < ' ') || c == '"' || c == '\\'; });
    if (!is_quotable) {
        throw command::Failure{shown + ": its name cannot be that of a header"};
    }
    if (!output.written.insert(file_name).second) {
        throw command::Failure{shown + ": another class has been written to " + file_name + ".h in this run"};
    }
    const std::string path = output.folder / file_name;
    const std::string obstacle = output.force ? "" : generate::not_to_be_replaced(proxy, path + ".h", path + ".cpp");
    if (!obstacle.empty()) {
        throw command::Failure{shown + ": " + obstacle + "; --force replaces it"};
    }
    const std::string fault = generator::write_proxy(proxy, path + ".h", path + ".cpp");
    if (!fault.empty()) {
        throw command::Failure{shown + ": " + fault};
    }
}

}  // namespace

std::string generate::internal_name_of(const std::string& name) {
    std::string internal = command::modified_utf8(name).value_or("");
    std::replace(internal.begin(), internal.end(), '.', '/');
    const bool empty_part = internal.empty() || internal.front() == '/' || internal.back() == '/' ||
                            internal.find("//") != std::string::npos;
    if (empty_part || internal.find_first_of(";[") != std::string::npos) {
        throw command::Failure{"'" + name +
                               "' is not a class name; write it like java.awt.Container or java/awt/Container"};
    }
    return internal;
}

void generate::write_or_list(const RunningVm& vm, const std::string& internal_name, Output& output) {
    const LocalFrame frame(vm.env);
    Proxy proxy = generator::read_proxy(vm.jvmti, load_class(vm.env, internal_name), internal_name);
    std::vector<Renaming> renamings;
    if (output.literal) {
        refuse_unnamed_arguments(proxy);
    } else {
        renamings = generator::make_compilable(
            proxy, [&](char32_t c, bool begins) { return is_identifier_character(vm.env, c, begins); });
    }
    if (output.folder.empty()) {
        print_list(list_of(proxy, renamings), output.list);
        return;
    }
    write_files(proxy, output);
    for (const Renaming& renaming : renamings) {
        if (!is_told_of_the_wrapper(renaming, renamings)) {
            output.report(utf8_of_modified(internal_name) + ": " + described(proxy, renaming) + " is called " +
                          renaming.to + ": " + renaming.reason);
        }
    }
}
