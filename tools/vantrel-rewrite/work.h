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

// What is told of a class whose new image has been taken.
inline ClassReport report_on(RewrittenClass result) {
    return {result.outcome, std::move(result.reason), std::move(result.map_lines), std::move(result.place)};
}

// Takes the reports of classes in the order of their numbers.
//   counting   of what they are in; null where nothing is counted
inline void add_report(Work& work, Counting* counting, const std::string& where, const ClassReport& report) {
    work.reports.add(where, report);
    if (counting != nullptr && report.outcome == Outcome::Rewritten) {
        counting->add(report.place, report.map_lines);
    }
}

}  // namespace vantrel_rewrite

#endif
