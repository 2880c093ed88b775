// Names beside those that CodeGenerater.h makes.
#ifndef VANTREL_NAMES_H
#define VANTREL_NAMES_H

namespace generator {

// Cuts a class's signature, "Ljava/awt/Component;", to its internal name, in place.
void cut_to_internal_name(char* signature);

}  // namespace generator

#endif
