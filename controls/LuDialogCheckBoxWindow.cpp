// SPDX-License-Identifier: MIT
#include "controls/LuDialogCheckBox.h"

namespace {

/// The procedure of the system's own buttons; all check boxes share it.
WNDPROC s_nativeProcedure = nullptr;

} // namespace

void LuDialogCheckBox::createCheckBoxWidget() {
    m_buttonWidget =
        createChild(L"BUTTON", WS_CHILD | WS_CLIPCHILDREN | WS_TABSTOP | BS_MULTILINE | BS_AUTOCHECKBOX,
                    getTextInForce());
    subclassChild(m_buttonWidget, checkBoxProcedure, s_nativeProcedure);
    SendMessageA(m_buttonWidget, BM_SETCHECK, state.getValue() ? BST_CHECKED : BST_UNCHECKED, 0);
    showChild(m_buttonWidget, true);
}

LRESULT CALLBACK LuDialogCheckBox::checkBoxProcedure(HWND window, UINT message, WPARAM wParam,
                                                     LPARAM lParam) {
    if (auto* checkBox = reinterpret_cast<LuDialogCheckBox*>(GetWindowLongPtrA(window, GWLP_USERDATA)))
        checkBox->handKeyToTopLevel(message, wParam, lParam);
    return CallWindowProcA(s_nativeProcedure, window, message, wParam, lParam);
}

void LuDialogCheckBox::changeEnable() {
    enableWindows();
    LuLabelledButton::changeEnable();
}

void LuDialogCheckBox::changeEdgeStyle() {
    updateLabelWidget();
    updateCheckBoxWidget();
    LuLabelledButton::changeEdgeStyle();
}

void LuDialogCheckBox::changeOnOffString() { setChildText(m_buttonWidget, getTextInForce()); }

void LuDialogCheckBox::changeState() {
    if (existWidget(m_buttonWidget))
        SendMessageA(m_buttonWidget, BM_SETCHECK, state.getValue() ? BST_CHECKED : BST_UNCHECKED, 0);
    if (m_built2D)
        changeOnOffString();
    if (shows3D())
        change3DOnOffString();
}

void LuDialogCheckBox::eventNotify(unsigned int event, std::uint64_t) {
    if (event != BN_CLICKED)
        return;
    // The auditors may end this one.
    const LuKeepAlive alive(this);
    if (m_stateSensor)
        m_stateSensor->detach();
    state = SendMessageA(m_buttonWidget, BM_GETCHECK, 0, 0) == BST_CHECKED;
    // For a moment an empty `offString` shows as it is.
    setChildText(m_buttonWidget, state.getValue() ? onString.getValue() : offString.getValue());
    SetFocus(m_buttonWidget);
    setCurrentFocusedChild(m_buttonWidget);
    if (m_built2D)
        changeState();
    if (shows3D())
        change3DState();
    applyDlgCptAuditor();
    if (m_stateSensor)
        m_stateSensor->attach(&state);
}
