// SPDX-License-Identifier: MIT
#include "platform/lumora/win/LuWin.h"

#include "platform/lumora/base/LuDebugError.h"

#include <algorithm>
#include <vector>

namespace {

struct State {
    LuWin::ErrorDialogHandler errorDialogHandler = nullptr;
    void* errorDialogData = nullptr;
    LuWin::RegisterClassHandler registerClassHandler = nullptr;
    void* registerClassData = nullptr;
    LuWin::MessageHandler messageHandler = nullptr;
    void* messageData = nullptr;
    bool areErrorDialogsShown = false;
    HWND topLevelWidget = nullptr;
    std::vector<std::string> registeredClasses;
    std::vector<ACCEL> accelerators;
    HACCEL acceleratorTable = nullptr;
};

State& getState() {
    static State s_state;
    return s_state;
}

void dropAcceleratorTable() {
    State& state = getState();
    if (state.acceleratorTable)
        DestroyAcceleratorTable(state.acceleratorTable);
    state.acceleratorTable = nullptr;
}

bool translateAccelerator(MSG& message) {
    State& state = getState();
    if (state.accelerators.empty() || !message.hwnd)
        return false;
    if (!state.acceleratorTable)
        state.acceleratorTable =
            CreateAcceleratorTableA(state.accelerators.data(), static_cast<int>(state.accelerators.size()));
    return TranslateAcceleratorA(GetAncestor(message.hwnd, GA_ROOT), state.acceleratorTable, &message) != 0;
}

void handleMessage(MSG& message) {
    if (translateAccelerator(message))
        return;
    TranslateMessage(&message);
    DispatchMessageA(&message);
}

} // namespace

HINSTANCE LuWin::getInstance() {
    static const HINSTANCE s_instance = [] {
        HMODULE module = nullptr;
        // Any address of this module does; the library may be a DLL in another program.
        GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                               GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                           reinterpret_cast<LPCSTR>(&LuWin::getInstance), &module);
        return module;
    }();
    return s_instance;
}

bool LuWin::getClassInfo(HINSTANCE instance, const char* name, std::string& realName,
                         WNDCLASSA& windowClass) {
    WNDCLASSA found{};
    if (!name || !GetClassInfoA(instance, name, &found))
        return false;
    realName = name;
    windowClass = found;
    return true;
}

ATOM LuWin::registerClass(const WNDCLASSA& windowClass, std::string& realName) {
    State& state = getState();
    if (state.registerClassHandler) {
        const ATOM atom = state.registerClassHandler(windowClass, state.registerClassData);
        if (atom)
            realName = windowClass.lpszClassName;
        return atom;
    }
    const ATOM atom = RegisterClassA(&windowClass);
    if (atom) {
        realName = windowClass.lpszClassName;
        state.registeredClasses.push_back(realName);
    }
    return atom;
}

void LuWin::unregisterClasses() {
    std::erase_if(getState().registeredClasses,
                  [](const std::string& name) { return UnregisterClassA(name.c_str(), getInstance()) != 0; });
}

void LuWin::setRegisterClassHandler(RegisterClassHandler handler, void* data) {
    getState().registerClassHandler = handler;
    getState().registerClassData = data;
}

void LuWin::createSimpleErrorDialog(HWND parent, const char* title, const char* text, const char* details) {
    const LuErrorDialog dialog{parent, title ? title : "", text ? text : "", details};
    if (details && *details)
        LuDebugError::post(dialog.title, "%s (%s)", dialog.text, details);
    else
        LuDebugError::post(dialog.title, "%s", dialog.text);
    const State& state = getState();
    if (state.errorDialogHandler)
        state.errorDialogHandler(dialog, state.errorDialogData);
    else if (state.areErrorDialogsShown)
        MessageBoxA(parent, dialog.text, dialog.title, MB_OK | MB_ICONERROR);
}

void LuWin::setErrorDialogsShown(bool shown) { getState().areErrorDialogsShown = shown; }

void LuWin::setErrorDialogHandler(ErrorDialogHandler handler, void* data) {
    getState().errorDialogHandler = handler;
    getState().errorDialogData = data;
}

void LuWin::show(HWND window) {
    if (!IsWindow(window))
        return;
    ShowWindow(window, SW_SHOW);
    if (GetAncestor(window, GA_ROOT) == window)
        SetForegroundWindow(window);
}

void LuWin::hide(HWND window) {
    if (IsWindow(window))
        ShowWindow(window, SW_HIDE);
}

bool LuWin::isLumoraMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const State& state = getState();
    return state.messageHandler && state.messageHandler(window, message, wParam, lParam, state.messageData);
}

void LuWin::setMessageHandler(MessageHandler handler, void* data) {
    getState().messageHandler = handler;
    getState().messageData = data;
}

HWND LuWin::getTopLevelWidget() {
    HWND& window = getState().topLevelWidget;
    if (!IsWindow(window))
        window = nullptr;
    return window;
}

void LuWin::setTopLevelWidget(HWND window) { getState().topLevelWidget = window; }

void LuWin::addAccelerator(const ACCEL& accelerator) {
    std::vector<ACCEL>& accelerators = getState().accelerators;
    std::erase_if(accelerators, [&accelerator](const ACCEL& other) {
        return other.key == accelerator.key && other.fVirt == accelerator.fVirt;
    });
    accelerators.push_back(accelerator);
    dropAcceleratorTable();
}

void LuWin::removeAccelerators() {
    getState().accelerators.clear();
    dropAcceleratorTable();
}

int LuWin::mainLoop() {
    MSG message{};
    // GetMessageA gives -1 on a fault, which would come again and again.
    while (GetMessageA(&message, nullptr, 0, 0) > 0)
        handleMessage(message);
    return static_cast<int>(message.wParam);
}

bool LuWin::processMessages() {
    MSG message{};
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT)
            return false;
        handleMessage(message);
    }
    return true;
}

bool LuWin::waitForMessages() {
    MSG message{};
    if (GetMessageA(&message, nullptr, 0, 0) <= 0)
        return false;
    handleMessage(message);
    return processMessages();
}

void LuWin::enableWindow(HWND window, bool isEnabled) {
    if ((IsWindowEnabled(window) != FALSE) != isEnabled)
        EnableWindow(window, isEnabled);
}

void LuWin::setWindowText(HWND window, const LvString& text) {
    SetWindowTextW(window, text.toWide().c_str());
}

LvString LuWin::getWindowText(HWND window) {
    const int length = GetWindowTextLengthW(window);
    if (length <= 0)
        return LvString();
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    const int copied = GetWindowTextW(window, text.data(), length + 1);
    return LvString::fromWide(std::wstring_view(text.data(), static_cast<std::size_t>(copied)));
}
