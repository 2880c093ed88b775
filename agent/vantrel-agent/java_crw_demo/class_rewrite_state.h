// What is known of the class that is being rewritten, and the cursors over its two images. Every file of the rewriter
// works on this; nothing of it outlives the call of java_crw_demo or java_crw_demo_classname that made it.
//
// All reads and writes of the images go through the functions below, which check that the bytes are there before they
// touch them. Multi-byte values are big-endian, put together from bytes (JVM specification, section 4).
#ifndef JAVA_CRW_DEMO_CLASS_REWRITE_STATE_H
#define JAVA_CRW_DEMO_CLASS_REWRITE_STATE_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "java_crw_demo.h"

namespace crw {

struct MethodRewriteState;

// A tracker method: its name, as the caller gave it, and its Methodref in the constant pool. Index 0 means that it is
// not wanted.
struct Tracker {
    const char* name = nullptr;
    const char* signature = nullptr;
    uint16_t index = 0;
};

// An entry of the constant pool, as far as the rewriter reads it.
struct Constant {
    uint8_t tag;
    uint16_t name_index;    // of a Class entry
    std::string_view text;  // of a Utf8 entry
};

// A place in a method's old code where the new code is something else than a copy.
struct Site {
    enum Kind : uint8_t { kReturn, kNewArray, kBranch, kWideBranch, kTableSwitch, kLookupSwitch };
    uint32_t pc;       // of the instruction, or of the one that an injection goes before
    uint32_t pc_next;  // behind the instruction; that same pc for an injection
    Kind kind;
    int8_t widening;  // by how much the instruction grows: 0, 2 or 5 for a branch, -3 to 3 for a switch's padding
};

struct ClassRewriteState {
    uint32_t number = 0;
    std::optional<std::string> name;

    const uint8_t* input = nullptr;
    size_t input_len = 0;
    size_t input_position = 0;
    uint8_t* output = nullptr;  // with room for output_len bytes
    size_t output_len = 0;
    size_t output_position = 0;

    // The constant pool: for each index of the class file the position of its tag in the input, 0 where an index has
    // no entry; and the appended entries, whose indexes follow.
    std::vector<uint32_t> constant_positions;
    std::vector<Constant> appended_constants;
    uint16_t cpool_max_elements = 0;
    uint16_t cpool_count_plus_one = 0;

    bool is_system_class = false;
    bool is_object_class = false;
    bool is_thread_class = false;
    const char* tracker_class_name = nullptr;
    uint16_t tracker_class_index = 0;
    Tracker object_init_tracker;
    Tracker newarray_tracker;
    Tracker call_tracker;
    Tracker return_tracker;
    uint16_t class_number_index = 0;  // of an Integer with the class number; 0 where that fits in 15 bits

    // What java.lang.Object's new members are made of.
    uint32_t track_name_index = 0;
    uint32_t track_desc_index = 0;
    uint32_t track_field_index = 0;
    uint32_t get_track_id_name_index = 0;
    uint32_t get_track_id_desc_index = 0;
    uint32_t get_track_id_method_name_and_type_index = 0;
    uint32_t get_track_id_method_ref_index = 0;

    JavaCrwDemoErrorHandler fatal_error_handler = nullptr;
    JavaCrwDemoMethodNames mnum_callback = nullptr;

