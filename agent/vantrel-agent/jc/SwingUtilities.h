#ifndef SWINGUTILITIES_H
#define SWINGUTILITIES_H

#include "../JCBase.h"
#include "../JavaInc.h"
#include  <assert.h>

namespace NSSwingUtilities{

	extern CACHE_JAVA_CLASS(SwingUtilities);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, paintComponent, 0);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, paintComponent, 1);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, processKeyBindings, 2);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, getRootPane, 3);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, getRoot, 4);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, getWindowAncestor, 5);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, computeIntersection, 6);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, appContextGet, 7);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, appContextPut, 8);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, notifyAction, 9);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, isValidKeyEventForKeyBindings, 10);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, installSwingDropTargetAsNecessary, 11);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, isEventDispatchThread, 12);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, invokeLater, 13);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, getAccessibleAt, 14);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, getAccessibleChildrenCount, 15);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, getAccessibleChild, 16);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, getAccessibleIndexInParent, 17);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, getAccessibleStateSet, 18);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, appContextRemove, 19);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, isRectangleContainingRectangle, 20);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, getLocalBounds, 21);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, convertScreenLocationToParent, 22);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, convertPoint, 23);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, convertPoint, 24);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, convertRectangle, 25);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, getAncestorOfClass, 26);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, getAncestorNamed, 27);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, getDeepestComponentAt, 28);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, convertMouseEvent, 29);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, convertPointToScreen, 30);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, convertPointFromScreen, 31);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, windowForComponent, 32);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, isDescendingFrom, 33);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, computeUnion, 34);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, computeDifference, 35);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, isLeftMouseButton, 36);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, isMiddleMouseButton, 37);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, isRightMouseButton, 38);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, computeStringWidth, 39);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, layoutCompoundLabel, 40);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, layoutCompoundLabel, 41);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, updateComponentTreeUI, 42);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, invokeAndWait, 43);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, findFocusOwner, 44);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, replaceUIInputMap, 45);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, replaceUIActionMap, 46);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, getUIInputMap, 47);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, getUIActionMap, 48);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, getSharedOwnerFrame, 49);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, getSharedOwnerFrameShutdownListener, 50);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, loadSystemClass, 51);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, isLeftToRight, 52);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, doesIconReferenceImage, 53);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, findDisplayedMnemonicIndex, 54);

	extern CACHE_JAVA_STATIC_METHOD(SwingUtilities, calculateInnerArea, 55);

	void paintComponent(JNIEnv *env, jobject Graphics0, jobject Component1, jobject Container2, jobject Rectangle3); //0 (Ljava/awt/Graphics;Ljava/awt/Component;Ljava/awt/Container;Ljava/awt/Rectangle;)V

	void paintComponent(JNIEnv *env, jobject Graphics0, jobject Component1, jobject Container2, jint Int3, jint Int4, jint Int5, jint Int6); //1 (Ljava/awt/Graphics;Ljava/awt/Component;Ljava/awt/Container;IIII)V

	jboolean processKeyBindings(JNIEnv *env, jobject KeyEvent0); //2 (Ljava/awt/event/KeyEvent;)Z

	jobject getRootPane(JNIEnv *env, jobject Component0); //3 (Ljava/awt/Component;)Ljavax/swing/JRootPane;

	jobject getRoot(JNIEnv *env, jobject Component0); //4 (Ljava/awt/Component;)Ljava/awt/Component;

	jobject getWindowAncestor(JNIEnv *env, jobject Component0); //5 (Ljava/awt/Component;)Ljava/awt/Window;

	jobject computeIntersection(JNIEnv *env, jint Int0, jint Int1, jint Int2, jint Int3, jobject Rectangle4); //6 (IIIILjava/awt/Rectangle;)Ljava/awt/Rectangle;

	jobject appContextGet(JNIEnv *env, jobject Object0); //7 (Ljava/lang/Object;)Ljava/lang/Object;

	void appContextPut(JNIEnv *env, jobject Object0, jobject Object1); //8 (Ljava/lang/Object;Ljava/lang/Object;)V

	jboolean notifyAction(JNIEnv *env, jobject Action0, jobject KeyStroke1, jobject KeyEvent2, jobject Object3, jint Int4); //9 (Ljavax/swing/Action;Ljavax/swing/KeyStroke;Ljava/awt/event/KeyEvent;Ljava/lang/Object;I)Z

	jboolean isValidKeyEventForKeyBindings(JNIEnv *env, jobject KeyEvent0); //10 (Ljava/awt/event/KeyEvent;)Z

	void installSwingDropTargetAsNecessary(JNIEnv *env, jobject Component0, jobject TransferHandler1); //11 (Ljava/awt/Component;Ljavax/swing/TransferHandler;)V

	jboolean isEventDispatchThread(JNIEnv *env); //12 ()Z

	void invokeLater(JNIEnv *env, jobject Runnable0); //13 (Ljava/lang/Runnable;)V

	jobject getAccessibleAt(JNIEnv *env, jobject Component0, jobject Point1); //14 (Ljava/awt/Component;Ljava/awt/Point;)Ljavax/accessibility/Accessible;

	jint getAccessibleChildrenCount(JNIEnv *env, jobject Component0); //15 (Ljava/awt/Component;)I

	jobject getAccessibleChild(JNIEnv *env, jobject Component0, jint Int1); //16 (Ljava/awt/Component;I)Ljavax/accessibility/Accessible;

	jint getAccessibleIndexInParent(JNIEnv *env, jobject Component0); //17 (Ljava/awt/Component;)I

	jobject getAccessibleStateSet(JNIEnv *env, jobject Component0); //18 (Ljava/awt/Component;)Ljavax/accessibility/AccessibleStateSet;

	void appContextRemove(JNIEnv *env, jobject Object0); //19 (Ljava/lang/Object;)V

	jboolean isRectangleContainingRectangle(JNIEnv *env, jobject Rectangle0, jobject Rectangle1); //20 (Ljava/awt/Rectangle;Ljava/awt/Rectangle;)Z

	jobject getLocalBounds(JNIEnv *env, jobject Component0); //21 (Ljava/awt/Component;)Ljava/awt/Rectangle;

	jobject convertScreenLocationToParent(JNIEnv *env, jobject Container0, jint Int1, jint Int2); //22 (Ljava/awt/Container;II)Ljava/awt/Point;

	jobject convertPoint(JNIEnv *env, jobject Component0, jobject Point1, jobject Component2); //23 (Ljava/awt/Component;Ljava/awt/Point;Ljava/awt/Component;)Ljava/awt/Point;

	jobject convertPoint(JNIEnv *env, jobject Component0, jint Int1, jint Int2, jobject Component3); //24 (Ljava/awt/Component;IILjava/awt/Component;)Ljava/awt/Point;

	jobject convertRectangle(JNIEnv *env, jobject Component0, jobject Rectangle1, jobject Component2); //25 (Ljava/awt/Component;Ljava/awt/Rectangle;Ljava/awt/Component;)Ljava/awt/Rectangle;

	jobject getAncestorOfClass(JNIEnv *env, jclass Class0, jobject Component1); //26 (Ljava/lang/Class;Ljava/awt/Component;)Ljava/awt/Container;

	jobject getAncestorNamed(JNIEnv *env, jobject String0, jobject Component1); //27 (Ljava/lang/String;Ljava/awt/Component;)Ljava/awt/Container;

	jobject getDeepestComponentAt(JNIEnv *env, jobject Component0, jint Int1, jint Int2); //28 (Ljava/awt/Component;II)Ljava/awt/Component;

	jobject convertMouseEvent(JNIEnv *env, jobject Component0, jobject MouseEvent1, jobject Component2); //29 (Ljava/awt/Component;Ljava/awt/event/MouseEvent;Ljava/awt/Component;)Ljava/awt/event/MouseEvent;

	void convertPointToScreen(JNIEnv *env, jobject Point0, jobject Component1); //30 (Ljava/awt/Point;Ljava/awt/Component;)V

	void convertPointFromScreen(JNIEnv *env, jobject Point0, jobject Component1); //31 (Ljava/awt/Point;Ljava/awt/Component;)V

	jobject windowForComponent(JNIEnv *env, jobject Component0); //32 (Ljava/awt/Component;)Ljava/awt/Window;

	jboolean isDescendingFrom(JNIEnv *env, jobject Component0, jobject Component1); //33 (Ljava/awt/Component;Ljava/awt/Component;)Z

	jobject computeUnion(JNIEnv *env, jint Int0, jint Int1, jint Int2, jint Int3, jobject Rectangle4); //34 (IIIILjava/awt/Rectangle;)Ljava/awt/Rectangle;

	jobject computeDifference(JNIEnv *env, jobject Rectangle0, jobject Rectangle1); //35 (Ljava/awt/Rectangle;Ljava/awt/Rectangle;)[Ljava/awt/Rectangle;

	jboolean isLeftMouseButton(JNIEnv *env, jobject MouseEvent0); //36 (Ljava/awt/event/MouseEvent;)Z

	jboolean isMiddleMouseButton(JNIEnv *env, jobject MouseEvent0); //37 (Ljava/awt/event/MouseEvent;)Z

	jboolean isRightMouseButton(JNIEnv *env, jobject MouseEvent0); //38 (Ljava/awt/event/MouseEvent;)Z

	jint computeStringWidth(JNIEnv *env, jobject FontMetrics0, jobject String1); //39 (Ljava/awt/FontMetrics;Ljava/lang/String;)I

	jobject layoutCompoundLabel(JNIEnv *env, jobject JComponent0, jobject FontMetrics1, jobject String2, jobject Icon3, jint Int4, jint Int5, jint Int6, jint Int7, jobject Rectangle8, jobject Rectangle9, jobject Rectangle10, jint Int11); //40 (Ljavax/swing/JComponent;Ljava/awt/FontMetrics;Ljava/lang/String;Ljavax/swing/Icon;IIIILjava/awt/Rectangle;Ljava/awt/Rectangle;Ljava/awt/Rectangle;I)Ljava/lang/String;

	jobject layoutCompoundLabel(JNIEnv *env, jobject FontMetrics0, jobject String1, jobject Icon2, jint Int3, jint Int4, jint Int5, jint Int6, jobject Rectangle7, jobject Rectangle8, jobject Rectangle9, jint Int10); //41 (Ljava/awt/FontMetrics;Ljava/lang/String;Ljavax/swing/Icon;IIIILjava/awt/Rectangle;Ljava/awt/Rectangle;Ljava/awt/Rectangle;I)Ljava/lang/String;

	void updateComponentTreeUI(JNIEnv *env, jobject Component0); //42 (Ljava/awt/Component;)V

	void invokeAndWait(JNIEnv *env, jobject Runnable0); //43 (Ljava/lang/Runnable;)V

	jobject findFocusOwner(JNIEnv *env, jobject Component0); //44 (Ljava/awt/Component;)Ljava/awt/Component;

	void replaceUIInputMap(JNIEnv *env, jobject JComponent0, jint Int1, jobject InputMap2); //45 (Ljavax/swing/JComponent;ILjavax/swing/InputMap;)V

	void replaceUIActionMap(JNIEnv *env, jobject JComponent0, jobject ActionMap1); //46 (Ljavax/swing/JComponent;Ljavax/swing/ActionMap;)V

	jobject getUIInputMap(JNIEnv *env, jobject JComponent0, jint Int1); //47 (Ljavax/swing/JComponent;I)Ljavax/swing/InputMap;

	jobject getUIActionMap(JNIEnv *env, jobject JComponent0); //48 (Ljavax/swing/JComponent;)Ljavax/swing/ActionMap;

	jobject getSharedOwnerFrame(JNIEnv *env); //49 ()Ljava/awt/Frame;

	jobject getSharedOwnerFrameShutdownListener(JNIEnv *env); //50 ()Ljava/awt/event/WindowListener;

	jobject loadSystemClass(JNIEnv *env, jobject String0); //51 (Ljava/lang/String;)Ljava/lang/Class;

	jboolean isLeftToRight(JNIEnv *env, jobject Component0); //52 (Ljava/awt/Component;)Z

	jboolean doesIconReferenceImage(JNIEnv *env, jobject Icon0, jobject Image1); //53 (Ljavax/swing/Icon;Ljava/awt/Image;)Z

	jint findDisplayedMnemonicIndex(JNIEnv *env, jobject String0, jint Int1); //54 (Ljava/lang/String;I)I

	jobject calculateInnerArea(JNIEnv *env, jobject JComponent0, jobject Rectangle1); //55 (Ljavax/swing/JComponent;Ljava/awt/Rectangle;)Ljava/awt/Rectangle;

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
}
#endif
