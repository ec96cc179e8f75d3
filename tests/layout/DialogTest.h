// SPDX-License-Identifier: MIT
#pragma once

#include "layout/LuColumnDialog.h"
#include "layout/LuRowDialog.h"
#include "layout/LuTopLevelDialog.h"
#include "platform/lumora/actions/LuWriteAction.h"
#include "platform/lumora/io/LuDB.h"
#include "platform/lumora/io/LuInput.h"
#include "platform/lumora/nodes/LuGroup.h"
#include "tests/host/ComponentTest.h"
#include "tests/host/TestHost.h"

#include <cstring>
#include <memory>

/// A test of a dialog, in windows and in 3D.
class DialogTest : public ComponentTest {
protected:
    DialogTest() : m_wasHeadless(LuDBImpl::m_isHeadless) { LuDBImpl::m_isHeadless = false; }
    ~DialogTest() override { LuDBImpl::m_isHeadless = m_wasHeadless; }

    /// Reads components from text and gives the first; the fixture holds them.
    template <class Component>
    Component* read(const char* text) {
        LuInput in;
        in.setBuffer(text, std::strlen(text));
        LuSeparator* const root = LuDB::readAll(&in);
        if (!root)
            return nullptr;
        m_file = std::make_unique<Held<LuSeparator>>(root);
        LuNode* const first = root->getChild(0);
        return first && first->isOfType(Component::getClassTypeId()) ? static_cast<Component*>(first)
                                                                     : nullptr;
    }

    static std::string write(LuNode* node) {
        LuWriteAction action;
        action.apply(node);
        return action.getOutput()->getBuffer();
    }

    static void buildIn3D(LuNode* node) { traverse(node); }

    /// A window's place in its parent, or on the screen.
    static RECT getPlace(HWND window) {
        RECT rect{};
        GetWindowRect(window, &rect);
        POINT corner{rect.left, rect.top};
        if (HWND parent = GetAncestor(window, GA_PARENT); parent && parent != GetDesktopWindow())
            ScreenToClient(parent, &corner);
        return {corner.x, corner.y, corner.x + rect.right - rect.left, corner.y + rect.bottom - rect.top};
    }

    static LvVec2i32 getExtent(HWND window) {
        const RECT place = getPlace(window);
        return {static_cast<int>(place.right - place.left), static_cast<int>(place.bottom - place.top)};
    }

    static LvVec2i32 getCorner(HWND window) {
        const RECT place = getPlace(window);
        return {static_cast<int>(place.left), static_cast<int>(place.top)};
    }

private:
    bool m_wasHeadless;
    std::unique_ptr<Held<LuSeparator>> m_file;
};

inline void PrintTo(const LvVec2i32& value, std::ostream* out) {
    *out << "(" << value.x << ", " << value.y << ")";
}
inline void PrintTo(const LvVec3f& value, std::ostream* out) {
    *out << "(" << value.x << ", " << value.y << ", " << value.z << ")";
}

/// What getSize answers.
template <class Component>
LuSizes getSizesOf(Component* component) {
    LuSizes sizes;
    component->getSize(sizes.size, sizes.minSize, sizes.maxSize);
    return sizes;
}

/// Builds a component by itself.
inline void build(LuPanelix* component, HWND parent, int is2D, LvVec2i32 size = {}, LvVec2i32 position = {}) {
    component->buildWidget(parent, size, position, is2D);
}
