#ifndef CONTAINER_H
#define CONTAINER_H

#include "../JCBase.h"
#include "../JavaInc.h"
#include  <assert.h>

namespace NSContainer{

	extern CACHE_JAVA_CLASS(Container);

	extern CACHE_JAVA_FIELD(Container, layoutMgr);

	extern CACHE_JAVA_FIELD(Container, containerListener);

	extern CACHE_JAVA_FIELD(Container, listeningChildren);

	extern CACHE_JAVA_FIELD(Container, listeningBoundsChildren);

	extern CACHE_JAVA_FIELD(Container, descendantsCount);

	extern CACHE_JAVA_FIELD(Container, preserveBackgroundColor);

	extern CACHE_JAVA_STATIC_FIELD(Container, INCLUDE_SELF);

	extern CACHE_JAVA_STATIC_FIELD(Container, SEARCH_HEAVYWEIGHTS);

	extern CACHE_JAVA_FIELD(Container, modalComp);

	extern CACHE_JAVA_FIELD(Container, modalAppContext);

	extern CACHE_JAVA_STATIC_FIELD(Container, $assertionsDisabled);

	extern CACHE_JAVA_CONSTRUCTOR(Container, 0);

	extern CACHE_JAVA_METHOD(Container, add, 1);

	extern CACHE_JAVA_METHOD(Container, add, 2);

	extern CACHE_JAVA_METHOD(Container, add, 3);

	extern CACHE_JAVA_METHOD(Container, add, 4);

	extern CACHE_JAVA_METHOD(Container, add, 5);

	extern CACHE_JAVA_METHOD(Container, remove, 6);

	extern CACHE_JAVA_METHOD(Container, remove, 7);

	extern CACHE_JAVA_METHOD(Container, list, 8);

	extern CACHE_JAVA_METHOD(Container, list, 9);

	extern CACHE_JAVA_METHOD(Container, print, 10);

	extern CACHE_JAVA_METHOD(Container, removeAll, 11);

	extern CACHE_JAVA_METHOD(Container, update, 12);

	extern CACHE_JAVA_METHOD(Container, initializeFocusTraversalKeys, 13);

	extern CACHE_JAVA_METHOD(Container, getComponentCount, 14);

	extern CACHE_JAVA_METHOD(Container, countComponents, 15);

	extern CACHE_JAVA_METHOD(Container, getComponent, 16);

	extern CACHE_JAVA_METHOD(Container, getComponents, 17);

	extern CACHE_JAVA_METHOD(Container, getComponents_NoClientCode, 18);

	extern CACHE_JAVA_METHOD(Container, getInsets, 19);

	extern CACHE_JAVA_METHOD(Container, insets, 20);

	extern CACHE_JAVA_METHOD(Container, canContainFocusOwner, 21);

	extern CACHE_JAVA_METHOD(Container, hasHeavyweightDescendants, 22);

	extern CACHE_JAVA_METHOD(Container, hasLightweightDescendants, 23);

	extern CACHE_JAVA_METHOD(Container, getHeavyweightContainer, 24);

	extern CACHE_JAVA_METHOD(Container, setComponentZOrder, 25);

	extern CACHE_JAVA_METHOD(Container, getComponentZOrder, 26);

	extern CACHE_JAVA_METHOD(Container, addImpl, 27);

	extern CACHE_JAVA_METHOD(Container, checkGD, 28);

	extern CACHE_JAVA_METHOD(Container, numListening, 29);

	extern CACHE_JAVA_METHOD(Container, adjustListeningChildren, 30);

	extern CACHE_JAVA_METHOD(Container, adjustDescendants, 31);

	extern CACHE_JAVA_METHOD(Container, adjustDecendantsOnParent, 32);

	extern CACHE_JAVA_METHOD(Container, countHierarchyMembers, 33);

	extern CACHE_JAVA_METHOD(Container, createHierarchyEvents, 34);

