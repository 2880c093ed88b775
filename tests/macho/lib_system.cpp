#include "lib_system.h"

#include <dlfcn.h>
#include <pthread.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cassert>
#include <cerrno>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <map>
#include <mutex>

#include "image.h"
#include "system.h"

namespace macho {
namespace {

// Functions that are the same on both systems; the library never looks into a FILE.
constexpr const char* kSame[] = {
    "__cxa_atexit",  "_Unwind_DeleteException",
    "_Unwind_GetIP", "_Unwind_GetLanguageSpecificData",
    "_Unwind_SetGR", "_Unwind_GetRegionStart",
    "_Unwind_SetIP", "_Unwind_RaiseException",
    "abort",         "_Unwind_Resume",
    "access",        "aligned_alloc",
    "calloc",        "exit",
    "fclose",        "fflush",
    "fopen",         "fprintf",
    "fputc",         "free",
    "fwrite",        "malloc",
    "memchr",        "memcmp",
    "memcpy",        "memmove",
    "memset",        "printf",
    "putchar",       "pthread_self",
    "puts",          "realloc",
    "remove",        "rename",
    "snprintf",      "strcat",
    "strchr",        "strcmp",
    "strcpy",        "strcspn",
    "strdup",        "strerror",
    "strlen",        "strncmp",
    "strspn",        "vfprintf",
};

// Mutexes, conditions and the like begin with a signature that tells those that were never used: all the library's are
// made by the initialisers of macOS's pthread.h. What follows is zero then, as in this system's own initialisers, and
// is room enough for a mutex and for a once, but not for a condition.
struct Signed {
    std::uint64_t signature;
    std::uint64_t room[7];
};
template <typename Own>
Own* own(Signed* foreign, std::uint64_t signature, const char* what) {
    static_assert(sizeof(Own) <= sizeof foreign->room);
    if (foreign->signature != signature) {
        give_up(what, " was not made by an initialiser");
    }
    return reinterpret_cast<Own*>(foreign->room);
}
pthread_mutex_t* mutex_in(Signed* mutex) {
    return own<pthread_mutex_t>(mutex, 0x32AAABA7, "a mutex");
}
pthread_cond_t* condition_of(Signed* condition) {
    static std::mutex lock;
    static std::map<Signed*, pthread_cond_t> conditions;
    const std::lock_guard hold(lock);
    return &conditions.try_emplace(condition, pthread_cond_t PTHREAD_COND_INITIALIZER).first->second;
}

int mutex_lock(Signed* mutex) {
    return pthread_mutex_lock(mutex_in(mutex));
}
int mutex_unlock(Signed* mutex) {
    return pthread_mutex_unlock(mutex_in(mutex));
}
int condition_wait(Signed* condition, Signed* mutex) {
    return pthread_cond_wait(condition_of(condition), mutex_in(mutex));
}
int condition_broadcast(Signed* condition) {
    return pthread_cond_broadcast(condition_of(condition));
}
int once(Signed* control, void (*routine)()) {
    return pthread_once(own<pthread_once_t>(control, 0x30B1BCBA, "a pthread_once_t"), routine);
}

// A key is a long there.
int key_create(std::uint64_t* key, void (*destructor)(void*)) {
    pthread_key_t own_key = 0;
    const int error = pthread_key_create(&own_key, destructor);
    *key = own_key;
    return error;
}
void* get_specific(std::uint64_t key) {
    return pthread_getspecific(static_cast<pthread_key_t>(key));
}
int set_specific(std::uint64_t key, const void* value) {
    return pthread_setspecific(static_cast<pthread_key_t>(key), value);
}
std::uint32_t thread_number(void* /*thread: always the caller's*/) {
    return static_cast<std::uint32_t>(syscall(SYS_gettid));
}

// macOS's struct stat with 64 bits for the number of a file.
struct FileStatus {
    std::int32_t device;
    std::uint16_t mode, links;
    std::uint64_t number;
    std::uint32_t user, group;
    std::int32_t special_device;
    timespec accessed, modified, changed, born;
    std::int64_t size, blocks;
    std::int32_t block_size;
    std::uint32_t flags, generation;
    std::int32_t spare;
    std::int64_t more_spare[2];
};
static_assert(sizeof(FileStatus) == 144);

int file_status(const char* path, FileStatus* status) {
    struct stat own_status {};
    if (stat(path, &own_status) != 0) {
        return -1;
    }
    *status = {};
    status->device = static_cast<std::int32_t>(own_status.st_dev);
    status->mode = static_cast<std::uint16_t>(own_status.st_mode);  // its bits are the same
    status->links = static_cast<std::uint16_t>(own_status.st_nlink);
    status->number = own_status.st_ino;
    status->user = own_status.st_uid;
    status->group = own_status.st_gid;
    status->modified = own_status.st_mtim;
    status->size = own_status.st_size;
    return 0;
}

int address_information(const void* address, Dl_info* info) {
    const Image* image = image_with(address);
    if (image == nullptr) {
        return dladdr(address, info);
    }
    *info = {image->path.c_str(), image->base, nullptr, nullptr};
    return 1;
}

[[noreturn]] void assertion_failed(const char* function, const char* file, int line, const char* expression) {
    __assert_fail(expression, file, static_cast<unsigned>(line), function);
}

void zero(void* begin, std::size_t size) {
    memset(begin, 0, size);
}
// The pattern begins anew every sixteen bytes.
void repeat_pattern(void* begin, const void* pattern, std::size_t size) {
    for (std::size_t at = 0; at < size; at += 16) {
        memcpy(static_cast<char*>(begin) + at, pattern, std::min<std::size_t>(16, size - at));
    }
}
int print_in_locale(char* buffer, std::size_t size, void* /*locale: C's*/, const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    const int length = vsnprintf(buffer, size, format, arguments);
    va_end(arguments);
    return length;
}

// For a table that nothing comes to read.
const void* unreadable() {
    constexpr std::size_t kRoom = 4096;
    return mmap(nullptr, kRoom, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
}

template <typename Function>
const void* code(Function* function) {
    return reinterpret_cast<const void*>(function);
}

}  // namespace

const void* in_lib_system(const std::string& symbol) {
    static const std::uint64_t stack_guard = 0x00F1E2D3C4B5A697;  // any number
    static const std::map<std::string, const void*> translated = {
        {"__DefaultRuneLocale", unreadable()},
        {"___assert_rtn", code(assertion_failed)},
        {"___bzero", code(zero)},
        {"___error", code(__errno_location)},
        {"___stack_chk_guard", &stack_guard},
        {"___stderrp", &stderr},
        {"___stdoutp", &stdout},
        {"_dladdr", code(address_information)},
        {"_memset_pattern16", code(repeat_pattern)},
        {"_pthread_cond_broadcast", code(condition_broadcast)},
        {"_pthread_cond_wait", code(condition_wait)},
        {"_pthread_getspecific", code(get_specific)},
        {"_pthread_key_create", code(key_create)},
        {"_pthread_mach_thread_np", code(thread_number)},
        {"_pthread_mutex_lock", code(mutex_lock)},
        {"_pthread_mutex_unlock", code(mutex_unlock)},
        {"_pthread_once", code(once)},
        {"_pthread_setspecific", code(set_specific)},
        {"_snprintf_l", code(print_in_locale)},
        {"_stat$INODE64", code(file_status)},
    };
    if (const auto found = translated.find(symbol); found != translated.end()) {
        return found->second;
    }
    const std::string name = symbol.substr(1);
    return std::ranges::find(kSame, name) != std::end(kSame) ? dlsym(RTLD_DEFAULT, name.c_str()) : nullptr;
}

}  // namespace macho
