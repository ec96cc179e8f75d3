// SPDX-License-Identifier: MIT
#include "platform/lumora/win/LuWinGDIWidget.h"

#include "platform/lumora/win/LuWin.h"
#include "platform/lumora/win/LuWinCanvas.h"

namespace {

// The component stands in the window's extra bytes: its user data is for who uses it.
constexpr int COMPONENT_INDEX = 0;

/// The name to create windows with; null, with a message, when there can't be such a class.
bool findClass(const char* name, WNDPROC procedure, std::string& realName) {
    WNDCLASSA windowClass{};
    if (LuWin::getClassInfo(LuWin::getInstance(), name, realName, windowClass))
        return true;
    windowClass.style = CS_HREDRAW | CS_VREDRAW;
    windowClass.lpfnWndProc = procedure;
    windowClass.cbWndExtra = sizeof(LONG_PTR);
    windowClass.hInstance = LuWin::getInstance();
    windowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    windowClass.lpszClassName = name;
    return LuWin::registerClass(windowClass, realName) != 0;
}

void fail(const char* name, const char* text) {
    const LvString title = LvString(name) + " Error";
    LuWin::createSimpleErrorDialog(nullptr, title.getString(), text, nullptr);
}

} // namespace

LuWinGDIWidget::~LuWinGDIWidget() {
    if (IsWindow(m_normalWindow))
        SetWindowLongPtrA(m_normalWindow, COMPONENT_INDEX, 0);
}

HWND LuWinGDIWidget::createNormalWindow(HWND parent) {
    const char* const name = getDefaultWidgetName();
    std::string realName;
    if (!findClass(name, windowProcedure, realName)) {
        fail(name, "RegisterClass failed");
        return nullptr;
    }
    const char* const title = getName().isEmpty() ? getDefaultTitle() : getName().getString();
    const HWND window =
        CreateWindowExA(0, realName.c_str(), title, WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN,
                        0, 0, 0, 0, parent, nullptr, LuWin::getInstance(), nullptr);
    if (!window) {
        fail(name, "CreateWindow failed");
        return nullptr;
    }
    SetWindowLongPtrA(window, COMPONENT_INDEX, reinterpret_cast<LONG_PTR>(this));
    m_normalWindow = window;
    setParentWidget(parent);
    widgetChanged();
    afterRealizeHook();
    return window;
}

LRESULT CALLBACK LuWinGDIWidget::windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* const widget = reinterpret_cast<LuWinGDIWidget*>(GetWindowLongPtrA(window, COMPONENT_INDEX));
    if (!widget)
        return DefWindowProcA(window, message, wParam, lParam);
    if (message != WM_NCDESTROY)
        return widget->processEvent(message, wParam, lParam);
    SetWindowLongPtrA(window, COMPONENT_INDEX, 0);
    widget->forgetNormalWindow();
    return DefWindowProcA(window, message, wParam, lParam);
}

void LuWinGDIWidget::forgetNormalWindow() {
    const bool isBase = getBaseWidget() == m_normalWindow;
    m_normalWindow = nullptr;
    widgetChanged();
    if (isBase)
        widgetDestroyed();
}

LRESULT LuWinGDIWidget::processEvent(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_PAINT:
        paint();
        return 0;
    case WM_ERASEBKGND:
        // The drawing covers all of the window.
        return TRUE;
    case WM_SIZE:
        sizeChanged(LOWORD(static_cast<DWORD_PTR>(lParam)), HIWORD(static_cast<DWORD_PTR>(lParam)));
        return 0;
    case WM_CLOSE:
        windowCloseAction();
        return 0;
    default:
        return DefWindowProcA(m_normalWindow, message, wParam, lParam);
    }
}

void LuWinGDIWidget::paint() {
    PAINTSTRUCT paint{};
    RECT client{};
    const HDC dc = BeginPaint(m_normalWindow, &paint);
    GetClientRect(m_normalWindow, &client);
    if (!m_canvas)
        m_canvas = LuWinCanvas::getShared();
    if (client.right <= 0 || client.bottom <= 0) {
        // There is nothing to see.
    } else if (m_canvas && m_canvas->begin(client.right, client.bottom, GetSysColor(COLOR_BTNFACE))) {
        if (!m_isGraphicReady)
            initGraphic();
        m_isGraphicReady = true;
        onExpose();
        m_canvas->end(dc);
    } else {
        FillRect(dc, &client, GetSysColorBrush(COLOR_BTNFACE));
        exposePlain(dc);
    }
    EndPaint(m_normalWindow, &paint);
}

void LuWinGDIWidget::redraw() {
    if (IsWindow(m_normalWindow))
        InvalidateRect(m_normalWindow, nullptr, FALSE);
}

void LuWinGDIWidget::sizeChanged(int, int) { redraw(); }
