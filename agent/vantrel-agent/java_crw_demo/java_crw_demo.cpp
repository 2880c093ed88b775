#include "java_crw_demo.h"
