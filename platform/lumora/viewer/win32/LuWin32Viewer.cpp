// SPDX-License-Identifier: MIT
#include "platform/lumora/viewer/win32/LuWin32Viewer.h"

#include "platform/lumora/base/LuDebugError.h"
#include "platform/lumora/viewer/win32/LuWin32Keys.h"
#include "platform/lumora/win/LuWin.h"

#include <windowsx.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr DWORD STYLE = WS_OVERLAPPEDWINDOW;
constexpr wchar_t CLASS_NAME[] = L"LuViewer";

bool isDown(int virtualKey) { return GetKeyState(virtualKey) < 0; }

unsigned getBit(int button) { return 1U << static_cast<unsigned>(button); }

} // namespace

ATOM LuWin32Viewer::getClass() {
    static const ATOM s_class = [] {
        WNDCLASSEXW windowClass{};
        windowClass.cbSize = sizeof windowClass;
        windowClass.style = CS_OWNDC;
        windowClass.lpfnWndProc = &procedure;
        windowClass.hInstance = GetModuleHandleW(nullptr);
        constexpr WORD ICON = 103;
        windowClass.hIcon = LoadIconW(LuWin::getInstance(), MAKEINTRESOURCEW(ICON));
        windowClass.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512)); // the arrow
        windowClass.lpszClassName = CLASS_NAME;
        return RegisterClassExW(&windowClass);
    }();
    return s_class;
}

std::unique_ptr<LuViewer> LuWin32Viewer::create(const LvString& title, int width, int height) {
    RECT frame{0, 0, std::max(width, 1), std::max(height, 1)};
    AdjustWindowRect(&frame, STYLE, FALSE);
    HWND window = nullptr;
    if (getClass())
        window = CreateWindowExW(0, CLASS_NAME, title.toWide().c_str(), STYLE, CW_USEDEFAULT, CW_USEDEFAULT,
                                 frame.right - frame.left, frame.bottom - frame.top, nullptr, nullptr,
                                 GetModuleHandleW(nullptr), nullptr);
    if (!window) {
        LuDebugError::post("LuViewer::create",
                           "There can't be a window with a scene: the system makes none (system error %lu).",
                           GetLastError());
        return nullptr;
    }
    auto context = std::make_unique<LuWglContext>();
    if (!context->open(window, PFD_DOUBLEBUFFER, 3, 3))
        return nullptr;
    LuWglContext& usedContext = *context;
    return std::make_unique<LuWin32Viewer>(std::move(context), usedContext);
}

LuWin32Viewer::LuWin32Viewer(std::unique_ptr<LuGLContext> owned, LuWglContext& context)
    : LuViewer(std::move(owned)), m_context(context), m_window(context.getWindow()) {
    SetWindowLongPtrW(m_window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    RECT client{};
    GetClientRect(m_window, &client);
    getView().setSize(client.right, client.bottom);
}

LuWin32Viewer::~LuWin32Viewer() {
    // The window lives on for a moment, with the context of the view.
    SetWindowLongPtrW(m_window, GWLP_USERDATA, 0);
}

void LuWin32Viewer::setShown(bool isShown) {
    if (isShown)
        LuWin::show(m_window);
    else
        LuWin::hide(m_window);
}

LRESULT CALLBACK LuWin32Viewer::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* const viewer = reinterpret_cast<LuWin32Viewer*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (viewer && viewer->handleMessage(message, wParam, lParam))
        return 0;
    // Drawing covers all of it.
    return message == WM_ERASEBKGND ? 1 : DefWindowProcW(window, message, wParam, lParam);
}

bool LuWin32Viewer::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CLOSE:
        close();
        return true;
    case WM_SIZE:
        getView().setSize(LOWORD(lParam), HIWORD(lParam));
        InvalidateRect(m_window, nullptr, FALSE);
        return true;
    case WM_PAINT:
        ValidateRect(m_window, nullptr);
        paint();
        return true;
    case WM_SYSCOMMAND:
        // Alt by itself belongs to the scene, not to a menu that the window doesn't have.
        return (wParam & 0xfff0) == SC_KEYMENU && lParam == 0;
    case WM_CAPTURECHANGED:
        releaseAllButtons();
        return true;
    default:
        return handleMouse(message, wParam, lParam) || handleKey(message, wParam, lParam);
    }
}

bool LuWin32Viewer::handleMouse(UINT message, WPARAM wParam, LPARAM lParam) {
    POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    if (message == WM_MOUSEWHEEL)
        ScreenToClient(m_window, &point);
    if (message >= WM_MOUSEFIRST && message <= WM_MOUSEWHEEL)
        setPointer(point);
    switch (message) {
    case WM_MOUSEMOVE: {
        LuLocation2Event event;
        send(event);
        return true;
    }
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
        press(LuMouseButtonEvent::BUTTON1, message == WM_LBUTTONDOWN);
        return true;
    case WM_MBUTTONDOWN:
    case WM_MBUTTONUP:
        press(LuMouseButtonEvent::BUTTON2, message == WM_MBUTTONDOWN);
        return true;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
        press(LuMouseButtonEvent::BUTTON3, message == WM_RBUTTONDOWN);
        return true;
    case WM_MOUSEWHEEL:
        turnWheel(GET_WHEEL_DELTA_WPARAM(wParam));
        return true;
    default:
        return false;
    }
}

