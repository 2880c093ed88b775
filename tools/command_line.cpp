#include "command_line.h"

#include <CLI/CLI.hpp>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include "failure.h"

namespace command {

std::optional<std::string> parse_command_line(CLI::App& app, int argc, char** argv) {
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        return app.help();
    } catch (const CLI::CallForVersion& version) {
        return std::string(version.what()) + "\n";
    } catch (const CLI::ParseError& error) {
        throw Failure{std::string(error.what()) + "; " + app.get_name() + " --help tells the options"};
    }
    return std::nullopt;
}

void print(const std::string& text) {
    if (fputs(text.c_str(), stdout) < 0 || fflush(stdout) != 0) {
        throw Failure{std::string("cannot write to standard output: ") + strerror(errno)};
    }
}

}  // namespace command
