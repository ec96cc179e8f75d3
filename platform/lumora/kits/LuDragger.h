// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/actions/LuPath.h"
#include "platform/lumora/base/LvGeometry.h"
#include "platform/lumora/base/LvMatrix.h"
#include "platform/lumora/kits/LuBaseKit.h"

#include <memory>

class LuEvent;
class LuHandleEventAction;

/// A kit whose parts may be filled from named nodes, the skins.
class LuInteractionKit : public LuBaseKit {
    LU_KIT_ABSTRACT_HEADER(LuInteractionKit)

    /// Makes a part hold the node of a DEF name, with the default flag of the part set. With `onlyIfDefault`
    /// a part that the user has filled stays. False when there is no such node, or the part stays as it is.
    bool setPartAsDefault(LvName part, LvName nodeName, bool onlyIfDefault = true) {
        return setPartAsDefault(getPartNumber(part), nodeName, onlyIfDefault);
    }

    /// Sets what a LuSwitch shows, when it is one and shows something else.
    static void setSwitchValue(LuNode* node, int value);

protected:
    LuInteractionKit();

    /// The same for a part of this kit by its field.
    bool setPartAsDefault(const LuSFNode& part, LvName nodeName, bool onlyIfDefault = true) {
        return setPartAsDefault(getPartNumber(part), nodeName, onlyIfDefault);
    }

    LuSFNode topSeparator;  ///< Holds all that the kit shows.
    LuSFNode geomSeparator; ///< Where a dragger's geometry hangs.

private:
    bool setPartAsDefault(int part, LvName nodeName, bool onlyIfDefault);
};

class LuDragger;
using LuDraggerFunction = void (*)(void* data, LuDragger* dragger);

/// A kit that is pressed, dragged and released. Those who listen are called in the order in which they came.
///
/// A press of mouse button 1, or of a tracker's button, on geometry below the dragger calls the start
/// callbacks, and the dragger takes all events until the button is released: each motion calls the motion
/// callbacks, the release the finish callbacks. Of several draggers about the geometry the innermost takes
/// the press; one without callbacks takes none. A dragger that ends, or leaves the scene, while it is pressed
/// hears nothing more.
///
/// The operations from getPickPath on tell of the event that a callback is called for. Outside of callbacks
/// there is none, and they give what their comments say.
class LuDragger : public LuInteractionKit {
    LU_KIT_ABSTRACT_HEADER(LuDragger)

    ~LuDragger() override;

    /// A callback may add more, which are called from the next event on.
    void addStartCallback(LuDraggerFunction function, void* data);
    void addMotionCallback(LuDraggerFunction function, void* data);
    void addFinishCallback(LuDraggerFunction function, void* data);

    /// True from the press to the release, whose callbacks come after that.
    bool isActive() const { return m_drag != nullptr; }

    /// The way from the scene's root through this dragger to the shape that was pressed. Null outside of
    /// callbacks.
    const LuPath* getPickPath() const;

    /// The event, and the action that brings it: its state holds what the camera sees. Null outside of
    /// callbacks.
    const LuEvent* getEvent() const;
    LuHandleEventAction* getHandleEventAction() const;

    /// Where the shape was pressed, in the dragger's own space, which is that of its parents, and in the
    /// scene's. They stay as they were at the press; the origin when the dragger isn't active.
    LvVec3f getLocalStartingPoint() const;
    LvVec3f getWorldStartingPoint() const;

    /// From the dragger's space to the scene's, as the last event found it.
    LvMatrix getLocalToWorldMatrix() const;

    /// The pointer's position of the last event, from (0, 0) at the lower left of the viewport to (1, 1);
    /// beyond that when the pointer has left it.
    LvVec2f getNormalizedLocaterPosition() const;

    /// The ray of the last event in the scene's space: a tracker's own, otherwise that under the pointer.
    LvLine getTrackerRay() const;

    void GLRender(LuGLRenderAction* action) override;
    void getBoundingBox(LuGetBoundingBoxAction* action) override;
    void handleEvent(LuHandleEventAction* action) override;

    void grabEnded() override;

protected:
    LuDragger();

    using EventKindsOf = LuDragger;
    LuEventKinds getOwnEventKinds() const override;

private:
    struct Callbacks;
    struct Drag;
    struct Occasion;

    void addCallback(std::size_t kind, LuDraggerFunction function, void* data);
    const Drag* getDrag() const;
    void press(LuHandleEventAction* action);
    void drag(LuHandleEventAction* action);
    void call(LuHandleEventAction* action, std::size_t kind, std::shared_ptr<Drag> drag);

    std::unique_ptr<Callbacks> m_callbacks; ///< Made with the first of them.
    std::shared_ptr<Drag> m_drag;           ///< From the press to the release.
    Occasion* m_occasion = nullptr;         ///< While callbacks are called.
};
