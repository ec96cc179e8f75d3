// SPDX-License-Identifier: MIT
#include "platform/lumora/nodes/LuTransforms.h"

#include "platform/lumora/actions/LuAction.h"

LU_NODE_SOURCE(LuTranslation, LuNode, "Translation")
LU_NODE_SOURCE(LuScale, LuNode, "Scale")
LU_NODE_SOURCE(LuRotation, LuNode, "Rotation")
LU_NODE_SOURCE(LuTransform, LuNode, "Transform")
LU_NODE_SOURCE(LuMatrixTransform, LuNode, "MatrixTransform")

namespace {

void multiply(LuAction* action, const LvMatrix& matrix) {
    LvMatrix& model = action->getState().model;
    model = model * matrix;
}

} // namespace

LuTranslation::LuTranslation() {
    LuNodeConstructor constructor(s_class, this);
    constructor.field("translation", translation);
}

void LuTranslation::doAction(LuAction* action) {
    action->getState().model.translateBy(translation.getValue());
}

LuScale::LuScale() {
    LuNodeConstructor constructor(s_class, this);
    constructor.field("scaleFactor", scaleFactor);
}

void LuScale::doAction(LuAction* action) { action->getState().model.scaleBy(scaleFactor.getValue()); }

LuRotation::LuRotation() {
    LuNodeConstructor constructor(s_class, this);
    constructor.field("rotation", rotation);
}

void LuRotation::doAction(LuAction* action) { multiply(action, LvMatrix::rotation(rotation.getValue())); }

LuTransform::LuTransform() {
    LuNodeConstructor constructor(s_class, this);
    constructor.field("translation", translation);
    constructor.field("rotation", rotation);
    constructor.field("scaleFactor", scaleFactor);
    constructor.field("scaleOrientation", scaleOrientation);
    constructor.field("center", center);
}

void LuTransform::setMatrix(const LvMatrix& matrix) {
    LvVec3f newTranslation, newScale;
    LvRotation newRotation, newOrientation;
    matrix.getTransform(newTranslation, newRotation, newScale, newOrientation);
    translation.setValue(newTranslation);
    rotation.setValue(newRotation);
    scaleFactor.setValue(newScale);
    scaleOrientation.setValue(newOrientation);
    center.setValue(LvVec3f());
}

LvMatrix LuTransform::getMatrix() const {
    LvMatrix matrix;
    matrix.setTransform(translation.getValue(), rotation.getValue(), scaleFactor.getValue(),
                        scaleOrientation.getValue());
    const LvVec3f& middle = center.getValue();
    if (middle == LvVec3f())
        return matrix;
    // The turn and the stretch are about the centre; the translation is not.
    const LvVec3f moved = translation.getValue();
    LvMatrix linear = LvMatrix::translation(-moved) * matrix;
    return LvMatrix::translation(moved + middle) * linear * LvMatrix::translation(-middle);
}

void LuTransform::doAction(LuAction* action) {
    const bool isTurned = rotation.getValue() != LvRotation() || scaleOrientation.getValue() != LvRotation();
    if (isTurned || center.getValue() != LvVec3f()) {
        multiply(action, getMatrix());
        return;
    }
    // Nearly all of a dialog's are of this kind.
    LvMatrix& model = action->getState().model;
    model.translateBy(translation.getValue());
    model.scaleBy(scaleFactor.getValue());
}

LuMatrixTransform::LuMatrixTransform() {
    LuNodeConstructor constructor(s_class, this);
    constructor.field("matrix", matrix);
}

void LuMatrixTransform::doAction(LuAction* action) { multiply(action, matrix.getValue()); }
