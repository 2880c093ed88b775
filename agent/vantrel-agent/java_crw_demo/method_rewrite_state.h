// The record of the method that is being rewritten, and the rule by which everything in it moves.
//
// A pc is a position in a method's code. The code grows where a tracker call is injected and where a branch or switch
// takes more room, and so everything that stands in pcs has to be translated. One table does that: `map`, from each
// old pc to the new one, with one entry more for the end of the code. What a pc is used for decides what it means that
// something was injected there:
//
//     method entry          The entry's call stands before map[0]: a branch back to the first instruction does not
//                           run it again.
//     return instruction    Its call stands at map[pc], before the instruction: a branch to the return runs it.
//     array creation        Its call stands after the instruction and before map[pc_next]: a branch to what follows
//                           does not run it.
//     branch, switch        From map[pc] to map[target]. map[pc] is the instruction itself.
//     exception range       From map[start_pc] to map[end_pc], handled at map[handler_pc]: the entry's call is not in
//                           a range that starts at pc 0, a return's is not in one that ends at the return.
//     line, variable        From map[start_pc] on, except that what starts at pc 0 stays there, so that the entry's
//                           call belongs to the first line. A variable ends at map[start_pc + length].
//     type annotation       At map[pc] of its instruction, or over a variable's range as above.
//     stack map frame       At map[pc], and so is the `new` that an uninitialised type names.
//
// The plan (plan.h) fills the map as far as injections move the code, relocation (relocation.h) adds what branches and
// switches grow, and from then on it is only read.
#ifndef JAVA_CRW_DEMO_METHOD_REWRITE_STATE_H
#define JAVA_CRW_DEMO_METHOD_REWRITE_STATE_H

#include <cstdint>
#include <span>
#include <string_view>

#include "class_rewrite_state.h"
#include "failure.h"
#include "site.h"

namespace crw {

// No VM loads longer code (JVM specification, section 4.9.1), and the map's arithmetic is not made for it.
constexpr uint32_t kLongestCode = 0xFFFF;

struct MethodRewriteState {
    ClassRewriteState& ci;
    uint32_t number;        // in the order of the class file, from 0
    std::string_view name;  // as the class file has it
    std::string_view descriptor;
    uint16_t access_flags;
    uint16_t max_locals;
    size_t start_of_input_bytecodes;
    int32_t code_len;
    int32_t new_code_len = 0;
    int32_t max_stack;
    int32_t new_max_stack;
    bool object_init_method;  // java.lang.Object's constructor, which has no call or return injections

    const Injections& injections;

    int32_t* map = nullptr;   // a pc inside an instruction has an entry, too, and moves with it
    std::span<Site> sites{};  // in the order of the code

    // The new pc of an old one. Fails for a pc that is not in the code.
    [[nodiscard]] int32_t new_pc(uint32_t pc) const {
        require(ci, pc <= static_cast<uint32_t>(code_len), "pos <= mi->code_len");
        return map[pc];
    }
};

}  // namespace crw

#endif
