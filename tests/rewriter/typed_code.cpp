#include "typed_code.h"

#include <algorithm>
#include <utility>

namespace typed_code {

using namespace class_builder;  // nearly all of this is builder calls

namespace {

Type merged(const Type& a, const Type& b) {
    if (a == b) {
        return a;
    }
    if (a.is_reference() && b.is_reference()) {
        // A verifier would know better than Object; what it need not look up is enough.
        return a.tag == Type::null ? b : b.tag == Type::null ? a : object("java/lang/Object");
    }
    return {};
}

// A long or double of which one half is gone is gone.
void drop_halves(std::vector<Type>& locals) {
    for (std::size_t i = 0; i < locals.size(); ++i) {
        const bool is_first_half = locals[i].is_two_slots();
        const bool has_second_half = i + 1 < locals.size() && locals[i + 1].tag == Type::second_slot;
        if (is_first_half && has_second_half) {
            ++i;
        } else if (is_first_half || locals[i].tag == Type::second_slot) {
            locals[i] = {};
        }
    }
}

std::vector<Type> merged_locals(const std::vector<Type>& a, const std::vector<Type>& b) {
    std::vector<Type> locals;
    for (std::size_t i = 0; i < a.size(); ++i) {
        locals.push_back(merged(a[i], b[i]));
    }
    drop_halves(locals);
    return locals;
}

// Whether the constructor has called another one yet; frames that differ in this do not go together.
bool is_before_construction(const State& state) {
    return std::ranges::any_of(state.locals, [](const Type& t) { return t.tag == Type::uninitialized_this; });
}

Bytes in_class_file(ConstantPool& pool, const Type& t) {
    switch (t.tag) {
        case Type::object:
            return object_type(pool.class_(t.name));
        case Type::uninitialized:
            return uninitialized_type(static_cast<unsigned>(t.pc));
        default:
            return type(t.tag);
    }
}

// As a frame lists them: no second halves, and no tops at the end.
std::vector<Type> listed(std::vector<Type> locals) {
    while (!locals.empty() && locals.back().tag == Type::top) {
        locals.pop_back();
    }
    std::erase_if(locals, [](const Type& t) { return t.tag == Type::second_slot; });
    return locals;
}

std::vector<Bytes> in_class_file(ConstantPool& pool, std::vector<Type>::const_iterator from,
                                 std::vector<Type>::const_iterator to) {
    std::vector<Bytes> all;
    std::transform(from, to, std::back_inserter(all), [&](const Type& t) { return in_class_file(pool, t); });
    return all;
}

// The shortest form that says it, or the one that says everything.
Bytes frame(ConstantPool& pool, unsigned delta, const std::vector<Type>& before, const Target& target, bool is_short) {
    const std::vector<Type> locals = listed(target.state.locals);
    const std::vector<Type>& stack = target.state.stack;
    const auto same = std::ranges::mismatch(locals, before);
    const auto added = locals.end() - same.in1;
    const auto dropped = before.end() - same.in2;
    constexpr int most = 3;
    constexpr unsigned in_type = 64;
    if (is_short && added == 0 && dropped == 0 && stack.empty()) {
        return delta < in_type ? same_frame(delta) : same_frame_extended(delta);
    }
    if (is_short && added == 0 && dropped == 0 && stack.size() == 1) {
        const Bytes item = in_class_file(pool, stack[0]);
        return delta < in_type ? one_item_frame(delta, item) : one_item_frame_extended(delta, item);
    }
    if (is_short && added == 0 && dropped <= most && stack.empty()) {
        return chop_frame(static_cast<unsigned>(dropped), delta);
    }
    if (is_short && dropped == 0 && added <= most && stack.empty()) {
        return append_frame(delta, in_class_file(pool, same.in1, locals.end()));
    }
    return full_frame(delta, in_class_file(pool, locals.begin(), locals.end()),
                      in_class_file(pool, stack.begin(), stack.end()));
}

std::size_t slots(const std::vector<Type>& stack) {
    std::size_t count = 0;
    for (const Type& t : stack) {
        count += t.is_two_slots() ? 2 : 1;
    }
    return count;
}

State without(State state, std::size_t pops) {
    state.stack.resize(state.stack.size() - pops);
    return state;
}

void overwrite(Bytes& bytes, std::size_t at, const Bytes& with) {
    std::ranges::copy(with, bytes.begin() + static_cast<std::ptrdiff_t>(at));
}

constexpr std::size_t farthest_back = 32768;

}  // namespace

Type object(std::string name) {
    return {.tag = Type::object, .name = std::move(name)};
}

Type of_letter(char letter) {
    switch (letter) {
        case 'J':
            return {Type::long_};
        case 'F':
            return {Type::float_};
        case 'D':
            return {Type::double_};
        case 'N':
            return {Type::null};
        default:
            return {Type::integer};
    }
}

std::optional<State> merged(const State& a, const State& b) {
    if (a.stack.size() != b.stack.size() || is_before_construction(a) != is_before_construction(b)) {
        return std::nullopt;
    }
    State both{.locals = merged_locals(a.locals, b.locals), .stack = {}};
    for (std::size_t i = 0; i < a.stack.size(); ++i) {
        both.stack.push_back(merged(a.stack[i], b.stack[i]));
        if (both.stack.back().tag == Type::top) {
            return std::nullopt;
        }
    }
    return is_before_construction(both) == is_before_construction(a) ? std::optional(both) : std::nullopt;
}

TypedCode::TypedCode(State arguments, std::size_t max_locals) : state(std::move(arguments)), max_locals(max_locals) {
    state.locals.resize(max_locals);
}

void TypedCode::emit(const Bytes& instruction, std::size_t pops, const std::vector<Type>& pushes) {
    append(bytes, instruction);
    state.stack.resize(state.stack.size() - pops);
    state.stack.insert(state.stack.end(), pushes.begin(), pushes.end());
    max_stack_ = std::max(max_stack_, slots(state.stack));
}

namespace {

// The place among five instructions, or among five groups of four, for int, long, float, double and reference.
unsigned kind_of(const Type& t) {
    switch (t.tag) {
        case Type::integer:
            return 0;
        case Type::long_:
            return 1;
        case Type::float_:
            return 2;
        case Type::double_:
            return 3;
        default:
            return 4;
    }
}

// One of the forms that loads and stores have: the local in the opcode, in a byte, or in two.
Bytes access(unsigned general, unsigned first_short, unsigned kind, std::size_t index) {
    if (index < 4) {
        return u1(first_short + 4 * kind + static_cast<unsigned>(index));
    }
    return index < 256 ? cat({u1(general + kind), u1(static_cast<std::int64_t>(index))})
                       : wide(general + kind, static_cast<unsigned>(index));
}

}  // namespace

void TypedCode::store(std::size_t index) {
    const Type value = state.stack.back();
    emit(access(op::istore, op::istore_0, kind_of(value), index), 1);
    state.locals[index] = value;
    if (value.is_two_slots()) {
        state.locals[index + 1] = {Type::second_slot};
    }
    // What this cut in two is gone.
    if (index > 0 && state.locals[index - 1].is_two_slots()) {
        state.locals[index - 1] = {};
    }
    drop_halves(state.locals);
    note_locals();
}

void TypedCode::load(std::size_t index) {
    const Type value = state.locals[index];
    emit(access(op::iload, op::iload_0, kind_of(value), index), 0, {value});
}

void TypedCode::make(ConstantPool& pool, const std::string& name) {
    const Type made{.tag = Type::uninitialized, .pc = bytes.size()};
    std::ranges::replace(state.locals, made, Type{});
    made_[bytes.size()] = name;
    emit(cat({u1(op::new_), u2(pool.class_(name))}), 0, {made});
}

void TypedCode::initialize(const Bytes& invocation, std::size_t arguments, const Type& result) {
    const Type receiver = state.stack[state.stack.size() - 1 - arguments];
    emit(invocation, arguments + 1);
    std::ranges::replace(state.stack, receiver, result);
    std::ranges::replace(state.locals, receiver, result);
    note_locals();
}

bool TypedCode::can_reach(const Label& label, std::size_t pops) const {
    return !label.state || merged(*label.state, without(state, pops)).has_value();
}

std::size_t TypedCode::new_label() {
    pending.emplace_back();
    return pending.size() - 1;
}

void TypedCode::reach(Label& label) const {
    label.state = label.state ? *merged(*label.state, state) : state;
}

void TypedCode::branch(unsigned opcode, std::size_t pops, std::size_t label) {
    const std::size_t pc = bytes.size();
    emit(class_builder::branch(opcode, 0), pops);
    pending[label].branches.push_back(pc);
    reach(pending[label]);
    growth += 5;  // an inverted branch and a goto_w, of 8 bytes
}

void TypedCode::switch_to(bool wants_table, const std::vector<std::size_t>& labels,
                          const std::vector<std::size_t>& back_to) {
    const std::size_t pc = bytes.size();
    const std::size_t count = labels.size() + back_to.size() - 1;  // the first one is where it goes otherwise
    std::vector<std::int64_t> offsets(count);
    std::vector<Pair> pairs;
    for (std::size_t i = 0; i < count; ++i) {
        pairs.push_back({static_cast<std::int64_t>(3 * i), 0});
    }
    const bool is_table = wants_table && count > 0;  // a table has an entry
    emit(is_table ? tableswitch(pc, 0, 7, offsets) : lookupswitch(pc, 0, pairs), 1);
    const std::size_t start = (pc + 4) / 4 * 4;
    const auto position = [&](std::size_t n) {
        return n == 0 ? start : is_table ? start + 8 + 4 * n : start + 4 + 8 * n;
    };
    std::size_t n = 0;
    for (const std::size_t label : labels) {
        pending[label].entries.emplace_back(pc, position(n++));
        reach(pending[label]);
    }
    for (const std::size_t target : back_to) {
        overwrite(bytes, position(n++), u4(static_cast<std::int64_t>(target) - static_cast<std::int64_t>(pc)));
    }
    growth += 3;
    stop();
}

// Two frames cannot be of one place.
void TypedCode::separate_frames() {
    if (!targets.empty() && targets.back().pc == bytes.size()) {
        emit({op::nop});
    }
}

void TypedCode::place(std::size_t number) {
    // A handler's frame is of before the call of the other constructor or of after it.
    if (!range.empty() && is_before_construction(range[0].state) != is_before_construction(*pending[number].state)) {
        end_range(0);
    }
    Label label = std::move(pending[number]);
    pending.erase(pending.begin() + static_cast<std::ptrdiff_t>(number));
    separate_frames();
    if (is_reachable) {
        reach(label);
    }
    const std::size_t pc = bytes.size();
    for (const std::size_t from : label.branches) {
        overwrite(bytes, from + 1, u2(static_cast<std::int64_t>(pc - from)));
    }
    for (const auto& [from, position] : label.entries) {
        overwrite(bytes, position, u4(static_cast<std::int64_t>(pc - from)));
    }
    for (const std::size_t handler : label.handlers) {
        handlers_[handler].handler = static_cast<unsigned>(pc);
    }
    state = *label.state;
    is_reachable = true;
    max_stack_ = std::max(max_stack_, slots(state.stack));
    targets.push_back({pc, state});
    note_locals();
}

void TypedCode::place_frame() {
    separate_frames();
    targets.push_back({bytes.size(), state});
    is_reachable = true;
}

bool TypedCode::can_return_to(const Target& target, std::size_t pops) const {
    const State now = without(state, pops);
    const std::optional<State> both = merged(now, target.state);
    return bytes.size() - target.pc <= farthest_back && both && both->locals == target.state.locals &&
           both->stack == target.state.stack;
}

void TypedCode::branch_back(unsigned opcode, std::size_t pops, const Target& target) {
    const auto offset = static_cast<std::int64_t>(target.pc) - static_cast<std::int64_t>(bytes.size());
    emit(class_builder::branch(opcode, offset), pops);
    growth += 5;
}

void TypedCode::begin_range() {
    range = {{bytes.size(), state}};
}

void TypedCode::end_range(unsigned catch_type) {
    const Range covered = std::move(range[0]);
    range.clear();
    if (covered.start == bytes.size()) {
        return;
    }
    Label& label = pending[new_label()];
    label.state = State{.locals = covered.state.locals, .stack = {object("java/lang/Throwable")}};
    label.handlers.push_back(handlers_.size());
    handlers_.push_back({static_cast<unsigned>(covered.start), static_cast<unsigned>(bytes.size()), 0, catch_type});
}

// An exception may be thrown with the locals of any moment.
void TypedCode::note_locals() {
    if (!range.empty()) {
        range[0].state.locals = merged_locals(range[0].state.locals, state.locals);
    }
}

std::size_t TypedCode::longest_way() const {
    std::size_t longest = 0;
    for (const Label& label : pending) {
        if (!label.branches.empty()) {
            longest = std::max(longest, bytes.size() - label.branches.front());
        }
    }
    return longest;
}

Code TypedCode::finish(ConstantPool& pool, const State& arguments, const std::function<bool()>& may_be_short) {
    std::vector<Bytes> frames;
    std::vector<Type> before = listed(arguments.locals);
    std::size_t next = 0;  // the pc of a frame with a delta of 0
    for (const Target& target : targets) {
        frames.push_back(frame(pool, static_cast<unsigned>(target.pc - next), before, target, may_be_short()));
        before = listed(target.state.locals);
        next = target.pc + 1;
    }
    Code code;
    code.max_stack = static_cast<unsigned>(max_stack_);
    code.max_locals = static_cast<unsigned>(max_locals);
    code.bytes = bytes;
    code.handlers = handlers_;
    code.attributes = {stack_map_table(frames)};
    return code;
}

}  // namespace typed_code
