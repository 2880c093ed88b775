#include "StackTraceManager.h"

namespace NSStackTraceManager {

bool vantrelAddStackTrace = false;

}  // namespace NSStackTraceManager
