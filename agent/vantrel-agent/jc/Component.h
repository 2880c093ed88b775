#ifndef COMPONENT_H
#define COMPONENT_H

#include "../JCBase.h"
#include "../JavaInc.h"
#include  <assert.h>

namespace NSComponent{

	extern CACHE_JAVA_CLASS(Component);

	extern CACHE_JAVA_FIELD(Component, peer);

	extern CACHE_JAVA_FIELD(Component, parent);

	extern CACHE_JAVA_FIELD(Component, appContext);

	extern CACHE_JAVA_FIELD(Component, x);

	extern CACHE_JAVA_FIELD(Component, y);

	extern CACHE_JAVA_FIELD(Component, width);

	extern CACHE_JAVA_FIELD(Component, height);

	extern CACHE_JAVA_FIELD(Component, foreground);

	extern CACHE_JAVA_FIELD(Component, background);

	extern CACHE_JAVA_FIELD(Component, font);

	extern CACHE_JAVA_FIELD(Component, peerFont);

	extern CACHE_JAVA_FIELD(Component, cursor);

	extern CACHE_JAVA_FIELD(Component, locale);

	extern CACHE_JAVA_FIELD(Component, graphicsConfig);

	extern CACHE_JAVA_FIELD(Component, bufferStrategy);

	extern CACHE_JAVA_FIELD(Component, ignoreRepaint);

	extern CACHE_JAVA_FIELD(Component, visible);

	extern CACHE_JAVA_FIELD(Component, enabled);

	extern CACHE_JAVA_FIELD(Component, dropTarget);

	extern CACHE_JAVA_FIELD(Component, popups);

	extern CACHE_JAVA_FIELD(Component, focusTraversalKeys);

	extern CACHE_JAVA_STATIC_FIELD(Component, LOCK);

	extern CACHE_JAVA_FIELD(Component, minSize);

	extern CACHE_JAVA_FIELD(Component, minSizeSet);

	extern CACHE_JAVA_FIELD(Component, prefSize);

	extern CACHE_JAVA_FIELD(Component, prefSizeSet);

	extern CACHE_JAVA_FIELD(Component, maxSize);

	extern CACHE_JAVA_FIELD(Component, maxSizeSet);

	extern CACHE_JAVA_FIELD(Component, componentOrientation);

	extern CACHE_JAVA_FIELD(Component, newEventsOnly);

	extern CACHE_JAVA_FIELD(Component, componentListener);

	extern CACHE_JAVA_FIELD(Component, focusListener);

	extern CACHE_JAVA_FIELD(Component, hierarchyListener);

	extern CACHE_JAVA_FIELD(Component, hierarchyBoundsListener);

	extern CACHE_JAVA_FIELD(Component, keyListener);

	extern CACHE_JAVA_FIELD(Component, mouseListener);

	extern CACHE_JAVA_FIELD(Component, mouseMotionListener);

	extern CACHE_JAVA_FIELD(Component, mouseWheelListener);

	extern CACHE_JAVA_FIELD(Component, inputMethodListener);

	extern CACHE_JAVA_FIELD(Component, windowClosingException);

	extern CACHE_JAVA_STATIC_FIELD(Component, actionListenerK);

	extern CACHE_JAVA_STATIC_FIELD(Component, adjustmentListenerK);

	extern CACHE_JAVA_STATIC_FIELD(Component, componentListenerK);

	extern CACHE_JAVA_STATIC_FIELD(Component, containerListenerK);

	extern CACHE_JAVA_STATIC_FIELD(Component, focusListenerK);

	extern CACHE_JAVA_STATIC_FIELD(Component, itemListenerK);

	extern CACHE_JAVA_STATIC_FIELD(Component, keyListenerK);

	extern CACHE_JAVA_STATIC_FIELD(Component, mouseListenerK);

	extern CACHE_JAVA_STATIC_FIELD(Component, mouseMotionListenerK);

	extern CACHE_JAVA_STATIC_FIELD(Component, mouseWheelListenerK);

	extern CACHE_JAVA_STATIC_FIELD(Component, textListenerK);

	extern CACHE_JAVA_STATIC_FIELD(Component, ownedWindowK);

	extern CACHE_JAVA_STATIC_FIELD(Component, windowListenerK);

	extern CACHE_JAVA_STATIC_FIELD(Component, inputMethodListenerK);

	extern CACHE_JAVA_STATIC_FIELD(Component, hierarchyListenerK);

	extern CACHE_JAVA_STATIC_FIELD(Component, hierarchyBoundsListenerK);

	extern CACHE_JAVA_STATIC_FIELD(Component, windowStateListenerK);

	extern CACHE_JAVA_STATIC_FIELD(Component, windowFocusListenerK);

	extern CACHE_JAVA_FIELD(Component, eventMask);

	extern CACHE_JAVA_STATIC_FIELD(Component, isInc);

	extern CACHE_JAVA_STATIC_FIELD(Component, incRate);

	extern CACHE_JAVA_STATIC_FIELD(Component, TOP_ALIGNMENT);

	extern CACHE_JAVA_STATIC_FIELD(Component, CENTER_ALIGNMENT);

	extern CACHE_JAVA_STATIC_FIELD(Component, BOTTOM_ALIGNMENT);

	extern CACHE_JAVA_STATIC_FIELD(Component, LEFT_ALIGNMENT);

	extern CACHE_JAVA_STATIC_FIELD(Component, RIGHT_ALIGNMENT);

	extern CACHE_JAVA_FIELD(Component, isPacked);

	extern CACHE_JAVA_FIELD(Component, accessibleContext);

	extern CACHE_JAVA_STATIC_FIELD(Component, $assertionsDisabled);

	extern CACHE_JAVA_METHOD(Component, add, 0);

	extern CACHE_JAVA_METHOD(Component, toString, 1);

	extern CACHE_JAVA_METHOD(Component, getName, 2);

	extern CACHE_JAVA_METHOD(Component, size, 3);

	extern CACHE_JAVA_METHOD(Component, contains, 4);

	extern CACHE_JAVA_METHOD(Component, contains, 5);

	extern CACHE_JAVA_METHOD(Component, getParent, 6);

	extern CACHE_JAVA_METHOD(Component, getLocation, 7);

	extern CACHE_JAVA_METHOD(Component, getLocation, 8);

	extern CACHE_JAVA_METHOD(Component, remove, 9);

	extern CACHE_JAVA_METHOD(Component, setName, 10);

	extern CACHE_JAVA_METHOD(Component, list, 11);

	extern CACHE_JAVA_METHOD(Component, list, 12);

	extern CACHE_JAVA_METHOD(Component, list, 13);

	extern CACHE_JAVA_METHOD(Component, list, 14);

	extern CACHE_JAVA_METHOD(Component, list, 15);

	extern CACHE_JAVA_METHOD(Component, print, 16);

	extern CACHE_JAVA_METHOD(Component, getSize, 17);

	extern CACHE_JAVA_METHOD(Component, getSize, 18);

	extern CACHE_JAVA_METHOD(Component, resize, 19);

	extern CACHE_JAVA_METHOD(Component, resize, 20);

	extern CACHE_JAVA_METHOD(Component, action, 21);

	extern CACHE_JAVA_METHOD(Component, setSize, 22);

	extern CACHE_JAVA_METHOD(Component, setSize, 23);

	extern CACHE_JAVA_METHOD(Component, update, 24);

	extern CACHE_JAVA_METHOD(Component, isOpaque, 25);

	extern CACHE_JAVA_METHOD(Component, enable, 26);

	extern CACHE_JAVA_METHOD(Component, enable, 27);

	extern CACHE_JAVA_METHOD(Component, disable, 28);

	extern CACHE_JAVA_METHOD(Component, location, 29);

	extern CACHE_JAVA_METHOD(Component, isFocusTraversableOverridden, 30);

	extern CACHE_JAVA_METHOD(Component, getObjectLock, 31);

	extern CACHE_JAVA_METHOD(Component, getAccessControlContext, 32);

	extern CACHE_JAVA_METHOD(Component, getBoundsOp, 33);

	extern CACHE_JAVA_METHOD(Component, setBoundsOp, 34);

