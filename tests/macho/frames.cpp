#include "frames.h"

#include <array>
#include <span>
#include <vector>

// libgcc's: a list of tables, each of which ends with a zero; the list ends with a null pointer. One list has all
// tables, for of two whose address ranges overlap the unwinder would look into one only.
extern "C" void __register_frame_table(void* tables);  // NOLINT(bugprone-reserved-identifier): its name

namespace macho {
namespace {

// The numbers that DWARF has for the registers, in the order of the compact encoding's, from 1 on.
constexpr std::array<std::uint8_t, 7> kDwarfRegister = {0xFF, 3 /* rbx */, 12, 13, 14, 15, 6 /* rbp */};
constexpr std::uint8_t kRbp = 6;
constexpr std::uint8_t kRsp = 7;
constexpr std::uint8_t kReturnAddress = 16;
constexpr std::uint32_t kWord = 8;

// Of the others, functions of mode 4 are in DWARF already, and the one of mode 3, whose frame is larger than the
// encoding can say, is left out: an exception that comes there ends the process.
enum Mode : std::uint32_t { kRbpFrame = 1, kRspFrame = 2 };

// A function of the compact table.
struct Function {
    std::uint32_t begin;
    std::uint32_t encoding;
};

constexpr std::uint32_t bits(std::uint32_t value, unsigned lowest, unsigned count) {
    return value >> lowest & ((1U << count) - 1);
}

// What a frame is made of: where the caller's stack pointer is, and which registers are kept where.
struct Frame {
    std::uint8_t base_register;
    std::uint32_t size;  // from there to the caller's stack pointer
    struct Kept {
        std::uint8_t register_number;
        std::uint32_t words_below;  // the caller's stack pointer
    };
    std::vector<Kept> kept;
};

Frame rbp_frame(std::uint32_t encoding) {
    Frame frame{kRbp, 2 * kWord, {{kRbp, 2}}};
    const std::uint32_t words = bits(encoding, 16, 8) + 2;
    for (unsigned i = 0; i < 5; ++i) {
        if (const std::uint32_t kept = bits(encoding, 3 * i, 3); kept != 0) {
            frame.kept.push_back({kDwarfRegister.at(kept), words - i});
        }
    }
    return frame;
}

// Which of the six registers are kept is one number: that of the sequence among all of that length.
std::vector<std::uint8_t> sequence(std::uint32_t number, std::uint32_t length) {
    std::vector<std::uint8_t> left(kDwarfRegister.begin() + 1, kDwarfRegister.end());
    std::vector<std::uint8_t> chosen;
    for (std::uint32_t i = 0; i < length; ++i) {
        std::uint32_t sequences = 1;
        for (std::uint32_t later = i + 1; later < length; ++later) {
            sequences *= 6 - later;
        }
        const std::uint32_t choice = number / sequences;
        number %= sequences;
        if (choice >= left.size()) {
            throw Error("its compact unwind table keeps a register that there is not");
        }
        chosen.push_back(left[choice]);
        left.erase(left.begin() + choice);
    }
    return chosen;
}

Frame rsp_frame(std::uint32_t encoding) {
    Frame frame{kRsp, bits(encoding, 16, 8) * kWord, {}};
    const std::uint32_t count = bits(encoding, 10, 3);
    std::uint32_t words = count + 1;
    for (const std::uint8_t kept : sequence(bits(encoding, 0, 10), count)) {
        frame.kept.push_back({kept, words--});
    }
    return frame;
}

// A table in DWARF's form (.eh_frame), addresses whole.
struct Table {
    std::vector<std::uint8_t> bytes;
    std::size_t entry = 0;

    template <typename Number>
    void add(Number number) {
        const auto* begin = reinterpret_cast<const std::uint8_t*>(&number);
        bytes.insert(bytes.end(), begin, begin + sizeof number);
    }
    void add_bytes(std::initializer_list<unsigned> more) { bytes.insert(bytes.end(), more.begin(), more.end()); }
    void add_number(std::uint32_t number) {
        for (; number >= 0x80; number >>= 7U) {
            add<std::uint8_t>((number & 0x7FU) | 0x80U);
        }
        add<std::uint8_t>(number);
    }
    void begin_entry() {
        entry = bytes.size();
        add<std::uint32_t>(0);
    }
    void end_entry() {
        bytes.resize((bytes.size() + kWord - 1) / kWord * kWord);  // DW_CFA_nop is zero
        const auto length = static_cast<std::uint32_t>(bytes.size() - entry - sizeof(std::uint32_t));
        __builtin_memcpy(&bytes[entry], &length, sizeof length);
    }

    // What functions have in common: who looks at an exception (null for nobody), and that the return address is kept
    // below the caller's stack pointer. Returns where that stands.
    std::size_t add_common(const void* personality) {
        begin_entry();
        add<std::uint32_t>(0);
        add_bytes({1, 'z', 'P', 'L', 'R', 0, 1, 0x78 /* -8 */, kReturnAddress});
        add_number(1 + sizeof personality + 2);
        add_bytes({0});
        add(personality);
        add_bytes({0, 0});
        add_bytes({0x80U | kReturnAddress, 1});  // DW_CFA_offset
        end_entry();
        return entry;
    }

