#include "Container.h"
#include "../common.h"
#include  <assert.h>

namespace NSContainer{

	CACHE_JAVA_CLASS(Container) = NULL;

	//fields(11)

	CACHE_JAVA_FIELD(Container, layoutMgr) = NULL;

	CACHE_JAVA_FIELD(Container, containerListener) = NULL;

	CACHE_JAVA_FIELD(Container, listeningChildren) = NULL;

	CACHE_JAVA_FIELD(Container, listeningBoundsChildren) = NULL;

	CACHE_JAVA_FIELD(Container, descendantsCount) = NULL;

	CACHE_JAVA_FIELD(Container, preserveBackgroundColor) = NULL;

	CACHE_JAVA_STATIC_FIELD(Container, INCLUDE_SELF) = NULL;

	CACHE_JAVA_STATIC_FIELD(Container, SEARCH_HEAVYWEIGHTS) = NULL;

	CACHE_JAVA_FIELD(Container, modalComp) = NULL;

	CACHE_JAVA_FIELD(Container, modalAppContext) = NULL;

	CACHE_JAVA_STATIC_FIELD(Container, $assertionsDisabled) = NULL;

	//methods(125)

	CACHE_JAVA_CONSTRUCTOR(Container, 0) = NULL;

	CACHE_JAVA_METHOD(Container, add, 1) = NULL;

	CACHE_JAVA_METHOD(Container, add, 2) = NULL;

	CACHE_JAVA_METHOD(Container, add, 3) = NULL;

	CACHE_JAVA_METHOD(Container, add, 4) = NULL;

	CACHE_JAVA_METHOD(Container, add, 5) = NULL;

	CACHE_JAVA_METHOD(Container, remove, 6) = NULL;

	CACHE_JAVA_METHOD(Container, remove, 7) = NULL;

	CACHE_JAVA_METHOD(Container, list, 8) = NULL;

	CACHE_JAVA_METHOD(Container, list, 9) = NULL;

	CACHE_JAVA_METHOD(Container, print, 10) = NULL;

	CACHE_JAVA_METHOD(Container, removeAll, 11) = NULL;

	CACHE_JAVA_METHOD(Container, update, 12) = NULL;

	CACHE_JAVA_METHOD(Container, initializeFocusTraversalKeys, 13) = NULL;

	CACHE_JAVA_METHOD(Container, getComponentCount, 14) = NULL;

	CACHE_JAVA_METHOD(Container, countComponents, 15) = NULL;

	CACHE_JAVA_METHOD(Container, getComponent, 16) = NULL;

	CACHE_JAVA_METHOD(Container, getComponents, 17) = NULL;

	CACHE_JAVA_METHOD(Container, getComponents_NoClientCode, 18) = NULL;

	CACHE_JAVA_METHOD(Container, getInsets, 19) = NULL;

	CACHE_JAVA_METHOD(Container, insets, 20) = NULL;

	CACHE_JAVA_METHOD(Container, canContainFocusOwner, 21) = NULL;

	CACHE_JAVA_METHOD(Container, hasHeavyweightDescendants, 22) = NULL;

	CACHE_JAVA_METHOD(Container, hasLightweightDescendants, 23) = NULL;

	CACHE_JAVA_METHOD(Container, getHeavyweightContainer, 24) = NULL;

	CACHE_JAVA_METHOD(Container, setComponentZOrder, 25) = NULL;

	CACHE_JAVA_METHOD(Container, getComponentZOrder, 26) = NULL;

	CACHE_JAVA_METHOD(Container, addImpl, 27) = NULL;

	CACHE_JAVA_METHOD(Container, checkGD, 28) = NULL;

	CACHE_JAVA_METHOD(Container, numListening, 29) = NULL;

	CACHE_JAVA_METHOD(Container, adjustListeningChildren, 30) = NULL;

	CACHE_JAVA_METHOD(Container, adjustDescendants, 31) = NULL;

	CACHE_JAVA_METHOD(Container, adjustDecendantsOnParent, 32) = NULL;

	CACHE_JAVA_METHOD(Container, countHierarchyMembers, 33) = NULL;

	CACHE_JAVA_METHOD(Container, createHierarchyEvents, 34) = NULL;

	CACHE_JAVA_METHOD(Container, createChildHierarchyEvents, 35) = NULL;

	CACHE_JAVA_METHOD(Container, getLayout, 36) = NULL;

	CACHE_JAVA_METHOD(Container, setLayout, 37) = NULL;

	CACHE_JAVA_METHOD(Container, doLayout, 38) = NULL;

	CACHE_JAVA_METHOD(Container, layout, 39) = NULL;

	CACHE_JAVA_METHOD(Container, invalidate, 40) = NULL;

	CACHE_JAVA_METHOD(Container, validate, 41) = NULL;

	CACHE_JAVA_METHOD(Container, validateTree, 42) = NULL;

	CACHE_JAVA_METHOD(Container, invalidateTree, 43) = NULL;

