// The records of CodeGenerater.h: who owns them, what fits into them, and how a Proxy is made of them.
#ifndef VANTREL_RECORDS_H
#define VANTREL_RECORDS_H

#include <algorithm>
#include <memory>
#include <string_view>
#include <vector>

#include "CodeGenerater.h"
#include "generator.h"

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
typename Pointer::pointer* release_all(std::vector<Pointer>& records) {
    auto array = std::make_unique<typename Pointer::pointer[]>(records.size());
    std::transform(records.begin(), records.end(), array.get(), [](Pointer& record) { return record.release(); });
    return array.release();
}

// Remove what does not fit into its record, and say so on stderr.
void leave_out_unfitting(std::string_view class_name, std::vector<Field>& fields);
void leave_out_unfitting(std::string_view class_name, std::vector<Method>& methods);
// The same for wrappers whose names became too long when overloads were renamed.
void leave_out_long_wrappers(std::string_view class_name, std::vector<Method>& methods);

// The Proxy that the records describe.
Proxy proxy_of(std::string_view class_name, std::string_view internal_name, MethodEntity** methods, int method_count,
               FieldEntity** fields, int field_count);

}  // namespace generator

#endif
