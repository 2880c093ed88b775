// java.lang.Object as each VM has it, the one class that gets members of its own. What it gets is told by the tests of
// the rewriter; here a disassembler, which reads a class file strictly, counts the calls in the VM's own class.
#include <gtest/gtest.h>

#include <regex>
#include <string>

#include "programs.h"

namespace fs = std::filesystem;

namespace {

class Object : public testing::TestWithParam<int> {
  protected:
    void SetUp() override {
        SKIP_WITHOUT_JDK(GetParam());
        const Finished rewriting =
            run(verifying_java(GetParam()) + Arguments{"-cp", kTestFolder / "rewriter-linking.jar",
                                                       "linking.RewriteObject", VANTREL_REWRITE_CLASSES, folder_.path});
        ASSERT_EQ(rewriting.status, 0) << rewriting.err;
        EXPECT_EQ(rewriting.out, "add field to : java/lang/Object\nadd field to : java/lang/Object\n");
    }

    // How many lines of what javap says of a class file hold a pattern.
    [[nodiscard]] long count(const char* name, const std::string& pattern) const {
        const Finished listing =
            run({*find_jdk(GetParam()) / "bin" / "javap", "-v", "-p", folder_.path / (name + std::string(".class"))});
        EXPECT_EQ(listing.status, 0) << listing.err;
        EXPECT_EQ(listing.err, "");
        long lines = 0;
        for (const std::string& line : lines_of(listing.out)) {
            lines += std::regex_search(line, std::regex(pattern)) ? 1 : 0;
        }
        return lines;
    }

    ScratchFolder folder_;
};
INSTANTIATE_TEST_SUITE_P(OnJdk, Object, testing::ValuesIn(kReleases), testing::PrintToStringParamName());

// The constructor is not told of as a method that is entered and left; nor is finalize, which only returns and is left
// alone in a system class. All other methods are.
TEST_P(Object, ReportsItsConstructorAndEntriesAndReturnsOfOtherMethods) {
    const long codes = count("Before", "^ +Code:$");
    ASSERT_GT(codes, 2);
    EXPECT_EQ(count("All", "invokestatic .*tracking/Tracker.enter:"), codes - 2);
    EXPECT_EQ(count("All", "invokestatic .*tracking/Tracker.leave:"), count("Before", ": [ilfda]?return$") - 2);
    for (const char* name : {"All", "ObjectInit"}) {
        EXPECT_EQ(count(name, "1: invokestatic .*tracking/Tracker.object:"), 1);
        EXPECT_EQ(count(name, "private static int objectTrackId;"), 1);
        EXPECT_EQ(count(name, "public native int getTrackId\\(\\);"), 1);
    }
    EXPECT_EQ(count("ObjectInit", "tracking/Tracker.(enter|leave):"), 0);
}

}  // namespace