	extern CACHE_JAVA_METHOD(Container, createChildHierarchyEvents, 35);

	extern CACHE_JAVA_METHOD(Container, getLayout, 36);

	extern CACHE_JAVA_METHOD(Container, setLayout, 37);

	extern CACHE_JAVA_METHOD(Container, doLayout, 38);

	extern CACHE_JAVA_METHOD(Container, layout, 39);

	extern CACHE_JAVA_METHOD(Container, invalidate, 40);

	extern CACHE_JAVA_METHOD(Container, validate, 41);

	extern CACHE_JAVA_METHOD(Container, validateTree, 42);

	extern CACHE_JAVA_METHOD(Container, invalidateTree, 43);

	extern CACHE_JAVA_METHOD(Container, setFont, 44);

	extern CACHE_JAVA_METHOD(Container, getPreferredSize, 45);

	extern CACHE_JAVA_METHOD(Container, preferredSize, 46);

	extern CACHE_JAVA_METHOD(Container, getMinimumSize, 47);

	extern CACHE_JAVA_METHOD(Container, minimumSize, 48);

	extern CACHE_JAVA_METHOD(Container, getMaximumSize, 49);

	extern CACHE_JAVA_METHOD(Container, getAlignmentX, 50);

	extern CACHE_JAVA_METHOD(Container, getAlignmentY, 51);

	extern CACHE_JAVA_METHOD(Container, paint, 52);

	extern CACHE_JAVA_METHOD(Container, paintComponents, 53);

	extern CACHE_JAVA_METHOD(Container, lightweightPaint, 54);

	extern CACHE_JAVA_METHOD(Container, paintHeavyweightComponents, 55);

	extern CACHE_JAVA_METHOD(Container, printComponents, 56);

	extern CACHE_JAVA_METHOD(Container, lightweightPrint, 57);

	extern CACHE_JAVA_METHOD(Container, printHeavyweightComponents, 58);

	extern CACHE_JAVA_METHOD(Container, addContainerListener, 59);

	extern CACHE_JAVA_METHOD(Container, removeContainerListener, 60);

	extern CACHE_JAVA_METHOD(Container, getContainerListeners, 61);

	extern CACHE_JAVA_METHOD(Container, getListeners, 62);

	extern CACHE_JAVA_METHOD(Container, eventEnabled, 63);

	extern CACHE_JAVA_METHOD(Container, processEvent, 64);

	extern CACHE_JAVA_METHOD(Container, processContainerEvent, 65);

	extern CACHE_JAVA_METHOD(Container, dispatchEventImpl, 66);

	extern CACHE_JAVA_METHOD(Container, dispatchEventToSelf, 67);

	extern CACHE_JAVA_METHOD(Container, getMouseEventTarget, 68);

	extern CACHE_JAVA_METHOD(Container, getDropTargetEventTarget, 69);

	extern CACHE_JAVA_METHOD(Container, proxyEnableEvents, 70);

	extern CACHE_JAVA_METHOD(Container, deliverEvent, 71);

	extern CACHE_JAVA_METHOD(Container, getComponentAt, 72);

	extern CACHE_JAVA_METHOD(Container, getComponentAt, 73);

	extern CACHE_JAVA_METHOD(Container, locate, 74);

	extern CACHE_JAVA_METHOD(Container, getMousePosition, 75);

	extern CACHE_JAVA_METHOD(Container, isSameOrAncestorOf, 76);

	extern CACHE_JAVA_METHOD(Container, findComponentAt, 77);

	extern CACHE_JAVA_METHOD(Container, findComponentAt, 78);

	extern CACHE_JAVA_METHOD(Container, findComponentAt, 79);

	extern CACHE_JAVA_METHOD(Container, findComponentAtImpl, 80);

	extern CACHE_JAVA_METHOD(Container, addNotify, 81);

	extern CACHE_JAVA_METHOD(Container, removeNotify, 82);

	extern CACHE_JAVA_METHOD(Container, isAncestorOf, 83);

