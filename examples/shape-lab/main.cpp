// SPDX-License-Identifier: MIT
// A model whose measures follow the sliders and check boxes of a panel. The
// same panel opens as a window, too.
#include "auditors/LuDialogAuditor.h"
#include "controls/LuDialogCheckBox.h"
#include "controls/LuDialogIntegerSlider.h"
#include "controls/LuDialogPushButton.h"
#include "controls/LuDialogRealSlider.h"
#include "examples/shape-lab/Model.h"
#include "examples/stage/Stage.h"
#include "layout/LuTopLevelDialog.h"

#include <algorithm>
#include <cstdio>

namespace {

class Auditor : public LuDialogAuditor {
public:
    Auditor(Model& model, LuTopLevelDialog* panel)
        : m_model(model), m_panel(panel), m_shape(model.getShape()) {}

    void dialogRealSlider(LuDialogRealSlider* slider) override {
        const LvString id = slider->auditorID.getValue();
        const float value = slider->value.getValue();
        std::printf("%s %g\n", id.getString(), static_cast<double>(value));
        if (id == "size")
            m_shape.size = value;
        else if (id == "hue")
            m_shape.hue = value;
        else if (id == "twist")
            m_shape.twist = value;
        show();
    }

    void dialogIntegerSlider(LuDialogIntegerSlider* slider) override {
        std::printf("%s %d\n", slider->auditorID.getValue().getString(), slider->value.getValue());
        // What is typed into the scene's box may lie beyond the limits.
        m_shape.plates = std::clamp(slider->value.getValue(), 1, 1000);
        show();
    }

    void dialogCheckBox(LuDialogCheckBox* box) override {
        const LvString id = box->auditorID.getValue();
        std::printf("%s %s\n", id.getString(), box->state.getValue() ? "on" : "off");
        (id == "round" ? m_shape.isRound : m_shape.hasBase) = box->state.getValue();
        show();
    }

    /// From now on the panel is both: what happens to one is seen in the other.
    void dialogPushButton(LuDialogPushButton*) override {
        std::printf("window\n");
        if (!m_panel->getBaseWidget())
            m_panel->buildDialog(nullptr, 0);
        m_panel->show();
        show();
    }

private:
    void show() {
        std::fflush(stdout);
        m_model.setShape(m_shape);
    }

    Model& m_model;
    LuTopLevelDialog* m_panel;
    Model::Shape m_shape;
};

} // namespace

int main(int argumentCount, char** arguments) {
    LuPanelix::init();
    LuPanelix::setSkin(PANELIX_SKINS "/slate");
    LuPanelix* const component = LuPanelix::loadFromFile("examples/shape-lab/shape-lab.lum", "panel");
    bool isGood = component && component->isOfType(LuTopLevelDialog::getClassTypeId());
    if (isGood) {
        auto* const panel = static_cast<LuTopLevelDialog*>(component);
        Stage stage("Shape laboratory", argumentCount, arguments);
        Model model;
        Auditor auditor(model, panel);
        panel->addAuditor(&auditor);
        stage.add(model.getRoot(), {-190, 0, 0});
        stage.add(panel, {10, 145, 0});
        isGood = stage.run(panel);
        panel->removeAuditor(&auditor);
    }
    if (component)
        component->unref();
    LuPanelix::finish();
    return isGood ? 0 : 1;
}
