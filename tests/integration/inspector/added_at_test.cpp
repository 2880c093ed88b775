// Where a component was added, in the inspector's window: the program's line, copied and opened in an editor.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "scenario.h"

using testing::ContainsRegex;

namespace fs = std::filesystem;

namespace {

const fs::path kSources = VANTREL_SCENARIO_SOURCES;
const fs::path kFile = kSources / "scenario" / "MainFrame.java";
const std::string kList = "vantrel.addedAt.list";
const std::string kMessage = "vantrel.addedAt.message";

class AddedAt : public Scenario {
  protected:
    const std::string number = std::to_string(line_of("MainFrame.java", "form.add(right,"));
    const std::string line = "MainFrame.row(MainFrame.java:" + number + ")";

    // Has the field selected, and waits for its line to be there, marked.
    void show_amount() {
        open_inspector();
        ask("select amount");
        click(place("inspector-tab Added at"));
        ASSERT_TRUE(eventually([&] { return ask("inspector " + kList).find("* " + line) != std::string::npos; }))
            << ask("inspector " + kList);
        ask("log");
    }
    Place row(const std::string& text) { return place("inspector-row " + kList + " " + text); }
    void double_click(const Place& place) {
        click(place);
        keys.click();
    }
    bool message_says(const std::string& text) {
        return eventually([&] { return ask("inspector " + kMessage) == text; });
    }

    // An editor that writes its arguments down, a line each.
    const fs::path editor = folder.path / "an editor";
    const fs::path opened = folder.path / "opened";
    void make_editor() const {
        std::ofstream(editor) << "#!/bin/sh\nprintf '%s\\n' \"$@\" >" << opened << ".new\nmv " << opened << ".new "
                              << opened << "\n";
        fs::permissions(editor, fs::perms::owner_all);
    }
};
INSTANTIATE_TEST_SUITE_P(OnJdk, AddedAt, testing::ValuesIn(kReleases), testing::PrintToStringParamName());

TEST_P(AddedAt, NamesTheProgramsLineAndCopiesIt) {
    start();
    show_amount();
    EXPECT_THAT(ask("inspector " + kList), ContainsRegex("^- [0-9]+ calls in java.awt\n\\* MainFrame.row"));

    double_click(row(line));
    EXPECT_TRUE(message_says("no editor is set, so the line was copied")) << ask("inspector " + kMessage);
    const std::string link = "at scenario.MainFrame.row(MainFrame.java:" + number + ")";
    EXPECT_EQ(ask("clipboard"), link);

    // The line below, by keyboard; then what a fold holds.
    keys.press({XK_Down});
    keys.press({XK_Control_L, XK_c});
    EXPECT_TRUE(eventually([&] { return ask("clipboard").starts_with("at scenario.MainFrame.form(MainFrame.java:"); }))
        << ask("clipboard");
    keys.press({XK_Home});
    keys.press({XK_Return});
    EXPECT_TRUE(eventually([&] { return ask("inspector " + kList).find("\n- Container.add(") != std::string::npos; }))
        << ask("inspector " + kList);
    keys.press({XK_Left});
    EXPECT_TRUE(eventually([&] { return ask("inspector " + kList).find("Container.add(") == std::string::npos; }));
    keys.press({XK_Control_L, XK_a});
    keys.press({XK_Control_L, XK_c});
    EXPECT_TRUE(eventually([&] {
        return ask("clipboard").find("\n\tat java.awt.Container.add(") != std::string::npos;
    })) << ask("clipboard");

    // The line above all tabs does the same as the list's.
    click(place("inspector-tab Properties"));
    click(where("vantrel.header.where"));
    EXPECT_TRUE(eventually([&] { return ask("clipboard") == link; })) << ask("clipboard");
    EXPECT_EQ(ask("log"), "") << "the program saw nothing of it";
}

TEST_P(AddedAt, OpensTheLineInTheUsersEditor) {
    make_editor();
    const std::string arguments = "--line\n" + number + "\n" + kFile.string() + "\n";
    start({"-Dvantrel.editor='" + editor.string() + "' --line %line %file", "-Dvantrel.sources=" + kSources.string()});
    show_amount();
    double_click(row(line));
    EXPECT_TRUE(message_says("opened MainFrame.java:" + number + " in an editor")) << ask("inspector " + kMessage);
    EXPECT_TRUE(eventually([&] { return contents(opened) == arguments; })) << contents(opened);

    // Another command, from the window: one that cannot work, and one that does; that is remembered.
    const auto set = [&](const std::string& field, const std::string& value) {
        click(where("vantrel.addedAt." + field));
        EXPECT_TRUE(eventually([&] { return ask("focus") == "inspector vantrel.addedAt." + field; }));
        keys.press({XK_Control_L, XK_a});
        keys.type(value);
        keys.press({XK_Return});
    };
    click(where("vantrel.addedAt.settings"));
    ASSERT_TRUE(
        eventually([&] { return ask("inspector vantrel.addedAt").find("Editor command") != std::string::npos; }));
    set("editor", "/nowhere/edit %file");
    double_click(row(line));
    EXPECT_TRUE(message_says("the editor '/nowhere/edit' does not start: No such file or directory"))
        << ask("inspector " + kMessage);
    set("editor", "'" + editor.string() + "' --remembered %file");
    set("sources", kSources.string());
    take_picture("added-at");
    ask("dispose");
    EXPECT_EQ(program->wait(), 0);

    fs::remove(opened);
    start();
    show_amount();
    double_click(row(line));
    EXPECT_TRUE(eventually([&] { return contents(opened) == "--remembered\n" + kFile.string() + "\n"; }))
        << ask("inspector " + kMessage);
}

}  // namespace
