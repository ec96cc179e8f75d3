// SPDX-License-Identifier: MIT
#include "layout/LuTopLevelDialog.h"

#include "auditors/LuTopLevelAuditor.h"
#include "layout/LuLabelColumn.h"
#include "platform/lumora/base/LvProjector.h"
#include "platform/lumora/io/LuDB.h"

LU_KIT_SOURCE(LuTopLevelDialog, LuPanelix, "TopLevelDialog")

LuTopLevelDialog::LuTopLevelDialog()
    : LuChildHolder(LuAuditorContainer::TOP_LEVEL), m_topAuditor(std::make_unique<LuTopLevelAuditor>()) {
    LuKitConstructor constructor(s_class, this, &initClass);
    constructor.field("width", width);
    constructor.field("height", height);
    constructor.field("position", position);
    constructor.field("position3D", position3D);
    constructor.field("resizable", resizable);
    constructor.field("minWidth", minWidth);
    constructor.field("minHeight", minHeight);
    constructor.field("maxWidth", maxWidth);
    constructor.field("maxHeight", maxHeight);
    constructor.field("margin", margin);
    constructor.field("rowSpacing", rowSpacing);
    constructor.field("modalFrame", modalFrame);
    constructor.field("hideChildren", hideChildren);
    constructor.field("minimized", minimized);
    constructor.field("minimized3DPosition", minimized3DPosition);
    constructor.field("independentMinimizedPosition", independentMinimizedPosition);
    constructor.field("windowResizedByChildren", windowResizedByChildren);
    constructor.enumField("vScrollVisibility", vScrollVisibility, "ScrollVisibility",
                          {{"NEVER", NEVER}, {"ALWAYS", ALWAYS}, {"AUTO", AUTO}});
    constructor.enumField("hScrollVisibility", hScrollVisibility, "ScrollVisibility", {});
    constructor.part("frameSep", frameSep, "Separator", "geomSwitch", false);
    constructor.part("frame", frame, "Group", "frameSep", true);
    constructor.part("labelSep", labelSep, "Separator", "geomSwitch", false);
    constructor.part("labelProp", labelProp, "Group", "labelSep", true);
    constructor.part("minSep", minSep, "Separator", "geomSwitch", false);
    constructor.part("minSwtch", minSwtch, "Switch", "minSep", false);
    constructor.part("minReleased", minReleased, "Group", "minSwtch", true);
    constructor.part("minPressed", minPressed, "Group", "minSwtch", true);
    initWidgetConstant();
}

LuTopLevelDialog::~LuTopLevelDialog() {
    destroyChildWidgets();
    for (const HWND window : {m_topWidget, m_baseWidget}) {
        if (!existWidget(window))
            continue;
        // The last messages of the window find no dialog any more.
        SetWindowLongPtrA(window, GWLP_USERDATA, 0);
        DestroyWindow(window);
    }
    for (LuFieldSensor* sensor : {m_marginSensor, m_modalFrameSensor, m_rowSpacingSensor, m_resizableSensor,
                                  m_positionSensor, m_position3DSensor, m_minimizedSensor,
                                  m_independentMinimizedPositionSensor, m_minimized3DPositionSensor})
        delete sensor;
}

void LuTopLevelDialog::attachSensors() {
    // All of them are made together.
    if (m_marginSensor)
        return;
    attachSensor(m_marginSensor, margin);
    attachSensor(m_modalFrameSensor, modalFrame);
    attachSensor(m_rowSpacingSensor, rowSpacing);
    attachSensor(m_resizableSensor, resizable);
    attachSensor(m_positionSensor, position);
    attachSensor(m_position3DSensor, position3D);
    attachSensor(m_minimizedSensor, minimized);
    attachSensor(m_independentMinimizedPositionSensor, independentMinimizedPosition);
    attachSensor(m_minimized3DPositionSensor, minimized3DPosition);
    using Sizes = LuSizeFields;
    for (const int field : {Sizes::MIN_WIDTH, Sizes::MIN_HEIGHT, Sizes::MAX_WIDTH, Sizes::MAX_HEIGHT,
                            Sizes::WIDTH, Sizes::HEIGHT})
        attachSensor(m_sizes.getSensor(field), m_sizes.getField(field));
}

