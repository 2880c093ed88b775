// Writes the texts of a proxy's two files, part by part in the order in which these stand there. Tabs, blanks and empty
// lines are the same in all proxies.
#include <algorithm>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>

#include "generator.h"
#include "modified_utf8.h"
#include "source_file.h"

using generator::Argument;
using generator::Field;
using generator::Method;
using generator::Proxy;
using std::string_view;

namespace {

template <typename Member>
const char* static_word(const Member& member) {
    return generator::is_static(member) ? "_STATIC" : "";
}

// The names in the files: those of the class and its members, unless make_compilable has chosen others.
const std::string& name_of(const Proxy& proxy) {
    return proxy.cpp_name.empty() ? proxy.class_name : proxy.cpp_name;
}

template <typename Member>
const std::string& name_of(const Member& member) {
    return member.cpp_name.empty() ? member.name : member.cpp_name;
}

std::string namespace_of(const Proxy& proxy) {
    return proxy.cpp_namespace.empty() ? "NS" + proxy.class_name : proxy.cpp_namespace;
}

std::string guard_of(const Proxy& proxy) {
    return proxy.guard.empty() ? generator::header_macro(proxy.class_name) + "_H" : proxy.guard;
}

// A name or descriptor as it stands in a comment or an #include, which it must not break into two lines.
std::string text_in(const Proxy& proxy, string_view text) {
    if (!proxy.is_compilable) {
        return std::string(text);
    }
    std::string line = generator::utf8_of_modified(text);
    std::replace(line.begin(), line.end(), '\n', '?');
    return line;
}

// The same as a string literal, which gives the text back to the VM unchanged.
std::string literal_in(const Proxy& proxy, string_view text) {
    return proxy.is_compilable ? generator::quoted_modified_utf8(text) : '"' + std::string(text) + '"';
}

std::string argument_type(const Argument& argument) {
    return argument.type + (argument.dimensions > 0 ? "Array" : "");
}

std::string result_type(const Method& method) {
    return method.result.name + (method.result.dimensions > 0 ? "Array" : "");
}

// Calls `action` for each field that gets a variable. serialVersionUID gets none, but may be listed: the readers of
// fields keep it unless their filter drops it.
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

// Writes a variable, by CACHE_JAVA_METHOD(Class, method, number) or a macro like it. `before` and `after` make that a
// declaration or a definition.
void write_field_variable(std::ostream& out, const Proxy& proxy, const Field& field, string_view before,
                          string_view after) {
    out << "\n\t" << before << "CACHE_JAVA" << static_word(field) << "_FIELD(" << name_of(proxy) << ", "
        << name_of(field) << ")" << after << ";\n";
}

void write_method_variable(std::ostream& out, const Proxy& proxy, const Method& method, int number, string_view before,
                           string_view after) {
    out << "\n\t" << before;
    if (method.is_constructor) {
        out << "CACHE_JAVA_CONSTRUCTOR(" << name_of(proxy) << ", " << number << ")";
    } else {
        out << "CACHE_JAVA" << static_word(method) << "_METHOD(" << name_of(proxy) << ", " << name_of(method) << ", "
            << number << ")";
    }
    out << after << ";\n";
}

// A wrapper's result, name and parameters.
void write_prototype(std::ostream& out, const Method& method) {
    out << "\n\t" << result_type(method) << " " << method.wrapper << "(JNIEnv *env"
        << (generator::is_static(method) || method.is_constructor ? "" : ", jobject _this");
    int number = 0;
    for (const Argument& argument : method.arguments) {
        out << ", " << argument_type(argument) << " " << argument.word << number++;
    }
    out << ")";
}

// A variable as it is used: JAVA_METHOD(Class, method, number).
std::string variable_of(const Proxy& proxy, const Method& method, int number) {
    return "JAVA_METHOD(" + name_of(proxy) + ", " + name_of(method) + ", " + std::to_string(number) + ")";
}

std::string variable_of(const Proxy& proxy, const Field& field) {
    return "JAVA_FIELD(" + name_of(proxy) + ", " + name_of(field) + ")";
}

// The macros look a member up by the name that is in its variable. If that name had to be changed, the look-up is
// written out here.
void write_look_up(std::ostream& out, const Proxy& proxy, const Method& method, int number) {
    const std::string descriptor = literal_in(proxy, method.descriptor);
    if (method.is_constructor) {
        out << "\t\tif (!JAVA_CONSTRUCTOR(" << name_of(proxy) << ", " << number << ")){\n"
            << "\t\t\tINIT_CACHE_CONSTRUCTOR(env, " << name_of(proxy) << ", " << descriptor << ", " << number << ");\n"
            << "\t\t}\n";
    } else if (method.cpp_name.empty()) {
        out << "\t\tINIT_CACHE" << static_word(method) << "_METHOD(env, " << name_of(proxy) << ", " << method.name
            << ", " << descriptor << ", " << number << ");\n";
    } else {
        const std::string variable = variable_of(proxy, method, number);
        out << "\t\tif (" << variable << " == NULL){\n"
            << "\t\t\t" << variable << " = env->Get" << (generator::is_static(method) ? "Static" : "")
            << "MethodID(JAVA_CLASS(" << name_of(proxy) << "), " << literal_in(proxy, method.name) << ", " << descriptor
            << ");\n"
            << "\t\t}\n"
            << "\t\tassert(" << variable << " != NULL);\n";
    }
}

void write_look_up(std::ostream& out, const Proxy& proxy, const Field& field) {
    const std::string descriptor = literal_in(proxy, field.descriptor);
    if (field.cpp_name.empty()) {
        out << "\t\tINIT_CACHE" << static_word(field) << "_FIELD(jni_env, " << name_of(proxy) << ", " << field.name
            << ", " << descriptor << ");\n";
    } else {
        const std::string variable = variable_of(proxy, field);
        out << "\t\t" << variable << " = jni_env->Get" << (generator::is_static(field) ? "Static" : "")
            << "FieldID(JAVA_CLASS(" << name_of(proxy) << "), " << literal_in(proxy, field.name) << ", " << descriptor
            << ");\n"
            << "\t\tassert(" << variable << ");\n";
    }
}

void write_call(std::ostream& out, const Proxy& proxy, const Method& method, int number) {
    out << "\t\t";
    if (!method.is_void) {
        out << "return (" << result_type(method) << ")";
    }
    if (method.is_constructor) {
        out << "env->NewObject(JAVA_CLASS(" << name_of(proxy) << "), JAVA_CONSTRUCTOR(" << name_of(proxy) << ", "
            << number << ")";
    } else {
        out << "env->Call" << (generator::is_static(method) ? "Static" : "") << method.result.word << "Method(";
        if (generator::is_static(method)) {
            out << "JAVA_CLASS(" << name_of(proxy) << ")";
        } else {
            out << "_this";
        }
        out << ", " << variable_of(proxy, method, number);
    }
    int argument_number = 0;
    for (const Argument& argument : method.arguments) {
        out << ", " << argument.word << argument_number++;
    }
    out << ");\n";
}

void write_wrapper(std::ostream& out, const Proxy& proxy, const Method& method, int number) {
    write_prototype(out, method);
    out << "{\n\t\tINIT_CACHE_CLASS(env, JAVA_CLASS(" << name_of(proxy) << "), "
        << literal_in(proxy, proxy.internal_name) << ");\n";
    write_look_up(out, proxy, method, number);
    write_call(out, proxy, method, number);
    out << "\t}\n";
}

}  // namespace

