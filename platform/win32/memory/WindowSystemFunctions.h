// SPDX-License-Identifier: MIT
#pragma once

#include "platform/win32/memory/WindowSystemTypes.h"

// The functions of the window system in memory: each keeps the Win32 contract as far as it is used. None of
// them crashes on a handle that is no longer valid; they fail as the Win32 functions do.

// Words of messages.
inline constexpr WORD LOWORD(DWORD_PTR value) { return static_cast<WORD>(value & 0xffff); }
inline constexpr WORD HIWORD(DWORD_PTR value) { return static_cast<WORD>((value >> 16) & 0xffff); }
inline constexpr LONG MAKELONG(int low, int high) {
    return static_cast<LONG>((static_cast<DWORD>(low) & 0xffff) | (static_cast<DWORD>(high) & 0xffff) << 16);
}
inline constexpr LPARAM MAKELPARAM(int low, int high) {
    return static_cast<LPARAM>(static_cast<DWORD>(MAKELONG(low, high)));
}
inline constexpr WPARAM MAKEWPARAM(int low, int high) {
    return static_cast<WPARAM>(static_cast<DWORD>(MAKELONG(low, high)));
}
inline constexpr SHORT GET_WHEEL_DELTA_WPARAM(WPARAM value) { return static_cast<SHORT>(HIWORD(value)); }
inline constexpr COLORREF RGB(int red, int green, int blue) {
    return static_cast<COLORREF>(red | green << 8 | blue << 16);
}
inline LPSTR MAKEINTRESOURCEA(int id) { return reinterpret_cast<LPSTR>(static_cast<std::uintptr_t>(id)); }

// Window classes.
ATOM RegisterClassA(const WNDCLASSA* windowClass);
BOOL UnregisterClassA(LPCSTR name, HINSTANCE instance);
BOOL GetClassInfoA(HINSTANCE instance, LPCSTR name, WNDCLASSA* windowClass);
int GetClassNameA(HWND window, LPSTR text, int size);

// Life of a window.
HWND CreateWindowExA(DWORD exStyle, LPCSTR className, LPCSTR title, DWORD style, int x, int y, int width,
                     int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID parameter);
HWND CreateWindowExW(DWORD exStyle, LPCWSTR className, LPCWSTR title, DWORD style, int x, int y, int width,
                     int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID parameter);
BOOL DestroyWindow(HWND window);
BOOL IsWindow(HWND window);

// Data and styles.
LONG_PTR GetWindowLongPtrA(HWND window, int index);
LONG_PTR SetWindowLongPtrA(HWND window, int index, LONG_PTR value);
LONG GetWindowLongA(HWND window, int index);
LONG SetWindowLongA(HWND window, int index, LONG value);

// The tree of windows.
HWND GetParent(HWND window);
HWND SetParent(HWND window, HWND parent);
HWND GetAncestor(HWND window, UINT which);
HWND GetWindow(HWND window, UINT which);
BOOL IsChild(HWND parent, HWND window);
HWND GetDesktopWindow();
HWND FindWindowA(LPCSTR className, LPCSTR title);
BOOL EnumChildWindows(HWND parent, WNDENUMPROC function, LPARAM data);
HWND GetDlgItem(HWND parent, int id);
int GetDlgCtrlID(HWND window);
HWND GetNextDlgTabItem(HWND dialog, HWND control, BOOL previous);

// Places.
BOOL SetWindowPos(HWND window, HWND insertAfter, int x, int y, int width, int height, UINT flags);
BOOL MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint);
BOOL GetWindowRect(HWND window, RECT* rect);
BOOL GetClientRect(HWND window, RECT* rect);
BOOL ClientToScreen(HWND window, POINT* point);
BOOL ScreenToClient(HWND window, POINT* point);
int MapWindowPoints(HWND from, HWND to, POINT* points, UINT count);
BOOL AdjustWindowRectEx(RECT* rect, DWORD style, BOOL hasMenu, DWORD exStyle);
HWND WindowFromPoint(POINT point);
HWND ChildWindowFromPointEx(HWND parent, POINT point, UINT flags);
HWND ChildWindowFromPoint(HWND parent, POINT point);
BOOL GetTitleBarInfo(HWND window, TITLEBARINFO* info);

// Showing, enabling, focus.
BOOL ShowWindow(HWND window, int command);
BOOL IsWindowVisible(HWND window);
BOOL EnableWindow(HWND window, BOOL enable);
BOOL IsWindowEnabled(HWND window);
HWND SetFocus(HWND window);
HWND GetFocus();
HWND SetActiveWindow(HWND window);
HWND GetActiveWindow();
BOOL SetForegroundWindow(HWND window);
HWND GetForegroundWindow();
HWND SetCapture(HWND window);
BOOL ReleaseCapture();
HWND GetCapture();
SHORT GetKeyState(int key);

