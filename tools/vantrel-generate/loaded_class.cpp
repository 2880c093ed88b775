#include "loaded_class.h"

#include <CodeGenerater/modified_utf8.h>

#include <algorithm>

#include "failure.h"

namespace {

// What Java has to say about the pending exception, from its innermost cause. Nothing is pending afterwards.
std::string take_exception(JNIEnv* env) {
    jthrowable thrown = env->ExceptionOccurred();
    env->ExceptionClear();
    jclass throwable = env->FindClass("java/lang/Throwable");
    jmethodID get_cause = env->GetMethodID(throwable, "getCause", "()Ljava/lang/Throwable;");
    jmethodID to_string = env->GetMethodID(throwable, "toString", "()Ljava/lang/String;");
    // Not without end: exceptions may be causes of each other.
    for (int depth = 0; depth < 8; ++depth) {
        auto* const cause = static_cast<jthrowable>(env->CallObjectMethod(thrown, get_cause));
        if (env->ExceptionCheck() != JNI_FALSE || cause == nullptr) {
            break;
        }
        thrown = cause;
    }
    env->ExceptionClear();
    auto* const text = static_cast<jstring>(env->CallObjectMethod(thrown, to_string));
    if (env->ExceptionCheck() != JNI_FALSE || text == nullptr) {
        env->ExceptionClear();
        return "an exception without a text";
    }
    const char* characters = env->GetStringUTFChars(text, nullptr);
    std::string line = generator::utf8_of_modified(characters);
    env->ReleaseStringUTFChars(text, characters);
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c >= 0 && c < ' '; }, ' ');
    return line;
}

}  // namespace

jclass generate::load_class(JNIEnv* env, const std::string& internal_name) {
    jclass clazz = env->FindClass(internal_name.c_str());
    if (clazz == nullptr) {
        throw command::Failure{generator::utf8_of_modified(internal_name) +
                               ": cannot be loaded: " + take_exception(env)};
    }
    return clazz;
}

bool generate::is_identifier_character(JNIEnv* env, char32_t character, bool begins) {
    jclass type = env->FindClass("java/lang/Character");
    const auto ask = [&](const char* question) {
        jmethodID method = env->GetStaticMethodID(type, question, "(I)Z");
        return env->CallStaticBooleanMethod(type, method, static_cast<jint>(character)) != JNI_FALSE;
    };
    // Java has control characters among the parts of an identifier and ignores them; C++ does not take them.
    const bool is_one =
        begins ? ask("isUnicodeIdentifierStart") : ask("isUnicodeIdentifierPart") && !ask("isIdentifierIgnorable");
    env->DeleteLocalRef(type);
    return is_one;
}
