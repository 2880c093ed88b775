// What --count and --unused put into a jar or a folder: for each place in it that a class loader may load classes from,
// a tracker of its own, whose classes (count/) lie in a package that nothing else has.
//
// A place is what stands before the class's own name in the name of its file: nothing in most jars, "BOOT-INF/classes/"
// and the like in others. A version of a class in a multi-release jar belongs to the place that it is a version for. So
// the classes of a place find their tracker wherever they are loaded from: the class path, a module, or a class loader
// of the program's; and even if somebody has taken the inner jars out of their jar. A program may also keep classes
// somewhere in its jar, define them by itself, and let them find others at the top of the jar only. So the tracker of
// each place lies at the top as well. The counters of two jars are not mixed up, because their trackers are different
// classes.
#ifndef VANTREL_REWRITE_COUNTING_H
#define VANTREL_REWRITE_COUNTING_H

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "arguments.h"
#include "file_io.h"

namespace vantrel_rewrite {

// Where a class is loaded from, by the name of its file in the jar or folder: empty, or with a slash at its end.
// Nothing for a class whose file is not named like it, for no class loader finds it there.
std::optional<std::string> place_of(std::string_view file, std::string_view class_name);

// A file that is added to a result.
struct AddedFile {
    std::string name;  // in the jar or folder
    Bytes contents;
};

// The counting of one jar or folder.
class Counting {
  public:
    // Throws a Failure where a tracker of ours is there already: all would be counted twice.
    //   label   the jar's or folder's name, for the table
    //   files   the names of the class files in it
    Counting(const Arguments& arguments, std::string label, std::vector<std::string> files);

    // The tracker that classes of a place call.
    [[nodiscard]] TrackerCalls tracker_of(const std::string& place) const;
    // Its package in internal form. The same input has the same one each time.
    [[nodiscard]] std::string package_of(const std::string& place) const;
    // Whether a place has classes, and not just a module-info.
    [[nodiscard]] bool has_classes(const std::string& place) const;

    // Takes the map's lines of a rewritten class.
    void add(const std::string& place, const std::string& map_lines) { methods_[place] += map_lines; }

    // The trackers' files, when all lines are there. None for a place of which no class was rewritten.
    [[nodiscard]] std::vector<AddedFile> files() const;

  private:
    const Arguments& arguments_;
    std::string label_;
    std::vector<std::string> class_files_;
    std::uint64_t hash_;
    std::map<std::string, std::string> methods_;  // the lines by place
};

// A class file on its way through the rewriter: to be counted, or to call the tracker of the arguments.
struct ClassSource {
    const Counting* counting = nullptr;
    std::string_view file = {};  // its name in the jar or folder that is counted
};

}  // namespace vantrel_rewrite

#endif
