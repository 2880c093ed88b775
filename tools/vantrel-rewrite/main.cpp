// vantrel-rewrite: rewrites class files at rest.
#include <exception>
#include <iostream>

#include "arguments.h"
#include "failure.h"
#include "interrupt.h"
#include "run.h"

namespace vantrel_rewrite {

namespace {

enum Status { kAllRewritten = 0, kSomeFailed = 1, kNoResult = 2 };

int print_summary(const Summary& summary, bool verbose) {
    std::cout << summary.classes << (summary.classes == 1 ? " class: " : " classes: ")
              << summary.classes - summary.too_new - summary.failed << " rewritten, " << summary.too_new << " too new, "
              << summary.failed << " failed";
    if (!verbose && summary.too_new + summary.failed > 0) {
        std::cout << " (--verbose names them)";
    }
    std::cout << std::endl;
    return summary.failed > 0 ? kSomeFailed : kAllRewritten;
}

int run_command(int argc, char** argv) {
    const auto parsed = parse_arguments(argc, argv);
    if (const auto* text = std::get_if<std::string>(&parsed)) {
        std::cout << *text << std::flush;
        return kAllRewritten;
    }
    interrupt::watch();
    const auto& arguments = std::get<Arguments>(parsed);
    return print_summary(run(arguments), arguments.verbose);
}

int report(const std::string& line) {
    std::cerr << "vantrel-rewrite: " << line << '\n';
    return kNoResult;
}

}  // namespace

}  // namespace vantrel_rewrite

int main(int argc, char** argv) {
    try {
        return vantrel_rewrite::run_command(argc, argv);
    } catch (const command::Failure& failure) {
        return vantrel_rewrite::report(failure.line);
    } catch (const vantrel_rewrite::interrupt::Interrupted&) {
        vantrel_rewrite::interrupt::end_by_signal();
    } catch (const std::bad_alloc&) {
        return vantrel_rewrite::report("there is not enough memory for this; fewer threads (-j 1) need less");
    } catch (const std::exception& failure) {
        return vantrel_rewrite::report(failure.what());
    }
}
