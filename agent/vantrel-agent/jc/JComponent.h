#ifndef JCOMPONENT_H
#define JCOMPONENT_H

#include "../JCBase.h"
#include "../JavaInc.h"
#include  <assert.h>

namespace NSJComponent{

	extern CACHE_JAVA_CLASS(JComponent);

	extern CACHE_JAVA_STATIC_FIELD(JComponent, DEBUG_GRAPHICS_LOADED);

	extern CACHE_JAVA_FIELD(JComponent, paintingChild);

	extern CACHE_JAVA_STATIC_FIELD(JComponent, WHEN_FOCUSED);

	extern CACHE_JAVA_STATIC_FIELD(JComponent, WHEN_ANCESTOR_OF_FOCUSED_COMPONENT);

	extern CACHE_JAVA_STATIC_FIELD(JComponent, WHEN_IN_FOCUSED_WINDOW);

	extern CACHE_JAVA_STATIC_FIELD(JComponent, UNDEFINED_CONDITION);

	extern CACHE_JAVA_STATIC_FIELD(JComponent, TOOL_TIP_TEXT_KEY);

	extern CACHE_JAVA_STATIC_FIELD(JComponent, focusController);

	extern CACHE_JAVA_CONSTRUCTOR(JComponent, 0);

	extern CACHE_JAVA_METHOD(JComponent, contains, 1);

	extern CACHE_JAVA_METHOD(JComponent, getLocation, 2);

	extern CACHE_JAVA_METHOD(JComponent, print, 3);

	extern CACHE_JAVA_METHOD(JComponent, getSize, 4);

	extern CACHE_JAVA_METHOD(JComponent, update, 5);

	extern CACHE_JAVA_METHOD(JComponent, isOpaque, 6);

	extern CACHE_JAVA_METHOD(JComponent, enable, 7);

	extern CACHE_JAVA_METHOD(JComponent, disable, 8);

	extern CACHE_JAVA_STATIC_METHOD(JComponent, safelyGetGraphics, 9);

	extern CACHE_JAVA_STATIC_METHOD(JComponent, safelyGetGraphics, 10);

	extern CACHE_JAVA_STATIC_METHOD(JComponent, getGraphicsInvoked, 11);

	extern CACHE_JAVA_STATIC_METHOD(JComponent, getManagingFocusForwardTraversalKeys, 12);

	extern CACHE_JAVA_STATIC_METHOD(JComponent, getManagingFocusBackwardTraversalKeys, 13);

	extern CACHE_JAVA_METHOD(JComponent, setInheritsPopupMenu, 14);

	extern CACHE_JAVA_METHOD(JComponent, getInheritsPopupMenu, 15);

	extern CACHE_JAVA_METHOD(JComponent, setComponentPopupMenu, 16);

	extern CACHE_JAVA_METHOD(JComponent, getComponentPopupMenu, 17);

	extern CACHE_JAVA_METHOD(JComponent, updateUI, 18);

	extern CACHE_JAVA_METHOD(JComponent, getUIClassID, 19);

	extern CACHE_JAVA_METHOD(JComponent, paint, 20);

	extern CACHE_JAVA_METHOD(JComponent, paintForceDoubleBuffered, 21);

	extern CACHE_JAVA_METHOD(JComponent, isPainting, 22);

	extern CACHE_JAVA_METHOD(JComponent, printAll, 23);

	extern CACHE_JAVA_METHOD(JComponent, isPaintingTile, 24);

	extern CACHE_JAVA_METHOD(JComponent, isPaintingForPrint, 25);

	extern CACHE_JAVA_METHOD(JComponent, isManagingFocus, 26);

	extern CACHE_JAVA_METHOD(JComponent, setNextFocusableComponent, 27);

	extern CACHE_JAVA_METHOD(JComponent, getNextFocusableComponent, 28);

	extern CACHE_JAVA_METHOD(JComponent, setRequestFocusEnabled, 29);

	extern CACHE_JAVA_METHOD(JComponent, isRequestFocusEnabled, 30);

	extern CACHE_JAVA_METHOD(JComponent, requestFocus, 31);

	extern CACHE_JAVA_METHOD(JComponent, requestFocus, 32);

	extern CACHE_JAVA_METHOD(JComponent, requestFocusInWindow, 33);

