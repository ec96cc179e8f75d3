// SPDX-License-Identifier: MIT
#include "platform/lumora/actions/LuGetBoundingBoxAction.h"
#include "platform/lumora/actions/LuRayPickAction.h"
#include "platform/lumora/win/LuWin.h"
#include "tests/random/RandomPanel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace {

LvViewportRegion getRegion() { return {SceneHost::VIEWPORT, SceneHost::VIEWPORT}; }

/// Whether the mouse can get at a window: it and all above it show and are enabled.
bool isReached(HWND window) {
    if (!IsWindow(window) || !IsWindowVisible(window))
        return false;
    for (HWND above = window; above && above != GetDesktopWindow(); above = GetAncestor(above, GA_PARENT)) {
        if (!IsWindowEnabled(above))
            return false;
    }
    return true;
}

} // namespace

void RandomPanel::addUserActions() {
    addAction("move in the scene", 25, [this] { moveInScene(); });
    addAction("release in the scene", 120, [this] { releaseInScene(); });
    addAction("press the frame of the panel", 6, [this] {
        const LvVec3f corner = getCorner();
        pressAt({corner.x + 8, -corner.y - 10, corner.z});
    });
    addAction("press the minimise button", 4, [this] { pressInScene(m_dialog.getPart("minSep", false)); });
    addAction("press somewhere in the scene", 6, [this] {
        pressAt({static_cast<float>(m_random.between(-400, 400)),
                 static_cast<float>(m_random.between(-400, 400)), 0});
    });
    addAction("other buttons in the scene", 2, [this] {
        loseGrabber();
        m_scene.press(m_place, LuMouseButtonEvent::BUTTON2);
        m_scene.release(LuMouseButtonEvent::BUTTON3);
    });
    addAction("key in the scene", 3, [this] {
        constexpr LuKeyboardEvent::Key KEYS[] = {LuKeyboardEvent::TAB, LuKeyboardEvent::SPACE,
                                                 LuKeyboardEvent::RETURN, LuKeyboardEvent::A};
        keyInScene(m_random.from(KEYS));
    });
    addAction("move on the window", 15, [this] { moveOnWindow(); });
    addAction("release the window", 80, [this] { releaseWindow(); });
    addAction("key down", 5, [this] {
        constexpr WPARAM KEYS[] = {VK_SPACE, VK_SPACE, VK_TAB, VK_SHIFT, VK_RETURN, 'A'};
        sendKey(WM_KEYDOWN, m_random.from(KEYS));
    });
    addAction("space up", 5, [this] { sendKey(WM_KEYUP, VK_SPACE); });
    addAction("shift up", 2, [this] { sendKey(WM_KEYUP, VK_SHIFT); });
}

LuPath RandomPanel::pick(const LvVec3f& place) {
    LuRayPickAction action(getRegion());
    action.setPoint(m_scene.getPixel(place));
    action.apply(&m_scene.getRoot());
    LuPath path;
    if (const LuPickedPoint* const point = action.getPickedPoint())
        path = *point->getPath();
    path.setNumPublic(-1);
    return path;
}

LvBox3f RandomPanel::getSceneBox(LuNode* node) {
    const LuPath path = m_hasScene && node ? LuPath::find(&m_scene.getRoot(), node) : LuPath();
    LuGetBoundingBoxAction action(getRegion());
    if (path.getLength() > 0)
        action.apply(path);
    return action.getBoundingBox();
}

void RandomPanel::pressInScene(LuNode* node) {
    const LvBox3f box = getSceneBox(node);
    if (!box.isEmpty())
        pressAt((box.min + box.max) * 0.5F);
}

void RandomPanel::keyInScene(LuKeyboardEvent::Key key) {
    loseGrabber();
    const bool isTaken = m_grabber || m_drag != Drag::NONE;
    m_scene.key(key);
    for (const auto& component : m_components) {
        if (m_hasScene && !isTaken && component->isInDialog())
            component->sceneKey(key);
    }
}

void RandomPanel::loseGrabber() {
    if (!m_grabber || m_grabber->isInDialog())
        return;
    m_grabber->sceneGrabLost();
    m_grabber = nullptr;
}

void RandomPanel::pressAt(const LvVec3f& place) {
    m_place = place;
    loseGrabber();
    LuPath path;
    const bool isNew = !m_grabber && m_drag == Drag::NONE;
    if (isNew) {
        path = pick(place);
        const RandomComponent* innermost = nullptr;
        for (int i = path.getLength() - 1; i >= 0; --i) {
            RandomComponent* const component = find(path.getNode(i));
            if (component && !innermost) {
                innermost = component;
                EXPECT_TRUE(component->takesInputInScene()) << component->getName() << " was picked.";
            }
            if (component && component->takesScenePress()) {
                m_grabber = component;
                break;
            }
        }
        if (!m_grabber && path.containsNode(&m_dialog))
            dialogPressed(path);
    }
    EXPECT_EQ(m_scene.press(place), m_grabber || m_drag != Drag::NONE);
    if (isNew && m_grabber)
        m_grabber->scenePressed(path);
}

