// An agent for a VM on Linux that is the macOS library:
//
// -agentpath:SHIM=MACHO-FILE
//
// The keyboard is a named pipe, "keys" in the working folder: a "c" holds Command down, an "r" releases it, and a "p"
// is a press of the hot key. Its handler is called on a thread that the VM knows as a daemon, which is what the main
// thread of a program with windows is on a Mac. Writes to stderr what Carbon is asked for, except the state of the
// keys.
#include <jvmti.h>

#include <cstdio>
#include <fstream>
#include <string>
#include <thread>

#include "image.h"
#include "recording_carbon.h"

namespace {

const macho::Image* image = nullptr;

void serve_keys(JavaVM* vm) {
    JNIEnv* env = nullptr;
    JavaVMAttachArgs arguments = {JNI_VERSION_1_6, const_cast<char*>("main thread of macOS"), nullptr};
    if (vm->AttachCurrentThreadAsDaemon(reinterpret_cast<void**>(&env), &arguments) != JNI_OK) {
        return;
    }
    std::ifstream keys("keys");
    for (char key = 0; keys.get(key);) {
        if (key != 'p') {
            carbon.flags = key == 'c' ? 0x10 : 0;  // the right one
        } else if (carbon.press() != noErr) {
            fputs("the handler failed\n", stderr);
        }
    }
}

}  // namespace

extern "C" JNIEXPORT jint JNICALL Agent_OnLoad(JavaVM* vm, char* options, void* reserved) {
    carbon.on_call = [vm](const std::string& call) {
        if (!call.starts_with("flags ")) {
            fprintf(stderr, "carbon: %s\n", call.c_str());
        }
        if (call.starts_with("register ")) {
            std::thread(serve_keys, vm).detach();
        }
    };
    image = &macho::load(options);
    return image->function<decltype(Agent_OnLoad)>("Agent_OnLoad")(vm, nullptr, reserved);
}

extern "C" JNIEXPORT void JNICALL Agent_OnUnload(JavaVM* vm) {
    image->function<decltype(Agent_OnUnload)>("Agent_OnUnload")(vm);
}
