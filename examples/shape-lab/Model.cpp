// SPDX-License-Identifier: MIT
#include "examples/shape-lab/Model.h"

#include "platform/lumora/nodes/LuShapes.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr float HEIGHT = 200;
constexpr float WIDTH = 90;

/// A colour by its place on the circle of colours, in degrees, as light as
/// paper and as strong as paint.
LvColor getColor(float hue, float lightness) {
    const auto channel = [hue, lightness](float offset) {
        const float place = std::fmod(hue + offset, 360.0F) / 60;
        const float strength = std::clamp(std::abs(place - 3) - 1, 0.0F, 1.0F);
        return lightness * (0.25F + 0.65F * strength);
    };
    return {channel(0), channel(240), channel(120)};
}

/// The children of each plate's separator.
enum Part { TRANSFORM, MATERIAL };

} // namespace

Model::Model()
    : m_root(new LuSeparator), m_transform(new LuTransform), m_base(new LuSwitch), m_plates(new LuGroup) {
    m_root->ref();
    m_root->addChild(m_transform);
    m_root->addChild(m_base);
    m_root->addChild(m_plates);

    auto* slab = new LuSeparator;
    auto* color = new LuMaterial;
    color->diffuseColor.setValue({0.36F, 0.37F, 0.4F});
    auto* place = new LuTranslation;
    place->translation.setValue({0, -HEIGHT / 2 - 6, 0});
    auto* cube = new LuCube;
    cube->width.setValue(WIDTH * 1.5F);
    cube->height.setValue(10);
    cube->depth.setValue(WIDTH * 1.5F);
    slab->addChild(color);
    slab->addChild(place);
    slab->addChild(cube);
    m_base->addChild(slab);
    makePlates();
    setShape(m_shape);
}

void Model::setShape(const Shape& shape) {
    const bool isOther = shape.plates != m_shape.plates || shape.isRound != m_shape.isRound;
    m_shape = shape;
    if (isOther)
        makePlates();
    placePlates();
    m_transform->scaleFactor.setValue({shape.size, shape.size, shape.size});
    m_base->whichChild.setValue(shape.hasBase ? LuSwitch::SHOW_ALL : LuSwitch::SHOW_NONE);
}

void Model::makePlates() {
    m_plates->removeAllChildren();
    for (int i = 0; i < m_shape.plates; ++i) {
        auto* plate = new LuSeparator;
        plate->addChild(new LuTransform);
        plate->addChild(new LuMaterial);
        if (m_shape.isRound) {
            plate->addChild(new LuSphere);
        } else {
            plate->addChild(new LuCube);
        }
        m_plates->addChild(plate);
    }
}

void Model::placePlates() {
    const auto count = static_cast<float>(m_shape.plates);
    const float twist = m_shape.twist * std::numbers::pi_v<float> / 180;
    for (int i = 0; i < m_shape.plates; ++i) {
        // From 0 for the lowest plate to 1 for the topmost one.
        const float place = m_shape.plates > 1 ? static_cast<float>(i) / (count - 1) : 0;
        const float width = WIDTH * (1 - 0.55F * place);
        auto* const plate = static_cast<LuGroup*>(m_plates->getChild(i));
        auto* const transform = static_cast<LuTransform*>(plate->getChild(TRANSFORM));
        transform->translation.setValue({0, HEIGHT * ((static_cast<float>(i) + 0.5F) / count - 0.5F), 0});
        transform->rotation.setValue(LvRotation({0, 1, 0}, 0.4F + twist * place));
        // Both shapes are 2 units wide. Slabs leave a gap between them, balls run into each other.
        const float thickness = HEIGHT / count * (m_shape.isRound ? 1.2F : 0.45F);
        transform->scaleFactor.setValue({width / 2, thickness, width / 2});
        auto* const material = static_cast<LuMaterial*>(plate->getChild(MATERIAL));
        material->diffuseColor.setValue(getColor(m_shape.hue + 50 * place, 0.7F + 0.3F * place));
    }
}
