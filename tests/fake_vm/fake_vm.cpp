#include "fake_vm.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdarg>
#include <cstring>
#include <optional>
#include <sstream>
#include <utility>

namespace {

// The one FakeVm that exists: nothing that the tables' functions are given leads to it.
FakeVm* current = nullptr;

// The names of a table's slots, in their order.

template <typename Table>
struct SlotNames;

template <>
struct SlotNames<JNIInvokeInterface_> {
    static constexpr auto value = std::to_array<const char*>({
#include "JNIInvokeInterface_names.inc"
    });
};

template <>
struct SlotNames<JNINativeInterface_> {
    static constexpr auto value = std::to_array<const char*>({
#include "JNINativeInterface_names.inc"
    });
};

template <>
struct SlotNames<jvmtiInterface_1_> {
    static constexpr auto value = std::to_array<const char*>({
#include "jvmtiInterface_1_names.inc"
    });
};

template <typename Table, size_t Slot>
void* unscripted() {
    ADD_FAILURE() << "unscripted call of " << SlotNames<Table>::value[Slot];
    return nullptr;
}

// A function table each slot of which reports an unscripted call.
template <typename Table>
Table strict_table() {
    constexpr size_t slot_count = sizeof(Table) / sizeof(void (*)());
    static_assert(SlotNames<Table>::value.size() == slot_count);
    std::array<void* (*)(), slot_count> slots;
    [&]<size_t... Slot>(std::index_sequence<Slot...>) {
        ((slots[Slot] = &unscripted<Table, Slot>), ...);
    }
    (std::make_index_sequence<slot_count>());
    Table table;
    static_assert(sizeof slots == sizeof table);
    memcpy(&table, slots.data(), sizeof table);
    return table;
}

// Recording.

FakeObject* object_of(void* handle) {
    return static_cast<FakeObject*>(handle);
}
FakeMember* member_of(void* id) {
    return static_cast<FakeMember*>(id);
}

std::string text(const char* value) {
    return value != nullptr ? value : "null";
}
std::string text(const std::string& value) {
    return value;
}
std::string text(_jobject* value) {
    if (value == nullptr) {
        return "null";
    }
    const FakeObject& object = *object_of(value);
    if (object.deleted && !current->deleted_may_be_used) {
        ADD_FAILURE() << "use of a deleted reference: " << object.name;
    }
    return object.name;
}
std::string text(jrawMonitorID value) {
    return value != nullptr ? object_of(value)->name : "null";
}
std::string text(jlong value) {
    return std::to_string(value);
}
std::string text(double value) {
    std::ostringstream out;
    out << value;
    return out.str();
}

std::string member_text(void* id) {
    if (id == nullptr) {
        return "null";
    }
    const FakeMember& member = *member_of(id);
    return text(member.owner) + "." + member.name + ":" + member.descriptor;
}
std::string text(jmethodID value) {
    return member_text(value);
}
std::string text(jfieldID value) {
    return member_text(value);
}

// Records a call. Returns the code to fail with, if it is to fail.
template <typename... Arguments>
std::optional<jint> record(const char* function, const Arguments&... arguments) {
    std::string call = function;
    ((call += " " + text(arguments)), ...);
    current->calls.push_back(call);
    std::optional<jint> code;
    std::erase_if(current->failures, [&](FakeVm::Failure& failure) {
        const bool now = failure.function == function && --failure.calls_left == 0;
        if (now) {
            code = failure.code;
        }
        return now;
    });
    return code;
}

// A failed look-up leaves an exception pending, as the VM's does.
bool failed_with_exception(std::optional<jint> code, const char* function) {
    if (code) {
        current->pending = current->add_object(std::string("exception of ") + function);
    }
    return code.has_value();
}

// JavaVM.

jint JNICALL fake_GetEnv(JavaVM*, void** env, jint version) {
    std::ostringstream hex;
    hex << "0x" << std::hex << version;
    if (auto code = record("GetEnv", hex.str())) {
        return *code;
    }
    *env = current->jvmti;
    return JNI_OK;
}

jint JNICALL fake_AttachCurrentThread(JavaVM*, void** env, void* arguments) {
    if (auto code = record("AttachCurrentThread", arguments == nullptr ? "null" : "arguments")) {
        return *code;
    }
    *env = current->jni;
    return JNI_OK;
}

// JNIEnv.

jclass JNICALL fake_FindClass(JNIEnv*, const char* name) {
    if (failed_with_exception(record("FindClass", name), "FindClass")) {
        return nullptr;
    }
    const auto found = current->classes.find(name);
    if (found == current->classes.end()) {
        ADD_FAILURE() << "unscripted class " << name;
        return nullptr;
    }
    return found->second;
}

void* find_member(const char* function, jclass owner, const char* name, const char* descriptor) {
    if (failed_with_exception(record(function, owner, name, descriptor), function)) {
        return nullptr;
    }
    const bool is_global = owner != nullptr && object_of(owner)->referent != nullptr;
    const jobject declaring = is_global ? object_of(owner)->referent : owner;
    for (FakeMember& member : current->members) {
        if (member.owner == declaring && member.name == name && member.descriptor == descriptor) {
            return &member;
        }
    }
    ADD_FAILURE() << "unscripted member " << text(owner) << "." << name << ":" << descriptor;
    return nullptr;
}

// The arguments of a variadic call as its descriptor gives them, blank-separated.
std::string arguments_text(const std::string& descriptor, va_list arguments) {
    std::string texts;
    for (size_t at = 1; at < descriptor.size() && descriptor[at] != ')'; ++at) {
        texts += " ";
        switch (descriptor[at]) {
            case 'J':
                texts += text(va_arg(arguments, jlong));
                break;
            case 'F':
            case 'D':
                texts += text(va_arg(arguments, double));
                break;
            case 'L':
            case '[':
                texts += text(va_arg(arguments, jobject));
                at = descriptor.find_first_not_of('[', at);
                if (descriptor[at] == 'L') {
                    at = descriptor.find(';', at);
                }
                break;
            default:
                texts += text(jlong{va_arg(arguments, jint)});
        }
    }
    return texts;
}

template <typename Result>
Result result_of(const FakeMember& method) {
    if constexpr (!std::is_void_v<Result>) {
        Result result;
        // Every member of the union lies at its start. A handle is a pointer on purpose.
        memcpy(&result, &method.result, sizeof result);  // NOLINT(bugprone-sizeof-expression)
        return result;
    }
}

template <typename Result>
Result call_method(const char* function, jobject target, jmethodID id, va_list arguments) {
    static const FakeMember no_method{};
    const FakeMember& method = id != nullptr ? *member_of(id) : no_method;
    record(function, target, text(id) + arguments_text(method.descriptor, arguments));
    if (method.thrown != nullptr) {
        current->pending = method.thrown;
    }
    if (method.body) {
        method.body();
    }
    return result_of<Result>(method);
}

jobject JNICALL fake_NewObjectV(JNIEnv*, jclass owner, jmethodID id, va_list arguments) {
    return call_method<jobject>("NewObjectV", owner, id, arguments);
}

jobject JNICALL fake_GetObjectField(JNIEnv*, jobject object, jfieldID id) {
    record("GetObjectField", object, id);
    const auto& fields = object_of(object)->fields;
    const auto found = fields.find(member_of(id)->name);
    if (found == fields.end()) {
        ADD_FAILURE() << "unscripted value of " << text(id) << " in " << text(object);
        return nullptr;
    }
    return found->second;
}

jobject JNICALL fake_NewGlobalRef(JNIEnv*, jobject object) {
    if (record("NewGlobalRef", object) || object == nullptr) {
        return nullptr;
    }
    const jobject global = current->add_object("global " + text(object));
    object_of(global)->referent = object;
    return global;
}

jsize JNICALL fake_GetArrayLength(JNIEnv*, jarray array) {
    record("GetArrayLength", array);
    return static_cast<jsize>(object_of(array)->bytes.size());
}

jbyte* JNICALL fake_GetByteArrayElements(JNIEnv*, jbyteArray array, jboolean* is_copy) {
    record("GetByteArrayElements", array);
    if (is_copy != nullptr) {
        *is_copy = JNI_TRUE;
    }
    return object_of(array)->bytes.data();
}

// Recorded with the names and descriptors; the functions themselves are in `natives`.
jint JNICALL fake_RegisterNatives(JNIEnv*, jclass owner, const JNINativeMethod* methods, jint count) {
    std::string names;
    for (jint i = 0; i < count; ++i) {
        names += std::string(i == 0 ? "" : " ") + methods[i].name + ":" + methods[i].signature;
        current->natives.emplace(methods[i].name, methods[i].fnPtr);
    }
    return record("RegisterNatives", owner, names).value_or(JNI_OK);
}

void JNICALL fake_ExceptionDescribe(JNIEnv*) {
    record("ExceptionDescribe");
    fprintf(stderr, "described: %s\n", text(current->pending).c_str());
    current->pending = nullptr;
}

void fill(JNINativeInterface_& jni) {
    jni.FindClass = fake_FindClass;
    jni.GetMethodID = [](JNIEnv*, jclass owner, const char* name, const char* descriptor) {
        return static_cast<jmethodID>(find_member("GetMethodID", owner, name, descriptor));
    };
    jni.GetStaticMethodID = [](JNIEnv*, jclass owner, const char* name, const char* descriptor) {
        return static_cast<jmethodID>(find_member("GetStaticMethodID", owner, name, descriptor));
    };
    jni.GetFieldID = [](JNIEnv*, jclass owner, const char* name, const char* descriptor) {
        return static_cast<jfieldID>(find_member("GetFieldID", owner, name, descriptor));
    };
    jni.GetStaticFieldID = [](JNIEnv*, jclass owner, const char* name, const char* descriptor) {
        return static_cast<jfieldID>(find_member("GetStaticFieldID", owner, name, descriptor));
    };
    jni.GetObjectField = fake_GetObjectField;
    jni.NewObjectV = fake_NewObjectV;
    jni.NewGlobalRef = fake_NewGlobalRef;
    jni.DeleteGlobalRef = [](JNIEnv*, jobject object) {
        record("DeleteGlobalRef", object);
        if (object != nullptr) {
            object_of(object)->deleted = true;
        }
    };
    jni.IsInstanceOf = [](JNIEnv*, jobject object, jclass clazz) -> jboolean {
        record("IsInstanceOf", object, clazz);
        return current->instances.contains({object, clazz}) ? JNI_TRUE : JNI_FALSE;
    };
    jni.NewStringUTF = [](JNIEnv*, const char* characters) {
        record("NewStringUTF", characters);
        return static_cast<jstring>(current->add_object(std::string("string ") + characters));
    };
    jni.RegisterNatives = fake_RegisterNatives;
    jni.UnregisterNatives = [](JNIEnv*, jclass owner) -> jint {
        return record("UnregisterNatives", owner).value_or(JNI_OK);
    };
    jni.GetArrayLength = fake_GetArrayLength;
    jni.GetByteArrayElements = fake_GetByteArrayElements;
    jni.ExceptionDescribe = fake_ExceptionDescribe;
    jni.ExceptionClear = [](JNIEnv*) {
        record("ExceptionClear");
        current->pending = nullptr;
    };
    jni.ExceptionCheck = [](JNIEnv*) -> jboolean {
        record("ExceptionCheck");
        return current->pending != nullptr ? JNI_TRUE : JNI_FALSE;
    };

#define FAKE_CALLS_OF(Type, Result)                                                              \
    jni.Call##Type##MethodV = [](JNIEnv*, jobject target, jmethodID id, va_list arguments) {     \
        return call_method<Result>("Call" #Type "MethodV", target, id, arguments);               \
    };                                                                                           \
    jni.CallStatic##Type##MethodV = [](JNIEnv*, jclass owner, jmethodID id, va_list arguments) { \
        return call_method<Result>("CallStatic" #Type "MethodV", owner, id, arguments);          \
    }
    FAKE_CALLS_OF(Object, jobject);
    FAKE_CALLS_OF(Boolean, jboolean);
    FAKE_CALLS_OF(Byte, jbyte);
    FAKE_CALLS_OF(Char, jchar);
    FAKE_CALLS_OF(Short, jshort);
    FAKE_CALLS_OF(Int, jint);
    FAKE_CALLS_OF(Long, jlong);
    FAKE_CALLS_OF(Float, jfloat);
    FAKE_CALLS_OF(Double, jdouble);
    FAKE_CALLS_OF(Void, void);
#undef FAKE_CALLS_OF
}

// jvmtiEnv.

jvmtiError error_of(std::optional<jint> code) {
    return code ? static_cast<jvmtiError>(*code) : JVMTI_ERROR_NONE;
}

jvmtiError JNICALL fake_AddCapabilities(jvmtiEnv*, const jvmtiCapabilities* capabilities) {
    std::array<uint64_t, 2> words;
    static_assert(sizeof words == sizeof *capabilities);
    memcpy(words.data(), capabilities, sizeof words);
    std::ostringstream hex;
    hex << std::hex << "0x" << words[0] << " 0x" << words[1];
    return error_of(record("AddCapabilities", hex.str()));
}

jvmtiError JNICALL fake_SetEventCallbacks(jvmtiEnv*, const jvmtiEventCallbacks* callbacks, jint size) {
    const auto error = error_of(record("SetEventCallbacks", jlong{size}));
    if (error == JVMTI_ERROR_NONE) {
        memcpy(&current->callbacks, callbacks, std::min<size_t>(size, sizeof current->callbacks));
    }
    return error;
}

jvmtiError JNICALL fake_CreateRawMonitor(jvmtiEnv*, const char* name, jrawMonitorID* monitor) {
    const auto error = error_of(record("CreateRawMonitor", name));
    if (error == JVMTI_ERROR_NONE) {
        *monitor = reinterpret_cast<jrawMonitorID>(current->add_object(std::string("monitor ") + name));
    }
    return error;
}

jvmtiError JNICALL fake_SetEventNotificationMode(jvmtiEnv*, jvmtiEventMode mode, jvmtiEvent event, jthread thread,
                                                 ...) {
    return error_of(
        record("SetEventNotificationMode", mode == JVMTI_ENABLE ? "enable" : "disable", jlong{event}, thread));
}

jvmtiError JNICALL fake_GetErrorName(jvmtiEnv*, jvmtiError error, char** name) {
    if (auto code = record("GetErrorName", jlong{error})) {
        return static_cast<jvmtiError>(*code);
    }
    static std::string scripted_name;
    scripted_name = "error name " + std::to_string(error);
    *name = scripted_name.data();
    return JVMTI_ERROR_NONE;
}

jvmtiError JNICALL fake_GetSystemProperty(jvmtiEnv*, const char* property, char** value) {
    if (auto code = record("GetSystemProperty", property)) {
        return static_cast<jvmtiError>(*code);
    }
    const auto found = current->properties.find(property);
    if (found == current->properties.end()) {
        ADD_FAILURE() << "unscripted property " << property;
        return JVMTI_ERROR_NOT_AVAILABLE;
    }
    *value = found->second.data();
    return JVMTI_ERROR_NONE;
}

jvmtiError JNICALL fake_Allocate(jvmtiEnv*, jlong size, unsigned char** block) {
    const auto error = error_of(record("Allocate", size));
    if (error == JVMTI_ERROR_NONE) {
        std::vector<unsigned char> bytes(size);
        *block = bytes.data();
        current->allocated.emplace(*block, std::move(bytes));
    }
    return error;
}

jvmtiError JNICALL fake_Deallocate(jvmtiEnv*, unsigned char* block) {
    const auto error = error_of(record("Deallocate"));
    if (error == JVMTI_ERROR_NONE && block != nullptr && current->allocated.erase(block) == 0) {
        ADD_FAILURE() << "Deallocate of a block that is not allocated";
    }
    return error;
}

// A block with a copy of what JVMTI returns, which the caller has to deallocate.
template <typename Element>
Element* allocated_copy(const Element* elements, size_t count) {
    // An element may be an identifier, which is a pointer on purpose.
    std::vector<unsigned char> bytes(count * sizeof(Element));  // NOLINT(bugprone-sizeof-expression)
    if (count > 0) {
        memcpy(bytes.data(), elements, bytes.size());
    }
    bytes.reserve(1);  // an address even for nothing
    unsigned char* block = bytes.data();
    current->allocated.emplace(block, std::move(bytes));
    return reinterpret_cast<Element*>(block);
}

void give_text(const std::string& text, char** out) {
    if (out != nullptr) {
        *out = allocated_copy(text.c_str(), text.size() + 1);
    }
}

jvmtiError name_of(const char* function, void* id, char** name, char** descriptor) {
    const auto error = error_of(record(function, member_text(id)));
    if (error == JVMTI_ERROR_NONE) {
        give_text(member_of(id)->name, name);
        give_text(member_of(id)->descriptor, descriptor);
    }
    return error;
}

jvmtiError JNICALL fake_GetClassSignature(jvmtiEnv*, jclass clazz, char** signature, char** /*generic*/) {
    const auto error = error_of(record("GetClassSignature", clazz));
    if (error == JVMTI_ERROR_NONE) {
        give_text("L" + text(clazz) + ";", signature);
    }
    return error;
}

// The members of a class, methods or fields.
template <typename Id>
jvmtiError members_of(const char* function, jclass clazz, bool methods, jint* count, Id** ids) {
    const auto error = error_of(record(function, clazz));
    if (error == JVMTI_ERROR_NONE) {
        std::vector<Id> found;
        for (FakeMember& member : current->members) {
            if (member.owner == clazz && member.descriptor.starts_with('(') == methods) {
                found.push_back(reinterpret_cast<Id>(&member));
            }
        }
        *count = static_cast<jint>(found.size());
        *ids = allocated_copy(found.data(), found.size());
    }
    return error;
}

jvmtiError modifiers_of(const char* function, void* id, jint* modifiers) {
    const auto error = error_of(record(function, member_text(id)));
    if (error == JVMTI_ERROR_NONE) {
        *modifiers = member_of(id)->modifiers;
    }
    return error;
}

void fill(jvmtiInterface_1_& jvmti) {
    jvmti.GetMethodName = [](jvmtiEnv*, jmethodID method, char** name, char** descriptor, char** /*generic*/) {
        return name_of("GetMethodName", method, name, descriptor);
    };
    jvmti.GetFieldName = [](jvmtiEnv*, jclass, jfieldID field, char** name, char** descriptor, char** /*generic*/) {
        return name_of("GetFieldName", field, name, descriptor);
    };
    jvmti.GetClassSignature = fake_GetClassSignature;
    jvmti.GetClassFields = [](jvmtiEnv*, jclass clazz, jint* count, jfieldID** fields) {
        return members_of("GetClassFields", clazz, false, count, fields);
    };
    jvmti.GetClassMethods = [](jvmtiEnv*, jclass clazz, jint* count, jmethodID** methods) {
        return members_of("GetClassMethods", clazz, true, count, methods);
    };
    jvmti.GetFieldModifiers = [](jvmtiEnv*, jclass, jfieldID field, jint* modifiers) {
        return modifiers_of("GetFieldModifiers", field, modifiers);
    };
    jvmti.GetMethodModifiers = [](jvmtiEnv*, jmethodID method, jint* modifiers) {
        return modifiers_of("GetMethodModifiers", method, modifiers);
    };
    jvmti.GetLocalVariableTable = [](jvmtiEnv*, jmethodID method, jint*, jvmtiLocalVariableEntry**) {
        return error_of(record("GetLocalVariableTable", method));
    };
    jvmti.GetLocalObject = [](jvmtiEnv*, jthread thread, jint depth, jint slot, jobject* value) {
        const auto error = error_of(record("GetLocalObject", thread, jlong{depth}, jlong{slot}));
        if (error == JVMTI_ERROR_NONE) {
            *value = current->local_object;
        }
        return error;
    };
    jvmti.AddCapabilities = fake_AddCapabilities;
    jvmti.SetEventCallbacks = fake_SetEventCallbacks;
    jvmti.CreateRawMonitor = fake_CreateRawMonitor;
    jvmti.RawMonitorEnter = [](jvmtiEnv*, jrawMonitorID monitor) {
        return error_of(record("RawMonitorEnter", monitor));
    };
    jvmti.RawMonitorExit = [](jvmtiEnv*, jrawMonitorID monitor) { return error_of(record("RawMonitorExit", monitor)); };
    jvmti.AddToBootstrapClassLoaderSearch = [](jvmtiEnv*, const char* path) {
        return error_of(record("AddToBootstrapClassLoaderSearch", path));
    };
    jvmti.SetFieldModificationWatch = [](jvmtiEnv*, jclass owner, jfieldID field) {
        return error_of(record("SetFieldModificationWatch", owner, field));
    };
    jvmti.SetEventNotificationMode = fake_SetEventNotificationMode;
    jvmti.GetErrorName = fake_GetErrorName;
    jvmti.GetSystemProperty = fake_GetSystemProperty;
    jvmti.Allocate = fake_Allocate;
    jvmti.Deallocate = fake_Deallocate;
}

const JNIInvokeInterface_& invoke_table() {
    static const JNIInvokeInterface_ table = [] {
        auto filled = strict_table<JNIInvokeInterface_>();
        filled.GetEnv = fake_GetEnv;
        filled.AttachCurrentThread = fake_AttachCurrentThread;
        return filled;
    }();
    return table;
}

template <typename Table>
const Table& env_table() {
    static const Table table = [] {
        auto filled = strict_table<Table>();
        fill(filled);
        return filled;
    }();
    return table;
}

ssize_t record_output(void* /*cookie*/, const char* text, size_t size) {
    record_call("stdout " + std::string(text, size));
    return static_cast<ssize_t>(size);
}

JavaVM fake_java_vm;
JNIEnv fake_jni;
jvmtiEnv fake_jvmti;

}  // namespace

