// Reading the class file and writing its new image.
//
// Each image has a position in the class's record, up to which it has been read or written. Every function here moves
// one or both of them, and checks before it touches a byte that the image has it. Values of several bytes are
// big-endian and are put together from bytes (JVM specification, section 4).
#ifndef JAVA_CRW_DEMO_IMAGES_H
#define JAVA_CRW_DEMO_IMAGES_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "class_rewrite_state.h"
#include "failure.h"

namespace crw {

// The condition that fails where something would be read or written outside an image.
constexpr const char* kInsideImages =
    "( (ci) != NULL && (ci)->input_position <= (ci)->input_len && (ci)->output_position <= (ci)->output_len)";

// The text up to its first zero byte, because callers are given names as C texts. A proper class file has no zero byte
// in a name: its encoding writes the character zero as two other bytes.
inline std::string_view c_string(std::string_view text) {
    return text.substr(0, text.find('\0'));
}

// Values of bytes that are known to be in the image.

inline uint16_t u2_at(const uint8_t* bytes) {
    return static_cast<uint16_t>(bytes[0] << 8U | bytes[1]);
}
inline uint32_t u4_at(const uint8_t* bytes) {
    return static_cast<uint32_t>(u2_at(bytes)) << 16U | u2_at(bytes + 2);
}

// The bytes are put together first, so that the compiler stores them at once.
template <size_t size>
void put_big_endian(uint8_t* to, uint64_t value) {
    uint8_t bytes[size];
    for (size_t i = 0; i < size; ++i) {
        bytes[i] = static_cast<uint8_t>(value >> 8U * (size - 1 - i));
    }
    memcpy(to, bytes, size);
}
inline void put_u2(uint8_t* to, uint32_t value) {
    put_big_endian<2>(to, value);
}
inline void put_u4(uint8_t* to, uint32_t value) {
    put_big_endian<4>(to, value);
}
inline void put_u8(uint8_t* to, uint64_t value) {
    put_big_endian<8>(to, value);
}

// Reading.

// The next `count` bytes of the class file.
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

// Room for the next `count` bytes of the new image, which the caller fills.
inline uint8_t* room_for(ClassRewriteState& ci, size_t count) {
    if (ci.output_len - ci.output_position < count) [[unlikely]] {
        output_is_full(ci);
    }
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

// From the class file to the new image, unchanged.

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

// An attribute's name_index and attribute_length.
constexpr size_t kAttributeHeadSize = 6;

// The class file must have as many bytes left as an attribute is long, after its head.
inline void require_attribute(const ClassRewriteState& ci, uint32_t attr_len) {
    require(ci, ci.input_len - ci.input_position >= attr_len, kInsideImages);
}

}  // namespace crw

#endif
