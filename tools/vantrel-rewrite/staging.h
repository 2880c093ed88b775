// Results in a temporary place until all of them are whole.
#ifndef VANTREL_REWRITE_STAGING_H
#define VANTREL_REWRITE_STAGING_H

#include <filesystem>
#include <vector>

#include "file_io.h"

namespace vantrel_rewrite {

// Gives each result (a file or a folder) a name in a hidden folder beside the place that it is for, so that putting it
// there is one renaming. Whatever has not been put in place is removed at the end.
//
// The hidden folder, .vantrel-rewrite-PROCESS-NUMBER, is locked for as long as its process lives. One that a process
// has left behind because it was killed is removed by the next one that needs such a folder in the same place.
class Staging {
  public:
    Staging() = default;
    ~Staging();
    Staging(const Staging&) = delete;
    Staging& operator=(const Staging&) = delete;

    // The temporary name for a result. The result itself is not made; the caller does that. Throws a Failure.
    NewFile stage(const std::filesystem::path& target);

    // The same for a file that is written to stdout in the end.
    NewFile stage_for_stdout();

    // Writes to stdout what is for it, then renames all other results, in the order in which they were staged. A file
    // that is there is replaced; the new one gets its permissions and, as far as that is allowed, its owner. Throws a
    // Failure.
    void put_in_place();

  private:
    struct HiddenFolder {
        std::filesystem::path path;
        int lock;
    };
    const HiddenFolder& hidden_folder_in(const std::filesystem::path& parent, const std::filesystem::path& target);

    std::vector<HiddenFolder> folders_;
    std::vector<NewFile> results_;
};

}  // namespace vantrel_rewrite

#endif
