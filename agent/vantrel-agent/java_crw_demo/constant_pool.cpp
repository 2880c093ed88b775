#include "constant_pool.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

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

// By tag, the size of an entry with its tag, not counting the text of a Utf8 entry. 0 where there is no such tag.
// kSizes has the tags of version 52, for java_crw_demo.
using Sizes = std::array<uint8_t, 256>;
constexpr Sizes kSizesOfToday = {0, 3, 0, 5, 5, 9, 9, 3, 3, 5, 5, 5, 5, 0, 0, 4, 3, 5, 5, 3, 3};
constexpr Sizes kSizes = {0, 3, 0, 5, 5, 9, 9, 3, 3, 5, 5, 5, 5, 0, 0, 4, 3, 0, 5};

constexpr size_t kUtf8Head = kSizes[kUtf8];      // tag and length
constexpr size_t kPairSize = kSizes[kFieldref];  // of two indexes
constexpr size_t kLargestHead = kSizes[kLong];   // no entry has more, but for the text of a Utf8 entry

// By how many entries java_crw_demo lets a pool grow. The sum of the class file's count and this is kept in 16 bits.
// From a count of 32769 on it wraps, which leaves a capacity below the count, and the rewrite fails.
constexpr uint32_t kGrowth = 0x7FFF;

// The largest class number that is pushed without a constant.
constexpr uint32_t kLargestImmediate = 0x7FFF;

constexpr const char* kLengthRule = "len==(len & 0xFFFF)";
constexpr const char* kCapacityRule = "ci->cpool_count_plus_one < ci->cpool_max_elements";
constexpr const char* kUnknownTag = "Unknown tag: %d, at ipos %hu";

[[noreturn]] void unknown_tag(ClassRewriteState& ci, size_t position) {
    constexpr size_t kMessageSize = 256;
    char message[kMessageSize];
    ci.input_position = position;
    const int tag = read_u1(ci);
    snprintf(message, sizeof message, kUnknownTag, tag, static_cast<unsigned short>(ci.input_position));
    fatal_error(ci, kUnknownTag, message);
}

[[noreturn]] void too_short(ClassRewriteState& ci) {
    ci.input_position = ci.input_len;
    assertion_failed(ci, kInsideImages);
}

// Fails if there is no entry at a position, or not a whole one.
void check_entry(ClassRewriteState& ci, size_t position, const Sizes& sizes) {
    const size_t left = ci.input_len - std::min(ci.input_len, position);
    if (left == 0) {
        too_short(ci);
    }
    const uint8_t tag = ci.input[position];
    if (sizes[tag] == 0) {
        unknown_tag(ci, position);
    }
    if (left < sizes[tag]) {
        too_short(ci);
    }
}

// Appends the rewriter's entries to the pool in the new image.
class Appender {
  public:
    explicit Appender(ClassRewriteState& ci) : ci_(ci), at_(ci.output + ci.output_position) {}

    uint16_t utf8(std::string_view text) {
        if (text.size() > UINT16_MAX) {
            // The tag is written before the length is looked at: if the image is full, that is what is reported.
            write(1);
            assertion_failed(ci_, kLengthRule);
        }
        uint8_t* entry = write(kUtf8Head + text.size());
        entry[0] = kUtf8;
        put_u2(entry + 1, static_cast<uint32_t>(text.size()));
        memcpy(entry + kUtf8Head, text.data(), text.size());
        return next_index();
    }

    uint16_t class_entry(uint16_t name_index) {
        uint8_t* entry = write(3);
        entry[0] = kClass;
        put_u2(entry + 1, name_index);
        return next_index();
    }

    // An entry that holds two values of two bytes.
    uint16_t pair(Tag tag, uint32_t first, uint32_t second) {
        uint8_t* entry = write(5);
        entry[0] = tag;
        put_u2(entry + 1, first);
        put_u2(entry + 3, second);
        return next_index();
    }

    uint16_t method(const Tracker& tracker) {
        const uint16_t name = utf8(tracker.name);
        const uint16_t descriptor = utf8(tracker.signature);
        return pair(kMethodref, ci_.tracker_class_index, pair(kNameAndType, name, descriptor));
    }

    void finish() { ci_.output_position = static_cast<size_t>(at_ - ci_.output); }

  private:
    uint8_t* write(size_t size) {
        if (static_cast<size_t>(ci_.output + ci_.output_len - at_) < size) [[unlikely]] {
            output_is_full(ci_);
        }
        uint8_t* entry = at_;
        at_ += size;
        return entry;
    }