LuTopComponent* LuTopLevelDialog::findMenuBar() const {
    for (int i = 0; i < getNumChildren(); ++i) {
        if (getChild(i)->asMenuBar())
            return getChild(i);
    }
    return nullptr;
}

LuMenuBar* LuTopLevelDialog::widgetHasMenuBar() const {
    LuTopComponent* const bar = findMenuBar();
    return bar ? bar->asMenuBar() : nullptr;
}

/// The child if it has a label and a size that take part in the layout.
LuDialogComponent* LuTopLevelDialog::getSizedChild(int index) const {
    LuTopComponent* const child = getChild(index);
    const bool isSized = child && child->isOfType(LuDialogComponent::getClassTypeId());
    return isSized ? static_cast<LuDialogComponent*>(child) : nullptr;
}

void LuTopLevelDialog::setChildrenLabelSize() {
    luSetCommonLabelSize(
        getNumChildren(), [this](int i) { return getSizedChild(i); }, false);
}

void LuTopLevelDialog::setChildrenComponentSize() {
    luSetCommonComponentSize(getNumChildren(), [this](int i) { return getSizedChild(i); });
}

void LuTopLevelDialog::buildDialog(HWND parent, int embedded) {
    m_embedded = embedded;
    setChildrenLabelSize();
    setChildrenComponentSize();
    LvVec2i32 noSize;
    LvVec2i32 noPosition;
    buildWidget(parent, noSize, noPosition, LuDBImpl::m_isHeadless ? 0 : 1);
    if (!m_currentFocused)
        m_currentFocused = GetNextDlgTabItem(m_topWidget, nullptr, FALSE);
    m_notBuilt = 0;
}

void LuTopLevelDialog::getDefaultSize(LvVec2i32& size, LvVec2i32& minSize, LvVec2i32& maxSize) {
    m_childSizes.setCount(getNumChildren());
    for (int i = 0; i < getNumChildren(); ++i) {
        LuSizes& child = m_childSizes[i];
        getChild(i)->getSize(child.size, child.minSize, child.maxSize);
        if (getChild(i)->asMenuBar())
            child.maxSize.y = std::min(child.maxSize.y, child.minSize.y);
    }
    const std::int64_t spaced = std::int64_t{getNumChildren()} - (findMenuBar() ? 1 : 0);
    const LuSizes total = m_childSizes.getTotal(1, margin.getValue(), rowSpacing.getValue() * (spaced - 1));
    size = total.size;
    minSize = total.minSize;
    maxSize = total.maxSize;
}

void LuTopLevelDialog::fixSizeWithBorder(LvVec2i32& size, int sign) const {
    size.x = luAddSize(size.x, std::int64_t{sign} * 2 * m_frameX);
    size.y = luAddSize(size.y, sign * (std::int64_t{getTitleHeight()} + 2 * m_frameY));
    if (m_scrollBars.vShown || vScrollVisibility.getValue() == ALWAYS)
        size.x = luAddSize(size.x, std::int64_t{sign} * m_scrollBarWidth);
    if (m_scrollBars.hShown || hScrollVisibility.getValue() == ALWAYS)
        size.y = luAddSize(size.y, std::int64_t{sign} * m_scrollBarWidth);
    if (findMenuBar())
        size.y = luAddSize(size.y, std::int64_t{sign} * m_menuHeight);
}

void LuTopLevelDialog::getSize(LvVec2i32& size, LvVec2i32& minSize, LvVec2i32& maxSize) {
    LuSizes sizes = m_sizes.getSizes();
    if (sizes.hasOpen()) {
        LuSizes defaults;
        getDefaultSize(defaults.size, defaults.minSize, defaults.maxSize);
        fixSizeWithBorder(defaults.size, 1);
        fixSizeWithBorder(defaults.minSize, 1);
        fixSizeWithBorder(defaults.maxSize, 1);
        sizes.fillFrom(defaults);
    }
    sizes.limit();
    if (!resizable.getValue() && width.getValue() != 0)
        sizes.minSize.x = sizes.maxSize.x = sizes.size.x;
    if (!resizable.getValue() && height.getValue() != 0)
        sizes.minSize.y = sizes.maxSize.y = sizes.size.y;
    size = sizes.size;
    minSize = sizes.minSize;
    maxSize = sizes.maxSize;
}

