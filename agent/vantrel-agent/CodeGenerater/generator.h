// The generator itself, of which CodeGenerater.h is the face that the library exports: from a class in the VM to what
// its proxy holds, and from there to the texts of the proxy's files. The command vantrel-generate uses this header.
//
//     const generator::Proxy proxy = generator::read_proxy(jvmti, clazz, "java/awt/Container");
//     const std::string fault = generator::write_proxy(proxy, "jc/Container.h", "jc/Container.cpp");
//
// Nothing here has a limit of length, ends the process or writes to a stream: what is wrong is in the results.
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

// What a descriptor is to JNI.
struct Type {
    std::string name;    // of the element: "jint" for an int and for an int[][]; empty where the descriptor is none
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
    std::string cpp_name = {};  // its part of its variable's name, where that is not `name`
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
    std::string cpp_name = {};  // its part of its variable's name, where that is not `name`
};

// What a proxy holds of its class. A method's number is its place in `methods`.
// Names are the VM's, in modified UTF-8, and stand as they are in the files, until make_compilable has seen to them.
struct Proxy {
    std::string class_name;     // the simple name, "Container"
    std::string internal_name;  // "java/awt/Container"
    std::vector<Field> fields;
    std::vector<Method> methods;

    // What make_compilable sets; empty names are made of class_name.
    bool is_compilable = false;
    std::string cpp_name = {};       // in the names of variables
    std::string cpp_namespace = {};  // "NSContainer"
    std::string guard = {};          // the header's macro, "CONTAINER_H"
};

template <typename Member>
bool is_static(const Member& member) {
    return (member.modifiers & kStatic) != 0;
}

// What follows the last '/' of an internal name.
std::string_view simple_name(std::string_view internal_name);

// The name with its letters a to z in upper case, for the macro that keeps a header from being read twice.
std::string header_macro(std::string_view class_name);

// Says whether a member is wanted.
using Filter = std::function<bool(std::string_view class_name, std::string_view name, int modifiers)>;
bool is_field_of_proxy(std::string_view class_name, std::string_view name, int modifiers);
bool is_method_of_proxy(std::string_view class_name, std::string_view name, int modifiers);

// The members that the filter wants, in the order in which the VM lists them. A member that the VM does not name is
// left out. The reading of a descriptor ends at the first argument that is none, which then has no type.
std::vector<Field> read_fields(jvmtiEnv* jvmti, jclass clazz, std::string_view class_name, const Filter& filter);
std::vector<Method> read_methods(jvmtiEnv* jvmti, jclass clazz, std::string_view class_name, const Filter& filter);

// Gives each method that has the same wrapper and number of arguments as another one the name nameWithArguments, in one
// pass. A method that is renamed is out of the way of those that follow, so the last of a group keeps the plain name.
void rename_overloads(std::string_view class_name, std::vector<Method>& methods);

// The three steps above, for what a proxy has.
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

// Whether a character that is not of ASCII may stand in a name of C++, or begin one.
using IsLetter = std::function<bool(char32_t character, bool begins)>;

// Changes the names with which the files would be no C++, and only these: Java's names may be words of C++, macros,
// types that the proxy uses, or nothing that C++ takes for a name, and wrappers may differ in nothing that C++ sees. A
// word gets an underscore, one of two equal wrappers its number, and what cannot stand in a name becomes an underscore.
// The files are in UTF-8 then.
std::vector<Renaming> make_compilable(Proxy& proxy, const IsLetter& is_letter);

// The texts of a proxy's files.
std::string header_text(const Proxy& proxy);
std::string body_text(const Proxy& proxy);

// Writes both files or neither: a header is of no use with another run's body. Returns what went wrong, and an empty
// text where nothing did.
std::string write_proxy(const Proxy& proxy, const std::string& header_path, const std::string& body_path);

}  // namespace generator

#endif
