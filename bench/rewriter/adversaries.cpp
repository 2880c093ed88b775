#include "adversaries.h"

#include <algorithm>
#include <random>
#include <utility>
#include <vector>

#include "class_builder.h"

using namespace class_builder;

namespace {

constexpr int kFarthest = 32767;

void aim(Bytes& code, std::size_t pc, int offset) {
    code[pc + 1] = static_cast<std::uint8_t>(offset >> 8);
    code[pc + 2] = static_cast<std::uint8_t>(offset);
}

Bytes branches(unsigned opcode, std::size_t count) {
    return times(count, branch(opcode, 0));
}

// Branches that stay short, a return that grows, and branches back over it, all of which have to grow.
Bytes short_then_far(unsigned opcode) {
    Bytes code = cat({branches(opcode, 10940), {op::return_}});
    append(code, times(6450, branch(opcode, -kFarthest - 1)));
    return code;
}

// Each one that grows makes the one before it too long.
Bytes chain(unsigned opcode) {
    constexpr std::size_t kCount = 10900;
    Bytes code = cat({branches(opcode, kCount), times(20000, {op::nop})});
    for (std::size_t i = 0; i < kCount; ++i) {
        aim(code, 3 * i, std::min(kFarthest, static_cast<int>(code.size() - 3 * i - 1)));
    }
    code[kFarthest] = op::return_;
    return code;
}

// Branches with more or less to spare, both ways, around a return that grows.
Bytes scattered(unsigned opcode, int most_to_spare) {
    std::mt19937 random(1);  // NOLINT(cert-msc32-c,cert-msc51-cpp): the same method each time
    constexpr std::size_t kCount = 12000;
    Bytes code =
        cat({branches(opcode, kCount / 2), {op::return_}, branches(opcode, kCount / 2), times(6000, {op::nop})});
    for (std::size_t i = 0; i < kCount; ++i) {
        const std::size_t pc = 3 * i + (i < kCount / 2 ? 0 : 1);
        const int to_spare = static_cast<int>(random() % static_cast<unsigned>(most_to_spare));
        const int forward = kFarthest - to_spare;
        const bool fits = pc + static_cast<std::size_t>(forward) < code.size();
        const int offset = fits ? forward : to_spare - kFarthest - 1;
        aim(code, pc, static_cast<int>(pc) + offset < 0 ? 0 : offset);
    }
    return code;
}

// Everything that grows is at one end of what most branches jump over, and grows one by one. These branches have powers
// of two to spare.
Bytes one_sided(unsigned opcode) {
    constexpr int kCount = 7000;
    constexpr int kNops = 11000;
    Bytes code = cat({branches(opcode, kCount), {op::return_}, times(kNops, {op::nop}), branches(opcode, kCount / 2)});
    for (int i = 0; i < kCount; ++i) {
        const int pc = 3 * i;
        const int offset = kFarthest - (1 << i % 13);
        aim(code, static_cast<std::size_t>(pc), pc + offset < static_cast<int>(code.size()) ? offset : 0);
    }
    for (int i = 0; i < kCount / 2; ++i) {
        const int pc = 3 * kCount + 1 + kNops + 3 * i;
        aim(code, static_cast<std::size_t>(pc), std::max(-kFarthest - 1 + 2 * i, -pc));
    }
    return code;
}

// Switches, whose paddings follow every change, before branches that have to grow over a return.
Bytes switches(unsigned opcode) {
    std::mt19937 random(1);  // NOLINT(cert-msc32-c,cert-msc51-cpp)
    Bytes code;
    for (int i = 0; i < 3000; ++i) {
        append(code, lookupswitch(code.size(), 0, {}));
    }
    code.push_back(op::return_);
    for (int i = 0; i < 6000; ++i) {
        append(code, branch(opcode, static_cast<int>(random() % 3000) - kFarthest - 1));
    }
    return code;
}

// Branches forward at one end and back at the other, each of which makes the next one at the other end too long, and no
// other. The first one jumps over a return that grows.
Bytes to_and_fro(int count) {
    constexpr std::size_t kBranchSize = 3;
    // Each branch forward begins 3 bytes before the last one, and reaches 2 bytes less far.
    constexpr std::size_t kStep = 5;
    constexpr std::size_t kBefore = 3 * kBranchSize;
    const auto all = static_cast<std::size_t>(count);
    const std::size_t first_forward = kBefore + kBranchSize * (all - 1);
    const std::size_t first_back = first_forward + static_cast<std::size_t>(kFarthest) - 9;
    Bytes code = times(first_back + kStep, {op::nop});
    append(code, times(kStep, u1(op::return_)));
    for (int i = 0; i < count; ++i) {
        const auto before = static_cast<std::size_t>(i);
        const std::size_t forward = first_forward - kBranchSize * before;
        const std::size_t back = first_back - kStep * before;
        code[forward] = code[back] = op::goto_;
        aim(code, forward, i == 0 ? kFarthest : kFarthest - (2 * i + 1));
        aim(code, back, -kFarthest - 1 + 2 * i + 1);
    }
    return code;
}

// Rows of branches both ways around a thousand switches, with a little or a lot to spare, at random, in the order of
// the code, or in powers of two: what a search among some thousand such methods found to take the longest.
Bytes rows_around_switches() {
    std::mt19937 random(1);  // NOLINT(cert-msc32-c,cert-msc51-cpp)
    Bytes code;
    std::vector<std::pair<std::size_t, int>> offsets;  // by pc of a branch
    const auto add_row = [&](unsigned opcode, std::size_t count, bool forward, const auto& to_spare) {
        for (std::size_t i = 0; i < count; ++i) {
            const int spare = to_spare(static_cast<int>(i));
            offsets.emplace_back(code.size(), forward ? kFarthest - spare : spare - kFarthest - 1);
            append(code, branch(opcode, 0));
        }
    };
    const auto at_random = [&random](int) { return static_cast<int>(random() % 1000); };
    const auto in_order = [](int i) { return 2 * i; };
    const auto power_of_two = [](int i) { return 1 << i % 14; };
    add_row(op::ifeq, 4600, true, at_random);
    add_row(op::goto_, 1800, true, in_order);
    add_row(op::goto_, 3100, true, power_of_two);
    for (int i = 0; i < 1000; ++i) {
        append(code, lookupswitch(code.size(), 0, {}));
    }
    code.push_back(op::return_);
    add_row(op::ifeq, 2000, true, power_of_two);
    add_row(op::goto_, 4000, false, power_of_two);
    for (const auto& [pc, offset] : offsets) {
        const int target = static_cast<int>(pc) + offset;
        aim(code, pc, target >= 0 && target < static_cast<int>(code.size()) ? offset : 0);
    }
    return code;
}

// The scattered ones, some of which jump over a switch, too.
Bytes scattered_around_switch(unsigned opcode) {
    Bytes code = scattered(opcode, 3000);
    constexpr std::size_t kPc = 36004;  // among the nops that follow the branches
    const Bytes instruction = lookupswitch(kPc, 0, {});
    std::copy(instruction.begin(), instruction.end(), code.begin() + kPc);
    return code;
}

Adversary adversary(const std::string& name, const Bytes& code) {
    ClassFile file;
    file.methods.push_back({.code = Code{.bytes = code}});
    file.attributes = {{"Padding", times(60000, {0})}};  // java_crw_demo lets an image grow in proportion to its length
    return {name, code.size(), assemble(file)};
}

}  // namespace

std::vector<Adversary> adversaries() {
    return {adversary("short_then_far/goto", short_then_far(op::goto_)),
            adversary("short_then_far/if", short_then_far(op::ifeq)),
            adversary("chain", chain(op::goto_)),
            adversary("scattered/3000", scattered(op::goto_, 3000)),
            adversary("scattered around a switch", scattered_around_switch(op::goto_)),
            adversary("scattered/40", scattered(op::goto_, 40)),
            adversary("one_sided", one_sided(op::goto_)),
            adversary("to_and_fro", to_and_fro(4000)),
            adversary("rows around switches", rows_around_switches()),
            adversary("switches", switches(op::ifeq))};
}
