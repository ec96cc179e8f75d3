// SPDX-License-Identifier: MIT
#include "apps/view/PanelScene.h"

#include "layout/LuTopLevelDialog.h"
#include "platform/lumora/actions/LuGetBoundingBoxAction.h"
#include "platform/lumora/nodes/LuCamera.h"
#include "platform/lumora/nodes/LuLights.h"
#include "platform/lumora/nodes/LuTransforms.h"

#include <cmath>

namespace {

/// Between two panels, and round them all; scene units.
constexpr float GAP = 20;

/// How far the tilted camera stands to the right and above, in units of its distance.
constexpr float TILT_RIGHT = 0.55F;
constexpr float TILT_UP = 0.35F;

/// Between the camera and the nearest thing that it sees in the front view.
constexpr float CLEARANCE = 100;

constexpr float MARGIN = 0.05F;

LvBox3f measure(LuNode* node, const LvViewportRegion& region) {
    LuGetBoundingBoxAction action(region);
    action.apply(node);
    return action.getBoundingBox();
}

const LvColor BACKGROUND(0.16F, 0.18F, 0.22F);
constexpr float HEADLIGHT = 0.75F;

} // namespace

PanelScene::PanelScene(const LvVec2i32& size)
    : m_size(size), m_root(new LuSeparator), m_panels(new LuSeparator) {
    m_root->ref();
    auto* light = new LuDirectionalLight;
    light->direction.setValue({-0.4F, -0.6F, -1.0F});
    light->intensity.setValue(0.35F);
    m_root->addChild(light);
    m_root->addChild(m_panels);
}

PanelScene::~PanelScene() {
    m_picture.reset();
    m_root->unref();
}

void PanelScene::add(LuTopLevelDialog* dialog) {
    auto* place = new LuSeparator;
    auto* translation = new LuTranslation;
    place->addChild(translation);
    place->addChild(dialog);
    m_panels->addChild(place);
    const LvBox3f box = measure(dialog, getRegion());
    if (box.isEmpty())
        return;
    translation->translation.setValue({m_right - box.min.x, -box.max.y, 0});
    m_right += box.max.x - box.min.x + GAP;
}

void PanelScene::useCamera(LuCamera* camera) {
    if (m_camera)
        m_root->replaceChild(m_camera, camera);
    else
        m_root->insertChild(camera, 0);
    m_camera = camera;
}

void PanelScene::look(View view) {
    const LvBox3f box = measure(m_panels, getRegion());
    const LvVec3f center = box.isEmpty() ? LvVec3f() : (box.min + box.max) * 0.5F;
    if (view == FRONT) {
        auto* camera = new LuOrthographicCamera;
        useCamera(camera);
        const float depth = box.isEmpty() ? 1 : box.max.z - box.min.z;
        // On whole pixels, so that what has whole pixels in the panel has them in the picture.
        const auto snap = [](float value, int size) { return std::floor(value) + (size % 2 ? 0.5F : 0.0F); };
        camera->height.setValue(static_cast<float>(m_size.y));
        camera->position.setValue({snap(center.x, m_size.x), snap(center.y, m_size.y),
                                   (box.isEmpty() ? 0 : box.max.z) + CLEARANCE});
        camera->nearDistance.setValue(1);
        camera->farDistance.setValue(depth + CLEARANCE * 2);
        camera->focalDistance.setValue(CLEARANCE + depth * 0.5F);
        return;
    }
    auto* camera = new LuPerspectiveCamera;
    useCamera(camera);
    camera->position.setValue(center + LvVec3f(TILT_RIGHT, TILT_UP, 1));
    camera->pointAt(center);
    if (!box.isEmpty())
        camera->viewBox(box, getRegion().getAspectRatio(), MARGIN);
}

void PanelScene::showIn(LuSceneView& view) {
    view.setBackground(BACKGROUND);
    view.setHeadlight(HEADLIGHT);
    view.setScene(m_root);
}

bool PanelScene::writePicture(const std::string& path) {
    if (!m_picture) {
        m_picture = std::make_unique<LuSceneView>();
        m_picture->setSize(m_size.x, m_size.y);
    }
    // Again each time: the camera may be another one.
    showIn(*m_picture);
    return m_picture->writePicture(path);
}