	extern CACHE_JAVA_METHOD(JComponent, grabFocus, 34);

	extern CACHE_JAVA_METHOD(JComponent, setVerifyInputWhenFocusTarget, 35);

	extern CACHE_JAVA_METHOD(JComponent, getVerifyInputWhenFocusTarget, 36);

	extern CACHE_JAVA_METHOD(JComponent, getFontMetrics, 37);

	extern CACHE_JAVA_METHOD(JComponent, setPreferredSize, 38);

	extern CACHE_JAVA_METHOD(JComponent, getPreferredSize, 39);

	extern CACHE_JAVA_METHOD(JComponent, setMaximumSize, 40);

	extern CACHE_JAVA_METHOD(JComponent, getMaximumSize, 41);

	extern CACHE_JAVA_METHOD(JComponent, setMinimumSize, 42);

	extern CACHE_JAVA_METHOD(JComponent, getMinimumSize, 43);

	extern CACHE_JAVA_METHOD(JComponent, setBorder, 44);

	extern CACHE_JAVA_METHOD(JComponent, getBorder, 45);

	extern CACHE_JAVA_METHOD(JComponent, getInsets, 46);

	extern CACHE_JAVA_METHOD(JComponent, getInsets, 47);

	extern CACHE_JAVA_METHOD(JComponent, getAlignmentY, 48);

	extern CACHE_JAVA_METHOD(JComponent, setAlignmentY, 49);

	extern CACHE_JAVA_METHOD(JComponent, getAlignmentX, 50);

	extern CACHE_JAVA_METHOD(JComponent, setAlignmentX, 51);

	extern CACHE_JAVA_METHOD(JComponent, setInputVerifier, 52);

	extern CACHE_JAVA_METHOD(JComponent, getInputVerifier, 53);

	extern CACHE_JAVA_METHOD(JComponent, getGraphics, 54);

	extern CACHE_JAVA_METHOD(JComponent, setDebugGraphicsOptions, 55);

	extern CACHE_JAVA_METHOD(JComponent, getDebugGraphicsOptions, 56);

	extern CACHE_JAVA_METHOD(JComponent, shouldDebugGraphics, 57);

	extern CACHE_JAVA_METHOD(JComponent, registerKeyboardAction, 58);

	extern CACHE_JAVA_METHOD(JComponent, registerKeyboardAction, 59);

	extern CACHE_JAVA_METHOD(JComponent, componentInputMapChanged, 60);

	extern CACHE_JAVA_METHOD(JComponent, unregisterKeyboardAction, 61);

	extern CACHE_JAVA_METHOD(JComponent, getRegisteredKeyStrokes, 62);

	extern CACHE_JAVA_METHOD(JComponent, getConditionForKeyStroke, 63);

	extern CACHE_JAVA_METHOD(JComponent, getActionForKeyStroke, 64);

	extern CACHE_JAVA_METHOD(JComponent, resetKeyboardActions, 65);

	extern CACHE_JAVA_METHOD(JComponent, setInputMap, 66);

	extern CACHE_JAVA_METHOD(JComponent, getInputMap, 67);

	extern CACHE_JAVA_METHOD(JComponent, getInputMap, 68);

	extern CACHE_JAVA_METHOD(JComponent, getInputMap, 69);

	extern CACHE_JAVA_METHOD(JComponent, setActionMap, 70);

	extern CACHE_JAVA_METHOD(JComponent, getActionMap, 71);

	extern CACHE_JAVA_METHOD(JComponent, getActionMap, 72);

	extern CACHE_JAVA_METHOD(JComponent, getBaseline, 73);

	extern CACHE_JAVA_METHOD(JComponent, getBaselineResizeBehavior, 74);

	extern CACHE_JAVA_METHOD(JComponent, requestDefaultFocus, 75);

	extern CACHE_JAVA_METHOD(JComponent, setVisible, 76);

	extern CACHE_JAVA_METHOD(JComponent, setEnabled, 77);

	extern CACHE_JAVA_METHOD(JComponent, setForeground, 78);

	extern CACHE_JAVA_METHOD(JComponent, setBackground, 79);

	extern CACHE_JAVA_METHOD(JComponent, setFont, 80);

	extern CACHE_JAVA_STATIC_METHOD(JComponent, getDefaultLocale, 81);

