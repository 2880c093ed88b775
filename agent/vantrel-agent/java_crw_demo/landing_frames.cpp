#include "landing_frames.h"

#include <algorithm>

#include "branches.h"
#include "images.h"

namespace crw {

namespace {

using Types = std::vector<VerificationType>;

constexpr uint16_t kFirstVersionWithStackMaps = 50;

// Types as the class file has them, one for a long or double, become types by slot.
void read_types(ClassRewriteState& ci, uint32_t count, Types& types) {
    for (; count > 0; --count) {
        VerificationType type{static_cast<VerificationType::Tag>(read_u1(ci))};
        if (type.tag == VerificationType::kObject || type.tag == VerificationType::kUninitialized) {
            type.value = read_u2(ci);
        }
        types.push_back(type);
        if (type.is_two_slots()) {
            types.push_back({VerificationType::kSecondSlot});
        }
    }
}

void drop_types(uint32_t count, Types& types) {
    for (; count > 0 && !types.empty(); --count) {
        types.pop_back();
        if (!types.empty() && types.back().is_two_slots()) {
            types.pop_back();
        }
    }
}

void write_types(MethodRewriteState& mi, const Types& types) {
    ClassRewriteState& ci = mi.ci;
    write_u2(ci, static_cast<uint32_t>(std::count_if(types.begin(), types.end(), [](const VerificationType& type) {
                 return type.tag != VerificationType::kSecondSlot;
             })));
    for (const VerificationType& type : types) {
        if (type.tag == VerificationType::kSecondSlot) {
            continue;
        }
        write_u1(ci, type.tag);
        if (type.tag == VerificationType::kObject) {
            write_u2(ci, type.value);
        } else if (type.tag == VerificationType::kUninitialized) {
            write_u2(ci, static_cast<uint32_t>(mi.new_pc(type.value)));
        }
    }
}

// Reads the rest of a frame of the class file, and makes `frame`, which is the frame before it, what this one says.
void read_frame(ClassRewriteState& ci, uint8_t type, Frame& frame) {
    frame.stack.clear();
    if (type >= kSameLocalsOneStackItem && type <= kSameLocalsOneStackItemExtended) {
        read_types(ci, 1, frame.stack);
    } else if (type >= kChop && type < kSameExtended) {
        drop_types(uint32_t{kSameExtended} - type, frame.locals);
    } else if (type == kFull) {
        frame.locals.clear();
        read_types(ci, read_u2(ci), frame.locals);
        read_types(ci, read_u2(ci), frame.stack);
    } else if (type >= kAppend) {
        read_types(ci, type - uint32_t{kSameExtended}, frame.locals);
    }
}

}  // namespace

LandingFrames::LandingFrames(MethodRewriteState& mi, uint16_t frame_count) : mi_(mi) {
    const bool are_read = mi.ci.door == Door::kVantrelRewriter && mi.ci.major_version >= kFirstVersionWithStackMaps;
    if (are_read && std::any_of(mi.sites.begin(), mi.sites.end(), is_widened_conditional)) {
        const size_t position = mi.ci.input_position;
        read_own_frames(frame_count);
        mi.ci.input_position = position;
        find_landings();
    }
}

void LandingFrames::read_own_frames(uint16_t frame_count) {
    ClassRewriteState& ci = mi_.ci;
    Frame frame = first_frame(mi_);
    int32_t pc = 0;
    for (uint16_t i = 0; i < frame_count; ++i) {
        const FrameHead head = read_frame_head(ci);
        pc += head.delta + (i > 0 ? 1 : 0);
        read_frame(ci, head.type, frame);
        own_.push_back({pc, ci.input_position, frame});
    }
}

void LandingFrames::find_landings() {
    Frame frame = first_frame(mi_);
    int32_t known_at = 0;     // where `frame` holds
    bool is_followed = true;  // until types cannot be followed; then again from the class file's next frame on
    size_t next_own = 0;
    for (const Site& site : mi_.sites) {
        if (!is_widened_conditional(site)) {
            continue;
        }
        const auto pc = static_cast<int32_t>(site.pc_next);
        for (; next_own < own_.size() && own_[next_own].pc <= pc; ++next_own) {
            frame = own_[next_own].frame;
            known_at = own_[next_own].pc;
            is_followed = true;
        }
        if (known_at == pc || pc >= mi_.code_len) {
            continue;  // there is a frame already, or nothing to land on
        }
        is_followed =
            is_followed && follow_types(mi_, frame, static_cast<uint32_t>(known_at), static_cast<uint32_t>(pc));
        if (is_followed) {
            known_at = pc;
            landings_.push_back({pc, frame});
        }
    }
}

void LandingFrames::write(int32_t pc, const Frame& frame, LastFrame& last) {
    ClassRewriteState& ci = mi_.ci;
    const int32_t new_pc = mi_.new_pc(static_cast<uint32_t>(pc));
    const int32_t new_delta = new_pc - last.new_pc - last.increment;
    require(ci, new_delta >= 0, "new_delta >= 0");
    write_u1(ci, kFull);
    write_u2(ci, static_cast<uint32_t>(new_delta));
    write_types(mi_, frame.locals);
    write_types(mi_, frame.stack);
    last = {pc, new_pc, 1};
}

void LandingFrames::write_up_to_next(LastFrame& last) {
    for (; next_landing_ < landings_.size() && landings_[next_landing_].pc < own_[next_own_].pc; ++next_landing_) {
        write(landings_[next_landing_].pc, landings_[next_landing_].frame, last);
        next_own_in_full_ = true;
        ++count_;
    }
}

bool LandingFrames::write_instead_of_next(LastFrame& last) {
    if (own_.empty()) {
        return false;
    }
    const Own& own = own_[next_own_++];
    if (!next_own_in_full_) {
        return false;
    }
    write(own.pc, own.frame, last);
    mi_.ci.input_position = own.end_position;
    next_own_in_full_ = false;
    return true;
}

void LandingFrames::write_rest(LastFrame& last) {
    for (; next_landing_ < landings_.size(); ++next_landing_) {
        write(landings_[next_landing_].pc, landings_[next_landing_].frame, last);
        ++count_;
    }
}

}  // namespace crw
