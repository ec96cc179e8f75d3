// SPDX-License-Identifier: MIT
#pragma once

#include "core/LuPanelix.h"

/// The pixel size of a component's text, measured anew only when the text or the font has changed. A layout
/// asks for it again and again, and measuring takes some calls of the window system.
class LuTextSize {
public:
    /// What LuPanelix::getLabelPixelSize gives.
    const LvVec2i32& get(const LvString& text, LuPanelix* component) {
        HFONT const font = LuPanelix::getPanelixFont();
        if (font != m_font || !(text == m_text)) {
            m_size = LuPanelix::getLabelPixelSize(text, component);
            m_text = text;
            m_font = font;
        }
        return m_size;
    }

private:
    LvString m_text;
    HFONT m_font = nullptr;
    LvVec2i32 m_size;
};
