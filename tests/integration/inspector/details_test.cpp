// What the inspector's window tells of the selected component, and changes in it: by keys and mouse, seen in pixels.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "process.h"
#include "scenario.h"

using std::chrono::milliseconds;
using testing::HasSubstr;
using testing::Not;

namespace {

class InspectorDetails : public Scenario {
  protected:
    Place row(const std::string& table, const std::string& text) {
        return place("inspector-row " + table + " " + text);
    }

    // Selects a component in the tree, by its class and name as they stand there.
    void select(const std::string& title) {
        const std::string name = title.substr(title.find(' ') + 1);
        click(row("vantrel.tree", title));
        EXPECT_TRUE(eventually([&] { return ask("selected") == name; })) << ask("selected");
    }

    std::string shown(const std::string& table = "vantrel.properties") { return ask("inspector " + table); }

    // Selects one that may be out of sight, by searching for its name.
    void seek(const std::string& name) {
        keys.press({XK_Control_L, XK_f});
        expect_focus("vantrel.search");
        keys.press({XK_Control_L, XK_a});
        keys.type(name);
        keys.press({XK_Return});
        EXPECT_TRUE(eventually([&] { return ask("selected") == name; })) << ask("selected");
        keys.press({XK_Escape});
        expect_focus("vantrel.tree");
    }

    bool shows(const std::string& text, const std::string& table = "vantrel.properties") {
        return eventually([&] { return shown(table).find(text) != std::string::npos; });
    }

    void expect_focus(const std::string& name) {
        EXPECT_TRUE(eventually([&] { return ask("focus") == "inspector " + name; })) << ask("focus");
    }

    // Filters the properties by a word, which leaves few, and selects the first of them.
    void find_property(const std::string& word) {
        click(where("vantrel.properties.filter"));
        expect_focus("vantrel.properties.filter");
        keys.press({XK_Control_L, XK_a});
        keys.type(word);
        keys.press({XK_Down});
        expect_focus("vantrel.properties");
    }

