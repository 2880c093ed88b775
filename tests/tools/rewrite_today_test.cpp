// Programs of today that vantrel-rewrite has rewritten, and a JDK's own classes, in VMs that verify all that they load.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "java_vm.h"
#include "tool_kit.h"

using testing::HasSubstr;
using testing::MatchesRegex;

namespace fs = std::filesystem;

namespace {

class Today : public OnEachJdk {
  public:
    static Words java(const Words& arguments) {
        Words command{tool("java"), "-Xverify:all"};
        command.insert(command.end(), arguments.begin(), arguments.end());
        return command;
    }

    void compile(const Words& arguments) const {
        Words command{tool("javac"), "-Xlint:all", "-Werror"};
        command.insert(command.end(), arguments.begin(), arguments.end());
        const Finished javac = run_in(scratch.path, command);
        ASSERT_EQ(javac.status, 0) << javac.out << javac.err;
    }

    const ScratchFolder scratch;
};
ON_EACH_JDK(Today);

// A fenced part of the manual: the one that begins with some text.
std::string part_of_manual(const std::string& begin) {
    const std::string manual = contents(VANTREL_REWRITE_MANUAL);
    const size_t from = manual.find(begin);
    EXPECT_NE(from, std::string::npos) << begin;
    return manual.substr(from, manual.find("```", from) - from);
}

// Records, lambdas, texts joined by the VM, switches on types: compiled for the VM that runs them, with a module-info.
TEST_P(Today, ProgramSaysTheSameAndIsCounted) {
    write(scratch.path / "Tracker.java", part_of_manual("package com.x;\n\nimport"));
    ASSERT_NO_FATAL_FAILURE(compile({"-d", "tracker", "Tracker.java"}));
    const std::string program = fs::path(VANTREL_REWRITE_MANUAL).parent_path().parent_path() / "tests/tools/java";
    ASSERT_NO_FATAL_FAILURE(compile({"-g", "--release", std::to_string(GetParam()), "-d", "program",
                                     program + "/today/Today.java", program + "/today/module-info.java"}));
    ASSERT_EQ(run_in(scratch.path, {tool("jar"), "cfe", "program.jar", "today.Today", "-C", "program", "."}).status, 0);
    const Finished plain = run_in(scratch.path, java({"-jar", "program.jar"}));
    ASSERT_EQ(plain.status, 0) << plain.err;

    const Finished done =
        rewrite({"--return", "left", "--new-array", "made", "-o", "tracked.jar", "program.jar"}, scratch.path);
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.err, "");
    EXPECT_THAT(done.out, MatchesRegex("[0-9]+ classes: [0-9]+ rewritten, 0 too new, 0 failed, 1 module-info\n"));
    const Finished tracked = run_in(scratch.path, java({"-cp", "tracked.jar:tracker", "today.Today"}));
    EXPECT_EQ(tracked.status, 0);
    EXPECT_EQ(tracked.out, plain.out);
    // main, a lambda, 4 shapes made (1 of which fails), 4 components read, 2 texts, 1 comparison, 2 sizes and 2 names
    // found, and 4 calls that set the enum up. The older compiler has a class of its own for the switch, with an array,
    // which calls values().
    EXPECT_EQ(tracked.err, GetParam() == 17 ? "23 calls, 22 returns, 3 arrays\n" : "21 calls, 20 returns, 2 arrays\n");
}

// Which of its classes a jar gives to a VM is the VM's to say, before and after.
TEST_P(Today, JarForSeveralReleasesIsOne) {
    for (const std::string release : {"11", "17"}) {
        write(scratch.path / release / "Which.java",
              "class Which { public static void main(String[] arguments) { System.out.println(" + release + "); } }");
        ASSERT_NO_FATAL_FAILURE(compile({"--release", release, "-d", "for" + release, release + "/Which.java"}));
    }
    ASSERT_EQ(run_in(scratch.path,
                     {tool("jar"), "cfe", "in.jar", "Which", "-C", "for11", ".", "--release", "17", "-C", "for17", "."})
                  .status,
              0);
    EXPECT_EQ(rewrite({"-o", "out.jar", "in.jar"}, scratch.path).out, "2 classes: 2 rewritten, 0 too new, 0 failed\n");
    write(scratch.path / "Tracker.java", part_of_manual("package com.x;\n\nimport"));
    ASSERT_NO_FATAL_FAILURE(compile({"-d", "tracker", "Tracker.java"}));
    const Finished program = run_in(scratch.path, java({"-cp", "out.jar:tracker", "Which"}));
    EXPECT_EQ(program.out, "17\n");
    EXPECT_EQ(program.err, "1 calls, 0 returns, 0 arrays\n");
}

// The manual's words, in a shell. The source launcher has the compiler run on the classes.
TEST_P(Today, VmRunsOnItsOwnClassesRewritten) {
    write(scratch.path / "BaseTracker.java", part_of_manual("package com.x;\n\npublic final class BaseTracker"));
    write(scratch.path / "Counted.java",
          "class Counted {\n"
          "    public static void main(String[] arguments) throws Exception {\n"
          "        long calls = Class.forName(\"com.x.BaseTracker\").getField(\"calls\").getLong(null);\n"
          "        System.out.println(calls > 1_000_000 ? \"many\" : \"few: \" + calls);\n"
          "    }\n"
          "}\n");
    const std::string path = kRewrite.parent_path().string() + ":/usr/bin:/bin";
    const Finished done =
        run({"bash", "-ec", part_of_manual("\"$JAVA_HOME/bin/jimage\"")},
            {.folder = scratch.path, .environment = {"PATH=" + path, "JAVA_HOME=" + find_jdk(GetParam())->string()}});
    EXPECT_EQ(done.status, 0);
    EXPECT_THAT(done.err, HasSubstr("java/lang/Object.class: not rewritten: no VM would start with a method added"));
    EXPECT_THAT(done.out, MatchesRegex("[67]... classes: [67]... rewritten, 0 too new, 0 failed, 1 kept, 1 "
                                       "module-info\nmany\n"))
        << done.err;
}

// What the rule protects from, and how to have it all the same.
TEST_P(Today, VmDoesNotStartWithAnotherObject) {
    ASSERT_EQ(
        run_in(scratch.path, {tool("jimage"), "extract", "--dir", "jdk", "--include",
                              "/java.base/java/lang/Object.class", find_jdk(GetParam())->string() + "/lib/modules"})
            .status,
        0);
    const Finished done = rewrite({"--object-init", "made", "-o", "base", "jdk/java.base"}, scratch.path);
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.out, "1 class: 1 rewritten, 0 too new, 0 failed\n");
    EXPECT_EQ(done.err,
              "jdk/java.base/java/lang/Object.class: java.lang.Object has a field and a method more now, with which a "
              "HotSpot VM does not start\n");
    const Finished vm = run_in(scratch.path, {tool("java"), "--patch-module", "java.base=base", "-version"});
    EXPECT_EQ(vm.status, 1);
    EXPECT_THAT(vm.out + vm.err, HasSubstr("Incompatible definition of java.lang.Object"));
}

}  // namespace
