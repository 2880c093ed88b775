#include "verifiable_classes.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <optional>
#include <random>
#include <string_view>
#include <utility>

#include "typed_code.h"

namespace verifiable_classes {

using namespace class_builder;  // a generator is nearly all builder calls
using namespace typed_code;

namespace {

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

constexpr std::array<const char*, 7> class_names = {
    "java/lang/Object", "java/lang/String", "some/Thing", "some/other/Thing$Inner", "[I", "[[J", "[Lsome/Thing;"};

// A branch with an offset of two bytes reaches so far, less what one step below may add before it is placed.
constexpr std::size_t farthest = 32767 - 300;
constexpr std::size_t longest_result = 63000;

struct Maker {
    Choices choices;
    ClassFile& file;
    TypedCode code;
    Type returned;
    std::size_t wanted;       // bytes of the new code, about
    std::size_t used_locals;  // these first ones are what random choices are among

    ConstantPool& pool() { return file.pool; }
    std::vector<Type>& stack() { return code.state.stack; }
    std::vector<Type>& locals() { return code.state.locals; }

    std::string any_class() { return class_names.at(choices.below(class_names.size())); }

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

    // Pushes a value of the type that a letter stands for: I, J, F, D, or A for a reference.
    void push(char letter) {
        const Type wanted = of_letter(letter);
        if (choices.one_in(2)) {
            const auto index = local([&](const Type& t) { return letter == 'A' ? t.is_reference() : t == wanted; });
            if (index) {
                return code.load(*index);
            }
        }
        if (letter == 'A') {
            return push_reference();
        }
        const auto n = static_cast<unsigned>(choices.below(4));
        switch (letter) {
            case 'J':
                return n < 2 ? code.emit(u1(9 + n), 0, {wanted})
                             : code.emit(cat({u1(20), u2(pool().long_(n))}), 0, {wanted});
            case 'F':
                return n < 3 ? code.emit(u1(11 + n), 0, {wanted})
                             : code.emit(cat({u1(op::ldc_w), u2(pool().float_bits(n))}), 0, {wanted});
            case 'D':
                return n < 2 ? code.emit(u1(14 + n), 0, {wanted})
                             : code.emit(cat({u1(20), u2(pool().double_bits(n))}), 0, {wanted});
            default:
                return n == 0   ? code.emit({op::iconst_5}, 0, {wanted})
                       : n == 1 ? code.emit({op::bipush, 9}, 0, {wanted})
                       : n == 2 ? code.emit({op::sipush, 9, 9}, 0, {wanted})
                                : code.emit(cat({u1(op::ldc_w), u2(pool().integer(n))}), 0, {wanted});
        }
    }

    void push_reference() {
        const std::string name = any_class();
        const auto constant = [&](std::size_t index, const char* type) {
            code.emit(cat({u1(op::ldc_w), u2(static_cast<std::int64_t>(index))}), 0, {object(type)});
        };
        switch (choices.below(8)) {
            case 0:
                return code.emit({op::aconst_null}, 0, {{Type::null}});
            case 1:
                return constant(pool().string("text"), "java/lang/String");
            case 2:
                return constant(pool().class_(name), "java/lang/Class");
            case 3:
                return constant(pool().method_type("(J)V"), "java/lang/invoke/MethodType");
            case 4:
                return constant(pool().method_handle(6, pool().method_ref("some/Thing", "made", "()V")),
                                "java/lang/invoke/MethodHandle");
            case 5:
                return make_array();
            case 6:
                return code.emit(cat({u1(op::getstatic), u2(pool().field_ref("some/Thing", "f", described(name)))}), 0,
                                 {object(name)});
            default:
                return code.emit(
                    cat({u1(op::invokedynamic), u2(pool().invoke_dynamic(0, "d", "()" + described(name))), u2(0)}), 0,
                    {object(name)});
        }
    }

    static std::string described(const std::string& name) { return name[0] == '[' ? name : "L" + name + ";"; }

