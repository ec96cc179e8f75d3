// SPDX-License-Identifier: MIT
#include "apps/view/Snapshot.h"

#include "platform/lumora/base/LuDebugError.h"
#include "platform/lumora/win/LuWin.h"

#define STB_IMAGE_WRITE_IMPLEMENTATION
#define STBI_MSC_SECURE_CRT
#include <stb/stb_image_write.h>

#include <filesystem>
#include <fstream>

namespace {

/// Milliseconds without a message after which all windows have been painted.
constexpr DWORD QUIET_TIME = 200;

void waitForPainting() {
    while (MsgWaitForMultipleObjects(0, nullptr, FALSE, QUIET_TIME, QS_ALLINPUT) == WAIT_OBJECT_0)
        LuWin::processMessages();
}

RECT getUnion(const std::vector<HWND>& windows) {
    RECT all{};
    for (const HWND window : windows) {
        RECT rect{};
        if (IsWindowVisible(window) && GetWindowRect(window, &rect))
            UnionRect(&all, &all, &rect);
    }
    return all;
}

/// The pixels of a part of the screen, rows from the top, three bytes each.
std::vector<unsigned char> readScreen(const RECT& rect, int width, int height) {
    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    std::vector<unsigned char> pixels;
    if (bitmap) {
        const HGDIOBJ before = SelectObject(memory, bitmap);
        BitBlt(memory, 0, 0, width, height, screen, rect.left, rect.top, SRCCOPY);
        GdiFlush();
        const auto* source = static_cast<const unsigned char*>(bits);
        for (std::size_t i = 0; i < static_cast<std::size_t>(width) * static_cast<std::size_t>(height); ++i)
            pixels.insert(pixels.end(), {source[4 * i + 2], source[4 * i + 1], source[4 * i]});
        SelectObject(memory, before);
        DeleteObject(bitmap);
    }
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return pixels;
}

void append(void* context, void* data, int size) {
    static_cast<std::string*>(context)->append(static_cast<const char*>(data),
                                               static_cast<std::size_t>(size));
}

} // namespace

bool writeSnapshot(const std::vector<HWND>& windows, const std::string& path) {
    waitForPainting();
    const RECT rect = getUnion(windows);
    const int width = static_cast<int>(rect.right - rect.left);
    const int height = static_cast<int>(rect.bottom - rect.top);
    const std::vector<unsigned char> pixels = readScreen(rect, width, height);
    if (pixels.empty()) {
        LuDebugError::post("panelix-view", "There is nothing on the screen to make a picture of.");
        return false;
    }
    std::string png;
    stbi_write_png_to_func(&append, &png, width, height, 3, pixels.data(), width * 3);
    std::ofstream file(std::filesystem::u8path(path), std::ios::binary);
    file.write(png.data(), static_cast<std::streamsize>(png.size()));
    file.close();
    if (!file)
        LuDebugError::post("panelix-view", "The picture \"%s\" can't be written.", path.c_str());
    return !file.fail();
}
