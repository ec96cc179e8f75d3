// SPDX-License-Identifier: MIT
#include "tests/random/RandomNumberSlider.h"

#include "controls/LuNumericFilter.h"
#include "tests/random/RandomPanel.h"
#include "tests/random/RandomTexts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

/// Also where neither is a number.
bool isSame(float left, float right) { return left == right || (std::isnan(left) && std::isnan(right)); }

/// Truncates and adds `min`. What is no number counts as the lowest, to which processors add.
std::int32_t getWhole(float steps, std::int32_t min) {
    constexpr float MOST = 8e9F;
    if (std::isnan(steps))
        return static_cast<std::int32_t>(0x80000000U + static_cast<std::uint32_t>(min));
    return luAddSize(min, static_cast<std::int64_t>(std::clamp(steps, -MOST, MOST)));
}

/// The edit box of an integer slider doesn't ask whether there is a range.
std::int32_t getNumberAt(float position, std::int32_t min, std::int32_t max, bool isBox) {
    const float range = static_cast<float>(max) - static_cast<float>(min);
    if (range == 0 && !isBox)
        return min;
    return getWhole(range * (position + 1.0F / (range * 2.0F)), min);
}

float getNumberAt(float position, float min, float max, bool) { return min + (max - min) * position; }

bool isOtherNumber(const LvString& text, std::int32_t number) {
    return text.toFloat() - static_cast<float>(number) != 0;
}
bool isOtherNumber(const LvString&, float) { return false; }

void readNumber(const LvString& text, std::int32_t& number) { number = text.toInt(); }
void readNumber(const LvString& text, float& number) { number = text.toFloat(); }

std::string printNumber(const LvString& format, std::int32_t number) {
    LuNumberFormat printer(LuNumberFormat::WHOLE, "%d");
    printer.set(format);
    return printer.print(static_cast<int>(number)).str();
}

std::string printNumber(const LvString& format, float number) {
    LuNumberFormat printer(LuNumberFormat::REAL, "%.3f");
    printer.set(format);
    return printer.print(static_cast<double>(number)).str();
}

void typeNumber(LuKeyboardEvent::Key key, std::string& text, std::int32_t) {
    if (key == LuKeyboardEvent::PAD_INSERT)
        text += '0';
    else if (key >= LuKeyboardEvent::NUMBER_0 && key <= LuKeyboardEvent::NUMBER_9)
        text += static_cast<char>(key);
}

void typeNumber(LuKeyboardEvent::Key key, std::string& text, float) {
    std::string longer = text;
    if (key == LuKeyboardEvent::PAD_INSERT)
        longer += '0';
    else if (key == LuKeyboardEvent::PAD_DELETE)
        longer += '.';
    else if (key == LuKeyboardEvent::A)
        longer += 'a';
    else if (key < 128)
        longer += static_cast<char>(key);
    if (luIsNumber(longer))
        text = longer;
}

const char* chooseFormatFor(RandomSource& random, std::int32_t) {
    static constexpr const char* FORMATS[] = {"%d", "%d", "%4d", "%+d", "%03d%%", "at %d"};
    return random.from(FORMATS);
}

const char* chooseFormatFor(RandomSource& random, float) {
    static constexpr const char* FORMATS[] = {"%.3f", "%.3f", "%.1f", "%g", "%8.2f", "%.2e", "at %.2f"};
    return random.from(FORMATS);
}

} // namespace

// The number and its position

template <class Slider>
float RandomNumberSlider<Slider>::getPositionOfValue() const {
    const float range = static_cast<float>(m_max) - static_cast<float>(m_min);
    return range == 0 ? 0 : (static_cast<float>(m_value) - static_cast<float>(m_min)) / range;
}

template <class Slider>
typename RandomNumberSlider<Slider>::Number RandomNumberSlider<Slider>::getNumber() const {
    return getNumberAt(m_position, m_min, m_max, false);
}

template <class Slider>
std::string RandomNumberSlider<Slider>::printInScene() const {
    return printNumber(m_numberSlider.format.getValue(), getNumber());
}

template <class Slider>
std::string RandomNumberSlider<Slider>::printInBox() const {
    return printNumber(m_numberSlider.format.getValue(), getNumberAt(m_position, m_min, m_max, true));
}

// Fields

template <class Slider>
void RandomNumberSlider<Slider>::changeMin(Number min) {
    m_min = min;
    m_isLengthOld = false;
    if (m_value < m_min)
        changeValue(m_min);
    m_position = getPositionOfValue();
    showValue();
}

template <class Slider>
void RandomNumberSlider<Slider>::changeMax(Number max) {
    m_max = max;
    m_isLengthOld = false;
    if (m_value > m_max)
        changeValue(m_max);
    m_position = getPositionOfValue();
    showValue();
}

template <class Slider>
void RandomNumberSlider<Slider>::changeValue(Number value) {
    m_value = value;
    if (!m_isValueWatched)
        return;
    m_position = getPositionOfValue();
    showValue();
}

