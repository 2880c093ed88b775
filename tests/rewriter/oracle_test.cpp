// The rewriter against the literal one, on random classes: the same image byte for byte, or a failure in the same
// words.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "class_builder.h"
#include "java_crw_demo.h"
#include "literal_rewriter.h"
#include "random_classes.h"

namespace {

using class_builder::Bytes;
namespace op = class_builder::op;
using literal_rewriter::Layout;
using literal_rewriter::Options;
using random_classes::Random;
using random_classes::RandomClass;

struct Outcome {
    Bytes image;
    std::string failure;

    bool operator==(const Outcome&) const = default;
};

// The name of the class, the method and the pc at which an assertion failed are for people, and not compared.
std::string without_place(const std::string& message) {
    const std::size_t place = message.rfind(" (");
    const bool is_assertion = message.starts_with("CRW ASSERTION FAILURE: ") && message.ends_with(")");
    return is_assertion && place != std::string::npos ? message.substr(0, place) : message;
}

[[noreturn]] void throw_failure(const char* message, const char* /*source_file*/, int /*line*/) {
    throw std::runtime_error(message);
}

const char* chars(const std::optional<std::string>& text) {
    return text ? text->c_str() : nullptr;
}

Outcome rewrite(const Bytes& image, const Options& options) {
    // The image is copied to a block of its own, so that the sanitizers see a read past its end.
    const std::unique_ptr<unsigned char[]> input(new unsigned char[image.size()]);
    std::ranges::copy(image, input.get());
    const std::string signature = "L" + options.tracker_class + ";";
    unsigned char* new_image = nullptr;
    long new_length = 0;
    Outcome outcome;
    try {
        java_crw_demo(options.class_number, chars(options.name), input.get(), static_cast<long>(image.size()),
                      options.system_class ? 1 : 0, options.tracker_class.c_str(), signature.c_str(),
                      chars(options.call_name), "(II)V", chars(options.return_name), "(II)V",
                      chars(options.obj_init_name), "(Ljava/lang/Object;)V", chars(options.newarray_name),
                      "(Ljava/lang/Object;)V", &new_image, &new_length, throw_failure, nullptr);
    } catch (const std::runtime_error& failure) {
        outcome.failure = without_place(failure.what());
    }
    outcome.image.assign(new_image, new_image + new_length);
    std::free(new_image);
    return outcome;
}

Outcome rewrite_literally(const Bytes& image, const Options& options) {
    const literal_rewriter::Result result = literal_rewriter::rewrite(image, options);
    return {result.image, without_place(result.failure)};
}

std::string difference(const Outcome& rewriter, const Outcome& literal) {
    if (rewriter.failure != literal.failure) {
        return "failures: '" + rewriter.failure + "', literally '" + literal.failure + "'";
    }
    const auto [ours, theirs] = std::ranges::mismatch(rewriter.image, literal.image);
    return "images of " + std::to_string(rewriter.image.size()) + " bytes, literally " +
           std::to_string(literal.image.size()) + ", that differ from byte " +
           std::to_string(ours - rewriter.image.begin()) + " on";
}

// java.lang.Object's rewrite says so on standard output, which would drown everything else. Failures of the test would
// be lost too: they are kept in a tally and told afterwards.
struct QuietOutput {
    QuietOutput() { testing::internal::CaptureStdout(); }
    ~QuietOutput() { testing::internal::GetCapturedStdout(); }
    QuietOutput(const QuietOutput&) = delete;
    QuietOutput& operator=(const QuietOutput&) = delete;
};

struct Tally {
    std::size_t methods = 0;
    std::size_t images = 0;
    std::size_t widened = 0;      // branches
    std::size_t repadded = 0;     // switches
    std::size_t not_minimal = 0;  // methods in which another set of branches would have done
    std::map<std::string, std::size_t> failures;
    std::string problem;  // the first disagreement, which ends the comparison
};

bool is_switch(unsigned opcode) {
    return opcode == op::tableswitch || opcode == op::lookupswitch;
}

bool is_two_byte_branch(unsigned opcode) {
    return (opcode >= op::ifeq && opcode <= op::jsr) || opcode == op::ifnull || opcode == op::ifnonnull;
}

// The map with every instruction's widening in it. Switches get the padding that is right where they then are.
std::vector<std::int32_t> settle(const Layout& layout, std::vector<std::int8_t>& widening) {
    std::vector<std::int32_t> map = layout.planned_map;
    std::int32_t shift = 0;
    for (std::size_t i = 0; i < layout.instructions.size(); i++) {
        const auto pc = static_cast<std::size_t>(layout.instructions[i]);
        const std::size_t end = i + 1 < layout.instructions.size()
                                    ? static_cast<std::size_t>(layout.instructions[i + 1])
                                    : layout.code.size();
        std::for_each(map.begin() + static_cast<std::ptrdiff_t>(pc), map.begin() + static_cast<std::ptrdiff_t>(end),
                      [shift](std::int32_t& new_pc) { new_pc += shift; });
        if (is_switch(layout.code[pc])) {
            const auto old_padding = static_cast<std::int32_t>(3 - pc % 4);
            widening[pc] = static_cast<std::int8_t>(3 - map[pc] % 4 - old_padding);
        }
        shift += widening[pc];
    }
    map.back() += shift;
    return map;
}

// Widens what has to be widened and nothing else: in rounds, each on a map in which everything is where it would be.
// What the rewriter does is something else: it looks at branches while the paddings behind them are still wrong.
std::vector<std::int8_t> minimal_widening(const Layout& layout) {
    std::vector<std::int8_t> widening(layout.planned_map.size());
    for (bool changed = true; changed;) {
        changed = false;
        const std::vector<std::int32_t> map = settle(layout, widening);
        for (const std::int32_t pc : layout.instructions) {
            const auto at = static_cast<std::size_t>(pc);
            const unsigned opcode = layout.code[at];
            if (!is_two_byte_branch(opcode) || widening[at] != 0) {
                continue;
            }
            const auto offset = static_cast<std::int16_t>(layout.code[at + 1] << 8 | layout.code[at + 2]);
            const std::int32_t new_offset = map[static_cast<std::size_t>(pc + offset)] - map[at];
            if (new_offset < -32768 || new_offset > 32767) {
                widening[at] = opcode == op::goto_ || opcode == op::jsr ? 2 : 5;
                changed = true;
            }
        }
    }
    return widening;
}

void count(Tally& tally, const std::vector<Layout>& layouts) {
    for (const Layout& layout : layouts) {
        for (std::size_t pc = 0; pc < layout.code.size(); pc++) {
            if (layout.widening[pc] != 0) {
                (is_switch(layout.code[pc]) ? tally.repadded : tally.widened)++;
            }
        }
        tally.not_minimal += minimal_widening(layout) != layout.widening ? 1 : 0;
    }
}

Tally compare(std::uint64_t first_seed, std::size_t classes, const std::function<RandomClass(std::uint64_t)>& make) {
    const QuietOutput quiet;
    Tally tally;
    for (std::uint64_t seed = first_seed; seed < first_seed + classes && tally.problem.empty(); seed++) {
        const RandomClass made = make(seed);
        const Bytes image = class_builder::assemble(made.file);
        const literal_rewriter::Result result = literal_rewriter::rewrite(image, made.options);
        const Outcome literal = {result.image, without_place(result.failure)};
        const Outcome rewriter = rewrite(image, made.options);
        if (rewriter != literal) {
            tally.problem = "seed " + std::to_string(seed) + ": " + difference(rewriter, literal);
        }
        tally.methods += made.file.methods.size();
        if (literal.failure.empty()) {
            tally.images++;
        } else {
            tally.failures[literal.failure]++;
        }
        count(tally, result.layouts);
    }
    return tally;
}

void tell(const Tally& tally) {
    EXPECT_EQ(tally.problem, "");
    testing::Test::RecordProperty("methods", static_cast<int>(tally.methods));
    testing::Test::RecordProperty("images", static_cast<int>(tally.images));
    testing::Test::RecordProperty("widened", static_cast<int>(tally.widened));
    testing::Test::RecordProperty("repadded", static_cast<int>(tally.repadded));
    testing::Test::RecordProperty("not minimal", static_cast<int>(tally.not_minimal));
}

TEST(Oracle, AgreesOnSmallMethods) {
    const Tally tally = compare(1'000'000, 3000, random_classes::small_methods);
    tell(tally);
    EXPECT_GT(tally.methods, 40'000);
    EXPECT_GT(tally.images, 2500) << "most of the random classes are to be rewritten, not refused";
    EXPECT_GT(tally.repadded, 10'000);
}

TEST(Oracle, AgreesOnFarBranches) {
    const Tally tally =
        compare(2'000'000, 200, [](std::uint64_t seed) { return random_classes::far_branches(seed, false); });
    tell(tally);
    EXPECT_GT(tally.images, 150);
    EXPECT_GT(tally.widened, 10'000);
    EXPECT_EQ(tally.not_minimal, 0) << "without paddings there is but one set of branches that have to be widened";
}

TEST(Oracle, AgreesOnFarBranchesBetweenSwitches) {
    const Tally tally =
        compare(3'000'000, 200, [](std::uint64_t seed) { return random_classes::far_branches(seed, true); });
    tell(tally);
    EXPECT_GT(tally.images, 150);
    EXPECT_GT(tally.widened, 10'000);
    EXPECT_GT(tally.repadded, 1000);
    EXPECT_GT(tally.not_minimal, 10) << "methods that tell the order of the scan";
}

// Changes, removes or doubles some bytes.
Bytes mutate(Random& random, Bytes image) {
    static constexpr std::array<std::uint8_t, 6> values = {0x00, 0x01, 0x7F, 0x80, 0xC4, 0xFF};
    for (std::size_t i = random.one_in(2) ? 1 : random.between(2, 6); i > 0; i--) {
        const std::size_t at = random.below(image.size());
        switch (random.below(6)) {
            case 0:
                image[at] = static_cast<std::uint8_t>(random.below(256));
                break;
            case 1:
                image[at] = values.at(random.below(values.size()));
                break;
            case 2:
                image[at]++;
                break;
            case 3:
                image[at]--;
                break;
            case 4:
                image[at] ^= static_cast<std::uint8_t>(1U << random.below(8));
                break;
            default:
                if (random.one_in(3)) {
                    image.resize(at + 1);
                } else if (random.one_in(2)) {
                    image.erase(image.begin() + static_cast<std::ptrdiff_t>(at));
                } else {
                    image.insert(image.begin() + static_cast<std::ptrdiff_t>(at), image[at]);
                }
                if (image.empty()) {
                    image.push_back(0);
                }
                break;
        }
    }
    return image;
}

Tally compare_mutations(std::uint64_t first_seed, std::size_t classes, std::size_t mutations) {
    const QuietOutput quiet;
    Tally tally;
    for (std::uint64_t class_seed = first_seed; class_seed < first_seed + classes; class_seed++) {
        RandomClass made = random_classes::small_methods(class_seed);
        made.file.methods.resize(std::min<std::size_t>(made.file.methods.size(), 5));
        const Bytes image = class_builder::assemble(made.file);
        for (std::uint64_t seed = 0; seed < mutations; seed++) {
            Random random(class_seed * 1000 + seed);
            const Bytes mutated = mutate(random, image);
            const Outcome literal = rewrite_literally(mutated, made.options);
            const Outcome rewriter = rewrite(mutated, made.options);
            if (rewriter != literal) {
                tally.problem = "class seed " + std::to_string(class_seed) + ", mutation " + std::to_string(seed) +
                                ": " + difference(rewriter, literal);
                return tally;
            }
            if (literal.failure.empty()) {
                tally.images++;
            } else {
                tally.failures[literal.failure]++;
            }
        }
    }
    return tally;
}

TEST(Oracle, FailsInTheSameWordsOnMutatedClasses) {
    const Tally tally = compare_mutations(4'000'000, 600, 200);
    tell(tally);
    EXPECT_GT(tally.images, 10'000) << "mutations that leave a class that can be rewritten";
    for (const char* text :
         {"CRW ASSERTION FAILURE: ( (ci) != NULL && (ci)->input_position <= (ci)->input_len && (ci)->output_position "
          "<= (ci)->output_len)",
          "CRW ASSERTION FAILURE: pos <= mi->code_len", "CRW ASSERTION FAILURE: new_attr_len >= attr_len",
          "CRW ASSERTION FAILURE: attr_len==2",
          "CRW ASSERTION FAILURE: c_index > 0 && c_index < ci->cpool_count_plus_one", "Cannot allocate <= 0 bytes",
          "Invalid opcode supplied to opcode_length()", "Invalid opcode supplied to wide opcode",
          "Unknown frame type in StackMapTable attribute"}) {
        EXPECT_TRUE(tally.failures.contains(text)) << text;
    }
}

}  // namespace
