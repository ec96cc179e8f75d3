// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuProperties.h"
#include "platform/lumora/nodes/LuTransforms.h"

/// A lighthouse of a few shapes that can be turned, enlarged and lit.
class Model {
public:
    Model();
    ~Model() { m_root->unref(); }
    Model(const Model&) = delete;
    Model& operator=(const Model&) = delete;

    LuNode* getRoot() { return m_root; }

    void turn();
    void enlarge();
    void switchLamp();
    bool isLampOn() const { return m_isLampOn; }

private:
    LuSeparator* m_root;
    LuTransform* m_transform;
    LuMaterial* m_lamp = nullptr;
    float m_angle = 0.4F;
    float m_size = 1;
    bool m_isLampOn = false;
};
