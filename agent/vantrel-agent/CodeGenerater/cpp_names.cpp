#include "cpp_names.h"

#include <algorithm>
#include <iterator>

using std::string_view;

namespace {

// All tables here are sorted, because they are searched by bisection.
constexpr string_view kReservedWords[] = {
    "alignas",     "alignof",  "and",        "and_eq",    "asm",       "auto",         "bitand",
    "bitor",       "bool",     "break",      "case",      "catch",     "char",         "char16_t",
    "char32_t",    "char8_t",  "class",      "co_await",  "co_return", "co_yield",     "compl",
    "concept",     "const",    "const_cast", "consteval", "constexpr", "constinit",    "continue",
    "decltype",    "default",  "delete",     "do",        "double",    "dynamic_cast", "else",
    "enum",        "explicit", "export",     "extern",    "false",     "float",        "for",
    "friend",      "goto",     "if",         "inline",    "int",       "long",         "mutable",
    "namespace",   "new",      "noexcept",   "not",       "not_eq",    "nullptr",      "operator",
    "or",          "or_eq",    "private",    "protected", "public",    "register",     "reinterpret_cast",
    "requires",    "return",   "short",      "signed",    "sizeof",    "static",       "static_assert",
    "static_cast", "struct",   "switch",     "template",  "this",      "thread_local", "throw",
    "true",        "try",      "typedef",    "typeid",    "typename",  "typeof",       "union",
    "unsigned",    "using",    "virtual",    "void",      "volatile",  "wchar_t",      "while",
    "xor",         "xor_eq",
};

// The macros of jni.h and of what it includes, of the proxies' own headers (with their include guards), and of GNU's
// dialect of C++. Macros that expand to their own name, such as stdin, do no harm and are not listed.
constexpr string_view kObjectMacros[] = {
    "BUFSIZ",
    "COMMON_H",
    "EOF",
    "FILENAME_MAX",
    "FOPEN_MAX",
    "JAVAINC_H",
    "JCBASE_H",
    "JDK1_2",
    "JDK1_4",
    "JNICALL",
    "JNIEXPORT",
    "JNIIMPORT",
    "JNI_ABORT",
    "JNI_COMMIT",
    "JNI_EDETACHED",
    "JNI_EEXIST",
    "JNI_EINVAL",
    "JNI_ENOMEM",
    "JNI_ERR",
    "JNI_EVERSION",
    "JNI_FALSE",
    "JNI_OK",
    "JNI_TRUE",
    "JNI_VERSION_10",
    "JNI_VERSION_19",
    "JNI_VERSION_1_1",
    "JNI_VERSION_1_2",
    "JNI_VERSION_1_4",
    "JNI_VERSION_1_6",
    "JNI_VERSION_1_8",
    "JNI_VERSION_20",
    "JNI_VERSION_21",
    "JNI_VERSION_24",
    "JNI_VERSION_9",
    "L_ctermid",
    "L_cuserid",
    "L_tmpnam",
    "NULL",
    "P_tmpdir",
    "RENAME_EXCHANGE",
    "RENAME_NOREPLACE",
    "RENAME_WHITEOUT",
    "SEEK_CUR",
    "SEEK_DATA",
    "SEEK_END",
    "SEEK_HOLE",
    "SEEK_SET",
    "TMP_MAX",
    "VANTREL_ASSERTION_H",
    "__DATE__",
    "__FILE__",
    "__LINE__",
    "__TIME__",
    "linux",
    "unix",
};

constexpr string_view kFunctionMacros[] = {
    "CACHE_JAVA_CLASS",
    "CACHE_JAVA_CONSTRUCTOR",
    "CACHE_JAVA_FIELD",
    "CACHE_JAVA_METHOD",
    "CACHE_JAVA_STATIC_FIELD",
    "CACHE_JAVA_STATIC_METHOD",
    "DELETE_CACHED_CLASS_REF",
    "DELETE_CACHED_FIELD_REF",
    "DELETE_CACHED_METHOD_REF",
    "INIT_CACHE_CLASS",
    "INIT_CACHE_CONSTRUCTOR",
    "INIT_CACHE_FIELD",
    "INIT_CACHE_FIELD_BY",
    "INIT_CACHE_METHOD",
    "INIT_CACHE_METHOD_BY",
    "INIT_CACHE_STATIC_FIELD",
    "INIT_CACHE_STATIC_METHOD",
    "JAVA_CLASS",
    "JAVA_CONSTRUCTOR",
    "JAVA_FIELD",
    "JAVA_METHOD",
    "assert",
    "assert_perror",
    "va_arg",
    "va_copy",
    "va_end",
    "va_start",
};

template <size_t Count>
bool contains(const string_view (&table)[Count], string_view name) {
    return std::binary_search(std::begin(table), std::end(table), name);
}

static_assert(std::is_sorted(std::begin(kReservedWords), std::end(kReservedWords)));
static_assert(std::is_sorted(std::begin(kObjectMacros), std::end(kObjectMacros)));
static_assert(std::is_sorted(std::begin(kFunctionMacros), std::end(kFunctionMacros)));

}  // namespace

bool generator::is_cpp_word(string_view name) {
    return contains(kReservedWords, name);
}

bool generator::is_object_macro(string_view name) {
    return contains(kObjectMacros, name);
}

bool generator::is_function_macro(string_view name) {
    return contains(kFunctionMacros, name);
}
