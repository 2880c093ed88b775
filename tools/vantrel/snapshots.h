// Snapshots of all properties of a program's components, as `vantrel snapshot` writes them; Snapshots.java makes them.
#ifndef VANTREL_SNAPSHOTS_H
#define VANTREL_SNAPSHOTS_H

#include <filesystem>
#include <string>

namespace outside {

// What has changed from one snapshot to another, in lines for people: components that are gone (-) or new (+), and
// below the path of each component that has changed its properties with the value before and after. Empty if nothing
// has. Throws Failure if one of the files is no snapshot.
std::string difference(const std::filesystem::path& before, const std::filesystem::path& after);

}  // namespace outside

#endif
