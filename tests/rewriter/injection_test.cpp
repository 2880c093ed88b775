// Which tracker calls go where, what they look like, and the constants and the stack that they need.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "rewritten_code.h"

using namespace rewritten_code;

namespace {

TEST(Injection, GoesToEntriesReturnsAndNewArrays) {
    const RewriteOptions& all = kAll;
    for (int opcode = op::ireturn; opcode <= op::return_; ++opcode) {
        const Bytes ret = u1(opcode);
        expect_code(ret, all, [&](const Injections& i) { return cat({i.call, i.ret, ret}); });
        expect_code(cat({{op::nop}, ret, ret}), all, [&](const Injections& i) {
            return cat({i.call, {op::nop}, i.ret, ret, i.ret, ret});
        });
    }
    const Bytes arrays[] = {{op::newarray, 10}, {op::anewarray, 0, 1}, {op::multianewarray, 0, 1, 2}};
    for (const Bytes& array : arrays) {
        // First the new array's, then the return's.
        expect_code(cat({array, {op::areturn}}), all, [&](const Injections& i) {
            return cat({i.call, array, i.array, i.ret, {op::areturn}});
        });
        // Behind the last instruction there is nothing to go before.
        expect_code(array, kArrays, [&](const Injections&) { return array; });
    }
    expect_code(cat({{op::newarray, 10}, {op::areturn}}), kReturns, [&](const Injections& i) {
        return cat({{op::newarray, 10}, i.ret, {op::areturn}});
    });
    expect_code({}, all, [](const Injections&) { return Bytes{}; });
}

TEST(Injection, PushesNumbersInTheirShortestForm) {
    const struct {
        unsigned class_number;
        size_t first_index;  // that the class's own pool leaves free
        Bytes push;
    } cases[] = {
        {0, 0, {op::iconst_0}},
        {5, 0, {op::iconst_5}},
        {6, 0, {op::bipush, 6}},
        {127, 0, {op::bipush, 127}},
        {128, 0, {op::sipush, 0, 128}},
        {32767, 0, {op::sipush, 0x7F, 0xFF}},
        {32768, 127, {op::ldc, 127}},
        {32768, 128, {op::ldc_w, 0, 128}},
        {0xFFFFFFFF, 127, {op::ldc, 127}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.class_number);
        ClassFile file = with_code(kReturn);
        if (c.first_index > 0) {
            const unsigned needed = take_apart(assemble(file)).pool.count - 1;
            file.pool.fill(static_cast<unsigned>(c.first_index) - needed);
        }
        RewriteOptions options = kCalls;
        options.class_number = c.class_number;
        const ClassFile after = rewritten(file, options);
        EXPECT_EQ(after.methods[0].code->bytes, cat({c.push, {op::iconst_0}, tracker_call(after, "call"), kReturn}));
        if (c.first_index > 0) {
            EXPECT_EQ(after.pool.at(static_cast<unsigned>(c.first_index)), cat({{3}, u4(c.class_number)}));
        }
    }

    // Method numbers are never in the pool.
    ClassFile many;
    Code code;
    code.bytes = kReturn;
    for (int i = 0; i < 130; ++i) {
        many.methods.push_back({.name = "m", .descriptor = "()V", .code = code, .attributes = {}});
    }
    const ClassFile after = rewritten(many, kCalls);
    const std::pair<size_t, Bytes> expected[] = {
        {5, {op::iconst_5}}, {6, {op::bipush, 6}}, {127, {op::bipush, 127}}, {128, {op::sipush, 0, 128}}};
    for (const auto& [number, push] : expected) {
        EXPECT_EQ(after.methods[number].code->bytes,
                  cat({{op::iconst_0 + 1}, push, tracker_call(after, "call"), kReturn}));
    }
}

TEST(Injection, AppendsConstantsAndSharesNone) {
    ClassFile file = with_code(kReturn);
    file.pool.long_(5);
    file.pool.double_bits(6);
    file.pool.utf8("getTrackId");
    file.pool.method_handle(6, file.pool.method_ref("A", "b", "()V"));
    file.pool.method_type("()V");
    file.pool.invoke_dynamic(0, "c", "()V");
    file.pool.float_bits(7);
    file.pool.interface_method_ref("I", "d", "()V");
    file.pool.string("text");
    const ClassFile before = take_apart(assemble(file));
    RewriteOptions options = kAll;
    options.class_number = 40000;
    const ClassFile after = rewritten(file, options);
    EXPECT_EQ(after.pool.count, before.pool.count + 27);
    EXPECT_EQ(Bytes(after.pool.bytes.begin(),
                    after.pool.bytes.begin() + static_cast<std::ptrdiff_t>(before.pool.bytes.size())),
              before.pool.bytes);
    std::vector<std::string> added;
    for (unsigned index = before.pool.count; index < after.pool.count; ++index) {
        added.push_back(std::to_string(after.pool.at(index)[0]) + after.pool.text(index));
    }
    const std::vector<std::string> expected = {"3",
                                               "1Track",
                                               "7Track",
                                               "1init",
                                               "1(Ljava/lang/Object;)V",
                                               "12",
                                               "10",
                                               "1array",
                                               "1(Ljava/lang/Object;)V",
                                               "12",
                                               "10",
                                               "1call",
                                               "1(II)V",
                                               "12",
                                               "10",
                                               "1ret",
                                               "1(II)V",
                                               "12",
                                               "10",
                                               "1getTrackId",
                                               "1()I",
                                               "12",
                                               "10",
                                               "1objectTrackId",
                                               "1I",
                                               "12",
                                               "9"};
    EXPECT_EQ(added, expected);
}

TEST(Injection, PoolsHaveACapacityOf16Bits) {
    for (const auto& [count, message] : {std::pair<unsigned, std::string>{0x8000, ""},
                                         {0x8001, "Cannot allocate <= 0 bytes"},
                                         {0x8002, "ci->cpool_count_plus_one < ci->cpool_max_elements"},
                                         {0xFFFF, "ci->cpool_count_plus_one < ci->cpool_max_elements"}}) {
        SCOPED_TRACE(count);
        ClassFile file = with_code(kReturn);
        file.pool.fill(count - (take_apart(assemble(file)).pool.count - 1));
        const Bytes image = assemble(file);
        ASSERT_EQ(take_apart(image).pool.count, count);
        const std::string failure = rewrite(image).failure;
        EXPECT_EQ(failure.substr(0, failure.find(" (?:?:-1)")),
                  message.starts_with("ci") ? "CRW ASSERTION FAILURE: " + message : message);
    }
}

TEST(Injection, RefusesTagsThatItDoesNotKnow) {
    for (const unsigned tag : {0, 2, 13, 14, 17, 19, 255}) {
        ClassFile file = with_code(kReturn);
        file.pool.utf8("four");
        file.pool.add(cat({u1(tag), u4(0)}));
        // Magic, versions, count; the text with its tag and length; and the tag itself.
        EXPECT_EQ(rewrite(assemble(file)).failure, "Unknown tag: " + std::to_string(tag) + ", at ipos 18");
    }
}

TEST(Injection, RaisesTheStackFromWhatIsDeclared) {
    const Bytes array_and_return = {op::newarray, 10, op::areturn};
    const struct {
        RewriteOptions options;
        Bytes code;
        unsigned declared;
        unsigned needed;
    } cases[] = {
        {kNothing, array_and_return, 3, 3}, {kCalls, array_and_return, 0, 2},  {kReturns, array_and_return, 3, 5},
        {kReturns, {op::athrow}, 3, 3},     {kArrays, array_and_return, 0, 1}, {kArrays, kReturn, 3, 3},
        {kAll, array_and_return, 3, 5},     {kCalls, kReturn, 0xFFFD, 0xFFFF},
    };
    for (const auto& c : cases) {
        Code code;
        code.bytes = c.code;
        code.max_stack = c.declared;
        EXPECT_EQ(code_after(with_code(code), c.options).max_stack, c.needed);
    }
    Code code;
    code.bytes = kReturn;
    code.max_stack = 0xFFFE;
    EXPECT_EQ(failing_condition(with_code(code), kCalls), "mi->new_max_stack <= 0xFFFF");
}

TEST(Injection, TracksEveryNewObjectInItsConstructor) {
    ClassFile file = with_code({op::newarray, 10, op::return_});
    file.name = "java/lang/Object";
    file.super = "";
    file.methods[0].name = "<init>";
    file.methods.push_back(file.methods[0]);
    file.methods[1].descriptor = "(I)V";
    testing::internal::CaptureStdout();
    RewriteOptions options = kAll;
    options.system_class = true;
    const ClassFile after = rewritten(file, options);
    fflush(stdout);
    testing::internal::GetCapturedStdout();
    const Bytes track_object = cat({{op::aload_0}, tracker_call(after, "init")});
    const Bytes track_array = cat({{op::dup}, tracker_call(after, "array")});
    EXPECT_EQ(after.methods[0].code->bytes, cat({track_object, {op::newarray, 10}, track_array, {op::return_}}));
    EXPECT_EQ(after.methods[0].code->max_stack, file.methods[0].code->max_stack + 1);
    EXPECT_EQ(after.methods[1].code->bytes, cat({{op::iconst_0 + 1, op::iconst_0 + 1},
                                                 tracker_call(after, "call"),
                                                 {op::newarray, 10},
                                                 track_array,
                                                 {op::iconst_0 + 1, op::iconst_0 + 1},
                                                 tracker_call(after, "ret"),
                                                 {op::return_}}))
        << "not the constructor";
}

TEST(Injection, WideFormsAreCopied) {
    const Bytes code = cat(
        {wide(op::iload, 300), wide(op::astore, 301), wide_iinc(302, -5), wide(op::ret, 303), {op::ret, 4}, kReturn});
    EXPECT_EQ(bytes_after(code, kNothing), code);
    EXPECT_EQ(failing_condition(with_code(cat({wide(op::nop, 1), kReturn}))), "Invalid opcode supplied to wide opcode");
    for (const unsigned opcode : {202, 254, 255}) {
        EXPECT_EQ(failing_condition(with_code(u1(opcode))), "Invalid opcode supplied to opcode_length()");
    }
}

}  // namespace
