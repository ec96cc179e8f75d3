// SPDX-License-Identifier: MIT
// Shows a cube in a viewer, and prints a line for what happens to it: "pressed", "key CODE CHARACTER",
// "camera X Y Z" when it has moved, "size WIDTH HEIGHT", "closed". The cube changes its colour when it is
// pressed.
#include "platform/lumora/actions/LuHandleEventAction.h"
#include "platform/lumora/events/LuKeyboardEvent.h"
#include "platform/lumora/io/LuDB.h"
#include "platform/lumora/nodes/LuCamera.h"
#include "platform/lumora/nodes/LuEventCallback.h"
#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuProperties.h"
#include "platform/lumora/nodes/LuShapes.h"
#include "platform/lumora/viewer/LuViewer.h"

#include <cstdio>

namespace {

void press(void* data, LuEventCallback* node) {
    if (!LuMouseButtonEvent::isButtonPressEvent(node->getEvent(), LuMouseButtonEvent::BUTTON1) ||
        !node->getPickedPoint())
        return;
    auto* const material = static_cast<LuMaterial*>(data);
    const bool isRed = material->diffuseColor[0].x > 0;
    material->diffuseColor.setValue(isRed ? LvColor(0, 0, 1) : LvColor(1, 0, 0));
    std::printf("pressed\n");
    node->setHandled();
}

void printKey(void*, LuEventCallback* node) {
    const auto* event = static_cast<const LuKeyboardEvent*>(node->getEvent());
    if (event->getState() == LuButtonEvent::DOWN)
        std::printf("key %x %x\n", static_cast<unsigned>(event->getKey()),
                    static_cast<unsigned>(event->getPrintableCharacter()));
}

LuSeparator* makeScene() {
    auto* const scene = new LuSeparator;
    auto* const material = new LuMaterial;
    auto* const callback = new LuEventCallback;
    material->diffuseColor.setValue(LvColor(1, 0, 0));
    callback->addEventCallback(LuMouseButtonEvent::getClassTypeId(), &press, material);
    callback->addEventCallback(LuKeyboardEvent::getClassTypeId(), &printKey);
    scene->addChild(callback);
    scene->addChild(material);
    scene->addChild(new LuCube);
    return scene;
}

/// Prints what has changed since the last call.
class Reporter {
public:
    void report(const LuSceneView& view) {
        const LvVec3f& camera = view.getCamera()->position.getValue();
        if (!(camera == m_camera))
            std::printf("camera %.2f %.2f %.2f\n", camera.x, camera.y, camera.z);
        m_camera = camera;
        const LvVec2i32& size = view.getRegion().getSize();
        if (!(size == m_size))
            std::printf("size %d %d\n", size.x, size.y);
        m_size = size;
        // Whoever reads the lines wants each when it happens.
        std::fflush(stdout);
    }

private:
    LvVec3f m_camera;
    LvVec2i32 m_size;
};

} // namespace

int main() {
    LuDB::init();
    int status = 1;
    if (const auto viewer = LuViewer::create("Tested", 400, 300)) {
        status = 0;
        viewer->getView().setScene(makeScene());
        viewer->getView().viewAll();
        viewer->show();
        Reporter reporter;
        do
            reporter.report(viewer->getView());
        while (LuViewer::waitForEvents());
        std::printf(viewer->isOpen() ? "ended\n" : "closed\n");
    }
    LuDB::finish();
    return status;
}