    static std::string described(const Type& t) {
        switch (t.tag) {
            case Type::long_:
                return "J";
            case Type::float_:
                return "F";
            case Type::double_:
                return "D";
            case Type::object:
                return described(t.name);
            case Type::null:
                return "Ljava/lang/Object;";
            default:
                return "I";
        }
    }

    void make_array() {
        code.growth += 4;
        push('I');
        switch (choices.below(3)) {
            case 0: {
                const std::size_t kind = choices.below(8);
                return code.emit({op::newarray, static_cast<std::uint8_t>(4 + kind)}, 1,
                                 {object(std::string("[") + "ZCFDBSIJ"[kind])});
            }
            case 1: {
                const std::string name = any_class();
                return code.emit(cat({u1(op::anewarray), u2(pool().class_(name))}), 1, {object("[" + described(name))});
            }
            default:
                push('I');
                return code.emit(cat({u1(op::multianewarray), u2(pool().class_("[[Lsome/Thing;")), u1(2)}), 2,
                                 {object("[[Lsome/Thing;")});
        }
    }

    // Sees to it that values of these types are on top of the stack.
    void need(std::string_view letters) {
        const std::size_t count = letters.size();
        if (stack().size() >= count &&
            std::equal(letters.begin(), letters.end(), stack().end() - static_cast<std::ptrdiff_t>(count),
                       [](char l, const Type& t) { return l == 'A' ? t.is_reference() : t == of_letter(l); })) {
            return;
        }
        for (const char letter : letters) {
            push(letter);
        }
    }

    void apply(unsigned opcode, std::string_view takes, char gives) {
        need(takes);
        code.emit(u1(opcode), takes.size(), {of_letter(gives)});
    }

    // The instructions from iadd to dcmpg.
    void calculate() {
        const auto opcode = static_cast<unsigned>(96 + choices.below(57));
        const char kind = "IJFD"[opcode % 4];
        if (opcode < 116) {
            return apply(opcode, std::string(2, kind), kind);
        }
        if (opcode < 120) {
            return apply(opcode, std::string(1, kind), kind);
        }
        const char whole = opcode % 2 == 0 ? 'I' : 'J';
        if (opcode < 126) {
            return apply(opcode, whole == 'I' ? "II" : "JI", whole);
        }
        if (opcode < op::iinc) {
            return apply(opcode, std::string(2, whole), whole);
        }
        if (opcode == op::iinc) {
            const auto index = local([](const Type& t) { return t.tag == Type::integer; });
            if (index) {
                code.emit(*index < 256 ? Bytes{op::iinc, static_cast<std::uint8_t>(*index), 1}
                                       : wide_iinc(static_cast<unsigned>(*index), 7));
            }
            return;
        }
        if (opcode < 145) {
            const std::string_view conversions = "IJIFIDJIJFJDFIFJFDDIDJDF";
            const std::size_t at = 2 * (opcode - 133U);
            return apply(opcode, conversions.substr(at, 1), conversions[at + 1]);
        }
        return apply(opcode, opcode < 148 ? "I" : opcode == 148 ? "JJ" : opcode < 151 ? "FF" : "DD", 'I');
    }

    void duplicate() {
        push_anything();
        const auto is_wide = [this](std::size_t from_top) {
            return stack()[stack().size() - 1 - from_top].is_two_slots();
        };
        const auto again = [this](unsigned opcode, std::size_t count, std::size_t under) {
            std::vector<Type> result(stack().end() - static_cast<std::ptrdiff_t>(count), stack().end());
            result.insert(result.end(), stack().end() - static_cast<std::ptrdiff_t>(count + under), stack().end());
            code.emit(u1(opcode), count + under, result);
        };
        const std::size_t size = stack().size();
        const bool has_two = size > 1 && !is_wide(0) && !is_wide(1);
        const bool has_three = has_two && size > 2 && !is_wide(2);
        // A long or double counts as two for the forms with 2 in their names.
        switch (choices.below(9)) {
            case 0:
                return is_wide(0) ? again(92, 1, 0) : again(op::dup, 1, 0);
            case 1:
                return has_two ? again(90, 1, 1) : void();
            case 2:
                return has_three ? again(91, 1, 2) : size > 1 && !is_wide(0) && is_wide(1) ? again(91, 1, 1) : void();
            case 3:
                return has_two ? again(92, 2, 0) : void();
            case 4:
                return has_three ? again(93, 2, 1) : size > 1 && is_wide(0) && !is_wide(1) ? again(93, 1, 1) : void();
            case 5:
                if (has_three && size > 3) {
                    return is_wide(3) ? void() : again(94, 2, 2);
                }
                return size > 1 && is_wide(0) && is_wide(1) ? again(94, 1, 1) : void();
            case 6:
                if (size > 2 && is_wide(0) && !is_wide(1) && !is_wide(2)) {
                    return again(94, 1, 2);
                }
                return has_two && size > 2 && is_wide(2) ? again(94, 2, 1) : void();
            case 7:
                if (has_two) {
                    code.emit(u1(95), 2, {stack()[size - 1], stack()[size - 2]});
                }
                return;
            default:
                return has_two ? code.emit(u1(88), 2) : drop();
        }
    }

