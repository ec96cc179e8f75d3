// SPDX-License-Identifier: MIT
#pragma once

#include "platform/win32/WindowSystem.h"

#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

/// A test with windows of its own, which write down the messages they get. Everything is destroyed at its
/// end.
class WindowFixture : public testing::Test {
protected:
    static constexpr const char* className = "PanelixContractWindow";

    void SetUp() override {
        s_current = this;
        WNDCLASSA description{};
        if (GetClassInfoA(GetModuleHandleA(nullptr), className, &description))
            return;
        description = WNDCLASSA{};
        description.lpfnWndProc = receive;
        description.cbWndExtra = 16;
        description.hInstance = GetModuleHandleA(nullptr);
        description.lpszClassName = className;
        ASSERT_NE(RegisterClassA(&description), 0);
    }

    void TearDown() override {
        m_isLogging = false;
        for (HWND window : m_tops)
            DestroyWindow(window);
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageA(&message);
        s_current = nullptr;
    }

    HWND create(const std::string& name, DWORD style, HWND parent = nullptr, DWORD exStyle = 0,
                RECT place = {}, const char* type = className) {
        m_creating = name;
        HWND window = CreateWindowExA(exStyle, type, name.c_str(), style, place.left, place.top,
                                      place.right - place.left, place.bottom - place.top, parent, nullptr,
                                      GetModuleHandleA(nullptr), nullptr);
        m_creating.clear();
        m_names[window] = name;
        if (!(style & WS_CHILD) && window)
            m_tops.push_back(window);
        return window;
    }

    /// A hidden frame window without limits to its size: its client area is the window.
    HWND createTop() { return create("top", WS_POPUP | WS_CLIPCHILDREN, nullptr, 0, {0, 0, 400, 300}); }

    HWND createChild(const std::string& name, HWND parent, RECT place = {}, DWORD exStyle = 0,
                     DWORD style = WS_CHILD | WS_VISIBLE) {
        return create(name, style, parent, exStyle, place);
    }

    HWND createButton(const std::string& name, HWND parent, RECT place = {0, 0, 80, 24},
                      DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP) {
        return create(name, style, parent, 0, place, "BUTTON");
    }

    HWND createEdit(const std::string& name, HWND parent, RECT place = {0, 0, 80, 20},
                    DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL) {
        return create(name, style, parent, WS_EX_CLIENTEDGE, place, "EDIT");
    }

    /// Makes a window of a built-in class write its messages down too.
    void subclass(HWND window) {
        m_previous[window] = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(receive)));
    }

    std::string nameOf(HWND window) const {
        if (!window)
            return "none";
        const auto found = m_names.find(window);
        if (found != m_names.end())
            return found->second;
        return m_creating.empty() ? "unknown" : m_creating;
    }

    /// Messages since the last call, "child:SIZE(200,100)".
    std::vector<std::string> takeLog() {
        std::vector<std::string> log;
        log.swap(m_log);
        return log;
    }

    static RECT rectOf(HWND window) {
        RECT rect{-1, -1, -1, -1};
        GetWindowRect(window, &rect);
        return rect;
    }

    static SIZE clientSizeOf(HWND window) {
        RECT rect{-1, -1, -2, -2};
        GetClientRect(window, &rect);
        return {rect.right, rect.bottom};
    }

    using Answer = LRESULT (*)(HWND window, UINT message, WPARAM wParam, LPARAM lParam, bool& isAnswered);
    /// Sees each message before it is handled, and may answer it.
    Answer m_answer = nullptr;
    bool m_isLogging = true;

