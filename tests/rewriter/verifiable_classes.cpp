#include "verifiable_classes.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <optional>
#include <random>
#include <string_view>
#include <utility>

#include "random_instructions.h"
#include "typed_code.h"

namespace verifiable_classes {

using namespace class_builder;  // a generator is nearly all builder calls
using namespace typed_code;

namespace {

// How far a branch with an offset of two bytes reaches, less what one step may add before the branch's label is placed.
constexpr std::size_t farthest = 32767 - 300;
constexpr std::size_t longest_result = 63000;

struct Maker {
    RandomInstructions instructions;
    Choices& choices;
    ClassFile& file;
    TypedCode& code;
    Type returned;
    std::size_t wanted;  // bytes of the new code, about

    std::vector<Type>& stack() { return code.state.stack; }

    // A branch that takes what it looks at, and how many values that is.
    std::pair<unsigned, std::size_t> condition() {
        const std::size_t n = choices.below(16);
        if (n < 6) {
            instructions.need("I");
            return {op::ifeq + static_cast<unsigned>(n), 1};
        }
        if (n < 12) {
            instructions.need("II");
            return {op::if_icmpeq + static_cast<unsigned>(n - 6), 2};
        }
        if (n < 14) {
            instructions.need("AA");
            return {op::if_acmpeq + static_cast<unsigned>(n - 12), 2};
        }
        instructions.need("A");
        return {op::ifnull + static_cast<unsigned>(n - 14), 1};
    }

    // A pending label that can be reached from here, or else a new one.
    std::size_t label(std::size_t pops) {
        if (!code.pending.empty() && choices.one_in(2)) {
            const std::size_t first = choices.below(code.pending.size());
            if (code.can_reach(code.pending[first], pops)) {
                return first;
            }
        }
        return code.new_label();
    }

    void branch() {
        const auto [opcode, pops] = condition();
        if (choices.one_in(4) && !code.targets.empty()) {
            const std::size_t n = code.targets.size();
            const Target target = code.targets[choices.one_in(2) ? n - 1 : choices.below(n)];
            if (code.can_return_to(target, pops)) {
                return code.branch_back(opcode, pops, target);
            }
        }
        code.branch(opcode, pops, label(pops));
    }

    // Ends the code that is reachable here: by a return, a jump, a switch or a throw.
    void stop() {
        const std::size_t n = choices.below(6);
        if (n == 0 && !instructions.is_before_construction()) {
            code.growth += 9;
            return leave();
        }
        if (n == 1) {
            code.growth += 2;
            code.branch(op::goto_, 0, label(0));
            return code.stop();
        }
        if (n < 4) {
            instructions.need("I");
            std::vector<std::size_t> labels;
            for (std::size_t i = choices.between(1, 4); i > 0; --i) {
                labels.push_back(label(1));
                // The first branch to a label decides its types.
                code.pending[labels.back()].state = code.pending[labels.back()].state.value_or(below_top());
            }
            std::vector<std::size_t> back;
            if (!code.targets.empty()) {
                const Target& target = code.targets[choices.below(code.targets.size())];
                if (code.can_return_to(target, 1)) {
                    back.push_back(target.pc);
                }
            }
            return code.switch_to(n == 2, labels, back);
        }
        code.emit({op::aconst_null}, 0, {{Type::null}});
        code.emit({op::athrow}, 1);
        code.stop();
    }

    State below_top() const {
        State below = code.state;
        below.stack.pop_back();
        return below;
    }

    void leave() {
        if (returned.tag == Type::top) {
            code.emit({op::return_});
        } else if (returned.tag == Type::null) {
            instructions.need("A");
            code.emit({op::areturn}, 1);
        } else {
            constexpr std::string_view letters = "IJFD";
            const std::size_t kind = returned.tag == Type::integer  ? 0
                                     : returned.tag == Type::long_  ? 1
                                     : returned.tag == Type::float_ ? 2
                                                                    : 3;
            instructions.need(letters.substr(kind, 1));
            code.emit(u1(static_cast<std::int64_t>(op::ireturn + kind)), 1);
        }
        code.stop();
    }

    // Puts a pending label here. If its types do not fit those of the code before it, that code must end first.
    void place(std::size_t number) {
        if (code.is_reachable && (!code.can_reach(code.pending[number], 0) || choices.one_in(4))) {
            code.emit({op::aconst_null}, 0, {{Type::null}});
            code.emit({op::athrow}, 1);
            code.stop();
        }
        code.place(number);
    }

    std::size_t planned() const { return code.bytes.size() + code.growth; }

    // What makes methods long: the same thing again and again, which changes no types.
    void fill() {
        static const std::array<Bytes, 4> parts = {
            Bytes{op::iconst_5, op::newarray, 10, op::pop},
            Bytes{op::iconst_5, op::pop},
            Bytes{op::nop},
            Bytes{op::iconst_5, op::iconst_5, op::iadd, op::pop},
        };
        const Bytes& part = parts.at(choices.below(parts.size()));
        const std::size_t growth = part[1 % part.size()] == op::newarray ? 4 : 0;
        constexpr std::array<std::size_t, 6> most = {8, 200, 2000, 8000, 16000, 32000};
        std::size_t bytes = choices.between(1, most.at(choices.below(most.size())));
        bytes = std::min(bytes, farthest - std::min(farthest, code.longest_way()));
        const std::size_t room = wanted - std::min(wanted, planned());
        std::size_t count = std::min(bytes, room) / part.size();
        count = growth == 0 ? count : std::min(count, room / (part.size() + growth));
        if (count > 0) {
            code.emit({}, 0, {{Type::integer}, {Type::integer}});  // room on the stack
            code.emit(times(count, part), 2);
            code.growth += growth * count;
        }
    }

