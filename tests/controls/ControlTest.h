// SPDX-License-Identifier: MIT
#pragma once

#include "layout/LuDialogComponent.h"
#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuText3.h"
#include "platform/lumora/nodes/LuTransforms.h"
#include "platform/lumora/win/LuWin.h"
#include "tests/host/ComponentTest.h"
#include "tests/host/TestHost.h"

#include <string>
#include <tuple>
#include <vector>

/// A test of a control: a window is there to build its windows in.
class ControlTest : public ComponentTest {
protected:
    ControlTest() {
        m_window = CreateWindowExA(0, "STATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, 400, 300, nullptr, nullptr,
                                   LuWin::getInstance(), nullptr);
    }
    ~ControlTest() override { DestroyWindow(m_window); }

    /// Builds the windows of a component of a size; 0 asks for nothing.
    void buildWindows(LuDialogComponent& component, LvVec2i32 size = {0, 0}) const {
        LvVec2i32 position;
        component.buildWidget(m_window, size, position, 1);
    }

    /// Builds in 3D as a viewer does.
    static void build3D(LuDialogComponent& component) { traverse(&component); }

    /// Builds both renditions.
    void buildBoth(LuDialogComponent& component) const {
        buildWindows(component);
        build3D(component);
    }

    HWND m_window = nullptr;
};

/// Where a child window is in its parent: x, y, width, height.
using Place = std::tuple<int, int, int, int>;
inline Place getPlace(HWND child) {
    RECT rect;
    GetWindowRect(child, &rect);
    POINT corner{rect.left, rect.top};
    ScreenToClient(GetParent(child), &corner);
    return {static_cast<int>(corner.x), static_cast<int>(corner.y), static_cast<int>(rect.right - rect.left),
            static_cast<int>(rect.bottom - rect.top)};
}

/// The only window inside a carrier window.
inline HWND getOnlyChild(HWND carrier) {
    const HWND child = GetWindow(carrier, GW_CHILD);
    EXPECT_NE(child, nullptr);
    EXPECT_EQ(GetWindow(child, GW_HWNDNEXT), nullptr);
    return child;
}

inline DWORD getStyle(HWND window) { return static_cast<DWORD>(GetWindowLongPtrA(window, GWL_STYLE)); }
inline DWORD getExtendedStyle(HWND window) {
    return static_cast<DWORD>(GetWindowLongPtrA(window, GWL_EXSTYLE));
}
inline bool isShown(HWND window) { return (getStyle(window) & WS_VISIBLE) != 0; }
inline std::string getText(HWND window) { return LuWin::getWindowText(window).str(); }

/// The node in a part, as the type that it is.
template <class Node = LuGroup>
Node* getPartAs(LuDialogComponent& component, const char* part) {
    return static_cast<Node*>(component.getPart(part, false));
}
inline int getSwitch(LuDialogComponent& component, const char* part) {
    return getPartAs<LuSwitch>(component, part)->whichChild.getValue();
}

/// A child of a part's group, as the type that it is; a negative index counts from the end.
template <class Node>
Node* getChildAs(LuDialogComponent& component, const char* part, int index) {
    LuGroup* const group = getPartAs(component, part);
    LuNode* const child = group->getChild(index < 0 ? group->getNumChildren() + index : index);
    EXPECT_TRUE(child && child->isOfType(Node::getClassTypeId()));
    return static_cast<Node*>(child);
}

/// The node that comes before a part among the children of the component's geometry.
template <class Node>
Node* getBefore(LuDialogComponent& component, const char* part) {
    LuGroup* const geometry = getPartAs(component, "geomSwitch");
    return getChildAs<Node>(component, "geomSwitch", geometry->findChild(component.getPart(part, false)) - 1);
}

/// The box of a text with its properties in front, measured by ourselves.
inline LvBox3f measure(LuNode* properties, LuNode* text) {
    const Held<LuSeparator> root;
    root->addChild(properties);
    root->addChild(text);
    LuGetBoundingBoxAction action;
    action.apply(root.get());
    return action.getBoundingBox();
}

inline std::vector<std::string> getLines(const LuText3& text) {
    std::vector<std::string> lines;
    for (const LvString& line : text.string.getValues())
        lines.push_back(line.str());
    return lines;
}
