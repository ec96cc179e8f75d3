// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvString.h"
#include "platform/win32/WindowSystem.h"

/// A thing of the toolkit that stands for one window of the window system, its base widget.
///
/// Whoever makes the component sets its base widget. The window may end first: then there is none any more.
/// It may also outlive the component, which does not end it: a child window ends with its parent.
class LuWinComponent {
public:
    LuWinComponent(const LuWinComponent&) = delete;
    LuWinComponent& operator=(const LuWinComponent&) = delete;
    virtual ~LuWinComponent();

    HWND getBaseWidget() const { return m_baseWidget; }
    void setBaseWidget(HWND window) { m_baseWidget = window; }
    HWND getParentWidget() const { return m_parent; }

    virtual void show();
    virtual void hide();

protected:
    LuWinComponent(HWND parent, const char* name) : m_parent(parent), m_name(name) {}

    void setParentWidget(HWND parent) { m_parent = parent; }

    /// Called once the window exists.
    virtual void afterRealizeHook() {}

    /// The name of the window's class.
    virtual const char* getDefaultWidgetName() const { return "LuWinComponent"; }

    /// The text of a window whose component has no name, and what stands for it where there is little room.
    virtual const char* getDefaultTitle() const { return ""; }
    virtual const char* getDefaultIconTitle() const { return ""; }

    /// The user closes the window.
    virtual void windowCloseAction() {}

    /// The window has ended.
    virtual void widgetDestroyed() { m_baseWidget = nullptr; }

    const LvString& getName() const { return m_name; }

private:
    HWND m_parent;
    LvString m_name;
    HWND m_baseWidget = nullptr;
};
