#include "vantrel_rewriter.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <exception>
#include <new>
#include <string_view>

#include "class_image.h"
#include "constant_pool.h"
#include "images.h"
#include "method_rewrite_state.h"
#include "new_image.h"

namespace crw {

namespace {

// What a caller is told of a failure, by the condition that did not hold. kDamaged is for all others.
struct Told {
    std::string_view condition;
    VantrelRewriterStatus status;
    const char* sentence;
};

constexpr Told kTold[] = {
    {kOutOfMemory, VANTREL_REWRITER_OUT_OF_MEMORY, "There is not enough memory."},
    {kMagicRule, VANTREL_REWRITER_NOT_A_CLASS_FILE, "This is not a class file: it does not begin with CAFEBABE."},
    {kVersionRule, VANTREL_REWRITER_NEWER_VERSION, "The class file is of a newer version than 69."},
    {kInsideImages, VANTREL_REWRITER_DAMAGED,
     "The class file ends early, or something in it is longer than it can be."},
    {"count_plus_one>1", VANTREL_REWRITER_DAMAGED, "The class file has no constants."},
    {"Unknown tag: %d, at ipos %hu", VANTREL_REWRITER_DAMAGED, "The constant pool has an entry of an unknown kind."},
    {kIndexRule, VANTREL_REWRITER_DAMAGED,
     "The class file refers to a constant that is not there, or of another kind."},
    {"ci->cpool_count_plus_one < ci->cpool_max_elements", VANTREL_REWRITER_TOO_LARGE,
     "The constant pool has no room for the tracker's entries."},
    {"len==(len & 0xFFFF)", VANTREL_REWRITER_WRONG_ARGUMENT, "A name is longer than 65535 bytes."},
    {"strchr(ci->name,'.')==NULL", VANTREL_REWRITER_DAMAGED, "The class's name has a dot in it."},
    {"(int)strlen(ci->name)==cs.len && strncmp(ci->name, cs.ptr, cs.len)==0", VANTREL_REWRITER_WRONG_ARGUMENT,
     "The class has another name than the one that was given."},
    {"strcmp(ci->name,\"java/lang/Object\")==0", VANTREL_REWRITER_DAMAGED,
     "The class has no superclass, and is not java.lang.Object."},
    {"mi->new_code_len <= 0xFFFF", VANTREL_REWRITER_TOO_LARGE,
     "With the injected calls the method's code is longer than 65535 bytes."},
    {"mi->new_max_stack <= 0xFFFF", VANTREL_REWRITER_TOO_LARGE,
     "With the injected calls the method's stack is higher than 65535."},
    {"pos <= mi->code_len", VANTREL_REWRITER_DAMAGED, "Something leads out of the method's code."},
};

constexpr Told kDamaged = {"", VANTREL_REWRITER_DAMAGED, "The class file contradicts itself."};

void put_text(char (&to)[256], std::string_view text) {
    snprintf(to, sizeof to, "%.*s", static_cast<int>(std::min(text.size(), sizeof to)), text.data());
}

int fail(VantrelRewriterResult& result, VantrelRewriterStatus status, const char* sentence) {
    put_text(result.sentence, sentence);
    result.status = status;
    return status;
}

int tell(const Failure& failure, VantrelRewriterResult& result) {
    const auto* told = std::find_if(std::begin(kTold), std::end(kTold),
                                    [&](const Told& t) { return t.condition == failure.condition; });
    const Told& found = told != std::end(kTold) ? *told : kDamaged;
    put_text(result.class_name, failure.class_name);
    put_text(result.method, failure.method);
    result.pc = failure.pc;
    if (failure.lacks_room) {
        return fail(result, VANTREL_REWRITER_TOO_LARGE,
                    "With the injected calls the class is longer than 2 GB, and no VM takes such a class.");
    }
    return fail(result, found.status, found.sentence);
}

// Takes as much as the caller's struct has of the options that are known here, and nothing for the others. Returns
// false if the struct has more than that, and the rest is not 0: then the caller wants something that only a later
// version of the interface does.
bool read_options(const VantrelRewriterOptions* given, VantrelRewriterOptions& options) {
    const auto* bytes = reinterpret_cast<const unsigned char*>(given);
    options = {};
    memcpy(&options, bytes, std::min(given->size, sizeof options));
    const size_t known = std::min(given->size, sizeof options);
    return std::all_of(bytes + known, bytes + given->size, [](unsigned char byte) { return byte == 0; });
}

const char* wrong_argument(const unsigned char* class_file, const VantrelRewriterOptions& options) {
    if (class_file == nullptr) {
        return "There is no class file.";
    }
    if (options.tracker_class == nullptr || options.tracker_class[0] == '\0') {
        return "There is no tracker class.";
    }
    if (strchr(options.tracker_class, '.') != nullptr) {
        return "The tracker class's name has a dot in it; it has to be in internal form, as in java/lang/String.";
    }
    if (options.class_name != nullptr && strchr(options.class_name, '.') != nullptr) {
        return "The class's name has a dot in it; it has to be in internal form, as in java/lang/String.";
    }
    if (options.newarray_tracker != nullptr && options.numbered_newarray_tracker != nullptr) {
        return "There are two trackers of new arrays.";
    }
    return nullptr;
}

void tell_method_names(void* options, unsigned class_number, const char** names, const char** descriptors, int count) {
    const auto& asked = *static_cast<const VantrelRewriterOptions*>(options);
    asked.methods(asked.context, class_number, names, descriptors, count);
}

void prepare(ClassRewriteState& ci, const unsigned char* class_file, size_t length, VantrelRewriterOptions& options) {
    ci.door = Door::kVantrelRewriter;
    ci.number = options.class_number;
    ci.input = class_file;
    ci.input_len = length;
    ci.is_system_class = options.system_class != 0;
    ci.tracker_class_name = options.tracker_class;
    ci.call_tracker = {options.call_tracker, kNumbers};
    ci.return_tracker = {options.return_tracker, kNumbers};
    ci.object_init_tracker = {options.object_init_tracker, kObject};
    ci.newarray_takes_numbers = options.numbered_newarray_tracker != nullptr;
    ci.newarray_tracker = ci.newarray_takes_numbers ? Tracker{options.numbered_newarray_tracker, kNumbers}
                                                    : Tracker{options.newarray_tracker, kObject};
    if (options.class_name != nullptr) {
        ci.name = options.class_name;
        ci.is_thread_class = *ci.name == "java/lang/Thread";
    }
    if (options.methods != nullptr) {
        ci.mnum_callback = tell_method_names;
        ci.mnum_context = &options;
    }
}

// No VM takes a longer class: JVMTI and JNI count its bytes in a jint.
constexpr size_t kLongestClass = INT32_MAX;

void rewrite(const unsigned char* class_file, size_t length, VantrelRewriterOptions& options, size_t room,
             VantrelRewriterResult& result) {
    ClassRewriteState ci;
    prepare(ci, class_file, length, options);
    Owned<unsigned char> image = make_new_image(ci, room);
    result.status = VANTREL_REWRITER_REWRITTEN;
    result.length = ci.output_position;
    if (ci.is_module_info) {
        image = allocate<unsigned char>(length);
        memcpy(image.get(), class_file, length);
        result.status = VANTREL_REWRITER_CARRIED_OVER;
        result.length = length;
    }
    put_text(result.class_name, ci.name.value_or(""));
    result.image = image.release();
}

// Rewrites in as much room as is usually enough, and in more while the image outgrows it. How much it takes cannot be
// told beforehand: each frame that is inserted has the types of all locals.
int rewrite_in_room(const unsigned char* class_file, size_t length, VantrelRewriterOptions& options,
                    VantrelRewriterResult& result) {
    constexpr size_t kMore = 16;
    for (size_t room = usual_room(length);; room = std::min(kMore * room, kLongestClass)) {
        try {
            rewrite(class_file, length, options, room, result);
            return result.status;
        } catch (const Failure& failure) {
            if (!failure.lacks_room || room >= kLongestClass) {
                return tell(failure, result);
            }
        }
    }
}

}  // namespace

}  // namespace crw