    void drop() {
        if (!stack().empty()) {
            code.emit(u1(stack().back().is_two_slots() ? 88 : op::pop), 1);
        }
    }

    // As often as not an object whose constructor has not been called yet.
    void push_anything() {
        const std::size_t n = choices.below(8);
        if (n < 5) {
            return push("IJFDA"[n]);
        }
        const auto index = local([](const Type& t) { return t.tag != Type::top && t.tag != Type::second_slot; });
        if (n < 7 && index) {
            return code.load(*index);
        }
        code.make(pool(), choices.one_in(2) ? "some/Thing" : "some/other/Thing$Inner");
    }

    bool is_before_construction() {
        return std::ranges::any_of(locals(), [](const Type& t) { return t.tag == Type::uninitialized_this; });
    }

    void store() {
        if (stack().empty()) {
            push_anything();
        }
        std::size_t index = choices.below(used_locals - 1);
        if (index == 0 && is_before_construction()) {
            ++index;
        }
        code.store(index);
    }

    // Calls with what is on the stack, down to an object that is to be initialised if there is one there.
    void invoke() {
        std::size_t count = choices.below(5);
        std::string descriptor = "(";
        const std::size_t size = stack().size();
        count = std::min(count, size);
        for (std::size_t i = size - count; i < size; ++i) {
            if (stack()[i].is_any_reference() && !stack()[i].is_reference()) {
                count = size - 1 - i;
                descriptor = "(";
                continue;
            }
            descriptor += described(stack()[i]);
        }
        descriptor += ")";
        if (count < size && !stack()[size - 1 - count].is_reference() && stack()[size - 1 - count].is_any_reference()) {
            return initialize(descriptor + "V", count);
        }
        constexpr std::string_view kinds = "VIJFDA";
        const char kind = kinds[choices.below(kinds.size())];
        const std::string name = any_class();
        descriptor += kind == 'A' ? described(name) : std::string(1, kind);
        const std::vector<Type> result = kind == 'V'   ? std::vector<Type>{}
                                         : kind == 'A' ? std::vector{object(name)}
                                                       : std::vector{of_letter(kind)};
        const bool has_receiver = count < size && stack()[size - 1 - count].tag == Type::object &&
                                  stack()[size - 1 - count].name.starts_with("some/");
        switch (choices.below(4)) {
            case 1:
                if (has_receiver) {
                    const std::string& receiver = stack()[size - 1 - count].name;
                    return code.emit(cat({u1(182), u2(pool().method_ref(receiver, "m", descriptor))}), count + 1,
                                     result);
                }
                break;
            case 2:
                if (has_receiver) {
                    const std::string& receiver = stack()[size - 1 - count].name;
                    const std::size_t words = slots(count) + 1;
                    return code.emit(
                        cat({u1(op::invokeinterface), u2(pool().interface_method_ref(receiver, "m", descriptor)),
                             u1(static_cast<std::int64_t>(words)), u1(0)}),
                        count + 1, result);
                }
                break;
            case 3:
                return code.emit(cat({u1(op::invokedynamic), u2(pool().invoke_dynamic(0, "d", descriptor)), u2(0)}),
                                 count, result);
            default:
                break;
        }
        code.emit(cat({u1(op::invokestatic), u2(pool().method_ref("some/Thing", "s", descriptor))}), count, result);
    }

