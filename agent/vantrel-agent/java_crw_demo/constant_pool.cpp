#include "constant_pool.h"

#include <cstdio>

#include "images.h"

namespace crw {

namespace {

// JVM specification, table 4.4-B.
enum Tag : uint8_t {
    kUtf8 = 1,
    kInteger = 3,
    kFloat = 4,
    kLong = 5,
    kDouble = 6,
    kClass = 7,
    kString = 8,
    kFieldref = 9,
    kMethodref = 10,
    kInterfaceMethodref = 11,
    kNameAndType = 12,
    kMethodHandle = 15,
    kMethodType = 16,
    kDynamic = 17,
    kInvokeDynamic = 18,
    kModule = 19,
    kPackage = 20,
};

// By tag, how many bytes follow it, not counting the text of a Utf8 entry. 0 where there is no such tag.
constexpr uint8_t kSizes[] = {0, 2, 0, 4, 4, 8, 8, 2, 2, 4, 4, 4, 4, 0, 0, 3, 2, 4, 4, 2, 2};

bool is_known(const ClassRewriteState& ci, uint8_t tag) {
    const bool is_of_today = tag == kDynamic || tag == kModule || tag == kPackage;
    return tag < sizeof kSizes && kSizes[tag] != 0 && (!is_of_today || ci.door == Door::kVantrelRewriter);
}

constexpr const char* kIndexRule = "c_index > 0 && c_index < ci->cpool_count_plus_one";

// The pool may grow by so much. The sum of the class file's count and this is kept in 16 bits, and so a pool that is
// already half full or more gets a capacity below its count, and fails.
constexpr uint32_t kGrowth = 0x7FFF;

// The largest class number that is pushed without a constant.
constexpr uint32_t kLargestImmediate = 0x7FFF;

constexpr const char* kLengthRule = "len==(len & 0xFFFF)";
constexpr const char* kCapacityRule = "ci->cpool_count_plus_one < ci->cpool_max_elements";
constexpr const char* kUnknownTag = "Unknown tag: %d, at ipos %hu";

[[noreturn]] void unknown_tag(const ClassRewriteState& ci, int tag) {
    constexpr size_t kMessageSize = 256;
    char message[kMessageSize];
    snprintf(message, sizeof message, kUnknownTag, tag, static_cast<unsigned short>(ci.input_position));
    fatal_error(ci, kUnknownTag, message);
}

// Records an entry whose bytes have been written. Returns its index.
uint16_t append(ClassRewriteState& ci, Constant constant) {
    require(ci, ci.cpool_count_plus_one < ci.cpool_max_elements, kCapacityRule);
    ci.appended_constants.push_back(constant);
    return ci.cpool_count_plus_one++;
}

uint16_t add_utf8(ClassRewriteState& ci, std::string_view text) {
    write_u1(ci, kUtf8);
    require(ci, text.size() <= UINT16_MAX, kLengthRule);
    write_u2(ci, static_cast<uint32_t>(text.size()));
    write_bytes(ci, text.data(), text.size());
    return append(ci, {kUtf8, 0, text});
}

uint16_t add_class(ClassRewriteState& ci, uint16_t name_index) {
    write_u1(ci, kClass);
    write_u2(ci, name_index);
    return append(ci, {kClass, name_index, {}});
}

// An entry that holds two values of two bytes.
uint16_t add_pair(ClassRewriteState& ci, Tag tag, uint32_t first, uint32_t second) {
    write_u1(ci, tag);
    write_u2(ci, first);
    write_u2(ci, second);
    return append(ci, {tag, 0, {}});
}

uint16_t add_method(ClassRewriteState& ci, const Tracker& tracker) {
    const uint16_t name = add_utf8(ci, tracker.name);
    const uint16_t descriptor = add_utf8(ci, tracker.signature);
    return add_pair(ci, kMethodref, ci.tracker_class_index, add_pair(ci, kNameAndType, name, descriptor));
}

// The entry at an index. It may be one that was appended: a class file that is not well formed can refer to it.
Constant constant_at(const ClassRewriteState& ci, uint32_t index) {
    require(ci, index > 0 && index < ci.cpool_count_plus_one, kIndexRule);
    const size_t own_count = ci.constant_positions.size();
    if (index >= own_count) {
        return ci.appended_constants[index - own_count];
    }
    require(ci, ci.constant_positions[index] != 0, kIndexRule);
    const uint8_t* entry = ci.input + ci.constant_positions[index];
    const uint8_t tag = entry[0];
    const uint16_t value = u2_at(entry + 1);
    return {tag, value, tag == kUtf8 ? std::string_view(reinterpret_cast<const char*>(entry) + 3, value) : ""};
}

}  // namespace

void cpool_index(ClassRewriteState& ci) {
    const uint16_t count_plus_one = read_u2(ci);
    require(ci, count_plus_one > 1, "count_plus_one>1");
    ci.cpool_max_elements =
        ci.door == Door::kJavaCrwDemo ? static_cast<uint16_t>(count_plus_one + kGrowth) : UINT16_MAX;
    if (ci.cpool_max_elements == 0) {
        fatal_error(ci, "Cannot allocate <= 0 bytes");
    }
    ci.cpool_count_plus_one = count_plus_one;
    ci.constant_positions.assign(count_plus_one, 0);
    for (uint32_t index = 1; index < count_plus_one; ++index) {
        const size_t position = ci.input_position;
        const uint8_t tag = read_u1(ci);
        if (!is_known(ci, tag)) {
            unknown_tag(ci, tag);
        }
        const size_t size = kSizes[tag];
        ci.constant_positions[index] = static_cast<uint32_t>(position);
        require(ci, position <= UINT32_MAX, kInsideImages);
        const uint8_t* bytes = read_bytes(ci, size);
        if (tag == kUtf8) {
            read_bytes(ci, u2_at(bytes));
        } else if (tag == kLong || tag == kDouble) {
            ++index;
        }
    }
    // Once is enough for the few dozen entries that are appended: either the capacity has wrapped to less than the
    // count, or there is room for thousands.
    require(ci, ci.cpool_count_plus_one < ci.cpool_max_elements, kCapacityRule);
}

void cpool_setup(ClassRewriteState& ci) {
    const size_t start = ci.input_position;
    const size_t count_position = ci.output_position;
    cpool_index(ci);
    write_bytes(ci, ci.input + start, ci.input_position - start);

    const bool pushes_class_number = ci.call_tracker.name != nullptr || ci.return_tracker.name != nullptr;
    if (pushes_class_number && ci.number > kLargestImmediate) {
        ci.class_number_index = add_pair(ci, kInteger, ci.number >> 16U, ci.number & 0xFFFFU);
    }
    ci.tracker_class_index = add_class(ci, add_utf8(ci, ci.tracker_class_name));
    for (Tracker* tracker : {&ci.object_init_tracker, &ci.newarray_tracker, &ci.call_tracker, &ci.return_tracker}) {
        if (tracker->name != nullptr) {
            tracker->index = add_method(ci, *tracker);
        }
    }
    ci.get_track_id_name_index = add_utf8(ci, "getTrackId");
    ci.get_track_id_desc_index = add_utf8(ci, "()I");
    ci.get_track_id_method_name_and_type_index =
        add_pair(ci, kNameAndType, ci.get_track_id_name_index, ci.get_track_id_desc_index);
    ci.get_track_id_method_ref_index =
        add_pair(ci, kMethodref, ci.tracker_class_index, ci.get_track_id_method_name_and_type_index);
    ci.track_name_index = add_utf8(ci, "objectTrackId");
    ci.track_desc_index = add_utf8(ci, "I");
    ci.track_field_index = add_pair(ci, kFieldref, ci.tracker_class_index,
                                    add_pair(ci, kNameAndType, ci.track_name_index, ci.track_desc_index));

    put_u2(ci.output + count_position, ci.cpool_count_plus_one);
    ci.pool_count_position = count_position;
    ci.end_of_pool = ci.output_position;
}

uint16_t cpool_class_index(ClassRewriteState& ci, std::string_view name) {
    if (ci.class_constants.empty()) {
        for (uint32_t index = 1; index < ci.cpool_count_plus_one; ++index) {
            const bool is_there = index >= ci.constant_positions.size() || ci.constant_positions[index] != 0;
            if (is_there && cpool_tag(ci, index) == kClass) {
                ci.class_constants.emplace(cpool_class_name(ci, index), static_cast<uint16_t>(index));
            }
        }
    }
    const auto [found, is_new] = ci.class_constants.try_emplace(std::string(name), 0);
    if (is_new) {
        require(ci, name.size() <= UINT16_MAX, kLengthRule);
        std::vector<uint8_t>& bytes = ci.late_constants;
        const auto add_u2 = [&bytes](size_t value) {
            bytes.push_back(static_cast<uint8_t>(value >> 8U));
            bytes.push_back(static_cast<uint8_t>(value));
        };
        bytes.push_back(kUtf8);
        add_u2(name.size());
        bytes.insert(bytes.end(), name.begin(), name.end());
        const uint16_t name_index = append(ci, {kUtf8, 0, found->first});
        bytes.push_back(kClass);
        add_u2(name_index);
        found->second = append(ci, {kClass, name_index, {}});
    }
    return found->second;
}

void cpool_insert_late_constants(ClassRewriteState& ci) {
    const size_t size = ci.late_constants.size();
    if (size == 0) {
        return;
    }
    uint8_t* pool_end = ci.output + ci.end_of_pool;
    const size_t rest = ci.output_position - ci.end_of_pool;
    room_for(ci, size);
    memmove(pool_end + size, pool_end, rest);
    memcpy(pool_end, ci.late_constants.data(), size);
    put_u2(ci.output + ci.pool_count_position, ci.cpool_count_plus_one);
}

uint8_t cpool_tag(const ClassRewriteState& ci, uint32_t index) {
    return constant_at(ci, index).tag;
}

// The NameAndType of a member's entry, or of a dynamic one: where its two indexes are.
const uint8_t* name_and_type_of(const ClassRewriteState& ci, uint32_t index) {
    const auto own_entry = [&ci](uint32_t at) {
        require(ci, at > 0 && at < ci.constant_positions.size() && ci.constant_positions[at] != 0, kIndexRule);
        return ci.input + ci.constant_positions[at];
    };
    const uint8_t* entry = own_entry(index);
    const bool has_name_and_type = entry[0] == kFieldref || entry[0] == kMethodref || entry[0] == kInterfaceMethodref ||
                                   entry[0] == kInvokeDynamic || entry[0] == kDynamic;
    require(ci, has_name_and_type, kIndexRule);
    const uint8_t* name_and_type = own_entry(u2_at(entry + 3));
    require(ci, name_and_type[0] == kNameAndType, kIndexRule);
    return name_and_type;
}

std::string_view cpool_member_name(const ClassRewriteState& ci, uint32_t index) {
    return cpool_text(ci, u2_at(name_and_type_of(ci, index) + 1));
}

std::string_view cpool_member_descriptor(const ClassRewriteState& ci, uint32_t index) {
    return cpool_text(ci, u2_at(name_and_type_of(ci, index) + 3));
}

std::string_view cpool_text(const ClassRewriteState& ci, uint32_t index) {
    const Constant constant = constant_at(ci, index);
    require(ci, constant.tag == kUtf8, kIndexRule);
    return constant.text;
}

std::string_view cpool_class_name(const ClassRewriteState& ci, uint32_t index) {
    const Constant constant = constant_at(ci, index);
    require(ci, constant.tag == kClass, kIndexRule);
    return cpool_text(ci, constant.name_index);
}

}  // namespace crw
