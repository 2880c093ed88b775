// What everything that makes results shares.
#ifndef VANTREL_REWRITE_WORK_H
#define VANTREL_REWRITE_WORK_H

#include "arguments.h"
#include "class_reports.h"
#include "class_rewriter.h"
#include "counting.h"
#include "progress.h"

namespace vantrel_rewrite {

struct Work {
    const Arguments& arguments;
    Progress& progress;
    ClassReports reports;
};

// The report on a class. Its new image must have been taken out of `result`.
inline ClassReport report_on(RewrittenClass result) {
    return {result.outcome, std::move(result.reason), std::move(result.map_lines), std::move(result.place)};
}

// Hands on the report on a class. To be called in the order of the classes' numbers.
//   counting   that of the jar or folder that the class is in; null where nothing is counted
inline void add_report(Work& work, Counting* counting, const std::string& where, const ClassReport& report) {
    work.reports.add(where, report);
    if (counting != nullptr && report.outcome == Outcome::Rewritten) {
        counting->add(report.place, report.map_lines);
    }
}

}  // namespace vantrel_rewrite

#endif
