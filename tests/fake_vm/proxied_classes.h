// Everything that the agent's proxies look for in a VM.
#ifndef VANTREL_PROXIED_CLASSES_H
#define VANTREL_PROXIED_CLASSES_H

#include "fake_vm.h"

// Adds the classes of all proxies to a fake VM, with all members that the proxies know, and the property java.home.
// Methods that return an object return the one that is named "result", the others a zero.
void add_proxied_classes(FakeVm& vm);

#endif
