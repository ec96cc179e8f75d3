// SPDX-License-Identifier: MIT
#include "controls/LuControl.h"

#include "layout/LuTopLevelDialog.h"
#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuText3.h"
#include "platform/lumora/nodes/LuTransforms.h"
#include "platform/lumora/win/LuWin.h"

namespace {
constexpr float CHECK_MARK_SIZE = 14; ///< Scene units, on both axes.
}

HWND LuControl::createChild(const wchar_t* className, DWORD style, const LvString& text, DWORD exStyle,
                            const LvVec2i32& size) {
    const HWND child =
        checkChild(CreateWindowExW(exStyle, className, convertToCString(text, this).toWide().c_str(), style,
                                   0, 0, size.x, size.y, m_widget, nullptr, LuWin::getInstance(), nullptr));
    if (child) {
        setWidgetFont(child);
        enableChild(child);
    }
    return child;
}

HWND LuControl::checkChild(HWND child) {
    if (!child && existWidget(m_widget)) {
        const LvString title = LvString("Lu") + getTypeId().getName().getString() + " Error";
        LuWin::createSimpleErrorDialog(nullptr, title.getString(), "CreateWindow failed", nullptr);
    }
    return child;
}

void LuControl::subclassChild(HWND child, WNDPROC procedure, WNDPROC& previous) {
    if (!existWidget(child))
        return;
    previous = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(child, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
    SetWindowLongPtrA(child, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

void LuControl::placeChild(HWND child, const LvVec2i32& position, const LvVec2i32& size) {
    if (existWidget(child))
        SetWindowPos(child, nullptr, position.x, position.y, size.x, size.y, SWP_DEFERERASE);
}

void LuControl::showChild(HWND child, bool isShown) {
    if (!existWidget(child))
        return;
    // To the system a window that shows already is as much work as one that doesn't.
    const bool isVisible = (GetWindowLongPtrA(child, GWL_STYLE) & WS_VISIBLE) != 0;
    if (isVisible != isShown)
        ShowWindow(child, isShown ? SW_SHOW : SW_HIDE);
}

void LuControl::destroyChild(HWND& child) {
    if (existWidget(child))
        DestroyWindow(child);
    child = nullptr;
}

void LuControl::setChildText(HWND child, const LvString& text) {
    if (existWidget(child))
        LuWin::setWindowText(child, convertToCString(text, this));
}

void LuControl::enableChild(HWND child, bool isAllowed) {
    if (existWidget(child))
        LuWin::enableWindow(child, isAllowed && enable.getValue());
}

void LuControl::getContentPlace(LvVec2i32& position, LvVec2i32& size) const {
    const int inset = getEdgeInset();
    position.setValue(inset, inset);
    size.setValue(luAddSize(width.getValue(), -EDGE_ROOM), luAddSize(height.getValue(), -EDGE_ROOM));
}

LvVec3f LuControl::getContentSize3D() const {
    LvVec2i32 position, size;
    getContentPlace(position, size);
    return {static_cast<float>(size.x), static_cast<float>(size.y), 1.0F};
}

void LuControl::getLabelRow(int room, int& y, int& rowHeight) {
    rowHeight = m_labelSizeInRow.get(label.getValue(), this).y;
    y = luAddSize(height.getValue(), -std::int64_t{room} - rowHeight) / 2 + getEdgeInset();
}

DWORD LuControl::getLabelAlignmentStyle() const {
    switch (labelAlignment.getValue()) {
    case CENTER:
        return SS_CENTER;
    case RIGHT:
        return SS_RIGHT;
    default:
        return SS_LEFT;
    }
}

void LuControl::handKeyToTopLevel(UINT message, WPARAM key, LPARAM lParam) {
    const bool isKey = message == WM_KEYDOWN || message == WM_KEYUP;
    if (!isKey || (key != VK_TAB && key != VK_SHIFT))
        return;
    if (auto* top = static_cast<LuTopLevelDialog*>(getFirstTopParent(1, 0)))
        SendMessageA(top->getWidget(), message, key, lParam);
}

void LuControl::setCurrentFocusedChild(HWND child) {
    if (auto* top = static_cast<LuTopLevelDialog*>(getFirstTopParent(1, 0)))
        top->setCurrentFocusedWidget(child);
}

void LuControl::createText3D(const LuSFNode& part, LuTranslation*& translation, LuText3*& text) {
    translation = new LuTranslation;
    text = new LuText3;
    text->parts = LuText3::FRONT;
    LuGroup* const group = getGroupPart(part);
    group->insertChild(translation, 0);
    group->addChild(text);
}

void LuControl::setText3D(Text3D& text, const LvString& string) {
    if (text.node)
        setStringToText3(text.node, string);
    text.box = getUnsetBox();
}

const LvBox3f& LuControl::getBox3D(Text3D& text, LuNode* properties) {
    if (text.box == getUnsetBox())
        text.box = measureText(properties, text.node);
    return text.box;
}

LuTranslation* LuControl::createCheckMark3D(const LuSFNode& part) {
    auto* scale = new LuScale;
    scale->scaleFactor = LvVec3f(CHECK_MARK_SIZE, CHECK_MARK_SIZE, 1);
    auto* translation = new LuTranslation;
    LuGroup* const group = getGroupPart(part);
    group->insertChild(scale, 0);
    group->insertChild(translation, 0);
    return translation;
}

LuGroup* LuControl::getGroupPart(const LuSFNode& part) { return static_cast<LuGroup*>(makePart(part)); }

void LuControl::insertBeforePart(LuNode* node, const LuSFNode& part, const LuSFNode& parent) {
    LuGroup* const group = getGroupPart(parent);
    LuNode* const next = makePart(part);
    group->insertChild(node, group->findChild(next));
}

LvVec3f LuControl::getTextPlace(float x, const LvBox3f& box) {
    return {x, (box.max.y + box.min.y) * -0.5F, 0};
}