	extern CACHE_JAVA_METHOD(Component, initializeFocusTraversalKeys, 35);

	extern CACHE_JAVA_METHOD(Component, constructComponentName, 36);

	extern CACHE_JAVA_METHOD(Component, getParent_NoClientCode, 37);

	extern CACHE_JAVA_METHOD(Component, getContainer, 38);

	extern CACHE_JAVA_METHOD(Component, getPeer, 39);

	extern CACHE_JAVA_METHOD(Component, setDropTarget, 40);

	extern CACHE_JAVA_METHOD(Component, getDropTarget, 41);

	extern CACHE_JAVA_METHOD(Component, getGraphicsConfiguration, 42);

	extern CACHE_JAVA_METHOD(Component, getGraphicsConfiguration_NoClientCode, 43);

	extern CACHE_JAVA_METHOD(Component, resetGC, 44);

	extern CACHE_JAVA_METHOD(Component, setGCFromPeer, 45);

	extern CACHE_JAVA_METHOD(Component, checkGD, 46);

	extern CACHE_JAVA_METHOD(Component, getTreeLock, 47);

	extern CACHE_JAVA_METHOD(Component, checkTreeLock, 48);

	extern CACHE_JAVA_METHOD(Component, getToolkit, 49);

	extern CACHE_JAVA_METHOD(Component, getToolkitImpl, 50);

	extern CACHE_JAVA_METHOD(Component, isValid, 51);

	extern CACHE_JAVA_METHOD(Component, isDisplayable, 52);

	extern CACHE_JAVA_METHOD(Component, isVisible, 53);

	extern CACHE_JAVA_METHOD(Component, isVisible_NoClientCode, 54);

	extern CACHE_JAVA_METHOD(Component, isRecursivelyVisible, 55);

	extern CACHE_JAVA_METHOD(Component, pointRelativeToComponent, 56);

	extern CACHE_JAVA_METHOD(Component, findUnderMouseInWindow, 57);

	extern CACHE_JAVA_METHOD(Component, getMousePosition, 58);

	extern CACHE_JAVA_METHOD(Component, isSameOrAncestorOf, 59);

	extern CACHE_JAVA_METHOD(Component, isShowing, 60);

	extern CACHE_JAVA_METHOD(Component, isEnabled, 61);

	extern CACHE_JAVA_METHOD(Component, isEnabledImpl, 62);

	extern CACHE_JAVA_METHOD(Component, setEnabled, 63);

	extern CACHE_JAVA_METHOD(Component, isDoubleBuffered, 64);

	extern CACHE_JAVA_METHOD(Component, enableInputMethods, 65);

	extern CACHE_JAVA_METHOD(Component, setVisible, 66);

	extern CACHE_JAVA_METHOD(Component, show, 67);

	extern CACHE_JAVA_METHOD(Component, show, 68);

	extern CACHE_JAVA_METHOD(Component, containsFocus, 69);

	extern CACHE_JAVA_METHOD(Component, clearMostRecentFocusOwnerOnHide, 70);

	extern CACHE_JAVA_METHOD(Component, clearCurrentFocusCycleRootOnHide, 71);

	extern CACHE_JAVA_METHOD(Component, hide, 72);

	extern CACHE_JAVA_METHOD(Component, getForeground, 73);

	extern CACHE_JAVA_METHOD(Component, setForeground, 74);

	extern CACHE_JAVA_METHOD(Component, isForegroundSet, 75);

	extern CACHE_JAVA_METHOD(Component, getBackground, 76);

	extern CACHE_JAVA_METHOD(Component, setBackground, 77);

	extern CACHE_JAVA_METHOD(Component, isBackgroundSet, 78);

	extern CACHE_JAVA_METHOD(Component, getFont, 79);

	extern CACHE_JAVA_METHOD(Component, getFont_NoClientCode, 80);

	extern CACHE_JAVA_METHOD(Component, setFont, 81);

	extern CACHE_JAVA_METHOD(Component, isFontSet, 82);

	extern CACHE_JAVA_METHOD(Component, getLocale, 83);

	extern CACHE_JAVA_METHOD(Component, setLocale, 84);

	extern CACHE_JAVA_METHOD(Component, getColorModel, 85);

	extern CACHE_JAVA_METHOD(Component, getLocationOnScreen, 86);

	extern CACHE_JAVA_METHOD(Component, getLocationOnScreen_NoTreeLock, 87);

	extern CACHE_JAVA_METHOD(Component, setLocation, 88);

	extern CACHE_JAVA_METHOD(Component, setLocation, 89);

	extern CACHE_JAVA_METHOD(Component, move, 90);

	extern CACHE_JAVA_METHOD(Component, getBounds, 91);

	extern CACHE_JAVA_METHOD(Component, getBounds, 92);

	extern CACHE_JAVA_METHOD(Component, bounds, 93);

	extern CACHE_JAVA_METHOD(Component, setBounds, 94);

	extern CACHE_JAVA_METHOD(Component, setBounds, 95);

	extern CACHE_JAVA_METHOD(Component, reshape, 96);

	extern CACHE_JAVA_METHOD(Component, getX, 97);

	extern CACHE_JAVA_METHOD(Component, getY, 98);

	extern CACHE_JAVA_METHOD(Component, getWidth, 99);

	extern CACHE_JAVA_METHOD(Component, getHeight, 100);

	extern CACHE_JAVA_METHOD(Component, isLightweight, 101);

	extern CACHE_JAVA_METHOD(Component, setPreferredSize, 102);

	extern CACHE_JAVA_METHOD(Component, preferredSize, 103);

	extern CACHE_JAVA_METHOD(Component, isPreferredSizeSet, 104);

	extern CACHE_JAVA_METHOD(Component, getPreferredSize, 105);

	extern CACHE_JAVA_METHOD(Component, setMinimumSize, 106);

	extern CACHE_JAVA_METHOD(Component, minimumSize, 107);

	extern CACHE_JAVA_METHOD(Component, isMinimumSizeSet, 108);

	extern CACHE_JAVA_METHOD(Component, getMinimumSize, 109);

	extern CACHE_JAVA_METHOD(Component, setMaximumSize, 110);

	extern CACHE_JAVA_METHOD(Component, isMaximumSizeSet, 111);

	extern CACHE_JAVA_METHOD(Component, getMaximumSize, 112);

	extern CACHE_JAVA_METHOD(Component, getAlignmentX, 113);

	extern CACHE_JAVA_METHOD(Component, getAlignmentY, 114);

	extern CACHE_JAVA_METHOD(Component, getBaseline, 115);

	extern CACHE_JAVA_METHOD(Component, getBaselineResizeBehavior, 116);

	extern CACHE_JAVA_METHOD(Component, doLayout, 117);

	extern CACHE_JAVA_METHOD(Component, layout, 118);

	extern CACHE_JAVA_METHOD(Component, validate, 119);

	extern CACHE_JAVA_METHOD(Component, invalidate, 120);

	extern CACHE_JAVA_METHOD(Component, invalidateIfValid, 121);

	extern CACHE_JAVA_METHOD(Component, getGraphics, 122);

	extern CACHE_JAVA_METHOD(Component, getGraphics_NoClientCode, 123);

	extern CACHE_JAVA_METHOD(Component, getFontMetrics, 124);

	extern CACHE_JAVA_METHOD(Component, setCursor, 125);

	extern CACHE_JAVA_METHOD(Component, updateCursorImmediately, 126);

	extern CACHE_JAVA_METHOD(Component, getCursor, 127);

	extern CACHE_JAVA_METHOD(Component, isCursorSet, 128);

	extern CACHE_JAVA_METHOD(Component, paint, 129);

	extern CACHE_JAVA_METHOD(Component, paintAll, 130);

	extern CACHE_JAVA_METHOD(Component, lightweightPaint, 131);

	extern CACHE_JAVA_METHOD(Component, paintHeavyweightComponents, 132);

	extern CACHE_JAVA_METHOD(Component, repaint, 133);

	extern CACHE_JAVA_METHOD(Component, repaint, 134);

	extern CACHE_JAVA_METHOD(Component, repaint, 135);

