// The rewriter's second door: what it takes and gives that java_crw_demo does not. That the images are the same
// otherwise is oracle_test.cpp's.
#include "vantrel_rewriter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "class_builder.h"
#include "product.h"

using namespace class_builder;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

ClassFile modern_class(const Code& code) {
    ClassFile file;
    file.major = 69;
    file.methods.push_back({.name = "m", .descriptor = "()V", .code = code});
    return file;
}

struct Call {
    Bytes bytes = assemble(modern_class({.bytes = {op::return_}}));
    const unsigned char* class_file = bytes.data();
    size_t length = bytes.size();
    VantrelRewriterOptions options{sizeof options, "Track", "call", "ret",   "init",  "array",
                                   nullptr,        1,       0,      nullptr, nullptr, nullptr};
    VantrelRewriterResult result{};

    explicit Call(Bytes image) : bytes(std::move(image)) {}
    Call() = default;
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;
    ~Call() { vantrel_rewriter_release(&result); }

    int run() {
        result.size = sizeof result;
        return vantrel_rewriter_rewrite(class_file, length, &options, &result);
    }
    Bytes image() const { return {result.image, result.image + result.length}; }
};

bool holds(const Bytes& image, const Bytes& part) {
    return std::search(image.begin(), image.end(), part.begin(), part.end()) != image.end();
}

TEST(SecondDoor, TellsItsVersions) {
    EXPECT_EQ(vantrel_rewriter_interface_version(), VANTREL_REWRITER_INTERFACE_VERSION);
    EXPECT_EQ(vantrel_rewriter_newest_class_file_version(), 69);
}

TEST(SecondDoor, TellsWhatIsWrong) {
    const struct {
        int status;
        const char* sentence;
        std::function<void(Call&)> spoil;
    } cases[] = {
        {VANTREL_REWRITER_WRONG_ARGUMENT, "no options", [](Call& c) { c.options.size = 3; }},
        {VANTREL_REWRITER_WRONG_ARGUMENT, "no tracker class", [](Call& c) { c.options.tracker_class = nullptr; }},
        {VANTREL_REWRITER_WRONG_ARGUMENT, "internal form", [](Call& c) { c.options.tracker_class = "a.Track"; }},
        {VANTREL_REWRITER_WRONG_ARGUMENT, "internal form", [](Call& c) { c.options.class_name = "a.Sample"; }},
        {VANTREL_REWRITER_WRONG_ARGUMENT, "two trackers of new arrays",
         [](Call& c) { c.options.numbered_newarray_tracker = "made"; }},
        {VANTREL_REWRITER_WRONG_ARGUMENT, "another name", [](Call& c) { c.options.class_name = "a/Sample"; }},
        {VANTREL_REWRITER_WRONG_ARGUMENT, "no class file", [](Call& c) { c.class_file = nullptr; }},
        {VANTREL_REWRITER_DAMAGED, "ends early", [](Call& c) { c.length = 0; }},
        {VANTREL_REWRITER_DAMAGED, "ends early", [](Call& c) { --c.length; }},
        {VANTREL_REWRITER_NOT_A_CLASS_FILE, "CAFEBABE", [](Call& c) { c.bytes[0] = 0; }},
        {VANTREL_REWRITER_NEWER_VERSION, "newer version than 69", [](Call& c) { c.bytes[7] = 70; }},
        {VANTREL_REWRITER_WRONG_ARGUMENT, "threw",
         [](Call& c) {
             c.options.methods = [](void*, uint32_t, const char* const*, const char* const*, int) { throw 1; };
         }},
    };
    for (const auto& c : cases) {
        Call call;
        c.spoil(call);
        EXPECT_EQ(call.run(), c.status) << c.sentence;
        EXPECT_EQ(call.result.status, c.status);
        EXPECT_THAT(call.result.sentence, HasSubstr(c.sentence));
        EXPECT_EQ(call.result.image, nullptr);
    }
    // Where in the code it is.
    Call call(assemble(modern_class({.bytes = cat({{op::nop}, branch(op::goto_, 5)})})));
    EXPECT_EQ(call.run(), VANTREL_REWRITER_DAMAGED);
    EXPECT_STREQ(call.result.class_name, "com/example/Sample");
    EXPECT_STREQ(call.result.method, "m()V");
    EXPECT_EQ(call.result.pc, 4);
    EXPECT_EQ(vantrel_rewriter_rewrite(nullptr, 0, nullptr, nullptr), VANTREL_REWRITER_WRONG_ARGUMENT);
}

