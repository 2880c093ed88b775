// The texts of a proxy's two files, and both files together.
#ifndef VANTREL_WRITERS_H
#define VANTREL_WRITERS_H

#include <string>

#include "entities.h"

namespace generator {

// Writes the header and the body of a proxy, as WriteHeaderFile and WriteCPPFile do, but both or none: a header is of
// no use with another run's body. Returns what went wrong, an empty text where nothing did.
std::string write_proxy(const std::string& header_path, const std::string& body_path, const char* internal_name,
                        const ClassEntities& entities);

}  // namespace generator

#endif
