// The jar with the classes of the folder count/, which the build puts into the program.
#ifndef VANTREL_REWRITE_COUNT_CLASSES_H
#define VANTREL_REWRITE_COUNT_CLASSES_H

#include <cstddef>

namespace vantrel_rewrite {

extern const unsigned char kCountClasses[];
extern const std::size_t kCountClassesSize;

}  // namespace vantrel_rewrite

#endif
