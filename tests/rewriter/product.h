// The rewriter as tests call it.
#ifndef VANTREL_REWRITER_PRODUCT_H
#define VANTREL_REWRITER_PRODUCT_H

#include <string>

#include "class_builder.h"

// What is asked of the rewriter: by default everything, for an ordinary class.
struct Request {
    unsigned class_number = 1;
    const char* name = nullptr;
    int system_class = 0;
    const char* call = "call";
    const char* ret = "ret";
    const char* object_init = "init";
    const char* newarray = "array";
};

// The new image, or what the error handler was told, and the file that the fault was reported from.
struct Outcome {
    class_builder::Bytes image;
    std::string failure;
    std::string source_file;
};

Outcome rewrite(const class_builder::Bytes& image, const Request& request = {});

#endif
