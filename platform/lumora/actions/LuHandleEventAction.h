// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/actions/LuAction.h"
#include "platform/lumora/base/LvGeometry.h"
#include "platform/lumora/events/LuEventKinds.h"
#include "platform/lumora/sensors/LuSensor.h"

#include <memory>

class LuEvent;
class LuPickedPoint;
class LuRayPickAction;

/// Brings an event to the nodes of a scene, children before their draggers, until one has handled it. Parts
/// of the scene in which nobody listens to it are left out.
///
/// A node may grab: then it alone gets all events, wherever the pointer is, until it releases them. A grabber
/// that ends, or is no longer below the node that the action is applied to, loses them.
///
/// Nodes and callbacks may change the scene, end any node of it, and apply this action again for another
/// event.
class LuHandleEventAction : public LuAction {
public:
    explicit LuHandleEventAction(const LvViewportRegion& region = {});
    ~LuHandleEventAction() override;

    const LvViewportRegion& getViewportRegion() const { return m_region; }
    void setViewportRegion(const LvViewportRegion& region) { m_region = region; }
    const LvViewportRegion* getViewport() const override { return &m_region; }

    /// The event for the next apply. It stays the caller's, and must live until that has returned.
    void setEvent(const LuEvent* event);
    const LuEvent* getEvent() const { return m_event; }

    /// Brings the event to the nodes from `root` on, which should have the camera below it. Nothing happens
    /// without an event. True when some node has handled it.
    bool apply(LuNode* root);

    /// A node that has handled the event says so: no other gets it.
    void setHandled();

    /// Of the event that is being brought, or, outside of apply, of the last one.
    bool isHandled() const { return m_isHandled; }

    /// The node that gets all events from now on; the grabber before loses them. Usually called by the node
    /// itself, while it handles an event. One that is set from elsewhere gets its events without a traversal:
    /// their state tells neither camera nor place. Null releases.
    void setGrabber(LuNode* node);
    void releaseGrabber() { setGrabber(nullptr); }

    /// Null when there is none.
    LuNode* getGrabber() const;

    /// What is picked from, instead of the node that the action is applied to; null for that one.
    void setPickRoot(LuNode* root);
    LuNode* getPickRoot() const { return m_pickRoot; }

    /// What lies under the event's position, or on its ray. It is looked for at the first call for each
    /// event. Null when there is nothing, and outside of apply.
    const LuPickedPoint* getPickedPoint();

    /// The whole way to that shape, of which kits may have hidden a part from users; null when there is none.
    const LuPath* getPickPath();

    /// True when that way leads through the current node, in the place where it is being visited.
    bool isOnPickPath();

    /// Asked by a current node whose children set nothing beyond it: true when the event is nothing to those
    /// below, who listen to these kinds.
    bool canPassOver(LuEventKinds heardBelow);

    /// The way to the current node.
    LuPath getCurrentPath() const { return makePath(getCurrentSteps()); }

protected:
    void visit(LuNode* node) override;

private:
    /// What belongs to the event that is being brought.
    struct Delivery {
        LuNode* root = nullptr;
        const LuEvent* event = nullptr;
        std::unique_ptr<LuRayPickAction> pick;
        LuPath pickPath;
        bool isHandled = false;
        bool isToGrabber = false;
    };

    void takeEvent(const LuEvent* event);
    void applyToGrabber(LuNode* grabber);
    bool makeGrabPath(LuNode* grabber, LuPath& path) const;
    void pick();

    LvViewportRegion m_region;
    const LuEvent* m_event = nullptr;
    LuEventKinds m_eventKinds;
    bool m_isHandled = false;
    LuNode* m_pickRoot = nullptr;
    Delivery* m_delivery = nullptr; ///< Null outside of apply.

    LuNodeSensor m_grabber; ///< Attached to the grabber: it forgets one that ends.
    Steps m_grabSteps;      ///< The way to it. Its nodes are not held, they may have ended.
};
