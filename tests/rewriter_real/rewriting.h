// The rewriter as tests call it: trackers by bits, a failure as an exception.
#ifndef VANTREL_REWRITING_H
#define VANTREL_REWRITING_H

#include <functional>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

using ClassImage = std::vector<unsigned char>;

// The major version in a class image's header.
unsigned class_version(std::span<const unsigned char> image);

// The trackers' methods are those of java/tracking/Tracker.java.
constexpr unsigned kCallTracker = 1;
constexpr unsigned kReturnTracker = 2;
constexpr unsigned kObjectInitTracker = 4;
constexpr unsigned kNewArrayTracker = 8;
constexpr unsigned kAllTrackers = 15;

// Is given a class's number, and the names and the descriptors of its methods.
using MethodNames = std::function<void(unsigned, std::span<const char*>, std::span<const char*>)>;

struct Rewriting {
    unsigned trackers = kAllTrackers;
    unsigned class_number = 0;
    bool system_class = false;
    bool is_modern = false;      // by vantrel_rewriter_rewrite rather than java_crw_demo
    const char* name = nullptr;  // the class's, where it is known
    MethodNames method_names;    // may be empty
};

// Throws std::runtime_error with the rewriter's message.
ClassImage rewrite(std::span<const unsigned char> image, const Rewriting& how);
std::string class_name(std::span<const unsigned char> image);

#endif
