// SPDX-License-Identifier: MIT
#pragma once

#include "controls/LuDialogSlider.h"
#include "core/LuNumberFormat.h"
#include "core/LuTextSize.h"

#include <cstdint>

/// What the integer slider and the real slider share: a range, the number at the position in it, and how each
/// follows the other. Like LuControl it is no type of its own.
///
/// The limits are not put in order: `min` above `max` is a range that runs the other way. All arithmetic is
/// done in floats of 32 bits.
template <class Number>
class LuNumberSlider : public LuDialogSlider {
public:
    LuSFValue<Number> min{Number{0}};
    LuSFValue<Number> max{Number{1}};
    LuSFValue<Number> value{Number{0}};

    /// The value as `format` prints it.
    LvString getValueText() { return print(value.getValue()); }

    /// Tells the auditors of a new value.
    virtual void applyDlgCptAuditor() = 0;

    void buildWidget(HWND parent, LvVec2i32& size, LvVec2i32& position, int is2D) override;
    void updateFromSensor(LuSensor* sensor) override;
    void setValueFromEdit(int from2D) override;
    void setValueFromSlider(float position) override { m_normalizedValue = position; }
    void changeSliderValue() override;
    void setValue() override;
    void changeEditValue() override;
    int computeEditZoneWidth() override;
    void change3DEditValue() override;
    void computeNewSliderEditValue(const LuKeyboardEvent* event) override;
    void finish3DEditing() override;

protected:
    LuNumberSlider(LuNumberFormat::Kind kind, const char* defaultFormat);
    ~LuNumberSlider() override;

    /// The number at the position.
    virtual Number getNumber() const = 0;

    /// The number that the edit box shows for the position.
    virtual Number getNumberInEdit() const = 0;

    /// The number with as many digits as the limits have at most, for which the texts have room.
    virtual Number getWidestNumber() const = 0;

    /// Reads what the user has entered; `rewrites` becomes true where the text says more than the number.
    virtual Number readNumber(const LvString& text, bool& rewrites) const = 0;

    /// Adds what a key types to a text in 3D. False when the key has no place there.
    virtual bool addKey(const LuKeyboardEvent& event, LvString& text) const = 0;

    /// The character that a key types into a number; 0 when it types none. Of the keys beside the characters
    /// those of the keypad count that are digits while Num Lock is on.
    static char32_t getTypedCharacter(const LuKeyboardEvent& event);

    float getMin() const { return static_cast<float>(min.getValue()); }
    float getMax() const { return static_cast<float>(max.getValue()); }

private:
    float getPositionOfValue() const;
    void limitValue();
    void takeNumber(const LvString& text);
    bool limitNumber(Number& number);
    bool stretchLimits(Number number);
    void acceptTyped(const LvString& text);
    void changeText3D(const LvString& text);
    void showValue();
    LvString print(Number number);

    LuFieldSensor* m_minSensor = nullptr;
    LuFieldSensor* m_maxSensor = nullptr;
    LuFieldSensor* m_valueSensor = nullptr;
    LuNumberFormat m_numberFormat;
    LuTextSize m_widestText;

    /// On purpose one for all of the class, and for the life of the process: only the first slider that is
    /// built keeps its limits and limits its value.
    static bool s_isFirstBuild;
};

extern template class LuNumberSlider<std::int32_t>;
extern template class LuNumberSlider<float>;
