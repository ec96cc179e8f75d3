// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/actions/LuHandleEventAction.h"
#include "platform/lumora/base/LuPicture.h"
#include "platform/lumora/viewer/LuNavigator.h"

#include <memory>

class LuCamera;
class LuGLContext;
class LuGroup;
class LuOffscreenRenderer;
class LuSeparator;

/// A scene as a user sees it and works with it: a camera and a light for it, its picture, and where its
/// events go. It knows no window; LuViewer puts one round it, and so can a program with windows of its own.
///
/// Sizes and positions are in pixels; positions count from the lower left corner, as those of events do. For
/// the one thread that traverses the scene.
class LuSceneView {
public:
    /// Draws with a context of its own, which it makes for its first picture.
    LuSceneView();

    /// Draws with this one.
    explicit LuSceneView(std::unique_ptr<LuGLContext> context);
    ~LuSceneView();
    LuSceneView(const LuSceneView&) = delete;
    LuSceneView& operator=(const LuSceneView&) = delete;

    /// What is shown; it is held with a reference. Null shows nothing.
    void setScene(LuNode* scene);
    LuNode* getScene() const { return m_scene; }

    /// From where it is seen; held with a reference. A perspective camera at the start, and again for null. A
    /// scene that has a camera when it is set, or at the call of this operation, is seen by that one.
    void setCamera(LuCamera* camera);

    /// The camera that the scene is seen by.
    LuCamera* getCamera() const;

    /// Moves the camera along its line of sight until the whole scene is seen. `margin` is left free on each
    /// side, as a share of the whole.
    void viewAll(float margin = 0.05F);

    /// 640 by 480 at the start. A size without an area shows nothing until it has one.
    void setSize(int width, int height);
    const LvViewportRegion& getRegion() const { return m_region; }

    /// A dark grey at the start.
    void setBackground(const LvColor& color);

    /// Brightness of the light from the eye: 1 at the start, 0 for none. The scene may have lights besides.
    void setHeadlight(float brightness);

    /// Samples a pixel; 4 at the start.
    void setSamples(int samples);

    /// Whether what the scene leaves over of events moves the camera; it does at the start.
    void setNavigable(bool isNavigable);

    /// Whether the camera's near and far distance follow the scene; they do at the start.
    void setDepthFitted(bool isFitted) { m_isDepthFitted = isFitted; }

    /// Brings an event to the scene and, when nothing in there handles it, to the navigator. True when
    /// somebody has handled it.
    bool handleEvent(const LuEvent& event);

    /// What brings events to the scene; for who wants to grab them.
    LuHandleEventAction& getEventAction() { return m_eventAction; }

    /// True when the picture is not, or may not be, what would be drawn now: a field in the scene or the
    /// camera has been set, or something of this view. It compares a few numbers.
    bool needsRedraw() const;

    /// Fires the sensors that wait (LuDelayQueueSensor::processQueue), and draws. False, with a message,
    /// where there is no OpenGL, or no picture of this size.
    bool draw();

    /// Copies what was drawn to the window of the context that was handed in, where the program swaps it to
    /// the front.
    void copyToWindow();

    /// What would be drawn now. Empty, with a message, where there is no OpenGL.
    LuPicture takePicture();

    /// Writes it to a PNG file; `path` is UTF-8. False, with a message, when it can't.
    bool writePicture(const std::string& path);

private:
    std::uint64_t getStamp() const;
    void findSceneCamera();
    void arrange();

    LuSeparator* m_root;               ///< Above camera and scene.
    LuNode* m_scene = nullptr;         ///< Held.
    LuCamera* m_camera;                ///< Used while the scene has none. Held.
    LuCamera* m_sceneCamera = nullptr; ///< Held.
    LvViewportRegion m_region{640, 480};
    LvColor m_background{0.15F, 0.16F, 0.18F};
    float m_headlight = 1;
    int m_samples = 4;
    bool m_isNavigable = true;
    bool m_isDepthFitted = true;
    bool m_hasChanged = true;
    std::uint64_t m_drawnStamp = 0;
    LuHandleEventAction m_eventAction;
    LuNavigator m_navigator;
    std::unique_ptr<LuOffscreenRenderer> m_renderer; ///< Null before the first picture, without a context.
};
