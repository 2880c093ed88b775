#include "entities.h"

#include <array>
#include <cstdint>
#include <cstdio>

using generator::MethodPointer;

void generator::DeleteMethod::operator()(MethodEntity* method) const {
    for (int i = 0; i < method->argu_count; ++i) {
        delete method->argus[i];
    }
    delete[] method->argus;
    delete method;
}

MethodPointer generator::new_method() {
    MethodPointer method(new MethodEntity{});
    method->argus = new ArgumentEntity* [kMaxArguments] {};
    return method;
}

generator::AcceptedEntities::AcceptedEntities(jvmtiEnv* jvmti, jclass clazz, char* class_name)
    : all{class_name, nullptr, 0, nullptr, 0} {
    GetFieldEntities(jvmti, clazz, class_name, &all.fields, &all.field_count, CanAcceptField);
    GetMethodEntities(jvmti, clazz, class_name, &all.method_count, &all.methods, CanAcceptMethod);
}

generator::AcceptedEntities::~AcceptedEntities() {
    FreeFieldEntities(all.fields, all.field_count);
    FreeMethodEntiry(all.methods, all.method_count);
}

void FreeFieldEntities(FieldEntity** fields, int count) {
    for (int i = 0; i < count; ++i) {
        delete fields[i];
    }
    delete[] fields;
}

void FreeMethodEntiry(MethodEntity** methods, int count) {
    for (int i = 0; i < count; ++i) {
        generator::DeleteMethod()(methods[i]);
    }
    delete[] methods;
}

void doTest() {
    std::array<std::unique_ptr<ArgumentEntity>, 5> blocks;
    for (auto& block : blocks) {
        block = std::make_unique<ArgumentEntity>();
        printf("assign: %d\n", static_cast<int>(reinterpret_cast<intptr_t>(block.get())));
    }
    int number = 0;
    for (auto& block : blocks) {
        snprintf(block->type_name, sizeof block->type_name, "a%d", number++);
    }
    for (const auto& block : blocks) {
        printf("type: %s\n", block->type_name);
    }
}
