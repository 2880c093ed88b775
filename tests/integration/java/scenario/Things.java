package scenario;

import java.awt.Component;
import java.util.HashMap;
import java.util.Map;
import java.util.WeakHashMap;

/**
 * The program's components by the name that commands and logs call them. Some components cannot be asked for their own
 * name, so this is kept beside them. Belongs to the event thread.
 */
final class Things {
    private final Map<String, Component> byName = new HashMap<>();
    private final Map<Component, String> names = new WeakHashMap<>();

    /** Gives a component its name, for the inspector and for commands. */
    <C extends Component> C named(String name, C component) {
        component.setName(name);
        return known(name, component);
    }

    /** Lets commands call a component by a name that is not set in the component itself. */
    <C extends Component> C known(String name, C component) {
        byName.put(name, component);
        names.put(component, name);
        return component;
    }

    Component get(String name) {
        Component component = byName.get(name);
        if (component == null) {
            throw new IllegalArgumentException("no component " + name);
        }
        return component;
    }

    <C extends Component> C get(String name, Class<C> type) {
        return type.cast(get(name));
    }

    /** A component's name here; or "<" and the name of its nearest ancestor that has one; or else its class. */
    String nameOf(Component component) {
        for (Component at = component; at != null; at = at.getParent()) {
            String name = names.get(at);
            if (name != null) {
                return at == component ? name : component.getClass().getSimpleName() + "<" + name;
            }
        }
        return component.getClass().getSimpleName();
    }

    void forget(String name) {
        names.remove(byName.remove(name));
    }
}