	extern CACHE_JAVA_METHOD(Component, repaint, 136);

	extern CACHE_JAVA_METHOD(Component, printAll, 137);

	extern CACHE_JAVA_METHOD(Component, lightweightPrint, 138);

	extern CACHE_JAVA_METHOD(Component, printHeavyweightComponents, 139);

	extern CACHE_JAVA_METHOD(Component, imageUpdate, 140);

	extern CACHE_JAVA_METHOD(Component, createImage, 141);

	extern CACHE_JAVA_METHOD(Component, createImage, 142);

	extern CACHE_JAVA_METHOD(Component, createVolatileImage, 143);

	extern CACHE_JAVA_METHOD(Component, createVolatileImage, 144);

	extern CACHE_JAVA_METHOD(Component, prepareImage, 145);

	extern CACHE_JAVA_METHOD(Component, prepareImage, 146);

	extern CACHE_JAVA_METHOD(Component, checkImage, 147);

	extern CACHE_JAVA_METHOD(Component, checkImage, 148);

	extern CACHE_JAVA_METHOD(Component, createBufferStrategy, 149);

	extern CACHE_JAVA_METHOD(Component, createBufferStrategy, 150);

	extern CACHE_JAVA_METHOD(Component, getBufferStrategy, 151);

	extern CACHE_JAVA_METHOD(Component, getBackBuffer, 152);

	extern CACHE_JAVA_METHOD(Component, setIgnoreRepaint, 153);

	extern CACHE_JAVA_METHOD(Component, getIgnoreRepaint, 154);

	extern CACHE_JAVA_METHOD(Component, inside, 155);

	extern CACHE_JAVA_METHOD(Component, getComponentAt, 156);

	extern CACHE_JAVA_METHOD(Component, getComponentAt, 157);

	extern CACHE_JAVA_METHOD(Component, locate, 158);

	extern CACHE_JAVA_METHOD(Component, deliverEvent, 159);

	extern CACHE_JAVA_METHOD(Component, dispatchEvent, 160);

	extern CACHE_JAVA_METHOD(Component, dispatchEventImpl, 161);

	extern CACHE_JAVA_METHOD(Component, autoProcessMouseWheel, 162);

	extern CACHE_JAVA_METHOD(Component, dispatchMouseWheelToAncestor, 163);

	extern CACHE_JAVA_METHOD(Component, checkWindowClosingException, 164);

	extern CACHE_JAVA_METHOD(Component, areInputMethodsEnabled, 165);

	extern CACHE_JAVA_METHOD(Component, eventEnabled, 166);

	extern CACHE_JAVA_METHOD(Component, eventTypeEnabled, 167);

	extern CACHE_JAVA_METHOD(Component, postEvent, 168);

	extern CACHE_JAVA_METHOD(Component, addComponentListener, 169);

	extern CACHE_JAVA_METHOD(Component, removeComponentListener, 170);

	extern CACHE_JAVA_METHOD(Component, getComponentListeners, 171);

	extern CACHE_JAVA_METHOD(Component, addFocusListener, 172);

	extern CACHE_JAVA_METHOD(Component, removeFocusListener, 173);

	extern CACHE_JAVA_METHOD(Component, getFocusListeners, 174);

	extern CACHE_JAVA_METHOD(Component, addHierarchyListener, 175);

	extern CACHE_JAVA_METHOD(Component, removeHierarchyListener, 176);

	extern CACHE_JAVA_METHOD(Component, getHierarchyListeners, 177);

	extern CACHE_JAVA_METHOD(Component, addHierarchyBoundsListener, 178);

	extern CACHE_JAVA_METHOD(Component, removeHierarchyBoundsListener, 179);

	extern CACHE_JAVA_METHOD(Component, numListening, 180);

	extern CACHE_JAVA_METHOD(Component, countHierarchyMembers, 181);

	extern CACHE_JAVA_METHOD(Component, createHierarchyEvents, 182);

	extern CACHE_JAVA_METHOD(Component, getHierarchyBoundsListeners, 183);

	extern CACHE_JAVA_METHOD(Component, adjustListeningChildrenOnParent, 184);

	extern CACHE_JAVA_METHOD(Component, addKeyListener, 185);

	extern CACHE_JAVA_METHOD(Component, removeKeyListener, 186);

	extern CACHE_JAVA_METHOD(Component, getKeyListeners, 187);

	extern CACHE_JAVA_METHOD(Component, addMouseListener, 188);

	extern CACHE_JAVA_METHOD(Component, removeMouseListener, 189);

	extern CACHE_JAVA_METHOD(Component, getMouseListeners, 190);

	extern CACHE_JAVA_METHOD(Component, addMouseMotionListener, 191);

	extern CACHE_JAVA_METHOD(Component, removeMouseMotionListener, 192);

	extern CACHE_JAVA_METHOD(Component, getMouseMotionListeners, 193);

	extern CACHE_JAVA_METHOD(Component, addMouseWheelListener, 194);

	extern CACHE_JAVA_METHOD(Component, removeMouseWheelListener, 195);

	extern CACHE_JAVA_METHOD(Component, getMouseWheelListeners, 196);

	extern CACHE_JAVA_METHOD(Component, addInputMethodListener, 197);

	extern CACHE_JAVA_METHOD(Component, removeInputMethodListener, 198);

	extern CACHE_JAVA_METHOD(Component, getInputMethodListeners, 199);

	extern CACHE_JAVA_METHOD(Component, getListeners, 200);

	extern CACHE_JAVA_METHOD(Component, getInputMethodRequests, 201);

	extern CACHE_JAVA_METHOD(Component, getInputContext, 202);

	extern CACHE_JAVA_METHOD(Component, isCoalescingEnabled, 203);

	extern CACHE_JAVA_METHOD(Component, postsOldMouseEvents, 204);

	extern CACHE_JAVA_METHOD(Component, handleEvent, 205);

	extern CACHE_JAVA_METHOD(Component, mouseDown, 206);

	extern CACHE_JAVA_METHOD(Component, mouseDrag, 207);

	extern CACHE_JAVA_METHOD(Component, mouseUp, 208);

	extern CACHE_JAVA_METHOD(Component, mouseMove, 209);

	extern CACHE_JAVA_METHOD(Component, mouseEnter, 210);

	extern CACHE_JAVA_METHOD(Component, mouseExit, 211);

	extern CACHE_JAVA_METHOD(Component, keyDown, 212);

	extern CACHE_JAVA_METHOD(Component, keyUp, 213);

	extern CACHE_JAVA_METHOD(Component, addNotify, 214);

	extern CACHE_JAVA_METHOD(Component, removeNotify, 215);

	extern CACHE_JAVA_METHOD(Component, gotFocus, 216);

	extern CACHE_JAVA_METHOD(Component, lostFocus, 217);

	extern CACHE_JAVA_METHOD(Component, isFocusTraversable, 218);

	extern CACHE_JAVA_METHOD(Component, isFocusable, 219);

	extern CACHE_JAVA_METHOD(Component, setFocusable, 220);

	extern CACHE_JAVA_METHOD(Component, setFocusTraversalKeys, 221);

	extern CACHE_JAVA_METHOD(Component, getFocusTraversalKeys, 222);

	extern CACHE_JAVA_METHOD(Component, setFocusTraversalKeys_NoIDCheck, 223);

	extern CACHE_JAVA_METHOD(Component, getFocusTraversalKeys_NoIDCheck, 224);

	extern CACHE_JAVA_METHOD(Component, areFocusTraversalKeysSet, 225);

	extern CACHE_JAVA_METHOD(Component, setFocusTraversalKeysEnabled, 226);

	extern CACHE_JAVA_METHOD(Component, getFocusTraversalKeysEnabled, 227);

	extern CACHE_JAVA_METHOD(Component, requestFocus, 228);

	extern CACHE_JAVA_METHOD(Component, requestFocus, 229);

	extern CACHE_JAVA_METHOD(Component, requestFocus, 230);

	extern CACHE_JAVA_METHOD(Component, requestFocusInWindow, 231);

	extern CACHE_JAVA_METHOD(Component, requestFocusInWindow, 232);

