#include "class_image.h"

#include <cstdio>

#include "constant_pool.h"
#include "cursors.h"
#include "method_bytecodes.h"
#include "method_rewrite_state.h"

namespace crw {

namespace {

constexpr uint32_t kMagic = 0xCAFEBABE;
constexpr uint16_t kNewestMajorVersion = 52;  // of java_crw_demo
constexpr uint16_t kFirstVersionWithModules = 53;

// JVM specification, tables 4.5-A and 4.6-A.
constexpr uint16_t kPublic = 0x0001;
constexpr uint16_t kPrivate = 0x0002;
constexpr uint16_t kStatic = 0x0008;
constexpr uint16_t kNative = 0x0100;
constexpr uint16_t kModuleClass = 0x8000;

// Sizes in bytes: a field's access_flags, name_index and descriptor_index; the same of a method, and attributes_count;
// the index of an interface.
constexpr size_t kFieldHeadSize = 6;
constexpr size_t kMethodHeadSize = 8;
constexpr size_t kInterfaceSize = 2;

void copy_magic(ClassRewriteState& ci) {
    require(ci, copy_u4(ci) == kMagic, kMagicRule);
}

void copy_versions(ClassRewriteState& ci) {
    copy_u2(ci);
    const uint16_t newest = ci.door == Door::kJavaCrwDemo ? kNewestMajorVersion : kNewestModernMajorVersion;
    ci.major_version = copy_u2(ci);
    require(ci, ci.major_version <= newest, kVersionRule);
}

void copy_this_class(ClassRewriteState& ci) {
    ci.this_class_index = copy_u2(ci);
    const std::string_view own_name = cpool_class_name(ci, ci.this_class_index);
    if (!ci.name) {
        ci.name = c_string(own_name);
        require(ci, ci.name->find('.') == std::string_view::npos, "strchr(ci->name,'.')==NULL");
    } else {
        require(ci, *ci.name == own_name, "(int)strlen(ci->name)==cs.len && strncmp(ci->name, cs.ptr, cs.len)==0");
    }
}

// Only java.lang.Object has no superclass.
void copy_super_class(ClassRewriteState& ci) {
    if (copy_u2(ci) == 0) {
        ci.is_object_class = true;
        require(ci, *ci.name == "java/lang/Object", "strcmp(ci->name,\"java/lang/Object\")==0");
    }
}

void skip_attributes(ClassRewriteState& ci) {
    for (uint16_t left = read_u2(ci); left > 0; --left) {
        read_bytes(ci, u4_at(read_bytes(ci, kAttributeHeadSize) + 2));
    }
}

// Copies what was read since a position, all at once.
void copy_since(ClassRewriteState& ci, size_t position) {
    write_bytes(ci, ci.input + position, ci.input_position - position);
}

// Writes a field or method without attributes, for java.lang.Object.
void add_member(ClassRewriteState& ci, uint16_t access_flags, uint32_t name_index, uint32_t descriptor_index) {
    write_u2(ci, access_flags);
    write_u2(ci, name_index);
    write_u2(ci, descriptor_index);
    write_u2(ci, 0);
}

// Returns the number of fields or methods of the class file. java.lang.Object is written with one more.
uint16_t copy_member_count(ClassRewriteState& ci) {
    const uint16_t count = read_u2(ci);
    write_u2(ci, count + (ci.is_object_class ? 1U : 0U));
    return count;
}

void copy_fields(ClassRewriteState& ci) {
    // Callers of java_crw_demo know this line. The other function prints nothing, because stdout belongs to the
    // program.
    if (ci.is_object_class && ci.door == Door::kJavaCrwDemo) {
        printf("add field to : %.*s\n", static_cast<int>(ci.name->size()), ci.name->data());
    }
    const uint16_t count = copy_member_count(ci);
    const size_t fields = ci.input_position;
    for (uint16_t left = count; left > 0; --left) {
        read_bytes(ci, kFieldHeadSize);
        skip_attributes(ci);
    }
    copy_since(ci, fields);
    if (ci.is_object_class) {
        add_member(ci, kPrivate | kStatic, ci.track_name_index, ci.track_desc_index);
    }
}

void copy_method_attribute(ClassRewriteState& ci, const Method& method) {
    AttributeName name{};
    uint32_t attr_len = 0;
    in_one_check(ci, kAttributeHeadSize, [&](auto& at) {
        name = cpool_attribute_name(ci, at.copy_u2());
        attr_len = at.copy_u4();
    });
    if (name == AttributeName::kCode) {
        method_write_bytecodes(ci, method, attr_len);
    } else {
        copy_bytes(ci, attr_len);
    }
}

void copy_method(ClassRewriteState& ci, uint16_t number) {
    Method method{number, 0, {}, {}};
    uint16_t attribute_count = 0;
    in_one_check(ci, kMethodHeadSize, [&](auto& at) {
        method.access_flags = at.copy_u2();
        method.name = cpool_text(ci, at.copy_u2());
        method.descriptor = cpool_text(ci, at.copy_u2());
        attribute_count = at.copy_u2();
    });
    if (ci.mnum_callback != nullptr) {
        ci.method_names.push_back(c_string(method.name));
        ci.method_descriptors.push_back(c_string(method.descriptor));
    }
    for (uint16_t left = attribute_count; left > 0; --left) {
        copy_method_attribute(ci, method);
    }
}

void copy_methods(ClassRewriteState& ci) {
    const uint16_t count = copy_member_count(ci);
    if (ci.mnum_callback != nullptr) {
        ci.method_names.reserve(count);
        ci.method_descriptors.reserve(count);
    }
    for (uint16_t number = 0; number < count; ++number) {
        copy_method(ci, number);
    }
    if (ci.is_object_class) {
        add_member(ci, kPublic | kNative, ci.get_track_id_name_index, ci.get_track_id_desc_index);
    }
}

// The texts as C has them, with a zero at the end of each. They lie in `block`, which must be empty.
std::vector<const char*> c_strings(const std::vector<std::string_view>& texts, std::string& block) {
    size_t size = 0;
    for (const std::string_view text : texts) {
        size += text.size() + 1;
    }
    block.reserve(size);
    std::vector<const char*> strings;
    strings.reserve(texts.size());
    for (const std::string_view text : texts) {
        strings.push_back(block.data() + block.size());
        block.append(text).push_back('\0');
    }
    return strings;
}

void tell_method_names(const ClassRewriteState& ci) {
    std::string name_block;
    std::string descriptor_block;
    std::vector<const char*> names = c_strings(ci.method_names, name_block);
    std::vector<const char*> descriptors = c_strings(ci.method_descriptors, descriptor_block);
    ci.mnum_callback(ci.mnum_context, ci.number, names.data(), descriptors.data(), static_cast<int>(names.size()));
}

}  // namespace

void inject_class(ClassRewriteState& ci) {
    copy_magic(ci);
    copy_versions(ci);
    cpool_setup(ci);
    const uint16_t access_flags = copy_u2(ci);
    if (ci.major_version >= kFirstVersionWithModules && (access_flags & kModuleClass) != 0) {
        ci.is_module_info = true;
        return;
    }
    copy_this_class(ci);
    copy_super_class(ci);
    copy_bytes(ci, copy_u2(ci) * kInterfaceSize);
    copy_fields(ci);
    copy_methods(ci);
    const bool tells_before_the_end = ci.door == Door::kJavaCrwDemo;
    if (ci.mnum_callback != nullptr && tells_before_the_end) {
        tell_method_names(ci);
    }
    const size_t attributes = ci.input_position;
    skip_attributes(ci);
    copy_since(ci, attributes);
    cpool_insert_late_constants(ci);
    if (ci.mnum_callback != nullptr && !tells_before_the_end) {
        tell_method_names(ci);
    }
}

std::string_view read_class_name(ClassRewriteState& ci) {
    require(ci, read_u4(ci) == kMagic, kMagicRule);
    read_u4(ci);  // versions
    cpool_index(ci);
    read_u2(ci);  // access_flags
    return cpool_class_name(ci, read_u2(ci));
}

}  // namespace crw
