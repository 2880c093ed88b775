#include "class_rewriter.h"

#include <java_crw_demo.h>

#include <algorithm>
#include <string_view>

#include "class_file.h"
#include "kept_classes.h"

namespace vantrel_rewrite {

namespace {

// More than any class file has: compilers write some megabytes at most, and a VM takes one of 2 GB at most. What is
// packed as a class may unpack to more, and is not read further then.
constexpr size_t kLargestClass = size_t{256} << 20U;

// Thrown through the rewriter by its error handler.
struct RewriteFailed {
    std::string message;
};

[[noreturn]] void fail(const char* message, const char* /*source_file*/, int /*line*/) {
    throw RewriteFailed{message};
}

// The rewriter's callback has no argument of ours: it finds the class that its thread is at here.
struct MapLines {
    std::string_view class_name;
    std::string lines;
};
thread_local MapLines* current_map = nullptr;

// A name in a class file may hold anything but a few punctuation marks, a tab for one.
void append_escaped(std::string& text, std::string_view name) {
    for (const char character : name) {
        switch (character) {
            case '\t':
                text += "\\t";
                break;
            case '\n':
                text += "\\n";
                break;
            case '\r':
                text += "\\r";
                break;
            case '\\':
                text += "\\\\";
                break;
            default:
                text += character;
        }
    }
}

void add_map_lines(unsigned class_number, const char** names, const char** descriptors, int count) {
    std::string& lines = current_map->lines;
    for (int method = 0; method < count; ++method) {
        lines += std::to_string(class_number) + '\t' + std::to_string(method);
        for (const std::string_view text :
             {current_map->class_name, std::string_view(names[method]), std::string_view(descriptors[method])}) {
            lines += '\t';
            append_escaped(lines, text);
        }
        lines += '\n';
    }
}

const char* or_null(const std::optional<std::string>& name) {
    return name ? name->c_str() : nullptr;
}

struct FreeImage {
    void operator()(unsigned char* image) const { std::free(image); }
};

// Throws RewriteFailed. The result is empty if the rewriter makes nothing of the image.
Bytes inject(const TrackerCalls& tracker, unsigned number, const std::string& name, BytesView image) {
    unsigned char* new_image = nullptr;
    long new_length = 0;
    java_crw_demo(number, name.c_str(), image.data(), static_cast<long>(image.size()), tracker.system_class ? 1 : 0,
                  tracker.class_name.c_str(), tracker.signature.c_str(), or_null(tracker.call), kNumbersDescriptor,
                  or_null(tracker.return_), kNumbersDescriptor, or_null(tracker.object_init), kObjectDescriptor,
                  or_null(tracker.new_array), kObjectDescriptor, &new_image, &new_length, fail, add_map_lines);
    const std::unique_ptr<unsigned char, FreeImage> owner(new_image);
    return {new_image, new_image + new_length};
}

// A class with the first methods of another one, and without that one's attributes.
Bytes with_first_methods(BytesView image, const ClassFile& file, size_t count) {
    constexpr size_t kCountSize = 2;
    const size_t end = count > 0 ? file.methods[count - 1].end : file.methods_begin + kCountSize;
    Bytes result(image.begin(), image.begin() + static_cast<std::ptrdiff_t>(end));
    result[file.methods_begin] = static_cast<unsigned char>(count >> 8U);
    result[file.methods_begin + 1] = static_cast<unsigned char>(count);
    result.insert(result.end(), kCountSize, 0);
    return result;
}

// The method at which a rewrite fails, or their number if it is none of them. The rewriter does not tell, but goes
// through them in their order.
size_t find_failing_method(const TrackerCalls& tracker, unsigned number, BytesView image, const ClassFile& file) {
    const auto fails_with = [&](size_t count) {
        MapLines unused{file.name, {}};
        current_map = &unused;
        try {
            inject(tracker, number, file.name, with_first_methods(image, file, count));
            return false;
        } catch (const RewriteFailed&) {
            return true;
        }
    };
    size_t works = 0;
    size_t fails = file.methods.size();
    // While it rewrites java.lang.Object, the rewriter prints to stdout.
    if (file.name == "java/lang/Object" || fails_with(works) || !fails_with(fails)) {
        return file.methods.size();
    }
    while (fails - works > 1) {
        const size_t middle = works + (fails - works) / 2;
        (fails_with(middle) ? fails : works) = middle;
    }
    return works;
}

// What the rewriter's message means to somebody who does not know the rewriter.
std::string explain(const std::string& message) {
    if (message.find("mi->new_code_len <= 0xFFFF") != std::string::npos) {
        return "with the calls its code has more than 65535 bytes, which no method may have";
    }
    if (message.find("mi->new_max_stack <= 0xFFFF") != std::string::npos) {
        return "the calls need more stack than a method may have";
    }
    if (message.find("cpool_max_elements") != std::string::npos) {
        return "its constant pool has no room for the names of the calls";
    }
    return "what it holds is damaged, or grows too much with the calls";
}

RewrittenClass not_rewritten(Outcome outcome, std::string reason) {
    RewrittenClass result;
    result.outcome = outcome;
    result.reason = std::move(reason);
    return result;
}

RewrittenClass rewrite_image(const Arguments& arguments, unsigned number, Bytes image) {
    const ClassFile file = read_class_file(image);
    if (auto reason = reason_to_keep(arguments, file.name)) {
        return not_rewritten(Outcome::Kept, *std::move(reason));
    }
    if (file.end < image.size()) {
        return not_rewritten(Outcome::Failed, std::to_string(image.size() - file.end) +
                                                  " bytes come after its end, which no VM accepts");
    }
    MapLines map{file.name, {}};
    current_map = &map;
    RewrittenClass result;
    try {
        result.image = inject(arguments.tracker, number, file.name, image);
    } catch (const RewriteFailed& failure) {
        const size_t method = find_failing_method(arguments.tracker, number, image, file);
        const std::string where =
            method == file.methods.size()
                ? "class " + file.name
                : "method " + file.methods[method].name + file.methods[method].descriptor + " of " + file.name;
        return not_rewritten(Outcome::Failed, where + ": " + explain(failure.message));
    }
    if (result.image.empty()) {
        return not_rewritten(Outcome::Failed, "the rewriter made nothing of it");
    }
    result.outcome = Outcome::Rewritten;
    result.map_lines = std::move(map.lines);
    return result;
}

}  // namespace

RewrittenClass rewrite_class(const Arguments& arguments, unsigned number, const ReadClass& read) {
    Bytes image = read(kHeaderSize);
    if (image.empty()) {
        return not_rewritten(Outcome::Failed, "it is empty");
    }
    const unsigned version = class_version(image);
    if (version == 0) {
        return not_rewritten(Outcome::Failed, "it does not begin as a class file does");
    }
    if (version > kNewestVersion) {
        return not_rewritten(Outcome::TooNew, "version " + std::to_string(version) + " is newer than 52");
    }
    const Bytes rest = read(kLargestClass);
    if (rest.size() == kLargestClass) {
        return not_rewritten(Outcome::Failed, "it is too large to be a class file");
    }
    image.insert(image.end(), rest.begin(), rest.end());
    try {
        return rewrite_image(arguments, number, std::move(image));
    } catch (const Malformed& malformed) {
        return not_rewritten(Outcome::Failed, malformed.reason);
    }
}

}  // namespace vantrel_rewrite
