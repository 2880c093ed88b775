#include "relocation.h"

#include <algorithm>
#include <cstdint>

#include "images.h"
#include "opcodes.h"

namespace crw {

namespace {

constexpr int32_t kFarthestForward = INT16_MAX;
constexpr int32_t kFarthestBack = INT16_MIN;

constexpr int8_t kGrowthOfGoto = 2;         // goto_w, jsr_w
constexpr int8_t kGrowthOfConditional = 5;  // a goto_w after the opposite condition
constexpr int32_t kLargestPaddingChange = 3;

bool fits(int32_t offset) {
    return offset >= kFarthestBack && offset <= kFarthestForward;
}

bool is_switch(const Site& site) {
    return site.kind == Site::kTableSwitch || site.kind == Site::kLookupSwitch;
}

int32_t padding_at(int32_t pc) {
    return 3 - (pc & 3);
}

int8_t growth_of(uint8_t opcode) {
    return opcode == kGoto || opcode == kJsr ? kGrowthOfGoto : kGrowthOfConditional;
}

int16_t offset_of(const Site& site, const uint8_t* code) {
    return static_cast<int16_t>(u2_at(code + site.pc + 1));
}

// The old pc that a branch at an old pc leads to. One outside the code is a large number.
uint32_t target_of(const Site& site, int32_t offset) {
    return site.pc + static_cast<uint32_t>(offset);
}

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
    auto from = mi.map.begin();
    for (const Site& site : mi.sites) {
        if (site.widening != 0) {
            const auto here = mi.map.begin() + site.pc_next;
            std::for_each(from, here, [shift](int32_t& pc) { pc += shift; });
            from = here;
            shift += site.widening;
        }
    }
    std::for_each(from, mi.map.begin() + mi.code_len + 1, [shift](int32_t& pc) { pc += shift; });
}

// For code in which no branch can become too long. The paddings follow one from the other.
void adjust_paddings(MethodRewriteState& mi) {
    int32_t shift = 0;
    for (Site& site : mi.sites) {
        if (is_switch(site)) {
            const auto pc = static_cast<int32_t>(site.pc);
            site.widening = static_cast<int8_t>(padding_at(mi.map[site.pc] + shift) - padding_at(pc));
            shift += site.widening;
        }
    }
}

// A site of which it is not known yet how much it grows.
struct Candidate {
    Site* site;
    int32_t new_pc;      // as the map has it before any widening
    int32_t offset;      // of a branch, before any widening
    size_t before;       // how many candidates end at or before the target of a branch
    int8_t full_growth;  // by how much a branch grows when it does
};

// Switches, and the branches that may become too long.
std::vector<Candidate> find_candidates(MethodRewriteState& mi, const uint8_t* code, const Outlook& outlook) {
    const int32_t growth = outlook.longest_new_code - mi.map[mi.code_len];
    std::vector<Candidate> candidates;
    for (Site& site : mi.sites) {
        const int32_t new_pc = mi.map[site.pc];
        if (is_switch(site)) {
            candidates.push_back({&site, new_pc, 0, 0, 0});
        } else if (site.kind == Site::kBranch) {
            const int32_t offset = mi.map[target_of(site, offset_of(site, code))] - new_pc;
            if (!fits(offset - growth) || !fits(offset + growth)) {
                candidates.push_back({&site, new_pc, offset, 0, growth_of(code[site.pc])});
            }
        }
    }
    for (Candidate& candidate : candidates) {
        if (candidate.site->kind == Site::kBranch) {
            const uint32_t target = target_of(*candidate.site, offset_of(*candidate.site, code));
            candidate.before = static_cast<size_t>(
                std::partition_point(candidates.begin(), candidates.end(),
                                     [target](const Candidate& other) { return other.site->pc_next <= target; }) -
                candidates.begin());
        }
    }
    return candidates;
}

// The widening that a candidate needs. `shifts` says by how much the candidates before a place have grown so far.
int8_t wanted(const Candidate& candidate, size_t own, const std::vector<int32_t>& shifts) {
    const Site& site = *candidate.site;
    if (is_switch(site)) {
        return static_cast<int8_t>(padding_at(candidate.new_pc + shifts[own]) -
                                   padding_at(static_cast<int32_t>(site.pc)));
    }
    // A branch that has grown stays so.
    const bool grows = site.widening != 0 || !fits(candidate.offset + shifts[candidate.before] - shifts[own]);
    return grows ? candidate.full_growth : int8_t{0};
}

void adjust_branches_and_paddings(MethodRewriteState& mi, const uint8_t* code, const Outlook& outlook) {
    const std::vector<Candidate> candidates = find_candidates(mi, code, outlook);
    // shifts[n]: by how much the first n candidates have grown, all together.
    std::vector<int32_t> shifts(candidates.size() + 1, 0);
    for (size_t i = 0; i < candidates.size();) {
        Site& site = *candidates[i].site;
        const int8_t widening = wanted(candidates[i], i, shifts);
        const int32_t change = widening - site.widening;
        if (change == 0) {
            ++i;
            continue;
        }
        site.widening = widening;
        std::for_each(shifts.begin() + static_cast<std::ptrdiff_t>(i) + 1, shifts.end(),
                      [change](int32_t& shift) { shift += change; });
        i = 0;
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
        adjust_branches_and_paddings(mi, code, outlook);
    } else if (outlook.has_switch) {
        adjust_paddings(mi);
    } else {
        return;
    }
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