TEST(SecondDoor, TakesOptionsOfOtherVersionsOfItself) {
    struct {
        VantrelRewriterOptions known;
        long of_a_later_version;
    } later{};
    Call call;
    later.known = call.options;
    later.known.size = sizeof later;
    EXPECT_EQ(vantrel_rewriter_rewrite(call.class_file, call.length, &later.known, &call.result),
              VANTREL_REWRITER_WRONG_ARGUMENT)
        << "the result's size is not set";
    call.result.size = sizeof call.result;
    EXPECT_EQ(vantrel_rewriter_rewrite(call.class_file, call.length, &later.known, &call.result), 0);
    vantrel_rewriter_release(&call.result);
    later.of_a_later_version = 1;
    EXPECT_EQ(vantrel_rewriter_rewrite(call.class_file, call.length, &later.known, &call.result),
              VANTREL_REWRITER_WRONG_ARGUMENT);
    EXPECT_THAT(call.result.sentence, HasSubstr("newer version of the interface"));

    // One of a version that ended with the call tracker.
    call.options.size = offsetof(VantrelRewriterOptions, return_tracker);
    ASSERT_EQ(call.run(), 0);
    Call calls_only;
    calls_only.options = {sizeof calls_only.options,
                          "Track",
                          "call",
                          nullptr,
                          nullptr,
                          nullptr,
                          nullptr,
                          0,
                          0,
                          nullptr,
                          nullptr,
                          nullptr};
    ASSERT_EQ(calls_only.run(), 0);
    EXPECT_EQ(call.image(), calls_only.image());
}

TEST(SecondDoor, TellsWhoMakesAnArray) {
    const ClassFile file = modern_class({.max_stack = 1, .max_locals = 7, .bytes = {op::newarray, 10, op::return_}});
    for (const std::uint32_t class_number : {2, 70000}) {
        Call call(assemble(file));
        call.options = {};
        call.options.size = sizeof call.options;
        call.options.tracker_class = "Track";
        call.options.class_number = class_number;
        call.options.numbered_newarray_tracker = "made";
        ASSERT_EQ(call.run(), 0) << call.result.sentence;
        const Bytes image = call.image();
        // The indexes of what is added: a large class number, and the method in the end.
        const std::int64_t next = call.bytes[8] << 8 | call.bytes[9];
        const Bytes push = class_number == 2 ? Bytes{op::iconst_0 + 2} : cat({u1(op::ldc), u1(next)});
        const std::int64_t made = next + (class_number == 2 ? 0 : 1) + 5;
        const auto length = static_cast<std::int64_t>(push.size()) + 7;
        EXPECT_TRUE(holds(image, cat({u2(3), u2(7), u4(length), u1(op::newarray), u1(10), push, u1(op::iconst_0),
                                      u1(op::invokestatic), u2(made), u1(op::return_)})));
        EXPECT_TRUE(holds(image, {'(', 'I', 'I', ')', 'V'}));
    }
}

TEST(SecondDoor, TellsTheMethodsOnce) {
    std::vector<std::string> told;
    Call call;
    call.options.context = &told;
    call.options.class_number = 70000;
    call.options.methods = [](void* context, uint32_t class_number, const char* const* names,
                              const char* const* descriptors, int count) {
        static_cast<std::vector<std::string>*>(context)->push_back(std::to_string(class_number) + names[0] +
                                                                   descriptors[0] + std::to_string(count));
    };
    ASSERT_EQ(call.run(), 0);
    EXPECT_STREQ(call.result.class_name, "com/example/Sample");
    EXPECT_THAT(told, ElementsAre("70000m()V1"));
}

TEST(SecondDoor, TakesTheConstantsOfToday) {
    ClassFile file = modern_class({.bytes = {op::return_}});
    file.pool.add(cat({u1(17), u2(0), u2(file.pool.name_and_type("constant", "I"))}));
    file.pool.add(cat({u1(20), u2(file.pool.utf8("com/example"))}));
    Call call(assemble(file));
    EXPECT_EQ(call.run(), VANTREL_REWRITER_REWRITTEN) << call.result.sentence;

    file.access = 0x8000;
    file.pool.add(cat({u1(19), u2(file.pool.utf8("a.module"))}));
    Call module_info(assemble(file));
    EXPECT_EQ(module_info.run(), VANTREL_REWRITER_CARRIED_OVER);
    EXPECT_EQ(module_info.image(), module_info.bytes);
}

