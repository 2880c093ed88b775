package com.vantrel.model;

import java.awt.Component;
import java.beans.EventHandler;
import java.beans.PropertyChangeListenerProxy;
import java.beans.VetoableChangeListenerProxy;
import java.lang.reflect.InvocationHandler;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.lang.reflect.Proxy;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.EventListener;
import java.util.EventListenerProxy;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Locale;
import java.util.Map;

import javax.swing.AbstractAction;
import javax.swing.Action;

/**
 * Who listens to a component and to its models: for each kind of event the listeners, by the class that they come from.
 * Asks the toolkit's own methods only, and no listener. For the event thread.
 */
public final class Listeners {
    private static final List<String> MODELS =
            Arrays.asList("getModel", "getSelectionModel", "getColumnModel", "getDocument", "getCaret");

    private Listeners() {
    }

    /** A line for each listener; the toolkit's own stand in a group of their own, which is folded. */
    public static List<Row> of(Component component) {
        List<Row> programs = new ArrayList<>();
        List<Row> toolkits = new ArrayList<>();
        add(component, "", programs, toolkits);
        for (Map.Entry<String, Object> model : models(component).entrySet()) {
            add(model.getValue(), " of its " + model.getKey(), programs, toolkits);
        }
        programs.addAll(toolkits);
        return programs;
    }

    private static Map<String, Object> models(Component component) {
        Map<String, Object> models = new LinkedHashMap<>();
        for (Method method : publicMethods(component.getClass())) {
            if (MODELS.contains(method.getName()) && method.getParameterCount() == 0
                    && Code.overrider(component.getClass(), method.getName()) == null) {
                try {
                    Object model = Members.call(method, component);
                    if (model != null) {
                        String name = method.getName().substring(3).replaceAll("(?<=[a-z])(?=[A-Z])", " ");
                        models.put(name.toLowerCase(Locale.ROOT), model);
                    }
                } catch (Throwable thrown) {
                    // Then there is no model whose listeners could be told.
                }
            }
        }
        return models;
    }

    private static void add(Object source, String of, List<Row> programs, List<Row> toolkits) {
        for (Method method : publicMethods(source.getClass())) {
            Class<?> type = method.getReturnType().getComponentType();
            if (method.getParameterCount() != 0 || type == null || !EventListener.class.isAssignableFrom(type)
                    || !method.getName().endsWith("Listeners")
                    || Code.overrider(source.getClass(), method.getName()) != null) {
                continue;
            }
            String kind = words(type) + of;
            try {
                for (Object listener : (Object[]) Members.call(method, source)) {
                    if (listener != null) {
                        Row row = row(kind, listener);
                        (row.isPrograms() ? programs : toolkits).add(row);
                    }
                }
            } catch (Throwable thrown) {
                programs.add(Row.of(kind, method.getName(), Values.error(thrown)).kind(Row.Kind.ERROR));
            }
        }
    }

    /** The public methods that the toolkit's public classes declare, always in the same order. */
    private static List<Method> publicMethods(Class<?> type) {
        List<Method> methods = new ArrayList<>();
        for (Class<?> at = Code.toolkitClass(type); at != null; at = at.getSuperclass()) {
            if (Modifier.isPublic(at.getModifiers()) && at.getName().startsWith("java")) {
                for (Method method : at.getDeclaredMethods()) {
                    if (Modifier.isPublic(method.getModifiers()) && !Modifier.isStatic(method.getModifiers())
                            && !method.isSynthetic() && !overridden(methods, method)) {
                        methods.add(method);
                    }
                }
            }
        }
        methods.sort((one, other) -> one.getName().compareTo(other.getName()));
        return methods;
    }

    private static boolean overridden(List<Method> methods, Method method) {
        for (Method lower : methods) {
            if (lower.getName().equals(method.getName())
                    && Arrays.equals(lower.getParameterTypes(), method.getParameterTypes())) {
                return true;
            }
        }
        return false;
    }

    /** "MouseMotionListener" as "Mouse motion". */
    private static String words(Class<?> type) {
        String name = Code.shortName(type).replaceAll("Listener$", "").replaceAll("(?<=[a-z])(?=[A-Z])", " ");
        return name.charAt(0) + name.substring(1).toLowerCase(Locale.ROOT);
    }

    private static Row row(String kind, Object listener) {
        String note = "";
        Object called = listener;
        while (called instanceof EventListenerProxy) {
            if (called instanceof PropertyChangeListenerProxy) {
                note = "of \"" + ((PropertyChangeListenerProxy) called).getPropertyName() + "\"";
            } else if (called instanceof VetoableChangeListenerProxy) {
                note = "of \"" + ((VetoableChangeListenerProxy) called).getPropertyName() + "\"";
            }
            called = ((EventListenerProxy<?>) called).getListener();
        }
        if (called instanceof Action) {
            note = action((Action) called);
        }
        Class<?> type = called.getClass();
        String name = Code.shortName(type);
        String from = Code.enclosingName(type);
        if (Proxy.isProxyClass(type)) {
            InvocationHandler handler = Proxy.getInvocationHandler(called);
            type = handler.getClass();
            name = Code.shortName(type);
            from = type.getName();
            if (handler instanceof EventHandler) {
                EventHandler to = (EventHandler) handler;
                from = "calls " + to.getAction() + " of " + Values.object(to.getTarget());
                type = to.getTarget().getClass();
            }
        }
        boolean programs = !Code.isMachinery(type);
        if (programs) {
            return Row.of(kind, name, from).note(note).type(called.getClass().getName()).programs(true);
        }
        // All of the toolkit's listeners are in one group, so each row must say the kind of event.
        return Row.of("The toolkit's own", kind, from).note(note).type(called.getClass().getName()).folded();
    }

    /** The name of an action, if asking for it does not ask the program. */
    private static String action(Action action) {
        boolean askable =
                action instanceof AbstractAction && Code.overrider(action.getClass(), "getValue", String.class) == null;
        Object name = askable ? action.getValue(Action.NAME) : null;
        return name == null ? "an action" : "action \"" + Values.text(name) + "\"";
    }
}
