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
    if (summary_.classes() == 0) {
        note("vantrel-rewrite: nothing was rewritten: there are no classes in the input");
    } else if (summary_.of(Outcome::TooNew) == summary_.classes()) {
        note("vantrel-rewrite: nothing was rewritten: all classes are newer than version 52 (Java 8)");
    }
    return summary_;
}

}  // namespace vantrel_rewrite