FakeVm::FakeVm() : java_vm(&fake_java_vm), jni(&fake_jni), jvmti(&fake_jvmti) {
    EXPECT_EQ(current, nullptr) << "one FakeVm at a time";
    fake_java_vm.functions = &invoke_table();
    fake_jni.functions = &env_table<JNINativeInterface_>();
    fake_jvmti.functions = &env_table<jvmtiInterface_1_>();
    current = this;
}

FakeVm::~FakeVm() {
    for (const Failure& failure : failures) {
        ADD_FAILURE() << failure.function << " was to fail, but was not called often enough";
    }
    current = nullptr;
}

void record_call(std::string_view call) {
    current->calls.emplace_back(call);
}

RecordedStdout::RecordedStdout(int buffering) : before_(stdout) {
    stdout = fopencookie(nullptr, "w", {.read = nullptr, .write = record_output, .seek = nullptr, .close = nullptr});
    setvbuf(stdout, nullptr, buffering, BUFSIZ);
}

RecordedStdout::~RecordedStdout() {
    fclose(stdout);
    stdout = before_;
}

jclass FakeVm::add_class(std::string_view name) {
    const auto handle = static_cast<jclass>(add_object(name));
    classes.emplace(name, handle);
    return handle;
}

jobject FakeVm::add_object(std::string_view name) {
    objects.push_back({std::string(name), {}, {}, nullptr, false});
    return reinterpret_cast<jobject>(&objects.back());
}

