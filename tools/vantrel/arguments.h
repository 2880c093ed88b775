// The command line of vantrel.
#ifndef VANTREL_ARGUMENTS_H
#define VANTREL_ARGUMENTS_H

#include <string>
#include <variant>
#include <vector>

namespace launch {

// What `vantrel run` was given.
struct Arguments {
    std::vector<std::string> vm_options;
    std::vector<std::string> program;  // the program's name and its arguments; never empty
};

// The arguments, or the text that --help or --version prints. Throws Failure if they make no sense.
std::variant<Arguments, std::string> parse_arguments(int argc, char** argv);

}  // namespace launch

#endif
