// What JVMTI has allocated for its caller, given back when its owner is done with it.
#ifndef VANTREL_JVMTI_MEMORY_H
#define VANTREL_JVMTI_MEMORY_H

#include <jvmti.h>

#include <memory>

namespace generator {

struct GiveBack {
    jvmtiEnv* jvmti;
    void operator()(void* block) const { jvmti->Deallocate(static_cast<unsigned char*>(block)); }
};
// A null pointer where JVMTI gave nothing.
template <typename Element>
using JvmtiArray = std::unique_ptr<Element[], GiveBack>;

}  // namespace generator

#endif
