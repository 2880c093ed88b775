package com.vantrel.model;

import java.util.HashSet;
import java.util.Locale;
import java.util.Set;

/**
 * What the tree needs to know of a component's class, found out once. Kept with the class itself, so that it goes when
 * the class does; of the class it holds nothing but texts.
 */
public final class ClassFacts {
    private static final ClassValue<ClassFacts> ALL = new ClassValue<ClassFacts>() {
        @Override
        protected ClassFacts computeValue(Class<?> type) {
            return new ClassFacts(type);
        }
    };

    private final String name;
    private final String fullName;
    private final String lowerName;
    private final String lowerFullName;
    private final Kind kind;
    private final boolean programs;
    /** The methods without parameters that classes of the program have written; null if that cannot be told. */
    private final Set<String> written;

    private ClassFacts(Class<?> type) {
        name = Code.shortName(type);
        fullName = type.getName();
        lowerName = name.toLowerCase(Locale.ROOT);
        lowerFullName = fullName.toLowerCase(Locale.ROOT);
        kind = Kind.of(type);
        programs = !Code.isToolkit(type);
        written = programs ? writtenMethods(type) : new HashSet<>();
    }

    static ClassFacts of(Class<?> type) {
        return ALL.get(type);
    }

    private static Set<String> writtenMethods(Class<?> type) {
        Set<String> names = new HashSet<>();
        for (Class<?> at = type; !Code.isToolkit(at); at = at.getSuperclass()) {
            try {
                for (java.lang.reflect.Method method : at.getDeclaredMethods()) {
                    if (method.getParameterTypes().length == 0) {
                        names.add(method.getName());
                    }
                }
            } catch (LinkageError e) { // mentions a class that is not there
                return null;
            }
        }
        return names;
    }

    /** The class as people say it, without package and enclosing classes. */
    public String name() {
        return name;
    }

    public String fullName() {
        return fullName;
    }

    /**
     * Whether the class's name contains a word, which is in lower case. The package counts only if the word has a dot.
     */
    boolean isCalled(String word) {
        return word.indexOf('.') < 0 ? lowerName.contains(word) : lowerFullName.contains(word);
    }

    public Kind kind() {
        return kind;
    }

    /** Whether the class is the program's own and not the toolkit's. */
    public boolean isPrograms() {
        return programs;
    }

    /** Whether a call of a method without parameters runs the toolkit's own method. */
    boolean isToolkits(String method) {
        return written != null && !written.contains(method);
    }
}
