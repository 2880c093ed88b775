// The rewriter against the literal one, on random classes: the same image byte for byte, or a failure in the same
// words.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "adversaries.h"
#include "class_builder.h"
#include "literal_rewriter.h"
#include "product.h"
#include "random_classes.h"

namespace {

using class_builder::Bytes;
using class_builder::ClassFile;
using class_builder::Code;
using class_builder::same_frame;
using class_builder::stack_map_table;
using class_builder::times;
using class_builder::u1;
namespace op = class_builder::op;
using random_classes::Random;
using random_classes::RandomClass;

// The pc at which an assertion failed, which ends its message, is for people and not compared: where something that
// cannot be right is found depends on what is read at a time.
std::string without_pc(const std::string& message) {
    return message.starts_with("CRW ASSERTION FAILURE: ") ? message.substr(0, message.rfind(':')) : message;
}

// What the literal rewriter makes of an image, and where the real one differs; no problem where it does not.
struct Comparison {
    literal_rewriter::Result literal;
    std::string problem;
};

Comparison compare(const Bytes& image, const RewriteOptions& options) {
    Comparison compared{literal_rewriter::rewrite(image, options), ""};
    const literal_rewriter::Result& literal = compared.literal;
    const Outcome ours = rewrite(image, options);
    // By the second door it is the same image, unless branches that have grown get frames.
    const Outcome modern = rewrite_modern(image, options);
    if (!ours.image.empty() && (literal.widened == 0 ? modern.image != ours.image : modern.image.empty())) {
        compared.problem = "the second door's image is another one, " + modern.failure;
    }
    if (without_pc(ours.failure) != without_pc(literal.failure)) {
        compared.problem = "failures: '" + ours.failure + "', literally '" + literal.failure + "'";
    } else if (ours.image != literal.image) {
        const auto at = std::ranges::mismatch(ours.image, literal.image).in1;
        compared.problem = "images of " + std::to_string(ours.image.size()) + " bytes, literally " +
                           std::to_string(literal.image.size()) + ", that differ from byte " +
                           std::to_string(at - ours.image.begin()) + " on";
    }
    return compared;
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
    std::size_t widened = 0;   // branches
    std::size_t repadded = 0;  // switches
    std::set<std::string> failures;
    std::string problem;  // the first disagreement, which ends the comparison
};

using Make = std::function<RandomClass(std::uint64_t)>;

Tally compare_all(std::uint64_t first_seed, std::size_t classes, const Make& make) {
    const QuietOutput quiet;
    Tally tally;
    for (std::uint64_t seed = first_seed; seed < first_seed + classes && tally.problem.empty(); seed++) {
        const RandomClass made = make(seed);
        const Comparison compared = compare(class_builder::assemble(made.file), made.options);
        if (!compared.problem.empty()) {
            tally.problem = "seed " + std::to_string(seed) + ": " + compared.problem;
        }
        tally.methods += made.file.methods.size();
        tally.images += compared.literal.failure.empty() ? 1 : 0;
        tally.widened += compared.literal.widened;
        tally.repadded += compared.literal.repadded;
    }
    return tally;
}

void tell(const Tally& tally) {
    EXPECT_EQ(tally.problem, "");
    testing::Test::RecordProperty("methods", static_cast<int>(tally.methods));
    testing::Test::RecordProperty("images", static_cast<int>(tally.images));
    testing::Test::RecordProperty("widened", static_cast<int>(tally.widened));
    testing::Test::RecordProperty("repadded", static_cast<int>(tally.repadded));
}

TEST(Oracle, AgreesOnSmallMethods) {
    const Tally tally = compare_all(1'000'000, 3000, random_classes::small_methods);
    tell(tally);
    EXPECT_GT(tally.methods, 40'000);
    EXPECT_GT(tally.images, 2500) << "most of the random classes are to be rewritten, not refused";
    EXPECT_GT(tally.repadded, 10'000);
}

TEST(Oracle, AgreesOnFarBranches) {
    const Tally tally =
        compare_all(2'000'000, 300, [](std::uint64_t seed) { return random_classes::far_branches(seed, false); });
    tell(tally);
    EXPECT_GT(tally.images, 250);
    EXPECT_GT(tally.widened, 10'000);
}

TEST(Oracle, AgreesOnFarBranchesBetweenSwitches) {
    const Tally tally =
        compare_all(3'000'000, 500, [](std::uint64_t seed) { return random_classes::far_branches(seed, true); });
    tell(tally);
    EXPECT_GT(tally.images, 400);
    EXPECT_GT(tally.widened, 10'000);
    EXPECT_GT(tally.repadded, 1000);
}

struct Case {
    std::string name;
    ClassFile file;
    RewriteOptions options;
};

// Trackers with longer names than kAll's.
RewriteOptions all_trackers() {
    return {.call_name = "enter", .return_name = "leave", .obj_init_name = "made", .newarray_name = "madeArray"};
}

ClassFile class_with(const Code& code) {
    ClassFile file;
    file.methods.push_back({.code = code});
    return file;
}

// Methods whose branches grow in an order that is hard to find.
TEST(Oracle, AgreesOnTheHardestMethods) {
    for (const Adversary& adversary : adversaries()) {
        const Comparison compared = compare(adversary.image, all_trackers());
        EXPECT_EQ(compared.problem, "") << adversary.name;
        EXPECT_GT(compared.literal.widened, 1000U) << adversary.name;
    }
}

// Where a count or a length no longer fits, from a little below to a little above.
std::vector<Case> limit_cases() {
    std::vector<Case> cases;
    const RewriteOptions all = all_trackers();
    for (const unsigned count : {0x7FE0U, 0x7FFFU, 0x8000U, 0x8001U, 0x8002U, 0xC000U, 0xFFFFU}) {
        ClassFile file;
        file.pool.class_(file.name);
        file.pool.class_(file.super);
        file.pool.fill(count);
        cases.push_back({"a pool of " + std::to_string(count), file, all});
    }
    for (const std::size_t returns : {50U, 55U, 56U, 57U, 58U, 59U, 60U, 61U, 62U, 63U, 70U, 5000U}) {
        ClassFile file = class_with({.bytes = times(returns, u1(op::return_))});
        file.methods.push_back(file.methods[0]);
        cases.push_back({"an output of 2 * input + 512 bytes at " + std::to_string(returns) + " returns", file, all});
    }
    for (const std::size_t length : {0U, 65530U, 65531U, 65535U, 65536U, 70000U}) {
        const ClassFile file = class_with({.bytes = times(length, u1(op::nop))});
        cases.push_back({std::to_string(length) + " bytes of code", file, all});
        cases.push_back({std::to_string(length) + " bytes of code that stay as they are", file, RewriteOptions{}});
    }
    for (const unsigned max_stack : {0xFFFCU, 0xFFFDU, 0xFFFEU, 0xFFFFU}) {
        RewriteOptions arrays;
        arrays.newarray_name = "madeArray";
        const ClassFile file = class_with({.max_stack = max_stack, .bytes = {op::newarray, 10, op::return_}});
        cases.push_back({"max_stack " + std::to_string(max_stack), file, all});
        cases.push_back({"max_stack " + std::to_string(max_stack) + " with arrays tracked", file, arrays});
    }
    for (const unsigned pc : {0U, 2U}) {
        const ClassFile file =
            class_with({.bytes = {op::newarray, 10}, .attributes = {stack_map_table({same_frame(pc)})}});
        cases.push_back({"an array at the end of the code and a frame at " + std::to_string(pc), file, all});
    }
    for (const std::size_t length : {65535U, 65536U}) {
        // The fields make room for the long name in the output.
        ClassFile file;
        file.fields.assign(20'000, {.name = "field", .descriptor = "I"});
        RewriteOptions options = all;
        options.tracker_class = std::string(length, 'x');
        cases.push_back({"a tracker class's name of " + std::to_string(length), file, options});
        options = all;
        options.call_name = std::string(length, 'x');
        cases.push_back({"a tracker's name of " + std::to_string(length), file, options});
    }
    ClassFile object;
    object.name = "java/lang/Object";
    object.super.clear();
    object.fields.assign(65'535, {.name = "field", .descriptor = "I"});
    cases.push_back({"a field too many", object, all});
    ClassFile crowd = class_with({.bytes = {op::return_}});
    crowd.methods.insert(crowd.methods.end(), 40'000, {.access = 0x0109});
    crowd.methods.push_back(crowd.methods[0]);
    cases.push_back({"a method number of 16 bits", crowd, all});
    return cases;
}

// Names that hold a zero, which no VM loads, end there where the rewriter handles them as C does.
std::vector<Case> names_with_zeros() {
    using namespace std::string_literals;
    std::vector<Case> cases;
    RewriteOptions system = all_trackers();
    system.system_class = true;
    for (const std::string& name : {"<clinit>\0x"s, "<init>\0x"s, "finalize\0"s, "currentThread\0x"s, "\0<init>"s}) {
        ClassFile file = class_with({.bytes = {op::return_}});
        file.methods[0].name = name;
        cases.push_back({"a method of a system class, " + name, file, system});
        file.name = "java/lang/Object";
        file.super.clear();
        cases.push_back({"a method of Object, " + name, file, all_trackers()});
        file.methods[0].name = "<init>";
        file.methods[0].descriptor = "()V\0x"s;
        cases.push_back({"a method of Object, with a descriptor", file, all_trackers()});
    }
    for (const std::string& name : {"java/lang/Object\0x"s, "java/lang/Object"s, "a/B\0.c"s, "a.b\0"s, "\0a"s}) {
        ClassFile file;
        file.name = name;
        cases.push_back({"a class, " + name, file, all_trackers()});
        file.super.clear();
        cases.push_back({"a class without a superclass, " + name, file, all_trackers()});
        RewriteOptions named = all_trackers();
        named.name = name.c_str();
        cases.push_back({"a class that the caller names, " + name, file, named});
    }
    ClassFile file = class_with({.bytes = {op::return_}, .attributes = {{"StackMapTable\0"s, {0, 0}}}});
    file.methods[0].attributes = {{"Code\0"s, {1, 2, 3}}};
    cases.push_back({"attributes", file, all_trackers()});
    return cases;
}

TEST(Oracle, AgreesAtTheLimitsAndOnOddNames) {
    std::size_t images = 0;
    std::size_t failures = 0;
    std::string problems;
    {
        const QuietOutput quiet;
        std::vector<Case> cases = limit_cases();
        std::ranges::move(names_with_zeros(), std::back_inserter(cases));
        for (const Case& c : cases) {
            const Comparison compared = compare(class_builder::assemble(c.file), c.options);
            if (!compared.problem.empty()) {
                problems += c.name + ": " + compared.problem + "\n";
            }
            (compared.literal.failure.empty() ? images : failures)++;
        }
    }
    EXPECT_EQ(problems, "");
    EXPECT_GT(images, 20);
    EXPECT_GT(failures, 15);
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

Tally compare_mutations(std::uint64_t first_seed, std::size_t classes, std::size_t mutations, const Make& make) {
    const QuietOutput quiet;
    Tally tally;
    for (std::uint64_t class_seed = first_seed; class_seed < first_seed + classes; class_seed++) {
        RandomClass made = make(class_seed);
        made.file.methods.resize(std::min<std::size_t>(made.file.methods.size(), 5));
        const Bytes image = class_builder::assemble(made.file);
        for (std::uint64_t seed = 0; seed < mutations; seed++) {
            Random random(class_seed * 1000 + seed);
            const Comparison compared = compare(mutate(random, image), made.options);
            if (!compared.problem.empty()) {
                tally.problem = "class seed " + std::to_string(class_seed) + ", mutation " + std::to_string(seed) +
                                ": " + compared.problem;
                return tally;
            }
            const std::string& failure = compared.literal.failure;
            if (failure.empty()) {
                tally.images++;
            } else {
                tally.failures.insert(failure.substr(0, failure.rfind(" (")));
            }
        }
    }
    return tally;
}

TEST(Oracle, FailsInTheSameWordsOnMutatedClasses) {
    const Tally tally = compare_mutations(4'000'000, 600, 200, random_classes::small_methods);
    tell(tally);
    EXPECT_GT(tally.images, 10'000) << "mutations that leave a class that can be rewritten";
    static constexpr const char* inside_images =
        "CRW ASSERTION FAILURE: ( (ci) != NULL && (ci)->input_position <= (ci)->input_len && "
        "(ci)->output_position <= (ci)->output_len)";
    for (const char* text :
         {inside_images, "CRW ASSERTION FAILURE: pos <= mi->code_len",
          "CRW ASSERTION FAILURE: new_attr_len >= attr_len", "CRW ASSERTION FAILURE: attr_len==2",
          "CRW ASSERTION FAILURE: c_index > 0 && c_index < ci->cpool_count_plus_one", "Cannot allocate <= 0 bytes",
          "Invalid opcode supplied to opcode_length()", "Invalid opcode supplied to wide opcode",
          "Unknown frame type in StackMapTable attribute"}) {
        EXPECT_TRUE(tally.failures.contains(text)) << text;
    }
}

// Mostly branches to other places, among them the middle of an instruction.
TEST(Oracle, AgreesOnMutatedFarBranches) {
    const Tally tally = compare_mutations(5'000'000, 60, 5,
                                          [](std::uint64_t seed) { return random_classes::far_branches(seed, true); });
    tell(tally);
    EXPECT_GT(tally.images, 20);
    EXPECT_TRUE(tally.failures.contains("CRW ASSERTION FAILURE: pos <= mi->code_len"));
}

}  // namespace
