#include "staging.h"

#include <unistd.h>

#include <string>
#include <system_error>

#include "failure.h"

namespace fs = std::filesystem;

namespace vantrel_rewrite {

Staging::~Staging() {
    for (const Result& result : results_) {
        std::error_code left_behind;  // nothing more can be done about it
        fs::remove_all(result.temporary, left_behind);
    }
}

fs::path Staging::stage(const fs::path& target) {
    const std::string stem = ".vantrel-rewrite-" + std::to_string(getpid()) + "-";
    fs::path temporary;
    size_t number = results_.size();
    do {
        temporary = target.parent_path() / (stem + std::to_string(number++));
    } while (fs::exists(fs::symlink_status(temporary)));
    results_.push_back({temporary, target});
    return temporary;
}

void Staging::put_in_place() {
    for (const Result& result : results_) {
        std::error_code error;
        const fs::file_status old = fs::status(result.target, error);
        if (fs::is_regular_file(old)) {
            fs::permissions(result.temporary, old.permissions(), error);
        }
        fs::rename(result.temporary, result.target, error);
        if (error) {
            throw command::Failure{"cannot write " + result.target.string() + ": " + error.message()};
        }
    }
    results_.clear();
}

}  // namespace vantrel_rewrite
