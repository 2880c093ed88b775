#include "ask.h"

#include <algorithm>
#include <csignal>
#include <future>
#include <string>
#include <vector>

#include "command_line.h"
#include "failure_with_status.h"
#include "interrupt.h"
#include "programs.h"
#include "question.h"
#include "snapshots.h"
#include "statuses.h"
#include "text.h"
#include "whole_file.h"

using launch::FailureWithStatus;

namespace outside {

namespace {

// What a program tells of itself, in one line; or why it does not.
std::string about(const Program& program) {
    try {
        return ask(program, {"about"});
    } catch (const FailureWithStatus& failure) {
        return "?\t" + failure.line.substr(0, failure.line.find('\n')) + "\n";
    }
}

std::string padded(std::string text, size_t width) {
    text.resize(std::max(width, text.size()), ' ');
    return text;
}

int list(const std::string& part) {
    const std::vector<Program> all = programs(part);
    if (all.empty()) {
        const std::string which = part.empty() ? "" : " that is called '" + part + "'";
        throw FailureWithStatus{"no program of yours" + which + " runs under the agent; vantrel run starts one",
                                kNoSuchThing};
    }
    // All at once: one whose event thread hangs takes its time.
    std::vector<std::future<std::string>> answers;
    answers.reserve(all.size());
    std::vector<std::vector<std::string>> rows;
    for (const Program& program : all) {
        answers.push_back(std::async(std::launch::async, about, std::cref(program)));
    }
    size_t widths[3] = {0, 0, 0};
    for (size_t at = 0; at < all.size(); ++at) {
        const std::string answer = answers[at].get();
        const size_t tab = answer.find('\t');
        std::vector<std::string> row{std::to_string(all[at].id), command::printable(all[at].name),
                                     answer.substr(0, tab),
                                     command::printable(answer.substr(tab + 1, answer.rfind('\n') - tab - 1))};
        for (size_t column = 0; column < std::size(widths); ++column) {
            widths[column] = std::max(widths[column], row[column].size());
        }
        rows.push_back(std::move(row));
    }
    std::string text;
    for (const auto& row : rows) {
        text += padded(row[0], widths[0]) + "  " + padded(row[1], widths[1]) + "  " + padded(row[2], widths[2]) + "  " +
                row[3] + "\n";
    }
    command::print(text);
    return kAnswered;
}

// The question as the companion takes it (Questions.java).
std::vector<std::string> words_of(const launch::Question& question) {
    if (question.command == "tree") {
        return {"tree", question.json ? "json" : "text", std::to_string(question.depth.value_or(-1)), question.query};
    }
    return {question.command, question.path};
}

}  // namespace

int run(const launch::Question& question) {
    // Signals leave a mark, so that the folder of a question is removed. Whoever reads the answer may stop doing so, as
    // `head` does: that ends the command as it would end any other.
    const auto broken_pipe = std::signal(SIGPIPE, SIG_IGN);
    command::interrupt::watch();
    std::signal(SIGPIPE, broken_pipe);
    if (question.command == "list") {
        return list(question.program);
    }
    if (question.command == "diff") {
        const std::string changed = difference(question.before, question.after);
        command::print(changed);
        return changed.empty() ? kAnswered : kNoSuchThing;
    }
    const std::string answer = ask(find_program(question.program), words_of(question));
    if (question.output.empty()) {
        command::print(answer);
    } else {
        write_whole(question.output, answer);
    }
    return kAnswered;
}

}  // namespace outside
