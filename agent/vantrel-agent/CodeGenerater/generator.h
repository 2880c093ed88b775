// The generator itself: it reads a class in the VM into a Proxy, which is all that the proxy's files say, and writes a
// Proxy as these files. The library exports it by the functions of CodeGenerater.h; the command vantrel-generate uses
// this header.
//
//     const generator::Proxy proxy = generator::read_proxy(jvmti, clazz, "java/awt/Container");
//     const std::string fault = generator::write_proxy(proxy, "jc/Container.h", "jc/Container.cpp");
//
// Nothing here limits the length of a name, ends the process or prints. What goes wrong is in the results.
#ifndef VANTREL_GENERATOR_H
#define VANTREL_GENERATOR_H

#include <jvmti.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace generator {

// Java's access flags (JVM specification, 4.5), as far as the generator looks at them.
constexpr int kPrivate = 0x0002;
constexpr int kProtected = 0x0004;
constexpr int kStatic = 0x0008;

// A type of Java in the words of JNI.
struct Type {
    std::string name;    // of the element: "jint" for an int and for an int[][]; empty for a malformed descriptor
    std::string word;    // in the names of the functions that get, set and call: "Int", and "Object" for an array
    int dimensions = 0;  // of an array
};

struct Argument {
    std::string descriptor;
    std::string type;  // as Type::name
    std::string word;  // stem of the parameter's name, and its part of an overload's name: "Int", "String"
    int dimensions = 0;
};

struct Field {
    std::string name;
    std::string descriptor;
    int modifiers = 0;          // Java's access flags
    std::string cpp_name = {};  // stands for `name` in the name of its variable; empty if that is `name` itself
};

// A method or constructor.
struct Method {
    std::string name;        // Java's name; the class's simple name for a constructor
    std::string wrapper;     // the name of the C++ function: as `name`, unless overloads would collide
    std::string descriptor;  // "(I)V"
    int modifiers = 0;       // Java's access flags
    bool is_constructor = false;
    bool is_void = false;
    Type result;  // a constructor's is "jobject"
    std::vector<Argument> arguments;
    std::string cpp_name = {};  // as Field::cpp_name
};

// What a proxy holds of its class. A method's number is its place in `methods`. Names are the VM's, in modified UTF-8,
// and the files have them unchanged unless make_compilable has been called.
struct Proxy {
    std::string class_name;     // the simple name, "Container"
    std::string internal_name;  // "java/awt/Container"
    std::vector<Field> fields;
    std::vector<Method> methods;

    // Set by make_compilable. A name that is empty is derived from class_name.
    bool is_compilable = false;
    std::string cpp_name = {};       // in the names of variables
    std::string cpp_namespace = {};  // "NSContainer"
    std::string guard = {};          // the header's macro, "CONTAINER_H"
};

template <typename Member>
bool is_static(const Member& member) {
    return (member.modifiers & kStatic) != 0;
}

// What follows the last '/' of an internal name, or all of it.
std::string_view simple_name(std::string_view internal_name);

// The name with its letters a to z in upper case, for the macro that keeps a header from being read twice.
std::string header_macro(std::string_view class_name);

// Says whether a member is wanted.
using Filter = std::function<bool(std::string_view class_name, std::string_view name, int modifiers)>;
bool is_field_of_proxy(std::string_view class_name, std::string_view name, int modifiers);
bool is_method_of_proxy(std::string_view class_name, std::string_view name, int modifiers);

// The members that the filter wants, in the order in which the VM lists them. A member whose name the VM does not give
// is left out. A descriptor is read up to its first malformed argument, which is given no type.
std::vector<Field> read_fields(jvmtiEnv* jvmti, jclass clazz, std::string_view class_name, const Filter& filter);
std::vector<Method> read_methods(jvmtiEnv* jvmti, jclass clazz, std::string_view class_name, const Filter& filter);

// Goes through the methods once, and gives each one that has the same wrapper and number of arguments as another one
// the name nameWithArguments. A method that has been renamed no longer collides with those after it, so the last one of
// a group keeps the plain name.
void rename_overloads(std::string_view class_name, std::vector<Method>& methods);

// Reads fields and methods with the filters of a proxy, and renames the overloads.
Proxy read_proxy(jvmtiEnv* jvmti, jclass clazz, std::string_view internal_name);

// A name that make_compilable has changed.
struct Renaming {
    enum Kind { kClass, kField, kMethod, kWrapper, kParameter };
    Kind kind;
    size_t member;     // the place of the field or method in the proxy
    std::string from;  // in UTF-8, as all that follows
    std::string to;
    std::string reason;
};

// Whether a character outside ASCII may stand in a name of C++ or, if `begins`, whether it may be the first one.
using IsLetter = std::function<bool(char32_t character, bool begins)>;

// Changes those names with which the files would not compile, and no others. A Java name may be a keyword of C++, a
// macro, or a type that the proxy uses; it gets an underscore at its end. It may have characters that C++ does not
// take; each becomes an underscore. And two wrappers may differ in nothing that C++ sees; one of them gets its number.
// Afterwards the texts of the files are in UTF-8.
std::vector<Renaming> make_compilable(Proxy& proxy, const IsLetter& is_letter);

// The texts of a proxy's files.
std::string header_text(const Proxy& proxy);
std::string body_text(const Proxy& proxy);

// Writes both files or neither, because a header is of no use with the body of another run. Returns what went wrong; an
// empty text if nothing did.
std::string write_proxy(const Proxy& proxy, const std::string& header_path, const std::string& body_path);

}  // namespace generator

#endif
