// The rewriter's two functions: arguments, failures, and what happens to a class outside its methods' code.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
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
const std::string kIndexRule = "c_index > 0 && c_index < ci->cpool_count_plus_one";

std::string assertion(const std::string& condition, const std::string& place = "?:?:-1") {
    return "CRW ASSERTION FAILURE: " + condition + " (" + place + ")";
}

ClassFile with_method(const Bytes& code, const std::string& name = "m", const std::string& descriptor = "()V") {
    ClassFile file;
    Code body;
    body.bytes = code;
    file.methods.push_back({.name = name, .descriptor = descriptor, .code = body, .attributes = {}});
    return file;
}

// All arguments of java_crw_demo, well chosen to begin with.
struct Arguments {
    Bytes bytes = assemble(with_method({op::return_}));
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

    void run() {
        java_crw_demo(1, name, image, length, system_class, tracker, tracker_signature, "call", signatures[0], "ret",
                      signatures[1], "init", signatures[2], "array", signatures[3], image_out, length_out, handler,
                      nullptr);
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
    // A jump to behind the code, read at pc 1.
    const Outcome outcome = rewrite(assemble(with_method(cat({{op::nop}, branch(op::goto_, 5)}), "jump")));
    EXPECT_EQ(outcome.failure, assertion("pos <= mi->code_len", "com/example/Sample:jump:4"));
    EXPECT_EQ(outcome.source_file, "java_crw_demo/method_rewrite_state.h");
    const std::string long_name(600, 'n');
    EXPECT_EQ(rewrite(assemble(with_method(branch(op::goto_, 5), long_name))).failure.size(), 511u)
        << "a message has 511 characters at most";
}

TEST(RewriterInterface, CallersMayRewriteInsideTheHandler) {
    Arguments arguments;
    arguments.bytes.resize(20);
    arguments.length = 20;
    arguments.handler = [](const char*, const char*, int) {
        EXPECT_EQ(rewrite(assemble(with_method({op::return_}))).failure, "");
    };
    arguments.run();
    EXPECT_EQ(arguments.new_image, nullptr);
}

TEST(RewriterInterface, AcceptsVersionsUpTo52) {
    ClassFile file = with_method({op::return_});
    for (const unsigned major : {45, 52}) {
        file.major = major;
        file.minor = 0xFFFF;
        EXPECT_EQ(rewrite(assemble(file)).failure, "");
    }
    file.major = 53;
    EXPECT_EQ(rewrite(assemble(file)).failure, assertion("(classfileMajorVersion <= JVM_CLASSFILE_MAJOR_VERSION) || "
                                                         "((classfileMajorVersion == JVM_CLASSFILE_MAJOR_VERSION) && "
                                                         "(classfileMinorVersion <= JVM_CLASSFILE_MINOR_VERSION))"));
}

// Everything but the pool stays as it is when nothing is asked for; the pool gets its ten entries all the same.
TEST(RewriterInterface, CopiesWhatItDoesNotChange) {
    ClassFile file = with_method(cat({{op::iconst_0}, branch(op::ifeq, 3), {op::return_}}));
    file.interfaces = {"java/lang/Runnable", "java/io/Serializable"};
    file.fields = {{.access = 2, .name = "f", .descriptor = "J", .code = {}, .attributes = {{"Synthetic", {}}}}};
    file.methods.push_back({.access = 0x0400,
                            .name = "a",
                            .descriptor = "()V",
                            .code = {},
                            .attributes = {{"Exceptions", cat({u2(1), u2(3)})}}});
    file.attributes = {{"SourceFile", u2(1)}, {"Vendor", {1, 2, 3}}};
    Bytes image = assemble(file);
    const ClassFile before = take_apart(image);
    image.push_back(0);  // behind the last attribute: not carried over
    const Outcome outcome = rewrite(image, {.tracker_class = "Track"});
    ASSERT_EQ(outcome.failure, "");
    const ClassFile after = take_apart(outcome.image);
    EXPECT_EQ(after.pool.count, before.pool.count + 10);
    EXPECT_EQ(after.access, before.access);
    EXPECT_EQ(after.name, before.name);
    EXPECT_EQ(after.super, before.super);
    EXPECT_EQ(after.interfaces, before.interfaces);
    EXPECT_EQ(after.fields, before.fields);
    EXPECT_EQ(after.methods, before.methods);
    EXPECT_EQ(after.attributes, before.attributes);
}

TEST(RewriterInterface, GivesObjectAFieldAndAMethod) {
    ClassFile file = with_method({op::return_}, "<init>");
    file.name = "java/lang/Object";
    file.super = "";
    testing::internal::CaptureStdout();
    const Outcome outcome = rewrite(assemble(file));
    fflush(stdout);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "add field to : java/lang/Object\n");
    const ClassFile after = take_apart(outcome.image);
    ASSERT_EQ(after.fields.size(), 1u);
    EXPECT_EQ(after.fields[0],
              (Member{.access = 0x000A, .name = "objectTrackId", .descriptor = "I", .code = {}, .attributes = {}}));
    ASSERT_EQ(after.methods.size(), 2u);
    EXPECT_EQ(after.methods[1],
              (Member{.access = 0x0101, .name = "getTrackId", .descriptor = "()I", .code = {}, .attributes = {}}));

