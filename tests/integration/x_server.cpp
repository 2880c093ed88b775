#include "x_server.h"

#include <gtest/gtest.h>

namespace {

std::vector<std::string> command(const std::vector<std::string>& options) {
    std::vector<std::string> words = {"Xvfb",        "-displayfd", "1",   "-screen", "0",
                                      "1024x768x24", "-nolisten",  "tcp", "-noreset"};
    words.insert(words.end(), options.begin(), options.end());
    return words;
}

}  // namespace

// Without -noreset the server starts over when its last client leaves, and turns away who comes meanwhile.
XServer::XServer(const std::vector<std::string>& options) : server_(command(options)) {
    // The number is written once the server takes connections.
    if (!server_.reaches([this] { return server_.out().ends_with('\n'); })) {
        ADD_FAILURE() << "Xvfb does not start: " << server_.err();
        return;
    }
    const std::string number = server_.out();
    name_ = ":" + number.substr(0, number.size() - 1);
}

bool XServer::shows(const std::string& title) const {
    return run({"xwininfo", "-display", name_, "-name", title}).out.find("IsViewable") != std::string::npos;
}

void XServer::take_picture(const std::filesystem::path& file) const {
    // For PNG, -quality says how hard to compress: 10 is fast.
    const Finished import = run({"import", "-display", name_, "-window", "root", "-quality", "10", file});
    EXPECT_EQ(import.status, 0) << import.err;
}

WindowManager::WindowManager(const XServer& x)
    : manager_({"openbox"}, ProcessOptions{.folder = {}, .environment = {x.display()}}) {
    EXPECT_TRUE(manager_.reaches([&x] {
        return run({"xprop", "-display", x.name(), "-root", "_NET_SUPPORTING_WM_CHECK"}).out.find("0x") !=
               std::string::npos;
    })) << manager_.err();
}
