#include "jars.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

const fs::path kFolder = "/usr/share/java";

}  // namespace

fs::path installed_jar(const std::string& name) {
    fs::path file = kFolder / name;
    EXPECT_TRUE(fs::exists(file)) << file << " is missing; scripts/setup installs it";
    return file;
}

std::vector<fs::path> usual_jars() {
    std::vector<fs::path> jars;
    for (const char* name : {"ant.jar", "commons-collections4.jar", "commons-lang3.jar", "groovy.jar", "guava.jar",
                             "jython.jar", "batik-all.jar", "xalan2.jar", "xercesImpl.jar"}) {
        jars.push_back(installed_jar(name));
    }
    return jars;
}
