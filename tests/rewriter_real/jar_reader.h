// Class files out of jars.
#ifndef VANTREL_JAR_READER_H
#define VANTREL_JAR_READER_H

#include <filesystem>
#include <functional>
#include <string>

#include "rewriting.h"

// Calls `take` for each class in a jar, in the jar's order. Fails the test where there is no readable jar.
void each_class(const std::filesystem::path& jar,
                const std::function<void(const std::string& name, const ClassImage& image)>& take);

#endif
