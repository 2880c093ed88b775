#include "arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <thread>
#include <utility>

#include "command_line.h"
#include "failure.h"
#include "text.h"

namespace vantrel_rewrite {

namespace {

constexpr unsigned kMostWorkers = 256;

constexpr const char* kDescription =
    "Has Java programs count their calls, or call a tracker class of yours: injects calls into class files, up to\n"
    "version 69 (Java 25).\n"
    "\n"
    "IN is a class file, a jar or a folder with such files in it. As with cp, OUT is the result itself; or, where it\n"
    "is an existing folder, ends in a slash, or there are several inputs, the folder that the results go into under\n"
    "the names of the inputs.\n";

constexpr const char* kFooter =
    R"(With --count or --unused each result brings a tracker of its own, which writes a table when the program ends:
vantrel-count-PROCESS.txt, or the file that java -Dvantrel.count.file=FILE names. Make a file of that name with .now at
its end to have the table at once.

The methods of a tracker of yours are static: "(II)V" for --call and --return, "(Ljava/lang/Object;)V" for --object-init
and --new-array. Classes are numbered from 0 in the order of the inputs, of a jar's entries, and of the sorted names
in a folder; all classes count, whether they are rewritten or not. Methods are numbered from 0 in each class file.

Classes of a newer version, classes that cannot be rewritten, and the tracker class are carried over as they are; so is
java.lang.Object without --object-init, for no VM starts with what else that adds. A
signed jar comes out unsigned: its signature files and the digests in its manifest are dropped. Jars inside of a jar are
rewritten in their places.

Exit status: 0 if all is well, 1 if the rewrite of a class failed or the summary cannot be written, 2 if there is no
result.

Examples:
  vantrel-rewrite --count -o counted.jar program.jar && java -jar counted.jar
      counts calls, returns and arrays by method
  vantrel-rewrite --unused -o tried/ program.jar lib.jar && java -cp 'tried/*' com.x.Program
      lists the methods that never ran
  vantrel-rewrite --tracker com.x.Tracker --call entered -o tracked.jar program.jar
      calls com.x.Tracker.entered(class, method) at the entry of each method
  vantrel-rewrite --tracker com.x.Tracker --call entered --return left --map map.txt -o tracked classes
      rewrites a folder, and says in map.txt which number is which method
  vantrel-rewrite --tracker com.x.Tracker --new-array made --keep 'com.x.log.*' -o tracked/ lib/a.jar lib/b.jar
      makes tracked/a.jar and tracked/b.jar, with the classes of com.x.log as they were
)";

// A text in a class file has a length of 16 bits, and a descriptor has two bytes more than the class's name in it.
constexpr size_t kLongestName = 0xFFFF - 2;

// A name as class files have it.
std::string encoded(const char* option, const std::string& name) {
    auto encoded = command::modified_utf8(name);
    if (!encoded) {
        throw command::Failure{std::string(option) + ": '" + name + "' is not a name in UTF-8"};
    }
    if (encoded->size() > kLongestName) {
        throw command::Failure{std::string(option) + ": a name of " + std::to_string(encoded->size()) +
                               " bytes is too long; class files have names of up to " + std::to_string(kLongestName)};
    }
    return *std::move(encoded);
}

// A class's name with slashes from one with dots or slashes.
std::string with_slashes(std::string name) {
    std::replace(name.begin(), name.end(), '.', '/');
    return name;
}

void set_tracker_class(TrackerCalls& tracker, const std::string& given) {
    const std::string name = with_slashes(given);
    const bool empty_part =
        name.empty() || name.front() == '/' || name.back() == '/' || name.find("//") != std::string::npos;
    if (empty_part || name.find_first_of(";[") != std::string::npos) {
        throw command::Failure{"--tracker: '" + given +
                               "' is not a class name; write it like com.x.Tracker or com/x/Tracker"};
    }
    tracker.file_name = name;
    tracker.class_name = encoded("--tracker", name);
    tracker.signature = "L" + tracker.class_name + ";";
}

// Checks a method's name if there is one, and makes it one of class files. Returns whether there is one.
bool set_method(const char* option, std::optional<std::string>& name) {
    if (!name) {
        return false;
    }
    if (name->empty() || name->find_first_of(".;[/<>()") != std::string::npos) {
        throw command::Failure{std::string(option) + ": '" + *name +
                               "' is not a method's name; write the name only, without class and parameters"};
    }
    name = encoded(option, *name);
    return true;
}

void set_methods(TrackerCalls& tracker) {
    bool any = false;
    any |= set_method("--call", tracker.call);
    any |= set_method("--return", tracker.return_);
    any |= set_method("--object-init", tracker.object_init);
    any |= set_method("--new-array", tracker.new_array);
    if (!any) {
        throw command::Failure{"which calls? give one or more of --call, --return, --object-init and --new-array"};
    }
}

void refuse_options_of_trackers(const CLI::App& app) {
    for (const char* option : {"--tracker", "--call", "--return", "--object-init", "--new-array", "--system-class",
                               "--tracker-path", "--map"}) {
        if (app.count(option) > 0) {
            throw command::Failure{std::string(option) +
                                   " goes with a tracker of yours; --count and --unused bring their own"};
        }
    }
}

// The methods of our own tracker (count/Calls.java).
void set_counting_calls(TrackerCalls& tracker, const CountedThings& counted) {
    if (counted.calls) {
        tracker.call = "entered";
        tracker.return_ = "left";
        tracker.numbered_new_array = "made";
    } else {
        tracker.call = "ran";
    }
}

unsigned usual_workers() {
    return std::clamp(std::thread::hardware_concurrency(), 1U, kMostWorkers);
}

}  // namespace

