#include "plan.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "images.h"
#include "injection.h"
#include "opcodes.h"

namespace crw {

namespace {

// How far the plan steps over each opcode, and 0 for one that it has to look at: a branch, a switch, `wide`, no opcode
// at all, or in this method an instruction that something is injected at.
struct Steps {
    explicit Steps(const MethodRewriteState& mi) : length(kPlainLength) {
        if (mi.return_injection.len > 0) {
            std::fill(length.begin() + kIreturn, length.begin() + kReturnOpcode + 1, 0);
        }
        if (mi.newarray_injection.len > 0) {
            length[kNewarray] = length[kAnewarray] = length[kMultianewarray] = 0;
        }
    }
    std::array<uint8_t, 256> length;
};

[[noreturn]] void fail_at(MethodRewriteState& mi, size_t pc, const char* condition) {
    mi.ci.input_position = mi.start_of_input_bytecodes + pc;
    assertion_failed(mi.ci, condition);
}

class Planner {
  public:
    explicit Planner(MethodRewriteState& mi)
        : mi_(mi),
          code_(mi.ci.input + mi.start_of_input_bytecodes),
          code_len_(static_cast<uint32_t>(mi.code_len)),
          available_(std::min<size_t>(mi.ci.input_len - mi.start_of_input_bytecodes, UINT32_MAX)),
          shift_(mi.entry_injection.len) {}

    void plan() {
        const Steps steps(mi_);
        const size_t readable = std::min<size_t>(code_len_, available_);
        make_room(readable);
        size_t pc = 0;
        while (pc < readable) {
            const uint8_t step = steps.length[code_[pc]];
            pc = step != 0 ? pc + step : note(static_cast<uint32_t>(pc));
        }
        end_of_instruction(std::max<size_t>(pc, code_len_));
        move_up_to(code_len_ + 1);
    }

  private:
    // For the map, whose values are all written before they are read, and for the sites.
    void make_room(size_t code_size) {
        constexpr size_t kUsualSites = 256;
        constexpr size_t kUsualCode = 2048;
        ClassRewriteState& ci = mi_.ci;
        if (ci.map_size <= code_size) {
            ci.map_size = std::max(2 * code_size + 1, kUsualCode);
            ci.map.reset(new int32_t[ci.map_size]);
        }
        mi_.map = ci.map.get();
        mi_.sites.clear();
        mi_.sites.reserve(kUsualSites);
    }

    // Where an instruction ends. That must be inside the code, and inside the class file.
    uint32_t end_of_instruction(size_t pc_next) const {
        if (pc_next > available_) {
            fail_at(mi_, available_, kInsideImages);
        }
        if (pc_next > code_len_) {
            fail_at(mi_, pc_next, "pos <= mi->code_len");
        }
        return static_cast<uint32_t>(pc_next);
    }

    // Old pcs below `pc` move by the shift so far.
    void move_up_to(uint32_t pc) {
        std::iota(mi_.map + moved_, mi_.map + pc, static_cast<int32_t>(moved_) + shift_);
        moved_ = pc;
    }

    // Looks at one instruction, and lists it if it is a site. Returns the pc of the next one.
    uint32_t note(uint32_t pc) {
        const uint8_t opcode = code_[pc];
        switch (opcode) {
            case kIreturn:
            case kLreturn:
            case kFreturn:
            case kDreturn:
            case kAreturn:
            case kReturnOpcode:
                // The injection goes before the instruction, and the instruction's pc leads to the injection.
                mi_.sites.push_back({pc, pc, Site::kReturn, 0});
                need_stack(mi_, 2);
                move_up_to(pc + 1);
                shift_ += mi_.return_injection.len;
                return pc + 1;
            case kNewarray:
            case kAnewarray:
            case kMultianewarray: {
                // The injection goes before the next instruction, whose pc leads past the injection.
                const uint32_t pc_next = end_of_instruction(pc + length_of_array_creation(opcode));
                mi_.sites.push_back({pc_next, pc_next, Site::kNewArray, 0});
                need_stack(mi_, mi_.ci.newarray_takes_numbers ? 2 : 1);
                move_up_to(pc_next);
                shift_ += mi_.newarray_injection.len;
                return pc_next;
            }
            case kGotoW:
            case kJsrW:
                return note(pc, pc + 5, Site::kWideBranch);
            case kTableswitch:
                return note_table_switch(pc);
            case kLookupswitch:
                return note_lookup_switch(pc);
            case kWide:
                return end_of_instruction(pc + length_of_wide(pc));
            default:
                if (opcode > kLastOpcode) {
                    fatal_error(mi_.ci, "Invalid opcode supplied to opcode_length()");
                }
                return note(pc, pc + 3, Site::kBranch);
        }
    }

    uint32_t note(uint32_t pc, size_t pc_next, Site::Kind kind) {
        const uint32_t end = end_of_instruction(pc_next);
        mi_.sites.push_back({pc, end, kind, 0});
        return end;
    }

    uint32_t note_table_switch(uint32_t pc) {
        const size_t operands = switch_operands(pc);
        end_of_instruction(operands + 12);
        const auto low = static_cast<int32_t>(u4_at(code_ + operands + 4));
        const auto high = static_cast<int32_t>(u4_at(code_ + operands + 8));
        if (high < low) {
            fail_at(mi_, operands + 12, kInsideImages);
        }
        const auto count = static_cast<size_t>(int64_t{high} - low + 1);
        return note(pc, operands + 12 + 4 * count, Site::kTableSwitch);
    }

    uint32_t note_lookup_switch(uint32_t pc) {
        const size_t operands = switch_operands(pc);
        end_of_instruction(operands + 8);
        const auto pair_count = static_cast<int32_t>(u4_at(code_ + operands + 4));
        if (pair_count < 0) {
            fail_at(mi_, operands + 8, kInsideImages);
        }
        return note(pc, operands + 8 + 8 * static_cast<size_t>(pair_count), Site::kLookupSwitch);
    }

    [[nodiscard]] uint32_t length_of_wide(uint32_t pc) const {
        end_of_instruction(size_t{pc} + 2);
        const uint8_t modified = code_[pc + 1];
        if (modified == kIinc) {
            return 6;
        }
        const bool is_load_or_store = (modified >= kIload && modified <= kAload) ||
                                      (modified >= kIstore && modified <= kAstore) || modified == kRet;
        if (!is_load_or_store) {
            fatal_error(mi_.ci, "Invalid opcode supplied to wide opcode");
        }
        return 4;
    }

    MethodRewriteState& mi_;
    const uint8_t* code_;
    uint32_t code_len_;
    size_t available_;
    int32_t shift_;
    uint32_t moved_ = 0;  // the map is filled up to here
};

}  // namespace

void plan_new_code(MethodRewriteState& mi) {
    Planner(mi).plan();
}

}  // namespace crw
