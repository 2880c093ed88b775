// The native side of ProxyBench: calls through a proxy's wrapper against the same JNI calls with cached identifiers.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

#include "jc/AlphaComposite.h"
#include "jc/Object.h"
#include "jc/Thread.h"

namespace {

constexpr int kRuns = 10;
constexpr int kRounds = 60;
constexpr int kCalls = 2000;

template <typename Call>
double nanoseconds(JNIEnv* env, const Call& call) {
    env->PushLocalFrame(kCalls);
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < kCalls; ++i) {
        call();
    }
    const std::chrono::duration<double, std::nano> time = std::chrono::steady_clock::now() - start;
    env->PopLocalFrame(nullptr);
    return time.count() / kCalls;
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// Both take turns, so that what disturbs the machine disturbs both.
template <typename Wrapper, typename Bare>
void compare(JNIEnv* env, const char* what, const Wrapper& wrapper, const Bare& bare) {
    wrapper();  // fills the cache
    std::vector<double> ratios;
    double bare_time = 0;
    for (int run = 0; run < kRuns; ++run) {
        std::vector<double> wrapper_times;
        std::vector<double> bare_times;
        for (int round = 0; round < kRounds; ++round) {
            wrapper_times.push_back(nanoseconds(env, wrapper));
            bare_times.push_back(nanoseconds(env, bare));
        }
        bare_time = median(bare_times);
        ratios.push_back(median(wrapper_times) / bare_time);
    }
    printf("%-18s bare %6.1f ns   wrapper / bare %.3f (%.3f to %.3f)\n", what, bare_time, median(ratios),
           *std::min_element(ratios.begin(), ratios.end()), *std::max_element(ratios.begin(), ratios.end()));
}

}  // namespace

extern "C" JNIEXPORT void JNICALL Java_ProxyBench_run(JNIEnv* env, jclass /*clazz*/, jobject object) {
    NSAlphaComposite::Init(nullptr, env);
    auto* object_class = static_cast<jclass>(env->NewGlobalRef(env->FindClass("java/lang/Object")));
    jmethodID hash_code = env->GetMethodID(object_class, "hashCode", "()I");
    jmethodID constructor = env->GetMethodID(object_class, "<init>", "()V");
    auto* thread_class = static_cast<jclass>(env->NewGlobalRef(env->FindClass("java/lang/Thread")));
    jmethodID interrupted = env->GetStaticMethodID(thread_class, "interrupted", "()Z");
    auto* composite_class = static_cast<jclass>(env->NewGlobalRef(env->FindClass("java/awt/AlphaComposite")));
    jmethodID get_instance = env->GetStaticMethodID(composite_class, "getInstance", "(IF)Ljava/awt/AlphaComposite;");

    compare(
        env, "lazy instance", [&] { return NSObject::hashCode(env, object); },
        [&] { return env->CallIntMethod(object, hash_code); });
    compare(
        env, "lazy static", [&] { return NSThread::interrupted(env); },
        [&] { return env->CallStaticBooleanMethod(thread_class, interrupted); });
    compare(
        env, "eager", [&] { return NSAlphaComposite::getInstance(env, 3, 0.5F); },
        [&] { return env->CallStaticObjectMethod(composite_class, get_instance, 3, 0.5); });
    compare(
        env, "constructor", [&] { return NSObject::Object(env); },
        [&] { return env->NewObject(object_class, constructor); });
    fflush(stdout);
}
