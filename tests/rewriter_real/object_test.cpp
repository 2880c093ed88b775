// java.lang.Object, the one class that gets members of its own, as javap sees it.
#include <gtest/gtest.h>

#include <iterator>
#include <regex>
#include <string>

#include "programs.h"

namespace fs = std::filesystem;

namespace {

std::string javap(int release, const fs::path& file) {
    const Finished listing = run({*find_jdk(release) / "bin" / "javap", "-v", "-p", file});
    EXPECT_EQ(listing.status, 0) << listing.err;
    return listing.out;
}

auto count(const std::string& text, const std::string& pattern) {
    const std::regex expression(pattern);
    return std::distance(std::sregex_iterator(text.begin(), text.end(), expression), std::sregex_iterator());
}

class Object : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(OnJdk, Object, testing::ValuesIn(kReleases), testing::PrintToStringParamName());

TEST_P(Object, GetsMembersAndReportsEntriesAndReturnsOfItsMethods) {
    SKIP_WITHOUT_JDK(GetParam());
    const ScratchFolder folder;
    const Finished rewriting =
        run(verifying_java(GetParam()) + Arguments{"-cp", kTestFolder / "rewriter-linking.jar", "linking.RewriteObject",
                                                   VANTREL_REWRITE_CLASSES, folder.path});
    ASSERT_EQ(rewriting.status, 0) << rewriting.err;
    EXPECT_EQ(rewriting.out, "add field to : java/lang/Object\n");
    const std::string before = javap(GetParam(), folder.path / "Before.class");
    const std::string after = javap(GetParam(), folder.path / "After.class");

    EXPECT_EQ(count(after, "private static int objectTrackId;"), 1);
    EXPECT_EQ(count(after, "public native int getTrackId\\(\\);"), 1);
    EXPECT_EQ(count(after, ": aload_0\\s+1: invokestatic .*Tracker.object:"), 1);
    // The constructor is not told of as a method that is entered and left, and finalize, which only returns, is left
    // alone in a system class.
    const auto codes = count(before, "\n +Code:");
    ASSERT_GT(codes, 2);
    EXPECT_EQ(count(after, "invokestatic .*Tracker.enter:"), codes - 2);
    EXPECT_EQ(count(after, "invokestatic .*Tracker.leave:"), count(before, "\\d: [ilfda]?return") - 2);
}

}  // namespace