	extern CACHE_JAVA_METHOD(Component, requestFocusInWindow, 233);

	extern CACHE_JAVA_METHOD(Component, requestFocusHelper, 234);

	extern CACHE_JAVA_METHOD(Component, requestFocusHelper, 235);

	extern CACHE_JAVA_STATIC_METHOD(Component, setRequestFocusController, 236);

	extern CACHE_JAVA_METHOD(Component, autoTransferFocus, 237);

	extern CACHE_JAVA_METHOD(Component, transferFocus, 238);

	extern CACHE_JAVA_METHOD(Component, getFocusCycleRootAncestor, 239);

	extern CACHE_JAVA_METHOD(Component, isFocusCycleRoot, 240);

	extern CACHE_JAVA_METHOD(Component, nextFocus, 241);

	extern CACHE_JAVA_METHOD(Component, nextFocusHelper, 242);

	extern CACHE_JAVA_METHOD(Component, preNextFocusHelper, 243);

	extern CACHE_JAVA_STATIC_METHOD(Component, postNextFocusHelper, 244);

	extern CACHE_JAVA_METHOD(Component, transferFocusBackward, 245);

	extern CACHE_JAVA_METHOD(Component, transferFocusUpCycle, 246);

	extern CACHE_JAVA_METHOD(Component, hasFocus, 247);

	extern CACHE_JAVA_METHOD(Component, isFocusOwner, 248);

	extern CACHE_JAVA_METHOD(Component, getNativeContainer, 249);

	extern CACHE_JAVA_METHOD(Component, addPropertyChangeListener, 250);

	extern CACHE_JAVA_METHOD(Component, addPropertyChangeListener, 251);

	extern CACHE_JAVA_METHOD(Component, removePropertyChangeListener, 252);

	extern CACHE_JAVA_METHOD(Component, removePropertyChangeListener, 253);

	extern CACHE_JAVA_METHOD(Component, getPropertyChangeListeners, 254);

	extern CACHE_JAVA_METHOD(Component, getPropertyChangeListeners, 255);

	extern CACHE_JAVA_METHOD(Component, firePropertyChange, 256);

	extern CACHE_JAVA_METHOD(Component, firePropertyChange, 257);

	extern CACHE_JAVA_METHOD(Component, firePropertyChange, 258);

	extern CACHE_JAVA_METHOD(Component, firePropertyChange, 259);

	extern CACHE_JAVA_METHOD(Component, firePropertyChange, 260);

	extern CACHE_JAVA_METHOD(Component, firePropertyChange, 261);

	extern CACHE_JAVA_METHOD(Component, setComponentOrientation, 262);

	extern CACHE_JAVA_METHOD(Component, getComponentOrientation, 263);

	extern CACHE_JAVA_METHOD(Component, applyComponentOrientation, 264);

	extern CACHE_JAVA_METHOD(Component, canBeFocusOwner, 265);

	extern CACHE_JAVA_METHOD(Component, getContainingWindow, 266);

	extern CACHE_JAVA_STATIC_METHOD(Component, getContainingWindow, 267);

	extern CACHE_JAVA_METHOD(Component, getAccessibleContext, 268);

	extern CACHE_JAVA_METHOD(Component, getAccessibleIndexInParent, 269);

	extern CACHE_JAVA_METHOD(Component, getAccessibleStateSet, 270);

	extern CACHE_JAVA_STATIC_METHOD(Component, isInstanceOf, 271);

	extern CACHE_JAVA_METHOD(Component, areBoundsValid, 272);

	extern CACHE_JAVA_METHOD(Component, applyCompoundShape, 273);

	extern CACHE_JAVA_METHOD(Component, getLocationOnWindow, 274);

	extern CACHE_JAVA_METHOD(Component, getNormalShape, 275);

	extern CACHE_JAVA_METHOD(Component, getOpaqueShape, 276);

	extern CACHE_JAVA_METHOD(Component, getSiblingIndexAbove, 277);

	extern CACHE_JAVA_METHOD(Component, getSiblingIndexBelow, 278);

	extern CACHE_JAVA_METHOD(Component, isNonOpaqueForMixing, 279);

	extern CACHE_JAVA_METHOD(Component, applyCurrentShape, 280);

	extern CACHE_JAVA_METHOD(Component, subtractAndApplyShape, 281);

	extern CACHE_JAVA_METHOD(Component, subtractAndApplyShapeBelowMe, 282);

	extern CACHE_JAVA_METHOD(Component, mixOnShowing, 283);

	extern CACHE_JAVA_METHOD(Component, mixOnHiding, 284);

	extern CACHE_JAVA_METHOD(Component, mixOnReshaping, 285);

	extern CACHE_JAVA_METHOD(Component, mixOnZOrderChanging, 286);

	extern CACHE_JAVA_METHOD(Component, mixOnValidating, 287);

	extern CACHE_JAVA_METHOD(Component, isMixingNeeded, 288);

	void add(JNIEnv *env, jobject _this, jobject PopupMenu0); //0 (Ljava/awt/PopupMenu;)V

	jobject toString(JNIEnv *env, jobject _this); //1 ()Ljava/lang/String;

	jobject getName(JNIEnv *env, jobject _this); //2 ()Ljava/lang/String;

	jobject size(JNIEnv *env, jobject _this); //3 ()Ljava/awt/Dimension;

	jboolean contains(JNIEnv *env, jobject _this, jobject Point0); //4 (Ljava/awt/Point;)Z

	jboolean contains(JNIEnv *env, jobject _this, jint Int0, jint Int1); //5 (II)Z

	jobject getParent(JNIEnv *env, jobject _this); //6 ()Ljava/awt/Container;

	jobject getLocation(JNIEnv *env, jobject _this); //7 ()Ljava/awt/Point;

	jobject getLocation(JNIEnv *env, jobject _this, jobject Point0); //8 (Ljava/awt/Point;)Ljava/awt/Point;

	void remove(JNIEnv *env, jobject _this, jobject MenuComponent0); //9 (Ljava/awt/MenuComponent;)V

	void setName(JNIEnv *env, jobject _this, jobject String0); //10 (Ljava/lang/String;)V

	void listWithPrintStreamInt(JNIEnv *env, jobject _this, jobject PrintStream0, jint Int1); //11 (Ljava/io/PrintStream;I)V

	void listWithPrintWriter(JNIEnv *env, jobject _this, jobject PrintWriter0); //12 (Ljava/io/PrintWriter;)V

	void list(JNIEnv *env, jobject _this, jobject PrintWriter0, jint Int1); //13 (Ljava/io/PrintWriter;I)V

	void list(JNIEnv *env, jobject _this); //14 ()V

	void list(JNIEnv *env, jobject _this, jobject PrintStream0); //15 (Ljava/io/PrintStream;)V

	void print(JNIEnv *env, jobject _this, jobject Graphics0); //16 (Ljava/awt/Graphics;)V

	jobject getSize(JNIEnv *env, jobject _this, jobject Dimension0); //17 (Ljava/awt/Dimension;)Ljava/awt/Dimension;

	jobject getSize(JNIEnv *env, jobject _this); //18 ()Ljava/awt/Dimension;

	void resize(JNIEnv *env, jobject _this, jobject Dimension0); //19 (Ljava/awt/Dimension;)V

	void resize(JNIEnv *env, jobject _this, jint Int0, jint Int1); //20 (II)V

	jboolean action(JNIEnv *env, jobject _this, jobject Event0, jobject Object1); //21 (Ljava/awt/Event;Ljava/lang/Object;)Z

	void setSize(JNIEnv *env, jobject _this, jobject Dimension0); //22 (Ljava/awt/Dimension;)V

	void setSize(JNIEnv *env, jobject _this, jint Int0, jint Int1); //23 (II)V

	void update(JNIEnv *env, jobject _this, jobject Graphics0); //24 (Ljava/awt/Graphics;)V

	jboolean isOpaque(JNIEnv *env, jobject _this); //25 ()Z

	void enable(JNIEnv *env, jobject _this, jboolean Boolean0); //26 (Z)V

	void enable(JNIEnv *env, jobject _this); //27 ()V

	void disable(JNIEnv *env, jobject _this); //28 ()V

