// One method's Code attribute (JVM specification, section 4.7.3): whether it is instrumented, which tracker calls go
// where, and where every old pc goes.
#ifndef JAVA_CRW_DEMO_INJECTION_H
#define JAVA_CRW_DEMO_INJECTION_H

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "class_rewrite_state.h"

namespace crw {

// The bytes of one tracker call. The longest pushes two 16-bit values, with 3 bytes each, and invokes.
struct InjectionTemplate {
    std::array<uint8_t, 9> code{};
    uint8_t len = 0;
};

// One method that is being rewritten.
struct MethodRewriteState {
    ClassRewriteState& ci;
    uint32_t number;  // in the order of the class file, from 0
    std::string_view name;
    size_t start_of_input_bytecodes;
    int32_t code_len;
    int32_t new_code_len = 0;
    int32_t max_stack;
    int32_t new_max_stack;
    bool object_init_method;      // java.lang.Object's constructor
    bool skip_call_return_sites;  // it has no call or return injections

    InjectionTemplate entry_injection{};
    InjectionTemplate return_injection{};
    InjectionTemplate newarray_injection{};

    std::vector<int32_t>& map;  // new pc by old pc, with an entry for the end; a pc inside an instruction moves with it
    std::vector<Site>& sites;   // in the order of the code

    // The new pc of an old one.
    [[nodiscard]] int32_t new_pc(uint32_t pc) const {
        require(ci, pc <= static_cast<uint32_t>(code_len), "pos <= mi->code_len");
        return map[pc];
    }
};

// Rewrites a Code attribute, with the cursors behind its name.
void method_write_bytecodes(ClassRewriteState& ci, uint32_t number);

}  // namespace crw

#endif
