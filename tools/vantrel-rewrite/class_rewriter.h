// One class file through the rewriter.
#ifndef VANTREL_REWRITE_CLASS_REWRITER_H
#define VANTREL_REWRITE_CLASS_REWRITER_H

#include <cstdlib>
#include <memory>
#include <string>

#include "arguments.h"
#include "file_io.h"

namespace vantrel_rewrite {

enum class Outcome { Rewritten, TooNew, Failed };

struct FreeImage {
    void operator()(unsigned char* image) const { std::free(image); }
};

struct RewrittenClass {
    Outcome outcome = Outcome::Failed;
    std::string reason;     // why it was not rewritten
    std::string map_lines;  // of its methods; empty where it was not rewritten
    std::unique_ptr<unsigned char, FreeImage> image;
    size_t size = 0;

    [[nodiscard]] BytesView bytes() const { return {image.get(), size}; }
};

// Any number of threads may rewrite at the same time.
RewrittenClass rewrite_class(const TrackerCalls& tracker, unsigned number, BytesView image);

}  // namespace vantrel_rewrite

#endif