using namespace crw;

int vantrel_rewriter_rewrite(const unsigned char* class_file, size_t length, const VantrelRewriterOptions* options,
                             VantrelRewriterResult* result) {
    if (result == nullptr || result->size != sizeof *result) {
        return VANTREL_REWRITER_WRONG_ARGUMENT;
    }
    *result = {};
    result->size = sizeof *result;
    result->pc = -1;
    VantrelRewriterOptions asked;
    if (options == nullptr || options->size < sizeof options->size) {
        return fail(*result, VANTREL_REWRITER_WRONG_ARGUMENT, "There are no options, or their size is not set.");
    }
    if (!read_options(options, asked)) {
        return fail(*result, VANTREL_REWRITER_WRONG_ARGUMENT, "The options are of a newer version of the interface.");
    }
    if (const char* wrong = wrong_argument(class_file, asked)) {
        return fail(*result, VANTREL_REWRITER_WRONG_ARGUMENT, wrong);
    }
    try {
        return rewrite_in_room(class_file, length, asked, *result);
    } catch (const std::bad_alloc&) {
        return fail(*result, VANTREL_REWRITER_OUT_OF_MEMORY, kTold[0].sentence);
    } catch (...) {
        return fail(*result, VANTREL_REWRITER_WRONG_ARGUMENT,
                    "The function that is told the methods threw an exception.");
    }
}

void vantrel_rewriter_release(VantrelRewriterResult* result) {
    if (result != nullptr) {
        free(result->image);
        result->image = nullptr;
        result->length = 0;
    }
}

int vantrel_rewriter_interface_version() {
    return VANTREL_REWRITER_INTERFACE_VERSION;
}

int vantrel_rewriter_newest_class_file_version() {
    return kNewestModernMajorVersion;
}
