// The files that are there already where a proxy is to be written.
#ifndef VANTREL_GENERATE_PRESENT_FILES_H
#define VANTREL_GENERATE_PRESENT_FILES_H

#include <CodeGenerater/generator.h>

#include <filesystem>
#include <string>

namespace generate {

// Why the two files must not be replaced by those of a proxy: they are another class's, or no proxy's at all. An empty
// text where nothing is in the way. A header alone does not tell the package of its class.
std::string not_to_be_replaced(const generator::Proxy& proxy, const std::filesystem::path& header,
                               const std::filesystem::path& body);

}  // namespace generate

#endif
