// The shared library as a linker sees it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "java_vm.h"
#include "process.h"

using testing::HasSubstr;
using testing::Not;
using testing::UnorderedElementsAre;

namespace {

TEST(Library, ExportsItsInterfaceAndNothingElse) {
    const Finished nm = run({"nm", "-D", "--defined-only", kLibrary});
    ASSERT_EQ(nm.status, 0) << nm.err;
    std::istringstream lines(nm.out);
    std::vector<std::string> exported;
    for (std::string address, type, name; lines >> address >> type >> name;) {
        exported.push_back(name);
    }
    EXPECT_THAT(exported, UnorderedElementsAre("Agent_OnAttach", "Agent_OnLoad", "add_demo_jar_to_bootclasspath",
                                               "allocate", "check_jvmti_error", "covered_by_list", "deallocate",
                                               "fatal_error", "get_token", "interested", "stdout_message"));
}

// Another library's `allocate` must not come between ours and its callers.
TEST(Library, ItsOwnReferencesBindInside) {
    const Finished readelf = run({"readelf", "--relocs", "--wide", kLibrary});
    ASSERT_THAT(readelf.out, HasSubstr("vfprintf")) << "what is imported is listed";
    for (const char* name : {"allocate", "check_jvmti_error", "covered_by_list", "fatal_error", "get_token"}) {
        EXPECT_THAT(readelf.out, Not(HasSubstr(std::string(" ") + name)));
    }
}

TEST(Library, NeedsNoCppRuntime) {
    const Finished readelf = run({"readelf", "--dynamic", "--wide", kLibrary});
    EXPECT_THAT(readelf.out, HasSubstr("libc.so"));
    EXPECT_THAT(readelf.out, Not(HasSubstr("stdc++")));
}

}  // namespace