	CACHE_JAVA_METHOD(Container, setFont, 44) = NULL;

	CACHE_JAVA_METHOD(Container, getPreferredSize, 45) = NULL;

	CACHE_JAVA_METHOD(Container, preferredSize, 46) = NULL;

	CACHE_JAVA_METHOD(Container, getMinimumSize, 47) = NULL;

	CACHE_JAVA_METHOD(Container, minimumSize, 48) = NULL;

	CACHE_JAVA_METHOD(Container, getMaximumSize, 49) = NULL;

	CACHE_JAVA_METHOD(Container, getAlignmentX, 50) = NULL;

	CACHE_JAVA_METHOD(Container, getAlignmentY, 51) = NULL;

	CACHE_JAVA_METHOD(Container, paint, 52) = NULL;

	CACHE_JAVA_METHOD(Container, paintComponents, 53) = NULL;

	CACHE_JAVA_METHOD(Container, lightweightPaint, 54) = NULL;

	CACHE_JAVA_METHOD(Container, paintHeavyweightComponents, 55) = NULL;

	CACHE_JAVA_METHOD(Container, printComponents, 56) = NULL;

	CACHE_JAVA_METHOD(Container, lightweightPrint, 57) = NULL;

	CACHE_JAVA_METHOD(Container, printHeavyweightComponents, 58) = NULL;

	CACHE_JAVA_METHOD(Container, addContainerListener, 59) = NULL;

	CACHE_JAVA_METHOD(Container, removeContainerListener, 60) = NULL;

	CACHE_JAVA_METHOD(Container, getContainerListeners, 61) = NULL;

	CACHE_JAVA_METHOD(Container, getListeners, 62) = NULL;

	CACHE_JAVA_METHOD(Container, eventEnabled, 63) = NULL;

	CACHE_JAVA_METHOD(Container, processEvent, 64) = NULL;

	CACHE_JAVA_METHOD(Container, processContainerEvent, 65) = NULL;

	CACHE_JAVA_METHOD(Container, dispatchEventImpl, 66) = NULL;

	CACHE_JAVA_METHOD(Container, dispatchEventToSelf, 67) = NULL;

	CACHE_JAVA_METHOD(Container, getMouseEventTarget, 68) = NULL;

	CACHE_JAVA_METHOD(Container, getDropTargetEventTarget, 69) = NULL;

	CACHE_JAVA_METHOD(Container, proxyEnableEvents, 70) = NULL;

	CACHE_JAVA_METHOD(Container, deliverEvent, 71) = NULL;

	CACHE_JAVA_METHOD(Container, getComponentAt, 72) = NULL;

	CACHE_JAVA_METHOD(Container, getComponentAt, 73) = NULL;

	CACHE_JAVA_METHOD(Container, locate, 74) = NULL;

	CACHE_JAVA_METHOD(Container, getMousePosition, 75) = NULL;

	CACHE_JAVA_METHOD(Container, isSameOrAncestorOf, 76) = NULL;

	CACHE_JAVA_METHOD(Container, findComponentAt, 77) = NULL;

	CACHE_JAVA_METHOD(Container, findComponentAt, 78) = NULL;

	CACHE_JAVA_METHOD(Container, findComponentAt, 79) = NULL;

	CACHE_JAVA_METHOD(Container, findComponentAtImpl, 80) = NULL;

	CACHE_JAVA_METHOD(Container, addNotify, 81) = NULL;

	CACHE_JAVA_METHOD(Container, removeNotify, 82) = NULL;

	CACHE_JAVA_METHOD(Container, isAncestorOf, 83) = NULL;

	CACHE_JAVA_METHOD(Container, paramString, 84) = NULL;

	CACHE_JAVA_METHOD(Container, setFocusTraversalKeys, 85) = NULL;

	CACHE_JAVA_METHOD(Container, getFocusTraversalKeys, 86) = NULL;

	CACHE_JAVA_METHOD(Container, areFocusTraversalKeysSet, 87) = NULL;

	CACHE_JAVA_METHOD(Container, isFocusCycleRoot, 88) = NULL;

	CACHE_JAVA_METHOD(Container, isFocusCycleRoot, 89) = NULL;

	CACHE_JAVA_METHOD(Container, containsFocus, 90) = NULL;

	CACHE_JAVA_METHOD(Container, isParentOf, 91) = NULL;

	CACHE_JAVA_METHOD(Container, clearMostRecentFocusOwnerOnHide, 92) = NULL;

	CACHE_JAVA_METHOD(Container, clearCurrentFocusCycleRootOnHide, 93) = NULL;

	CACHE_JAVA_METHOD(Container, nextFocusHelper, 94) = NULL;

	CACHE_JAVA_METHOD(Container, transferFocusBackward, 95) = NULL;

	CACHE_JAVA_METHOD(Container, setFocusTraversalPolicy, 96) = NULL;

	CACHE_JAVA_METHOD(Container, getFocusTraversalPolicy, 97) = NULL;

