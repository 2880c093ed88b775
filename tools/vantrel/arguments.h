// The command line of vantrel.
#ifndef VANTREL_ARGUMENTS_H
#define VANTREL_ARGUMENTS_H

#include <string>
#include <variant>
#include <vector>

// What `vantrel run` was given.
struct RunArguments {
    std::vector<std::string> vm_options;
    std::vector<std::string> program;  // the program's name and its arguments; never empty
};

// The arguments, or the text that --help or --version prints. Throws Failure if they make no sense.
std::variant<RunArguments, std::string> parse_arguments(int argc, char** argv);

#endif