	extern CACHE_JAVA_METHOD(Container, paramString, 84);

	extern CACHE_JAVA_METHOD(Container, setFocusTraversalKeys, 85);

	extern CACHE_JAVA_METHOD(Container, getFocusTraversalKeys, 86);

	extern CACHE_JAVA_METHOD(Container, areFocusTraversalKeysSet, 87);

	extern CACHE_JAVA_METHOD(Container, isFocusCycleRoot, 88);

	extern CACHE_JAVA_METHOD(Container, isFocusCycleRoot, 89);

	extern CACHE_JAVA_METHOD(Container, containsFocus, 90);

	extern CACHE_JAVA_METHOD(Container, isParentOf, 91);

	extern CACHE_JAVA_METHOD(Container, clearMostRecentFocusOwnerOnHide, 92);

	extern CACHE_JAVA_METHOD(Container, clearCurrentFocusCycleRootOnHide, 93);

	extern CACHE_JAVA_METHOD(Container, nextFocusHelper, 94);

	extern CACHE_JAVA_METHOD(Container, transferFocusBackward, 95);

	extern CACHE_JAVA_METHOD(Container, setFocusTraversalPolicy, 96);

	extern CACHE_JAVA_METHOD(Container, getFocusTraversalPolicy, 97);

	extern CACHE_JAVA_METHOD(Container, isFocusTraversalPolicySet, 98);

	extern CACHE_JAVA_METHOD(Container, setFocusCycleRoot, 99);

	extern CACHE_JAVA_METHOD(Container, setFocusTraversalPolicyProvider, 100);

	extern CACHE_JAVA_METHOD(Container, isFocusTraversalPolicyProvider, 101);

	extern CACHE_JAVA_METHOD(Container, transferFocusDownCycle, 102);

	extern CACHE_JAVA_METHOD(Container, preProcessKeyEvent, 103);

	extern CACHE_JAVA_METHOD(Container, postProcessKeyEvent, 104);

	extern CACHE_JAVA_METHOD(Container, postsOldMouseEvents, 105);

	extern CACHE_JAVA_METHOD(Container, applyComponentOrientation, 106);

	extern CACHE_JAVA_METHOD(Container, addPropertyChangeListener, 107);

	extern CACHE_JAVA_METHOD(Container, addPropertyChangeListener, 108);

	extern CACHE_JAVA_METHOD(Container, getAccessibleAt, 109);

	extern CACHE_JAVA_METHOD(Container, getAccessibleChildrenCount, 110);

	extern CACHE_JAVA_METHOD(Container, getAccessibleChild, 111);

	extern CACHE_JAVA_METHOD(Container, increaseComponentCount, 112);

	extern CACHE_JAVA_METHOD(Container, decreaseComponentCount, 113);

	extern CACHE_JAVA_METHOD(Container, getOpaqueShape, 114);

	extern CACHE_JAVA_METHOD(Container, recursiveSubtractAndApplyShape, 115);

	extern CACHE_JAVA_METHOD(Container, recursiveSubtractAndApplyShape, 116);

	extern CACHE_JAVA_METHOD(Container, recursiveSubtractAndApplyShape, 117);

	extern CACHE_JAVA_METHOD(Container, recursiveApplyCurrentShape, 118);

	extern CACHE_JAVA_METHOD(Container, recursiveApplyCurrentShape, 119);

	extern CACHE_JAVA_METHOD(Container, recursiveApplyCurrentShape, 120);

	extern CACHE_JAVA_METHOD(Container, mixOnShowing, 121);

	extern CACHE_JAVA_METHOD(Container, mixOnReshaping, 122);

	extern CACHE_JAVA_METHOD(Container, mixOnZOrderChanging, 123);

	extern CACHE_JAVA_METHOD(Container, mixOnValidating, 124);

	jobject Container(JNIEnv *env); //0 ()V

