package com.vantrel.model;

import java.awt.Component;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.Collection;
import java.util.EventListener;
import java.util.HashSet;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;
import java.util.Set;

/**
 * The properties that a class of components has by its public getters and setters, found without calling the program:
 * none of its BeanInfo classes is loaded. For any thread.
 */
final class Getters {
    /** One getter, and the setter that belongs to it. */
    static final class Getter {
        final String name;
        /** As the lowest class declares it: the methods that it overrides may declare a less specific type. */
        final Class<?> type;
        /** The topmost declaration, in a class that is public even if those below are not. */
        Method method;
        /** The lowest class of the program's that declares it; null if the toolkit alone does. */
        Class<?> programs;
        Method setter;

        Getter(String name, Class<?> type) {
            this.name = name;
            this.type = type;
        }
    }

    /**
     * Properties that are shown elsewhere or do not fit in a line, and those whose getters make, look up or wait for
     * something.
     */
    private static final Set<String> LEFT_OUT = new HashSet<>(Arrays.asList("class", "graphics", "treeLock", "toolkit",
            "inputContext", "inputMethodRequests", "peer", "colorModel", "components", "parent", "rootPane",
            "topLevelAncestor", "accessibleContext", "actionMap", "inputMap", "registeredKeyStrokes",
            "locationOnScreen", "mousePosition", "bufferStrategy", "ownedWindows", "password", "selectedText", "x", "y",
            "width", "height", "size", "location", "backgroundSet", "foregroundSet", "fontSet", "cursorSet",
            "minimumSizeSet", "preferredSizeSet", "maximumSizeSet", "focusTraversable", "managingFocus",
            "nextFocusableComponent", "paintingTile", "paintingForPrint", "visibleRect", "UIClassID", "selectedValues",
            "selectedValuesList", "menuComponents", "subElements", "component"));

    private Getters() {
    }

    /** The getters of a class, those of the lowest class first. */
    static Collection<Getter> of(Class<?> type) {
        Map<String, Getter> found = new LinkedHashMap<>();
        for (Class<?> at = type; at != null && Component.class.isAssignableFrom(at); at = at.getSuperclass()) {
            for (Method method : publicMethods(at)) {
                String name = propertyName(method);
                if (name != null && !LEFT_OUT.contains(name) && !isListeners(method.getReturnType())) {
                    Getter getter = found.computeIfAbsent(name, key -> new Getter(key, method.getReturnType()));
                    getter.method = method;
                    if (getter.programs == null && !Code.isToolkit(at)) {
                        getter.programs = at;
                    }
                }
            }
        }
        for (Getter getter : found.values()) {
            getter.setter = setter(type, getter);
        }
        return found.values();
    }

    private static List<Method> publicMethods(Class<?> type) {
        List<Method> methods = new ArrayList<>();
        // Methods of the toolkit's internal classes cannot be called, and public classes above declare the same ones.
        if (Code.isToolkit(type) && (!Modifier.isPublic(type.getModifiers()) || !isApi(type))) {
            return methods;
        }
        try {
            for (Method method : type.getDeclaredMethods()) {
                int modifiers = method.getModifiers();
                if (Modifier.isPublic(modifiers) && !Modifier.isStatic(modifiers) && !method.isSynthetic()) {
                    methods.add(method);
                }
            }
        } catch (LinkageError e) {
            // The class mentions another one that is not there: it has no methods that could be listed.
        }
        // The VM's order differs from one start to the next.
        methods.sort((one, other) -> one.getName().compareTo(other.getName()));
        return methods;
    }

    private static boolean isApi(Class<?> type) {
        return type.getName().startsWith("java.") || type.getName().startsWith("javax.");
    }

    private static boolean isListeners(Class<?> type) {
        return type.isArray() && EventListener.class.isAssignableFrom(type.getComponentType());
    }

    private static String propertyName(Method method) {
        String name = method.getName();
        boolean flag = method.getReturnType() == boolean.class;
        int prefix = flag && name.startsWith("is") ? 2 : name.startsWith("get") ? 3 : 0;
        if (prefix == 0 || name.length() == prefix || method.getParameterCount() != 0
                || method.getReturnType() == void.class || !Character.isUpperCase(name.charAt(prefix))) {
            return null;
        }
        String rest = name.substring(prefix);
        // As beans have it: "UI" stays as it is, "Text" does not.
        boolean shout = rest.length() > 1 && Character.isUpperCase(rest.charAt(1));
        return shout ? rest : Character.toLowerCase(rest.charAt(0)) + rest.substring(1);
    }

    private static Method setter(Class<?> type, Getter getter) {
        String name = "set" + Character.toUpperCase(getter.name.charAt(0)) + getter.name.substring(1);
        Class<?> of = getter.method.getReturnType();
        Method setter = null;
        for (Class<?> at = type; at != null && Component.class.isAssignableFrom(at); at = at.getSuperclass()) {
            for (Method method : publicMethods(at)) {
                if (method.getName().equals(name) && method.getParameterCount() == 1
                        && method.getParameterTypes()[0] == of) {
                    setter = method;
                }
            }
        }
        return setter;
    }
}
