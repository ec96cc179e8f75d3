// SPDX-License-Identifier: MIT
#include "layout/LuTopLevelDialog.h"
#include "layout/LuWindowClass.h"
#include "platform/lumora/win/LuWin.h"

#include <string>

namespace {

constexpr const char* ERROR_TITLE = "LuTopLevelDialog Error";
constexpr const char* BASE_CLASS_NAME = "LuTopLevelDialogBase";
constexpr const char* INNER_CLASS_NAME = "LuTopLevelDialog";

constexpr DWORD RESIZABLE_STYLE = WS_CLIPSIBLINGS | WS_CLIPCHILDREN | WS_OVERLAPPEDWINDOW; // 0x06CF0000
constexpr DWORD FIXED_STYLE =
    WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | WS_CAPTION | WS_SYSMENU; // 0x16C80000
constexpr DWORD MODAL_STYLE =
    WS_POPUP | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | WS_CAPTION | WS_SYSMENU; // 0x86C80000
constexpr UINT CHANGED_FRAME = SWP_NOSIZE | SWP_NOMOVE | SWP_FRAMECHANGED;  // 35

HICON getProgramIcon() {
    char path[1000] = "";
    GetModuleFileNameA(nullptr, path, sizeof(path));
    SHFILEINFOA info{};
    SHGetFileInfoA(path, FILE_ATTRIBUTE_NORMAL, &info, sizeof(info), SHGFI_ICON);
    return info.hIcon;
}

LuTopLevelDialog* getDialog(HWND window) {
    return reinterpret_cast<LuTopLevelDialog*>(GetWindowLongPtrA(window, GWLP_USERDATA));
}

LRESULT CALLBACK baseProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    LuWin::isLumoraMessage(window, message, wParam, lParam);
    LuTopLevelDialog* const dialog = getDialog(window);
    return dialog ? dialog->handleBaseMessage(window, message, wParam, lParam)
                  : DefWindowProcA(window, message, wParam, lParam);
}

LRESULT CALLBACK innerProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    LuTopLevelDialog* const dialog = getDialog(window);
    return dialog ? dialog->handleInnerMessage(window, message, wParam, lParam)
                  : DefWindowProcA(window, message, wParam, lParam);
}

} // namespace

void LuTopLevelDialog::initWidgetConstant() {
    m_frameX = GetSystemMetrics(SM_CXFRAME);
    m_frameY = GetSystemMetrics(SM_CYFRAME);
    m_menuHeight = GetSystemMetrics(SM_CYMENU);
    m_scrollBarWidth = GetSystemMetrics(SM_CXHSCROLL);
}

DWORD LuTopLevelDialog::getBaseStyle() const {
    if (modalFrame.getValue())
        return MODAL_STYLE;
    return resizable.getValue() ? RESIZABLE_STYLE : FIXED_STYLE;
}

void LuTopLevelDialog::createBaseWidget(HWND parent) {
    const DWORD style = getBaseStyle();
    const DWORD exStyle = modalFrame.getValue() ? WS_EX_WINDOWEDGE | WS_EX_TOOLWINDOW | WS_EX_TOPMOST |
                                                      WS_EX_DLGMODALFRAME // 393
                                                : WS_EX_WINDOWEDGE;
    if (m_embedded) {
        m_baseWidget = parent;
        SetWindowLongPtrA(parent, GWL_STYLE, static_cast<LONG_PTR>(style));
        SetWindowLongPtrA(parent, GWL_EXSTYLE, static_cast<LONG_PTR>(exStyle));
        SetWindowLongPtrA(parent, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&baseProcedure));
    } else {
        const LuWindowClass windowClass{
            BASE_CLASS_NAME, CS_VREDRAW | CS_HREDRAW | CS_OWNDC, baseProcedure, nullptr, getProgramIcon,
            ERROR_TITLE,     "Register Base Class failed"};
        // The window stands where it will be from the start: its first WM_SIZE writes the place back.
        const LvVec2i32& place = position.getValue();
        m_baseWidget =
            CreateWindowExA(exStyle, windowClass.getRealName().c_str(), BASE_CLASS_NAME, style, place.x,
                            place.y, 0, 0, nullptr, nullptr, LuWin::getInstance(), nullptr);
    }
    if (!existWidget(m_baseWidget)) {
        m_baseWidget = nullptr;
        LuWin::createSimpleErrorDialog(nullptr, ERROR_TITLE, "Create Base Window failed", nullptr);
        return;
    }
    SetWindowLongPtrA(m_baseWidget, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    changeLabel();
    TITLEBARINFO title{};
    title.cbSize = sizeof(title);
    if (GetTitleBarInfo(m_baseWidget, &title))
        m_titleHeight = static_cast<int>(title.rcTitleBar.bottom - title.rcTitleBar.top);
}

