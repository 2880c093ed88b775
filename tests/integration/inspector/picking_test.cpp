// Picking a component of the program with a real pointer and real keys, and what the program notices of that.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <set>

#include "scenario.h"

using std::chrono::milliseconds;
using testing::Contains;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;

namespace {

const std::string kBox = "FC7E00";
const std::string kLabel = "26282B";

class Picking : public Scenario {
  protected:
    // The program with the inspector open, the program's window having the focus.
    void start_picking(const Arguments& options = {}) {
        start(options);
        open_inspector();
        click(where("room"));
        EXPECT_TRUE(program_gets_focus());
    }
    // Between two windows, nobody has it.
    bool program_gets_focus() {
        return eventually([this] {
            const std::string focus = ask("focus");
            return focus != "none" && focus.find("inspector") == std::string::npos;
        });
    }
    void hold() { keys.down(XK_Control_L); }
    void let_go() { keys.up(XK_Control_L); }

    Place cell(const std::string& arguments) { return place("cell " + arguments); }
    // The colours at places of the screen, all at one time.
    std::vector<std::string> colours_at(const std::vector<std::pair<int, int>>& places) {
        return Picture(x.name()).at(places);
    }
    std::string colour_at(int across, int down) { return colours_at({{across, down}}).at(0); }

    // The colours along the middle of the button that picks: no other place has the same.
    std::vector<std::string> colours_of_button() {
        const Place button = where("vantrel.pick");
        std::vector<std::pair<int, int>> places;
        for (int across = 4; across < button.width; across += 2) {
            places.emplace_back(button.x + across, button.y + button.height / 2);
        }
        return colours_at(places);
    }

