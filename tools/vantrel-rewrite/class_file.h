// The outline of a class file: enough to tell whose it is, which methods it has, and where it ends.
#ifndef VANTREL_REWRITE_CLASS_FILE_H
#define VANTREL_REWRITE_CLASS_FILE_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "file_io.h"

namespace vantrel_rewrite {

// How many bytes of a file class_version looks at.
constexpr size_t kHeaderSize = 8;

// The major version in a class file's header; 0 for what does not begin as a class file does.
unsigned class_version(BytesView begin);

// Thrown for what is not built as a class file is.
struct Malformed {
    std::string reason;  // a sentence that begins with "it", without a full stop
};

// Names are as the file has them, in modified UTF-8.
struct ClassFile {
    struct Method {
        std::uint16_t access;
        std::string name;
        std::string descriptor;
    };
    std::uint16_t access;
    std::string name;
    std::string super_name;  // empty for java.lang.Object
    struct Attribute {
        std::string name;  // empty where the file has none for it
        size_t begin;      // of its contents
        size_t size;
    };
    std::vector<Method> methods;
    std::vector<Attribute> attributes;  // the class's own
    size_t constant_count;              // as the file has it: one more than the highest index
    size_t end_of_constants;
    size_t end;  // of the class
};

// Where a class file has the number of its constants: after the header.
constexpr size_t kConstantCount = kHeaderSize;

// Flags of a class or a method (JVM specification 4.1 and 4.6).
constexpr std::uint16_t kPublic = 0x0001;
constexpr std::uint16_t kStatic = 0x0008;
constexpr std::uint16_t kNative = 0x0100;
constexpr std::uint16_t kInterface = 0x0200;
constexpr std::uint16_t kAbstract = 0x0400;

// Reads the outline of a class file (JVM specification 4.1). What is in fields, code and other attributes is not looked
// at. Throws Malformed; does not mind what comes after the end.
ClassFile read_class_file(BytesView image);

}  // namespace vantrel_rewrite

#endif
