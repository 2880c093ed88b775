#include "random_classes.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace random_classes {

using namespace class_builder;  // a generator is nearly all builder calls

namespace {

// How often something other than filler comes up, in a thousand instructions.
struct Mix {
    std::size_t branches = 120;
    std::size_t wide_branches = 15;
    std::size_t switches = 40;
    std::size_t returns = 60;
    std::size_t arrays = 60;
    bool long_filler = false;  // few instructions for their bytes
};

struct Instruction {
    std::size_t pc = 0;
    unsigned opcode = op::nop;
    std::size_t entries = 0;  // of a switch
    std::size_t planned = 0;  // about where it will be after injection
};

constexpr std::size_t far_limit = 32767;

template <std::size_t N>
unsigned pick(Random& random, const std::array<unsigned, N>& from) {
    return from.at(random.below(N));
}

unsigned two_byte_branch(Random& random) {
    const std::size_t n = random.below(18);
    return n < 16 ? op::ifeq + static_cast<unsigned>(n) : op::ifnull + static_cast<unsigned>(n - 16);
}

bool is_two_byte_branch(unsigned opcode) {
    return (opcode >= op::ifeq && opcode <= op::jsr) || opcode == op::ifnull || opcode == op::ifnonnull;
}

bool is_switch(unsigned opcode) {
    return opcode == op::tableswitch || opcode == op::lookupswitch;
}

struct Filler {
    unsigned opcode;
    std::size_t operands;
};

constexpr std::array<Filler, 16> fillers = {{{op::nop, 0},
                                             {op::aconst_null, 0},
                                             {op::aload_0, 0},
                                             {op::pop, 0},
                                             {op::athrow, 0},
                                             {op::bipush, 1},
                                             {op::ldc, 1},
                                             {op::istore, 1},
                                             {op::ret, 1},
                                             {op::sipush, 2},
                                             {op::ldc_w, 2},
                                             {op::iinc, 2},
                                             {op::getstatic, 2},
                                             {op::invokestatic, 2},
                                             {op::invokedynamic, 4},
                                             {op::invokeinterface, 4}}};

Bytes random_bytes(Random& random, std::size_t count) {
    Bytes bytes;
    for (std::size_t i = 0; i < count; i++) {
        bytes.push_back(static_cast<std::uint8_t>(random.below(256)));
    }
    return bytes;
}

Bytes filler(Random& random, bool long_filler) {
    const std::size_t n = random.below(fillers.size() + 3);
    const auto local = static_cast<unsigned>(random.below(0x10000));
    if (n == fillers.size()) {
        return wide_iinc(local, static_cast<int>(random.below(2000)) - 1000);
    }
    if (n > fillers.size()) {
        return wide(pick<3>(random, {op::iload + static_cast<unsigned>(random.below(5)),
                                     op::istore + static_cast<unsigned>(random.below(5)), op::ret}),
                    local);
    }
    const Filler& chosen = long_filler && !random.one_in(20) ? fillers.back() : fillers.at(n);
    return cat({u1(chosen.opcode), random_bytes(random, chosen.operands)});
}

unsigned array_creation(Random& random) {
    return pick<3>(random, {op::newarray, op::anewarray, op::multianewarray});
}

Bytes array_operands(Random& random, unsigned opcode) {
    switch (opcode) {
        case op::newarray:
            return u1(4 + static_cast<std::int64_t>(random.below(8)));
        case op::anewarray:
            return u2(1);
        default:
            return cat({u2(1), u1(1)});
    }
}

// Code under construction: the instructions in order, and bytes with room where offsets go.
struct Draft {
    std::vector<Instruction> instructions;
    Bytes bytes;
    std::size_t planned_growth = 0;
};

void add(Draft& draft, Instruction instruction, const Bytes& bytes) {
    instruction.pc = draft.bytes.size();
    instruction.planned = instruction.pc + draft.planned_growth;
    draft.instructions.push_back(instruction);
    append(draft.bytes, bytes);
}

void add_random(Random& random, Draft& draft, const Mix& mix) {
    std::size_t n = random.below(1000);
    const auto falls_to = [&n](std::size_t share) {
        const bool falls = n < share;
        n -= std::min(n, share);
        return falls;
    };
    if (falls_to(mix.branches)) {
        add(draft, {.opcode = two_byte_branch(random)}, times(3, u1(0)));
    } else if (falls_to(mix.wide_branches)) {
        add(draft, {.opcode = pick<2>(random, {op::goto_w, op::jsr_w})}, times(5, u1(0)));
    } else if (falls_to(mix.switches)) {
        const std::size_t entries = random.one_in(10) ? random.below(20) : random.below(3);
        const std::size_t pc = draft.bytes.size();
        if (random.one_in(2)) {
            add(draft, {.opcode = op::tableswitch, .entries = entries + 1},
                tableswitch(pc, 0, 0, std::vector<std::int64_t>(entries + 1)));
        } else {
            add(draft, {.opcode = op::lookupswitch, .entries = entries},
                lookupswitch(pc, 0, std::vector<Pair>(entries)));
        }
    } else if (falls_to(mix.returns)) {
        const unsigned opcode = op::ireturn + static_cast<unsigned>(random.below(6));
        add(draft, {.opcode = opcode}, u1(opcode));
        draft.planned_growth += 7;  // it does not have to be right
    } else if (falls_to(mix.arrays)) {
        const unsigned opcode = array_creation(random);
        add(draft, {.opcode = opcode}, cat({u1(opcode), array_operands(random, opcode)}));
        draft.planned_growth += 4;
    } else {
        const Bytes bytes = filler(random, mix.long_filler);
        add(draft, {.opcode = bytes[0]}, bytes);
    }
}

// The start of an instruction, or now and then the end of the code.
std::size_t any_target(Random& random, const Draft& draft) {
    return random.one_in(50) ? draft.bytes.size() : draft.instructions[random.below(draft.instructions.size())].pc;
}

bool fits(std::size_t pc, std::size_t target) {
    return target <= pc + far_limit && pc <= target + far_limit + 1;
}

std::size_t near_target(Random& random, const Draft& draft, std::size_t pc) {
    const std::size_t target = any_target(random, draft);
    return fits(pc, target) ? target : pc;
}

// A target that will be about as far from the instruction as a 16-bit offset leads, within `reach`.
std::size_t far_target(Random& random, const Draft& draft, const Instruction& from, std::size_t reach) {
    const std::size_t distance = far_limit + reach / 8 - random.below(reach);
    const auto& instructions = draft.instructions;
    const bool room_ahead = from.planned + distance <= instructions.back().planned;
    const bool room_back = from.planned >= distance;
    if (!room_ahead && !room_back) {
        return near_target(random, draft, from.pc);
    }
    const bool forwards = room_ahead && (!room_back || random.one_in(2));
    const std::size_t planned = forwards ? from.planned + distance : from.planned - distance;
    const std::size_t target = std::ranges::lower_bound(instructions, planned, {}, &Instruction::planned)->pc;
    return fits(from.pc, target) ? target : near_target(random, draft, from.pc);
}

void overwrite(Bytes& bytes, std::size_t at, const Bytes& with) {
    std::ranges::copy(with, bytes.begin() + static_cast<std::ptrdiff_t>(at));
}

// Gives every branch and switch its targets. Without a reach, any will do.
Bytes aim(Random& random, Draft& draft, std::size_t reach) {
    for (const Instruction& instruction : draft.instructions) {
        const std::size_t pc = instruction.pc;
        const auto offset = [&](std::size_t target) {
            return static_cast<std::int64_t>(target) - static_cast<std::int64_t>(pc);
        };
        if (is_two_byte_branch(instruction.opcode)) {
            const std::size_t target = reach == 0 || random.one_in(8) ? near_target(random, draft, pc)
                                                                      : far_target(random, draft, instruction, reach);
            overwrite(draft.bytes, pc, branch(instruction.opcode, offset(target)));
        } else if (instruction.opcode == op::goto_w || instruction.opcode == op::jsr_w) {
            overwrite(draft.bytes, pc, branch_w(instruction.opcode, offset(any_target(random, draft))));
        } else if (is_switch(instruction.opcode)) {
            const std::int64_t fallback = offset(any_target(random, draft));
            std::vector<std::int64_t> offsets(instruction.entries);
            for (std::int64_t& o : offsets) {
                o = offset(any_target(random, draft));
            }
            if (instruction.opcode == op::tableswitch) {
                const std::int64_t low = static_cast<std::int64_t>(random.below(2000)) - 1000;
                overwrite(draft.bytes, pc, tableswitch(pc, fallback, low, offsets));
            } else {
                std::vector<Pair> pairs;
                pairs.reserve(offsets.size());
                for (const std::int64_t o : offsets) {
                    pairs.push_back({static_cast<std::int64_t>(random.below(0x100000000)), o});
                }
                overwrite(draft.bytes, pc, lookupswitch(pc, fallback, pairs));
            }
        }
    }
    return draft.bytes;
}

Bytes verification_type(Random& random, const Draft& draft) {
    const auto tag = static_cast<unsigned>(random.below(9));
    if (tag == 7) {
        return object_type(1);
    }
    return tag == 8 ? uninitialized_type(static_cast<unsigned>(any_target(random, draft))) : type(tag);
}

std::vector<Bytes> verification_types(Random& random, const Draft& draft, std::size_t count) {
    std::vector<Bytes> types;
    for (std::size_t i = 0; i < count; i++) {
        types.push_back(verification_type(random, draft));
    }
    return types;
}

Bytes frame(Random& random, const Draft& draft, unsigned delta) {
    switch (random.below(8)) {
        case 0:
        case 1:
            return delta < 64 ? same_frame(delta) : same_frame_extended(delta);
        case 2:
        case 3: {
            const Bytes item = verification_type(random, draft);
            return delta < 64 ? one_item_frame(delta, item) : one_item_frame_extended(delta, item);
        }
        case 4:
            return random.one_in(2) ? same_frame_extended(delta)
                                    : one_item_frame_extended(delta, verification_type(random, draft));
        case 5:
            return chop_frame(1 + static_cast<unsigned>(random.below(3)), delta);
        case 6:
            return append_frame(delta, verification_types(random, draft, 1 + random.below(3)));
        default: {
            const std::vector<Bytes> locals = verification_types(random, draft, random.below(4));
            return full_frame(delta, locals, verification_types(random, draft, random.below(3)));
        }
    }
}

// Frames at one instruction in `every`, about.
std::vector<Bytes> frames(Random& random, const Draft& draft, std::size_t every, bool older_format) {
    std::vector<Bytes> all;
    std::size_t next = 0;  // the pc of a frame with a delta of 0
    for (const Instruction& instruction : draft.instructions) {
        if (!random.one_in(every)) {
            continue;
        }
        if (older_format) {
            const std::vector<Bytes> locals = verification_types(random, draft, random.below(4));
            all.push_back(stack_map_frame(static_cast<unsigned>(instruction.pc), locals,
                                          verification_types(random, draft, random.below(3))));
        } else {
            all.push_back(frame(random, draft, static_cast<unsigned>(instruction.pc - next)));
            next = instruction.pc + 1;
        }
    }
    return all;
}

Attribute code_attribute(Random& random, const Draft& draft) {
    const std::size_t kind = random.below(6);
    const std::size_t every = 1 + random.below(draft.instructions.size() < 100 ? 30 : 300);
    if (kind == 0) {
        std::vector<Line> lines;
        for (std::size_t i = random.below(8); i > 0; i--) {
            lines.push_back(
                {static_cast<unsigned>(any_target(random, draft)), static_cast<unsigned>(random.below(0x10000))});
        }
        return line_number_table(lines);
    }
    if (kind == 1 || kind == 2) {
        std::vector<Variable> variables;
        for (std::size_t i = random.below(5); i > 0; i--) {
            const std::size_t start = random.one_in(3) ? 0 : any_target(random, draft);
            const std::size_t end = std::max(start, any_target(random, draft));
            variables.push_back({.start = static_cast<unsigned>(start), .length = static_cast<unsigned>(end - start)});
        }
        return kind == 1 ? local_variable_table(variables) : local_variable_type_table(variables);
    }
    if (kind == 3) {
        return stack_map_table(frames(random, draft, every, false));
    }
    if (kind == 4) {
        return stack_map(frames(random, draft, every, true));
    }
    return {"com.example.Unknown", random_bytes(random, random.below(9))};
}

Code finish(Random& random, Draft& draft, std::size_t reach) {
    Code code;
    code.max_stack = random.one_in(8) ? 0 : static_cast<unsigned>(random.below(20));
    code.bytes = aim(random, draft, reach);
    for (std::size_t i = random.below(4); i > 0; i--) {
        code.handlers.push_back({static_cast<unsigned>(any_target(random, draft)),
                                 static_cast<unsigned>(any_target(random, draft)),
                                 static_cast<unsigned>(any_target(random, draft)), 0});
    }
    for (std::size_t i = random.below(4); i > 0; i--) {
        code.attributes.push_back(code_attribute(random, draft));
    }
    return code;
}

Code small_code(Random& random) {
    Mix mix;
    if (random.one_in(3)) {
        mix = {.branches = random.below(300),
               .wide_branches = random.below(50),
               .switches = random.below(200),
               .returns = random.below(200),
               .arrays = random.below(200)};
    }
    Draft draft;
    const std::size_t wanted = random.one_in(3) ? random.between(1, 4) : random.between(5, 400);
    while (draft.bytes.size() < wanted) {
        add_random(random, draft, mix);
    }
    return finish(random, draft, 0);
}

Code far_code(Random& random, bool switches) {
    static constexpr std::array<unsigned, 5> reaches = {16, 80, 400, 1500, 4000};
    const std::size_t reach = pick(random, reaches);
    const bool grows = random.one_in(6);  // most of the distance comes from injections
    const std::size_t wanted = grows              ? random.between(15000, 30000)
                               : random.one_in(4) ? random.between(36000, 62000)
                                                  : random.between(32800, 36000);
    const std::size_t density = random.between(30, 400);
    const std::size_t injections = grows ? 150 : random.below(3) * random.below(12);
    const Mix quiet = {.branches = 2,
                       .wide_branches = 2,
                       .switches = switches ? 3U : 0U,
                       .returns = injections,
                       .arrays = injections,
                       .long_filler = true};
    Mix dense = quiet;
    dense.branches = density;
    dense.switches = switches ? random.between(5, 350) : 0;
    dense.long_filler = random.one_in(2);

    // Branches stand in clusters, most of them where a branch of the full distance has room.
    Draft draft;
    std::size_t cluster_end = 0;
    std::size_t next_cluster = random.below(1000);
    while (draft.bytes.size() < wanted) {
        const std::size_t pc = draft.bytes.size();
        if (pc >= next_cluster) {
            const bool has_room = grows || pc + far_limit < wanted || pc > far_limit;
            cluster_end = pc + random.between(300, 2500);
            next_cluster = cluster_end + (has_room ? random.below(2000) : random.between(3000, 9000));
        }
        add_random(random, draft, pc < cluster_end ? dense : quiet);
    }
    return finish(random, draft, reach);
}

RewriteOptions random_options(Random& random) {
    static constexpr std::array<unsigned, 12> numbers = {0,   3,    5,     6,     127,   128,
                                                         300, 4711, 32767, 32768, 40000, 0xFFFFFFFF};
    RewriteOptions options;
    options.class_number = pick(random, numbers);
    options.system_class = random.one_in(3);
    if (!random.one_in(5)) {
        options.call_name = "enter";
    }
    if (!random.one_in(5)) {
        options.return_name = "leave";
    }
    if (!random.one_in(3)) {
        options.obj_init_name = "made";
    }
    if (!random.one_in(4)) {
        options.newarray_name = "madeArray";
    }
    return options;
}

void add_constants(Random& random, ConstantPool& pool) {
    for (std::size_t i = random.below(20); i > 0; i--) {
        const auto n = static_cast<unsigned>(random.below(0x10000));
        switch (random.below(12)) {
            case 0:
                pool.integer(n);
                break;
            case 1:
                pool.float_bits(n);
                break;
            case 2:
                pool.long_(n);
                break;
            case 3:
                pool.double_bits(n);
                break;
            case 4:
                pool.string("text " + std::to_string(n));
                break;
            case 5:
                pool.field_ref("com/example/Other", "field", "I");
                break;
            case 6:
                pool.method_ref("com/example/Other", "method", "()V");
                break;
            case 7:
                pool.interface_method_ref("com/example/Interface", "method", "()V");
                break;
            case 8:
                pool.method_handle(1 + n % 9, pool.count - 1);
                break;
            case 9:
                pool.method_type("()V");
                break;
            case 10:
                pool.invoke_dynamic(0, "dynamic", "()V");
                break;
            default:
                pool.utf8("getTrackId");  // the rewriter adds its own all the same
                break;
        }
    }
    if (random.one_in(6)) {
        pool.fill(static_cast<unsigned>(random.between(90, 140)));
    }
}

RandomClass random_class(Random& random) {
    RandomClass made;
    made.options = random_options(random);
    made.file.major = static_cast<unsigned>(random.between(45, 52));
    add_constants(random, made.file.pool);
    if (random.one_in(20)) {
        made.file.name = "java/lang/Object";
        made.file.super.clear();
    } else if (random.one_in(10)) {
        made.file.name = "java/lang/Thread";
    }
    if (random.one_in(2)) {
        made.options.name = made.file.name;
    }
    if (random.one_in(4)) {
        made.file.interfaces = {"java/lang/Runnable", "java/io/Serializable"};
    }
    if (random.one_in(3)) {
        made.file.fields = {{.name = "field", .descriptor = "I"},
                            {.name = "other", .descriptor = "J", .attributes = {{"ConstantValue", u2(1)}}}};
    }
    if (random.one_in(3)) {
        made.file.attributes = {{"SourceFile", u2(1)}, {"com.example.Unknown", random_bytes(random, 20)}};
    }
    return made;
}

Member random_method(Random& random, Code code) {
    static const std::array<const char*, 6> names = {"run", "<init>", "<clinit>", "finalize", "currentThread", "m"};
    Member method;
    method.name = names.at(random.below(names.size()));
    method.descriptor = random.one_in(4) ? "(I)V" : "()V";
    method.code = std::move(code);
    if (random.one_in(10)) {
        method.attributes = {{"Exceptions", cat({u2(1), u2(1)})}};
    }
    return method;
}

}  // namespace

RandomClass small_methods(std::uint64_t seed) {
    Random random(seed);
    RandomClass made = random_class(random);
    const std::size_t count = random.one_in(40) ? random.between(120, 150) : random.between(1, 30);
    for (std::size_t i = 0; i < count; i++) {
        made.file.methods.push_back(random_method(random, small_code(random)));
        if (random.one_in(10)) {
            made.file.methods.push_back({.access = 0x0109, .name = "nativeMethod"});
        }
    }
    return made;
}

RandomClass far_branches(std::uint64_t seed, bool switches) {
    Random random(seed);
    RandomClass made = random_class(random);
    for (std::size_t i = random.between(1, 2); i > 0; i--) {
        made.file.methods.push_back(random_method(random, far_code(random, switches)));
    }
    return made;
}

}  // namespace random_classes
