// The demo: the program that works the inspector on the sample, and leaves a picture of each step.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "agent_in_vm.h"
#include "process.h"
#include "x_server.h"

namespace fs = std::filesystem;

namespace {

class Demo : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(OnJdk, Demo, testing::ValuesIn(kReleases), testing::PrintToStringParamName());

TEST_P(Demo, GoesThroughAllSteps) {
    SKIP_WITHOUT_JDK(GetParam());
    const ScratchFolder folder;
    const XServer x{{"-screen", "0", "1660x640x24"}};
    const WindowManager manager(x);
    std::ofstream(folder.path / "settings") << "window.bounds=762 0 898 640\n";
    Process tour(java_under_agent(GetParam(), {"-Dvantrel.settings=" + (folder.path / "settings").string(), "-cp",
                                               kSampleJar.string() + ":" VANTREL_TOUR_JAR, "tour.Tour", folder.path}),
                 {.folder = folder.path, .environment = {x.display()}});
    EXPECT_TRUE(tour.reaches([&] { return fs::exists(folder.path / "7-undo.png"); }, std::chrono::seconds(60)))
        << tour.err();
    for (const char* step : {"1-program", "2-open", "3-hover", "4-pick", "5-see", "6-change"}) {
        EXPECT_TRUE(fs::exists(folder.path / (step + std::string(".png")))) << step;
    }
    EXPECT_EQ(tour.err(), kAgentErr);
}

}  // namespace
