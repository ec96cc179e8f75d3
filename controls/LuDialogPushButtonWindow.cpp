// SPDX-License-Identifier: MIT
#include "controls/LuDialogPushButton.h"

#include "platform/lumora/nodes/LuTransforms.h"

namespace {

/// What the height loses before the label is put in its middle: 3 less than for a plain label, so that it
/// stands level with the text on the button.
constexpr int LABEL_ROOM = 3;

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

void LuDialogPushButton::destroyWidget() {
    if (m_built2D) {
        destroyChild(m_buttonWidget);
        destroyChild(m_labelWidget);
    }
    LuLabelledControl::destroyWidget();
}

void LuDialogPushButton::updateButtonWidget() {
    LvVec2i32 size, position;
    get2DComponentSize(size, position);
    placeChild(m_buttonWidget, position, size);
}

void LuDialogPushButton::updateLabelWidget() {
    placeLabelWindow(LABEL_ROOM);
    showLabelWindow();
}

void LuDialogPushButton::changeEnable() {
    LuLabelledControl::changeEnable();
    enableChild(m_labelWidget);
    enableChild(m_buttonWidget);
}

void LuDialogPushButton::changeWidgetEnable(int isAllowed) {
    enableChild(m_labelWidget, isAllowed);
    enableChild(m_buttonWidget, isAllowed);
    LuLabelledControl::changeWidgetEnable(isAllowed);
}

void LuDialogPushButton::changeLabel() {
    setChildText(m_labelWidget, label.getValue());
    updateLabelWidget();
}

void LuDialogPushButton::changeLabelAlignment() {
    changeLabelWindowStyle();
    changeEnable();
    changeLabelVisibility();
}

void LuDialogPushButton::changeLabelVisibility() {
    showLabelWindow();
    updateButtonWidget();
}

void LuDialogPushButton::changeEdgeStyle() {
    LuLabelledControl::changeEdgeStyle();
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
