// The native methods of the companion's classes. They are declared in the headers of the proxies that register them.
#include "jc/SwingContext.h"
#include "jc/Vantrel.h"
#include "jc/VantrelFrame.h"

namespace NSVantrel {

void JNICALL highlight(JNIEnv* /*env*/, jobject /*_this*/, jobject /*component*/, jobject /*graphics*/) {}

void JNICALL beep(JNIEnv* /*env*/, jclass /*clazz*/) {}

jint JNICALL getOSVer(JNIEnv* /*env*/, jclass /*clazz*/) {
    return -1;
}

jboolean JNICALL canHighlight(JNIEnv* /*env*/, jclass /*clazz*/) {
    return JNI_FALSE;
}

}  // namespace NSVantrel

namespace NSSwingContext {

void JNICALL _safeRun1(JNIEnv* /*env*/, jobject /*_this*/, jobject /*component*/, jobject /*runnable*/) {}

}  // namespace NSSwingContext

namespace NSVantrelFrame {

void JNICALL _setOpacity(JNIEnv* /*env*/, jobject /*_this*/, jint /*opacity*/) {}

}  // namespace NSVantrelFrame
