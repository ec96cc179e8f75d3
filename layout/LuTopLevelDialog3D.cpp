// SPDX-License-Identifier: MIT
#include "generated/LuEmbeddedSkins.h"
#include "layout/LuTopLevelDialog.h"
#include "platform/lumora/base/LvProjector.h"
#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuText3.h"
#include "platform/lumora/nodes/LuTransforms.h"

const char* LuTopLevelDialog::TopLevelDialog = LuEmbeddedSkin_TopLevelDialog;
LuSkin LuTopLevelDialog::s_skin("TopLevelDialog.lum", LuEmbeddedSkin_TopLevelDialog,
                                {"TopLevelDialogFrame", "TopLevelDialogMinReleased",
                                 "TopLevelDialogMinPressed"});

namespace {

/// The minimise button is a square of this size; its centre, and the line of the title, lie 12 below the top.
constexpr float BUTTON_SIZE = 14;
constexpr float TITLE_INSET = 12;

/// The height of the strip that a minimised dialog is.
constexpr float STRIP_HEIGHT = 20;

// What frame, title and menu take of a window: they place the children as in its client area.
constexpr float FRAME_LEFT = 4;
constexpr float FRAME_TOP = 23;
constexpr float MENU_HEIGHT = 18;

/// Half of a size, as whole numbers.
LvVec2i32 getHalf(LvVec2i32 size) { return size *= 0.5; }

/// Ends a connection between two fields, and none that the program has made to another.
void disconnectFrom(LuField& field, const LuField& master) {
    if (field.getConnectedField() == &master)
        field.disconnect();
}

} // namespace

void LuTopLevelDialog::create3DTopLevelDialog() {
    loadFontProperties();
    s_skin.loadOnFirstUse();
    makeParts({&frameSep, &labelSep, &minSwtch});
    setPartAsDefault(frame, "TopLevelDialogFrame");
    setPartAsDefault(labelProp, "DialogTextProperties");
    setPartAsDefault(minReleased, "TopLevelDialogMinReleased");
    setPartAsDefault(minPressed, "TopLevelDialogMinPressed");

    auto* const frameGroup = static_cast<LuSeparator*>(frameSep.getValue());
    auto* const labelGroup = static_cast<LuSeparator*>(labelSep.getValue());
    auto* const buttonGroup = static_cast<LuSeparator*>(minSep.getValue());
    auto* const geometry = static_cast<LuSwitch*>(geomSwitch.getValue());
    m_frameScale = new LuScale;
    frameGroup->insertChild(m_frameScale, 0);
    m_frameTranslation = new LuTranslation;
    geometry->insertChild(m_frameTranslation, 0);
    m_frameTransform = new LuTransform;
    geometry->insertChild(m_frameTransform, geometry->findChild(labelGroup));

    m_labelTranslation = new LuTranslation;
    labelGroup->insertChild(m_labelTranslation, 0);
    m_labelText = new LuText3;
    labelGroup->addChild(m_labelText);
    m_labelText->justification.setValue(LuText3::LEFT);
    change3DLabel();

    auto* const buttonScale = new LuScale;
    buttonScale->scaleFactor.setValue({BUTTON_SIZE, BUTTON_SIZE, 1});
    buttonGroup->insertChild(buttonScale, 0);
    m_minTranslation = new LuTranslation;
    buttonGroup->insertChild(m_minTranslation, 0);
    setSwitchValue(minSwtch.getValue(), 0);

    addStartCallback(startCB3D, nullptr);
    addMotionCallback(motionCB3D, nullptr);
    addFinishCallback(finishCB3D, nullptr);
    m_projector = std::make_unique<LvPlaneProjector>();

    setBuilt3D(1);
    m_depth = -1.0F;
    m_firstMinimize = 1;
    m_notBuilt = 0;
    show3D(1);
}

void LuTopLevelDialog::update3DTopLevelDialog() {
    const float w = static_cast<float>(width.getValue());
    const float h = static_cast<float>(height.getValue());
    const LvVec3f& corner = position3D.getValue();
    m_frameScale->scaleFactor.setValue({w, h, 1});
    m_frameTranslation->translation.setValue({w * 0.5F + corner.x, -corner.y - h * 0.5F, corner.z});
    m_minTranslation->translation.setValue({w * 0.5F - TITLE_INSET, h * 0.5F - TITLE_INSET, 0});
    undoTransformMatrix(frameSep.getValue(), m_frameTransform);
    update3DLabel();
}

void LuTopLevelDialog::minimize3DDialog() {
    const float w = static_cast<float>(width.getValue());
    const LvVec3f& corner = minimized3DPosition.getValue();
    m_frameScale->scaleFactor.setValue({w, STRIP_HEIGHT, 1});
    m_frameTranslation->translation.setValue(
        {w * 0.5F + corner.x, -corner.y - STRIP_HEIGHT * 0.5F, corner.z});
    undoTransformMatrix(frameSep.getValue(), m_frameTransform);
    m_minTranslation->translation.setValue({w * 0.5F - TITLE_INSET, 0, 0});
    update3DLabel();
    if (LuTopComponent* menuBar = findMenuBar())
        menuBar->show3DChildren(0);
}

