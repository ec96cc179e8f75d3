// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/win/LuWinComponent.h"

#include <memory>

class LuWinCanvas;

/// A component that draws its window itself, with the operations of LuWinGL; where there is no OpenGL, with
/// those of the window system.
class LuWinGDIWidget : public LuWinComponent {
public:
    ~LuWinGDIWidget() override;

    /// The window that is drawn in, null while there is none; the one that was built, whatever the base
    /// widget is.
    HWND getNormalWindow() const { return m_normalWindow; }

    /// Has the window drawn anew.
    virtual void redraw();

protected:
    LuWinGDIWidget(HWND parent, const char* name) : LuWinComponent(parent, name) {}

    /// Makes the window, at (0, 0) and without a size; null, with a message, when that fails. The class of
    /// windows has the name that getDefaultWidgetName gives.
    HWND createNormalWindow(HWND parent);

    /// Called before the first drawing by OpenGL.
    virtual void initGraphic() {}

    /// Draws all that shows, by OpenGL, on a ground of the dialogs' colour.
    virtual void onExpose() = 0;

    /// Draws it without OpenGL.
    virtual void exposePlain(HDC dc) = 0;

    /// There is a new window to draw in, or none any more.
    virtual void widgetChanged() {}

    /// The window has another size: pixels of its client area.
    virtual void sizeChanged(int width, int height);

    /// Handles a message of the window, and gives the answer. The component may end on the way.
    virtual LRESULT processEvent(UINT message, WPARAM wParam, LPARAM lParam);

private:
    static LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void paint();
    void forgetNormalWindow();

    HWND m_normalWindow = nullptr;
    std::shared_ptr<LuWinCanvas> m_canvas;
    bool m_isGraphicReady = false;
};