	jobject location(JNIEnv *env, jobject _this); //29 ()Ljava/awt/Point;

	jboolean isFocusTraversableOverridden(JNIEnv *env, jobject _this); //30 ()Z

	jobject getObjectLock(JNIEnv *env, jobject _this); //31 ()Ljava/lang/Object;

	jobject getAccessControlContext(JNIEnv *env, jobject _this); //32 ()Ljava/security/AccessControlContext;

	jint getBoundsOp(JNIEnv *env, jobject _this); //33 ()I

	void setBoundsOp(JNIEnv *env, jobject _this, jint Int0); //34 (I)V

	void initializeFocusTraversalKeys(JNIEnv *env, jobject _this); //35 ()V

	jobject constructComponentName(JNIEnv *env, jobject _this); //36 ()Ljava/lang/String;

	jobject getParent_NoClientCode(JNIEnv *env, jobject _this); //37 ()Ljava/awt/Container;

	jobject getContainer(JNIEnv *env, jobject _this); //38 ()Ljava/awt/Container;

	jobject getPeer(JNIEnv *env, jobject _this); //39 ()Ljava/awt/peer/ComponentPeer;

	void setDropTarget(JNIEnv *env, jobject _this, jobject DropTarget0); //40 (Ljava/awt/dnd/DropTarget;)V

	jobject getDropTarget(JNIEnv *env, jobject _this); //41 ()Ljava/awt/dnd/DropTarget;

	jobject getGraphicsConfiguration(JNIEnv *env, jobject _this); //42 ()Ljava/awt/GraphicsConfiguration;

	jobject getGraphicsConfiguration_NoClientCode(JNIEnv *env, jobject _this); //43 ()Ljava/awt/GraphicsConfiguration;

	void resetGC(JNIEnv *env, jobject _this); //44 ()V

	void setGCFromPeer(JNIEnv *env, jobject _this); //45 ()V

	void checkGD(JNIEnv *env, jobject _this, jobject String0); //46 (Ljava/lang/String;)V

	jobject getTreeLock(JNIEnv *env, jobject _this); //47 ()Ljava/lang/Object;

	void checkTreeLock(JNIEnv *env, jobject _this); //48 ()V

	jobject getToolkit(JNIEnv *env, jobject _this); //49 ()Ljava/awt/Toolkit;

	jobject getToolkitImpl(JNIEnv *env, jobject _this); //50 ()Ljava/awt/Toolkit;

	jboolean isValid(JNIEnv *env, jobject _this); //51 ()Z

	jboolean isDisplayable(JNIEnv *env, jobject _this); //52 ()Z

	jboolean isVisible(JNIEnv *env, jobject _this); //53 ()Z

	jboolean isVisible_NoClientCode(JNIEnv *env, jobject _this); //54 ()Z

	jboolean isRecursivelyVisible(JNIEnv *env, jobject _this); //55 ()Z

	jobject pointRelativeToComponent(JNIEnv *env, jobject _this, jobject Point0); //56 (Ljava/awt/Point;)Ljava/awt/Point;

	jobject findUnderMouseInWindow(JNIEnv *env, jobject _this, jobject PointerInfo0); //57 (Ljava/awt/PointerInfo;)Ljava/awt/Component;

	jobject getMousePosition(JNIEnv *env, jobject _this); //58 ()Ljava/awt/Point;

	jboolean isSameOrAncestorOf(JNIEnv *env, jobject _this, jobject Component0, jboolean Boolean1); //59 (Ljava/awt/Component;Z)Z

	jboolean isShowing(JNIEnv *env, jobject _this); //60 ()Z

	jboolean isEnabled(JNIEnv *env, jobject _this); //61 ()Z

	jboolean isEnabledImpl(JNIEnv *env, jobject _this); //62 ()Z

	void setEnabled(JNIEnv *env, jobject _this, jboolean Boolean0); //63 (Z)V

	jboolean isDoubleBuffered(JNIEnv *env, jobject _this); //64 ()Z

	void enableInputMethods(JNIEnv *env, jobject _this, jboolean Boolean0); //65 (Z)V

	void setVisible(JNIEnv *env, jobject _this, jboolean Boolean0); //66 (Z)V

	void show(JNIEnv *env, jobject _this); //67 ()V

	void show(JNIEnv *env, jobject _this, jboolean Boolean0); //68 (Z)V

	jboolean containsFocus(JNIEnv *env, jobject _this); //69 ()Z

	void clearMostRecentFocusOwnerOnHide(JNIEnv *env, jobject _this); //70 ()V

	void clearCurrentFocusCycleRootOnHide(JNIEnv *env, jobject _this); //71 ()V

	void hide(JNIEnv *env, jobject _this); //72 ()V

	jobject getForeground(JNIEnv *env, jobject _this); //73 ()Ljava/awt/Color;

	void setForeground(JNIEnv *env, jobject _this, jobject Color0); //74 (Ljava/awt/Color;)V

	jboolean isForegroundSet(JNIEnv *env, jobject _this); //75 ()Z

	jobject getBackground(JNIEnv *env, jobject _this); //76 ()Ljava/awt/Color;

	void setBackground(JNIEnv *env, jobject _this, jobject Color0); //77 (Ljava/awt/Color;)V

	jboolean isBackgroundSet(JNIEnv *env, jobject _this); //78 ()Z

	jobject getFont(JNIEnv *env, jobject _this); //79 ()Ljava/awt/Font;

	jobject getFont_NoClientCode(JNIEnv *env, jobject _this); //80 ()Ljava/awt/Font;

	void setFont(JNIEnv *env, jobject _this, jobject Font0); //81 (Ljava/awt/Font;)V

	jboolean isFontSet(JNIEnv *env, jobject _this); //82 ()Z

	jobject getLocale(JNIEnv *env, jobject _this); //83 ()Ljava/util/Locale;

	void setLocale(JNIEnv *env, jobject _this, jobject Locale0); //84 (Ljava/util/Locale;)V

	jobject getColorModel(JNIEnv *env, jobject _this); //85 ()Ljava/awt/image/ColorModel;

	jobject getLocationOnScreen(JNIEnv *env, jobject _this); //86 ()Ljava/awt/Point;

	jobject getLocationOnScreen_NoTreeLock(JNIEnv *env, jobject _this); //87 ()Ljava/awt/Point;

	void setLocation(JNIEnv *env, jobject _this, jobject Point0); //88 (Ljava/awt/Point;)V

	void setLocation(JNIEnv *env, jobject _this, jint Int0, jint Int1); //89 (II)V

	void move(JNIEnv *env, jobject _this, jint Int0, jint Int1); //90 (II)V

	jobject getBounds(JNIEnv *env, jobject _this, jobject Rectangle0); //91 (Ljava/awt/Rectangle;)Ljava/awt/Rectangle;

	jobject getBounds(JNIEnv *env, jobject _this); //92 ()Ljava/awt/Rectangle;

	jobject bounds(JNIEnv *env, jobject _this); //93 ()Ljava/awt/Rectangle;

	void setBounds(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3); //94 (IIII)V

	void setBounds(JNIEnv *env, jobject _this, jobject Rectangle0); //95 (Ljava/awt/Rectangle;)V

	void reshape(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3); //96 (IIII)V

	jint getX(JNIEnv *env, jobject _this); //97 ()I

	jint getY(JNIEnv *env, jobject _this); //98 ()I

	jint getWidth(JNIEnv *env, jobject _this); //99 ()I

	jint getHeight(JNIEnv *env, jobject _this); //100 ()I

	jboolean isLightweight(JNIEnv *env, jobject _this); //101 ()Z

	void setPreferredSize(JNIEnv *env, jobject _this, jobject Dimension0); //102 (Ljava/awt/Dimension;)V

	jobject preferredSize(JNIEnv *env, jobject _this); //103 ()Ljava/awt/Dimension;

	jboolean isPreferredSizeSet(JNIEnv *env, jobject _this); //104 ()Z

	jobject getPreferredSize(JNIEnv *env, jobject _this); //105 ()Ljava/awt/Dimension;

	void setMinimumSize(JNIEnv *env, jobject _this, jobject Dimension0); //106 (Ljava/awt/Dimension;)V

