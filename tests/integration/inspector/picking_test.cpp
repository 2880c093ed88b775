// Picking a component of the program with a real pointer and real keys, and what the program notices of that.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "scenario.h"

using std::chrono::milliseconds;
using testing::HasSubstr;
using testing::Not;

namespace {

const std::string kBox = "FC7E00";

class Picking : public Scenario {
  protected:
    // The program with the inspector open, the program's window having the focus.
    void start_picking(const Arguments& options = {}) {
        start(options);
        open_inspector();
        ask("log");
    }
    void hold() { keys.down(XK_Control_L); }
    void let_go() { keys.up(XK_Control_L); }

    Place cell(const std::string& arguments) {
        Place place;
        std::istringstream(ask("cell " + arguments)) >> place.x >> place.y >> place.width >> place.height;
        return place;
    }
    std::string colour_at(int x, int y) {
        const auto picture = folder.path / "colour.png";
        EXPECT_GT(x_picture(picture), 0);
        return run({"convert", picture, "-crop", "1x1+" + std::to_string(x) + "+" + std::to_string(y), "-depth", "8",
                    "-format", "%[hex:u]", "info:"})
            .out;
    }
    int x_picture(const std::filesystem::path& file) { return x.take_picture(file); }

    // A box one pixel wide, exactly on the bounds.
    void expect_box(const Place& place) {
        const int right = place.x + place.width - 1;
        const int bottom = place.y + place.height - 1;
        const int middle = place.x + place.width / 2;
        const auto corners = [&] {
            return colour_at(place.x, place.y) == kBox && colour_at(right, place.y) == kBox &&
                   colour_at(place.x, bottom) == kBox && colour_at(right, bottom) == kBox &&
                   colour_at(middle, bottom) == kBox;
        };
        EXPECT_TRUE(eventually(corners));
        EXPECT_NE(colour_at(place.x - 1, bottom), kBox);
        EXPECT_NE(colour_at(right + 1, bottom), kBox);
        EXPECT_NE(colour_at(middle, bottom + 1), kBox);
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
    const std::filesystem::path before = folder.path / "before.png";
    const std::filesystem::path after = folder.path / "after.png";
    keys.point_at(1700, 1080);
    ask("log");
    EXPECT_TRUE(eventually([&] { return x.take_picture(before) > 16; }));
    const Place inspector = where("vantrel");
    for (const char* name : {"ok", "cancel", "amount", "tools.shy", "amount.label", "level", "notes", "group.field",
                             "awt.button", "awt.field", "room", "file"}) {
        SCOPED_TRACE(name);
        hold();
        click(where(name));
        EXPECT_TRUE(selects(name)) << ask("selected");
        let_go();
    }
    keys.point_at(1700, 1080);
    EXPECT_EQ(ask("log"), "");
    take_picture("picking-after");
    EXPECT_TRUE(eventually([&] {
        EXPECT_GT(x.take_picture(after), 0);
        const std::string area = std::to_string(inspector.x) + "x1000+0+0";
        return run({"compare", "-metric", "AE", "-extract", area, before, after, "null:"}).err == "0";
    })) << "the program's window is not what it was";
}

TEST_P(Picking, DrawsABoxAndWalksByWheelAndArrows) {
    start_picking();
    const Place ok = where("ok");
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
}

TEST_P(Picking, OfCells) {
    start_picking();
    hold();
    for (const auto& [owner, at] : {std::pair{"table", "table 1 1"}, {"tree", "tree 0"}, {"list", "list 2"}}) {
        SCOPED_TRACE(at);
        const Place place = cell(at);
        point_at(place);
        expect_box(place);
        take_picture("picking-" + std::string(owner));
        keys.click();
        EXPECT_TRUE(selects(owner)) << ask("selected");
    }
    let_go();
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
        ask("popup none");
    }
}

TEST_P(Picking, OfWhatIsInDialogsBehindThemAndBelowAGlassPane) {
    start_picking();
    for (const char* modality : {"modeless", "application", "toolkit"}) {
        SCOPED_TRACE(modality);
        ask("dialog " + std::string(modality));
        ASSERT_TRUE(eventually([&] { return ask("dialog ?") == "open"; }));
        hold();
        click(where("dialog.button"));
        EXPECT_TRUE(selects("dialog.button")) << ask("selected");
        point_at(where("list"));
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
    }
}

}  // namespace