    std::size_t slots(std::size_t values) {
        return static_cast<std::size_t>(
            std::accumulate(stack().end() - static_cast<std::ptrdiff_t>(values), stack().end(), std::size_t{0},
                            [](std::size_t n, const Type& t) { return n + (t.is_two_slots() ? 2 : 1); }));
    }

    void initialize(const std::string& descriptor, std::size_t arguments) {
        const Type receiver = stack()[stack().size() - 1 - arguments];
        const bool is_this = receiver.tag == Type::uninitialized_this;
        const std::string owner = is_this ? choices.one_in(2) ? file.name : file.super : code.made_at(receiver.pc);
        if (is_this && !code.range.empty()) {
            code.end_range(0);  // a handler cannot cover this
        }
        code.initialize(cat({u1(op::invokespecial), u2(pool().method_ref(owner, "<init>", descriptor))}), arguments,
                        object(is_this ? file.name : owner));
    }

    void access_field() {
        constexpr std::string_view kinds = "IJFDA";
        const char kind = kinds[choices.below(kinds.size())];
        const std::string name = any_class();
        const std::string descriptor = kind == 'A' ? described(name) : std::string(1, kind);
        const Type value = kind == 'A' ? object(name) : of_letter(kind);
        const auto field = [&](unsigned opcode) {
            return cat({u1(opcode), u2(pool().field_ref("some/Thing", "f", descriptor))});
        };
        const auto receiver = [&] {
            code.emit(cat({u1(op::getstatic), u2(pool().field_ref("some/Thing", "t", "Lsome/Thing;"))}), 0,
                      {object("some/Thing")});
        };
        switch (choices.below(4)) {
            case 0:
                return code.emit(field(op::getstatic), 0, {value});
            case 1:
                code.emit(field(op::getstatic), 0, {value});
                return code.emit(field(179), 1);
            case 2:
                receiver();
                return code.emit(field(180), 1, {value});
            default:
                receiver();
                code.emit(field(op::getstatic), 0, {value});
                return code.emit(field(181), 2);
        }
    }

    // Loads from an array and stores into one: iaload to saload, iastore to sastore.
    void access_array() {
        constexpr std::array<const char*, 8> arrays = {"[I", "[J", "[F", "[D", "[Lsome/Thing;", "[B", "[C", "[S"};
        const std::size_t n = choices.below(arrays.size());
        const std::string array = arrays.at(n);
        const char letter = n < 5 ? "IJFDA"[n] : 'I';
        if (choices.one_in(8)) {
            code.emit({op::aconst_null}, 0, {{Type::null}});
        } else {
            push('A');
            code.emit(cat({u1(192), u2(pool().class_(array))}), 1, {object(array)});
        }
        const bool is_null = stack().back().tag == Type::null;
        push('I');
        if (choices.one_in(2)) {
            push(letter);
            return code.emit(u1(static_cast<std::int64_t>(79 + n)), 3);
        }
        const Type element = letter != 'A' ? of_letter(letter) : is_null ? Type{Type::null} : object("some/Thing");
        code.emit(u1(static_cast<std::int64_t>(46 + n)), 2, {element});
    }

    void look_at_reference() {
        need("A");
        const std::string name = any_class();
        switch (choices.below(3)) {
            case 0:
                return code.emit(cat({u1(193), u2(pool().class_(name))}), 1, {{Type::integer}});
            case 1:
                return code.emit(u1(194), 1);
            default:
                return code.emit(cat({u1(192), u2(pool().class_(name))}), 1, {object(name)});
        }
    }