	extern CACHE_JAVA_STATIC_METHOD(JComponent, setDefaultLocale, 82);

	extern CACHE_JAVA_METHOD(JComponent, processKeyBindings, 83);

	extern CACHE_JAVA_STATIC_METHOD(JComponent, processKeyBindingsForAllComponents, 84);

	extern CACHE_JAVA_METHOD(JComponent, setToolTipText, 85);

	extern CACHE_JAVA_METHOD(JComponent, getToolTipText, 86);

	extern CACHE_JAVA_METHOD(JComponent, getToolTipText, 87);

	extern CACHE_JAVA_METHOD(JComponent, getToolTipLocation, 88);

	extern CACHE_JAVA_METHOD(JComponent, getPopupLocation, 89);

	extern CACHE_JAVA_METHOD(JComponent, createToolTip, 90);

	extern CACHE_JAVA_METHOD(JComponent, scrollRectToVisible, 91);

	extern CACHE_JAVA_METHOD(JComponent, setAutoscrolls, 92);

	extern CACHE_JAVA_METHOD(JComponent, getAutoscrolls, 93);

	extern CACHE_JAVA_METHOD(JComponent, setTransferHandler, 94);

	extern CACHE_JAVA_METHOD(JComponent, getTransferHandler, 95);

	extern CACHE_JAVA_METHOD(JComponent, dropLocationForPoint, 96);

	extern CACHE_JAVA_METHOD(JComponent, setDropLocation, 97);

	extern CACHE_JAVA_METHOD(JComponent, dndDone, 98);

	extern CACHE_JAVA_METHOD(JComponent, superProcessMouseMotionEvent, 99);

	extern CACHE_JAVA_METHOD(JComponent, setCreatedDoubleBuffer, 100);

	extern CACHE_JAVA_METHOD(JComponent, getCreatedDoubleBuffer, 101);

	extern CACHE_JAVA_METHOD(JComponent, getAccessibleContext, 102);

	extern CACHE_JAVA_METHOD(JComponent, getClientProperty, 103);

	extern CACHE_JAVA_METHOD(JComponent, putClientProperty, 104);

	extern CACHE_JAVA_METHOD(JComponent, clientPropertyChanged, 105);

	extern CACHE_JAVA_METHOD(JComponent, setUIProperty, 106);

	extern CACHE_JAVA_METHOD(JComponent, setFocusTraversalKeys, 107);

	extern CACHE_JAVA_STATIC_METHOD(JComponent, isLightweightComponent, 108);

	extern CACHE_JAVA_METHOD(JComponent, reshape, 109);

	extern CACHE_JAVA_METHOD(JComponent, getBounds, 110);

	extern CACHE_JAVA_METHOD(JComponent, getX, 111);

	extern CACHE_JAVA_METHOD(JComponent, getY, 112);

	extern CACHE_JAVA_METHOD(JComponent, getWidth, 113);

	extern CACHE_JAVA_METHOD(JComponent, getHeight, 114);

	extern CACHE_JAVA_METHOD(JComponent, setOpaque, 115);

	extern CACHE_JAVA_METHOD(JComponent, rectangleIsObscured, 116);

	extern CACHE_JAVA_STATIC_METHOD(JComponent, computeVisibleRect, 117);

	extern CACHE_JAVA_METHOD(JComponent, computeVisibleRect, 118);

	extern CACHE_JAVA_METHOD(JComponent, getVisibleRect, 119);

	extern CACHE_JAVA_METHOD(JComponent, firePropertyChange, 120);

	extern CACHE_JAVA_METHOD(JComponent, firePropertyChange, 121);

	extern CACHE_JAVA_METHOD(JComponent, firePropertyChange, 122);

	extern CACHE_JAVA_METHOD(JComponent, addVetoableChangeListener, 123);

	extern CACHE_JAVA_METHOD(JComponent, removeVetoableChangeListener, 124);

	extern CACHE_JAVA_METHOD(JComponent, getVetoableChangeListeners, 125);

	extern CACHE_JAVA_METHOD(JComponent, getTopLevelAncestor, 126);

	extern CACHE_JAVA_METHOD(JComponent, addAncestorListener, 127);

	extern CACHE_JAVA_METHOD(JComponent, removeAncestorListener, 128);