    uint16_t next_index() {
        require(ci_, ci_.cpool_count_plus_one < ci_.cpool_max_elements, kCapacityRule);
        return ci_.cpool_count_plus_one++;
    }

    ClassRewriteState& ci_;
    uint8_t* at_;
};

size_t size_of(const uint8_t* entry) {
    return kSizes[entry[0]] + (entry[0] == kUtf8 ? size_t{u2_at(entry + 1)} : 0);
}

// An entry that the rewriter appended, found by going through them one by one. That is rare: in a class that a VM
// loads, only a stack map that was made here refers to these entries.
const uint8_t* appended_entry(const ClassRewriteState& ci, uint32_t index) {
    uint32_t left = index - static_cast<uint32_t>(ci.constant_positions.size());
    const uint8_t* entry = ci.output + ci.end_of_own_pool;
    for (; left > 0; --left) {
        entry += size_of(entry);
        if (entry == ci.output + ci.end_of_pool) {
            entry = ci.late_constants.data();
        }
    }
    return entry;
}

// The entry at an index, from its tag on.
const uint8_t* entry_at(const ClassRewriteState& ci, uint32_t index) {
    require(ci, index > 0 && index < ci.cpool_count_plus_one, kIndexRule);
    if (index >= ci.constant_positions.size()) {
        return appended_entry(ci, index);
    }
    require(ci, ci.constant_positions[index] != 0, kIndexRule);
    return ci.input + ci.constant_positions[index];
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
    require(ci, ci.input_len <= UINT32_MAX, kInsideImages);
    uint32_t* positions = ci.constants_room.for_elements(count_plus_one + 1U);
    ci.constant_positions = {positions, count_plus_one};
    positions[0] = 0;
    const Sizes& sizes = ci.door == Door::kJavaCrwDemo ? kSizes : kSizesOfToday;
    // An entry that begins before `safe` is inside the class file, but for the text of a Utf8 entry. A text that goes
    // beyond the end is noticed where the next entry would begin.
    const size_t safe = ci.input_len - std::min(ci.input_len, kLargestHead);
    const uint8_t* const input = ci.input;
    size_t at = ci.input_position;
    for (uint32_t index = 1; index < count_plus_one; ++index) {
        if (at >= safe) [[unlikely]] {
            check_entry(ci, at, sizes);
        }
        positions[index] = static_cast<uint32_t>(at);
        const uint8_t tag = input[at];
        // Where the next entry begins depends on the size of this one. With these two branches a processor can guess
        // that size instead of waiting for the table: most entries are texts, or refer to two others.
        if (tag == kUtf8) {
            at += kUtf8Head + u2_at(input + at + 1);
            continue;
        }
        if (tag >= kFieldref && tag <= kNameAndType) {
            at += kPairSize;
            continue;
        }
        if (sizes[tag] == 0) [[unlikely]] {
            unknown_tag(ci, at);
        }
        at += sizes[tag];
        if (tag == kLong || tag == kDouble) {
            positions[++index] = 0;
        }
    }
    if (at > ci.input_len) {
        too_short(ci);
    }
    ci.input_position = at;
    // Fails before anything is copied if the capacity has wrapped to less than the count.
    require(ci, ci.cpool_count_plus_one < ci.cpool_max_elements, kCapacityRule);
}

void cpool_setup(ClassRewriteState& ci) {
    const size_t start = ci.input_position;
    const size_t count_position = ci.output_position;
    cpool_index(ci);
    write_bytes(ci, ci.input + start, ci.input_position - start);

    ci.end_of_own_pool = ci.output_position;
    Appender appender(ci);
    const bool pushes_class_number =
        ci.call_tracker.name != nullptr || ci.return_tracker.name != nullptr || ci.newarray_takes_numbers;
    if (pushes_class_number && ci.number > kLargestImmediate) {
        ci.class_number_index = appender.pair(kInteger, ci.number >> 16U, ci.number & 0xFFFFU);
    }
    ci.tracker_class_index = appender.class_entry(appender.utf8(ci.tracker_class_name));
    for (Tracker* tracker : {&ci.object_init_tracker, &ci.newarray_tracker, &ci.call_tracker, &ci.return_tracker}) {
        if (tracker->name != nullptr) {
            tracker->index = appender.method(*tracker);
        }
    }
    ci.get_track_id_name_index = appender.utf8("getTrackId");
    ci.get_track_id_desc_index = appender.utf8("()I");
    ci.get_track_id_method_name_and_type_index =
        appender.pair(kNameAndType, ci.get_track_id_name_index, ci.get_track_id_desc_index);
    ci.get_track_id_method_ref_index =
        appender.pair(kMethodref, ci.tracker_class_index, ci.get_track_id_method_name_and_type_index);
    ci.track_name_index = appender.utf8("objectTrackId");
    ci.track_desc_index = appender.utf8("I");
    ci.track_field_index = appender.pair(kFieldref, ci.tracker_class_index,
                                         appender.pair(kNameAndType, ci.track_name_index, ci.track_desc_index));

    appender.finish();

    put_u2(ci.output + count_position, ci.cpool_count_plus_one);
    ci.pool_count_position = count_position;
    ci.end_of_pool = ci.output_position;
}

