#include "fix_ups.h"

#include <utility>

namespace macho {
namespace {

constexpr std::uint64_t kPointer = 8;  // bytes
constexpr unsigned kPointerType = 1;   // the only one that x86-64 has

// The upper half of an instruction's byte says what is to be done, the lower half is an operand. Further operands
// follow it. Those that are not here the linker has not left in this library, and they are refused.
constexpr unsigned kInstruction = 0xF0;
constexpr unsigned kOperand = 0x0F;
enum RebaseInstruction : unsigned {
    kEnd = 0x00,
    kType = 0x10,
    kPlace = 0x20,
    kSkip = 0x30,
    kSkipPointers = 0x40,
    kRebaseFew = 0x50,
    kRebaseMany = 0x60,
    kRebaseAndSkip = 0x70,
    kRebaseManyApart = 0x80,
};
enum BindInstruction : unsigned {
    kEndOfBind = 0x00,  // of all, but the lazy ones have one after each
    kLibrary = 0x10,
    kSymbol = 0x40,
    kBindType = 0x50,
    kBindPlace = 0x70,
    kBindSkip = 0x80,
    kBind = 0x90,
};

struct Cursor {
    Bytes bytes;
    std::uint64_t at = 0;

    [[nodiscard]] bool at_end() const { return at >= bytes.size(); }
    std::uint8_t byte() { return number_at<std::uint8_t>(bytes, at++); }
    // Seven bits a byte, the lowest first (DWARF's LEB128).
    std::uint64_t unsigned_number() {
        std::uint64_t number = 0;
        for (unsigned shift = 0;; shift += 7) {
            const std::uint8_t next = byte();
            number |= shift < 64 ? std::uint64_t{next & 0x7FU} << shift : 0;
            if ((next & 0x80U) == 0) {
                return number;
            }
        }
    }
    std::string text() {
        std::string characters;
        while (const std::uint8_t next = byte()) {
            characters.push_back(static_cast<char>(next));
        }
        return characters;
    }
};

[[noreturn]] void refuse(const std::string& what, unsigned code) {
    throw Error(what + " " + std::to_string(code) + " is not known here");
}

void expect_pointer(unsigned type) {
    if (type != kPointerType) {
        refuse("fix-up of type", type);
    }
}

std::uint64_t segment_address(const File& file, unsigned number) {
    if (number >= file.segments.size()) {
        refuse("segment", number);
    }
    return file.segments[number].address;
}

void run_binds(const File& file, Bytes program, std::vector<Bind>& found) {
    Bind bind{};
    for (Cursor cursor{program}; !cursor.at_end();) {
        const std::uint8_t instruction = cursor.byte();
        const unsigned operand = instruction & kOperand;
        switch (instruction & kInstruction) {
            case kEndOfBind:
                break;
            case kLibrary:
                if (operand == 0 || operand > file.libraries.size()) {
                    refuse("library", operand);
                }
                bind.library = file.libraries[operand - 1];
                break;
            case kSymbol:
                bind.symbol = cursor.text();
                break;
            case kBindType:
                expect_pointer(operand);
                break;
            case kBindPlace:
                bind.address = segment_address(file, operand) + cursor.unsigned_number();
                break;
            case kBindSkip:
                bind.address += cursor.unsigned_number();
                break;
            case kBind:
                found.push_back(bind);
                bind.address += kPointer;
                break;
            default:
                refuse("bind instruction", instruction);
        }
    }
}

}  // namespace

std::vector<std::uint64_t> rebases(const File& file) {
    std::vector<std::uint64_t> found;
    std::uint64_t address = 0;
    for (Cursor cursor{file.rebases}; !cursor.at_end();) {
        const std::uint8_t instruction = cursor.byte();
        const unsigned operand = instruction & kOperand;
        std::uint64_t times = 0;
        std::uint64_t skip = 0;
        switch (instruction & kInstruction) {
            case kEnd:
                return found;
            case kType:
                expect_pointer(operand);
                break;
            case kPlace:
                address = segment_address(file, operand) + cursor.unsigned_number();
                break;
            case kSkip:
                address += cursor.unsigned_number();
                break;
            case kSkipPointers:
                address += operand * kPointer;
                break;
            case kRebaseFew:
                times = operand;
                break;
            case kRebaseMany:
                times = cursor.unsigned_number();
                break;
            case kRebaseAndSkip:
                times = 1;
                skip = cursor.unsigned_number();
                break;
            case kRebaseManyApart:
                times = cursor.unsigned_number();
                skip = cursor.unsigned_number();
                break;
            default:
                refuse("rebase instruction", instruction);
        }
        for (; times > 0; --times) {
            found.push_back(address);
            address += kPointer + skip;
        }
    }
    return found;
}

std::vector<Bind> binds(const File& file) {
    std::vector<Bind> found;
    run_binds(file, file.binds, found);
    run_binds(file, file.lazy_binds, found);
    return found;
}

// A node of the trie has an address, if a name ends there, and children with what they add to the name.
std::map<std::string, std::uint64_t> exports(const File& file) {
    std::map<std::string, std::uint64_t> found;
    std::vector<std::pair<std::uint64_t, std::string>> nodes = {{0, ""}};
    while (!nodes.empty()) {
        const auto [node, name] = nodes.back();
        nodes.pop_back();
        Cursor cursor{file.exports, node};
        if (const std::uint64_t size = cursor.unsigned_number(); size > 0) {
            const std::uint64_t begin = cursor.at;
            if (const std::uint64_t flags = cursor.unsigned_number(); flags != 0) {
                refuse("export " + name + " of kind", static_cast<unsigned>(flags));
            }
            found.emplace(name, cursor.unsigned_number());
            cursor.at = begin + size;
        }
        for (unsigned children = cursor.byte(); children > 0; --children) {
            const std::string longer = name + cursor.text();
            nodes.emplace_back(cursor.unsigned_number(), longer);
            if (nodes.back().first <= node) {
                throw Error("the trie of its exports leads back");
            }
        }
    }
    return found;
}

}  // namespace macho
