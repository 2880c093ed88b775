// The texts are in the order in which they stand in the files. Tabs, blanks and empty lines are the look that all
// proxies have.
#include "writers.h"

#include <cstring>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>

#include "names.h"
#include "reports.h"
#include "source_file.h"

using generator::ClassEntities;
using std::string_view;

namespace {

template <typename Entity>
bool is_static(const Entity& entity) {
    return (entity.modifiers & kStatic) != 0;
}

template <typename Entity>
const char* static_word(const Entity& entity) {
    return is_static(entity) ? "_STATIC" : "";
}

template <typename Entity>
const char* array_word(const Entity& entity) {
    return entity.is_array != 0 ? "Array" : "";
}

// The fields that have a variable: a collector without a filter lists the one that says nothing about the class, too.
template <typename Action>
void for_each_field(const ClassEntities& entities, Action action) {
    for (int i = 0; i < entities.field_count; ++i) {
        if (strcmp(entities.fields[i]->name, "serialVersionUID") != 0) {
            action(*entities.fields[i]);
        }
    }
}

template <typename Action>
void for_each_method(const ClassEntities& entities, Action action) {
    for (int i = 0; i < entities.method_count; ++i) {
        action(*entities.methods[i], i);
    }
}

// CACHE_JAVA_METHOD(Class, method, number) and its kin: a variable, between what makes it a declaration or definition.
void write_field_variable(std::ostream& out, const ClassEntities& entities, const FieldEntity& field,
                          string_view before, string_view behind) {
    out << "\n\t" << before << "CACHE_JAVA" << static_word(field) << "_FIELD(" << entities.name << ", " << field.name
        << ")" << behind << ";\n";
}

void write_method_variable(std::ostream& out, const ClassEntities& entities, const MethodEntity& method, int number,
                           string_view before, string_view behind) {
    out << "\n\t" << before;
    if (method.is_constructor != 0) {
        out << "CACHE_JAVA_CONSTRUCTOR(" << entities.name << ", " << number << ")";
    } else {
        out << "CACHE_JAVA" << static_word(method) << "_METHOD(" << entities.name << ", " << method.name << ", "
            << number << ")";
    }
    out << behind << ";\n";
}

// A wrapper's result, name and parameters.
void write_prototype(std::ostream& out, const MethodEntity& method) {
    out << "\n\t" << method.return_type << array_word(method) << " " << method.func_name << "(JNIEnv *env"
        << (is_static(method) || method.is_constructor != 0 ? "" : ", jobject _this");
    for (int i = 0; i < method.argu_count; ++i) {
        const ArgumentEntity& argument = *method.argus[i];
        out << ", " << argument.type_name << array_word(argument) << " " << argument.argu_name << i;
    }
    out << ")";
}

void write_look_up(std::ostream& out, const ClassEntities& entities, const MethodEntity& method, int number) {
    if (method.is_constructor != 0) {
        out << "\t\tif (!JAVA_CONSTRUCTOR(" << entities.name << ", " << number << ")){\n"
            << "\t\t\tINIT_CACHE_CONSTRUCTOR(env, " << entities.name << ", \"" << method.signature << "\", " << number
            << ");\n"
            << "\t\t}\n";
    } else {
        out << "\t\tINIT_CACHE" << static_word(method) << "_METHOD(env, " << entities.name << ", " << method.name
            << ", \"" << method.signature << "\", " << number << ");\n";
    }
}

void write_call(std::ostream& out, const ClassEntities& entities, const MethodEntity& method, int number) {
    out << "\t\t";
    if (method.is_void == 0) {
        out << "return (" << method.return_type << array_word(method) << ")";
    }
    if (method.is_constructor != 0) {
        out << "env->NewObject(JAVA_CLASS(" << entities.name << "), JAVA_CONSTRUCTOR(" << entities.name << ", "
            << number << ")";
    } else {
        out << "env->Call" << (is_static(method) ? "Static" : "") << method.call_type << "Method(";
        if (is_static(method)) {
            out << "JAVA_CLASS(" << entities.name << ")";
        } else {
            out << "_this";
        }
        out << ", JAVA_METHOD(" << entities.name << ", " << method.name << ", " << number << ")";
    }
    for (int i = 0; i < method.argu_count; ++i) {
        out << ", " << method.argus[i]->argu_name << i;
    }
    out << ");\n";
}

void write_wrapper(std::ostream& out, const ClassEntities& entities, const char* internal_name,
                   const MethodEntity& method, int number) {
    write_prototype(out, method);
    out << "{\n\t\tINIT_CACHE_CLASS(env, JAVA_CLASS(" << entities.name << "), \"" << internal_name << "\");\n";
    write_look_up(out, entities, method, number);
    write_call(out, entities, method, number);
    out << "\t}\n";
}

std::string header_text(const ClassEntities& entities) {
    std::string macro(strlen(entities.name) + 1, '\0');
    GetHeaderMacro(macro.data(), entities.name);
    macro.pop_back();
    std::ostringstream out;
    out << "#ifndef " << macro << "_H\n#define " << macro << "_H\n\n"
        << "#include \"../JCBase.h\"\n"
        << "#include \"../JavaInc.h\"\n"
        << "#include  <assert.h>\n"
        << "\nnamespace NS" << entities.name << "{\n\n"
        << "\textern CACHE_JAVA_CLASS(" << entities.name << ");\n";
    for_each_field(entities,
                   [&](const FieldEntity& field) { write_field_variable(out, entities, field, "extern ", ""); });
    for_each_method(entities, [&](const MethodEntity& method, int number) {
        write_method_variable(out, entities, method, number, "extern ", "");
    });
    for_each_method(entities, [&](const MethodEntity& method, int number) {
        write_prototype(out, method);
        out << "; //" << number << " " << method.signature << "\n";
    });
    out << "\n\tJNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env);\n"
        << "\tJNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env);\n"
        << "}\n"
        << "#endif\n";
    return std::move(out).str();
}

std::string body_text(const ClassEntities& entities, const char* internal_name) {
    std::ostringstream out;
    out << "#include \"" << entities.name << ".h\"\n"
        << "#include \"../common.h\"\n"
        << "#include  <assert.h>\n"
        << "\nnamespace NS" << entities.name << "{\n\n"
        << "\tCACHE_JAVA_CLASS(" << entities.name << ") = NULL;\n"
        << "\n\t//fields(" << entities.field_count << ")\n";
    for_each_field(entities,
                   [&](const FieldEntity& field) { write_field_variable(out, entities, field, "", " = NULL"); });
    out << "\n\t//methods(" << entities.method_count << ")\n";
    for_each_method(entities, [&](const MethodEntity& method, int number) {
        write_method_variable(out, entities, method, number, "", " = NULL");
    });
    for_each_method(entities, [&](const MethodEntity& method, int number) {
        write_wrapper(out, entities, internal_name, method, number);
    });
    out << "\n\tJNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env){\n"
        << "\t\tINIT_CACHE_CLASS(jni_env, " << entities.name << ", \"" << internal_name << "\");\n";
    for_each_field(entities, [&](const FieldEntity& field) {
        out << "\t\tINIT_CACHE" << static_word(field) << "_FIELD(jni_env, " << entities.name << ", " << field.name
            << ", \"" << field.signature << "\");\n";
    });
    out << "\t}\n\n"
        << "\tJNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env){\n"
        << "\t\tDELETE_CACHED_CLASS_REF(jni_env, " << entities.name << ");\n";
    for_each_field(entities, [&](const FieldEntity& field) {
        out << "\t\tDELETE_CACHED_FIELD_REF(jni_env, " << entities.name << ", " << field.name << ");\n";
    });
    out << "\t}\n\n}\n";
    return std::move(out).str();
}

}  // namespace

std::string generator::write_proxy(const std::string& header_path, const std::string& body_path,
                                   const char* internal_name, const ClassEntities& entities) {
    return write_source_files({{header_path, header_text(entities)}, {body_path, body_text(entities, internal_name)}});
}

bool WriteHeaderFile(char* path, char* class_name, MethodEntity** methods, int method_count, FieldEntity** fields,
                     int field_count) {
    return generator::report(
        generator::write_source_files({{path, header_text({class_name, methods, method_count, fields, field_count})}}));
}

bool WriteCPPFile(char* class_signature, char* path, char* class_name, MethodEntity** methods, int method_count,
                  FieldEntity** fields, int field_count) {
    generator::cut_to_internal_name(class_signature);
    return generator::report(generator::write_source_files(
        {{path, body_text({class_name, methods, method_count, fields, field_count}, class_signature)}}));
}
