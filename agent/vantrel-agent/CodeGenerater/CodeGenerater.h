// The proxy source generator: a loaded Java class in, the header and body of its proxy out (JCBase.h says what a proxy
// is). A development tool that is built into the library: nothing in the agent calls it. Call GenerateFiles from a
// debugging build or a hook of your own; the command vantrel-generate runs it without an application.
//
//     char name[] = "java/awt/Container";
//     char folder[] = "/tmp/proxies";
//     GenerateFiles(jvmti, env, name, folder);
//
// On the way the class becomes two arrays of records, one of its fields and one of its methods and constructors.
// GetFieldEntities and GetMethodEntities allocate an array and give its length; FreeFieldEntities and FreeMethodEntiry
// release it with its records. (CodeGenerater and FreeMethodEntiry are misspelt, and stay so, because callers know
// them.)
//
// Threads: the calling thread is attached to the VM and owns the JNIEnv that it passes. The generator keeps no state.
//
// Failures: a member that does not fit its record is left out, with one line on stderr that names it. A file that
// cannot be written is reported in the same way. A class that the VM cannot find, a malformed descriptor, and an
// argument whose class is in the unnamed package end the process with an assertion.
#ifndef CODEGENERATER_H
#define CODEGENERATER_H

#include <jni.h>
#include <jvmti.h>

constexpr int kMaxArguments = 36;
constexpr unsigned long kClassNameSize =
    64;  // of a class's simple name, or its header macro, with the terminating zero
constexpr unsigned long kFilePathSize = 1024;

// An argument of a method.
struct ArgumentEntity {
    char type_name[256];  // JNI type of the element: "jint" for an int and for an int[][]
    char argu_name[256];  // stem of the parameter's name, and its word in the name of an overload: "Int", "String"
    int is_array;
    int array_dims;
};

// A method or constructor.
struct MethodEntity {
    char name[256];       // Java's name; the class's simple name for a constructor
    char func_name[256];  // the wrapper's name: as `name`, unless overloads would collide
    char signature[256];  // the method's descriptor
    int modifiers;        // Java's access flags
    int is_void;
    int is_constructor;
    char return_type[512];  // JNI type of the result, or of its elements; "jobject" for a constructor
    int is_array;           // the result is an array
    int array_dims;
    int argu_count;
    ArgumentEntity** argus;  // room for kMaxArguments
    char call_type[256];     // word of the JNI function that calls it: "Int", "Object", "Void"
};

struct FieldEntity {
    char name[256];
    char signature[256];  // the field's descriptor
    char call_type[256];  // word of the JNI functions that get and set it
    char type_name[256];  // JNI type of the field, or of its elements
    int is_array;
    int array_dims;
    int modifiers;  // Java's access flags
};

// Returns 0 for a member that is not wanted. Is given the class's simple name, the member's name and its access flags.
using EntityFilter = int (*)(char* class_name, char* name, int modifiers);

// Generates <directory>\<simple name>.h and .cpp, replacing what is there. True if both were written.
//   name       the class's internal name, "java/awt/Component"; the class is loaded and initialised
//   directory  "C:\generated-files" if none is given. It is always joined to the file's name by a backslash, which on
//              Linux and macOS is a part of the file's name
JNIEXPORT bool GenerateFiles(jvmtiEnv* jvmti, JNIEnv* env, char* name);
JNIEXPORT bool GenerateFiles(jvmtiEnv* jvmti, JNIEnv* env, char* name, char* directory);

// From the class to the records, in the order in which the VM lists its members. The caller releases the arrays, also
// that of a class without members.
//   class_name  the class's simple name
//   filter      null takes all
JNIEXPORT void GetFieldEntities(jvmtiEnv* jvmti, jclass clazz, char* class_name, FieldEntity*** fields, int* count,
                                EntityFilter filter);
// Of overloads with the same number of arguments, all but the last get a longer wrapper name: `add` becomes
// `addWithStringInt`. An array has the same word there as its elements, so two of these names may be equal.
JNIEXPORT void GetMethodEntities(jvmtiEnv* jvmti, jclass clazz, char* class_name, int* count, MethodEntity*** methods,
                                 EntityFilter filter);
JNIEXPORT void FreeFieldEntities(FieldEntity** fields, int count);
JNIEXPORT void FreeMethodEntiry(MethodEntity** methods, int count);

// The filters that GenerateFiles uses: 1 for members that a proxy has.
JNIEXPORT int CanAcceptMethod(char* class_name, char* name, int modifiers);
JNIEXPORT int CanAcceptField(char* class_name, char* name, int modifiers);

// 1 if another method of the array has the same func_name and the same number of arguments as `entity`, otherwise 0.
JNIEXPORT int IsMethodEntityFuncNameExists(MethodEntity** methods, int count, MethodEntity* entity);

// Reads the descriptor of a field or result. For an array, `jni_type` is the type of its elements and `call_type` is
// "Object". Returns `jni_type`. Both texts have room for 16 bytes.
JNIEXPORT char* GetTypeInformation(const char* descriptor, int* is_array, int* array_dims, char* jni_type,
                                   char* call_type);

// Puts the simple name of the class in a descriptor, between its last '/' and the ';' or the end, into `name`. 0 if
// there is no '/'. A name that does not fit is cut.
//   size  the room in `name`, which is cleared
JNIEXPORT int GetSimpleName(const char* descriptor, char* name, unsigned long size);
// The same, but adds the name to the text in `name`, which has room for `size` bytes more.
JNIEXPORT int GetSimpleArgumentName(const char* descriptor, char* name, unsigned long size);

// Appends what follows the last '/' of an internal name, or all of it if there is none, to the text in `out`, which has
// room for that. Returns `out`.
JNIEXPORT char* GetClassName(char* out, char* internal_name);

// A copy of the text, to be given back with free().
JNIEXPORT char* CopyOf(const char* text);

// Writes the header, or the body, of a proxy; false, and a line on stderr, if that fails. A file that is there stays as
// it was until the new one is whole.
//   class_signature  as the VM gives it, "Ljava/awt/Component;"; is cut to the internal name
//   class_name       the class's simple name
JNIEXPORT bool WriteHeaderFile(char* path, char* class_name, MethodEntity** methods, int method_count,
                               FieldEntity** fields, int field_count);
JNIEXPORT bool WriteCPPFile(char* class_signature, char* path, char* class_name, MethodEntity** methods,
                            int method_count, FieldEntity** fields, int field_count);

// Appends the name, with its letters a to z in upper case, to the text in `macro`, which has room for that.
JNIEXPORT void GetHeaderMacro(char* macro, char* name);

// The paths <directory>\<name>.h and <directory>\<name>.cpp. `path` has room for kFilePathSize bytes and is empty after
// a path that does not fit.
JNIEXPORT void GetHeaderFileName(char* path, char* directory, char* name);
JNIEXPORT void GetCPPFileName(char* path, char* directory, char* name);

// Tries out the allocation of argument records and prints to stdout what it got.
JNIEXPORT void doTest();

#endif
