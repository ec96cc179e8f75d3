// SPDX-License-Identifier: MIT
#include "layout/LuDialogComponent.h"
#include "layout/LuScrollBars.h"
#include "layout/LuWindowClass.h"
#include "platform/lumora/win/LuWin.h"

#include <string>

namespace {

/// The component that a message to its carrier window is for. Most are for none, as those of a layout.
LuDialogComponent* getReceiver(HWND window, UINT message) {
    switch (message) {
    case WM_DRAWITEM:
    case WM_NOTIFY:
    case WM_COMMAND:
    case WM_HSCROLL:
    case WM_VSCROLL:
        return reinterpret_cast<LuDialogComponent*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    default:
        return nullptr;
    }
}

LRESULT CALLBACK carrierProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    LuDialogComponent* const component = getReceiver(window, message);
    if (!component)
        return DefWindowProcA(window, message, wParam, lParam);
    switch (message) {
    case WM_DRAWITEM:
        if (component->drawsItems())
            component->eventNotify(message, static_cast<std::uint64_t>(lParam));
        return 0;
    case WM_NOTIFY:
        component->eventNotify(message, static_cast<std::uint64_t>(lParam));
        return 0;
    case WM_COMMAND:
        component->eventNotify(HIWORD(wParam), static_cast<std::uint64_t>(lParam));
        return 0;
    case WM_HSCROLL:
        component->eventNotify(message, wParam);
        LuScrollBars::scroll(window, SB_HORZ, wParam);
        return 0;
    default: // WM_VSCROLL
        LuScrollBars::scroll(window, SB_VERT, wParam);
        return 0;
    }
}

constexpr const char* CLASS_NAME = "LuDialogComponent";
constexpr const char* ERROR_TITLE = "LuDialogComponent Error";

} // namespace

DWORD LuDialogComponent::getExtendedStyle() const {
    switch (edgeStyle.getValue()) {
    case SHADOW_IN:
        return WS_EX_CONTROLPARENT | WS_EX_STATICEDGE;
    case SHADOW_OUT:
        return WS_EX_CONTROLPARENT | WS_EX_DLGMODALFRAME;
    default:
        return WS_EX_CONTROLPARENT;
    }
}

void LuDialogComponent::createComponentWidget(HWND parent) {
    const LuWindowClass windowClass{CLASS_NAME,
                                    CS_VREDRAW | CS_HREDRAW | CS_PARENTDC,
                                    carrierProcedure,
                                    LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW)),
                                    nullptr,
                                    ERROR_TITLE,
                                    "RegisterClass failed"};
    m_widget = CreateWindowExA(getExtendedStyle(), windowClass.getRealName().c_str(), CLASS_NAME,
                               WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN, 0, 0, 0, 0, parent,
                               nullptr, LuWin::getInstance(), nullptr);
    if (!existWidget(m_widget)) {
        m_widget = nullptr;
        LuWin::createSimpleErrorDialog(nullptr, ERROR_TITLE, "CreateWindow failed", nullptr);
        return;
    }
    setWidgetFont(m_widget);
    SetWindowLongPtrA(m_widget, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    if (isDialogGroup())
        SendMessageA(m_widget, WM_CREATE, 0, 0);
    LuWin::enableWindow(m_widget, enable.getValue());
}

void LuDialogComponent::eventNotify(unsigned int, std::uint64_t) {}

void LuDialogComponent::changeEdgeStyle() {
    SetWindowLongPtrA(m_widget, GWL_EXSTYLE, static_cast<LONG_PTR>(getExtendedStyle()));
    SetWindowPos(m_widget, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_FRAMECHANGED);
    updateComponentWidget();
}

void LuDialogComponent::updateComponentWidget() {
    SetWindowPos(m_widget, nullptr, m_position.x, m_position.y, width.getValue(), height.getValue(),
                 SWP_DEFERERASE);
}

void LuDialogComponent::destroyWidget() {
    if (m_built2D) {
        if (m_ownsWidget && existWidget(m_widget))
            DestroyWindow(m_widget);
        if (existWidget(m_spareWidget))
            DestroyWindow(m_spareWidget);
        m_widget = nullptr;
        m_spareWidget = nullptr;
    }
    LuTopComponent::destroyWidget();
}
