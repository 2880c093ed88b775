// Two cursors, which go through both images at once where something is copied with changes. Careful checks at each step
// that the images have the bytes. Quick does not: somebody has checked that for many steps before. What uses a cursor
// is a template, so that it works with either, and reports the same failures.
#ifndef JAVA_CRW_DEMO_CURSORS_H
#define JAVA_CRW_DEMO_CURSORS_H

#include <algorithm>

#include "images.h"

namespace crw {

// Reads and writes with every check.
struct Careful {
    ClassRewriteState& ci;

    uint16_t read_u2() { return crw::read_u2(ci); }
    void write_u2(uint32_t value) { crw::write_u2(ci, value); }
    uint16_t copy_u2() { return crw::copy_u2(ci); }
    uint32_t copy_u4() { return crw::copy_u4(ci); }
    void stand() {}
};

// Reads and writes where the bytes are known to be there.
struct Quick {
    ClassRewriteState& ci;
    const uint8_t* in = ci.input + ci.input_position;
    uint8_t* out = ci.output + ci.output_position;

    uint16_t read_u2() {
        in += 2;
        return u2_at(in - 2);
    }
    void write_u2(uint32_t value) {
        put_u2(out, value);
        out += 2;
    }
    uint16_t copy_u2() {
        const uint16_t value = read_u2();
        write_u2(value);
        return value;
    }
    uint32_t copy_u4() {
        in += 4;
        out += 4;
        const uint32_t value = u4_at(in - 4);
        put_u4(out - 4, value);
        return value;
    }
    // Brings the positions in the record up to here. To be called before a failure that reports the position.
    void stand() {
        ci.input_position = static_cast<size_t>(in - ci.input);
        ci.output_position = static_cast<size_t>(out - ci.output);
    }
};

// How many bytes both images have left.
inline size_t left_in_both(const ClassRewriteState& ci) {
    return std::min(ci.input_len - ci.input_position, ci.output_len - ci.output_position);
}

// Goes through a structure that has `size` bytes in both images: calls `steps` with a cursor, which is the quick one if
// both images have that many bytes left.
template <typename Steps>
void in_one_check(ClassRewriteState& ci, size_t size, const Steps& steps) {
    if (left_in_both(ci) >= size) [[likely]] {
        Quick quick{ci};
        steps(quick);
        quick.stand();
    } else {
        Careful careful{ci};
        steps(careful);
    }
}

}  // namespace crw

#endif
