// What callers of the rewriter can rely on, case by case: arguments, failures, and the image of a class that is small
// enough to say by hand what becomes of it. Everything that can be said of all classes is oracle_test.cpp's.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
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

const RewriteOptions kNothing{.class_number = 1, .tracker_class = "Track"};
const RewriteOptions kCalls{.class_number = 1, .tracker_class = "Track", .call_name = "call"};
const RewriteOptions kReturns{.class_number = 1, .tracker_class = "Track", .return_name = "ret"};
const RewriteOptions kArrays{.class_number = 1, .tracker_class = "Track", .newarray_name = "array"};

// By letter, what is injected into the first method: C at the entry, R before a return, A after an array, O for a new
// object.
using Injections = std::map<char, Bytes>;

// Bytes in hexadecimal, with blanks anywhere between them; "00*3" is three of a byte, and a letter an injection.
Bytes code(const std::string& text, const Injections& injections = {}) {
    Bytes bytes;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        if (word.size() == 1) {
            const auto found = injections.find(word[0]);
            append(bytes, found == injections.end() ? Bytes{} : found->second);
            continue;
        }
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

// The class with everything in its pool that belongs there after rewriting, and the calls that refer to that.
struct Expected {
    Expected(const ClassFile& before, const RewriteOptions& options) : file(completed(before)) {
        const Bytes numbers = {op::iconst_0 + 1, op::iconst_0};
        const unsigned tracker = class_constant(options.tracker_class);
        track('O', {op::aload_0}, tracker, options.obj_init_name, "(Ljava/lang/Object;)V");
        track('A', {op::dup}, tracker, options.newarray_name, "(Ljava/lang/Object;)V");
        track('C', numbers, tracker, options.call_name, "(II)V");
        track('R', numbers, tracker, options.return_name, "(II)V");
        member(10, tracker, "getTrackId", "()I");
        member(9, tracker, "objectTrackId", "I");
    }

    // The whole image is compared, and so nothing else may have changed.
    void expect(const ClassFile& before, const RewriteOptions& options) const {
        const Outcome outcome = rewrite(assemble(before), options);
        EXPECT_EQ(outcome.failure, "");
        EXPECT_EQ(outcome.image, assemble(file));
    }

    Code& body() { return *file.methods.at(0).code; }

    ClassFile file;
    Injections injections;

  private:
    unsigned utf8(const std::string& text) {
        return file.pool.add(cat({u1(1), u2(static_cast<std::int64_t>(text.size())), Bytes(text.begin(), text.end())}));
    }
    unsigned class_constant(const std::string& name) { return file.pool.add(cat({u1(7), u2(utf8(name))})); }
    unsigned member(unsigned tag, unsigned owner, const std::string& name, const std::string& descriptor) {
        const unsigned name_index = utf8(name);
        const unsigned name_and_type = file.pool.add(cat({u1(12), u2(name_index), u2(utf8(descriptor))}));
        return file.pool.add(cat({u1(tag), u2(owner), u2(name_and_type)}));
    }
    void track(char letter, const Bytes& pushes, unsigned owner, const std::optional<std::string>& name,
               const std::string& descriptor) {
        if (name) {
            injections[letter] = cat({pushes, {op::invokestatic}, u2(member(10, owner, *name, descriptor))});
        }
    }
};

void expect_code(const std::string& before, const RewriteOptions& options, const std::string& after,
                 unsigned more_stack) {
    SCOPED_TRACE(before.substr(0, 60));
    const ClassFile file = with_code(before);
    Expected expected(file, options);
    expected.body().bytes = code(after, expected.injections);
    expected.body().max_stack += more_stack;
    expected.expect(file, options);
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

TEST(Injection, GoesToEntriesReturnsAndNewArrays) {
    expect_code("00 ac ad ae af b0 b1", kAll, "C 00 R ac R ad R ae R af R b0 R b1", 2);
    for (const std::string array : {"bc0a", "bd0001", "c5000102"}) {
        // First the new array's, then the return's.
        expect_code(array + " b0", kAll, "C " + array + " A R b0", 2);
        expect_code(array + " 00", kArrays, array + " A 00", 1);
    }
    expect_code("bc0a", kArrays, "bc0a", 1);  // there is no instruction to go before
    expect_code("", kAll, "", 2);
    // Nothing happens to wide forms.
    expect_code("c415012c c43a012d c484012efffb c4a9012f a904 b1", kNothing,
                "c415012c c43a012d c484012efffb c4a9012f a904 b1", 0);
    // Back to 0; to a return; to what follows an array's creation.
    expect_code("00 99ffff a70003 b1", kAll, "C 00 99ffff a70003 R b1", 2);
    expect_code("a70005 bc0a 00 b1", kArrays, "a70009 bc0a A 00 b1", 1);
    expect_code("c800000006 b1 c9fffffffa b1", kReturns, "c80000000b R b1 c9fffffff5 R b1", 2);
}

TEST(Injection, PushesNumbersInTheirShortestForm) {
    const struct {
        unsigned class_number;
        unsigned index;  // of the class number's constant
        std::string push;
    } cases[] = {{0, 0, "03"},         {5, 0, "08"},           {6, 0, "1006"},
                 {127, 0, "107f"},     {128, 0, "110080"},     {32767, 0, "117fff"},
                 {32768, 127, "127f"}, {32768, 128, "130080"}, {40000, 300, "13012c"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.class_number);
        ClassFile file = with_code("b1");
        file.pool.fill(c.index - std::min(c.index, completed(file).pool.count - 1));
        RewriteOptions options = kCalls;
        options.class_number = c.class_number;
        ClassFile numbered = completed(file);
        if (c.index > 0) {
            ASSERT_EQ(numbered.pool.count, c.index);
            numbered.pool.add(cat({{3}, u4(c.class_number)}));
        }
        Expected expected(numbered, options);
        const Bytes call = expected.injections['C'];
        expected.body().bytes = cat({code(c.push), Bytes(call.begin() + 1, call.end()), {op::return_}});
        expected.body().max_stack += 2;
        expected.expect(file, options);
    }
}

TEST(Injection, GivesObjectAFieldAMethodAndACallInItsConstructor) {
    ClassFile file = with_code("bc0a b1", "<init>");
    file.name = "java/lang/Object";
    file.super = "";
    file.methods.push_back(file.methods[0]);
    file.methods[1].descriptor = "(I)V";  // not the constructor
    RewriteOptions options = kAll;
    options.system_class = true;
    Expected expected(file, options);
    expected.file.fields.push_back({.access = 0x000A, .name = "objectTrackId", .descriptor = "I"});
    expected.body().bytes = code("O bc0a A b1", expected.injections);
    expected.body().max_stack += 1;
    const Bytes numbers = {op::iconst_0 + 1, op::iconst_0 + 1};
    for (const char letter : {'C', 'R'}) {
        std::ranges::copy(numbers, expected.injections[letter].begin());
    }
    expected.file.methods[1].code->bytes = code("C bc0a A R b1", expected.injections);
    expected.file.methods[1].code->max_stack += 2;
    expected.file.methods.push_back({.access = 0x0101, .name = "getTrackId", .descriptor = "()I"});
    testing::internal::CaptureStdout();
    expected.expect(file, options);
    fflush(stdout);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "add field to : java/lang/Object\n");
}

TEST(Injection, LeavesDelicateMethodsOfSystemClassesAlone) {
    const struct {
        const char* name;
        const char* class_name;  // as the caller knows it
        const char* code;
        bool system_class;
        bool left_alone;
    } cases[] = {
        {"<init>", nullptr, "b1", true, true},
        {"<init>", nullptr, "b1", false, false},
        {"<init>", nullptr, "00 b1", true, false},
        {"finalize", nullptr, "b1", true, true},
        {"finalize", nullptr, "00 b1", true, false},
        {"<clinit>", nullptr, "b1", true, true},
        {"<clinit>", nullptr, "00 b1", true, true},
        {"<clinit>", nullptr, "00 b1", false, false},
        {"run", nullptr, "b1", true, false},
        {"currentThread", "java/lang/Thread", "00 b1", true, true},
        {"currentThread", "java/lang/Thread", "b1", false, false},
        {"currentThread", nullptr, "b1", true, false},  // the class is known by the caller's name only
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.name) + " " + c.code);
        ClassFile file = with_code(c.code, c.name);
        file.name = "java/lang/Thread";
        RewriteOptions options = kAll;
        options.system_class = c.system_class;
        if (c.class_name != nullptr) {
            options.name = c.class_name;
        }
        Expected expected(file, options);
        if (!c.left_alone) {
            const std::string before = c.code;
            expected.body().bytes = code("C " + before.substr(0, before.size() - 2) + " R b1", expected.injections);
            expected.body().max_stack += 2;
        }
        expected.expect(file, options);
    }
}

