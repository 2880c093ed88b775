// The texts of a proxy's two files, in the order in which they stand there. Tabs, blanks and empty lines are the look
// that all proxies have.
#include <sstream>
#include <string>
#include <string_view>
#include <utility>

#include "generator.h"
#include "source_file.h"

using generator::Argument;
using generator::Field;
using generator::Method;
using generator::Proxy;
using std::string_view;

namespace {

template <typename Member>
bool is_static(const Member& member) {
    return (member.modifiers & generator::kStatic) != 0;
}

template <typename Member>
const char* static_word(const Member& member) {
    return is_static(member) ? "_STATIC" : "";
}

std::string argument_type(const Argument& argument) {
    return argument.type + (argument.dimensions > 0 ? "Array" : "");
}

std::string result_type(const Method& method) {
    return method.result.name + (method.result.dimensions > 0 ? "Array" : "");
}

// The fields that have a variable: a reader without a filter lists the one that says nothing about the class, too.
template <typename Action>
void for_each_field(const Proxy& proxy, Action action) {
    for (const Field& field : proxy.fields) {
        if (field.name != "serialVersionUID") {
            action(field);
        }
    }
}

template <typename Action>
void for_each_method(const Proxy& proxy, Action action) {
    int number = 0;
    for (const Method& method : proxy.methods) {
        action(method, number++);
    }
}

// CACHE_JAVA_METHOD(Class, method, number) and its kin: a variable, between what makes it a declaration or definition.
void write_field_variable(std::ostream& out, const Proxy& proxy, const Field& field, string_view before,
                          string_view after) {
    out << "\n\t" << before << "CACHE_JAVA" << static_word(field) << "_FIELD(" << proxy.class_name << ", " << field.name
        << ")" << after << ";\n";
}

void write_method_variable(std::ostream& out, const Proxy& proxy, const Method& method, int number, string_view before,
                           string_view after) {
    out << "\n\t" << before;
    if (method.is_constructor) {
        out << "CACHE_JAVA_CONSTRUCTOR(" << proxy.class_name << ", " << number << ")";
    } else {
        out << "CACHE_JAVA" << static_word(method) << "_METHOD(" << proxy.class_name << ", " << method.name << ", "
            << number << ")";
    }
    out << after << ";\n";
}

// A wrapper's result, name and parameters.
void write_prototype(std::ostream& out, const Method& method) {
    out << "\n\t" << result_type(method) << " " << method.wrapper << "(JNIEnv *env"
        << (is_static(method) || method.is_constructor ? "" : ", jobject _this");
    int number = 0;
    for (const Argument& argument : method.arguments) {
        out << ", " << argument_type(argument) << " " << argument.word << number++;
    }
    out << ")";
}

void write_look_up(std::ostream& out, const Proxy& proxy, const Method& method, int number) {
    if (method.is_constructor) {
        out << "\t\tif (!JAVA_CONSTRUCTOR(" << proxy.class_name << ", " << number << ")){\n"
            << "\t\t\tINIT_CACHE_CONSTRUCTOR(env, " << proxy.class_name << ", \"" << method.descriptor << "\", "
            << number << ");\n"
            << "\t\t}\n";
    } else {
        out << "\t\tINIT_CACHE" << static_word(method) << "_METHOD(env, " << proxy.class_name << ", " << method.name
            << ", \"" << method.descriptor << "\", " << number << ");\n";
    }
}

void write_call(std::ostream& out, const Proxy& proxy, const Method& method, int number) {
    out << "\t\t";
    if (!method.is_void) {
        out << "return (" << result_type(method) << ")";
    }
    if (method.is_constructor) {
        out << "env->NewObject(JAVA_CLASS(" << proxy.class_name << "), JAVA_CONSTRUCTOR(" << proxy.class_name << ", "
            << number << ")";
    } else {
        out << "env->Call" << (is_static(method) ? "Static" : "") << method.result.word << "Method(";
        if (is_static(method)) {
            out << "JAVA_CLASS(" << proxy.class_name << ")";
        } else {
            out << "_this";
        }
        out << ", JAVA_METHOD(" << proxy.class_name << ", " << method.name << ", " << number << ")";
    }
    int argument_number = 0;
    for (const Argument& argument : method.arguments) {
        out << ", " << argument.word << argument_number++;
    }
    out << ");\n";
}

void write_wrapper(std::ostream& out, const Proxy& proxy, const Method& method, int number) {
    write_prototype(out, method);
    out << "{\n\t\tINIT_CACHE_CLASS(env, JAVA_CLASS(" << proxy.class_name << "), \"" << proxy.internal_name << "\");\n";
    write_look_up(out, proxy, method, number);
    write_call(out, proxy, method, number);
    out << "\t}\n";
}

}  // namespace