uint16_t cpool_class_index(ClassRewriteState& ci, std::string_view name) {
    if (ci.class_constants.empty()) {
        for (uint32_t index = 1; index < ci.constant_positions.size(); ++index) {
            if (ci.constant_positions[index] != 0 && cpool_tag(ci, index) == kClass) {
                ci.class_constants.emplace(cpool_class_name(ci, index), static_cast<uint16_t>(index));
            }
        }
    }
    const auto [found, is_new] = ci.class_constants.try_emplace(std::string(name), 0);
    if (is_new) {
        require(ci, name.size() <= UINT16_MAX, kLengthRule);
        require(ci, ci.cpool_count_plus_one + 1 < ci.cpool_max_elements, kCapacityRule);
        std::vector<uint8_t>& bytes = ci.late_constants;
        const auto add_u2 = [&bytes](size_t value) {
            bytes.push_back(static_cast<uint8_t>(value >> 8U));
            bytes.push_back(static_cast<uint8_t>(value));
        };
        bytes.push_back(kUtf8);
        add_u2(name.size());
        bytes.insert(bytes.end(), name.begin(), name.end());
        bytes.push_back(kClass);
        add_u2(ci.cpool_count_plus_one++);
        found->second = ci.cpool_count_plus_one++;
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
    return entry_at(ci, index)[0];
}

// The NameAndType entry that the entry of a member, or a dynamic one, refers to.
const uint8_t* name_and_type_of(const ClassRewriteState& ci, uint32_t index) {
    const uint8_t* entry = entry_at(ci, index);
    const bool has_name_and_type = entry[0] == kFieldref || entry[0] == kMethodref || entry[0] == kInterfaceMethodref ||
                                   entry[0] == kInvokeDynamic || entry[0] == kDynamic;
    require(ci, has_name_and_type, kIndexRule);
    const uint8_t* name_and_type = entry_at(ci, u2_at(entry + 3));
    require(ci, name_and_type[0] == kNameAndType, kIndexRule);
    return name_and_type;
}

std::string_view cpool_member_name(const ClassRewriteState& ci, uint32_t index) {
    return cpool_text(ci, u2_at(name_and_type_of(ci, index) + 1));
}

std::string_view cpool_member_descriptor(const ClassRewriteState& ci, uint32_t index) {
    return cpool_text(ci, u2_at(name_and_type_of(ci, index) + 3));
}

std::string_view cpool_odd_text(const ClassRewriteState& ci, uint32_t index) {
    const uint8_t* entry = entry_at(ci, index);
    require(ci, entry[0] == kUtf8, kIndexRule);
    return {reinterpret_cast<const char*>(entry) + 3, u2_at(entry + 1)};
}

AttributeName cpool_new_attribute_name(ClassRewriteState& ci, uint32_t index) {
    static constexpr std::pair<std::string_view, AttributeName> kNames[] = {
        {"Code", AttributeName::kCode},
        {"LineNumberTable", AttributeName::kLineNumberTable},
        {"LocalVariableTable", AttributeName::kLocalVariableTable},
        {"LocalVariableTypeTable", AttributeName::kLocalVariableTypeTable},
        {"StackMapTable", AttributeName::kStackMapTable},
        {"StackMap", AttributeName::kStackMap},
        {"RuntimeVisibleTypeAnnotations", AttributeName::kTypeAnnotations},
        {"RuntimeInvisibleTypeAnnotations", AttributeName::kTypeAnnotations},
    };
    const std::string_view text = cpool_text(ci, index);
    const auto* found =
        std::find_if(std::begin(kNames), std::end(kNames), [text](const auto& name) { return name.first == text; });
    const AttributeName name = found != std::end(kNames) ? found->second : AttributeName::kOther;
    ci.known_attribute_names[index % ci.known_attribute_names.size()] = {index, name};
    return name;
}

std::string_view cpool_class_name(const ClassRewriteState& ci, uint32_t index) {
    const uint8_t* entry = entry_at(ci, index);
    require(ci, entry[0] == kClass, kIndexRule);
    return cpool_text(ci, u2_at(entry + 1));
}

}  // namespace crw
