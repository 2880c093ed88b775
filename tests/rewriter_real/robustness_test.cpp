// Real class files, cut off and damaged: whatever becomes of them, the rewriter stays within its images, says what is
// wrong in words of its own, and keeps nothing. The sanitizers run this too.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "jar_reader.h"
#include "jars.h"

namespace {

constexpr size_t kClasses = 200;
// Every prefix of a class is rewritten, which takes the square of its size.
constexpr size_t kSmallest = 400;
constexpr size_t kLargest = 5000;
constexpr unsigned kNewestVersion = 52;
constexpr int kDamagedPositions = 60;

struct Named {
    std::string name;
    ClassImage image;
};

// As many of each version as of the others where there are enough, spread over the jars and over the sizes.
std::vector<Named> classes_of_all_kinds() {
    std::map<unsigned, std::vector<Named>> by_version;
    for (const std::filesystem::path& jar : usual_jars()) {
        each_class(jar, [&](const std::string& name, const ClassImage& image) {
            if (class_version(image) <= kNewestVersion && image.size() >= kSmallest && image.size() <= kLargest) {
                by_version[class_version(image)].push_back({.name = name, .image = image});
            }
        });
    }
    std::vector<Named> chosen;
    size_t versions = by_version.size();
    for (auto& [version, classes] : by_version) {
        const size_t count = std::min(classes.size(), (kClasses - chosen.size()) / versions--);
        std::stable_sort(classes.begin(), classes.end(),
                         [](const Named& a, const Named& b) { return a.image.size() < b.image.size(); });
        for (size_t i = 0; i < count; ++i) {
            chosen.push_back(classes[i * classes.size() / count]);
        }
    }
    return chosen;
}

const std::vector<Named>& classes() {
    static const std::vector<Named> chosen = classes_of_all_kinds();
    return chosen;
}

// Chosen so that each injection and the constant of a large class number are there.
const Rewriting kEverything{
    .trackers = kAllTrackers, .class_number = 0x12345, .system_class = false, .name = nullptr, .method_names = {}};

// Nothing when the rewriter refuses, in which case its message is one of those that damage can lead to.
std::optional<ClassImage> try_rewriting(const ClassImage& image) {
    try {
        return rewrite(image, kEverything);
    } catch (const std::runtime_error& refusal) {
        const std::string message = refusal.what();
        const auto begins = [&](const char* text) { return message.starts_with(text); };
        EXPECT_TRUE(begins("CRW ASSERTION FAILURE: ") || begins("Unknown tag: ") || begins("Unknown frame type in ") ||
                    begins("Invalid opcode supplied to ") || begins("Ran out of malloc memory") ||
                    begins("Cannot allocate <= 0 bytes"))
            << message;
        return std::nullopt;
    }
}

TEST(Robustness, ClassesAreOfAllVersionsAndCanBeRewritten) {
    std::map<unsigned, int> by_version;
    for (const Named& named : classes()) {
        ++by_version[class_version(named.image)];
        const ClassImage rewritten = rewrite(named.image, kEverything);
        EXPECT_GT(rewritten.size(), named.image.size()) << named.name;
        EXPECT_LE(rewritten.size(), 2 * named.image.size() + 512) << named.name;
    }
    EXPECT_EQ(classes().size(), kClasses);
    for (const unsigned version : {47, 49, 50, 51, 52}) {
        EXPECT_GE(by_version[version], 10) << version;
    }
}

TEST(Robustness, NoPrefixOfAClassIsOne) {
    for (const Named& named : classes()) {
        for (size_t length = 1; length < named.image.size(); ++length) {
            // Of its own, so that a byte behind the end is found out.
            const ClassImage prefix(named.image.begin(), named.image.begin() + static_cast<ptrdiff_t>(length));
            EXPECT_EQ(try_rewriting(prefix), std::nullopt) << named.name << ", the first " << length << " bytes";
        }
    }
}

TEST(Robustness, ADamagedByteDoesNoHarm) {
    std::mt19937 random(4711);  // NOLINT(cert-msc32-c,cert-msc51-cpp): the same positions each time
    int refused = 0;
    int rewritten = 0;
    for (const Named& named : classes()) {
        const std::optional<ClassImage> whole = try_rewriting(named.image);
        std::uniform_int_distribution<size_t> position(0, named.image.size() - 1);
        for (int i = 0; i < kDamagedPositions; ++i) {
            const size_t at = position(random);
            ClassImage damaged = named.image;
            for (const unsigned char byte : {0x00, 0x7F, 0x80, 0xFF}) {
                damaged[at] = byte;
                const std::optional<ClassImage> image = try_rewriting(damaged);
                if (image) {
                    ++rewritten;
                    EXPECT_LE(image->size(), 2 * damaged.size() + 512) << named.name << " at " << at;
                } else {
                    ++refused;
                }
            }
        }
        // None of that is remembered.
        EXPECT_EQ(try_rewriting(named.image), whole) << named.name;
    }
    EXPECT_GT(refused, 0);
    EXPECT_GT(rewritten, 0);
}

}  // namespace
