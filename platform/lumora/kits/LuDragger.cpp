// SPDX-License-Identifier: MIT
#include "platform/lumora/kits/LuDragger.h"

#include "platform/lumora/actions/LuHandleEventAction.h"
#include "platform/lumora/actions/LuPickedPoint.h"
#include "platform/lumora/events/LuEvent.h"

#include <array>
#include <utility>

LU_KIT_ABSTRACT_SOURCE(LuInteractionKit, LuBaseKit, "InteractionKit")
LU_KIT_ABSTRACT_SOURCE(LuDragger, LuInteractionKit, "Dragger")

LuInteractionKit::LuInteractionKit() {
    LuKitConstructor constructor(s_class, this, &initClass);
    constructor.part("topSeparator", topSeparator, "Separator", "this", false);
    constructor.part("geomSeparator", geomSeparator, "Separator", "topSeparator", false);
}

bool LuInteractionKit::setPartAsDefault(int part, LvName nodeName, bool onlyIfDefault) {
    LuNode* const node = LuNode::getByName(nodeName);
    if (!node || part <= LuNodekitCatalog::THIS_PART)
        return false;
    if (onlyIfDefault && !getPartField(part)->isDefault())
        return false;
    return setPartByNumber(part, node, true);
}

void LuInteractionKit::setSwitchValue(LuNode* node, int value) {
    if (!node || !node->isOfType(LuSwitch::getClassTypeId()))
        return;
    auto* switchNode = static_cast<LuSwitch*>(node);
    if (switchNode->whichChild.getValue() != value)
        switchNode->whichChild.setValue(value);
}

namespace {

enum Kind : std::size_t { START, MOTION, FINISH };

bool isMotion(const LuEvent* event) {
    return event->isOfType(LuLocation2Event::getClassTypeId()) ||
           event->isOfType(LuTrackerEvent::getClassTypeId());
}

} // namespace

struct LuDragger::Callbacks : LuPooled {
    struct Entry {
        LuDraggerFunction function;
        void* data;
    };
    using Entries = std::vector<Entry, LuPoolAllocator<Entry>>;
    std::array<Entries, 3> lists; ///< By Kind.
};

/// What is known from the press on.
struct LuDragger::Drag {
    LuPath below; ///< From the node below the dragger to the shape. The dragger must not hold itself.
    LvVec3f localStart;
    LvVec3f worldStart;
    LvMatrix localToWorld;
    LvVec2f position;
    LvLine ray;
};

/// One event, for which callbacks are called. The drag may end before they have returned.
struct LuDragger::Occasion {
    LuHandleEventAction* action;
    LuPath pickPath;
    std::shared_ptr<Drag> drag;
};

LuDragger::LuDragger() { LuKitConstructor constructor(s_class, this, &initClass); }

LuDragger::~LuDragger() = default;

void LuDragger::addCallback(std::size_t kind, LuDraggerFunction function, void* data) {
    if (!m_callbacks) {
        m_callbacks = std::make_unique<Callbacks>();
        eventKindsChanged();
    }
    m_callbacks->lists[kind].push_back({function, data});
}

void LuDragger::addStartCallback(LuDraggerFunction function, void* data) {
    addCallback(START, function, data);
}

void LuDragger::addMotionCallback(LuDraggerFunction function, void* data) {
    addCallback(MOTION, function, data);
}

void LuDragger::addFinishCallback(LuDraggerFunction function, void* data) {
    addCallback(FINISH, function, data);
}

const LuDragger::Drag* LuDragger::getDrag() const {
    return m_occasion ? m_occasion->drag.get() : m_drag.get();
}

const LuPath* LuDragger::getPickPath() const { return m_occasion ? &m_occasion->pickPath : nullptr; }

LuHandleEventAction* LuDragger::getHandleEventAction() const {
    return m_occasion ? m_occasion->action : nullptr;
}

const LuEvent* LuDragger::getEvent() const { return m_occasion ? m_occasion->action->getEvent() : nullptr; }

LvVec3f LuDragger::getLocalStartingPoint() const {
    const Drag* const drag = getDrag();
    return drag ? drag->localStart : LvVec3f();
}