void LuTopLevelDialog::restore3DDialog() {
    update3DTopLevelDialog();
    if (!hideChildren.getValue())
        update3DChildrenPosition();
}

void LuTopLevelDialog::update3DLabel() {
    const LvBox3f box = measureLabel(labelProp.getValue(), m_labelText);
    const float left = TITLE_INSET - static_cast<float>(width.getValue()) * 0.5F;
    const float center = (box.max.y + box.min.y) * 0.5F;
    const float line = minimized.getValue() ? 0 : static_cast<float>(height.getValue()) * 0.5F - TITLE_INSET;
    m_labelTranslation->translation.setValue({left, line - center, 0});
}

void LuTopLevelDialog::change3DLabel() {
    m_labelText->string.setValue(convertToCString(label.getValue(), nullptr));
}

/// Where the children's origin lies.
LvVec3f LuTopLevelDialog::get3DChildrenTranslation() {
    const LvVec3f& corner = position3D.getValue();
    const float top = FRAME_TOP + (findMenuBar() ? MENU_HEIGHT : 0);
    LvVec3f translation(corner.x + FRAME_LEFT, -corner.y - top, corner.z);
    apply3DTranslation(frameSep.getValue(), m_depth, translation);
    return translation;
}

void LuTopLevelDialog::update3DChildrenPosition() {
    LvVec3f translation = get3DChildrenTranslation();
    for (int i = 0; i < getNumChildren(); ++i) {
        getChild(i)->set3DParentTranslation(translation);
        getChild(i)->change3DPosition();
    }
}

void LuTopLevelDialog::change3DPosition() {
    if (!isBuilt3D())
        return;
    const LvVec2i32 half = getHalf({width.getValue(), height.getValue()});
    const float halfWidth = static_cast<float>(half.x);
    if (minimized.getValue()) {
        const LvVec3f& corner = minimized3DPosition.getValue();
        m_frameTranslation->translation.setValue(
            {halfWidth + corner.x, -corner.y - STRIP_HEIGHT * 0.5F, corner.z});
        return;
    }
    const LvVec3f& corner = position3D.getValue();
    m_frameTranslation->translation.setValue(
        {halfWidth + corner.x, -corner.y - static_cast<float>(half.y), corner.z});
    if (!hideChildren.getValue())
        update3DChildrenPosition();
}

void LuTopLevelDialog::updateMinimizedState() {
    if (m_firstMinimize) {
        setWithoutSensor(minimized3DPosition, position3D.getValue(), m_minimized3DPositionSensor);
        m_firstMinimize = 0;
    }
    if (!independentMinimizedPosition.getValue())
        followPositionInUse();
    if (!isBuilt3D())
        return;
    const int isMinimized = minimized.getValue();
    show3DChildren(isMinimized);
    if (isMinimized)
        minimize3DDialog();
    else
        restore3DDialog();
    show3DChildren(!isMinimized);
}

/// Lets the position that is not in use follow the one in use.
void LuTopLevelDialog::followPositionInUse() {
    LuField& inUse = minimized.getValue() ? minimized3DPosition : position3D;
    LuField& other = minimized.getValue() ? position3D : minimized3DPosition;
    disconnectFrom(inUse, other);
    other.connectFrom(&inUse);
}

void LuTopLevelDialog::changeIndependentPosition() {
    if (independentMinimizedPosition.getValue()) {
        disconnectFrom(position3D, minimized3DPosition);
        disconnectFrom(minimized3DPosition, position3D);
    } else {
        followPositionInUse();
    }
}

void LuTopLevelDialog::show3DChildren(int show) {
    for (int i = 0; i < getNumChildren(); ++i)
        getChild(i)->show3D(show);
}

void LuTopLevelDialog::show3D(int show) {
    show3DChildren(show);
    LuPanelix::show3D(show);
}

LvVec3f LuTopLevelDialog::getTopLevelSize() const {
    return m_frameScale ? m_frameScale->scaleFactor.getValue() : LvVec3f();
}

void LuTopLevelDialog::getBoundingBox(LuGetBoundingBoxAction* action) {
    if (!isBuilt3D()) {
        const bool wasEnabled = enableNotify(false);
        setChildrenLabelSize();
        setChildrenComponentSize();
        const int isVisible = m_visible3D;
        LvVec2i32 noSize;
        LvVec2i32 noPosition;
        buildWidget(nullptr, noSize, noPosition, 0);
        show3D(isVisible);
        if (minimized.getValue())
            show3DChildren(0);
        enableNotify(wasEnabled);
    }
    LuDragger::getBoundingBox(action);
}
