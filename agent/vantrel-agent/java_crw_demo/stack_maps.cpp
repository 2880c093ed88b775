#include "stack_maps.h"

#include "images.h"
#include "landing_frames.h"
#include "stack_map_format.h"

namespace crw {

namespace {

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
        if (tag == VerificationType::kObject) {
            copy_u2(ci);
        } else if (tag == VerificationType::kUninitialized) {
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

void write_frame(MethodRewriteState& mi, LastFrame& last) {
    ClassRewriteState& ci = mi.ci;
    const auto [type, delta] = read_frame_head(ci);
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
    const size_t count_position = mi.ci.output_position;
    const uint16_t count = copy_entry_count(mi.ci, attr_len);
    LastFrame last;
    LandingFrames landings(mi, count);
    for (uint16_t left = count; left > 0; --left) {
        landings.write_up_to_next(last);
        if (!landings.write_instead_of_next(last)) {
            write_frame(mi, last);
        }
    }
    landings.write_rest(last);
    if (count + landings.count() > 0) {
        put_u2(mi.ci.output + count_position, count + landings.count());
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