    // A box one pixel wide, exactly on the bounds.
    void expect_box(const Place& place) {
        const int right = place.x + place.width - 1;
        const int bottom = place.y + place.height - 1;
        const int middle = place.x + place.width / 2;
        const int height = place.y + place.height / 2;
        const std::vector<std::pair<int, int>> on = {{place.x, place.y}, {right, place.y}, {place.x, bottom},
                                                     {right, bottom},    {middle, bottom}, {right, height}};
        const std::vector<std::pair<int, int>> off = {
            {place.x - 1, bottom}, {right + 1, bottom}, {middle, bottom + 1}, {right + 1, height}};
        EXPECT_TRUE(eventually([&] { return colours_at(on) == std::vector(on.size(), kBox); }));
        EXPECT_THAT(colours_at(off), Not(Contains(kBox)));
    }
    bool selects(const std::string& name) {
        return eventually([&] { return ask("selected") == name; }, milliseconds(3000));
    }
};
INSTANTIATE_TEST_SUITE_P(OnJdk, Picking, testing::ValuesIn(kReleases), testing::PrintToStringParamName());

TEST_P(Picking, OfEveryKindAndTheProgramSeesNothing) {
    start_picking();
    ask("follow ok");
    ask("follow tools.shy");
    keys.point_at(1700, 1080);
    EXPECT_TRUE(eventually([&] { return ask("log").find("MOUSE_EXITED") != std::string::npos; }));
    const Place beside_inspector = {0, 0, where("vantrel").x, 1000};
    const Picture before = settled_picture(beside_inspector);
    EXPECT_GT(before.colours(), 16);
    for (const char* name : {"ok", "cancel", "amount", "tools.shy", "amount.label", "level", "notes", "group.field",
                             "awt.button", "awt.field", "room", "file"}) {
        SCOPED_TRACE(name);
        hold();
        click(where(name));
        EXPECT_TRUE(selects(name)) << ask("selected");
        let_go();
    }
    keys.point_at(1700, 1080);
    std::this_thread::sleep_for(milliseconds(500));
    EXPECT_EQ(ask("log"), "");
    take_picture("picking-after");
    EXPECT_TRUE(eventually([&] { return picture(beside_inspector) == before; }))
        << "the program's window is not what it was";
}

TEST_P(Picking, DrawsABoxAndWalksByWheelAndArrows) {
    start_picking();
    const Place ok = where("ok");
    ask("log");
    hold();
    point_at(ok);
    expect_box(ok);
    take_picture("picking-box");
    keys.wheel(-1);
    expect_box(where("form"));
    keys.press({XK_Down});
    expect_box(ok);
    keys.press({XK_Up});
    keys.press({XK_Return});
    EXPECT_TRUE(selects("form")) << ask("selected");
    const Place file = where("file");
    point_at(file);
    EXPECT_TRUE(eventually([&] { return colour_at(file.x + 2, file.y + file.height + 2) == kLabel; }))
        << "below the box where there is no room above it";
    let_go();
    EXPECT_TRUE(eventually([&] { return colour_at(ok.x, ok.y) != kBox; }));
    EXPECT_EQ(ask("log"), "");
}

TEST_P(Picking, OnceWithoutTheKey) {
    start_picking();
    const Place ok = where("ok");
    click(where("vantrel.pick"));
    point_at(ok);
    expect_box(ok);
    keys.press({XK_Escape});
    EXPECT_TRUE(eventually([&] { return colour_at(ok.x, ok.y) != kBox; }));
    EXPECT_EQ(ask("selected"), "none");

    click(where("vantrel.pick"));
    click(ok);
    EXPECT_TRUE(selects("ok")) << ask("selected");
    ask("follow ok");
    ask("log");
    click(ok);
    EXPECT_TRUE(eventually([&] { return ask("log").find("action ok") != std::string::npos; })) << "the next click";

    // By key, while the pointer rests on something.
    click(where("vantrel.tree"));
    EXPECT_TRUE(eventually([this] { return ask("focus") == "inspector vantrel.tree"; })) << ask("focus");
    point_at(ok);
    EXPECT_TRUE(eventually([&] { return colour_at(ok.x, ok.y) != kBox; }));
    keys.press({XK_F8});
    expect_box(ok);
}

// Where screens are small, the inspector lies over the program.
TEST_P(Picking, NeverDrawsOverTheInspector) {
    start_picking();
    const Place form = where("form");
    // Its left edge cuts the form in two.
    const int edge = form.x + form.width / 2;
    ask("place-inspector " + std::to_string(edge) + " 0 1000 1000");
    EXPECT_TRUE(eventually([&] { return std::abs(where("vantrel").x - edge) < 20; }));
    const Place inspector = where("vantrel");
    click({inspector.x + inspector.width - 50, inspector.y + inspector.height / 2, 1, 1});  // brings it to the front
    click(place("inspector-row vantrel.tree form"));
    const int line = form.y + form.height - 1;
    EXPECT_TRUE(eventually([&] { return colour_at(form.x + 2, line) == kBox; })) << "beside the inspector";
    EXPECT_THAT(colours_at({{form.x + form.width - 2, line}, {form.x + form.width - 1, form.y + form.height / 2}}),
                Not(Contains(kBox)));
}

// A click brings a window to the front, whoever the click was for.
TEST_P(Picking, InAProgramInFullScreenAndTheInspectorStaysInSight) {
    start_picking();
    const std::vector<std::string> button = colours_of_button();
    EXPECT_GT(std::set(button.begin(), button.end()).size(), 2U);
    const auto is_in_sight = [&] { return colours_of_button() == button; };
    ask("fullscreen on");
    ASSERT_TRUE(eventually([&] { return where("main").width > 1700; }));
    const auto unseen = [&] {
        click({100, 1050, 10, 10});
        return program_gets_focus() && eventually([&] { return !is_in_sight(); });
    };
    EXPECT_TRUE(unseen()) << "the program lies over it";
    take_picture("full-screen-1");
    keys.press({XK_Control_L, XK_F12});
    EXPECT_TRUE(eventually([&] { return is_in_sight(); })) << "the key brings it to the front";
    take_picture("full-screen-2");
    hold();
    click(where("notes"));
    EXPECT_TRUE(selects("notes")) << ask("selected");
    let_go();
    std::this_thread::sleep_for(milliseconds(1200));
    EXPECT_TRUE(is_in_sight()) << "after picking";
    take_picture("full-screen-3");
    EXPECT_TRUE(unseen());
    keys.press({XK_Control_L, XK_F12});
    EXPECT_TRUE(eventually([&] { return is_in_sight(); }));
    close_inspector();
    ask("fullscreen off");
}

TEST_P(Picking, OfCells) {
    start_picking();
    hold();
    for (const auto& [owner, at] : {std::pair{"table", "table 1 1"}, {"tree", "tree 0"}, {"list", "list 2"}}) {
        SCOPED_TRACE(at);
        const Place place = cell(at);
        // Only the cell is tinted, and not what lies below it.
        const std::vector<std::pair<int, int>> inside = {{place.x + place.width - 3, place.y + 3}};
        const std::vector<std::pair<int, int>> outside = {{place.x + place.width - 3, place.y + place.height + 3}};
        const std::vector<std::string> plain = colours_at(inside);
        const std::vector<std::string> beside = colours_at(outside);
        point_at(place);
        expect_box(place);
        EXPECT_TRUE(eventually([&] { return colours_at(inside) != plain; })) << "the tint";
        EXPECT_EQ(colours_at(outside), beside);
        take_picture("picking-" + std::string(owner));
        keys.click();
        EXPECT_TRUE(selects(owner)) << ask("selected");
    }
    let_go();
}

TEST_P(Picking, OfInternalFramesAndWhatIsInThem) {
    start_picking();
    ask("tab tabs 1");
    ask("follow inner.button");
    const Place inner = where("inner");
    const Place button = where("inner.button");
    const Place lower = where("lower.button");
    ask("log");
    hold();
    for (const auto& [name, at] :
         {std::pair{"inner.button", button}, {"lower.button", lower}, {"desktop", {inner.x - 5, inner.y, 2, 2}}}) {
        SCOPED_TRACE(name);
        click(at);
        EXPECT_TRUE(selects(name)) << ask("selected");
    }
    // One lies over the other there, and the lower one has a glass pane as long as it is not the active one.
    click({lower.x, lower.y, inner.x + inner.width - 15 - lower.x, 10});
    EXPECT_TRUE(selects("inner.button")) << ask("selected");
    keys.press({XK_Right});
    expect_box(where("lower.button"));
    point_at({inner.x + 40, inner.y + 8, 10, 10});
    keys.press({XK_Up});
    expect_box(inner);
    keys.press({XK_Return});
    EXPECT_TRUE(selects("inner")) << ask("selected");
    let_go();
    EXPECT_EQ(ask("log"), "");

    // An icon stands for a frame that is in no window meanwhile.
    ask("set inner icon true");
    EXPECT_TRUE(
        eventually([&] { return ask("inspector vantrel.tree").find("JDesktopIcon \"Inner\"") != std::string::npos; }));
    const Place icon = where("inner.icon");
    hold();
    point_at(icon);
    keys.press({XK_Up});
    expect_box(icon);
    keys.press({XK_Return});
    EXPECT_TRUE(selects("inner.icon")) << ask("selected");
    let_go();
    EXPECT_THAT(ask("log"), Not(HasSubstr("MOUSE")));
    take_picture("picking-internal");
}

TEST_P(Picking, OfPopupItemsAndTheyStayOpen) {
    start_picking();
    for (const char* kind : {"light", "heavy"}) {
        SCOPED_TRACE(kind);
        ask("popup " + std::string(kind));
        ask("follow popup.cut");
        ask("log");
        hold();
        click(where("popup.cut"));
        EXPECT_TRUE(selects("popup.cut")) << ask("selected");
        click(where("amount"));
        EXPECT_TRUE(selects("amount")) << ask("selected");
        let_go();
        EXPECT_EQ(ask("popup ?"), "open");
        EXPECT_THAT(ask("log"), Not(HasSubstr("action")));
        click(where("vantrel.tree"));
        click(where("vantrel.tree"));  // the first one only ends the popup's grab of the pointer
        EXPECT_TRUE(eventually([this] { return ask("focus").find("inspector") != std::string::npos; }));
        EXPECT_EQ(ask("popup ?"), "open");
        click(where("room"));
        EXPECT_TRUE(eventually([this] { return ask("popup ?") == "closed"; })) << "a click in the program";
        ask("popup none");
    }
}

TEST_P(Picking, OfWhatIsInDialogsBehindThemAndBelowAGlassPane) {
    start_picking();
    for (const char* modality : {"modeless", "application", "toolkit"}) {
        SCOPED_TRACE(modality);
        ask("dialog " + std::string(modality));
        ASSERT_TRUE(eventually([&] { return ask("focus") == "dialog.button"; }));
        hold();
        click(where("dialog.button"));
        EXPECT_TRUE(selects("dialog.button")) << ask("selected");
        point_at(cell("list 1"));
        expect_box(cell("list 1"));
        keys.press({XK_Up});
        keys.press({XK_Return});
        EXPECT_TRUE(selects("list")) << ask("selected");
        let_go();
        ask("dialog none");
    }
    ask("glass on");
    hold();
    click(where("ok"));
    EXPECT_TRUE(selects("ok")) << ask("selected");
    let_go();
}

TEST_P(Picking, TheTreeShowsWhatItsRowsStandFor) {
    start_picking();
    const Place ok = where("ok");
    const Place label = where("amount.label");
    const auto is_boxed = [&](const Place& it) {
        return eventually([&] { return colour_at(it.x + it.width / 2, it.y + it.height - 1) == kBox; });
    };
    const auto is_plain = [&](const Place& it) {
        return eventually([&] { return colour_at(it.x + it.width / 2, it.y + it.height - 1) != kBox; });
    };
    click(place("inspector-row vantrel.tree JButton cancel"));
    EXPECT_TRUE(eventually([this] { return ask("focus") == "inspector vantrel.tree"; })) << ask("focus");
    ask("log");
    point_at(place("inspector-row vantrel.tree JButton ok"));
    expect_box(ok);
    point_at(where("vantrel.search"));
    EXPECT_TRUE(is_plain(ok));

    // The row's menu, by the right button.
    const auto choose = [&](const std::string& row, const std::string& item) {
        click(place("inspector-row vantrel.tree " + row), 3);
        EXPECT_TRUE(eventually([&] { return ask("inspector-dump").find("JPopupMenu") != std::string::npos; }));
        take_picture("row-menu");
        click(place("inspector-button " + item));
    };
    const auto copies = [&](const std::string& text) { return eventually([&] { return ask("clipboard") == text; }); };
    const std::string path = R"(JFrame "main" > JSplitPane "split" > JPanel "top" > JPanel "form" > )";
    choose("JLabel amount.label", "Copy Path");
    EXPECT_TRUE(copies(path + R"(JLabel "amount.label")")) << ask("clipboard");
    EXPECT_EQ(ask("selected"), "amount.label");
    choose("JTextField amount", "Copy Class");
    EXPECT_TRUE(copies("javax.swing.JTextField")) << ask("clipboard");
    choose("JTextField amount", "Copy Description");
    EXPECT_TRUE(eventually([&] { return ask("clipboard").starts_with("JTextField \"amount\"\n"); }));
    EXPECT_THAT(ask("clipboard"),
                MatchesRegex("JTextField \"amount\"\n"
                             "  class    javax.swing.JTextField\n"
                             "  path     " +
                             path +
                             "JTextField \"amount\"\n"
                             "  text     12.50\n"
                             "  tooltip  What it costs\n"
                             "  bounds   [0-9]+, [0-9]+, " +
                             std::to_string(where("amount").width) + " x " + std::to_string(where("amount").height) +
                             "\n"
                             "  state    showing, enabled\n"
                             "  added    at [^\n]*java.awt.Container.add[^\n]*\n"
                             "(           at [^\n]+\n)*"
                             "           and [0-9]+ more"));
    choose("JTextField amount", "Select Parent");
    EXPECT_TRUE(selects("form")) << ask("selected");

    // What is shown on demand stays while the pointer goes elsewhere, until something else is selected.
    choose("JLabel amount.label", "Show in Program");
    keys.point_at(1700, 1080);
    EXPECT_TRUE(is_boxed(label));
    keys.press({XK_Alt_L, XK_Return});
    EXPECT_TRUE(is_plain(label)) << "the same again takes it away";
    keys.press({XK_Alt_L, XK_Return});
    EXPECT_TRUE(is_boxed(label));
    keys.press({XK_Down});
    EXPECT_TRUE(is_plain(label));
    ask("set amount visible false");
    choose("JTextField amount", "Show in Program");
    EXPECT_TRUE(eventually([&] {
        return ask("inspector vantrel.path").find("JTextField \"amount\" cannot be seen: invisible.") !=
               std::string::npos;
    })) << ask("inspector vantrel.path");
    EXPECT_EQ(ask("log"), "") << "the program has seen nothing of all that";
}

TEST_P(Picking, LeavesAProgramsOwnDragAndKeysAlone) {
    start_picking();
    const Place level = where("level");
    point_at(level);
    keys.button_down(1);
    ask("log");
    hold();
    keys.point_at(level.x + 3, level.y + level.height / 2);
    EXPECT_TRUE(eventually([&] { return ask("log").find("MOUSE_DRAGGED level") != std::string::npos; }));
    keys.button_up(1);
    let_go();
    EXPECT_TRUE(eventually([&] { return ask("log").find("MOUSE_RELEASED level") != std::string::npos; }));
    EXPECT_EQ(ask("selected"), "none");
}

TEST_P(Picking, TheHotKeyWorksWhileAPopupHasTheKeyboard) {
    start();
    for (const char* kind : {"popup light", "popup heavy", "combo open"}) {
        SCOPED_TRACE(kind);
        ask(kind);
        const std::string again = std::string(kind, std::string(kind).find(' ')) + " ?";
        open_inspector();
        std::this_thread::sleep_for(milliseconds(700));
        EXPECT_TRUE(inspector_is_open()) << "one press counts once";
        EXPECT_EQ(ask(again), "open");
        take_picture("popup-stays");
        click(where("vantrel.tree"));
        std::this_thread::sleep_for(milliseconds(300));
        EXPECT_EQ(ask(again), "open") << "a click in the inspector";
        ask(kind[0] == 'p' ? "popup none" : "combo closed");
        close_inspector();
        EXPECT_TRUE(eventually([this] { return ask("focus") != "none"; }));
        std::this_thread::sleep_for(milliseconds(200));  // nobody presses a key more often
    }
}

}  // namespace
