// The programs that run under the agent on this machine, for Linux.
#ifndef VANTREL_PROGRAMS_H
#define VANTREL_PROGRAMS_H

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <vector>

namespace outside {

struct Program {
    pid_t id;
    std::string name;               // its main class or jar, or else its executable file
    std::filesystem::path library;  // the agent's, as the program sees it
};

// The programs of the user who asks whose name has a part in it, in small letters or capitals, or that have this
// number; in the order of their numbers.
std::vector<Program> programs(const std::string& part = "");

// The program that somebody means.
//   given   the number of a process, or a part of the name of one program only, in small letters or capitals
// Throws FailureWithStatus if there is none or more than one, or if it is somebody else's or has no agent.
Program find_program(const std::string& given);

// "4711 (com.x.Main)", to begin a message with.
std::string label(const Program& program);

// A folder of the machine as a program sees it: it may live in a container of its own. Ends without a slash.
std::filesystem::path seen_by(const Program& program, const std::filesystem::path& folder);

// The value of a line of /proc/PID/status, such as "State"; empty if there is none, or no such process any more.
std::string status_of(pid_t id, const std::string& name);

// Whether a process has ended, or is about to.
bool has_ended(pid_t id);

}  // namespace outside

#endif
