// SPDX-License-Identifier: MIT
#include "controls/LuDialogCustomSlider.h"
#include "controls/LuDialogSlider.h"
#include "controls/LuNumericFilter.h"
#include "platform/lumora/win/LuWin.h"

namespace {

/// What the height loses before the label is put in its middle.
constexpr int LABEL_ROOM = 6;

constexpr int TOGGLE_WIDTH = 16;
constexpr int EDIT_HEIGHT = 20;
constexpr int GAP = 2; ///< Pixels between neighbours.

/// The part of the range that an arrow key goes.
constexpr float KEY_STEP = 0.01F;

/// The procedures of the system's own windows, each shared by all sliders.
WNDPROC s_nativeToggleProcedure = nullptr;
WNDPROC s_nativeEditProcedure = nullptr;
WNDPROC s_nativeSliderProcedure = nullptr;

LuDialogSlider* getSlider(HWND window) {
    return reinterpret_cast<LuDialogSlider*>(GetWindowLongPtrA(window, GWLP_USERDATA));
}

} // namespace

void LuDialogSlider::buildWindows() {
    if (!existWidget(m_labelWidget))
        createLabelWindow();
    updateLabelWidget();
    if (!existWidget(m_toggleWidget))
        createToggleWidget();
    updateToggleWidget();
    // The slider takes the room that the number leaves.
    if (!existWidget(m_editWidget))
        createEditWidget();
    if (!existWidget(m_sliderWidget))
        createSliderWidget();
    updateSliderWidget();
    updateEditWidget();
}

void LuDialogSlider::createToggleWidget() {
    m_toggleWidget = createChild(L"BUTTON", WS_CHILD | WS_CLIPCHILDREN | WS_TABSTOP | BS_AUTOCHECKBOX, "", 0,
                                 {TOGGLE_WIDTH, 0});
    subclassChild(m_toggleWidget, toggleProcedure, s_nativeToggleProcedure);
    showChild(m_toggleWidget, true);
    changeContinuousTrigger();
}

void LuDialogSlider::createEditWidget() {
    m_editZoneWidth = computeEditZoneWidth();
    m_editWidget = createChild(L"EDIT", WS_CHILD | WS_CLIPCHILDREN | WS_TABSTOP | ES_AUTOHSCROLL, "",
                               WS_EX_CLIENTEDGE, {m_editZoneWidth, EDIT_HEIGHT});
    subclassChild(m_editWidget, editProcedure, s_nativeEditProcedure);
    if (valueVisible.getValue())
        showChild(m_editWidget, true);
    changeEditValue();
}

void LuDialogSlider::createSliderWidget() {
    m_customSlider = std::make_unique<LuDialogCustomSlider>(m_widget);
    m_sliderWidget = m_customSlider->buildWidget(m_widget);
    m_customSlider->setBaseWidget(m_sliderWidget);
    m_customSlider->addValueChangedCallback(valueChangeCallback, this);
    if (!continuousTrigger.getValue())
        m_customSlider->addFinishCallback(finishCallback, this);
    changeBarColors();
    if (existWidget(m_sliderWidget))
        SetWindowLongPtrA(m_sliderWidget, GWL_STYLE,
                          GetWindowLongPtrA(m_sliderWidget, GWL_STYLE) | WS_TABSTOP);
    subclassChild(m_sliderWidget, sliderProcedure, s_nativeSliderProcedure);
    changeSliderValue();
    changeEditValue();
    enableChild(m_sliderWidget);
}

void LuDialogSlider::destroyWidget() {
    if (m_built2D) {
        m_customSlider.reset();
        destroyChild(m_labelWidget);
        destroyChild(m_sliderWidget);
        destroyChild(m_toggleWidget);
        destroyChild(m_editWidget);
    }
    LuLabelledControl::destroyWidget();
}

LRESULT CALLBACK LuDialogSlider::toggleProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (LuDialogSlider* const slider = getSlider(window))
        slider->handKeyToTopLevel(message, wParam, lParam);
    return CallWindowProcA(s_nativeToggleProcedure, window, message, wParam, lParam);
}

LRESULT CALLBACK LuDialogSlider::sliderProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (LuDialogSlider* const slider = getSlider(window)) {
        const LuKeepAlive alive(slider);
        slider->handKeyToTopLevel(message, wParam, lParam);
        const bool isArrow = wParam == VK_LEFT || wParam == VK_RIGHT;
        if (message == WM_MOUSEACTIVATE)
            slider->setCurrentFocusedChild(window);
        else if (message == WM_KEYDOWN && isArrow)
            slider->changeSliderFromSlider(wParam == VK_LEFT ? -KEY_STEP : KEY_STEP);
        else if (message == WM_KEYUP && isArrow)
            slider->changeValueAfterFinish(slider->getValue());
    }
    return CallWindowProcA(s_nativeSliderProcedure, window, message, wParam, lParam);
}

