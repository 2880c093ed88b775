#include "class_reports.h"

#include <numeric>

#include "text.h"

namespace vantrel_rewrite {

namespace {

constexpr size_t kMostNamed = 10;

}  // namespace

size_t Summary::classes() const {
    return std::accumulate(counts_.begin(), counts_.end(), size_t{0});
}

ClassReports::ClassReports(const std::optional<NewFile>& map, bool verbose) : verbose_(verbose) {
    if (map) {
        map_.emplace(*map);
    }
}

bool ClassReports::is_named(Outcome outcome) const {
    switch (outcome) {
        case Outcome::Rewritten:
            return false;
        case Outcome::NoCode:
        case Outcome::TooNew:
            return verbose_;
        default:
            return verbose_ || summary_.of(outcome) <= kMostNamed;
    }
}

void ClassReports::add(const std::string& where, const ClassReport& report) {
    summary_.count(report.outcome);
    if (map_) {
        map_->write(bytes_of(report.map_lines));
    }
    if (report.outcome == Outcome::Rewritten && !report.reason.empty()) {
        note(where + ": " + report.reason);
    }
    if (is_named(report.outcome)) {
        note(where + ": not rewritten: " + report.reason);
    }
}

void ClassReports::note(const std::string& line) {
    notes_ += command::printable(line) + '\n';
}

Summary ClassReports::finish() {
    if (map_) {
        map_->close();
    }
    for (const Outcome outcome : {Outcome::Failed, Outcome::Kept}) {
        if (!verbose_ && summary_.of(outcome) > kMostNamed) {
            note("... and " + std::to_string(summary_.of(outcome) - kMostNamed) +
                 (outcome == Outcome::Failed ? " more failed" : " more were kept") + "; --verbose names all");
        }
    }
    const size_t too_new = summary_.of(Outcome::TooNew);
    const std::string newest = std::to_string(newest_version());
    if (summary_.classes() == 0) {
        note("vantrel-rewrite: nothing was rewritten: there are no classes in the input");
    } else if (too_new == summary_.classes()) {
        note("vantrel-rewrite: nothing was rewritten: all classes are newer than version " + newest);
    } else if (too_new > 0) {
        note("vantrel-rewrite: " + std::to_string(too_new) + (too_new == 1 ? " class is" : " classes are") +
             " newer than version " + newest + " and carried over as " + (too_new == 1 ? "it is" : "they are"));
    }
    return summary_;
}

}  // namespace vantrel_rewrite
