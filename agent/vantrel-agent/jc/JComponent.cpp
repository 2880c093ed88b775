#include "JComponent.h"
#include "../common.h"
#include  <assert.h>

namespace NSJComponent{

	CACHE_JAVA_CLASS(JComponent) = NULL;

	//fields(8)

	CACHE_JAVA_STATIC_FIELD(JComponent, DEBUG_GRAPHICS_LOADED) = NULL;

	CACHE_JAVA_FIELD(JComponent, paintingChild) = NULL;

	CACHE_JAVA_STATIC_FIELD(JComponent, WHEN_FOCUSED) = NULL;

	CACHE_JAVA_STATIC_FIELD(JComponent, WHEN_ANCESTOR_OF_FOCUSED_COMPONENT) = NULL;

	CACHE_JAVA_STATIC_FIELD(JComponent, WHEN_IN_FOCUSED_WINDOW) = NULL;

	CACHE_JAVA_STATIC_FIELD(JComponent, UNDEFINED_CONDITION) = NULL;

	CACHE_JAVA_STATIC_FIELD(JComponent, TOOL_TIP_TEXT_KEY) = NULL;

	CACHE_JAVA_STATIC_FIELD(JComponent, focusController) = NULL;

	//methods(152)

	CACHE_JAVA_CONSTRUCTOR(JComponent, 0) = NULL;

	CACHE_JAVA_METHOD(JComponent, contains, 1) = NULL;

	CACHE_JAVA_METHOD(JComponent, getLocation, 2) = NULL;

	CACHE_JAVA_METHOD(JComponent, print, 3) = NULL;

	CACHE_JAVA_METHOD(JComponent, getSize, 4) = NULL;

	CACHE_JAVA_METHOD(JComponent, update, 5) = NULL;

	CACHE_JAVA_METHOD(JComponent, isOpaque, 6) = NULL;

	CACHE_JAVA_METHOD(JComponent, enable, 7) = NULL;

	CACHE_JAVA_METHOD(JComponent, disable, 8) = NULL;

	CACHE_JAVA_STATIC_METHOD(JComponent, safelyGetGraphics, 9) = NULL;

	CACHE_JAVA_STATIC_METHOD(JComponent, safelyGetGraphics, 10) = NULL;

	CACHE_JAVA_STATIC_METHOD(JComponent, getGraphicsInvoked, 11) = NULL;

	CACHE_JAVA_STATIC_METHOD(JComponent, getManagingFocusForwardTraversalKeys, 12) = NULL;

	CACHE_JAVA_STATIC_METHOD(JComponent, getManagingFocusBackwardTraversalKeys, 13) = NULL;

	CACHE_JAVA_METHOD(JComponent, setInheritsPopupMenu, 14) = NULL;

	CACHE_JAVA_METHOD(JComponent, getInheritsPopupMenu, 15) = NULL;

	CACHE_JAVA_METHOD(JComponent, setComponentPopupMenu, 16) = NULL;

	CACHE_JAVA_METHOD(JComponent, getComponentPopupMenu, 17) = NULL;

	CACHE_JAVA_METHOD(JComponent, updateUI, 18) = NULL;

	CACHE_JAVA_METHOD(JComponent, getUIClassID, 19) = NULL;

	CACHE_JAVA_METHOD(JComponent, paint, 20) = NULL;

	CACHE_JAVA_METHOD(JComponent, paintForceDoubleBuffered, 21) = NULL;

	CACHE_JAVA_METHOD(JComponent, isPainting, 22) = NULL;

	CACHE_JAVA_METHOD(JComponent, printAll, 23) = NULL;

	CACHE_JAVA_METHOD(JComponent, isPaintingTile, 24) = NULL;

	CACHE_JAVA_METHOD(JComponent, isPaintingForPrint, 25) = NULL;

	CACHE_JAVA_METHOD(JComponent, isManagingFocus, 26) = NULL;

	CACHE_JAVA_METHOD(JComponent, setNextFocusableComponent, 27) = NULL;

	CACHE_JAVA_METHOD(JComponent, getNextFocusableComponent, 28) = NULL;

	CACHE_JAVA_METHOD(JComponent, setRequestFocusEnabled, 29) = NULL;

	CACHE_JAVA_METHOD(JComponent, isRequestFocusEnabled, 30) = NULL;

	CACHE_JAVA_METHOD(JComponent, requestFocus, 31) = NULL;

	CACHE_JAVA_METHOD(JComponent, requestFocus, 32) = NULL;

	CACHE_JAVA_METHOD(JComponent, requestFocusInWindow, 33) = NULL;

	CACHE_JAVA_METHOD(JComponent, grabFocus, 34) = NULL;

	CACHE_JAVA_METHOD(JComponent, setVerifyInputWhenFocusTarget, 35) = NULL;

	CACHE_JAVA_METHOD(JComponent, getVerifyInputWhenFocusTarget, 36) = NULL;

	CACHE_JAVA_METHOD(JComponent, getFontMetrics, 37) = NULL;

	CACHE_JAVA_METHOD(JComponent, setPreferredSize, 38) = NULL;

	CACHE_JAVA_METHOD(JComponent, getPreferredSize, 39) = NULL;

	CACHE_JAVA_METHOD(JComponent, setMaximumSize, 40) = NULL;

	CACHE_JAVA_METHOD(JComponent, getMaximumSize, 41) = NULL;

	CACHE_JAVA_METHOD(JComponent, setMinimumSize, 42) = NULL;

	CACHE_JAVA_METHOD(JComponent, getMinimumSize, 43) = NULL;

	CACHE_JAVA_METHOD(JComponent, setBorder, 44) = NULL;

	CACHE_JAVA_METHOD(JComponent, getBorder, 45) = NULL;

	CACHE_JAVA_METHOD(JComponent, getInsets, 46) = NULL;

	CACHE_JAVA_METHOD(JComponent, getInsets, 47) = NULL;

	CACHE_JAVA_METHOD(JComponent, getAlignmentY, 48) = NULL;

	CACHE_JAVA_METHOD(JComponent, setAlignmentY, 49) = NULL;

	CACHE_JAVA_METHOD(JComponent, getAlignmentX, 50) = NULL;

