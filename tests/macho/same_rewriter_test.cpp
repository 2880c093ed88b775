// The rewriter in the macOS library and the one in the Linux library, side by side: the same bytes and the same words,
// of real classes, of damaged ones, and of what cannot be done.
#include <dlfcn.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <random>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "classes.h"
#include "image.h"
#include "jars.h"
#include "java_crw_demo.h"
#include "java_vm.h"
#include "vantrel_rewriter.h"

namespace {

// One library's two doors.
struct Rewriter {
    decltype(&java_crw_demo) rewrite;
    decltype(&java_crw_demo_classname) class_name;
    decltype(&vantrel_rewriter_rewrite) rewrite_modern;
    decltype(&vantrel_rewriter_release) release;
    decltype(&vantrel_rewriter_newest_class_file_version) newest;
};

template <typename Lookup>
Rewriter rewriter_by(const Lookup& look_up) {
    const auto set = [&](auto& function, const char* name) {
        function = reinterpret_cast<std::remove_reference_t<decltype(function)>>(look_up(name));
    };
    Rewriter rewriter{};
    set(rewriter.rewrite, "java_crw_demo");
    set(rewriter.class_name, "java_crw_demo_classname");
    set(rewriter.rewrite_modern, "vantrel_rewriter_rewrite");
    set(rewriter.release, "vantrel_rewriter_release");
    set(rewriter.newest, "vantrel_rewriter_newest_class_file_version");
    return rewriter;
}

const Rewriter& for_macos() {
    static const Rewriter rewriter =
        rewriter_by([&image = macho::load(VANTREL_MACHO_LIBRARY)](const char* name) { return image.address_of(name); });
    return rewriter;
}
const Rewriter& for_linux() {
    static const Rewriter rewriter = rewriter_by([library = dlopen(VANTREL_LINUX_LIBRARY, RTLD_NOW)](const char* name) {
        void* function = dlsym(library, name);
        return function != nullptr ? function : (ADD_FAILURE() << dlerror(), abort(), nullptr);
    });
    return rewriter;
}

// All that callers get to see, as one text.
thread_local std::string told;
void tell(std::initializer_list<std::string_view> words) {
    for (const std::string_view word : words) {
        told.append(word).append("\n");
    }
}
void on_failure(const char* message, const char* source_file, int line) {
    const std::string_view file = source_file;
    tell({"failure", message, file.substr(file.find_last_of('/') + 1), std::to_string(line)});
}
template <typename Texts>
void tell_methods(unsigned class_number, Texts names, Texts descriptors, int count) {
    tell({"methods of", std::to_string(class_number)});
    for (int i = 0; i < count; ++i) {
        tell({names[i], descriptors[i]});
    }
}
void on_methods(unsigned class_number, const char** names, const char** descriptors, int count) {
    tell_methods(class_number, names, descriptors, count);
}
void on_methods_modern(void* /*context*/, uint32_t class_number, const char* const* names,
                       const char* const* descriptors, int count) {
    tell_methods(class_number, names, descriptors, count);
}

// What is asked for: a bit for each tracker, and whether it is a system class.
constexpr unsigned kAsked = 32;
const char* if_bit(unsigned asked, unsigned bit, const char* name) {
    return (asked >> bit & 1U) != 0 ? name : nullptr;
}

void add_image(std::string& text, const unsigned char* image, size_t length) {
    text.append(image, image + length).append(image != nullptr ? "image" : "none");
}

std::string by_first_door(const Rewriter& rewriter, const ClassFile& file, unsigned asked) {
    told.clear();
    const auto length = static_cast<long>(file.size());
    unsigned char* image = nullptr;
    long image_length = 0;
    rewriter.rewrite(asked * 3000, nullptr, file.data(), length, static_cast<int>(asked >> 4U & 1U), "a/Tracker",
                     "La/Tracker;", if_bit(asked, 0, "call"), "(II)V", if_bit(asked, 1, "ret"), "(II)V",
                     if_bit(asked, 2, "init"), "(Ljava/lang/Object;)V", if_bit(asked, 3, "array"),
                     "(Ljava/lang/Object;)V", &image, &image_length, on_failure, on_methods);
    add_image(told, image, static_cast<size_t>(image_length));
    free(image);
    char* name = rewriter.class_name(file.data(), length, on_failure);
    tell({"named", name != nullptr ? name : "nothing"});
    free(name);
    return told;
}

std::string by_second_door(const Rewriter& rewriter, const ClassFile& file, unsigned asked) {
    told.clear();
    const VantrelRewriterOptions options{sizeof options,
                                         "a/Tracker",
                                         if_bit(asked, 0, "call"),
                                         if_bit(asked, 1, "ret"),
                                         if_bit(asked, 2, "init"),
                                         if_bit(asked, 3, "array"),
                                         nullptr,
                                         asked * 3000,
                                         static_cast<int>(asked >> 4U & 1U),
                                         on_methods_modern,
                                         nullptr,
                                         nullptr};
    VantrelRewriterResult result{};
    result.size = sizeof result;
    tell({std::to_string(rewriter.rewrite_modern(file.data(), file.size(), &options, &result)), result.class_name,
          result.method, std::to_string(result.pc), result.sentence});
    add_image(told, result.image, result.length);
    rewriter.release(&result);
    return told;
}

struct Count {
    size_t rewritings = 0;
    size_t failures = 0;
    size_t bytes = 0;
};

// By both doors of both libraries.
void compare(const ClassFile& file, unsigned asked, Count& count) {
    for (const auto door : {by_first_door, by_second_door}) {
        const std::string expected = door(for_linux(), file, asked);
        const std::string actual = door(for_macos(), file, asked);
        ++count.rewritings;
        count.failures += expected.find("none") != std::string::npos ? 1 : 0;
        count.bytes += expected.size();
        if (actual != expected) {
            const size_t at = std::ranges::mismatch(expected, actual).in1 - expected.begin();
            FAIL() << "asked for " << asked << ", " << file.size() << " bytes: differs at " << at << " of "
                   << expected.size() << "\nLinux: " << expected.substr(at, 100)
                   << "\nmacOS: " << actual.substr(at, 100);
        }
    }
}

// The JDK's own are of its version, which the first door refuses.
std::vector<ClassFile> real_classes(unsigned n) {
    std::vector<std::filesystem::path> archives = usual_jars();
    if (const auto jdk = find_jdk(17)) {
        archives.push_back(*jdk / "jmods/java.desktop.jmod");
    }
    std::vector<ClassFile> classes;
    for (const std::filesystem::path& archive : archives) {
        std::ranges::move(every_nth_class(archive, n), std::back_inserter(classes));
    }
    return classes;
}

void report(const char* what, const Count& count) {
    std::cout << "compared: " << what << ": " << count.rewritings << " rewritings, " << count.failures
              << " of them refused, " << count.bytes << " bytes\n";
}

TEST(SameRewriter, MakesTheSameOfRealClasses) {
    Count count;
    unsigned asked = 0;
    for (const ClassFile& file : real_classes(2)) {
        // Everything for each second one.
        ASSERT_NO_FATAL_FAILURE(compare(file, ++asked % 2 == 0 ? 15 : asked / 2 % kAsked, count));
    }
    report("real classes", count);
    EXPECT_GT(count.rewritings - count.failures, 15000U);
}

// Each damage once: cut off, or with up to four other bytes.
TEST(SameRewriter, SaysTheSameOfDamagedClasses) {
    Count count;
    std::mt19937 random(1);  // NOLINT(cert-msc32-c,cert-msc51-cpp): the same damage every time
    for (const ClassFile& whole : real_classes(10)) {
        for (unsigned i = 0; i < 4; ++i) {
            ClassFile file = whole;
            if (i == 0) {
                file.resize(random() % file.size());
            }
            for (unsigned change = 0; change < i + 1 && !file.empty(); ++change) {
                file[random() % file.size()] = static_cast<std::uint8_t>(random());
            }
            ASSERT_NO_FATAL_FAILURE(compare(file, random() % kAsked, count));
        }
    }
    report("damaged classes", count);
    EXPECT_GT(count.failures, 5000U);
}

// Each failure is an exception inside the library.
TEST(SameRewriter, FailsOnManyThreadsAtOnce) {
    constexpr int kThreads = 4;
    constexpr int kTimes = 10'000;
    const ClassFile file = {0xCA, 0xFE, 0xBA, 0xBE, 0, 0, 0, 52, 0, 3};
    const std::string expected = by_second_door(for_linux(), file, 1);
    std::atomic<int> different = 0;
    std::vector<std::jthread> threads(kThreads);
    for (std::jthread& thread : threads) {
        thread = std::jthread([&] {
            for (int i = 0; i < kTimes; ++i) {
                different += by_second_door(for_macos(), file, 1) != expected ? 1 : 0;
            }
        });
    }
    threads.clear();
    EXPECT_EQ(different, 0);
}

// What a caller without a handler sees before the process ends.
TEST(SameRewriter, EndsTheProcessWithTheSameWords) {
    const auto last_words = [](const Rewriter& rewriter) {
        const ClassFile file = {0xCA, 0xFE, 0xBA, 0xBE, 0, 0, 0, 52, 0, 3};
        std::string words;
        const auto take = testing::Truly([&](const std::string& written) { return words = written, true; });
        EXPECT_EXIT(rewriter.class_name(file.data(), static_cast<long>(file.size()), nullptr),
                    testing::KilledBySignal(SIGABRT), take);
        return words;
    };
    const std::string words = last_words(for_macos());
    EXPECT_THAT(words, testing::HasSubstr("CRW ASSERTION FAILURE"));
    EXPECT_EQ(words, last_words(for_linux()));
}

}  // namespace