std::variant<Arguments, std::string> parse_arguments(int argc, char** argv) {
    Arguments arguments;
    arguments.workers = usual_workers();
    TrackerCalls& tracker = arguments.tracker;
    std::string tracker_class;
    CLI::App app(kDescription, "vantrel-rewrite");
    app.footer(kFooter);
    app.set_help_flag("-h,--help", "Print this text and exit");
    app.set_version_flag("--version", "vantrel-rewrite " VANTREL_VERSION);
    CLI::Option* tracker_option =
        app.add_option("--tracker", tracker_class,
                       "The tracker class, with dots or slashes; neither with --count nor with --unused")
            ->required()
            ->type_name("CLASS");
    const auto add_counting_flag = [&](const char* name, bool& is_wanted, const char* description) {
        app.add_flag_callback(
            name,
            [&is_wanted, tracker_option] {
                is_wanted = true;
                tracker_option->required(false);
            },
            description);
    };
    add_counting_flag("--count", arguments.counted.calls,
                      "In the place of --tracker: the result counts calls, returns and arrays by method");
    add_counting_flag("--unused", arguments.counted.unused,
                      "In the place of --tracker: the result lists the methods that never ran");
    app.add_option("--call", tracker.call, "Its method to call at the entry of each method")->type_name("NAME");
    app.add_option("--return", tracker.return_, "Its method to call before each return")->type_name("NAME");
    app.add_option("--object-init", tracker.object_init, "Its method to call in java.lang.Object's constructor")
        ->type_name("NAME");
    app.add_option("--new-array", tracker.new_array, "Its method to call after an array is made")->type_name("NAME");
    app.add_flag("--system-class", tracker.system_class,
                 "The classes are ones that a VM loads while it starts: what is unsafe there is left alone");
    app.add_option("--tracker-path", arguments.tracker_path,
                   "Folders and jars, with ':' between them: check first that the tracker there has these methods")
        ->type_name("PATH");
    app.add_option("--keep", arguments.keep,
                   "Leave classes as they are, like com.x.Log or com.x.*; may be repeated. The tracker is left anyway")
        ->type_name("PATTERN")
        ->allow_extra_args(false);
    app.add_option("--map", arguments.map,
                   "Write a line for each rewritten method: class number, method number, class, name, descriptor")
        ->type_name("FILE");
    app.add_flag("--verbose", arguments.verbose, "Name all classes that are not rewritten, and why");
    app.add_option("-j", arguments.workers,
                   "How many threads work, as many as there are cores if nothing is said; the result is the same")
        ->check(CLI::Range(1U, kMostWorkers).description(""))
        ->type_name("N");
    app.add_option("-o,--output", arguments.output, "What to write; - is stdout, for one class file or jar")
        ->required()
        ->type_name("OUT");
    app.add_option("IN", arguments.inputs, "What to rewrite")->required()->type_name("");
    if (auto text = command::parse_command_line(app, argc, argv)) {
        return *std::move(text);
    }
    if (arguments.counted.any()) {
        refuse_options_of_trackers(app);
        set_counting_calls(tracker, arguments.counted);
    } else {
        set_tracker_class(tracker, tracker_class);
        set_methods(tracker);
    }
    for (std::string& pattern : arguments.keep) {
        pattern = encoded("--keep", with_slashes(pattern));
    }
    return arguments;
}

}  // namespace vantrel_rewrite