std::string generator::header_text(const Proxy& proxy) {
    const std::string guard = guard_of(proxy);
    std::ostringstream out;
    out << "#ifndef " << guard << "\n#define " << guard << "\n\n"
        << "#include \"../JCBase.h\"\n"
        << "#include \"../JavaInc.h\"\n"
        << "#include  <assert.h>\n"
        << "\nnamespace " << namespace_of(proxy) << "{\n\n"
        << "\textern CACHE_JAVA_CLASS(" << name_of(proxy) << ");\n";
    for_each_field(proxy, [&](const Field& field) { write_field_variable(out, proxy, field, "extern ", ""); });
    for_each_method(proxy, [&](const Method& method, int number) {
        write_method_variable(out, proxy, method, number, "extern ", "");
    });
    for_each_method(proxy, [&](const Method& method, int number) {
        write_prototype(out, method);
        out << "; //" << number << " " << text_in(proxy, method.descriptor) << "\n";
    });
    out << "\n\tJNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env);\n"
        << "\tJNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env);\n"
        << "}\n"
        << "#endif\n";
    return std::move(out).str();
}

std::string generator::body_text(const Proxy& proxy) {
    std::ostringstream out;
    out << "#include \"" << text_in(proxy, proxy.class_name) << ".h\"\n"
        << "#include \"../common.h\"\n"
        << "#include  <assert.h>\n"
        << "\nnamespace " << namespace_of(proxy) << "{\n\n"
        << "\tCACHE_JAVA_CLASS(" << name_of(proxy) << ") = NULL;\n"
        << "\n\t//fields(" << proxy.fields.size() << ")\n";
    for_each_field(proxy, [&](const Field& field) { write_field_variable(out, proxy, field, "", " = NULL"); });
    out << "\n\t//methods(" << proxy.methods.size() << ")\n";
    for_each_method(proxy, [&](const Method& method, int number) {
        write_method_variable(out, proxy, method, number, "", " = NULL");
    });
    for_each_method(proxy, [&](const Method& method, int number) { write_wrapper(out, proxy, method, number); });
    out << "\n\tJNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env){\n"
        << "\t\tINIT_CACHE_CLASS(jni_env, " << name_of(proxy) << ", " << literal_in(proxy, proxy.internal_name)
        << ");\n";
    for_each_field(proxy, [&](const Field& field) { write_look_up(out, proxy, field); });
    out << "\t}\n\n"
        << "\tJNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env){\n"
        << "\t\tDELETE_CACHED_CLASS_REF(jni_env, " << name_of(proxy) << ");\n";
    for_each_field(proxy, [&](const Field& field) {
        out << "\t\tDELETE_CACHED_FIELD_REF(jni_env, " << name_of(proxy) << ", " << name_of(field) << ");\n";
    });
    out << "\t}\n\n}\n";
    return std::move(out).str();
}

std::string generator::write_proxy(const Proxy& proxy, const std::string& header_path, const std::string& body_path) {
    return write_source_files({{header_path, header_text(proxy)}, {body_path, body_text(proxy)}});
}