	void add(JNIEnv *env, jobject _this, jobject Component0, jobject Object1, jint Int2); //1 (Ljava/awt/Component;Ljava/lang/Object;I)V

	jobject addWithComponentInt(JNIEnv *env, jobject _this, jobject Component0, jint Int1); //2 (Ljava/awt/Component;I)Ljava/awt/Component;

	jobject addWithStringComponent(JNIEnv *env, jobject _this, jobject String0, jobject Component1); //3 (Ljava/lang/String;Ljava/awt/Component;)Ljava/awt/Component;

	jobject add(JNIEnv *env, jobject _this, jobject Component0); //4 (Ljava/awt/Component;)Ljava/awt/Component;

	void add(JNIEnv *env, jobject _this, jobject Component0, jobject Object1); //5 (Ljava/awt/Component;Ljava/lang/Object;)V

	void removeWithInt(JNIEnv *env, jobject _this, jint Int0); //6 (I)V

	void remove(JNIEnv *env, jobject _this, jobject Component0); //7 (Ljava/awt/Component;)V

	void listWithPrintWriterInt(JNIEnv *env, jobject _this, jobject PrintWriter0, jint Int1); //8 (Ljava/io/PrintWriter;I)V

	void list(JNIEnv *env, jobject _this, jobject PrintStream0, jint Int1); //9 (Ljava/io/PrintStream;I)V

	void print(JNIEnv *env, jobject _this, jobject Graphics0); //10 (Ljava/awt/Graphics;)V

	void removeAll(JNIEnv *env, jobject _this); //11 ()V

	void update(JNIEnv *env, jobject _this, jobject Graphics0); //12 (Ljava/awt/Graphics;)V

	void initializeFocusTraversalKeys(JNIEnv *env, jobject _this); //13 ()V

	jint getComponentCount(JNIEnv *env, jobject _this); //14 ()I

	jint countComponents(JNIEnv *env, jobject _this); //15 ()I

	jobject getComponent(JNIEnv *env, jobject _this, jint Int0); //16 (I)Ljava/awt/Component;

	jobject getComponents(JNIEnv *env, jobject _this); //17 ()[Ljava/awt/Component;

	jobject getComponents_NoClientCode(JNIEnv *env, jobject _this); //18 ()[Ljava/awt/Component;

	jobject getInsets(JNIEnv *env, jobject _this); //19 ()Ljava/awt/Insets;

	jobject insets(JNIEnv *env, jobject _this); //20 ()Ljava/awt/Insets;

	jboolean canContainFocusOwner(JNIEnv *env, jobject _this, jobject Component0); //21 (Ljava/awt/Component;)Z

	jboolean hasHeavyweightDescendants(JNIEnv *env, jobject _this); //22 ()Z

	jboolean hasLightweightDescendants(JNIEnv *env, jobject _this); //23 ()Z

	jobject getHeavyweightContainer(JNIEnv *env, jobject _this); //24 ()Ljava/awt/Container;

	void setComponentZOrder(JNIEnv *env, jobject _this, jobject Component0, jint Int1); //25 (Ljava/awt/Component;I)V

	jint getComponentZOrder(JNIEnv *env, jobject _this, jobject Component0); //26 (Ljava/awt/Component;)I

	void addImpl(JNIEnv *env, jobject _this, jobject Component0, jobject Object1, jint Int2); //27 (Ljava/awt/Component;Ljava/lang/Object;I)V

	void checkGD(JNIEnv *env, jobject _this, jobject String0); //28 (Ljava/lang/String;)V

	jint numListening(JNIEnv *env, jobject _this, jlong Long0); //29 (J)I

	void adjustListeningChildren(JNIEnv *env, jobject _this, jlong Long0, jint Int1); //30 (JI)V

	void adjustDescendants(JNIEnv *env, jobject _this, jint Int0); //31 (I)V

	void adjustDecendantsOnParent(JNIEnv *env, jobject _this, jint Int0); //32 (I)V

	jint countHierarchyMembers(JNIEnv *env, jobject _this); //33 ()I

