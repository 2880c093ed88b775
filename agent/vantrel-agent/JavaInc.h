// The JDK's headers, as every proxy and its callers see them.
#ifndef JAVAINC_H
#define JAVAINC_H

#include <jni.h>
#include <jvmti.h>

#endif
