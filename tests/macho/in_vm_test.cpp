// Real VMs under the macOS library, with a window system that is X11's and a hot key that is Carbon's.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <csignal>
#include <fstream>
#include <optional>
#include <string>

#include "agent_in_vm.h"
#include "process.h"
#include "x_keys.h"
#include "x_picture.h"
#include "x_server.h"

namespace {

// The sample under the macOS library, on a display of its own.
class MachOInVm : public OnEachJdk {
  protected:
    void SetUp() override {
        OnEachJdk::SetUp();
        if (IsSkipped()) {
            return;
        }
        ASSERT_EQ(mkfifo((folder.path / "keys").c_str(), 0600), 0);
        sample.emplace(java_under_agent(GetParam(), {"-jar", kSampleJar},
                                        std::string(VANTREL_MACHO_SHIM) + "=" + VANTREL_MACHO_LIBRARY),
                       ProcessOptions{.folder = folder.path, .environment = {x.display()}});
        ASSERT_TRUE(sample->reaches([&] { return x.shows("Vantrel sample"); })) << sample->out() << sample->err();
        keys.open(folder.path / "keys");
    }

    void type(char key) { keys << key << std::flush; }
    void press_until_shown(bool shown) {
        EXPECT_NE(x.shows("Vantrel"), shown);
        type('p');
        EXPECT_TRUE(sample->reaches([&] { return x.shows("Vantrel") == shown; })) << sample->err();
    }
    // Around the button that the pointer is on; the inspector's window lies further down.
    bool shows_highlight() {
        constexpr Place kAround = {0, 20, 130, 40};
        const Picture picture(x.name(), kAround);
        for (int i = 0; i < kAround.width * kAround.height; ++i) {
            if (picture.at(i % kAround.width, i / kAround.width) == "FC7E00") {
                return true;
            }
        }
        return false;
    }

    const ScratchFolder folder;
    const XServer x;
    std::ofstream keys;
    std::optional<Process> sample;
};
ON_EACH_JDK(MachOInVm);

// The AWT is X11's here, where Control is the modifier that the companion goes by; whether that is still held it asks
// the agent.
TEST_P(MachOInVm, TheHotKeyShowsTheInspectorAndCommandHighlights) {
    press_until_shown(true);
    XKeys x_keys(x.name());
    x_keys.point_at(60, 40);
    type('c');
    // Presses Control again if the agent was asked before the "c" had reached it.
    EXPECT_TRUE(sample->reaches([&] {
        x_keys.up(XK_Control_L);
        x_keys.down(XK_Control_L);
        return sample->reaches([&] { return shows_highlight(); }, std::chrono::seconds(2));
    }));
    type('r');
    EXPECT_TRUE(sample->reaches([&] { return !shows_highlight(); })) << "still held";
    x_keys.up(XK_Control_L);
    press_until_shown(false);
    press_until_shown(true);

    sample->signal(SIGTERM);
    EXPECT_EQ(sample->wait(), 128 + SIGTERM);
    EXPECT_EQ(sample->out(), kAgentOut);
    EXPECT_EQ(sample->err(),
              "carbon: install 1 1 1801812322 5 1 \n"
              "carbon: register 111 256 1835559729 1 1 0 \n"
              "carbon: unregister 1 \n");
}

}  // namespace
