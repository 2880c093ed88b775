#include "new_image.h"

#include "class_image.h"
#include "failure.h"

namespace crw {

void* allocate_block(size_t size) {
    void* block = malloc(size);
    if (block == nullptr) {
        fatal_error(kOutOfMemory);
    }
    return block;
}

size_t usual_room(size_t file_len) {
    constexpr size_t kForConstantsAndMembers = 512;
    return 2 * file_len + kForConstantsAndMembers;
}

Owned<unsigned char> make_new_image(ClassRewriteState& ci, size_t room) {
    ci.output_len = room;
    Owned<unsigned char> image = allocate<unsigned char>(room);
    ci.output = image.get();
    inject_class(ci);
    // Where shrinking fails the block stays as it is.
    if (void* shrunk = realloc(image.get(), ci.output_position)) {
        (void)image.release();
        image.reset(static_cast<unsigned char*>(shrunk));
    }
    return image;
}

}  // namespace crw
