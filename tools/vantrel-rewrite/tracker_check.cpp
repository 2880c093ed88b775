#include "tracker_check.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <set>
#include <sstream>
#include <vector>

#include "class_file.h"
#include "failure.h"
#include "file_io.h"
#include "input_kind.h"
#include "packed_entry.h"
#include "zip_directory.h"

namespace fs = std::filesystem;

namespace vantrel_rewrite {

namespace {

[[noreturn]] void fail(const std::string& what) {
    throw command::Failure{"--tracker-path: " + what};
}

std::string with_dots(std::string name) {
    std::replace(name.begin(), name.end(), '/', '.');
    return name;
}

// A class's image from a folder or a jar. Nothing if it is not there.
std::optional<Bytes> find_class(const fs::path& place, const std::string& name) {
    const fs::file_status status = status_of(place);
    if (!fs::exists(status)) {
        fail("there is no " + place.string());
    }
    if (fs::is_directory(status)) {
        const fs::path file = place / (name + ".class");
        return fs::exists(status_of(file)) ? std::optional(read_file(file)) : std::nullopt;
    }
    const InputFile file(place);
    const ArchiveBytes bytes(file);
    const ZipDirectory directory = read_zip_directory(bytes, place);
    const auto entry = std::find_if(directory.entries.begin(), directory.entries.end(),
                                    [&](const ZipEntry& each) { return each.name == name + ".class"; });
    return entry == directory.entries.end() ? std::nullopt : std::optional(read_entry(bytes, *entry, place));
}

// The outline of a class, from the first place of a class path that has it.
std::optional<ClassFile> load(const std::string& path, const std::string& name) {
    std::istringstream places(path);
    for (std::string place; std::getline(places, place, ':');) {
        if (const auto image = find_class(place.empty() ? "." : place, name)) {
            try {
                return read_class_file(*image);
            } catch (const Malformed& malformed) {
                fail(with_dots(name) + " in " + place + " is no class: " + malformed.reason);
            }
        }
    }
    return std::nullopt;
}

// Fails unless the tracker, or a class that it extends, has this method, public and static. The message tells what is
// nearest to it.
void check_method(const std::string& path, const ClassFile& tracker, const std::string& tracker_name,
                  const std::string& name, const std::string& descriptor) {
    std::string others;
    std::set<std::string> seen;  // a class that extends itself has no end of super classes
    for (std::optional<ClassFile> type = tracker; type && seen.insert(type->name).second;
         type = load(path, type->super_name)) {
        for (const ClassFile::Method& method : type->methods) {
            if (method.name != name) {
                continue;
            }
            if (method.descriptor != descriptor) {
                others += (others.empty() ? "; there is " : ", ") + method.name + method.descriptor;
                continue;
            }
            for (const auto& [flag, word] : {std::pair(kStatic, "static"), std::pair(kPublic, "public")}) {
                if ((method.access & flag) == 0) {
                    fail("the method " + name + descriptor + " of " + tracker_name + " is not " + word);
                }
            }
            return;
        }
    }
    fail(tracker_name + " has no method " + name + descriptor + others);
}

}  // namespace

void check_tracker(const std::string& path, const TrackerCalls& calls) {
    const std::string name = with_dots(calls.file_name);
    const std::optional<ClassFile> tracker = load(path, calls.file_name);
    if (!tracker) {
        fail("there is no class " + name + " in " + path);
    }
    if (tracker->name != calls.class_name) {
        fail("the class in the place of " + name + " is " + with_dots(tracker->name));
    }
    if ((tracker->access & kInterface) != 0) {
        fail(name + " is an interface; the tracker must be a class");
    }
    if ((tracker->access & kPublic) == 0) {
        fail(name + " is not public");
    }
    for (const auto& [method, descriptor] :
         {std::pair(&calls.call, kNumbersDescriptor), std::pair(&calls.return_, kNumbersDescriptor),
          std::pair(&calls.object_init, kObjectDescriptor), std::pair(&calls.new_array, kObjectDescriptor)}) {
        if (*method) {
            check_method(path, *tracker, name, **method, descriptor);
        }
    }
}

}  // namespace vantrel_rewrite
