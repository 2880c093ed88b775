// vantrel-generate: proxies of Java classes from the command line.
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <set>
#include <string>
#include <system_error>
#include <variant>
#include <vector>

#include "arguments.h"
#include "class_output.h"
#include "class_path.h"
#include "command_line.h"
#include "failure.h"
#include "java_vm.h"
#include "text.h"

namespace fs = std::filesystem;
using generate::Arguments;
using generate::kNothingDone;

namespace {

constexpr int kAllWell = 0;
constexpr int kClassFailed = 1;

// Shows a line over which the next one on stderr is written, whoever writes that. This only works if it is not wider
// than the terminal, so the name is cut.
void show_progress(size_t number, size_t count, const std::string& name) {
    static const bool is_shown = isatty(STDERR_FILENO) != 0;
    if (is_shown && count > 1) {
        fprintf(stderr, "\033[K%zu of %zu: %.60s\r", number, count, command::printable(name).c_str());
    }
}

void clear_progress() {
    if (isatty(STDERR_FILENO) != 0) {
        fputs("\033[K", stderr);
    }
}

void report(const std::string& message) {
    clear_progress();
    fprintf(stderr, "vantrel-generate: %s\n", command::printable(message).c_str());
}

std::vector<std::string> vm_options(const Arguments& arguments) {
    // Our options come first, so that those of the user win. What the VM itself prints goes to stderr, because stdout
    // is for --list alone.
    std::vector<std::string> options = {"-XX:+DisplayVMOutputToStderr", "-Djava.awt.headless=true",
                                        "-Djava.class.path=" + generate::expand_class_path(arguments.class_path)};
    options.insert(options.end(), arguments.vm_options.begin(), arguments.vm_options.end());
    return options;
}

void make_folder(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) {
        throw command::Failure{"cannot make the folder " + folder.string() + ": " + error.message()};
    }
}

// Keeps standard output for the list alone: what others write to it from here on, such as a class while it is
// initialised, goes to stderr. Null if standard output is closed.
FILE* take_standard_output() {
    const int taken = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    dup2(STDERR_FILENO, STDOUT_FILENO);
    return taken >= 0 ? fdopen(taken, "w") : nullptr;
}

int generate_all(const Arguments& arguments) {
    generate::Output output{arguments.out, take_standard_output(), arguments.literal, arguments.force, report};
    const generate::RunningVm vm = generate::start_vm(arguments.java_home, vm_options(arguments));
    if (!arguments.list) {
        make_folder(arguments.out);
    }
    int status = kAllWell;
    std::set<std::string> done;
    size_t number = 0;
    for (const std::string& name : arguments.classes) {
        show_progress(++number, arguments.classes.size(), name);
        try {
            const std::string internal_name = generate::internal_name_of(name);
            if (done.insert(internal_name).second) {
                generate::write_or_list(vm, internal_name, output);
            }
        } catch (const command::Failure& failure) {
            report(failure.line);
            status = kClassFailed;
        } catch (const std::system_error& error) {
            report(error.what());
            return kClassFailed;
        }
    }
    clear_progress();
    return status;
}

int run(int argc, char** argv) {
    try {
        const auto parsed = generate::parse_arguments(argc, argv);
        if (const auto* text = std::get_if<std::string>(&parsed)) {
            command::print(*text);
            return kAllWell;
        }
        return generate_all(std::get<Arguments>(parsed));
    } catch (const command::Failure& failure) {
        report(failure.line);
    } catch (const std::exception& error) {
        report(error.what());
    }
    return kNothingDone;
}

}  // namespace

int main(int argc, char** argv) {
    const int status = run(argc, argv);
    // Not exit(): threads that a class has started in the VM would run while the process is taken apart.
    _Exit(status);
}
