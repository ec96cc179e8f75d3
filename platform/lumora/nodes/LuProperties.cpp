// SPDX-License-Identifier: MIT
#include "platform/lumora/nodes/LuProperties.h"

#include "platform/lumora/actions/LuRayPickAction.h"

LU_NODE_SOURCE(LuMaterial, LuNode, "Material")
LU_NODE_SOURCE(LuBaseColor, LuNode, "BaseColor")
LU_NODE_SOURCE(LuPickStyle, LuNode, "PickStyle")
LU_NODE_SOURCE(LuFont, LuNode, "Font")
LU_NODE_SOURCE(LuCoordinate3, LuNode, "Coordinate3")
LU_NODE_SOURCE(LuClipPlane, LuNode, "ClipPlane")

LuMaterial::LuMaterial()
    : ambientColor(LvColor(0.2F, 0.2F, 0.2F)), diffuseColor(LvColor(0.8F, 0.8F, 0.8F)),
      specularColor(LvColor(0, 0, 0)), emissiveColor(LvColor(0, 0, 0)), shininess(0.2F), transparency(0.0F) {
    LuNodeConstructor constructor(s_class, this);
    constructor.field("ambientColor", ambientColor);
    constructor.field("diffuseColor", diffuseColor);
    constructor.field("specularColor", specularColor);
    constructor.field("emissiveColor", emissiveColor);
    constructor.field("shininess", shininess);
    constructor.field("transparency", transparency);
}

void LuMaterial::doAction(LuAction*) {}

LuBaseColor::LuBaseColor() : rgb(LvColor(0.8F, 0.8F, 0.8F)) {
    LuNodeConstructor constructor(s_class, this);
    constructor.field("rgb", rgb);
}

void LuBaseColor::doAction(LuAction*) {}

LuPickStyle::LuPickStyle() {
    LuNodeConstructor constructor(s_class, this);
    constructor.enumField("style", style, "Style",
                          {{"SHAPE", SHAPE}, {"BOUNDING_BOX", BOUNDING_BOX}, {"UNPICKABLE", UNPICKABLE}});
}

void LuPickStyle::doAction(LuAction* action) { action->getState().pickStyle = style.getValue(); }

LuFont::LuFont() {
    LuNodeConstructor constructor(s_class, this);
    constructor.field("name", name);
    constructor.field("size", size);
}

void LuFont::doAction(LuAction* action) {
    LuTraversalState& state = action->getState();
    state.fontName = name.getValue();
    state.fontSize = size.getValue();
    state.fontDepth = action->getSeparatorDepth();
}

LuCoordinate3::LuCoordinate3() {
    LuNodeConstructor constructor(s_class, this);
    constructor.field("point", point);
}

void LuCoordinate3::doAction(LuAction* action) {
    LuTraversalState& state = action->getState();
    state.coordinates = this;
    state.coordinateDepth = action->getSeparatorDepth();
}

LuClipPlane::LuClipPlane() {
    LuNodeConstructor constructor(s_class, this);
    constructor.field("plane", plane);
    constructor.field("on", on);
}

void LuClipPlane::doAction(LuAction*) {}

void LuClipPlane::rayPick(LuRayPickAction* action) {
    if (on.getValue())
        action->clip(plane.getValue());
}
