#include "walk.h"

#include <string_view>
#include <vector>

#include "images.h"
#include "opcodes.h"

namespace {

using crw::u2_at;
using crw::u4_at;

struct Walker {
    const std::uint8_t* at;
    std::size_t steps = 0;
    std::uint32_t code_name = 0;  // the index of "Code"

    void constants() {
        static constexpr std::uint8_t kSizes[] = {0, 3, 0, 5, 5, 9, 9, 3, 3, 5, 5, 5, 5, 0, 0, 4, 3, 5, 5, 3, 3};
        const std::uint32_t count = u2_at(at);
        at += 2;
        for (std::uint32_t index = 1; index < count; ++index, ++steps) {
            const std::uint8_t tag = *at;
            if (tag == 1) {
                const std::string_view text(reinterpret_cast<const char*>(at) + 3, u2_at(at + 1));
                code_name = text == "Code" ? index : code_name;
                at += 3 + text.size();
            } else {
                at += kSizes[tag];
                index += tag == 5 || tag == 6 ? 1 : 0;
            }
        }
    }

    // `look_into` is given the place of each attribute.
    template <typename LookInto>
    void attributes(const LookInto& look_into) {
        std::uint32_t left = u2_at(at);
        for (at += 2; left > 0; --left, ++steps) {
            const std::uint8_t* attribute = at;
            look_into(attribute);
            at = attribute + 6 + u4_at(attribute + 2);
        }
    }

    void plain_attributes() {
        attributes([](const std::uint8_t*) {});
    }

    void member_attributes() {
        attributes([this](const std::uint8_t* attribute) {
            // In a Code attribute code_length has the offset 10, and the code 14 (JVM specification, 4.7.3).
            if (u2_at(attribute) == code_name) {
                const std::uint32_t code_length = u4_at(attribute + 10);
                instructions(attribute + 14, code_length);
                at = attribute + 14 + code_length;
                at += 2 + 8 * u2_at(at);  // the exception table
                plain_attributes();
            }
        });
    }

    void members() {
        std::uint32_t left = u2_at(at);
        for (at += 2; left > 0; --left, ++steps) {
            at += 6;
            member_attributes();
        }
    }

    void instructions(const std::uint8_t* code, std::uint32_t length) {
        for (std::uint32_t pc = 0; pc < length; ++steps) {
            const std::uint32_t plain = crw::kPlainLength[code[pc]];
            pc += plain != 0 ? plain : other_length(code, pc);
        }
    }

    static std::uint32_t other_length(const std::uint8_t* code, std::uint32_t pc) {
        const std::uint8_t* operands = code + crw::switch_operands(pc);
        switch (code[pc]) {
            case crw::kWide:
                return code[pc + 1] == crw::kIinc ? 6 : 4;
            case crw::kGotoW:
            case crw::kJsrW:
                return 5;
            case crw::kTableswitch:
                return crw::switch_operands(pc) - pc + 12 + 4 * (u4_at(operands + 8) - u4_at(operands + 4) + 1);
            case crw::kLookupswitch:
                return crw::switch_operands(pc) - pc + 8 + 8 * u4_at(operands + 4);
            default:
                return 3;
        }
    }
};

}  // namespace

std::size_t walk(const Image& image) {
    Walker walker{image.data() + 8};
    walker.constants();
    walker.at += 6;                         // access_flags, this_class, super_class
    walker.at += 2 + 2 * u2_at(walker.at);  // interfaces
    walker.members();                       // fields
    walker.members();                       // methods
    walker.plain_attributes();
    return walker.steps;
}
