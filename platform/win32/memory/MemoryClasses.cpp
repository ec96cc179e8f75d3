// SPDX-License-Identifier: MIT
#include "platform/win32/memory/MemoryWindow.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <memory>
#include <string_view>

namespace {

constexpr ATOM firstAtom = 0xc000;
constexpr std::uintptr_t largestAtom = 0xffff;

using ClassList = std::vector<std::unique_ptr<LuMemoryWindowClass>>;

/// Atoms are not used again before they have run out.
ATOM takeAtom() {
    static ATOM s_next = firstAtom;
    const ATOM atom = s_next;
    s_next = s_next == largestAtom ? firstAtom : static_cast<ATOM>(s_next + 1);
    return atom;
}

void addBuiltIn(ClassList& classes, const char* name, UINT style, WNDPROC procedure, int extra) {
    auto entry = std::make_unique<LuMemoryWindowClass>();
    entry->name = name;
    entry->isBuiltIn = true;
    entry->atom = takeAtom();
    entry->description.style = style | CS_GLOBALCLASS;
    entry->description.lpfnWndProc = procedure;
    entry->description.cbWndExtra = extra;
    classes.push_back(std::move(entry));
}

ClassList& getClasses() {
    static ClassList& classes = *[] {
        auto* list = new ClassList;
        addBuiltIn(*list, "Button", CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS | CS_PARENTDC, buttonProcedure, 0);
        addBuiltIn(*list, "Static", CS_DBLCLKS | CS_PARENTDC, staticProcedure, 0);
        addBuiltIn(*list, "Edit", CS_DBLCLKS | CS_PARENTDC, editProcedure, sizeof(void*));
        return list;
    }();
    return classes;
}

bool isSameName(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), [](char a, char b) {
        return std::tolower(static_cast<unsigned char>(a)) == std::tolower(static_cast<unsigned char>(b));
    });
}

bool isAtomName(LPCSTR name) { return reinterpret_cast<std::uintptr_t>(name) <= largestAtom; }

LuMemoryWindowClass* findOwnClass(LPCSTR name, HINSTANCE instance) {
    for (const auto& entry : getClasses()) {
        if (entry->isBuiltIn || entry->description.hInstance != instance)
            continue;
        if (isAtomName(name) ? entry->atom == reinterpret_cast<std::uintptr_t>(name)
                             : isSameName(entry->name, name))
            return entry.get();
    }
    return nullptr;
}

} // namespace

LuMemoryWindowClass* findMemoryClass(LPCSTR name, HINSTANCE instance) {
    if (!name)
        return nullptr;
    if (!instance)
        instance = GetModuleHandleA(nullptr);
    if (LuMemoryWindowClass* own = findOwnClass(name, instance))
        return own;
    for (const auto& entry : getClasses()) {
        if (!(entry->description.style & CS_GLOBALCLASS))
            continue;
        if (isAtomName(name) ? entry->atom == reinterpret_cast<std::uintptr_t>(name)
                             : isSameName(entry->name, name))
            return entry.get();
    }
    return nullptr;
}

ATOM RegisterClassA(const WNDCLASSA* windowClass) {
    LuMemoryDesktop& desktop = getMemoryDesktop();
    if (desktop.failingRegistrations > 0) {
        --desktop.failingRegistrations;
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return 0;
    }
    if (!windowClass || !windowClass->lpszClassName || isAtomName(windowClass->lpszClassName) ||
        !windowClass->lpfnWndProc || windowClass->cbClsExtra < 0 || windowClass->cbWndExtra < 0) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    HINSTANCE instance = windowClass->hInstance ? windowClass->hInstance : GetModuleHandleA(nullptr);
    if (findOwnClass(windowClass->lpszClassName, instance)) {
        SetLastError(ERROR_CLASS_ALREADY_EXISTS);
        return 0;
    }
    ClassList& classes = getClasses();
    auto entry = std::make_unique<LuMemoryWindowClass>();
    entry->name = windowClass->lpszClassName;
    entry->description = *windowClass;
    entry->description.hInstance = instance;
    entry->description.lpszClassName = entry->name.c_str();
    entry->atom = takeAtom();
    classes.push_back(std::move(entry));
    return classes.back()->atom;
}

BOOL UnregisterClassA(LPCSTR name, HINSTANCE instance) {
    LuMemoryWindowClass* entry =
        name ? findOwnClass(name, instance ? instance : GetModuleHandleA(nullptr)) : nullptr;
    if (!entry) {
        SetLastError(ERROR_CLASS_DOES_NOT_EXIST);
        return FALSE;
    }
    if (entry->numWindows > 0) {
        SetLastError(ERROR_CLASS_HAS_WINDOWS);
        return FALSE;
    }
    ClassList& classes = getClasses();
    std::erase_if(classes, [entry](const auto& other) { return other.get() == entry; });
    return TRUE;
}

BOOL GetClassInfoA(HINSTANCE instance, LPCSTR name, WNDCLASSA* windowClass) {
    // Without an instance only the system's classes are meant.
    LuMemoryWindowClass* entry = nullptr;
    if (instance)
        entry = findMemoryClass(name, instance);
    else if (LuMemoryWindowClass* found = findMemoryClass(name, nullptr); found && found->isBuiltIn)
        entry = found;
    if (!entry || !windowClass) {
        SetLastError(entry ? ERROR_INVALID_PARAMETER : ERROR_CLASS_DOES_NOT_EXIST);
        return FALSE;
    }
    *windowClass = entry->description;
    windowClass->lpszClassName = name;
    if (entry->isBuiltIn)
        windowClass->style &= ~CS_GLOBALCLASS;
    return TRUE;
}

int GetClassNameA(HWND handle, LPSTR text, int size) {
    const LuMemoryWindow* window = findMemoryWindowOrFail(handle);
    if (!window || !text || size <= 0)
        return 0;
    const std::string& name = window->windowClass->name;
    const std::size_t length = std::min(name.size(), static_cast<std::size_t>(size) - 1);
    std::memcpy(text, name.data(), length);
    text[length] = '\0';
    return static_cast<int>(length);
}
