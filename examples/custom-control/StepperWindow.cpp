// SPDX-License-Identifier: MIT
#include "examples/custom-control/Stepper.h"

namespace {

constexpr int BUTTON_WIDTH = 24;
constexpr int LABEL_ROOM = 6; ///< What the height loses for the edge, before the texts are put in its middle.

/// The procedure of the system's own buttons.
WNDPROC s_nativeProcedure = nullptr;

} // namespace

void Stepper::createWindows() {
    createLabelWindow();
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
    m_minusWidget = createChild(L"BUTTON", style, "-");
    m_plusWidget = createChild(L"BUTTON", style, "+");
    subclassChild(m_minusWidget, buttonProcedure, s_nativeProcedure);
    subclassChild(m_plusWidget, buttonProcedure, s_nativeProcedure);
    m_valueWidget = createChild(L"STATIC", WS_CHILD | WS_VISIBLE | SS_CENTER, getValueText());
}

/// The keys that move the focus go to the dialog.
LRESULT CALLBACK Stepper::buttonProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (auto* stepper = reinterpret_cast<Stepper*>(GetWindowLongPtrA(window, GWLP_USERDATA)))
        stepper->handKeyToTopLevel(message, wParam, lParam);
    return CallWindowProcA(s_nativeProcedure, window, message, wParam, lParam);
}

void Stepper::updateWindows() {
    placeLabelWindow(LABEL_ROOM);
    showLabelWindow();
    LvVec2i32 size, position;
    get2DComponentSize(size, position);
    placeChild(m_minusWidget, position, {BUTTON_WIDTH, size.y});
    const int right = luAddSize(position.x, size.x);
    placeChild(m_plusWidget, {luAddSize(right, -BUTTON_WIDTH), position.y}, {BUTTON_WIDTH, size.y});
    const int textHeight = getLabelPixelSize("0", nullptr).y;
    placeChild(m_valueWidget, {position.x + BUTTON_WIDTH, position.y + (size.y - textHeight) / 2},
               {luAddSize(size.x, -2 * BUTTON_WIDTH), textHeight});
}

void Stepper::destroyWidget() {
    if (m_built2D) {
        destroyChild(m_minusWidget);
        destroyChild(m_plusWidget);
        destroyChild(m_valueWidget);
        destroyChild(m_labelWidget);
    }
    LuLabelledControl::destroyWidget();
}

/// The carrier window hands its children's notifications over: the code, and the window it comes from.
void Stepper::eventNotify(unsigned int event, std::uint64_t from) {
    if (event != BN_CLICKED)
        return;
    const auto button = reinterpret_cast<HWND>(from);
    setCurrentFocusedChild(button);
    step(button == m_minusWidget ? -1 : 1);
}

void Stepper::enableWindows(bool isAllowed) {
    for (HWND child : {m_labelWidget, m_minusWidget, m_plusWidget, m_valueWidget})
        enableChild(child, isAllowed);
}

void Stepper::changeEnable() {
    LuLabelledControl::changeEnable();
    enableWindows();
}

void Stepper::changeWidgetEnable(int isAllowed) {
    enableWindows(isAllowed);
    LuLabelledControl::changeWidgetEnable(isAllowed);
}

void Stepper::changeLabel() {
    setChildText(m_labelWidget, label.getValue());
    updateWindows();
}

void Stepper::changeLabelVisibility() { updateWindows(); }

void Stepper::changeEdgeStyle() {
    LuLabelledControl::changeEdgeStyle();
    updateWindows();
}
