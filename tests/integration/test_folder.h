// Where the build puts the jars with a test program's own Java programs.
#ifndef VANTREL_TEST_FOLDER_H
#define VANTREL_TEST_FOLDER_H

#include <filesystem>

const std::filesystem::path kTestFolder = VANTREL_TEST_FOLDER;

#endif
