// What programs tell that vantrel-rewrite has made count themselves, on VMs that verify all that they load.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <string>

#include "java_vm.h"
#include "tool_kit.h"

using testing::HasSubstr;
using testing::MatchesRegex;
using testing::SizeIs;
using testing::StartsWith;

namespace fs = std::filesystem;

namespace {

// The table by class, method, descriptor and jar: calls, returns, unreturned, arrays. All with tabs between them.
using Table = std::map<std::string, std::string>;

Table table_in(const fs::path& file) {
    Table table;
    for (const std::string& line : lines_of(contents(file))) {
        if (!line.starts_with('#')) {
            size_t names = 0;
            for (int column = 0; column < 4; ++column) {
                names = line.find('\t', names) + 1;
            }
            table[line.substr(names)] = line.substr(0, names - 1);
        }
    }
    return table;
}

class Count : public OnEachJdk {
  public:
    void do_well(const Words& command) const {
        const Finished done = run_in(scratch.path, command);
        ASSERT_EQ(done.status, 0) << done.out << done.err;
        ASSERT_EQ(done.err, "");
    }
    void rewrite(const Words& arguments) const { do_well(Words{kRewrite} + arguments); }

    // Compiles one of the programs into a folder, and makes a jar of it that names its main class, if it has any.
    void make_program(const std::string& name, const std::string& main, const Words& options = {}) const {
        const fs::path sources =
            fs::path(VANTREL_REWRITE_MANUAL).parent_path().parent_path() / "tests/tools/java/count";
        Words javac{tool("javac"), "-Xlint:all,-options,-module", "-Werror", "--release", "17", "-d", name};
        javac.push_back(sources / name / (main + ".java"));
        if (fs::exists(scratch.path / name / "module-info.java")) {
            javac.push_back(name + "/module-info.java");
        }
        ASSERT_NO_FATAL_FAILURE(do_well(javac + options));
        do_well({tool("jar"), "cfe", name + ".jar", name + "." + main, "-C", name, "."});
    }
    void make_busy() const { make_program("busy", "Busy"); }

    Finished java(const Words& arguments) const {
        return run_in(scratch.path, Words{tool("java"), "-Xverify:all", "-Dvantrel.count.file=table"} + arguments);
    }
    Table table() const { return table_in(scratch.path / "table"); }

    const ScratchFolder scratch;
};
ON_EACH_JDK(Count);

std::string busy(const std::string& method, const std::string& from = "busy.jar") {
    return "busy/Busy\t" + method + '\t' + from;
}
std::string other(const std::string& method, const std::string& from = "other.jar") {
    return "other/Other\t" + method + '\t' + from;
}

TEST_P(Count, TellsCallsReturnsAndArraysAndWhatNeverRan) {
    ASSERT_NO_FATAL_FAILURE(make_busy());
    ASSERT_NO_FATAL_FAILURE(rewrite({"--count", "--unused", "-o", "out.jar", "busy.jar"}));
    const Finished program = java({"-jar", "out.jar", "steps", "arrays", "fail", "exit"});
    EXPECT_EQ(program.status, 3);
    EXPECT_EQ(program.out, "failed\n");
    EXPECT_EQ(program.err, "vantrel-count: 5 of 13 methods ran: " + (scratch.path / "table").string() + "\n");
    Table all = table();
    EXPECT_EQ(all[busy("steps\t(I)V")], "1\t1\t0\t0");
    EXPECT_EQ(all[busy("arrays\t(I)[[I")], "1\t1\t0\t4");
    EXPECT_EQ(all[busy("fail\t()V")], "1\t0\t1\t0");
    EXPECT_EQ(all[busy("main\t([Ljava/lang/String;)V")], "1\t0\t1\t0");
    EXPECT_EQ(all[busy("never\t()V")], "0\t0\t0\t0");
    EXPECT_THAT(all, SizeIs(13)) << "native and abstract methods cannot run";
    // The most called come first.
    EXPECT_THAT(contents(scratch.path / "table"),
                StartsWith("# 5 of 13 methods ran\n"
                           "# calls\treturns\tunreturned\tarrays\tclass\tmethod\tdescriptor\tfrom\n"
                           "7\t7\t0\t0\tbusy/Busy\tstep\t()V\tbusy.jar\n"));
}

TEST_P(Count, MissesNoneOnAnyThread) {
    ASSERT_NO_FATAL_FAILURE(make_busy());
    ASSERT_NO_FATAL_FAILURE(rewrite({"--count", "-o", "out.jar", "busy.jar"}));
    const bool has_virtual_threads = GetParam() >= 21;
    const Finished program = java({"-jar", "out.jar", "threads", has_virtual_threads ? "virtual" : "steps", "throw"});
    EXPECT_EQ(program.status, 1);
    EXPECT_THAT(program.err, HasSubstr("IllegalStateException: thrown"));
    const std::string steps = std::to_string(8 * 50'000 + 300 * 10 + (has_virtual_threads ? 2'000 * 100 : 7));
    EXPECT_EQ(table()[busy("step\t()V")], steps + '\t' + steps + "\t0\t0");
}

