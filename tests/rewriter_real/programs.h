// Java programs as they are and under the agent that rewrites every class as it is loaded.
#ifndef VANTREL_PROGRAMS_H
#define VANTREL_PROGRAMS_H

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "java_vm.h"
#include "process.h"
#include "test_folder.h"

// A process that may take minutes where machines are slow.
Finished run_long(const Arguments& command, const ProcessOptions& options = {});

// The java of a release, which verifies all that it loads.
Arguments verifying_java(int release);

// What the tracker saw.
struct Report {
    // "entries", "returns" and so on; java/tracking/Tracker.java and rewrite_at_load.cpp write them.
    std::map<std::string, long> counts;
    // Entries and returns of each method that was entered, by "Class.method(I)V".
    std::map<std::string, std::pair<long, long>> methods;
    long classes = 0;
    std::string refused;
};

struct Tracked {
    Finished plain;
    Finished rewritten;
    Report report;
};

struct BothWays {
    std::filesystem::path plain_folder = {};  // where it runs
    std::filesystem::path rewritten_folder = {};
    std::vector<std::string> environment = {};
    bool is_modern = false;  // by vantrel_rewriter_rewrite, which takes classes of today
};

// Runs a program twice, the second time rewritten.
Tracked run_both_ways(int release, const Arguments& arguments, const BothWays& how = {});

// The same output and exit status, nothing refused, and each entry has its return unless an exception was thrown while
// its call was under way, or the call was under way when the VM ended.
void expect_same_and_balanced(const Tracked& tracked);

// The number after a word at the start of a line of a program's output.
long number_after(const std::string& word, const std::string& output);

#endif