	jint createHierarchyEvents(JNIEnv *env, jobject _this, jint Int0, jobject Component1, jobject Container2, jlong Long3, jboolean Boolean4); //34 (ILjava/awt/Component;Ljava/awt/Container;JZ)I

	void createChildHierarchyEvents(JNIEnv *env, jobject _this, jint Int0, jlong Long1, jboolean Boolean2); //35 (IJZ)V

	jobject getLayout(JNIEnv *env, jobject _this); //36 ()Ljava/awt/LayoutManager;

	void setLayout(JNIEnv *env, jobject _this, jobject LayoutManager0); //37 (Ljava/awt/LayoutManager;)V

	void doLayout(JNIEnv *env, jobject _this); //38 ()V

	void layout(JNIEnv *env, jobject _this); //39 ()V

	void invalidate(JNIEnv *env, jobject _this); //40 ()V

	void validate(JNIEnv *env, jobject _this); //41 ()V

	void validateTree(JNIEnv *env, jobject _this); //42 ()V

	void invalidateTree(JNIEnv *env, jobject _this); //43 ()V

	void setFont(JNIEnv *env, jobject _this, jobject Font0); //44 (Ljava/awt/Font;)V

	jobject getPreferredSize(JNIEnv *env, jobject _this); //45 ()Ljava/awt/Dimension;

	jobject preferredSize(JNIEnv *env, jobject _this); //46 ()Ljava/awt/Dimension;

	jobject getMinimumSize(JNIEnv *env, jobject _this); //47 ()Ljava/awt/Dimension;

	jobject minimumSize(JNIEnv *env, jobject _this); //48 ()Ljava/awt/Dimension;

	jobject getMaximumSize(JNIEnv *env, jobject _this); //49 ()Ljava/awt/Dimension;

	jfloat getAlignmentX(JNIEnv *env, jobject _this); //50 ()F

	jfloat getAlignmentY(JNIEnv *env, jobject _this); //51 ()F

	void paint(JNIEnv *env, jobject _this, jobject Graphics0); //52 (Ljava/awt/Graphics;)V

	void paintComponents(JNIEnv *env, jobject _this, jobject Graphics0); //53 (Ljava/awt/Graphics;)V

	void lightweightPaint(JNIEnv *env, jobject _this, jobject Graphics0); //54 (Ljava/awt/Graphics;)V

	void paintHeavyweightComponents(JNIEnv *env, jobject _this, jobject Graphics0); //55 (Ljava/awt/Graphics;)V

	void printComponents(JNIEnv *env, jobject _this, jobject Graphics0); //56 (Ljava/awt/Graphics;)V

	void lightweightPrint(JNIEnv *env, jobject _this, jobject Graphics0); //57 (Ljava/awt/Graphics;)V

	void printHeavyweightComponents(JNIEnv *env, jobject _this, jobject Graphics0); //58 (Ljava/awt/Graphics;)V

	void addContainerListener(JNIEnv *env, jobject _this, jobject ContainerListener0); //59 (Ljava/awt/event/ContainerListener;)V

	void removeContainerListener(JNIEnv *env, jobject _this, jobject ContainerListener0); //60 (Ljava/awt/event/ContainerListener;)V

	jobject getContainerListeners(JNIEnv *env, jobject _this); //61 ()[Ljava/awt/event/ContainerListener;

	jobject getListeners(JNIEnv *env, jobject _this, jclass Class0); //62 (Ljava/lang/Class;)[Ljava/util/EventListener;

	jboolean eventEnabled(JNIEnv *env, jobject _this, jobject AWTEvent0); //63 (Ljava/awt/AWTEvent;)Z

	void processEvent(JNIEnv *env, jobject _this, jobject AWTEvent0); //64 (Ljava/awt/AWTEvent;)V

	void processContainerEvent(JNIEnv *env, jobject _this, jobject ContainerEvent0); //65 (Ljava/awt/event/ContainerEvent;)V

