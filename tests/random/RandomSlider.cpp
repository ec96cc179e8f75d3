// SPDX-License-Identifier: MIT
#include "tests/random/RandomSlider.h"

#include "controls/LuNumericFilter.h"
#include "platform/lumora/nodes/LuTransforms.h"
#include "platform/lumora/win/LuWin.h"
#include "tests/random/RandomPanel.h"
#include "tests/random/RandomTexts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr float CURSOR_SIZE = 10;
constexpr int THUMB_WIDTH = 10;
constexpr float KEY_STEP = 0.01F;

/// The position of a slider, which isn't told.
struct OpenPosition : LuDialogSlider {
    static float get(const LuDialogSlider& slider) { return slider.*(&OpenPosition::m_normalizedValue); }
};

bool isSame(float left, float right) { return left == right || (std::isnan(left) && std::isnan(right)); }

float clampPosition(float position) { return position > 0 ? std::min(position, 1.0F) : 0.0F; }

/// Truncates and adds `min`. What is no number counts as the lowest, to which processors add.
std::int32_t getWhole(float steps, std::int32_t min) {
    constexpr float MOST = 8e9F;
    if (std::isnan(steps))
        return static_cast<std::int32_t>(0x80000000U + static_cast<std::uint32_t>(min));
    return luAddSize(min, static_cast<std::int64_t>(std::clamp(steps, -MOST, MOST)));
}

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

/// Adds what a key types in the scene. False when it has no place there.
bool typeKey(LuKeyboardEvent::Key key, std::string& text, std::int32_t) {
    const bool isDigit = key >= LuKeyboardEvent::NUMBER_0 && key <= LuKeyboardEvent::NUMBER_9;
    if (key == LuKeyboardEvent::PAD_INSERT)
        text += '0';
    else if (isDigit)
        text += static_cast<char>(key);
    return isDigit || key == LuKeyboardEvent::PAD_INSERT;
}

bool typeKey(LuKeyboardEvent::Key key, std::string& text, float) {
    std::string longer = text;
    if (key == LuKeyboardEvent::PAD_INSERT)
        longer += '0';
    else if (key == LuKeyboardEvent::PAD_DELETE)
        longer += '.';
    else if (key == LuKeyboardEvent::A)
        longer += 'a';
    else if (key < 128)
        longer += static_cast<char>(key);
    const bool isNumber = luIsNumber(longer);
    if (isNumber)
        text = longer;
    return isNumber;
}

} // namespace

// The number and its position

template <class Slider>
float RandomSlider<Slider>::getPositionOfValue() const {
    const float range = static_cast<float>(m_max) - static_cast<float>(m_min);
    return range == 0 ? 0 : (static_cast<float>(m_value) - static_cast<float>(m_min)) / range;
}

template <class Slider>
typename RandomSlider<Slider>::Number RandomSlider<Slider>::getNumber() const {
    return getNumberAt(m_position, m_min, m_max, false);
}

/// The edit box of an integer slider doesn't ask whether there is a range.
template <class Slider>
typename RandomSlider<Slider>::Number RandomSlider<Slider>::getNumberInBox() const {
    return getNumberAt(m_position, m_min, m_max, true);
}

template <class Slider>
std::string RandomSlider<Slider>::print(Number number) const {
    return printNumber(m_slider.format.getValue(), number);
}

// Fields

template <class Slider>
void RandomSlider<Slider>::changeMin(Number min) {
    m_min = min;
    m_isLengthOld = false;
    if (m_value < m_min)
        changeValue(m_min);
    m_position = getPositionOfValue();
    showValue();
}

template <class Slider>
void RandomSlider<Slider>::changeMax(Number max) {
    m_max = max;
    m_isLengthOld = false;
    if (m_value > m_max)
        changeValue(m_max);
    m_position = getPositionOfValue();
    showValue();
}

template <class Slider>
void RandomSlider<Slider>::changeValue(Number value) {
    m_value = value;
    if (!m_isValueWatched)
        return;
    m_position = getPositionOfValue();
    showValue();
}

template <class Slider>
bool RandomSlider<Slider>::limit(Number& number) {
    const bool isAbove = number > m_max;
    if (isAbove)
        number = m_max;
    const bool isBelow = number < m_min;
    if (isBelow)
        number = m_min;
    return isAbove || isBelow;
}

template <class Slider>
bool RandomSlider<Slider>::stretchLimits(Number number) {
    const bool isAbove = number > m_max;
    if (isAbove)
        changeMax(number);
    const bool isBelow = number < m_min;
    if (isBelow)
        changeMin(number);
    return isAbove || isBelow;
}

