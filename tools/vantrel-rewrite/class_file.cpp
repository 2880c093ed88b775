#include "class_file.h"

#include <algorithm>
#include <iterator>

namespace vantrel_rewrite {

namespace {

// Reads an image from its first byte to its last, and nothing beyond.
class Reader {
  public:
    explicit Reader(BytesView image) : image_(image) {}

    // What is read now, for the message where the image ends in the middle of it.
    void enter(const char* part) { part_ = part; }

    BytesView bytes(size_t count) {
        if (count > image_.size() - position_) {
            throw Malformed{std::string("it ends in the middle of ") + part_};
        }
        const BytesView result = image_.subspan(position_, count);
        position_ += count;
        return result;
    }
    std::uint32_t number(size_t size) {
        std::uint32_t value = 0;
        for (const unsigned char byte : bytes(size)) {
            value = value << 8U | byte;
        }
        return value;
    }
    std::uint16_t u2() { return static_cast<std::uint16_t>(number(2)); }
    [[nodiscard]] size_t position() const { return position_; }

  private:
    BytesView image_;
    size_t position_ = 0;
    const char* part_ = "its header";
};

enum Tag { kUtf8 = 1, kLong = 5, kDouble = 6, kClass = 7, kNewestTag = 20 };

// By tag, how many bytes come after it (JVM specification 4.4); for a text, only those of its length. 0 where there is
// no such tag.
constexpr unsigned char kConstantSizes[kNewestTag + 1] = {0, 2, 0, 4, 4, 8, 8, 2, 2, 4, 4,
                                                          4, 4, 0, 0, 3, 2, 4, 4, 2, 2};

// The constant pool, as far as names need it.
class Constants {
  public:
    explicit Constants(Reader& reader) {
        reader.enter("its constant pool");
        const size_t count = reader.u2();
        constants_.resize(std::max<size_t>(count, 1));
        for (size_t index = 1; index < count; ++index) {
            const std::uint32_t tag = reader.number(1);
            const size_t size = tag <= kNewestTag ? kConstantSizes[tag] : 0;
            if (size == 0) {
                throw Malformed{"it has a constant of an unknown kind, " + std::to_string(tag)};
            }
            BytesView bytes = reader.bytes(size);
            const size_t value = static_cast<size_t>(bytes[0]) << 8U | bytes[1];
            if (tag == kUtf8) {
                bytes = reader.bytes(value);
            }
            constants_[index] = {tag, value, bytes};
            index += tag == kLong || tag == kDouble ? 1 : 0;  // these take two indexes
        }
    }

    [[nodiscard]] bool is_text(size_t index) const {
        return index < constants_.size() && constants_[index].tag == kUtf8;
    }
    [[nodiscard]] std::string text(size_t index) const {
        const BytesView bytes = get(index, kUtf8).bytes;
        return {bytes.begin(), bytes.end()};
    }
    [[nodiscard]] size_t count() const { return constants_.size(); }
    [[nodiscard]] std::string class_name(size_t index) const { return text(get(index, kClass).value); }

  private:
    struct Constant {
        std::uint32_t tag = 0;
        size_t value = 0;
        BytesView bytes;
    };
    [[nodiscard]] const Constant& get(size_t index, std::uint32_t tag) const {
        if (index >= constants_.size() || constants_[index].tag != tag) {
            throw Malformed{"it has a name that is not in its constant pool"};
        }
        return constants_[index];
    }
    std::vector<Constant> constants_;
};

void skip_attributes(Reader& reader) {
    for (size_t left = reader.u2(); left > 0; --left) {
        reader.u2();  // its name
        reader.bytes(reader.number(4));
    }
}

void skip_fields(Reader& reader) {
    constexpr size_t kFlagsNameAndDescriptor = 6;
    for (size_t left = reader.u2(); left > 0; --left) {
        reader.bytes(kFlagsNameAndDescriptor);
        skip_attributes(reader);
    }
}

}  // namespace

unsigned class_version(BytesView begin) {
    constexpr unsigned char kMagic[] = {0xCA, 0xFE, 0xBA, 0xBE};
    const bool is_class =
        begin.size() >= kHeaderSize && std::equal(std::begin(kMagic), std::end(kMagic), begin.begin());
    return is_class ? static_cast<unsigned>(begin[6]) << 8U | begin[7] : 0;
}

ClassFile read_class_file(BytesView image) {
    Reader reader(image);
    reader.bytes(kHeaderSize);
    const Constants constants(reader);
    ClassFile file;
    file.constant_count = constants.count();
    file.end_of_constants = reader.position();
    reader.enter("its names");
    file.access = reader.u2();
    file.name = constants.class_name(reader.u2());
    if (const size_t super = reader.u2(); super != 0) {
        file.super_name = constants.class_name(super);
    }
    reader.bytes(size_t{2} * reader.u2());  // the interfaces
    reader.enter("its fields");
    skip_fields(reader);
    reader.enter("its methods");
    for (size_t left = reader.u2(); left > 0; --left) {
        ClassFile::Method method;
        method.access = reader.u2();
        method.name = constants.text(reader.u2());
        method.descriptor = constants.text(reader.u2());
        skip_attributes(reader);
        file.methods.push_back(std::move(method));
    }
    reader.enter("its attributes");
    for (size_t left = reader.u2(); left > 0; --left) {
        const size_t name = reader.u2();
        const size_t size = reader.number(4);
        file.attributes.push_back({constants.is_text(name) ? constants.text(name) : "", reader.position(), size});
        reader.bytes(size);
    }
    file.end = reader.position();
    return file;
}

}  // namespace vantrel_rewrite
