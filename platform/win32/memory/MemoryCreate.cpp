// SPDX-License-Identifier: MIT
#include "platform/win32/memory/MemoryWindow.h"

#include <algorithm>

namespace {

/// What the two creation functions are asked for.
struct Request {
    CREATESTRUCTA create{};
    LuMemoryWindowClass* windowClass = nullptr;
    LuMemoryWindow* parent = nullptr;
    LuMemoryWindow* owner = nullptr;
};

bool findParent(Request& request) {
    LuMemoryWindow* named = nullptr;
    if (request.create.hwndParent) {
        named = findMemoryWindowOrFail(request.create.hwndParent);
        if (!named)
            return false;
    }
    LuMemoryDesktop& desktop = getMemoryDesktop();
    if (isChildStyle(static_cast<DWORD>(request.create.style))) {
        request.parent = named;
        if (!named)
            SetLastError(1406); // ERROR_TLW_WITH_WSCHILD
        return named != nullptr;
    }
    request.parent = desktop.root;
    request.owner = named && named != desktop.root ? getRootWindow(named) : nullptr;
    return true;
}

void fixStyles(CREATESTRUCTA& create) {
    auto style = static_cast<DWORD>(create.style);
    if (!(style & (WS_CHILD | WS_POPUP)))
        style |= WS_CAPTION | WS_CLIPSIBLINGS;
    else if (style & WS_POPUP)
        style |= WS_CLIPSIBLINGS;
    create.style = static_cast<LONG>(style);
    create.dwExStyle = fixExStyle(style, create.dwExStyle);
    if (isChildStyle(style))
        create.dwExStyle &= ~WS_EX_TOPMOST;
}

void fixPlace(CREATESTRUCTA& create) {
    if (create.x == CW_USEDEFAULT)
        create.x = create.y = 0;
    if (create.cx == CW_USEDEFAULT) {
        const bool isOverlapped = !(static_cast<DWORD>(create.style) & (WS_CHILD | WS_POPUP));
        create.cx = isOverlapped ? GetSystemMetrics(SM_CXSCREEN) * 3 / 4 : 0;
        create.cy = isOverlapped ? GetSystemMetrics(SM_CYSCREEN) * 3 / 4 : 0;
    }
    create.cx = std::max(create.cx, 0);
    create.cy = std::max(create.cy, 0);
}

LuMemoryWindow* makeWindow(const Request& request) {
    LuMemoryWindow* window = allocateMemoryWindow();
    if (!window) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return nullptr;
    }
    const CREATESTRUCTA& create = request.create;
    window->style = static_cast<DWORD>(create.style) & ~WS_VISIBLE;
    window->exStyle = create.dwExStyle;
    window->windowClass = request.windowClass;
    window->procedure = request.windowClass->description.lpfnWndProc;
    window->instance = create.hInstance;
    window->id = reinterpret_cast<LONG_PTR>(create.hMenu);
    window->parent = request.parent;
    window->owner = request.owner;
    window->needsSize = !(window->style & (WS_CHILD | WS_POPUP));
    window->extra.resize(static_cast<std::size_t>(request.windowClass->description.cbWndExtra));
    ++request.windowClass->numWindows;
    // A new control comes last in the tab order, a new top-level window comes in front.
    linkMemoryWindow(*window, isChildStyle(window->style) ? request.parent->lastChild : nullptr);
    return window;
}

void limitSize(LuMemoryWindow& window, CREATESTRUCTA& create) {
    if (!hasSizeLimits(window))
        return;
    const MINMAXINFO limits = getMinMaxInfo(window);
    create.cx = std::max<int>(std::min<int>(create.cx, limits.ptMaxTrackSize.x), limits.ptMinTrackSize.x);
    create.cy = std::max<int>(std::min<int>(create.cy, limits.ptMaxTrackSize.y), limits.ptMinTrackSize.y);
}

void forgetWindow(LuMemoryWindow& window) {
    LuMemoryDesktop& desktop = getMemoryDesktop();
    for (LuMemoryWindow** held : {&desktop.focus, &desktop.active, &desktop.capture})
        if (*held == &window)
            *held = nullptr;
    const HWND handle = getHandle(&window);
    std::erase_if(desktop.posted, [handle](const MSG& message) { return message.hwnd == handle; });
    --window.windowClass->numWindows;
    unlinkMemoryWindow(window);
    freeMemoryWindow(window);
}

void notifyParent(LuMemoryWindow& window, UINT event) {
    if (isChildStyle(window.style) && !(window.exStyle & WS_EX_NOPARENTNOTIFY))
        sendMessage(*window.parent, WM_PARENTNOTIFY,
                    MAKEWPARAM(static_cast<int>(event), static_cast<int>(window.id)),
                    reinterpret_cast<LPARAM>(getHandle(&window)));
}

void finishDestroy(LuMemoryWindow& window) {
    while (window.firstChild)
        finishDestroy(*window.firstChild);
    if (sendAndCheck(window, WM_NCDESTROY, 0, 0))
        forgetWindow(window);
}