LvVec3f LuDragger::getWorldStartingPoint() const {
    const Drag* const drag = getDrag();
    return drag ? drag->worldStart : LvVec3f();
}

LvMatrix LuDragger::getLocalToWorldMatrix() const {
    const Drag* const drag = getDrag();
    return drag ? drag->localToWorld : LvMatrix();
}

LvVec2f LuDragger::getNormalizedLocaterPosition() const {
    const Drag* const drag = getDrag();
    return drag ? drag->position : LvVec2f();
}

LvLine LuDragger::getTrackerRay() const {
    const Drag* const drag = getDrag();
    return drag ? drag->ray : LvLine();
}

void LuDragger::GLRender(LuGLRenderAction* action) { LuInteractionKit::GLRender(action); }

void LuDragger::getBoundingBox(LuGetBoundingBoxAction* action) { LuInteractionKit::getBoundingBox(action); }

LuEventKinds LuDragger::getOwnEventKinds() const {
    return m_callbacks ? LuEventKinds::presses() : LuEventKinds();
}

void LuDragger::handleEvent(LuHandleEventAction* action) {
    if (action->getGrabber() == this) {
        drag(action);
        return;
    }
    // The innermost dragger comes first, and only one takes a press.
    LuInteractionKit::handleEvent(action);
    if (m_callbacks && !m_drag && !action->isHandled() &&
        LuButtonEvent::isDragButton(action->getEvent(), LuButtonEvent::DOWN) && action->isOnPickPath())
        press(action);
}

void LuDragger::press(LuHandleEventAction* action) {
    const LuPath& path = *action->getPickPath();
    m_drag = std::make_shared<Drag>();
    m_drag->worldStart = action->getPickedPoint()->getPoint();
    // The picked shape is seen, so its space and those of its parents have extent on all axes.
    m_drag->localStart = action->getState().model.inverse().transformPoint(m_drag->worldStart);
    bool isBelow = false;
    for (int i = 0; i < path.getLength(); ++i) {
        if (isBelow)
            m_drag->below.append(path.getNode(i), path.getIndex(i));
        isBelow |= path.getNode(i) == this;
    }
    action->setHandled();
    action->setGrabber(this);
    call(action, START, m_drag);
}

void LuDragger::drag(LuHandleEventAction* action) {
    const LuEvent* const event = action->getEvent();
    action->setHandled();
    if (m_drag && isMotion(event)) {
        call(action, MOTION, m_drag);
    } else if (!m_drag || LuButtonEvent::isDragButton(event, LuButtonEvent::UP)) {
        // Released first: what a callback opens needs events of its own.
        const std::shared_ptr<Drag> ended = m_drag;
        action->releaseGrabber();
        if (ended)
            call(action, FINISH, ended);
    }
}

void LuDragger::call(LuHandleEventAction* action, std::size_t kind, std::shared_ptr<Drag> drag) {
    const LuKeepAlive alive(this);
    const LuEvent* const event = action->getEvent();
    const LuViewVolumeElement& view = action->getState().viewVolume;
    drag->localToWorld = action->getState().model;
    drag->position = event->getNormalizedPosition(action->getViewportRegion());
    if (event->getRay())
        drag->ray = *event->getRay();
    else if (view.isSet())
        drag->ray = view.get().projectPointToLine(drag->position);

    Occasion occasion{action, action->getCurrentPath(), drag};
    for (int i = 0; i < drag->below.getLength(); ++i)
        occasion.pickPath.append(drag->below.getNode(i), drag->below.getIndex(i));
    Occasion* const outer = std::exchange(m_occasion, &occasion);
    const Callbacks::Entries& list = m_callbacks->lists[kind];
    const std::size_t count = list.size();
    for (std::size_t i = 0; i < count; ++i) {
        // The drag may have ended meanwhile, by an event within this one.
        if (kind != FINISH && m_drag != drag)
            break;
        const Callbacks::Entry entry = list[i];
        entry.function(entry.data, this);
    }
    m_occasion = outer;
}

void LuDragger::grabEnded() { m_drag.reset(); }
