// SPDX-License-Identifier: MIT
#include "tests/random/RandomComponent.h"

#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuProperties.h"
#include "tests/random/RandomPanel.h"

#include <gtest/gtest.h>

const char* const RANDOM_TEXTS[7] = {"",     "I", "Press", "A text", "two\\nlines", "Gr\xC3\xBC\xC3\x9F",
                                     "a\\tb"};

namespace {

constexpr int SIZES[] = {0, 0, 1, 25, 80, 200, 333};
constexpr int ROOMY_SIZES[] = {0, 80, 200};

/// The first child of that type among the geometry of a component, or null.
template <class Node>
const Node* findGeometry(LuDialogComponent& component) {
    const auto* const geometry = static_cast<LuGroup*>(component.getPart("geomSwitch", false));
    for (int i = 0; geometry && i < geometry->getNumChildren(); ++i) {
        if (geometry->getChild(i)->isOfType(Node::getClassTypeId()))
            return static_cast<const Node*>(geometry->getChild(i));
    }
    return nullptr;
}

} // namespace

RandomComponent::RandomComponent(RandomPanel& panel, LuDialogComponent& component)
    : m_panel(panel), m_component(component) {
    m_component.ref();
}

RandomComponent::~RandomComponent() { m_component.unref(); }

void RandomComponent::addActions(std::vector<RandomAction>& actions) {
    const auto add = [&](const char* name, int weight, std::function<void()> run) {
        actions.push_back({std::string(name) + " " + getName(), weight, std::move(run)});
    };
    add("enable", 2, [this] {
        m_component.enable.setValue(m_panel.getRandom().mostly());
        if (seesCommonFields())
            enableChanged();
    });
    add("label", 2, [this] {
        m_component.label.setValue(m_panel.getRandom().from(RANDOM_TEXTS));
        if (seesCommonFields())
            labelChanged();
    });
    add("labelAlignment", 1, [this] {
        m_component.labelAlignment.setValue(m_panel.getRandom().below(3));
        if (seesCommonFields())
            alignmentChanged();
    });
    add("labelVisibility", 1,
        [this] { m_component.labelVisibility.setValue(!m_component.labelVisibility.getValue()); });
    add("edgeStyle", 1, [this] { m_component.edgeStyle.setValue(m_panel.getRandom().below(3)); });
    add("width", 1, [this] { m_component.width.setValue(m_panel.getRandom().from(SIZES)); });
    add("height", 1, [this] { m_component.height.setValue(m_panel.getRandom().from(SIZES)); });
    add("minWidth", 1, [this] { m_component.minWidth.setValue(m_panel.getRandom().from(ROOMY_SIZES)); });
    add("maxHeight", 1, [this] { m_component.maxHeight.setValue(m_panel.getRandom().from(ROOMY_SIZES)); });
    add("fixedWidth", 1, [this] { m_component.fixedWidth.setValue(!m_component.fixedWidth.getValue()); });
    add("press in the scene", 2, [this] { m_panel.pressInScene(&m_component); });
    add("press the window of", 1, [this] { m_panel.pressWindow(m_component.getWidget()); });
    add("show3D", 2, [this] {
        if (!m_panel.hasScene())
            return;
        const bool isShown = m_panel.getRandom().mostly();
        m_component.show3D(isShown);
        shownInScene(isShown);
    });
}

void RandomComponent::sceneBuilt() {
    m_isSceneBuilt = true;
    // Until a container says something, or the field changes.
    m_isEnabledInScene = true;
    m_isShownInScene = true;
}

void RandomComponent::enableChanged() {
    m_isEnabledInWindows = isEnableSet();
    m_isEnabledInScene = isEnableSet();
}

void RandomComponent::checkWindowEnabled(HWND window) const {
    ASSERT_TRUE(IsWindow(window));
    EXPECT_EQ(IsWindowEnabled(window) != 0, m_isEnabledInWindows) << "window of " << getName();
}

void RandomComponent::check() {
    if (m_panel.hasWindows())
        checkWindowEnabled(m_component.getWidget());
    if (!m_panel.hasScene())
        return;
    const auto* const pickStyle = findGeometry<LuPickStyle>(m_component);
    const auto* const material = findGeometry<LuMaterial>(m_component);
    ASSERT_TRUE(pickStyle && material) << getName();
    EXPECT_EQ(pickStyle->style.getValue() != LuPickStyle::UNPICKABLE, m_isEnabledInScene) << getName();
    EXPECT_EQ(material->emissiveColor[0] == LvColor(), m_isEnabledInScene) << getName();
    const auto* const geometry = static_cast<LuSwitch*>(m_component.getPart("geomSwitch", false));
    EXPECT_EQ(geometry->whichChild.getValue(), m_isShownInScene ? LuSwitch::SHOW_ALL : LuSwitch::SHOW_NONE)
        << getName();
}
