// Real VMs under the macOS library, with a window system that is X11's and a hot key that is Carbon's.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <csignal>
#include <fstream>
#include <string>

#include "agent_in_vm.h"
#include "process.h"
#include "x_server.h"

namespace {

class MachOInVm : public OnEachJdk {};
ON_EACH_JDK(MachOInVm);

TEST_P(MachOInVm, TheHotKeyShowsAndHidesTheInspector) {
    const ScratchFolder folder;
    ASSERT_EQ(mkfifo((folder.path / "keys").c_str(), 0600), 0);
    const XServer x;
    Process sample(java_under_agent(GetParam(), {"-jar", kSampleJar},
                                    std::string(VANTREL_MACHO_SHIM) + "=" + VANTREL_MACHO_LIBRARY),
                   {.folder = folder.path, .environment = {x.display()}});
    ASSERT_TRUE(sample.reaches([&] { return x.shows("Vantrel sample"); })) << sample.out() << sample.err();
    std::ofstream keys(folder.path / "keys");
    for (int round = 0; round < 2; ++round) {
        EXPECT_FALSE(x.shows("Vantrel"));
        keys << 'p' << std::flush;
        EXPECT_TRUE(sample.reaches([&] { return x.shows("Vantrel"); })) << sample.err();
        keys << 'p' << std::flush;
        EXPECT_TRUE(sample.reaches([&] { return !x.shows("Vantrel"); })) << sample.err();
    }
    sample.signal(SIGTERM);
    EXPECT_EQ(sample.wait(), 128 + SIGTERM);
    EXPECT_EQ(sample.out(), kAgentOut);
    EXPECT_EQ(sample.err(),
              "carbon: install 1 1 1801812322 5 1 \n"
              "carbon: register 111 256 1835559729 1 1 0 \n"
              "carbon: unregister 1 \n");
}

}  // namespace
