#include "SwingUtilities.h"
#include "../common.h"
#include  <assert.h>

namespace NSSwingUtilities{

	CACHE_JAVA_CLASS(SwingUtilities) = NULL;

	//fields(0)

	//methods(56)

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, paintComponent, 0) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, paintComponent, 1) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, processKeyBindings, 2) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, getRootPane, 3) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, getRoot, 4) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, getWindowAncestor, 5) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, computeIntersection, 6) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, appContextGet, 7) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, appContextPut, 8) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, notifyAction, 9) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, isValidKeyEventForKeyBindings, 10) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, installSwingDropTargetAsNecessary, 11) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, isEventDispatchThread, 12) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, invokeLater, 13) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, getAccessibleAt, 14) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, getAccessibleChildrenCount, 15) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, getAccessibleChild, 16) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, getAccessibleIndexInParent, 17) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, getAccessibleStateSet, 18) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, appContextRemove, 19) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, isRectangleContainingRectangle, 20) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, getLocalBounds, 21) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, convertScreenLocationToParent, 22) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, convertPoint, 23) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, convertPoint, 24) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, convertRectangle, 25) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, getAncestorOfClass, 26) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, getAncestorNamed, 27) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, getDeepestComponentAt, 28) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, convertMouseEvent, 29) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, convertPointToScreen, 30) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, convertPointFromScreen, 31) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, windowForComponent, 32) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, isDescendingFrom, 33) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, computeUnion, 34) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, computeDifference, 35) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, isLeftMouseButton, 36) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, isMiddleMouseButton, 37) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, isRightMouseButton, 38) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, computeStringWidth, 39) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, layoutCompoundLabel, 40) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, layoutCompoundLabel, 41) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, updateComponentTreeUI, 42) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, invokeAndWait, 43) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, findFocusOwner, 44) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, replaceUIInputMap, 45) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, replaceUIActionMap, 46) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, getUIInputMap, 47) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, getUIActionMap, 48) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, getSharedOwnerFrame, 49) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, getSharedOwnerFrameShutdownListener, 50) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, loadSystemClass, 51) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, isLeftToRight, 52) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, doesIconReferenceImage, 53) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, findDisplayedMnemonicIndex, 54) = NULL;

	CACHE_JAVA_STATIC_METHOD(SwingUtilities, calculateInnerArea, 55) = NULL;

	void paintComponent(JNIEnv *env, jobject Graphics0, jobject Component1, jobject Container2, jobject Rectangle3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, paintComponent, "(Ljava/awt/Graphics;Ljava/awt/Component;Ljava/awt/Container;Ljava/awt/Rectangle;)V", 0);
		env->CallStaticVoidMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, paintComponent, 0), Graphics0, Component1, Container2, Rectangle3);
	}

	void paintComponent(JNIEnv *env, jobject Graphics0, jobject Component1, jobject Container2, jint Int3, jint Int4, jint Int5, jint Int6){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, paintComponent, "(Ljava/awt/Graphics;Ljava/awt/Component;Ljava/awt/Container;IIII)V", 1);
		env->CallStaticVoidMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, paintComponent, 1), Graphics0, Component1, Container2, Int3, Int4, Int5, Int6);
	}

	jboolean processKeyBindings(JNIEnv *env, jobject KeyEvent0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, processKeyBindings, "(Ljava/awt/event/KeyEvent;)Z", 2);
		return (jboolean)env->CallStaticBooleanMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, processKeyBindings, 2), KeyEvent0);
	}

	jobject getRootPane(JNIEnv *env, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, getRootPane, "(Ljava/awt/Component;)Ljavax/swing/JRootPane;", 3);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, getRootPane, 3), Component0);
	}

	jobject getRoot(JNIEnv *env, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, getRoot, "(Ljava/awt/Component;)Ljava/awt/Component;", 4);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, getRoot, 4), Component0);
	}

	jobject getWindowAncestor(JNIEnv *env, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, getWindowAncestor, "(Ljava/awt/Component;)Ljava/awt/Window;", 5);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, getWindowAncestor, 5), Component0);
	}

	jobject computeIntersection(JNIEnv *env, jint Int0, jint Int1, jint Int2, jint Int3, jobject Rectangle4){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, computeIntersection, "(IIIILjava/awt/Rectangle;)Ljava/awt/Rectangle;", 6);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, computeIntersection, 6), Int0, Int1, Int2, Int3, Rectangle4);
	}

	jobject appContextGet(JNIEnv *env, jobject Object0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, appContextGet, "(Ljava/lang/Object;)Ljava/lang/Object;", 7);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, appContextGet, 7), Object0);
	}

	void appContextPut(JNIEnv *env, jobject Object0, jobject Object1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, appContextPut, "(Ljava/lang/Object;Ljava/lang/Object;)V", 8);
		env->CallStaticVoidMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, appContextPut, 8), Object0, Object1);
	}

	jboolean notifyAction(JNIEnv *env, jobject Action0, jobject KeyStroke1, jobject KeyEvent2, jobject Object3, jint Int4){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, notifyAction, "(Ljavax/swing/Action;Ljavax/swing/KeyStroke;Ljava/awt/event/KeyEvent;Ljava/lang/Object;I)Z", 9);
		return (jboolean)env->CallStaticBooleanMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, notifyAction, 9), Action0, KeyStroke1, KeyEvent2, Object3, Int4);
	}

	jboolean isValidKeyEventForKeyBindings(JNIEnv *env, jobject KeyEvent0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, isValidKeyEventForKeyBindings, "(Ljava/awt/event/KeyEvent;)Z", 10);
		return (jboolean)env->CallStaticBooleanMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, isValidKeyEventForKeyBindings, 10), KeyEvent0);
	}

	void installSwingDropTargetAsNecessary(JNIEnv *env, jobject Component0, jobject TransferHandler1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, installSwingDropTargetAsNecessary, "(Ljava/awt/Component;Ljavax/swing/TransferHandler;)V", 11);
		env->CallStaticVoidMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, installSwingDropTargetAsNecessary, 11), Component0, TransferHandler1);
	}

	jboolean isEventDispatchThread(JNIEnv *env){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, isEventDispatchThread, "()Z", 12);
		return (jboolean)env->CallStaticBooleanMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, isEventDispatchThread, 12));
	}

	void invokeLater(JNIEnv *env, jobject Runnable0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, invokeLater, "(Ljava/lang/Runnable;)V", 13);
		env->CallStaticVoidMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, invokeLater, 13), Runnable0);
	}

	jobject getAccessibleAt(JNIEnv *env, jobject Component0, jobject Point1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, getAccessibleAt, "(Ljava/awt/Component;Ljava/awt/Point;)Ljavax/accessibility/Accessible;", 14);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, getAccessibleAt, 14), Component0, Point1);
	}

	jint getAccessibleChildrenCount(JNIEnv *env, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, getAccessibleChildrenCount, "(Ljava/awt/Component;)I", 15);
		return (jint)env->CallStaticIntMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, getAccessibleChildrenCount, 15), Component0);
	}

	jobject getAccessibleChild(JNIEnv *env, jobject Component0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, getAccessibleChild, "(Ljava/awt/Component;I)Ljavax/accessibility/Accessible;", 16);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, getAccessibleChild, 16), Component0, Int1);
	}

	jint getAccessibleIndexInParent(JNIEnv *env, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, getAccessibleIndexInParent, "(Ljava/awt/Component;)I", 17);
		return (jint)env->CallStaticIntMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, getAccessibleIndexInParent, 17), Component0);
	}

	jobject getAccessibleStateSet(JNIEnv *env, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, getAccessibleStateSet, "(Ljava/awt/Component;)Ljavax/accessibility/AccessibleStateSet;", 18);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, getAccessibleStateSet, 18), Component0);
	}

	void appContextRemove(JNIEnv *env, jobject Object0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, appContextRemove, "(Ljava/lang/Object;)V", 19);
		env->CallStaticVoidMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, appContextRemove, 19), Object0);
	}

	jboolean isRectangleContainingRectangle(JNIEnv *env, jobject Rectangle0, jobject Rectangle1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, isRectangleContainingRectangle, "(Ljava/awt/Rectangle;Ljava/awt/Rectangle;)Z", 20);
		return (jboolean)env->CallStaticBooleanMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, isRectangleContainingRectangle, 20), Rectangle0, Rectangle1);
	}

	jobject getLocalBounds(JNIEnv *env, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, getLocalBounds, "(Ljava/awt/Component;)Ljava/awt/Rectangle;", 21);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, getLocalBounds, 21), Component0);
	}

	jobject convertScreenLocationToParent(JNIEnv *env, jobject Container0, jint Int1, jint Int2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, convertScreenLocationToParent, "(Ljava/awt/Container;II)Ljava/awt/Point;", 22);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, convertScreenLocationToParent, 22), Container0, Int1, Int2);
	}

	jobject convertPoint(JNIEnv *env, jobject Component0, jobject Point1, jobject Component2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, convertPoint, "(Ljava/awt/Component;Ljava/awt/Point;Ljava/awt/Component;)Ljava/awt/Point;", 23);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, convertPoint, 23), Component0, Point1, Component2);
	}

	jobject convertPoint(JNIEnv *env, jobject Component0, jint Int1, jint Int2, jobject Component3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, convertPoint, "(Ljava/awt/Component;IILjava/awt/Component;)Ljava/awt/Point;", 24);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, convertPoint, 24), Component0, Int1, Int2, Component3);
	}

	jobject convertRectangle(JNIEnv *env, jobject Component0, jobject Rectangle1, jobject Component2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, convertRectangle, "(Ljava/awt/Component;Ljava/awt/Rectangle;Ljava/awt/Component;)Ljava/awt/Rectangle;", 25);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, convertRectangle, 25), Component0, Rectangle1, Component2);
	}

	jobject getAncestorOfClass(JNIEnv *env, jclass Class0, jobject Component1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, getAncestorOfClass, "(Ljava/lang/Class;Ljava/awt/Component;)Ljava/awt/Container;", 26);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, getAncestorOfClass, 26), Class0, Component1);
	}

	jobject getAncestorNamed(JNIEnv *env, jobject String0, jobject Component1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, getAncestorNamed, "(Ljava/lang/String;Ljava/awt/Component;)Ljava/awt/Container;", 27);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, getAncestorNamed, 27), String0, Component1);
	}

	jobject getDeepestComponentAt(JNIEnv *env, jobject Component0, jint Int1, jint Int2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, getDeepestComponentAt, "(Ljava/awt/Component;II)Ljava/awt/Component;", 28);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, getDeepestComponentAt, 28), Component0, Int1, Int2);
	}

	jobject convertMouseEvent(JNIEnv *env, jobject Component0, jobject MouseEvent1, jobject Component2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, convertMouseEvent, "(Ljava/awt/Component;Ljava/awt/event/MouseEvent;Ljava/awt/Component;)Ljava/awt/event/MouseEvent;", 29);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, convertMouseEvent, 29), Component0, MouseEvent1, Component2);
	}

	void convertPointToScreen(JNIEnv *env, jobject Point0, jobject Component1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, convertPointToScreen, "(Ljava/awt/Point;Ljava/awt/Component;)V", 30);
		env->CallStaticVoidMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, convertPointToScreen, 30), Point0, Component1);
	}

	void convertPointFromScreen(JNIEnv *env, jobject Point0, jobject Component1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, convertPointFromScreen, "(Ljava/awt/Point;Ljava/awt/Component;)V", 31);
		env->CallStaticVoidMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, convertPointFromScreen, 31), Point0, Component1);
	}

	jobject windowForComponent(JNIEnv *env, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, windowForComponent, "(Ljava/awt/Component;)Ljava/awt/Window;", 32);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, windowForComponent, 32), Component0);
	}

	jboolean isDescendingFrom(JNIEnv *env, jobject Component0, jobject Component1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, isDescendingFrom, "(Ljava/awt/Component;Ljava/awt/Component;)Z", 33);
		return (jboolean)env->CallStaticBooleanMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, isDescendingFrom, 33), Component0, Component1);
	}

	jobject computeUnion(JNIEnv *env, jint Int0, jint Int1, jint Int2, jint Int3, jobject Rectangle4){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, computeUnion, "(IIIILjava/awt/Rectangle;)Ljava/awt/Rectangle;", 34);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, computeUnion, 34), Int0, Int1, Int2, Int3, Rectangle4);
	}

	jobject computeDifference(JNIEnv *env, jobject Rectangle0, jobject Rectangle1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, computeDifference, "(Ljava/awt/Rectangle;Ljava/awt/Rectangle;)[Ljava/awt/Rectangle;", 35);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, computeDifference, 35), Rectangle0, Rectangle1);
	}

	jboolean isLeftMouseButton(JNIEnv *env, jobject MouseEvent0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, isLeftMouseButton, "(Ljava/awt/event/MouseEvent;)Z", 36);
		return (jboolean)env->CallStaticBooleanMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, isLeftMouseButton, 36), MouseEvent0);
	}

	jboolean isMiddleMouseButton(JNIEnv *env, jobject MouseEvent0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, isMiddleMouseButton, "(Ljava/awt/event/MouseEvent;)Z", 37);
		return (jboolean)env->CallStaticBooleanMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, isMiddleMouseButton, 37), MouseEvent0);
	}

	jboolean isRightMouseButton(JNIEnv *env, jobject MouseEvent0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, isRightMouseButton, "(Ljava/awt/event/MouseEvent;)Z", 38);
		return (jboolean)env->CallStaticBooleanMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, isRightMouseButton, 38), MouseEvent0);
	}

	jint computeStringWidth(JNIEnv *env, jobject FontMetrics0, jobject String1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, computeStringWidth, "(Ljava/awt/FontMetrics;Ljava/lang/String;)I", 39);
		return (jint)env->CallStaticIntMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, computeStringWidth, 39), FontMetrics0, String1);
	}

	jobject layoutCompoundLabel(JNIEnv *env, jobject JComponent0, jobject FontMetrics1, jobject String2, jobject Icon3, jint Int4, jint Int5, jint Int6, jint Int7, jobject Rectangle8, jobject Rectangle9, jobject Rectangle10, jint Int11){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, layoutCompoundLabel, "(Ljavax/swing/JComponent;Ljava/awt/FontMetrics;Ljava/lang/String;Ljavax/swing/Icon;IIIILjava/awt/Rectangle;Ljava/awt/Rectangle;Ljava/awt/Rectangle;I)Ljava/lang/String;", 40);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, layoutCompoundLabel, 40), JComponent0, FontMetrics1, String2, Icon3, Int4, Int5, Int6, Int7, Rectangle8, Rectangle9, Rectangle10, Int11);
	}

	jobject layoutCompoundLabel(JNIEnv *env, jobject FontMetrics0, jobject String1, jobject Icon2, jint Int3, jint Int4, jint Int5, jint Int6, jobject Rectangle7, jobject Rectangle8, jobject Rectangle9, jint Int10){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, layoutCompoundLabel, "(Ljava/awt/FontMetrics;Ljava/lang/String;Ljavax/swing/Icon;IIIILjava/awt/Rectangle;Ljava/awt/Rectangle;Ljava/awt/Rectangle;I)Ljava/lang/String;", 41);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, layoutCompoundLabel, 41), FontMetrics0, String1, Icon2, Int3, Int4, Int5, Int6, Rectangle7, Rectangle8, Rectangle9, Int10);
	}

	void updateComponentTreeUI(JNIEnv *env, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, updateComponentTreeUI, "(Ljava/awt/Component;)V", 42);
		env->CallStaticVoidMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, updateComponentTreeUI, 42), Component0);
	}

	void invokeAndWait(JNIEnv *env, jobject Runnable0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, invokeAndWait, "(Ljava/lang/Runnable;)V", 43);
		env->CallStaticVoidMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, invokeAndWait, 43), Runnable0);
	}

	jobject findFocusOwner(JNIEnv *env, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, findFocusOwner, "(Ljava/awt/Component;)Ljava/awt/Component;", 44);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, findFocusOwner, 44), Component0);
	}

	void replaceUIInputMap(JNIEnv *env, jobject JComponent0, jint Int1, jobject InputMap2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, replaceUIInputMap, "(Ljavax/swing/JComponent;ILjavax/swing/InputMap;)V", 45);
		env->CallStaticVoidMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, replaceUIInputMap, 45), JComponent0, Int1, InputMap2);
	}

	void replaceUIActionMap(JNIEnv *env, jobject JComponent0, jobject ActionMap1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, replaceUIActionMap, "(Ljavax/swing/JComponent;Ljavax/swing/ActionMap;)V", 46);
		env->CallStaticVoidMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, replaceUIActionMap, 46), JComponent0, ActionMap1);
	}

	jobject getUIInputMap(JNIEnv *env, jobject JComponent0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, getUIInputMap, "(Ljavax/swing/JComponent;I)Ljavax/swing/InputMap;", 47);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, getUIInputMap, 47), JComponent0, Int1);
	}

	jobject getUIActionMap(JNIEnv *env, jobject JComponent0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, getUIActionMap, "(Ljavax/swing/JComponent;)Ljavax/swing/ActionMap;", 48);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, getUIActionMap, 48), JComponent0);
	}

	jobject getSharedOwnerFrame(JNIEnv *env){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, getSharedOwnerFrame, "()Ljava/awt/Frame;", 49);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, getSharedOwnerFrame, 49));
	}

	jobject getSharedOwnerFrameShutdownListener(JNIEnv *env){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, getSharedOwnerFrameShutdownListener, "()Ljava/awt/event/WindowListener;", 50);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, getSharedOwnerFrameShutdownListener, 50));
	}

	jobject loadSystemClass(JNIEnv *env, jobject String0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, loadSystemClass, "(Ljava/lang/String;)Ljava/lang/Class;", 51);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, loadSystemClass, 51), String0);
	}

	jboolean isLeftToRight(JNIEnv *env, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, isLeftToRight, "(Ljava/awt/Component;)Z", 52);
		return (jboolean)env->CallStaticBooleanMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, isLeftToRight, 52), Component0);
	}

	jboolean doesIconReferenceImage(JNIEnv *env, jobject Icon0, jobject Image1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, doesIconReferenceImage, "(Ljavax/swing/Icon;Ljava/awt/Image;)Z", 53);
		return (jboolean)env->CallStaticBooleanMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, doesIconReferenceImage, 53), Icon0, Image1);
	}

	jint findDisplayedMnemonicIndex(JNIEnv *env, jobject String0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, findDisplayedMnemonicIndex, "(Ljava/lang/String;I)I", 54);
		return (jint)env->CallStaticIntMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, findDisplayedMnemonicIndex, 54), String0, Int1);
	}

	jobject calculateInnerArea(JNIEnv *env, jobject JComponent0, jobject Rectangle1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(SwingUtilities), "javax/swing/SwingUtilities");
		INIT_CACHE_STATIC_METHOD(env, SwingUtilities, calculateInnerArea, "(Ljavax/swing/JComponent;Ljava/awt/Rectangle;)Ljava/awt/Rectangle;", 55);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(SwingUtilities), JAVA_METHOD(SwingUtilities, calculateInnerArea, 55), JComponent0, Rectangle1);
	}

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		INIT_CACHE_CLASS(jni_env, SwingUtilities, "javax/swing/SwingUtilities");
	}

	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		DELETE_CACHED_CLASS_REF(jni_env, SwingUtilities);
	}

}
