// SPDX-License-Identifier: MIT
// What groups and kits do when they are drawn.
#include "platform/lumora/gl/LuGLRenderAction.h"
#include "platform/lumora/kits/LuBaseKit.h"

void LuNode::GLRender(LuGLRenderAction* action) { doAction(action); }

void LuSeparator::GLRender(LuGLRenderAction* action) {
    action->traverseCached(this, m_renderCache, [&] { LuGroup::doAction(action); });
}

void LuBaseKit::GLRender(LuGLRenderAction* action) {
    // A single part is a separator and is kept as such.
    if (m_children.getLength() > 1)
        action->traverseCached(this, m_renderCache, [&] { LuBaseKit::doAction(action); });
    else
        doAction(action);
}
