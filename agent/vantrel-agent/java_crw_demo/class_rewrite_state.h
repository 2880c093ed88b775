// The record of the class that is being rewritten: its two images, what is known of it so far, and what the caller
// asked for. Every file of the rewriter works on it. It is made by one call of an exported function and ends with it.
#ifndef JAVA_CRW_DEMO_CLASS_REWRITE_STATE_H
#define JAVA_CRW_DEMO_CLASS_REWRITE_STATE_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "room.h"
#include "site.h"

namespace crw {

struct MethodRewriteState;

// A method of the tracker class: its name as the caller gave it, its descriptor, and the index of its Methodref in the
// new constant pool. The index is 0 where the tracker is not wanted, and has no name.
struct Tracker {
    const char* name = nullptr;
    std::string_view signature;
    uint16_t index = 0;
};

// The bytes of one tracker call. The longest has 9: two pushes of 16-bit values and the invocation, with 3 bytes each.
// There is room for 16, which processors move at once, so that a call can be written as a whole, whatever its length.
struct InjectionTemplate {
    std::array<uint8_t, 16> code{};
    uint8_t len = 0;  // 0 where nothing is injected
};

// The calls of one method, by where they go.
struct Injections {
    InjectionTemplate entry;
    InjectionTemplate at_return;
    InjectionTemplate newarray;
};

// The attributes that the rewriter knows by name.
enum class AttributeName : uint8_t {
    kOther,
    kCode,
    kLineNumberTable,
    kLocalVariableTable,
    kLocalVariableTypeTable,
    kStackMapTable,
    kStackMap,
    kTypeAnnotations,  // visible or not
};

// Which attribute the text at an index of the constant pool names, once it has been looked up.
struct KnownAttributeName {
    uint32_t index = UINT32_MAX;
    AttributeName name = AttributeName::kOther;
};

// The descriptors of trackers: of those that take the class's and the method's number, and of those that take an
// object.
constexpr std::string_view kNumbers = "(II)V";
constexpr std::string_view kObject = "(Ljava/lang/Object;)V";

// Which of the two exported functions was called. java_crw_demo takes class files up to version 52 only, and its bytes
// never change, even where they are not what a verifier wants. Newer class files, and stack maps that stay right
// whatever grows, are for callers of the other one.
enum class Door : uint8_t { kJavaCrwDemo, kVantrelRewriter };

// Few constant pools have more entries than this, and the code of few methods has more bytes.
constexpr size_t kUsualConstants = 512;
constexpr size_t kUsualCode = 512;

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
    std::span<uint32_t> constant_positions;
    Room<uint32_t, kUsualConstants> constants_room;
    uint16_t cpool_max_elements = 0;
    uint16_t cpool_count_plus_one = 0;
    // Entries whose need is only seen after the pool has been written. At the end they are put after the others.
    std::vector<uint8_t> late_constants;
    size_t end_of_own_pool = 0;  // in the output: where the class file's entries end, and where all do
    size_t end_of_pool = 0;
    size_t pool_count_position = 0;
    std::unordered_map<std::string, uint16_t> class_constants;  // by name; filled when a stack map asks for it

    // A cache of the names of attributes, each in the place that the lowest bits of its index choose. A class has few
    // of them, and they come again and again.
    std::array<KnownAttributeName, 16> known_attribute_names;

    Door door = Door::kJavaCrwDemo;
    bool is_module_info = false;
    bool is_system_class = false;
    bool is_object_class = false;
    bool is_thread_class = false;
    bool newarray_takes_numbers = false;  // the tracker of new arrays does, instead of the array
    const char* tracker_class_name = nullptr;
    uint16_t tracker_class_index = 0;
    uint16_t class_number_index = 0;  // of an Integer with the class number; 0 where that fits in 15 bits
    Tracker object_init_tracker;
    Tracker newarray_tracker;
    Tracker call_tracker;
    Tracker return_tracker;

    // The constants of java.lang.Object's new members.
    uint32_t track_name_index = 0;
    uint32_t track_desc_index = 0;
    uint32_t track_field_index = 0;
    uint32_t get_track_id_name_index = 0;
    uint32_t get_track_id_desc_index = 0;
    uint32_t get_track_id_method_name_and_type_index = 0;
    uint32_t get_track_id_method_ref_index = 0;

    // Told the names and descriptors of the class's methods. May be null.
    void (*mnum_callback)(void* context, unsigned class_number, const char** names, const char** descriptors,
                          int method_count) = nullptr;
    void* mnum_context = nullptr;

    std::vector<std::string_view> method_names;  // in the order of the class file, if anybody wants to be told them
    std::vector<std::string_view> method_descriptors;
    const MethodRewriteState* current_method = nullptr;  // for the texts of failures

    // What belongs to one method at a time (method_rewrite_state.h): its calls, and the room for its map and its sites.
    // That room is kept for the next method, so a class never needs more of it than its longest method does.
    Injections injections;
    Room<int32_t, kUsualCode> map_room;
    Room<Site, kUsualCode> sites_room;
};

}  // namespace crw

#endif