	CACHE_JAVA_METHOD(JComponent, setAlignmentX, 51) = NULL;

	CACHE_JAVA_METHOD(JComponent, setInputVerifier, 52) = NULL;

	CACHE_JAVA_METHOD(JComponent, getInputVerifier, 53) = NULL;

	CACHE_JAVA_METHOD(JComponent, getGraphics, 54) = NULL;

	CACHE_JAVA_METHOD(JComponent, setDebugGraphicsOptions, 55) = NULL;

	CACHE_JAVA_METHOD(JComponent, getDebugGraphicsOptions, 56) = NULL;

	CACHE_JAVA_METHOD(JComponent, shouldDebugGraphics, 57) = NULL;

	CACHE_JAVA_METHOD(JComponent, registerKeyboardAction, 58) = NULL;

	CACHE_JAVA_METHOD(JComponent, registerKeyboardAction, 59) = NULL;

	CACHE_JAVA_METHOD(JComponent, componentInputMapChanged, 60) = NULL;

	CACHE_JAVA_METHOD(JComponent, unregisterKeyboardAction, 61) = NULL;

	CACHE_JAVA_METHOD(JComponent, getRegisteredKeyStrokes, 62) = NULL;

	CACHE_JAVA_METHOD(JComponent, getConditionForKeyStroke, 63) = NULL;

	CACHE_JAVA_METHOD(JComponent, getActionForKeyStroke, 64) = NULL;

	CACHE_JAVA_METHOD(JComponent, resetKeyboardActions, 65) = NULL;

	CACHE_JAVA_METHOD(JComponent, setInputMap, 66) = NULL;

	CACHE_JAVA_METHOD(JComponent, getInputMap, 67) = NULL;

	CACHE_JAVA_METHOD(JComponent, getInputMap, 68) = NULL;

	CACHE_JAVA_METHOD(JComponent, getInputMap, 69) = NULL;

	CACHE_JAVA_METHOD(JComponent, setActionMap, 70) = NULL;

	CACHE_JAVA_METHOD(JComponent, getActionMap, 71) = NULL;

	CACHE_JAVA_METHOD(JComponent, getActionMap, 72) = NULL;

	CACHE_JAVA_METHOD(JComponent, getBaseline, 73) = NULL;

	CACHE_JAVA_METHOD(JComponent, getBaselineResizeBehavior, 74) = NULL;

	CACHE_JAVA_METHOD(JComponent, requestDefaultFocus, 75) = NULL;

	CACHE_JAVA_METHOD(JComponent, setVisible, 76) = NULL;

	CACHE_JAVA_METHOD(JComponent, setEnabled, 77) = NULL;

	CACHE_JAVA_METHOD(JComponent, setForeground, 78) = NULL;

	CACHE_JAVA_METHOD(JComponent, setBackground, 79) = NULL;

	CACHE_JAVA_METHOD(JComponent, setFont, 80) = NULL;

	CACHE_JAVA_STATIC_METHOD(JComponent, getDefaultLocale, 81) = NULL;

	CACHE_JAVA_STATIC_METHOD(JComponent, setDefaultLocale, 82) = NULL;

	CACHE_JAVA_METHOD(JComponent, processKeyBindings, 83) = NULL;

	CACHE_JAVA_STATIC_METHOD(JComponent, processKeyBindingsForAllComponents, 84) = NULL;

	CACHE_JAVA_METHOD(JComponent, setToolTipText, 85) = NULL;

	CACHE_JAVA_METHOD(JComponent, getToolTipText, 86) = NULL;

	CACHE_JAVA_METHOD(JComponent, getToolTipText, 87) = NULL;

	CACHE_JAVA_METHOD(JComponent, getToolTipLocation, 88) = NULL;

	CACHE_JAVA_METHOD(JComponent, getPopupLocation, 89) = NULL;

	CACHE_JAVA_METHOD(JComponent, createToolTip, 90) = NULL;

	CACHE_JAVA_METHOD(JComponent, scrollRectToVisible, 91) = NULL;

	CACHE_JAVA_METHOD(JComponent, setAutoscrolls, 92) = NULL;

	CACHE_JAVA_METHOD(JComponent, getAutoscrolls, 93) = NULL;

	CACHE_JAVA_METHOD(JComponent, setTransferHandler, 94) = NULL;

	CACHE_JAVA_METHOD(JComponent, getTransferHandler, 95) = NULL;

	CACHE_JAVA_METHOD(JComponent, dropLocationForPoint, 96) = NULL;

	CACHE_JAVA_METHOD(JComponent, setDropLocation, 97) = NULL;

	CACHE_JAVA_METHOD(JComponent, dndDone, 98) = NULL;

	CACHE_JAVA_METHOD(JComponent, superProcessMouseMotionEvent, 99) = NULL;

	CACHE_JAVA_METHOD(JComponent, setCreatedDoubleBuffer, 100) = NULL;

	CACHE_JAVA_METHOD(JComponent, getCreatedDoubleBuffer, 101) = NULL;

	CACHE_JAVA_METHOD(JComponent, getAccessibleContext, 102) = NULL;

	CACHE_JAVA_METHOD(JComponent, getClientProperty, 103) = NULL;

	CACHE_JAVA_METHOD(JComponent, putClientProperty, 104) = NULL;

	CACHE_JAVA_METHOD(JComponent, clientPropertyChanged, 105) = NULL;

	CACHE_JAVA_METHOD(JComponent, setUIProperty, 106) = NULL;

	CACHE_JAVA_METHOD(JComponent, setFocusTraversalKeys, 107) = NULL;

	CACHE_JAVA_STATIC_METHOD(JComponent, isLightweightComponent, 108) = NULL;

	CACHE_JAVA_METHOD(JComponent, reshape, 109) = NULL;

	CACHE_JAVA_METHOD(JComponent, getBounds, 110) = NULL;

	CACHE_JAVA_METHOD(JComponent, getX, 111) = NULL;

	CACHE_JAVA_METHOD(JComponent, getY, 112) = NULL;

	CACHE_JAVA_METHOD(JComponent, getWidth, 113) = NULL;

	CACHE_JAVA_METHOD(JComponent, getHeight, 114) = NULL;

