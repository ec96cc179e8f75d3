// SPDX-License-Identifier: MIT
// A model in a scene, and a panel beside it that changes it. The same panel opens as a window, too.
#include "auditors/LuDialogAuditor.h"
#include "controls/LuDialogLabel.h"
#include "controls/LuDialogPushButton.h"
#include "examples/scene-panel/Model.h"
#include "examples/stage/Stage.h"
#include "layout/LuTopLevelDialog.h"

#include <cstdio>

namespace {

class Auditor : public LuDialogAuditor {
public:
    Auditor(Model& model, LuTopLevelDialog* panel)
        : m_model(model), m_panel(panel),
          m_status(static_cast<LuDialogLabel*>(panel->searchForAuditorId("status"))) {}

    void dialogPushButton(LuDialogPushButton* button) override {
        const LvString id = button->auditorID.getValue();
        std::printf("%s\n", id.getString());
        std::fflush(stdout);
        if (id == "turn")
            m_model.turn();
        else if (id == "larger")
            m_model.enlarge();
        else if (id == "lamp")
            m_model.switchLamp();
        else if (id == "skin")
            changeSkin();
        else if (id == "window")
            openWindow();
        if (m_status)
            m_status->label.setValue(m_model.isLampOn() ? "The lamp is lit" : "A lighthouse");
    }

private:
    void changeSkin() {
        m_isDark = !m_isDark;
        LuPanelix::setSkin(m_isDark ? PANELIX_SKINS "/slate" : PANELIX_SKINS "/default");
    }

    /// From now on the panel is both: what happens to one is seen in the other.
    void openWindow() {
        if (!m_panel->getBaseWidget())
            m_panel->buildDialog(nullptr, 0);
        m_panel->show();
    }

    Model& m_model;
    LuTopLevelDialog* m_panel;
    LuDialogLabel* m_status;
    bool m_isDark = false;
};

} // namespace

int main(int argumentCount, char** arguments) {
    LuPanelix::init();
    LuPanelix::setSkin(PANELIX_SKINS "/default");
    LuPanelix* const component = LuPanelix::loadFromFile("examples/scene-panel/scene-panel.lum", "panel");
    bool isGood = component && component->isOfType(LuTopLevelDialog::getClassTypeId());
    if (isGood) {
        auto* const panel = static_cast<LuTopLevelDialog*>(component);
        Stage stage("Scene panel", argumentCount, arguments);
        Model model;
        Auditor auditor(model, panel);
        panel->addAuditor(&auditor);
        stage.add(model.getRoot(), {-170, 0, 0});
        stage.add(panel, {60, 120, 0});
        isGood = stage.run(panel);
        panel->removeAuditor(&auditor);
    }
    if (component)
        component->unref();
    LuPanelix::finish();
    return isGood ? 0 : 1;
}