	CACHE_JAVA_METHOD(Container, isFocusTraversalPolicySet, 98) = NULL;

	CACHE_JAVA_METHOD(Container, setFocusCycleRoot, 99) = NULL;

	CACHE_JAVA_METHOD(Container, setFocusTraversalPolicyProvider, 100) = NULL;

	CACHE_JAVA_METHOD(Container, isFocusTraversalPolicyProvider, 101) = NULL;

	CACHE_JAVA_METHOD(Container, transferFocusDownCycle, 102) = NULL;

	CACHE_JAVA_METHOD(Container, preProcessKeyEvent, 103) = NULL;

	CACHE_JAVA_METHOD(Container, postProcessKeyEvent, 104) = NULL;

	CACHE_JAVA_METHOD(Container, postsOldMouseEvents, 105) = NULL;

	CACHE_JAVA_METHOD(Container, applyComponentOrientation, 106) = NULL;

	CACHE_JAVA_METHOD(Container, addPropertyChangeListener, 107) = NULL;

	CACHE_JAVA_METHOD(Container, addPropertyChangeListener, 108) = NULL;

	CACHE_JAVA_METHOD(Container, getAccessibleAt, 109) = NULL;

	CACHE_JAVA_METHOD(Container, getAccessibleChildrenCount, 110) = NULL;

	CACHE_JAVA_METHOD(Container, getAccessibleChild, 111) = NULL;

	CACHE_JAVA_METHOD(Container, increaseComponentCount, 112) = NULL;

	CACHE_JAVA_METHOD(Container, decreaseComponentCount, 113) = NULL;

	CACHE_JAVA_METHOD(Container, getOpaqueShape, 114) = NULL;

	CACHE_JAVA_METHOD(Container, recursiveSubtractAndApplyShape, 115) = NULL;

	CACHE_JAVA_METHOD(Container, recursiveSubtractAndApplyShape, 116) = NULL;

	CACHE_JAVA_METHOD(Container, recursiveSubtractAndApplyShape, 117) = NULL;

	CACHE_JAVA_METHOD(Container, recursiveApplyCurrentShape, 118) = NULL;

	CACHE_JAVA_METHOD(Container, recursiveApplyCurrentShape, 119) = NULL;

	CACHE_JAVA_METHOD(Container, recursiveApplyCurrentShape, 120) = NULL;

	CACHE_JAVA_METHOD(Container, mixOnShowing, 121) = NULL;

	CACHE_JAVA_METHOD(Container, mixOnReshaping, 122) = NULL;

	CACHE_JAVA_METHOD(Container, mixOnZOrderChanging, 123) = NULL;

	CACHE_JAVA_METHOD(Container, mixOnValidating, 124) = NULL;

	jobject Container(JNIEnv *env){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		if (!JAVA_CONSTRUCTOR(Container, 0)){
			INIT_CACHE_CONSTRUCTOR(env, Container, "()V", 0);
		}
		return (jobject)env->NewObject(JAVA_CLASS(Container), JAVA_CONSTRUCTOR(Container, 0));
	}

