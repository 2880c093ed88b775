// The exported functions that make records and files. They are a shell around generator.h: they take and return C texts
// and records on the heap, leave out what does not fit into a record, and end the process for a malformed descriptor.
#include "CodeGenerater.h"

#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "assertion.h"
#include "descriptors.h"
#include "fitting.h"
#include "generator.h"
#include "jvmti_memory.h"
#include "records.h"
#include "reports.h"
#include "source_file.h"

using generator::Argument;
using generator::copy_fitting;
using generator::Field;
using generator::FieldPointer;
using generator::Method;
using generator::MethodPointer;
using generator::Proxy;
using generator::report;
using std::string_view;

namespace {

generator::Filter filter_of(EntityFilter filter) {
    return [filter](string_view class_name, string_view name, int modifiers) {
        return filter == nullptr || filter(std::string(class_name).data(), std::string(name).data(), modifiers) != 0;
    };
}

void copy_whole(char* to, string_view text) {
    memcpy(to, text.data(), text.size());
    to[text.size()] = '\0';
}

// "java/awt/Component" of "Ljava/awt/Component;".
string_view internal_name_of(string_view signature) {
    signature.remove_prefix(signature.starts_with('L') ? 1 : 0);
    signature.remove_suffix(signature.ends_with(';') ? 1 : 0);
    return signature;
}

// The accepted members of a class, as far as they fit into records.
Proxy read_by_records(jvmtiEnv* jvmti, jclass clazz, char* class_name, string_view internal_name) {
    FieldEntity** fields = nullptr;
    MethodEntity** methods = nullptr;
    int field_count = 0;
    int method_count = 0;
    GetFieldEntities(jvmti, clazz, class_name, &fields, &field_count, CanAcceptField);
    GetMethodEntities(jvmti, clazz, class_name, &method_count, &methods, CanAcceptMethod);
    Proxy proxy = generator::proxy_of(class_name, internal_name, methods, method_count, fields, field_count);
    FreeFieldEntities(fields, field_count);
    FreeMethodEntiry(methods, method_count);
    return proxy;
}

}  // namespace

// A failed assertion shows its expression, and callers know the one that has this name.
#ifndef FALSE
#define FALSE 0
#endif

char* GetTypeInformation(const char* descriptor, int* is_array, int* array_dims, char* jni_type, char* call_type) {
    const generator::Type type = generator::read_type(descriptor);
    *array_dims = type.dimensions;
    *is_array = type.dimensions > 0 ? 1 : 0;
    if (type.name.empty()) {
        assert(FALSE);
    }
    copy_whole(jni_type, type.name);
    copy_whole(call_type, type.word);
    return jni_type;
}

void GetFieldEntities(jvmtiEnv* jvmti, jclass clazz, char* class_name, FieldEntity*** fields, int* count,
                      EntityFilter filter) {
    std::vector<Field> found = generator::read_fields(jvmti, clazz, class_name, filter_of(filter));
    generator::leave_out_unfitting(class_name, found);
    std::vector<FieldPointer> records;
    for (const Field& field : found) {
        FieldEntity& record = *records.emplace_back(std::make_unique<FieldEntity>());
        copy_fitting(record.name, field.name);
        copy_fitting(record.signature, field.descriptor);
        record.modifiers = field.modifiers;
        GetTypeInformation(record.signature, &record.is_array, &record.array_dims, record.type_name, record.call_type);
    }
    *count = static_cast<int>(records.size());
    *fields = generator::release_all(records);
}

