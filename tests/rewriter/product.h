// The rewriter as tests call it.
#ifndef VANTREL_REWRITER_PRODUCT_H
#define VANTREL_REWRITER_PRODUCT_H

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "literal_rewriter.h"

// All trackers, for an ordinary class.
inline const RewriteOptions kAll{.class_number = 1,
                                 .tracker_class = "Track",
                                 .call_name = "call",
                                 .return_name = "ret",
                                 .obj_init_name = "init",
                                 .newarray_name = "array"};

// The new image, or what the error handler was told, and the file that the fault was reported from.
struct Outcome {
    std::vector<std::uint8_t> image;
    std::string failure;
    std::string source_file;
};

Outcome rewrite(std::span<const std::uint8_t> image, const RewriteOptions& options = kAll);

// The same by vantrel_rewriter_rewrite, whose failures are its sentences.
Outcome rewrite_modern(std::span<const std::uint8_t> image, const RewriteOptions& options);

#endif
