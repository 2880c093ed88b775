#include "arguments.h"

#include <CLI/CLI.hpp>
#include <utility>

#include "command_line.h"
#include "failure.h"

namespace {

constexpr const char* kDescription =
    "Writes C++ proxies of Java classes: a header and a body for each, with the class's cached identifiers and a\n"
    "wrapper for each of its constructors and methods.\n";

constexpr const char* kFooter =
    R"(The classes are loaded and initialised in a Java VM of the command's own, without a display. The VM is the one in
--java-home, in JAVA_HOME, or the one that the java on the path belongs to.

Names that would be no C++ are changed, and a line on stderr tells each; --list shows them.

Exit status: 0 if all is well, 1 if a class or the list could not be written, 2 if nothing was done.

Examples:
  vantrel-generate --out proxies java.util.EventObject java.awt.Container
      writes proxies/EventObject.h, proxies/EventObject.cpp, proxies/Container.h and proxies/Container.cpp
  vantrel-generate --class-path program.jar --list com.x.Panel
      says what the proxy of a class of program.jar would have in it
)";

}  // namespace

std::variant<generate::Arguments, std::string> generate::parse_arguments(int argc, char** argv) {
    Arguments arguments;
    CLI::App app(kDescription, "vantrel-generate");
    app.footer(kFooter);
    app.set_help_flag("-h,--help", "Print this text and exit");
    app.set_version_flag("--version", "vantrel-generate " VANTREL_VERSION);
    app.add_option("--java-home", arguments.java_home, "The JDK or JRE to load the classes with")->type_name("DIR");
    app.add_option("--class-path", arguments.class_path, "Where classes lie that are not the VM's, as java takes it")
        ->type_name("PATH");
    app.add_option("--vm-option", arguments.vm_options, "An option for the VM, as java takes it; may be repeated")
        ->type_name("OPT")
        ->allow_extra_args(false);
    auto* out = app.add_option("--out", arguments.out, "The folder for the files; is made if it is not there")
                    ->type_name("DIR");
    app.add_flag("--list", arguments.list, "Print the members that would be written, and write nothing")->excludes(out);
    app.add_flag("--literal", arguments.literal, "Change no name, even where the files are no C++ then");
    app.add_flag("--force", arguments.force, "Replace files in DIR that are not the same class's proxy")->needs(out);
    app.add_option("CLASS", arguments.classes, "A class, like java.awt.Container or java/awt/Container")
        ->required()
        ->type_name("");
    if (auto text = command::parse_command_line(app, argc, argv)) {
        return *std::move(text);
    }
    if (arguments.out.empty() && !arguments.list) {
        throw command::Failure{"--out is required; vantrel-generate --help tells the options"};
    }
    return arguments;
}
