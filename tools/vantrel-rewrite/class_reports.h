// What becomes of the classes, told to the user.
#ifndef VANTREL_REWRITE_CLASS_REPORTS_H
#define VANTREL_REWRITE_CLASS_REPORTS_H

#include <cstddef>
#include <optional>
#include <string>

#include "class_rewriter.h"
#include "file_io.h"
#include "progress.h"

namespace vantrel_rewrite {

struct Summary {
    size_t classes = 0;
    size_t too_new = 0;
    size_t failed = 0;
};

// What became of one class.
struct ClassReport {
    Outcome outcome = Outcome::Failed;
    std::string reason;
    std::string map_lines;
};

// Takes reports in the order of the classes' numbers, one thread at a time: counts them, and writes the map and the
// notes.
class ClassReports {
  public:
    //   map       where the map is made; empty where none is wanted
    //   verbose   whether to name each class that is not rewritten
    //   progress  is taken away for a note
    ClassReports(const std::filesystem::path& map, bool verbose, const Progress& progress);

    //   where   the class's file, and its entry if that is a jar
    void add(const std::string& where, const ClassReport& report);

    // Writes a line to stderr.
    void note(const std::string& line) const;

    // When all are there. Throws a Failure if the map cannot be written.
    Summary finish();

  private:
    std::optional<OutputFile> map_;
    const bool verbose_;
    const Progress& progress_;
    Summary summary_;
};

}  // namespace vantrel_rewrite

#endif