	void add(JNIEnv *env, jobject _this, jobject Component0, jobject Object1, jint Int2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, add, "(Ljava/awt/Component;Ljava/lang/Object;I)V", 1);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, add, 1), Component0, Object1, Int2);
	}

	jobject addWithComponentInt(JNIEnv *env, jobject _this, jobject Component0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, add, "(Ljava/awt/Component;I)Ljava/awt/Component;", 2);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, add, 2), Component0, Int1);
	}

	jobject addWithStringComponent(JNIEnv *env, jobject _this, jobject String0, jobject Component1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, add, "(Ljava/lang/String;Ljava/awt/Component;)Ljava/awt/Component;", 3);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, add, 3), String0, Component1);
	}

	jobject add(JNIEnv *env, jobject _this, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, add, "(Ljava/awt/Component;)Ljava/awt/Component;", 4);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, add, 4), Component0);
	}

	void add(JNIEnv *env, jobject _this, jobject Component0, jobject Object1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, add, "(Ljava/awt/Component;Ljava/lang/Object;)V", 5);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, add, 5), Component0, Object1);
	}

	void removeWithInt(JNIEnv *env, jobject _this, jint Int0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, remove, "(I)V", 6);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, remove, 6), Int0);
	}

	void remove(JNIEnv *env, jobject _this, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, remove, "(Ljava/awt/Component;)V", 7);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, remove, 7), Component0);
	}

	void listWithPrintWriterInt(JNIEnv *env, jobject _this, jobject PrintWriter0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, list, "(Ljava/io/PrintWriter;I)V", 8);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, list, 8), PrintWriter0, Int1);
	}

	void list(JNIEnv *env, jobject _this, jobject PrintStream0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, list, "(Ljava/io/PrintStream;I)V", 9);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, list, 9), PrintStream0, Int1);
	}

	void print(JNIEnv *env, jobject _this, jobject Graphics0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, print, "(Ljava/awt/Graphics;)V", 10);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, print, 10), Graphics0);
	}

	void removeAll(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, removeAll, "()V", 11);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, removeAll, 11));
	}

	void update(JNIEnv *env, jobject _this, jobject Graphics0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, update, "(Ljava/awt/Graphics;)V", 12);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, update, 12), Graphics0);
	}

	void initializeFocusTraversalKeys(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, initializeFocusTraversalKeys, "()V", 13);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, initializeFocusTraversalKeys, 13));
	}

	jint getComponentCount(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, getComponentCount, "()I", 14);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Container, getComponentCount, 14));
	}

	jint countComponents(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, countComponents, "()I", 15);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Container, countComponents, 15));
	}

	jobject getComponent(JNIEnv *env, jobject _this, jint Int0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, getComponent, "(I)Ljava/awt/Component;", 16);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, getComponent, 16), Int0);
	}

	jobject getComponents(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, getComponents, "()[Ljava/awt/Component;", 17);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, getComponents, 17));
	}

	jobject getComponents_NoClientCode(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, getComponents_NoClientCode, "()[Ljava/awt/Component;", 18);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, getComponents_NoClientCode, 18));
	}

	jobject getInsets(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, getInsets, "()Ljava/awt/Insets;", 19);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, getInsets, 19));
	}

	jobject insets(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, insets, "()Ljava/awt/Insets;", 20);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, insets, 20));
	}

	jboolean canContainFocusOwner(JNIEnv *env, jobject _this, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, canContainFocusOwner, "(Ljava/awt/Component;)Z", 21);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Container, canContainFocusOwner, 21), Component0);
	}

	jboolean hasHeavyweightDescendants(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, hasHeavyweightDescendants, "()Z", 22);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Container, hasHeavyweightDescendants, 22));
	}

	jboolean hasLightweightDescendants(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, hasLightweightDescendants, "()Z", 23);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Container, hasLightweightDescendants, 23));
	}

	jobject getHeavyweightContainer(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, getHeavyweightContainer, "()Ljava/awt/Container;", 24);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, getHeavyweightContainer, 24));
	}

	void setComponentZOrder(JNIEnv *env, jobject _this, jobject Component0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, setComponentZOrder, "(Ljava/awt/Component;I)V", 25);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, setComponentZOrder, 25), Component0, Int1);
	}

	jint getComponentZOrder(JNIEnv *env, jobject _this, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, getComponentZOrder, "(Ljava/awt/Component;)I", 26);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Container, getComponentZOrder, 26), Component0);
	}

	void addImpl(JNIEnv *env, jobject _this, jobject Component0, jobject Object1, jint Int2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, addImpl, "(Ljava/awt/Component;Ljava/lang/Object;I)V", 27);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, addImpl, 27), Component0, Object1, Int2);
	}

	void checkGD(JNIEnv *env, jobject _this, jobject String0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, checkGD, "(Ljava/lang/String;)V", 28);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, checkGD, 28), String0);
	}

	jint numListening(JNIEnv *env, jobject _this, jlong Long0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, numListening, "(J)I", 29);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Container, numListening, 29), Long0);
	}

	void adjustListeningChildren(JNIEnv *env, jobject _this, jlong Long0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, adjustListeningChildren, "(JI)V", 30);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, adjustListeningChildren, 30), Long0, Int1);
	}

	void adjustDescendants(JNIEnv *env, jobject _this, jint Int0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, adjustDescendants, "(I)V", 31);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, adjustDescendants, 31), Int0);
	}

	void adjustDecendantsOnParent(JNIEnv *env, jobject _this, jint Int0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, adjustDecendantsOnParent, "(I)V", 32);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, adjustDecendantsOnParent, 32), Int0);
	}

	jint countHierarchyMembers(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, countHierarchyMembers, "()I", 33);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Container, countHierarchyMembers, 33));
	}

	jint createHierarchyEvents(JNIEnv *env, jobject _this, jint Int0, jobject Component1, jobject Container2, jlong Long3, jboolean Boolean4){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, createHierarchyEvents, "(ILjava/awt/Component;Ljava/awt/Container;JZ)I", 34);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Container, createHierarchyEvents, 34), Int0, Component1, Container2, Long3, Boolean4);
	}

	void createChildHierarchyEvents(JNIEnv *env, jobject _this, jint Int0, jlong Long1, jboolean Boolean2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, createChildHierarchyEvents, "(IJZ)V", 35);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, createChildHierarchyEvents, 35), Int0, Long1, Boolean2);
	}

	jobject getLayout(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, getLayout, "()Ljava/awt/LayoutManager;", 36);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, getLayout, 36));
	}

	void setLayout(JNIEnv *env, jobject _this, jobject LayoutManager0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, setLayout, "(Ljava/awt/LayoutManager;)V", 37);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, setLayout, 37), LayoutManager0);
	}

	void doLayout(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, doLayout, "()V", 38);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, doLayout, 38));
	}

	void layout(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, layout, "()V", 39);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, layout, 39));
	}

	void invalidate(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, invalidate, "()V", 40);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, invalidate, 40));
	}

	void validate(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, validate, "()V", 41);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, validate, 41));
	}

	void validateTree(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, validateTree, "()V", 42);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, validateTree, 42));
	}

	void invalidateTree(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, invalidateTree, "()V", 43);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, invalidateTree, 43));
	}

	void setFont(JNIEnv *env, jobject _this, jobject Font0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, setFont, "(Ljava/awt/Font;)V", 44);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, setFont, 44), Font0);
	}

	jobject getPreferredSize(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, getPreferredSize, "()Ljava/awt/Dimension;", 45);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, getPreferredSize, 45));
	}

	jobject preferredSize(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, preferredSize, "()Ljava/awt/Dimension;", 46);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, preferredSize, 46));
	}

	jobject getMinimumSize(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, getMinimumSize, "()Ljava/awt/Dimension;", 47);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, getMinimumSize, 47));
	}

	jobject minimumSize(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, minimumSize, "()Ljava/awt/Dimension;", 48);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, minimumSize, 48));
	}

	jobject getMaximumSize(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, getMaximumSize, "()Ljava/awt/Dimension;", 49);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, getMaximumSize, 49));
	}

	jfloat getAlignmentX(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, getAlignmentX, "()F", 50);
		return (jfloat)env->CallFloatMethod(_this, JAVA_METHOD(Container, getAlignmentX, 50));
	}

	jfloat getAlignmentY(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, getAlignmentY, "()F", 51);
		return (jfloat)env->CallFloatMethod(_this, JAVA_METHOD(Container, getAlignmentY, 51));
	}

	void paint(JNIEnv *env, jobject _this, jobject Graphics0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, paint, "(Ljava/awt/Graphics;)V", 52);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, paint, 52), Graphics0);
	}

	void paintComponents(JNIEnv *env, jobject _this, jobject Graphics0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, paintComponents, "(Ljava/awt/Graphics;)V", 53);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, paintComponents, 53), Graphics0);
	}

	void lightweightPaint(JNIEnv *env, jobject _this, jobject Graphics0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, lightweightPaint, "(Ljava/awt/Graphics;)V", 54);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, lightweightPaint, 54), Graphics0);
	}

	void paintHeavyweightComponents(JNIEnv *env, jobject _this, jobject Graphics0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, paintHeavyweightComponents, "(Ljava/awt/Graphics;)V", 55);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, paintHeavyweightComponents, 55), Graphics0);
	}

	void printComponents(JNIEnv *env, jobject _this, jobject Graphics0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, printComponents, "(Ljava/awt/Graphics;)V", 56);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, printComponents, 56), Graphics0);
	}

	void lightweightPrint(JNIEnv *env, jobject _this, jobject Graphics0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, lightweightPrint, "(Ljava/awt/Graphics;)V", 57);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, lightweightPrint, 57), Graphics0);
	}

	void printHeavyweightComponents(JNIEnv *env, jobject _this, jobject Graphics0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, printHeavyweightComponents, "(Ljava/awt/Graphics;)V", 58);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, printHeavyweightComponents, 58), Graphics0);
	}

	void addContainerListener(JNIEnv *env, jobject _this, jobject ContainerListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, addContainerListener, "(Ljava/awt/event/ContainerListener;)V", 59);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, addContainerListener, 59), ContainerListener0);
	}

	void removeContainerListener(JNIEnv *env, jobject _this, jobject ContainerListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, removeContainerListener, "(Ljava/awt/event/ContainerListener;)V", 60);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, removeContainerListener, 60), ContainerListener0);
	}

	jobject getContainerListeners(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, getContainerListeners, "()[Ljava/awt/event/ContainerListener;", 61);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, getContainerListeners, 61));
	}

	jobject getListeners(JNIEnv *env, jobject _this, jclass Class0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, getListeners, "(Ljava/lang/Class;)[Ljava/util/EventListener;", 62);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, getListeners, 62), Class0);
	}

	jboolean eventEnabled(JNIEnv *env, jobject _this, jobject AWTEvent0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, eventEnabled, "(Ljava/awt/AWTEvent;)Z", 63);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Container, eventEnabled, 63), AWTEvent0);
	}

	void processEvent(JNIEnv *env, jobject _this, jobject AWTEvent0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, processEvent, "(Ljava/awt/AWTEvent;)V", 64);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, processEvent, 64), AWTEvent0);
	}

	void processContainerEvent(JNIEnv *env, jobject _this, jobject ContainerEvent0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, processContainerEvent, "(Ljava/awt/event/ContainerEvent;)V", 65);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, processContainerEvent, 65), ContainerEvent0);
	}

	void dispatchEventImpl(JNIEnv *env, jobject _this, jobject AWTEvent0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, dispatchEventImpl, "(Ljava/awt/AWTEvent;)V", 66);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, dispatchEventImpl, 66), AWTEvent0);
	}

	void dispatchEventToSelf(JNIEnv *env, jobject _this, jobject AWTEvent0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, dispatchEventToSelf, "(Ljava/awt/AWTEvent;)V", 67);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, dispatchEventToSelf, 67), AWTEvent0);
	}

	jobject getMouseEventTarget(JNIEnv *env, jobject _this, jint Int0, jint Int1, jboolean Boolean2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, getMouseEventTarget, "(IIZ)Ljava/awt/Component;", 68);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, getMouseEventTarget, 68), Int0, Int1, Boolean2);
	}

	jobject getDropTargetEventTarget(JNIEnv *env, jobject _this, jint Int0, jint Int1, jboolean Boolean2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, getDropTargetEventTarget, "(IIZ)Ljava/awt/Component;", 69);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, getDropTargetEventTarget, 69), Int0, Int1, Boolean2);
	}

	void proxyEnableEvents(JNIEnv *env, jobject _this, jlong Long0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, proxyEnableEvents, "(J)V", 70);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, proxyEnableEvents, 70), Long0);
	}

	void deliverEvent(JNIEnv *env, jobject _this, jobject Event0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, deliverEvent, "(Ljava/awt/Event;)V", 71);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, deliverEvent, 71), Event0);
	}

	jobject getComponentAt(JNIEnv *env, jobject _this, jint Int0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, getComponentAt, "(II)Ljava/awt/Component;", 72);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, getComponentAt, 72), Int0, Int1);
	}

	jobject getComponentAt(JNIEnv *env, jobject _this, jobject Point0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, getComponentAt, "(Ljava/awt/Point;)Ljava/awt/Component;", 73);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, getComponentAt, 73), Point0);
	}

	jobject locate(JNIEnv *env, jobject _this, jint Int0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, locate, "(II)Ljava/awt/Component;", 74);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, locate, 74), Int0, Int1);
	}

	jobject getMousePosition(JNIEnv *env, jobject _this, jboolean Boolean0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, getMousePosition, "(Z)Ljava/awt/Point;", 75);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, getMousePosition, 75), Boolean0);
	}

	jboolean isSameOrAncestorOf(JNIEnv *env, jobject _this, jobject Component0, jboolean Boolean1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, isSameOrAncestorOf, "(Ljava/awt/Component;Z)Z", 76);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Container, isSameOrAncestorOf, 76), Component0, Boolean1);
	}

	jobject findComponentAt(JNIEnv *env, jobject _this, jobject Point0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, findComponentAt, "(Ljava/awt/Point;)Ljava/awt/Component;", 77);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, findComponentAt, 77), Point0);
	}

	jobject findComponentAt(JNIEnv *env, jobject _this, jint Int0, jint Int1, jboolean Boolean2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, findComponentAt, "(IIZ)Ljava/awt/Component;", 78);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, findComponentAt, 78), Int0, Int1, Boolean2);
	}

	jobject findComponentAt(JNIEnv *env, jobject _this, jint Int0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, findComponentAt, "(II)Ljava/awt/Component;", 79);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, findComponentAt, 79), Int0, Int1);
	}

	jobject findComponentAtImpl(JNIEnv *env, jobject _this, jint Int0, jint Int1, jboolean Boolean2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, findComponentAtImpl, "(IIZ)Ljava/awt/Component;", 80);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, findComponentAtImpl, 80), Int0, Int1, Boolean2);
	}

	void addNotify(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, addNotify, "()V", 81);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, addNotify, 81));
	}

	void removeNotify(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, removeNotify, "()V", 82);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, removeNotify, 82));
	}

	jboolean isAncestorOf(JNIEnv *env, jobject _this, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, isAncestorOf, "(Ljava/awt/Component;)Z", 83);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Container, isAncestorOf, 83), Component0);
	}

	jobject paramString(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, paramString, "()Ljava/lang/String;", 84);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, paramString, 84));
	}

	void setFocusTraversalKeys(JNIEnv *env, jobject _this, jint Int0, jobject Set1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, setFocusTraversalKeys, "(ILjava/util/Set;)V", 85);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, setFocusTraversalKeys, 85), Int0, Set1);
	}

	jobject getFocusTraversalKeys(JNIEnv *env, jobject _this, jint Int0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, getFocusTraversalKeys, "(I)Ljava/util/Set;", 86);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, getFocusTraversalKeys, 86), Int0);
	}

	jboolean areFocusTraversalKeysSet(JNIEnv *env, jobject _this, jint Int0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, areFocusTraversalKeysSet, "(I)Z", 87);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Container, areFocusTraversalKeysSet, 87), Int0);
	}

	jboolean isFocusCycleRoot(JNIEnv *env, jobject _this, jobject Container0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, isFocusCycleRoot, "(Ljava/awt/Container;)Z", 88);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Container, isFocusCycleRoot, 88), Container0);
	}

	jboolean isFocusCycleRoot(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, isFocusCycleRoot, "()Z", 89);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Container, isFocusCycleRoot, 89));
	}

	jboolean containsFocus(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, containsFocus, "()Z", 90);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Container, containsFocus, 90));
	}

	jboolean isParentOf(JNIEnv *env, jobject _this, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, isParentOf, "(Ljava/awt/Component;)Z", 91);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Container, isParentOf, 91), Component0);
	}

	void clearMostRecentFocusOwnerOnHide(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, clearMostRecentFocusOwnerOnHide, "()V", 92);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, clearMostRecentFocusOwnerOnHide, 92));
	}

	void clearCurrentFocusCycleRootOnHide(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, clearCurrentFocusCycleRootOnHide, "()V", 93);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, clearCurrentFocusCycleRootOnHide, 93));
	}

	jboolean nextFocusHelper(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, nextFocusHelper, "()Z", 94);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Container, nextFocusHelper, 94));
	}

	void transferFocusBackward(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, transferFocusBackward, "()V", 95);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, transferFocusBackward, 95));
	}

	void setFocusTraversalPolicy(JNIEnv *env, jobject _this, jobject FocusTraversalPolicy0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, setFocusTraversalPolicy, "(Ljava/awt/FocusTraversalPolicy;)V", 96);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, setFocusTraversalPolicy, 96), FocusTraversalPolicy0);
	}

	jobject getFocusTraversalPolicy(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, getFocusTraversalPolicy, "()Ljava/awt/FocusTraversalPolicy;", 97);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, getFocusTraversalPolicy, 97));
	}

	jboolean isFocusTraversalPolicySet(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, isFocusTraversalPolicySet, "()Z", 98);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Container, isFocusTraversalPolicySet, 98));
	}

	void setFocusCycleRoot(JNIEnv *env, jobject _this, jboolean Boolean0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, setFocusCycleRoot, "(Z)V", 99);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, setFocusCycleRoot, 99), Boolean0);
	}

	void setFocusTraversalPolicyProvider(JNIEnv *env, jobject _this, jboolean Boolean0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, setFocusTraversalPolicyProvider, "(Z)V", 100);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, setFocusTraversalPolicyProvider, 100), Boolean0);
	}

	jboolean isFocusTraversalPolicyProvider(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, isFocusTraversalPolicyProvider, "()Z", 101);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Container, isFocusTraversalPolicyProvider, 101));
	}

	void transferFocusDownCycle(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, transferFocusDownCycle, "()V", 102);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, transferFocusDownCycle, 102));
	}

	void preProcessKeyEvent(JNIEnv *env, jobject _this, jobject KeyEvent0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, preProcessKeyEvent, "(Ljava/awt/event/KeyEvent;)V", 103);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, preProcessKeyEvent, 103), KeyEvent0);
	}

	void postProcessKeyEvent(JNIEnv *env, jobject _this, jobject KeyEvent0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, postProcessKeyEvent, "(Ljava/awt/event/KeyEvent;)V", 104);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, postProcessKeyEvent, 104), KeyEvent0);
	}

	jboolean postsOldMouseEvents(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, postsOldMouseEvents, "()Z", 105);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Container, postsOldMouseEvents, 105));
	}

	void applyComponentOrientation(JNIEnv *env, jobject _this, jobject ComponentOrientation0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, applyComponentOrientation, "(Ljava/awt/ComponentOrientation;)V", 106);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, applyComponentOrientation, 106), ComponentOrientation0);
	}

	void addPropertyChangeListener(JNIEnv *env, jobject _this, jobject String0, jobject PropertyChangeListener1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, addPropertyChangeListener, "(Ljava/lang/String;Ljava/beans/PropertyChangeListener;)V", 107);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, addPropertyChangeListener, 107), String0, PropertyChangeListener1);
	}

	void addPropertyChangeListener(JNIEnv *env, jobject _this, jobject PropertyChangeListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, addPropertyChangeListener, "(Ljava/beans/PropertyChangeListener;)V", 108);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, addPropertyChangeListener, 108), PropertyChangeListener0);
	}

	jobject getAccessibleAt(JNIEnv *env, jobject _this, jobject Point0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, getAccessibleAt, "(Ljava/awt/Point;)Ljavax/accessibility/Accessible;", 109);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, getAccessibleAt, 109), Point0);
	}

	jint getAccessibleChildrenCount(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, getAccessibleChildrenCount, "()I", 110);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Container, getAccessibleChildrenCount, 110));
	}

	jobject getAccessibleChild(JNIEnv *env, jobject _this, jint Int0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, getAccessibleChild, "(I)Ljavax/accessibility/Accessible;", 111);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, getAccessibleChild, 111), Int0);
	}

	void increaseComponentCount(JNIEnv *env, jobject _this, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, increaseComponentCount, "(Ljava/awt/Component;)V", 112);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, increaseComponentCount, 112), Component0);
	}

	void decreaseComponentCount(JNIEnv *env, jobject _this, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, decreaseComponentCount, "(Ljava/awt/Component;)V", 113);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, decreaseComponentCount, 113), Component0);
	}

	jobject getOpaqueShape(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, getOpaqueShape, "()Lsun/java2d/pipe/Region;", 114);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Container, getOpaqueShape, 114));
	}

	void recursiveSubtractAndApplyShape(JNIEnv *env, jobject _this, jobject Region0, jint Int1, jint Int2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, recursiveSubtractAndApplyShape, "(Lsun/java2d/pipe/Region;II)V", 115);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, recursiveSubtractAndApplyShape, 115), Region0, Int1, Int2);
	}

	void recursiveSubtractAndApplyShape(JNIEnv *env, jobject _this, jobject Region0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, recursiveSubtractAndApplyShape, "(Lsun/java2d/pipe/Region;I)V", 116);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, recursiveSubtractAndApplyShape, 116), Region0, Int1);
	}

	void recursiveSubtractAndApplyShape(JNIEnv *env, jobject _this, jobject Region0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, recursiveSubtractAndApplyShape, "(Lsun/java2d/pipe/Region;)V", 117);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, recursiveSubtractAndApplyShape, 117), Region0);
	}

	void recursiveApplyCurrentShape(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, recursiveApplyCurrentShape, "()V", 118);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, recursiveApplyCurrentShape, 118));
	}

	void recursiveApplyCurrentShape(JNIEnv *env, jobject _this, jint Int0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, recursiveApplyCurrentShape, "(II)V", 119);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, recursiveApplyCurrentShape, 119), Int0, Int1);
	}

	void recursiveApplyCurrentShape(JNIEnv *env, jobject _this, jint Int0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, recursiveApplyCurrentShape, "(I)V", 120);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, recursiveApplyCurrentShape, 120), Int0);
	}

	void mixOnShowing(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, mixOnShowing, "()V", 121);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, mixOnShowing, 121));
	}

	void mixOnReshaping(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, mixOnReshaping, "()V", 122);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, mixOnReshaping, 122));
	}

	void mixOnZOrderChanging(JNIEnv *env, jobject _this, jint Int0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, mixOnZOrderChanging, "(II)V", 123);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, mixOnZOrderChanging, 123), Int0, Int1);
	}

	void mixOnValidating(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Container), "java/awt/Container");
		INIT_CACHE_METHOD(env, Container, mixOnValidating, "()V", 124);
		env->CallVoidMethod(_this, JAVA_METHOD(Container, mixOnValidating, 124));
	}

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		INIT_CACHE_CLASS(jni_env, Container, "java/awt/Container");
		INIT_CACHE_FIELD(jni_env, Container, layoutMgr, "Ljava/awt/LayoutManager;");
		INIT_CACHE_FIELD(jni_env, Container, containerListener, "Ljava/awt/event/ContainerListener;");
		INIT_CACHE_FIELD(jni_env, Container, listeningChildren, "I");
		INIT_CACHE_FIELD(jni_env, Container, listeningBoundsChildren, "I");
		INIT_CACHE_FIELD(jni_env, Container, descendantsCount, "I");
		INIT_CACHE_FIELD(jni_env, Container, preserveBackgroundColor, "Ljava/awt/Color;");
		INIT_CACHE_STATIC_FIELD(jni_env, Container, INCLUDE_SELF, "Z");
		INIT_CACHE_STATIC_FIELD(jni_env, Container, SEARCH_HEAVYWEIGHTS, "Z");
		INIT_CACHE_FIELD(jni_env, Container, modalComp, "Ljava/awt/Component;");
		INIT_CACHE_FIELD(jni_env, Container, modalAppContext, "Lsun/awt/AppContext;");
		INIT_CACHE_STATIC_FIELD(jni_env, Container, $assertionsDisabled, "Z");
	}

	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		DELETE_CACHED_CLASS_REF(jni_env, Container);
		DELETE_CACHED_FIELD_REF(jni_env, Container, layoutMgr);
		DELETE_CACHED_FIELD_REF(jni_env, Container, containerListener);
		DELETE_CACHED_FIELD_REF(jni_env, Container, listeningChildren);
		DELETE_CACHED_FIELD_REF(jni_env, Container, listeningBoundsChildren);
		DELETE_CACHED_FIELD_REF(jni_env, Container, descendantsCount);
		DELETE_CACHED_FIELD_REF(jni_env, Container, preserveBackgroundColor);
		DELETE_CACHED_FIELD_REF(jni_env, Container, INCLUDE_SELF);
		DELETE_CACHED_FIELD_REF(jni_env, Container, SEARCH_HEAVYWEIGHTS);
		DELETE_CACHED_FIELD_REF(jni_env, Container, modalComp);
		DELETE_CACHED_FIELD_REF(jni_env, Container, modalAppContext);
		DELETE_CACHED_FIELD_REF(jni_env, Container, $assertionsDisabled);
	}

}
