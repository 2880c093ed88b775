// vantrel: the inspector's command. It starts programs under the agent.
#include <cstdio>
#include <exception>
#include <string>
#include <variant>

#include "arguments.h"
#include "command_line.h"
#include "failure.h"
#include "run.h"

namespace {

constexpr int kAllWell = 0;
// As with `env` and `nohup`: programs seldom use it, so it says that none has run.
constexpr int kNothingDone = 125;

int report(const std::string& line, int status) {
    fprintf(stderr, "vantrel: %s\n", line.c_str());
    return status;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        const auto parsed = launch::parse_arguments(argc, argv);
        if (const auto* text = std::get_if<std::string>(&parsed)) {
            command::print(*text);
            return kAllWell;
        }
        launch::run(std::get<launch::Arguments>(parsed));
    } catch (const launch::NotStarted& failure) {
        return report(failure.line, failure.status);
    } catch (const command::Failure& failure) {
        return report(failure.line, kNothingDone);
    } catch (const std::exception& failure) {
        return report(failure.what(), kNothingDone);
    }
}
