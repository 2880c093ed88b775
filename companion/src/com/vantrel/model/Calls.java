package com.vantrel.model;

import java.lang.reflect.InvocationTargetException;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.util.HashMap;
import java.util.HashSet;
import java.util.Map;
import java.util.Set;
import java.util.concurrent.TimeUnit;

/**
 * Asks many objects for properties that the user has named in a search, which may call code of the program. A getter
 * that throws or is slow is not called again on any object of the same class, as long as this object lives. For the
 * event thread.
 */
final class Calls {
    static final Object NO_ANSWER = new Object();

    private static final long TOO_LONG = TimeUnit.MILLISECONDS.toNanos(50);
    private static final Object NO_METHOD = new Object();

    private final Map<Class<?>, Map<String, Object>> getters = new HashMap<>();
    private final Map<Class<?>, Set<String>> refused = new HashMap<>();

    /** The value of a property that has a public getter; NO_ANSWER where there is none, or it must not be asked. */
    Object property(Object target, String property) {
        Class<?> type = target.getClass();
        Object getter = getters.computeIfAbsent(type, key -> new HashMap<>())
                                .computeIfAbsent(property, key -> getter(type, property));
        Set<String> not = refused.get(type);
        if (getter == NO_METHOD || not != null && not.contains(property)) {
            return NO_ANSWER;
        }
        long start = System.nanoTime();
        boolean works = false;
        try {
            Object value = ((Method) getter).invoke(target);
            works = System.nanoTime() - start < TOO_LONG;
            return value;
        } catch (IllegalAccessException | InvocationTargetException | RuntimeException e) {
            return NO_ANSWER;
        } finally {
            if (!works) {
                refused.computeIfAbsent(type, key -> new HashSet<>()).add(property);
            }
        }
    }

    private static Object getter(Class<?> type, String property) {
        String name = Character.toUpperCase(property.charAt(0)) + property.substring(1);
        for (String prefix : new String[] {"is", "get"}) {
            for (Class<?> at = type; at != null; at = at.getSuperclass()) {
                Method method = Modifier.isPublic(at.getModifiers()) ? publicMethod(at, prefix + name) : null;
                if (method != null) {
                    return method;
                }
            }
        }
        return NO_METHOD;
    }

    /**
     * A public method whose class is public too, so that it may be called by reflection. Where the program overrides
     * it, the program's method runs.
     */
    private static Method publicMethod(Class<?> type, String name) {
        try {
            Method method = type.getMethod(name);
            boolean callable = Modifier.isPublic(method.getDeclaringClass().getModifiers())
                    && !Modifier.isStatic(method.getModifiers()) && method.getReturnType() != void.class;
            return callable ? method : null;
        } catch (NoSuchMethodException | LinkageError e) {
            return null;
        }
    }
}
