// SPDX-License-Identifier: MIT
#include "controls/LuDialogRealSlider.h"

#include "auditors/LuDialogRealSliderAuditor.h"
#include "controls/LuNumericFilter.h"
#include "core/LuTruncate.h"
#include "platform/lumora/events/LuKeyboardEvent.h"

#include <algorithm>
#include <cmath>
#include <limits>

LU_KIT_SOURCE(LuDialogRealSlider, LuDialogSlider, "DialogRealSlider")

namespace {

constexpr const char* DEFAULT_FORMAT = "%.3f";

/// The last character that an entry may get: the end of Latin-1.
constexpr char32_t LAST_CHARACTER = 255;

/// The number of digits before the point. A sign counts as one more in value, not in digits. Very small for
/// what is between -1 and 1, of which the logarithm says nothing.
int getNumDigits(float number) {
    const float whole = std::trunc(number);
    const float sign = whole < 0 ? 1.0F : 0.0F;
    return luAddSize(luTruncate(std::log10(sign + std::fabs(whole))), 1);
}

double getPowerOfTen(int exponent) {
    double power = 1;
    double square = 10;
    for (; exponent > 0; exponent /= 2) {
        if (exponent % 2)
            power *= square;
        square *= square;
    }
    return power;
}

} // namespace

LuDialogRealSlider::LuDialogRealSlider() : LuNumberSlider(LuNumberFormat::REAL, DEFAULT_FORMAT) {
    LuKitConstructor constructor(s_class, this, &initClass);
    constructor.field("min", min);
    constructor.field("max", max);
    constructor.field("value", value);
    format.setValue(DEFAULT_FORMAT);
    format.setDefault(true);
}

void LuDialogRealSlider::addAuditor(LuDialogRealSliderAuditor* auditor) { LuPanelix::addAuditor(auditor); }

void LuDialogRealSlider::removeAuditor(LuDialogRealSliderAuditor* auditor) {
    LuPanelix::removeAuditor(auditor);
}

void LuDialogRealSlider::applyDlgCptAuditor() {
    fireAuditors<LuDialogRealSlider>(&LuDialogRealSliderAuditor::dialogRealSlider);
}

float LuDialogRealSlider::getNumber() const { return getMin() + (getMax() - getMin()) * m_normalizedValue; }

float LuDialogRealSlider::getWidestNumber() const {
    constexpr double HIGHEST = std::numeric_limits<float>::max();
    const int count = std::max(getNumDigits(min.getValue()), getNumDigits(max.getValue()));
    const double power = getPowerOfTen(std::abs(count));
    const double widest = (count < 0 ? 1 / power : power) - 1 + 0.01;
    return static_cast<float>(std::min(widest, HIGHEST));
}

float LuDialogRealSlider::readNumber(const LvString& text, bool&) const { return text.toFloat(); }

bool LuDialogRealSlider::addKey(const LuKeyboardEvent& event, LvString& text) const {
    const char32_t character =
        event.getKey() == LuKeyboardEvent::PAD_DELETE ? U'.' : getTypedCharacter(event);
    std::string entry = text.str();
    if (character >= 1 && character <= LAST_CHARACTER)
        LuUtf8::append(entry, character);
    if (!luIsNumber(entry))
        return false;
    text = entry;
    return true;
}
