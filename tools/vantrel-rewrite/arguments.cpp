#include "arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <string_view>
#include <utility>

#include "command_line.h"
#include "failure.h"

namespace vantrel_rewrite {

namespace {

constexpr unsigned kMostWorkers = 256;

constexpr const char* kDescription =
    "Injects calls of a tracker class into Java class files, up to version 52 (Java 8).\n"
    "\n"
    "IN is a class file, a jar or a folder with such files in it. As with cp, OUT is the result itself; or, where it\n"
    "is an existing folder, ends in a slash, or there are several inputs, the folder that the results go into under\n"
    "the names of the inputs.\n";

constexpr const char* kFooter =
    R"(The tracker's methods are static: "(II)V" for --call and --return, "(Ljava/lang/Object;)V" for --object-init
and --new-array. Classes are numbered from 0 in the order of the inputs, of a jar's entries, and of the sorted names
in a folder; all classes count, whether they are rewritten or not. Methods are numbered from 0 in each class file.

Classes of a newer version and classes that cannot be rewritten are carried over as they are. A signed jar comes out
unsigned: its signature files and the digests in its manifest are dropped. Jars inside of jars are carried over.

Exit status: 0 if all is well, 1 if the rewrite of a class failed, 2 if there is no result.

Examples:
  vantrel-rewrite --tracker com.x.Tracker --call entered -o tracked.jar program.jar
      calls com.x.Tracker.entered(class, method) at the entry of each method
  vantrel-rewrite --tracker com.x.Tracker --call entered --return left --map map.txt -o tracked classes
      rewrites a folder, and says in map.txt which number is which method
  vantrel-rewrite --tracker com.x.Tracker --new-array made --verbose -j 4 -o tracked/ lib/a.jar lib/b.jar
      makes tracked/a.jar and tracked/b.jar, and names the classes that were not rewritten
)";

// A class's name in internal form from one with dots or slashes.
std::string class_name(std::string name) {
    const std::string given = name;
    std::replace(name.begin(), name.end(), '.', '/');
    const bool empty_part =
        name.empty() || name.front() == '/' || name.back() == '/' || name.find("//") != std::string::npos;
    if (empty_part || name.find_first_of(";[") != std::string::npos) {
        throw command::Failure{"--tracker: '" + given +
                               "' is not a class name; write it like com.x.Tracker or com/x/Tracker"};
    }
    return name;
}

void check_method_name(const char* option, const std::optional<std::string>& name) {
    if (name && (name->empty() || name->find_first_of(".;[/<>()") != std::string::npos)) {
        throw command::Failure{std::string(option) + ": '" + *name +
                               "' is not a method's name; write the name only, without "
                               "class and parameters"};
    }
}

}  // namespace

std::variant<Arguments, std::string> parse_arguments(int argc, char** argv) {
    Arguments arguments;
    TrackerCalls& tracker = arguments.tracker;
    CLI::App app(kDescription, "vantrel-rewrite");
    app.footer(kFooter);
    app.set_help_flag("-h,--help", "Print this text and exit");
    app.set_version_flag("--version", "vantrel-rewrite " VANTREL_VERSION);
    app.add_option("--tracker", tracker.class_name, "The tracker class, with dots or slashes")
        ->required()
        ->type_name("CLASS");
    app.add_option("--call", tracker.call, "Its method to call at the entry of each method")->type_name("NAME");
    app.add_option("--return", tracker.return_, "Its method to call before each return")->type_name("NAME");
    app.add_option("--object-init", tracker.object_init, "Its method to call in java.lang.Object's constructor")
        ->type_name("NAME");
    app.add_option("--new-array", tracker.new_array, "Its method to call after an array is made")->type_name("NAME");
    app.add_flag("--system-class", tracker.system_class,
                 "The classes are ones that a VM loads while it starts: what is unsafe there is left alone");
    app.add_option("--map", arguments.map,
                   "Write a line for each rewritten method: class number, method number, class, name, descriptor")
        ->type_name("FILE");
    app.add_flag("--verbose", arguments.verbose, "Name the classes that are not rewritten, and why");
    app.add_option("-j", arguments.workers, "How many threads work; the result is the same (2)")
        ->check(CLI::Range(1U, kMostWorkers).description(""))
        ->type_name("N");
    app.add_option("-o,--output", arguments.output, "What to write")->required()->type_name("OUT");
    app.add_option("IN", arguments.inputs, "What to rewrite")->required()->type_name("");
    if (auto text = command::parse_command_line(app, argc, argv)) {
        return *std::move(text);
    }
    tracker.class_name = class_name(tracker.class_name);
    tracker.signature = "L" + tracker.class_name + ";";
    check_method_name("--call", tracker.call);
    check_method_name("--return", tracker.return_);
    check_method_name("--object-init", tracker.object_init);
    check_method_name("--new-array", tracker.new_array);
    return arguments;
}

}  // namespace vantrel_rewrite
