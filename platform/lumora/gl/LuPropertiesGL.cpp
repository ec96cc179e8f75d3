// SPDX-License-Identifier: MIT
// What properties, lights and cameras do when a scene is drawn.
#include "platform/lumora/gl/LuGLRenderAction.h"
#include "platform/lumora/nodes/LuCamera.h"
#include "platform/lumora/nodes/LuLights.h"
#include "platform/lumora/nodes/LuProperties.h"

#include <algorithm>

namespace {

/// The first value of a list, where there is one that counts.
template <class Value, class Field>
void take(Value& value, const Field& field) {
    if (field.getNum() > 0 && !field.isIgnored())
        value = field[0];
}

LvColor dim(const LvColor& color, float intensity) {
    return {color.x * intensity, color.y * intensity, color.z * intensity};
}

} // namespace

void LuMaterial::GLRender(LuGLRenderAction* action) {
    LuSurface& surface = action->changeSurface();
    take(surface.ambient, ambientColor);
    take(surface.diffuse, diffuseColor);
    take(surface.specular, specularColor);
    take(surface.emissive, emissiveColor);
    take(surface.shininess, shininess);
    take(surface.transparency, transparency);
    surface.transparency = std::clamp(surface.transparency, 0.0F, 1.0F);
}

void LuBaseColor::GLRender(LuGLRenderAction* action) { take(action->changeSurface().diffuse, rgb); }

void LuCoordinate3::GLRender(LuGLRenderAction* action) {
    doAction(action);
    action->setCoordinates(m_stamp.get());
}

void LuCamera::GLRender(LuGLRenderAction* action) { action->addCamera(this); }

void LuClipPlane::GLRender(LuGLRenderAction* action) {
    if (on.getValue())
        action->addClipPlane(plane.getValue());
}

void LuDirectionalLight::GLRender(LuGLRenderAction* action) {
    if (on.getValue())
        action->addLight({false, direction.getValue(), dim(color.getValue(), intensity.getValue())});
}

void LuPointLight::GLRender(LuGLRenderAction* action) {
    if (on.getValue())
        action->addLight({true, location.getValue(), dim(color.getValue(), intensity.getValue())});
}
