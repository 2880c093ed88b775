// The scenario program (java/scenario) under the agent, on an X server of its own with a window manager, with a hand on
// its keyboard and mouse: the ground of all tests of the inspector's window. A test's class derives from it:
//
//     TEST_P(TreeOfWindow, FollowsTheProgram) {
//         start();
//         open_inspector();
//         ask("add room newcomer");
//         EXPECT_TRUE(eventually([&] { return ask("inspector vantrel.tree").find("newcomer") != std::string::npos; }));
//     }
#ifndef VANTREL_SCENARIO_H
#define VANTREL_SCENARIO_H

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <optional>
#include <string>

#include "agent_in_vm.h"
#include "process.h"
#include "x_keys.h"
#include "x_picture.h"
#include "x_server.h"

class Scenario : public OnEachJdk {
  protected:
    // Starts the program; it has its window on the screen, and the focus, when this returns.
    // options   of the VM, such as -Dtheme=dark
    void start(const Arguments& options = {});

    // Starts a program that is not ours in its place; it can be asked the same, about components that "find" has named.
    // Its windows are yet to come when this returns.
    // main      the class to start, and the program's own arguments
    void start_guest(const std::filesystem::path& jar, const Arguments& main);

    // Has the program do something; commands and answers are listed in Commands.java. Returns the answer, its lines
    // separated by line feeds. A command that fails, or is not answered, fails the test.
    std::string ask(const std::string& command);

    // The place that a command answers with.
    Place place(const std::string& command);

    // Where a component of the program is, or one of the inspector's ("vantrel.tree").
    Place where(const std::string& name);

    // Moves the pointer to the middle of a place, and clicks there.
    void point_at(const Place& place);
    void click(const Place& place, int button = 1);

    // Presses the hot key and waits for the inspector's window to be there, or gone.
    void open_inspector();
    void close_inspector();
    bool inspector_is_open();

    // Whether a condition comes true in time.
    static bool eventually(const std::function<bool()>& condition,
                           std::chrono::milliseconds limit = std::chrono::seconds(10));

    // The number of the line with a text in a source file of the program, found there, so that it may move.
    static int line_of(const std::string& file, const std::string& text);

    // What a place of the screen shows now.
    Picture picture(const Place& place) const { return {x.name(), place}; }

    // The same once it is other than it was, and has stayed so for a moment.
    Picture settled_picture(const Place& place, const Picture& before = {}) const;

    // Writes a picture of the screen beside the other products of the tests, for people to look at.
    void take_picture(const std::string& name);

    const ScratchFolder folder;
    const XServer x{{"-screen", "0", "1800x1100x24"}};
    XKeys keys{x.name()};
    std::optional<WindowManager> manager;
    std::optional<Process> program;

  private:
    void run_under_agent(const Arguments& options);

    int asked_ = 0;
};

#endif
