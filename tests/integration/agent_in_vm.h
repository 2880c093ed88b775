// The agent as the build made it, and a VM that runs under it.
#ifndef VANTREL_AGENT_IN_VM_H
#define VANTREL_AGENT_IN_VM_H

#include <cstdlib>
#include <filesystem>
#include <string>

#include "java_vm.h"
#include "test_folder.h"

// Where the library and the jar are that are tested: those of this build, if nothing else is said.
inline std::filesystem::path tested_folder() {
    const char* given = getenv("VANTREL_TESTED_FOLDER");
    return given != nullptr ? given : VANTREL_LIBRARY_FOLDER;
}

const std::filesystem::path kLibraryFolder = tested_folder();
const std::filesystem::path kLibrary = kLibraryFolder / "libvantrel-agent.so.1";
const std::filesystem::path kCompanionJar = kLibraryFolder / "vantrel-1.2.3.jar";
const std::filesystem::path kSampleJar = VANTREL_SAMPLE_JAR;
const std::filesystem::path kPrograms = kTestFolder / "test-programs.jar";
const std::filesystem::path kRecordingCompanion = kTestFolder / "recording" / kCompanionJar.filename();

// What the agent writes on a normal run.
const std::string kAgentOut =
    "Starting Vantrel.\n"
    "Vantrel Initializing.\n"
    "Pressing \u2318+F12 to toggle the Vantrel window visible.\n";
const std::string kAgentErr = "vantrel-agent: on this platform the hot key is Control+F12.\n";

// The report of -Xcheck:jni that the agent is answerable for: between the call of Vantrel.getInstance and the reference
// to its result, no one asks for an exception.
const std::string kOwnJniReport =
    "WARNING in native method: JNI call made without checking exceptions when required to from "
    "CallStaticObjectMethodV";

// The command line of a VM under the agent.
inline Arguments java_under_agent(int release, const Arguments& arguments,
                                  const std::filesystem::path& library = kLibrary) {
    return Arguments{*find_jdk(release) / "bin" / "java", "-agentpath:" + library.string()} + arguments;
}

// Copies the agent into a folder, which is made where it is not there, with its jar or one of the tests' own. Returns
// the library there.
inline std::filesystem::path copy_agent(const std::filesystem::path& folder,
                                        const std::filesystem::path& jar = kCompanionJar) {
    std::filesystem::create_directories(folder);
    std::filesystem::copy(kLibrary, folder);
    std::filesystem::copy(jar, folder);
    return folder / kLibrary.filename();
}

#endif
