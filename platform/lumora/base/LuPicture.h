// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// A picture in memory: rows from the top, four bytes a pixel (red, green, blue, alpha).
class LuPicture {
public:
    struct Pixel {
        std::uint8_t red = 0, green = 0, blue = 0, alpha = 255;
        friend bool operator==(const Pixel&, const Pixel&) = default;
    };

    LuPicture() = default;

    /// Black and opaque; sizes below 0 count as 0.
    LuPicture(int width, int height);

    int getWidth() const { return m_width; }
    int getHeight() const { return m_height; }
    bool isEmpty() const { return m_pixels.empty(); }

    /// `x` from the left, `y` from the top; both must lie within the picture.
    Pixel& at(int x, int y) { return m_pixels[getIndex(x, y)]; }
    const Pixel& at(int x, int y) const { return m_pixels[getIndex(x, y)]; }

    /// All pixels, row by row from the top.
    std::vector<Pixel>& getPixels() { return m_pixels; }
    const std::vector<Pixel>& getPixels() const { return m_pixels; }

    /// Writes a PNG file; `path` is UTF-8. False, with a message, when the picture is empty or the file can't
    /// be written.
    bool writePng(const std::string& path) const;

private:
    std::size_t getIndex(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) + static_cast<std::size_t>(x);
    }

    int m_width = 0;
    int m_height = 0;
    std::vector<Pixel> m_pixels;
};
