// SPDX-License-Identifier: MIT
#pragma once

#include "controls/LuDialogCustomSlider.h"
#include "tests/controls/ControlTest.h"

#include <functional>

/// A slider that shows its protected side.
template <class Slider>
class OpenSlider : public Slider {
public:
    using Slider::get3DValueFromEdit;
    using Slider::m_editing3D;
    using Slider::m_editZoneWidth;
    using Slider::m_sliderWidth;

    float getPosition() const { return Slider::m_normalizedValue; }

    /// Sets a position as a drag that ends does.
    void drop(float position) {
        Slider::setValueFromSlider(position);
        Slider::setValue();
    }

    /// Enters a text in the edit box.
    void enter(const char* text) {
        SetWindowTextA(Slider::getEditWidget(), text);
        SendMessageA(Slider::getEditWidget(), WM_CHAR, VK_RETURN, 0);
    }
    std::string getBox() { return getText(Slider::getEditWidget()); }
    std::string getText3D() const { return get3DValueFromEdit().str(); }
    float getThumb() const { return Slider::getValue(); }

    /// The way of the cursor from its place at position 0.
    float getCursor() { return getChildAs<LuTranslation>(*this, "cursorSep", 0)->translation.getValue().x; }
    float getFrameLength() { return getChildAs<LuScale>(*this, "frameSep", 0)->scaleFactor.getValue().x; }
};

/// Does something at each event, and counts them.
template <class Auditor, class Slider>
class SliderAuditor : public Auditor {
public:
    int m_count = 0;
    std::function<void(Slider&)> m_action;

protected:
    void hear(Slider& slider) {
        ++m_count;
        if (m_action)
            m_action(slider);
    }
};

/// A test of a slider, which is not the first one that the process builds: the first one treats its limits
/// in another way.
template <class Slider>
class SliderTest : public ControlTest {
protected:
    SliderTest() {
        const Held<Slider> first;
        buildWindows(*first);
        m_slider->labelVisibility = false;
        m_slider->width = 300;
        m_slider->height = 30;
    }

    template <class Number>
    void setLimits(Number min, Number max, Number value) {
        m_slider->min = min;
        m_slider->max = max;
        m_slider->value = value;
    }

    Held<OpenSlider<Slider>> m_slider;
};
