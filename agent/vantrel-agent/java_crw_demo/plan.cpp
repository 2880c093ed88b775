#include "plan.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "images.h"
#include "injection.h"
#include "opcodes.h"

namespace crw {

namespace {

// By opcode, how many bytes the plan steps over, or 0 where it has to look at the instruction: a branch, a switch,
// `wide`, an opcode that does not exist, or an instruction of a kind that this method's calls are injected at.
using Steps = std::array<uint8_t, 256>;

constexpr Steps make_steps(bool into_returns, bool into_arrays) {
    Steps steps = kPlainLength;
    if (into_returns) {
        std::fill(steps.begin() + kIreturn, steps.begin() + kReturnOpcode + 1, uint8_t{0});
    }
    if (into_arrays) {
        steps[kNewarray] = steps[kAnewarray] = steps[kMultianewarray] = 0;
    }
    return steps;
}

const Steps& steps_of(const Injections& calls) {
    static constexpr Steps kSteps[2][2] = {{make_steps(false, false), make_steps(false, true)},
                                           {make_steps(true, false), make_steps(true, true)}};
    return kSteps[calls.at_return.len > 0 ? 1 : 0][calls.newarray.len > 0 ? 1 : 0];
}

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
          shift_(mi.injections.entry.len) {}

    void plan() {
        const uint8_t* steps = steps_of(mi_.injections).data();
        const size_t readable = std::min<size_t>(code_len_, available_);
        make_room(readable);
        size_t pc = 0;
        while (pc < readable) {
            const uint8_t step = steps[code_[pc]];
            move(pc);
            pc = step != 0 ? pc + step : note(static_cast<uint32_t>(pc));
        }
        end_of_instruction(std::max<size_t>(pc, code_len_));
        move(code_len_);
        mi_.sites = {sites_, site_};
    }

  private:
    static constexpr size_t kEntriesAtOnce = 8;

    // The room for the map, whose entries have no values before they are written, and for a site at each byte.
    void make_room(size_t code_size) {
        mi_.map = mi_.ci.map_room.for_elements(code_size + kEntriesAtOnce);
        sites_ = mi_.ci.sites_room.for_elements(code_size);
        site_ = sites_;
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

    // Enters an instruction of at most 8 bytes into the map, by 8 entries whatever its length: the surplus is
    // overwritten by what follows.
    void move(size_t pc) const {
        int32_t* entries = mi_.map + pc;
        const int32_t new_pc = static_cast<int32_t>(pc) + shift_;
        for (int32_t i = 0; i < static_cast<int32_t>(kEntriesAtOnce); ++i) {
            entries[i] = new_pc + i;
        }
    }

    // Enters an instruction of any length.
    void move(size_t pc, size_t pc_next) const {
        for (; pc < pc_next; pc += kEntriesAtOnce) {
            move(pc);
        }
    }

    // Looks at one instruction, and lists it if it becomes a site. Returns the pc of the next one.
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
                add({pc, pc, Site::kReturn, 0});
                need_stack(mi_, 2);
                shift_ += mi_.injections.at_return.len;
                return pc + 1;
            case kNewarray:
            case kAnewarray:
            case kMultianewarray: {
                // The injection goes before the next instruction, whose pc leads past the injection.
                const uint32_t pc_next = end_of_instruction(pc + length_of_array_creation(opcode));
                add({pc_next, pc_next, Site::kNewArray, 0});
                need_stack(mi_, mi_.ci.newarray_takes_numbers ? 2 : 1);
                shift_ += mi_.injections.newarray.len;
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

    void add(Site site) { *site_++ = site; }

    uint32_t note(uint32_t pc, size_t pc_next, Site::Kind kind) {
        const uint32_t end = end_of_instruction(pc_next);
        add({pc, end, kind, 0});
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
        const uint32_t end = note(pc, operands + 12 + 4 * count, Site::kTableSwitch);
        move(pc, end);
        return end;
    }

    uint32_t note_lookup_switch(uint32_t pc) {
        const size_t operands = switch_operands(pc);
        end_of_instruction(operands + 8);
        const auto pair_count = static_cast<int32_t>(u4_at(code_ + operands + 4));
        if (pair_count < 0) {
            fail_at(mi_, operands + 8, kInsideImages);
        }
        const uint32_t end = note(pc, operands + 8 + 8 * static_cast<size_t>(pair_count), Site::kLookupSwitch);
        move(pc, end);
        return end;
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
    Site* sites_ = nullptr;
    Site* site_ = nullptr;  // the next one
};

}  // namespace

void plan_new_code(MethodRewriteState& mi) {
    Planner(mi).plan();
}

}  // namespace crw
