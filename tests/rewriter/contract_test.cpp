// What callers of java_crw_demo can rely on beside the images: what it says of wrong arguments and damaged classes, and
// how much an image may grow. The images themselves are compared in oracle_test.cpp.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

#include "class_builder.h"
#include "java_crw_demo.h"
#include "product.h"

using namespace class_builder;
using testing::ElementsAre;
using testing::KilledBySignal;
using testing::StartsWith;

namespace {

const std::string kInside =
    "( (ci) != NULL && (ci)->input_position <= (ci)->input_len && (ci)->output_position <= (ci)->output_len)";
const std::string kOutside = "pos <= mi->code_len";

// Bytes in hexadecimal, with blanks anywhere between them; "00*3" is three of a byte.
Bytes code(const std::string& text) {
    Bytes bytes;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        const size_t star = word.find('*');
        Bytes part;
        for (size_t i = 0; i + 1 < std::min(star, word.size()); i += 2) {
            part.push_back(static_cast<std::uint8_t>(std::stoul(word.substr(i, 2), nullptr, 16)));
        }
        append(bytes, times(star == std::string::npos ? 1 : std::stoul(word.substr(star + 1)), part));
    }
    return bytes;
}

ClassFile with_code(const Code& body, const std::string& name = "m") {
    ClassFile file;
    file.methods.push_back({.name = name, .code = body});
    return file;
}

ClassFile with_code(const std::string& text, const std::string& name = "m") {
    return with_code(Code{.bytes = code(text)}, name);
}

// The condition that fails in a class's only method.
std::string failing_condition(const ClassFile& file, const RewriteOptions& options = kAll) {
    const std::string failure = rewrite(assemble(file), options).failure;
    const std::string prefix = "CRW ASSERTION FAILURE: ";
    const size_t place = failure.find(" (com/example/Sample:m:");
    return failure.starts_with(prefix) && place != std::string::npos
               ? failure.substr(prefix.size(), place - prefix.size())
               : failure;
}

std::string assertion(const std::string& condition, const std::string& place = "?:?:-1") {
    return "CRW ASSERTION FAILURE: " + condition + " (" + place + ")";
}

// All arguments of java_crw_demo, well chosen to begin with.
struct Arguments {
    Bytes bytes = assemble(with_code("b1"));
    const char* name = nullptr;
    const unsigned char* image = bytes.data();
    long length = static_cast<long>(bytes.size());
    int system_class = 0;
    const char* tracker = "Track";
    const char* tracker_signature = "LTrack;";
    const char* signatures[4] = {"(II)V", "(II)V", "(Ljava/lang/Object;)V", "(Ljava/lang/Object;)V"};
    unsigned char* new_image = reinterpret_cast<unsigned char*>(1);
    long new_length = 1;
    unsigned char** image_out = &new_image;
    long* length_out = &new_length;
    JavaCrwDemoErrorHandler handler = nullptr;
    JavaCrwDemoMethodNames names = nullptr;

    void run() {
        java_crw_demo(7, name, image, length, system_class, tracker, tracker_signature, "call", signatures[0], "ret",
                      signatures[1], "init", signatures[2], "array", signatures[3], image_out, length_out, handler,
                      names);
    }
};

std::vector<std::string> messages;

void keep_message(const char* message, const char* source_file, int line) {
    EXPECT_THAT(source_file, StartsWith("java_crw_demo/"));
    EXPECT_GT(line, 0);
    messages.emplace_back(message);
}

