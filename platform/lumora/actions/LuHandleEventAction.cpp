// SPDX-License-Identifier: MIT
#include "platform/lumora/actions/LuHandleEventAction.h"

#include "platform/lumora/actions/LuRayPickAction.h"
#include "platform/lumora/events/LuEvent.h"
#include "platform/lumora/nodes/LuChildList.h"
#include "platform/lumora/nodes/LuNode.h"

#include <algorithm>

namespace {

void ignoreChange(void*, LuSensor*) {}

} // namespace

LuHandleEventAction::LuHandleEventAction(const LvViewportRegion& region)
    : m_region(region), m_grabber(&ignoreChange, nullptr) {
    m_grabber.setPriority(0);
    keepSteps();
}

LuHandleEventAction::~LuHandleEventAction() {
    releaseGrabber();
    setPickRoot(nullptr);
}

void LuHandleEventAction::setEvent(const LuEvent* event) {
    takeEvent(event);
    m_isHandled = false;
}

void LuHandleEventAction::takeEvent(const LuEvent* event) {
    m_event = event;
    m_eventKinds = event ? LuEventKinds::of(*event) : LuEventKinds();
}

void LuHandleEventAction::setPickRoot(LuNode* root) {
    if (root)
        root->ref();
    LuNode* const before = m_pickRoot;
    m_pickRoot = root;
    if (before)
        before->unref();
}

bool LuHandleEventAction::apply(LuNode* root) {
    if (!root || !m_event)
        return false;
    root->ref();
    Delivery delivery;
    delivery.root = root;
    delivery.event = m_event;
    Delivery* const outer = m_delivery;
    m_delivery = &delivery;
    m_isHandled = false;
    // It may have become another since it was set.
    takeEvent(m_event);
    if (LuNode* const grabber = getGrabber())
        applyToGrabber(grabber);
    else
        LuAction::apply(root);
    m_delivery = outer;
    if (outer) {
        // An event within an event: the outer one goes on as if nothing had been.
        takeEvent(outer->event);
        m_isHandled = outer->isHandled;
    }
    // The paths hold nodes, which may be the last to do so.
    delivery.pick.reset();
    delivery.pickPath.truncate(0);
    root->unref();
    return delivery.isHandled;
}

void LuHandleEventAction::applyToGrabber(LuNode* grabber) {
    const LuKeepAlive alive(grabber);
    LuPath path;
    if (m_grabSteps.empty()) {
        LuAction::apply(grabber);
    } else if (makeGrabPath(grabber, path)) {
        m_delivery->isToGrabber = true;
        LuAction::apply(path);
    } else {
        releaseGrabber();
        LuAction::apply(m_delivery->root);
    }
}

bool LuHandleEventAction::makeGrabPath(LuNode* grabber, LuPath& path) const {
    // From the top down each node is held by the one before it. The pointers that were kept are compared
    // only, until that is known.
    LuNode* node = m_delivery->root;
    if (m_grabSteps.front().node != node)
        return false;
    path.append(node, -1);
    for (std::size_t i = 1; i < m_grabSteps.size(); ++i) {
        const LuChildList* const children = node->getChildren();
        if (!children)
            return false;
        const Step& step = m_grabSteps[i];
        const int index = children->get(step.index) == step.node ? step.index : children->find(step.node);
        if (index < 0)
            return false;
        node = children->get(index);
        path.append(node, index);
    }
    return node == grabber;
}

void LuHandleEventAction::visit(LuNode* node) {
    // Callbacks may take the node, or those above it, out of the scene.
    const LuKeepAlive alive(node);
    const PathCode code = getPathCode();
    const bool isOnlyPassed =
        m_delivery->isToGrabber && (code == PathCode::IN_PATH || code == PathCode::OFF_PATH);
    if (isOnlyPassed)
        node->doAction(this);
    else
        node->handleEvent(this);
}

bool LuHandleEventAction::canPassOver(LuEventKinds heardBelow) {
    // The grabber gets everything, whatever it listens to.
    if (getGrabber())
        return false;
    const LuEventKinds common = heardBelow & m_eventKinds;
    if (common.isNone())
        return true;
    // Picking is left to the first who asks: by its camera, and after what callbacks before it have done.
    const bool isPickOfSameRoot = m_delivery->pick && (!m_pickRoot || m_pickRoot == m_delivery->root);
    return common == LuEventKinds::presses() && isPickOfSameRoot && !isOnPickPath();
}

void LuHandleEventAction::setHandled() {
    m_isHandled = true;
    if (m_delivery)
        m_delivery->isHandled = true;
    setTerminated();
}

LuNode* LuHandleEventAction::getGrabber() const { return static_cast<LuNode*>(m_grabber.getAttachedNode()); }

void LuHandleEventAction::setGrabber(LuNode* node) {
    LuNode* const before = getGrabber();
    if (before == node)
        return;
    const LuKeepAlive aliveBefore(before);
    m_grabSteps.clear();
    if (node) {
        m_grabber.attach(node);
        const auto& steps = getCurrentSteps();
        const auto isNode = [node](const Step& step) { return step.node == node; };
        const auto found = std::find_if(steps.begin(), steps.end(), isNode);
        if (found != steps.end())
            m_grabSteps.assign(steps.begin(), found + 1);
    } else {
        m_grabber.detach();
    }
    if (before)
        before->grabEnded();
}

void LuHandleEventAction::pick() {
    m_delivery->pick = std::make_unique<LuRayPickAction>(m_region);
    LuRayPickAction& action = *m_delivery->pick;
    if (const LvLine* ray = m_delivery->event->getRay())
        action.setRay(*ray);
    else
        action.setPoint(m_delivery->event->getPosition());
    if (m_state.viewVolume.isSet())
        action.setViewVolume(m_state.viewVolume.get());
    action.apply(m_pickRoot ? m_pickRoot : m_delivery->root);
    if (const LuPickedPoint* point = action.getPickedPoint()) {
        m_delivery->pickPath = *point->getPath();
        m_delivery->pickPath.setNumPublic(-1);
    }
}

const LuPickedPoint* LuHandleEventAction::getPickedPoint() {
    if (!m_delivery)
        return nullptr;
    if (!m_delivery->pick)
        pick();
    return m_delivery->pick->getPickedPoint();
}

const LuPath* LuHandleEventAction::getPickPath() {
    return getPickedPoint() ? &m_delivery->pickPath : nullptr;
}

bool LuHandleEventAction::isOnPickPath() {
    const LuPath* const path = getPickPath();
    const Steps& steps = getCurrentSteps();
    if (!path || steps.empty())
        return false;
    // From another root the places can't be told apart.
    if (m_pickRoot && m_pickRoot != m_delivery->root)
        return path->containsNode(steps.back().node);
    // The last node first: it is what nearly always differs.
    for (int i = static_cast<int>(steps.size()) - 1; i >= 0; --i) {
        if (path->getNode(i) != steps[static_cast<std::size_t>(i)].node)
            return false;
    }
    return true;
}