void GetMethodEntities(jvmtiEnv* jvmti, jclass clazz, char* class_name, int* count, MethodEntity*** methods,
                       EntityFilter filter) {
    std::vector<Method> found = generator::read_methods(jvmti, clazz, class_name, filter_of(filter));
    generator::leave_out_unfitting(class_name, found);
    generator::rename_overloads(class_name, found);
    generator::leave_out_long_wrappers(class_name, found);
    std::vector<MethodPointer> records;
    for (const Method& method : found) {
        MethodEntity& record = *records.emplace_back(generator::new_method());
        copy_fitting(record.name, method.name);
        copy_fitting(record.func_name, method.wrapper);
        copy_fitting(record.signature, method.descriptor);
        record.modifiers = method.modifiers;
        record.is_constructor = method.is_constructor ? 1 : 0;
        record.is_void = method.is_void ? 1 : 0;
        const std::string result(generator::result_of(method.descriptor));
        GetTypeInformation(result.c_str(), &record.is_array, &record.array_dims, record.return_type, record.call_type);
        if (method.is_constructor) {
            copy_fitting(record.return_type, method.result.name);
        }
        // Callers know these two assertions by the name of this function and by their texts, so both have to stand
        // here.
        for (const Argument& argument : method.arguments) {
            if (argument.type.empty()) {
                assert(FALSE);
            }
            auto* arg = new ArgumentEntity{};
            record.argus[record.argu_count++] = arg;
            copy_fitting(arg->type_name, argument.type);
            arg->array_dims = argument.dimensions;
            arg->is_array = argument.dimensions > 0 ? 1 : 0;
            if (argument.type != "jobject") {
                copy_fitting(arg->argu_name, argument.word);
                continue;
            }
            const char* str = argument.descriptor.c_str();
            // clang-format off
            assert(GetSimpleArgumentName(str, arg->argu_name, sizeof(arg->argu_name)));
            // clang-format on
        }
    }
    *count = static_cast<int>(records.size());
    *methods = generator::release_all(records);
}

int IsMethodEntityFuncNameExists(MethodEntity** methods, int count, MethodEntity* entity) {
    const bool found = std::any_of(methods, methods + count, [&](const MethodEntity* other) {
        return other != entity && other->argu_count == entity->argu_count &&
               strcmp(other->func_name, entity->func_name) == 0;
    });
    return found ? 1 : 0;
}

bool GenerateFiles(jvmtiEnv* jvmti, JNIEnv* env, char* name) {
    char directory[] = "C:\\generated-files";
    return GenerateFiles(jvmti, env, name, directory);
}

bool GenerateFiles(jvmtiEnv* jvmti, JNIEnv* env, char* name, char* directory) {
    jclass clazz = env->FindClass(name);
    assert(clazz);
    char* signature = nullptr;
    jvmti->GetClassSignature(clazz, &signature, nullptr);
    const generator::JvmtiArray<char> given(signature, {jvmti});
    if (signature == nullptr) {
        return report(std::string("the VM does not give the signature of ") + name);
    }
    const std::string nothing_written = std::string("nothing written for ") + name + ": ";
    char class_name[kClassNameSize];
    if (!copy_fitting(class_name, generator::simple_name(name))) {
        return report(nothing_written + "its name is too long");
    }
    char header_path[kFilePathSize];
    char body_path[kFilePathSize];
    GetHeaderFileName(header_path, directory, class_name);
    GetCPPFileName(body_path, directory, class_name);
    if (header_path[0] == '\0' || body_path[0] == '\0') {
        return report(nothing_written + "the path of its files is too long");
    }
    const Proxy proxy = read_by_records(jvmti, clazz, class_name, internal_name_of(signature));
    return report(generator::write_proxy(proxy, header_path, body_path));
}

bool WriteHeaderFile(char* path, char* class_name, MethodEntity** methods, int method_count, FieldEntity** fields,
                     int field_count) {
    const Proxy proxy = generator::proxy_of(class_name, "", methods, method_count, fields, field_count);
    return report(generator::write_source_files({{path, generator::header_text(proxy)}}));
}

bool WriteCPPFile(char* class_signature, char* path, char* class_name, MethodEntity** methods, int method_count,
                  FieldEntity** fields, int field_count) {
    const std::string internal_name(internal_name_of(class_signature));
    strcpy(class_signature, internal_name.c_str());  // NOLINT: it is no longer than the signature that it replaces
    const Proxy proxy = generator::proxy_of(class_name, internal_name, methods, method_count, fields, field_count);
    return report(generator::write_source_files({{path, generator::body_text(proxy)}}));
}
