#include "java_vm.h"

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <utility>

#include "failure.h"
#include "java_home.h"

namespace fs = std::filesystem;

namespace {

// The environment of the agent that this command is to its VM. It has to be made while the VM starts, because only then
// can methods be had in the order of the class file. Without that their order, and with it the numbers of the wrappers,
// would change from run to run.
jvmtiEnv* agent_jvmti = nullptr;

fs::path find_home(const std::string& given) {
    if (!given.empty()) {
        return given;
    }
    if (auto home = command::find_java_home()) {
        return *std::move(home);
    }
    throw command::Failure{"there is no Java: no --java-home, no JAVA_HOME, no java on the path"};
}

fs::path find_library(const fs::path& home) {
    if (auto library = command::find_vm_library(home)) {
        return *std::move(library);
    }
    throw command::Failure{"there is no Java VM in " + home.string()};
}

// Throws where there is a VM, but not its class library: that VM would end the process before it knows of the abort
// hook. A VM looks for its classes from the place of its own library, with links followed: for `modules`, or up to Java
// 8 for `rt.jar`.
void check_class_library(const fs::path& home, const fs::path& library) {
    fs::path folder = fs::canonical(library).parent_path();
    for (int up = 0; up < 4; ++up, folder = folder.parent_path()) {
        if (fs::exists(folder / "modules") || fs::exists(folder / "rt.jar")) {
            return;
        }
    }
    throw command::Failure{"there is no whole Java in " + home.string() + ": it has a VM, but no classes"};
}

// Runs when the process ends by exit(). The command itself ends by _Exit, so it is the VM that ends the process: either
// it could not start and has said why, or a class's initialiser has called System.exit.
void vm_ended_the_process() {
    fflush(stdout);
    fputs("vantrel-generate: the Java VM has ended the process\n", stderr);
    fflush(stderr);
    _Exit(generate::kNothingDone);
}

}  // namespace

// The VM finds this by the name in -agentlib, as it does for agents that are linked into a launcher.
extern "C" JNIEXPORT jint JNICALL Agent_OnLoad_vantrel_generate(JavaVM* vm, char* /*options*/, void* /*reserved*/) {
    if (vm->GetEnv(reinterpret_cast<void**>(&agent_jvmti), JVMTI_VERSION_1_1) != JNI_OK) {
        return JNI_ERR;
    }
    // A VM that does not have it lists methods in an order of its own.
    jvmtiCapabilities capabilities{};
    capabilities.can_maintain_original_method_order = 1;
    agent_jvmti->AddCapabilities(&capabilities);
    return JNI_OK;
}

generate::RunningVm generate::start_vm(const std::string& java_home, const std::vector<std::string>& options) {
    const fs::path home = find_home(java_home);
    const fs::path path = find_library(home);
    check_class_library(home, path);
    void* library = dlopen(path.c_str(), RTLD_NOW | RTLD_GLOBAL);
    if (library == nullptr) {
        throw command::Failure{"cannot load the Java VM: " + std::string(dlerror())};
    }
    auto* const create = reinterpret_cast<decltype(&JNI_CreateJavaVM)>(dlsym(library, "JNI_CreateJavaVM"));
    if (create == nullptr) {
        throw command::Failure{path.string() + " is no Java VM"};
    }

    // A VM that ends the process calls its abort hook while it starts, and exit() once it runs: both lead to
    // vm_ended_the_process. The casts are safe, because the VM does not write to the texts of its options.
    atexit(vm_ended_the_process);
    std::vector<JavaVMOption> all = {{const_cast<char*>("abort"), reinterpret_cast<void*>(vm_ended_the_process)},
                                     {const_cast<char*>("-agentlib:vantrel_generate"), nullptr}};
    for (const std::string& option : options) {
        all.push_back({const_cast<char*>(option.c_str()), nullptr});
    }
    JavaVMInitArgs arguments{};
    arguments.version = JNI_VERSION_1_6;
    arguments.nOptions = static_cast<jint>(all.size());
    arguments.options = all.data();
    JavaVM* vm = nullptr;
    void* env = nullptr;
    const jint status = create(&vm, &env, &arguments);
    if (status != JNI_OK || agent_jvmti == nullptr) {
        throw command::Failure{"the Java VM in " + home.string() +
                               " does not start (JNI_CreateJavaVM: " + std::to_string(status) + ")"};
    }
    return {static_cast<JNIEnv*>(env), agent_jvmti};
}