	jobject minimumSize(JNIEnv *env, jobject _this); //107 ()Ljava/awt/Dimension;

	jboolean isMinimumSizeSet(JNIEnv *env, jobject _this); //108 ()Z

	jobject getMinimumSize(JNIEnv *env, jobject _this); //109 ()Ljava/awt/Dimension;

	void setMaximumSize(JNIEnv *env, jobject _this, jobject Dimension0); //110 (Ljava/awt/Dimension;)V

	jboolean isMaximumSizeSet(JNIEnv *env, jobject _this); //111 ()Z

	jobject getMaximumSize(JNIEnv *env, jobject _this); //112 ()Ljava/awt/Dimension;

	jfloat getAlignmentX(JNIEnv *env, jobject _this); //113 ()F

	jfloat getAlignmentY(JNIEnv *env, jobject _this); //114 ()F

	jint getBaseline(JNIEnv *env, jobject _this, jint Int0, jint Int1); //115 (II)I

	jobject getBaselineResizeBehavior(JNIEnv *env, jobject _this); //116 ()Ljava/awt/Component$BaselineResizeBehavior;

	void doLayout(JNIEnv *env, jobject _this); //117 ()V

	void layout(JNIEnv *env, jobject _this); //118 ()V

	void validate(JNIEnv *env, jobject _this); //119 ()V

	void invalidate(JNIEnv *env, jobject _this); //120 ()V

	void invalidateIfValid(JNIEnv *env, jobject _this); //121 ()V

	jobject getGraphics(JNIEnv *env, jobject _this); //122 ()Ljava/awt/Graphics;

	jobject getGraphics_NoClientCode(JNIEnv *env, jobject _this); //123 ()Ljava/awt/Graphics;

	jobject getFontMetrics(JNIEnv *env, jobject _this, jobject Font0); //124 (Ljava/awt/Font;)Ljava/awt/FontMetrics;

	void setCursor(JNIEnv *env, jobject _this, jobject Cursor0); //125 (Ljava/awt/Cursor;)V

	void updateCursorImmediately(JNIEnv *env, jobject _this); //126 ()V

	jobject getCursor(JNIEnv *env, jobject _this); //127 ()Ljava/awt/Cursor;

	jboolean isCursorSet(JNIEnv *env, jobject _this); //128 ()Z

	void paint(JNIEnv *env, jobject _this, jobject Graphics0); //129 (Ljava/awt/Graphics;)V

	void paintAll(JNIEnv *env, jobject _this, jobject Graphics0); //130 (Ljava/awt/Graphics;)V

	void lightweightPaint(JNIEnv *env, jobject _this, jobject Graphics0); //131 (Ljava/awt/Graphics;)V

	void paintHeavyweightComponents(JNIEnv *env, jobject _this, jobject Graphics0); //132 (Ljava/awt/Graphics;)V

	void repaint(JNIEnv *env, jobject _this, jlong Long0, jint Int1, jint Int2, jint Int3, jint Int4); //133 (JIIII)V

	void repaint(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3); //134 (IIII)V

	void repaint(JNIEnv *env, jobject _this); //135 ()V

	void repaint(JNIEnv *env, jobject _this, jlong Long0); //136 (J)V

	void printAll(JNIEnv *env, jobject _this, jobject Graphics0); //137 (Ljava/awt/Graphics;)V

	void lightweightPrint(JNIEnv *env, jobject _this, jobject Graphics0); //138 (Ljava/awt/Graphics;)V

	void printHeavyweightComponents(JNIEnv *env, jobject _this, jobject Graphics0); //139 (Ljava/awt/Graphics;)V

	jboolean imageUpdate(JNIEnv *env, jobject _this, jobject Image0, jint Int1, jint Int2, jint Int3, jint Int4, jint Int5); //140 (Ljava/awt/Image;IIIII)Z

	jobject createImage(JNIEnv *env, jobject _this, jint Int0, jint Int1); //141 (II)Ljava/awt/Image;

	jobject createImage(JNIEnv *env, jobject _this, jobject ImageProducer0); //142 (Ljava/awt/image/ImageProducer;)Ljava/awt/Image;

	jobject createVolatileImage(JNIEnv *env, jobject _this, jint Int0, jint Int1, jobject ImageCapabilities2); //143 (IILjava/awt/ImageCapabilities;)Ljava/awt/image/VolatileImage;

	jobject createVolatileImage(JNIEnv *env, jobject _this, jint Int0, jint Int1); //144 (II)Ljava/awt/image/VolatileImage;

	jboolean prepareImage(JNIEnv *env, jobject _this, jobject Image0, jobject ImageObserver1); //145 (Ljava/awt/Image;Ljava/awt/image/ImageObserver;)Z

	jboolean prepareImage(JNIEnv *env, jobject _this, jobject Image0, jint Int1, jint Int2, jobject ImageObserver3); //146 (Ljava/awt/Image;IILjava/awt/image/ImageObserver;)Z

	jint checkImage(JNIEnv *env, jobject _this, jobject Image0, jint Int1, jint Int2, jobject ImageObserver3); //147 (Ljava/awt/Image;IILjava/awt/image/ImageObserver;)I

	jint checkImage(JNIEnv *env, jobject _this, jobject Image0, jobject ImageObserver1); //148 (Ljava/awt/Image;Ljava/awt/image/ImageObserver;)I

	void createBufferStrategy(JNIEnv *env, jobject _this, jint Int0, jobject BufferCapabilities1); //149 (ILjava/awt/BufferCapabilities;)V

	void createBufferStrategy(JNIEnv *env, jobject _this, jint Int0); //150 (I)V

	jobject getBufferStrategy(JNIEnv *env, jobject _this); //151 ()Ljava/awt/image/BufferStrategy;

	jobject getBackBuffer(JNIEnv *env, jobject _this); //152 ()Ljava/awt/Image;

	void setIgnoreRepaint(JNIEnv *env, jobject _this, jboolean Boolean0); //153 (Z)V

	jboolean getIgnoreRepaint(JNIEnv *env, jobject _this); //154 ()Z

	jboolean inside(JNIEnv *env, jobject _this, jint Int0, jint Int1); //155 (II)Z

	jobject getComponentAt(JNIEnv *env, jobject _this, jint Int0, jint Int1); //156 (II)Ljava/awt/Component;

	jobject getComponentAt(JNIEnv *env, jobject _this, jobject Point0); //157 (Ljava/awt/Point;)Ljava/awt/Component;

	jobject locate(JNIEnv *env, jobject _this, jint Int0, jint Int1); //158 (II)Ljava/awt/Component;

	void deliverEvent(JNIEnv *env, jobject _this, jobject Event0); //159 (Ljava/awt/Event;)V

	void dispatchEvent(JNIEnv *env, jobject _this, jobject AWTEvent0); //160 (Ljava/awt/AWTEvent;)V

	void dispatchEventImpl(JNIEnv *env, jobject _this, jobject AWTEvent0); //161 (Ljava/awt/AWTEvent;)V

	void autoProcessMouseWheel(JNIEnv *env, jobject _this, jobject MouseWheelEvent0); //162 (Ljava/awt/event/MouseWheelEvent;)V

	jboolean dispatchMouseWheelToAncestor(JNIEnv *env, jobject _this, jobject MouseWheelEvent0); //163 (Ljava/awt/event/MouseWheelEvent;)Z

	jboolean checkWindowClosingException(JNIEnv *env, jobject _this); //164 ()Z

	jboolean areInputMethodsEnabled(JNIEnv *env, jobject _this); //165 ()Z

	jboolean eventEnabled(JNIEnv *env, jobject _this, jobject AWTEvent0); //166 (Ljava/awt/AWTEvent;)Z

	jboolean eventTypeEnabled(JNIEnv *env, jobject _this, jint Int0); //167 (I)Z

	jboolean postEvent(JNIEnv *env, jobject _this, jobject Event0); //168 (Ljava/awt/Event;)Z

	void addComponentListener(JNIEnv *env, jobject _this, jobject ComponentListener0); //169 (Ljava/awt/event/ComponentListener;)V

