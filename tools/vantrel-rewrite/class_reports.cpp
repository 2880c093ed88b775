#include "class_reports.h"

#include <iostream>

namespace vantrel_rewrite {

ClassReports::ClassReports(const std::filesystem::path& map, bool verbose, const Progress& progress)
    : verbose_(verbose), progress_(progress) {
    if (!map.empty()) {
        map_.emplace(map);
    }
}

void ClassReports::add(const std::string& where, const ClassReport& report) {
    ++summary_.classes;
    summary_.too_new += report.outcome == Outcome::TooNew ? 1 : 0;
    summary_.failed += report.outcome == Outcome::Failed ? 1 : 0;
    if (map_) {
        map_->write(bytes_of(report.map_lines));
    }
    if (verbose_ && report.outcome != Outcome::Rewritten) {
        note(where + ": not rewritten: " + report.reason);
    }
}

void ClassReports::note(const std::string& line) const {
    progress_.clear();
    std::cerr << line << '\n';
}

Summary ClassReports::finish() {
    if (map_) {
        map_->close();
    }
    return summary_;
}

}  // namespace vantrel_rewrite
