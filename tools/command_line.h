// How the commands read their command lines, and print what these ask for.
#ifndef VANTREL_COMMAND_LINE_H
#define VANTREL_COMMAND_LINE_H

#include <optional>
#include <string>

namespace CLI {
class App;
}

namespace command {

// Parses a command line into the variables that the application's options name. Returns the text that --help or
// --version prints, and nothing where there is work to do. Throws Failure if the command line makes no sense.
std::optional<std::string> parse_command_line(CLI::App& app, int argc, char** argv);

// Prints such a text to stdout. Throws Failure if that is not possible, as on a full disk.
void print(const std::string& text);

}  // namespace command

#endif
