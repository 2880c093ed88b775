/*
 * The class-file rewriter: class image in, class image out, with calls to a tracker class injected into its methods.
 * For callers that see classes on their way into a VM (a JVMTI ClassFileLoadHook), or that rewrite class files at rest.
 * C and C++ callers; it needs no VM.
 *
 * What is injected, each as a call of a static method of the tracker class:
 *
 *     call       "(II)V"                     at the entry of a method: class number, method number
 *     return     "(II)V"                     before each return instruction: class number, method number
 *     obj_init   "(Ljava/lang/Object;)V"     at the entry of java.lang.Object's constructor: the new object
 *     newarray   "(Ljava/lang/Object;)V"     after each instruction that makes an array: the new array
 *
 * The tracker class's name and a few constants go into every class's constant pool, and java.lang.Object gets a static
 * field objectTrackId and a native method getTrackId. Class files up to version 52 are accepted (JVM specification,
 * chapter 4). Nothing is verified: from an image that no VM would load may come another one that no VM would load. No
 * input makes the rewriter read or write outside its images.
 *
 * Threads: any number may rewrite at the same time; no state outlives a call.
 *
 * Failures: a fatal error handler, if there is one, is called with the message, the source file and the line. It
 * should not return: it may end the process, or throw through these functions. If it returns, the call ends without a
 * result and everything is released. Without a handler the message is written to stderr and the process is aborted.
 */
#ifndef JAVA_CRW_DEMO_H
#define JAVA_CRW_DEMO_H

#ifdef __cplusplus
extern "C" {
#endif

#ifdef __GNUC__
#define JAVA_CRW_DEMO_EXPORT __attribute__((visibility("default")))
#else
#define JAVA_CRW_DEMO_EXPORT
#endif

/* NOLINTBEGIN(modernize-use-using): C has no other way. */

/* Told of a failure. The texts are the rewriter's and last until the handler returns. */
typedef void (*JavaCrwDemoErrorHandler)(const char* message, const char* source_file, int line);

/*
 * Told the names and descriptors of a class's methods, each in the order of the class file, so that method numbers can
 * be read. The arrays and texts (zero-terminated, in the class file's modified UTF-8) last until it returns.
 */
typedef void (*JavaCrwDemoMethodNames)(unsigned class_number, const char** names, const char** descriptors,
                                       int method_count);

/* NOLINTEND(modernize-use-using) */

/*
 * Rewrites a class image.
 *
 *   class_number       goes into the injected calls; any value
 *   name               the class's name in internal form ("java/lang/String"), or NULL where it is not known; it must
 *                      be the one in the image. Only this argument tells the rewriter of java/lang/Thread
 *   file_image         the class file; left as it is
 *   file_len           its length in bytes; 0 means that there is nothing to do
 *   system_class       1 for a class that the VM may load while it starts, which leaves its <clinit>, trivial
 *                      constructors and finalizers, and Thread.currentThread alone; else 0
 *   tclass_name        the tracker class in internal form
 *   tclass_sig         the same as a descriptor, "Lcom/example/Tracker;"
 *   call_name, return_name, obj_init_name, newarray_name
 *                      the tracker's methods; NULL for what is not to be injected
 *   call_sig, return_sig, obj_init_sig, newarray_sig
 *                      their descriptors, which must be those above; looked at only where the name is given
 *   pnew_file_image    receives the new image, which the caller frees with free(); NULL where there is none
 *   pnew_file_len      receives its length in bytes; 0 where there is none
 *   fatal_error_handler, mnum_callback
 *                      may be NULL
 *
 * The new image is at most 2 * file_len + 512 bytes long. A class that would need more fails.
 */
JAVA_CRW_DEMO_EXPORT void java_crw_demo(unsigned class_number, const char* name, const unsigned char* file_image,
                                        long file_len, int system_class, const char* tclass_name,
                                        const char* tclass_sig, const char* call_name, const char* call_sig,
                                        const char* return_name, const char* return_sig, const char* obj_init_name,
                                        const char* obj_init_sig, const char* newarray_name, const char* newarray_sig,
                                        unsigned char** pnew_file_image, long* pnew_file_len,
                                        JavaCrwDemoErrorHandler fatal_error_handler,
                                        JavaCrwDemoMethodNames mnum_callback);

/*
 * The name of the class in an image, in internal form, which the caller frees with free(). NULL for an image that is
 * NULL or empty, and after a failure whose handler returned.
 */
JAVA_CRW_DEMO_EXPORT char* java_crw_demo_classname(const unsigned char* file_image, long file_len,
                                                   JavaCrwDemoErrorHandler fatal_error_handler);

#ifdef __cplusplus
}
#endif

#endif
