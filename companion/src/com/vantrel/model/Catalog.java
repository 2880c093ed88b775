package com.vantrel.model;

import java.awt.Component;
import java.awt.Container;
import java.awt.Dimension;
import java.awt.Window;
import java.lang.reflect.Method;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.HashSet;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;
import java.util.Set;

import javax.accessibility.AccessibleContext;
import javax.swing.JPasswordField;
import javax.swing.SwingUtilities;
import javax.swing.text.Document;
import javax.swing.text.JTextComponent;

/**
 * The properties of a component, in groups: first those that most components have, always in the same order, then what
 * each of its classes adds. Decides which of them are read unasked, that is, without the user asking for them. For the
 * event thread.
 *
 * <p>The toolkit's own getters are read unasked, as long as the program overrides none of the methods that they call. A
 * method that the program has written may block, throw, load data or change something, so it is only called when the
 * user asks for its property.
 */
final class Catalog {
    static final String IDENTITY = "Identity";
    static final String GEOMETRY = "Geometry";
    static final String TEXT = "Text";
    static final String LAYOUT = "Layout";
    static final String ACCESSIBILITY = "Accessibility";
    static final String CLIENT_PROPERTIES = "Client properties";

    /** The names of the properties in each group, in order. */
    private static final Map<String, List<String>> GROUPS = new LinkedHashMap<>();

    static {
        GROUPS.put(IDENTITY, Arrays.asList("name"));
        GROUPS.put("State",
                Arrays.asList("enabled", "visible", "showing", "editable", "selected", "valid", "displayable",
                        "lightweight", "doubleBuffered"));
        GROUPS.put(GEOMETRY,
                Arrays.asList("bounds", "on screen", "insets", "minimumSize", "preferredSize", "maximumSize",
                        "baseline", "alignmentX", "alignmentY", "componentOrientation"));
        GROUPS.put(TEXT,
                Arrays.asList("text", "title", "label", "toolTipText", "actionCommand", "mnemonic", "displayedMnemonic",
                        "displayedMnemonicIndex", "horizontalAlignment", "verticalAlignment", "horizontalTextPosition",
                        "verticalTextPosition", "iconTextGap", "columns", "rows", "locale"));
        GROUPS.put("Look",
                Arrays.asList("background", "foreground", "font", "border", "margin", "icon", "opaque", "cursor", "UI",
                        "borderPainted", "contentAreaFilled", "focusPainted", "rolloverEnabled"));
        GROUPS.put(LAYOUT, Arrays.asList("constraints", "parent's layout", "layout", "componentCount"));
        GROUPS.put("Focus",
                Arrays.asList("focusable", "focusOwner", "requestFocusEnabled", "focusCycleRoot",
                        "focusCycleRootAncestor", "focusTraversalPolicy", "focusTraversalPolicySet",
                        "focusTraversalPolicyProvider", "focusTraversalKeysEnabled", "inputVerifier",
                        "verifyInputWhenFocusTarget"));
        GROUPS.put(ACCESSIBILITY, Arrays.asList("accessibleName", "accessibleDescription", "accessibleRole"));
        GROUPS.put(CLIENT_PROPERTIES, new ArrayList<>());
    }

    /** Properties that the toolkit computes anew each time, by calling many other methods. */
    private static final Set<String> COMPUTED = new HashSet<>(
            Arrays.asList("minimumSize", "preferredSize", "maximumSize", "preferredScrollableViewportSize"));

    /**
     * Getters from which the toolkit computes sizes only, or nothing at all: where the program overrides one of these,
     * the other properties can still be read unasked.
     */
    private static final Set<String> FOR_SIZES = new HashSet<>(Arrays.asList("getMinimumSize", "getPreferredSize",
            "getMaximumSize", "getPreferredScrollableViewportSize", "getInsets", "getBaseline", "getAlignmentX",
            "getAlignmentY", "getScrollableTracksViewportWidth", "getScrollableTracksViewportHeight",
            "getScrollableUnitIncrement", "getScrollableBlockIncrement", "getBackground", "getForeground", "getFont",
            "isOpaque", "isOptimizedDrawingEnabled", "isValidateRoot", "isFocusCycleRoot"));

    /** Of the properties that most components have, those that some classes compute from others. */
    private static final Set<String> DERIVED = new HashSet<>(Arrays.asList("label", "actionCommand"));

