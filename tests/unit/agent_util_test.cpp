#include "agent_util.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fake_vm.h"

using testing::ElementsAre;
using testing::ExitedWithCode;

namespace {

// The functions take char*, as C did when their signatures were made.
char* chars(std::string& text) {
    return text.data();
}

struct Tokens {
    const char* text;
    const char* separators;
    int max_length;
    std::vector<std::string> expected;  // until get_token returns null
};

TEST(GetToken, SplitsAndRefusesWhatDoesNotFit) {
    const Tokens cases[] = {
        {",,abc,def", ",", 4, {"abc", "def"}},
        {",,abc,def", ",", 3, {}},
        {"ab,cdef,gh", ",", 4, {"ab"}},  // a refused token is the end
        {"a b,c", ", ", 2, {"a", "b", "c"}},
        {"abc", "", 4, {"abc"}},
        {",,,", ",", 4, {}},
        {"", ",", 4, {}},
        {"a", ",", 1, {}},
    };
    for (const Tokens& c : cases) {
        SCOPED_TRACE(std::string(c.text) + " by '" + c.separators + "' up to " + std::to_string(c.max_length));
        std::string text = c.text;
        std::string separators = c.separators;
        std::vector<std::string> tokens;
        std::string token(16, '#');
        char* rest = chars(text);
        while ((rest = get_token(rest, chars(separators), chars(token), c.max_length)) != nullptr) {
            tokens.emplace_back(token.c_str());
        }
        EXPECT_EQ(tokens, c.expected);
        EXPECT_EQ(token[0], '\0') << "a refusal leaves an empty token";
        EXPECT_EQ(token[c.max_length], '#') << "nothing is written past the room given";
    }
}

TEST(GetToken, ReturnsThePositionAfterTheToken) {
    std::string text = ",,abc,def";
    std::string separators = ",";
    char token[4];
    EXPECT_STREQ(get_token(chars(text), chars(separators), token, sizeof token), ",def");
    EXPECT_EQ(get_token(nullptr, chars(separators), token, sizeof token), nullptr);
    EXPECT_STREQ(token, "");
}

struct Coverage {
    const char* list;
    const char* class_name;
    const char* method_name;
    int expected;
};

TEST(CoveredByList, MatchesPrefixesOfTheStatedLengths) {
    const std::string longest(1023, 'x');
    const std::string too_long(1024, 'x');
    const std::string list_past_longest = longest + ",A";
    const std::string list_past_too_long = too_long + ",A";
    const Coverage cases[] = {
        {"", "A", "m", 0},
        {"java/util/*", "java/util/List", "add", 1},
        {"java/util/*", "java/utilities", "add", 0},
        {"java/util/*", "java/util", "add", 0},
        {"*get", "any/Class", "getSize", 1},
        {"*get", "getter/Class", "size", 0},
        {"*getSize", "any/Class", "get", 0},
        {"*", "any/Class", "any", 1},
        {"*get*", "any/Class", "getSize", 0},  // one star counts, the other is a character
        {"Fo", "Foo", "any", 1},
        {"Foo", "Foo", "any", 1},
        {"Fob", "Foo", "any", 0},
        {"Foo.bar", "Foo", "bar", 1},
        {"Foo.bar", "Foo", "barrel", 1},
        {"Foo.bar", "Foo", "ba", 1},
        {"Foo.bar", "Foo", "", 1},
        {"Foo.bar", "Foo", "baz", 0},
        {"Foo.", "Foo", "any", 1},
        {"FooXbar", "Foo", "bar", 1},  // any character separates class and method
        {"Foo.bar", "Fo", "any", 0},   // "Fo" separated by "o" from ".bar"
        {"A,B,Foo", "Foo", "m", 1},
        {",,Foo,,", "Foo", "m", 1},
        {"A,B", "Foo", "m", 0},
        {list_past_longest.c_str(), "A", "m", 1},
        {list_past_too_long.c_str(), "A", "m", 0},  // a token that does not fit ends the list
    };
    for (const Coverage& c : cases) {
        std::string list = c.list;
        std::string class_name = c.class_name;
        std::string method_name = c.method_name;
        EXPECT_EQ(covered_by_list(chars(list), chars(class_name), chars(method_name)), c.expected)
            << list << " on " << class_name << "." << method_name;
    }
}

TEST(Interested, ExclusionWinsAndMissingListsFilterNothing) {
    std::string class_name = "Foo";
    std::string method_name = "m";
    std::string covering = "Foo";
    std::string other = "Bar";
    std::string empty;
    struct {
        char* include;
        char* exclude;
        int expected;
    } const cases[] = {
        {nullptr, nullptr, 1},
        {chars(empty), chars(empty), 1},
        {chars(covering), nullptr, 1},
        {chars(other), nullptr, 0},
        {nullptr, chars(covering), 0},
        {nullptr, chars(other), 1},
        {chars(covering), chars(covering), 0},
        {chars(covering), chars(other), 1},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(interested(chars(class_name), chars(method_name), c.include, c.exclude), c.expected)
            << testing::PrintToString(c.include) << " but " << testing::PrintToString(c.exclude);
    }
}

TEST(Messages, GoToTheirStreams) {
    FakeVm vm;
    {
        const RecordedStdout recorded(_IOFBF);
        stdout_message("%d %s", 7, "seven");
        record_call("returned");
    }
    EXPECT_THAT(vm.calls, ElementsAre("returned", "stdout 7 seven")) << "not flushed";
    EXPECT_EXIT(fatal_error("%s\n", "the end"), ExitedWithCode(3), "^the end\n$");
}

TEST(CheckJvmtiError, ReportsTheErrorsNameAndTheMessage) {
    FakeVm vm;
    testing::internal::CaptureStderr();
    check_jvmti_error(vm.jvmti, JVMTI_ERROR_NONE, "nothing wrong");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_THAT(vm.calls, ElementsAre());

    EXPECT_EXIT(check_jvmti_error(vm.jvmti, JVMTI_ERROR_INTERNAL, "Cannot do"), ExitedWithCode(3),
                "^ERROR: JVMTI: 113\\(error name 113\\): Cannot do\n$");
    EXPECT_EXIT(check_jvmti_error(vm.jvmti, JVMTI_ERROR_INTERNAL, nullptr), ExitedWithCode(3),
                "^ERROR: JVMTI: 113\\(error name 113\\): \n$");
    EXPECT_EXIT(
        {
            vm.fail("GetErrorName");
            check_jvmti_error(vm.jvmti, JVMTI_ERROR_INTERNAL, "Cannot do");
        },
        ExitedWithCode(3), "^ERROR: JVMTI: 113\\(Unknown\\): Cannot do\n$");
}

TEST(Allocation, IsJvmtisAndItsFailureIsFatal) {
    FakeVm vm;
    void* block = allocate(vm.jvmti, 12);
    EXPECT_EQ(vm.allocated.at(block).size(), 12u);
    deallocate(vm.jvmti, block);
    EXPECT_TRUE(vm.allocated.empty());
    EXPECT_EXIT(
        {
            vm.fail("Allocate", 1, JVMTI_ERROR_OUT_OF_MEMORY);
            allocate(vm.jvmti, 12);
        },
        ExitedWithCode(3), "^ERROR: JVMTI: 110\\(error name 110\\): Cannot allocate memory\n$");
    EXPECT_EXIT(
        {
            vm.fail("Deallocate");
            deallocate(vm.jvmti, nullptr);
        },
        ExitedWithCode(3), "^ERROR: JVMTI: 113\\(error name 113\\): Cannot deallocate memory\n$");
}

// A Java home and jar name for which the longer path and its terminating zero take `length` bytes.
std::string home_for_path_of(size_t length, const std::string& jar) {
    return "/" + std::string(length - 2 * jar.size() - 22, 'h');
}

TEST(AddDemoJar, TriesBelowTheJavaHomeAndThenBesideIt) {
    std::string jar = "hprof";
    const std::string below = "AddToBootstrapClassLoaderSearch /jdk/demo/jvmti/hprof/hprof.jar";
    const std::string beside = "AddToBootstrapClassLoaderSearch /jdk/../demo/jvmti/hprof/hprof.jar";
    {
        FakeVm vm;
        vm.add_property("java.home", "/jdk");
        add_demo_jar_to_bootclasspath(vm.jvmti, chars(jar));
        EXPECT_THAT(vm.calls, ElementsAre("GetSystemProperty java.home", below));
    }
    {
        FakeVm vm;
        vm.add_property("java.home", "/jdk");
        vm.fail("AddToBootstrapClassLoaderSearch", 1);
        add_demo_jar_to_bootclasspath(vm.jvmti, chars(jar));
        EXPECT_THAT(vm.calls, ElementsAre("GetSystemProperty java.home", below, beside));
    }
    {
        FakeVm vm;
        vm.add_property("java.home", home_for_path_of(1025, jar));
        add_demo_jar_to_bootclasspath(vm.jvmti, chars(jar));
        EXPECT_EQ(vm.calls.size(), 2u) << "the longest path that fits is taken";
    }
}

TEST(AddDemoJar, EndsTheProcessWhenThereIsNoPath) {
    std::string jar = "hprof";
    struct {
        std::string java_home;
        std::vector<const char*> failing;
        const char* message;
    } const cases[] = {
        {"/jdk",
         {"GetSystemProperty"},
         "^ERROR: JVMTI: 113\\(error name 113\\): Cannot get java.home property value\n$"},
        {"", {}, "^ERROR: Java home not found\n$"},
        {home_for_path_of(1026, jar), {}, "^ERROR: Path to jar file too long\n$"},
        {"/jdk",
         {"AddToBootstrapClassLoaderSearch", "AddToBootstrapClassLoaderSearch"},
         "^ERROR: JVMTI: 113\\(error name 113\\): Cannot add to boot classpath\n$"},
    };
    for (const auto& c : cases) {
        EXPECT_EXIT(
            {
                FakeVm vm;
                vm.add_property("java.home", c.java_home);
                for (size_t i = 0; i < c.failing.size(); ++i) {
                    vm.fail(c.failing[i], static_cast<int>(i) + 1);
                }
                add_demo_jar_to_bootclasspath(vm.jvmti, chars(jar));
            },
            ExitedWithCode(3), c.message);
    }
}

}  // namespace
