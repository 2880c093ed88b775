#include "counting.h"

#include <algorithm>
#include <cctype>

#include "class_rewriter.h"
#include "count_classes.h"
#include "failure.h"
#include "packed_entry.h"
#include "zip_directory.h"

namespace vantrel_rewrite {

namespace {

// What the packages of all trackers begin with, and the one that they are compiled in: it is as long as all others, so
// that another name fits in its place.
constexpr std::string_view kPackages = "com/vantrel/count/x";
constexpr std::string_view kCompiledPackage = "com/vantrel/count/x0000000000000000";

constexpr std::string_view kClassEnd = ".class";
constexpr std::string_view kVersions = "META-INF/versions/";

// FNV-1a, of 64 bits.
constexpr std::uint64_t kHashBegin = 0xcbf29ce484222325;
std::uint64_t add_to_hash(std::uint64_t hash, std::string_view text) {
    constexpr std::uint64_t kPrime = 0x100000001b3;
    for (const char character : text) {
        hash = (hash ^ static_cast<unsigned char>(character)) * kPrime;
    }
    return hash * kPrime;  // as for a zero, which ends the text
}

std::string in_hexadecimal(std::uint64_t number) {
    constexpr int kDigits = 16;
    constexpr int kBitsOfDigit = 4;
    std::string digits(kDigits, '0');
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit, number >>= kBitsOfDigit) {
        *digit = "0123456789abcdef"[number % kDigits];
    }
    return digits;
}

bool is_number(std::string_view text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), [](unsigned char digit) { return isdigit(digit); });
}

// A place without the version that a multi-release jar has at its end: "" for "META-INF/versions/11/".
std::string_view without_version(std::string_view place) {
    const size_t versions = place.rfind(kVersions);
    if (versions == std::string_view::npos || (versions > 0 && place[versions - 1] != '/')) {
        return place;
    }
    const std::string_view version = place.substr(versions + kVersions.size());
    return version.ends_with('/') && is_number(version.substr(0, version.size() - 1)) ? place.substr(0, versions)
                                                                                      : place;
}

// The tracker's classes as they were compiled: the jar's entries whose names begin with their package.
std::vector<AddedFile> compiled_classes() {
    const ArchiveBytes archive(BytesView(kCountClasses, kCountClassesSize));
    const std::string path = "the tracker of this program";
    std::vector<AddedFile> classes;
    for (const ZipEntry& entry : read_zip_directory(archive, path).entries) {
        if (entry.name.ends_with(kClassEnd)) {
            classes.push_back({entry.name, read_entry(archive, entry, path)});
        }
    }
    return classes;
}

void replace_package(Bytes& image, std::string_view package) {
    auto at = image.begin();
    const auto next = [&] { return std::search(at, image.end(), kCompiledPackage.begin(), kCompiledPackage.end()); };
    while ((at = next()) != image.end()) {
        at = std::copy(package.begin(), package.end(), at);
    }
}

}  // namespace

std::optional<std::string> place_of(std::string_view file, std::string_view class_name) {
    const std::string own = std::string(class_name) += kClassEnd;
    if (!file.ends_with(own)) {
        return std::nullopt;
    }
    const std::string_view place = file.substr(0, file.size() - own.size());
    return place.empty() || place.ends_with('/') ? std::optional(std::string(without_version(place))) : std::nullopt;
}

Counting::Counting(const Arguments& arguments, std::string label, std::vector<std::string> files)
    : arguments_(arguments), label_(std::move(label)), class_files_(std::move(files)) {
    hash_ = add_to_hash(kHashBegin, label_);
    for (const std::string& file : class_files_) {
        if (file.find(kPackages) != std::string::npos) {
            throw command::Failure{label_ + " is a result of --count or --unused already; give what it was made of"};
        }
        hash_ = add_to_hash(hash_, file);
    }
}

std::string Counting::package_of(const std::string& place) const {
    return std::string(kPackages) += in_hexadecimal(add_to_hash(hash_, place));
}

TrackerCalls Counting::tracker_of(const std::string& place) const {
    TrackerCalls calls = arguments_.tracker;
    calls.class_name = package_of(place) + "/Calls";
    return calls;
}

bool Counting::has_classes(const std::string& place) const {
    return std::any_of(class_files_.begin(), class_files_.end(), [&](const std::string& file) {
        return file.starts_with(place) && !file.ends_with("module-info.class");
    });
}

std::vector<AddedFile> Counting::files() const {
    std::vector<AddedFile> files;
    for (const auto& [place, lines] : methods_) {
        const std::string package = package_of(place);
        const auto add = [&, &place = place](std::string name, const Bytes& contents) {
            name.insert(0, package);
            if (!place.empty()) {
                files.push_back({place + name, contents});
            }
            files.push_back({std::move(name), contents});
        };
        for (AddedFile& file : compiled_classes()) {
            replace_package(file.contents, package);
            add(file.name.substr(kCompiledPackage.size()), file.contents);
        }
        const std::string where = place.empty() ? label_ : label_ + '/' + place.substr(0, place.size() - 1);
        // count/MethodNames.java reads this.
        const std::string text = std::string(arguments_.counted.calls ? "called" : "") +
                                 (arguments_.counted.unused ? " unused\n" : "\n") + escaped(where) + '\n' + lines;
        add("/methods.gz", gzip(bytes_of(text)));
    }
    return files;
}

}  // namespace vantrel_rewrite