void LuTopLevelDialog::createTopLevelWidget() {
    const LuWindowClass windowClass{INNER_CLASS_NAME,
                                    CS_VREDRAW | CS_HREDRAW | CS_PARENTDC,
                                    innerProcedure,
                                    nullptr,
                                    nullptr,
                                    ERROR_TITLE,
                                    "RegisterClass failed"};
    m_topWidget = CreateWindowExA(0, windowClass.getRealName().c_str(), INNER_CLASS_NAME,
                                  WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN, 0, 0, 0, 0,
                                  m_baseWidget, nullptr, LuWin::getInstance(), nullptr);
    if (!existWidget(m_topWidget)) {
        m_topWidget = nullptr;
        LuWin::createSimpleErrorDialog(nullptr, ERROR_TITLE, "Create TopLevel Window failed", nullptr);
        return;
    }
    setWidgetFont(m_topWidget);
    SetWindowLongPtrA(m_topWidget, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    m_currentScrolled = m_topWidget;
}

void LuTopLevelDialog::updateBaseWidget() {
    if (width.getValue() > maxWidth.getValue())
        width.setValue(maxWidth.getValue());
    if (height.getValue() > maxHeight.getValue())
        height.setValue(maxHeight.getValue());
    SetWindowPos(m_baseWidget, nullptr, 0, 0, width.getValue(), height.getValue(),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_DEFERERASE);
}

void LuTopLevelDialog::updateTopLevelWidget(const LvVec2i32&) {
    LvVec2i32 size = getInnerSize();
    computeNewChildrenHeight(size);
    // The bars belong to the inner window.
    if (m_scrollBars.vShown || vScrollVisibility.getValue() == ALWAYS)
        size.x = luAddSize(size.x, m_scrollBarWidth);
    if (m_scrollBars.hShown || hScrollVisibility.getValue() == ALWAYS)
        size.y = luAddSize(size.y, m_scrollBarWidth);
    SetWindowPos(m_topWidget, nullptr, 0, 0, size.x, size.y, SWP_NOMOVE | SWP_DEFERERASE);
}

void LuTopLevelDialog::setScrollProperties() {
    LuSizes needed;
    getDefaultSize(needed.size, needed.minSize, needed.maxSize);
    const LvVec2i32 room = LuScrollBars::getWindowSize(m_topWidget);
    m_scrollBars.setAlways(vScrollVisibility.getValue(), hScrollVisibility.getValue());
    m_scrollBars.addNeeded(vScrollVisibility.getValue(), hScrollVisibility.getValue(), needed.minSize, room);
    // A bar in a window hardly larger than itself would leave nothing to see.
    if (room.y <= 2 * m_scrollBarWidth)
        m_scrollBars.hShown = 0;
    if (room.x <= 2 * m_scrollBarWidth)
        m_scrollBars.vShown = 0;
    m_scrollBars.show(m_topWidget, needed.minSize, room, m_scrollBarWidth, true);
}

void LuTopLevelDialog::changePosition() {
    const LvVec2i32& place = position.getValue();
    SetWindowPos(m_baseWidget, nullptr, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_DEFERERASE);
}

void LuTopLevelDialog::changeResizable() {
    if (!existWidget(m_baseWidget))
        return;
    const DWORD style = resizable.getValue() ? RESIZABLE_STYLE : FIXED_STYLE;
    SetWindowLongPtrA(m_baseWidget, GWL_STYLE, static_cast<LONG_PTR>(style));
    SetWindowPos(m_baseWidget, nullptr, 0, 0, 0, 0, CHANGED_FRAME);
    LuSizes needed;
    getDefaultSize(needed.size, needed.minSize, needed.maxSize);
    m_sizes.write(LuSizeFields::MIN_WIDTH, needed.minSize.x);
    m_sizes.write(LuSizeFields::MIN_HEIGHT, needed.minSize.y);
    const bool isWide = needed.maxSize.x == LuSizes::UNLIMITED;
    const bool isHigh = needed.maxSize.y == LuSizes::UNLIMITED;
    m_sizes.write(LuSizeFields::MAX_WIDTH, isWide ? 0 : needed.maxSize.x);
    m_sizes.write(LuSizeFields::MAX_HEIGHT, isHigh ? 0 : needed.maxSize.y);
    if (isWide)
        maxWidth.setDefault(true);
    if (isHigh)
        maxHeight.setDefault(true);
    ShowWindow(m_baseWidget, SW_HIDE);
    ShowWindow(m_baseWidget, SW_SHOW);
}

void LuTopLevelDialog::changeModalFrame() {
    if (!existWidget(m_baseWidget))
        return;
    const bool isModal = modalFrame.getValue();
    const DWORD exStyle = isModal ? WS_EX_WINDOWEDGE | WS_EX_TOPMOST : WS_EX_WINDOWEDGE; // 264, 256
    SetWindowLongPtrA(m_baseWidget, GWL_EXSTYLE, static_cast<LONG_PTR>(exStyle));
    SetWindowPos(m_baseWidget, isModal ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0, CHANGED_FRAME);
}

void LuTopLevelDialog::changeEnable() {
    LuWin::enableWindow(m_baseWidget, enable.getValue());
    LuWin::enableWindow(m_topWidget, enable.getValue());
}

void LuTopLevelDialog::changeLabel() { LuWin::setWindowText(m_baseWidget, label.getValue()); }

void LuTopLevelDialog::show() {
    if (!m_embedded && existWidget(m_baseWidget))
        LuWin::show(m_baseWidget);
}

void LuTopLevelDialog::hide() {
    if (!m_embedded && existWidget(m_baseWidget))
        LuWin::hide(m_baseWidget);
}

int LuTopLevelDialog::destroyDialog() {
    hide();
    if (m_embedded)
        PostQuitMessage(0);
    return 0;
}

void LuTopLevelDialog::close() {
    hide();
    unref();
}
