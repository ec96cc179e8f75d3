// SPDX-License-Identifier: MIT
#include "controls/LuDialogIntegerSlider.h"

#include "auditors/LuDialogIntegerSliderAuditor.h"
#include "core/LuTruncate.h"

#include <algorithm>
#include <cmath>

LU_KIT_SOURCE(LuDialogIntegerSlider, LuDialogSlider, "DialogIntegerSlider")

namespace {

constexpr const char* DEFAULT_FORMAT = "%d";

/// The number of characters of a number, the sign counted; very small for 0, of which the logarithm says
/// nothing.
int getNumCharacters(std::int32_t number) {
    const float sign = number < 0 ? 1.0F : 0.0F;
    return luAddSize(luTruncate(sign + std::log10(std::fabs(static_cast<float>(number)))), 1);
}

} // namespace

LuDialogIntegerSlider::LuDialogIntegerSlider() : LuNumberSlider(LuNumberFormat::WHOLE, DEFAULT_FORMAT) {
    LuKitConstructor constructor(s_class, this, &initClass);
    constructor.field("min", min);
    constructor.field("max", max);
    constructor.field("value", value);
    format.setValue(DEFAULT_FORMAT);
    format.setDefault(true);
}

void LuDialogIntegerSlider::addAuditor(LuDialogIntegerSliderAuditor* auditor) {
    LuPanelix::addAuditor(auditor);
}

void LuDialogIntegerSlider::removeAuditor(LuDialogIntegerSliderAuditor* auditor) {
    LuPanelix::removeAuditor(auditor);
}

void LuDialogIntegerSlider::applyDlgCptAuditor() {
    fireAuditors<LuDialogIntegerSlider>(&LuDialogIntegerSliderAuditor::dialogIntegerSlider);
}

/// What rounds to the nearest number, as a share of the range; infinite without a range.
float LuDialogIntegerSlider::getHalfStep() const { return 1.0F / ((getMax() - getMin()) * 2.0F); }

std::int32_t LuDialogIntegerSlider::getNumber() const {
    const float range = getMax() - getMin();
    return getNumberAfter(range == 0 ? 0 : range * (m_normalizedValue + getHalfStep()));
}

/// On purpose not asking for equal limits: then this is no number, and the box shows what comes of that.
std::int32_t LuDialogIntegerSlider::getNumberInEdit() const {
    return getNumberAfter((getMax() - getMin()) * (m_normalizedValue + getHalfStep()));
}

/// Truncates `steps` and adds `min`. No number at all counts as the lowest, to which `min` is added as
/// processors add; any other sum ends at the ends of the type.
std::int32_t LuDialogIntegerSlider::getNumberAfter(float steps) const {
    constexpr float MOST_STEPS = 8e9F;
    if (std::isnan(steps))
        return static_cast<std::int32_t>(0x80000000U + static_cast<std::uint32_t>(min.getValue()));
    return luAddSize(min.getValue(), static_cast<std::int64_t>(std::clamp(steps, -MOST_STEPS, MOST_STEPS)));
}

std::int32_t LuDialogIntegerSlider::getWidestNumber() const {
    const int count = std::max(getNumCharacters(min.getValue()), getNumCharacters(max.getValue()));
    return luTruncate(std::pow(10.0, count)) - 1;
}

std::int32_t LuDialogIntegerSlider::readNumber(const LvString& text, bool& rewrites) const {
    const std::int32_t number = text.toInt();
    rewrites = text.toFloat() - static_cast<float>(number) != 0;
    return number;
}

bool LuDialogIntegerSlider::addKey(const LuKeyboardEvent& event, LvString& text) const {
    const char32_t character = getTypedCharacter(event);
    if (character < '0' || character > '9')
        return false;
    text += static_cast<char>(character);
    return true;
}
