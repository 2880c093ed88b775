#include "Component.h"
#include "../common.h"
#include  <assert.h>

namespace NSComponent{

	CACHE_JAVA_CLASS(Component) = NULL;

	//fields(69)

	CACHE_JAVA_FIELD(Component, peer) = NULL;

	CACHE_JAVA_FIELD(Component, parent) = NULL;

	CACHE_JAVA_FIELD(Component, appContext) = NULL;

	CACHE_JAVA_FIELD(Component, x) = NULL;

	CACHE_JAVA_FIELD(Component, y) = NULL;

	CACHE_JAVA_FIELD(Component, width) = NULL;

	CACHE_JAVA_FIELD(Component, height) = NULL;

	CACHE_JAVA_FIELD(Component, foreground) = NULL;

	CACHE_JAVA_FIELD(Component, background) = NULL;

	CACHE_JAVA_FIELD(Component, font) = NULL;

	CACHE_JAVA_FIELD(Component, peerFont) = NULL;

	CACHE_JAVA_FIELD(Component, cursor) = NULL;

	CACHE_JAVA_FIELD(Component, locale) = NULL;

	CACHE_JAVA_FIELD(Component, graphicsConfig) = NULL;

	CACHE_JAVA_FIELD(Component, bufferStrategy) = NULL;

	CACHE_JAVA_FIELD(Component, ignoreRepaint) = NULL;

	CACHE_JAVA_FIELD(Component, visible) = NULL;

	CACHE_JAVA_FIELD(Component, enabled) = NULL;

	CACHE_JAVA_FIELD(Component, dropTarget) = NULL;

	CACHE_JAVA_FIELD(Component, popups) = NULL;