std::string generator::header_text(const Proxy& proxy) {
    const std::string macro = header_macro(proxy.class_name);
    std::ostringstream out;
    out << "#ifndef " << macro << "_H\n#define " << macro << "_H\n\n"
        << "#include \"../JCBase.h\"\n"
        << "#include \"../JavaInc.h\"\n"
        << "#include  <assert.h>\n"
        << "\nnamespace NS" << proxy.class_name << "{\n\n"
        << "\textern CACHE_JAVA_CLASS(" << proxy.class_name << ");\n";
    for_each_field(proxy, [&](const Field& field) { write_field_variable(out, proxy, field, "extern ", ""); });
    for_each_method(proxy, [&](const Method& method, int number) {
        write_method_variable(out, proxy, method, number, "extern ", "");
    });
    for_each_method(proxy, [&](const Method& method, int number) {
        write_prototype(out, method);
        out << "; //" << number << " " << method.descriptor << "\n";
    });
    out << "\n\tJNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env);\n"
        << "\tJNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env);\n"
        << "}\n"
        << "#endif\n";
    return std::move(out).str();
}

std::string generator::body_text(const Proxy& proxy) {
    std::ostringstream out;
    out << "#include \"" << proxy.class_name << ".h\"\n"
        << "#include \"../common.h\"\n"
        << "#include  <assert.h>\n"
        << "\nnamespace NS" << proxy.class_name << "{\n\n"
        << "\tCACHE_JAVA_CLASS(" << proxy.class_name << ") = NULL;\n"
        << "\n\t//fields(" << proxy.fields.size() << ")\n";
    for_each_field(proxy, [&](const Field& field) { write_field_variable(out, proxy, field, "", " = NULL"); });
    out << "\n\t//methods(" << proxy.methods.size() << ")\n";
    for_each_method(proxy, [&](const Method& method, int number) {
        write_method_variable(out, proxy, method, number, "", " = NULL");
    });
    for_each_method(proxy, [&](const Method& method, int number) { write_wrapper(out, proxy, method, number); });
    out << "\n\tJNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env){\n"
        << "\t\tINIT_CACHE_CLASS(jni_env, " << proxy.class_name << ", \"" << proxy.internal_name << "\");\n";
    for_each_field(proxy, [&](const Field& field) {
        out << "\t\tINIT_CACHE" << static_word(field) << "_FIELD(jni_env, " << proxy.class_name << ", " << field.name
            << ", \"" << field.descriptor << "\");\n";
    });
    out << "\t}\n\n"
        << "\tJNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env){\n"
        << "\t\tDELETE_CACHED_CLASS_REF(jni_env, " << proxy.class_name << ");\n";
    for_each_field(proxy, [&](const Field& field) {
        out << "\t\tDELETE_CACHED_FIELD_REF(jni_env, " << proxy.class_name << ", " << field.name << ");\n";
    });
    out << "\t}\n\n}\n";
    return std::move(out).str();
}

std::string generator::write_proxy(const Proxy& proxy, const std::string& header_path, const std::string& body_path) {
    return write_source_files({{header_path, header_text(proxy)}, {body_path, body_text(proxy)}});
}
