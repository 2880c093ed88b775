// Two ways through both images at once, for what is copied with changes: with a look at each step whether the images
// have the bytes, or after one look for many steps. What is written for one of them is written for both, as a template;
// a failure tells the same with either.
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
    // Sets the positions in the images to where this is. To be called before a failure that tells the position.
    void stand() {
        ci.input_position = static_cast<size_t>(in - ci.input);
        ci.output_position = static_cast<size_t>(out - ci.output);
    }
};

// How many bytes both images have left.
inline size_t left_in_both(const ClassRewriteState& ci) {
    return std::min(ci.input_len - ci.input_position, ci.output_len - ci.output_position);
}

// Goes through a structure that has `size` bytes in both images, by `steps`, which is given a cursor: quickly if there
// is as much left of both.
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
