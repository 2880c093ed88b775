// What the exported functions say on stderr.
#ifndef VANTREL_REPORTS_H
#define VANTREL_REPORTS_H

#include <cstdio>
#include <string>

namespace generator {

// Says what went wrong, if anything did. True where nothing did, with an empty text.
inline bool report(const std::string& fault) {
    if (!fault.empty()) {
        fprintf(stderr, "CodeGenerater: %s\n", fault.c_str());
    }
    return fault.empty();
}

}  // namespace generator

#endif
