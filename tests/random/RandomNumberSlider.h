// SPDX-License-Identifier: MIT
#pragma once

#include "controls/LuDialogIntegerSlider.h"
#include "controls/LuDialogRealSlider.h"
#include "tests/random/RandomSlider.h"

/// What is expected of an integer or a real slider: its range, and the number in it.
template <class Slider>
class RandomNumberSlider : public RandomSlider {
public:
    using Number = std::remove_cvref_t<decltype(std::declval<Slider&>().value.getValue())>;

    RandomNumberSlider(RandomPanel& panel, Slider& slider)
        : RandomSlider(panel, slider), m_numberSlider(slider), m_min(slider.min.getValue()),
          m_max(slider.max.getValue()), m_value(slider.value.getValue()) {}

    void laidOut() override;
    void check() override;

protected:
    std::string printInBox() const override;
    std::string printInScene() const override;
    void takeNumber() override;
    bool takeEntry(const LvString& text) override;
    void enterInScene() override;
    void typeKey(LuKeyboardEvent::Key key, std::string& text) override;
    void addNumberActions(std::vector<RandomAction>& actions) override;
    const char* chooseFormat() override;

private:
    Number chooseNumber();
    float getPositionOfValue() const;
    Number getNumber() const;
    void expectCall();

    // Changes of the fields, by the program or by what the user enters
    void changeMin(Number min);
    void changeMax(Number max);
    void changeValue(Number value);
    bool limit(Number& number);
    bool stretchLimits(Number number);

    Slider& m_numberSlider;
    Number m_min, m_max, m_value;
    bool m_isValueWatched = true; ///< A change of the value by a field reaches the slider.
};

extern template class RandomNumberSlider<LuDialogIntegerSlider>;
extern template class RandomNumberSlider<LuDialogRealSlider>;