TEST(RewriterInterface, NamesTheWrongArgumentAndLivesOnWhenTheHandlerReturns) {
    const struct {
        std::string message;
        void (*spoil)(Arguments&);
    } cases[] = {
        {"pnew_file_image==NULL", [](Arguments& a) { a.image_out = nullptr; }},
        {"pnew_file_len==NULL", [](Arguments& a) { a.length_out = nullptr; }},
        {"file_image == NULL", [](Arguments& a) { a.image = nullptr; }},
        {"file_len < 0", [](Arguments& a) { a.length = -1; }},
        {"system_class is not 0 or 1", [](Arguments& a) { a.system_class = 2; }},
        {"tclass_name == NULL", [](Arguments& a) { a.tracker = nullptr; }},
        {"tclass_sig is not a valid class signature", [](Arguments& a) { a.tracker_signature = nullptr; }},
        {"tclass_sig is not a valid class signature", [](Arguments& a) { a.tracker_signature = "Track;"; }},
        {"tclass_sig is not a valid class signature", [](Arguments& a) { a.tracker_signature = "LTrack"; }},
        {"call_sig is not (II)V", [](Arguments& a) { a.signatures[0] = "(I)V"; }},
        {"return_sig is not (II)V", [](Arguments& a) { a.signatures[1] = nullptr; }},
        {"obj_init_sig is not (Ljava/lang/Object;)V", [](Arguments& a) { a.signatures[2] = "(II)V"; }},
        {"newarray_sig is not (Ljava/lang/Object;)V", [](Arguments& a) { a.signatures[3] = nullptr; }},
        {assertion("strchr(name,'.')==NULL"), [](Arguments& a) { a.name = "com.example.Sample"; }},
        {assertion("(int)strlen(ci->name)==cs.len && strncmp(ci->name, cs.ptr, cs.len)==0", "com/example/Other:?:-1"),
         [](Arguments& a) { a.name = "com/example/Other"; }},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.message);
        Arguments arguments;
        arguments.handler = keep_message;
        c.spoil(arguments);
        messages.clear();
        arguments.run();
        EXPECT_THAT(messages, ElementsAre(c.message));
        if (arguments.image_out != nullptr && arguments.length_out != nullptr) {
            EXPECT_EQ(arguments.new_image, nullptr);
            EXPECT_EQ(arguments.new_length, 0);
        }
    }
}

TEST(RewriterInterface, HasNothingToDoForAnEmptyImage) {
    Arguments arguments;
    arguments.image = nullptr;
    arguments.length = 0;
    arguments.tracker = nullptr;
    arguments.run();
    EXPECT_EQ(arguments.new_image, nullptr);
    EXPECT_EQ(arguments.new_length, 0);
}

TEST(RewriterInterface, WithoutAHandlerAFailureAborts) {
    Arguments arguments;
    arguments.bytes[0] = 0;
    EXPECT_EXIT(arguments.run(), KilledBySignal(SIGABRT),
                "^CRW: CRW ASSERTION FAILURE: magic==0xCAFEBABE \\(\\?:\\?:-1\\) "
                "\\[java_crw_demo/class_image\\.cpp:[0-9]+\\]\n$");
    arguments.length = -1;
    EXPECT_EXIT(arguments.run(), KilledBySignal(SIGABRT),
                "^CRW: file_len < 0 \\[java_crw_demo/java_crw_demo\\.cpp:[0-9]+\\]\n$");
}

TEST(RewriterInterface, TellsTheClassTheMethodAndThePosition) {
    // A jump out of the code, read at pc 1.
    const Outcome outcome = rewrite(assemble(with_code("00 a70005", "jump")));
    EXPECT_EQ(outcome.failure, assertion(kOutside, "com/example/Sample:jump:4"));
    EXPECT_EQ(outcome.source_file, "java_crw_demo/method_rewrite_state.h");
    EXPECT_EQ(rewrite(assemble(with_code("a70005", std::string(600, 'n')))).failure.size(), 511u)
        << "a message has 511 characters at most";
}

TEST(RewriterInterface, TellsTheMethodsNames) {
    static std::vector<std::string> told;
    ClassFile file = with_code("b1", "first");
    file.methods.push_back({.name = "second", .descriptor = "(J)I"});
    Arguments arguments;
    arguments.bytes = assemble(file);
    arguments.image = arguments.bytes.data();
    arguments.length = static_cast<long>(arguments.bytes.size());
    arguments.names = [](unsigned class_number, const char** names, const char** descriptors, int count) {
        told.push_back(std::to_string(class_number));
        for (int i = 0; i < count; ++i) {
            told.push_back(std::string(names[i]) + descriptors[i]);
        }
    };
    arguments.run();
    free(arguments.new_image);
    EXPECT_THAT(told, ElementsAre("7", "first()V", "second(J)I"));
}