	extern CACHE_JAVA_METHOD(JComponent, getAncestorListeners, 129);

	extern CACHE_JAVA_METHOD(JComponent, getListeners, 130);

	extern CACHE_JAVA_METHOD(JComponent, addNotify, 131);

	extern CACHE_JAVA_METHOD(JComponent, removeNotify, 132);

	extern CACHE_JAVA_METHOD(JComponent, repaint, 133);

	extern CACHE_JAVA_METHOD(JComponent, repaint, 134);

	extern CACHE_JAVA_METHOD(JComponent, revalidate, 135);

	extern CACHE_JAVA_METHOD(JComponent, isValidateRoot, 136);

	extern CACHE_JAVA_METHOD(JComponent, isOptimizedDrawingEnabled, 137);

	extern CACHE_JAVA_METHOD(JComponent, isPaintingOrigin, 138);

	extern CACHE_JAVA_METHOD(JComponent, paintImmediately, 139);

	extern CACHE_JAVA_METHOD(JComponent, paintImmediately, 140);

	extern CACHE_JAVA_METHOD(JComponent, alwaysOnTop, 141);

	extern CACHE_JAVA_METHOD(JComponent, setPaintingChild, 142);

	extern CACHE_JAVA_METHOD(JComponent, _paintImmediately, 143);

	extern CACHE_JAVA_METHOD(JComponent, paintToOffscreen, 144);

	extern CACHE_JAVA_METHOD(JComponent, checkIfChildObscuredBySibling, 145);

	extern CACHE_JAVA_STATIC_METHOD(JComponent, setWriteObjCounter, 146);

	extern CACHE_JAVA_STATIC_METHOD(JComponent, getWriteObjCounter, 147);

	extern CACHE_JAVA_METHOD(JComponent, setDoubleBuffered, 148);

	extern CACHE_JAVA_METHOD(JComponent, isDoubleBuffered, 149);

	extern CACHE_JAVA_METHOD(JComponent, getRootPane, 150);

	extern CACHE_JAVA_METHOD(JComponent, compWriteObjectNotify, 151);

	jobject JComponent(JNIEnv *env); //0 ()V

	jboolean contains(JNIEnv *env, jobject _this, jint Int0, jint Int1); //1 (II)Z

	jobject getLocation(JNIEnv *env, jobject _this, jobject Point0); //2 (Ljava/awt/Point;)Ljava/awt/Point;

	void print(JNIEnv *env, jobject _this, jobject Graphics0); //3 (Ljava/awt/Graphics;)V

	jobject getSize(JNIEnv *env, jobject _this, jobject Dimension0); //4 (Ljava/awt/Dimension;)Ljava/awt/Dimension;

	void update(JNIEnv *env, jobject _this, jobject Graphics0); //5 (Ljava/awt/Graphics;)V

	jboolean isOpaque(JNIEnv *env, jobject _this); //6 ()Z

	void enable(JNIEnv *env, jobject _this); //7 ()V

	void disable(JNIEnv *env, jobject _this); //8 ()V

	jobject safelyGetGraphics(JNIEnv *env, jobject Component0, jobject Component1); //9 (Ljava/awt/Component;Ljava/awt/Component;)Ljava/awt/Graphics;

	jobject safelyGetGraphics(JNIEnv *env, jobject Component0); //10 (Ljava/awt/Component;)Ljava/awt/Graphics;

	void getGraphicsInvoked(JNIEnv *env, jobject Component0); //11 (Ljava/awt/Component;)V

	jobject getManagingFocusForwardTraversalKeys(JNIEnv *env); //12 ()Ljava/util/Set;

	jobject getManagingFocusBackwardTraversalKeys(JNIEnv *env); //13 ()Ljava/util/Set;

	void setInheritsPopupMenu(JNIEnv *env, jobject _this, jboolean Boolean0); //14 (Z)V

	jboolean getInheritsPopupMenu(JNIEnv *env, jobject _this); //15 ()Z

	void setComponentPopupMenu(JNIEnv *env, jobject _this, jobject JPopupMenu0); //16 (Ljavax/swing/JPopupMenu;)V

	jobject getComponentPopupMenu(JNIEnv *env, jobject _this); //17 ()Ljavax/swing/JPopupMenu;

	void updateUI(JNIEnv *env, jobject _this); //18 ()V

