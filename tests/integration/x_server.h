// A real X server of a test's own (Xvfb), on a display number that was free.
#ifndef VANTREL_X_SERVER_H
#define VANTREL_X_SERVER_H

#include <string>
#include <vector>

#include "process.h"

class XServer {
  public:
    // options   of Xvfb, after those that every test needs
    explicit XServer(const std::vector<std::string>& options = {});

    // The server's name, as programs take it in an option.
    [[nodiscard]] const std::string& name() const { return name_; }

    // The variable that leads a program to this server, for ProcessOptions.
    [[nodiscard]] std::string display() const { return "DISPLAY=" + name_; }

    // Whether a window with this title is on the screen.
    [[nodiscard]] bool shows(const std::string& title) const;

    // Sends the server's process a signal: SIGSTOP makes it a display that hangs, until SIGCONT.
    void signal(int number) const { server_.signal(number); }

    // Writes a picture of the screen, for people.
    void take_picture(const std::filesystem::path& file) const;

  private:
    Process server_;
    std::string name_;
};

// A window manager on a server, at work when it has been made: with one, windows have frames, can be minimised, and get
// the focus when they are clicked.
class WindowManager {
  public:
    explicit WindowManager(const XServer& x);

  private:
    Process manager_;
};

#endif
