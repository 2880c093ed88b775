#include "random_instructions.h"

#include <algorithm>
#include <numeric>

namespace verifiable_classes {

using namespace class_builder;  // a generator is nearly all builder calls
using namespace typed_code;

std::string RandomInstructions::any_class() {
    return class_names.at(choices.below(class_names.size()));
}

void RandomInstructions::push(char letter) {
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
            return n < 2 ? code.emit(u1(op::lconst_0 + n), 0, {wanted})
                         : code.emit(cat({u1(op::ldc2_w), u2(pool().long_(n))}), 0, {wanted});
        case 'F':
            return n < 3 ? code.emit(u1(op::fconst_0 + n), 0, {wanted})
                         : code.emit(cat({u1(op::ldc_w), u2(pool().float_bits(n))}), 0, {wanted});
        case 'D':
            return n < 2 ? code.emit(u1(op::dconst_0 + n), 0, {wanted})
                         : code.emit(cat({u1(op::ldc2_w), u2(pool().double_bits(n))}), 0, {wanted});
        default:
            return n == 0   ? code.emit({op::iconst_5}, 0, {wanted})
                   : n == 1 ? code.emit({op::bipush, 9}, 0, {wanted})
                   : n == 2 ? code.emit({op::sipush, 9, 9}, 0, {wanted})
                            : code.emit(cat({u1(op::ldc_w), u2(pool().integer(n))}), 0, {wanted});
    }
}

void RandomInstructions::push_reference() {
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

std::string RandomInstructions::described(const std::string& name) {
    return name[0] == '[' ? name : "L" + name + ";";
}

std::string RandomInstructions::described(const Type& t) {
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
            return "Ljava/lang/String;";  // which only null is, besides
        default:
            return "I";
    }
}

void RandomInstructions::make_array() {
    code.growth += 4;
    code.emit({op::iconst_5}, 0, {{Type::integer}});
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
            code.emit({op::iconst_5}, 0, {{Type::integer}});
            return code.emit(cat({u1(op::multianewarray), u2(pool().class_("[[Lsome/Thing;")), u1(2)}), 2,
                             {object("[[Lsome/Thing;")});
    }
}

