#include "attach.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fstream>
#include <iterator>
#include <thread>

#include "descriptor.h"
#include "failure_with_status.h"
#include "interrupt.h"
#include "statuses.h"
#include "text.h"

namespace fs = std::filesystem;
using launch::FailureWithStatus;

namespace outside {

namespace {

constexpr std::chrono::milliseconds kBetweenLooks(2);
// HotSpot's protocol: this version's requests are a command and three arguments, whether or not it needs them.
constexpr std::string_view kProtocol = "1";

// The file whose presence tells a VM that a SIGQUIT asks for its socket, and not for its threads' stacks.
class Trigger {
  public:
    explicit Trigger(fs::path file) : file_(std::move(file)) {
        const Descriptor made(open(file_.c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, S_IRUSR | S_IWUSR));
        if (made.number() < 0) {
            throw FailureWithStatus{"cannot make " + file_.string() + ": " + strerror(errno), kNoAnswer};
        }
    }
    ~Trigger() { unlink(file_.c_str()); }
    Trigger(const Trigger&) = delete;
    Trigger& operator=(const Trigger&) = delete;

  private:
    fs::path file_;
};

[[noreturn]] void refuse(const Program& program, const std::string& what) {
    throw FailureWithStatus{label(program) + " " + what, kNoAnswer};
}

void wait_on(const Program& program, Deadline deadline) {
    if (has_ended(program.id)) {
        refuse(program, "has ended");
    }
    if (std::chrono::steady_clock::now() > deadline) {
        const bool is_stopped = status_of(program.id, "State").starts_with('T');
        refuse(program, is_stopped ? "is stopped; kill -CONT " + std::to_string(program.id) + " lets it go on"
                                   : "does not answer: its VM is busy, or about to start or to end");
    }
    pause_between_looks();
}

// The process's number in its own container.
std::string own_number(const Program& program) {
    const std::string numbers = status_of(program.id, "NSpid");
    return numbers.empty() ? std::to_string(program.id) : numbers.substr(numbers.rfind('\t') + 1);
}

// Whether the VM was told not to listen. Such a VM takes a SIGQUIT for the wish to see all stacks. It says so in the
// memory that it shares with tools, in a string whose first digit stands for the Attach API.
bool is_deaf(const fs::path& temporary, const std::string& id) {
    std::error_code error;
    for (const auto& folder : fs::directory_iterator(temporary, error)) {
        if (!folder.path().filename().string().starts_with("hsperfdata_")) {
            continue;
        }
        std::ifstream file(folder.path() / id, std::ios::binary);
        const std::string memory{std::istreambuf_iterator<char>(file), {}};
        const size_t name = memory.find("sun.rt.jvmCapabilities");
        if (name != std::string::npos) {
            const size_t digit = memory.find_first_of("01", name);
            return digit != std::string::npos && memory[digit] == '0';
        }
    }
    return false;
}

// Whether a process handles SIGQUIT, which would end it otherwise.
bool catches_quit(const Program& program) {
    const std::string caught = status_of(program.id, "SigCgt");
    return !caught.empty() && (std::stoull(caught, nullptr, 16) >> (SIGQUIT - 1) & 1U) != 0;
}

void have_it_listen(const Program& program, const fs::path& temporary, const fs::path& socket, Deadline deadline) {
    const std::string id = own_number(program);
    if (is_deaf(temporary, id)) {
        refuse(program, "was started with -XX:+DisableAttachMechanism, and cannot be asked anything");
    }
    if (!catches_quit(program)) {
        refuse(program, "cannot be asked yet: its VM is about to start");
    }
    const Trigger trigger(temporary / (".attach_pid" + id));
    kill(program.id, SIGQUIT);
    while (!fs::exists(socket)) {
        wait_on(program, deadline);
    }
}

// Connects a socket to the VM's.
void connect_to(const Program& program, const fs::path& file, int connection) {
    struct stat about {};
    if (stat(file.c_str(), &about) != 0 || about.st_uid != geteuid() || !S_ISSOCK(about.st_mode)) {
        refuse(program, "has no socket of yours at " + file.string());
    }
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string name = file;
    if (name.size() >= sizeof address.sun_path) {
        refuse(program, "has its socket at a path that is too long: " + name);
    }
    std::copy(name.begin(), name.end(), address.sun_path);
    if (connect(connection, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0) {
        refuse(program, std::string("cannot be asked: ") + strerror(errno));
    }
}

std::string reply_to(const std::string& request, const Program& program, int connection, Deadline deadline) {
    for (size_t sent = 0; sent < request.size();) {
        const ssize_t more = send(connection, request.data() + sent, request.size() - sent, MSG_NOSIGNAL);
        if (more < 0 && errno != EAGAIN && errno != EINTR) {
            refuse(program, std::string("does not listen: ") + strerror(errno));
        }
        if (more < 0) {
            wait_on(program, deadline);
        } else {
            sent += static_cast<size_t>(more);
        }
    }
    std::string reply;
    char some[1024];
    while (true) {
        const ssize_t got = recv(connection, some, sizeof some, 0);
        if (got > 0) {
            reply.append(some, static_cast<size_t>(got));
        } else if (got == 0) {
            return reply;
        } else if (errno == EAGAIN || errno == EINTR) {
            wait_on(program, deadline);
        } else {
            refuse(program, std::string("does not answer: ") + strerror(errno));
        }
    }
}

}  // namespace

void pause_between_looks() {
    std::this_thread::sleep_for(kBetweenLooks);
    command::interrupt::check();
}

void load_jar(const Program& program, const fs::path& jar, const std::string& options, Deadline deadline) {
    // Where a VM has its socket whatever its java.io.tmpdir or TMPDIR is.
    const fs::path temporary = seen_by(program, "/tmp");
    const fs::path socket = temporary / (".java_pid" + own_number(program));
    if (!fs::exists(socket)) {
        have_it_listen(program, temporary, socket, deadline);
    }
    const Descriptor connection(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    connect_to(program, socket, connection.number());
    std::string request;
    for (const std::string& word : {std::string(kProtocol), std::string("load"), std::string("instrument"),
                                    std::string("false"), jar.string() + "=" + options}) {
        request += word + '\0';
    }
    const std::string reply = reply_to(request, program, connection.number(), deadline);
    // The protocol's own status, and that of the agent; VMs before 9 have no words before it.
    if (reply == "0\nreturn code: 100\n") {  // as the VM says that the jar has no agent
        refuse(program, "has the agent of a version that cannot be asked yet");
    }
    if (reply != "0\nreturn code: 0\n" && reply != "0\n0\n") {
        refuse(program, "does not let the agent answer: " + command::printable(reply));
    }
}

}  // namespace outside
