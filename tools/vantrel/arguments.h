// The command line of vantrel.
#ifndef VANTREL_ARGUMENTS_H
#define VANTREL_ARGUMENTS_H

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace launch {

// What `vantrel run` was given.
struct Arguments {
    std::vector<std::string> vm_options;
    std::vector<std::string> program;  // the program's name and its arguments; never empty
};

// A command that asks programs under the agent, by its name, and what it was given; the rest is empty.
struct Question {
    std::string command;
    std::string program;  // a process's number, or a part of a name
    std::string path;     // of a component
    std::string output;   // the file to write
    std::string before;   // two snapshots to compare
    std::string after;
    bool json = false;
    std::optional<int> depth;  // how many levels below the windows; all without
    std::string query;         // what to search for
};

// The arguments, or the text that --help or --version prints. Throws Failure if they make no sense.
std::variant<Arguments, Question, std::string> parse_arguments(int argc, char** argv);

}  // namespace launch

#endif