	void dispatchEventImpl(JNIEnv *env, jobject _this, jobject AWTEvent0); //66 (Ljava/awt/AWTEvent;)V

	void dispatchEventToSelf(JNIEnv *env, jobject _this, jobject AWTEvent0); //67 (Ljava/awt/AWTEvent;)V

	jobject getMouseEventTarget(JNIEnv *env, jobject _this, jint Int0, jint Int1, jboolean Boolean2); //68 (IIZ)Ljava/awt/Component;

	jobject getDropTargetEventTarget(JNIEnv *env, jobject _this, jint Int0, jint Int1, jboolean Boolean2); //69 (IIZ)Ljava/awt/Component;

	void proxyEnableEvents(JNIEnv *env, jobject _this, jlong Long0); //70 (J)V

	void deliverEvent(JNIEnv *env, jobject _this, jobject Event0); //71 (Ljava/awt/Event;)V

	jobject getComponentAt(JNIEnv *env, jobject _this, jint Int0, jint Int1); //72 (II)Ljava/awt/Component;

	jobject getComponentAt(JNIEnv *env, jobject _this, jobject Point0); //73 (Ljava/awt/Point;)Ljava/awt/Component;

	jobject locate(JNIEnv *env, jobject _this, jint Int0, jint Int1); //74 (II)Ljava/awt/Component;

	jobject getMousePosition(JNIEnv *env, jobject _this, jboolean Boolean0); //75 (Z)Ljava/awt/Point;

	jboolean isSameOrAncestorOf(JNIEnv *env, jobject _this, jobject Component0, jboolean Boolean1); //76 (Ljava/awt/Component;Z)Z

	jobject findComponentAt(JNIEnv *env, jobject _this, jobject Point0); //77 (Ljava/awt/Point;)Ljava/awt/Component;

	jobject findComponentAt(JNIEnv *env, jobject _this, jint Int0, jint Int1, jboolean Boolean2); //78 (IIZ)Ljava/awt/Component;

	jobject findComponentAt(JNIEnv *env, jobject _this, jint Int0, jint Int1); //79 (II)Ljava/awt/Component;

	jobject findComponentAtImpl(JNIEnv *env, jobject _this, jint Int0, jint Int1, jboolean Boolean2); //80 (IIZ)Ljava/awt/Component;

	void addNotify(JNIEnv *env, jobject _this); //81 ()V

	void removeNotify(JNIEnv *env, jobject _this); //82 ()V

	jboolean isAncestorOf(JNIEnv *env, jobject _this, jobject Component0); //83 (Ljava/awt/Component;)Z

	jobject paramString(JNIEnv *env, jobject _this); //84 ()Ljava/lang/String;

	void setFocusTraversalKeys(JNIEnv *env, jobject _this, jint Int0, jobject Set1); //85 (ILjava/util/Set;)V

	jobject getFocusTraversalKeys(JNIEnv *env, jobject _this, jint Int0); //86 (I)Ljava/util/Set;

	jboolean areFocusTraversalKeysSet(JNIEnv *env, jobject _this, jint Int0); //87 (I)Z

	jboolean isFocusCycleRoot(JNIEnv *env, jobject _this, jobject Container0); //88 (Ljava/awt/Container;)Z

	jboolean isFocusCycleRoot(JNIEnv *env, jobject _this); //89 ()Z

	jboolean containsFocus(JNIEnv *env, jobject _this); //90 ()Z

	jboolean isParentOf(JNIEnv *env, jobject _this, jobject Component0); //91 (Ljava/awt/Component;)Z

	void clearMostRecentFocusOwnerOnHide(JNIEnv *env, jobject _this); //92 ()V

	void clearCurrentFocusCycleRootOnHide(JNIEnv *env, jobject _this); //93 ()V

	jboolean nextFocusHelper(JNIEnv *env, jobject _this); //94 ()Z

	void transferFocusBackward(JNIEnv *env, jobject _this); //95 ()V

