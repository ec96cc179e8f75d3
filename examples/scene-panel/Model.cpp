// SPDX-License-Identifier: MIT
#include "examples/scene-panel/Model.h"

#include "platform/lumora/nodes/LuShapes.h"

namespace {

constexpr float TURN = 0.5236F; // 30 degrees
constexpr float GROWTH = 1.15F;
constexpr float LARGEST = 1.6F;

/// A shape with a colour, its middle at a place.
LuNode* makeColored(LuShape* shape, const LvVec3f& place, const LvColor& color) {
    auto* colored = new LuSeparator;
    auto* material = new LuMaterial;
    material->diffuseColor.setValue(color);
    auto* translation = new LuTranslation;
    translation->translation.setValue(place);
    colored->addChild(material);
    colored->addChild(translation);
    colored->addChild(shape);
    return colored;
}

LuNode* makeBox(const LvVec3f& size, const LvVec3f& place, const LvColor& color) {
    auto* cube = new LuCube;
    cube->width.setValue(size.x);
    cube->height.setValue(size.y);
    cube->depth.setValue(size.z);
    return makeColored(cube, place, color);
}

LuNode* makeRoof(const LvVec3f& place, const LvColor& color) {
    auto* cone = new LuCone;
    cone->bottomRadius.setValue(26);
    cone->height.setValue(30);
    return makeColored(cone, place, color);
}

const LvColor WHITE(0.92F, 0.92F, 0.9F);
const LvColor RED(0.75F, 0.16F, 0.14F);
const LvColor ROCK(0.36F, 0.37F, 0.4F);
const LvColor LAMP(0.95F, 0.85F, 0.45F);

} // namespace

Model::Model() : m_root(new LuSeparator), m_transform(new LuTransform), m_lamp(new LuMaterial) {
    m_root->ref();
    m_root->addChild(m_transform);
    m_root->addChild(makeBox({110, 24, 110}, {0, -92, 0}, ROCK));
    // Stripes, each a little narrower than the one below.
    for (int i = 0; i < 5; ++i) {
        const float width = 52.0F - 4.0F * static_cast<float>(i);
        m_root->addChild(makeBox({width, 26, width}, {0, -67.0F + 26.0F * static_cast<float>(i), 0},
                                 i % 2 == 0 ? WHITE : RED));
    }
    m_root->addChild(makeBox({46, 4, 46}, {0, 52, 0}, ROCK));
    auto* lamp = new LuSeparator;
    auto* place = new LuTranslation;
    place->translation.setValue({0, 66, 0});
    auto* ball = new LuSphere;
    ball->radius.setValue(13);
    m_lamp->diffuseColor.setValue(LAMP);
    lamp->addChild(m_lamp);
    lamp->addChild(place);
    lamp->addChild(ball);
    m_root->addChild(lamp);
    m_root->addChild(makeRoof({0, 93, 0}, RED));
    m_transform->rotation.setValue(LvRotation({0, 1, 0}, m_angle));
}

void Model::turn() {
    m_angle += TURN;
    m_transform->rotation.setValue(LvRotation({0, 1, 0}, m_angle));
}

void Model::enlarge() {
    m_size = m_size * GROWTH > LARGEST ? 1 : m_size * GROWTH;
    m_transform->scaleFactor.setValue({m_size, m_size, m_size});
}

void Model::switchLamp() {
    m_isLampOn = !m_isLampOn;
    m_lamp->emissiveColor.setValue(m_isLampOn ? LvColor(0.9F, 0.75F, 0.3F) : LvColor(0, 0, 0));
}
