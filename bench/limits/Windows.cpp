// SPDX-License-Identifier: MIT
// The least that a dialog of push buttons can cost in windows: the bare sequence of window-system calls that
// it makes, each of them once, with no tree, no fields and no layout behind them.
#include "bench/DialogText.h"
#include "bench/Measure.h"

#include <windows.h>

#include <algorithm>
#include <string>

namespace {

constexpr int buttonWidth = 140;
constexpr int buttonHeight = 34;

HINSTANCE instance() { return GetModuleHandleA(nullptr); }

HFONT font() { return static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT)); }

WNDPROC nativeButton = nullptr;

LRESULT CALLBACK buttonProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return CallWindowProcA(nativeButton, window, message, wParam, lParam);
}

void registerClass(const char* name, UINT style) {
    WNDCLASSA description{};
    description.style = style;
    description.lpfnWndProc = DefWindowProcA;
    description.cbWndExtra = 8;
    description.hInstance = instance();
    description.hbrBackground = CreateSolidBrush(GetSysColor(COLOR_BTNFACE));
    description.lpszClassName = name;
    bench::require(RegisterClassA(&description) != 0, "the window class can be registered");
}

void setFont(HWND window) { SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(font()), TRUE); }

void updateScrollBars(HWND window) {
    RECT rectangle;
    GetWindowRect(window, &rectangle);
    ShowScrollBar(window, SB_VERT, FALSE);
    ShowScrollBar(window, SB_HORZ, FALSE);
}

/// The window that every component has around its own.
HWND makeCarrier(HWND parent, bool group, const RECT& place) {
    const HWND carrier = CreateWindowExA(WS_EX_CONTROLPARENT, "BenchCarrier", "BenchCarrier",
                                         WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN, 0, 0, 0,
                                         0, parent, nullptr, instance(), nullptr);
    setFont(carrier);
    SetWindowLongPtrA(carrier, GWLP_USERDATA, 1);
    if (group)
        SendMessageA(carrier, WM_CREATE, 0, 0);
    SetWindowPos(carrier, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_DEFERERASE);
    return carrier;
}

/// A dialog measures each text at least once, with a window that it keeps for this.
void measureText(HWND measuring, const std::string& text) {
    SendMessageA(measuring, WM_SETFONT, reinterpret_cast<WPARAM>(font()), TRUE);
    const HDC context = GetWindowDC(measuring);
    SelectObject(context, font());
    SIZE size;
    GetTextExtentPoint32A(context, text.c_str(), static_cast<int>(text.size()), &size);
    ReleaseDC(measuring, context);
}

void makeLabel(HWND carrier) {
    const HWND label = CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_CLIPCHILDREN, 0, 0, 0, 0, carrier,
                                       nullptr, instance(), nullptr);
    setFont(label);
    ShowWindow(label, SW_SHOW);
    SetWindowPos(label, nullptr, 3, (buttonHeight - 3) / 2 + 3, 0, 0, SWP_DEFERERASE);
}

void makeButton(HWND carrier, const std::string& text) {
    const std::wstring wide(text.begin(), text.end());
    const HWND button = CreateWindowExW(0, L"BUTTON", wide.c_str(),
                                        WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_TABSTOP | BS_MULTILINE,
                                        0, 0, 0, 0, carrier, nullptr, instance(), nullptr);
    nativeButton = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(button, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(buttonProcedure)));
    SetWindowLongPtrA(button, GWLP_USERDATA, 1);
    setFont(button);
    SetWindowPos(button, nullptr, 5, 3, buttonWidth - 8, buttonHeight - 6, SWP_DEFERERASE);
}

SIZE sizeOf(const bench::Item& item) {
    if (item.kind == bench::Kind::PushButton)
        return {buttonWidth, buttonHeight};
    SIZE size{};
    for (const bench::Item& child : item.children) {
        const SIZE inner = sizeOf(child);
        const bool column = item.kind == bench::Kind::Column;
        size.cx = column ? size.cx + inner.cx : std::max(size.cx, inner.cx);
        size.cy = column ? std::max(size.cy, inner.cy) : size.cy + inner.cy;
    }
    return size;
}

