// SPDX-License-Identifier: MIT
#include "controls/LuDialogCustomSlider.h"

#include "platform/lumora/win/LuWinGL.h"

LuDialogCustomSlider::~LuDialogCustomSlider() = default;

void LuDialogCustomSlider::setBarColors(const std::vector<LvColor>& colors, bool isShaded) {
    m_barColors = colors;
    if (colors.size() == 1) {
        m_drawBar = &LuDialogCustomSlider::drawFlatBar;
    } else {
        m_isShaded = isShaded;
        m_drawBar = &LuDialogCustomSlider::drawRampBar;
    }
    redraw();
}

void LuDialogCustomSlider::setBarEnabled(bool isEnabled) {
    m_isBarEnabled = isEnabled;
    redraw();
}

void LuDialogCustomSlider::drawSlider() {
    (this->*m_drawBar)();
    const LuWinSliderRectangle thumb = getThumbRectangle();
    LuDrawThumbUIRegion(thumb.x0, thumb.y0, thumb.x1, thumb.y1);
    LuWinGL::get().flush();
}

void LuDialogCustomSlider::drawFlatBar() {
    const LuWinGL& gl = LuWinGL::get();
    const LuWinSliderRectangle bar = getBarRectangle();
    gl.color3fv(&m_barColors[0].x);
    gl.rects(bar.x0, bar.y0, static_cast<short>(bar.x1 + 1), static_cast<short>(bar.y1 + 1));
}

void LuDialogCustomSlider::setRampColor(const LvColor& color) {
    if (m_isBarEnabled)
        LuWinGL::get().color3fv(&color.x);
    else
        LuWinGL::get().color3f(color.x * 0.5F, color.y * 0.5F, color.z * 0.5F);
}

void LuDialogCustomSlider::drawRampBar() {
    // A file may give no colours at all.
    if (m_barColors.empty())
        return;
    const LuWinGL& gl = LuWinGL::get();
    const LuWinSliderRectangle bar = getBarRectangle();
    const auto drawPair = [&gl, &bar](float x) {
        gl.vertex2s(static_cast<short>(x), bar.y0);
        gl.vertex2s(static_cast<short>(x), static_cast<short>(bar.y1 + 1));
    };
    const auto width = static_cast<float>(bar.x1 - bar.x0 + 1);
    const auto numColors = static_cast<float>(m_barColors.size());
    auto x = static_cast<float>(bar.x0);
    gl.pushAttrib(LuWinGL::LIGHTING_BIT);
    gl.shadeModel(m_isShaded ? LuWinGL::SMOOTH : LuWinGL::FLAT);
    gl.begin(LuWinGL::QUAD_STRIP);
    const float step = width / (m_isShaded ? numColors - 1 : numColors);
    if (!m_isShaded) {
        // A band has the colour that its right end is given.
        gl.color3fv(&m_barColors[0].x);
        drawPair(x);
        x += step;
    }
    for (const LvColor& color : m_barColors) {
        setRampColor(color);
        drawPair(x);
        x += step;
    }
    gl.end();
    gl.popAttrib();
}
