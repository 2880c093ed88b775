#include "programs.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iterator>
#include <optional>
#include <sstream>

#include "failure_with_status.h"
#include "java_command.h"
#include "statuses.h"

namespace fs = std::filesystem;
using launch::FailureWithStatus;

namespace outside {

namespace {

const fs::path kProcesses = "/proc";
constexpr std::string_view kLibraryStem = "/libvantrel-agent.so";
constexpr std::string_view kDeleted = " (deleted)";

fs::path folder_of(pid_t id) {
    return kProcesses / std::to_string(id);
}

// Empty if the file cannot be read.
std::string text_of(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::optional<pid_t> number(const std::string& text) {
    pid_t id = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), id);
    const bool is_whole = error == std::errc{} && end == text.data() + text.size() && id > 0;
    return is_whole ? std::optional(id) : std::nullopt;
}

std::optional<uid_t> owner(pid_t id) {
    struct stat about {};
    return stat(folder_of(id).c_str(), &about) == 0 ? std::optional(about.st_uid) : std::nullopt;
}

std::string user_name(uid_t user) {
    const passwd* entry = getpwuid(user);
    return entry != nullptr ? entry->pw_name : "user " + std::to_string(user);
}

// The agent's library in a process; empty if it has none.
fs::path library_in(pid_t id) {
    std::istringstream maps(text_of(folder_of(id) / "maps"));
    for (std::string line; std::getline(maps, line);) {
        if (line.find(kLibraryStem) == std::string::npos) {
            continue;
        }
        std::string path = line.substr(line.find('/'));
        if (path.ends_with(kDeleted)) {
            path.resize(path.size() - kDeleted.size());  // another build or version has taken its place
        }
        return path;
    }
    return {};
}

std::string name_of(pid_t id) {
    std::vector<std::string> words;
    std::istringstream line(text_of(folder_of(id) / "cmdline"));
    for (std::string word; std::getline(line, word, '\0');) {
        words.push_back(word);
    }
    std::string program = launch::main_program(words);
    if (!program.empty()) {
        return program;
    }
    std::error_code error;
    return fs::read_symlink(folder_of(id) / "exe", error).filename();
}

std::string in_small_letters(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char letter) { return letter >= 'A' && letter <= 'Z' ? letter - 'A' + 'a' : letter; });
    return text;
}

Program program_of_process(pid_t id) {
    const auto user = owner(id);
    if (!user) {
        throw FailureWithStatus{"there is no process " + std::to_string(id), kNoSuchThing};
    }
    if (*user != geteuid()) {
        throw FailureWithStatus{
            "process " + std::to_string(id) + " belongs to " + user_name(*user) + "; only that user can ask it",
            kNoAnswer};
    }
    Program program{id, name_of(id), library_in(id)};
    if (program.library.empty()) {
        throw FailureWithStatus{label(program) + " runs without the agent; vantrel run starts a program with it",
                                kNoAnswer};
    }
    return program;
}

}  // namespace

std::vector<Program> programs(const std::string& part) {
    const std::string wanted = in_small_letters(part);
    std::vector<Program> found;
    for (const auto& entry : fs::directory_iterator(kProcesses)) {
        const auto id = number(entry.path().filename());
        if (!id || owner(*id) != geteuid()) {
            continue;
        }
        Program program{*id, name_of(*id), library_in(*id)};
        const bool is_wanted =
            std::to_string(*id) == part || in_small_letters(program.name).find(wanted) != std::string::npos;
        if (is_wanted && !program.library.empty()) {
            found.push_back(std::move(program));
        }
    }
    std::sort(found.begin(), found.end(), [](const Program& a, const Program& b) { return a.id < b.id; });
    return found;
}

Program find_program(const std::string& given) {
    const auto id = number(given);
    if (id && owner(*id)) {
        return program_of_process(*id);
    }
    std::vector<Program> fitting = programs(given);
    std::stable_partition(fitting.begin(), fitting.end(), [&](const Program& each) { return each.name == given; });
    if (fitting.empty()) {
        const std::string what = id ? "there is no process " + given + ", and no" : "no";
        throw FailureWithStatus{
            what + " program of yours under the agent is called '" + given + "'; vantrel list tells which there are",
            kNoSuchThing};
    }
    const bool is_one = fitting.size() == 1 || (fitting[0].name == given && fitting[1].name != given);
    if (!is_one) {
        std::string all;
        for (const Program& program : fitting) {
            all += (all.empty() ? "" : ", ") + label(program);
        }
        throw FailureWithStatus{"'" + given + "' may be " + all + "; give the number", kNoSuchThing};
    }
    return fitting.front();
}

std::string label(const Program& program) {
    return std::to_string(program.id) + (program.name.empty() ? "" : " (" + program.name + ")");
}

fs::path seen_by(const Program& program, const fs::path& folder) {
    const fs::path root = folder_of(program.id) / "root";
    std::error_code error;
    return fs::exists(root / "tmp", error) ? root.string() + folder.string() : folder.string();
}

std::string status_of(pid_t id, const std::string& name) {
    std::istringstream lines(text_of(folder_of(id) / "status"));
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(name + ":\t")) {
            return line.substr(name.size() + 2);
        }
    }
    return "";
}

bool has_ended(pid_t id) {
    const std::string state = status_of(id, "State");
    return state.empty() || state.starts_with('Z') || state.starts_with('X');
}

}  // namespace outside
