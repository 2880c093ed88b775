#include "stack_maps.h"

#include "images.h"

namespace crw {

namespace {

// The first frame type of each kind (JVM specification, section 4.7.4).
enum FrameType : uint8_t {
    kSame = 0,
    kSameLocalsOneStackItem = 64,
    kReserved = 128,
    kSameLocalsOneStackItemExtended = 247,
    kChop = 248,
    kSameExtended = 251,
    kAppend = 252,
    kFull = 255,
};

// The short forms have their delta in the frame type, and so many values for it.
constexpr int32_t kDeltasInType = 64;

enum VerificationType : uint8_t {
    kObject = 7,
    kUninitialized = 8,
};

// Keeps reading inside one attribute: as long as it lives, the class file ends where the attribute does.
class InputOfAttribute {
  public:
    InputOfAttribute(ClassRewriteState& ci, uint32_t attr_len) : ci_(ci), whole_(ci.input_len) {
        ci.input_len = ci.input_position + attr_len;
    }
    ~InputOfAttribute() { ci_.input_len = whole_; }
    InputOfAttribute(const InputOfAttribute&) = delete;
    InputOfAttribute& operator=(const InputOfAttribute&) = delete;

  private:
    ClassRewriteState& ci_;
    size_t whole_;
};

void copy_verification_types(MethodRewriteState& mi, uint32_t count) {
    ClassRewriteState& ci = mi.ci;
    for (; count > 0; --count) {
        const uint8_t tag = read_u1(ci);
        write_u1(ci, tag);
        if (tag == kObject) {
            copy_u2(ci);
        } else if (tag == kUninitialized) {
            // The pc of the instruction that makes the object.
            write_u2(ci, static_cast<uint32_t>(mi.new_pc(read_u2(ci))));
        }
    }
}

void copy_counted_verification_types(MethodRewriteState& mi) {
    copy_verification_types(mi, copy_u2(mi.ci));
}

// Writes a frame in its short form, or in its extended form where the delta does not fit.
void write_short_frame(ClassRewriteState& ci, FrameType short_form, FrameType extended_form, int32_t delta) {
    if (delta < kDeltasInType) {
        write_u1(ci, static_cast<uint32_t>(short_form + delta));
    } else {
        write_u1(ci, extended_form);
        write_u2(ci, static_cast<uint32_t>(delta));
    }
}

// Writes the new length of an attribute whose frames have all been written.
void write_length(MethodRewriteState& mi, uint32_t attr_len, size_t length_position) {
    ClassRewriteState& ci = mi.ci;
    const size_t new_attr_len = ci.output_position - length_position - sizeof(uint32_t);
    require(ci, new_attr_len >= attr_len, "new_attr_len >= attr_len");
    put_u4(ci.output + length_position, static_cast<uint32_t>(new_attr_len));
}

// Returns the number of frames. An attribute without any holds nothing but that number.
uint16_t copy_entry_count(ClassRewriteState& ci, uint32_t attr_len) {
    const uint16_t count = copy_u2(ci);
    require(ci, count > 0 || attr_len == sizeof count, "attr_len==2");
    return count;
}

// The frame before the one that is being written.
struct LastFrame {
    int32_t pc = 0;
    int32_t new_pc = 0;
    int32_t increment = 0;  // 1 from the second frame on: a delta there is one less than the distance
};

void write_frame(MethodRewriteState& mi, LastFrame& last) {
    ClassRewriteState& ci = mi.ci;
    const uint8_t type = read_u1(ci);
    if (type >= kReserved && type < kSameLocalsOneStackItemExtended) {
        fatal_error(ci.fatal_error_handler, "Unknown frame type in StackMapTable attribute");
    }
    const int32_t delta = type < kReserved ? type % kDeltasInType : read_u2(ci);
    const int32_t pc = last.pc + delta + last.increment;
    const int32_t new_pc = mi.new_pc(static_cast<uint32_t>(pc));
    const int32_t new_delta = new_pc - last.new_pc - last.increment;

    if (type < kSameLocalsOneStackItem) {
        write_short_frame(ci, kSame, kSameExtended, new_delta);
    } else if (type < kReserved) {
        write_short_frame(ci, kSameLocalsOneStackItem, kSameLocalsOneStackItemExtended, new_delta);
        copy_verification_types(mi, 1);
    } else {
        write_u1(ci, type);
        write_u2(ci, static_cast<uint32_t>(new_delta));
        if (type == kSameLocalsOneStackItemExtended) {
            copy_verification_types(mi, 1);
        } else if (type == kFull) {
            copy_counted_verification_types(mi);
            copy_counted_verification_types(mi);
        } else if (type >= kAppend) {
            copy_verification_types(mi, type - kSameExtended);
        }
    }
    require(ci, new_delta >= 0, "new_delta >= 0");
    require(ci, new_pc <= mi.new_code_len, "last_new_pc <= mi->new_code_len");
    last = {pc, new_pc, 1};
}

}  // namespace

void write_stack_map_table(MethodRewriteState& mi, uint32_t attr_len, size_t length_position) {
    const InputOfAttribute input(mi.ci, attr_len);
    LastFrame last;
    const uint16_t count = copy_entry_count(mi.ci, attr_len);
    for (uint16_t left = count; left > 0; --left) {
        write_frame(mi, last);
    }
    if (count > 0) {
        write_length(mi, attr_len, length_position);
    }
}

void write_stack_map(MethodRewriteState& mi, uint32_t attr_len, size_t length_position) {
    const InputOfAttribute input(mi.ci, attr_len);
    const uint16_t count = copy_entry_count(mi.ci, attr_len);
    for (uint16_t left = count; left > 0; --left) {
        write_u2(mi.ci, static_cast<uint32_t>(mi.new_pc(read_u2(mi.ci))));
        copy_counted_verification_types(mi);
        copy_counted_verification_types(mi);
    }
    if (count > 0) {
        write_length(mi, attr_len, length_position);
    }
}

}  // namespace crw
