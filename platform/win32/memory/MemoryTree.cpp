// SPDX-License-Identifier: MIT
#include "platform/win32/memory/MemoryWindow.h"

#include <vector>

namespace {

bool contains(const RECT& rect, const POINT& point) {
    return point.x >= rect.left && point.x < rect.right && point.y >= rect.top && point.y < rect.bottom;
}

/// The walk behind GetNextDlgTabItem, in the order of the tab key.
///
/// A hidden or disabled container closes off what is in it, but not for a control that is in it already. What
/// is inside the control itself is neither before nor behind it.
struct TabWalk {
    const LuMemoryWindow* control = nullptr;
    const LuMemoryWindow* first = nullptr;
    const LuMemoryWindow* last = nullptr;
    const LuMemoryWindow* before = nullptr; ///< The last stop in front of the control.
    const LuMemoryWindow* after = nullptr;  ///< The first stop behind it.
    enum class Place { BEFORE, INSIDE, BEHIND } place = Place::BEFORE;

    /// `isOpen` tells whether a user can get into `parent` at all, `isNear` whether the control can.
    void visit(const LuMemoryWindow& parent, bool isOpen, bool isNear) {
        for (const LuMemoryWindow* child = parent.firstChild; child; child = child->below) {
            const bool isUsable = (child->style & WS_VISIBLE) && !(child->style & WS_DISABLED);
            if (child == control)
                place = Place::INSIDE;
            if (child->exStyle & WS_EX_CONTROLPARENT)
                visit(*child, isOpen && isUsable, isNear && (isUsable || isInside(control, child)));
            else if (isUsable && (child->style & WS_TABSTOP))
                take(*child, isOpen, isNear);
            if (child == control)
                place = Place::BEHIND;
        }
    }

    void take(const LuMemoryWindow& stop, bool isOpen, bool isNear) {
        if (isOpen && !first)
            first = &stop;
        if (isOpen)
            last = &stop;
        if (isNear && place == Place::BEFORE)
            before = &stop;
        else if (isNear && place == Place::BEHIND && !after)
            after = &stop;
    }
};

LuMemoryWindow* findChildAt(LuMemoryWindow& parent, POINT point, UINT flags) {
    for (LuMemoryWindow* child = parent.firstChild; child; child = child->below) {
        if ((flags & CWP_SKIPINVISIBLE) && !(child->style & WS_VISIBLE))
            continue;
        if ((flags & CWP_SKIPDISABLED) && (child->style & WS_DISABLED))
            continue;
        if (contains(child->rect, point))
            return child;
    }
    return nullptr;
}

/// The window under a point, given in the parent's client coordinates.
LuMemoryWindow* findWindowAt(LuMemoryWindow& window, POINT point, POINT screen) {
    if (!(window.style & WS_VISIBLE) || !contains(window.rect, point))
        return nullptr;
    if (window.style & WS_DISABLED)
        return isChildStyle(window.style) ? nullptr : &window;
    if (contains(window.client, point)) {
        const POINT inside{point.x - window.client.left, point.y - window.client.top};
        for (LuMemoryWindow* child = window.firstChild; child; child = child->below)
            if (LuMemoryWindow* found = findWindowAt(*child, inside, screen))
                return found;
    }
    const LRESULT hit = sendMessage(window, WM_NCHITTEST, 0, MAKELPARAM(screen.x, screen.y));
    return hit == HTTRANSPARENT ? nullptr : &window;
}

bool enumerate(LuMemoryWindow& parent, WNDENUMPROC function, LPARAM data) {
    // The function may destroy windows: handles are collected first.
    std::vector<HWND> handles;
    for (const LuMemoryWindow* child = parent.firstChild; child; child = child->below)
        handles.push_back(getHandle(child));
    for (HWND handle : handles) {
        if (!findMemoryWindow(handle))
            continue;
        if (!function(handle, data))
            return false;
        LuMemoryWindow* child = findMemoryWindow(handle);
        if (child && !enumerate(*child, function, data))
            return false;
    }
    return true;
}

} // namespace

HWND GetParent(HWND handle) {
    const LuMemoryWindow* window = findMemoryWindowOrFail(handle);
    if (!window)
        return nullptr;
    return getHandle(isChildStyle(window->style) ? window->parent : window->owner);
}

