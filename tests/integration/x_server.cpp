#include "x_server.h"

#include <gtest/gtest.h>

// Without -noreset the server starts over when its last client leaves, and turns away who comes meanwhile.
XServer::XServer()
    : server_({"Xvfb", "-displayfd", "1", "-screen", "0", "1024x768x24", "-nolisten", "tcp", "-noreset"}) {
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

int XServer::take_picture(const std::filesystem::path& file) const {
    const Finished import = run({"import", "-display", name_, "-window", "root", file});
    EXPECT_EQ(import.status, 0) << import.err;
    return std::stoi("0" + run({"identify", "-format", "%k", file}).out);
}