void RandomPanel::dialogPressed(const LuPath& path) {
    setActive(&m_dialog);
    if (path.containsNode(m_dialog.getPart("minSep", false))) {
        m_drag = Drag::BUTTON;
    } else if (path.containsNode(m_dialog.getPart("frameSep", false))) {
        m_drag = Drag::FRAME;
        m_dragPixel = m_scene.getPixel(m_place);
        m_dragCorner = getCorner();
        if (!m_isMinimized && m_dialog.hideChildren.getValue())
            showChildren(false);
    } else {
        m_drag = Drag::NOTHING;
    }
}

void RandomPanel::moveInScene() {
    loseGrabber();
    const LvVec3f before = getCorner();
    m_place += LvVec3f(static_cast<float>(m_random.between(-30, 30)),
                       static_cast<float>(m_random.between(-30, 30)), 0);
    m_scene.moveTo(m_place);
    if (m_grabber)
        m_grabber->sceneMoved();
    LvVec3f expected = before;
    if (m_drag == Drag::FRAME) {
        const LvVec2i32 way = m_scene.getPixel(m_place) - m_dragPixel;
        expected = m_dragCorner + LvVec3f(static_cast<float>(way.x), static_cast<float>(-way.y), 0);
    }
    const LvVec3f corner = getCorner();
    EXPECT_NEAR(corner.x, expected.x, 0.01);
    EXPECT_NEAR(corner.y, expected.y, 0.01);
    EXPECT_NEAR(corner.z, expected.z, 0.01);
}

void RandomPanel::releaseInScene() {
    loseGrabber();
    const bool isUnderWay = m_grabber || m_drag != Drag::NONE;
    if (m_grabber)
        m_grabber->sceneReleased();
    else
        dialogReleased();
    m_grabber = nullptr;
    m_drag = Drag::NONE;
    EXPECT_EQ(m_scene.release(), isUnderWay);
}

void RandomPanel::dialogReleased() {
    if (m_drag != Drag::BUTTON)
        return;
    // Wherever the release comes.
    m_isMinimized = !m_isMinimized;
    showChildren(!m_isMinimized);
}

void RandomPanel::sendToWindow(HWND window, UINT message, WPARAM wParam, LPARAM lParam, bool isInside) {
    const RandomMessage sent{window, message, wParam,
                             static_cast<SHORT>(LOWORD(static_cast<DWORD_PTR>(lParam))), isInside};
    RandomComponent* operated = nullptr;
    for (const auto& component : m_components) {
        if (component->isOperated(window))
            operated = component.get();
    }
    if (operated)
        operated->windowMessage(sent);
    // Sent and not posted, so that nothing of the desktop's own comes between the expectation and the
    // message.
    SendMessageA(window, message, wParam, lParam);
    // A press takes the focus from another window first, and a release ends with the capture.
    followFocus();
    if (operated)
        operated->windowMessageDone(sent);
    followCapture();
}

void RandomPanel::followFocus() {
    const HWND before = std::exchange(m_focus, GetFocus());
    if (!before || before == m_focus)
        return;
    for (const auto& component : m_components)
        component->focusLeft(before);
}

void RandomPanel::followCapture() {
    const HWND before = std::exchange(m_capture, GetCapture());
    if (!before || before == m_capture)
        return;
    for (const auto& component : m_components)
        component->captureLeft(before);
}

void RandomPanel::sendMouse(HWND window, UINT message, WPARAM buttons, bool isInside) {
    RECT room{};
    GetClientRect(window, &room);
    const int x = isInside ? m_random.below(std::max(static_cast<int>(room.right), 1)) : -5;
    const int y = isInside ? static_cast<int>(room.bottom) / 2 : -5;
    sendToWindow(window, message, buttons, MAKELPARAM(x, y), isInside && room.right > 0 && room.bottom > 0);
}

void RandomPanel::pressWindow(HWND window) {
    if (!m_hasWindows)
        return;
    const HWND captured = GetCapture();
    if (!captured && !isReached(window))
        return;
    m_isMouseInside = true;
    sendMouse(captured ? captured : window, WM_LBUTTONDOWN, MK_LBUTTON, true);
}

void RandomPanel::moveOnWindow() {
    m_isMouseInside = m_random.flip();
    if (const HWND captured = GetCapture())
        sendMouse(captured, WM_MOUSEMOVE, MK_LBUTTON, m_isMouseInside);
}

void RandomPanel::releaseWindow() {
    if (const HWND captured = GetCapture())
        sendMouse(captured, WM_LBUTTONUP, 0, m_isMouseInside);
}

void RandomPanel::sendKey(UINT message, WPARAM key) {
    const HWND focused = GetFocus();
    const bool isOurs = m_hasWindows && focused &&
                        (focused == m_dialog.getBaseWidget() || IsChild(m_dialog.getBaseWidget(), focused));
    if (isOurs)
        sendToWindow(focused, message, key, 1, false);
}