	CACHE_JAVA_METHOD(JComponent, setOpaque, 115) = NULL;

	CACHE_JAVA_METHOD(JComponent, rectangleIsObscured, 116) = NULL;

	CACHE_JAVA_STATIC_METHOD(JComponent, computeVisibleRect, 117) = NULL;

	CACHE_JAVA_METHOD(JComponent, computeVisibleRect, 118) = NULL;

	CACHE_JAVA_METHOD(JComponent, getVisibleRect, 119) = NULL;

	CACHE_JAVA_METHOD(JComponent, firePropertyChange, 120) = NULL;

	CACHE_JAVA_METHOD(JComponent, firePropertyChange, 121) = NULL;

	CACHE_JAVA_METHOD(JComponent, firePropertyChange, 122) = NULL;

	CACHE_JAVA_METHOD(JComponent, addVetoableChangeListener, 123) = NULL;

	CACHE_JAVA_METHOD(JComponent, removeVetoableChangeListener, 124) = NULL;

	CACHE_JAVA_METHOD(JComponent, getVetoableChangeListeners, 125) = NULL;

	CACHE_JAVA_METHOD(JComponent, getTopLevelAncestor, 126) = NULL;

	CACHE_JAVA_METHOD(JComponent, addAncestorListener, 127) = NULL;

	CACHE_JAVA_METHOD(JComponent, removeAncestorListener, 128) = NULL;

	CACHE_JAVA_METHOD(JComponent, getAncestorListeners, 129) = NULL;

	CACHE_JAVA_METHOD(JComponent, getListeners, 130) = NULL;

	CACHE_JAVA_METHOD(JComponent, addNotify, 131) = NULL;

	CACHE_JAVA_METHOD(JComponent, removeNotify, 132) = NULL;

	CACHE_JAVA_METHOD(JComponent, repaint, 133) = NULL;

	CACHE_JAVA_METHOD(JComponent, repaint, 134) = NULL;

	CACHE_JAVA_METHOD(JComponent, revalidate, 135) = NULL;

	CACHE_JAVA_METHOD(JComponent, isValidateRoot, 136) = NULL;

	CACHE_JAVA_METHOD(JComponent, isOptimizedDrawingEnabled, 137) = NULL;

	CACHE_JAVA_METHOD(JComponent, isPaintingOrigin, 138) = NULL;

	CACHE_JAVA_METHOD(JComponent, paintImmediately, 139) = NULL;

	CACHE_JAVA_METHOD(JComponent, paintImmediately, 140) = NULL;

	CACHE_JAVA_METHOD(JComponent, alwaysOnTop, 141) = NULL;

	CACHE_JAVA_METHOD(JComponent, setPaintingChild, 142) = NULL;

	CACHE_JAVA_METHOD(JComponent, _paintImmediately, 143) = NULL;

	CACHE_JAVA_METHOD(JComponent, paintToOffscreen, 144) = NULL;

	CACHE_JAVA_METHOD(JComponent, checkIfChildObscuredBySibling, 145) = NULL;

	CACHE_JAVA_STATIC_METHOD(JComponent, setWriteObjCounter, 146) = NULL;

	CACHE_JAVA_STATIC_METHOD(JComponent, getWriteObjCounter, 147) = NULL;

	CACHE_JAVA_METHOD(JComponent, setDoubleBuffered, 148) = NULL;

	CACHE_JAVA_METHOD(JComponent, isDoubleBuffered, 149) = NULL;

	CACHE_JAVA_METHOD(JComponent, getRootPane, 150) = NULL;

	CACHE_JAVA_METHOD(JComponent, compWriteObjectNotify, 151) = NULL;

	jobject JComponent(JNIEnv *env){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		if (!JAVA_CONSTRUCTOR(JComponent, 0)){
			INIT_CACHE_CONSTRUCTOR(env, JComponent, "()V", 0);
		}
		return (jobject)env->NewObject(JAVA_CLASS(JComponent), JAVA_CONSTRUCTOR(JComponent, 0));
	}

