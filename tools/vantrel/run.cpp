#include "run.h"

#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <vector>

#include "agent.h"
#include "failure_with_status.h"
#include "java_command.h"
#include "java_home.h"

namespace fs = std::filesystem;

namespace launch {

namespace {

constexpr int kNotStarted = 126;
constexpr int kNotFound = 127;

constexpr const char* kToolOptions = "JAVA_TOOL_OPTIONS";

using Words = std::vector<std::string>;

void append(Words& words, const Words& more) {
    words.insert(words.end(), more.begin(), more.end());
}

// Throws unless there is a file of that name.
void check_is_file(const std::string& name) {
    if (!fs::exists(name)) {
        throw FailureWithStatus{"there is no file " + name, kNotFound};
    }
    if (fs::is_directory(name)) {
        throw FailureWithStatus{name + " is a folder, not a program", kNotStarted};
    }
}

fs::path find_program(const std::string& name) {
    if (auto file = command::find_on_path(name)) {
        return *std::move(file);
    }
    if (name.find('/') == std::string::npos) {
        const bool is_here = fs::is_regular_file(name);
        throw FailureWithStatus{"there is no program '" + name + "' on the path" +
                                    (is_here ? "; the file in this folder is ./" + name : ""),
                                kNotFound};
    }
    check_is_file(name);
    throw FailureWithStatus{name + " is not executable", kNotStarted};
}

fs::path java_for_jar(const std::string& jar) {
    check_is_file(jar);
    const auto home = command::find_java_home();
    if (!home) {
        throw FailureWithStatus{"there is no Java for " + jar + ": no JAVA_HOME, and no java on the path", kNotFound};
    }
    return find_program(*home / "bin" / "java");
}

// Whether a file is a VM's launcher, which takes options itself. A `java` on the path may also be a script that looks
// for a launcher.
bool is_java(const fs::path& program) {
    const fs::path file = fs::canonical(program);
    return file.filename() == "java" && command::find_vm_library(file.parent_path().parent_path());
}

// What has a VM let us ask the program questions without a warning on its stderr each time: an option that VMs from
// release 21 on need for that, and those before 9 do not know.
Words let_ask(const fs::path& java) {
    constexpr long kFirstThatWarns = 21;
    constexpr std::string_view kVersion = "JAVA_VERSION=\"";
    std::ifstream release(fs::canonical(java).parent_path().parent_path() / "release");
    for (std::string line; std::getline(release, line);) {
        if (line.starts_with(kVersion) && strtol(line.c_str() + kVersion.size(), nullptr, 10) >= kFirstThatWarns) {
            return {"-XX:+EnableDynamicAgentLoading"};
        }
    }
    return {};
}

[[noreturn]] void become(const fs::path& program, const Words& words) {
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (const std::string& word : words) {
        arguments.push_back(const_cast<char*>(word.c_str()));
    }
    arguments.push_back(nullptr);
    // Not execv: execvp runs a script whose first line names no shell with /bin/sh.
    execvp(program.c_str(), arguments.data());
    throw FailureWithStatus{"cannot start " + program.string() + ": " + strerror(errno), kNotStarted};
}

}  // namespace

void run(const Arguments& arguments) {
    const std::string& name = arguments.program.front();
    Words words = arguments.program;
    fs::path program;
    if (name.ends_with(".jar")) {
        program = java_for_jar(name);
        words.insert(words.begin(), {program, "-jar"});
    } else {
        program = find_program(name);
    }

    const char* variable = getenv(kToolOptions);
    const std::string already = variable == nullptr ? "" : variable;
    Words options;
    // A script under the agent may run a program under the agent: once is enough.
    const std::string agent = agent_option();
    if (already.find(tool_options("", {agent})) == std::string::npos) {
        options.push_back(agent);
    }
    append(options, arguments.vm_options);

    if (is_java(program)) {
        // Not by the environment: the VM would say on stderr that it has picked it up, and a Java program that this one
        // starts would have the agent too.
        const auto place = static_cast<Words::difference_type>(place_for_agent(words));
        const Words quiet = let_ask(program);
        words.insert(words.begin() + place, options.begin(), options.end());
        // First of all, so that whatever somebody else says of it holds.
        words.insert(words.begin() + 1, quiet.begin(), quiet.end());
    } else {
        setenv(kToolOptions, tool_options(already, options).c_str(), 1);
    }
    become(program, words);
}

}  // namespace launch
