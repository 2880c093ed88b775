#include "command_line.h"

#include <CLI/CLI.hpp>

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

}  // namespace command
