// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/nodes/LuNode.h"

/// A light for the shapes after it. Its place and direction are those of the space that it stands in.
class LuDirectionalLight : public LuNode {
    LU_NODE_HEADER(LuDirectionalLight)
    LuDirectionalLight();
    LuSFBool on{true};
    LuSFFloat intensity{1.0F}; ///< From 0 to 1.
    LuSFColor color{LvColor(1, 1, 1)};
    LuSFVec3f direction{LvVec3f(0, 0, -1)}; ///< Where it shines to; any length.
    void GLRender(LuGLRenderAction* action) override;
};

/// A light that shines from a point to all sides, as bright afar as near.
class LuPointLight : public LuNode {
    LU_NODE_HEADER(LuPointLight)
    LuPointLight();
    LuSFBool on{true};
    LuSFFloat intensity{1.0F}; ///< From 0 to 1.
    LuSFColor color{LvColor(1, 1, 1)};
    LuSFVec3f location{LvVec3f(0, 0, 1)};
    void GLRender(LuGLRenderAction* action) override;
};
