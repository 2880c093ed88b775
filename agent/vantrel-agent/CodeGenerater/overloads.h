// Names for the wrappers of overloaded methods.
#ifndef VANTREL_OVERLOADS_H
#define VANTREL_OVERLOADS_H

#include <vector>

#include "CodeGenerater.h"
#include "entities.h"

namespace generator {

// Renames, in one pass, each method that has the same func_name and number of arguments as another one. As a renamed
// method is out of the way of those behind it, the last one keeps the plain name. A method whose new name does not fit
// is left out, with a line on stderr.
void rename_overloads(const char* class_name, std::vector<MethodPointer>& methods);

}  // namespace generator

#endif