    private static final Set<String> NEEDS_LAYOUT = new HashSet<>(
            Arrays.asList("minimumSize", "preferredSize", "maximumSize", "alignmentX", "alignmentY", "constraints"));

    private final Component component;
    private final Class<?> type;
    /** The program's class that overrides any getter that the toolkit computes with; null for none. */
    private final Class<?> getterOverrider;
    /** The same without regard to getters that only sizes are computed from. */
    private final Class<?> valueOverrider;
    private final Map<String, Map<String, Property>> found = new LinkedHashMap<>();

    private Catalog(Component component) {
        this.component = component;
        type = component.getClass();
        getterOverrider = Code.getterOverrider(type);
        valueOverrider = Code.getterOverrider(type, FOR_SIZES);
    }

    /** All properties that components of a component's class have, but for client properties. */
    static List<Property> of(Component component) {
        Catalog catalog = new Catalog(component);
        catalog.addIdentity();
        catalog.addGeometry();
        catalog.addText();
        catalog.addLayout();
        catalog.addAccessibility();
        for (Getters.Getter getter : Getters.of(catalog.type)) {
            catalog.add(getter);
        }
        return catalog.inOrder();
    }

    /** Whether a group is one that most components have, and not what one class adds. */
    static boolean isCommon(String group) {
        return GROUPS.containsKey(group);
    }

    /** Whether a property takes effect only when the component's window is laid out again. */
    static boolean needsLayout(Property property) {
        return NEEDS_LAYOUT.contains(property.name());
    }

    private List<Property> inOrder() {
        List<Property> all = new ArrayList<>();
        for (Map.Entry<String, List<String>> group : GROUPS.entrySet()) {
            Map<String, Property> properties = found.remove(group.getKey());
            if (properties != null) {
                for (String name : group.getValue()) {
                    Property property = properties.remove(name);
                    if (property != null) {
                        all.add(property);
                    }
                }
                all.addAll(properties.values());
            }
        }
        for (Class<?> at = type; at != Object.class; at = at.getSuperclass()) {
            Map<String, Property> properties = found.remove(Code.shortName(at));
            if (properties != null) {
                all.addAll(properties.values());
            }
        }
        return all;
    }

    private Property add(String group, String name, Class<?> of, Property.Get get) {
        Property property = new Property(group, name, of, get);
        found.computeIfAbsent(group, key -> new LinkedHashMap<>()).put(name, property);
        return property;
    }

    private void add(Getters.Getter getter) {
        String group = group(getter);
        if (found.containsKey(group) && found.get(group).containsKey(getter.name)) {
            return;
        }
        Method read = getter.method;
        Property property = add(group, getter.name, getter.type, on -> Members.call(read, on));
        if (getter.programs != null) {
            askProgram(property, getter.programs);
        } else if (COMPUTED.contains(getter.name)) {
            askIfComputed(property, getterOverrider);
        } else if (!isCommon(group) || DERIVED.contains(getter.name)) {
            askIfComputed(property, valueOverrider);
        }
        if (getter.setter != null) {
            Method write = getter.setter;
            Format named = Constants.of(getter.name);
            Format format =
                    named != null && getter.type == int.class ? named : Formats.of(write.getParameterTypes()[0]);
            property.settable((on, value) -> Members.call(write, on, value), format);
        }
        storeOnlyWhatIsSet(property, read);
    }

    /** Where a value comes from the parent or is computed, has an undo put back null, for "none of its own". */
    private void storeOnlyWhatIsSet(Property property, Method read) {
        Property.Get value = on -> Members.call(read, on);
        switch (property.name()) {
            case "background":
            case "foreground":
            case "font":
            case "cursor":
                property.stored(on -> Boolean.TRUE.equals(Origin.isSet(on, property.name())) ? value.from(on) : null);
                break;
            case "minimumSize":
                property.stored(on -> on.isMinimumSizeSet() ? value.from(on) : null);
                break;
            case "preferredSize":
                property.stored(on -> on.isPreferredSizeSet() ? value.from(on) : null);
                break;
            case "maximumSize":
                property.stored(on -> on.isMaximumSizeSet() ? value.from(on) : null);
                break;
            default:
                break;
        }
    }

    private static String group(Getters.Getter getter) {
        for (Map.Entry<String, List<String>> group : GROUPS.entrySet()) {
            if (group.getValue().contains(getter.name)) {
                return group.getKey();
            }
        }
        return Code.shortName(getter.method.getDeclaringClass());
    }