private:
    static LRESULT CALLBACK receive(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        WNDPROC previous = nullptr;
        if (s_current) {
            s_current->log(window, message, wParam, lParam);
            bool isAnswered = false;
            if (s_current->m_answer) {
                const LRESULT result = s_current->m_answer(window, message, wParam, lParam, isAnswered);
                if (isAnswered)
                    return result;
            }
            const auto found = s_current->m_previous.find(window);
            if (found != s_current->m_previous.end())
                previous = found->second;
        }
        return previous ? CallWindowProcA(previous, window, message, wParam, lParam)
                        : DefWindowProcA(window, message, wParam, lParam);
    }

    static std::string numbers(LPARAM lParam) {
        const auto value = static_cast<DWORD_PTR>(lParam);
        return "(" + std::to_string(static_cast<SHORT>(LOWORD(value))) + "," +
               std::to_string(static_cast<SHORT>(HIWORD(value))) + ")";
    }

    std::string describe(UINT message, WPARAM wParam, LPARAM lParam) const {
        const std::string number = "(" + std::to_string(static_cast<int>(wParam)) + ")";
        const auto other = [this](LONG_PTR window) {
            return "(" + nameOf(reinterpret_cast<HWND>(window)) + ")";
        };
        switch (message) {
        case WM_GETMINMAXINFO:
            return "GETMINMAXINFO";
        case WM_NCCREATE:
            return "NCCREATE";
        case WM_NCCALCSIZE:
            return "NCCALCSIZE" + number;
        case WM_CREATE:
            return "CREATE";
        case WM_SIZE:
            return "SIZE" + numbers(lParam);
        case WM_MOVE:
            return "MOVE" + numbers(lParam);
        case WM_SHOWWINDOW:
            return "SHOWWINDOW" + number;
        case WM_WINDOWPOSCHANGING:
            return "POSCHANGING";
        case WM_WINDOWPOSCHANGED:
            return "POSCHANGED";
        case WM_CHILDACTIVATE:
            return "CHILDACTIVATE";
        case WM_ACTIVATE:
            return "ACTIVATE(" + std::to_string(LOWORD(wParam)) + ")";
        case WM_SETFOCUS:
            return "SETFOCUS" + other(static_cast<LONG_PTR>(wParam));
        case WM_KILLFOCUS:
            return "KILLFOCUS" + other(static_cast<LONG_PTR>(wParam));
        case WM_ENABLE:
            return "ENABLE" + number;
        case WM_CANCELMODE:
            return "CANCELMODE";
        case WM_DESTROY:
            return "DESTROY";
        case WM_NCDESTROY:
            return "NCDESTROY";
        case WM_PARENTNOTIFY:
            return "PARENTNOTIFY(" + std::to_string(LOWORD(wParam)) + ")";
        case WM_STYLECHANGING:
            return "STYLECHANGING" + number;
        case WM_STYLECHANGED:
            return "STYLECHANGED" + number;
        case WM_CAPTURECHANGED:
            return "CAPTURECHANGED" + other(lParam);
        case WM_COMMAND:
            return "COMMAND(" + std::to_string(LOWORD(wParam)) + "," + std::to_string(HIWORD(wParam)) + "," +
                   nameOf(reinterpret_cast<HWND>(lParam)) + ")";
        case WM_SETTEXT:
            return "SETTEXT(" + std::string(reinterpret_cast<const char*>(lParam)) + ")";
        case WM_CLOSE:
            return "CLOSE";
        case WM_SYSCOMMAND:
            return "SYSCOMMAND";
        case WM_LBUTTONDOWN:
            return "LBUTTONDOWN";
        case WM_LBUTTONUP:
            return "LBUTTONUP";
        case BM_SETSTATE:
            return "BM_SETSTATE" + number;
        case BM_SETCHECK:
            return "BM_SETCHECK" + number;
        case WM_USER:
            return "USER" + number;
        case WM_VSCROLL:
            return "VSCROLL" + number;
        case WM_MOUSEWHEEL:
            return "MOUSEWHEEL";
        default:
            return "";
        }
    }

    void log(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        const std::string text = m_isLogging ? describe(message, wParam, lParam) : std::string();
        if (!text.empty())
            m_log.push_back(nameOf(window) + ":" + text);
    }

    inline static WindowFixture* s_current = nullptr;
    std::string m_creating;
    std::map<HWND, std::string> m_names;
    std::map<HWND, WNDPROC> m_previous;
    std::vector<HWND> m_tops;
    std::vector<std::string> m_log;
};

inline bool operator==(const RECT& left, const RECT& right) {
    return left.left == right.left && left.top == right.top && left.right == right.right &&
           left.bottom == right.bottom;
}

inline void PrintTo(const RECT& rect, std::ostream* out) {
    *out << rect.left << "," << rect.top << " - " << rect.right << "," << rect.bottom;
}

inline bool operator==(const SIZE& left, const SIZE& right) {
    return left.cx == right.cx && left.cy == right.cy;
}

inline void PrintTo(const SIZE& size, std::ostream* out) { *out << size.cx << " x " << size.cy; }