	jobject getUIClassID(JNIEnv *env, jobject _this); //19 ()Ljava/lang/String;

	void paint(JNIEnv *env, jobject _this, jobject Graphics0); //20 (Ljava/awt/Graphics;)V

	void paintForceDoubleBuffered(JNIEnv *env, jobject _this, jobject Graphics0); //21 (Ljava/awt/Graphics;)V

	jboolean isPainting(JNIEnv *env, jobject _this); //22 ()Z

	void printAll(JNIEnv *env, jobject _this, jobject Graphics0); //23 (Ljava/awt/Graphics;)V

	jboolean isPaintingTile(JNIEnv *env, jobject _this); //24 ()Z

	jboolean isPaintingForPrint(JNIEnv *env, jobject _this); //25 ()Z

	jboolean isManagingFocus(JNIEnv *env, jobject _this); //26 ()Z

	void setNextFocusableComponent(JNIEnv *env, jobject _this, jobject Component0); //27 (Ljava/awt/Component;)V

	jobject getNextFocusableComponent(JNIEnv *env, jobject _this); //28 ()Ljava/awt/Component;

	void setRequestFocusEnabled(JNIEnv *env, jobject _this, jboolean Boolean0); //29 (Z)V

	jboolean isRequestFocusEnabled(JNIEnv *env, jobject _this); //30 ()Z

	void requestFocus(JNIEnv *env, jobject _this); //31 ()V

	jboolean requestFocus(JNIEnv *env, jobject _this, jboolean Boolean0); //32 (Z)Z

	jboolean requestFocusInWindow(JNIEnv *env, jobject _this); //33 ()Z

	void grabFocus(JNIEnv *env, jobject _this); //34 ()V

	void setVerifyInputWhenFocusTarget(JNIEnv *env, jobject _this, jboolean Boolean0); //35 (Z)V

	jboolean getVerifyInputWhenFocusTarget(JNIEnv *env, jobject _this); //36 ()Z

	jobject getFontMetrics(JNIEnv *env, jobject _this, jobject Font0); //37 (Ljava/awt/Font;)Ljava/awt/FontMetrics;

	void setPreferredSize(JNIEnv *env, jobject _this, jobject Dimension0); //38 (Ljava/awt/Dimension;)V

	jobject getPreferredSize(JNIEnv *env, jobject _this); //39 ()Ljava/awt/Dimension;

	void setMaximumSize(JNIEnv *env, jobject _this, jobject Dimension0); //40 (Ljava/awt/Dimension;)V

	jobject getMaximumSize(JNIEnv *env, jobject _this); //41 ()Ljava/awt/Dimension;

	void setMinimumSize(JNIEnv *env, jobject _this, jobject Dimension0); //42 (Ljava/awt/Dimension;)V

	jobject getMinimumSize(JNIEnv *env, jobject _this); //43 ()Ljava/awt/Dimension;

	void setBorder(JNIEnv *env, jobject _this, jobject Border0); //44 (Ljavax/swing/border/Border;)V

	jobject getBorder(JNIEnv *env, jobject _this); //45 ()Ljavax/swing/border/Border;

	jobject getInsets(JNIEnv *env, jobject _this); //46 ()Ljava/awt/Insets;

	jobject getInsets(JNIEnv *env, jobject _this, jobject Insets0); //47 (Ljava/awt/Insets;)Ljava/awt/Insets;

	jfloat getAlignmentY(JNIEnv *env, jobject _this); //48 ()F

	void setAlignmentY(JNIEnv *env, jobject _this, jfloat Float0); //49 (F)V

	jfloat getAlignmentX(JNIEnv *env, jobject _this); //50 ()F

	void setAlignmentX(JNIEnv *env, jobject _this, jfloat Float0); //51 (F)V

	void setInputVerifier(JNIEnv *env, jobject _this, jobject InputVerifier0); //52 (Ljavax/swing/InputVerifier;)V

	jobject getInputVerifier(JNIEnv *env, jobject _this); //53 ()Ljavax/swing/InputVerifier;

	jobject getGraphics(JNIEnv *env, jobject _this); //54 ()Ljava/awt/Graphics;

	void setDebugGraphicsOptions(JNIEnv *env, jobject _this, jint Int0); //55 (I)V

