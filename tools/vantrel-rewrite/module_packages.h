// The packages that a module-info lists.
#ifndef VANTREL_REWRITE_MODULE_PACKAGES_H
#define VANTREL_REWRITE_MODULE_PACKAGES_H

#include <string_view>

#include "class_file.h"

namespace vantrel_rewrite {

// A module-info with one more package in the list of the packages of its module (JVM specification 4.7.26). Nothing if
// it has no such list: then a VM looks for the packages itself. Throws Malformed if there is no room for one more.
//   image     the module-info, and `file` its outline
//   package   in internal form
Bytes with_package(BytesView image, const ClassFile& file, std::string_view package);

}  // namespace vantrel_rewrite

#endif