/// What is known before the first window exists: texts and places.
struct Planned {
    const bench::Item* item;
    RECT place;
    std::vector<Planned> children;
};

Planned plan(const bench::Item& item, int x, int y) {
    const SIZE size = sizeOf(item);
    Planned planned{&item, {x, y, x + size.cx, y + size.cy}, {}};
    int offset = 0;
    for (const bench::Item& child : item.children) {
        const bool column = item.kind == bench::Kind::Column;
        planned.children.push_back(plan(child, column ? offset : 0, column ? 0 : offset));
        const RECT& place = planned.children.back().place;
        offset = column ? place.right : place.bottom;
    }
    return planned;
}

void make(const Planned& planned, HWND parent, HWND measuring) {
    const bool group = planned.item->kind != bench::Kind::PushButton;
    const HWND carrier = makeCarrier(parent, group, planned.place);
    if (group) {
        updateScrollBars(carrier);
        for (const Planned& child : planned.children)
            make(child, carrier, measuring);
        return;
    }
    measureText(measuring, planned.item->text);
    makeLabel(carrier);
    makeButton(carrier, planned.item->text);
}

HWND makeDialog(const Planned& root, HWND measuring) {
    const HWND base = CreateWindowExA(WS_EX_WINDOWEDGE, "BenchBase", "BenchBase",
                                      WS_CLIPSIBLINGS | WS_CLIPCHILDREN | WS_OVERLAPPEDWINDOW, 0, 0, 0, 0,
                                      nullptr, nullptr, instance(), nullptr);
    bench::require(base != nullptr, "the dialog's window can be made");
    SetWindowTextA(base, "Parameters");
    TITLEBARINFO title{};
    title.cbSize = sizeof(title);
    GetTitleBarInfo(base, &title);
    SetWindowPos(base, nullptr, 0, 0, root.place.right + 8, root.place.bottom + 27,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_DEFERERASE);
    const HWND inner = CreateWindowExA(0, "BenchCarrier", "BenchCarrier",
                                       WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN, 0, 0, 0, 0,
                                       base, nullptr, instance(), nullptr);
    setFont(inner);
    SetWindowLongPtrA(inner, GWLP_USERDATA, 1);
    SetWindowPos(base, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_DEFERERASE);
    SetWindowPos(inner, nullptr, 0, 0, root.place.right, root.place.bottom, SWP_NOMOVE | SWP_DEFERERASE);
    updateScrollBars(inner);
    make(root, inner, measuring);
    return base;
}

int countWindows(HWND parent) {
    int count = 0;
    EnumChildWindows(
        parent,
        [](HWND, LPARAM counter) -> BOOL {
            ++*reinterpret_cast<int*>(counter);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&count));
    return count;
}

} // namespace

int main(int argc, char** argv) {
    registerClass("BenchBase", CS_VREDRAW | CS_HREDRAW | CS_OWNDC);
    registerClass("BenchCarrier", CS_VREDRAW | CS_HREDRAW | CS_PARENTDC);
    for (const int count : bench::counts(argc, argv, {1000})) {
        const bench::Item dialog = bench::buttonDialog(count);
        const Planned root = plan(dialog, 0, 0);
        const HWND measuring =
            CreateWindowExW(0, L"BUTTON", L"", 0, 0, 0, 0, 0, nullptr, nullptr, instance(), nullptr);
        HWND base = nullptr;
        bench::measure("limit-windows", count, 5, count,
                       {.prepare = {},
                        .body = [&] { base = makeDialog(root, measuring); },
                        .clear =
                            [&] {
                                bench::require(countWindows(base) ==
                                                   3 * count + bench::countGroups(dialog) + 1,
                                               "every control has its three windows");
                                DestroyWindow(base);
                            }});
        DestroyWindow(measuring);
    }
}
