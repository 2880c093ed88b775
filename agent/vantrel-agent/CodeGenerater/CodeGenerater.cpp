// From a class in the VM to its records, and the way through all of the generator.
#include "CodeGenerater.h"

#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "assertion.h"
#include "entities.h"
#include "fitting.h"
#include "jvmti_memory.h"
#include "names.h"
#include "overloads.h"
#include "reports.h"
#include "writers.h"

using generator::copy_fitting;
using generator::FieldPointer;
using generator::JvmtiArray;
using generator::MethodPointer;
using generator::report;
using generator::report_left_out;

namespace {

// The name and descriptor of a member.
struct MemberText {
    JvmtiArray<char> name;
    JvmtiArray<char> descriptor;
};

MemberText text_of(jvmtiEnv* jvmti, jclass clazz, jfieldID field) {
    char* name = nullptr;
    char* descriptor = nullptr;
    char* generic = nullptr;
    jvmti->GetFieldName(clazz, field, &name, &descriptor, &generic);
    const JvmtiArray<char> unused(generic, {jvmti});
    return {{name, {jvmti}}, {descriptor, {jvmti}}};
}

MemberText text_of(jvmtiEnv* jvmti, jmethodID method) {
    char* name = nullptr;
    char* descriptor = nullptr;
    char* generic = nullptr;
    jvmti->GetMethodName(method, &name, &descriptor, &generic);
    const JvmtiArray<char> unused(generic, {jvmti});
    return {{name, {jvmti}}, {descriptor, {jvmti}}};
}

// Whether JVMTI gave both texts; a member without is not there any more.
bool is_known(const MemberText& text) {
    return text.name != nullptr && text.descriptor != nullptr;
}

bool is_wanted(EntityFilter filter, char* class_name, const MemberText& text, int modifiers) {
    return filter == nullptr || filter(class_name, text.name.get(), modifiers) != 0;
}

constexpr const char* kTooLong = "its name or descriptor is too long";

struct TypeWords {
    char descriptor;
    std::string_view jni_type;
    std::string_view word;
};

constexpr TypeWords kResultTypes[] = {
    {'B', "jbyte", "Byte"}, {'C', "jchar", "Char"},       {'D', "jdouble", "Double"}, {'F', "jfloat", "Float"},
    {'I', "jint", "Int"},   {'J', "jlong", "Long"},       {'L', "jobject", "Object"}, {'S', "jshort", "Short"},
    {'V', "void", "Void"},  {'Z', "jboolean", "Boolean"},
};

// Of arguments. An object's word is the simple name of its class; a short's is none that a class could have, too.
constexpr TypeWords kArgumentTypes[] = {
    {'B', "jbyte", "Byte"},   {'C', "jchar", "Char"},      {'D', "jdouble", "Double"},
    {'F', "jfloat", "Float"}, {'I', "jint", "Int"},        {'J', "jlong", "Long"},
    {'L', "jobject", ""},     {'S', "jshort", "shortVal"}, {'Z', "jboolean", "Boolean"},
};

template <size_t Count>
const TypeWords* find_words(const TypeWords (&table)[Count], char descriptor) {
    for (const TypeWords& words : table) {
        if (words.descriptor == descriptor) {
            return &words;
        }
    }
    return nullptr;
}

// The position behind the dimensions of an array.
const char* read_dimensions(const char* descriptor, int* is_array, int* array_dims) {
    const char* element = descriptor + strspn(descriptor, "[");
    *array_dims = static_cast<int>(element - descriptor);
    *is_array = *array_dims > 0 ? 1 : 0;
    return element;
}

void copy_whole(char* to, std::string_view text) {
    memcpy(to, text.data(), text.size());
    to[text.size()] = '\0';
}

// Whether the parameter list and each of its parameters fit what the wrapper's declaration has room for.
bool parameters_fit(const MethodEntity& method) {
    constexpr size_t one_size = 128;
    constexpr size_t all_size = 512;
    size_t all = 0;
    for (int i = 0; i < method.argu_count; ++i) {
        const ArgumentEntity& argument = *method.argus[i];
        const int one = snprintf(nullptr, 0, ", %s%s %s%d", argument.type_name, argument.is_array != 0 ? "Array" : "",
                                 argument.argu_name, i);
        if (one < 0 || static_cast<size_t>(one) >= one_size) {
            return false;
        }
        all += static_cast<size_t>(one);
    }
    return all < all_size;
}

}  // namespace

// The text of an assertion that cannot hold.
#ifndef FALSE
#define FALSE 0
#endif

char* GetTypeInformation(const char* descriptor, int* is_array, int* array_dims, char* jni_type, char* call_type) {
    const TypeWords* words = find_words(kResultTypes, *read_dimensions(descriptor, is_array, array_dims));
    if (words == nullptr) {
        assert(FALSE);
    }
    copy_whole(jni_type, words->jni_type);
    copy_whole(call_type, *is_array != 0 ? "Object" : words->word);
    return jni_type;
}

