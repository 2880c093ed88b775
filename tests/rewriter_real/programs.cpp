#include "programs.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <vector>

namespace fs = std::filesystem;

namespace {

std::vector<std::string> fields_of(const std::string& line) {
    std::vector<std::string> fields;
    std::istringstream text(line);
    for (std::string field; std::getline(text, field, '\t');) {
        fields.push_back(field);
    }
    return fields;
}

Report read_report(const fs::path& file) {
    Report report;
    std::map<std::string, std::string> names;  // of methods, by their numbers
    std::ifstream classes(file.string() + ".classes");
    for (std::string line; std::getline(classes, line);) {
        const std::vector<std::string> fields = fields_of(line);
        if (fields[0] == "method") {
            names[fields[1] + "\t" + fields[2]] = fields[3] + "." + fields[4];
        } else if (fields[0] == "class") {
            ++report.classes;
        } else if (fields[0] == "refused") {
            report.refused += line + "\n";
        } else {
            report.counts[fields[0]] = std::stol(fields[1]);
        }
    }
    std::ifstream counts(file);
    for (std::string line; std::getline(counts, line);) {
        const std::vector<std::string> fields = fields_of(line);
        if (fields[0] == "method") {
            const std::string& name = names.at(fields[1] + "\t" + fields[2]);
            auto& [entries, returns] = report.methods[name];
            entries += std::stol(fields[3]);
            returns += std::stol(fields[4]);
        } else {
            report.counts[fields[0]] = std::stol(fields[1]);
        }
    }
    return report;
}

}  // namespace

Finished run_long(const Arguments& command, const ProcessOptions& options) {
    Process process(command, options);
    const int status = process.wait(std::chrono::seconds(280));
    return {status, process.out(), process.err()};
}

Arguments verifying_java(int release) {
    return {*find_jdk(release) / "bin" / "java", "-XX:+UnlockDiagnosticVMOptions", "-XX:+BytecodeVerificationRemote",
            "-XX:+BytecodeVerificationLocal"};
}

Tracked run_both_ways(int release, const Arguments& arguments, const BothWays& how) {
    const ScratchFolder scratch;
    const fs::path report = scratch.path / "report";
    const std::string agent = std::string("-agentpath:") + VANTREL_REWRITE_AT_LOAD + "=" +
                              (kTestFolder / "rewriter-tracker.jar").string() + ":" + report.string() +
                              (how.is_modern ? ":today" : "");
    Tracked tracked;
    tracked.plain =
        run_long(verifying_java(release) + arguments, {.folder = how.plain_folder, .environment = how.environment});
    tracked.rewritten = run_long(verifying_java(release) + Arguments{agent} + arguments,
                                 {.folder = how.rewritten_folder, .environment = how.environment});
    tracked.report = read_report(report);
    return tracked;
}

void expect_same_and_balanced(const Tracked& tracked) {
    EXPECT_EQ(tracked.rewritten.status, tracked.plain.status);
    EXPECT_EQ(tracked.rewritten.out, tracked.plain.out);
    EXPECT_EQ(tracked.rewritten.err, tracked.plain.err);
    const Report& report = tracked.report;
    ASSERT_TRUE(report.counts.contains("entries") && report.counts.contains("live")) << "no report";
    EXPECT_EQ(report.refused, "");
    const auto count = [&](const char* name) { return report.counts.at(name); };
    EXPECT_GT(count("returns"), 0);
    EXPECT_EQ(count("strays"), 0);
    EXPECT_EQ(count("left without exception"), 0);
    EXPECT_LE(count("open without exception"), count("live"));
    EXPECT_EQ(count("entries"), count("returns") + count("left by exception") + count("open with exception") +
                                    count("open without exception"));
}

long number_after(const std::string& word, const std::string& output) {
    std::istringstream lines(output);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(word + " ")) {
            return std::stol(line.substr(word.size()));
        }
    }
    ADD_FAILURE() << "no " << word << " in: " << output;
    return -1;
}
