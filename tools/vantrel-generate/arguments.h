// The command line of vantrel-generate.
#ifndef VANTREL_GENERATE_ARGUMENTS_H
#define VANTREL_GENERATE_ARGUMENTS_H

#include <string>
#include <variant>
#include <vector>

namespace generate {

struct Arguments {
    std::string java_home;  // empty: to be found
    std::string class_path;
    std::vector<std::string> vm_options;
    std::string out;
    bool list = false;
    bool literal = false;
    bool force = false;
    std::vector<std::string> classes;  // as they were given, with dots or slashes
};

// The arguments, or the text that --help or --version prints. Throws Failure if they make no sense.
std::variant<Arguments, std::string> parse_arguments(int argc, char** argv);

}  // namespace generate

#endif
