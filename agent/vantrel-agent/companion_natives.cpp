// The native methods of the companion's classes. They are declared in the headers of the proxies that register them,
// and run on whatever Java thread calls them. What Java throws in them stays pending for their caller. Each is a visit
// of the agent; one that is turned away does nothing and returns nothing, false or -1.
#include <cstdio>

#include "agent_life.h"
#include "assertion.h"
#include "jc/AlphaComposite.h"
#include "jc/AppContext.h"
#include "jc/Component.h"
#include "jc/EDTRunnable.h"
#include "jc/Graphics.h"
#include "jc/Graphics2D.h"
#include "jc/Object.h"
#include "jc/SwingContext.h"
#include "jc/SwingUtilities.h"
#include "jc/Thread.h"
#include "jc/Vantrel.h"
#include "jc/VantrelFrame.h"
#include "keyboard.h"

namespace NSVantrel {

// Draws an outline inside the component's bounds, and a translucent fill. Both are given the same width and height, but
// drawRect covers one column and one row more than fillRect, so the fill leaves out the last ones.
void JNICALL highlight(JNIEnv* env, jobject /*_this*/, jobject component, jobject graphics) {
    const Visit visit;
    if (visit.turned_away()) {
        return;
    }
    constexpr jfloat kFillAlpha = 0.33F;
    assert(HighlightColor != NULL);
    NSGraphics::setColor(env, graphics, HighlightColor);
    const jint width = NSComponent::getWidth(env, component) - 1;
    const jint height = NSComponent::getHeight(env, component) - 1;
    NSGraphics::drawRect(env, graphics, 0, 0, width, height);
    jobject alphaComposite = NSAlphaComposite::getInstance(env, NSAlphaComposite::SRC_ATOP, kFillAlpha);
    assert(alphaComposite != NULL);
    NSGraphics2D::setComposite(env, graphics, alphaComposite);
    NSGraphics::fillRect(env, graphics, 0, 0, width, height);
}

void JNICALL beep(JNIEnv* /*env*/, jclass /*clazz*/) {
    const Visit visit;
    if (visit.turned_away()) {
        return;
    }
    putchar('\a');
    fflush(stdout);
}

// The version of the operating system. The agent does not ask for it; to the companion, -1 is an unknown version.
jint JNICALL getOSVer(JNIEnv* /*env*/, jclass /*clazz*/) {
    const Visit visit;
    return -1;
}

jboolean JNICALL canHighlight(JNIEnv* /*env*/, jclass /*clazz*/) {
    const Visit visit;
    return !visit.turned_away() && isHotKeyModifierHeld() ? JNI_TRUE : JNI_FALSE;
}

}  // namespace NSVantrel

namespace NSSwingContext {

void JNICALL _safeRun1(JNIEnv* env, jobject /*_this*/, jobject comp, jobject runnable) {
    const Visit visit;
    if (visit.turned_away()) {
        return;
    }
    assert(comp);
    jobject context = env->GetObjectField(comp, NSComponent::Component_appContext);
    if (NSObject::equals(env, context, NSAppContext::getAppContext(env)) != JNI_FALSE) {
        NSSwingUtilities::invokeLater(env, runnable);
        return;
    }
    // invokeLater would use the queue of the current context. So a thread is started in the other context's group, and
    // posts the task to that context's queue.
    jobject threadGroup = NSAppContext::getThreadGroup(env, context);
    assert(threadGroup);
    jobject wrapper = NSEDTRunnable::EDTRunnable(env, runnable);
    jobject thread = NSThread::Thread(env, threadGroup, wrapper, env->NewStringUTF("vantrel-context-thread"));
    assert(thread);
    NSThread::start(env, thread);
}

}  // namespace NSSwingContext

namespace NSVantrelFrame {

// Does nothing: the opacity of windows is not implemented natively. The class of the frame may call this all the same.
void JNICALL _setOpacity(JNIEnv* /*env*/, jobject /*_this*/, jint /*opacity*/) {
    const Visit visit;
}

}  // namespace NSVantrelFrame
