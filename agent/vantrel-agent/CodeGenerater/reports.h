// What the exported functions say on stderr.
#ifndef VANTREL_REPORTS_H
#define VANTREL_REPORTS_H

#include <cstdio>
#include <string>

namespace generator {

// Prints `fault` on stderr unless it is empty. Returns true if it is empty, that is, if nothing went wrong.
inline bool report(const std::string& fault) {
    if (!fault.empty()) {
        fprintf(stderr, "CodeGenerater: %s\n", fault.c_str());
    }
    return fault.empty();
}

}  // namespace generator

#endif
