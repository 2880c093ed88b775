// The rewriter once more, as plainly as it can be said, for tests to compare the real one with.
//
// One function an operation, byte after byte, and branches relocated by scanning the code from pc 0 again after each
// single change. It is slow and means to be: whatever the real rewriter does faster must give the same images and
// fail with the same words. It shares no code with it.
#ifndef VANTREL_LITERAL_REWRITER_H
#define VANTREL_LITERAL_REWRITER_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

// What is asked of either rewriter: by default nothing.
struct RewriteOptions {
    std::uint32_t class_number = 0;
    std::optional<std::string> name = std::nullopt;  // the class's, where the caller knows it
    bool system_class = false;
    std::string tracker_class = "com/example/Tracker";
    std::optional<std::string> call_name = std::nullopt;
    std::optional<std::string> return_name = std::nullopt;
    std::optional<std::string> obj_init_name = std::nullopt;
    std::optional<std::string> newarray_name = std::nullopt;
};

namespace literal_rewriter {

struct Result {
    std::vector<std::uint8_t> image;  // empty after a failure
    std::string failure;              // what a fatal error handler is told; empty on success
    std::size_t widened = 0;          // branches that were found too long
    std::size_t repadded = 0;         // paddings that were found wrong
};

// Argument checks are not its business: the class name and the image are all that can be wrong.
Result rewrite(std::span<const std::uint8_t> image, const RewriteOptions& options);

}  // namespace literal_rewriter

#endif