// What becomes of a position

template <class Slider>
void RandomSlider<Slider>::showValue() {
    showText(hasWindows());
    moveThumb();
    moveCursor();
}

template <class Slider>
void RandomSlider<Slider>::showText(bool isInWindows) {
    if (isInWindows)
        m_boxText = print(getNumberInBox());
    if (m_isSceneBuilt)
        m_sceneText = print(getNumber());
}

template <class Slider>
void RandomSlider<Slider>::moveThumb() {
    m_thumb = clampPosition(m_position);
}

/// How far that is depends on the size that the frame has after the action.
template <class Slider>
void RandomSlider<Slider>::moveCursor() {
    m_cursorPosition = m_position;
    m_isCursorMoved = true;
}

/// The value follows the position.
template <class Slider>
void RandomSlider<Slider>::takeNumber() {
    const Number number = getNumber();
    if (number == m_value)
        return;
    m_value = number;
    expectCall();
}

template <class Slider>
void RandomSlider<Slider>::expectCall() {
    constexpr bool IS_WHOLE = std::is_integral_v<Number>;
    m_panel.expectCall((IS_WHOLE ? "dialogIntegerSlider " : "dialogRealSlider ") + this->getName() + " " +
                       printRandomNumber(static_cast<double>(m_value)));
}

/// By the user, in one of the renditions.
template <class Slider>
void RandomSlider<Slider>::turnCheck(bool isOn) {
    m_isChecked = isOn;
    m_checkSwitch = isOn ? 1 : 0;
    m_finishCalls = isOn ? std::max(m_finishCalls - 1, 0) : m_finishCalls + 1;
}

// Builds

