// The JVM's descriptors of fields and methods (JVM specification, 4.3), in the words of JNI.
#ifndef VANTREL_DESCRIPTORS_H
#define VANTREL_DESCRIPTORS_H

#include <string_view>
#include <vector>

#include "generator.h"

namespace generator {

// The type of a field or a result.
Type read_type(std::string_view descriptor);

// What follows the last ')' of a method's descriptor; nothing if there is no ')'.
std::string_view result_of(std::string_view descriptor);

// The arguments of a method's descriptor. The list ends after the first malformed one, whose type is empty.
std::vector<Argument> read_arguments(std::string_view descriptor);

// Whether a descriptor is of an object whose class is in no package.
bool is_in_no_package(std::string_view descriptor);

}  // namespace generator

#endif