// Painting: nothing is drawn, a paint is only said to be done.
BOOL UpdateWindow(HWND window);
BOOL InvalidateRect(HWND window, const RECT* rect, BOOL erase);
BOOL RedrawWindow(HWND window, const RECT* rect, HRGN region, UINT flags);
HDC BeginPaint(HWND window, PAINTSTRUCT* paint);
BOOL EndPaint(HWND window, const PAINTSTRUCT* paint);
int FillRect(HDC dc, const RECT* rect, HBRUSH brush);

// Texts of windows.
BOOL SetWindowTextA(HWND window, LPCSTR text);
BOOL SetWindowTextW(HWND window, LPCWSTR text);
int GetWindowTextA(HWND window, LPSTR text, int size);
int GetWindowTextW(HWND window, LPWSTR text, int size);
int GetWindowTextLengthA(HWND window);
int GetWindowTextLengthW(HWND window);

// Scrolling.
int SetScrollInfo(HWND window, int bar, const SCROLLINFO* info, BOOL redraw);
BOOL GetScrollInfo(HWND window, int bar, SCROLLINFO* info);
int SetScrollPos(HWND window, int bar, int position, BOOL redraw);
int GetScrollPos(HWND window, int bar);
BOOL SetScrollRange(HWND window, int bar, int minimum, int maximum, BOOL redraw);
BOOL GetScrollRange(HWND window, int bar, int* minimum, int* maximum);
BOOL ShowScrollBar(HWND window, int bar, BOOL show);
BOOL ScrollWindow(HWND window, int x, int y, const RECT* rect, const RECT* clip);

// Messages.
LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT SendMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
BOOL PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
void PostQuitMessage(int exitCode);
/// Without a message left to wait for, GetMessageA gives WM_QUIT: nobody else could ever post one.
BOOL GetMessageA(MSG* message, HWND window, UINT first, UINT last);
BOOL PeekMessageA(MSG* message, HWND window, UINT first, UINT last, UINT remove);
BOOL TranslateMessage(const MSG* message);
LRESULT DispatchMessageA(const MSG* message);
LRESULT DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CallWindowProcA(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam);
UINT RegisterWindowMessageA(LPCSTR name);

// Accelerators.
HACCEL CreateAcceleratorTableA(ACCEL* accelerators, int count);
BOOL DestroyAcceleratorTable(HACCEL table);
int TranslateAcceleratorA(HWND window, HACCEL table, MSG* message);

/// There is no user to answer: it fails, with 0.
int MessageBoxA(HWND parent, LPCSTR text, LPCSTR title, UINT flags);

// Menus: until menus can be made, a window has none and every handle of one is invalid.
HMENU GetMenu(HWND window);
BOOL GetMenuItemInfoA(HMENU menu, UINT item, BOOL byPosition, MENUITEMINFOA* info);

// Drawing tools and measuring.
HGDIOBJ GetStockObject(int index);
HFONT CreateFontA(int height, int width, int escapement, int orientation, int weight, DWORD italic,
                  DWORD underline, DWORD strikeOut, DWORD charSet, DWORD outPrecision, DWORD clipPrecision,
                  DWORD quality, DWORD pitchAndFamily, LPCSTR faceName);
HFONT CreateFontW(int height, int width, int escapement, int orientation, int weight, DWORD italic,
                  DWORD underline, DWORD strikeOut, DWORD charSet, DWORD outPrecision, DWORD clipPrecision,
                  DWORD quality, DWORD pitchAndFamily, LPCWSTR faceName);
HBRUSH CreateSolidBrush(COLORREF color);
BOOL DeleteObject(HGDIOBJ object);
int GetObjectA(HGDIOBJ object, int size, LPVOID data);
HDC GetDC(HWND window);
HDC GetWindowDC(HWND window);
int ReleaseDC(HWND window, HDC dc);
HGDIOBJ SelectObject(HDC dc, HGDIOBJ object);
BOOL GetTextExtentPoint32A(HDC dc, LPCSTR text, int length, SIZE* size);
BOOL GetTextExtentPoint32W(HDC dc, LPCWSTR text, int length, SIZE* size);
BOOL GetTextMetricsA(HDC dc, TEXTMETRICA* metrics);
int GetDeviceCaps(HDC dc, int index);

// The system.
HMODULE GetModuleHandleA(LPCSTR name);
BOOL GetModuleHandleExA(DWORD flags, LPCSTR name, HMODULE* module);
DWORD GetModuleFileNameA(HMODULE module, LPSTR name, DWORD size);
DWORD_PTR SHGetFileInfoA(LPCSTR path, DWORD attributes, SHFILEINFOA* info, UINT size, UINT flags);
HICON LoadIconA(HINSTANCE instance, LPCSTR name);
BOOL DestroyIcon(HICON icon);
HCURSOR LoadCursorA(HINSTANCE instance, LPCSTR name);
int GetSystemMetrics(int index);
COLORREF GetSysColor(int index);
HBRUSH GetSysColorBrush(int index);
BOOL SystemParametersInfoA(UINT action, UINT parameter, LPVOID data, UINT flags);
BOOL GetVersionExA(OSVERSIONINFOA* info);
DWORD GetLastError();
void SetLastError(DWORD error);
