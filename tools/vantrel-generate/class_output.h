// What the command does with each class that it is given.
#ifndef VANTREL_GENERATE_CLASS_OUTPUT_H
#define VANTREL_GENERATE_CLASS_OUTPUT_H

#include <cstdio>
#include <filesystem>
#include <functional>
#include <set>
#include <string>

#include "java_vm.h"

namespace generate {

struct Output {
    std::filesystem::path folder;  // for the files; empty: the list alone is wanted
    FILE* list;                    // null: standard output is closed
    bool literal;                  // names stay as they are, even where C++ does not take them
    bool force;                    // files of other classes are replaced
    std::function<void(const std::string&)> report;

    std::set<std::string> written = {};  // simple names; two classes of the same one would share their files
};

// The internal name, in modified UTF-8, of a class that is named with dots or slashes. Throws Failure if that is no
// name of a class.
std::string internal_name_of(const std::string& name);

// Writes the proxy of a class, or lists it. Throws Failure if the class cannot be written, and std::system_error if the
// list cannot.
void write_or_list(const RunningVm& vm, const std::string& internal_name, Output& output);

}  // namespace generate

#endif
