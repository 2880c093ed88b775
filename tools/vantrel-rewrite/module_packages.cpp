#include "module_packages.h"

#include <algorithm>

namespace vantrel_rewrite {

namespace {

constexpr unsigned kUtf8 = 1;
constexpr unsigned kPackage = 20;
constexpr size_t kAttributeSize = 4;  // the number in front of an attribute's contents that says how long they are

void append(Bytes& to, size_t number, size_t size) {
    while (size-- > 0) {
        to.push_back(static_cast<unsigned char>(number >> 8U * size));
    }
}

void append(Bytes& to, BytesView bytes) {
    to.insert(to.end(), bytes.begin(), bytes.end());
}

}  // namespace

Bytes with_package(BytesView image, const ClassFile& file, std::string_view package) {
    const auto list = std::find_if(file.attributes.begin(), file.attributes.end(),
                                   [](const auto& attribute) { return attribute.name == "ModulePackages"; });
    if (list == file.attributes.end() || list->size < 2) {
        return {};
    }
    const size_t packages = static_cast<size_t>(image[list->begin]) << 8U | image[list->begin + 1];
    const size_t constants = file.constant_count + 2;
    if (packages == UINT16_MAX || constants > UINT16_MAX) {
        throw Malformed{"it has no room for the tracker's package"};
    }
    Bytes result(image.begin(), image.begin() + kConstantCount);
    append(result, constants, 2);
    append(result, image.subspan(kConstantCount + 2, file.end_of_constants - kConstantCount - 2));
    append(result, kUtf8, 1);
    append(result, package.size(), 2);
    append(result, bytes_of(package));
    append(result, kPackage, 1);
    append(result, file.constant_count, 2);  // the text before it

    const size_t size_at = list->begin - kAttributeSize;
    append(result, image.subspan(file.end_of_constants, size_at - file.end_of_constants));
    append(result, list->size + 2, kAttributeSize);
    append(result, packages + 1, 2);
    append(result, image.subspan(list->begin + 2, list->size - 2));
    append(result, constants - 1, 2);
    append(result, image.subspan(list->begin + list->size));
    return result;
}

}  // namespace vantrel_rewrite
