// How fast the rewriter is: on the classes of real libraries, beside a copy and beside a look at every byte, and on the
// methods that are hardest for it.
//
//     rewriter-bench [OPTIONS OF GOOGLE BENCHMARK] JAR...
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <cstring>
#include <numeric>
#include <string>
#include <vector>

#include "adversaries.h"
#include "allocations.h"
#include "classes.h"
#include "java_crw_demo.h"
#include "vantrel_rewriter.h"
#include "walk.h"

namespace {

void by_java_crw_demo(const Image& image) {
    unsigned char* new_image = nullptr;
    long length = 0;
    java_crw_demo(
        7, nullptr, image.data(), static_cast<long>(image.size()), 0, "com/example/Tracker", "Lcom/example/Tracker;",
        "entered", "(II)V", "left", "(II)V", "made", "(Ljava/lang/Object;)V", "madeArray", "(Ljava/lang/Object;)V",
        &new_image, &length, [](const char*, const char*, int) {}, nullptr);
    benchmark::DoNotOptimize(new_image);
    free(new_image);
}

void by_vantrel_rewriter(const Image& image) {
    static constexpr VantrelRewriterOptions kOptions{sizeof(VantrelRewriterOptions),
                                                     "com/example/Tracker",
                                                     "entered",
                                                     "left",
                                                     "made",
                                                     "madeArray",
                                                     nullptr,
                                                     7,
                                                     0,
                                                     nullptr,
                                                     nullptr,
                                                     nullptr};
    VantrelRewriterResult result;
    result.size = sizeof result;
    vantrel_rewriter_rewrite(image.data(), image.size(), &kOptions, &result);
    benchmark::DoNotOptimize(result.image);
    vantrel_rewriter_release(&result);
}

void copy(const Image& image) {
    static thread_local Image to;
    to.resize(std::max(to.size(), image.size()));
    memcpy(to.data(), image.data(), image.size());
    benchmark::DoNotOptimize(to.data());
    benchmark::ClobberMemory();
}

void add_up(const Image& image) {
    // Each byte waits for the one before it, as it does where a class file is read.
    unsigned sum = 0;
    for (const std::uint8_t byte : image) {
        sum = sum * 31 + byte;
    }
    benchmark::DoNotOptimize(sum);
}

void walk_through(const Image& image) {
    benchmark::DoNotOptimize(walk(image));
}

using Work = void (*)(const Image&);

void on_classes(benchmark::State& state, Work work, const std::vector<Image>& classes) {
    const std::size_t before = allocations();
    while (state.KeepRunning()) {
        for (const Image& image : classes) {
            work(image);
        }
    }
    const std::size_t bytes = std::accumulate(classes.begin(), classes.end(), std::size_t{0},
                                              [](std::size_t sum, const Image& image) { return sum + image.size(); });
    const auto rounds = static_cast<std::size_t>(state.iterations());
    state.SetBytesProcessed(static_cast<std::int64_t>(bytes * rounds));
    state.counters["allocations"] =
        benchmark::Counter(static_cast<double>(allocations() - before) / static_cast<double>(rounds * classes.size()),
                           benchmark::Counter::kAvgThreads);
}

void on_adversary(benchmark::State& state, Work work, const Adversary& adversary) {
    while (state.KeepRunning()) {
        work(adversary.image);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(adversary.code_size) * state.iterations());
}

}  // namespace

namespace {

void register_all(const std::vector<Image>& classes, const std::vector<Adversary>& hardest) {
    const struct {
        const char* name;
        Work work;
    } works[] = {{"java_crw_demo", by_java_crw_demo}, {"vantrel_rewriter", by_vantrel_rewriter}};
    if (!classes.empty()) {
        benchmark::RegisterBenchmark("copy", on_classes, copy, classes);
        benchmark::RegisterBenchmark("look at every byte", on_classes, add_up, classes);
        benchmark::RegisterBenchmark("walk", on_classes, walk_through, classes);
        for (const auto& [name, work] : works) {
            benchmark::RegisterBenchmark(name, on_classes, work, classes);
            benchmark::RegisterBenchmark((std::string(name) + " on threads").c_str(), on_classes, work, classes)
                ->ThreadRange(1, 2);
        }
    }
    for (const auto& [name, work] : works) {
        for (const Adversary& adversary : hardest) {
            benchmark::RegisterBenchmark((adversary.name + " by " + name).c_str(), on_adversary, work, adversary)
                ->Unit(benchmark::kMillisecond);
        }
    }
}

}  // namespace

int main(int argument_count, char** arguments) {
    benchmark::Initialize(&argument_count, arguments);
    register_all(classes_of({arguments + 1, arguments + argument_count}), adversaries());
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
