package com.vantrel.model;

import java.awt.Component;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.lang.reflect.Proxy;
import java.util.Arrays;
import java.util.Collections;
import java.util.HashSet;
import java.util.Set;
import java.util.regex.Matcher;
import java.util.regex.Pattern;

import javax.swing.LookAndFeel;
import javax.swing.UIManager;

/**
 * Whether a class is the toolkit's or the program's, and what people call it. What is not the toolkit's counts as the
 * program's, and may do anything when it is called: so nothing here calls a method of the classes and objects that it
 * is asked about. For any thread.
 */
public final class Code {
    /**
     * The VM's name of the class of a lambda or method reference. It begins with the name of the class that contains
     * it.
     */
    private static final Pattern LAMBDA = Pattern.compile("(.+?)\\$\\$Lambda.*");
    private static final Pattern NESTED = Pattern.compile("\\$(?=[^0-9$])");

    /** Getters that the toolkit uses for names, tooltips and popups only, and computes nothing else with. */
    private static final Set<String> ASIDE = new HashSet<>(Arrays.asList("getName", "getToolTipText",
            "getToolTipLocation", "getPopupLocation", "getAccessibleContext", "getUIClassID", "isFocusable"));

    private static final ClassLoader PLATFORM = platformLoader();

    private Code() {
    }

    private static ClassLoader platformLoader() {
        ClassLoader loader = ClassLoader.getSystemClassLoader();
        while (loader.getParent() != null) {
            loader = loader.getParent();
        }
        return loader;
    }

    /**
     * Whether a class is the JDK's. The inspector's own classes count as the JDK's: they interest the user as little.
     */
    public static boolean isToolkit(Class<?> type) {
        ClassLoader loader = type.getClassLoader();
        return (loader == null || loader == PLATFORM) && !Proxy.isProxyClass(type);
    }

    /** Whether a class is the JDK's or belongs to the look and feel, wherever that comes from. */
    public static boolean isMachinery(Class<?> type) {
        if (isToolkit(type)) {
            return true;
        }
        LookAndFeel look = UIManager.getLookAndFeel();
        return look != null && !isToolkit(look.getClass()) && isBeside(type, look.getClass());
    }

    private static boolean isBeside(Class<?> type, Class<?> look) {
        String folder = look.getName().substring(0, look.getName().lastIndexOf('.') + 1);
        return !folder.isEmpty() && type.getName().startsWith(folder);
    }

    /** The class of the toolkit that a class of the program extends; the class itself if it is the toolkit's. */
    public static Class<?> toolkitClass(Class<?> type) {
        Class<?> at = type;
        while (!isToolkit(at)) {
            at = at.getSuperclass();
        }
        return at;
    }

    /**
     * The program's class whose method runs when a public or protected method is called; null if the toolkit's does. A
     * class whose methods cannot be listed, because it mentions classes that are not there, is taken to have one.
     */
    public static Class<?> overrider(Class<?> type, String method, Class<?>... parameters) {
        for (Class<?> at = type; at != null && !isToolkit(at); at = at.getSuperclass()) {
            try {
                at.getDeclaredMethod(method, parameters);
                return at;
            } catch (NoSuchMethodException e) {
                // The next one up, then.
            } catch (LinkageError e) {
                return at;
            }
        }
        return null;
    }

    /**
     * The program's class that overrides one of the getters that the toolkit computes with, or null. Whoever asks such
     * an object for its size may be asking the program for anything.
     */
    public static Class<?> getterOverrider(Class<?> type) {
        return getterOverrider(type, Collections.emptySet());
    }

    /** As above, leaving some getters out. */
    static Class<?> getterOverrider(Class<?> type, Set<String> but) {
        Class<?> toolkit = toolkitClass(type);
        for (Class<?> at = type; at != toolkit; at = at.getSuperclass()) {
            try {
                for (Method method : at.getDeclaredMethods()) {
                    if (isGetter(method) && !ASIDE.contains(method.getName()) && !but.contains(method.getName())
                            && has(toolkit, method)) {
                        return at;
                    }
                }
            } catch (LinkageError e) {
                return at;
            }
        }
        return null;
    }

    private static boolean has(Class<?> toolkit, Method method) {
        for (Class<?> at = toolkit; at != null; at = at.getSuperclass()) {
            try {
                return !Modifier.isPrivate(
                        at.getDeclaredMethod(method.getName(), method.getParameterTypes()).getModifiers());
            } catch (NoSuchMethodException e) {
                // The next one up, then.
            }
        }
        return false;
    }

    private static boolean isGetter(Method method) {
        return (method.getName().startsWith("get") || method.getName().startsWith("is"))
                && !Modifier.isStatic(method.getModifiers());
    }

    /** A class as people say it: without its package, and without the classes around it where it has a name. */
    public static String shortName(Class<?> type) {
        if (type.isArray()) {
            return shortName(type.getComponentType()) + "[]";
        }
        String name = type.getName();
        Matcher lambda = LAMBDA.matcher(name);
        if (lambda.matches()) {
            return "lambda in " + withoutPackage(lambda.group(1));
        }
        String[] parts = NESTED.split(withoutPackage(name));
        return parts[parts.length - 1];
    }

    /** The class that a class stands in, by its full name: for a lambda the one around it, otherwise itself. */
    public static String enclosingName(Class<?> type) {
        Matcher lambda = LAMBDA.matcher(type.getName());
        return lambda.matches() ? lambda.group(1) : type.getName();
    }

    /** A class with the ones around it but without its package. */
    static String withoutPackage(String name) {
        // A hidden class has a slash and a number after its name.
        int end = name.indexOf('/') < 0 ? name.length() : name.indexOf('/');
        return name.substring(name.lastIndexOf('.', end - 1) + 1, end);
    }

    /** A component's class and name, such as {@code JTextField "amount"}. Calls no code of the program. */
    public static String describe(Component component) {
        String name = Facts.name(component);
        return shortName(component.getClass()) + (name == null ? "" : " \"" + name + "\"");
    }
}