    void step() {
        switch (choices.below(20)) {
            case 0:
                return fill();
            case 1:
                return instructions.calculate();
            case 2:
            case 3:
            case 4:
                return branch();
            case 5:
                return code.pending.empty() ? code.place_frame() : place(choices.below(code.pending.size()));
            case 6:
                return choices.one_in(2) ? stop() : code.place_frame();
            case 7:
            case 8:
                return instructions.store();
            case 9:
            case 10:
                return instructions.push_anything();
            case 11:
            case 12:
                return instructions.invoke();
            case 13:
                return instructions.calculate();
            case 14:
                return instructions.duplicate();
            case 15:
                return instructions.access_field();
            case 16:
                return instructions.access_array();
            case 17:
                return instructions.look_at_reference();
            case 18:
                return instructions.drop();
            default:
                return code.range.empty() ? code.begin_range() : code.end_range(0);
        }
    }

    void make() {
        constexpr std::size_t highest = 24;
        while (!choices.left.empty() && planned() < wanted) {
            if (code.longest_way() >= farthest) {
                place(farthest_pending());
            } else if (!code.is_reachable) {
                // Code needs a frame even if nothing leads to it.
                code.pending.empty() ? code.place_frame() : place(choices.below(code.pending.size()));
            } else if (stack().size() > highest) {
                instructions.drop();
            } else {
                step();
            }
        }
        if (!code.range.empty()) {
            code.end_range(0);
        }
        while (!code.pending.empty()) {
            place(farthest_pending());
        }
        if (code.is_reachable) {
            code.emit({op::aconst_null}, 0, {{Type::null}});
            code.emit({op::athrow}, 1);
        }
    }

    std::size_t farthest_pending() const {
        const auto first = [](const Label& l) { return l.branches.empty() ? SIZE_MAX : l.branches.front(); };
        const auto found = std::ranges::min_element(code.pending, {}, first);
        return static_cast<std::size_t>(found - code.pending.begin());
    }
};
}  // namespace

ClassFile from_choices(std::span<const std::uint8_t> choice_bytes, const std::string& name) {
    Choices choices{choice_bytes};
    ClassFile file;
    file.name = name;
    // From the first version whose stack maps must hold, up to what all VMs of today read.
    file.major = static_cast<unsigned>(choices.between(51, 61));
    const Bytes handle = u2(file.pool.method_handle(6, file.pool.method_ref("some/Thing", "bootstrap", "()V")));
    file.attributes = {{"BootstrapMethods", cat({u2(1), handle, u2(0)})}};

    const std::size_t kind = choices.below(3);  // static, of an object, a constructor
    Member method{.access = kind == 0 ? 0x0009U : 0x0001U, .name = kind == 2 ? "<init>" : "m"};
    State arguments;
    if (kind == 1) {
        arguments.locals.push_back(object(name));
    } else if (kind == 2) {
        arguments.locals.push_back({Type::uninitialized_this});
    }
    method.descriptor.assign(1, '(');
    for (std::size_t i = choices.below(6); i > 0; --i) {
        constexpr std::string_view letters = "IJFDZA";
        const char letter = letters[choices.below(letters.size())];
        const std::string of = class_names.at(choices.below(class_names.size()));
        const Type argument = letter == 'A' ? object(of) : of_letter(letter);
        method.descriptor += letter == 'A' ? RandomInstructions::described(of) : std::string(1, letter);
        arguments.locals.push_back(argument);
        if (argument.is_two_slots()) {
            arguments.locals.push_back({Type::second_slot});
        }
    }
    Type returned;
    method.descriptor.push_back(')');
    const std::size_t result = kind == 2 ? 0 : choices.below(6);
    method.descriptor += result == 5 ? std::string("Ljava/lang/Object;") : std::string(1, "VIJFD"[result]);
    returned = result == 0 ? Type{} : of_letter("VIJFDN"[result]);

    const std::size_t max_locals = choices.one_in(4) ? 300 : choices.between(16, 40);
    TypedCode code(arguments, max_locals);
    Maker maker{.instructions = {.choices = choices, .file = file, .code = code, .used_locals = max_locals},
                .choices = choices,
                .file = file,
                .code = code,
                .returned = returned,
                .wanted = longest_result - choices.below(3) * 12000};
    maker.make();
    arguments.locals.resize(max_locals);
    method.code = code.finish(file.pool, arguments, [&] { return !choices.one_in(4); });
    file.methods = {method};
    return file;
}

std::vector<std::uint8_t> random_choices(std::uint64_t seed) {
    std::mt19937_64 engine(seed);
    std::vector<std::uint8_t> choices(300 + engine() % 2500);
    std::ranges::generate(choices, [&] { return static_cast<std::uint8_t>(engine()); });
    return choices;
}

}  // namespace verifiable_classes
