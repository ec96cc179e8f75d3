// SPDX-License-Identifier: MIT
#include "platform/win32/memory/MemoryWindow.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace {

/// A bare address that tells the one module there is.
const char s_module = 0;
const char s_icon = 0, s_cursor = 0;

template <class Handle>
Handle asHandle(const char& place) {
    return reinterpret_cast<Handle>(const_cast<char*>(&place));
}

constexpr int s_metrics[] = {
    1280, 1024, 17,  17, 19, 1,  1,  3,  3,  17,  17, 32,   32,   32,   32,   19,  // 0 to 15
    1280, 1035, 0,   1,  17, 17, 0,  0,  0,  0,   0,  0,    112,  27,   18,   18,  // 16 to 31
    4,    4,    112, 27, 4,  4,  75, 75, 0,  0,   0,  3,    0,    2,    2,    160, // 32 to 47
    24,   16,   16,  16, 15, 15, 18, 18, 8,  160, 24, 1292, 1036, 1288, 1062, 3,   // 48 to 63
    0,    0,    0,   0,  4,  4,  0,  13, 13, 0,   0,  1,    0,    0,    1280, 1024 // 64 to 79
};

constexpr COLORREF s_colors[] = {0xffffff, 0x956f25, 0xfa9632, 0x808080, 0xffffff, 0xffffff, 0x9e9e9e,
                                 0x000000, 0x000000, 0x000000, 0xffffff, 0xffffff, 0x808080, 0xfa9630,
                                 0xffffff, 0xf5f5f5, 0xa6a6a6, 0xa6a6a6, 0x000000, 0xc8c8c8, 0xffffff,
                                 0x6a6a6a, 0xe3e3e3, 0x000000, 0xffffff, 0xffffff, 0xe0e0e0, 0xfa9632,
                                 0x808080, 0xfa9630, 0xffffff};

UINT s_linesPerNotch = 3;

} // namespace

int GetSystemMetrics(int index) {
    return index >= 0 && index < static_cast<int>(std::size(s_metrics)) ? s_metrics[index] : 0;
}

COLORREF GetSysColor(int index) {
    return index >= 0 && index < static_cast<int>(std::size(s_colors)) ? s_colors[index] : 0;
}

BOOL SystemParametersInfoA(UINT action, UINT parameter, LPVOID data, UINT) {
    if (action == SPI_SETWHEELSCROLLLINES) {
        s_linesPerNotch = parameter;
        return TRUE;
    }
    if (!data)
        return FALSE;
    if (action == SPI_GETWHEELSCROLLLINES) {
        *static_cast<UINT*>(data) = s_linesPerNotch;
        return TRUE;
    }
    if (action == SPI_GETWORKAREA) {
        *static_cast<RECT*>(data) = {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
        return TRUE;
    }
    return FALSE;
}

BOOL GetVersionExA(OSVERSIONINFOA* info) {
    if (!info || info->dwOSVersionInfoSize < sizeof(OSVERSIONINFOA)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    info->dwMajorVersion = 6;
    info->dwMinorVersion = 1;
    info->dwBuildNumber = 7601;
    info->dwPlatformId = VER_PLATFORM_WIN32_NT;
    std::strcpy(info->szCSDVersion, "Service Pack 1");
    return TRUE;
}

HMODULE GetModuleHandleA(LPCSTR name) { return name ? nullptr : asHandle<HMODULE>(s_module); }

BOOL GetModuleHandleExA(DWORD, LPCSTR, HMODULE* module) {
    if (!module)
        return FALSE;
    *module = GetModuleHandleA(nullptr);
    return TRUE;
}

DWORD GetModuleFileNameA(HMODULE, LPSTR name, DWORD size) {
    constexpr char path[] = "C:\\panelix.exe";
    if (!name || size == 0)
        return 0;
    const std::size_t length = std::min<std::size_t>(std::strlen(path), size - 1);
    std::memcpy(name, path, length);
    name[length] = '\0';
    return static_cast<DWORD>(length);
}

DWORD_PTR SHGetFileInfoA(LPCSTR, DWORD, SHFILEINFOA* info, UINT size, UINT) {
    // There are no files with icons.
    if (info && size >= sizeof(SHFILEINFOA))
        *info = SHFILEINFOA{};
    return 0;
}

HICON LoadIconA(HINSTANCE, LPCSTR name) { return name ? asHandle<HICON>(s_icon) : nullptr; }

BOOL DestroyIcon(HICON icon) { return icon != nullptr; }

HCURSOR LoadCursorA(HINSTANCE, LPCSTR name) { return name ? asHandle<HCURSOR>(s_cursor) : nullptr; }

int MessageBoxA(HWND, LPCSTR, LPCSTR, UINT) { return 0; }

HMENU GetMenu(HWND window) {
    findMemoryWindowOrFail(window);
    return nullptr;
}

BOOL GetMenuItemInfoA(HMENU, UINT, BOOL, MENUITEMINFOA*) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
}
