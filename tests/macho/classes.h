// Real class files to rewrite, out of the libraries and the JDK of this system.
#ifndef VANTREL_MACHO_CLASSES_H
#define VANTREL_MACHO_CLASSES_H

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

using ClassFile = std::vector<std::uint8_t>;

// Every n-th class file of a jar, or of a JDK's jmod, in the order in which they are there. Fails the test where the
// archive cannot be read.
std::vector<ClassFile> every_nth_class(const std::filesystem::path& archive, unsigned n);

#endif
