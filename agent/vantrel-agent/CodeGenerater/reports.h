// What the generator says on stderr.
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

// Says that the generator goes on without a member.
inline void report_left_out(const std::string& class_name, const char* member, const char* descriptor,
                            const char* reason) {
    report("left out " + class_name + "." + member + " " + descriptor + ": " + reason);
}

}  // namespace generator

#endif