TEST(RewriterInterface, FindsAClassesNameWithoutRewriting) {
    ClassFile file = with_code("b1");
    file.major = 69;
    const Bytes image = assemble(file);
    char* name = java_crw_demo_classname(image.data(), static_cast<long>(image.size()), nullptr);
    EXPECT_STREQ(name, "com/example/Sample");
    free(name);
    EXPECT_EQ(java_crw_demo_classname(nullptr, 5, nullptr), nullptr);
    EXPECT_EQ(java_crw_demo_classname(image.data(), 0, nullptr), nullptr);

    messages.clear();
    EXPECT_EQ(java_crw_demo_classname(image.data(), -1, keep_message), nullptr);
    EXPECT_EQ(java_crw_demo_classname(image.data(), 30, keep_message), nullptr);
    EXPECT_EQ(java_crw_demo_classname(image.data() + 1, 30, keep_message), nullptr);
    EXPECT_THAT(messages, ElementsAre(assertion(kInside), assertion(kInside), assertion("magic==0xCAFEBABE")));
}

TEST(RewriterInterface, NoPartOfAClassIsOne) {
    ClassFile file = with_code(Code{.bytes = code("99 0004 b1 bc0a b0"),
                                    .handlers = {{0, 4, 4, 0}},
                                    .attributes = {line_number_table({{0, 1}}), stack_map_table({same_frame(4)})}});
    file.attributes = {{"SourceFile", u2(1)}};
    const Bytes whole = assemble(file);
    EXPECT_EQ(rewrite(whole).failure, "");
    for (size_t length = 1; length < whole.size(); ++length) {
        EXPECT_NE(rewrite(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length))).failure, "")
            << "the first " << length << " bytes";
    }
}

// A return grows sevenfold; a byte that stays as it is takes up one and is allowed two. The first class that passes is
// therefore the one whose image has just the length allowed.
TEST(RewriterInterface, GrowsNoMoreThanItsAllowance) {
    ClassFile file = with_code("b1*400");
    file.attributes = {{"Vendor", {}}};
    Outcome outcome = rewrite(assemble(file));
    for (; !outcome.failure.empty(); outcome = rewrite(assemble(file))) {
        ASSERT_THAT(outcome.failure, StartsWith("CRW ASSERTION FAILURE: " + kInside));
        ASSERT_LT(file.attributes[0].body.size(), 4000u);
        file.attributes[0].body.push_back(0);
    }
    EXPECT_EQ(outcome.image.size(), 2 * assemble(file).size() + 512);
}

TEST(RewriterInterface, TellsOfJavaLangObjectOnStdout) {
    ClassFile file = with_code("b1", "<init>");
    file.name = "java/lang/Object";
    file.super = "";
    testing::internal::CaptureStdout();
    EXPECT_EQ(rewrite(assemble(file)).failure, "");
    fflush(stdout);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "add field to : java/lang/Object\n");
}

// The classes of oracle_test.cpp have these damages seldom or never.
TEST(Relocation, WhatLeadsNowhereFails) {
    EXPECT_EQ(failing_condition(with_code("990004")), kOutside) << "a branch past the end";
    EXPECT_EQ(failing_condition(with_code("aa000000 00000000 00000005 00000004")), kInside) << "a high below its low";
    EXPECT_EQ(failing_condition(with_code("ab000000 00000000 ffffffff")), kInside) << "less than no pairs";
}

TEST(StackMaps, FramesThatComeOutOfOrderFail) {
    // The entry's injection takes all the switch's padding: what follows comes nearer to a place inside it.
    const ClassFile file = with_code(Code{.bytes = cat({tableswitch(0, 20, 0, {0}), code("00*9 b1")}),
                                          .attributes = {stack_map_table({same_frame(19), same_frame(0)})}});
    const RewriteOptions options{.class_number = 128, .tracker_class = "Track", .call_name = "call"};
    EXPECT_EQ(failing_condition(file, options), "new_delta >= 0");
}

}  // namespace
