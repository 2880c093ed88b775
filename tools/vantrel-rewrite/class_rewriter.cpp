#include "class_rewriter.h"

#include <vantrel_rewriter.h>

#include <new>
#include <string_view>

#include "class_file.h"
#include "kept_classes.h"
#include "module_packages.h"

namespace vantrel_rewrite {

namespace {

// More than any class file has: compilers write some megabytes at most, and a VM takes 2 GB at most. A packed entry may
// unpack to more, and is not read any further.
constexpr size_t kLargestClass = size_t{256} << 20U;

// What the rewriter's callback is given: of which class the lines are, and where they go.
struct MapLines {
    const ClassFile& file;
    bool only_with_code;  // leave out methods that can never be entered
    std::string lines;
};

void add_map_lines(void* context, std::uint32_t class_number, const char* const* names, const char* const* descriptors,
                   int count) {
    MapLines& map = *static_cast<MapLines*>(context);
    for (int method = 0; method < count; ++method) {
        if (map.only_with_code && (map.file.methods[static_cast<size_t>(method)].access & (kAbstract | kNative)) != 0) {
            continue;
        }
        map.lines += std::to_string(class_number) + '\t' + std::to_string(method);
        for (const std::string_view text : {std::string_view(map.file.name), std::string_view(names[method]),
                                            std::string_view(descriptors[method])}) {
            map.lines += '\t' + escaped(text);
        }
        map.lines += '\n';
    }
}

const char* or_null(const std::optional<std::string>& name) {
    return name ? name->c_str() : nullptr;
}

// Releases the image with the rest of the rewriter's result.
struct RewriterResult {
    RewriterResult() { told.size = sizeof told; }
    ~RewriterResult() { vantrel_rewriter_release(&told); }
    RewriterResult(const RewriterResult&) = delete;
    RewriterResult& operator=(const RewriterResult&) = delete;

    VantrelRewriterResult told{};
};

// Where a rewrite failed, as far as the rewriter knows, and why.
std::string failure_of(const VantrelRewriterResult& told, const std::string& class_name) {
    std::string text = "class " + class_name;
    if (told.method[0] != '\0') {
        text += std::string(", method ") + told.method;
    }
    if (told.pc >= 0) {
        text += ", pc " + std::to_string(told.pc);
    }
    return text + ": " + told.sentence;
}

RewrittenClass not_rewritten(Outcome outcome, std::string reason) {
    RewrittenClass result;
    result.outcome = outcome;
    result.reason = std::move(reason);
    return result;
}

VantrelRewriterOptions options_for(const TrackerCalls& tracker, unsigned number, const std::string& class_name,
                                   MapLines& map) {
    VantrelRewriterOptions options{};
    options.size = sizeof options;
    options.tracker_class = tracker.class_name.c_str();
    options.call_tracker = or_null(tracker.call);
    options.return_tracker = or_null(tracker.return_);
    options.object_init_tracker = or_null(tracker.object_init);
    options.newarray_tracker = or_null(tracker.new_array);
    options.numbered_newarray_tracker = or_null(tracker.numbered_new_array);
    options.class_name = class_name.c_str();
    options.class_number = number;
    options.system_class = tracker.system_class ? 1 : 0;
    options.methods = add_map_lines;
    options.context = &map;
    return options;
}

// The tool that made the jar may have put a list of the module's packages into its module-info. If so, the tracker's
// package must be in that list.
RewrittenClass module_info(const ClassSource& source, const std::string& place, BytesView image,
                           const ClassFile& file) {
    RewrittenClass result = not_rewritten(Outcome::NoCode, "a module-info has no code");
    if (source.counting != nullptr && source.counting->has_classes(place)) {
        result.image = with_package(image, file, source.counting->package_of(place));
    }
    return result;
}

RewrittenClass rewrite_image(const Arguments& arguments, const ClassSource& source, unsigned number, BytesView image) {
    const ClassFile file = read_class_file(image);
    std::optional<std::string> place = "";
    std::optional<TrackerCalls> own_tracker;
    if (source.counting != nullptr) {
        place = place_of(source.file, file.name);
        if (!place) {
            return not_rewritten(Outcome::Kept, "its file is not named like the class, which is " + file.name);
        }
        own_tracker = source.counting->tracker_of(*place);
    }
    if (auto reason = reason_to_keep(arguments, file.name)) {
        return not_rewritten(Outcome::Kept, *std::move(reason));
    }
    if (file.end < image.size()) {
        return not_rewritten(Outcome::Failed, std::to_string(image.size() - file.end) +
                                                  " bytes come after its end, which no VM accepts");
    }
    MapLines map{file, source.counting != nullptr, {}};
    RewriterResult rewritten;
    const VantrelRewriterOptions options =
        options_for(own_tracker ? *own_tracker : arguments.tracker, number, file.name, map);
    switch (vantrel_rewriter_rewrite(image.data(), image.size(), &options, &rewritten.told)) {
        case VANTREL_REWRITER_REWRITTEN:
            break;
        case VANTREL_REWRITER_CARRIED_OVER:
            return module_info(source, *place, image, file);
        case VANTREL_REWRITER_OUT_OF_MEMORY:
            throw std::bad_alloc();
        default:
            return not_rewritten(Outcome::Failed, failure_of(rewritten.told, file.name));
    }
    RewrittenClass result;
    result.outcome = Outcome::Rewritten;
    result.place = *std::move(place);
    result.image.assign(rewritten.told.image, rewritten.told.image + rewritten.told.length);
    result.map_lines = std::move(map.lines);
    if (file.super_name.empty()) {
        result.reason = "java.lang.Object has a field and a method more now, with which a HotSpot VM does not start";
    }
    return result;
}

}  // namespace

unsigned newest_version() {
    return static_cast<unsigned>(vantrel_rewriter_newest_class_file_version());
}

std::string escaped(std::string_view name) {
    std::string text;
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
    return text;
}

RewrittenClass rewrite_class(const Arguments& arguments, const ClassSource& source, unsigned number, std::uint64_t size,
                             const ReadClass& read) {
    Bytes image = read(kHeaderSize);
    if (image.empty()) {
        return not_rewritten(Outcome::Failed, "it is empty");
    }
    const unsigned version = class_version(image);
    if (version == 0) {
        return not_rewritten(Outcome::Failed, "it does not begin as a class file does");
    }
    if (version > newest_version()) {
        return not_rewritten(Outcome::TooNew, "version " + std::to_string(version) + " is newer than " +
                                                  std::to_string(newest_version()));
    }
    if (size > kLargestClass) {
        return not_rewritten(Outcome::Failed, "it is too large to be a class file");
    }
    const Bytes rest = read(kLargestClass);
    image.insert(image.end(), rest.begin(), rest.end());
    try {
        return rewrite_image(arguments, source, number, image);
    } catch (const Malformed& malformed) {
        return not_rewritten(Outcome::Failed, malformed.reason);
    }
}

}  // namespace vantrel_rewrite
