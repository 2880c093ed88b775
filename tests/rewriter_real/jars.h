// The Java libraries of this system that tests take class files from.
#ifndef VANTREL_JARS_H
#define VANTREL_JARS_H

#include <filesystem>
#include <vector>

// One of /usr/share/java. Fails the test when there is none: scripts/setup installs the package.
std::filesystem::path installed_jar(const std::string& name);

// Those of the packages that scripts/setup installs: versions 47 to 52, code of javac, of compilers of other languages
// and of generators.
std::vector<std::filesystem::path> usual_jars();

#endif
