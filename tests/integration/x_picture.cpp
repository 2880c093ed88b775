#include "x_picture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <set>

#include "x_connection.h"

namespace {

constexpr uint32_t kColour = 0xFFFFFF;  // the byte above means nothing

Place screen_of(const std::string& display) {
    const XConnection x(display);
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(x.get())).data;
    return {0, 0, screen->width_in_pixels, screen->height_in_pixels};
}

}  // namespace

Picture::Picture(const std::string& display) : Picture(display, screen_of(display)) {}

Picture::Picture(const std::string& display, const Place& place) : width_(place.width) {
    const XConnection x(display);
    const auto image = owned(
        xcb_get_image_reply(x.get(),
                            xcb_get_image(x.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, x.root(), static_cast<int16_t>(place.x),
                                          static_cast<int16_t>(place.y), static_cast<uint16_t>(place.width),
                                          static_cast<uint16_t>(place.height), ~uint32_t{0}),
                            nullptr));
    if (!image || image->depth != 24) {
        ADD_FAILURE() << "no picture of " << display;
        return;
    }
    // Screens of this depth have a word for each pixel.
    const auto* words = reinterpret_cast<const uint32_t*>(xcb_get_image_data(image.get()));
    pixels_.assign(words, words + static_cast<size_t>(place.width) * static_cast<size_t>(place.height));
    std::ranges::for_each(pixels_, [](uint32_t& pixel) { pixel &= kColour; });
}

std::string Picture::at(int x, int y) const {
    char colour[8];
    (void)snprintf(colour, sizeof colour, "%06X",
                   pixels_.at(static_cast<size_t>(y) * static_cast<size_t>(width_) + static_cast<size_t>(x)));
    return colour;
}

std::vector<std::string> Picture::at(const std::vector<std::pair<int, int>>& pixels) const {
    std::vector<std::string> colours;
    colours.reserve(pixels.size());
    for (const auto& [x, y] : pixels) {
        colours.push_back(at(x, y));
    }
    return colours;
}

size_t Picture::colours() const {
    return std::set<uint32_t>(pixels_.begin(), pixels_.end()).size();
}