void RandomInstructions::need(std::string_view letters) {
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

void RandomInstructions::apply(unsigned opcode, std::string_view takes, char gives) {
    need(takes);
    code.emit(u1(opcode), takes.size(), {of_letter(gives)});
}

void RandomInstructions::calculate() {
    const auto opcode = static_cast<unsigned>(op::iadd + choices.below(op::dcmpg - op::iadd + 1));
    const char kind = "IJFD"[opcode % 4];
    if (opcode < op::ineg) {
        return apply(opcode, std::string(2, kind), kind);
    }
    if (opcode < op::ishl) {
        return apply(opcode, std::string(1, kind), kind);
    }
    const char whole = opcode % 2 == 0 ? 'I' : 'J';
    if (opcode < op::iand) {
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
    if (opcode < op::i2b) {
        const std::string_view conversions = "IJIFIDJIJFJDFIFJFDDIDJDF";
        const std::size_t at = 2 * std::size_t{opcode - unsigned{op::i2l}};
        return apply(opcode, conversions.substr(at, 1), conversions[at + 1]);
    }
    return apply(opcode, opcode < op::lcmp ? "I" : opcode == op::lcmp ? "JJ" : opcode < op::dcmpl ? "FF" : "DD", 'I');
}

void RandomInstructions::duplicate() {
    push_anything();
    const auto is_wide = [this](std::size_t from_top) { return stack()[stack().size() - 1 - from_top].is_two_slots(); };
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
            return is_wide(0) ? again(op::dup2, 1, 0) : again(op::dup, 1, 0);
        case 1:
            return has_two ? again(op::dup_x1, 1, 1) : void();
        case 2:
            return has_three                               ? again(op::dup_x2, 1, 2)
                   : size > 1 && !is_wide(0) && is_wide(1) ? again(op::dup_x2, 1, 1)
                                                           : void();
        case 3:
            return has_two ? again(op::dup2, 2, 0) : void();
        case 4:
            return has_three                               ? again(op::dup2_x1, 2, 1)
                   : size > 1 && is_wide(0) && !is_wide(1) ? again(op::dup2_x1, 1, 1)
                                                           : void();
        case 5:
            if (has_three && size > 3) {
                return is_wide(3) ? void() : again(op::dup2_x2, 2, 2);
            }
            return size > 1 && is_wide(0) && is_wide(1) ? again(op::dup2_x2, 1, 1) : void();
        case 6:
            if (size > 2 && is_wide(0) && !is_wide(1) && !is_wide(2)) {
                return again(op::dup2_x2, 1, 2);
            }
            return has_two && size > 2 && is_wide(2) ? again(op::dup2_x2, 2, 1) : void();
        case 7:
            if (has_two) {
                code.emit(u1(op::swap), 2, {stack()[size - 1], stack()[size - 2]});
            }
            return;
        default:
            return has_two ? code.emit(u1(op::pop2), 2) : drop();
    }
}

void RandomInstructions::drop() {
    if (!stack().empty()) {
        code.emit(u1(stack().back().is_two_slots() ? op::pop2 : op::pop), 1);
    }
}

void RandomInstructions::push_anything() {
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

bool RandomInstructions::is_before_construction() {
    return std::ranges::any_of(locals(), [](const Type& t) { return t.tag == Type::uninitialized_this; });
}

void RandomInstructions::store() {
    if (stack().empty()) {
        push_anything();
    }
    std::size_t index = choices.below(used_locals - 1);
    if (index == 0 && is_before_construction()) {
        ++index;
    }
    code.store(index);
}

void RandomInstructions::invoke() {
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
                return code.emit(cat({u1(op::invokevirtual), u2(pool().method_ref(receiver, "m", descriptor))}),
                                 count + 1, result);
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
            return code.emit(cat({u1(op::invokedynamic), u2(pool().invoke_dynamic(0, "d", descriptor)), u2(0)}), count,
                             result);
        default:
            break;
    }
    code.emit(cat({u1(op::invokestatic), u2(pool().method_ref("some/Thing", "s", descriptor))}), count, result);
}

std::size_t RandomInstructions::slots(std::size_t values) {
    return static_cast<std::size_t>(
        std::accumulate(stack().end() - static_cast<std::ptrdiff_t>(values), stack().end(), std::size_t{0},
                        [](std::size_t n, const Type& t) { return n + (t.is_two_slots() ? 2 : 1); }));
}

void RandomInstructions::initialize(const std::string& descriptor, std::size_t arguments) {
    const Type receiver = stack()[stack().size() - 1 - arguments];
    const bool is_this = receiver.tag == Type::uninitialized_this;
    const std::string owner = is_this ? choices.one_in(2) ? file.name : file.super : code.made_at(receiver.pc);
    if (is_this && !code.range.empty()) {
        code.end_range(0);  // a handler cannot cover this
    }
    code.initialize(cat({u1(op::invokespecial), u2(pool().method_ref(owner, "<init>", descriptor))}), arguments,
                    object(is_this ? file.name : owner));
}

void RandomInstructions::access_field() {
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
            return code.emit(field(op::putstatic), 1);
        case 2:
            receiver();
            return code.emit(field(op::getfield), 1, {value});
        default:
            receiver();
            code.emit(field(op::getstatic), 0, {value});
            return code.emit(field(op::putfield), 2);
    }
}

void RandomInstructions::access_array() {
    constexpr std::array<const char*, 8> arrays = {"[I", "[J", "[F", "[D", "[Lsome/Thing;", "[B", "[C", "[S"};
    const std::size_t n = choices.below(arrays.size());
    const std::string array = arrays.at(n);
    const char letter = n < 5 ? "IJFDA"[n] : 'I';
    if (choices.one_in(3)) {
        code.emit({op::aconst_null}, 0, {{Type::null}});
    } else {
        push('A');
        code.emit(cat({u1(op::checkcast), u2(pool().class_(array))}), 1, {object(array)});
    }
    const bool is_null = stack().back().tag == Type::null;
    push('I');
    if (choices.one_in(2)) {
        push(letter);
        return code.emit(u1(static_cast<std::int64_t>(op::iastore + n)), 3);
    }
    const Type element = letter != 'A' ? of_letter(letter) : is_null ? Type{Type::null} : object("some/Thing");
    code.emit(u1(static_cast<std::int64_t>(op::iaload + n)), 2, {element});
}

void RandomInstructions::look_at_reference() {
    need("A");
    const std::string name = any_class();
    switch (choices.below(3)) {
        case 0:
            return code.emit(cat({u1(op::instanceof_), u2(pool().class_(name))}), 1, {{Type::integer}});
        case 1:
            return code.emit(u1(op::monitorenter), 1);
        default:
            return code.emit(cat({u1(op::checkcast), u2(pool().class_(name))}), 1, {object(name)});
    }
}

}  // namespace verifiable_classes
