// A result on stdout, for a pipe.
#ifndef VANTREL_REWRITE_STANDARD_OUTPUT_H
#define VANTREL_REWRITE_STANDARD_OUTPUT_H

#include <filesystem>
#include <string_view>

namespace vantrel_rewrite::standard_output {

// Keeps stdout for the one file that copy_file writes: whatever else is printed there goes to stderr from now on, the
// summary and what the rewriter prints among it. Called before any thread starts. Throws a Failure if there is no
// stdout.
void reserve();

// Writes a file to the stdout that reserve has kept. Throws a Failure, or Interrupted.
void copy_file(const std::filesystem::path& from);

// Writes a text to stdout. Throws a Failure.
void print(std::string_view text);

}  // namespace vantrel_rewrite::standard_output

#endif
