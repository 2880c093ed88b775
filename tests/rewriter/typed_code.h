// Code under construction that a verifier will take: it knows the types of its locals and its stack, has labels at
// which they meet, and makes the stack map out of that. What is emitted in between is the caller's, who says what it
// does to the stack.
//
//     TypedCode code(first_state, 40);
//     code.emit({op::iconst_0}, 0, {{Type::integer}});
//     code.branch(op::ifeq, 1, code.new_label());       // takes an int
//     ...
//     code.place(0);                                    // the first label that is pending
//
// Types are those of the class file (JVM specification, section 4.7.4); a long or double has two slots among the locals
// and one place on the stack.
#ifndef VANTREL_TYPED_CODE_H
#define VANTREL_TYPED_CODE_H

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "class_builder.h"

namespace typed_code {

struct Type {
    enum Tag : unsigned char {
        top,
        integer,
        float_,
        double_,
        long_,
        null,
        uninitialized_this,
        object,
        uninitialized,
        second_slot
    };
    Tag tag = top;
    std::string name = {};  // of an object's class, as a constant has it
    std::size_t pc = 0;     // of the `new` that made an uninitialised one

    bool operator==(const Type&) const = default;
    [[nodiscard]] bool is_two_slots() const { return tag == double_ || tag == long_; }
    [[nodiscard]] bool is_reference() const { return tag == null || tag == object; }
    [[nodiscard]] bool is_any_reference() const {
        return is_reference() || tag == uninitialized || tag == uninitialized_this;
    }
};

Type object(std::string name);
// By the letter that a descriptor begins with, N for null.
Type of_letter(char letter);

struct State {
    std::vector<Type> locals;  // by slot, always max_locals of them
    std::vector<Type> stack;
};

// What holds where both may come from; nothing where there is no such place.
std::optional<State> merged(const State& a, const State& b);

// A place that is branched to and that the code has not reached.
struct Label {
    std::optional<State> state;                                // none until something leads here
    std::vector<std::size_t> branches;                         // pcs of branches with an offset of two bytes
    std::vector<std::pair<std::size_t, std::size_t>> entries;  // of switches: pc of the switch, position of the offset
    std::vector<std::size_t> handlers;                         // indexes of exception handlers
};

// A place that has a frame.
struct Target {
    std::size_t pc;
    State state;
};

// Code that an exception handler covers so far.
struct Range {
    std::size_t start;
    State state;  // of the locals, all that held on the way
};

class TypedCode {
  public:
    TypedCode(State arguments, std::size_t max_locals);

    // One instruction: takes so many values off the stack, and pushes others.
    void emit(const class_builder::Bytes& instruction, std::size_t pops = 0, const std::vector<Type>& pushes = {});
    // Stores what is on top of the stack, by the instruction that its type has.
    void store(std::size_t index);
    void load(std::size_t index);
    // `new` of a class, and the call of the constructor for the value that lies so many values below the top.
    void make(class_builder::ConstantPool& pool, const std::string& name);
    void initialize(const class_builder::Bytes& invocation, std::size_t arguments, const Type& result);

    // Labels that are pending. One can be branched to when what holds then can be merged with what is there.
    [[nodiscard]] bool can_reach(const Label& label, std::size_t pops) const;
    std::size_t new_label();
    void branch(unsigned opcode, std::size_t pops, std::size_t label);  // two bytes of offset
    void switch_to(bool wants_table, const std::vector<std::size_t>& labels, const std::vector<std::size_t>& back_to);
    // Ends what runs straight on: a goto, a return, an athrow.
    void stop() { is_reachable = false; }
    // Puts a label here. What runs straight on into it must be able to reach it.
    void place(std::size_t number);
    // Puts a frame here, of what holds.
    void place_frame();
    // A branch to an earlier frame; false where what holds does not allow it, or it is too far.
    [[nodiscard]] bool can_return_to(const Target& target, std::size_t pops) const;
    void branch_back(unsigned opcode, std::size_t pops, const Target& target);

    void begin_range();
    // The handler is a new label.
    void end_range(unsigned catch_type);

    // How far the first branch to any pending label is away.
    [[nodiscard]] std::size_t longest_way() const;
    // Of an uninitialised value: the class that `new` named.
    [[nodiscard]] const std::string& made_at(std::size_t pc) const { return made_.at(pc); }

    // The Code attribute, where no label is pending any more. `may_be_short` is asked for each frame.
    class_builder::Code finish(class_builder::ConstantPool& pool, const State& arguments,
                               const std::function<bool()>& may_be_short);

    class_builder::Bytes bytes;
    State state;
    bool is_reachable = true;
    std::vector<Label> pending;
    std::vector<Target> targets;
    std::vector<Range> range;  // at most one
    std::size_t max_locals;
    std::size_t growth = 0;  // at most what injections and widening add

  private:
    void reach(Label& label) const;
    void separate_frames();
    void note_locals();

    std::vector<class_builder::Handler> handlers_;
    std::map<std::size_t, std::string> made_;
    std::size_t max_stack_ = 0;
};

}  // namespace typed_code

#endif
