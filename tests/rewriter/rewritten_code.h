// Methods that are put together by hand, before and after rewriting, and what the rewriter was told to inject.
#ifndef VANTREL_REWRITTEN_CODE_H
#define VANTREL_REWRITTEN_CODE_H

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "class_builder.h"
#include "product.h"

namespace rewritten_code {

using namespace class_builder;

inline const Request kNothing{.call = nullptr, .ret = nullptr, .object_init = nullptr, .newarray = nullptr};
inline const Request kCalls{.ret = nullptr, .object_init = nullptr, .newarray = nullptr};
inline const Request kReturns{.call = nullptr, .object_init = nullptr, .newarray = nullptr};
inline const Request kArrays{.call = nullptr, .ret = nullptr, .object_init = nullptr};

inline const Bytes kReturn = {op::return_};

inline ClassFile with_code(const Code& code) {
    ClassFile file;
    file.methods.push_back({.name = "m", .descriptor = "()V", .code = code, .attributes = {}});
    return file;
}

inline ClassFile with_code(const Bytes& bytes) {
    Code code;
    code.bytes = bytes;
    return with_code(code);
}

// The class after rewriting; empty, and a failed test, where that fails.
inline ClassFile rewritten(const ClassFile& file, const Request& request = {}) {
    const Outcome outcome = rewrite(assemble(file), request);
    EXPECT_EQ(outcome.failure, "");
    return outcome.image.empty() ? with_code(Bytes{}) : take_apart(outcome.image);
}

inline Code code_after(const ClassFile& file, const Request& request = {}) {
    return *rewritten(file, request).methods.at(0).code;
}

inline Bytes bytes_after(const Bytes& code, const Request& request) {
    return code_after(with_code(code), request).bytes;
}

// The condition that fails in a class's only method.
inline std::string failing_condition(const ClassFile& file, const Request& request = {}) {
    const std::string failure = rewrite(assemble(file), request).failure;
    const std::string prefix = "CRW ASSERTION FAILURE: ";
    const size_t place = failure.find(" (com/example/Sample:m:");
    return failure.starts_with(prefix) && place != std::string::npos
               ? failure.substr(prefix.size(), place - prefix.size())
               : failure;
}

// The call of a tracker method, found by its name in the class's pool, at its last Methodref.
inline Bytes tracker_call(const ClassFile& file, const std::string& name) {
    constexpr unsigned kMethodref = 10;
    for (unsigned index = file.pool.count; index-- > 1;) {
        const Bytes entry = file.pool.at(index);
        if (!entry.empty() && entry[0] == kMethodref) {
            const Bytes name_and_type = file.pool.at(entry[3] << 8U | entry[4]);
            if (file.pool.text(name_and_type[1] << 8U | name_and_type[2]) == name) {
                EXPECT_EQ(file.pool.text(entry[1] << 8U | entry[2]), "Track");
                return cat({{op::invokestatic}, u2(index)});
            }
        }
    }
    ADD_FAILURE() << "no call of " << name;
    return {};
}

// The injections that all trackers lead to, in the first method of the only class with number 1.
struct Injections {
    explicit Injections(const ClassFile& after, const Request& request) {
        const Bytes numbers = {op::iconst_0 + 1, op::iconst_0};
        if (request.call != nullptr) {
            call = cat({numbers, tracker_call(after, request.call)});
        }
        if (request.ret != nullptr) {
            ret = cat({numbers, tracker_call(after, request.ret)});
        }
        if (request.newarray != nullptr) {
            array = cat({{op::dup}, tracker_call(after, request.newarray)});
        }
    }
    Bytes call;
    Bytes ret;
    Bytes array;
};

// Code, and what it becomes. Builds the expectation from the injections.
inline void expect_code(const Bytes& before, const Request& request,
                        const std::function<Bytes(const Injections&)>& expected) {
    const ClassFile after = rewritten(with_code(before), request);
    EXPECT_EQ(after.methods.at(0).code->bytes, expected(Injections(after, request)));
}

}  // namespace rewritten_code

#endif
