#include "arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <utility>

#include "command_line.h"
#include "failure.h"

namespace launch {

namespace {

constexpr const char* kDescription = "Brings the inspector of Swing user interfaces into a program.\n";

constexpr const char* kRunDescription = "Starts a program with the inspector in it";

constexpr const char* kRunFooter =
    R"(PROGRAM is java, a program or script that starts Java sooner or later, or a jar. It takes the command's place:
terminal, signals and exit status are its own. Control+F12 shows the inspector.

Exit status, where there is no program to have one: 125 if the command could do nothing, 126 if the program could not be
started, 127 if there is no such program.

Examples:
  vantrel run java -cp program.jar com.x.Main
  vantrel run program.jar one two
  vantrel run --vm-option='-Dvantrel.editor=idea --line %line %file' ./program.sh --its-option
)";

bool is_option(const char* word) {
    return word[0] == '-' && word != std::string("--");
}

// How many words of a command line come before the program that `run` starts. All others, whatever they look like, are
// the program's.
int words_before_program(const CLI::App& run, int argc, char** argv) {
    int at = 1;
    while (at < argc && is_option(argv[at])) {
        ++at;
    }
    if (at == argc || argv[at] != run.get_name()) {
        return argc;
    }
    for (++at; at < argc && is_option(argv[at]); ++at) {
        const CLI::Option* option = run.get_option_no_throw(argv[at]);
        if (option != nullptr && option->get_items_expected_min() > 0) {
            ++at;  // its value
        }
    }
    return std::min(at, argc);
}

}  // namespace

std::variant<Arguments, std::string> parse_arguments(int argc, char** argv) {
    Arguments arguments;
    CLI::App app(kDescription, "vantrel");
    app.footer("vantrel COMMAND --help tells more about a command.");
    app.set_help_flag("-h,--help", "Print this text and exit");
    app.set_version_flag("--version", "vantrel " VANTREL_VERSION);
    app.require_subcommand(1);

    CLI::App* run = app.add_subcommand("run", kRunDescription);
    // The usage line has to name the words that CLI11 leaves alone, and CLI11 cannot do that. So they are added to its
    // label for the options, which it puts into brackets.
    run->formatter(std::make_shared<CLI::Formatter>());
    run->get_formatter()->label("OPTIONS", "OPTIONS] PROGRAM [ARGUMENT...");
    run->footer(kRunFooter);
    run->add_option("--vm-option", arguments.vm_options, "An option for the program's VM; may be repeated")
        ->type_name("OPT")
        ->allow_extra_args(false);

    const int own_words = words_before_program(*run, argc, argv);
    if (auto text = command::parse_command_line(app, own_words, argv)) {
        return *std::move(text);
    }
    const bool has_mark = own_words < argc && argv[own_words] == std::string("--");
    arguments.program.assign(argv + own_words + (has_mark ? 1 : 0), argv + argc);
    if (arguments.program.empty()) {
        throw command::Failure{"which program? vantrel run PROGRAM ARGUMENTS... starts it"};
    }
    return arguments;
}

}  // namespace launch