    // Edits the selected property from the keyboard.
    void edit(const std::string& text) {
        keys.press({XK_F2});
        expect_focus("vantrel.value");
        keys.press({XK_Control_L, XK_a});
        keys.type(text);
        keys.press({XK_Return});
    }
};
INSTANTIATE_TEST_SUITE_P(OnJdk, InspectorDetails, testing::ValuesIn(kReleases), testing::PrintToStringParamName());

// The program's line beside the property that it has set, and on demand the whole stack.
TEST_P(InspectorDetails, TellWhoHasSetAProperty) {
    start();
    open_inspector();
    select("JLabel amount.label");
    EXPECT_THAT(shown(), HasSubstr("text | "));
    EXPECT_THAT(shown(), Not(HasSubstr("Commands.java:")));
    ask("text amount.label Price");
    const std::string line = "Commands.java:" + std::to_string(line_of("Commands.java", ".invoke(component"));
    EXPECT_TRUE(shows("text | Price | " + line)) << shown();

    // What is set here is not the program's doing.
    find_property("text");
    edit("Ours");
    EXPECT_TRUE(shows("text | Ours | this window")) << shown();

    ask("text amount.label Theirs");
    EXPECT_TRUE(shows("text | Theirs | " + line)) << shown();
    keys.press({XK_F4});
    EXPECT_TRUE(shows("* Commands.call(" + line + ")", "vantrel.changes.stack.list"))
        << shown("vantrel.changes.stack.list");
}

// Why a component cannot be seen, in words that lead to what they name, and that can be copied.
TEST_P(InspectorDetails, SayWhyAndLeadThere) {
    start();
    open_inspector();
    ask("select invisible");
    ASSERT_TRUE(shows("It is invisible.", "vantrel.why")) << shown("vantrel.why");
    ask("set right visible false");
    const std::string line = "Commands.java:" + std::to_string(line_of("Commands.java", ".invoke(component"));
    const std::string who = "is invisible: Commands.call(" + line + ") hid it.";
    EXPECT_TRUE(shows("JPanel \"right\", which it is in, " + who + "\nIt is invisible itself.", "vantrel.why"))
        << shown("vantrel.why");
    take_picture("details-why");
    Place words = where("vantrel.why");
    words.width = 40;
    words.height = 12;
    click(words);
    EXPECT_TRUE(eventually([&] { return ask("selected") == "right"; })) << ask("selected");
    EXPECT_TRUE(shows("It " + who, "vantrel.why")) << shown("vantrel.why");

    click(words);
    expect_focus("vantrel.why");
    keys.press({XK_Control_L, XK_a});
    keys.press({XK_Control_L, XK_c});
    EXPECT_TRUE(eventually([&] { return ask("clipboard") == "It " + who; })) << ask("clipboard");
    keys.press({XK_End});
    for (size_t i = 0; i < std::string("1) hid it.").size(); ++i) {
        keys.press({XK_Left});
    }
    keys.press({XK_Return});
    const std::string link = "at scenario.Commands.call(" + line + ")";
    EXPECT_TRUE(eventually([&] { return ask("clipboard") == link; })) << "no editor is set: " << ask("clipboard");

    // What is as it should be is told all the same.
    ask("set right visible true");
    EXPECT_TRUE(shows("GridLayout of JPanel \"top\" makes all cells alike, ", "vantrel.why")) << shown("vantrel.why");
    EXPECT_EQ(program->err(), kAgentErr);
}

TEST_P(InspectorDetails, EditsAreSeenInTheProgramAndCanBeUndone) {
    start();
    open_inspector();
    struct Case {
        std::string component, property, value;
    };
    const std::vector<Case> cases = {
        {"JLabel amount.label", "text", "Price"},
        {"JButton ok", "enabled", ""},
        {"JTextField amount", "background", "255, 200, 0"},
        {"JButton ok", "font", "Dialog bold italic 18"},
        {"JButton ok", "preferredSize", "90 x 44"},
        {"JTextField amount", "border", "line #ff0000 3"},
        {"JButton cancel", "constraints", "gridx=1 gridy=4 anchor=LINE_START"},
    };
    const Place form = where("form");
    for (const Case& it : cases) {
        SCOPED_TRACE(it.property + " of " + it.component);
        select(it.component);
        find_property(it.property);
        // The pointer has left the tree by then, and the highlight is gone.
        const Picture before = settled_picture(form);
        if (it.value.empty()) {
            keys.press({XK_space});
        } else {
            edit(it.value);
        }
        const Picture after = settled_picture(form, before);
        expect_focus("vantrel.properties");
        keys.press({XK_Control_L, XK_z});
        EXPECT_TRUE(eventually([&] { return picture(form) == before; }));
        keys.press({XK_Control_L, XK_y});
        EXPECT_TRUE(eventually([&] { return picture(form) == after; }));
        take_picture("details-" + it.property);
        keys.press({XK_Control_L, XK_z});
        EXPECT_TRUE(eventually([&] { return picture(form) == before; }));
    }
}

TEST_P(InspectorDetails, FollowTheProgramAndLeaveTheUserInPeace) {
    start();
    open_inspector();
    select("JLabel amount.label");
    find_property("text");
    ask("text amount.label Cost");
    EXPECT_TRUE(eventually([&] { return shown().find("* text | Cost | ") != std::string::npos; }, milliseconds(500)))
        << shown();

    // What is being typed stays, whatever the program does meanwhile, and so does what was wrong with it.
    select("JTextField amount");
    find_property("columns");
    keys.press({XK_Return});
    expect_focus("vantrel.value");
    keys.press({XK_Control_L, XK_a});
    keys.type("many");
    keys.press({XK_Return});
    ask("text amount 99");
    EXPECT_TRUE(shows("99", "vantrel.tree"));
    EXPECT_EQ(ask("inspector vantrel.value"), "many");
    EXPECT_THAT(ask("inspector-dump"), HasSubstr("JLabel vantrel.complaint"));
    take_picture("details-complaint");
    keys.press({XK_Escape});
    expect_focus("vantrel.properties");
    EXPECT_THAT(shown(), HasSubstr("* columns | 8 | "));
    EXPECT_THAT(ask("inspector-dump"), Not(HasSubstr("vantrel.complaint")));

    // Rows are copied, numbers counted up, and line feeds kept.
    keys.press({XK_Control_L, XK_c});
    EXPECT_TRUE(eventually([&] { return ask("clipboard") == "8"; })) << ask("clipboard");
    find_property("bounds");
    const std::string bounds = shown().substr(shown().find("* bounds | ") + 11);
    keys.press({XK_F2});
    expect_focus("vantrel.value");
    keys.press({XK_Home});
    keys.press({XK_Up});
    const std::string counted = std::to_string(std::stoi(bounds) + 1) + bounds.substr(bounds.find(','));
    EXPECT_TRUE(eventually([&] { return counted.starts_with(ask("inspector vantrel.value")); }))
        << ask("inspector vantrel.value");
    keys.press({XK_Escape});
    select("JTextArea notes");
    find_property("longer");
    keys.press({XK_F2});
    expect_focus("vantrel.value");
    keys.press({XK_End});
    keys.type("!");
    keys.press({XK_Return});
    EXPECT_TRUE(shows("\"Notes that are longer than one line!\"", "vantrel.tree")) << "with its line feed";
    select("JTextField amount");

    // The component goes while it is selected, has been changed, and can be changed back.
    find_property("border");
    edit("none");
    expect_focus("vantrel.properties");
    ask("remove amount");
    EXPECT_TRUE(eventually([&] { return ask("collected amount") == "true"; }));
}

TEST_P(InspectorDetails, AskAComponentThatMisbehavesOnlyWhatTheUserAsks) {
    start();
    open_inspector();
    const struct {
        std::string kind, answer;
    } cases[] = {
        {"throwing", "toolTipText | IllegalStateException: asked on purpose | read once"},
        {"blocking", "toolTipText | late | took 1"},
        {"null", "toolTipText | null | read once"},
    };
    for (const auto& it : cases) {
        const auto& kind = it.kind;
        SCOPED_TRACE(kind);
        ask("odd " + kind);
        ask("watch");
        EXPECT_TRUE(shows("odd." + kind + ".child", "vantrel.tree"));
        seek("odd." + kind + ".child");
        keys.press({XK_Alt_L, XK_Up});
        EXPECT_TRUE(eventually([&] { return ask("selected") == "odd." + kind; }));
        find_property("tooltip");
        EXPECT_TRUE(shows("* toolTipText | read | on demand"));
        keys.press({XK_Control_L, XK_Page_Down});
        EXPECT_TRUE(shows("manager | FlowLayout", "vantrel.layout.rows"));
        EXPECT_LT(std::stoi(ask("held")), 900) << "milliseconds; asking the blocking one once takes 1000";
        keys.press({XK_Control_L, XK_Page_Up});
        EXPECT_TRUE(
            eventually([&] { return ask("inspector vantrel.details").find("toolTipText") != std::string::npos; }));
        find_property("tooltip");
        keys.press({XK_Return});
        EXPECT_TRUE(shows(it.answer)) << shown();
    }
    EXPECT_EQ(program->err(), kAgentErr);
}

TEST_P(InspectorDetails, TellOfLayoutListenersAndKeys) {
    start();
    ask("follow ok");
    open_inspector();
    select("JButton ok");
    find_property("name");
    keys.press({XK_Control_L, XK_Page_Down});
    EXPECT_TRUE(shows("constraints | gridx=0 gridy=4", "vantrel.layout.rows"));
    take_picture("details-layout");
    for (int tab = 0; tab < 3; ++tab) {
        keys.press({XK_Control_L, XK_Page_Down});
    }
    EXPECT_TRUE(shows("scenario.EventLog", "vantrel.listeners"));
    take_picture("details-listeners");
    keys.press({XK_Control_L, XK_Page_Down});
    EXPECT_TRUE(shows("when focused", "vantrel.keys"));
    click(where("vantrel.keys.press"));
    EXPECT_TRUE(shows("Press the key", "vantrel.keys.press"));
    keys.press({XK_Tab});
    EXPECT_TRUE(shows("taken by | the focus, which moves to the next component", "vantrel.keys"));
    take_picture("details-keys");

    // GroupLayout tells its groups to nobody; the agent has opened the toolkit's module.
    seek("group.field");
    click(where("vantrel.keys.filter"));
    expect_focus("vantrel.keys.filter");
    for (int tab = 0; tab < 4; ++tab) {
        keys.press({XK_Control_L, XK_Page_Up});
    }
    EXPECT_TRUE(shows(R"(horizontally | [JLabel "group.label", JTextField "group.field"])", "vantrel.layout.rows"))
        << shown("vantrel.layout.rows");
}

TEST_P(InspectorDetails, LookAsBeforeWhenTheProgramHasTriedAnotherLookAndFeel) {
    const std::string nimbus = "javax.swing.plaf.nimbus.NimbusLookAndFeel";
    start();
    ask("look " + nimbus);  // it has renderers of its own for tables, and takes them away when it goes
    open_inspector();
    select("JButton ok");
    EXPECT_TRUE(shows("enabled"));
    const Place table = where("vantrel.properties");
    const Place shown_part{table.x, table.y, 300, 150};
    const Picture before = settled_picture(shown_part);
    ask("restyle javax.swing.plaf.metal.MetalLookAndFeel");
    EXPECT_TRUE(eventually([&] { return picture(shown_part) != before; }));
    ask("restyle " + nimbus);
    EXPECT_TRUE(eventually([&] { return picture(shown_part) == before; }));
}

}  // namespace
