#include "relocation.h"

#include <algorithm>
#include <cstdint>

#include "branches.h"
#include "images.h"
#include "opcodes.h"
#include "widening.h"

namespace crw {

namespace {

// What can be said of a method before anything grows.
struct Outlook {
    bool has_switch = false;
    int32_t longest_new_code = 0;  // if all of them grew
};

// Looks at every branch and switch once. Fails for a branch out of the code.
Outlook look_at_branches(MethodRewriteState& mi, const uint8_t* code) {
    Outlook outlook;
    outlook.longest_new_code = mi.map[mi.code_len];
    for (const Site& site : mi.sites) {
        if (is_switch(site)) {
            outlook.has_switch = true;
            outlook.longest_new_code += kLargestPaddingChange;
        } else if (site.kind == Site::kBranch) {
            mi.ci.input_position = mi.start_of_input_bytecodes + site.pc_next;
            (void)mi.new_pc(target_of(site, offset_of(site, code)));
            outlook.longest_new_code += growth_of(code[site.pc]);
        }
    }
    return outlook;
}

// Moves the map by what the sites grow.
void apply_widenings(MethodRewriteState& mi) {
    int32_t shift = 0;
    int32_t* from = mi.map;
    for (const Site& site : mi.sites) {
        if (site.widening != 0) {
            int32_t* here = mi.map + site.pc_next;
            std::for_each(from, here, [shift](int32_t& pc) { pc += shift; });
            from = here;
            shift += site.widening;
        }
    }
    std::for_each(from, mi.map + mi.code_len + 1, [shift](int32_t& pc) { pc += shift; });
}

// The paddings of all switches, one after the other, when it is known which branches grow.
void adjust_paddings(MethodRewriteState& mi) {
    int32_t shift = 0;
    for (Site& site : mi.sites) {
        if (is_switch(site)) {
            const auto pc = static_cast<int32_t>(site.pc);
            site.widening = static_cast<int8_t>(padding_at(mi.map[site.pc] + shift) - padding_at(pc));
        }
        shift += site.widening;
    }
}

// Writing.

int32_t new_offset(const MethodRewriteState& mi, const Site& site, int32_t old_offset) {
    return mi.new_pc(target_of(site, old_offset)) - mi.map[site.pc];
}

// A condition and its opposite are neighbours among the opcodes.
uint8_t inverted(uint8_t opcode) {
    const unsigned first = opcode >= kIfnull ? kIfnull : kIfeq;
    return static_cast<uint8_t>(first + ((opcode - first) ^ 1U));
}

void write_branch(MethodRewriteState& mi, const Site& site, const uint8_t* code) {
    ClassRewriteState& ci = mi.ci;
    const uint8_t opcode = code[site.pc];
    const int32_t offset = new_offset(mi, site, offset_of(site, code));
    switch (site.widening) {
        case 0:
            write_u1(ci, opcode);
            write_u2(ci, static_cast<uint32_t>(offset));
            break;
        case kGrowthOfGoto:
            write_u1(ci, opcode == kGoto ? kGotoW : kJsrW);
            write_u4(ci, static_cast<uint32_t>(offset));
            break;
        default: {
            constexpr uint32_t kConditionalLength = 3;
            constexpr uint32_t kGotoWLength = 5;
            write_u1(ci, inverted(opcode));
            write_u2(ci, kConditionalLength + kGotoWLength);
            write_u1(ci, kGotoW);
            write_u4(ci, static_cast<uint32_t>(offset) - kConditionalLength);
        }
    }
}

void write_switch(MethodRewriteState& mi, const Site& site, const uint8_t* code) {
    ClassRewriteState& ci = mi.ci;
    constexpr uint8_t kZeros[3] = {};
    const uint8_t* operand = code + switch_operands(site.pc);
    const uint8_t* end = code + site.pc_next;
    const auto relocate = [&] {
        write_u4(ci, static_cast<uint32_t>(new_offset(mi, site, static_cast<int32_t>(u4_at(operand)))));
        operand += 4;
    };
    const auto copy = [&](size_t count) {
        write_bytes(ci, operand, count);
        operand += count;
    };
    write_u1(ci, code[site.pc]);
    write_bytes(ci, kZeros, static_cast<size_t>(padding_at(mi.map[site.pc])));
    relocate();
    if (site.kind == Site::kTableSwitch) {
        copy(8);  // low and high
    } else {
        copy(4);  // npairs
    }
    while (operand < end) {
        if (site.kind == Site::kLookupSwitch) {
            copy(4);  // the match
        }
        relocate();
    }
}

}  // namespace

void adjust_instructions(MethodRewriteState& mi) {
    const uint8_t* code = mi.ci.input + mi.start_of_input_bytecodes;
    const Outlook outlook = look_at_branches(mi, code);
    if (!fits(outlook.longest_new_code)) {
        settle_widenings(mi, code);
    } else if (!outlook.has_switch) {
        return;
    }
    adjust_paddings(mi);
    apply_widenings(mi);
}

void write_instruction(MethodRewriteState& mi, const Site& site, const uint8_t* code) {
    if (is_switch(site)) {
        write_switch(mi, site, code);
    } else if (site.kind == Site::kWideBranch) {
        write_u1(mi.ci, code[site.pc]);
        write_u4(mi.ci, static_cast<uint32_t>(new_offset(mi, site, static_cast<int32_t>(u4_at(code + site.pc + 1)))));
    } else {
        write_branch(mi, site, code);
    }
}

}  // namespace crw
