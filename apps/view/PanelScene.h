// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvGeometry.h"
#include "platform/lumora/viewer/LuSceneView.h"

#include <memory>
#include <string>

class LuCamera;
class LuSeparator;
class LuTopLevelDialog;

/// A small scene with light, in which dialogs stand side by side as panels.
class PanelScene {
public:
    enum View {
        FRONT, ///< From the front and in parallel; one unit of a panel is one pixel.
        TILTED ///< From the side and above, in perspective.
    };

    explicit PanelScene(const LvVec2i32& size);
    ~PanelScene();
    PanelScene(const PanelScene&) = delete;
    PanelScene& operator=(const PanelScene&) = delete;

    /// Adds a panel to the right of those that are there.
    void add(LuTopLevelDialog* dialog);

    /// Puts the camera before the panels. What is not built yet is built by that.
    void look(View view);

    LuSeparator* getRoot() { return m_root; }
    LuCamera* getCamera() { return m_camera; }
    LvViewportRegion getRegion() const { return LvViewportRegion(m_size); }

    /// Has a view show the scene.
    void showIn(LuSceneView& view);

    /// What is seen, without a window. False, with a message, when there is no OpenGL or the file can't be
    /// written.
    bool writePicture(const std::string& path);

private:
    void useCamera(LuCamera* camera);

    LvVec2i32 m_size;
    LuSeparator* m_root;
    LuCamera* m_camera = nullptr;
    LuSeparator* m_panels;
    float m_right = 0;                      ///< Where the next panel begins.
    std::unique_ptr<LuSceneView> m_picture; ///< Made with the first picture.
};