void GetFieldEntities(jvmtiEnv* jvmti, jclass clazz, char* class_name, FieldEntity*** fields, int* count,
                      EntityFilter filter) {
    jint found = 0;
    jfieldID* ids = nullptr;
    jvmti->GetClassFields(clazz, &found, &ids);
    const JvmtiArray<jfieldID> given(ids, {jvmti});
    std::vector<FieldPointer> entities;
    for (jint i = 0; i < found; ++i) {
        jint modifiers = 0;
        jvmti->GetFieldModifiers(clazz, ids[i], &modifiers);
        const MemberText text = text_of(jvmti, clazz, ids[i]);
        if (!is_known(text) || !is_wanted(filter, class_name, text, modifiers)) {
            continue;
        }
        auto field = std::make_unique<FieldEntity>();
        field->modifiers = modifiers;
        if (!copy_fitting(field->name, text.name.get()) || !copy_fitting(field->signature, text.descriptor.get())) {
            report_left_out(class_name, text.name.get(), text.descriptor.get(), kTooLong);
            continue;
        }
        GetTypeInformation(field->signature, &field->is_array, &field->array_dims, field->type_name, field->call_type);
        entities.push_back(std::move(field));
    }
    *count = static_cast<int>(entities.size());
    *fields = generator::release_all(entities);
}

void GetMethodEntities(jvmtiEnv* jvmti, jclass clazz, char* class_name, int* count, MethodEntity*** methods,
                       EntityFilter filter) {
    jint found = 0;
    jmethodID* ids = nullptr;
    jvmti->GetClassMethods(clazz, &found, &ids);
    const JvmtiArray<jmethodID> given(ids, {jvmti});
    std::vector<MethodPointer> entities;
    for (jint i = 0; i < found; ++i) {
        jint modifiers = 0;
        jvmti->GetMethodModifiers(ids[i], &modifiers);
        const MemberText text = text_of(jvmti, ids[i]);
        if (!is_known(text) || !is_wanted(filter, class_name, text, modifiers)) {
            continue;
        }
        MethodPointer method = generator::new_method();
        method->modifiers = modifiers;
        method->is_constructor = strcmp(text.name.get(), "<init>") == 0 ? 1 : 0;
        const char* name = method->is_constructor != 0 ? class_name : text.name.get();
        if (!copy_fitting(method->name, name) || !copy_fitting(method->func_name, name) ||
            !copy_fitting(method->signature, text.descriptor.get())) {
            report_left_out(class_name, text.name.get(), text.descriptor.get(), kTooLong);
            continue;
        }

        const char* end = strrchr(method->signature, ')');
        GetTypeInformation(end != nullptr ? end + 1 : "", &method->is_array, &method->array_dims, method->return_type,
                           method->call_type);
        method->is_void = strcmp(method->return_type, "void") == 0 ? 1 : 0;
        if (method->is_constructor != 0) {
            copy_fitting(method->return_type, "jobject");
            method->is_void = 0;
        }

        // The assertions below name this function, so the arguments are read here.
        const char* str = method->signature + (method->signature[0] == '(' ? 1 : 0);
        while (str < end && method->argu_count < kMaxArguments) {
            auto* arg = new ArgumentEntity{};
            method->argus[method->argu_count++] = arg;
            str = read_dimensions(str, &arg->is_array, &arg->array_dims);
            const TypeWords* words = find_words(kArgumentTypes, *str);
            if (words == nullptr) {
                assert(FALSE);
            }
            copy_fitting(arg->type_name, words->jni_type);
            copy_fitting(arg->argu_name, words->word);
            if (*str == 'L') {
                // clang-format off
                assert(GetSimpleArgumentName(str, arg->argu_name, sizeof(arg->argu_name)));
                // clang-format on
                str += strcspn(str, ";)");
            }
            ++str;
        }
        if (str < end) {
            report_left_out(class_name, text.name.get(), text.descriptor.get(), "it has more than 36 arguments");
        } else if (!parameters_fit(*method)) {
            report_left_out(class_name, text.name.get(), text.descriptor.get(), "its parameter list is too long");
        } else {
            entities.push_back(std::move(method));
        }
    }
    generator::rename_overloads(class_name, entities);
    *count = static_cast<int>(entities.size());
    *methods = generator::release_all(entities);
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
    const JvmtiArray<char> given(signature, {jvmti});
    if (signature == nullptr) {
        return report(std::string("the VM does not give the signature of ") + name);
    }
    const std::string nothing_written = std::string("nothing written for ") + name + ": ";
    const char* slash = strrchr(name, '/');
    if (strlen(slash != nullptr ? slash + 1 : name) >= kClassNameSize) {
        return report(nothing_written + "its name is too long");
    }
    char class_name[kClassNameSize] = {};
    GetClassName(class_name, name);
    char header_path[kFilePathSize];
    char body_path[kFilePathSize];
    GetHeaderFileName(header_path, directory, class_name);
    GetCPPFileName(body_path, directory, class_name);
    if (header_path[0] == '\0' || body_path[0] == '\0') {
        return report(nothing_written + "the path of its files is too long");
    }

    generator::cut_to_internal_name(signature);
    return report(generator::write_proxy(header_path, body_path, signature,
                                         generator::AcceptedEntities(jvmti, clazz, class_name).all));
}
