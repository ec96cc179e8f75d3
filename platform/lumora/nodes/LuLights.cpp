// SPDX-License-Identifier: MIT
#include "platform/lumora/nodes/LuLights.h"

LU_NODE_SOURCE(LuDirectionalLight, LuNode, "DirectionalLight")
LU_NODE_SOURCE(LuPointLight, LuNode, "PointLight")

LuDirectionalLight::LuDirectionalLight() {
    LuNodeConstructor constructor(s_class, this);
    constructor.field("on", on);
    constructor.field("intensity", intensity);
    constructor.field("color", color);
    constructor.field("direction", direction);
}

LuPointLight::LuPointLight() {
    LuNodeConstructor constructor(s_class, this);
    constructor.field("on", on);
    constructor.field("intensity", intensity);
    constructor.field("color", color);
    constructor.field("location", location);
}
