// java.lang.Object, the one class that gets members of its own.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "programs.h"

namespace fs = std::filesystem;
using testing::ElementsAreArray;

namespace {

using Lines = std::vector<std::string>;

// What javap says of a class file, sorted, with one blank for many and without the lines about the file itself.
Lines javap(int release, const fs::path& file) {
    const Finished listing = run({*find_jdk(release) / "bin" / "javap", "-v", "-p", file});
    EXPECT_EQ(listing.status, 0) << listing.err;
    Lines lines;
    std::istringstream text(listing.out);
    for (std::string line; std::getline(text, line);) {
        line = std::regex_replace(std::regex_replace(line, std::regex(" +"), " "), std::regex("^ "), "");
        if (!line.empty() && !std::regex_search(line, std::regex("^(Classfile|Last modified|SHA-256) "))) {
            lines.push_back(line);
        }
    }
    std::sort(lines.begin(), lines.end());
    return lines;
}

Lines without(const Lines& lines, const Lines& others) {
    Lines rest;
    std::set_difference(lines.begin(), lines.end(), others.begin(), others.end(), std::back_inserter(rest));
    return rest;
}

int constant_pool_count(const fs::path& file) {
    std::ifstream image(file, std::ios::binary);
    char header[10];
    image.read(header, sizeof header);
    return static_cast<unsigned char>(header[8]) * 256 + static_cast<unsigned char>(header[9]);
}

// "#7" and so on for "{7}" where the pool of the class ends with 0.
std::string numbered(std::string text, int first) {
    for (std::smatch match; std::regex_search(text, match, std::regex(R"(\{(\d+)\})"));) {
        text = match.prefix().str() + "#" + std::to_string(first + std::stoi(match[1])) + match.suffix().str();
    }
    return text;
}

class Object : public testing::TestWithParam<int> {
  protected:
    void SetUp() override {
        SKIP_WITHOUT_JDK(GetParam());
        const Finished rewriting =
            run(verifying_java(GetParam()) + Arguments{"-cp", kTestFolder / "rewriter-linking.jar",
                                                       "linking.RewriteObject", VANTREL_REWRITE_CLASSES, folder_.path});
        ASSERT_EQ(rewriting.status, 0) << rewriting.err;
        EXPECT_EQ(rewriting.out, "add field to : java/lang/Object\nadd field to : java/lang/Object\n");
        before_ = javap(GetParam(), folder_.path / "Before.class");
    }

    ScratchFolder folder_;
    Lines before_;
};
INSTANTIATE_TEST_SUITE_P(OnJdk, Object, testing::ValuesIn(kReleases), testing::PrintToStringParamName());

TEST_P(Object, GetsAFieldAMethodAndACallInItsConstructor) {
    const Lines after = javap(GetParam(), folder_.path / "ObjectInit.class");
    const int first = constant_pool_count(folder_.path / "Before.class");

    std::smatch counts;
    const auto table = std::find_if(before_.begin(), before_.end(),
                                    [](const std::string& line) { return line.starts_with("interfaces: "); });
    ASSERT_NE(table, before_.end());
    ASSERT_TRUE(std::regex_match(*table, counts, std::regex("(interfaces: \\d+, fields: )0(, methods: )(\\d+)(.*)")));

    Lines removed{*table, "stack=0, locals=1, args_size=1", "0: return"};
    Lines added{counts[1].str() + "1" + counts[2].str() + std::to_string(std::stoi(counts[3]) + 1) + counts[4].str(),
                "stack=1, locals=1, args_size=1",
                "0: aload_0",
                numbered("1: invokestatic {5} // Method tracking/Tracker.object:(Ljava/lang/Object;)V", first),
                "4: return",
                "private static int objectTrackId;",
                "descriptor: I",
                "flags: (0x000a) ACC_PRIVATE, ACC_STATIC",
                "public native int getTrackId();",
                "descriptor: ()I",
                "flags: (0x0101) ACC_PUBLIC, ACC_NATIVE"};
    for (const char* constant :
         {"{0} = Utf8 tracking/Tracker", "{1} = Class {0} // tracking/Tracker", "{2} = Utf8 object",
          "{3} = Utf8 (Ljava/lang/Object;)V", "{4} = NameAndType {2}:{3} // object:(Ljava/lang/Object;)V",
          "{5} = Methodref {1}.{4} // tracking/Tracker.object:(Ljava/lang/Object;)V", "{6} = Utf8 getTrackId",
          "{7} = Utf8 ()I", "{8} = NameAndType {6}:{7} // getTrackId:()I",
          "{9} = Methodref {1}.{8} // tracking/Tracker.getTrackId:()I", "{10} = Utf8 objectTrackId", "{11} = Utf8 I",
          "{12} = NameAndType {10}:{11} // objectTrackId:I",
          "{13} = Fieldref {1}.{12} // tracking/Tracker.objectTrackId:I"}) {
        added.push_back(numbered(constant, first));
    }
    // JDKs that are built with local variables say that `this` lives as long as the constructor.
    const std::string lifetime = "0 1 0 this Ljava/lang/Object;";
    if (std::binary_search(before_.begin(), before_.end(), lifetime)) {
        removed.push_back(lifetime);
        added.emplace_back("0 5 0 this Ljava/lang/Object;");
    }
    std::sort(removed.begin(), removed.end());
    std::sort(added.begin(), added.end());
    EXPECT_THAT(without(before_, after), ElementsAreArray(removed));
    EXPECT_THAT(without(after, before_), ElementsAreArray(added));
}

// The constructor is not told of as a method that is entered and left; the others are.
TEST_P(Object, ReportsEntriesAndReturnsOfItsOtherMethods) {
    const Lines after = javap(GetParam(), folder_.path / "All.class");
    const auto count = [](const Lines& lines, const std::string& text) {
        return std::count_if(lines.begin(), lines.end(),
                             [&](const std::string& line) { return line.find(text) != std::string::npos; });
    };
    const auto codes = std::count(before_.begin(), before_.end(), "Code:");
    const auto returns = std::count_if(before_.begin(), before_.end(), [](const std::string& line) {
        return std::regex_match(line, std::regex("\\d+: [ilfda]?return"));
    });
    ASSERT_GT(codes, 1);
    EXPECT_EQ(count(after, "// Method tracking/Tracker.object:(Ljava/lang/Object;)V"), 1);
    // finalize, which only returns, is left alone in a system class, as the constructor is.
    EXPECT_EQ(count(after, "// Method tracking/Tracker.enter:(II)V"), codes - 2);
    EXPECT_EQ(count(after, "// Method tracking/Tracker.leave:(II)V"), returns - 2);
}

}  // namespace
