// The dormant callbacks that pair an added component with the stack of the thread that adds it. Their events are never
// enabled and the capabilities they need are never asked for, so a VM never calls them. What JVMTI allocates for them
// is not given back.
#include <cstdio>
#include <string_view>

#include "jc/Component.h"
#include "jc/JComponent.h"
#include "jc/Object.h"
#include "jc/StackTraceManager.h"
#include "jc/Thread.h"
#include "vantrel-agent.h"

namespace {

// A null name, where JVMTI gave none, equals nothing.
bool equals(const char* name, std::string_view expected) {
    return name != NULL && name == expected;
}

jobjectArray stack_of(JNIEnv* jni, jthread thread) {
    return static_cast<jobjectArray>(NSThread::getStackTrace(jni, thread));
}

}  // namespace

void JNICALL cbFieldModification(jvmtiEnv* jvmti, JNIEnv* jni, jthread thread, jmethodID method, jlocation /*location*/,
                                 jclass field_klass, jobject object, jfieldID field, char /*signature_type*/,
                                 jvalue /*new_value*/) {
    enter_critical_section(jvmti);
    if (NSObject::equals(jni, field_klass, NSComponent::_c_Class) != JNI_FALSE) {
        char* method_name = NULL;
        char* field_name = NULL;
        jvmti->GetMethodName(method, &method_name, NULL, NULL);
        jvmti->GetFieldName(field_klass, field, &field_name, NULL, NULL);
        if (equals(field_name, "parent") && equals(method_name, "addImpl")) {
            jobjectArray trace = stack_of(jni, thread);
            if (jni->IsInstanceOf(object, NSJComponent::_c_Class) != JNI_FALSE) {
                NSStackTraceManager::addStackTrace(jni, object, trace);
            }
        }
    }
    exit_critical_section(jvmti);
}

void JNICALL cbMethodExit(jvmtiEnv* jvmti, JNIEnv* jni, jthread thread, jmethodID method,
                          jboolean /*was_popped_by_exception*/, jvalue /*return_value*/) {
    char* name = NULL;
    char* signature = NULL;
    jvmti->GetMethodName(method, &name, &signature, NULL);
    if (!equals(name, "addImpl") || !equals(signature, "(Ljava/awt/Component;Ljava/lang/Object;I)V")) {
        return;
    }
    jint entry_count = 0;
    jvmtiLocalVariableEntry* table = NULL;
    jvmti->GetLocalVariableTable(method, &entry_count, &table);

    // Slot 0 is the container, slot 1 the component. They are the same in every VM, so nothing reads the table.
    jobject component = NULL;
    jvmti->GetLocalObject(thread, 0, 1, &component);
    NSStackTraceManager::addStackTrace(jni, component, stack_of(jni, thread));
}

void JNICALL cbException(jvmtiEnv* jvmti, JNIEnv* /*jni*/, jthread /*thread*/, jmethodID method, jlocation /*location*/,
                         jobject /*exception*/, jmethodID /*catch_method*/, jlocation /*catch_location*/) {
    enter_critical_section(jvmti);
    char* name = NULL;
    if (jvmti->GetMethodName(method, &name, NULL, NULL) != JVMTI_ERROR_NONE || name == NULL) {
        // The monitor stays held here. That is an old fault, and kept because this callback has to behave as it always
        // has.
        puts("ERROR:GetMethodName!");
        return;
    }
    printf("In Agent: Got an exception from Method: %s\n", name);
    exit_critical_section(jvmti);
}
