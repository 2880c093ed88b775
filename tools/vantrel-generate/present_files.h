// The files that are there already where a proxy is to be written.
#ifndef VANTREL_GENERATE_PRESENT_FILES_H
#define VANTREL_GENERATE_PRESENT_FILES_H

#include <CodeGenerater/generator.h>

#include <filesystem>
#include <string>

namespace generate {

// Why the two files must not be replaced by those of a proxy: they belong to another class, or are no proxy at all. An
// empty text if they may be. Only a body tells the whole name of its class, so a header without one only has to look
// like a proxy.
std::string not_to_be_replaced(const generator::Proxy& proxy, const std::filesystem::path& header,
                               const std::filesystem::path& body);

}  // namespace generate

#endif
