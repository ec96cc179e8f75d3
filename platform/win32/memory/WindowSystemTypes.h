// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

// The types of the window system in memory. Widths and members are those of the 64-bit Win32 contract, but a
// wide character is the platform's own wchar_t.

#define CALLBACK
#define WINAPI
#define APIENTRY

using BOOL = int;
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using UINT = unsigned int;
using INT = int;
using LONG = std::int32_t;
using SHORT = std::int16_t;
using WCHAR = wchar_t;
using CHAR = char;
using ATOM = WORD;
using COLORREF = DWORD;
using LANGID = WORD;
using INT_PTR = std::int64_t;
using UINT_PTR = std::uint64_t;
using LONG_PTR = std::int64_t;
using ULONG_PTR = std::uint64_t;
using DWORD_PTR = std::uint64_t;
using WPARAM = UINT_PTR;
using LPARAM = LONG_PTR;
using LRESULT = LONG_PTR;
using LPVOID = void*;
using LPSTR = char*;
using LPCSTR = const char*;
using LPWSTR = wchar_t*;
using LPCWSTR = const wchar_t*;

using HANDLE = void*;
using HGDIOBJ = void*;

struct HWND__;
struct HINSTANCE__;
struct HMENU__;
struct HDC__;
struct HFONT__;
struct HBRUSH__;
struct HICON__;
struct HRGN__;
struct HACCEL__;
using HWND = HWND__*;
using HINSTANCE = HINSTANCE__*;
using HMODULE = HINSTANCE;
using HMENU = HMENU__*;
using HDC = HDC__*;
using HFONT = HFONT__*;
using HBRUSH = HBRUSH__*;
using HICON = HICON__*;
using HCURSOR = HICON;
using HRGN = HRGN__*;
using HACCEL = HACCEL__*;

using WNDPROC = LRESULT (*)(HWND, UINT, WPARAM, LPARAM);
using WNDENUMPROC = BOOL (*)(HWND, LPARAM);
using TIMERPROC = void (*)(HWND, UINT, UINT_PTR, DWORD);

struct RECT {
    LONG left, top, right, bottom;
};
using LPRECT = RECT*;
using LPCRECT = const RECT*;

struct POINT {
    LONG x, y;
};

struct SIZE {
    LONG cx, cy;
};

struct MSG {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    POINT pt;
};

struct WNDCLASSA {
    UINT style;
    WNDPROC lpfnWndProc;
    int cbClsExtra;
    int cbWndExtra;
    HINSTANCE hInstance;
    HICON hIcon;
    HCURSOR hCursor;
    HBRUSH hbrBackground;
    LPCSTR lpszMenuName;
    LPCSTR lpszClassName;
};

struct CREATESTRUCTA {
    LPVOID lpCreateParams;
    HINSTANCE hInstance;
    HMENU hMenu;
    HWND hwndParent;
    int cy, cx, y, x;
    LONG style;
    LPCSTR lpszName;
    LPCSTR lpszClass;
    DWORD dwExStyle;
};

struct WINDOWPOS {
    HWND hwnd;
    HWND hwndInsertAfter;
    int x, y, cx, cy;
    UINT flags;
};

struct STYLESTRUCT {
    DWORD styleOld, styleNew;
};

struct NCCALCSIZE_PARAMS {
    RECT rgrc[3];
    WINDOWPOS* lppos;
};

struct MINMAXINFO {
    POINT ptReserved, ptMaxSize, ptMaxPosition, ptMinTrackSize, ptMaxTrackSize;
};

struct SCROLLINFO {
    UINT cbSize;
    UINT fMask;
    int nMin, nMax;
    UINT nPage;
    int nPos, nTrackPos;
};

inline constexpr int CCHILDREN_TITLEBAR = 5;

struct TITLEBARINFO {
    DWORD cbSize;
    RECT rcTitleBar;
    DWORD rgstate[CCHILDREN_TITLEBAR + 1];
};

struct PAINTSTRUCT {
    HDC hdc;
    BOOL fErase;
    RECT rcPaint;
    BOOL fRestore;
    BOOL fIncUpdate;
    BYTE rgbReserved[32];
};

struct NMHDR {
    HWND hwndFrom;
    UINT_PTR idFrom;
    UINT code;
};

struct ACCEL {
    BYTE fVirt;
    WORD key;
    WORD cmd;
};

struct MENUITEMINFOA {
    UINT cbSize;
    UINT fMask;
    UINT fType;
    UINT fState;
    UINT wID;
    HMENU hSubMenu;
    void* hbmpChecked;
    void* hbmpUnchecked;
    ULONG_PTR dwItemData;
    LPSTR dwTypeData;
    UINT cch;
    void* hbmpItem;
};

inline constexpr int LF_FACESIZE = 32;
inline constexpr int MAX_PATH = 260;

struct LOGFONTA {
    LONG lfHeight, lfWidth, lfEscapement, lfOrientation, lfWeight;
    BYTE lfItalic, lfUnderline, lfStrikeOut, lfCharSet;
    BYTE lfOutPrecision, lfClipPrecision, lfQuality, lfPitchAndFamily;
    CHAR lfFaceName[LF_FACESIZE];
};

struct TEXTMETRICA {
    LONG tmHeight, tmAscent, tmDescent, tmInternalLeading, tmExternalLeading;
    LONG tmAveCharWidth, tmMaxCharWidth, tmWeight, tmOverhang;
    LONG tmDigitizedAspectX, tmDigitizedAspectY;
    BYTE tmFirstChar, tmLastChar, tmDefaultChar, tmBreakChar;
    BYTE tmItalic, tmUnderlined, tmStruckOut, tmPitchAndFamily, tmCharSet;
};

struct SHFILEINFOA {
    HICON hIcon;
    int iIcon;
    DWORD dwAttributes;
    CHAR szDisplayName[MAX_PATH];
    CHAR szTypeName[80];
};

struct OSVERSIONINFOA {
    DWORD dwOSVersionInfoSize;
    DWORD dwMajorVersion, dwMinorVersion, dwBuildNumber, dwPlatformId;
    CHAR szCSDVersion[128];
};
