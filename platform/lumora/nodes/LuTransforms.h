// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/nodes/LuNode.h"

/// Moves what comes after it.
class LuTranslation : public LuNode {
    LU_NODE_HEADER(LuTranslation)
    LuTranslation();
    LuSFVec3f translation;
    void doAction(LuAction* action) override;
};

/// Stretches what comes after it along the axes.
class LuScale : public LuNode {
    LU_NODE_HEADER(LuScale)
    LuScale();
    LuSFVec3f scaleFactor{LvVec3f(1, 1, 1)};
    void doAction(LuAction* action) override;
};

/// Turns what comes after it.
class LuRotation : public LuNode {
    LU_NODE_HEADER(LuRotation)
    LuRotation();
    LuSFRotation rotation;
    void doAction(LuAction* action) override;
};

/// Scales, rotates and moves what comes after it, about `center`.
class LuTransform : public LuNode {
    LU_NODE_HEADER(LuTransform)
    LuTransform();
    LuSFVec3f translation;
    LuSFRotation rotation;
    LuSFVec3f scaleFactor{LvVec3f(1, 1, 1)};
    LuSFRotation scaleOrientation;
    LuSFVec3f center;

    /// Sets all fields so that the node does what the matrix does; `center` becomes the origin.
    void setMatrix(const LvMatrix& matrix);
    LvMatrix getMatrix() const;
    using LuNode::getMatrix;

    void doAction(LuAction* action) override;
};

/// Transforms what comes after it by any matrix.
class LuMatrixTransform : public LuNode {
    LU_NODE_HEADER(LuMatrixTransform)
    LuMatrixTransform();
    LuSFMatrix matrix;
    void doAction(LuAction* action) override;
};
