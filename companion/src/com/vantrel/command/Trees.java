package com.vantrel.command;

import java.awt.Component;
import java.awt.Rectangle;
import java.util.ArrayList;
import java.util.Collections;
import java.util.List;

import com.vantrel.model.Facts;
import com.vantrel.model.Showing;
import com.vantrel.model.TreeNode;
import com.vantrel.model.TreeSearch;

/** The components of the program, as text for people or as JSON for programs. */
final class Trees {
    /** The form of the JSON text; another number when a member means something else or goes. */
    private static final int VERSION = 1;
    private static final long NANOS_OF_SEARCH = 50_000_000;

    private Trees() {
    }

    /**
     * @param json  whether as JSON
     * @param depth how many levels below the windows; -1 for all
     * @param query what to search for, as in the window; empty for everything
     */
    static Answer answer(boolean json, int depth, String query) throws Refusal {
        if (!About.hasWindows()) {
            return Answer.of(json ? json(Collections.emptyList()) : "");
        }
        int most = depth < 0 ? Integer.MAX_VALUE : depth;
        return Answer.of(query.isEmpty() ? EventThread.ask(() -> json ? whole(most) : outline(new Paths(), most))
                                         : found(json, query));
    }

    private static String outline(Paths paths, int depth) {
        StringBuilder text = new StringBuilder();
        for (Place place : paths.all()) {
            int level = place.node().level();
            if (level > depth) {
                continue;
            }
            for (int i = 0; i < level; i++) {
                text.append("  ");
            }
            text.append(place.step()).append("  ").append(look(place));
            if (level == depth && !place.children().isEmpty()) {
                text.append(" \u2026");
            }
            text.append('\n');
        }
        return text.toString();
    }

    static String look(Place place) {
        return Escapes.line(place.node().look().toString());
    }

    private static String whole(int depth) {
        Paths paths = new Paths();
        paths.tree().showMachinery(true);
        paths.tree().setAllExpanded(true);
        List<Member> members = new ArrayList<>();
        for (TreeNode node : paths.tree().rows()) {
            Component component = node.component();
            if (component != null && node.level() <= depth) {
                members.add(new Member(node.level(), component, paths.of(component), false));
            }
        }
        return json(members);
    }

    /** What a search finds, which may take longer than an event thread should be held up. */
    private static String found(boolean json, String query) throws Refusal {
        Paths paths = EventThread.ask(Paths::new);
        TreeSearch search = EventThread.ask(() -> new TreeSearch(paths.tree()));
        EventThread.ask(() -> {
            search.start(query);
            return null;
        });
        while (EventThread.ask(() -> {
            search.work(NANOS_OF_SEARCH);
            return search.isWorking();
        })) {
        }
        return EventThread.ask(() -> json ? matchesAsJson(paths) : matches(paths));
    }

    private static String matches(Paths paths) throws Refusal {
        StringBuilder text = new StringBuilder();
        for (TreeNode node : paths.tree().rows()) {
            Place place = paths.of(node.component());
            if (node.isMatch() && place != null) {
                text.append(paths.shortPath(place)).append("  ").append(look(place)).append('\n');
            }
        }
        if (text.length() == 0) {
            throw new Refusal(Answer.NOTHING, "no component is found by that");
        }
        return text.toString();
    }

    private static String matchesAsJson(Paths paths) {
        List<Member> members = new ArrayList<>();
        for (TreeNode node : paths.tree().rows()) {
            Component component = node.component();
            if (component != null) {
                members.add(new Member(node.level(), component, paths.of(component), node.isMatch()));
            }
        }
        return json(members);
    }

    private static final class Member {
        final int level;
        final Component component;
        final Place place;
        final boolean isMatch;

        Member(int level, Component component, Place place, boolean isMatch) {
            this.level = level;
            this.component = component;
            this.place = place;
            this.isMatch = isMatch;
        }
    }

    private static String json(List<Member> members) {
        Json json = new Json();
        json.object().member("vantrel", VERSION).key("windows").array();
        int open = -1;
        for (Member member : members) {
            for (; open >= member.level; open--) {
                json.end(']').end('}');
            }
            json.object();
            describe(member, json);
            json.key("children").array();
            open = member.level;
        }
        for (; open >= 0; open--) {
            json.end(']').end('}');
        }
        return json.end(']').end('}') + "\n";
    }

    private static void describe(Member member, Json json) {
        Component component = member.component;
        Showing showing = Showing.of(component);
        Rectangle bounds = Facts.bounds(component);
        json.member("path", member.place == null ? null : member.place.path())
                .member("class", component.getClass().getName())
                .member("name", Facts.name(component))
                .member("text", Facts.text(component))
                .member("toolTip", Facts.toolTip(component));
        json.key("bounds").array();
        json.value(bounds.x).value(bounds.y).value(bounds.width).value(bounds.height).end(']');
        json.member("visible", Facts.isVisible(component))
                .member("enabled", Facts.isEnabled(component))
                .member("showing", showing == Showing.YES)
                .member("because", showing == Showing.YES ? null : showing.words())
                .member("machinery", member.place == null ? true : null)
                .member("match", member.isMatch ? true : null);
    }
}