// A branch of each kind that just reaches its target, and one that just does not, over a return's injection.
TEST(Relocation, EveryBranchGrowsJustBeyondItsReach) {
    const auto hex = [](const Bytes& bytes) {
        std::ostringstream text;
        for (const unsigned byte : bytes) {
            text << std::hex << byte / 16 << byte % 16;
        }
        return text.str();
    };
    for (unsigned opcode = op::ifeq; opcode <= op::ifnonnull; opcode += opcode == op::jsr ? op::ifnull - op::jsr : 1) {
        const bool is_goto = opcode == op::goto_ || opcode == op::jsr;
        const unsigned inverted = opcode >= op::ifnull ? opcode ^ 1U : ((opcode + 1) ^ 1U) - 1;
        const auto widened = [&](int offset) {
            return is_goto ? branch_w(opcode == op::goto_ ? op::goto_w : op::jsr_w, offset)
                           : cat({branch(inverted, 8), branch_w(op::goto_w, offset - 3)});
        };
        for (const int offset : {32767, 32768}) {
            const std::string nops = " 00*" + std::to_string(offset - 5 - 3 - 1) + " ";
            const Bytes after = offset == 32767 ? branch(opcode, offset) : widened(offset + (is_goto ? 2 : 5));
            expect_code(hex(branch(opcode, offset - 5)) + " b1" + nops + "b1", kReturns,
                        hex(after) + " R b1" + nops + "R b1", 2);
        }
        for (const int offset : {-32768, -32769}) {
            const std::string nops = " 00*" + std::to_string(-offset - 5 - 1) + " ";
            const Bytes after = offset == -32768 ? branch(opcode, offset) : widened(offset);
            expect_code("b1" + nops + hex(branch(opcode, offset + 5)) + " bf", kReturns,
                        "R b1" + nops + hex(after) + " bf", 2);
        }
    }
}

