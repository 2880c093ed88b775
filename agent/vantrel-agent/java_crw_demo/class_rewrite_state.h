// The record of the class that is being rewritten: its two images, what is known of it so far, and what the caller
// asked for. Every file of the rewriter works on it. It is made by one call of an exported function and ends with it.
#ifndef JAVA_CRW_DEMO_CLASS_REWRITE_STATE_H
#define JAVA_CRW_DEMO_CLASS_REWRITE_STATE_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace crw {

struct MethodRewriteState;
struct Site;

// A method of the tracker class: its name and descriptor as the caller gave them, and the index of its Methodref in
// the new constant pool. The index is 0 where the tracker is not wanted.
struct Tracker {
    const char* name = nullptr;
    const char* signature = nullptr;
    uint16_t index = 0;
};

// Which function was called. The contract of java_crw_demo is kept as it is; what has come to class files since, and
// what makes every stack map hold, is only for those who call the other one.
enum class Door : uint8_t { kJavaCrwDemo, kVantrelRewriter };

struct ClassRewriteState {
    uint32_t number = 0;
    std::optional<std::string_view> name;  // lies in the class file, or is the caller's
    uint16_t major_version = 0;
    uint16_t this_class_index = 0;

    // The class file and its new image. images.h has the functions that read and write them.
    const uint8_t* input = nullptr;
    size_t input_len = 0;
    size_t input_position = 0;
    uint8_t* output = nullptr;  // with room for output_len bytes
    size_t output_len = 0;
    size_t output_position = 0;

    // The constant pool. For each index of the class file, the position of its tag in the input; 0 for an index that
    // has no entry. The rewriter's own entries have the indexes that follow.
    std::vector<uint32_t> constant_positions;
    uint16_t cpool_max_elements = 0;
    uint16_t cpool_count_plus_one = 0;
    // Entries that are found to be needed after the pool has been written. They are put where they belong at the end.
    std::vector<uint8_t> late_constants;
    size_t end_of_own_pool = 0;  // in the output: where the class file's entries end, and where all do
    size_t end_of_pool = 0;
    size_t pool_count_position = 0;
    std::unordered_map<std::string, uint16_t> class_constants;  // by name; filled when a stack map asks for it

    bool is_module_info = false;
    bool is_system_class = false;
    bool is_object_class = false;
    bool is_thread_class = false;
    bool newarray_takes_numbers = false;  // its tracker, as the call tracker does, and not the array
    const char* tracker_class_name = nullptr;
    uint16_t tracker_class_index = 0;
    Tracker object_init_tracker;
    Tracker newarray_tracker;
    Tracker call_tracker;
    Tracker return_tracker;
    uint16_t class_number_index = 0;  // of an Integer with the class number; 0 where that fits in 15 bits

    // The constants of java.lang.Object's new members.
    uint32_t track_name_index = 0;
    uint32_t track_desc_index = 0;
    uint32_t track_field_index = 0;
    uint32_t get_track_id_name_index = 0;
    uint32_t get_track_id_desc_index = 0;
    uint32_t get_track_id_method_name_and_type_index = 0;
    uint32_t get_track_id_method_ref_index = 0;

    Door door = Door::kJavaCrwDemo;
    // Told the names and descriptors of the class's methods. May be null.
    void (*mnum_callback)(void* context, unsigned class_number, const char** names, const char** descriptors,
                          int method_count) = nullptr;
    void* mnum_context = nullptr;

    std::vector<std::string_view> method_names;  // in the order of the class file, if anybody wants to be told them
    std::vector<std::string_view> method_descriptors;
    const MethodRewriteState* current_method = nullptr;  // for the texts of failures

    // The room for a method's map and sites (method_rewrite_state.h). It is kept from one method to the next, so that
    // a class needs no more of it than its longest method does.
    std::unique_ptr<int32_t[]> map;
    size_t map_size = 0;
    std::vector<Site> sites;
};

}  // namespace crw

#endif
