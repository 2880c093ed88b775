// What the command asks Java for.
#ifndef VANTREL_GENERATE_LOADED_CLASS_H
#define VANTREL_GENERATE_LOADED_CLASS_H

#include <jni.h>

#include <string>

namespace generate {

// Local references that are given back together.
struct LocalFrame {
    explicit LocalFrame(JNIEnv* jni) : env(jni) { env->PushLocalFrame(16); }
    ~LocalFrame() { env->PopLocalFrame(nullptr); }
    LocalFrame(const LocalFrame&) = delete;
    LocalFrame& operator=(const LocalFrame&) = delete;
    JNIEnv* env;
};

// The class of an internal name in modified UTF-8, loaded and initialised. Throws Failure if it cannot be.
jclass load_class(JNIEnv* env, const std::string& internal_name);

// Whether a character may stand in an identifier by the rules of Unicode; with `begins`, whether it may be the first
// one.
bool is_identifier_character(JNIEnv* env, char32_t character, bool begins);

}  // namespace generate

#endif