template <class Slider>
void RandomSlider<Slider>::laidOut() {
    m_isLengthOld = false;
    const Number number = m_value;
    if (m_slider.fixedLimits.getValue()) {
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
    moveThumb();
    moveCursor();
}

template <class Slider>
void RandomSlider<Slider>::windowsBuilt() {
    RandomComponent::windowsBuilt();
    laidOut();
    m_boxText = print(getNumberInBox());
    m_windowLabel = convertRandomText(m_slider.label.getValue());
    m_isChecked = m_slider.continuousTrigger.getValue();
    m_finishCalls = m_isChecked ? 0 : 1;
    m_isToggleShown = true; // Whatever the field says until it changes.
}

template <class Slider>
void RandomSlider<Slider>::sceneBuilt() {
    RandomComponent::sceneBuilt();
    laidOut();
    m_sceneText = print(getNumber());
    m_sceneLabel = convertRandomText(m_slider.label.getValue());
    m_checkSwitch = LuSwitch::SHOW_NONE;
    if (m_slider.toggleVisible.getValue())
        m_checkSwitch = m_slider.continuousTrigger.getValue() ? 1 : 0;
    m_isEditing = false;
}

template <class Slider>
void RandomSlider<Slider>::enableChanged() {
    RandomComponent::enableChanged();
    // After what the windows do, which may end a drag there.
    m_isCursorMovedLast = true;
}

template <class Slider>
void RandomSlider<Slider>::labelChanged() {
    m_windowLabel = convertRandomText(m_slider.label.getValue());
    m_sceneLabel = m_windowLabel;
}

// The user in the windows

template <class Slider>
bool RandomSlider<Slider>::isOperated(HWND window) const {
    return window && (window == m_slider.getSliderWidget() || window == m_slider.getToggleWidget() ||
                      window == m_slider.getEditWidget());
}

template <class Slider>
void RandomSlider<Slider>::windowMessage(const RandomMessage& sent) {
    const bool isHeld = sent.window == m_slider.getToggleWidget() && GetCapture() == sent.window &&
                        (SendMessageA(sent.window, BM_GETSTATE, 0, 0) & BST_PUSHED) != 0;
    const bool isKey = sent.message == WM_KEYUP && sent.wParam == VK_SPACE;
    m_isToggling = isHeld && (isKey || (sent.message == WM_LBUTTONUP && sent.isInside));
}

template <class Slider>
void RandomSlider<Slider>::windowMessageDone(const RandomMessage& sent) {
    const bool isArrow = sent.wParam == VK_LEFT || sent.wParam == VK_RIGHT;
    if (m_isToggling) {
        m_isToggling = false;
        turnCheck(!m_isChecked);
    } else if (sent.window == m_slider.getSliderWidget()) {
        if (sent.message == WM_LBUTTONDOWN) {
            RECT room{};
            GetClientRect(sent.window, &room);
            const float travel = static_cast<float>(std::max<int>(room.right - THUMB_WIDTH, 0));
            const int start = static_cast<int>(std::lround(m_thumb * travel));
            const int end = std::min<int>(start + THUMB_WIDTH, room.right);
            const bool isOnThumb = sent.x >= start && sent.x < end;
            m_grip = isOnThumb ? sent.x - start : THUMB_WIDTH / 2;
        }
        if (sent.message == WM_KEYDOWN && isArrow) {
            m_position = (sent.wParam == VK_LEFT ? -KEY_STEP : KEY_STEP) + m_thumb;
            moveThumb();
            moveCursor();
        } else if (sent.message == WM_KEYUP && isArrow) {
            m_position = m_thumb;
            takeNumber();
            showText(true);
        } else if (m_slider.getValue() != m_thumb) {
            dragThumb(sent.x);
        }
    } else if (sent.window == m_slider.getEditWidget()) {
        if (sent.message == WM_CHAR && sent.wParam == VK_RETURN)
            enter(m_boxText);
        else if (sent.message == WM_CHAR || (sent.message == WM_KEYDOWN && sent.wParam == VK_DELETE)) {
            // Where the caret is, is the box's own business.
            const std::string typed = LuWin::getWindowText(sent.window).str();
            EXPECT_TRUE(typed.empty() || typed == m_boxText || luIsNumber(typed)) << typed;
            m_boxText = typed;
        }
    }
}

template <class Slider>
void RandomSlider<Slider>::dragThumb(int x) {
    RECT room{};
    GetClientRect(m_slider.getSliderWidget(), &room);
    const float travel = static_cast<float>(room.right - THUMB_WIDTH);
    const float expected = std::clamp(static_cast<float>(x - m_grip) / travel, 0.0F, 1.0F);
    m_thumb = m_slider.getValue();
    EXPECT_FLOAT_EQ(m_thumb, expected) << this->getName();
    m_position = m_thumb;
    if (m_slider.continuousTrigger.getValue())
        takeNumber();
    showText(true);
    moveCursor();
}

template <class Slider>
void RandomSlider<Slider>::finishDrag() {
    for (int i = 0; i < m_finishCalls; ++i) {
        m_position = m_thumb;
        takeNumber();
        showText(true);
    }
}

template <class Slider>
void RandomSlider<Slider>::captureLeft(HWND window) {
    if (window == m_sliderWindow && IsWindow(window))
        finishDrag();
}

template <class Slider>
void RandomSlider<Slider>::focusLeft(HWND window) {
    if (window == m_editWindow)
        enter(m_boxText);
}

template <class Slider>
bool RandomSlider<Slider>::takeEntry(const LvString& text) {
    Number number{};
    readNumber(text, number);
    bool isWrittenAnew = isOtherNumber(text, number);
    // A limit that moves has the old value written into the box.
    if (m_slider.fixedLimits.getValue() ? limit(number) : stretchLimits(number))
        isWrittenAnew = true;
    m_position = (static_cast<float>(number) - static_cast<float>(m_min)) /
                 (static_cast<float>(m_max) - static_cast<float>(m_min));
    return isWrittenAnew;
}

template <class Slider>
void RandomSlider<Slider>::enter(const LvString& text) {
    const bool isWrittenAnew = takeEntry(text);
    showText(isWrittenAnew);
    moveThumb();
    moveCursor();
    takeNumber();
}

// The user in the scene

/// Less than nothing in a slider that is too narrow for its parts.
template <class Slider>
float RandomSlider<Slider>::getFrameLength() const {
    auto* const group = static_cast<LuGroup*>(m_slider.getPart("frameSep", false));
    return static_cast<LuScale*>(group->getChild(0))->scaleFactor.getValue().x;
}

template <class Slider>
void RandomSlider<Slider>::scenePressed(const LuPath& path) {
    const auto holds = [&](const char* part) { return path.containsNode(m_slider.getPart(part, false)); };
    m_panel.setActive(&m_slider);
    m_hold = holds("checkSep") ? Hold::CHECK : holds("cursorSep") ? Hold::CURSOR : Hold::NOTHING;
    m_pressPlace = m_panel.getPointer();
    m_pressCursor = m_cursor;
    m_pressBox = m_panel.getSceneBox(m_slider.getPart("frameSep", false));
    if (holds("edtSwtch"))
        m_isEditing = true;
    else if (holds("frameSep"))
        jumpTo(m_pressPlace);
}

/// The cursor jumps to where the frame was pressed.
template <class Slider>
void RandomSlider<Slider>::jumpTo(const LvVec3f& place) {
    m_position = OpenPosition::get(m_slider);
    const float travel = m_pressBox.max.x - m_pressBox.min.x - CURSOR_SIZE;
    if (getFrameLength() > CURSOR_SIZE) {
        const float expected = std::clamp(place.x - m_pressBox.min.x - CURSOR_SIZE / 2, 0.0F, travel);
        EXPECT_NEAR(m_position * travel, expected, 1.01) << this->getName();
    }
    moveCursor();
    takeNumber();
    moveThumb();
    showText(hasWindows());
}

template <class Slider>
void RandomSlider<Slider>::sceneMoved() {
    if (m_hold != Hold::CURSOR)
        return;
    m_panel.setActive(&m_slider);
    m_panel.setActive(nullptr);
    m_position = OpenPosition::get(m_slider);
    const LvBox3f box = m_panel.getSceneBox(m_slider.getPart("frameSep", false));
    const float travel = box.max.x - box.min.x - CURSOR_SIZE;
    if (getFrameLength() > CURSOR_SIZE && box.min == m_pressBox.min && box.max == m_pressBox.max) {
        const float way = m_panel.getPointer().x - m_pressPlace.x;
        EXPECT_NEAR(m_position * travel, std::clamp(m_pressCursor + way, 0.0F, travel), 1.01)
            << this->getName();
    }
    moveCursor();
    if (m_slider.continuousTrigger.getValue())
        takeNumber();
    moveThumb();
    showText(hasWindows());
}

template <class Slider>
void RandomSlider<Slider>::sceneReleased() {
    const Hold held = std::exchange(m_hold, Hold::NOTHING);
    if (held == Hold::CHECK) {
        turnCheck(!m_slider.continuousTrigger.getValue());
    } else if (held == Hold::CURSOR) {
        takeNumber();
        showText(hasWindows());
    }
}

template <class Slider>
void RandomSlider<Slider>::sceneKey(LuKeyboardEvent::Key key) {
    // A container that is hidden hides what is in it one by one.
    const bool isReached = m_isEditing && m_slider.valueVisible.getValue() && m_isShownInScene;
    if (!isReached)
        return;
    if (key == LuKeyboardEvent::RETURN)
        enterInScene();
    else if (key == LuKeyboardEvent::BACKSPACE)
        m_sceneText.resize(m_sceneText.size() - (m_sceneText.empty() ? 0 : 1));
    else
        typeKey(key, m_sceneText, Number{});
}

/// The value is what was typed, even beyond fixed limits, and is told even when it isn't new.
template <class Slider>
void RandomSlider<Slider>::enterInScene() {
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

// What shows

template <class Slider>
void RandomSlider<Slider>::check() {
    RandomComponent::check();
    EXPECT_TRUE(isSame(static_cast<float>(m_slider.value.getValue()), static_cast<float>(m_value)))
        << this->getName() << " is " << m_slider.value.getValue() << " and not " << m_value;
    EXPECT_EQ(m_slider.min.getValue(), m_min) << this->getName();
    EXPECT_EQ(m_slider.max.getValue(), m_max) << this->getName();
    const float position = OpenPosition::get(m_slider);
    EXPECT_TRUE(isSame(position, m_position))
        << this->getName() << " at " << position << " and not " << m_position;
    if (m_panel.hasWindows())
        checkWindows();
    m_sliderWindow = m_slider.getSliderWidget();
    m_editWindow = m_slider.getEditWidget();
    if (m_panel.hasScene())
        checkScene();
}

template <class Slider>
void RandomSlider<Slider>::checkWindows() {
    const HWND edit = m_slider.getEditWidget(), toggle = m_slider.getToggleWidget();
    for (const HWND window : {edit, toggle, m_slider.getSliderWidget(), m_slider.getLabelWidget()})
        this->checkWindowEnabled(window);
    const auto isShown = [](HWND window) { return (GetWindowLongPtrA(window, GWL_STYLE) & WS_VISIBLE) != 0; };
    EXPECT_EQ(LuWin::getWindowText(m_slider.getLabelWidget()).str(), m_windowLabel) << this->getName();
    EXPECT_EQ(LuWin::getWindowText(edit).str(), m_boxText) << this->getName();
    EXPECT_EQ(isShown(edit), m_slider.valueVisible.getValue()) << this->getName();
    EXPECT_EQ(isShown(toggle), m_isToggleShown) << this->getName();
    EXPECT_EQ(SendMessageA(toggle, BM_GETCHECK, 0, 0), m_isChecked ? BST_CHECKED : BST_UNCHECKED)
        << this->getName();
    EXPECT_EQ(m_slider.getValue(), m_thumb) << this->getName();
}

template <class Slider>
void RandomSlider<Slider>::checkScene() {
    const auto getChild = [&](const char* part) {
        return static_cast<LuGroup*>(m_slider.getPart(part, false))->getChild(0);
    };
    const auto getShown = [&](const char* part) {
        return static_cast<LuSwitch*>(m_slider.getPart(part, false))->whichChild.getValue();
    };
    const float length = getFrameLength();
    if (m_isCursorMovedLast)
        moveCursor();
    if (m_isCursorMoved) {
        const float way = ((m_isLengthOld ? m_length : length) - CURSOR_SIZE) * m_cursorPosition;
        m_cursor = std::isfinite(way) ? way : 0;
    }
    m_isCursorMoved = m_isCursorMovedLast = m_isLengthOld = false;
    m_length = length;
    const LvVec3f place = static_cast<LuTranslation*>(getChild("cursorSep"))->translation.getValue();
    EXPECT_EQ(place, LvVec3f(m_cursor, 0, 0)) << this->getName();
    EXPECT_EQ(getShown("checkSwtch"), m_checkSwitch) << this->getName();
    EXPECT_EQ(getShown("edtSwtch"),
              m_slider.valueVisible.getValue() ? LuSwitch::SHOW_ALL : LuSwitch::SHOW_NONE)
        << this->getName();
    EXPECT_EQ(getShown("edtFrmSwtch"), m_isEditing ? 1 : 0) << this->getName();
    EXPECT_EQ(getShownLines(m_slider, "editTextSep"), Lines{m_sceneText}) << this->getName();
    EXPECT_EQ(getShownLines(m_slider, "labelSwitch"), Lines{m_sceneLabel}) << this->getName();
}

// What may be done

template <class Slider>
typename RandomSlider<Slider>::Number RandomSlider<Slider>::chooseNumber() {
    const Number steps = static_cast<Number>(m_panel.getRandom().between(-20, 120));
    return std::is_integral_v<Number> ? steps : steps / 4;
}

template <class Slider>
void RandomSlider<Slider>::addActions(std::vector<RandomAction>& actions) {
    RandomComponent::addActions(actions);
    addFieldActions(actions);
    addUserActions(actions);
}

template <class Slider>
void RandomSlider<Slider>::addFieldActions(std::vector<RandomAction>& actions) {
    const auto add = [&](const char* name, int weight, std::function<void()> run) {
        actions.push_back({std::string(name) + " " + this->getName(), weight, std::move(run)});
    };
    add("value", 3, [this] {
        const Number number = chooseNumber();
        m_slider.value.setValue(number);
        changeValue(number);
    });
    // With fixed limits in the wrong order each build would take the value to the other one.
    add("min", 3, [this] {
        Number number = chooseNumber();
        if (number > m_max && (m_slider.fixedLimits.getValue() || m_panel.getRandom().mostly()))
            number = m_max;
        m_slider.min.setValue(number);
        changeMin(number);
    });
    add("max", 3, [this] {
        Number number = chooseNumber();
        if (number < m_min && (m_slider.fixedLimits.getValue() || m_panel.getRandom().mostly()))
            number = m_min;
        m_slider.max.setValue(number);
        changeMax(number);
    });
    add("fixedLimits", 2,
        [this] { m_slider.fixedLimits.setValue(m_min <= m_max && m_panel.getRandom().flip()); });
    add("continuousTrigger", 2, [this] {
        const bool isOn = m_panel.getRandom().flip();
        m_slider.continuousTrigger.setValue(isOn);
        m_isChecked = isOn;
        m_checkSwitch = isOn ? 1 : 0; // Comes back where it was hidden.
    });
    add("valueVisible", 1, [this] {
        m_slider.valueVisible.setValue(m_panel.getRandom().mostly());
        // A box that is hidden while it has the focus is read before the frame takes its room.
        m_isLengthOld = true;
    });
    add("toggleVisible", 1, [this] {
        const bool isShown = m_panel.getRandom().mostly();
        m_slider.toggleVisible.setValue(isShown);
        m_isToggleShown = isShown;
        m_checkSwitch = !isShown ? LuSwitch::SHOW_NONE : m_slider.continuousTrigger.getValue() ? 1 : 0;
    });
    add("format", 2, [this] {
        static constexpr const char* WHOLE[] = {"%d", "%d", "%4d", "%+d", "%03d%%", "at %d"};
        static constexpr const char* REAL[] = {"%.3f", "%.3f", "%.1f", "%g", "%8.2f", "%.2e", "at %.2f"};
        m_slider.format.setValue(std::is_integral_v<Number> ? m_panel.getRandom().from(WHOLE)
                                                            : m_panel.getRandom().from(REAL));
    });
    add("colors", 1, [this] {
        m_slider.colors.setValues(
            std::vector<LvColor>(static_cast<std::size_t>(m_panel.getRandom().below(4)), LvColor(1, 0, 0)));
    });
    add("shadedColors", 1, [this] { m_slider.shadedColors.setValue(m_panel.getRandom().flip()); });
}

template <class Slider>
void RandomSlider<Slider>::addUserActions(std::vector<RandomAction>& actions) {
    const auto add = [&](const char* name, int weight, std::function<void()> run) {
        actions.push_back({std::string(name) + " " + this->getName(), weight, std::move(run)});
    };
    const std::pair<const char*, int> parts[] = {
        {"frameSep", 4}, {"cursorSep", 3}, {"checkSep", 3}, {"edtSwtch", 3}, {"labelSep", 1}};
    for (const auto& [part, weight] : parts)
        add((std::string("press ") + part + " of").c_str(), weight,
            [this, part = part] { m_panel.pressInScene(m_slider.getPart(part, false)); });
    add("drag the cursor of", 8, [this] {
        if (m_hold != Hold::CURSOR)
            m_panel.pressInScene(m_slider.getPart("cursorSep", false));
        for (int i = m_panel.getRandom().below(4); i > 0 && m_hold == Hold::CURSOR; --i)
            m_panel.moveInScene();
    });
    add("press the thumb or the bar of", 8, [this] { m_panel.pressWindow(m_slider.getSliderWidget()); });
    add("press the toggle of", 4, [this] { m_panel.pressWindow(m_slider.getToggleWidget()); });
    add("press the box of", 5, [this] { m_panel.pressWindow(m_slider.getEditWidget()); });
    add("type in the scene into", 15, [this] {
        using Key = LuKeyboardEvent;
        constexpr Key::Key KEYS[] = {Key::BACKSPACE, Key::BACKSPACE,  Key::BACKSPACE,  Key::RETURN,
                                     Key::RETURN,    Key::NUMBER_0,   Key::NUMBER_1,   Key::NUMBER_4,
                                     Key::NUMBER_9,  Key::PAD_INSERT, Key::PAD_DELETE, Key::PERIOD,
                                     Key::MINUS,     Key::A};
        if (!m_isEditing)
            m_panel.pressInScene(m_slider.getPart("edtSwtch", false));
        for (int i = m_panel.getRandom().below(4); i > 0 && m_isEditing; --i)
            m_panel.keyInScene(m_panel.getRandom().from(KEYS));
    });
    add("type into", 15, [this] {
        constexpr WPARAM KEYS[] = {'0', '1', '4',     '9',     '-',       '.',
                                   'e', 'x', VK_BACK, VK_BACK, VK_RETURN, VK_RETURN};
        const auto isFocused = [this] {
            return m_slider.getEditWidget() && GetFocus() == m_slider.getEditWidget();
        };
        if (!isFocused())
            m_panel.pressWindow(m_slider.getEditWidget());
        for (int i = m_panel.getRandom().below(4); i > 0 && isFocused(); --i)
            m_panel.sendKey(WM_CHAR, m_panel.getRandom().from(KEYS));
    });
    add("move the caret or the thumb of", 8, [this] {
        constexpr WPARAM KEYS[] = {VK_LEFT, VK_RIGHT, VK_HOME, VK_END, VK_DELETE};
        if (isOperated(GetFocus()))
            m_panel.sendKey(WM_KEYDOWN, m_panel.getRandom().from(KEYS));
    });
    add("arrow up at", 5, [this] {
        if (isOperated(GetFocus()))
            m_panel.sendKey(WM_KEYUP, m_panel.getRandom().flip() ? VK_LEFT : VK_RIGHT);
    });
}

template class RandomSlider<LuDialogIntegerSlider>;
template class RandomSlider<LuDialogRealSlider>;
