// The Java VMs that the integration tests run on, and what the build made for them.
#ifndef VANTREL_JAVA_VM_H
#define VANTREL_JAVA_VM_H

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <vector>

// The home of an installed JDK of a feature release: JAVA_HOME's, or else one below /usr/lib/jvm.
std::optional<std::filesystem::path> find_jdk(int release);

// Build products.
const std::filesystem::path kLibraryFolder = VANTREL_LIBRARY_FOLDER;
const std::filesystem::path kLibrary = kLibraryFolder / "libvantrel-agent.so.1";
const std::filesystem::path kCompanionJar = kLibraryFolder / "vantrel-1.2.3.jar";
const std::filesystem::path kSampleJar = VANTREL_SAMPLE_JAR;
const std::filesystem::path kTestFolder = VANTREL_TEST_FOLDER;  // the jars with the tests' own Java programs

// What the agent writes on a normal run.
const std::string kAgentOut =
    "Starting Vantrel.\n"
    "Vantrel Initializing.\n"
    "Pressing \u2318+F12 to toggle the Vantrel window visible.\n";
const std::string kAgentErr = "vantrel-agent: on this platform the hot key is Control+F12.\n";

// The command line of a VM under the agent.
using Arguments = std::vector<std::string>;
Arguments java_under_agent(int release, const Arguments& arguments, const std::filesystem::path& library = kLibrary);
Arguments operator+(Arguments left, const Arguments& right);

// What -Xcheck:jni reports in a VM's output, each report once, and the one that the agent is answerable for: between
// the call of Vantrel.getInstance and the reference to its result, no one asks for an exception.
std::set<std::string> jni_reports(const std::string& output);
const std::string kOwnJniReport =
    "WARNING in native method: JNI call made without checking exceptions when required to from "
    "CallStaticObjectMethodV";

// The releases that tests are run on. A test is skipped on one that is not installed.
constexpr int kReleases[] = {17, 25};
#define SKIP_WITHOUT_JDK(release)                                                        \
    if (!find_jdk(release)) {                                                            \
        GTEST_SKIP() << "no JDK " << (release) << " in JAVA_HOME or below /usr/lib/jvm"; \
    }                                                                                    \
    static_assert(true)

#endif