TEST(SecondDoor, GrowsAsMuchAsIsNeeded) {
    Call returns(assemble(modern_class({.bytes = times(6000, {op::return_})})));
    returns.options.class_number = 0x8000;
    EXPECT_EQ(returns.run(), VANTREL_REWRITER_REWRITTEN) << returns.result.sentence;
    Call too_long(assemble(modern_class({.bytes = times(60000, {op::return_})})));
    EXPECT_EQ(too_long.run(), VANTREL_REWRITER_TOO_LARGE);
    EXPECT_THAT(too_long.result.sentence, HasSubstr("65535"));

    // Each branch is widened by the calls after it, and gets a frame with the types of all locals.
    constexpr std::size_t kBranches = 2900;
    constexpr std::size_t kLocals = 250;
    constexpr std::size_t kTarget = 32760;
    Bytes code;
    while (code.size() < 4 * kBranches) {
        append(code, cat({u1(op::iconst_0), branch(op::ifeq, static_cast<std::int64_t>(kTarget - code.size() - 1))}));
    }
    append(code, times(3000, cat({u1(op::iconst_0), u1(op::newarray), u1(10), u1(op::pop)})));
    append(code, cat({times(kTarget - code.size(), {op::nop}), {op::return_}}));
    ClassFile wide = modern_class(
        {.max_locals = kLocals, .bytes = code, .attributes = {stack_map_table({same_frame_extended(kTarget)})}});
    for (std::size_t i = 0; i < kLocals; ++i) {
        wide.methods[0].descriptor.insert(1, "[I");
    }
    Call frames(assemble(wide));
    EXPECT_EQ(frames.run(), VANTREL_REWRITER_REWRITTEN) << frames.result.sentence;
    EXPECT_GT(frames.result.length, kBranches * kLocals * 3);

    ClassFile full = modern_class({.bytes = {op::return_}});
    full.pool.fill(60000);
    EXPECT_EQ(Call(assemble(full)).run(), VANTREL_REWRITER_REWRITTEN);
    full.pool.fill(65510);
    EXPECT_EQ(Call(assemble(full)).run(), VANTREL_REWRITER_TOO_LARGE);
}

// One annotation of each kind that code has: how it is targeted, with a nested value after it.
Attribute annotations(const std::vector<Bytes>& targets) {
    const Bytes value =
        cat({u2(1), u2(2), u1('['), u2(2), u1('e'), u2(1), u2(1), u1('@'), u2(1), u2(1), u2(1), u1('I'), u2(1)});
    Bytes body = u2(static_cast<std::int64_t>(targets.size()));
    for (const Bytes& target : targets) {
        append(body, cat({target, u1(1), u2(0), u2(1), value}));
    }
    return {"RuntimeVisibleTypeAnnotations", body};
}

TEST(SecondDoor, MovesTypeAnnotationsWithTheCode) {
    // Old pcs: 0 nop, 1 newarray, 3 nop, 4 return, 5 nop. Where they go is 5, 6, 12, 13 and 19, and the end is 20.
    const Bytes code = {op::nop, op::newarray, 10, op::nop, op::return_, op::nop};
    const auto annotated = [](const Bytes& bytes, const std::vector<std::int64_t>& pcs, std::int64_t from,
                              std::int64_t length) {
        return modern_class({.bytes = bytes,
                             .attributes = {annotations(
                                 {cat({u1(0x40), u2(2), u2(0), u2(pcs[4]), u2(7), u2(from), u2(length), u2(8)}),
                                  cat({u1(0x42), u2(9)}), cat({u1(0x43), u2(pcs[0])}), cat({u1(0x44), u2(pcs[1])}),
                                  cat({u1(0x47), u2(pcs[2]), u1(3)}), cat({u1(0x4B), u2(pcs[3]), u1(4)})})}});
    };
    Call call(assemble(annotated(code, {0, 1, 3, 4, 6}, 3, 2)));
    ASSERT_EQ(call.run(), 0) << call.result.sentence;
    const Bytes image = call.image();
    const Bytes expected = annotated(code, {5, 6, 12, 13, 20}, 12, 7).methods[0].code->attributes[0].body;
    EXPECT_TRUE(holds(image, expected));

    // What is not well formed stays as it is.
    for (const Bytes& body : {cat({u2(1), u1(0x43), u2(7)}), cat({u2(1), u1(0x13), u2(0)}), cat({u2(9), u1(0x42)}),
                              cat({u2(1), u1(0x43), u2(1), u1(0), u2(0), u2(1), u2(0), u1('['), u2(9)})}) {
        Call odd(assemble(modern_class({.bytes = code, .attributes = {{"RuntimeInvisibleTypeAnnotations", body}}})));
        ASSERT_EQ(odd.run(), 0) << odd.result.sentence;
        EXPECT_TRUE(holds(odd.image(), body));
    }
}

}  // namespace
