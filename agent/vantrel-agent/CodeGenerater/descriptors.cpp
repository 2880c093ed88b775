#include "descriptors.h"

#include <algorithm>

using generator::Argument;
using generator::Type;
using std::string_view;

namespace {

struct Words {
    char descriptor;
    string_view type;
    string_view result_word;    // empty: a result cannot be that
    string_view argument_word;  // empty: an argument cannot be that
};

// The word of an argument becomes the stem of a parameter's name; for an object it is the simple name of the class.
// "shortVal" breaks the rule, but proxies have always been written with it.
constexpr Words kWords[] = {
    {'B', "jbyte", "Byte", "Byte"},          {'C', "jchar", "Char", "Char"},       {'D', "jdouble", "Double", "Double"},
    {'F', "jfloat", "Float", "Float"},       {'I', "jint", "Int", "Int"},          {'J', "jlong", "Long", "Long"},
    {'L', "jobject", "Object", "Object"},    {'S', "jshort", "Short", "shortVal"}, {'V', "void", "Void", ""},
    {'Z', "jboolean", "Boolean", "Boolean"},
};

const Words* find_words(string_view element) {
    const auto* const found = std::find_if(std::begin(kWords), std::end(kWords), [&](const Words& words) {
        return !element.empty() && words.descriptor == element.front();
    });
    return found != std::end(kWords) ? found : nullptr;
}

// The number of dimensions, and what an array is of.
struct Element {
    int dimensions;
    string_view descriptor;
};

Element element_of(string_view descriptor) {
    const size_t dimensions = std::min(descriptor.find_first_not_of('['), descriptor.size());
    return {static_cast<int>(dimensions), descriptor.substr(dimensions)};
}

// The name in "Ljava/awt/Point;".
string_view class_in(string_view element) {
    return element.substr(1, element.find(';') - 1);
}

// Reads the first argument in a list of descriptors. If it is malformed, it takes the whole rest of the list, and has
// no type.
Argument read_argument(string_view list) {
    const auto [dimensions, element] = element_of(list);
    const Words* words = find_words(element);
    if (words == nullptr || words->argument_word.empty()) {
        return {std::string(list), "", "", dimensions};
    }
    const size_t length = element.front() == 'L' ? std::min(element.find(';'), element.size() - 1) + 1 : 1;
    return {std::string(list.substr(0, dimensions + length)), std::string(words->type),
            std::string(element.front() == 'L' ? generator::simple_name(class_in(element)) : words->argument_word),
            dimensions};
}

}  // namespace

Type generator::read_type(string_view descriptor) {
    const auto [dimensions, element] = element_of(descriptor);
    const Words* words = find_words(element);
    if (words == nullptr) {
        return {"", "", dimensions};
    }
    return {std::string(words->type), std::string(dimensions > 0 ? "Object" : words->result_word), dimensions};
}

string_view generator::result_of(string_view descriptor) {
    const size_t end = descriptor.rfind(')');
    return end != string_view::npos ? descriptor.substr(end + 1) : "";
}

std::vector<Argument> generator::read_arguments(string_view descriptor) {
    string_view list = descriptor.substr(0, descriptor.rfind(')'));
    list.remove_prefix(list.starts_with('(') ? 1 : 0);
    std::vector<Argument> arguments;
    while (!list.empty()) {
        arguments.push_back(read_argument(list));
        list.remove_prefix(arguments.back().descriptor.size());
    }
    return arguments;
}

bool generator::is_in_no_package(string_view descriptor) {
    const string_view element = element_of(descriptor).descriptor;
    return element.starts_with('L') && class_in(element).find('/') == string_view::npos;
}
