#include "type_annotations.h"

#include <algorithm>
#include <vector>

#include "code_attribute.h"
#include "images.h"

namespace crw {

namespace {

// Thrown, and caught in this file, where an attribute is not well formed.
struct NotReadable {};

// Goes through a copy of the attribute, which keeps its size, and corrects the positions in it.
class Corrector {
  public:
    Corrector(const MethodRewriteState& mi, uint8_t* body, size_t size) : mi_(mi), at_(body), end_(body + size) {}

    void correct() {
        for (uint32_t left = u2(); left > 0; --left) {
            correct_target();
            skip(2 * size_t{u1()});  // type_path
            skip(2);                 // type_index
            skip_values(u2());
        }
    }

  private:
    uint8_t* take(size_t count) {
        if (static_cast<size_t>(end_ - at_) < count) {
            throw NotReadable{};
        }
        uint8_t* taken = at_;
        at_ += count;
        return taken;
    }
    void skip(size_t count) { (void)take(count); }
    uint32_t u1() { return *take(1); }
    uint32_t u2() { return u2_at(take(2)); }

    void correct_target() {
        // JVM specification, tables 4.7.20-A and 4.7.20-B. Only these can be in code.
        constexpr uint32_t kLocalVariable = 0x40;
        constexpr uint32_t kResourceVariable = 0x41;
        constexpr uint32_t kExceptionParameter = 0x42;
        constexpr uint32_t kInstanceof = 0x43;
        constexpr uint32_t kLastOffset = 0x46;  // instanceof, new and method references
        constexpr uint32_t kLastTypeArgument = 0x4B;
        const uint32_t type = u1();
        if (type == kLocalVariable || type == kResourceVariable) {
            for (uint32_t left = u2(); left > 0; --left) {
                correct_range(take(6));
            }
        } else if (type == kExceptionParameter) {
            skip(2);  // the exception table keeps its order
        } else if (type >= kInstanceof && type <= kLastTypeArgument) {
            correct_offset(take(2));
            skip(type > kLastOffset ? 1 : 0);
        } else {
            throw NotReadable{};
        }
    }

    void correct_offset(uint8_t* offset) const {
        const uint32_t pc = u2_at(offset);
        require_pc(pc);
        put_u2(offset, static_cast<uint32_t>(mi_.map[pc]));
    }

    // start_pc and length of a local variable, as in a LocalVariableTable.
    void correct_range(uint8_t* range) const {
        const uint32_t start_pc = u2_at(range);
        const uint32_t end_pc = start_pc + u2_at(range + 2);
        require_pc(end_pc);
        const int32_t start = new_start(mi_, static_cast<uint16_t>(start_pc));
        put_u2(range, static_cast<uint32_t>(start));
        put_u2(range + 2, static_cast<uint32_t>(mi_.map[end_pc] - start));
    }

    void require_pc(uint32_t pc) const {
        if (pc > static_cast<uint32_t>(mi_.code_len)) {
            throw NotReadable{};
        }
    }

    // Skips the values of an annotation, each of which has a name. They may be nested so deep that recursion would use
    // up the stack.
    void skip_values(uint32_t named) {
        struct Open {
            uint32_t left;
            bool have_names;
        };
        std::vector<Open> open = {{named, true}};
        while (!open.empty()) {
            if (open.back().left == 0) {
                open.pop_back();
                continue;
            }
            --open.back().left;
            skip(open.back().have_names ? 2 : 0);
            switch (u1()) {
                case 'e':
                    skip(4);
                    break;
                case '@':
                    skip(2);
                    open.push_back({u2(), true});
                    break;
                case '[':
                    open.push_back({u2(), false});
                    break;
                default:
                    skip(2);
            }
        }
    }

    const MethodRewriteState& mi_;
    uint8_t* at_;
    uint8_t* end_;
};

}  // namespace

void write_type_annotations(MethodRewriteState& mi, uint32_t attr_len) {
    ClassRewriteState& ci = mi.ci;
    const uint8_t* old_body = read_bytes(ci, attr_len);
    uint8_t* body = room_for(ci, attr_len);
    std::copy_n(old_body, attr_len, body);
    try {
        Corrector(mi, body, attr_len).correct();
    } catch (const NotReadable&) {
        std::copy_n(old_body, attr_len, body);
    }
}

}  // namespace crw
