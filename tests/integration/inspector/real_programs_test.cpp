// The inspector in programs that nobody here wrote: an editor made of Swing, with a class, a renderer and a text area
// for everything, and a program for pictures whose widgets are the AWT's.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <thread>
#include <utility>

#include "scenario.h"

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using testing::HasSubstr;

namespace {

const fs::path kEditor = "/usr/share/jedit/jedit.jar";
const fs::path kPictures = "/usr/share/java/ij.jar";

class RealProgram : public Scenario {
  protected:
    // Starts a program, and puts its window and the inspector's side by side.
    // window    what "find" is told of the program's main window
    void start_beside_inspector(const fs::path& jar, const Arguments& main, const std::string& title,
                                const std::string& window) {
        start_guest(jar, main);
        ASSERT_TRUE(program->reaches([&] { return x.shows(title); })) << program->err();
        settle([&] { return ask("dump"); });
        ask("find window " + window);
        const Place size = where("window");
        ask("place window 0 0 " + std::to_string(size.width) + " " + std::to_string(size.height));
        open_inspector();
        ask("place-inspector 780 0 1000 1000");
        EXPECT_TRUE(eventually([this] { return where("vantrel").x >= 780 && where("window").x < 20; }));
        settle([this] { return text_of(where("window")) + text_of(where("vantrel")); });
    }

    // Waits for a program that is still at something: until what it tells stays the same for a while.
    static void settle(const std::function<std::string()>& tell) {
        std::string last;
        EXPECT_TRUE(eventually([&] {
            std::this_thread::sleep_for(milliseconds(400));
            const std::string before = std::exchange(last, tell());
            return before == last;
        }));
    }

    bool has(const std::string& type) {
        return eventually([&] { return ask("dump").find(type) != std::string::npos; });
    }

    static std::string text_of(const Place& place) {
        std::ostringstream text;
        text << place.x << " " << place.y << " " << place.width << " " << place.height;
        return text.str();
    }

    void give_focus_to(const Place& place) {
        click(place);
        EXPECT_TRUE(eventually([this] {
            const std::string focus = ask("focus");
            return focus != "none" && !focus.starts_with("inspector");
        })) << ask("focus");
    }

    void expect_pick(const Place& place, const std::string& name) {
        keys.down(XK_Control_L);
        point_at(place);
        std::this_thread::sleep_for(milliseconds(300));  // a person looks at the box first, which has a tint by then
        keys.click();
        EXPECT_TRUE(eventually([&] { return ask("selected") == name; })) << ask("selected");
        keys.up(XK_Control_L);
    }

    // Picks a component by what "find" is told of it, and calls it so from then on.
    void pick(const std::string& name, const std::string& what) {
        SCOPED_TRACE(what);
        ask("find " + name + " " + what);
        expect_pick(where(name), name);
    }

    // The program's main window, without the lower end: there it shows its memory, and the time.
    Place most_of_window() {
        keys.point_at(400, 1090);
        const Place window = where("window");
        return {0, 0, window.width, window.height * 4 / 5};
    }
    void expect_unchanged_since(const Picture& before) {
        const Place place = most_of_window();
        EXPECT_TRUE(eventually([&] { return picture(place) == before; }));
    }

    // Changes a property of the selected component, which a program shows at once, and takes that back.
    void change_and_undo(const std::string& property, const std::string& before, const std::string& value) {
        const auto row = [&](const std::string& now) {
            return eventually([&] {
                return ask("inspector vantrel.properties").find("* " + property + " | " + now + " | ") !=
                       std::string::npos;
            });
        };
        click(where("vantrel.properties.filter"));
        keys.press({XK_Control_L, XK_a});
        keys.type(property);
        keys.press({XK_Down});
        EXPECT_TRUE(row(before)) << ask("inspector vantrel.properties");
        keys.press({XK_F2});
        ASSERT_TRUE(eventually([this] { return ask("focus") == "inspector vantrel.value"; })) << ask("focus");
        keys.press({XK_Control_L, XK_a});
        keys.type(value);
        keys.press({XK_Return});
        EXPECT_TRUE(row(value)) << ask("inspector vantrel.properties");
        take_picture("real-" + property);
        keys.press({XK_Control_L, XK_z});
        EXPECT_TRUE(row(before)) << ask("inspector vantrel.properties");
    }
};
INSTANTIATE_TEST_SUITE_P(OnJdk, RealProgram, testing::ValuesIn(kReleases), testing::PrintToStringParamName());

TEST_P(RealProgram, AnEditorMadeOfSwing) {
    if (!fs::exists(kEditor)) {
        GTEST_SKIP() << "jEdit is not installed";
    }
    std::ofstream(folder.path / "properties") << "tip.show=false\n";
    start_beside_inspector(
        kEditor, {"org.gjt.sp.jedit.jEdit", "-noserver", "-nobackground", "-settings=" + folder.path.string()},
        "jEdit - Untitled-1", "View");
    ask("find text TextAreaPainter");
    give_focus_to(where("text"));
    const Picture before = settled_picture(most_of_window());
    pick("text", "TextAreaPainter");
    pick("new", "EnhancedButton New");
    expect_unchanged_since(before);
    change_and_undo("toolTipText", "New (C+n)", "Another one");

    give_focus_to(where("text"));
    keys.press({XK_Control_L, XK_o});
    ASSERT_TRUE(has("VFSDirectoryEntryTable"));
    settle([this] { return ask("dump"); });
    ask("find files VFSDirectoryEntryTable");
    Place cell;
    std::istringstream(ask("cell files 0 0")) >> cell.x >> cell.y >> cell.width >> cell.height;
    expect_pick(cell, "files");
    keys.press({XK_Escape});
    give_focus_to(where("text"));

    ask("find menu EnhancedMenu File");
    click(where("menu"));
    settle([this] { return ask("dump"); });
    pick("item", "EnhancedMenuItem Save As");
    EXPECT_THAT(ask("inspector vantrel.header"), HasSubstr("added at EnhancedMenu.<init>(EnhancedMenu.java:"));
    ask("find item EnhancedMenuItem Save As");  // the menu is still open
    keys.press({XK_Escape});
    close_inspector();
    click(where("text"));
    keys.press({XK_Control_L, XK_q});
    EXPECT_EQ(program->wait(), 0);
    EXPECT_EQ(program->err(), kAgentErr);
}

TEST_P(RealProgram, WithWidgetsOfTheAwt) {
    if (!fs::exists(kPictures)) {
        GTEST_SKIP() << "ImageJ is not installed";
    }
    start_beside_inspector(kPictures, {"ij.ImageJ"}, "ImageJ", "ImageJ");
    ask("find tools Toolbar");
    Place tool = where("tools");
    tool.width = tool.height;
    give_focus_to(tool);
    keys.press({XK_Shift_L, XK_n});
    ASSERT_TRUE(has("TextArea"));
    ask("find editor Editor");
    ask("place editor 20 300 500 300");
    settle([this] { return text_of(where("editor")); });
    const Picture before = settled_picture(most_of_window());
    pick("tools", "Toolbar");
    pick("status", "JLabel");
    pick("text", "TextArea");
    EXPECT_THAT(ask("inspector vantrel.header"), HasSubstr("added at Editor.<init>(Editor.java:"));
    expect_unchanged_since(before);
    change_and_undo("columns", "80", "40");
    close_inspector();
    take_picture("real-awt");
    ask("dispose");
    program->signal(SIGTERM);
    EXPECT_EQ(program->wait(), 128 + SIGTERM);
    EXPECT_EQ(program->err(), kAgentErr);
}

}  // namespace
