// What is on the screen of a real X server, read by the test itself: programs that take, store, load and compare
// pictures would need most of the time that the tests of windows take.
#ifndef VANTREL_X_PICTURE_H
#define VANTREL_X_PICTURE_H

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

// A rectangle on the screen, in pixels.
struct Place {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

class Picture {
  public:
    // An empty picture, which equals no picture of a screen.
    Picture() = default;

    // The screen as it is now.
    // display   as DISPLAY names it
    explicit Picture(const std::string& display);

    // The same of a place of the screen, which lies on it as a whole.
    Picture(const std::string& display, const Place& place);

    // The colour of a pixel, from the picture's upper left corner, as in "FC7E00".
    [[nodiscard]] std::string at(int x, int y) const;
    [[nodiscard]] std::vector<std::string> at(const std::vector<std::pair<int, int>>& pixels) const;

    // How many colours it has.
    [[nodiscard]] size_t colours() const;

    // Whether each pixel has the same colour.
    bool operator==(const Picture&) const = default;

  private:
    int width_ = 0;
    std::vector<uint32_t> pixels_;  // red, green and blue, eight bits each
};

#endif
