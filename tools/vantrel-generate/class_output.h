// What the command does with each class that it is given.
#ifndef VANTREL_GENERATE_CLASS_OUTPUT_H
#define VANTREL_GENERATE_CLASS_OUTPUT_H

#include <filesystem>
#include <set>
#include <string>

#include "java_vm.h"

namespace generate {

// Writes the proxy of a class into `folder`, or lists it on stdout where that is empty. Throws Failure if it cannot.
//   name     with dots or slashes
//   written  the simple names that have been written in this run. Two classes with one would share their files
void write_or_list(const RunningVm& vm, const std::string& name, const std::filesystem::path& folder,
                   std::set<std::string>& written);

}  // namespace generate

#endif
