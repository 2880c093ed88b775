#include "arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <utility>

#include "command_line.h"
#include "failure.h"

namespace launch {

namespace {

// Programs are found, and asked, by what Linux has.
#ifdef __linux__
constexpr bool kAsksPrograms = true;
#else
constexpr bool kAsksPrograms = false;
#endif

constexpr const char* kDescription =
    "Brings the inspector of Swing user interfaces into a program, and tells what it sees there.\n";

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

constexpr const char* kListDescription = "Tells which programs run under the agent";

constexpr const char* kListFooter =
    R"(Prints a line for each program of yours: its process, its main class or jar, its VM, and its windows. With
PROGRAM, only those with this number, or with this in their name.

Exit status: 0, 1 if there are none, 125 if the command line makes no sense.
)";

constexpr const char* kTreeDescription = "Prints the components of a program";

constexpr const char* kStatuses =
    R"(
Exit status: 0; 1 if there is no such program or component; 2 if the program cannot be asked or does not answer; 125 if
the command line makes no sense, or the result cannot be written.
)";

constexpr const char* kTreeFooter =
    R"(A line for each component: the step of a path that leads to it from the line that it is indented under, its class,
name and text, and why it is not to be seen. Parts that Swing puts in by itself are left out, but with --json, which
marks them. With --find, a line for each component that is found, with its path.
)";

constexpr const char* kPathFooter =
    R"(PATH is what vantrel tree prints: steps with slashes between them. A step is a kind of component or a class with its
number among its like (button0), or with a name or text (button[text=OK]); a step ... stands for any others. A path that
does not begin with a window may begin anywhere, so that button[text=OK] is one if there is one such button.
)";

constexpr const char* kPictureFooter =
    R"(Has the program paint the component, or its active window, once more, and writes that as a PNG file of the screen's
pixels.
)";

constexpr const char* kSelectFooter = R"(Shows the inspector, if it is not shown, with the component selected in it.
)";

constexpr const char* kSelectionFooter = R"(Prints the path of the component that is selected in the inspector.
)";

constexpr const char* kSnapshotFooter =
    R"(Writes all properties of all components to a file, a line each, for vantrel diff and for people.
)";

constexpr const char* kDiffFooter =
    R"(Prints what has changed from the snapshot BEFORE to the snapshot AFTER: components that are gone (-) or new (+), and
properties with their values before and after.

Exit status: 0 if nothing has changed, 1 if something has, 125 if one of them is no snapshot.
)";

void add_path(CLI::App* command, Question& question, bool is_needed) {
    command->add_option("PATH", question.path, "Where the component is")->required(is_needed);
}

void add_output(CLI::App* command, Question& question) {
    command->add_option("-o,--output", question.output, "The file to write")->type_name("FILE")->required();
}

CLI::App* add_question(CLI::App& app, Question& question, const char* name, const char* description,
                       const char* footer) {
    CLI::App* command = app.add_subcommand(name, description)->footer(std::string(footer) + kStatuses);
    command->add_option("PROGRAM", question.program, "Its process's number, or a part of its name that no other has")
        ->required();
    return command;
}

void add_questions(CLI::App& app, Question& question) {
    CLI::App* list = app.add_subcommand("list", kListDescription)->footer(kListFooter);
    list->add_option("PROGRAM", question.program, "A process's number, or a part of names");

    CLI::App* tree = add_question(app, question, "tree", kTreeDescription, kTreeFooter);
    tree->add_flag("--json", question.json, "As JSON");
    auto* depth =
        tree->add_option("--depth", question.depth, "Not more than N levels below the windows")->type_name("N");
    tree->add_option("--find", question.query, "Only what the inspector's search finds by QUERY")
        ->type_name("QUERY")
        ->excludes(depth);

    add_path(add_question(app, question, "show", "Prints all there is to say of a component", kPathFooter), question,
             true);
    CLI::App* picture =
        add_question(app, question, "picture", "Writes a picture of a window or component", kPictureFooter);
    add_path(picture, question, false);
    add_output(picture, question);
    add_path(add_question(app, question, "select", "Selects a component in the inspector", kSelectFooter), question,
             true);
    add_question(app, question, "selection", "Tells what is selected in the inspector", kSelectionFooter);
    add_output(add_question(app, question, "snapshot", "Writes all properties of all components", kSnapshotFooter),
               question);

    CLI::App* diff = app.add_subcommand("diff", "Tells what has changed between two snapshots")->footer(kDiffFooter);
    diff->add_option("BEFORE", question.before, "A snapshot")->required();
    diff->add_option("AFTER", question.after, "A later one")->required();
}

}  // namespace

std::variant<Arguments, Question, std::string> parse_arguments(int argc, char** argv) {
    Arguments arguments;
    Question question;
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
    if (kAsksPrograms) {
        add_questions(app, question);
    }

    const int own_words = words_before_program(*run, argc, argv);
    if (auto text = command::parse_command_line(app, own_words, argv)) {
        return *std::move(text);
    }
    const std::string& name = app.get_subcommands().front()->get_name();
    if (name != run->get_name()) {
        if (question.depth && *question.depth < 0) {
            throw command::Failure{"--depth takes the number of levels below the windows, from 0 on"};
        }
        question.command = name;
        return question;
    }
    const bool has_mark = own_words < argc && argv[own_words] == std::string("--");
    arguments.program.assign(argv + own_words + (has_mark ? 1 : 0), argv + argc);
    if (arguments.program.empty()) {
        throw command::Failure{"which program? vantrel run PROGRAM ARGUMENTS... starts it"};
    }
    return arguments;
}

}  // namespace launch
