// The proxies in real VMs, under the agent.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "agent_in_vm.h"
#include "process.h"

namespace fs = std::filesystem;
using testing::EndsWith;

namespace {

class ProxiesInVm : public OnEachJdk {};
ON_EACH_JDK(ProxiesInVm);

std::vector<std::string> lines_with(std::istream& text, const std::string& prefix) {
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);) {
        if (line.starts_with(prefix)) {
            lines.push_back(line.substr(prefix.size()));
        }
    }
    return lines;
}

std::vector<std::string> lines_with(const std::string& text, const std::string& prefix) {
    std::istringstream stream(text);
    return lines_with(stream, prefix);
}

TEST_P(ProxiesInVm, InitialiseAndCallJava) {
    const Finished program = run(java_under_agent(
        GetParam(), {"-Djava.awt.headless=true", "-cp", kPrograms, "ProxyCalls", VANTREL_PROXY_CALLS}));
    ASSERT_EQ(program.status, 0) << program.out << program.err;
    EXPECT_EQ(lines_with(program.out, "initialised ").size(), 17u);
    EXPECT_THAT(program.out, EndsWith("results as expected\n"));

    // The members that the proxies know and this VM does not have. For a VM that has no list yet, one is written.
    const std::vector<std::string> missing = lines_with(program.out, "missing ");
    const fs::path known = VANTREL_MISSING_MEMBERS "-" + std::to_string(GetParam()) + ".txt";
    if (!fs::exists(known)) {
        std::ofstream list(known);
        std::copy(missing.begin(), missing.end(), std::ostream_iterator<std::string>(list, "\n"));
        FAIL() << known << " was not there and has been written: look at it";
    }
    std::ifstream list(known);
    EXPECT_EQ(missing, lines_with(list, "")) << "otherwise than in " << known;
}

}  // namespace
