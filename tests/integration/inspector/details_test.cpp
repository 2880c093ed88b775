// What the inspector's window tells of the selected component, and changes in it: by keys and mouse, seen in pixels.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <sstream>
#include <string>
#include <vector>

#include "process.h"
#include "scenario.h"

using std::chrono::milliseconds;
using testing::AllOf;
using testing::HasSubstr;

namespace {

class InspectorDetails : public Scenario {
  protected:
    Place row(const std::string& table, const std::string& text) {
        Place place;
        std::istringstream(ask("inspector-row " + table + " " + text)) >> place.x >> place.y >> place.width >>
            place.height;
        return place;
    }

    // Selects a component in the tree, by its class and name as they stand there.
    void select(const std::string& title) {
        const std::string name = title.substr(title.find(' ') + 1);
        click(row("vantrel.tree", title));
        EXPECT_TRUE(eventually([&] { return ask("selected") == name; })) << ask("selected");
    }

    std::string shown(const std::string& table = "vantrel.properties") { return ask("inspector " + table); }

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

    // The pixels of a place, in one word.
    std::string pixels(const Place& place) {
        const auto file = folder.path / "pixels.png";
        EXPECT_GT(x.take_picture(file), 1);
        const std::string crop = std::to_string(place.width) + "x" + std::to_string(place.height) + "+" +
                                 std::to_string(place.x) + "+" + std::to_string(place.y);
        return run({"convert", file, "-crop", crop, "-depth", "8", "-format", "%#", "info:"}).out;
    }
    // The same once they stay as they are, other than they were.
    std::string settled_pixels(const Place& place, const std::string& before) {
        std::string now = before;
        EXPECT_TRUE(eventually([&] {
            const std::string last = now;
            now = pixels(place);
            return now != before && now == last;
        }));
        return now;
    }
};
INSTANTIATE_TEST_SUITE_P(OnJdk, InspectorDetails, testing::ValuesIn(kReleases), testing::PrintToStringParamName());

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
        const std::string before = pixels(form);
        find_property(it.property);
        if (it.value.empty()) {
            keys.press({XK_space});
        } else {
            edit(it.value);
        }
        const std::string after = settled_pixels(form, before);
        expect_focus("vantrel.properties");
        keys.press({XK_Control_L, XK_z});
        EXPECT_TRUE(eventually([&] { return pixels(form) == before; }));
        keys.press({XK_Control_L, XK_y});
        EXPECT_TRUE(eventually([&] { return pixels(form) == after; }));
        take_picture("details-" + it.property);
        keys.press({XK_Control_L, XK_z});
        EXPECT_TRUE(eventually([&] { return pixels(form) == before; }));
    }
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
    const std::string before = pixels(shown_part);
    ask("restyle javax.swing.plaf.metal.MetalLookAndFeel");
    EXPECT_TRUE(eventually([&] { return pixels(shown_part) != before; }));
    ask("restyle " + nimbus);
    EXPECT_TRUE(eventually([&] { return pixels(shown_part) == before; }));
}

}  // namespace
