// Real classes, linked with full verification as they are and rewritten.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "jars.h"
#include "java_vm.h"
#include "process.h"
#include "programs.h"
#include "test_folder.h"

using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;

namespace {

class Linking : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(OnJdk, Linking, testing::ValuesIn(kReleases), testing::PrintToStringParamName());

Finished link_side_by_side(int release, const Arguments& arguments) {
    return run_long(verifying_java(release) +
                    Arguments{"-Xmx1g", "-cp", kTestFolder / "rewriter-linking.jar", "linking.SideBySide", "--library",
                              VANTREL_REWRITE_CLASSES} +
                    arguments);
}

TEST_P(Linking, NoUsualClassFailsThatDidNotFailBefore) {
    SKIP_WITHOUT_JDK(GetParam());
    Arguments arguments{"--strict", "--every", "3"};
    for (const std::filesystem::path& jar : usual_jars()) {
        arguments.push_back(jar);
    }
    const Finished linking = link_side_by_side(GetParam(), arguments);
    EXPECT_EQ(linking.status, 0) << linking.out << linking.err;
    // There are classes of all versions, and thousands that can be linked at all.
    for (const char* version : {"47", "49", "50", "51", "52"}) {
        EXPECT_THAT(linking.out, ContainsRegex(std::string("version ") + version + ": [0-9]{2,}"));
    }
    EXPECT_THAT(linking.out, ContainsRegex("\nlinked as they are: [0-9]{4}"));
    std::cout << linking.out;
}

// Branches that grow, with all kinds of types where they do: compiled for the oldest version that has stack maps which
// must hold, and for the VM's own.
TEST_P(Linking, WhateverGrowsIsVerifiedAsBefore) {
    SKIP_WITHOUT_JDK(GetParam());
    for (const int release : {8, GetParam()}) {
        const ScratchFolder folder;
        const Finished compiling = run_long({*find_jdk(GetParam()) / "bin" / "java", "-XX:TieredStopAtLevel=1",
                                             "-XX:+UseSerialGC", "-Xss16m", "-cp", kTestFolder / "rewriter-linking.jar",
                                             "linking.GrowingClasses", folder.path, std::to_string(release)});
        ASSERT_EQ(compiling.status, 0) << compiling.err;
        const Finished linking = link_side_by_side(GetParam(), {"--modern", folder.path});
        EXPECT_EQ(linking.status, 0) << linking.out << linking.err;
        EXPECT_THAT(linking.out, HasSubstr("ALL_LARGE linked: 1\n"));
        EXPECT_THAT(linking.out, HasSubstr("NEW_ARRAY linked: 1\n"));
        // Branches do grow: where no frames are added for them, the verifier refuses the class.
        if (release == 8) {
            EXPECT_THAT(link_side_by_side(GetParam(), {folder.path}).out,
                        HasSubstr("NEW_ARRAY: Growing: java.lang.VerifyError: Expecting a stackmap frame"));
        }
    }
}

// What no compiler writes: values of all kinds under each other on the stack, in all instructions that move them, and
// uninitialised objects in places of all kinds. The seeds are fixed; scripts/test-rewriter-full has a hundred times as
// many.
TEST_P(Linking, MethodsMadeAtRandomAreVerifiedAsBefore) {
    SKIP_WITHOUT_JDK(GetParam());
    const ScratchFolder folder;
    const Finished writing = run_long({VANTREL_WRITE_VERIFIABLE_CLASSES, folder.path, "0", "100"});
    ASSERT_EQ(writing.status, 0) << writing.err;
    EXPECT_THAT(writing.out, ContainsRegex(", [0-9]{2,} of them with branches that grow"));
    const Finished linking = link_side_by_side(GetParam(), {"--modern", folder.path});
    EXPECT_EQ(linking.status, 0) << linking.out << linking.err;
    EXPECT_THAT(linking.out, HasSubstr("\nlinked as they are: 100\n"));
}

// What is linked is verified, it is not run, and a failure is reported.
TEST_P(Linking, TellsOfAClassThatOnlyFailsRewritten) {
    SKIP_WITHOUT_JDK(GetParam());
    const std::string programs = kTestFolder / "rewriter-programs.jar";
    const Finished whole = link_side_by_side(GetParam(), {programs});
    EXPECT_EQ(whole.status, 0) << whole.out << whole.err;
    EXPECT_THAT(whole.out, HasSubstr("ALL_SMALL linked: "));

    // sipush 12345, istore_1 becomes sipush 12345, astore_1.
    const Finished damaged = link_side_by_side(GetParam(), {"--damage", "1130393c", "1130394c", programs});
    EXPECT_EQ(damaged.status, 1) << damaged.out << damaged.err;
    for (const char* combination :
         {"ALL_SMALL", "ALL_LARGE", "ALL_IN_SYSTEM_CLASS", "CALL", "RETURN", "NEW_ARRAY", "NOTHING"}) {
        EXPECT_THAT(damaged.out, HasSubstr(std::string(combination) + " failed: 1\n"));
        EXPECT_THAT(damaged.out, HasSubstr(std::string("failure: ") + combination +
                                           ": Damageable: java.lang.VerifyError: Bad type on operand stack"));
    }
    EXPECT_THAT(whole.out + damaged.out, Not(HasSubstr("initialised")));
}

}  // namespace