	void removeComponentListener(JNIEnv *env, jobject _this, jobject ComponentListener0); //170 (Ljava/awt/event/ComponentListener;)V

	jobject getComponentListeners(JNIEnv *env, jobject _this); //171 ()[Ljava/awt/event/ComponentListener;

	void addFocusListener(JNIEnv *env, jobject _this, jobject FocusListener0); //172 (Ljava/awt/event/FocusListener;)V

	void removeFocusListener(JNIEnv *env, jobject _this, jobject FocusListener0); //173 (Ljava/awt/event/FocusListener;)V

	jobject getFocusListeners(JNIEnv *env, jobject _this); //174 ()[Ljava/awt/event/FocusListener;

	void addHierarchyListener(JNIEnv *env, jobject _this, jobject HierarchyListener0); //175 (Ljava/awt/event/HierarchyListener;)V

	void removeHierarchyListener(JNIEnv *env, jobject _this, jobject HierarchyListener0); //176 (Ljava/awt/event/HierarchyListener;)V

	jobject getHierarchyListeners(JNIEnv *env, jobject _this); //177 ()[Ljava/awt/event/HierarchyListener;

	void addHierarchyBoundsListener(JNIEnv *env, jobject _this, jobject HierarchyBoundsListener0); //178 (Ljava/awt/event/HierarchyBoundsListener;)V

	void removeHierarchyBoundsListener(JNIEnv *env, jobject _this, jobject HierarchyBoundsListener0); //179 (Ljava/awt/event/HierarchyBoundsListener;)V

	jint numListening(JNIEnv *env, jobject _this, jlong Long0); //180 (J)I

	jint countHierarchyMembers(JNIEnv *env, jobject _this); //181 ()I

	jint createHierarchyEvents(JNIEnv *env, jobject _this, jint Int0, jobject Component1, jobject Container2, jlong Long3, jboolean Boolean4); //182 (ILjava/awt/Component;Ljava/awt/Container;JZ)I

	jobject getHierarchyBoundsListeners(JNIEnv *env, jobject _this); //183 ()[Ljava/awt/event/HierarchyBoundsListener;

	void adjustListeningChildrenOnParent(JNIEnv *env, jobject _this, jlong Long0, jint Int1); //184 (JI)V

	void addKeyListener(JNIEnv *env, jobject _this, jobject KeyListener0); //185 (Ljava/awt/event/KeyListener;)V

	void removeKeyListener(JNIEnv *env, jobject _this, jobject KeyListener0); //186 (Ljava/awt/event/KeyListener;)V

	jobject getKeyListeners(JNIEnv *env, jobject _this); //187 ()[Ljava/awt/event/KeyListener;

	void addMouseListener(JNIEnv *env, jobject _this, jobject MouseListener0); //188 (Ljava/awt/event/MouseListener;)V

	void removeMouseListener(JNIEnv *env, jobject _this, jobject MouseListener0); //189 (Ljava/awt/event/MouseListener;)V

	jobject getMouseListeners(JNIEnv *env, jobject _this); //190 ()[Ljava/awt/event/MouseListener;

	void addMouseMotionListener(JNIEnv *env, jobject _this, jobject MouseMotionListener0); //191 (Ljava/awt/event/MouseMotionListener;)V

	void removeMouseMotionListener(JNIEnv *env, jobject _this, jobject MouseMotionListener0); //192 (Ljava/awt/event/MouseMotionListener;)V

	jobject getMouseMotionListeners(JNIEnv *env, jobject _this); //193 ()[Ljava/awt/event/MouseMotionListener;

	void addMouseWheelListener(JNIEnv *env, jobject _this, jobject MouseWheelListener0); //194 (Ljava/awt/event/MouseWheelListener;)V

	void removeMouseWheelListener(JNIEnv *env, jobject _this, jobject MouseWheelListener0); //195 (Ljava/awt/event/MouseWheelListener;)V

	jobject getMouseWheelListeners(JNIEnv *env, jobject _this); //196 ()[Ljava/awt/event/MouseWheelListener;

	void addInputMethodListener(JNIEnv *env, jobject _this, jobject InputMethodListener0); //197 (Ljava/awt/event/InputMethodListener;)V

	void removeInputMethodListener(JNIEnv *env, jobject _this, jobject InputMethodListener0); //198 (Ljava/awt/event/InputMethodListener;)V

	jobject getInputMethodListeners(JNIEnv *env, jobject _this); //199 ()[Ljava/awt/event/InputMethodListener;

	jobject getListeners(JNIEnv *env, jobject _this, jclass Class0); //200 (Ljava/lang/Class;)[Ljava/util/EventListener;

	jobject getInputMethodRequests(JNIEnv *env, jobject _this); //201 ()Ljava/awt/im/InputMethodRequests;

	jobject getInputContext(JNIEnv *env, jobject _this); //202 ()Ljava/awt/im/InputContext;

	jboolean isCoalescingEnabled(JNIEnv *env, jobject _this); //203 ()Z

	jboolean postsOldMouseEvents(JNIEnv *env, jobject _this); //204 ()Z

	jboolean handleEvent(JNIEnv *env, jobject _this, jobject Event0); //205 (Ljava/awt/Event;)Z

	jboolean mouseDown(JNIEnv *env, jobject _this, jobject Event0, jint Int1, jint Int2); //206 (Ljava/awt/Event;II)Z

	jboolean mouseDrag(JNIEnv *env, jobject _this, jobject Event0, jint Int1, jint Int2); //207 (Ljava/awt/Event;II)Z

	jboolean mouseUp(JNIEnv *env, jobject _this, jobject Event0, jint Int1, jint Int2); //208 (Ljava/awt/Event;II)Z

	jboolean mouseMove(JNIEnv *env, jobject _this, jobject Event0, jint Int1, jint Int2); //209 (Ljava/awt/Event;II)Z

	jboolean mouseEnter(JNIEnv *env, jobject _this, jobject Event0, jint Int1, jint Int2); //210 (Ljava/awt/Event;II)Z

	jboolean mouseExit(JNIEnv *env, jobject _this, jobject Event0, jint Int1, jint Int2); //211 (Ljava/awt/Event;II)Z

	jboolean keyDown(JNIEnv *env, jobject _this, jobject Event0, jint Int1); //212 (Ljava/awt/Event;I)Z

	jboolean keyUp(JNIEnv *env, jobject _this, jobject Event0, jint Int1); //213 (Ljava/awt/Event;I)Z

	void addNotify(JNIEnv *env, jobject _this); //214 ()V

	void removeNotify(JNIEnv *env, jobject _this); //215 ()V

	jboolean gotFocus(JNIEnv *env, jobject _this, jobject Event0, jobject Object1); //216 (Ljava/awt/Event;Ljava/lang/Object;)Z

	jboolean lostFocus(JNIEnv *env, jobject _this, jobject Event0, jobject Object1); //217 (Ljava/awt/Event;Ljava/lang/Object;)Z

	jboolean isFocusTraversable(JNIEnv *env, jobject _this); //218 ()Z

	jboolean isFocusable(JNIEnv *env, jobject _this); //219 ()Z

	void setFocusable(JNIEnv *env, jobject _this, jboolean Boolean0); //220 (Z)V

	void setFocusTraversalKeys(JNIEnv *env, jobject _this, jint Int0, jobject Set1); //221 (ILjava/util/Set;)V

	jobject getFocusTraversalKeys(JNIEnv *env, jobject _this, jint Int0); //222 (I)Ljava/util/Set;

	void setFocusTraversalKeys_NoIDCheck(JNIEnv *env, jobject _this, jint Int0, jobject Set1); //223 (ILjava/util/Set;)V

	jobject getFocusTraversalKeys_NoIDCheck(JNIEnv *env, jobject _this, jint Int0); //224 (I)Ljava/util/Set;

	jboolean areFocusTraversalKeysSet(JNIEnv *env, jobject _this, jint Int0); //225 (I)Z

	void setFocusTraversalKeysEnabled(JNIEnv *env, jobject _this, jboolean Boolean0); //226 (Z)V

	jboolean getFocusTraversalKeysEnabled(JNIEnv *env, jobject _this); //227 ()Z