HWND SetParent(HWND handle, HWND parentHandle) {
    LuMemoryWindow* window = findMemoryWindowOrFail(handle);
    LuMemoryWindow* parent = parentHandle ? findMemoryWindowOrFail(parentHandle) : getMemoryDesktop().root;
    if (!window || !parent || isInside(parent, window)) {
        if (window && parent)
            SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    const HWND previous = getHandle(window->parent);
    const bool wasVisible = (window->style & WS_VISIBLE) != 0;
    if (wasVisible)
        ShowWindow(handle, SW_HIDE);
    unlinkMemoryWindow(*window);
    window->parent = parent;
    linkMemoryWindow(*window, nullptr);
    if (wasVisible)
        ShowWindow(handle, SW_SHOW);
    return previous;
}

HWND GetAncestor(HWND handle, UINT which) {
    LuMemoryWindow* window = findMemoryWindowOrFail(handle);
    if (!window || isDesktopWindow(*window))
        return nullptr;
    if (which == GA_PARENT)
        return getHandle(window->parent);
    LuMemoryWindow* root = getRootWindow(window);
    while (which == GA_ROOTOWNER && root->owner)
        root = root->owner;
    return getHandle(root);
}

HWND GetWindow(HWND handle, UINT which) {
    const LuMemoryWindow* window = findMemoryWindowOrFail(handle);
    if (!window)
        return nullptr;
    switch (which) {
    case GW_HWNDFIRST:
        return getHandle(window->parent ? window->parent->firstChild : nullptr);
    case GW_HWNDLAST:
        return getHandle(window->parent ? window->parent->lastChild : nullptr);
    case GW_HWNDNEXT:
        return getHandle(window->below);
    case GW_HWNDPREV:
        return getHandle(window->above);
    case GW_OWNER:
        return getHandle(window->owner);
    case GW_CHILD:
        return getHandle(window->firstChild);
    default:
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
}

BOOL IsChild(HWND parentHandle, HWND handle) {
    const LuMemoryWindow* parent = findMemoryWindow(parentHandle);
    const LuMemoryWindow* window = findMemoryWindow(handle);
    if (!parent || !window || !isChildStyle(window->style))
        return FALSE;
    return isInside(window->parent, parent);
}

HWND FindWindowA(LPCSTR className, LPCSTR title) {
    const LuMemoryWindowClass* type = className ? findMemoryClass(className, nullptr) : nullptr;
    if (className && !type)
        return nullptr;
    const std::wstring text = title ? widenAnsi(title) : std::wstring();
    for (const LuMemoryWindow* top = getMemoryDesktop().root->firstChild; top; top = top->below)
        if ((!type || top->windowClass == type) && (!title || top->text == text))
            return getHandle(top);
    return nullptr;
}

BOOL EnumChildWindows(HWND parentHandle, WNDENUMPROC function, LPARAM data) {
    LuMemoryWindow* parent = parentHandle ? findMemoryWindowOrFail(parentHandle) : getMemoryDesktop().root;
    return parent && function && enumerate(*parent, function, data);
}

HWND GetDlgItem(HWND parentHandle, int id) {
    const LuMemoryWindow* parent = findMemoryWindowOrFail(parentHandle);
    if (!parent)
        return nullptr;
    for (const LuMemoryWindow* child = parent->firstChild; child; child = child->below)
        if (static_cast<int>(child->id) == id)
            return getHandle(child);
    return nullptr;
}

int GetDlgCtrlID(HWND handle) {
    const LuMemoryWindow* window = findMemoryWindowOrFail(handle);
    return window ? static_cast<int>(window->id) : 0;
}

HWND GetNextDlgTabItem(HWND dialogHandle, HWND controlHandle, BOOL previous) {
    LuMemoryWindow* dialog = findMemoryWindowOrFail(dialogHandle);
    if (!dialog)
        return nullptr;
    // Without a control there is a first stop, but none before it.
    const bool hasStart = controlHandle && controlHandle != dialogHandle;
    if (!hasStart && previous)
        return nullptr;
    TabWalk walk;
    walk.control = IsChild(dialogHandle, controlHandle) ? findMemoryWindow(controlHandle) : nullptr;
    walk.visit(*dialog, true, true);
    const LuMemoryWindow* next = nullptr;
    if (walk.control)
        next = previous ? walk.before : walk.after;
    if (!next)
        next = previous ? walk.last : walk.first;
    return next ? getHandle(next) : controlHandle;
}

HWND WindowFromPoint(POINT point) {
    LuMemoryWindow* root = getMemoryDesktop().root;
    return getHandle(findWindowAt(*root, point, point));
}

HWND ChildWindowFromPointEx(HWND parentHandle, POINT point, UINT flags) {
    LuMemoryWindow* parent = findMemoryWindowOrFail(parentHandle);
    if (!parent)
        return nullptr;
    const RECT& client = parent->client;
    if (!contains({0, 0, client.right - client.left, client.bottom - client.top}, point))
        return nullptr;
    LuMemoryWindow* child = findChildAt(*parent, point, flags);
    return child ? getHandle(child) : parentHandle;
}

HWND ChildWindowFromPoint(HWND parent, POINT point) { return ChildWindowFromPointEx(parent, point, CWP_ALL); }
