// SPDX-License-Identifier: MIT
// A model in a scene, and a panel beside it that changes it. The same panel opens as a window, too.
#include "apps/play/ScenePlayer.h"
#include "auditors/LuDialogAuditor.h"
#include "controls/LuDialogLabel.h"
#include "controls/LuDialogPushButton.h"
#include "examples/scene-panel/Model.h"
#include "layout/LuTopLevelDialog.h"
#include "platform/lumora/nodes/LuCamera.h"
#include "platform/lumora/viewer/LuViewer.h"

#include <cmath>
#include <cstdio>
#include <cstring>

namespace {

constexpr int WIDTH = 800;
constexpr int HEIGHT = 500;

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

LuNode* place(LuNode* node, const LvVec3f& at) {
    auto* separator = new LuSeparator;
    auto* translation = new LuTranslation;
    translation->translation.setValue(at);
    separator->addChild(translation);
    separator->addChild(node);
    return separator;
}

/// From the front, with a pixel for each unit of the panel; or from the side, in perspective.
LuCamera* makeCamera(bool isTilted) {
    if (!isTilted) {
        auto* camera = new LuOrthographicCamera;
        camera->height.setValue(HEIGHT);
        camera->position.setValue({0, 0, 500});
        camera->farDistance.setValue(1000);
        camera->focalDistance.setValue(500);
        return camera;
    }
    auto* camera = new LuPerspectiveCamera;
    camera->position.setValue({330, 210, 520});
    camera->pointAt({0, -10, 0});
    camera->farDistance.setValue(2000);
    camera->focalDistance.setValue(600);
    return camera;
}

/// Plays a file to the scene without a window.
bool play(const char* file, LuSceneView& view, LuNode* scene, LuCamera* camera, LuTopLevelDialog* panel) {
    std::vector<PlayStep> steps;
    view.setSize(WIDTH, HEIGHT);
    ScenePlayer player(scene, camera, LvViewportRegion(WIDTH, HEIGHT),
                       [&view](const std::string& path) { return view.writePicture(path); });
    return loadPlayScript(file, steps) && player.play(steps, {panel});
}

/// example-scene-panel [tilted] [--play FILE]
struct Arguments {
    Arguments(int count, char** words) {
        for (int i = 1; i < count; ++i) {
            if (std::strcmp(words[i], "tilted") == 0)
                isTilted = true;
            else if (std::strcmp(words[i], "--play") == 0 && i + 1 < count)
                playFile = words[++i];
        }
    }
    bool isTilted = false;
    const char* playFile = nullptr;
};

bool run(const Arguments& arguments, LuTopLevelDialog* panel) {
    Model model;
    Auditor auditor(model, panel);
    panel->addAuditor(&auditor);
    auto* scene = new LuSeparator;
    scene->ref();
    LuCamera* const camera = makeCamera(arguments.isTilted);
    scene->addChild(camera);
    scene->addChild(place(model.getRoot(), {-170, 0, 0}));
    scene->addChild(place(panel, {60, 120, 0}));

    bool isGood = true;
    if (arguments.playFile) {
        LuSceneView view;
        view.setScene(scene);
        isGood = play(arguments.playFile, view, scene, camera, panel);
    } else if (const auto viewer = LuViewer::create("Scene panel", WIDTH, HEIGHT)) {
        viewer->getView().setScene(scene);
        viewer->show();
        while (viewer->isOpen() && LuViewer::waitForEvents()) {
        }
    } else {
        isGood = false;
    }
    panel->removeAuditor(&auditor);
    scene->unref();
    return isGood;
}

} // namespace

int main(int argumentCount, char** arguments) {
    LuPanelix::init();
    LuPanelix::setSkin(PANELIX_SKINS "/default");
    LuPanelix* const component = LuPanelix::loadFromFile("examples/scene-panel/scene-panel.lum", "panel");
    bool isGood = component && component->isOfType(LuTopLevelDialog::getClassTypeId());
    if (isGood)
        isGood = run(Arguments(argumentCount, arguments), static_cast<LuTopLevelDialog*>(component));
    if (component)
        component->unref();
    LuPanelix::finish();
    return isGood ? 0 : 1;
}
