// SPDX-License-Identifier: MIT
#include "platform/lumora/nodes/LuGroup.h"
#include "tests/random/RandomPanel.h"
#include "tests/random/RandomSlider.h"

void RandomSlider::addActions(std::vector<RandomAction>& actions) {
    RandomComponent::addActions(actions);
    addNumberActions(actions);
    addFieldActions(actions);
    addUserActions(actions);
}

void RandomSlider::addFieldActions(std::vector<RandomAction>& actions) {
    const auto add = [&](const char* name, int weight, std::function<void()> run) {
        actions.push_back({std::string(name) + " " + getName(), weight, std::move(run)});
    };
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
    add("format", 2, [this] { m_slider.format.setValue(chooseFormat()); });
    add("colors", 1, [this] {
        m_slider.colors.setValues(
            std::vector<LvColor>(static_cast<std::size_t>(m_panel.getRandom().below(4)), LvColor(1, 0, 0)));
    });
    add("shadedColors", 1, [this] { m_slider.shadedColors.setValue(m_panel.getRandom().flip()); });
}

void RandomSlider::addUserActions(std::vector<RandomAction>& actions) {
    const auto add = [&](const char* name, int weight, std::function<void()> run) {
        actions.push_back({std::string(name) + " " + getName(), weight, std::move(run)});
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
