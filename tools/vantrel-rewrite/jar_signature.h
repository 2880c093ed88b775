// Signed jars: a rewritten class no longer matches its signature, so the jar must come out as an unsigned one.
#ifndef VANTREL_REWRITE_JAR_SIGNATURE_H
#define VANTREL_REWRITE_JAR_SIGNATURE_H

#include <string>
#include <string_view>

namespace vantrel_rewrite {

// Whether an entry is part of a signature, by its name: META-INF/*.SF, *.RSA, *.DSA, *.EC, META-INF/SIG-*.
bool is_signature_file(std::string_view entry);

bool is_manifest(std::string_view entry);

// A manifest without the digests of entries, and without the sections of entries that hold nothing else. All else
// stays as it is, byte for byte.
std::string without_digests(std::string_view manifest);

}  // namespace vantrel_rewrite

#endif
