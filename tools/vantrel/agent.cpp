#include "agent.h"

#include <filesystem>
#include <string_view>

#include "failure.h"
#ifdef __APPLE__
#include <mach-o/dyld.h>
#endif

namespace fs = std::filesystem;

namespace launch {

namespace {

// The longest path that the agent takes (vantrel-agent.cpp), with its terminating zero.
constexpr size_t kMaxPathSize = 1024;

constexpr const char* kJarName = "vantrel-" VANTREL_VERSION ".jar";

// The command's file, whatever links led to it.
fs::path own_file() {
#ifdef __APPLE__
    uint32_t size = 0;
    _NSGetExecutablePath(nullptr, &size);
    std::string name(size, '\0');
    _NSGetExecutablePath(name.data(), &size);
    return fs::canonical(name.c_str());
#else
    return fs::canonical("/proc/self/exe");
#endif
}

// Throws for a path that no VM can take, or that the agent itself cannot. There is no way to quote it.
void check_path(const std::string& library) {
    const std::string why = library.find('=') != std::string::npos ? "a VM takes the '=' in its path for the path's end"
                            : library.find(':') != std::string::npos ? "a VM takes the ':' in its path for a separator"
                            : library.size() >= kMaxPathSize         ? "its path has 1024 bytes or more"
                                                                     : "";
    if (!why.empty()) {
        throw command::Failure{"the agent cannot be loaded from " + library + ", because " + why + "; move it"};
    }
}

std::string quoted(const std::string& option) {
    // A VM splits the options at blanks. Its quotes have no escape, but a quote of one kind may stand between two of
    // the other, and quoted parts without a blank between them are one word.
    if (option.find_first_of(" \t\n\v\f\r'\"") == std::string::npos && !option.empty()) {
        return option;
    }
    std::string text;
    for (size_t at = 0; at < option.size() || text.empty();) {
        const char quote = at < option.size() && option[at] == '"' ? '\'' : '"';
        const size_t end = std::min(option.find(quote, at), option.size());
        text += quote + option.substr(at, end - at) + quote;
        at = end;
    }
    return text;
}

}  // namespace

std::string agent_option() {
    // An installation has the library in VANTREL_LIBRARY_FOLDER, seen from the command's folder; a build has it in
    // `lib`.
    const fs::path own_folder = own_file().parent_path();
    fs::path library = (own_folder / VANTREL_LIBRARY_FOLDER / VANTREL_LIBRARY_NAME).lexically_normal();
    if (!fs::exists(library)) {
        library = own_folder.parent_path() / "lib" / VANTREL_LIBRARY_NAME;
    }
    for (const fs::path& file : {library, library.parent_path() / kJarName}) {
        if (!fs::is_regular_file(file)) {
            throw command::Failure{"there is no " + file.string() +
                                   "; the command needs the agent in the folder lib beside its own"};
        }
    }
    check_path(library);
    return "-agentpath:" + library.string();
}

std::string tool_options(const std::string& already, const std::vector<std::string>& options) {
    std::string all = already;
    for (const std::string& option : options) {
        all += (all.empty() ? "" : " ") + quoted(option);
    }
    return all;
}

}  // namespace launch
