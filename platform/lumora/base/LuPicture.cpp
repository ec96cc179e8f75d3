// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LuPicture.h"

#include "platform/lumora/base/LuDebugError.h"

#define STB_IMAGE_WRITE_IMPLEMENTATION
#define STB_IMAGE_WRITE_STATIC
#define STBI_MSC_SECURE_CRT
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wunused-function" // the library's other file formats
#include <stb/stb_image_write.h>
#pragma GCC diagnostic pop

#include <algorithm>
#include <filesystem>
#include <fstream>

static_assert(sizeof(LuPicture::Pixel) == 4, "the writer takes the pixels as bytes");

namespace {

void append(void* context, void* data, int size) {
    static_cast<std::string*>(context)->append(static_cast<const char*>(data),
                                               static_cast<std::size_t>(size));
}

} // namespace

LuPicture::LuPicture(int width, int height)
    : m_width(std::max(width, 0)), m_height(std::max(height, 0)),
      m_pixels(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height)) {}

bool LuPicture::writePng(const std::string& path) const {
    if (isEmpty()) {
        LuDebugError::post("LuPicture::writePng", "\"%s\" is not written: the picture is empty.",
                           path.c_str());
        return false;
    }
    std::string png;
    stbi_write_png_to_func(&append, &png, m_width, m_height, 4, m_pixels.data(), m_width * 4);
    std::ofstream file(std::filesystem::u8path(path), std::ios::binary);
    file.write(png.data(), static_cast<std::streamsize>(png.size()));
    file.close();
    if (!file)
        LuDebugError::post("LuPicture::writePng", "The picture \"%s\" can't be written.", path.c_str());
    return !file.fail();
}