	void requestFocus(JNIEnv *env, jobject _this); //228 ()V

	jboolean requestFocus(JNIEnv *env, jobject _this, jboolean Boolean0, jobject CausedFocusEvent$Cause1); //229 (ZLsun/awt/CausedFocusEvent$Cause;)Z

	void requestFocus(JNIEnv *env, jobject _this, jobject CausedFocusEvent$Cause0); //230 (Lsun/awt/CausedFocusEvent$Cause;)V

	jboolean requestFocusInWindow(JNIEnv *env, jobject _this); //231 ()Z

	jboolean requestFocusInWindow(JNIEnv *env, jobject _this, jobject CausedFocusEvent$Cause0); //232 (Lsun/awt/CausedFocusEvent$Cause;)Z

	jboolean requestFocusInWindow(JNIEnv *env, jobject _this, jboolean Boolean0, jobject CausedFocusEvent$Cause1); //233 (ZLsun/awt/CausedFocusEvent$Cause;)Z

	jboolean requestFocusHelper(JNIEnv *env, jobject _this, jboolean Boolean0, jboolean Boolean1, jobject CausedFocusEvent$Cause2); //234 (ZZLsun/awt/CausedFocusEvent$Cause;)Z

	jboolean requestFocusHelper(JNIEnv *env, jobject _this, jboolean Boolean0, jboolean Boolean1); //235 (ZZ)Z

	void setRequestFocusController(JNIEnv *env, jobject RequestFocusController0); //236 (Lsun/awt/RequestFocusController;)V

	void autoTransferFocus(JNIEnv *env, jobject _this, jboolean Boolean0); //237 (Z)V

	void transferFocus(JNIEnv *env, jobject _this); //238 ()V

	jobject getFocusCycleRootAncestor(JNIEnv *env, jobject _this); //239 ()Ljava/awt/Container;

	jboolean isFocusCycleRoot(JNIEnv *env, jobject _this, jobject Container0); //240 (Ljava/awt/Container;)Z

	void nextFocus(JNIEnv *env, jobject _this); //241 ()V

	jboolean nextFocusHelper(JNIEnv *env, jobject _this); //242 ()Z

	jobject preNextFocusHelper(JNIEnv *env, jobject _this); //243 ()Ljava/awt/Component;

	jboolean postNextFocusHelper(JNIEnv *env, jobject Component0); //244 (Ljava/awt/Component;)Z

	void transferFocusBackward(JNIEnv *env, jobject _this); //245 ()V

	void transferFocusUpCycle(JNIEnv *env, jobject _this); //246 ()V

	jboolean hasFocus(JNIEnv *env, jobject _this); //247 ()Z

	jboolean isFocusOwner(JNIEnv *env, jobject _this); //248 ()Z

	jobject getNativeContainer(JNIEnv *env, jobject _this); //249 ()Ljava/awt/Container;

	void addPropertyChangeListener(JNIEnv *env, jobject _this, jobject PropertyChangeListener0); //250 (Ljava/beans/PropertyChangeListener;)V

	void addPropertyChangeListener(JNIEnv *env, jobject _this, jobject String0, jobject PropertyChangeListener1); //251 (Ljava/lang/String;Ljava/beans/PropertyChangeListener;)V

	void removePropertyChangeListener(JNIEnv *env, jobject _this, jobject PropertyChangeListener0); //252 (Ljava/beans/PropertyChangeListener;)V

	void removePropertyChangeListener(JNIEnv *env, jobject _this, jobject String0, jobject PropertyChangeListener1); //253 (Ljava/lang/String;Ljava/beans/PropertyChangeListener;)V

	jobject getPropertyChangeListeners(JNIEnv *env, jobject _this, jobject String0); //254 (Ljava/lang/String;)[Ljava/beans/PropertyChangeListener;

	jobject getPropertyChangeListeners(JNIEnv *env, jobject _this); //255 ()[Ljava/beans/PropertyChangeListener;

	void firePropertyChangeWithStringshortValshortVal(JNIEnv *env, jobject _this, jobject String0, jshort shortVal1, jshort shortVal2); //256 (Ljava/lang/String;SS)V

	void firePropertyChangeWithStringCharChar(JNIEnv *env, jobject _this, jobject String0, jchar Char1, jchar Char2); //257 (Ljava/lang/String;CC)V

	void firePropertyChangeWithStringDoubleDouble(JNIEnv *env, jobject _this, jobject String0, jdouble Double1, jdouble Double2); //258 (Ljava/lang/String;DD)V

	void firePropertyChangeWithStringFloatFloat(JNIEnv *env, jobject _this, jobject String0, jfloat Float1, jfloat Float2); //259 (Ljava/lang/String;FF)V

	void firePropertyChangeWithStringLongLong(JNIEnv *env, jobject _this, jobject String0, jlong Long1, jlong Long2); //260 (Ljava/lang/String;JJ)V

	void firePropertyChange(JNIEnv *env, jobject _this, jobject String0, jbyte Byte1, jbyte Byte2); //261 (Ljava/lang/String;BB)V

	void setComponentOrientation(JNIEnv *env, jobject _this, jobject ComponentOrientation0); //262 (Ljava/awt/ComponentOrientation;)V

	jobject getComponentOrientation(JNIEnv *env, jobject _this); //263 ()Ljava/awt/ComponentOrientation;

	void applyComponentOrientation(JNIEnv *env, jobject _this, jobject ComponentOrientation0); //264 (Ljava/awt/ComponentOrientation;)V

	jboolean canBeFocusOwner(JNIEnv *env, jobject _this); //265 ()Z

	jobject getContainingWindow(JNIEnv *env, jobject _this); //266 ()Ljava/awt/Window;

	jobject staticGetContainingWindow(JNIEnv *env, jobject Component0); //267 (Ljava/awt/Component;)Ljava/awt/Window;

	jobject getAccessibleContext(JNIEnv *env, jobject _this); //268 ()Ljavax/accessibility/AccessibleContext;

	jint getAccessibleIndexInParent(JNIEnv *env, jobject _this); //269 ()I

	jobject getAccessibleStateSet(JNIEnv *env, jobject _this); //270 ()Ljavax/accessibility/AccessibleStateSet;

	jboolean isInstanceOf(JNIEnv *env, jobject Object0, jobject String1); //271 (Ljava/lang/Object;Ljava/lang/String;)Z

	jboolean areBoundsValid(JNIEnv *env, jobject _this); //272 ()Z

	void applyCompoundShape(JNIEnv *env, jobject _this, jobject Region0); //273 (Lsun/java2d/pipe/Region;)V

	jobject getLocationOnWindow(JNIEnv *env, jobject _this); //274 ()Ljava/awt/Point;

	jobject getNormalShape(JNIEnv *env, jobject _this); //275 ()Lsun/java2d/pipe/Region;

	jobject getOpaqueShape(JNIEnv *env, jobject _this); //276 ()Lsun/java2d/pipe/Region;

	jint getSiblingIndexAbove(JNIEnv *env, jobject _this); //277 ()I

	jint getSiblingIndexBelow(JNIEnv *env, jobject _this); //278 ()I

	jboolean isNonOpaqueForMixing(JNIEnv *env, jobject _this); //279 ()Z

	void applyCurrentShape(JNIEnv *env, jobject _this); //280 ()V

	void subtractAndApplyShape(JNIEnv *env, jobject _this, jobject Region0); //281 (Lsun/java2d/pipe/Region;)V

	void subtractAndApplyShapeBelowMe(JNIEnv *env, jobject _this); //282 ()V

	void mixOnShowing(JNIEnv *env, jobject _this); //283 ()V

	void mixOnHiding(JNIEnv *env, jobject _this, jboolean Boolean0); //284 (Z)V

	void mixOnReshaping(JNIEnv *env, jobject _this); //285 ()V

	void mixOnZOrderChanging(JNIEnv *env, jobject _this, jint Int0, jint Int1); //286 (II)V

	void mixOnValidating(JNIEnv *env, jobject _this); //287 ()V

	jboolean isMixingNeeded(JNIEnv *env, jobject _this); //288 ()Z

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
}
#endif
