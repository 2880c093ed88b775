#include "java_crw_demo.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string_view>

#include "class_image.h"
#include "images.h"
#include "method_rewrite_state.h"
#include "new_image.h"

namespace crw {

namespace {

void require_argument(bool holds, const char* failure) {
    if (!holds) {
        fatal_error(failure);
    }
}

bool is_class_signature(const char* signature) {
    return signature != nullptr && std::string_view(signature).starts_with('L') &&
           std::string_view(signature).ends_with(';');
}

Tracker make_tracker(const char* name, const char* signature, std::string_view expected, const char* failure) {
    require_argument(name == nullptr || (signature != nullptr && signature == expected), failure);
    return {name, expected};
}

// Tells the caller of a failure. If the handler throws, that exception goes on to the caller.
void tell(const Failure& failure, JavaCrwDemoErrorHandler handler) {
    if (handler == nullptr) {
        fprintf(stderr, "CRW: %s [%s:%d]\n", failure.message, failure.file, failure.line);
        abort();
    }
    handler(failure.message, failure.file, failure.line);
}

// Runs the body of an exported function. No exception leaves it but one that the handler throws. The caller is given
// results only if the body succeeds.
template <typename Body>
void guarded(JavaCrwDemoErrorHandler handler, const Body& body) {
    try {
        try {
            body();
        } catch (const std::bad_alloc&) {
            fatal_error(kOutOfMemory);
        }
    } catch (const Failure& failure) {
        tell(failure, handler);
    }
}

void tell_method_names(void* callback, unsigned class_number, const char** names, const char** descriptors, int count) {
    (*static_cast<JavaCrwDemoMethodNames*>(callback))(class_number, names, descriptors, count);
}

}  // namespace

}  // namespace crw

using namespace crw;

void java_crw_demo(unsigned class_number, const char* name, const unsigned char* file_image, long file_len,
                   int system_class, const char* tclass_name, const char* tclass_sig, const char* call_name,
                   const char* call_sig, const char* return_name, const char* return_sig, const char* obj_init_name,
                   const char* obj_init_sig, const char* newarray_name, const char* newarray_sig,
                   unsigned char** pnew_file_image, long* pnew_file_len, JavaCrwDemoErrorHandler fatal_error_handler,
                   JavaCrwDemoMethodNames mnum_callback) {
    guarded(fatal_error_handler, [&] {
        require_argument(pnew_file_image != nullptr, "pnew_file_image==NULL");
        require_argument(pnew_file_len != nullptr, "pnew_file_len==NULL");
        *pnew_file_image = nullptr;
        *pnew_file_len = 0;
        if (file_len == 0) {
            return;
        }
        require_argument(file_image != nullptr, "file_image == NULL");
        require_argument(file_len > 0, "file_len < 0");
        require_argument(system_class == 0 || system_class == 1, "system_class is not 0 or 1");
        require_argument(tclass_name != nullptr, "tclass_name == NULL");
        require_argument(is_class_signature(tclass_sig), "tclass_sig is not a valid class signature");

        ClassRewriteState ci;
        ci.number = class_number;
        ci.input = file_image;
        ci.input_len = static_cast<size_t>(file_len);
        ci.is_system_class = system_class == 1;
        ci.tracker_class_name = tclass_name;
        ci.call_tracker = make_tracker(call_name, call_sig, kNumbers, "call_sig is not (II)V");
        ci.return_tracker = make_tracker(return_name, return_sig, kNumbers, "return_sig is not (II)V");
        ci.object_init_tracker =
            make_tracker(obj_init_name, obj_init_sig, kObject, "obj_init_sig is not (Ljava/lang/Object;)V");
        ci.newarray_tracker =
            make_tracker(newarray_name, newarray_sig, kObject, "newarray_sig is not (Ljava/lang/Object;)V");
        if (mnum_callback != nullptr) {
            ci.mnum_callback = tell_method_names;
            ci.mnum_context = &mnum_callback;
        }
        if (name != nullptr) {
            require(ci, std::string_view(name).find('.') == std::string_view::npos, "strchr(name,'.')==NULL");
            ci.name = name;
            ci.is_thread_class = *ci.name == "java/lang/Thread";
        }
        *pnew_file_image = make_new_image(ci, usual_room(ci.input_len)).release();
        *pnew_file_len = static_cast<long>(ci.output_position);
    });
}

char* java_crw_demo_classname(const unsigned char* file_image, long file_len,
                              JavaCrwDemoErrorHandler fatal_error_handler) {
    char* result = nullptr;
    guarded(fatal_error_handler, [&] {
        if (file_image == nullptr || file_len == 0) {
            return;
        }
        ClassRewriteState ci;
        require(ci, file_len > 0, kInsideImages);
        ci.input = file_image;
        ci.input_len = static_cast<size_t>(file_len);
        const std::string_view name = read_class_name(ci);
        Owned<char> copy = allocate<char>(name.size() + 1);
        memcpy(copy.get(), name.data(), name.size());
        copy[name.size()] = '\0';
        result = copy.release();
    });
    return result;
}