template <class Slider>
bool RandomNumberSlider<Slider>::limit(Number& number) {
    const bool isAbove = number > m_max;
    if (isAbove)
        number = m_max;
    const bool isBelow = number < m_min;
    if (isBelow)
        number = m_min;
    return isAbove || isBelow;
}

template <class Slider>
bool RandomNumberSlider<Slider>::stretchLimits(Number number) {
    const bool isAbove = number > m_max;
    if (isAbove)
        changeMax(number);
    const bool isBelow = number < m_min;
    if (isBelow)
        changeMin(number);
    return isAbove || isBelow;
}

template <class Slider>
void RandomNumberSlider<Slider>::laidOut() {
    const Number number = m_value;
    if (m_numberSlider.fixedLimits.getValue()) {
        if (number > m_max)
            changeValue(m_max);
        if (number < m_min)
            changeValue(m_min);
    } else {
        stretchLimits(number);
    }
    if (m_min != m_max) {
        m_position = getPositionOfValue();
    } else {
        if (m_value != m_max)
            changeValue(m_max);
        m_position = 0;
    }
    RandomSlider::laidOut();
}

// What the user does

template <class Slider>
void RandomNumberSlider<Slider>::takeNumber() {
    const Number number = getNumber();
    if (number == m_value)
        return;
    m_value = number;
    expectCall();
}

template <class Slider>
void RandomNumberSlider<Slider>::expectCall() {
    constexpr bool IS_WHOLE = std::is_integral_v<Number>;
    m_panel.expectCall((IS_WHOLE ? "dialogIntegerSlider " : "dialogRealSlider ") + getName() + " " +
                       printRandomNumber(static_cast<double>(m_value)));
}

template <class Slider>
bool RandomNumberSlider<Slider>::takeEntry(const LvString& text) {
    Number number{};
    readNumber(text, number);
    bool isWrittenAnew = isOtherNumber(text, number);
    // A limit that moves has the old value written into the box.
    if (m_numberSlider.fixedLimits.getValue() ? limit(number) : stretchLimits(number))
        isWrittenAnew = true;
    m_position = (static_cast<float>(number) - static_cast<float>(m_min)) /
                 (static_cast<float>(m_max) - static_cast<float>(m_min));
    return isWrittenAnew;
}

/// The value is what was typed, even beyond fixed limits, and is told even when it isn't new.
template <class Slider>
void RandomNumberSlider<Slider>::enterInScene() {
    const LvString text = m_sceneText;
    m_isValueWatched = false;
    const bool isWrittenAnew = takeEntry(text);
    showText(isWrittenAnew && hasWindows());
    readNumber(text, m_value);
    m_isValueWatched = true;
    moveThumb();
    moveCursor();
    m_isEditing = false;
    expectCall();
}

template <class Slider>
void RandomNumberSlider<Slider>::typeKey(LuKeyboardEvent::Key key, std::string& text) {
    typeNumber(key, text, Number{});
}

// What shows

template <class Slider>
void RandomNumberSlider<Slider>::check() {
    EXPECT_TRUE(isSame(static_cast<float>(m_numberSlider.value.getValue()), static_cast<float>(m_value)))
        << getName() << " is " << m_numberSlider.value.getValue() << " and not " << m_value;
    EXPECT_EQ(m_numberSlider.min.getValue(), m_min) << getName();
    EXPECT_EQ(m_numberSlider.max.getValue(), m_max) << getName();
    RandomSlider::check();
}

// What may be done

template <class Slider>
typename RandomNumberSlider<Slider>::Number RandomNumberSlider<Slider>::chooseNumber() {
    const Number steps = static_cast<Number>(m_panel.getRandom().between(-20, 120));
    return std::is_integral_v<Number> ? steps : steps / 4;
}

template <class Slider>
void RandomNumberSlider<Slider>::addNumberActions(std::vector<RandomAction>& actions) {
    const auto add = [&](const char* name, int weight, std::function<void()> run) {
        actions.push_back({std::string(name) + " " + getName(), weight, std::move(run)});
    };
    add("value", 3, [this] {
        const Number number = chooseNumber();
        m_numberSlider.value.setValue(number);
        changeValue(number);
    });
    // With fixed limits in the wrong order each build would take the value to the other one.
    add("min", 3, [this] {
        Number number = chooseNumber();
        if (number > m_max && (m_numberSlider.fixedLimits.getValue() || m_panel.getRandom().mostly()))
            number = m_max;
        m_numberSlider.min.setValue(number);
        changeMin(number);
    });
    add("max", 3, [this] {
        Number number = chooseNumber();
        if (number < m_min && (m_numberSlider.fixedLimits.getValue() || m_panel.getRandom().mostly()))
            number = m_min;
        m_numberSlider.max.setValue(number);
        changeMax(number);
    });
    add("fixedLimits", 2,
        [this] { m_numberSlider.fixedLimits.setValue(m_min <= m_max && m_panel.getRandom().flip()); });
}

template <class Slider>
const char* RandomNumberSlider<Slider>::chooseFormat() {
    return chooseFormatFor(m_panel.getRandom(), Number{});
}

template class RandomNumberSlider<LuDialogIntegerSlider>;
template class RandomNumberSlider<LuDialogRealSlider>;
