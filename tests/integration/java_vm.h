// The Java VMs that the tests run on.
#ifndef VANTREL_JAVA_VM_H
#define VANTREL_JAVA_VM_H

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <vector>

// The home of an installed JDK of a feature release: JAVA_HOME's, or else one below /usr/lib/jvm.
std::optional<std::filesystem::path> find_jdk(int release);

using Arguments = std::vector<std::string>;
Arguments operator+(Arguments left, const Arguments& right);

// What -Xcheck:jni reports in a VM's output, each report once.
std::set<std::string> jni_reports(const std::string& output);

// The releases that tests are run on. A test is skipped on one that is not installed.
constexpr int kReleases[] = {17, 25};
#define SKIP_WITHOUT_JDK(release)                                                        \
    if (!find_jdk(release)) {                                                            \
        GTEST_SKIP() << "no JDK " << (release) << " in JAVA_HOME or below /usr/lib/jvm"; \
    }                                                                                    \
    static_assert(true)

// A test that runs on each of them.
class OnEachJdk : public testing::TestWithParam<int> {
  protected:
    void SetUp() override { SKIP_WITHOUT_JDK(GetParam()); }

    // A program of the JDK.
    static std::filesystem::path tool(const char* name) { return *find_jdk(GetParam()) / "bin" / name; }
};
#define ON_EACH_JDK(suite) \
    INSTANTIATE_TEST_SUITE_P(OnJdk, suite, testing::ValuesIn(kReleases), testing::PrintToStringParamName())

#endif
