// SPDX-License-Identifier: MIT
#include "controls/LuNumberSlider.h"

#include "controls/LuDialogCustomSlider.h"
#include "platform/lumora/events/LuKeyboardEvent.h"
#include "platform/lumora/nodes/LuText3.h"
#include "platform/lumora/win/LuWin.h"

#include <algorithm>
#include <type_traits>

namespace {

/// Pixels that the edit box needs about its text.
constexpr int EDIT_ROOM = 8;

/// Keys below have a character of their own.
constexpr int FIRST_SPECIAL_KEY = 0xff00;

/// The digits of the keypad's keys, from PAD_HOME on to PAD_INSERT.
constexpr char PAD_DIGITS[] = {'7', '4', '8', '6', '2', '9', '3', '1', '5', '0'};

LvString withoutLastCharacter(const LvString& text) {
    int end = text.getLength() - 1;
    const auto isInside = [&](int at) { return (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80; };
    while (end > 0 && isInside(end))
        --end;
    return text.getSubString(0, std::max(end, 0));
}

} // namespace

template <class Number>
bool LuNumberSlider<Number>::s_isFirstBuild = true;

template <class Number>
LuNumberSlider<Number>::LuNumberSlider(LuNumberFormat::Kind kind, const char* defaultFormat)
    : m_numberFormat(kind, defaultFormat) {}

template <class Number>
LuNumberSlider<Number>::~LuNumberSlider() {
    delete m_minSensor;
    delete m_maxSensor;
    delete m_valueSensor;
}

template <class Number>
float LuNumberSlider<Number>::getPositionOfValue() const {
    const float range = getMax() - getMin();
    return range == 0 ? 0 : (static_cast<float>(value.getValue()) - getMin()) / range;
}

template <class Number>
LvString LuNumberSlider<Number>::print(Number number) {
    using Printed = std::conditional_t<std::is_integral_v<Number>, int, double>;
    m_numberFormat.set(format.getValue());
    return m_numberFormat.print(static_cast<Printed>(number));
}

template <class Number>
void LuNumberSlider<Number>::buildWidget(HWND parent, LvVec2i32& size, LvVec2i32& position, int is2D) {
    limitValue();
    if (min.getValue() != max.getValue()) {
        m_normalizedValue = getPositionOfValue();
    } else {
        if (value.getValue() != max.getValue())
            value = max.getValue();
        m_normalizedValue = 0;
    }
    LuDialogSlider::buildWidget(parent, size, position, is2D);
    attachSensor(m_valueSensor, value);
    attachSensor(m_minSensor, min);
    attachSensor(m_maxSensor, max);
    if (m_built2D)
        changeSliderValue();
    if (isShown3D())
        change3DSliderValue();
    s_isFirstBuild = false;
}

/// Brings the value between the limits, or the limits to the value.
template <class Number>
void LuNumberSlider<Number>::limitValue() {
    const Number number = value.getValue();
    if (fixedLimits.getValue() || s_isFirstBuild) {
        if (number > max.getValue())
            value = max.getValue();
        // The number from before: with limits in the wrong order `min` has the last word.
        if (number < min.getValue())
            value = min.getValue();
    } else {
        stretchLimits(number);
    }
}

/// True when one of them has moved.
template <class Number>
bool LuNumberSlider<Number>::stretchLimits(Number number) {
    const bool isAbove = number > max.getValue();
    if (isAbove)
        max = number;
    const bool isBelow = number < min.getValue();
    if (isBelow)
        min = number;
    return isAbove || isBelow;
}

template <class Number>
void LuNumberSlider<Number>::updateFromSensor(LuSensor* sensor) {
    if (sensor == m_valueSensor) {
        setValueFromSlider(getPositionOfValue());
    } else if (sensor == m_minSensor || sensor == m_maxSensor) {
        if (sensor == m_minSensor && value.getValue() < min.getValue())
            value = min.getValue();
        if (sensor == m_maxSensor && value.getValue() > max.getValue())
            value = max.getValue();
        m_normalizedValue = getPositionOfValue();
        updateWidget();
    } else {
        LuDialogSlider::updateFromSensor(sensor);
        return;
    }
    showValue();
}

template <class Number>
void LuNumberSlider<Number>::showValue() {
    if (m_built2D)
        changeEditValue();
    if (isShown3D())
        change3DEditValue();
    if (m_built2D)
        changeSliderValue();
    if (isShown3D())
        change3DSliderValue();
}

template <class Number>
void LuNumberSlider<Number>::setValueFromEdit(int from2D) {
    const bool isThere = from2D ? m_built2D : isBuilt3D();
    // Without a text an integer is 0, and a real number stays as it is.
    if (isThere)
        takeNumber(from2D ? getValueFromEdit() : get3DValueFromEdit());
    else if (std::is_integral_v<Number>)
        takeNumber({});
    if (isShown3D())
        change3DEditValue();
}

template <class Number>
void LuNumberSlider<Number>::takeNumber(const LvString& text) {
    bool rewrites = false;
    Number number = readNumber(text, rewrites);
    // A limit that moves has the old value written into the box.
    if (fixedLimits.getValue() ? limitNumber(number) : stretchLimits(number))
        rewrites = true;
    m_normalizedValue = (static_cast<float>(number) - getMin()) / (getMax() - getMin());
    if (rewrites && m_built2D)
        changeEditValue();
}

template <class Number>
bool LuNumberSlider<Number>::limitNumber(Number& number) {
    const bool isAbove = number > max.getValue();
    if (isAbove)
        number = max.getValue();
    const bool isBelow = number < min.getValue();
    if (isBelow)
        number = min.getValue();
    return isAbove || isBelow;
}

template <class Number>
void LuNumberSlider<Number>::changeSliderValue() {
    if (m_customSlider)
        m_customSlider->setValue(m_normalizedValue, 1);
}

template <class Number>
void LuNumberSlider<Number>::setValue() {
    const Number number = getNumber();
    if (number == value.getValue())
        return;
    setWithoutSensor(value, number, m_valueSensor);
    applyDlgCptAuditor();
}

template <class Number>
void LuNumberSlider<Number>::changeEditValue() {
    if (existWidget(getEditWidget()))
        LuWin::setWindowText(getEditWidget(), print(getNumberInEdit()));
}

template <class Number>
int LuNumberSlider<Number>::computeEditZoneWidth() {
    return luAddSize(m_widestText.get(print(getWidestNumber()), nullptr).x, EDIT_ROOM);
}

template <class Number>
void LuNumberSlider<Number>::change3DEditValue() {
    changeText3D(print(getNumber()));
    LuDialogSlider::change3DEditValue();
}

template <class Number>
void LuNumberSlider<Number>::changeText3D(const LvString& text) {
    if (m_valueText3)
        m_valueText3->string.set1Value(0, text);
}

template <class Number>
void LuNumberSlider<Number>::computeNewSliderEditValue(const LuKeyboardEvent* event) {
    if (!event || event->getState() != LuButtonEvent::DOWN)
        return;
    LvString text = get3DValueFromEdit();
    if (event->getKey() == LuKeyboardEvent::RETURN) {
        acceptTyped(text);
        return;
    }
    if (event->getKey() == LuKeyboardEvent::BACKSPACE)
        text = withoutLastCharacter(text);
    else if (!addKey(*event, text))
        return;
    changeText3D(text);
}

/// On purpose `value` takes the number as it was typed, and only the position stays between fixed limits.
template <class Number>
void LuNumberSlider<Number>::acceptTyped(const LvString& text) {
    if (m_valueSensor)
        m_valueSensor->detach();
    setValueFromEdit(0);
    bool rewrites = false;
    value = readNumber(text, rewrites);
    change3DSliderValue();
    if (m_built2D)
        changeSliderValue();
    if (m_valueSensor)
        m_valueSensor->attach(&value);
    finish3DEditing();
}

template <class Number>
void LuNumberSlider<Number>::finish3DEditing() {
    stopEditing3D();
    applyDlgCptAuditor();
}

template <class Number>
char32_t LuNumberSlider<Number>::getTypedCharacter(const LuKeyboardEvent& event) {
    const int key = event.getKey();
    if (key <= FIRST_SPECIAL_KEY)
        return event.getPrintableCharacter();
    const bool isPad = key >= LuKeyboardEvent::PAD_HOME && key <= LuKeyboardEvent::PAD_INSERT;
    return isPad ? static_cast<unsigned char>(PAD_DIGITS[key - LuKeyboardEvent::PAD_HOME]) : 0;
}

template class LuNumberSlider<std::int32_t>;
template class LuNumberSlider<float>;