    // A branch that takes what it looks at, and how many values that is.
    std::pair<unsigned, std::size_t> condition() {
        const std::size_t n = choices.below(16);
        if (n < 6) {
            need("I");
            return {op::ifeq + static_cast<unsigned>(n), 1};
        }
        if (n < 12) {
            need("II");
            return {op::if_icmpeq + static_cast<unsigned>(n - 6), 2};
        }
        if (n < 14) {
            need("AA");
            return {op::if_acmpeq + static_cast<unsigned>(n - 12), 2};
        }
        need("A");
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

    // Ends what runs straight on.
    void stop() {
        const std::size_t n = choices.below(6);
        if (n == 0 && !is_before_construction()) {
            code.growth += 9;
            return leave();
        }
        if (n == 1) {
            code.growth += 2;
            code.branch(op::goto_, 0, label(0));
            return code.stop();
        }
        if (n < 4) {
            need("I");
            std::vector<std::size_t> labels;
            for (std::size_t i = choices.between(1, 4); i > 0; --i) {
                labels.push_back(label(1));
                // The first to come here says what is known there.
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

    State below_top() {
        State below = code.state;
        below.stack.pop_back();
        return below;
    }

    void leave() {
        if (returned.tag == Type::top) {
            code.emit({op::return_});
        } else if (returned.tag == Type::null) {
            need("A");
            code.emit({op::areturn}, 1);
        } else {
            constexpr std::string_view letters = "IJFD";
            const std::size_t kind = returned.tag == Type::integer  ? 0
                                     : returned.tag == Type::long_  ? 1
                                     : returned.tag == Type::float_ ? 2
                                                                    : 3;
            need(letters.substr(kind, 1));
            code.emit(u1(static_cast<std::int64_t>(op::ireturn + kind)), 1);
        }
        code.stop();
    }

    // Puts a pending label here; it may need what runs on to end before.
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
            Bytes{op::iconst_5, op::iconst_5, 96, op::pop},
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
            case 1:
                return fill();
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
                return store();
            case 9:
            case 10:
                return push_anything();
            case 11:
            case 12:
                return invoke();
            case 13:
                return calculate();
            case 14:
                return duplicate();
            case 15:
                return access_field();
            case 16:
                return access_array();
            case 17:
                return look_at_reference();
            case 18:
                return drop();
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
                // What nothing leads to must have a frame all the same.
                code.pending.empty() ? code.place_frame() : place(choices.below(code.pending.size()));
            } else if (stack().size() > highest) {
                drop();
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

ClassFile from_choices(std::span<const std::uint8_t> bytes, const std::string& name) {
    Choices choices{bytes};
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
    method.descriptor = "(";
    for (std::size_t i = choices.below(6); i > 0; --i) {
        constexpr std::string_view letters = "IJFDZA";
        const char letter = letters[choices.below(letters.size())];
        const std::string of = class_names.at(choices.below(class_names.size()));
        const Type argument = letter == 'A' ? object(of) : of_letter(letter);
        method.descriptor += letter == 'A' ? Maker::described(of) : std::string(1, letter);
        arguments.locals.push_back(argument);
        if (argument.is_two_slots()) {
            arguments.locals.push_back({Type::second_slot});
        }
    }
    Type returned;
    method.descriptor += ")";
    const std::size_t result = kind == 2 ? 0 : choices.below(6);
    method.descriptor += result == 5 ? std::string("Ljava/lang/Object;") : std::string(1, "VIJFD"[result]);
    returned = result == 0 ? Type{} : of_letter("VIJFDN"[result]);

    const std::size_t max_locals = choices.one_in(4) ? 300 : choices.between(16, 40);
    Maker maker{.choices = choices,
                .file = file,
                .code = TypedCode(arguments, max_locals),
                .returned = returned,
                .wanted = longest_result - choices.below(3) * 12000,
                .used_locals = max_locals};
    maker.make();
    arguments.locals.resize(max_locals);
    method.code = maker.code.finish(file.pool, arguments, [&] { return !maker.choices.one_in(4); });
    file.methods = {method};
    return file;
}

std::vector<std::uint8_t> random_choices(std::uint64_t seed) {
    std::mt19937_64 engine(seed);
    std::vector<std::uint8_t> choices(200 + engine() % 1500);
    std::ranges::generate(choices, [&] { return static_cast<std::uint8_t>(engine()); });
    return choices;
}

}  // namespace verifiable_classes
