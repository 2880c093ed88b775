// What becomes of the classes, told to the user.
#ifndef VANTREL_REWRITE_CLASS_REPORTS_H
#define VANTREL_REWRITE_CLASS_REPORTS_H

#include <array>
#include <cstddef>
#include <optional>
#include <string>

#include "class_rewriter.h"
#include "file_io.h"

namespace vantrel_rewrite {

// How many classes came to each outcome.
class Summary {
  public:
    void count(Outcome outcome) { ++counts_[static_cast<size_t>(outcome)]; }
    [[nodiscard]] size_t of(Outcome outcome) const { return counts_[static_cast<size_t>(outcome)]; }
    [[nodiscard]] size_t classes() const;

  private:
    std::array<size_t, kOutcomes> counts_{};
};

// What became of one class.
struct ClassReport {
    Outcome outcome = Outcome::Failed;
    std::string reason;
    std::string map_lines;
    std::string place;
};

// Takes reports in the order of the classes' numbers, from one thread at a time. Counts them, writes the map, and
// collects notes, which are shown when all is done: a run that fails only says why. Classes that failed and those that
// were kept are named, up to ten of each; a verbose run names all that were not rewritten.
class ClassReports {
  public:
    //   map   where the map is made; nothing where none is wanted
    ClassReports(const std::optional<NewFile>& map, bool verbose);

    //   where   the class's file, and its entry if that is a jar
    void add(const std::string& where, const ClassReport& report);

    // Adds a line to the notes. Characters on which a terminal would act are escaped.
    void note(const std::string& line);

    // To be called after the last report. Throws a Failure if the map cannot be written.
    Summary finish();

    // Lines for stderr, once all is finished.
    [[nodiscard]] const std::string& notes() const { return notes_; }

  private:
    [[nodiscard]] bool is_named(Outcome outcome) const;

    std::optional<OutputFile> map_;
    const bool verbose_;
    Summary summary_;
    std::string notes_;
};

}  // namespace vantrel_rewrite

#endif
