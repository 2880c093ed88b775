// Instructions at random for code that a verifier takes: each finds what it needs on the stack, or has it pushed first.
#ifndef VANTREL_RANDOM_INSTRUCTIONS_H
#define VANTREL_RANDOM_INSTRUCTIONS_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "class_builder.h"
#include "typed_code.h"

namespace verifiable_classes {

// The bytes, one after the other, and zeros when they are used up.
struct Choices {
    std::span<const std::uint8_t> left;

    std::size_t below(std::size_t limit) {
        std::size_t value = 0;
        for (std::size_t reach = 1; reach < limit && !left.empty(); reach *= 256) {
            value = value * 256 + left[0];
            left = left.subspan(1);
        }
        return value % limit;
    }
    std::size_t between(std::size_t first, std::size_t last) { return first + below(last - first + 1); }
    bool one_in(std::size_t count) { return below(count) == count - 1; }
};

// The names of classes, as constants have them.
inline constexpr std::array<const char*, 7> class_names = {
    "java/lang/Object", "java/lang/String", "some/Thing", "some/other/Thing$Inner", "[I", "[[J", "[Lsome/Thing;"};

struct RandomInstructions {
    Choices& choices;
    class_builder::ClassFile& file;
    typed_code::TypedCode& code;
    std::size_t used_locals;  // these first ones are what random choices are among

    std::string any_class();
    // Pushes a value of the type that a letter stands for: I, J, F, D, or A for a reference.
    void push(char letter);
    static std::string described(const std::string& name);
    static std::string described(const typed_code::Type& t);
    // Sees to it that values of these types are on top of the stack.
    void need(std::string_view letters);
    // The instructions from iadd to dcmpg.
    void calculate();
    void duplicate();
    void drop();
    // As often as not an object whose constructor has not been called yet.
    void push_anything();
    bool is_before_construction();
    void store();
    // Calls with what is on the stack, down to an object that is to be initialised if there is one there.
    void invoke();
    void access_field();
    // Loads from an array and stores into one: iaload to saload, iastore to sastore.
    void access_array();
    void look_at_reference();

    class_builder::ConstantPool& pool() { return file.pool; }
    std::vector<typed_code::Type>& stack() { return code.state.stack; }
    std::vector<typed_code::Type>& locals() { return code.state.locals; }

  private:
    // The place of a local of such a type, or none.
    template <typename Wanted>
    std::optional<std::size_t> local(const Wanted& is_wanted) {
        const std::size_t first = choices.below(used_locals);
        for (std::size_t i = 0; i < used_locals; ++i) {
            const std::size_t index = (first + i) % used_locals;
            if (is_wanted(locals()[index])) {
                return index;
            }
        }
        return std::nullopt;
    }

    void push_reference();
    void make_array();
    void apply(unsigned opcode, std::string_view takes, char gives);
    std::size_t slots(std::size_t values);
    void initialize(const std::string& descriptor, std::size_t arguments);
};

}  // namespace verifiable_classes

#endif
