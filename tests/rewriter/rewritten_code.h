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

inline const RewriteOptions kNothing{.class_number = 1, .tracker_class = "Track"};
inline const RewriteOptions kCalls{.class_number = 1, .tracker_class = "Track", .call_name = "call"};
inline const RewriteOptions kReturns{.class_number = 1, .tracker_class = "Track", .return_name = "ret"};
inline const RewriteOptions kArrays{.class_number = 1, .tracker_class = "Track", .newarray_name = "array"};

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
inline ClassFile rewritten(const ClassFile& file, const RewriteOptions& options = kAll) {
    const Outcome outcome = rewrite(assemble(file), options);
    EXPECT_EQ(outcome.failure, "");
    return outcome.image.empty() ? with_code(Bytes{}) : take_apart(outcome.image);
}

inline Code code_after(const ClassFile& file, const RewriteOptions& options = kAll) {
    return *rewritten(file, options).methods.at(0).code;
}

inline Bytes bytes_after(const Bytes& code, const RewriteOptions& options) {
    return code_after(with_code(code), options).bytes;
}

// The condition that fails in a class's only method.
inline std::string failing_condition(const ClassFile& file, const RewriteOptions& options = kAll) {
    const std::string failure = rewrite(assemble(file), options).failure;
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
    explicit Injections(const ClassFile& after, const RewriteOptions& options) {
        const Bytes numbers = {op::iconst_0 + 1, op::iconst_0};
        if (options.call_name) {
            call = cat({numbers, tracker_call(after, *options.call_name)});
        }
        if (options.return_name) {
            ret = cat({numbers, tracker_call(after, *options.return_name)});
        }
        if (options.newarray_name) {
            array = cat({{op::dup}, tracker_call(after, *options.newarray_name)});
        }
    }
    Bytes call;
    Bytes ret;
    Bytes array;
};

// Code, and what it becomes. Builds the expectation from the injections.
inline void expect_code(const Bytes& before, const RewriteOptions& options,
                        const std::function<Bytes(const Injections&)>& expected) {
    const ClassFile after = rewritten(with_code(before), options);
    EXPECT_EQ(after.methods.at(0).code->bytes, expected(Injections(after, options)));
}

}  // namespace rewritten_code

#endif
