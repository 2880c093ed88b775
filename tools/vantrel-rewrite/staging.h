// Results under temporary names until all of them are whole.
#ifndef VANTREL_REWRITE_STAGING_H
#define VANTREL_REWRITE_STAGING_H

#include <filesystem>
#include <vector>

namespace vantrel_rewrite {

// Gives each result (a file or a folder) a temporary name beside the place that it is for, so that putting it there is
// one renaming. Whatever has not been put in place is removed at the end.
class Staging {
  public:
    Staging() = default;
    ~Staging();
    Staging(const Staging&) = delete;
    Staging& operator=(const Staging&) = delete;

    // The temporary name for a result. Nothing is made; the caller does that.
    std::filesystem::path stage(const std::filesystem::path& target);

    // Renames all results, in the order in which they were staged. A file that is there is replaced; the new one gets
    // its permissions.
    void put_in_place();

  private:
    struct Result {
        std::filesystem::path temporary;
        std::filesystem::path target;
    };
    std::vector<Result> results_;
};

}  // namespace vantrel_rewrite

#endif
