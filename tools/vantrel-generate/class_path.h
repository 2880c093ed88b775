// Class paths as the command java takes them.
#ifndef VANTREL_GENERATE_CLASS_PATH_H
#define VANTREL_GENERATE_CLASS_PATH_H

#include <string>

namespace generate {

// The class path with each element that is `*`, or ends with `/*`, replaced by the jars of that folder, in the order of
// their names. The VM itself does not know that form: the command java replaces it before it starts one. An element
// stays where the folder has no jar.
std::string expand_class_path(const std::string& class_path);

}  // namespace generate

#endif
