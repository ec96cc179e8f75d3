// SPDX-License-Identifier: MIT
#include "apps/play/WindowPlayer.h"

#include "apps/play/PlayKeys.h"
#include "controls/LuDialogCustomSlider.h"
#include "controls/LuDialogSlider.h"
#include "layout/LuDialogComponent.h"
#include "layout/LuTopLevelDialog.h"
#include "platform/lumora/base/LuDebugError.h"
#include "platform/lumora/sensors/LuSensor.h"
#include "platform/lumora/win/LuWin.h"

#include <chrono>
#include <cstring>
#include <thread>

namespace {

constexpr const char* WHERE = "WindowPlayer";

bool isLabel(HWND window) {
    char name[16] = "";
    GetClassNameA(window, name, sizeof name);
    return std::strcmp(name, "Static") == 0;
}

/// The window of a control that the user operates: the first in its carrier that is no label; the carrier,
/// when there is none.
HWND getOperatedWindow(HWND carrier) {
    for (HWND child = GetWindow(carrier, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (!isLabel(child) && IsWindowVisible(child))
            return child;
    }
    return carrier;
}

/// A part of a slider's own window, on the screen.
RECT getScreenRect(HWND window, const LuWinSliderRectangle& place) {
    POINT corners[] = {{place.x0, place.y0}, {place.x1, place.y1}};
    MapWindowPoints(window, nullptr, corners, 2);
    return {corners[0].x, corners[0].y, corners[1].x, corners[1].y};
}

/// The window to press for a part of a slider, and the place on the screen.
HWND findSliderPart(const LuDialogSlider& slider, const std::string& part, RECT& rect) {
    const LuDialogCustomSlider* const bar = slider.getCustomSlider();
    if (!bar)
        return nullptr;
    if (part == "check" || part == "value") {
        const HWND window = part == "check" ? slider.getToggleWidget() : slider.getEditWidget();
        return GetWindowRect(window, &rect) ? window : nullptr;
    }
    if (!part.empty() && part != "cursor" && part != "frame")
        return nullptr;
    const HWND window = bar->getNormalWindow();
    rect = getScreenRect(window, part == "frame" ? bar->getBarRectangle() : bar->getThumbRectangle());
    return window;
}

/// The window to press for a component, and the place on the screen; null where there is none.
HWND findPressed(LuPanelix& component, const std::string& part, RECT& rect) {
    if (component.isOfType(LuDialogSlider::getClassTypeId()))
        return findSliderPart(static_cast<const LuDialogSlider&>(component), part, rect);
    if (!part.empty() && part != "frame")
        return nullptr;
    const HWND carrier = component.isOfType(LuDialogComponent::getClassTypeId())
                             ? static_cast<LuDialogComponent&>(component).getWidget()
                             : nullptr;
    const HWND window = getOperatedWindow(carrier);
    return GetWindowRect(window, &rect) ? window : nullptr;
}

/// A mouse message goes by a disabled window to the one below it.
HWND getEnabledWindow(HWND window) {
    while (window && !IsWindowEnabled(window))
        window = GetParent(window);
    return window;
}

bool isMinimised(HWND window) { return (GetWindowLongPtrA(window, GWL_STYLE) & WS_MINIMIZE) != 0; }

/// Whether the mouse can get at a window. What is in a minimised one still counts as visible.
bool isSeen(HWND window) { return IsWindowVisible(window) && !isMinimised(GetAncestor(window, GA_ROOT)); }

void send(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    PostMessageA(window, message, wParam, lParam);
    LuWin::processMessages();
}

} // namespace

bool WindowPlayer::pressDialog(LuTopLevelDialog& dialog, const std::string& part) {
    const HWND window = dialog.getBaseWidget();
    if (part == "minimise")
        m_minimised = window;
    else if (part.empty() || part == "frame")
        m_frame = window;
    else
        return false;
    return IsWindow(window) != 0;
}

bool WindowPlayer::press(LuPanelix& component, const std::string& part) {
    if (component.isOfType(LuTopLevelDialog::getClassTypeId()))
        return pressDialog(static_cast<LuTopLevelDialog&>(component), part);
    RECT rect{};
    const HWND window = findPressed(component, part, rect);
    if (!IsWindow(window))
        return false;
    m_place.setValue((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
    m_pressed = isSeen(window) ? getEnabledWindow(window) : nullptr;
    // The window hears first that it is going to be pressed.
    if (m_pressed)
        SendMessageA(m_pressed, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(GetAncestor(m_pressed, GA_ROOT)),
                     MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN));
    sendMouse(WM_LBUTTONDOWN, MK_LBUTTON);
    return true;
}

void WindowPlayer::sendMouse(UINT message, WPARAM buttons) {
    const HWND captured = GetCapture();
    const HWND window = captured ? captured : m_pressed;
    POINT place = {m_place.x, m_place.y};
    if (IsWindow(window) && ScreenToClient(window, &place))
        send(window, message, buttons, MAKELPARAM(place.x, place.y));
}

void WindowPlayer::moveBy(const LvVec2i32& offset) {
    m_place += offset;
    if (RECT rect; m_frame && GetWindowRect(m_frame, &rect)) {
        SetWindowPos(m_frame, nullptr, rect.left + offset.x, rect.top + offset.y, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        LuWin::processMessages();
        return;
    }
    sendMouse(WM_MOUSEMOVE, MK_LBUTTON);
}

void WindowPlayer::release() {
    if (m_minimised) // The same button restores.
        send(m_minimised, WM_SYSCOMMAND, isMinimised(m_minimised) ? SC_RESTORE : SC_MINIMIZE, 0);
    else if (!m_frame)
        sendMouse(WM_LBUTTONUP, 0);
    m_minimised = m_frame = m_pressed = nullptr;
}

void WindowPlayer::pressKey(LuKeyboardEvent::Key key) {
    const auto code = static_cast<WPARAM>(getVirtualKey(key));
    send(GetFocus(), WM_KEYDOWN, code, 1);
    // The focus may have moved: the key goes up where it is now.
    constexpr LPARAM RELEASED = 0xC0000001;
    send(GetFocus(), WM_KEYUP, code, RELEASED);
}

void WindowPlayer::type(const std::string& text) {
    for (const char character : LvString(text).toLatin1())
        send(GetFocus(), WM_CHAR, static_cast<unsigned char>(character), 1);
}

void WindowPlayer::resize(LuTopLevelDialog& dialog, const LvVec2i32& size) {
    SetWindowPos(dialog.getBaseWidget(), nullptr, 0, 0, size.x, size.y,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    LuWin::processMessages();
}

void WindowPlayer::wait(int milliseconds) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
    do {
        LuWin::processMessages();
        LuDelayQueueSensor::processQueue();
        if (milliseconds > 0)
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
    } while (std::chrono::steady_clock::now() < end);
}

bool WindowPlayer::takeSnapshot(const std::string& path) {
    if (m_snapshot)
        return m_snapshot(path);
    LuDebugError::post(WHERE, "No picture can be taken here: %s", path.c_str());
    return false;
}
