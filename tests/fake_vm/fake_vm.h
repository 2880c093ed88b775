// A Java VM for tests of orders, failures and messages: a JavaVM, a JNIEnv and a jvmtiEnv whose function tables record
// every call and answer from a script.
//
//     FakeVm vm;
//     jclass helper = vm.add_class("com/example/Helper");
//     vm.add_method(helper, "make", "()[B", vm.add_bytes("data", {1, 2}));
//     vm.fail("Allocate", 2);                      // the second call of Allocate fails
//     ... run what is tested with vm.java_vm, vm.jni, vm.jvmti ...
//     EXPECT_THAT(vm.calls, ElementsAre("FindClass com/example/Helper", ...));
//
// It is strict. A call of a function that the fake does not have, a class, member or property that the test did not
// script, a use of a global reference that was deleted, and a scripted failure that never came about each fail the test
// and name themselves.
//
// A call is recorded as the function's name and its arguments, separated by blanks: handles by the name they were
// scripted with ("null" for a null one), methods and fields as Class.name:descriptor, numbers in decimal. What a
// function only returns through is not recorded. What else the tested code does can be put into the same record, to see
// when it does so: see record_call and RecordedStdout.
#ifndef VANTREL_FAKE_VM_H
#define VANTREL_FAKE_VM_H

#include <jvmti.h>

#include <cstdio>
#include <deque>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// What a jobject, jclass, jarray or raw monitor of the fake VM points to.
struct FakeObject {
    std::string name;
    std::vector<jbyte> bytes;  // a byte array's elements
    std::map<std::string, jobject, std::less<>> fields;
    jobject referent;  // what a global reference refers to
    bool deleted;      // a global reference that was given back
};

// What a jmethodID or jfieldID of the fake VM points to.
struct FakeMember {
    jclass owner;
    std::string name;
    std::string descriptor;
    jvalue result;               // of a method
    jobject thrown;              // by a method: pending once it was called
    std::function<void()> body;  // what a call of a method does besides
    jint modifiers;              // Java's access flags, as JVMTI gives them
};

// No result, or a zero of any type: `{}` would only set the first byte of the union.
constexpr jvalue kZero{.j = 0};

struct FakeVm {
    FakeVm();
    ~FakeVm();
    FakeVm(const FakeVm&) = delete;
    FakeVm& operator=(const FakeVm&) = delete;

    // The script. Handles live as long as the FakeVm.
    jclass add_class(std::string_view name);
    jobject add_object(std::string_view name);
    jbyteArray add_bytes(std::string_view name, std::vector<jbyte> bytes);
    jmethodID add_method(jclass owner, std::string_view name, std::string_view descriptor, jvalue result = kZero);
    jmethodID add_method(jclass owner, std::string_view name, std::string_view descriptor, jobject result);
    jmethodID add_throwing_method(jclass owner, std::string_view name, std::string_view descriptor, jobject thrown);
    jfieldID add_field(jclass owner, std::string_view name, std::string_view descriptor);
    // A method or a field, as the descriptor has it, with access flags. Without this, members have none.
    void add_member(jclass owner, std::string_view name, std::string_view descriptor, jint modifiers);
    void add_property(std::string_view name, std::string_view value);

    // GetClassFields and GetClassMethods list a class's members in the order in which they were added.

    // Makes the `nth` call of a function fail: with `code` where the function returns a status or a JVMTI error, with
    // null and a pending exception where it returns a handle.
    void fail(std::string_view function, int nth = 1, jint code = JVMTI_ERROR_INTERNAL);

    std::set<std::pair<jobject, jclass>> instances;  // what IsInstanceOf says yes to
    jobject local_object = nullptr;                  // what GetLocalObject finds
    bool deleted_may_be_used = false;                // deleted references, for what is promised of these

    // The handles to run the tested code with.
    JavaVM* java_vm;
    JNIEnv* jni;
    jvmtiEnv* jvmti;

    // What happened.
    std::vector<std::string> calls;
    jobject pending = nullptr;                              // the pending exception
    std::map<std::string, void*, std::less<>> natives;      // functions that RegisterNatives was given, by name
    jvmtiEventCallbacks callbacks{};                        // as SetEventCallbacks was given them
    std::map<void*, std::vector<unsigned char>> allocated;  // blocks that nobody has deallocated

    // For the function tables.
    struct Failure {
        std::string function;
        int calls_left;
        jint code;
    };
    std::deque<FakeObject> objects;
    std::deque<FakeMember> members;
    std::map<std::string, jclass, std::less<>> classes;
    std::map<std::string, std::string, std::less<>> properties;
    std::vector<Failure> failures;
};

// Adds an entry to the record of the FakeVm there is. For stand-ins of what the tested code calls besides the VM.
void record_call(std::string_view call);

// While there is one, what the program writes to stdout goes to no file but to the record of the FakeVm there is:
// "stdout TEXT" each time that the stream is flushed.
class RecordedStdout {
  public:
    // buffering   as setvbuf has it: by lines (_IOLBF), or until the stream is flushed (_IOFBF)
    explicit RecordedStdout(int buffering = _IOLBF);
    ~RecordedStdout();
    RecordedStdout(const RecordedStdout&) = delete;
    RecordedStdout& operator=(const RecordedStdout&) = delete;

  private:
    FILE* before_;
};

// Gives an object of a FakeVm a value that GetObjectField reads.
void set_field(jobject object, std::string_view name, jobject value);

#endif
