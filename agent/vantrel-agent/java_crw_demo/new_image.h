// Blocks of memory that go to the caller, who frees them with free(), and how a new image gets one.
#ifndef JAVA_CRW_DEMO_NEW_IMAGE_H
#define JAVA_CRW_DEMO_NEW_IMAGE_H

#include <cstdlib>
#include <memory>

#include "class_rewrite_state.h"

namespace crw {

constexpr const char* kOutOfMemory = "Ran out of malloc memory";

struct Free {
    void operator()(void* block) const { free(block); }
};
template <typename T>
using Owned = std::unique_ptr<T[], Free>;

// Fails where there is no memory.
void* allocate_block(size_t size);

template <typename T>
Owned<T> allocate(size_t size) {
    return Owned<T>(static_cast<T*>(allocate_block(size)));
}

// How long java_crw_demo's new images may be. Every method may double, and the rest is for the added constants and
// members.
size_t usual_room(size_t file_len);

// Rewrites a class into a new image of at most `room` bytes. The length of the image is the record's output position.
// The arguments have been checked, and are in the record.
Owned<unsigned char> make_new_image(ClassRewriteState& ci, size_t room);

}  // namespace crw

#endif
