// vantrel-rewrite: rewrites class files at rest.
#include <exception>
#include <filesystem>
#include <iostream>
#include <new>
#include <string>
#include <system_error>

#include "arguments.h"
#include "failure.h"
#include "interrupt.h"
#include "run.h"
#include "standard_output.h"
#include "text.h"

namespace vantrel_rewrite {

namespace {

enum Status { kAllWell = 0, kNotAllWell = 1, kNoResult = 2 };

std::string text_of(const Summary& summary, bool verbose) {
    std::string text = std::to_string(summary.classes()) + (summary.classes() == 1 ? " class: " : " classes: ") +
                       std::to_string(summary.of(Outcome::Rewritten)) + " rewritten, " +
                       std::to_string(summary.of(Outcome::TooNew)) + " too new, " +
                       std::to_string(summary.of(Outcome::Failed)) + " failed";
    if (summary.of(Outcome::Kept) > 0) {
        text += ", " + std::to_string(summary.of(Outcome::Kept)) + " kept";
    }
    if (summary.of(Outcome::NoCode) > 0) {
        text += ", " + std::to_string(summary.of(Outcome::NoCode)) + " module-info";
    }
    if (!verbose && summary.of(Outcome::TooNew) > 0) {
        text += " (--verbose names them)";
    }
    return text + "\n";
}

int report(const std::string& line) {
    std::cerr << "vantrel-rewrite: " << command::printable(line) << '\n';
    return kNoResult;
}

// The results are in place when the summary is printed. So if that fails, as with a closed pipe, the results stay.
bool print_if_possible(const std::string& summary) {
    try {
        standard_output::print(summary);
        return true;
    } catch (const command::Failure& failure) {
        report(failure.line);
        return false;
    }
}

int run_command(int argc, char** argv) {
    const auto parsed = parse_arguments(argc, argv);
    if (const auto* text = std::get_if<std::string>(&parsed)) {
        standard_output::print(*text);
        return kAllWell;
    }
    interrupt::watch();
    const auto& arguments = std::get<Arguments>(parsed);
    const Summary summary = run(arguments);
    const bool is_told = print_if_possible(text_of(summary, arguments.verbose));
    return summary.of(Outcome::Failed) > 0 || !is_told ? kNotAllWell : kAllWell;
}

}  // namespace

}  // namespace vantrel_rewrite

int main(int argc, char** argv) {
    namespace interrupt = vantrel_rewrite::interrupt;
    using vantrel_rewrite::report;
    try {
        return vantrel_rewrite::run_command(argc, argv);
    } catch (const interrupt::Interrupted&) {
        interrupt::end_by_signal();
    } catch (const command::Failure& failure) {
        if (interrupt::requested()) {
            interrupt::end_by_signal();  // the signal may be why it failed
        }
        return report(failure.line);
    } catch (const std::bad_alloc&) {
        return report("there is not enough memory for this; fewer threads (-j 1) need less");
    } catch (const std::filesystem::filesystem_error& failure) {
        return report("cannot use " + failure.path1().string() + ": " + failure.code().message());
    } catch (const std::system_error& failure) {
        return report("the system refuses something: " + failure.code().message());
    } catch (const std::exception& failure) {
        return report(failure.what());
    }
}