// The thread that counts most is found in another way than others, also when its counters have grown: by many classes,
// and by a late method of the first one.
TEST_P(Count, MissesNoneWhileItGrows) {
    std::string classes;
    std::string calls;
    for (char letter = 'A'; letter <= 'P'; ++letter) {
        const std::string name = std::string("Letter") + letter;
        classes += "class " + name + " { static void call() {} }\n";
        calls += name + ".call(); ";
    }
    write(scratch.path / "Early.java",
          "class Early {\n"
          "    public static void main(String[] words) { often(); " +
              calls +
              "last(); often(); }\n"
              "    static void often() { for (int i = 0; i < 10_000; ++i) first(); }\n"
              "    static void first() {}\n"
              "    static void second() {}\n"
              "    static void third() {}\n"
              "    static void fourth() {}\n"
              "    static void last() {}\n"
              "}\n" +
              classes);
    ASSERT_NO_FATAL_FAILURE(do_well({tool("javac"), "--release", "17", "-d", "growing", "Early.java"}));
    // A folder's classes are counted in the order of their names.
    ASSERT_NO_FATAL_FAILURE(rewrite({"--count", "-o", "out", "growing"}));
    EXPECT_EQ(java({"-cp", "out", "Early"}).status, 0);
    Table all = table();
    EXPECT_EQ(all["Early\tfirst\t()V\tgrowing"], "20000\t20000\t0\t0");
    EXPECT_EQ(all["Early\tlast\t()V\tgrowing"], "1\t1\t0\t0");
}

// The first table says that main has not returned. The daemon counts on meanwhile and at the end.
TEST_P(Count, IsToldWhenAFileAsks) {
    ASSERT_NO_FATAL_FAILURE(make_busy());
    ASSERT_NO_FATAL_FAILURE(rewrite({"--count", "-o", "out.jar", "busy.jar"}));
    write(scratch.path / "gate", "");
    const Finished script =
        run_in(scratch.path, {"bash", "-ec",
                              "'" + tool("java").string() +
                                  "' -Dvantrel.count.file=table -jar out.jar daemon gate &"
                                  "touch table.now; while [ -e table.now ]; do sleep 0.05; done; mv table early;"
                                  "rm gate; wait $!"});
    EXPECT_EQ(script.status, 0) << script.err;
    EXPECT_EQ(table_in(scratch.path / "early")[busy("main\t([Ljava/lang/String;)V")], "1\t0\t1\t0");
    EXPECT_EQ(table()[busy("main\t([Ljava/lang/String;)V")], "1\t1\t0\t0");
}