TEST(Relocation, ASwitchIsPaddedForItsNewPlace) {
    for (size_t before = 0; before < 4; ++before) {
        SCOPED_TRACE(before);
        // The entry's injection has five bytes, so that the padding shrinks by one, or grows by three.
        const auto switches = [&](size_t pc) {
            const int back = -static_cast<int>(before);
            const Bytes first = tableswitch(pc, back, 7, {back, 0});
            return cat({times(before, {op::nop}), first, lookupswitch(pc + first.size(), 0, {{-3, 0}, {9, 0}})});
        };
        const ClassFile file = with_code(Code{.bytes = switches(before)});
        Expected expected(file, kCalls);
        expected.body().bytes = cat({expected.injections['C'], switches(before + 5)});
        expected.body().max_stack += 2;
        expected.expect(file, kCalls);
    }
}

TEST(Relocation, WhatLeadsNowhereFails) {
    const struct {
        const char* what;
        std::string condition;
        const char* code;
    } cases[] = {
        {"a branch before the code", kOutside, "a7ffff"},
        {"a branch past its end", kOutside, "990004"},
        {"a wide branch", kOutside, "c87fffffff"},
        {"a switch's default", kOutside, "aa000000 00000064 00000000 00000000 00000000"},
        {"a switch's target", kOutside, "ab000000 00000000 00000001 00000001 ffffffff"},
        {"an instruction past the end", kOutside, "1101"},
        {"a high below its low", kInside, "aa000000 00000000 00000005 00000004"},
        {"a table longer than the file", kInside, "aa000000 00000000 80000001 7fffffff"},
        {"less than no pairs", kInside, "ab000000 00000000 ffffffff"},
        {"wide nop", "Invalid opcode supplied to wide opcode", "c4000001 b1"},
        {"an opcode that is none", "Invalid opcode supplied to opcode_length()", "ca"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(failing_condition(with_code(c.code)), c.condition) << c.what;
    }
    expect_code("a70003", kNothing, "a70003", 0);  // the end is a place
    EXPECT_EQ(failing_condition(with_code("00*65534 b1"), kCalls), "mi->new_code_len <= 0xFFFF");
}

// A method whose entry gets five bytes, whose return at 5 gets five, and whose array at 1 gets four after it.
//   old: 0 nop, 1 newarray, 3 nop, 4 nop, 5 return, 6 nop, 7 athrow; end 8
//   new: 5 nop, 6 newarray, 12 nop, 13 nop, 14 the return's injection, 20 nop, 21 athrow; end 22
Code with_tables() {
    return {.bytes = code("00 bc0a 00 00 b1 00 bf")};
}

TEST(Tables, FollowTheCode) {
    Code body = with_tables();
    body.handlers = {{0, 8, 5, 3}, {3, 5, 7, 0}, {1, 8, 8, 0}};
    body.attributes = {
        line_number_table({{0, 10}, {3, 11}, {5, 12}, {6, 13}, {0, 14}}),
        local_variable_table({{0, 8, 1, 2, 3}, {3, 2, 1, 2, 4}, {6, 2, 1, 2, 5}, {5, 0, 1, 2, 6}}),
        local_variable_type_table({{0, 5, 1, 2, 3}}),
        {"Vendor", {0, 5, 0, 3}},
    };
    const ClassFile file = with_code(body);
    Expected expected(file, kAll);
    expected.body() = {
        .max_stack = 6,
        .bytes = code("C 00 bc0a A 00 00 R b1 00 bf", expected.injections),
        .handlers = {{5, 22, 14, 3}, {12, 14, 21, 0}, {6, 22, 22, 0}},
        .attributes = {line_number_table({{0, 10}, {12, 11}, {14, 12}, {20, 13}, {0, 14}}),
                       local_variable_table({{0, 22, 1, 2, 3}, {12, 2, 1, 2, 4}, {20, 2, 1, 2, 5}, {14, 0, 1, 2, 6}}),
                       local_variable_type_table({{0, 14, 1, 2, 3}}), body.attributes[3]}};
    expected.expect(file, kAll);
}

TEST(Tables, FailWhereTheyLeadOutOfTheCode) {
    const Attribute vendor = {"Vendor", times(40, {0})};
    const struct {
        std::string condition;
        std::vector<Handler> handlers;
        std::vector<Attribute> attributes;
    } cases[] = {
        {kOutside, {{0, 9, 0, 0}}, {}},
        {kOutside, {}, {line_number_table({{9, 1}})}},
        {kOutside, {}, {local_variable_table({{9, 0}})}},
        {kOutside, {}, {local_variable_table({{8, 1}})}},
        {kOutside, {}, {stack_map_table({same_frame(9)})}},
        {kOutside, {}, {stack_map_table({one_item_frame(3, uninitialized_type(9))})}},
        {kOutside, {}, {stack_map({stack_map_frame(9, {}, {})})}},
        // More entries than the attribute has.
        {kInside, {}, {{"LineNumberTable", u2(1)}, vendor}},
        {kInside, {}, {{"LocalVariableTable", u2(1)}, vendor}},
        {kInside, {}, {{"StackMapTable", u2(1)}, vendor}},
        {kInside, {}, {{"Vendor", {}, 0xFFFFFFFF}}},
        {"Unknown frame type in StackMapTable attribute", {}, {stack_map_table({u1(128)})}},
        {"Unknown frame type in StackMapTable attribute", {}, {stack_map_table({u1(246)})}},
        {"attr_len==2", {}, {{"StackMapTable", cat({u2(0), u1(0)})}}},
        {"attr_len==2", {}, {{"StackMap", cat({u2(0), u1(0)})}}},
        {"new_attr_len >= attr_len", {}, {{"StackMapTable", cat({u2(1), same_frame(3), times(9, {0})})}}},
    };
    for (const auto& c : cases) {
        Code body = with_tables();
        body.handlers = c.handlers;
        body.attributes = c.attributes;
        EXPECT_EQ(failing_condition(with_code(body), kNothing), c.condition) << &c - cases;
    }
}

TEST(StackMaps, FramesGrowWhereTheirDeltasDo) {
    // Every array's creation moves what follows by four: old pcs 16, 24, 33, 100 go to 48, 56, 65, 252.
    const std::string before = "bc0a*8 00*17 bc0a*30 00*8 b1";
    std::string after;
    for (int i = 0; i < 8; ++i) {
        after += "bc0a A ";
    }
    after += "00*17 ";
    for (int i = 0; i < 30; ++i) {
        after += "bc0a A ";
    }
    after += "00*8 b1";
    const Bytes fresh = uninitialized_type(16);
    const Bytes moved = uninitialized_type(48);
    const Bytes object = object_type(1);
    const struct {
        Attribute before;
        Attribute after;
    } cases[] = {
        {stack_map_table({same_frame(16), same_frame(7)}), stack_map_table({same_frame(48), same_frame(7)})},
        {stack_map_table({same_frame(32)}), stack_map_table({same_frame_extended(64)})},
        {stack_map_table({same_frame(31)}), stack_map_table({same_frame(63)})},
        {stack_map_table({same_frame_extended(16)}), stack_map_table({same_frame_extended(48)})},
        {stack_map_table({one_item_frame(16, fresh), one_item_frame(16, object)}),
         stack_map_table({one_item_frame(48, moved), one_item_frame(16, object)})},
        {stack_map_table({one_item_frame(33, fresh)}), stack_map_table({one_item_frame_extended(65, moved)})},
        {stack_map_table({one_item_frame_extended(33, type(2)), chop_frame(3, 66)}),
         stack_map_table({one_item_frame_extended(65, type(2)), chop_frame(3, 186)})},
        {stack_map_table({append_frame(16, {type(1), fresh, object}), append_frame(16, {type(5)})}),
         stack_map_table({append_frame(48, {type(1), moved, object}), append_frame(16, {type(5)})})},
        {stack_map_table({full_frame(33, {type(0), type(3), fresh}, {type(4), type(6)}), same_frame(0)}),
         stack_map_table({full_frame(65, {type(0), type(3), moved}, {type(4), type(6)}), same_frame(0)})},
        {stack_map_table({}), stack_map_table({})},
        {stack_map({stack_map_frame(33, {fresh, type(1)}, {object}), stack_map_frame(16, {}, {})}),
         stack_map({stack_map_frame(65, {moved, type(1)}, {object}), stack_map_frame(48, {}, {})})},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        const ClassFile file = with_code(Code{.bytes = code(before), .attributes = {c.before}});
        Expected expected(file, kArrays);
        expected.body() = {.max_stack = 5, .bytes = code(after, expected.injections), .attributes = {c.after}};
        expected.expect(file, kArrays);
    }
}

TEST(StackMaps, FramesThatComeOutOfOrderFail) {
    // The entry's injection takes all the switch's padding: what follows comes nearer to a place inside it.
    const ClassFile file = with_code(Code{.bytes = cat({tableswitch(0, 20, 0, {0}), code("00*9 b1")}),
                                          .attributes = {stack_map_table({same_frame(19), same_frame(0)})}});
    RewriteOptions options = kCalls;
    options.class_number = 128;
    EXPECT_EQ(failing_condition(file, options), "new_delta >= 0");
}

}  // namespace
