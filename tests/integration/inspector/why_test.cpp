// Why a component is not to be seen, does not react, or has its size and place: the sentences for a panel of prepared
// components (java/why) are those of a table that was written beforehand (why.txt), on each VM.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "agent_in_vm.h"
#include "process.h"
#include "x_server.h"

namespace fs = std::filesystem;

namespace {

using Sentences = std::vector<std::string>;
using Table = std::map<std::string, Sentences>;

std::string line_of(const std::string& file, int number) {
    std::ifstream source(fs::path(VANTREL_SCENARIO_SOURCES) / "why" / file);
    std::string line;
    for (int i = 0; i < number; ++i) {
        std::getline(source, line);
    }
    const size_t begin = line.find_first_not_of(' ');
    return begin == std::string::npos ? file + ":" + std::to_string(number) : line.substr(begin);
}

// Puts the code on a line in the place of its number, so that lines may move: "Seen.covered(label.setBounds(0, 0);)".
std::string with_code(const std::string& sentence) {
    static const std::regex kPlace(R"(\((\w+\.java):(\d+)\))");
    std::string text;
    std::string rest = sentence;
    for (std::smatch at; std::regex_search(rest, at, kPlace); rest = at.suffix()) {
        text += at.prefix().str() + "(" + line_of(at[1], std::stoi(at[2])) + ")";
    }
    return text + rest;
}

// What the table's words in capitals stand for.
std::string with_words(const std::string& line) {
    std::string sentence = line;
    const std::pair<std::string, std::string> words[] = {
        {"FLOW", R"(FlowLayout of JPanel "stage" gives it its preferred size, 60 × 20, set by PREFERRED.)"},
        {"by PREFERRED", "by Stage.sized(component.setPreferredSize(new Dimension(60, 20));)"},
        {"by MINIMUM", "by Stage.sized(component.setMinimumSize(new Dimension(10, 10));)"},
        {"by MAXIMUM", "by Stage.sized(component.setMaximumSize(new Dimension(80, 30));)"},
    };
    for (const auto& [word, text] : words) {
        const size_t at = sentence.find(word);
        if (at != std::string::npos) {
            sentence.replace(at, word.size(), text);
        }
    }
    return sentence;
}

Table parse(std::istream& in, std::string (*complete)(const std::string&)) {
    const std::string indent = "    ";
    Table table;
    std::string name;
    for (std::string line; std::getline(in, line);) {
        if (line.starts_with(indent)) {
            table[name].push_back(complete(line.substr(indent.size())));
        } else if (!line.empty() && !line.starts_with("#")) {
            name = line;
            EXPECT_TRUE(table.emplace(name, Sentences{}).second) << name << " is there twice";
        }
    }
    return table;
}

class Why : public OnEachJdk {
  protected:
    // Plays cases under the agent, all if none is named, and returns what was told of each.
    Table play(const Arguments& options, const Arguments& names = {}) {
        const std::string class_path = (kTestFolder / "why-cases.jar").string() + ":" VANTREL_MIGLAYOUT_JARS;
        const Arguments all = options + Arguments{"-XX:TieredStopAtLevel=1", "-cp", class_path, "why.Cases"} + names;
        const Finished finished =
            run(java_under_agent(GetParam(), all), {.folder = folder.path, .environment = {x.display()}});
        EXPECT_EQ(finished.status, 0);
        EXPECT_EQ(finished.err, kAgentErr);
        EXPECT_TRUE(finished.out.starts_with(kAgentOut)) << finished.out;
        std::istringstream out(finished.out.substr(std::min(kAgentOut.size(), finished.out.size())));
        return parse(out, with_code);
    }

    const ScratchFolder folder;
    const XServer x{{"-screen", "0", "1280x900x24"}};
    const WindowManager manager{x};
};
ON_EACH_JDK(Why);

TEST_P(Why, IsToldRightOfPreparedComponents) {
    const Table told = play({"-Dvantrel.record=changes"});
    std::ifstream table(VANTREL_WHY_TABLE);
    const Table expected = parse(table, with_words);
    for (const auto& [name, sentences] : expected) {
        const auto found = told.find(name);
        EXPECT_EQ(found == told.end() ? Sentences{"not played"} : found->second, sentences) << name;
    }
    EXPECT_EQ(told.size(), expected.size());
}

// Nobody is named then, and nothing said that nobody knows; where components were added is known in any case.
TEST_P(Why, IsToldWithoutARecord) {
    const std::string flow = R"(FlowLayout of JPanel "stage" gives it its preferred size, 60 × 20, which was set.)";
    const Table expected = {
        {"invisible", {"It is invisible."}},
        {"removed", {"It was removed after Stage.set(panel.add(component);) had added it."}},
        {"disabled", {"It is disabled.", flow}},
        {"flow, bounds overwritten", {flow}},
        {"none", {R"(JPanel "stage" has no layout manager: its bounds were set, to 3, 4, 50 × 20.)"}},
    };
    Arguments names;
    for (const auto& [name, sentences] : expected) {
        names.push_back(name);
    }
    EXPECT_EQ(play({}, names), expected);
}

}  // namespace