	jboolean contains(JNIEnv *env, jobject _this, jint Int0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, contains, "(II)Z", 1);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(JComponent, contains, 1), Int0, Int1);
	}

	jobject getLocation(JNIEnv *env, jobject _this, jobject Point0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getLocation, "(Ljava/awt/Point;)Ljava/awt/Point;", 2);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getLocation, 2), Point0);
	}

	void print(JNIEnv *env, jobject _this, jobject Graphics0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, print, "(Ljava/awt/Graphics;)V", 3);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, print, 3), Graphics0);
	}

	jobject getSize(JNIEnv *env, jobject _this, jobject Dimension0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getSize, "(Ljava/awt/Dimension;)Ljava/awt/Dimension;", 4);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getSize, 4), Dimension0);
	}

	void update(JNIEnv *env, jobject _this, jobject Graphics0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, update, "(Ljava/awt/Graphics;)V", 5);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, update, 5), Graphics0);
	}

	jboolean isOpaque(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, isOpaque, "()Z", 6);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(JComponent, isOpaque, 6));
	}

	void enable(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, enable, "()V", 7);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, enable, 7));
	}

	void disable(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, disable, "()V", 8);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, disable, 8));
	}

	jobject safelyGetGraphics(JNIEnv *env, jobject Component0, jobject Component1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_STATIC_METHOD(env, JComponent, safelyGetGraphics, "(Ljava/awt/Component;Ljava/awt/Component;)Ljava/awt/Graphics;", 9);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(JComponent), JAVA_METHOD(JComponent, safelyGetGraphics, 9), Component0, Component1);
	}

	jobject safelyGetGraphics(JNIEnv *env, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_STATIC_METHOD(env, JComponent, safelyGetGraphics, "(Ljava/awt/Component;)Ljava/awt/Graphics;", 10);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(JComponent), JAVA_METHOD(JComponent, safelyGetGraphics, 10), Component0);
	}

	void getGraphicsInvoked(JNIEnv *env, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_STATIC_METHOD(env, JComponent, getGraphicsInvoked, "(Ljava/awt/Component;)V", 11);
		env->CallStaticVoidMethod(JAVA_CLASS(JComponent), JAVA_METHOD(JComponent, getGraphicsInvoked, 11), Component0);
	}

	jobject getManagingFocusForwardTraversalKeys(JNIEnv *env){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_STATIC_METHOD(env, JComponent, getManagingFocusForwardTraversalKeys, "()Ljava/util/Set;", 12);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(JComponent), JAVA_METHOD(JComponent, getManagingFocusForwardTraversalKeys, 12));
	}

	jobject getManagingFocusBackwardTraversalKeys(JNIEnv *env){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_STATIC_METHOD(env, JComponent, getManagingFocusBackwardTraversalKeys, "()Ljava/util/Set;", 13);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(JComponent), JAVA_METHOD(JComponent, getManagingFocusBackwardTraversalKeys, 13));
	}

	void setInheritsPopupMenu(JNIEnv *env, jobject _this, jboolean Boolean0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setInheritsPopupMenu, "(Z)V", 14);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setInheritsPopupMenu, 14), Boolean0);
	}

	jboolean getInheritsPopupMenu(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getInheritsPopupMenu, "()Z", 15);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(JComponent, getInheritsPopupMenu, 15));
	}

	void setComponentPopupMenu(JNIEnv *env, jobject _this, jobject JPopupMenu0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setComponentPopupMenu, "(Ljavax/swing/JPopupMenu;)V", 16);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setComponentPopupMenu, 16), JPopupMenu0);
	}

	jobject getComponentPopupMenu(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getComponentPopupMenu, "()Ljavax/swing/JPopupMenu;", 17);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getComponentPopupMenu, 17));
	}

	void updateUI(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, updateUI, "()V", 18);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, updateUI, 18));
	}

	jobject getUIClassID(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getUIClassID, "()Ljava/lang/String;", 19);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getUIClassID, 19));
	}

	void paint(JNIEnv *env, jobject _this, jobject Graphics0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, paint, "(Ljava/awt/Graphics;)V", 20);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, paint, 20), Graphics0);
	}

	void paintForceDoubleBuffered(JNIEnv *env, jobject _this, jobject Graphics0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, paintForceDoubleBuffered, "(Ljava/awt/Graphics;)V", 21);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, paintForceDoubleBuffered, 21), Graphics0);
	}

	jboolean isPainting(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, isPainting, "()Z", 22);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(JComponent, isPainting, 22));
	}

	void printAll(JNIEnv *env, jobject _this, jobject Graphics0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, printAll, "(Ljava/awt/Graphics;)V", 23);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, printAll, 23), Graphics0);
	}

	jboolean isPaintingTile(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, isPaintingTile, "()Z", 24);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(JComponent, isPaintingTile, 24));
	}

	jboolean isPaintingForPrint(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, isPaintingForPrint, "()Z", 25);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(JComponent, isPaintingForPrint, 25));
	}

	jboolean isManagingFocus(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, isManagingFocus, "()Z", 26);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(JComponent, isManagingFocus, 26));
	}

	void setNextFocusableComponent(JNIEnv *env, jobject _this, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setNextFocusableComponent, "(Ljava/awt/Component;)V", 27);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setNextFocusableComponent, 27), Component0);
	}

	jobject getNextFocusableComponent(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getNextFocusableComponent, "()Ljava/awt/Component;", 28);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getNextFocusableComponent, 28));
	}

	void setRequestFocusEnabled(JNIEnv *env, jobject _this, jboolean Boolean0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setRequestFocusEnabled, "(Z)V", 29);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setRequestFocusEnabled, 29), Boolean0);
	}

	jboolean isRequestFocusEnabled(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, isRequestFocusEnabled, "()Z", 30);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(JComponent, isRequestFocusEnabled, 30));
	}

	void requestFocus(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, requestFocus, "()V", 31);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, requestFocus, 31));
	}

	jboolean requestFocus(JNIEnv *env, jobject _this, jboolean Boolean0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, requestFocus, "(Z)Z", 32);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(JComponent, requestFocus, 32), Boolean0);
	}

	jboolean requestFocusInWindow(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, requestFocusInWindow, "()Z", 33);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(JComponent, requestFocusInWindow, 33));
	}

	void grabFocus(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, grabFocus, "()V", 34);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, grabFocus, 34));
	}

	void setVerifyInputWhenFocusTarget(JNIEnv *env, jobject _this, jboolean Boolean0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setVerifyInputWhenFocusTarget, "(Z)V", 35);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setVerifyInputWhenFocusTarget, 35), Boolean0);
	}

	jboolean getVerifyInputWhenFocusTarget(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getVerifyInputWhenFocusTarget, "()Z", 36);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(JComponent, getVerifyInputWhenFocusTarget, 36));
	}

	jobject getFontMetrics(JNIEnv *env, jobject _this, jobject Font0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getFontMetrics, "(Ljava/awt/Font;)Ljava/awt/FontMetrics;", 37);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getFontMetrics, 37), Font0);
	}

	void setPreferredSize(JNIEnv *env, jobject _this, jobject Dimension0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setPreferredSize, "(Ljava/awt/Dimension;)V", 38);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setPreferredSize, 38), Dimension0);
	}

	jobject getPreferredSize(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getPreferredSize, "()Ljava/awt/Dimension;", 39);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getPreferredSize, 39));
	}

	void setMaximumSize(JNIEnv *env, jobject _this, jobject Dimension0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setMaximumSize, "(Ljava/awt/Dimension;)V", 40);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setMaximumSize, 40), Dimension0);
	}

	jobject getMaximumSize(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getMaximumSize, "()Ljava/awt/Dimension;", 41);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getMaximumSize, 41));
	}

	void setMinimumSize(JNIEnv *env, jobject _this, jobject Dimension0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setMinimumSize, "(Ljava/awt/Dimension;)V", 42);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setMinimumSize, 42), Dimension0);
	}

	jobject getMinimumSize(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getMinimumSize, "()Ljava/awt/Dimension;", 43);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getMinimumSize, 43));
	}

	void setBorder(JNIEnv *env, jobject _this, jobject Border0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setBorder, "(Ljavax/swing/border/Border;)V", 44);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setBorder, 44), Border0);
	}

	jobject getBorder(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getBorder, "()Ljavax/swing/border/Border;", 45);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getBorder, 45));
	}

	jobject getInsets(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getInsets, "()Ljava/awt/Insets;", 46);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getInsets, 46));
	}

	jobject getInsets(JNIEnv *env, jobject _this, jobject Insets0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getInsets, "(Ljava/awt/Insets;)Ljava/awt/Insets;", 47);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getInsets, 47), Insets0);
	}

	jfloat getAlignmentY(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getAlignmentY, "()F", 48);
		return (jfloat)env->CallFloatMethod(_this, JAVA_METHOD(JComponent, getAlignmentY, 48));
	}

	void setAlignmentY(JNIEnv *env, jobject _this, jfloat Float0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setAlignmentY, "(F)V", 49);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setAlignmentY, 49), Float0);
	}

	jfloat getAlignmentX(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getAlignmentX, "()F", 50);
		return (jfloat)env->CallFloatMethod(_this, JAVA_METHOD(JComponent, getAlignmentX, 50));
	}

	void setAlignmentX(JNIEnv *env, jobject _this, jfloat Float0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setAlignmentX, "(F)V", 51);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setAlignmentX, 51), Float0);
	}

	void setInputVerifier(JNIEnv *env, jobject _this, jobject InputVerifier0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setInputVerifier, "(Ljavax/swing/InputVerifier;)V", 52);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setInputVerifier, 52), InputVerifier0);
	}

	jobject getInputVerifier(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getInputVerifier, "()Ljavax/swing/InputVerifier;", 53);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getInputVerifier, 53));
	}

	jobject getGraphics(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getGraphics, "()Ljava/awt/Graphics;", 54);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getGraphics, 54));
	}

	void setDebugGraphicsOptions(JNIEnv *env, jobject _this, jint Int0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setDebugGraphicsOptions, "(I)V", 55);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setDebugGraphicsOptions, 55), Int0);
	}

	jint getDebugGraphicsOptions(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getDebugGraphicsOptions, "()I", 56);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(JComponent, getDebugGraphicsOptions, 56));
	}

	jint shouldDebugGraphics(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, shouldDebugGraphics, "()I", 57);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(JComponent, shouldDebugGraphics, 57));
	}

	void registerKeyboardAction(JNIEnv *env, jobject _this, jobject ActionListener0, jobject String1, jobject KeyStroke2, jint Int3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, registerKeyboardAction, "(Ljava/awt/event/ActionListener;Ljava/lang/String;Ljavax/swing/KeyStroke;I)V", 58);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, registerKeyboardAction, 58), ActionListener0, String1, KeyStroke2, Int3);
	}

	void registerKeyboardAction(JNIEnv *env, jobject _this, jobject ActionListener0, jobject KeyStroke1, jint Int2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, registerKeyboardAction, "(Ljava/awt/event/ActionListener;Ljavax/swing/KeyStroke;I)V", 59);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, registerKeyboardAction, 59), ActionListener0, KeyStroke1, Int2);
	}

	void componentInputMapChanged(JNIEnv *env, jobject _this, jobject ComponentInputMap0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, componentInputMapChanged, "(Ljavax/swing/ComponentInputMap;)V", 60);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, componentInputMapChanged, 60), ComponentInputMap0);
	}

	void unregisterKeyboardAction(JNIEnv *env, jobject _this, jobject KeyStroke0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, unregisterKeyboardAction, "(Ljavax/swing/KeyStroke;)V", 61);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, unregisterKeyboardAction, 61), KeyStroke0);
	}

	jobject getRegisteredKeyStrokes(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getRegisteredKeyStrokes, "()[Ljavax/swing/KeyStroke;", 62);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getRegisteredKeyStrokes, 62));
	}

	jint getConditionForKeyStroke(JNIEnv *env, jobject _this, jobject KeyStroke0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getConditionForKeyStroke, "(Ljavax/swing/KeyStroke;)I", 63);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(JComponent, getConditionForKeyStroke, 63), KeyStroke0);
	}

	jobject getActionForKeyStroke(JNIEnv *env, jobject _this, jobject KeyStroke0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getActionForKeyStroke, "(Ljavax/swing/KeyStroke;)Ljava/awt/event/ActionListener;", 64);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getActionForKeyStroke, 64), KeyStroke0);
	}

	void resetKeyboardActions(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, resetKeyboardActions, "()V", 65);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, resetKeyboardActions, 65));
	}

	void setInputMap(JNIEnv *env, jobject _this, jint Int0, jobject InputMap1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setInputMap, "(ILjavax/swing/InputMap;)V", 66);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setInputMap, 66), Int0, InputMap1);
	}

	jobject getInputMap(JNIEnv *env, jobject _this, jint Int0, jboolean Boolean1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getInputMap, "(IZ)Ljavax/swing/InputMap;", 67);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getInputMap, 67), Int0, Boolean1);
	}

	jobject getInputMap(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getInputMap, "()Ljavax/swing/InputMap;", 68);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getInputMap, 68));
	}

	jobject getInputMap(JNIEnv *env, jobject _this, jint Int0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getInputMap, "(I)Ljavax/swing/InputMap;", 69);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getInputMap, 69), Int0);
	}

	void setActionMap(JNIEnv *env, jobject _this, jobject ActionMap0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setActionMap, "(Ljavax/swing/ActionMap;)V", 70);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setActionMap, 70), ActionMap0);
	}

	jobject getActionMap(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getActionMap, "()Ljavax/swing/ActionMap;", 71);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getActionMap, 71));
	}

	jobject getActionMap(JNIEnv *env, jobject _this, jboolean Boolean0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getActionMap, "(Z)Ljavax/swing/ActionMap;", 72);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getActionMap, 72), Boolean0);
	}

	jint getBaseline(JNIEnv *env, jobject _this, jint Int0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getBaseline, "(II)I", 73);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(JComponent, getBaseline, 73), Int0, Int1);
	}

	jobject getBaselineResizeBehavior(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getBaselineResizeBehavior, "()Ljava/awt/Component$BaselineResizeBehavior;", 74);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getBaselineResizeBehavior, 74));
	}

	jboolean requestDefaultFocus(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, requestDefaultFocus, "()Z", 75);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(JComponent, requestDefaultFocus, 75));
	}

	void setVisible(JNIEnv *env, jobject _this, jboolean Boolean0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setVisible, "(Z)V", 76);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setVisible, 76), Boolean0);
	}

	void setEnabled(JNIEnv *env, jobject _this, jboolean Boolean0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setEnabled, "(Z)V", 77);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setEnabled, 77), Boolean0);
	}

	void setForeground(JNIEnv *env, jobject _this, jobject Color0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setForeground, "(Ljava/awt/Color;)V", 78);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setForeground, 78), Color0);
	}

	void setBackground(JNIEnv *env, jobject _this, jobject Color0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setBackground, "(Ljava/awt/Color;)V", 79);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setBackground, 79), Color0);
	}

	void setFont(JNIEnv *env, jobject _this, jobject Font0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setFont, "(Ljava/awt/Font;)V", 80);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setFont, 80), Font0);
	}

	jobject getDefaultLocale(JNIEnv *env){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_STATIC_METHOD(env, JComponent, getDefaultLocale, "()Ljava/util/Locale;", 81);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(JComponent), JAVA_METHOD(JComponent, getDefaultLocale, 81));
	}

	void setDefaultLocale(JNIEnv *env, jobject Locale0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_STATIC_METHOD(env, JComponent, setDefaultLocale, "(Ljava/util/Locale;)V", 82);
		env->CallStaticVoidMethod(JAVA_CLASS(JComponent), JAVA_METHOD(JComponent, setDefaultLocale, 82), Locale0);
	}

	jboolean processKeyBindings(JNIEnv *env, jobject _this, jobject KeyEvent0, jboolean Boolean1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, processKeyBindings, "(Ljava/awt/event/KeyEvent;Z)Z", 83);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(JComponent, processKeyBindings, 83), KeyEvent0, Boolean1);
	}

	jboolean processKeyBindingsForAllComponents(JNIEnv *env, jobject KeyEvent0, jobject Container1, jboolean Boolean2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_STATIC_METHOD(env, JComponent, processKeyBindingsForAllComponents, "(Ljava/awt/event/KeyEvent;Ljava/awt/Container;Z)Z", 84);
		return (jboolean)env->CallStaticBooleanMethod(JAVA_CLASS(JComponent), JAVA_METHOD(JComponent, processKeyBindingsForAllComponents, 84), KeyEvent0, Container1, Boolean2);
	}

	void setToolTipText(JNIEnv *env, jobject _this, jobject String0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setToolTipText, "(Ljava/lang/String;)V", 85);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setToolTipText, 85), String0);
	}

	jobject getToolTipText(JNIEnv *env, jobject _this, jobject MouseEvent0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getToolTipText, "(Ljava/awt/event/MouseEvent;)Ljava/lang/String;", 86);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getToolTipText, 86), MouseEvent0);
	}

	jobject getToolTipText(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getToolTipText, "()Ljava/lang/String;", 87);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getToolTipText, 87));
	}

	jobject getToolTipLocation(JNIEnv *env, jobject _this, jobject MouseEvent0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getToolTipLocation, "(Ljava/awt/event/MouseEvent;)Ljava/awt/Point;", 88);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getToolTipLocation, 88), MouseEvent0);
	}

	jobject getPopupLocation(JNIEnv *env, jobject _this, jobject MouseEvent0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getPopupLocation, "(Ljava/awt/event/MouseEvent;)Ljava/awt/Point;", 89);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getPopupLocation, 89), MouseEvent0);
	}

	jobject createToolTip(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, createToolTip, "()Ljavax/swing/JToolTip;", 90);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, createToolTip, 90));
	}

	void scrollRectToVisible(JNIEnv *env, jobject _this, jobject Rectangle0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, scrollRectToVisible, "(Ljava/awt/Rectangle;)V", 91);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, scrollRectToVisible, 91), Rectangle0);
	}

	void setAutoscrolls(JNIEnv *env, jobject _this, jboolean Boolean0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setAutoscrolls, "(Z)V", 92);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setAutoscrolls, 92), Boolean0);
	}

	jboolean getAutoscrolls(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getAutoscrolls, "()Z", 93);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(JComponent, getAutoscrolls, 93));
	}

	void setTransferHandler(JNIEnv *env, jobject _this, jobject TransferHandler0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setTransferHandler, "(Ljavax/swing/TransferHandler;)V", 94);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setTransferHandler, 94), TransferHandler0);
	}

	jobject getTransferHandler(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getTransferHandler, "()Ljavax/swing/TransferHandler;", 95);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getTransferHandler, 95));
	}

	jobject dropLocationForPoint(JNIEnv *env, jobject _this, jobject Point0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, dropLocationForPoint, "(Ljava/awt/Point;)Ljavax/swing/TransferHandler$DropLocation;", 96);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, dropLocationForPoint, 96), Point0);
	}

	jobject setDropLocation(JNIEnv *env, jobject _this, jobject TransferHandler$DropLocation0, jobject Object1, jboolean Boolean2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setDropLocation, "(Ljavax/swing/TransferHandler$DropLocation;Ljava/lang/Object;Z)Ljava/lang/Object;", 97);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, setDropLocation, 97), TransferHandler$DropLocation0, Object1, Boolean2);
	}

	void dndDone(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, dndDone, "()V", 98);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, dndDone, 98));
	}

	void superProcessMouseMotionEvent(JNIEnv *env, jobject _this, jobject MouseEvent0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, superProcessMouseMotionEvent, "(Ljava/awt/event/MouseEvent;)V", 99);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, superProcessMouseMotionEvent, 99), MouseEvent0);
	}

	void setCreatedDoubleBuffer(JNIEnv *env, jobject _this, jboolean Boolean0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setCreatedDoubleBuffer, "(Z)V", 100);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setCreatedDoubleBuffer, 100), Boolean0);
	}

	jboolean getCreatedDoubleBuffer(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getCreatedDoubleBuffer, "()Z", 101);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(JComponent, getCreatedDoubleBuffer, 101));
	}

	jobject getAccessibleContext(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getAccessibleContext, "()Ljavax/accessibility/AccessibleContext;", 102);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getAccessibleContext, 102));
	}

	jobject getClientProperty(JNIEnv *env, jobject _this, jobject Object0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getClientProperty, "(Ljava/lang/Object;)Ljava/lang/Object;", 103);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getClientProperty, 103), Object0);
	}

	void putClientProperty(JNIEnv *env, jobject _this, jobject Object0, jobject Object1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, putClientProperty, "(Ljava/lang/Object;Ljava/lang/Object;)V", 104);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, putClientProperty, 104), Object0, Object1);
	}

	void clientPropertyChanged(JNIEnv *env, jobject _this, jobject Object0, jobject Object1, jobject Object2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, clientPropertyChanged, "(Ljava/lang/Object;Ljava/lang/Object;Ljava/lang/Object;)V", 105);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, clientPropertyChanged, 105), Object0, Object1, Object2);
	}

	void setUIProperty(JNIEnv *env, jobject _this, jobject String0, jobject Object1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setUIProperty, "(Ljava/lang/String;Ljava/lang/Object;)V", 106);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setUIProperty, 106), String0, Object1);
	}

	void setFocusTraversalKeys(JNIEnv *env, jobject _this, jint Int0, jobject Set1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setFocusTraversalKeys, "(ILjava/util/Set;)V", 107);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setFocusTraversalKeys, 107), Int0, Set1);
	}

	jboolean isLightweightComponent(JNIEnv *env, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_STATIC_METHOD(env, JComponent, isLightweightComponent, "(Ljava/awt/Component;)Z", 108);
		return (jboolean)env->CallStaticBooleanMethod(JAVA_CLASS(JComponent), JAVA_METHOD(JComponent, isLightweightComponent, 108), Component0);
	}

	void reshape(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, reshape, "(IIII)V", 109);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, reshape, 109), Int0, Int1, Int2, Int3);
	}

	jobject getBounds(JNIEnv *env, jobject _this, jobject Rectangle0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getBounds, "(Ljava/awt/Rectangle;)Ljava/awt/Rectangle;", 110);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getBounds, 110), Rectangle0);
	}

	jint getX(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getX, "()I", 111);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(JComponent, getX, 111));
	}

	jint getY(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getY, "()I", 112);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(JComponent, getY, 112));
	}

	jint getWidth(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getWidth, "()I", 113);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(JComponent, getWidth, 113));
	}

	jint getHeight(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getHeight, "()I", 114);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(JComponent, getHeight, 114));
	}

	void setOpaque(JNIEnv *env, jobject _this, jboolean Boolean0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setOpaque, "(Z)V", 115);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setOpaque, 115), Boolean0);
	}

	jboolean rectangleIsObscured(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, rectangleIsObscured, "(IIII)Z", 116);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(JComponent, rectangleIsObscured, 116), Int0, Int1, Int2, Int3);
	}

	void staticComputeVisibleRect(JNIEnv *env, jobject Component0, jobject Rectangle1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_STATIC_METHOD(env, JComponent, computeVisibleRect, "(Ljava/awt/Component;Ljava/awt/Rectangle;)V", 117);
		env->CallStaticVoidMethod(JAVA_CLASS(JComponent), JAVA_METHOD(JComponent, computeVisibleRect, 117), Component0, Rectangle1);
	}

	void computeVisibleRect(JNIEnv *env, jobject _this, jobject Rectangle0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, computeVisibleRect, "(Ljava/awt/Rectangle;)V", 118);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, computeVisibleRect, 118), Rectangle0);
	}

	jobject getVisibleRect(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getVisibleRect, "()Ljava/awt/Rectangle;", 119);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getVisibleRect, 119));
	}

	void firePropertyChange(JNIEnv *env, jobject _this, jobject String0, jint Int1, jint Int2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, firePropertyChange, "(Ljava/lang/String;II)V", 120);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, firePropertyChange, 120), String0, Int1, Int2);
	}

	void firePropertyChange(JNIEnv *env, jobject _this, jobject String0, jboolean Boolean1, jboolean Boolean2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, firePropertyChange, "(Ljava/lang/String;ZZ)V", 121);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, firePropertyChange, 121), String0, Boolean1, Boolean2);
	}

	void firePropertyChange(JNIEnv *env, jobject _this, jobject String0, jchar Char1, jchar Char2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, firePropertyChange, "(Ljava/lang/String;CC)V", 122);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, firePropertyChange, 122), String0, Char1, Char2);
	}

	void addVetoableChangeListener(JNIEnv *env, jobject _this, jobject VetoableChangeListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, addVetoableChangeListener, "(Ljava/beans/VetoableChangeListener;)V", 123);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, addVetoableChangeListener, 123), VetoableChangeListener0);
	}

	void removeVetoableChangeListener(JNIEnv *env, jobject _this, jobject VetoableChangeListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, removeVetoableChangeListener, "(Ljava/beans/VetoableChangeListener;)V", 124);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, removeVetoableChangeListener, 124), VetoableChangeListener0);
	}

	jobject getVetoableChangeListeners(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getVetoableChangeListeners, "()[Ljava/beans/VetoableChangeListener;", 125);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getVetoableChangeListeners, 125));
	}

	jobject getTopLevelAncestor(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getTopLevelAncestor, "()Ljava/awt/Container;", 126);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getTopLevelAncestor, 126));
	}

	void addAncestorListener(JNIEnv *env, jobject _this, jobject AncestorListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, addAncestorListener, "(Ljavax/swing/event/AncestorListener;)V", 127);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, addAncestorListener, 127), AncestorListener0);
	}

	void removeAncestorListener(JNIEnv *env, jobject _this, jobject AncestorListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, removeAncestorListener, "(Ljavax/swing/event/AncestorListener;)V", 128);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, removeAncestorListener, 128), AncestorListener0);
	}

	jobject getAncestorListeners(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getAncestorListeners, "()[Ljavax/swing/event/AncestorListener;", 129);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getAncestorListeners, 129));
	}

	jobject getListeners(JNIEnv *env, jobject _this, jclass Class0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getListeners, "(Ljava/lang/Class;)[Ljava/util/EventListener;", 130);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getListeners, 130), Class0);
	}

	void addNotify(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, addNotify, "()V", 131);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, addNotify, 131));
	}

	void removeNotify(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, removeNotify, "()V", 132);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, removeNotify, 132));
	}

	void repaint(JNIEnv *env, jobject _this, jlong Long0, jint Int1, jint Int2, jint Int3, jint Int4){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, repaint, "(JIIII)V", 133);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, repaint, 133), Long0, Int1, Int2, Int3, Int4);
	}

	void repaint(JNIEnv *env, jobject _this, jobject Rectangle0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, repaint, "(Ljava/awt/Rectangle;)V", 134);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, repaint, 134), Rectangle0);
	}

	void revalidate(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, revalidate, "()V", 135);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, revalidate, 135));
	}

	jboolean isValidateRoot(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, isValidateRoot, "()Z", 136);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(JComponent, isValidateRoot, 136));
	}

	jboolean isOptimizedDrawingEnabled(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, isOptimizedDrawingEnabled, "()Z", 137);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(JComponent, isOptimizedDrawingEnabled, 137));
	}

	jboolean isPaintingOrigin(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, isPaintingOrigin, "()Z", 138);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(JComponent, isPaintingOrigin, 138));
	}

	void paintImmediately(JNIEnv *env, jobject _this, jobject Rectangle0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, paintImmediately, "(Ljava/awt/Rectangle;)V", 139);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, paintImmediately, 139), Rectangle0);
	}

	void paintImmediately(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, paintImmediately, "(IIII)V", 140);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, paintImmediately, 140), Int0, Int1, Int2, Int3);
	}

	jboolean alwaysOnTop(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, alwaysOnTop, "()Z", 141);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(JComponent, alwaysOnTop, 141));
	}

	void setPaintingChild(JNIEnv *env, jobject _this, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setPaintingChild, "(Ljava/awt/Component;)V", 142);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setPaintingChild, 142), Component0);
	}

	void _paintImmediately(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, _paintImmediately, "(IIII)V", 143);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, _paintImmediately, 143), Int0, Int1, Int2, Int3);
	}

	void paintToOffscreen(JNIEnv *env, jobject _this, jobject Graphics0, jint Int1, jint Int2, jint Int3, jint Int4, jint Int5, jint Int6){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, paintToOffscreen, "(Ljava/awt/Graphics;IIIIII)V", 144);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, paintToOffscreen, 144), Graphics0, Int1, Int2, Int3, Int4, Int5, Int6);
	}

	jboolean checkIfChildObscuredBySibling(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, checkIfChildObscuredBySibling, "()Z", 145);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(JComponent, checkIfChildObscuredBySibling, 145));
	}

	void setWriteObjCounter(JNIEnv *env, jobject JComponent0, jbyte Byte1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_STATIC_METHOD(env, JComponent, setWriteObjCounter, "(Ljavax/swing/JComponent;B)V", 146);
		env->CallStaticVoidMethod(JAVA_CLASS(JComponent), JAVA_METHOD(JComponent, setWriteObjCounter, 146), JComponent0, Byte1);
	}

	jbyte getWriteObjCounter(JNIEnv *env, jobject JComponent0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_STATIC_METHOD(env, JComponent, getWriteObjCounter, "(Ljavax/swing/JComponent;)B", 147);
		return (jbyte)env->CallStaticByteMethod(JAVA_CLASS(JComponent), JAVA_METHOD(JComponent, getWriteObjCounter, 147), JComponent0);
	}

	void setDoubleBuffered(JNIEnv *env, jobject _this, jboolean Boolean0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, setDoubleBuffered, "(Z)V", 148);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, setDoubleBuffered, 148), Boolean0);
	}

	jboolean isDoubleBuffered(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, isDoubleBuffered, "()Z", 149);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(JComponent, isDoubleBuffered, 149));
	}

	jobject getRootPane(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, getRootPane, "()Ljavax/swing/JRootPane;", 150);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(JComponent, getRootPane, 150));
	}

	void compWriteObjectNotify(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(JComponent), "javax/swing/JComponent");
		INIT_CACHE_METHOD(env, JComponent, compWriteObjectNotify, "()V", 151);
		env->CallVoidMethod(_this, JAVA_METHOD(JComponent, compWriteObjectNotify, 151));
	}

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		INIT_CACHE_CLASS(jni_env, JComponent, "javax/swing/JComponent");
		INIT_CACHE_STATIC_FIELD(jni_env, JComponent, DEBUG_GRAPHICS_LOADED, "Z");
		INIT_CACHE_FIELD(jni_env, JComponent, paintingChild, "Ljava/awt/Component;");
		INIT_CACHE_STATIC_FIELD(jni_env, JComponent, WHEN_FOCUSED, "I");
		INIT_CACHE_STATIC_FIELD(jni_env, JComponent, WHEN_ANCESTOR_OF_FOCUSED_COMPONENT, "I");
		INIT_CACHE_STATIC_FIELD(jni_env, JComponent, WHEN_IN_FOCUSED_WINDOW, "I");
		INIT_CACHE_STATIC_FIELD(jni_env, JComponent, UNDEFINED_CONDITION, "I");
		INIT_CACHE_STATIC_FIELD(jni_env, JComponent, TOOL_TIP_TEXT_KEY, "Ljava/lang/String;");
		INIT_CACHE_STATIC_FIELD(jni_env, JComponent, focusController, "Lsun/awt/RequestFocusController;");
	}

	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		DELETE_CACHED_CLASS_REF(jni_env, JComponent);
		DELETE_CACHED_FIELD_REF(jni_env, JComponent, DEBUG_GRAPHICS_LOADED);
		DELETE_CACHED_FIELD_REF(jni_env, JComponent, paintingChild);
		DELETE_CACHED_FIELD_REF(jni_env, JComponent, WHEN_FOCUSED);
		DELETE_CACHED_FIELD_REF(jni_env, JComponent, WHEN_ANCESTOR_OF_FOCUSED_COMPONENT);
		DELETE_CACHED_FIELD_REF(jni_env, JComponent, WHEN_IN_FOCUSED_WINDOW);
		DELETE_CACHED_FIELD_REF(jni_env, JComponent, UNDEFINED_CONDITION);
		DELETE_CACHED_FIELD_REF(jni_env, JComponent, TOOL_TIP_TEXT_KEY);
		DELETE_CACHED_FIELD_REF(jni_env, JComponent, focusController);
	}

}