LRESULT CALLBACK LuDialogSlider::editProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (LuDialogSlider* const slider = getSlider(window)) {
        const LuKeepAlive alive(slider);
        const bool isEntry = message == WM_CHAR && wParam == VK_RETURN;
        if (message == WM_KILLFOCUS || isEntry)
            slider->changeSliderFromEdit();
        else if (message == WM_MOUSEACTIVATE)
            slider->setCurrentFocusedChild(window);
        else if (message == WM_CHAR || (message == WM_KEYDOWN && wParam == VK_DELETE))
            luFilterNumericEdit(s_nativeEditProcedure, window, message, wParam, lParam);
        else if (message == WM_KEYDOWN)
            slider->handKeyToTopLevel(message, wParam, lParam);
        if (message == WM_CHAR || (message == WM_KEYDOWN && wParam == VK_DELETE))
            return 0;
    }
    return CallWindowProcA(s_nativeEditProcedure, window, message, wParam, lParam);
}

void LuDialogSlider::valueChangeCallback(void* data, float value) {
    static_cast<LuDialogSlider*>(data)->changeValueFromSlider(value);
}

void LuDialogSlider::finishCallback(void* data, float value) {
    static_cast<LuDialogSlider*>(data)->changeValueAfterFinish(value);
}

void LuDialogSlider::changeFinishCallback() {
    if (!m_customSlider)
        return;
    if (continuousTrigger.getValue())
        m_customSlider->removeFinishCallback(finishCallback, this);
    else
        m_customSlider->addFinishCallback(finishCallback, this);
}

void LuDialogSlider::changeBarColors() {
    if (m_customSlider)
        m_customSlider->setBarColors({colors.getValues().begin(), colors.getValues().end()},
                                     shadedColors.getValue());
}

/// What the label takes from the width.
int LuDialogSlider::getLabelRoom() const {
    return labelVisibility.getValue() ? luAddSize(m_labelSize.x, LABEL_GAP) : 0;
}

/// What the toggle takes from the width.
int LuDialogSlider::getToggleRoom() const { return toggleVisible.getValue() ? TOGGLE_WIDTH + GAP : 0; }

void LuDialogSlider::updateLabelWidget() { placeLabelWindow(LABEL_ROOM); }

void LuDialogSlider::updateToggleWidget() {
    if (!toggleVisible.getValue())
        return;
    const int inset = getEdgeInset();
    placeChild(m_toggleWidget, {luAddSize(inset, getLabelRoom()), inset},
               {TOGGLE_WIDTH, luAddSize(height.getValue(), -EDGE_ROOM)});
}

void LuDialogSlider::updateSliderWidget() {
    LvVec2i32 position, size;
    getContentPlace(position, size);
    const std::int64_t before = std::int64_t{getToggleRoom()} + getLabelRoom();
    const std::int64_t behind = valueVisible.getValue() ? std::int64_t{m_editZoneWidth} + GAP : 0;
    position.x = luAddSize(position.x, before);
    size.x = luAddSize(size.x, -before - behind);
    m_sliderWidth = size.x;
    placeChild(m_sliderWidget, position, size);
}

void LuDialogSlider::updateEditWidget() {
    RECT rect{};
    if (!existWidget(m_editWidget) || !GetWindowRect(m_editWidget, &rect))
        return;
    const int inset = getEdgeInset();
    const int x =
        luAddSize(inset, std::int64_t{m_sliderWidth} + GAP + getToggleRoom() + std::int64_t{getLabelRoom()});
    const int spare = luAddSize(height.getValue(), -std::int64_t{EDGE_ROOM} - (rect.bottom - rect.top));
    placeChild(m_editWidget, {x, inset + spare / 2}, {m_editZoneWidth, EDIT_HEIGHT});
}

void LuDialogSlider::changeValueVisible() {
    if (!existWidget(m_editWidget))
        return;
    showChild(m_editWidget, valueVisible.getValue());
    updateSliderWidget();
    updateEditWidget();
}

void LuDialogSlider::changeToggleVisible() {
    if (!existWidget(m_toggleWidget))
        return;
    showChild(m_toggleWidget, toggleVisible.getValue());
    updateSliderWidget();
    updateToggleWidget();
}

void LuDialogSlider::changeContinuousTrigger() {
    if (existWidget(m_toggleWidget))
        SendMessageA(m_toggleWidget, BM_SETCHECK, continuousTrigger.getValue() ? BST_CHECKED : BST_UNCHECKED,
                     0);
}

LvString LuDialogSlider::getValueFromEdit() const { return LuWin::getWindowText(m_editWidget); }

void LuDialogSlider::enableWindows(bool isAllowed) {
    for (const HWND window : {m_labelWidget, m_toggleWidget, m_sliderWidget, m_editWidget})
        enableChild(window, isAllowed);
}

void LuDialogSlider::enableBar(bool isAllowed) {
    if (m_customSlider)
        m_customSlider->setBarEnabled(isAllowed && enable.getValue());
}

void LuDialogSlider::changeEnable() {
    enableWindows(true);
    LuLabelledControl::changeEnable();
    enableBar(true);
}

void LuDialogSlider::changeWidgetEnable(int isAllowed) {
    enableWindows(isAllowed != 0);
    LuLabelledControl::changeWidgetEnable(isAllowed);
    enableBar(isAllowed != 0);
}

void LuDialogSlider::changeLabel() { setChildText(m_labelWidget, label.getValue()); }

void LuDialogSlider::changeLabelVisibility() {
    showLabelWindow();
    updateToggleWidget();
    updateSliderWidget();
}

void LuDialogSlider::changeEdgeStyle() {
    LuLabelledControl::changeEdgeStyle();
    updateLabelWidget();
    updateToggleWidget();
    updateSliderWidget();
    updateEditWidget();
}