	jint getDebugGraphicsOptions(JNIEnv *env, jobject _this); //56 ()I

	jint shouldDebugGraphics(JNIEnv *env, jobject _this); //57 ()I

	void registerKeyboardAction(JNIEnv *env, jobject _this, jobject ActionListener0, jobject String1, jobject KeyStroke2, jint Int3); //58 (Ljava/awt/event/ActionListener;Ljava/lang/String;Ljavax/swing/KeyStroke;I)V

	void registerKeyboardAction(JNIEnv *env, jobject _this, jobject ActionListener0, jobject KeyStroke1, jint Int2); //59 (Ljava/awt/event/ActionListener;Ljavax/swing/KeyStroke;I)V

	void componentInputMapChanged(JNIEnv *env, jobject _this, jobject ComponentInputMap0); //60 (Ljavax/swing/ComponentInputMap;)V

	void unregisterKeyboardAction(JNIEnv *env, jobject _this, jobject KeyStroke0); //61 (Ljavax/swing/KeyStroke;)V

	jobject getRegisteredKeyStrokes(JNIEnv *env, jobject _this); //62 ()[Ljavax/swing/KeyStroke;

	jint getConditionForKeyStroke(JNIEnv *env, jobject _this, jobject KeyStroke0); //63 (Ljavax/swing/KeyStroke;)I

	jobject getActionForKeyStroke(JNIEnv *env, jobject _this, jobject KeyStroke0); //64 (Ljavax/swing/KeyStroke;)Ljava/awt/event/ActionListener;

	void resetKeyboardActions(JNIEnv *env, jobject _this); //65 ()V

	void setInputMap(JNIEnv *env, jobject _this, jint Int0, jobject InputMap1); //66 (ILjavax/swing/InputMap;)V

	jobject getInputMap(JNIEnv *env, jobject _this, jint Int0, jboolean Boolean1); //67 (IZ)Ljavax/swing/InputMap;

	jobject getInputMap(JNIEnv *env, jobject _this); //68 ()Ljavax/swing/InputMap;

	jobject getInputMap(JNIEnv *env, jobject _this, jint Int0); //69 (I)Ljavax/swing/InputMap;

	void setActionMap(JNIEnv *env, jobject _this, jobject ActionMap0); //70 (Ljavax/swing/ActionMap;)V

	jobject getActionMap(JNIEnv *env, jobject _this); //71 ()Ljavax/swing/ActionMap;

	jobject getActionMap(JNIEnv *env, jobject _this, jboolean Boolean0); //72 (Z)Ljavax/swing/ActionMap;

	jint getBaseline(JNIEnv *env, jobject _this, jint Int0, jint Int1); //73 (II)I

	jobject getBaselineResizeBehavior(JNIEnv *env, jobject _this); //74 ()Ljava/awt/Component$BaselineResizeBehavior;

	jboolean requestDefaultFocus(JNIEnv *env, jobject _this); //75 ()Z

	void setVisible(JNIEnv *env, jobject _this, jboolean Boolean0); //76 (Z)V

	void setEnabled(JNIEnv *env, jobject _this, jboolean Boolean0); //77 (Z)V

	void setForeground(JNIEnv *env, jobject _this, jobject Color0); //78 (Ljava/awt/Color;)V

	void setBackground(JNIEnv *env, jobject _this, jobject Color0); //79 (Ljava/awt/Color;)V

	void setFont(JNIEnv *env, jobject _this, jobject Font0); //80 (Ljava/awt/Font;)V

	jobject getDefaultLocale(JNIEnv *env); //81 ()Ljava/util/Locale;

	void setDefaultLocale(JNIEnv *env, jobject Locale0); //82 (Ljava/util/Locale;)V

	jboolean processKeyBindings(JNIEnv *env, jobject _this, jobject KeyEvent0, jboolean Boolean1); //83 (Ljava/awt/event/KeyEvent;Z)Z

	jboolean processKeyBindingsForAllComponents(JNIEnv *env, jobject KeyEvent0, jobject Container1, jboolean Boolean2); //84 (Ljava/awt/event/KeyEvent;Ljava/awt/Container;Z)Z

	void setToolTipText(JNIEnv *env, jobject _this, jobject String0); //85 (Ljava/lang/String;)V

