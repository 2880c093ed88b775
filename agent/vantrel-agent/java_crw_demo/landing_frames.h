// Frames for the places where widened conditional branches land.
//
// Such a branch is the opposite condition over a goto_w (relocation.h). Where that condition lands there was no branch
// target before, so the class file may have no frame there. The types that hold there are those that the verifier has
// at the branch: they follow from the last frame before it and the instructions since (verification_types.h). The place
// gets a full frame of just these types.
//
// The next frame of the class file may only say how it differs from the frame before it. That is now the inserted one,
// so it is written as a full frame, too. All later frames stay as they are.
#ifndef JAVA_CRW_DEMO_LANDING_FRAMES_H
#define JAVA_CRW_DEMO_LANDING_FRAMES_H

#include <cstdint>
#include <vector>

#include "method_rewrite_state.h"
#include "stack_map_format.h"
#include "verification_types.h"

namespace crw {

// The frames to insert into one StackMapTable while it is written.
class LandingFrames {
  public:
    // Both images are at the attribute's first frame. Nothing is inserted for java_crw_demo, into class files so old
    // that no VM reads their stack maps, and where no conditional branch has been widened. Otherwise all frames of the
    // class file are read ahead.
    LandingFrames(MethodRewriteState& mi, uint16_t frame_count);

    // Writes the frames that come before the class file's next one.
    void write_up_to_next(LastFrame& last);

    // Writes the class file's next frame in full, and skips it there. False where it can stay as it is.
    bool write_instead_of_next(LastFrame& last);

    // Writes the frames that come after the class file's last one.
    void write_rest(LastFrame& last);

    // How many frames were inserted.
    [[nodiscard]] uint32_t count() const { return count_; }

  private:
    struct Own {  // a frame of the class file
        int32_t pc;
        size_t end_position;  // in the input
        Frame frame;
    };
    struct Landing {
        int32_t pc;
        Frame frame;
    };

    void read_own_frames(uint16_t frame_count);
    void find_landings();
    void write(int32_t pc, const Frame& frame, LastFrame& last);

    MethodRewriteState& mi_;
    std::vector<Own> own_;
    std::vector<Landing> landings_;
    size_t next_own_ = 0;
    size_t next_landing_ = 0;
    bool next_own_in_full_ = false;
    uint32_t count_ = 0;
};

}  // namespace crw

#endif
