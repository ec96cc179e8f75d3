// SPDX-License-Identifier: MIT
#include "apps/view/Snapshot.h"

#include "platform/lumora/base/LuDebugError.h"
#include "platform/lumora/base/LuPicture.h"
#include "platform/lumora/win/LuWin.h"

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

/// A part of the screen; an empty picture when the system gives none.
LuPicture readScreen(const RECT& rect, int width, int height) {
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
    LuPicture picture;
    if (bitmap) {
        const HGDIOBJ before = SelectObject(memory, bitmap);
        BitBlt(memory, 0, 0, width, height, screen, rect.left, rect.top, SRCCOPY);
        GdiFlush();
        const auto* source = static_cast<const unsigned char*>(bits);
        picture = LuPicture(width, height);
        for (LuPicture::Pixel& pixel : picture.getPixels()) {
            pixel = {source[2], source[1], source[0], 255};
            source += 4;
        }
        SelectObject(memory, before);
        DeleteObject(bitmap);
    }
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return picture;
}

} // namespace

bool writeSnapshot(const std::vector<HWND>& windows, const std::string& path) {
    waitForPainting();
    const RECT rect = getUnion(windows);
    const int width = static_cast<int>(rect.right - rect.left);
    const int height = static_cast<int>(rect.bottom - rect.top);
    const LuPicture picture = readScreen(rect, width, height);
    if (picture.isEmpty()) {
        LuDebugError::post("panelix-view", "There is nothing on the screen to make a picture of.");
        return false;
    }
    return picture.writePng(path);
}