/// The messages of a creation; false if the window has refused or has gone.
bool announce(LuMemoryWindow& window, const Request& request, const wchar_t* wideTitle) {
    const HWND handle = getHandle(&window);
    CREATESTRUCTA create = request.create;
    limitSize(window, create);
    if (findMemoryWindow(handle) != &window)
        return false;
    // So far out nobody sees the difference, and frames can be added to it.
    constexpr int farthest = 1 << 30;
    const int x = std::clamp(create.x, -farthest, farthest), y = std::clamp(create.y, -farthest, farthest);
    window.rect = {x, y, addPixels(x, create.cx), addPixels(y, create.cy)};
    const auto lParam = reinterpret_cast<LPARAM>(&create);
    if (!sendMessage(window, WM_NCCREATE, 0, lParam)) {
        if (findMemoryWindow(handle))
            forgetWindow(window);
        return false;
    }
    if (!findMemoryWindow(handle))
        return false;
    if (wideTitle && window.windowClass->isBuiltIn)
        window.text = wideTitle;
    RECT client;
    if (!calculateClient(window, window.rect, nullptr, client))
        return false;
    window.client = client;
    const LRESULT created = sendMessage(window, WM_CREATE, 0, lParam);
    if (!findMemoryWindow(handle))
        return false;
    if (created == -1) {
        finishDestroy(window);
        return false;
    }
    return true;
}

HWND createWindow(Request& request, LPCSTR className, const wchar_t* wideTitle) {
    LuMemoryDesktop& desktop = getMemoryDesktop();
    if (desktop.failingCreations > 0) {
        --desktop.failingCreations;
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return nullptr;
    }
    CREATESTRUCTA& create = request.create;
    if (!create.hInstance)
        create.hInstance = GetModuleHandleA(nullptr);
    request.windowClass = findMemoryClass(className, create.hInstance);
    if (!request.windowClass) {
        SetLastError(ERROR_CLASS_DOES_NOT_EXIST);
        return nullptr;
    }
    if (!findParent(request))
        return nullptr;
    const bool shown = (create.style & static_cast<LONG>(WS_VISIBLE)) != 0;
    fixStyles(create);
    fixPlace(create);
    LuMemoryWindow* window = makeWindow(request);
    if (!window)
        return nullptr;
    const HWND handle = getHandle(window);
    if (!announce(*window, request, wideTitle))
        return nullptr;
    if (!window->needsSize) {
        sendSize(*window);
        if (findMemoryWindow(handle))
            sendMove(*window);
    }
    if (findMemoryWindow(handle))
        notifyParent(*window, WM_CREATE);
    if (shown && findMemoryWindow(handle))
        ShowWindow(handle, SW_SHOW);
    return findMemoryWindow(handle) ? handle : nullptr;
}

void sendDestroy(LuMemoryWindow& window) {
    const HWND handle = getHandle(&window);
    window.isDying = true;
    if (!sendAndCheck(window, WM_DESTROY, 0, 0))
        return;
    // A handler may destroy siblings: each step starts from a window that is known to live.
    LuMemoryWindow* child = window.firstChild;
    while (child) {
        if (child->isDying) {
            child = child->below;
            continue;
        }
        const HWND childHandle = getHandle(child);
        sendDestroy(*child);
        if (!findMemoryWindow(handle))
            return;
        child = findMemoryWindow(childHandle) ? child->below : window.firstChild;
    }
}

void destroyOwned(LuMemoryWindow& window) {
    LuMemoryWindow* top = getMemoryDesktop().root->firstChild;
    while (top) {
        if (top->owner == &window) {
            DestroyWindow(getHandle(top));
            top = getMemoryDesktop().root->firstChild;
        } else {
            top = top->below;
        }
    }
}

} // namespace

HWND CreateWindowExA(DWORD exStyle, LPCSTR className, LPCSTR title, DWORD style, int x, int y, int width,
                     int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID parameter) {
    Request request;
    request.create = {parameter, instance,  menu,   parent, height, width, y, x, static_cast<LONG>(style),
                      title,     className, exStyle};
    return createWindow(request, className, nullptr);
}

HWND CreateWindowExW(DWORD exStyle, LPCWSTR className, LPCWSTR title, DWORD style, int x, int y, int width,
                     int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID parameter) {
    const bool isAtom = reinterpret_cast<std::uintptr_t>(className) <= 0xffff;
    const std::string name = isAtom ? std::string() : narrowToAnsi(className);
    const std::string text = title ? narrowToAnsi(title) : std::string();
    const LPCSTR narrowName = isAtom ? reinterpret_cast<LPCSTR>(className) : name.c_str();
    Request request;
    request.create = {parameter,
                      instance,
                      menu,
                      parent,
                      height,
                      width,
                      y,
                      x,
                      static_cast<LONG>(style),
                      title ? text.c_str() : nullptr,
                      narrowName,
                      exStyle};
    return createWindow(request, narrowName, title);
}

BOOL DestroyWindow(HWND handle) {
    LuMemoryWindow* window = findMemoryWindowOrFail(handle);
    if (!window || isDesktopWindow(*window))
        return FALSE;
    if (window->isDying)
        return TRUE;
    notifyParent(*window, WM_DESTROY);
    if (!findMemoryWindow(handle))
        return TRUE;
    if (!isChildStyle(window->style))
        destroyOwned(*window);
    if (findMemoryWindow(handle) && (window->style & WS_VISIBLE)) {
        if (isChildStyle(window->style))
            ShowWindow(handle, SW_HIDE);
        else
            SetWindowPos(handle, nullptr, 0, 0, 0, 0,
                         SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW);
    }
    if (findMemoryWindow(handle))
        passActivationOn(*window);
    if (findMemoryWindow(handle))
        sendDestroy(*window);
    if (findMemoryWindow(handle))
        finishDestroy(*window);
    return TRUE;
}
