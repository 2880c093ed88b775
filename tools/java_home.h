// Where Java is on this machine.
#ifndef VANTREL_JAVA_HOME_H
#define VANTREL_JAVA_HOME_H

#include <filesystem>
#include <optional>
#include <string>

namespace command {

// The file that a shell would run for a name: the name itself if there is a slash in it, or else the first executable
// file of that name on the path. Nothing if there is none.
std::optional<std::filesystem::path> find_on_path(const std::string& name);

// The home of a JDK or JRE: what JAVA_HOME says, whether or not there is one, or else the one that the java on the path
// belongs to. Nothing if there is neither.
std::optional<std::filesystem::path> find_java_home();

// The library of the VM in a home. Nothing if there is none.
std::optional<std::filesystem::path> find_vm_library(const std::filesystem::path& home);

}  // namespace command

#endif
