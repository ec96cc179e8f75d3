// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LuChangeStamp.h"
#include "platform/lumora/nodes/LuNode.h"

/// The surface of the shapes after it, lit by lights.
class LuMaterial : public LuNode {
    LU_NODE_HEADER(LuMaterial)
    LuMaterial();
    LuMFColor ambientColor;  ///< Default 0.2 0.2 0.2.
    LuMFColor diffuseColor;  ///< Default 0.8 0.8 0.8.
    LuMFColor specularColor; ///< Default 0 0 0.
    LuMFColor emissiveColor; ///< Default 0 0 0.
    LuMFFloat shininess;     ///< Default 0.2.
    LuMFFloat transparency;  ///< Default 0.
    void doAction(LuAction* action) override;
    void GLRender(LuGLRenderAction* action) override;
};

/// The diffuse colour alone.
class LuBaseColor : public LuNode {
    LU_NODE_HEADER(LuBaseColor)
    LuBaseColor();
    LuMFColor rgb; ///< Default 0.8 0.8 0.8.
    void doAction(LuAction* action) override;
    void GLRender(LuGLRenderAction* action) override;
};

/// How picks meet the shapes after it.
class LuPickStyle : public LuNode {
    LU_NODE_HEADER(LuPickStyle)
    enum Style { SHAPE = 0, BOUNDING_BOX = 1, UNPICKABLE = 2 };
    LuPickStyle();
    LuSFEnum style{SHAPE};
    void doAction(LuAction* action) override;
};

/// The typeface and size of the texts after it.
class LuFont : public LuNode {
    LU_NODE_HEADER(LuFont)
    LuFont();
    LuSFName name{LvName("Tahoma")}; ///< A family of the system.
    LuSFFloat size{10.0F};           ///< The em size in scene units.
    void doAction(LuAction* action) override;
};

/// The points that the face sets after it use by index.
class LuCoordinate3 : public LuNode {
    LU_NODE_HEADER(LuCoordinate3)
    LuCoordinate3();
    LuMFVec3f point;
    void doAction(LuAction* action) override;
    void GLRender(LuGLRenderAction* action) override;

protected:
    void invalidateCaches() override { m_stamp.invalidate(); }

private:
    LuChangeStamp m_stamp;
};

/// Cuts away the shapes after it on the side that the plane's normal points away from.
class LuClipPlane : public LuNode {
    LU_NODE_HEADER(LuClipPlane)
    LuClipPlane();
    LuSFPlane plane;
    LuSFBool on{true};
    void doAction(LuAction* action) override;
    void rayPick(LuRayPickAction* action) override;
    void GLRender(LuGLRenderAction* action) override;
};
