#include "class_rewriter.h"

#include <java_crw_demo.h>

#include <string_view>

namespace vantrel_rewrite {

namespace {

constexpr int kNewestVersion = 52;
constexpr const char* kCallSignature = "(II)V";
constexpr const char* kObjectSignature = "(Ljava/lang/Object;)V";

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

// The major version, or 0 of what does not begin like a class file.
int version_of(BytesView image) {
    constexpr unsigned char magic[] = {0xCA, 0xFE, 0xBA, 0xBE};
    const bool is_class = image.size() >= 8 && std::equal(std::begin(magic), std::end(magic), image.begin());
    return is_class ? image[6] << 8 | image[7] : 0;
}

const char* or_null(const std::optional<std::string>& name) {
    return name ? name->c_str() : nullptr;
}

RewrittenClass not_rewritten(Outcome outcome, std::string reason) {
    RewrittenClass result;
    result.outcome = outcome;
    result.reason = std::move(reason);
    return result;
}

}  // namespace

RewrittenClass rewrite_class(const TrackerCalls& tracker, unsigned number, BytesView image) {
    if (image.empty()) {
        return not_rewritten(Outcome::Failed, "the file is empty");
    }
    if (const int version = version_of(image); version > kNewestVersion) {
        return not_rewritten(Outcome::TooNew, "version " + std::to_string(version) + " is newer than 52");
    }
    const auto length = static_cast<long>(image.size());
    try {
        struct FreeText {
            void operator()(char* text) const { std::free(text); }
        };
        const std::unique_ptr<char, FreeText> name(java_crw_demo_classname(image.data(), length, fail));
        if (!name) {
            return not_rewritten(Outcome::Failed, "the class has no name");
        }
        MapLines map{name.get(), {}};
        current_map = &map;
        unsigned char* new_image = nullptr;
        long new_length = 0;
        java_crw_demo(number, name.get(), image.data(), length, tracker.system_class ? 1 : 0,
                      tracker.class_name.c_str(), tracker.signature.c_str(), or_null(tracker.call), kCallSignature,
                      or_null(tracker.return_), kCallSignature, or_null(tracker.object_init), kObjectSignature,
                      or_null(tracker.new_array), kObjectSignature, &new_image, &new_length, fail, add_map_lines);
        RewrittenClass result;
        result.image.reset(new_image);
        result.size = static_cast<size_t>(new_length);
        if (!result.image) {
            return not_rewritten(Outcome::Failed, "the rewriter made nothing of it");
        }
        result.outcome = Outcome::Rewritten;
        result.map_lines = std::move(map.lines);
        return result;
    } catch (const RewriteFailed& failure) {
        return not_rewritten(Outcome::Failed, failure.message);
    }
}

}  // namespace vantrel_rewrite