// Classes of both jars have the number 0. One of the jars is loaded twice.
TEST_P(Count, TellsJarsFromEachOther) {
    ASSERT_NO_FATAL_FAILURE(make_busy());
    ASSERT_NO_FATAL_FAILURE(make_program("other", "Other", {"-cp", "busy.jar"}));
    fs::create_directory(scratch.path / "out");
    ASSERT_NO_FATAL_FAILURE(rewrite({"--count", "-o", "out", "busy.jar"}));
    ASSERT_NO_FATAL_FAILURE(rewrite({"--unused", "-o", "out", "other.jar"}));
    const Finished program = java({"-cp", "out/other.jar", "other.Other", "out/busy.jar"});
    EXPECT_EQ(program.status, 0);
    EXPECT_THAT(lines_of(program.err), SizeIs(1)) << program.err;
    Table all = table();
    const std::string steps = std::to_string(2 * (7 + 8 * 50'000 + 300 * 10));
    EXPECT_EQ(all[busy("step\t()V")], steps + '\t' + steps + "\t0\t0");
    EXPECT_EQ(all[busy("main\t([Ljava/lang/String;)V")], "2\t2\t0\t0");
    EXPECT_EQ(all.count(busy("never\t()V")), 0) << "nobody asked for it";
    EXPECT_EQ(all[other("idle\t()V")], "0\t0\t0\t0");
    EXPECT_EQ(all.count(other("main\t([Ljava/lang/String;)V")), 0);

    fs::remove(scratch.path / "table");
    // Now only what has been loaded by class loaders that are closed at the end.
    EXPECT_EQ(java({"-cp", "other.jar", "other.Other", "out/busy.jar"}).status, 0);
    EXPECT_EQ(table()[busy("step\t()V")], steps + '\t' + steps + "\t0\t0");
}

// A module has no packages but those that its jar's tool has written down.
TEST_P(Count, IsAtHomeInModules) {
    write(scratch.path / "busy/module-info.java", "module busy { exports busy; }");
    write(scratch.path / "other/module-info.java", "module other { requires busy; }");
    ASSERT_NO_FATAL_FAILURE(make_busy());
    ASSERT_NO_FATAL_FAILURE(make_program("other", "Other", {"-p", "busy.jar"}));
    ASSERT_NO_FATAL_FAILURE(rewrite({"--count", "-o", "out", "busy.jar", "other.jar"}));
    const Finished program = java({"-p", "out", "-m", "other/other.Other", "steps"});
    EXPECT_EQ(program.status, 0) << program.err;
    Table all = table();
    EXPECT_EQ(all[busy("step\t()V")], "7\t7\t0\t0");
    EXPECT_EQ(all[other("main\t([Ljava/lang/String;)V")], "1\t1\t0\t0");
}

// Each place has all that it needs, wherever it is taken from; a jar and the folder that it was made of are alike.
TEST_P(Count, GoesWhereClassesAreLoadedFrom) {
    ASSERT_NO_FATAL_FAILURE(make_busy());
    ASSERT_NO_FATAL_FAILURE(make_program("other", "Other", {"-cp", "busy.jar"}));
    const auto& folder = scratch.path;
    fs::create_directories(folder / "app/BOOT-INF/classes");
    fs::create_directories(folder / "app/BOOT-INF/lib");
    fs::copy(folder / "other", folder / "app/BOOT-INF/classes", fs::copy_options::recursive);
    fs::copy_file(folder / "busy.jar", folder / "app/BOOT-INF/lib/busy.jar");
    write(folder / "app/templates/Busy.class", contents(folder / "busy/busy/Busy.class"));
    ASSERT_NO_FATAL_FAILURE(do_well({tool("jar"), "cf0", "app.jar", "-C", "app", "."}));
    for (const std::string input : {"app", "app.jar"}) {
        const Finished done = run_in(folder, {kRewrite, "--count", "-o", "out", input});
        EXPECT_EQ(done.out, "4 classes: 3 rewritten, 0 too new, 0 failed, 1 kept\n");
        EXPECT_THAT(done.err, HasSubstr("templates/Busy.class: not rewritten: its file is not named like the class"));
        if (input == "app.jar") {
            fs::rename(folder / "out", folder / "out.jar");
            fs::create_directory(folder / "out");
            ASSERT_NO_FATAL_FAILURE(do_well({"unzip", "-q", "-d", "out", "out.jar"}));
        }
        const Finished program =
            java({"-cp", "out/BOOT-INF/classes:out/BOOT-INF/lib/busy.jar", "other.Other", "steps"});
        EXPECT_EQ(program.status, 0) << program.err;
        Table all = table();
        EXPECT_EQ(all[busy("step\t()V", input + "/BOOT-INF/lib/busy.jar")], "7\t7\t0\t0");
        EXPECT_EQ(all[other("main\t([Ljava/lang/String;)V", input + "/BOOT-INF/classes")], "1\t1\t0\t0");
        // A class loader of the program's may define the classes, and leave all others to its parent.
        fs::remove_all(folder / "out/BOOT-INF/classes/com");
        EXPECT_EQ(java({"-cp", "out/BOOT-INF/classes:out/BOOT-INF/lib/busy.jar:out", "other.Other", "exit"}).status, 3);
        fs::remove_all(folder / "out");
    }
}

TEST_P(Count, SaysWhereTheTableIsOrWhyThereIsNone) {
    ASSERT_NO_FATAL_FAILURE(make_busy());
    ASSERT_NO_FATAL_FAILURE(rewrite({"--count", "-o", "out.jar", "busy.jar"}));
    const Finished lost = run_in(scratch.path, {tool("java"), "-Dvantrel.count.file=none/table", "-jar", "out.jar"});
    EXPECT_EQ(lost.status, 0);
    EXPECT_THAT(lost.err,
                MatchesRegex("vantrel-count: cannot write the table: .*/none/table.[0-9]+.part \\(No such file or "
                             "directory\\); name another file with -Dvantrel.count.file=FILE\n"));
    fs::remove_all(scratch.path / "busy");
    const auto before = names_in(scratch.path);
    const Finished usual = run_in(scratch.path, {tool("java"), "-jar", "out.jar"});
    EXPECT_THAT(usual.err, MatchesRegex("vantrel-count: 1 of 13 methods ran: .*/vantrel-count-[0-9]+.txt\n"));
    EXPECT_THAT(names_in(scratch.path), SizeIs(before.size() + 1));
}

// It is one result, the same each time, and not counted again.
TEST_P(Count, IsAddedOnce) {
    ASSERT_NO_FATAL_FAILURE(make_busy());
    ASSERT_NO_FATAL_FAILURE(rewrite({"--count", "-o", "out.jar", "busy.jar"}));
    ASSERT_NO_FATAL_FAILURE(rewrite({"--count", "-j", "1", "-o", "again.jar", "busy.jar"}));
    EXPECT_EQ(contents(scratch.path / "out.jar"), contents(scratch.path / "again.jar"));
    const Finished refused = run_in(scratch.path, {kRewrite, "--unused", "-o", "out.jar", "out.jar"});
    EXPECT_EQ(refused.status, 2);
    EXPECT_EQ(refused.err,
              "vantrel-rewrite: out.jar is a result of --count or --unused already; give what it was made "
              "of\n");
    EXPECT_EQ(contents(scratch.path / "out.jar"), contents(scratch.path / "again.jar"));
}

}  // namespace
