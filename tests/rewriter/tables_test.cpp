// What stands in pcs behind a method's code: handlers, lines, variables and stack map frames.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "rewritten_code.h"

using namespace rewritten_code;

namespace {

// A method whose entry gets five bytes, whose return at 5 gets five, and whose array at 1 gets four behind it.
//   old: 0 nop, 1 newarray, 3 nop, 4 nop, 5 return, 6 nop, 7 athrow; end 8
//   new: 5 nop, 6 newarray, 12 nop, 13 nop, 14 the return's injection, 20 nop, 21 athrow; end 22
Code with_tables() {
    Code code;
    code.bytes = {op::nop, op::newarray, 10, op::nop, op::nop, op::return_, op::nop, op::athrow};
    return code;
}

TEST(Tables, FollowTheCode) {
    Code code = with_tables();
    code.handlers = {{0, 8, 5, 3}, {3, 5, 7, 0}, {1, 8, 8, 0}};
    code.attributes = {
        line_number_table({{0, 10}, {3, 11}, {5, 12}, {6, 13}, {0, 14}}),
        local_variable_table({{0, 8, 1, 2, 3}, {3, 2, 1, 2, 4}, {6, 2, 1, 2, 5}, {5, 0, 1, 2, 6}}),
        local_variable_type_table({{0, 5, 1, 2, 3}}),
        {"Vendor", {0, 5, 0, 3}},
        {"RuntimeVisibleTypeAnnotations", {0, 0}},
    };
    const Code after = code_after(with_code(code));
    EXPECT_EQ(after.handlers, (std::vector<Handler>{{5, 22, 14, 3}, {12, 14, 21, 0}, {6, 22, 22, 0}}));
    EXPECT_EQ(after.attributes,
              (std::vector<Attribute>{
                  line_number_table({{0, 10}, {12, 11}, {14, 12}, {20, 13}, {0, 14}}),
                  local_variable_table({{0, 22, 1, 2, 3}, {12, 2, 1, 2, 4}, {20, 2, 1, 2, 5}, {14, 0, 1, 2, 6}}),
                  local_variable_type_table({{0, 14, 1, 2, 3}}),
                  code.attributes[3],
                  code.attributes[4],
              }));
}

TEST(Tables, FailWhereTheyLeadOutOfTheCode) {
    const std::string outside = "pos <= mi->code_len";
    const std::string beyond =
        "( (ci) != NULL && (ci)->input_position <= (ci)->input_len && (ci)->output_position <= (ci)->output_len)";
    const struct {
        const char* what;
        std::string condition;
        void (*spoil)(Code&);
    } cases[] = {
        {"a handler's start", outside,
         [](Code& code) {
             code.handlers = {{9, 9, 9, 0}};
         }},
        {"a handler's end", outside,
         [](Code& code) {
             code.handlers = {{0, 9, 0, 0}};
         }},
        {"a handler", outside,
         [](Code& code) {
             code.handlers = {{0, 8, 9, 0}};
         }},
        {"a line", outside,
         [](Code& code) {
             code.attributes = {line_number_table({{9, 1}})};
         }},
        {"a variable's start", outside,
         [](Code& code) {
             code.attributes = {local_variable_table({{9, 0}})};
         }},
        {"a variable's end", outside,
         [](Code& code) {
             code.attributes = {local_variable_table({{8, 1}})};
         }},
        {"a frame", outside, [](Code& code) { code.attributes = {stack_map_table({same_frame(9)})}; }},
        {"a new object", outside,
         [](Code& code) { code.attributes = {stack_map_table({one_item_frame(3, uninitialized_type(9))})}; }},
        {"an old frame", outside, [](Code& code) { code.attributes = {stack_map({stack_map_frame(9, {}, {})})}; }},
        {"more lines than the attribute has", beyond,
         [](Code& code) {
             code.attributes = {{"LineNumberTable", u2(1)}, {"Vendor", times(40, {0})}};
         }},
        {"more variables than the attribute has", beyond,
         [](Code& code) {
             code.attributes = {{"LocalVariableTable", u2(1)}, {"Vendor", times(40, {0})}};
         }},
        {"more frames than the attribute has", beyond,
         [](Code& code) {
             code.attributes = {{"StackMapTable", u2(1)}, {"Vendor", times(40, {0})}};
         }},
        {"an attribute longer than the file", beyond,
         [](Code& code) {
             code.attributes = {{"Vendor", {}, 0xFFFFFFFF}};
         }},
        {"a reserved frame", "Unknown frame type in StackMapTable attribute",
         [](Code& code) { code.attributes = {stack_map_table({u1(128)})}; }},
        {"the last reserved frame", "Unknown frame type in StackMapTable attribute",
         [](Code& code) { code.attributes = {stack_map_table({u1(246)})}; }},
        {"frames that are none", "attr_len==2",
         [](Code& code) {
             code.attributes = {{"StackMapTable", cat({u2(0), u1(0)})}};
         }},
        {"old frames that are none", "attr_len==2",
         [](Code& code) {
             code.attributes = {{"StackMap", cat({u2(0), u1(0)})}};
         }},
        {"something behind the frames", "new_attr_len >= attr_len",
         [](Code& code) {
             code.attributes = {{"StackMapTable", cat({u2(1), same_frame(3), times(9, {0})})}};
         }},
    };
    for (const auto& c : cases) {
        Code code = with_tables();
        c.spoil(code);
        EXPECT_EQ(failing_condition(with_code(code), kNothing), c.condition) << c.what;
    }
}

TEST(StackMaps, FramesGrowWhereTheirDeltasDo) {
    // Arrays and nops: every array's creation moves what follows by four.
    const Bytes array = {op::newarray, 10};
    const Bytes nops = times(8, {op::nop});
    Code code;
    code.bytes = cat({times(8, array), nops, {op::nop}, nops, times(30, array), nops, kReturn});
    // Old pcs 16, 24, 33, 100 and new ones 48, 56, 65, 252.
    const Bytes fresh = uninitialized_type(16);
    const Bytes moved = uninitialized_type(48);
    const Bytes object = object_type(1);
    const struct {
        std::vector<Bytes> old_frames;
        std::vector<Bytes> new_frames;
    } cases[] = {
        {{same_frame(16), same_frame(7), same_frame(8)}, {same_frame(48), same_frame(7), same_frame(8)}},
        {{same_frame(33)}, {same_frame_extended(65)}},
        {{same_frame_extended(16)}, {same_frame_extended(48)}},
        {{one_item_frame(16, fresh), one_item_frame(16, object)},
         {one_item_frame(48, moved), one_item_frame(16, object)}},
        {{one_item_frame(33, fresh)}, {one_item_frame_extended(65, moved)}},
        {{one_item_frame_extended(33, type(2)), chop_frame(3, 66)},
         {one_item_frame_extended(65, type(2)), chop_frame(3, 186)}},
        {{append_frame(16, {type(1), fresh, object}), append_frame(16, {type(5)}), same_frame_extended(66)},
         {append_frame(48, {type(1), moved, object}), append_frame(16, {type(5)}), same_frame_extended(186)}},
        {{full_frame(33, {type(0), type(3), fresh}, {type(4), type(6)}), same_frame(0)},
         {full_frame(65, {type(0), type(3), moved}, {type(4), type(6)}), same_frame(0)}},
        {{}, {}},
    };
    for (const auto& c : cases) {
        code.attributes = {stack_map_table(c.old_frames)};
        EXPECT_EQ(code_after(with_code(code), kArrays).attributes,
                  std::vector<Attribute>{stack_map_table(c.new_frames)});
    }
    // 63 is the last delta of a short frame.
    code.bytes = cat({array, times(80, {op::nop}), kReturn});
    code.attributes = {stack_map_table({same_frame(59), one_item_frame(10, object)})};
    EXPECT_EQ(code_after(with_code(code), kArrays).attributes,
              std::vector<Attribute>{stack_map_table({same_frame(63), one_item_frame(10, object)})});
    code.attributes = {stack_map_table({same_frame(60)})};
    EXPECT_EQ(code_after(with_code(code), kArrays).attributes,
              std::vector<Attribute>{stack_map_table({same_frame_extended(64)})});

    code.attributes = {stack_map({stack_map_frame(60, {fresh, type(1)}, {object}), stack_map_frame(2, {}, {})})};
    EXPECT_EQ(code_after(with_code(code), kArrays).attributes,
              (std::vector<Attribute>{stack_map(
                  {stack_map_frame(64, {uninitialized_type(20), type(1)}, {object}), stack_map_frame(6, {}, {})})}));
}

TEST(StackMaps, FramesThatComeOutOfOrderFail) {
    // The entry's injection takes all the switch's padding: what follows comes nearer to a place inside it.
    Code code;
    code.bytes = cat({tableswitch(0, 20, 0, {0}), times(9, {op::nop}), kReturn});
    code.attributes = {stack_map_table({same_frame(19), same_frame(0)})};
    RewriteOptions options = kCalls;
    options.class_number = 128;
    EXPECT_EQ(failing_condition(with_code(code), options), "new_delta >= 0");
}

}  // namespace
