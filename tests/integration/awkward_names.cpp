// The native side of AwkwardNames. A test generates the proxy and compiles this with it, warnings as errors.
#include <string>

#include "jc/AwkwardNames.h"

extern "C" JNIEXPORT jstring JNICALL Java_AwkwardNames_failures(JNIEnv* env, jclass) {
    namespace proxy = NSAwkwardNames;
    proxy::Init(nullptr, env);
    jobject object = proxy::AwkwardNames(env);
    const struct {
        const char* what;
        jint got;
        jint expected;
    } results[] = {
        {"a field that is a macro", env->GetStaticIntField(proxy::_c_Class, proxy::AwkwardNames_NULL_), 7},
        {"a word", proxy::union_(env, 1), 2},
        {"a type", proxy::jint_(env, 1), 3},
        {"a method that is a macro", proxy::linux_(env, 1), 4},
        {"a sign that is no letter", proxy::größe_(env, 1), 5},
        {"a letter outside of the basic plane", proxy::𝒳(env, 1), 6},
        {"a clash's first", proxy::takeWithList(env, nullptr), 10},
        {"a clash's second", proxy::takeWithList7(env, nullptr), 11},
        {"an instance method", proxy::m(env, object), 9},
        {"a static method like it", proxy::m10(env, object), 10},
    };
    std::string failures;
    for (const auto& result : results) {
        if (result.got != result.expected) {
            failures += std::string("failed: ") + result.what + "\n";
        }
    }
    proxy::Destroy(nullptr, env);
    return env->NewStringUTF(failures.c_str());
}
