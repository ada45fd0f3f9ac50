#pragma once

#include <cstdint>
#include <string>
#include <vector>

// A picture of rows from the top down, four bytes a pixel: red, green, blue, opacity.
struct Picture {
    int width = 0, height = 0;
    std::vector<std::uint8_t> pixels;
};

// As what a page can hold in itself: "data:image/png;base64,...".
std::string PictureUri(const Picture& picture);
