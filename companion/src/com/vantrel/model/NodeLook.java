package com.vantrel.model;

import java.awt.Component;
import java.util.Objects;

/** What a row of the tree says of a component. Does not change, and holds nothing of the program. */
public final class NodeLook {
    private static final int LONGEST = 60;

    private final String className;
    private final String name;
    private final String text;
    private final boolean isHint;
    private final Showing showing;

    private NodeLook(String className, String name, String text, boolean isHint, Showing showing) {
        this.className = className;
        this.name = name;
        this.text = text;
        this.isHint = isHint;
        this.showing = showing;
    }

    static NodeLook of(TreeNode node) {
        Component component = node.component();
        String className = node.facts().name();
        if (component == null) {
            return new NodeLook(className, "", "", false, Showing.NO_WINDOW);
        }
        String name = Facts.name(component);
        String text = Facts.text(component);
        boolean isHint = text == null;
        if (isHint) {
            text = Facts.toolTip(component); // for a button with only an icon, it says what the text would
        }
        return new NodeLook(className, name == null ? "" : name, oneLine(text), isHint, Showing.of(component));
    }

    private static String oneLine(String text) {
        if (text == null) {
            return "";
        }
        String line = text.trim().replaceAll("\\s+", " ");
        return line.length() > LONGEST ? line.substring(0, LONGEST - 1) + "\u2026" : line;
    }

    public String className() {
        return className;
    }

    /** The component's name; empty for none. */
    public String name() {
        return name;
    }

    /** Its text or title, or its tooltip; empty for none. */
    public String text() {
        return text;
    }

    /** Whether the text is only what the tooltip says. */
    public boolean isHint() {
        return isHint;
    }

    public Showing showing() {
        return showing;
    }

    @Override
    public boolean equals(Object other) {
        if (!(other instanceof NodeLook)) {
            return false;
        }
        NodeLook that = (NodeLook) other;
        return showing == that.showing && isHint == that.isHint && className.equals(that.className)
                && name.equals(that.name) && text.equals(that.text);
    }

    @Override
    public int hashCode() {
        return Objects.hash(className, name, text);
    }

    /** Class, name, text and reason, such as {@code JButton ok "OK" (invisible)}. */
    @Override
    public String toString() {
        return className + (name.isEmpty() ? "" : " " + name) + (text.isEmpty() ? "" : " \"" + text + "\"")
                + (showing == Showing.YES ? "" : " (" + showing.words() + ")");
    }
}