jbyteArray FakeVm::add_bytes(std::string_view name, std::vector<jbyte> bytes) {
    const jobject array = add_object(name);
    object_of(array)->bytes = std::move(bytes);
    return static_cast<jbyteArray>(array);
}

jmethodID FakeVm::add_method(jclass owner, std::string_view name, std::string_view descriptor, jvalue result) {
    members.push_back({owner, std::string(name), std::string(descriptor), result, nullptr, {}, 0});
    return reinterpret_cast<jmethodID>(&members.back());
}

jmethodID FakeVm::add_method(jclass owner, std::string_view name, std::string_view descriptor, jobject result) {
    return add_method(owner, name, descriptor, jvalue{.l = result});
}

jmethodID FakeVm::add_throwing_method(jclass owner, std::string_view name, std::string_view descriptor,
                                      jobject thrown) {
    const jmethodID method = add_method(owner, name, descriptor);
    member_of(method)->thrown = thrown;
    return method;
}

jfieldID FakeVm::add_field(jclass owner, std::string_view name, std::string_view descriptor) {
    members.push_back({owner, std::string(name), std::string(descriptor), {}, nullptr, {}, 0});
    return reinterpret_cast<jfieldID>(&members.back());
}

void FakeVm::add_member(jclass owner, std::string_view name, std::string_view descriptor, jint modifiers) {
    members.push_back({owner, std::string(name), std::string(descriptor), kZero, nullptr, {}, modifiers});
}

void set_field(jobject object, std::string_view name, jobject value) {
    object_of(object)->fields.emplace(name, value);
}

void FakeVm::add_property(std::string_view name, std::string_view value) {
    properties.emplace(name, value);
}

void FakeVm::fail(std::string_view function, int nth, jint code) {
    failures.push_back({std::string(function), nth, code});
}
