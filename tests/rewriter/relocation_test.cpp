// Branches and switches in code that moves.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "rewritten_code.h"

using namespace rewritten_code;

namespace {

TEST(Relocation, BranchesPassTheEntryAndRunReturnsAndPassArrays) {
    // Back to 0; to a return; to behind an array's creation.
    expect_code(cat({{op::nop}, branch(op::ifeq, -1), branch(op::goto_, 3), kReturn}), kAll, [](const Injections& i) {
        return cat({i.call, {op::nop}, branch(op::ifeq, -1), branch(op::goto_, 3), i.ret, kReturn});
    });
    expect_code(cat({branch(op::goto_, 5), {op::newarray, 10}, {op::nop}, kReturn}), kArrays, [](const Injections& i) {
        return cat({branch(op::goto_, 9), {op::newarray, 10}, i.array, {op::nop}, kReturn});
    });
    expect_code(cat({branch_w(op::goto_w, 6), kReturn, branch_w(op::jsr_w, -6), kReturn}), kReturns,
                [](const Injections& i) {
                    return cat({branch_w(op::goto_w, 11), i.ret, kReturn, branch_w(op::jsr_w, -11), i.ret, kReturn});
                });
}

const std::pair<unsigned, unsigned> kInversions[] = {
    {op::ifeq, op::ifne},           {op::iflt, op::ifge},           {op::ifgt, op::ifle},
    {op::if_icmpeq, op::if_icmpne}, {op::if_icmplt, op::if_icmpge}, {op::if_icmpgt, op::if_icmple},
    {op::if_acmpeq, op::if_acmpne}, {op::ifnull, op::ifnonnull},
};

// What a branch becomes when its new offset no longer fits.
Bytes widened(unsigned opcode, int offset) {
    if (opcode == op::goto_ || opcode == op::jsr) {
        return branch_w(opcode == op::goto_ ? op::goto_w : op::jsr_w, offset);
    }
    for (const auto& [one, other] : kInversions) {
        if (opcode == one || opcode == other) {
            return cat({branch(opcode == one ? other : one, 8), branch_w(op::goto_w, offset - 3)});
        }
    }
    return {};
}

std::vector<unsigned> branch_opcodes() {
    std::vector<unsigned> opcodes = {op::goto_, op::jsr};
    for (const auto& [one, other] : kInversions) {
        opcodes.push_back(one);
        opcodes.push_back(other);
    }
    return opcodes;
}

TEST(Relocation, EveryBranchGrowsJustBeyondItsReach) {
    constexpr int kInjection = 5;
    for (const unsigned opcode : branch_opcodes()) {
        const bool is_goto = opcode == op::goto_ || opcode == op::jsr;
        const int growth = is_goto ? 2 : 5;
        for (const int offset : {32767, 32768}) {
            SCOPED_TRACE("opcode " + std::to_string(opcode) + " by " + std::to_string(offset));
            const bool fits = offset == 32767;
            // Forward over a return's injection: a branch that grows moves its target away by as much.
            const int old_offset = offset - kInjection;
            const Bytes between = times(static_cast<size_t>(old_offset) - 3 - 1, {op::nop});
            expect_code(cat({branch(opcode, old_offset), kReturn, between, kReturn}), kReturns,
                        [&](const Injections& i) {
                            return cat({fits ? branch(opcode, offset) : widened(opcode, offset + growth), i.ret,
                                        kReturn, between, i.ret, kReturn});
                        });
        }
        for (const int offset : {-32768, -32769}) {
            SCOPED_TRACE("opcode " + std::to_string(opcode) + " by " + std::to_string(offset));
            const bool fits = offset == -32768;
            const int old_offset = offset + kInjection;
            const Bytes between = times(static_cast<size_t>(-old_offset) - 1, {op::nop});
            expect_code(cat({kReturn, between, branch(opcode, old_offset), {op::athrow}}), kReturns,
                        [&](const Injections& i) {
                            // The target is the return, whose injection is run.
                            return cat({i.ret,
                                        kReturn,
                                        between,
                                        fits ? branch(opcode, offset) : widened(opcode, offset),
                                        {op::athrow}});
                        });
        }
    }
}

TEST(Relocation, AWideningMayCauseAnother) {
    // The first goto just reaches its target over the return's injection. The second does not, and grows into the
    // first one's way.
    constexpr int kFirstTarget = 32767 - 5;
    constexpr int kSecondTarget = 3 + 32768 - 5;
    const Bytes nops = times(kSecondTarget - 3 - 3 - 1, {op::nop});
    expect_code(
        cat({branch(op::goto_, kFirstTarget), branch(op::goto_, kSecondTarget - 3), kReturn, nops, {op::athrow}}),
        kReturns, [&](const Injections& i) {
            return cat({branch_w(op::goto_w, kFirstTarget + 5 + 4),
                        branch_w(op::goto_w, kSecondTarget + 5 + 4 - 5),
                        i.ret,
                        kReturn,
                        nops,
                        {op::athrow}});
        });
}

// A switch of one kind whose only other target is its default, at a pc.
using SwitchMaker = std::function<Bytes(size_t pc, int fallback, int target)>;
const SwitchMaker kSwitches[] = {
    [](size_t pc, int fallback, int target) {
        return tableswitch(pc, fallback, 7, {target, fallback});
    },
    [](size_t pc, int fallback, int target) {
        return lookupswitch(pc, fallback, {{-3, target}, {9, fallback}});
    },
};

TEST(Relocation, ASwitchIsPaddedForItsNewPlace) {
    for (const SwitchMaker& make : kSwitches) {
        for (size_t before = 0; before < 4; ++before) {
            SCOPED_TRACE(before);
            // The entry's injection has five bytes, so that the padding shrinks by one, or grows by three.
            const Bytes nops = times(before, {op::nop});
            const size_t old_size = make(before, 0, 0).size();
            const size_t new_size = make(before + 5, 0, 0).size();
            const auto old_fallback = static_cast<int>(old_size);
            const auto new_fallback = static_cast<int>(new_size);
            const auto back = -static_cast<int>(before);
            expect_code(cat({nops, make(before, old_fallback, back), kReturn}), kCalls, [&](const Injections& i) {
                return cat({i.call, nops, make(before + 5, new_fallback, back), kReturn});
            });
        }
    }
}

TEST(Relocation, ASwitchBetweenTwoGrowingBranchesIsPaddedForBoth) {
    for (const SwitchMaker& make : kSwitches) {
        // The gotos reach a little too far over the return's injection. The first one moves the switch by two.
        constexpr int kReach = 32767 - 5 + 3;
        const int second = 3 + static_cast<int>(make(3, 0, 0).size());
        const int end = second + kReach;
        const Bytes nops = times(kReach - 3 - 1, {op::nop});
        const Bytes code = cat({branch(op::goto_, kReach),
                                make(3, kReach - 3, -3),
                                branch(op::goto_, kReach),
                                kReturn,
                                nops,
                                {op::athrow}});
        expect_code(code, kReturns, [&](const Injections& i) {
            const int new_second = 5 + static_cast<int>(make(5, 0, 0).size());
            const int moved = new_second - second + 2 + 5;
            return cat({branch_w(op::goto_w, kReach + moved),
                        make(5, kReach + moved - 5, -5),
                        branch_w(op::goto_w, end + moved - new_second),
                        i.ret,
                        kReturn,
                        nops,
                        {op::athrow}});
        });
    }
}

TEST(Relocation, WhatLeadsNowhereFails) {
    const std::string outside = "pos <= mi->code_len";
    const std::string beyond_image =
        "( (ci) != NULL && (ci)->input_position <= (ci)->input_len && (ci)->output_position <= (ci)->output_len)";
    const struct {
        const char* what;
        std::string condition;
        Bytes code;
    } cases[] = {
        {"a branch before the code", outside, branch(op::goto_, -1)},
        {"a branch past its end", outside, branch(op::ifeq, 4)},
        {"a wide branch", outside, branch_w(op::goto_w, 0x7FFFFFFF)},
        {"a switch's default", outside, tableswitch(0, 100, 0, {0})},
        {"a switch's target", outside, lookupswitch(0, 0, {{1, -1}})},
        {"an instruction past the end", outside, {op::sipush, 1}},
        {"a high below its low", beyond_image, cat({{op::tableswitch, 0, 0, 0}, u4(0), u4(5), u4(4)})},
        {"a table longer than the file", beyond_image,
         cat({{op::tableswitch, 0, 0, 0}, u4(0), u4(-0x7FFFFFFF), u4(0x7FFFFFFF)})},
        {"less than no pairs", beyond_image, cat({{op::lookupswitch, 0, 0, 0}, u4(0), u4(-1)})},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(failing_condition(with_code(c.code)), c.condition) << c.what;
    }
    EXPECT_EQ(bytes_after(branch(op::goto_, 3), kNothing), branch(op::goto_, 3)) << "the end is a place";
}

TEST(Relocation, CodeThatGetsTooLongFails) {
    const Bytes longest = cat({times(65534, {op::nop}), kReturn});
    EXPECT_EQ(bytes_after(longest, kNothing), longest);
    EXPECT_EQ(failing_condition(with_code(longest), kCalls), "mi->new_code_len <= 0xFFFF");
}

}  // namespace
