// The inspector's window in a program: shown and hidden by the hot key, whatever the program has open, and what it
// remembers.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "scenario.h"

using testing::StartsWith;

namespace {

class InspectorWindow : public Scenario {
  protected:
    bool inspector_has_focus() {
        return eventually([this] { return ask("focus").starts_with("inspector"); });
    }
};
INSTANTIATE_TEST_SUITE_P(OnJdk, InspectorWindow, testing::ValuesIn(kReleases), testing::PrintToStringParamName());

TEST_P(InspectorWindow, LeavesNothingBehindHoweverOftenItIsShown) {
    constexpr int kTimes = 50;
    start();
    const std::string before = ask("dump");
    for (int time = 0; time < kTimes; ++time) {
        open_inspector();
        if (time == 0) {
            EXPECT_THAT(ask("inspector-dump"), StartsWith("VantrelFrame vantrel\n"));
        }
        close_inspector();
    }
    EXPECT_TRUE(eventually([this] { return ask("inspector-dump").empty(); }));
    EXPECT_EQ(ask("dump"), before);
    // What has been recorded while the window was shown may still be tidied up for a moment.
    EXPECT_TRUE(eventually([this] { return ask("threads vantrel") == "vantrel-hotkey"; }))
        << "no other thread of ours: " << ask("threads vantrel");
    ask("dispose");
    EXPECT_EQ(program->wait(), 0);
    EXPECT_EQ(program->err(), kAgentErr);
}

TEST_P(InspectorWindow, TheKeyBringsItBackWhenItIsMinimised) {
    start();
    open_inspector();
    ask("minimise-inspector");
    ASSERT_TRUE(eventually([this] { return !inspector_is_open(); }));
    keys.press({XK_Control_L, XK_F12});
    EXPECT_TRUE(eventually([this] { return inspector_is_open(); }));
    close_inspector();
}

TEST_P(InspectorWindow, IsOfUseWhileADialogOfAnyModalityIsOpen) {
    start();
    for (const std::string modality : {"modeless", "document", "application", "toolkit"}) {
        SCOPED_TRACE(modality);
        ask("dialog " + modality);
        ASSERT_TRUE(eventually([this] { return ask("dialog ?") == "open"; }));
        EXPECT_TRUE(eventually([this] { return ask("focus") == "dialog.button"; })) << ask("focus");
        open_inspector();
        ASSERT_TRUE(inspector_has_focus());
        click(where("vantrel.search"));
        keys.type("dialog.button");
        EXPECT_TRUE(eventually(
            [this] { return ask("inspector vantrel.tree").find("JButton dialog.button") != std::string::npos; }));
        close_inspector();
        EXPECT_EQ(ask("dialog ?"), "open");
        ask("dialog none");
    }
}

TEST_P(InspectorWindow, IsWhereItWasWhenItIsShownAgain) {
    start();
    open_inspector();
    ask("place-inspector 700 300 900 600");
    ASSERT_TRUE(eventually([this] { return where("vantrel").width == 900; }));
    const Place place = where("vantrel");
    close_inspector();
    ask("dispose");
    EXPECT_EQ(program->wait(), 0);

    start();  // another program of the same user
    open_inspector();
    EXPECT_TRUE(eventually([&] {
        const Place now = where("vantrel");
        // A window manager may count its frame in or not.
        return now.width == place.width && std::abs(now.x - place.x) < 40 && std::abs(now.y - place.y) < 40;
    })) << where("vantrel").x
        << " " << where("vantrel").width;
}

// Nothing of it may be cut off at the size that it begins with, and each part is found by the name that it has for
// scripts.
TEST_P(InspectorWindow, ShowsAllItsParts) {
    for (const std::string look : {"", "javax.swing.plaf.nimbus.NimbusLookAndFeel", "dark", "bare"}) {
        SCOPED_TRACE(look);
        start();
        ask("look " + look);
        open_inspector();
        const Place window = where("vantrel");
        for (const char* part : {"vantrel.tree", "vantrel.search", "vantrel.pick", "vantrel.undo", "vantrel.redo"}) {
            const Place place = where(part);
            EXPECT_GT(place.width * place.height, 0) << part;
            EXPECT_LE(place.x + place.width, window.x + window.width) << part;
        }
        EXPECT_EQ(program->err(), kAgentErr);
    }
}

}  // namespace