void LuTopLevelDialog::buildWidget(HWND parent, LvVec2i32& size, LvVec2i32& builtPosition, int is2D) {
    LuPanelix::buildWidget(parent, size, builtPosition, is2D);
    // Before anything is computed the fields hold what the user has set.
    if (m_firstBuild)
        m_sizes.takeAll();
    m_firstBuild = 0;
    if (is2D && !existWidget(m_baseWidget))
        createBaseWidget(parent);
    m_childSizes.setCount(getNumChildren());
    LuSizes sizes;
    getSize(sizes.size, sizes.minSize, sizes.maxSize);
    sizes.ask(size);
    if (!resizable.getValue())
        sizes.minSize = sizes.maxSize = sizes.size;
    m_sizes.write(sizes);
    setDefaultState();
    if (is2D) {
        updateBaseWidget();
        if (!existWidget(m_topWidget)) {
            createTopLevelWidget();
            changePosition();
            updateTopLevelWidget(size);
        }
    } else {
        if (!isBuilt3D())
            create3DTopLevelDialog();
        update3DTopLevelDialog();
        update3DChildren();
        if (minimized.getValue()) {
            minimize3DDialog();
            show3DChildren(0);
        }
    }
    attachSensors();
}

void LuTopLevelDialog::setSize(int newWidth, int newHeight, int newMinWidth, int newMinHeight,
                               int newMaxWidth, int newMaxHeight) {
    m_sizes.write({{newWidth, newHeight}, {newMinWidth, newMinHeight}, {newMaxWidth, newMaxHeight}});
}

void LuTopLevelDialog::setDefaultState() {
    const bool isFixed = !resizable.getValue();
    m_sizes.markOpen(isFixed, isFixed);
}

void LuTopLevelDialog::getDefaultState(LvVec2i32& size, LvVec2i32& minSize, LvVec2i32& maxSize) const {
    const LuSizes& user = m_sizes.getUserSizes();
    size = user.size;
    minSize = user.minSize;
    maxSize = user.maxSize;
}

void LuTopLevelDialog::setPosition(const LvVec2i32& newPosition) {
    setWithoutSensor(position, newPosition, m_positionSensor);
    if (newPosition == LvVec2i32())
        position.setDefault(true);
}

void LuTopLevelDialog::resetSize() {
    if (windowResizedByChildren.getValue())
        m_sizes.write(m_sizes.getUserSizes());
    for (int i = 0; i < getNumChildren(); ++i)
        getChild(i)->resetSize();
}

void LuTopLevelDialog::updateDialogBuild(int is2D) {
    resetSize();
    m_childSizes.clear();
    setChildrenLabelSize();
    setChildrenComponentSize();
    LvVec2i32 noSize;
    LvVec2i32 noPosition;
    buildWidget(m_parentWidget, noSize, noPosition, is2D);
    if (!is2D)
        return;
    setScrollProperties();
    updateTopLevelWidgetScrollPosition();
    updateChildren();
}

void LuTopLevelDialog::updateAfterSceneGraphChange() {
    if (m_built2D)
        updateDialogBuild(1);
    if (isBuilt3D())
        updateDialogBuild(0);
}

void LuTopLevelDialog::updateFromSensor(LuSensor* sensor) {
    if (sensor == m_marginSensor || sensor == m_rowSpacingSensor) {
        // They count in the next layout.
    } else if (const int field = m_sizes.findField(sensor); field == LuSizeFields::WIDTH) {
        changeWidth();
    } else if (field == LuSizeFields::HEIGHT) {
        changeHeight();
    } else if (field >= 0) {
        m_sizes.takeLimits();
    } else if (sensor == m_resizableSensor) {
        changeResizable();
    } else if (sensor == m_modalFrameSensor) {
        changeModalFrame();
    } else if (sensor == m_positionSensor) {
        if (m_built2D)
            changePosition();
        if (isBuilt3D() && canBeTraversed())
            change3DPosition();
    } else if (sensor == m_position3DSensor || sensor == m_minimized3DPositionSensor) {
        change3DPosition();
    } else if (sensor == m_minimizedSensor) {
        updateMinimizedState();
    } else if (sensor == m_independentMinimizedPositionSensor) {
        changeIndependentPosition();
    } else {
        LuPanelix::updateFromSensor(sensor);
    }
}

void LuTopLevelDialog::applyWithoutAuditors(LuPanelix* component) { dispatch(m_topAuditor.get(), component); }