	jobject getToolTipText(JNIEnv *env, jobject _this, jobject MouseEvent0); //86 (Ljava/awt/event/MouseEvent;)Ljava/lang/String;

	jobject getToolTipText(JNIEnv *env, jobject _this); //87 ()Ljava/lang/String;

	jobject getToolTipLocation(JNIEnv *env, jobject _this, jobject MouseEvent0); //88 (Ljava/awt/event/MouseEvent;)Ljava/awt/Point;

	jobject getPopupLocation(JNIEnv *env, jobject _this, jobject MouseEvent0); //89 (Ljava/awt/event/MouseEvent;)Ljava/awt/Point;

	jobject createToolTip(JNIEnv *env, jobject _this); //90 ()Ljavax/swing/JToolTip;

	void scrollRectToVisible(JNIEnv *env, jobject _this, jobject Rectangle0); //91 (Ljava/awt/Rectangle;)V

	void setAutoscrolls(JNIEnv *env, jobject _this, jboolean Boolean0); //92 (Z)V

	jboolean getAutoscrolls(JNIEnv *env, jobject _this); //93 ()Z

	void setTransferHandler(JNIEnv *env, jobject _this, jobject TransferHandler0); //94 (Ljavax/swing/TransferHandler;)V

	jobject getTransferHandler(JNIEnv *env, jobject _this); //95 ()Ljavax/swing/TransferHandler;

	jobject dropLocationForPoint(JNIEnv *env, jobject _this, jobject Point0); //96 (Ljava/awt/Point;)Ljavax/swing/TransferHandler$DropLocation;

	jobject setDropLocation(JNIEnv *env, jobject _this, jobject TransferHandler$DropLocation0, jobject Object1, jboolean Boolean2); //97 (Ljavax/swing/TransferHandler$DropLocation;Ljava/lang/Object;Z)Ljava/lang/Object;

	void dndDone(JNIEnv *env, jobject _this); //98 ()V

	void superProcessMouseMotionEvent(JNIEnv *env, jobject _this, jobject MouseEvent0); //99 (Ljava/awt/event/MouseEvent;)V

	void setCreatedDoubleBuffer(JNIEnv *env, jobject _this, jboolean Boolean0); //100 (Z)V

	jboolean getCreatedDoubleBuffer(JNIEnv *env, jobject _this); //101 ()Z

	jobject getAccessibleContext(JNIEnv *env, jobject _this); //102 ()Ljavax/accessibility/AccessibleContext;

	jobject getClientProperty(JNIEnv *env, jobject _this, jobject Object0); //103 (Ljava/lang/Object;)Ljava/lang/Object;

	void putClientProperty(JNIEnv *env, jobject _this, jobject Object0, jobject Object1); //104 (Ljava/lang/Object;Ljava/lang/Object;)V

	void clientPropertyChanged(JNIEnv *env, jobject _this, jobject Object0, jobject Object1, jobject Object2); //105 (Ljava/lang/Object;Ljava/lang/Object;Ljava/lang/Object;)V

	void setUIProperty(JNIEnv *env, jobject _this, jobject String0, jobject Object1); //106 (Ljava/lang/String;Ljava/lang/Object;)V

	void setFocusTraversalKeys(JNIEnv *env, jobject _this, jint Int0, jobject Set1); //107 (ILjava/util/Set;)V

	jboolean isLightweightComponent(JNIEnv *env, jobject Component0); //108 (Ljava/awt/Component;)Z

	void reshape(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3); //109 (IIII)V

	jobject getBounds(JNIEnv *env, jobject _this, jobject Rectangle0); //110 (Ljava/awt/Rectangle;)Ljava/awt/Rectangle;

	jint getX(JNIEnv *env, jobject _this); //111 ()I

	jint getY(JNIEnv *env, jobject _this); //112 ()I

	jint getWidth(JNIEnv *env, jobject _this); //113 ()I

	jint getHeight(JNIEnv *env, jobject _this); //114 ()I

	void setOpaque(JNIEnv *env, jobject _this, jboolean Boolean0); //115 (Z)V

	jboolean rectangleIsObscured(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3); //116 (IIII)Z

	void staticComputeVisibleRect(JNIEnv *env, jobject Component0, jobject Rectangle1); //117 (Ljava/awt/Component;Ljava/awt/Rectangle;)V

