// The generator's records together, and their owners.
#ifndef VANTREL_ENTITIES_H
#define VANTREL_ENTITIES_H

#include <algorithm>
#include <memory>
#include <vector>

#include "CodeGenerater.h"

namespace generator {

struct DeleteMethod {
    void operator()(MethodEntity* method) const;
};
using MethodPointer = std::unique_ptr<MethodEntity, DeleteMethod>;
using FieldPointer = std::unique_ptr<FieldEntity>;

// A zeroed record, with its array of arguments.
MethodPointer new_method();

// The records as the plain array that FreeFieldEntities or FreeMethodEntiry takes.
template <typename Pointer>
typename Pointer::pointer* release_all(std::vector<Pointer>& entities) {
    auto array = std::make_unique<typename Pointer::pointer[]>(entities.size());
    std::transform(entities.begin(), entities.end(), array.get(), [](Pointer& entity) { return entity.release(); });
    return array.release();
}

// The records of a class.
struct ClassEntities {
    char* name;  // the class's simple name
    MethodEntity** methods;
    int method_count;
    FieldEntity** fields;
    int field_count;
};

// What a proxy has of a class, given back at the end.
struct AcceptedEntities {
    AcceptedEntities(jvmtiEnv* jvmti, jclass clazz, char* class_name);
    ~AcceptedEntities();
    AcceptedEntities(const AcceptedEntities&) = delete;
    AcceptedEntities& operator=(const AcceptedEntities&) = delete;

    ClassEntities all;
};

}  // namespace generator

#endif
