// Class files as old compilers wrote them, with subroutines and without stack maps, rewritten and run.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>

#include "jars.h"
#include "programs.h"
#include "rewriting.h"

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::Not;

namespace {

struct Kind {
    const char* name;
    unsigned char version;
    Arguments options;  // of ecj; none for javac
};

void PrintTo(const Kind& kind, std::ostream* out) {
    *out << kind.name;
}

const Kind kKinds[] = {
    {.name = "Java1_1", .version = 45, .options = {"-source", "1.3", "-target", "1.1"}},
    {.name = "Java1_2", .version = 46, .options = {"-source", "1.3", "-target", "1.2"}},
    {.name = "Java1_3", .version = 47, .options = {"-source", "1.3", "-target", "1.3"}},
    {.name = "Java1_4", .version = 48, .options = {"-source", "1.3", "-target", "1.4"}},
    {.name = "Java5", .version = 49, .options = {"-1.5"}},
    {.name = "Java6", .version = 50, .options = {"-1.6", "-proc:none"}},
    {.name = "Java7", .version = 51, .options = {"-1.7", "-proc:none"}},
    {.name = "Java8", .version = 52, .options = {}},
};

// Code with branches that fit into 16 bits as it is and, because of what is put before the returns between them and
// their targets, do not when it is rewritten. A conditional one that grows lands on an instruction that has no stack
// map frame, which only versions without stack maps allow.
std::string source_of_far_branches(unsigned version) {
    std::string returns;
    std::string fewer_returns;
    for (int i = 0; i < 2400; ++i) {
        returns += "if (x == " + std::to_string(1000 + i) + ") return " + std::to_string(2000 + i) + ";\n";
        if (i == 1900) {
            fewer_returns = returns;
        }
    }
    std::string methods = "static int backwards(int x) { int rounds = 0; while (true) {\nif (x == 0) return rounds;\n" +
                          returns + "rounds++; x--; switch (x) { case 2: case 3: x--; break; case 90: x = 4; } } }\n";
    std::string calls = "backwards(x)";
    if (version < 50) {
        methods += "static int forwards(int x) { int result; if (x > 5) {\n" + returns +
                   "result = 1; } else { result = 2; } return result; }\n"
                   "static int repeats(int x) { int rounds = 0; do {\n" +
                   returns + "rounds++; } while (--x > 0); return rounds; }\n";
        calls += " + forwards(x) + repeats(x)";
    }
    if (version < 49) {  // later compilers have no subroutines, their copies make the method too long
        methods += "static int subroutine(int x) { try {\n" + fewer_returns + "} finally { done++; } return done; }\n";
        calls += " + subroutine(x)";
    }
    return "public class FarBranches { static int done;\n" + methods +
           "public static void main(String[] a) { for (int x = 0; x < 3200; x += x < 20 ? 9 : 1277) {\n"
           "System.out.println(\"\" + " +
           std::regex_replace(calls, std::regex(" \\+ "), " + \" \" + ") + "); } System.out.println(done); } }\n";
}

class OldVersions : public testing::TestWithParam<Kind> {
  protected:
    void compile(const fs::path& source) const {
        const fs::path jdk = *find_jdk(17);
        const Arguments ecj{jdk / "bin" / "java", "-cp", installed_jar("eclipse-jdt-core.jar"),
                            "org.eclipse.jdt.internal.compiler.batch.Main", "-nowarn"};
        const Arguments javac{jdk / "bin" / "javac", "-Xlint:-options", "--release", "8"};
        const Finished compiling = run((GetParam().options.empty() ? javac : ecj + GetParam().options) +
                                       Arguments{"-d", classes_.path, source});
        ASSERT_EQ(compiling.status, 0) << compiling.out << compiling.err;
    }

    // Runs one of the compiled classes on each VM.
    void expect_same(const std::string& name) const {
        std::ifstream file(classes_.path / (name + ".class"), std::ios::binary);
        char header[8];
        file.read(header, sizeof header);
        EXPECT_EQ(header[7], GetParam().version);
        for (const int release : kReleases) {
            if (!find_jdk(release)) {
                continue;
            }
            const Tracked tracked = run_both_ways(release, {"-cp", classes_.path, name});
            EXPECT_EQ(tracked.plain.status, 0) << tracked.plain.err;
            expect_same_and_balanced(tracked);
            EXPECT_EQ(tracked.report.classes, 1);
        }
    }

    [[nodiscard]] std::string disassembled(const std::string& name) const {
        return run({*find_jdk(17) / "bin" / "javap", "-c", "-p", classes_.path / (name + ".class")}).out;
    }

    // Beside the class, under a name of its own.
    void rewrite_file(const std::string& name, const std::string& new_name) const {
        std::ifstream in(classes_.path / (name + ".class"), std::ios::binary);
        const ClassImage image{std::istreambuf_iterator<char>(in), {}};
        const ClassImage rewritten = rewrite(image, {});
        std::ofstream out(classes_.path / (new_name + ".class"), std::ios::binary);
        std::copy(rewritten.begin(), rewritten.end(), std::ostreambuf_iterator<char>(out));
    }

    ScratchFolder classes_;
};
INSTANTIATE_TEST_SUITE_P(Of, OldVersions, testing::ValuesIn(kKinds),
                         [](const auto& kind) { return std::string(kind.param.name); });

TEST_P(OldVersions, RunAsBefore) {
    SKIP_WITHOUT_JDK(17);
    ASSERT_NO_FATAL_FAILURE(compile(fs::path(VANTREL_SOURCE_FOLDER) / "tests/rewriter_real/old_java/OldCode.java"));
    EXPECT_EQ(disassembled("OldCode").find(": jsr ") != std::string::npos, GetParam().version <= 48);
    expect_same("OldCode");
}

// The newest version with subroutines, one with neither those nor stack maps, one whose stack maps need not hold, and
// one whose have to.
class FarBranches : public OldVersions {};
INSTANTIATE_TEST_SUITE_P(Of, FarBranches, testing::Values(kKinds[3], kKinds[4], kKinds[5], kKinds[7]),
                         [](const auto& kind) { return std::string(kind.param.name); });

TEST_P(FarBranches, ThatNoLongerFitRunAsBefore) {
    SKIP_WITHOUT_JDK(17);
    const fs::path source = classes_.path / "FarBranches.java";
    std::ofstream(source) << source_of_far_branches(GetParam().version);
    ASSERT_NO_FATAL_FAILURE(compile(source));
    rewrite_file("FarBranches", "Rewritten");
    const std::string before = disassembled("FarBranches");
    const std::string after = disassembled("Rewritten");
    for (const char* wide : {"goto_w", "jsr_w"}) {
        EXPECT_THAT(before, Not(HasSubstr(wide)));
    }
    EXPECT_THAT(after, HasSubstr("goto_w"));
    EXPECT_EQ(after.find("jsr_w") != std::string::npos, GetParam().version <= 48);
    expect_same("FarBranches");
}

}  // namespace
