// Somebody else's program in C++, which uses the agent's library: generator, rewriter, and helpers for agents.
#include <CodeGenerater.h>
#include <agent_util.h>
#include <java_crw_demo.h>
#include <vantrel_rewriter.h>

#include <iostream>
#include <string>

int main() {
    char name[kClassNameSize] = "";
    GetSimpleName("java/awt/Container", name, sizeof name);
    char list[] = "java/awt/*";
    char class_name[] = "java/awt/Container";
    char method[] = "add";
    std::cout << name << ", " << (covered_by_list(list, class_name, method) != 0 ? "covered" : "not covered")
              << ", class files up to " << vantrel_rewriter_newest_class_file_version() << "\n";
}
