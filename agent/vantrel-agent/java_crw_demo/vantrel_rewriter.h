/*
 * The class-file rewriter for the programs of today: class file in, class file out, with calls to a tracker class
 * injected into its methods. For C99 and C++ callers; it needs no VM.
 *
 *     struct VantrelRewriterOptions options = {sizeof options};
 *     struct VantrelRewriterResult result = {sizeof result};
 *     options.tracker_class = "com/example/Tracker";
 *     options.call_tracker = "entered";
 *     if (vantrel_rewriter_rewrite(bytes, length, &options, &result) <= VANTREL_REWRITER_CARRIED_OVER) {
 *         ... result.image, result.length ...
 *     } else {
 *         fprintf(stderr, "%s: %s\n", result.class_name, result.sentence);
 *     }
 *     vantrel_rewriter_release(&result);
 *
 * It injects the same calls as java_crw_demo (java_crw_demo.h says which), and where the following plays no part its
 * images are the same byte for byte:
 *
 *   - It takes class files up to vantrel_rewriter_newest_class_file_version(). A module-info has no code and is carried
 *     over as it is.
 *   - Stack maps stay right whatever grows: where a conditional branch becomes a longer one, the place after it gets a
 *     frame.
 *   - Type annotations of code move with it. Attributes of Code that the JVM specification does not have are carried
 *     over as they are, because nobody can tell which of their numbers are pcs.
 *   - The new image may be as long as it needs to be, and the constant pool as full as the format allows.
 *   - The method that is called where an array is made may take the numbers of class and method instead of the array.
 *   - Failures are results. Nothing is written to stdout or stderr, nothing is thrown, and nothing ends the process.
 *
 * Threads: any number may rewrite at the same time; no state outlives a call.
 */
#ifndef VANTREL_REWRITER_H
#define VANTREL_REWRITER_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#ifdef __GNUC__
#define VANTREL_REWRITER_EXPORT __attribute__((visibility("default")))
#else
#define VANTREL_REWRITER_EXPORT
#endif

/* The version of this interface. Later ones only add to the ends of the two structs. */
#define VANTREL_REWRITER_INTERFACE_VERSION 2

/* NOLINTBEGIN(modernize-use-using): C has no other way. */

/* Successes first, and everything from VANTREL_REWRITER_WRONG_ARGUMENT on is a failure. */
enum VantrelRewriterStatus {
    VANTREL_REWRITER_REWRITTEN = 0,
    VANTREL_REWRITER_CARRIED_OVER = 1,   /* a module-info: the image is the class file */
    VANTREL_REWRITER_WRONG_ARGUMENT = 2, /* what the caller asks for cannot be done to any class */
    VANTREL_REWRITER_NOT_A_CLASS_FILE = 3,
    VANTREL_REWRITER_NEWER_VERSION = 4,
    VANTREL_REWRITER_DAMAGED = 5,   /* the class file ends early, or contradicts itself */
    VANTREL_REWRITER_TOO_LARGE = 6, /* the new class would be more than the format can hold */
    VANTREL_REWRITER_OUT_OF_MEMORY = 7
};

/*
 * Told the names and descriptors of a class's methods in the order of the class file, so that method numbers can be
 * read. The texts (zero-terminated, in the class file's modified UTF-8) last until it returns.
 */
typedef void (*VantrelRewriterMethods)(void* context, uint32_t class_number, const char* const* names,
                                       const char* const* descriptors, int method_count);

/* What is to be done. Texts are zero-terminated, class names in internal form ("java/lang/String"). */
struct VantrelRewriterOptions {
    size_t size; /* sizeof(struct VantrelRewriterOptions); all that follows may be 0 but for the tracker class */
    const char* tracker_class;
    const char* call_tracker;        /* its static methods, NULL for what is not to be injected: "(II)V" */
    const char* return_tracker;      /* "(II)V" */
    const char* object_init_tracker; /* "(Ljava/lang/Object;)V" */
    const char* newarray_tracker;    /* "(Ljava/lang/Object;)V" */
    const char* class_name;          /* NULL where it is not known; else it must be the class file's */
    uint32_t class_number;           /* goes into the injected calls */
    int system_class;                /* not 0 for a class that the VM may load while it starts (java_crw_demo.h) */
    VantrelRewriterMethods methods;  /* may be NULL */
    void* context;                   /* for `methods` */

    /* Since version 2. Called instead of newarray_tracker, at the same places; told who makes the array, not which. */
    const char* numbered_newarray_tracker; /* "(II)V": class number, method number */
};

/* The result. The caller sets `size`; the rest is overwritten. Texts that are too long are cut. */
struct VantrelRewriterResult {
    size_t size; /* sizeof(struct VantrelRewriterResult) */
    int status;  /* the same that was returned */

    unsigned char* image; /* NULL after a failure; vantrel_rewriter_release frees it */
    size_t length;        /* in bytes */

    char class_name[256]; /* in internal form; empty where it is not known, and for a module-info */

    /* After a failure. */
    char method[256];   /* name and descriptor; empty where it is not about a method's code */
    int pc;             /* about where in that code; -1 where it is not about one */
    char sentence[256]; /* what is wrong, for people */
};

/* NOLINTEND(modernize-use-using) */

/*
 * Rewrites a class file. Returns a VantrelRewriterStatus. Without a result, or with one whose size is not known, it
 * can only return VANTREL_REWRITER_WRONG_ARGUMENT.
 */
VANTREL_REWRITER_EXPORT int vantrel_rewriter_rewrite(const unsigned char* class_file, size_t length,
                                                     const struct VantrelRewriterOptions* options,
                                                     struct VantrelRewriterResult* result);

/* Frees a result's image, which may be NULL, and forgets it. */
VANTREL_REWRITER_EXPORT void vantrel_rewriter_release(struct VantrelRewriterResult* result);

/* VANTREL_REWRITER_INTERFACE_VERSION of the library, and the newest major version of class files that it takes. */
VANTREL_REWRITER_EXPORT int vantrel_rewriter_interface_version(void);
VANTREL_REWRITER_EXPORT int vantrel_rewriter_newest_class_file_version(void);

#ifdef __cplusplus
}
#endif

#endif
