// The tree of the program's components in the inspector's window: what it shows, how it follows the program, and how
// one finds one's way in it by the keyboard.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "scenario.h"

using std::chrono::milliseconds;
using testing::HasSubstr;
using testing::Not;

namespace {

// A change must be seen within this time.
constexpr milliseconds kSoon{500};

class InspectorTree : public Scenario {
  protected:
    void start_and_open() {
        start();
        open_inspector();
        ASSERT_TRUE(eventually([this] { return ask("focus") == "inspector vantrel.tree"; })) << ask("focus");
        ASSERT_TRUE(shows("JFrame main"));
    }
    bool shows(const std::string& row) { return rows().find(row) != std::string::npos; }
    std::string rows() { return ask("inspector vantrel.tree"); }
    bool becomes_selected(const std::string& name) {
        return eventually([&] { return ask("selected") == name; });
    }
    void search(const std::string& text) {
        keys.press({XK_Control_L, XK_f});
        ASSERT_TRUE(eventually([this] { return ask("focus") == "inspector vantrel.search"; }));
        keys.type(text);
    }
};
INSTANTIATE_TEST_SUITE_P(OnJdk, InspectorTree, testing::ValuesIn(kReleases), testing::PrintToStringParamName());

// What the rows say beside class and name, cut off.
std::vector<std::string> first_words(const std::string& rows, const std::string& of_dump) {
    std::vector<std::string> words;
    const std::vector<std::string> dumped = lines_of(of_dump);
    const std::vector<std::string> shown = lines_of(rows);
    for (size_t row = 0; row < shown.size(); ++row) {
        const std::string line = shown[row].substr(2);
        const std::string expected =
            row < dumped.size() ? dumped[row].substr(dumped[row].find_first_not_of(' ')) : "nothing";
        const bool same = line == expected || line.starts_with(expected + " \"") || line.starts_with(expected + " (");
        words.push_back(same ? expected : line);
    }
    return words;
}

std::vector<std::string> trimmed(const std::string& dump) {
    std::vector<std::string> lines = lines_of(dump);
    for (std::string& line : lines) {
        line = line.substr(line.find_first_not_of(' '));
    }
    return lines;
}

TEST_P(InspectorTree, IsWhatTheProgramSeesOfItself) {
    start_and_open();
    keys.press({XK_Control_L, XK_m});
    keys.press({XK_Control_L, XK_Shift_L, XK_e});
    ASSERT_TRUE(eventually([this] { return shows("JRootPane"); }));
    for (const char* opened :
         {"frame second", "dialog modeless", "popup light", "popup none", "popup heavy", "popup none", "odd lying"}) {
        SCOPED_TRACE(opened);
        ask(opened);
        const auto as_the_program_sees_it = [this] {
            const std::string dump = ask("dump");
            return first_words(rows(), dump) == trimmed(dump);
        };
        EXPECT_TRUE(eventually([&] { return as_the_program_sees_it(); })) << rows() << "\nbut\n" << ask("dump");
    }
}

TEST_P(InspectorTree, FollowsTheProgramAndKeepsItsPlace) {
    start_and_open();
    search("list");
    keys.press({XK_Return});
    ASSERT_TRUE(becomes_selected("list"));
    keys.press({XK_Escape});
    ASSERT_TRUE(eventually([this] { return shows("JButton tools.refresh"); }));
    const std::string place = ask("inspector-row vantrel.tree JList list");
    const auto where_now = [&] { return ask("inspector-row vantrel.tree JList list"); };

    ask("add room newcomer");
    EXPECT_TRUE(eventually([this] { return shows("JLabel newcomer \"newcomer\""); }, kSoon));
    EXPECT_EQ(where_now(), place) << "one row more above it";
    ask("add room second");
    ask("first second");
    EXPECT_TRUE(eventually(
        [this] {
            const std::string now = rows();
            return now.find("JLabel second") < now.find("JLabel newcomer");
        },
        kSoon));
    ask("text newcomer another text");
    EXPECT_TRUE(eventually([this] { return shows("\"another text\""); }, kSoon));
    ask("remove newcomer");
    EXPECT_TRUE(eventually([this] { return !shows("newcomer"); }, kSoon));
    EXPECT_EQ(ask("selected"), "list");
    EXPECT_THAT(rows(), HasSubstr("* JList list"));

    ask("remove list");
    EXPECT_TRUE(eventually([this] { return !shows("JList list"); }, kSoon));
    EXPECT_TRUE(eventually([this] { return ask("collected list") == "true"; }));
    EXPECT_EQ(ask("selected"), "none");
}

TEST_P(InspectorTree, SaysWhyAComponentDoesNotShow) {
    start_and_open();
    ask("set notes visible false");
    ask("place ok 10 10 0 20");
    ask("place amount 5000 10 20 20");
    // A window manager leaves some of a window on the screen.
    ask("place main -500 50 640 620");
    const char* rows[] = {
        "JLabel invisible \"Not shown\" (invisible)",
        "JTextArea notes \"Notes that are longer than one line\" (invisible)",
        "JButton ok \"OK\" (no size)",
        "JTextField amount \"12.50\" (clipped away)",
        "JInternalFrame inner \"Inner\" (parent invisible)",
        "JLabel amount.label \"Amount\" (outside of the screen)",
    };
    for (const std::string row : rows) {
        EXPECT_TRUE(eventually([&] { return shows(row); })) << row;
    }
}

TEST_P(InspectorTree, AsksNothingOfWhatMustNotBeAsked) {
    start_and_open();
    ask("watch");
    for (const std::string kind : {"throwing", "blocking", "null", "lying"}) {
        ask("odd " + kind);
        EXPECT_TRUE(eventually([&] { return shows("JPanel odd." + kind + ".child"); })) << rows();
    }
    EXPECT_LT(std::stoi(ask("held")), 900) << "milliseconds; asking the blocking one once takes 1000";
    EXPECT_EQ(program->err(), kAgentErr);
}

TEST_P(InspectorTree, IsSearchedByTyping) {
    start_and_open();
    ask("text cancel Do not");
    const struct {
        const char* typed;
        const char* found;
    } cases[] = {
        {"spinner", "count"},               // a class
        {"AMOUNT.L", "amount.label"},       // a name, in whatever case
        {"\"do not\"", "cancel"},           // a text
        {"costs", "amount"},                // a tooltip
        {"enabled=false", "cancel"},        // a property
        {"JButton enabled=true ok", "ok"},  // all of them
        {"font.size>11 name=ok", "ok"},     // a property's property
        {"layout=GridBagLayout", "form"},   // by class
        {"visible=false", "invisible"},     // what is hidden
    };
    for (const auto& [typed, found] : cases) {
        SCOPED_TRACE(typed);
        search(typed);
        keys.press({XK_Return});
        EXPECT_TRUE(becomes_selected(found)) << ask("selected") << "\n" << rows();
        EXPECT_THAT(rows(), Not(HasSubstr("JToolBar")));
        keys.press({XK_Escape});
        EXPECT_TRUE(eventually([this] { return shows("JToolBar tools"); }));
    }
    search("no such thing");
    EXPECT_TRUE(eventually([this] { return rows().empty(); }));
    ask("hold 500");
    keys.type("j");
    keys.press({XK_Escape});  // ends the search before it has begun
    EXPECT_TRUE(eventually([this] { return ask("inspector vantrel.search").empty(); }));
    EXPECT_LT(std::stoi(ask("busy")), 50) << "percent";
}

TEST_P(InspectorTree, IsWalkedAndCopiedByTheKeyboard) {
    start_and_open();
    keys.press({XK_Home});
    EXPECT_TRUE(becomes_selected("main"));
    keys.press({XK_Right});  // into it
    EXPECT_TRUE(becomes_selected("tools"));
    keys.press({XK_Left});  // collapses
    EXPECT_TRUE(eventually([this] { return !shows("tools.refresh"); }));
    keys.press({XK_Right});
    EXPECT_TRUE(eventually([this] { return shows("tools.refresh"); }));
    keys.press({XK_Down});
    EXPECT_TRUE(becomes_selected("tools.refresh"));
    keys.press({XK_Control_L, XK_Shift_L, XK_c});
    EXPECT_TRUE(eventually(
        [this] { return ask("clipboard") == "JFrame \"main\" > JToolBar \"tools\" > JButton \"tools.refresh\""; }));
    keys.press({XK_Control_L, XK_Shift_L, XK_d});
    EXPECT_TRUE(eventually([this] { return ask("clipboard").find("MainFrame.java:") != std::string::npos; }));
    keys.press({XK_Alt_L, XK_Up});
    EXPECT_TRUE(becomes_selected("tools"));
    keys.press({XK_Alt_L, XK_Left});
    EXPECT_TRUE(becomes_selected("tools.refresh"));
    keys.type("slider");  // goes to the search
    EXPECT_TRUE(eventually([this] { return ask("inspector vantrel.search") == "slider"; }));
}

}  // namespace
