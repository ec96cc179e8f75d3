// SPDX-License-Identifier: MIT
#include "controls/LuDialogPushButton.h"

namespace {

/// The procedure of the system's own buttons; all push buttons share it.
WNDPROC s_nativeProcedure = nullptr;

} // namespace

void LuDialogPushButton::createButtonWidget() {
    m_buttonWidget =
        createChild(L"BUTTON", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_TABSTOP | BS_MULTILINE,
                    buttonLabel.getValue());
    subclassChild(m_buttonWidget, buttonProcedure, s_nativeProcedure);
}

LRESULT CALLBACK LuDialogPushButton::buttonProcedure(HWND window, UINT message, WPARAM wParam,
                                                     LPARAM lParam) {
    if (auto* button = reinterpret_cast<LuDialogPushButton*>(GetWindowLongPtrA(window, GWLP_USERDATA))) {
        button->handKeyToTopLevel(message, wParam, lParam);
        if (message == WM_LBUTTONDOWN)
            button->activateButton();
    }
    return CallWindowProcA(s_nativeProcedure, window, message, wParam, lParam);
}

void LuDialogPushButton::changeEnable() {
    LuLabelledButton::changeEnable();
    enableWindows();
}

void LuDialogPushButton::changeEdgeStyle() {
    LuLabelledButton::changeEdgeStyle();
    updateLabelWidget();
    updateButtonWidget();
}

void LuDialogPushButton::changeButtonLabel() { setChildText(m_buttonWidget, buttonLabel.getValue()); }

void LuDialogPushButton::changeButtonState(int isPressed) {
    if (existWidget(m_buttonWidget))
        SendMessageA(m_buttonWidget, BM_SETSTATE, static_cast<WPARAM>(isPressed), 0);
}

void LuDialogPushButton::activateButton() {
    if (!isBuilt3D() || !existWidget(m_buttonWidget))
        return;
    const LRESULT state = SendMessageA(m_buttonWidget, BM_GETSTATE, 0, 0);
    if ((state & ~LRESULT{BST_FOCUS}) == 0)
        change3DButtonState(1);
}

void LuDialogPushButton::eventNotify(unsigned int event, std::uint64_t) {
    if (event != BN_CLICKED)
        return;
    if (isBuilt3D())
        change3DButtonState(0);
    setCurrentFocusedChild(m_buttonWidget);
    applyDlgCptAuditor();
}