void LuWin32Viewer::setPointer(POINT client) {
    m_pointer = {static_cast<int>(client.x),
                 getView().getRegion().getSize().y - 1 - static_cast<int>(client.y)};
}

bool LuWin32Viewer::send(LuEvent& event) {
    event.setTime(static_cast<double>(GetMessageTime()) / 1000);
    event.setPosition(m_pointer);
    event.setShiftDown(isDown(VK_SHIFT));
    event.setCtrlDown(isDown(VK_CONTROL));
    event.setAltDown(isDown(VK_MENU));
    return getView().handleEvent(event);
}

void LuWin32Viewer::press(int button, bool isPressed) {
    // From the first button to the last the mouse is this window's, wherever it goes.
    if (isPressed && m_pressedButtons == 0)
        SetCapture(m_window);
    m_pressedButtons = isPressed ? m_pressedButtons | getBit(button) : m_pressedButtons & ~getBit(button);
    LuMouseButtonEvent event;
    event.setButton(static_cast<LuMouseButtonEvent::Button>(button));
    event.setState(isPressed ? LuButtonEvent::DOWN : LuButtonEvent::UP);
    send(event);
    if (!isPressed && m_pressedButtons == 0)
        ReleaseCapture();
}

void LuWin32Viewer::releaseAllButtons() {
    for (int button = LuMouseButtonEvent::BUTTON1; button <= LuMouseButtonEvent::BUTTON3; ++button) {
        if (m_pressedButtons & getBit(button))
            press(button, false);
    }
}

void LuWin32Viewer::turnWheel(int delta) {
    m_wheel += delta;
    while (std::abs(m_wheel) >= WHEEL_DELTA) {
        LuMouseButtonEvent event;
        event.setButton(m_wheel > 0 ? LuMouseButtonEvent::WHEEL_UP : LuMouseButtonEvent::WHEEL_DOWN);
        m_wheel += m_wheel > 0 ? -WHEEL_DELTA : WHEEL_DELTA;
        send(event);
    }
}

bool LuWin32Viewer::handleKey(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_KEYDOWN:
        pressKey(luGetWin32Key(wParam, lParam));
        return true;
    case WM_SYSKEYDOWN:
        // Alt with F4, say, is the system's, unless the scene takes it.
        return pressKey(luGetWin32Key(wParam, lParam));
    case WM_KEYUP:
    case WM_SYSKEYUP: {
        const bool isHandled = sendKey(LuKeyboardEvent(luGetWin32Key(wParam, lParam), LuButtonEvent::UP), 0);
        return isHandled || message == WM_KEYUP;
    }
    case WM_CHAR:
        // One that no key of this window has made, or not by itself.
        m_characters += static_cast<wchar_t>(wParam);
        sendCharacters();
        return true;
    default:
        return false;
    }
}

bool LuWin32Viewer::pressKey(LuKeyboardEvent::Key key) {
    // The loop has translated the key before it came here: what it types waits already. It is taken wide, for
    // the loop takes it in the code page.
    MSG message{};
    while (PeekMessageW(&message, m_window, WM_CHAR, WM_CHAR, PM_REMOVE))
        m_characters += static_cast<wchar_t>(message.wParam);
    const bool isHandled = sendKey(LuKeyboardEvent(key), takeCharacter());
    sendCharacters();
    return isHandled;
}

void LuWin32Viewer::sendCharacters() {
    while (const char32_t character = takeCharacter())
        sendKey(LuKeyboardEvent(LuKeyboardEvent::ANY), character);
}

char32_t LuWin32Viewer::takeCharacter() {
    while (!m_characters.empty()) {
        const char32_t first = m_characters.front();
        const bool isHalf = first >= 0xd800 && first < 0xdc00;
        if (isHalf && m_characters.size() < 2)
            return 0; // the other half is still to come
        const char32_t second = isHalf ? m_characters[1] : 0;
        m_characters.erase(0, isHalf ? 2 : 1);
        if (isHalf)
            return 0x10000 + ((first - 0xd800) << 10) + (second - 0xdc00);
        const bool isControl = first < ' ' || first == 0x7f;
        if (!isControl)
            return first;
    }
    return 0;
}

bool LuWin32Viewer::sendKey(LuKeyboardEvent event, char32_t character) {
    event.setPrintableCharacter(character);
    return send(event);
}

std::unique_ptr<LuViewer> LuViewer::create(const LvString& title, int width, int height) {
    return LuWin32Viewer::create(title, width, height);
}

void LuViewer::waitForSystem(double seconds) {
    const bool isForever = seconds < 0 || seconds > 1e6;
    const DWORD milliseconds = isForever ? INFINITE : static_cast<DWORD>(std::ceil(seconds * 1000));
    // LuViewer has the messages handled, by the loop that serves the native dialogs too.
    MsgWaitForMultipleObjectsEx(0, nullptr, milliseconds, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
}

bool LuViewer::areOtherWindowsShown() {
    const auto stopAtVisible = [](HWND window, LPARAM) -> BOOL { return !IsWindowVisible(window); };
    return !EnumThreadWindows(GetCurrentThreadId(), stopAtVisible, 0);
}