	void setFocusTraversalPolicy(JNIEnv *env, jobject _this, jobject FocusTraversalPolicy0); //96 (Ljava/awt/FocusTraversalPolicy;)V

	jobject getFocusTraversalPolicy(JNIEnv *env, jobject _this); //97 ()Ljava/awt/FocusTraversalPolicy;

	jboolean isFocusTraversalPolicySet(JNIEnv *env, jobject _this); //98 ()Z

	void setFocusCycleRoot(JNIEnv *env, jobject _this, jboolean Boolean0); //99 (Z)V

	void setFocusTraversalPolicyProvider(JNIEnv *env, jobject _this, jboolean Boolean0); //100 (Z)V

	jboolean isFocusTraversalPolicyProvider(JNIEnv *env, jobject _this); //101 ()Z

	void transferFocusDownCycle(JNIEnv *env, jobject _this); //102 ()V

	void preProcessKeyEvent(JNIEnv *env, jobject _this, jobject KeyEvent0); //103 (Ljava/awt/event/KeyEvent;)V

	void postProcessKeyEvent(JNIEnv *env, jobject _this, jobject KeyEvent0); //104 (Ljava/awt/event/KeyEvent;)V

	jboolean postsOldMouseEvents(JNIEnv *env, jobject _this); //105 ()Z

	void applyComponentOrientation(JNIEnv *env, jobject _this, jobject ComponentOrientation0); //106 (Ljava/awt/ComponentOrientation;)V

	void addPropertyChangeListener(JNIEnv *env, jobject _this, jobject String0, jobject PropertyChangeListener1); //107 (Ljava/lang/String;Ljava/beans/PropertyChangeListener;)V

	void addPropertyChangeListener(JNIEnv *env, jobject _this, jobject PropertyChangeListener0); //108 (Ljava/beans/PropertyChangeListener;)V

	jobject getAccessibleAt(JNIEnv *env, jobject _this, jobject Point0); //109 (Ljava/awt/Point;)Ljavax/accessibility/Accessible;

	jint getAccessibleChildrenCount(JNIEnv *env, jobject _this); //110 ()I

	jobject getAccessibleChild(JNIEnv *env, jobject _this, jint Int0); //111 (I)Ljavax/accessibility/Accessible;

	void increaseComponentCount(JNIEnv *env, jobject _this, jobject Component0); //112 (Ljava/awt/Component;)V

	void decreaseComponentCount(JNIEnv *env, jobject _this, jobject Component0); //113 (Ljava/awt/Component;)V

	jobject getOpaqueShape(JNIEnv *env, jobject _this); //114 ()Lsun/java2d/pipe/Region;

	void recursiveSubtractAndApplyShape(JNIEnv *env, jobject _this, jobject Region0, jint Int1, jint Int2); //115 (Lsun/java2d/pipe/Region;II)V

	void recursiveSubtractAndApplyShape(JNIEnv *env, jobject _this, jobject Region0, jint Int1); //116 (Lsun/java2d/pipe/Region;I)V

	void recursiveSubtractAndApplyShape(JNIEnv *env, jobject _this, jobject Region0); //117 (Lsun/java2d/pipe/Region;)V

	void recursiveApplyCurrentShape(JNIEnv *env, jobject _this); //118 ()V

	void recursiveApplyCurrentShape(JNIEnv *env, jobject _this, jint Int0, jint Int1); //119 (II)V

	void recursiveApplyCurrentShape(JNIEnv *env, jobject _this, jint Int0); //120 (I)V

	void mixOnShowing(JNIEnv *env, jobject _this); //121 ()V

	void mixOnReshaping(JNIEnv *env, jobject _this); //122 ()V

	void mixOnZOrderChanging(JNIEnv *env, jobject _this, jint Int0, jint Int1); //123 (II)V

	void mixOnValidating(JNIEnv *env, jobject _this); //124 ()V

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
}
#endif