    std::vector<std::string_view> method_names;  // in the order of the class file; the texts are the input's
    std::vector<std::string_view> method_descriptors;
    const MethodRewriteState* current_method = nullptr;
    std::vector<int32_t> map;  // of the current method; here so that the next one needs no other
    std::vector<Site> sites;
};

// The failures. Both tell the handler and then throw Failed, unless the handler throws; without a handler they abort
// the process. The last two arguments are the place in the source, which callers leave to their defaults.

struct Failed {};

// A failure with a text of its own.
[[noreturn]] void fatal_error(JavaCrwDemoErrorHandler handler, const char* message, const char* file = __builtin_FILE(),
                              int line = __builtin_LINE());

// A condition that does not hold, reported with the class, the method and the position in its bytecodes.
[[noreturn]] void assertion_failed(const ClassRewriteState& ci, const char* condition,
                                   const char* file = __builtin_FILE(), int line = __builtin_LINE());

inline void require(const ClassRewriteState& ci, bool holds, const char* condition, const char* file = __builtin_FILE(),
                    int line = __builtin_LINE()) {
    if (!holds) [[unlikely]] {
        assertion_failed(ci, condition, file, line);
    }
}

// The condition that the cursors of both images keep.
constexpr const char* kInsideImages =
    "( (ci) != NULL && (ci)->input_position <= (ci)->input_len && (ci)->output_position <= (ci)->output_len)";

// Reading.

inline uint16_t u2_at(const uint8_t* bytes) {
    return static_cast<uint16_t>(bytes[0] << 8U | bytes[1]);
}
inline uint32_t u4_at(const uint8_t* bytes) {
    return static_cast<uint32_t>(u2_at(bytes)) << 16U | u2_at(bytes + 2);
}

// The next `count` bytes of the input, behind which the cursor goes.
inline const uint8_t* read_bytes(ClassRewriteState& ci, size_t count) {
    if (ci.input_len - ci.input_position < count) [[unlikely]] {
        ci.input_position = ci.input_len;
        assertion_failed(ci, kInsideImages);
    }
    const uint8_t* bytes = ci.input + ci.input_position;
    ci.input_position += count;
    return bytes;
}
inline uint8_t read_u1(ClassRewriteState& ci) {
    return *read_bytes(ci, 1);
}
inline uint16_t read_u2(ClassRewriteState& ci) {
    return u2_at(read_bytes(ci, 2));
}
inline uint32_t read_u4(ClassRewriteState& ci) {
    return u4_at(read_bytes(ci, 4));
}

// Writing.

inline void put_u2(uint8_t* to, uint32_t value) {
    to[0] = static_cast<uint8_t>(value >> 8U);
    to[1] = static_cast<uint8_t>(value);
}
inline void put_u4(uint8_t* to, uint32_t value) {
    put_u2(to, value >> 16U);
    put_u2(to + 2, value);
}

// Room for the next `count` bytes of the output, behind which the cursor goes.
inline uint8_t* room_for(ClassRewriteState& ci, size_t count) {
    require(ci, ci.output_len - ci.output_position >= count, kInsideImages);
    uint8_t* room = ci.output + ci.output_position;
    ci.output_position += count;
    return room;
}
inline void write_bytes(ClassRewriteState& ci, const void* bytes, size_t count) {
    uint8_t* room = room_for(ci, count);
    if (count > 0) {
        memcpy(room, bytes, count);
    }
}
inline void write_u1(ClassRewriteState& ci, uint32_t value) {
    *room_for(ci, 1) = static_cast<uint8_t>(value);
}
inline void write_u2(ClassRewriteState& ci, uint32_t value) {
    put_u2(room_for(ci, 2), value);
}
inline void write_u4(ClassRewriteState& ci, uint32_t value) {
    put_u4(room_for(ci, 4), value);
}

// From one image to the other, unchanged.

inline void copy_bytes(ClassRewriteState& ci, size_t count) {
    const uint8_t* bytes = read_bytes(ci, count);
    write_bytes(ci, bytes, count);
}
inline uint16_t copy_u2(ClassRewriteState& ci) {
    const uint16_t value = read_u2(ci);
    write_u2(ci, value);
    return value;
}
inline uint32_t copy_u4(ClassRewriteState& ci) {
    const uint32_t value = read_u4(ci);
    write_u4(ci, value);
    return value;
}

// The length of an attribute, which must not be longer than what is left of the class file.
inline uint32_t copy_attribute_length(ClassRewriteState& ci) {
    const uint32_t attr_len = copy_u4(ci);
    require(ci, ci.input_len - ci.input_position >= attr_len, kInsideImages);
    return attr_len;
}

}  // namespace crw

#endif