	void computeVisibleRect(JNIEnv *env, jobject _this, jobject Rectangle0); //118 (Ljava/awt/Rectangle;)V

	jobject getVisibleRect(JNIEnv *env, jobject _this); //119 ()Ljava/awt/Rectangle;

	void firePropertyChange(JNIEnv *env, jobject _this, jobject String0, jint Int1, jint Int2); //120 (Ljava/lang/String;II)V

	void firePropertyChange(JNIEnv *env, jobject _this, jobject String0, jboolean Boolean1, jboolean Boolean2); //121 (Ljava/lang/String;ZZ)V

	void firePropertyChange(JNIEnv *env, jobject _this, jobject String0, jchar Char1, jchar Char2); //122 (Ljava/lang/String;CC)V

	void addVetoableChangeListener(JNIEnv *env, jobject _this, jobject VetoableChangeListener0); //123 (Ljava/beans/VetoableChangeListener;)V

	void removeVetoableChangeListener(JNIEnv *env, jobject _this, jobject VetoableChangeListener0); //124 (Ljava/beans/VetoableChangeListener;)V

	jobject getVetoableChangeListeners(JNIEnv *env, jobject _this); //125 ()[Ljava/beans/VetoableChangeListener;

	jobject getTopLevelAncestor(JNIEnv *env, jobject _this); //126 ()Ljava/awt/Container;

	void addAncestorListener(JNIEnv *env, jobject _this, jobject AncestorListener0); //127 (Ljavax/swing/event/AncestorListener;)V

	void removeAncestorListener(JNIEnv *env, jobject _this, jobject AncestorListener0); //128 (Ljavax/swing/event/AncestorListener;)V

	jobject getAncestorListeners(JNIEnv *env, jobject _this); //129 ()[Ljavax/swing/event/AncestorListener;

	jobject getListeners(JNIEnv *env, jobject _this, jclass Class0); //130 (Ljava/lang/Class;)[Ljava/util/EventListener;

	void addNotify(JNIEnv *env, jobject _this); //131 ()V

	void removeNotify(JNIEnv *env, jobject _this); //132 ()V

	void repaint(JNIEnv *env, jobject _this, jlong Long0, jint Int1, jint Int2, jint Int3, jint Int4); //133 (JIIII)V

	void repaint(JNIEnv *env, jobject _this, jobject Rectangle0); //134 (Ljava/awt/Rectangle;)V

	void revalidate(JNIEnv *env, jobject _this); //135 ()V

	jboolean isValidateRoot(JNIEnv *env, jobject _this); //136 ()Z

	jboolean isOptimizedDrawingEnabled(JNIEnv *env, jobject _this); //137 ()Z

	jboolean isPaintingOrigin(JNIEnv *env, jobject _this); //138 ()Z

	void paintImmediately(JNIEnv *env, jobject _this, jobject Rectangle0); //139 (Ljava/awt/Rectangle;)V

	void paintImmediately(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3); //140 (IIII)V

	jboolean alwaysOnTop(JNIEnv *env, jobject _this); //141 ()Z

	void setPaintingChild(JNIEnv *env, jobject _this, jobject Component0); //142 (Ljava/awt/Component;)V

	void _paintImmediately(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3); //143 (IIII)V

	void paintToOffscreen(JNIEnv *env, jobject _this, jobject Graphics0, jint Int1, jint Int2, jint Int3, jint Int4, jint Int5, jint Int6); //144 (Ljava/awt/Graphics;IIIIII)V

	jboolean checkIfChildObscuredBySibling(JNIEnv *env, jobject _this); //145 ()Z

	void setWriteObjCounter(JNIEnv *env, jobject JComponent0, jbyte Byte1); //146 (Ljavax/swing/JComponent;B)V

	jbyte getWriteObjCounter(JNIEnv *env, jobject JComponent0); //147 (Ljavax/swing/JComponent;)B

	void setDoubleBuffered(JNIEnv *env, jobject _this, jboolean Boolean0); //148 (Z)V

	jboolean isDoubleBuffered(JNIEnv *env, jobject _this); //149 ()Z

	jobject getRootPane(JNIEnv *env, jobject _this); //150 ()Ljavax/swing/JRootPane;

	void compWriteObjectNotify(JNIEnv *env, jobject _this); //151 ()V

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
}
#endif