    file.name = "com/example/Root";
    EXPECT_EQ(rewrite(assemble(file)).failure,
              assertion("strcmp(ci->name,\"java/lang/Object\")==0", "com/example/Root:?:-1"));
}

TEST(RewriterInterface, LeavesDelicateMethodsOfSystemClassesAlone) {
    const Bytes lone = {op::return_};
    const Bytes longer = {op::nop, op::return_};
    const struct {
        const char* name;
        const char* class_name;  // as the caller knows it
        Bytes code;
        bool system_class;
        bool left_alone;
    } cases[] = {
        {"<init>", nullptr, lone, true, true},
        {"<init>", nullptr, lone, false, false},
        {"<init>", nullptr, longer, true, false},
        {"finalize", nullptr, lone, true, true},
        {"finalize", nullptr, longer, true, false},
        {"<clinit>", nullptr, lone, true, true},
        {"<clinit>", nullptr, longer, true, true},
        {"<clinit>", nullptr, longer, false, false},
        {"run", nullptr, lone, true, false},
        {"currentThread", "java/lang/Thread", longer, true, true},
        {"currentThread", "java/lang/Thread", lone, true, true},
        {"currentThread", "java/lang/Thread", lone, false, false},
        {"currentThread", nullptr, lone, true, false},  // the class is known by the caller's name only
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.name) + " of " + std::to_string(c.code.size()) + " bytes");
        ClassFile file = with_method(c.code, c.name);
        file.name = "java/lang/Thread";
        RewriteOptions options = kAll;
        if (c.class_name != nullptr) {
            options.name = c.class_name;
        }
        options.system_class = c.system_class;
        const Outcome outcome = rewrite(assemble(file), options);
        ASSERT_EQ(outcome.failure, "");
        EXPECT_EQ(take_apart(outcome.image).methods[0].code->bytes == c.code, c.left_alone);
    }
}

TEST(RewriterInterface, TellsTheMethodsNames) {
    static std::vector<std::string> told;
    ClassFile file = with_method({op::return_}, "first");
    file.methods.push_back({.name = "second", .descriptor = "(J)I", .code = {}, .attributes = {}});
    const Bytes image = assemble(file);
    unsigned char* out = nullptr;
    long length = 0;
    java_crw_demo(7, nullptr, image.data(), static_cast<long>(image.size()), 0, "T", "LT;", nullptr, nullptr, nullptr,
                  nullptr, nullptr, nullptr, nullptr, nullptr, &out, &length, nullptr,
                  [](unsigned class_number, const char** names, const char** descriptors, int count) {
                      told.push_back(std::to_string(class_number));
                      for (int i = 0; i < count; ++i) {
                          told.push_back(std::string(names[i]) + descriptors[i]);
                      }
                  });
    free(out);
    EXPECT_THAT(told, ElementsAre("7", "first()V", "second(J)I"));
}

// A return grows sevenfold; a byte that stays as it is takes up one and is allowed two. The first class that passes is
// therefore the one whose image has just the length allowed, and the one before it was one byte too long.
TEST(RewriterInterface, GrowsNoMoreThanItsAllowance) {
    ClassFile file = with_method(times(400, {op::return_}));
    EXPECT_THAT(rewrite(assemble(file)).failure,
                StartsWith("CRW ASSERTION FAILURE: " + kInside + " (com/example/Sample:m:"));
    file.attributes = {{"Vendor", {}}};
    Bytes image = assemble(file);
    Outcome outcome = rewrite(image);
    for (; !outcome.failure.empty(); image = assemble(file), outcome = rewrite(image)) {
        ASSERT_THAT(outcome.failure, StartsWith("CRW ASSERTION FAILURE: " + kInside));
        ASSERT_LT(image.size(), 4000u);
        file.attributes[0].body.push_back(0);
    }
    EXPECT_EQ(outcome.image.size(), 2 * image.size() + 512);
}

TEST(RewriterInterface, KindsOfConstantsAreChecked) {
    const struct {
        const char* what;
        void (*spoil)(ClassFile&, Bytes&);
    } cases[] = {
        {"this_class is a Utf8",
         [](ClassFile& file, Bytes& image) {
             const size_t at = 10 + file.pool.bytes.size() + 2;
             image[at] = 0;
             image[at + 1] = 1;
         }},
        {"this_class is 0",
         [](ClassFile& file, Bytes& image) {
             const size_t at = 10 + file.pool.bytes.size() + 2;
             image[at] = image[at + 1] = 0;
         }},
        {"this_class is too large",
         [](ClassFile& file, Bytes& image) { image[10 + file.pool.bytes.size() + 2] = 0x7F; }},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        ClassFile file;
        file.pool.utf8("first");
        Bytes image = assemble(file);
        ClassFile apart = take_apart(image);
        c.spoil(apart, image);
        EXPECT_EQ(rewrite(image).failure, assertion(kIndexRule));
    }
}

TEST(ClassName, IsFoundWithoutRewriting) {
    ClassFile file = with_method({op::return_});
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

}  // namespace