    private void askProgram(Property property, Class<?> programs) {
        property.asked(
                Code.shortName(programs) + " has its own method for it, which may do anything when it is called.");
    }

    private static void askIfComputed(Property property, Class<?> overrider) {
        if (overrider != null) {
            property.asked("It may be worked out from what " + Code.shortName(overrider)
                    + " overrides, and that may do anything when it is called.");
        }
    }

    private void addIdentity() {
        // No lambda here may hold the component, as one would that reads a field of this object.
        add(IDENTITY, "class", Class.class, Component::getClass);
        Class<?> toolkit = Code.toolkitClass(type);
        if (toolkit != type) {
            add(IDENTITY, "extends", Class.class, on -> toolkit);
            java.security.CodeSource source = type.getProtectionDomain().getCodeSource();
            if (source != null && source.getLocation() != null) {
                String location = source.getLocation().getPath();
                add(IDENTITY, "loaded from", String.class, on -> location);
            }
        }
        add(IDENTITY, "object", Object.class, on -> Values.object(on));
        add(IDENTITY, "parent", Container.class, Component::getParent);
        if (!(component instanceof Window)) {
            add(IDENTITY, "window", Window.class, SwingUtilities::getWindowAncestor);
        }
    }

    private void addGeometry() {
        add(GEOMETRY, "on screen", java.awt.Point.class, on -> on.isShowing() ? on.getLocationOnScreen() : null);
        askIfComputed(add(GEOMETRY, "baseline", int.class, on -> {
            Dimension size = on.getSize();
            return on.getBaseline(size.width, size.height);
        }), getterOverrider);
    }

    private void addText() {
        if (component instanceof JPasswordField) {
            add(TEXT, "text", String.class, on -> {
                int length = ((JPasswordField) on).getDocument().getLength();
                return "hidden, " + Values.count(length, "character");
            });
        } else if (component instanceof JTextComponent && Code.overrider(type, "getText") == null
                && Code.overrider(type, "setText", String.class) == null) {
            // Only as much as can be shown: a document may hold megabytes, and getText() copies all of it.
            Property text = add(TEXT, "text", String.class, on -> {
                Document document = ((JTextComponent) on).getDocument();
                return document.getText(0, Math.min(document.getLength(), Values.LONGEST + 1));
            });
            text.settable((on, value) -> ((JTextComponent) on).setText((String) value), Formats.of(String.class));
            Document document = ((JTextComponent) component).getDocument();
            if (document != null && !Code.isToolkit(document.getClass())) {
                askProgram(text, document.getClass());
            }
        }
    }

    private void addLayout() {
        add(LAYOUT, "parent's layout", java.awt.LayoutManager.class,
                on -> on.getParent() == null ? null : on.getParent().getLayout());
        Format format = Constraints.format(component);
        if (format != null) {
            add(LAYOUT, "constraints", Object.class, Constraints::of).settable(Constraints::set, format);
        }
    }

    /** A component makes its accessible context when it is first asked for it, and listens to itself from then on. */
    private void addAccessibility() {
        Property name = add(ACCESSIBILITY, "accessibleName", String.class, on -> context(on).getAccessibleName());
        name.settable((on, value) -> context(on).setAccessibleName((String) value), Formats.of(String.class));
        Property description =
                add(ACCESSIBILITY, "accessibleDescription", String.class, on -> context(on).getAccessibleDescription());
        description.settable(
                (on, value) -> context(on).setAccessibleDescription((String) value), Formats.of(String.class));
        Property role = add(
                ACCESSIBILITY, "accessibleRole", String.class, on -> context(on).getAccessibleRole().toDisplayString());
        Property[] all = {name, description, role};
        Class<?> programs = getterOverrider != null ? getterOverrider : Code.overrider(type, "getAccessibleContext");
        for (Property property : all) {
            if (programs != null) {
                askProgram(property, programs);
            } else if (Fields.ACCESSIBLE.of(component, null) == null) {
                property.asked("The component makes its accessible context when it is first asked for it.");
            }
        }
    }

    private static AccessibleContext context(Component of) {
        AccessibleContext context = of.getAccessibleContext();
        if (context == null) {
            throw new IllegalStateException("it has no accessible context");
        }
        return context;
    }
}
