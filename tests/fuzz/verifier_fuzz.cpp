// The rewriter on classes that libFuzzer has made, before the verifier of a real VM: what links before links after,
// whatever grows. The first byte of an input says what is injected, the second one the class number, and the rest are
// choices for the class (verifiable_classes.h), so that some hundred bytes make a method of up to 60,000.
//
// The VM is the one in JAVA_HOME, or the one of the java on the path. It takes SIGSEGV for itself.
#include <dlfcn.h>
#include <jni.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <span>
#include <string>

#include "class_builder.h"
#include "java_home.h"
#include "product.h"
#include "verifiable_classes.h"

// The sanitizer lets the VM have its signals, and does not look for what a VM leaves to the end of its process.
extern "C" const char* __asan_default_options() {
    return "handle_segv=0:detect_leaks=0";
}

namespace {

using class_builder::Bytes;

[[noreturn]] void stop(const std::string& why) {
    fprintf(stderr, "verifier-fuzz: %s\n", why.c_str());
    abort();
}

// Of the thread that runs the inputs.
struct Vm {
    JNIEnv* env = nullptr;
    jclass loader_class = nullptr;
    jmethodID new_loader = nullptr;
    jobjectArray no_urls = nullptr;
    jmethodID declared_fields = nullptr;
};

Vm start_vm() {
    const auto home = command::find_java_home();
    const auto path = home ? command::find_vm_library(*home) : std::nullopt;
    void* library = path ? dlopen(path->c_str(), RTLD_NOW | RTLD_GLOBAL) : nullptr;
    auto* const create = library != nullptr
                             ? reinterpret_cast<decltype(&JNI_CreateJavaVM)>(dlsym(library, "JNI_CreateJavaVM"))
                             : nullptr;
    if (create == nullptr) {
        stop("there is no Java VM; JAVA_HOME says where one is");
    }
    // What ends or interrupts the process is libFuzzer's to handle (-Xrs).
    std::array options = {JavaVMOption{const_cast<char*>("-Xrs"), nullptr},
                          JavaVMOption{const_cast<char*>("-Xmx256m"), nullptr},
                          JavaVMOption{const_cast<char*>("-XX:+UseSerialGC"), nullptr}};
    JavaVMInitArgs arguments{};
    arguments.version = JNI_VERSION_1_8;
    arguments.nOptions = static_cast<jint>(options.size());
    arguments.options = options.data();
    JavaVM* vm = nullptr;
    Vm started;
    if (create(&vm, reinterpret_cast<void**>(&started.env), &arguments) != JNI_OK) {
        stop("the Java VM does not start");
    }
    JNIEnv* env = started.env;
    jclass url = env->FindClass("java/net/URL");
    started.no_urls = static_cast<jobjectArray>(env->NewGlobalRef(env->NewObjectArray(0, url, nullptr)));
    started.loader_class = static_cast<jclass>(env->NewGlobalRef(env->FindClass("java/net/URLClassLoader")));
    started.new_loader = env->GetMethodID(started.loader_class, "<init>", "([Ljava/net/URL;)V");
    started.declared_fields =
        env->GetMethodID(env->FindClass("java/lang/Class"), "getDeclaredFields", "()[Ljava/lang/reflect/Field;");
    if (env->ExceptionCheck() != JNI_FALSE) {
        stop("the Java VM has not what is needed");
    }
    return started;
}

// Whether the VM takes a class, into a loader of its own: to be asked for its fields it must be linked. Says why not on
// stderr.
bool links(const Vm& vm, std::span<const std::uint8_t> image) {
    JNIEnv* env = vm.env;
    constexpr jint kReferences = 8;
    env->PushLocalFrame(kReferences);
    jobject loader = env->NewObject(vm.loader_class, vm.new_loader, vm.no_urls);
    jclass type = env->DefineClass(nullptr, loader, reinterpret_cast<const jbyte*>(image.data()),
                                   static_cast<jsize>(image.size()));
    if (type != nullptr) {
        env->CallObjectMethod(type, vm.declared_fields);
    }
    const bool is_taken = env->ExceptionCheck() == JNI_FALSE;
    if (!is_taken) {
        env->ExceptionDescribe();
        env->ExceptionClear();
    }
    env->PopLocalFrame(nullptr);
    return is_taken;
}

std::optional<std::string> name_where(bool wanted, const char* name) {
    return wanted ? std::optional<std::string>(name) : std::nullopt;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    constexpr size_t kOptions = 2;
    if (size < kOptions) {
        return 0;
    }
    static const Vm vm = start_vm();
    const unsigned flags = data[0];
    constexpr std::array<unsigned, 4> kClassNumbers = {0, 200, 32767, 32768};
    const RewriteOptions options{.class_number = kClassNumbers.at(data[1] % kClassNumbers.size()),
                                 .name = std::nullopt,
                                 .system_class = (flags & 32U) != 0,
                                 .call_name = name_where((flags & 1U) != 0, "call"),
                                 .return_name = name_where((flags & 2U) != 0, "ret"),
                                 .obj_init_name = std::nullopt,
                                 .newarray_name = name_where((flags & 4U) == 0, "array")};
    const Bytes image =
        class_builder::assemble(verifiable_classes::from_choices({data + kOptions, size - kOptions}, "Generated"));
    const Outcome rewritten = rewrite_modern(image, options);
    if (rewritten.image.empty()) {
        stop("refused: " + rewritten.failure);
    }
    if (!links(vm, image)) {
        stop("this class was none that a verifier takes, which is not the rewriter's fault");
    }
    if (!links(vm, rewritten.image)) {
        stop("the rewritten class is not taken any more");
    }
    return 0;
}
