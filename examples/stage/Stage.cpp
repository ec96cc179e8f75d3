// SPDX-License-Identifier: MIT
#include "examples/stage/Stage.h"

#include "apps/play/ScenePlayer.h"
#include "layout/LuTopLevelDialog.h"
#include "platform/lumora/base/LuDebugError.h"
#include "platform/lumora/nodes/LuCamera.h"
#include "platform/lumora/nodes/LuTransforms.h"
#include "platform/lumora/viewer/LuViewer.h"

#include <filesystem>
#include <string_view>

namespace {

/// From the front, with a pixel for each unit of the panel; or from the side, in perspective.
LuCamera* makeCamera(bool isTilted) {
    if (!isTilted) {
        auto* camera = new LuOrthographicCamera;
        camera->height.setValue(Stage::HEIGHT);
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

/// Writes a picture for a play file, in a folder that needn't be there yet.
bool takePicture(LuSceneView& view, const std::string& path) {
    const std::filesystem::path folder = std::filesystem::u8path(path).parent_path();
    std::error_code ignored; // The writing tells.
    if (!folder.empty())
        std::filesystem::create_directories(folder, ignored);
    return view.writePicture(path);
}

} // namespace

Stage::Stage(const char* title, int argumentCount, char** arguments)
    : m_title(title), m_scene(new LuSeparator) {
    bool isTilted = false;
    for (int i = 1; i < argumentCount; ++i) {
        const std::string_view word = arguments[i];
        if (word == "tilted")
            isTilted = true;
        else if (word == "--play" && i + 1 < argumentCount)
            m_playFile = arguments[++i];
        else
            m_misunderstood = word;
    }
    m_scene->ref();
    m_camera = makeCamera(isTilted);
    m_scene->addChild(m_camera);
}

Stage::~Stage() { m_scene->unref(); }

void Stage::add(LuNode* node, const LvVec3f& at) {
    auto* separator = new LuSeparator;
    auto* translation = new LuTranslation;
    translation->translation.setValue(at);
    separator->addChild(translation);
    separator->addChild(node);
    m_scene->addChild(separator);
}

bool Stage::run(LuTopLevelDialog* panel) {
    if (!m_misunderstood.empty()) {
        LuDebugError::post("Stage", "\"%s\" is not understood; the arguments are: [tilted] [--play FILE]",
                           m_misunderstood.c_str());
        return false;
    }
    if (!m_playFile.empty())
        return play(panel);
    const auto viewer = LuViewer::create(m_title.c_str(), WIDTH, HEIGHT);
    if (!viewer)
        return false;
    viewer->getView().setScene(m_scene);
    viewer->show();
    while (viewer->isOpen() && LuViewer::waitForEvents()) {
    }
    return true;
}

bool Stage::play(LuTopLevelDialog* panel) {
    LuSceneView view;
    view.setScene(m_scene);
    view.setSize(WIDTH, HEIGHT);
    std::vector<PlayStep> steps;
    ScenePlayer player(m_scene, m_camera, LvViewportRegion(WIDTH, HEIGHT),
                       [&view](const std::string& path) { return takePicture(view, path); });
    return loadPlayScript(m_playFile, steps) && player.play(steps, {panel});
}