	CACHE_JAVA_FIELD(Component, focusTraversalKeys) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, LOCK) = NULL;

	CACHE_JAVA_FIELD(Component, minSize) = NULL;

	CACHE_JAVA_FIELD(Component, minSizeSet) = NULL;

	CACHE_JAVA_FIELD(Component, prefSize) = NULL;

	CACHE_JAVA_FIELD(Component, prefSizeSet) = NULL;

	CACHE_JAVA_FIELD(Component, maxSize) = NULL;

	CACHE_JAVA_FIELD(Component, maxSizeSet) = NULL;

	CACHE_JAVA_FIELD(Component, componentOrientation) = NULL;

	CACHE_JAVA_FIELD(Component, newEventsOnly) = NULL;

	CACHE_JAVA_FIELD(Component, componentListener) = NULL;

	CACHE_JAVA_FIELD(Component, focusListener) = NULL;

	CACHE_JAVA_FIELD(Component, hierarchyListener) = NULL;

	CACHE_JAVA_FIELD(Component, hierarchyBoundsListener) = NULL;

	CACHE_JAVA_FIELD(Component, keyListener) = NULL;

	CACHE_JAVA_FIELD(Component, mouseListener) = NULL;

	CACHE_JAVA_FIELD(Component, mouseMotionListener) = NULL;

	CACHE_JAVA_FIELD(Component, mouseWheelListener) = NULL;

	CACHE_JAVA_FIELD(Component, inputMethodListener) = NULL;

	CACHE_JAVA_FIELD(Component, windowClosingException) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, actionListenerK) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, adjustmentListenerK) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, componentListenerK) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, containerListenerK) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, focusListenerK) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, itemListenerK) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, keyListenerK) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, mouseListenerK) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, mouseMotionListenerK) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, mouseWheelListenerK) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, textListenerK) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, ownedWindowK) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, windowListenerK) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, inputMethodListenerK) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, hierarchyListenerK) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, hierarchyBoundsListenerK) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, windowStateListenerK) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, windowFocusListenerK) = NULL;

	CACHE_JAVA_FIELD(Component, eventMask) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, isInc) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, incRate) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, TOP_ALIGNMENT) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, CENTER_ALIGNMENT) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, BOTTOM_ALIGNMENT) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, LEFT_ALIGNMENT) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, RIGHT_ALIGNMENT) = NULL;

	CACHE_JAVA_FIELD(Component, isPacked) = NULL;

	CACHE_JAVA_FIELD(Component, accessibleContext) = NULL;

	CACHE_JAVA_STATIC_FIELD(Component, $assertionsDisabled) = NULL;

	//methods(289)

	CACHE_JAVA_METHOD(Component, add, 0) = NULL;

	CACHE_JAVA_METHOD(Component, toString, 1) = NULL;

	CACHE_JAVA_METHOD(Component, getName, 2) = NULL;

	CACHE_JAVA_METHOD(Component, size, 3) = NULL;

	CACHE_JAVA_METHOD(Component, contains, 4) = NULL;

	CACHE_JAVA_METHOD(Component, contains, 5) = NULL;

	CACHE_JAVA_METHOD(Component, getParent, 6) = NULL;

	CACHE_JAVA_METHOD(Component, getLocation, 7) = NULL;

	CACHE_JAVA_METHOD(Component, getLocation, 8) = NULL;

	CACHE_JAVA_METHOD(Component, remove, 9) = NULL;

	CACHE_JAVA_METHOD(Component, setName, 10) = NULL;

	CACHE_JAVA_METHOD(Component, list, 11) = NULL;

	CACHE_JAVA_METHOD(Component, list, 12) = NULL;

	CACHE_JAVA_METHOD(Component, list, 13) = NULL;

	CACHE_JAVA_METHOD(Component, list, 14) = NULL;

	CACHE_JAVA_METHOD(Component, list, 15) = NULL;

	CACHE_JAVA_METHOD(Component, print, 16) = NULL;

	CACHE_JAVA_METHOD(Component, getSize, 17) = NULL;

	CACHE_JAVA_METHOD(Component, getSize, 18) = NULL;

	CACHE_JAVA_METHOD(Component, resize, 19) = NULL;

	CACHE_JAVA_METHOD(Component, resize, 20) = NULL;

	CACHE_JAVA_METHOD(Component, action, 21) = NULL;

	CACHE_JAVA_METHOD(Component, setSize, 22) = NULL;

	CACHE_JAVA_METHOD(Component, setSize, 23) = NULL;

	CACHE_JAVA_METHOD(Component, update, 24) = NULL;

	CACHE_JAVA_METHOD(Component, isOpaque, 25) = NULL;

	CACHE_JAVA_METHOD(Component, enable, 26) = NULL;

	CACHE_JAVA_METHOD(Component, enable, 27) = NULL;

	CACHE_JAVA_METHOD(Component, disable, 28) = NULL;

	CACHE_JAVA_METHOD(Component, location, 29) = NULL;

	CACHE_JAVA_METHOD(Component, isFocusTraversableOverridden, 30) = NULL;

	CACHE_JAVA_METHOD(Component, getObjectLock, 31) = NULL;

	CACHE_JAVA_METHOD(Component, getAccessControlContext, 32) = NULL;

	CACHE_JAVA_METHOD(Component, getBoundsOp, 33) = NULL;

	CACHE_JAVA_METHOD(Component, setBoundsOp, 34) = NULL;

	CACHE_JAVA_METHOD(Component, initializeFocusTraversalKeys, 35) = NULL;

	CACHE_JAVA_METHOD(Component, constructComponentName, 36) = NULL;

	CACHE_JAVA_METHOD(Component, getParent_NoClientCode, 37) = NULL;

	CACHE_JAVA_METHOD(Component, getContainer, 38) = NULL;

	CACHE_JAVA_METHOD(Component, getPeer, 39) = NULL;

	CACHE_JAVA_METHOD(Component, setDropTarget, 40) = NULL;

	CACHE_JAVA_METHOD(Component, getDropTarget, 41) = NULL;

	CACHE_JAVA_METHOD(Component, getGraphicsConfiguration, 42) = NULL;

	CACHE_JAVA_METHOD(Component, getGraphicsConfiguration_NoClientCode, 43) = NULL;

	CACHE_JAVA_METHOD(Component, resetGC, 44) = NULL;

	CACHE_JAVA_METHOD(Component, setGCFromPeer, 45) = NULL;

	CACHE_JAVA_METHOD(Component, checkGD, 46) = NULL;

	CACHE_JAVA_METHOD(Component, getTreeLock, 47) = NULL;

	CACHE_JAVA_METHOD(Component, checkTreeLock, 48) = NULL;

	CACHE_JAVA_METHOD(Component, getToolkit, 49) = NULL;

	CACHE_JAVA_METHOD(Component, getToolkitImpl, 50) = NULL;

	CACHE_JAVA_METHOD(Component, isValid, 51) = NULL;

	CACHE_JAVA_METHOD(Component, isDisplayable, 52) = NULL;

	CACHE_JAVA_METHOD(Component, isVisible, 53) = NULL;

	CACHE_JAVA_METHOD(Component, isVisible_NoClientCode, 54) = NULL;

	CACHE_JAVA_METHOD(Component, isRecursivelyVisible, 55) = NULL;

	CACHE_JAVA_METHOD(Component, pointRelativeToComponent, 56) = NULL;

	CACHE_JAVA_METHOD(Component, findUnderMouseInWindow, 57) = NULL;

	CACHE_JAVA_METHOD(Component, getMousePosition, 58) = NULL;

	CACHE_JAVA_METHOD(Component, isSameOrAncestorOf, 59) = NULL;

	CACHE_JAVA_METHOD(Component, isShowing, 60) = NULL;

	CACHE_JAVA_METHOD(Component, isEnabled, 61) = NULL;

	CACHE_JAVA_METHOD(Component, isEnabledImpl, 62) = NULL;

	CACHE_JAVA_METHOD(Component, setEnabled, 63) = NULL;

	CACHE_JAVA_METHOD(Component, isDoubleBuffered, 64) = NULL;

	CACHE_JAVA_METHOD(Component, enableInputMethods, 65) = NULL;

	CACHE_JAVA_METHOD(Component, setVisible, 66) = NULL;

	CACHE_JAVA_METHOD(Component, show, 67) = NULL;

	CACHE_JAVA_METHOD(Component, show, 68) = NULL;

	CACHE_JAVA_METHOD(Component, containsFocus, 69) = NULL;

	CACHE_JAVA_METHOD(Component, clearMostRecentFocusOwnerOnHide, 70) = NULL;

	CACHE_JAVA_METHOD(Component, clearCurrentFocusCycleRootOnHide, 71) = NULL;

	CACHE_JAVA_METHOD(Component, hide, 72) = NULL;

	CACHE_JAVA_METHOD(Component, getForeground, 73) = NULL;

	CACHE_JAVA_METHOD(Component, setForeground, 74) = NULL;

	CACHE_JAVA_METHOD(Component, isForegroundSet, 75) = NULL;

	CACHE_JAVA_METHOD(Component, getBackground, 76) = NULL;

	CACHE_JAVA_METHOD(Component, setBackground, 77) = NULL;

	CACHE_JAVA_METHOD(Component, isBackgroundSet, 78) = NULL;

	CACHE_JAVA_METHOD(Component, getFont, 79) = NULL;

	CACHE_JAVA_METHOD(Component, getFont_NoClientCode, 80) = NULL;

	CACHE_JAVA_METHOD(Component, setFont, 81) = NULL;

	CACHE_JAVA_METHOD(Component, isFontSet, 82) = NULL;

	CACHE_JAVA_METHOD(Component, getLocale, 83) = NULL;

	CACHE_JAVA_METHOD(Component, setLocale, 84) = NULL;

	CACHE_JAVA_METHOD(Component, getColorModel, 85) = NULL;

	CACHE_JAVA_METHOD(Component, getLocationOnScreen, 86) = NULL;

	CACHE_JAVA_METHOD(Component, getLocationOnScreen_NoTreeLock, 87) = NULL;

	CACHE_JAVA_METHOD(Component, setLocation, 88) = NULL;

	CACHE_JAVA_METHOD(Component, setLocation, 89) = NULL;

	CACHE_JAVA_METHOD(Component, move, 90) = NULL;

	CACHE_JAVA_METHOD(Component, getBounds, 91) = NULL;

	CACHE_JAVA_METHOD(Component, getBounds, 92) = NULL;

	CACHE_JAVA_METHOD(Component, bounds, 93) = NULL;

	CACHE_JAVA_METHOD(Component, setBounds, 94) = NULL;

	CACHE_JAVA_METHOD(Component, setBounds, 95) = NULL;

	CACHE_JAVA_METHOD(Component, reshape, 96) = NULL;

	CACHE_JAVA_METHOD(Component, getX, 97) = NULL;

	CACHE_JAVA_METHOD(Component, getY, 98) = NULL;

	CACHE_JAVA_METHOD(Component, getWidth, 99) = NULL;

	CACHE_JAVA_METHOD(Component, getHeight, 100) = NULL;

	CACHE_JAVA_METHOD(Component, isLightweight, 101) = NULL;

	CACHE_JAVA_METHOD(Component, setPreferredSize, 102) = NULL;

	CACHE_JAVA_METHOD(Component, preferredSize, 103) = NULL;

	CACHE_JAVA_METHOD(Component, isPreferredSizeSet, 104) = NULL;

	CACHE_JAVA_METHOD(Component, getPreferredSize, 105) = NULL;

	CACHE_JAVA_METHOD(Component, setMinimumSize, 106) = NULL;

	CACHE_JAVA_METHOD(Component, minimumSize, 107) = NULL;

	CACHE_JAVA_METHOD(Component, isMinimumSizeSet, 108) = NULL;

	CACHE_JAVA_METHOD(Component, getMinimumSize, 109) = NULL;

	CACHE_JAVA_METHOD(Component, setMaximumSize, 110) = NULL;

	CACHE_JAVA_METHOD(Component, isMaximumSizeSet, 111) = NULL;

	CACHE_JAVA_METHOD(Component, getMaximumSize, 112) = NULL;

	CACHE_JAVA_METHOD(Component, getAlignmentX, 113) = NULL;

	CACHE_JAVA_METHOD(Component, getAlignmentY, 114) = NULL;

	CACHE_JAVA_METHOD(Component, getBaseline, 115) = NULL;

	CACHE_JAVA_METHOD(Component, getBaselineResizeBehavior, 116) = NULL;

	CACHE_JAVA_METHOD(Component, doLayout, 117) = NULL;

	CACHE_JAVA_METHOD(Component, layout, 118) = NULL;

	CACHE_JAVA_METHOD(Component, validate, 119) = NULL;

	CACHE_JAVA_METHOD(Component, invalidate, 120) = NULL;

	CACHE_JAVA_METHOD(Component, invalidateIfValid, 121) = NULL;

	CACHE_JAVA_METHOD(Component, getGraphics, 122) = NULL;

	CACHE_JAVA_METHOD(Component, getGraphics_NoClientCode, 123) = NULL;

	CACHE_JAVA_METHOD(Component, getFontMetrics, 124) = NULL;

	CACHE_JAVA_METHOD(Component, setCursor, 125) = NULL;

	CACHE_JAVA_METHOD(Component, updateCursorImmediately, 126) = NULL;

	CACHE_JAVA_METHOD(Component, getCursor, 127) = NULL;

	CACHE_JAVA_METHOD(Component, isCursorSet, 128) = NULL;

	CACHE_JAVA_METHOD(Component, paint, 129) = NULL;

	CACHE_JAVA_METHOD(Component, paintAll, 130) = NULL;

	CACHE_JAVA_METHOD(Component, lightweightPaint, 131) = NULL;

	CACHE_JAVA_METHOD(Component, paintHeavyweightComponents, 132) = NULL;

	CACHE_JAVA_METHOD(Component, repaint, 133) = NULL;

	CACHE_JAVA_METHOD(Component, repaint, 134) = NULL;

	CACHE_JAVA_METHOD(Component, repaint, 135) = NULL;

	CACHE_JAVA_METHOD(Component, repaint, 136) = NULL;

	CACHE_JAVA_METHOD(Component, printAll, 137) = NULL;

	CACHE_JAVA_METHOD(Component, lightweightPrint, 138) = NULL;

	CACHE_JAVA_METHOD(Component, printHeavyweightComponents, 139) = NULL;

	CACHE_JAVA_METHOD(Component, imageUpdate, 140) = NULL;

	CACHE_JAVA_METHOD(Component, createImage, 141) = NULL;

	CACHE_JAVA_METHOD(Component, createImage, 142) = NULL;

	CACHE_JAVA_METHOD(Component, createVolatileImage, 143) = NULL;

	CACHE_JAVA_METHOD(Component, createVolatileImage, 144) = NULL;

	CACHE_JAVA_METHOD(Component, prepareImage, 145) = NULL;

	CACHE_JAVA_METHOD(Component, prepareImage, 146) = NULL;

	CACHE_JAVA_METHOD(Component, checkImage, 147) = NULL;

	CACHE_JAVA_METHOD(Component, checkImage, 148) = NULL;

	CACHE_JAVA_METHOD(Component, createBufferStrategy, 149) = NULL;

	CACHE_JAVA_METHOD(Component, createBufferStrategy, 150) = NULL;

	CACHE_JAVA_METHOD(Component, getBufferStrategy, 151) = NULL;

	CACHE_JAVA_METHOD(Component, getBackBuffer, 152) = NULL;

	CACHE_JAVA_METHOD(Component, setIgnoreRepaint, 153) = NULL;

	CACHE_JAVA_METHOD(Component, getIgnoreRepaint, 154) = NULL;

	CACHE_JAVA_METHOD(Component, inside, 155) = NULL;

	CACHE_JAVA_METHOD(Component, getComponentAt, 156) = NULL;

	CACHE_JAVA_METHOD(Component, getComponentAt, 157) = NULL;

	CACHE_JAVA_METHOD(Component, locate, 158) = NULL;

	CACHE_JAVA_METHOD(Component, deliverEvent, 159) = NULL;

	CACHE_JAVA_METHOD(Component, dispatchEvent, 160) = NULL;

	CACHE_JAVA_METHOD(Component, dispatchEventImpl, 161) = NULL;

	CACHE_JAVA_METHOD(Component, autoProcessMouseWheel, 162) = NULL;

	CACHE_JAVA_METHOD(Component, dispatchMouseWheelToAncestor, 163) = NULL;

	CACHE_JAVA_METHOD(Component, checkWindowClosingException, 164) = NULL;

	CACHE_JAVA_METHOD(Component, areInputMethodsEnabled, 165) = NULL;

	CACHE_JAVA_METHOD(Component, eventEnabled, 166) = NULL;

	CACHE_JAVA_METHOD(Component, eventTypeEnabled, 167) = NULL;

	CACHE_JAVA_METHOD(Component, postEvent, 168) = NULL;

	CACHE_JAVA_METHOD(Component, addComponentListener, 169) = NULL;

	CACHE_JAVA_METHOD(Component, removeComponentListener, 170) = NULL;

	CACHE_JAVA_METHOD(Component, getComponentListeners, 171) = NULL;

	CACHE_JAVA_METHOD(Component, addFocusListener, 172) = NULL;

	CACHE_JAVA_METHOD(Component, removeFocusListener, 173) = NULL;

	CACHE_JAVA_METHOD(Component, getFocusListeners, 174) = NULL;

	CACHE_JAVA_METHOD(Component, addHierarchyListener, 175) = NULL;

	CACHE_JAVA_METHOD(Component, removeHierarchyListener, 176) = NULL;

	CACHE_JAVA_METHOD(Component, getHierarchyListeners, 177) = NULL;

	CACHE_JAVA_METHOD(Component, addHierarchyBoundsListener, 178) = NULL;

	CACHE_JAVA_METHOD(Component, removeHierarchyBoundsListener, 179) = NULL;

	CACHE_JAVA_METHOD(Component, numListening, 180) = NULL;

	CACHE_JAVA_METHOD(Component, countHierarchyMembers, 181) = NULL;

	CACHE_JAVA_METHOD(Component, createHierarchyEvents, 182) = NULL;

	CACHE_JAVA_METHOD(Component, getHierarchyBoundsListeners, 183) = NULL;

	CACHE_JAVA_METHOD(Component, adjustListeningChildrenOnParent, 184) = NULL;

	CACHE_JAVA_METHOD(Component, addKeyListener, 185) = NULL;

	CACHE_JAVA_METHOD(Component, removeKeyListener, 186) = NULL;

	CACHE_JAVA_METHOD(Component, getKeyListeners, 187) = NULL;

	CACHE_JAVA_METHOD(Component, addMouseListener, 188) = NULL;

	CACHE_JAVA_METHOD(Component, removeMouseListener, 189) = NULL;

	CACHE_JAVA_METHOD(Component, getMouseListeners, 190) = NULL;

	CACHE_JAVA_METHOD(Component, addMouseMotionListener, 191) = NULL;

	CACHE_JAVA_METHOD(Component, removeMouseMotionListener, 192) = NULL;

	CACHE_JAVA_METHOD(Component, getMouseMotionListeners, 193) = NULL;

	CACHE_JAVA_METHOD(Component, addMouseWheelListener, 194) = NULL;

	CACHE_JAVA_METHOD(Component, removeMouseWheelListener, 195) = NULL;

	CACHE_JAVA_METHOD(Component, getMouseWheelListeners, 196) = NULL;

	CACHE_JAVA_METHOD(Component, addInputMethodListener, 197) = NULL;

	CACHE_JAVA_METHOD(Component, removeInputMethodListener, 198) = NULL;

	CACHE_JAVA_METHOD(Component, getInputMethodListeners, 199) = NULL;

	CACHE_JAVA_METHOD(Component, getListeners, 200) = NULL;

	CACHE_JAVA_METHOD(Component, getInputMethodRequests, 201) = NULL;

	CACHE_JAVA_METHOD(Component, getInputContext, 202) = NULL;

	CACHE_JAVA_METHOD(Component, isCoalescingEnabled, 203) = NULL;

	CACHE_JAVA_METHOD(Component, postsOldMouseEvents, 204) = NULL;

	CACHE_JAVA_METHOD(Component, handleEvent, 205) = NULL;

	CACHE_JAVA_METHOD(Component, mouseDown, 206) = NULL;

	CACHE_JAVA_METHOD(Component, mouseDrag, 207) = NULL;

	CACHE_JAVA_METHOD(Component, mouseUp, 208) = NULL;

	CACHE_JAVA_METHOD(Component, mouseMove, 209) = NULL;

	CACHE_JAVA_METHOD(Component, mouseEnter, 210) = NULL;

	CACHE_JAVA_METHOD(Component, mouseExit, 211) = NULL;

	CACHE_JAVA_METHOD(Component, keyDown, 212) = NULL;

	CACHE_JAVA_METHOD(Component, keyUp, 213) = NULL;

	CACHE_JAVA_METHOD(Component, addNotify, 214) = NULL;

	CACHE_JAVA_METHOD(Component, removeNotify, 215) = NULL;

	CACHE_JAVA_METHOD(Component, gotFocus, 216) = NULL;

	CACHE_JAVA_METHOD(Component, lostFocus, 217) = NULL;

	CACHE_JAVA_METHOD(Component, isFocusTraversable, 218) = NULL;

	CACHE_JAVA_METHOD(Component, isFocusable, 219) = NULL;

	CACHE_JAVA_METHOD(Component, setFocusable, 220) = NULL;

	CACHE_JAVA_METHOD(Component, setFocusTraversalKeys, 221) = NULL;

	CACHE_JAVA_METHOD(Component, getFocusTraversalKeys, 222) = NULL;

	CACHE_JAVA_METHOD(Component, setFocusTraversalKeys_NoIDCheck, 223) = NULL;

	CACHE_JAVA_METHOD(Component, getFocusTraversalKeys_NoIDCheck, 224) = NULL;

	CACHE_JAVA_METHOD(Component, areFocusTraversalKeysSet, 225) = NULL;

	CACHE_JAVA_METHOD(Component, setFocusTraversalKeysEnabled, 226) = NULL;

	CACHE_JAVA_METHOD(Component, getFocusTraversalKeysEnabled, 227) = NULL;

	CACHE_JAVA_METHOD(Component, requestFocus, 228) = NULL;

	CACHE_JAVA_METHOD(Component, requestFocus, 229) = NULL;

	CACHE_JAVA_METHOD(Component, requestFocus, 230) = NULL;

	CACHE_JAVA_METHOD(Component, requestFocusInWindow, 231) = NULL;

	CACHE_JAVA_METHOD(Component, requestFocusInWindow, 232) = NULL;

	CACHE_JAVA_METHOD(Component, requestFocusInWindow, 233) = NULL;

	CACHE_JAVA_METHOD(Component, requestFocusHelper, 234) = NULL;

	CACHE_JAVA_METHOD(Component, requestFocusHelper, 235) = NULL;

	CACHE_JAVA_STATIC_METHOD(Component, setRequestFocusController, 236) = NULL;

	CACHE_JAVA_METHOD(Component, autoTransferFocus, 237) = NULL;

	CACHE_JAVA_METHOD(Component, transferFocus, 238) = NULL;

	CACHE_JAVA_METHOD(Component, getFocusCycleRootAncestor, 239) = NULL;

	CACHE_JAVA_METHOD(Component, isFocusCycleRoot, 240) = NULL;

	CACHE_JAVA_METHOD(Component, nextFocus, 241) = NULL;

	CACHE_JAVA_METHOD(Component, nextFocusHelper, 242) = NULL;

	CACHE_JAVA_METHOD(Component, preNextFocusHelper, 243) = NULL;

	CACHE_JAVA_STATIC_METHOD(Component, postNextFocusHelper, 244) = NULL;

	CACHE_JAVA_METHOD(Component, transferFocusBackward, 245) = NULL;

	CACHE_JAVA_METHOD(Component, transferFocusUpCycle, 246) = NULL;

	CACHE_JAVA_METHOD(Component, hasFocus, 247) = NULL;

	CACHE_JAVA_METHOD(Component, isFocusOwner, 248) = NULL;

	CACHE_JAVA_METHOD(Component, getNativeContainer, 249) = NULL;

	CACHE_JAVA_METHOD(Component, addPropertyChangeListener, 250) = NULL;

	CACHE_JAVA_METHOD(Component, addPropertyChangeListener, 251) = NULL;

	CACHE_JAVA_METHOD(Component, removePropertyChangeListener, 252) = NULL;

	CACHE_JAVA_METHOD(Component, removePropertyChangeListener, 253) = NULL;

	CACHE_JAVA_METHOD(Component, getPropertyChangeListeners, 254) = NULL;

	CACHE_JAVA_METHOD(Component, getPropertyChangeListeners, 255) = NULL;

	CACHE_JAVA_METHOD(Component, firePropertyChange, 256) = NULL;

	CACHE_JAVA_METHOD(Component, firePropertyChange, 257) = NULL;

	CACHE_JAVA_METHOD(Component, firePropertyChange, 258) = NULL;

	CACHE_JAVA_METHOD(Component, firePropertyChange, 259) = NULL;

	CACHE_JAVA_METHOD(Component, firePropertyChange, 260) = NULL;

	CACHE_JAVA_METHOD(Component, firePropertyChange, 261) = NULL;

	CACHE_JAVA_METHOD(Component, setComponentOrientation, 262) = NULL;

	CACHE_JAVA_METHOD(Component, getComponentOrientation, 263) = NULL;

	CACHE_JAVA_METHOD(Component, applyComponentOrientation, 264) = NULL;

	CACHE_JAVA_METHOD(Component, canBeFocusOwner, 265) = NULL;

	CACHE_JAVA_METHOD(Component, getContainingWindow, 266) = NULL;

	CACHE_JAVA_STATIC_METHOD(Component, getContainingWindow, 267) = NULL;

	CACHE_JAVA_METHOD(Component, getAccessibleContext, 268) = NULL;

	CACHE_JAVA_METHOD(Component, getAccessibleIndexInParent, 269) = NULL;

	CACHE_JAVA_METHOD(Component, getAccessibleStateSet, 270) = NULL;

	CACHE_JAVA_STATIC_METHOD(Component, isInstanceOf, 271) = NULL;

	CACHE_JAVA_METHOD(Component, areBoundsValid, 272) = NULL;

	CACHE_JAVA_METHOD(Component, applyCompoundShape, 273) = NULL;

	CACHE_JAVA_METHOD(Component, getLocationOnWindow, 274) = NULL;

	CACHE_JAVA_METHOD(Component, getNormalShape, 275) = NULL;

	CACHE_JAVA_METHOD(Component, getOpaqueShape, 276) = NULL;

	CACHE_JAVA_METHOD(Component, getSiblingIndexAbove, 277) = NULL;

	CACHE_JAVA_METHOD(Component, getSiblingIndexBelow, 278) = NULL;

	CACHE_JAVA_METHOD(Component, isNonOpaqueForMixing, 279) = NULL;

	CACHE_JAVA_METHOD(Component, applyCurrentShape, 280) = NULL;

	CACHE_JAVA_METHOD(Component, subtractAndApplyShape, 281) = NULL;

	CACHE_JAVA_METHOD(Component, subtractAndApplyShapeBelowMe, 282) = NULL;

	CACHE_JAVA_METHOD(Component, mixOnShowing, 283) = NULL;

	CACHE_JAVA_METHOD(Component, mixOnHiding, 284) = NULL;

	CACHE_JAVA_METHOD(Component, mixOnReshaping, 285) = NULL;

	CACHE_JAVA_METHOD(Component, mixOnZOrderChanging, 286) = NULL;

	CACHE_JAVA_METHOD(Component, mixOnValidating, 287) = NULL;

	CACHE_JAVA_METHOD(Component, isMixingNeeded, 288) = NULL;

	void add(JNIEnv *env, jobject _this, jobject PopupMenu0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, add, "(Ljava/awt/PopupMenu;)V", 0);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, add, 0), PopupMenu0);
	}

	jobject toString(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, toString, "()Ljava/lang/String;", 1);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, toString, 1));
	}

	jobject getName(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getName, "()Ljava/lang/String;", 2);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getName, 2));
	}

	jobject size(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, size, "()Ljava/awt/Dimension;", 3);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, size, 3));
	}

	jboolean contains(JNIEnv *env, jobject _this, jobject Point0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, contains, "(Ljava/awt/Point;)Z", 4);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, contains, 4), Point0);
	}

	jboolean contains(JNIEnv *env, jobject _this, jint Int0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, contains, "(II)Z", 5);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, contains, 5), Int0, Int1);
	}

	jobject getParent(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getParent, "()Ljava/awt/Container;", 6);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getParent, 6));
	}

	jobject getLocation(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getLocation, "()Ljava/awt/Point;", 7);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getLocation, 7));
	}

	jobject getLocation(JNIEnv *env, jobject _this, jobject Point0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getLocation, "(Ljava/awt/Point;)Ljava/awt/Point;", 8);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getLocation, 8), Point0);
	}

	void remove(JNIEnv *env, jobject _this, jobject MenuComponent0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, remove, "(Ljava/awt/MenuComponent;)V", 9);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, remove, 9), MenuComponent0);
	}

	void setName(JNIEnv *env, jobject _this, jobject String0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, setName, "(Ljava/lang/String;)V", 10);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, setName, 10), String0);
	}

	void listWithPrintStreamInt(JNIEnv *env, jobject _this, jobject PrintStream0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, list, "(Ljava/io/PrintStream;I)V", 11);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, list, 11), PrintStream0, Int1);
	}

	void listWithPrintWriter(JNIEnv *env, jobject _this, jobject PrintWriter0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, list, "(Ljava/io/PrintWriter;)V", 12);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, list, 12), PrintWriter0);
	}

	void list(JNIEnv *env, jobject _this, jobject PrintWriter0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, list, "(Ljava/io/PrintWriter;I)V", 13);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, list, 13), PrintWriter0, Int1);
	}

	void list(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, list, "()V", 14);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, list, 14));
	}

	void list(JNIEnv *env, jobject _this, jobject PrintStream0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, list, "(Ljava/io/PrintStream;)V", 15);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, list, 15), PrintStream0);
	}

	void print(JNIEnv *env, jobject _this, jobject Graphics0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, print, "(Ljava/awt/Graphics;)V", 16);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, print, 16), Graphics0);
	}

	jobject getSize(JNIEnv *env, jobject _this, jobject Dimension0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getSize, "(Ljava/awt/Dimension;)Ljava/awt/Dimension;", 17);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getSize, 17), Dimension0);
	}

	jobject getSize(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getSize, "()Ljava/awt/Dimension;", 18);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getSize, 18));
	}

	void resize(JNIEnv *env, jobject _this, jobject Dimension0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, resize, "(Ljava/awt/Dimension;)V", 19);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, resize, 19), Dimension0);
	}

	void resize(JNIEnv *env, jobject _this, jint Int0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, resize, "(II)V", 20);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, resize, 20), Int0, Int1);
	}

	jboolean action(JNIEnv *env, jobject _this, jobject Event0, jobject Object1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, action, "(Ljava/awt/Event;Ljava/lang/Object;)Z", 21);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, action, 21), Event0, Object1);
	}

	void setSize(JNIEnv *env, jobject _this, jobject Dimension0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, setSize, "(Ljava/awt/Dimension;)V", 22);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, setSize, 22), Dimension0);
	}

	void setSize(JNIEnv *env, jobject _this, jint Int0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, setSize, "(II)V", 23);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, setSize, 23), Int0, Int1);
	}

	void update(JNIEnv *env, jobject _this, jobject Graphics0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, update, "(Ljava/awt/Graphics;)V", 24);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, update, 24), Graphics0);
	}

	jboolean isOpaque(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isOpaque, "()Z", 25);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isOpaque, 25));
	}

	void enable(JNIEnv *env, jobject _this, jboolean Boolean0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, enable, "(Z)V", 26);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, enable, 26), Boolean0);
	}

	void enable(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, enable, "()V", 27);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, enable, 27));
	}

	void disable(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, disable, "()V", 28);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, disable, 28));
	}

	jobject location(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, location, "()Ljava/awt/Point;", 29);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, location, 29));
	}

	jboolean isFocusTraversableOverridden(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isFocusTraversableOverridden, "()Z", 30);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isFocusTraversableOverridden, 30));
	}

	jobject getObjectLock(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getObjectLock, "()Ljava/lang/Object;", 31);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getObjectLock, 31));
	}

	jobject getAccessControlContext(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getAccessControlContext, "()Ljava/security/AccessControlContext;", 32);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getAccessControlContext, 32));
	}

	jint getBoundsOp(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getBoundsOp, "()I", 33);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Component, getBoundsOp, 33));
	}

	void setBoundsOp(JNIEnv *env, jobject _this, jint Int0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, setBoundsOp, "(I)V", 34);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, setBoundsOp, 34), Int0);
	}

	void initializeFocusTraversalKeys(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, initializeFocusTraversalKeys, "()V", 35);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, initializeFocusTraversalKeys, 35));
	}

	jobject constructComponentName(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, constructComponentName, "()Ljava/lang/String;", 36);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, constructComponentName, 36));
	}

	jobject getParent_NoClientCode(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getParent_NoClientCode, "()Ljava/awt/Container;", 37);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getParent_NoClientCode, 37));
	}

	jobject getContainer(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getContainer, "()Ljava/awt/Container;", 38);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getContainer, 38));
	}

	jobject getPeer(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getPeer, "()Ljava/awt/peer/ComponentPeer;", 39);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getPeer, 39));
	}

	void setDropTarget(JNIEnv *env, jobject _this, jobject DropTarget0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, setDropTarget, "(Ljava/awt/dnd/DropTarget;)V", 40);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, setDropTarget, 40), DropTarget0);
	}

	jobject getDropTarget(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getDropTarget, "()Ljava/awt/dnd/DropTarget;", 41);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getDropTarget, 41));
	}

	jobject getGraphicsConfiguration(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getGraphicsConfiguration, "()Ljava/awt/GraphicsConfiguration;", 42);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getGraphicsConfiguration, 42));
	}

	jobject getGraphicsConfiguration_NoClientCode(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getGraphicsConfiguration_NoClientCode, "()Ljava/awt/GraphicsConfiguration;", 43);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getGraphicsConfiguration_NoClientCode, 43));
	}

	void resetGC(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, resetGC, "()V", 44);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, resetGC, 44));
	}

	void setGCFromPeer(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, setGCFromPeer, "()V", 45);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, setGCFromPeer, 45));
	}

	void checkGD(JNIEnv *env, jobject _this, jobject String0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, checkGD, "(Ljava/lang/String;)V", 46);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, checkGD, 46), String0);
	}

	jobject getTreeLock(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getTreeLock, "()Ljava/lang/Object;", 47);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getTreeLock, 47));
	}

	void checkTreeLock(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, checkTreeLock, "()V", 48);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, checkTreeLock, 48));
	}

	jobject getToolkit(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getToolkit, "()Ljava/awt/Toolkit;", 49);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getToolkit, 49));
	}

	jobject getToolkitImpl(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getToolkitImpl, "()Ljava/awt/Toolkit;", 50);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getToolkitImpl, 50));
	}

	jboolean isValid(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isValid, "()Z", 51);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isValid, 51));
	}

	jboolean isDisplayable(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isDisplayable, "()Z", 52);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isDisplayable, 52));
	}

	jboolean isVisible(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isVisible, "()Z", 53);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isVisible, 53));
	}

	jboolean isVisible_NoClientCode(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isVisible_NoClientCode, "()Z", 54);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isVisible_NoClientCode, 54));
	}

	jboolean isRecursivelyVisible(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isRecursivelyVisible, "()Z", 55);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isRecursivelyVisible, 55));
	}

	jobject pointRelativeToComponent(JNIEnv *env, jobject _this, jobject Point0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, pointRelativeToComponent, "(Ljava/awt/Point;)Ljava/awt/Point;", 56);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, pointRelativeToComponent, 56), Point0);
	}

	jobject findUnderMouseInWindow(JNIEnv *env, jobject _this, jobject PointerInfo0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, findUnderMouseInWindow, "(Ljava/awt/PointerInfo;)Ljava/awt/Component;", 57);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, findUnderMouseInWindow, 57), PointerInfo0);
	}

	jobject getMousePosition(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getMousePosition, "()Ljava/awt/Point;", 58);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getMousePosition, 58));
	}

	jboolean isSameOrAncestorOf(JNIEnv *env, jobject _this, jobject Component0, jboolean Boolean1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isSameOrAncestorOf, "(Ljava/awt/Component;Z)Z", 59);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isSameOrAncestorOf, 59), Component0, Boolean1);
	}

	jboolean isShowing(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isShowing, "()Z", 60);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isShowing, 60));
	}

	jboolean isEnabled(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isEnabled, "()Z", 61);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isEnabled, 61));
	}

	jboolean isEnabledImpl(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isEnabledImpl, "()Z", 62);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isEnabledImpl, 62));
	}

	void setEnabled(JNIEnv *env, jobject _this, jboolean Boolean0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, setEnabled, "(Z)V", 63);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, setEnabled, 63), Boolean0);
	}

	jboolean isDoubleBuffered(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isDoubleBuffered, "()Z", 64);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isDoubleBuffered, 64));
	}

	void enableInputMethods(JNIEnv *env, jobject _this, jboolean Boolean0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, enableInputMethods, "(Z)V", 65);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, enableInputMethods, 65), Boolean0);
	}

	void setVisible(JNIEnv *env, jobject _this, jboolean Boolean0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, setVisible, "(Z)V", 66);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, setVisible, 66), Boolean0);
	}

	void show(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, show, "()V", 67);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, show, 67));
	}

	void show(JNIEnv *env, jobject _this, jboolean Boolean0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, show, "(Z)V", 68);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, show, 68), Boolean0);
	}

	jboolean containsFocus(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, containsFocus, "()Z", 69);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, containsFocus, 69));
	}

	void clearMostRecentFocusOwnerOnHide(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, clearMostRecentFocusOwnerOnHide, "()V", 70);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, clearMostRecentFocusOwnerOnHide, 70));
	}

	void clearCurrentFocusCycleRootOnHide(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, clearCurrentFocusCycleRootOnHide, "()V", 71);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, clearCurrentFocusCycleRootOnHide, 71));
	}

	void hide(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, hide, "()V", 72);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, hide, 72));
	}

	jobject getForeground(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getForeground, "()Ljava/awt/Color;", 73);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getForeground, 73));
	}

	void setForeground(JNIEnv *env, jobject _this, jobject Color0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, setForeground, "(Ljava/awt/Color;)V", 74);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, setForeground, 74), Color0);
	}

	jboolean isForegroundSet(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isForegroundSet, "()Z", 75);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isForegroundSet, 75));
	}

	jobject getBackground(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getBackground, "()Ljava/awt/Color;", 76);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getBackground, 76));
	}

	void setBackground(JNIEnv *env, jobject _this, jobject Color0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, setBackground, "(Ljava/awt/Color;)V", 77);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, setBackground, 77), Color0);
	}

	jboolean isBackgroundSet(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isBackgroundSet, "()Z", 78);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isBackgroundSet, 78));
	}

	jobject getFont(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getFont, "()Ljava/awt/Font;", 79);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getFont, 79));
	}

	jobject getFont_NoClientCode(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getFont_NoClientCode, "()Ljava/awt/Font;", 80);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getFont_NoClientCode, 80));
	}

	void setFont(JNIEnv *env, jobject _this, jobject Font0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, setFont, "(Ljava/awt/Font;)V", 81);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, setFont, 81), Font0);
	}

	jboolean isFontSet(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isFontSet, "()Z", 82);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isFontSet, 82));
	}

	jobject getLocale(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getLocale, "()Ljava/util/Locale;", 83);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getLocale, 83));
	}

	void setLocale(JNIEnv *env, jobject _this, jobject Locale0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, setLocale, "(Ljava/util/Locale;)V", 84);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, setLocale, 84), Locale0);
	}

	jobject getColorModel(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getColorModel, "()Ljava/awt/image/ColorModel;", 85);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getColorModel, 85));
	}

	jobject getLocationOnScreen(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getLocationOnScreen, "()Ljava/awt/Point;", 86);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getLocationOnScreen, 86));
	}

	jobject getLocationOnScreen_NoTreeLock(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getLocationOnScreen_NoTreeLock, "()Ljava/awt/Point;", 87);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getLocationOnScreen_NoTreeLock, 87));
	}

	void setLocation(JNIEnv *env, jobject _this, jobject Point0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, setLocation, "(Ljava/awt/Point;)V", 88);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, setLocation, 88), Point0);
	}

	void setLocation(JNIEnv *env, jobject _this, jint Int0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, setLocation, "(II)V", 89);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, setLocation, 89), Int0, Int1);
	}

	void move(JNIEnv *env, jobject _this, jint Int0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, move, "(II)V", 90);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, move, 90), Int0, Int1);
	}

	jobject getBounds(JNIEnv *env, jobject _this, jobject Rectangle0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getBounds, "(Ljava/awt/Rectangle;)Ljava/awt/Rectangle;", 91);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getBounds, 91), Rectangle0);
	}

	jobject getBounds(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getBounds, "()Ljava/awt/Rectangle;", 92);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getBounds, 92));
	}

	jobject bounds(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, bounds, "()Ljava/awt/Rectangle;", 93);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, bounds, 93));
	}

	void setBounds(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, setBounds, "(IIII)V", 94);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, setBounds, 94), Int0, Int1, Int2, Int3);
	}

	void setBounds(JNIEnv *env, jobject _this, jobject Rectangle0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, setBounds, "(Ljava/awt/Rectangle;)V", 95);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, setBounds, 95), Rectangle0);
	}

	void reshape(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, reshape, "(IIII)V", 96);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, reshape, 96), Int0, Int1, Int2, Int3);
	}

	jint getX(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getX, "()I", 97);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Component, getX, 97));
	}

	jint getY(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getY, "()I", 98);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Component, getY, 98));
	}

	jint getWidth(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getWidth, "()I", 99);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Component, getWidth, 99));
	}

	jint getHeight(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getHeight, "()I", 100);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Component, getHeight, 100));
	}

	jboolean isLightweight(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isLightweight, "()Z", 101);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isLightweight, 101));
	}

	void setPreferredSize(JNIEnv *env, jobject _this, jobject Dimension0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, setPreferredSize, "(Ljava/awt/Dimension;)V", 102);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, setPreferredSize, 102), Dimension0);
	}

	jobject preferredSize(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, preferredSize, "()Ljava/awt/Dimension;", 103);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, preferredSize, 103));
	}

	jboolean isPreferredSizeSet(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isPreferredSizeSet, "()Z", 104);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isPreferredSizeSet, 104));
	}

	jobject getPreferredSize(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getPreferredSize, "()Ljava/awt/Dimension;", 105);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getPreferredSize, 105));
	}

	void setMinimumSize(JNIEnv *env, jobject _this, jobject Dimension0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, setMinimumSize, "(Ljava/awt/Dimension;)V", 106);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, setMinimumSize, 106), Dimension0);
	}

	jobject minimumSize(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, minimumSize, "()Ljava/awt/Dimension;", 107);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, minimumSize, 107));
	}

	jboolean isMinimumSizeSet(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isMinimumSizeSet, "()Z", 108);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isMinimumSizeSet, 108));
	}

	jobject getMinimumSize(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getMinimumSize, "()Ljava/awt/Dimension;", 109);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getMinimumSize, 109));
	}

	void setMaximumSize(JNIEnv *env, jobject _this, jobject Dimension0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, setMaximumSize, "(Ljava/awt/Dimension;)V", 110);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, setMaximumSize, 110), Dimension0);
	}

	jboolean isMaximumSizeSet(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isMaximumSizeSet, "()Z", 111);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isMaximumSizeSet, 111));
	}

	jobject getMaximumSize(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getMaximumSize, "()Ljava/awt/Dimension;", 112);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getMaximumSize, 112));
	}

	jfloat getAlignmentX(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getAlignmentX, "()F", 113);
		return (jfloat)env->CallFloatMethod(_this, JAVA_METHOD(Component, getAlignmentX, 113));
	}

	jfloat getAlignmentY(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getAlignmentY, "()F", 114);
		return (jfloat)env->CallFloatMethod(_this, JAVA_METHOD(Component, getAlignmentY, 114));
	}

	jint getBaseline(JNIEnv *env, jobject _this, jint Int0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getBaseline, "(II)I", 115);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Component, getBaseline, 115), Int0, Int1);
	}

	jobject getBaselineResizeBehavior(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getBaselineResizeBehavior, "()Ljava/awt/Component$BaselineResizeBehavior;", 116);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getBaselineResizeBehavior, 116));
	}

	void doLayout(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, doLayout, "()V", 117);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, doLayout, 117));
	}

	void layout(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, layout, "()V", 118);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, layout, 118));
	}

	void validate(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, validate, "()V", 119);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, validate, 119));
	}

	void invalidate(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, invalidate, "()V", 120);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, invalidate, 120));
	}

	void invalidateIfValid(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, invalidateIfValid, "()V", 121);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, invalidateIfValid, 121));
	}

	jobject getGraphics(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getGraphics, "()Ljava/awt/Graphics;", 122);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getGraphics, 122));
	}

	jobject getGraphics_NoClientCode(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getGraphics_NoClientCode, "()Ljava/awt/Graphics;", 123);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getGraphics_NoClientCode, 123));
	}

	jobject getFontMetrics(JNIEnv *env, jobject _this, jobject Font0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getFontMetrics, "(Ljava/awt/Font;)Ljava/awt/FontMetrics;", 124);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getFontMetrics, 124), Font0);
	}

	void setCursor(JNIEnv *env, jobject _this, jobject Cursor0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, setCursor, "(Ljava/awt/Cursor;)V", 125);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, setCursor, 125), Cursor0);
	}

	void updateCursorImmediately(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, updateCursorImmediately, "()V", 126);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, updateCursorImmediately, 126));
	}

	jobject getCursor(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getCursor, "()Ljava/awt/Cursor;", 127);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getCursor, 127));
	}

	jboolean isCursorSet(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isCursorSet, "()Z", 128);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isCursorSet, 128));
	}

	void paint(JNIEnv *env, jobject _this, jobject Graphics0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, paint, "(Ljava/awt/Graphics;)V", 129);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, paint, 129), Graphics0);
	}

	void paintAll(JNIEnv *env, jobject _this, jobject Graphics0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, paintAll, "(Ljava/awt/Graphics;)V", 130);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, paintAll, 130), Graphics0);
	}

	void lightweightPaint(JNIEnv *env, jobject _this, jobject Graphics0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, lightweightPaint, "(Ljava/awt/Graphics;)V", 131);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, lightweightPaint, 131), Graphics0);
	}

	void paintHeavyweightComponents(JNIEnv *env, jobject _this, jobject Graphics0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, paintHeavyweightComponents, "(Ljava/awt/Graphics;)V", 132);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, paintHeavyweightComponents, 132), Graphics0);
	}

	void repaint(JNIEnv *env, jobject _this, jlong Long0, jint Int1, jint Int2, jint Int3, jint Int4){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, repaint, "(JIIII)V", 133);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, repaint, 133), Long0, Int1, Int2, Int3, Int4);
	}

	void repaint(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, repaint, "(IIII)V", 134);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, repaint, 134), Int0, Int1, Int2, Int3);
	}

	void repaint(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, repaint, "()V", 135);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, repaint, 135));
	}

	void repaint(JNIEnv *env, jobject _this, jlong Long0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, repaint, "(J)V", 136);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, repaint, 136), Long0);
	}

	void printAll(JNIEnv *env, jobject _this, jobject Graphics0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, printAll, "(Ljava/awt/Graphics;)V", 137);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, printAll, 137), Graphics0);
	}

	void lightweightPrint(JNIEnv *env, jobject _this, jobject Graphics0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, lightweightPrint, "(Ljava/awt/Graphics;)V", 138);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, lightweightPrint, 138), Graphics0);
	}

	void printHeavyweightComponents(JNIEnv *env, jobject _this, jobject Graphics0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, printHeavyweightComponents, "(Ljava/awt/Graphics;)V", 139);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, printHeavyweightComponents, 139), Graphics0);
	}

	jboolean imageUpdate(JNIEnv *env, jobject _this, jobject Image0, jint Int1, jint Int2, jint Int3, jint Int4, jint Int5){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, imageUpdate, "(Ljava/awt/Image;IIIII)Z", 140);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, imageUpdate, 140), Image0, Int1, Int2, Int3, Int4, Int5);
	}

	jobject createImage(JNIEnv *env, jobject _this, jint Int0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, createImage, "(II)Ljava/awt/Image;", 141);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, createImage, 141), Int0, Int1);
	}

	jobject createImage(JNIEnv *env, jobject _this, jobject ImageProducer0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, createImage, "(Ljava/awt/image/ImageProducer;)Ljava/awt/Image;", 142);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, createImage, 142), ImageProducer0);
	}

	jobject createVolatileImage(JNIEnv *env, jobject _this, jint Int0, jint Int1, jobject ImageCapabilities2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, createVolatileImage, "(IILjava/awt/ImageCapabilities;)Ljava/awt/image/VolatileImage;", 143);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, createVolatileImage, 143), Int0, Int1, ImageCapabilities2);
	}

	jobject createVolatileImage(JNIEnv *env, jobject _this, jint Int0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, createVolatileImage, "(II)Ljava/awt/image/VolatileImage;", 144);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, createVolatileImage, 144), Int0, Int1);
	}

	jboolean prepareImage(JNIEnv *env, jobject _this, jobject Image0, jobject ImageObserver1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, prepareImage, "(Ljava/awt/Image;Ljava/awt/image/ImageObserver;)Z", 145);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, prepareImage, 145), Image0, ImageObserver1);
	}

	jboolean prepareImage(JNIEnv *env, jobject _this, jobject Image0, jint Int1, jint Int2, jobject ImageObserver3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, prepareImage, "(Ljava/awt/Image;IILjava/awt/image/ImageObserver;)Z", 146);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, prepareImage, 146), Image0, Int1, Int2, ImageObserver3);
	}

	jint checkImage(JNIEnv *env, jobject _this, jobject Image0, jint Int1, jint Int2, jobject ImageObserver3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, checkImage, "(Ljava/awt/Image;IILjava/awt/image/ImageObserver;)I", 147);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Component, checkImage, 147), Image0, Int1, Int2, ImageObserver3);
	}

	jint checkImage(JNIEnv *env, jobject _this, jobject Image0, jobject ImageObserver1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, checkImage, "(Ljava/awt/Image;Ljava/awt/image/ImageObserver;)I", 148);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Component, checkImage, 148), Image0, ImageObserver1);
	}

	void createBufferStrategy(JNIEnv *env, jobject _this, jint Int0, jobject BufferCapabilities1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, createBufferStrategy, "(ILjava/awt/BufferCapabilities;)V", 149);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, createBufferStrategy, 149), Int0, BufferCapabilities1);
	}

	void createBufferStrategy(JNIEnv *env, jobject _this, jint Int0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, createBufferStrategy, "(I)V", 150);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, createBufferStrategy, 150), Int0);
	}

	jobject getBufferStrategy(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getBufferStrategy, "()Ljava/awt/image/BufferStrategy;", 151);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getBufferStrategy, 151));
	}

	jobject getBackBuffer(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getBackBuffer, "()Ljava/awt/Image;", 152);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getBackBuffer, 152));
	}

	void setIgnoreRepaint(JNIEnv *env, jobject _this, jboolean Boolean0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, setIgnoreRepaint, "(Z)V", 153);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, setIgnoreRepaint, 153), Boolean0);
	}

	jboolean getIgnoreRepaint(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getIgnoreRepaint, "()Z", 154);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, getIgnoreRepaint, 154));
	}

	jboolean inside(JNIEnv *env, jobject _this, jint Int0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, inside, "(II)Z", 155);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, inside, 155), Int0, Int1);
	}

	jobject getComponentAt(JNIEnv *env, jobject _this, jint Int0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getComponentAt, "(II)Ljava/awt/Component;", 156);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getComponentAt, 156), Int0, Int1);
	}

	jobject getComponentAt(JNIEnv *env, jobject _this, jobject Point0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getComponentAt, "(Ljava/awt/Point;)Ljava/awt/Component;", 157);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getComponentAt, 157), Point0);
	}

	jobject locate(JNIEnv *env, jobject _this, jint Int0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, locate, "(II)Ljava/awt/Component;", 158);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, locate, 158), Int0, Int1);
	}

	void deliverEvent(JNIEnv *env, jobject _this, jobject Event0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, deliverEvent, "(Ljava/awt/Event;)V", 159);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, deliverEvent, 159), Event0);
	}

	void dispatchEvent(JNIEnv *env, jobject _this, jobject AWTEvent0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, dispatchEvent, "(Ljava/awt/AWTEvent;)V", 160);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, dispatchEvent, 160), AWTEvent0);
	}

	void dispatchEventImpl(JNIEnv *env, jobject _this, jobject AWTEvent0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, dispatchEventImpl, "(Ljava/awt/AWTEvent;)V", 161);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, dispatchEventImpl, 161), AWTEvent0);
	}

	void autoProcessMouseWheel(JNIEnv *env, jobject _this, jobject MouseWheelEvent0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, autoProcessMouseWheel, "(Ljava/awt/event/MouseWheelEvent;)V", 162);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, autoProcessMouseWheel, 162), MouseWheelEvent0);
	}

	jboolean dispatchMouseWheelToAncestor(JNIEnv *env, jobject _this, jobject MouseWheelEvent0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, dispatchMouseWheelToAncestor, "(Ljava/awt/event/MouseWheelEvent;)Z", 163);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, dispatchMouseWheelToAncestor, 163), MouseWheelEvent0);
	}

	jboolean checkWindowClosingException(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, checkWindowClosingException, "()Z", 164);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, checkWindowClosingException, 164));
	}

	jboolean areInputMethodsEnabled(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, areInputMethodsEnabled, "()Z", 165);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, areInputMethodsEnabled, 165));
	}

	jboolean eventEnabled(JNIEnv *env, jobject _this, jobject AWTEvent0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, eventEnabled, "(Ljava/awt/AWTEvent;)Z", 166);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, eventEnabled, 166), AWTEvent0);
	}

	jboolean eventTypeEnabled(JNIEnv *env, jobject _this, jint Int0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, eventTypeEnabled, "(I)Z", 167);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, eventTypeEnabled, 167), Int0);
	}

	jboolean postEvent(JNIEnv *env, jobject _this, jobject Event0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, postEvent, "(Ljava/awt/Event;)Z", 168);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, postEvent, 168), Event0);
	}

	void addComponentListener(JNIEnv *env, jobject _this, jobject ComponentListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, addComponentListener, "(Ljava/awt/event/ComponentListener;)V", 169);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, addComponentListener, 169), ComponentListener0);
	}

	void removeComponentListener(JNIEnv *env, jobject _this, jobject ComponentListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, removeComponentListener, "(Ljava/awt/event/ComponentListener;)V", 170);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, removeComponentListener, 170), ComponentListener0);
	}

	jobject getComponentListeners(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getComponentListeners, "()[Ljava/awt/event/ComponentListener;", 171);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getComponentListeners, 171));
	}

	void addFocusListener(JNIEnv *env, jobject _this, jobject FocusListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, addFocusListener, "(Ljava/awt/event/FocusListener;)V", 172);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, addFocusListener, 172), FocusListener0);
	}

	void removeFocusListener(JNIEnv *env, jobject _this, jobject FocusListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, removeFocusListener, "(Ljava/awt/event/FocusListener;)V", 173);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, removeFocusListener, 173), FocusListener0);
	}

	jobject getFocusListeners(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getFocusListeners, "()[Ljava/awt/event/FocusListener;", 174);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getFocusListeners, 174));
	}

	void addHierarchyListener(JNIEnv *env, jobject _this, jobject HierarchyListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, addHierarchyListener, "(Ljava/awt/event/HierarchyListener;)V", 175);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, addHierarchyListener, 175), HierarchyListener0);
	}

	void removeHierarchyListener(JNIEnv *env, jobject _this, jobject HierarchyListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, removeHierarchyListener, "(Ljava/awt/event/HierarchyListener;)V", 176);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, removeHierarchyListener, 176), HierarchyListener0);
	}

	jobject getHierarchyListeners(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getHierarchyListeners, "()[Ljava/awt/event/HierarchyListener;", 177);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getHierarchyListeners, 177));
	}

	void addHierarchyBoundsListener(JNIEnv *env, jobject _this, jobject HierarchyBoundsListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, addHierarchyBoundsListener, "(Ljava/awt/event/HierarchyBoundsListener;)V", 178);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, addHierarchyBoundsListener, 178), HierarchyBoundsListener0);
	}

	void removeHierarchyBoundsListener(JNIEnv *env, jobject _this, jobject HierarchyBoundsListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, removeHierarchyBoundsListener, "(Ljava/awt/event/HierarchyBoundsListener;)V", 179);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, removeHierarchyBoundsListener, 179), HierarchyBoundsListener0);
	}

	jint numListening(JNIEnv *env, jobject _this, jlong Long0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, numListening, "(J)I", 180);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Component, numListening, 180), Long0);
	}

	jint countHierarchyMembers(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, countHierarchyMembers, "()I", 181);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Component, countHierarchyMembers, 181));
	}

	jint createHierarchyEvents(JNIEnv *env, jobject _this, jint Int0, jobject Component1, jobject Container2, jlong Long3, jboolean Boolean4){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, createHierarchyEvents, "(ILjava/awt/Component;Ljava/awt/Container;JZ)I", 182);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Component, createHierarchyEvents, 182), Int0, Component1, Container2, Long3, Boolean4);
	}

	jobject getHierarchyBoundsListeners(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getHierarchyBoundsListeners, "()[Ljava/awt/event/HierarchyBoundsListener;", 183);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getHierarchyBoundsListeners, 183));
	}

	void adjustListeningChildrenOnParent(JNIEnv *env, jobject _this, jlong Long0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, adjustListeningChildrenOnParent, "(JI)V", 184);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, adjustListeningChildrenOnParent, 184), Long0, Int1);
	}

	void addKeyListener(JNIEnv *env, jobject _this, jobject KeyListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, addKeyListener, "(Ljava/awt/event/KeyListener;)V", 185);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, addKeyListener, 185), KeyListener0);
	}

	void removeKeyListener(JNIEnv *env, jobject _this, jobject KeyListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, removeKeyListener, "(Ljava/awt/event/KeyListener;)V", 186);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, removeKeyListener, 186), KeyListener0);
	}

	jobject getKeyListeners(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getKeyListeners, "()[Ljava/awt/event/KeyListener;", 187);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getKeyListeners, 187));
	}

	void addMouseListener(JNIEnv *env, jobject _this, jobject MouseListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, addMouseListener, "(Ljava/awt/event/MouseListener;)V", 188);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, addMouseListener, 188), MouseListener0);
	}

	void removeMouseListener(JNIEnv *env, jobject _this, jobject MouseListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, removeMouseListener, "(Ljava/awt/event/MouseListener;)V", 189);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, removeMouseListener, 189), MouseListener0);
	}

	jobject getMouseListeners(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getMouseListeners, "()[Ljava/awt/event/MouseListener;", 190);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getMouseListeners, 190));
	}

	void addMouseMotionListener(JNIEnv *env, jobject _this, jobject MouseMotionListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, addMouseMotionListener, "(Ljava/awt/event/MouseMotionListener;)V", 191);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, addMouseMotionListener, 191), MouseMotionListener0);
	}

	void removeMouseMotionListener(JNIEnv *env, jobject _this, jobject MouseMotionListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, removeMouseMotionListener, "(Ljava/awt/event/MouseMotionListener;)V", 192);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, removeMouseMotionListener, 192), MouseMotionListener0);
	}

	jobject getMouseMotionListeners(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getMouseMotionListeners, "()[Ljava/awt/event/MouseMotionListener;", 193);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getMouseMotionListeners, 193));
	}

	void addMouseWheelListener(JNIEnv *env, jobject _this, jobject MouseWheelListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, addMouseWheelListener, "(Ljava/awt/event/MouseWheelListener;)V", 194);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, addMouseWheelListener, 194), MouseWheelListener0);
	}

	void removeMouseWheelListener(JNIEnv *env, jobject _this, jobject MouseWheelListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, removeMouseWheelListener, "(Ljava/awt/event/MouseWheelListener;)V", 195);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, removeMouseWheelListener, 195), MouseWheelListener0);
	}

	jobject getMouseWheelListeners(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getMouseWheelListeners, "()[Ljava/awt/event/MouseWheelListener;", 196);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getMouseWheelListeners, 196));
	}

	void addInputMethodListener(JNIEnv *env, jobject _this, jobject InputMethodListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, addInputMethodListener, "(Ljava/awt/event/InputMethodListener;)V", 197);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, addInputMethodListener, 197), InputMethodListener0);
	}

	void removeInputMethodListener(JNIEnv *env, jobject _this, jobject InputMethodListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, removeInputMethodListener, "(Ljava/awt/event/InputMethodListener;)V", 198);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, removeInputMethodListener, 198), InputMethodListener0);
	}

	jobject getInputMethodListeners(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getInputMethodListeners, "()[Ljava/awt/event/InputMethodListener;", 199);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getInputMethodListeners, 199));
	}

	jobject getListeners(JNIEnv *env, jobject _this, jclass Class0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getListeners, "(Ljava/lang/Class;)[Ljava/util/EventListener;", 200);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getListeners, 200), Class0);
	}

	jobject getInputMethodRequests(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getInputMethodRequests, "()Ljava/awt/im/InputMethodRequests;", 201);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getInputMethodRequests, 201));
	}

	jobject getInputContext(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getInputContext, "()Ljava/awt/im/InputContext;", 202);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getInputContext, 202));
	}

	jboolean isCoalescingEnabled(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isCoalescingEnabled, "()Z", 203);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isCoalescingEnabled, 203));
	}

	jboolean postsOldMouseEvents(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, postsOldMouseEvents, "()Z", 204);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, postsOldMouseEvents, 204));
	}

	jboolean handleEvent(JNIEnv *env, jobject _this, jobject Event0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, handleEvent, "(Ljava/awt/Event;)Z", 205);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, handleEvent, 205), Event0);
	}

	jboolean mouseDown(JNIEnv *env, jobject _this, jobject Event0, jint Int1, jint Int2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, mouseDown, "(Ljava/awt/Event;II)Z", 206);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, mouseDown, 206), Event0, Int1, Int2);
	}

	jboolean mouseDrag(JNIEnv *env, jobject _this, jobject Event0, jint Int1, jint Int2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, mouseDrag, "(Ljava/awt/Event;II)Z", 207);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, mouseDrag, 207), Event0, Int1, Int2);
	}

	jboolean mouseUp(JNIEnv *env, jobject _this, jobject Event0, jint Int1, jint Int2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, mouseUp, "(Ljava/awt/Event;II)Z", 208);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, mouseUp, 208), Event0, Int1, Int2);
	}

	jboolean mouseMove(JNIEnv *env, jobject _this, jobject Event0, jint Int1, jint Int2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, mouseMove, "(Ljava/awt/Event;II)Z", 209);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, mouseMove, 209), Event0, Int1, Int2);
	}

	jboolean mouseEnter(JNIEnv *env, jobject _this, jobject Event0, jint Int1, jint Int2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, mouseEnter, "(Ljava/awt/Event;II)Z", 210);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, mouseEnter, 210), Event0, Int1, Int2);
	}

	jboolean mouseExit(JNIEnv *env, jobject _this, jobject Event0, jint Int1, jint Int2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, mouseExit, "(Ljava/awt/Event;II)Z", 211);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, mouseExit, 211), Event0, Int1, Int2);
	}

	jboolean keyDown(JNIEnv *env, jobject _this, jobject Event0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, keyDown, "(Ljava/awt/Event;I)Z", 212);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, keyDown, 212), Event0, Int1);
	}

	jboolean keyUp(JNIEnv *env, jobject _this, jobject Event0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, keyUp, "(Ljava/awt/Event;I)Z", 213);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, keyUp, 213), Event0, Int1);
	}

	void addNotify(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, addNotify, "()V", 214);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, addNotify, 214));
	}

	void removeNotify(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, removeNotify, "()V", 215);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, removeNotify, 215));
	}

	jboolean gotFocus(JNIEnv *env, jobject _this, jobject Event0, jobject Object1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, gotFocus, "(Ljava/awt/Event;Ljava/lang/Object;)Z", 216);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, gotFocus, 216), Event0, Object1);
	}

	jboolean lostFocus(JNIEnv *env, jobject _this, jobject Event0, jobject Object1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, lostFocus, "(Ljava/awt/Event;Ljava/lang/Object;)Z", 217);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, lostFocus, 217), Event0, Object1);
	}

	jboolean isFocusTraversable(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isFocusTraversable, "()Z", 218);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isFocusTraversable, 218));
	}

	jboolean isFocusable(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isFocusable, "()Z", 219);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isFocusable, 219));
	}

	void setFocusable(JNIEnv *env, jobject _this, jboolean Boolean0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, setFocusable, "(Z)V", 220);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, setFocusable, 220), Boolean0);
	}

	void setFocusTraversalKeys(JNIEnv *env, jobject _this, jint Int0, jobject Set1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, setFocusTraversalKeys, "(ILjava/util/Set;)V", 221);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, setFocusTraversalKeys, 221), Int0, Set1);
	}

	jobject getFocusTraversalKeys(JNIEnv *env, jobject _this, jint Int0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getFocusTraversalKeys, "(I)Ljava/util/Set;", 222);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getFocusTraversalKeys, 222), Int0);
	}

	void setFocusTraversalKeys_NoIDCheck(JNIEnv *env, jobject _this, jint Int0, jobject Set1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, setFocusTraversalKeys_NoIDCheck, "(ILjava/util/Set;)V", 223);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, setFocusTraversalKeys_NoIDCheck, 223), Int0, Set1);
	}

	jobject getFocusTraversalKeys_NoIDCheck(JNIEnv *env, jobject _this, jint Int0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getFocusTraversalKeys_NoIDCheck, "(I)Ljava/util/Set;", 224);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getFocusTraversalKeys_NoIDCheck, 224), Int0);
	}

	jboolean areFocusTraversalKeysSet(JNIEnv *env, jobject _this, jint Int0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, areFocusTraversalKeysSet, "(I)Z", 225);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, areFocusTraversalKeysSet, 225), Int0);
	}

	void setFocusTraversalKeysEnabled(JNIEnv *env, jobject _this, jboolean Boolean0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, setFocusTraversalKeysEnabled, "(Z)V", 226);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, setFocusTraversalKeysEnabled, 226), Boolean0);
	}

	jboolean getFocusTraversalKeysEnabled(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getFocusTraversalKeysEnabled, "()Z", 227);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, getFocusTraversalKeysEnabled, 227));
	}

	void requestFocus(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, requestFocus, "()V", 228);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, requestFocus, 228));
	}

	jboolean requestFocus(JNIEnv *env, jobject _this, jboolean Boolean0, jobject CausedFocusEvent$Cause1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, requestFocus, "(ZLsun/awt/CausedFocusEvent$Cause;)Z", 229);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, requestFocus, 229), Boolean0, CausedFocusEvent$Cause1);
	}

	void requestFocus(JNIEnv *env, jobject _this, jobject CausedFocusEvent$Cause0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, requestFocus, "(Lsun/awt/CausedFocusEvent$Cause;)V", 230);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, requestFocus, 230), CausedFocusEvent$Cause0);
	}

	jboolean requestFocusInWindow(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, requestFocusInWindow, "()Z", 231);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, requestFocusInWindow, 231));
	}

	jboolean requestFocusInWindow(JNIEnv *env, jobject _this, jobject CausedFocusEvent$Cause0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, requestFocusInWindow, "(Lsun/awt/CausedFocusEvent$Cause;)Z", 232);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, requestFocusInWindow, 232), CausedFocusEvent$Cause0);
	}

	jboolean requestFocusInWindow(JNIEnv *env, jobject _this, jboolean Boolean0, jobject CausedFocusEvent$Cause1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, requestFocusInWindow, "(ZLsun/awt/CausedFocusEvent$Cause;)Z", 233);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, requestFocusInWindow, 233), Boolean0, CausedFocusEvent$Cause1);
	}

	jboolean requestFocusHelper(JNIEnv *env, jobject _this, jboolean Boolean0, jboolean Boolean1, jobject CausedFocusEvent$Cause2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, requestFocusHelper, "(ZZLsun/awt/CausedFocusEvent$Cause;)Z", 234);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, requestFocusHelper, 234), Boolean0, Boolean1, CausedFocusEvent$Cause2);
	}

	jboolean requestFocusHelper(JNIEnv *env, jobject _this, jboolean Boolean0, jboolean Boolean1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, requestFocusHelper, "(ZZ)Z", 235);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, requestFocusHelper, 235), Boolean0, Boolean1);
	}

	void setRequestFocusController(JNIEnv *env, jobject RequestFocusController0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_STATIC_METHOD(env, Component, setRequestFocusController, "(Lsun/awt/RequestFocusController;)V", 236);
		env->CallStaticVoidMethod(JAVA_CLASS(Component), JAVA_METHOD(Component, setRequestFocusController, 236), RequestFocusController0);
	}

	void autoTransferFocus(JNIEnv *env, jobject _this, jboolean Boolean0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, autoTransferFocus, "(Z)V", 237);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, autoTransferFocus, 237), Boolean0);
	}

	void transferFocus(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, transferFocus, "()V", 238);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, transferFocus, 238));
	}

	jobject getFocusCycleRootAncestor(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getFocusCycleRootAncestor, "()Ljava/awt/Container;", 239);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getFocusCycleRootAncestor, 239));
	}

	jboolean isFocusCycleRoot(JNIEnv *env, jobject _this, jobject Container0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isFocusCycleRoot, "(Ljava/awt/Container;)Z", 240);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isFocusCycleRoot, 240), Container0);
	}

	void nextFocus(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, nextFocus, "()V", 241);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, nextFocus, 241));
	}

	jboolean nextFocusHelper(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, nextFocusHelper, "()Z", 242);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, nextFocusHelper, 242));
	}

	jobject preNextFocusHelper(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, preNextFocusHelper, "()Ljava/awt/Component;", 243);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, preNextFocusHelper, 243));
	}

	jboolean postNextFocusHelper(JNIEnv *env, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_STATIC_METHOD(env, Component, postNextFocusHelper, "(Ljava/awt/Component;)Z", 244);
		return (jboolean)env->CallStaticBooleanMethod(JAVA_CLASS(Component), JAVA_METHOD(Component, postNextFocusHelper, 244), Component0);
	}

	void transferFocusBackward(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, transferFocusBackward, "()V", 245);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, transferFocusBackward, 245));
	}

	void transferFocusUpCycle(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, transferFocusUpCycle, "()V", 246);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, transferFocusUpCycle, 246));
	}

	jboolean hasFocus(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, hasFocus, "()Z", 247);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, hasFocus, 247));
	}

	jboolean isFocusOwner(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isFocusOwner, "()Z", 248);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isFocusOwner, 248));
	}

	jobject getNativeContainer(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getNativeContainer, "()Ljava/awt/Container;", 249);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getNativeContainer, 249));
	}

	void addPropertyChangeListener(JNIEnv *env, jobject _this, jobject PropertyChangeListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, addPropertyChangeListener, "(Ljava/beans/PropertyChangeListener;)V", 250);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, addPropertyChangeListener, 250), PropertyChangeListener0);
	}

	void addPropertyChangeListener(JNIEnv *env, jobject _this, jobject String0, jobject PropertyChangeListener1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, addPropertyChangeListener, "(Ljava/lang/String;Ljava/beans/PropertyChangeListener;)V", 251);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, addPropertyChangeListener, 251), String0, PropertyChangeListener1);
	}

	void removePropertyChangeListener(JNIEnv *env, jobject _this, jobject PropertyChangeListener0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, removePropertyChangeListener, "(Ljava/beans/PropertyChangeListener;)V", 252);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, removePropertyChangeListener, 252), PropertyChangeListener0);
	}

	void removePropertyChangeListener(JNIEnv *env, jobject _this, jobject String0, jobject PropertyChangeListener1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, removePropertyChangeListener, "(Ljava/lang/String;Ljava/beans/PropertyChangeListener;)V", 253);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, removePropertyChangeListener, 253), String0, PropertyChangeListener1);
	}

	jobject getPropertyChangeListeners(JNIEnv *env, jobject _this, jobject String0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getPropertyChangeListeners, "(Ljava/lang/String;)[Ljava/beans/PropertyChangeListener;", 254);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getPropertyChangeListeners, 254), String0);
	}

	jobject getPropertyChangeListeners(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getPropertyChangeListeners, "()[Ljava/beans/PropertyChangeListener;", 255);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getPropertyChangeListeners, 255));
	}

	void firePropertyChangeWithStringshortValshortVal(JNIEnv *env, jobject _this, jobject String0, jshort shortVal1, jshort shortVal2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, firePropertyChange, "(Ljava/lang/String;SS)V", 256);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, firePropertyChange, 256), String0, shortVal1, shortVal2);
	}

	void firePropertyChangeWithStringCharChar(JNIEnv *env, jobject _this, jobject String0, jchar Char1, jchar Char2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, firePropertyChange, "(Ljava/lang/String;CC)V", 257);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, firePropertyChange, 257), String0, Char1, Char2);
	}

	void firePropertyChangeWithStringDoubleDouble(JNIEnv *env, jobject _this, jobject String0, jdouble Double1, jdouble Double2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, firePropertyChange, "(Ljava/lang/String;DD)V", 258);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, firePropertyChange, 258), String0, Double1, Double2);
	}

	void firePropertyChangeWithStringFloatFloat(JNIEnv *env, jobject _this, jobject String0, jfloat Float1, jfloat Float2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, firePropertyChange, "(Ljava/lang/String;FF)V", 259);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, firePropertyChange, 259), String0, Float1, Float2);
	}

	void firePropertyChangeWithStringLongLong(JNIEnv *env, jobject _this, jobject String0, jlong Long1, jlong Long2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, firePropertyChange, "(Ljava/lang/String;JJ)V", 260);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, firePropertyChange, 260), String0, Long1, Long2);
	}

	void firePropertyChange(JNIEnv *env, jobject _this, jobject String0, jbyte Byte1, jbyte Byte2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, firePropertyChange, "(Ljava/lang/String;BB)V", 261);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, firePropertyChange, 261), String0, Byte1, Byte2);
	}

	void setComponentOrientation(JNIEnv *env, jobject _this, jobject ComponentOrientation0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, setComponentOrientation, "(Ljava/awt/ComponentOrientation;)V", 262);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, setComponentOrientation, 262), ComponentOrientation0);
	}

	jobject getComponentOrientation(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getComponentOrientation, "()Ljava/awt/ComponentOrientation;", 263);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getComponentOrientation, 263));
	}

	void applyComponentOrientation(JNIEnv *env, jobject _this, jobject ComponentOrientation0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, applyComponentOrientation, "(Ljava/awt/ComponentOrientation;)V", 264);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, applyComponentOrientation, 264), ComponentOrientation0);
	}

	jboolean canBeFocusOwner(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, canBeFocusOwner, "()Z", 265);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, canBeFocusOwner, 265));
	}

	jobject getContainingWindow(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getContainingWindow, "()Ljava/awt/Window;", 266);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getContainingWindow, 266));
	}

	jobject staticGetContainingWindow(JNIEnv *env, jobject Component0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_STATIC_METHOD(env, Component, getContainingWindow, "(Ljava/awt/Component;)Ljava/awt/Window;", 267);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(Component), JAVA_METHOD(Component, getContainingWindow, 267), Component0);
	}

	jobject getAccessibleContext(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getAccessibleContext, "()Ljavax/accessibility/AccessibleContext;", 268);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getAccessibleContext, 268));
	}

	jint getAccessibleIndexInParent(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getAccessibleIndexInParent, "()I", 269);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Component, getAccessibleIndexInParent, 269));
	}

	jobject getAccessibleStateSet(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getAccessibleStateSet, "()Ljavax/accessibility/AccessibleStateSet;", 270);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getAccessibleStateSet, 270));
	}

	jboolean isInstanceOf(JNIEnv *env, jobject Object0, jobject String1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_STATIC_METHOD(env, Component, isInstanceOf, "(Ljava/lang/Object;Ljava/lang/String;)Z", 271);
		return (jboolean)env->CallStaticBooleanMethod(JAVA_CLASS(Component), JAVA_METHOD(Component, isInstanceOf, 271), Object0, String1);
	}

	jboolean areBoundsValid(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, areBoundsValid, "()Z", 272);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, areBoundsValid, 272));
	}

	void applyCompoundShape(JNIEnv *env, jobject _this, jobject Region0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, applyCompoundShape, "(Lsun/java2d/pipe/Region;)V", 273);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, applyCompoundShape, 273), Region0);
	}

	jobject getLocationOnWindow(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getLocationOnWindow, "()Ljava/awt/Point;", 274);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getLocationOnWindow, 274));
	}

	jobject getNormalShape(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getNormalShape, "()Lsun/java2d/pipe/Region;", 275);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getNormalShape, 275));
	}

	jobject getOpaqueShape(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getOpaqueShape, "()Lsun/java2d/pipe/Region;", 276);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Component, getOpaqueShape, 276));
	}

	jint getSiblingIndexAbove(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getSiblingIndexAbove, "()I", 277);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Component, getSiblingIndexAbove, 277));
	}

	jint getSiblingIndexBelow(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, getSiblingIndexBelow, "()I", 278);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Component, getSiblingIndexBelow, 278));
	}

	jboolean isNonOpaqueForMixing(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isNonOpaqueForMixing, "()Z", 279);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isNonOpaqueForMixing, 279));
	}

	void applyCurrentShape(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, applyCurrentShape, "()V", 280);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, applyCurrentShape, 280));
	}

	void subtractAndApplyShape(JNIEnv *env, jobject _this, jobject Region0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, subtractAndApplyShape, "(Lsun/java2d/pipe/Region;)V", 281);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, subtractAndApplyShape, 281), Region0);
	}

	void subtractAndApplyShapeBelowMe(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, subtractAndApplyShapeBelowMe, "()V", 282);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, subtractAndApplyShapeBelowMe, 282));
	}

	void mixOnShowing(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, mixOnShowing, "()V", 283);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, mixOnShowing, 283));
	}

	void mixOnHiding(JNIEnv *env, jobject _this, jboolean Boolean0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, mixOnHiding, "(Z)V", 284);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, mixOnHiding, 284), Boolean0);
	}

	void mixOnReshaping(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, mixOnReshaping, "()V", 285);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, mixOnReshaping, 285));
	}

	void mixOnZOrderChanging(JNIEnv *env, jobject _this, jint Int0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, mixOnZOrderChanging, "(II)V", 286);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, mixOnZOrderChanging, 286), Int0, Int1);
	}

	void mixOnValidating(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, mixOnValidating, "()V", 287);
		env->CallVoidMethod(_this, JAVA_METHOD(Component, mixOnValidating, 287));
	}

	jboolean isMixingNeeded(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Component), "java/awt/Component");
		INIT_CACHE_METHOD(env, Component, isMixingNeeded, "()Z", 288);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Component, isMixingNeeded, 288));
	}

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		INIT_CACHE_CLASS(jni_env, Component, "java/awt/Component");
		INIT_CACHE_FIELD(jni_env, Component, peer, "Ljava/awt/peer/ComponentPeer;");
		INIT_CACHE_FIELD(jni_env, Component, parent, "Ljava/awt/Container;");
		INIT_CACHE_FIELD(jni_env, Component, appContext, "Lsun/awt/AppContext;");
		INIT_CACHE_FIELD(jni_env, Component, x, "I");
		INIT_CACHE_FIELD(jni_env, Component, y, "I");
		INIT_CACHE_FIELD(jni_env, Component, width, "I");
		INIT_CACHE_FIELD(jni_env, Component, height, "I");
		INIT_CACHE_FIELD(jni_env, Component, foreground, "Ljava/awt/Color;");
		INIT_CACHE_FIELD(jni_env, Component, background, "Ljava/awt/Color;");
		INIT_CACHE_FIELD(jni_env, Component, font, "Ljava/awt/Font;");
		INIT_CACHE_FIELD(jni_env, Component, peerFont, "Ljava/awt/Font;");
		INIT_CACHE_FIELD(jni_env, Component, cursor, "Ljava/awt/Cursor;");
		INIT_CACHE_FIELD(jni_env, Component, locale, "Ljava/util/Locale;");
		INIT_CACHE_FIELD(jni_env, Component, graphicsConfig, "Ljava/awt/GraphicsConfiguration;");
		INIT_CACHE_FIELD(jni_env, Component, bufferStrategy, "Ljava/awt/image/BufferStrategy;");
		INIT_CACHE_FIELD(jni_env, Component, ignoreRepaint, "Z");
		INIT_CACHE_FIELD(jni_env, Component, visible, "Z");
		INIT_CACHE_FIELD(jni_env, Component, enabled, "Z");
		INIT_CACHE_FIELD(jni_env, Component, dropTarget, "Ljava/awt/dnd/DropTarget;");
		INIT_CACHE_FIELD(jni_env, Component, popups, "Ljava/util/Vector;");
		INIT_CACHE_FIELD(jni_env, Component, focusTraversalKeys, "[Ljava/util/Set;");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, LOCK, "Ljava/lang/Object;");
		INIT_CACHE_FIELD(jni_env, Component, minSize, "Ljava/awt/Dimension;");
		INIT_CACHE_FIELD(jni_env, Component, minSizeSet, "Z");
		INIT_CACHE_FIELD(jni_env, Component, prefSize, "Ljava/awt/Dimension;");
		INIT_CACHE_FIELD(jni_env, Component, prefSizeSet, "Z");
		INIT_CACHE_FIELD(jni_env, Component, maxSize, "Ljava/awt/Dimension;");
		INIT_CACHE_FIELD(jni_env, Component, maxSizeSet, "Z");
		INIT_CACHE_FIELD(jni_env, Component, componentOrientation, "Ljava/awt/ComponentOrientation;");
		INIT_CACHE_FIELD(jni_env, Component, newEventsOnly, "Z");
		INIT_CACHE_FIELD(jni_env, Component, componentListener, "Ljava/awt/event/ComponentListener;");
		INIT_CACHE_FIELD(jni_env, Component, focusListener, "Ljava/awt/event/FocusListener;");
		INIT_CACHE_FIELD(jni_env, Component, hierarchyListener, "Ljava/awt/event/HierarchyListener;");
		INIT_CACHE_FIELD(jni_env, Component, hierarchyBoundsListener, "Ljava/awt/event/HierarchyBoundsListener;");
		INIT_CACHE_FIELD(jni_env, Component, keyListener, "Ljava/awt/event/KeyListener;");
		INIT_CACHE_FIELD(jni_env, Component, mouseListener, "Ljava/awt/event/MouseListener;");
		INIT_CACHE_FIELD(jni_env, Component, mouseMotionListener, "Ljava/awt/event/MouseMotionListener;");
		INIT_CACHE_FIELD(jni_env, Component, mouseWheelListener, "Ljava/awt/event/MouseWheelListener;");
		INIT_CACHE_FIELD(jni_env, Component, inputMethodListener, "Ljava/awt/event/InputMethodListener;");
		INIT_CACHE_FIELD(jni_env, Component, windowClosingException, "Ljava/lang/RuntimeException;");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, actionListenerK, "Ljava/lang/String;");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, adjustmentListenerK, "Ljava/lang/String;");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, componentListenerK, "Ljava/lang/String;");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, containerListenerK, "Ljava/lang/String;");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, focusListenerK, "Ljava/lang/String;");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, itemListenerK, "Ljava/lang/String;");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, keyListenerK, "Ljava/lang/String;");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, mouseListenerK, "Ljava/lang/String;");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, mouseMotionListenerK, "Ljava/lang/String;");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, mouseWheelListenerK, "Ljava/lang/String;");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, textListenerK, "Ljava/lang/String;");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, ownedWindowK, "Ljava/lang/String;");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, windowListenerK, "Ljava/lang/String;");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, inputMethodListenerK, "Ljava/lang/String;");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, hierarchyListenerK, "Ljava/lang/String;");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, hierarchyBoundsListenerK, "Ljava/lang/String;");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, windowStateListenerK, "Ljava/lang/String;");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, windowFocusListenerK, "Ljava/lang/String;");
		INIT_CACHE_FIELD(jni_env, Component, eventMask, "J");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, isInc, "Z");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, incRate, "I");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, TOP_ALIGNMENT, "F");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, CENTER_ALIGNMENT, "F");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, BOTTOM_ALIGNMENT, "F");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, LEFT_ALIGNMENT, "F");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, RIGHT_ALIGNMENT, "F");
		INIT_CACHE_FIELD(jni_env, Component, isPacked, "Z");
		INIT_CACHE_FIELD(jni_env, Component, accessibleContext, "Ljavax/accessibility/AccessibleContext;");
		INIT_CACHE_STATIC_FIELD(jni_env, Component, $assertionsDisabled, "Z");
	}

	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		DELETE_CACHED_CLASS_REF(jni_env, Component);
		DELETE_CACHED_FIELD_REF(jni_env, Component, peer);
		DELETE_CACHED_FIELD_REF(jni_env, Component, parent);
		DELETE_CACHED_FIELD_REF(jni_env, Component, appContext);
		DELETE_CACHED_FIELD_REF(jni_env, Component, x);
		DELETE_CACHED_FIELD_REF(jni_env, Component, y);
		DELETE_CACHED_FIELD_REF(jni_env, Component, width);
		DELETE_CACHED_FIELD_REF(jni_env, Component, height);
		DELETE_CACHED_FIELD_REF(jni_env, Component, foreground);
		DELETE_CACHED_FIELD_REF(jni_env, Component, background);
		DELETE_CACHED_FIELD_REF(jni_env, Component, font);
		DELETE_CACHED_FIELD_REF(jni_env, Component, peerFont);
		DELETE_CACHED_FIELD_REF(jni_env, Component, cursor);
		DELETE_CACHED_FIELD_REF(jni_env, Component, locale);
		DELETE_CACHED_FIELD_REF(jni_env, Component, graphicsConfig);
		DELETE_CACHED_FIELD_REF(jni_env, Component, bufferStrategy);
		DELETE_CACHED_FIELD_REF(jni_env, Component, ignoreRepaint);
		DELETE_CACHED_FIELD_REF(jni_env, Component, visible);
		DELETE_CACHED_FIELD_REF(jni_env, Component, enabled);
		DELETE_CACHED_FIELD_REF(jni_env, Component, dropTarget);
		DELETE_CACHED_FIELD_REF(jni_env, Component, popups);
		DELETE_CACHED_FIELD_REF(jni_env, Component, focusTraversalKeys);
		DELETE_CACHED_FIELD_REF(jni_env, Component, LOCK);
		DELETE_CACHED_FIELD_REF(jni_env, Component, minSize);
		DELETE_CACHED_FIELD_REF(jni_env, Component, minSizeSet);
		DELETE_CACHED_FIELD_REF(jni_env, Component, prefSize);
		DELETE_CACHED_FIELD_REF(jni_env, Component, prefSizeSet);
		DELETE_CACHED_FIELD_REF(jni_env, Component, maxSize);
		DELETE_CACHED_FIELD_REF(jni_env, Component, maxSizeSet);
		DELETE_CACHED_FIELD_REF(jni_env, Component, componentOrientation);
		DELETE_CACHED_FIELD_REF(jni_env, Component, newEventsOnly);
		DELETE_CACHED_FIELD_REF(jni_env, Component, componentListener);
		DELETE_CACHED_FIELD_REF(jni_env, Component, focusListener);
		DELETE_CACHED_FIELD_REF(jni_env, Component, hierarchyListener);
		DELETE_CACHED_FIELD_REF(jni_env, Component, hierarchyBoundsListener);
		DELETE_CACHED_FIELD_REF(jni_env, Component, keyListener);
		DELETE_CACHED_FIELD_REF(jni_env, Component, mouseListener);
		DELETE_CACHED_FIELD_REF(jni_env, Component, mouseMotionListener);
		DELETE_CACHED_FIELD_REF(jni_env, Component, mouseWheelListener);
		DELETE_CACHED_FIELD_REF(jni_env, Component, inputMethodListener);
		DELETE_CACHED_FIELD_REF(jni_env, Component, windowClosingException);
		DELETE_CACHED_FIELD_REF(jni_env, Component, actionListenerK);
		DELETE_CACHED_FIELD_REF(jni_env, Component, adjustmentListenerK);
		DELETE_CACHED_FIELD_REF(jni_env, Component, componentListenerK);
		DELETE_CACHED_FIELD_REF(jni_env, Component, containerListenerK);
		DELETE_CACHED_FIELD_REF(jni_env, Component, focusListenerK);
		DELETE_CACHED_FIELD_REF(jni_env, Component, itemListenerK);
		DELETE_CACHED_FIELD_REF(jni_env, Component, keyListenerK);
		DELETE_CACHED_FIELD_REF(jni_env, Component, mouseListenerK);
		DELETE_CACHED_FIELD_REF(jni_env, Component, mouseMotionListenerK);
		DELETE_CACHED_FIELD_REF(jni_env, Component, mouseWheelListenerK);
		DELETE_CACHED_FIELD_REF(jni_env, Component, textListenerK);
		DELETE_CACHED_FIELD_REF(jni_env, Component, ownedWindowK);
		DELETE_CACHED_FIELD_REF(jni_env, Component, windowListenerK);
		DELETE_CACHED_FIELD_REF(jni_env, Component, inputMethodListenerK);
		DELETE_CACHED_FIELD_REF(jni_env, Component, hierarchyListenerK);
		DELETE_CACHED_FIELD_REF(jni_env, Component, hierarchyBoundsListenerK);
		DELETE_CACHED_FIELD_REF(jni_env, Component, windowStateListenerK);
		DELETE_CACHED_FIELD_REF(jni_env, Component, windowFocusListenerK);
		DELETE_CACHED_FIELD_REF(jni_env, Component, eventMask);
		DELETE_CACHED_FIELD_REF(jni_env, Component, isInc);
		DELETE_CACHED_FIELD_REF(jni_env, Component, incRate);
		DELETE_CACHED_FIELD_REF(jni_env, Component, TOP_ALIGNMENT);
		DELETE_CACHED_FIELD_REF(jni_env, Component, CENTER_ALIGNMENT);
		DELETE_CACHED_FIELD_REF(jni_env, Component, BOTTOM_ALIGNMENT);
		DELETE_CACHED_FIELD_REF(jni_env, Component, LEFT_ALIGNMENT);
		DELETE_CACHED_FIELD_REF(jni_env, Component, RIGHT_ALIGNMENT);
		DELETE_CACHED_FIELD_REF(jni_env, Component, isPacked);
		DELETE_CACHED_FIELD_REF(jni_env, Component, accessibleContext);
		DELETE_CACHED_FIELD_REF(jni_env, Component, $assertionsDisabled);
	}

}