    void add_function(std::size_t common, const std::uint8_t* begin, std::uint64_t size, const std::uint8_t* landings,
                      const Frame& frame) {
        begin_entry();
        add(static_cast<std::uint32_t>(bytes.size() - common));
        add(begin);
        add(size);
        add_number(sizeof landings);
        add(landings);
        add_bytes({0x0C, frame.base_register});  // DW_CFA_def_cfa
        add_number(frame.size);
        for (const Frame::Kept& kept : frame.kept) {
            add_bytes({0x80U | kept.register_number});
            add_number(kept.words_below);
        }
        end_entry();
    }
};

// The functions of the compact table, in order, and one after the last of them. Its pages give them by 24 bits after
// the page's begin, with the number of an encoding that many share, or in full.
std::vector<Function> functions_of(Bytes table) {
    const auto number = [table](std::uint64_t at) { return number_at<std::uint32_t>(table, at); };
    const auto half = [table](std::uint64_t at) { return number_at<std::uint16_t>(table, at); };
    const std::uint32_t common = number(4);
    const std::uint32_t common_count = number(8);
    const std::uint32_t index = number(20);
    const std::uint32_t pages = number(24) - 1;
    constexpr std::uint32_t kIndexEntry = 12;
    std::vector<Function> functions;
    for (std::uint32_t i = 0; i < pages; ++i) {
        const std::uint32_t begin = number(index + i * kIndexEntry);
        const std::uint32_t page = number(index + i * kIndexEntry + 4);
        const std::uint32_t entries = page + half(page + 4);
        const bool is_compressed = number(page) == 3;
        for (std::uint32_t entry = 0; entry < half(page + 6); ++entry) {
            if (!is_compressed) {
                functions.push_back({number(entries + entry * 8), number(entries + entry * 8 + 4)});
                continue;
            }
            const std::uint32_t both = number(entries + entry * 4);
            const std::uint32_t which = both >> 24U;
            functions.push_back({begin + bits(both, 0, 24),
                                 which < common_count ? number(common + which * 4)
                                                      : number(page + half(page + 8) + (which - common_count) * 4)});
        }
    }
    functions.push_back({number(index + pages * kIndexEntry), 0});
    return functions;
}

// Where each function that has any keeps what is to be done on an exception's way.
std::map<std::uint32_t, std::uint32_t> landings_of(Bytes table) {
    const auto number = [table](std::uint64_t at) { return number_at<std::uint32_t>(table, at); };
    const std::uint32_t index = number(20);
    const std::uint32_t last = index + (number(24) - 1) * 12;
    std::map<std::uint32_t, std::uint32_t> landings;
    for (std::uint32_t at = number(index + 8); at < number(last + 8); at += 8) {
        landings.emplace(number(at), number(at + 4));
    }
    return landings;
}

}  // namespace

void register_frames(const File& file, const std::uint8_t* base) {
    const auto bytes_of = [&](const char* name) {
        const Section& section = file.sections.at(name);
        return Bytes(base + section.address, section.size);
    };
    const Bytes compact = bytes_of("__TEXT,__unwind_info");
    const Bytes dwarf = bytes_of("__TEXT,__eh_frame");
    if (number_at<std::uint32_t>({dwarf.data() + dwarf.size(), sizeof(std::uint32_t)}, 0) != 0) {
        throw Error("its __eh_frame is not followed by the zero that ends such a table");
    }
    auto& table = *new Table;  // for the unwinder, which forgets nothing
    std::vector<std::size_t> commons = {table.add_common(nullptr)};
    const auto personalities = number_at<std::uint32_t>(compact, 12);
    for (std::uint32_t i = 0; i < number_at<std::uint32_t>(compact, 16); ++i) {
        const auto pointer = number_at<std::uint32_t>(compact, personalities + i * sizeof(std::uint32_t));
        commons.push_back(table.add_common(number_at<const void*>({base + pointer, sizeof base}, 0)));
    }
    const std::vector<Function> functions = functions_of(compact);
    const std::map<std::uint32_t, std::uint32_t> landings = landings_of(compact);
    for (std::size_t i = 0; i + 1 < functions.size(); ++i) {
        const Function function = functions[i];
        const std::uint32_t mode = bits(function.encoding, 24, 4);
        if (mode != kRbpFrame && mode != kRspFrame) {
            continue;
        }
        const auto landing = landings.find(function.begin);
        table.add_function(commons.at(bits(function.encoding, 28, 2)), base + function.begin,
                           functions[i + 1].begin - function.begin,
                           landing != landings.end() ? base + landing->second : nullptr,
                           mode == kRbpFrame ? rbp_frame(function.encoding) : rsp_frame(function.encoding));
    }
    table.add<std::uint32_t>(0);
    auto& tables = *new std::array<const std::uint8_t*, 3>{dwarf.data(), table.bytes.data(), nullptr};
    __register_frame_table(static_cast<void*>(tables.data()));
}

}  // namespace macho
