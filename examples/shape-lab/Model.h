// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuProperties.h"
#include "platform/lumora/nodes/LuTransforms.h"

/// A tower of plates, each turned a little against the one below, whose
/// measures the program sets one by one.
class Model {
public:
    /// The measures. The tower keeps its height whatever the number of plates.
    struct Shape {
        float size = 1;       ///< 1 is 200 units high.
        float hue = 200;      ///< Degrees on the circle of colours.
        float twist = 90;     ///< Degrees from the lowest plate to the topmost one.
        int plates = 12;      ///< At least 1.
        bool isRound = false; ///< Balls instead of plates.
        bool hasBase = true;  ///< Stands on a slab.
    };

    Model();
    ~Model() { m_root->unref(); }
    Model(const Model&) = delete;
    Model& operator=(const Model&) = delete;

    LuNode* getRoot() { return m_root; }
    const Shape& getShape() const { return m_shape; }

    /// Nodes come and go only with another number or kind of plates.
    void setShape(const Shape& shape);

private:
    void makePlates();
    void placePlates();

    Shape m_shape;
    LuSeparator* m_root;
    LuTransform* m_transform;
    LuSwitch* m_base;
    LuGroup* m_plates;
};
