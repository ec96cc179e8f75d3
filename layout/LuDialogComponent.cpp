// SPDX-License-Identifier: MIT
#include "layout/LuDialogComponent.h"

#include "layout/LuDialogGroup.h"
#include "platform/lumora/win/LuWin.h"

LU_KIT_SOURCE(LuDialogComponent, LuTopComponent, "DialogComponent")

LuDialogComponent::LuDialogComponent() {
    LuKitConstructor constructor(s_class, this, &initClass);
    constructor.field("width", width);
    constructor.field("height", height);
    constructor.field("fixedWidth", fixedWidth);
    constructor.field("fixedHeight", fixedHeight);
    constructor.field("minWidth", minWidth);
    constructor.field("minHeight", minHeight);
    constructor.field("maxWidth", maxWidth);
    constructor.field("maxHeight", maxHeight);
    constructor.field("labelVisibility", labelVisibility);
    constructor.enumField("edgeStyle", edgeStyle, "EdgeStyle",
                          {{"NONE", NONE}, {"SHADOW_IN", SHADOW_IN}, {"SHADOW_OUT", SHADOW_OUT}});
    constructor.part("mainCptSeparator", mainCptSeparator, "Separator", "geomSwitch", false);
    constructor.part("edgeStyleSwitch", edgeStyleSwitch, "Switch", "mainCptSeparator", false);
    constructor.part("edgeStyleNone", edgeStyleNone, "Group", "edgeStyleSwitch", true);
    constructor.part("edgeStyleShadowIn", edgeStyleShadowIn, "Group", "edgeStyleSwitch", true);
    constructor.part("edgeStyleShadowOut", edgeStyleShadowOut, "Group", "edgeStyleSwitch", true);
}

LuDialogComponent::~LuDialogComponent() {
    if (m_ownsWidget && existWidget(m_widget))
        DestroyWindow(m_widget);
    if (existWidget(m_spareWidget))
        DestroyWindow(m_spareWidget);
    delete m_labelVisibilitySensor;
    delete m_edgeStyleSensor;
}

LvVec2i32 LuDialogComponent::getLabelInitSize() {
    m_labelInitSize = getLabelPixelSize(label.getValue(), nullptr);
    return m_labelInitSize;
}

void LuDialogComponent::getDefaultSize(LvVec2i32& size, LvVec2i32& minSize, LvVec2i32& maxSize) {
    size.setValue(200, 28);
    minSize.setValue(25, 25);
    maxSize.setValue(LuSizes::UNLIMITED, LuSizes::UNLIMITED);
}

void LuDialogComponent::getOuterDefaultSizes(LuSizes& sizes) {
    getDefaultSize(sizes.size, sizes.minSize, sizes.maxSize);
}

void LuDialogComponent::getSize(LvVec2i32& size, LvVec2i32& minSize, LvVec2i32& maxSize) {
    LuSizes sizes = m_sizes.getSizes();
    if (sizes.hasOpen()) {
        LuSizes defaults;
        getOuterDefaultSizes(defaults);
        sizes.fillFrom(defaults);
    }
    sizes.limit();
    if (fixedWidth.getValue())
        sizes.minSize.x = sizes.maxSize.x = sizes.size.x;
    if (fixedHeight.getValue())
        sizes.minSize.y = sizes.maxSize.y = sizes.size.y;
    size = sizes.size;
    minSize = sizes.minSize;
    maxSize = sizes.maxSize;
}

void LuDialogComponent::buildWidget(HWND parent, LvVec2i32& size, LvVec2i32& position, int is2D) {
    LuTopComponent::buildWidget(parent, size, position, is2D);
    if (!m_parent) {
        LvVec2i32 labelSize = getLabelInitSize();
        setLabelSize(labelSize);
        const LvVec2i32 content = getComponentInitSize();
        LvVec2i32 room(std::max(content.x, 0),
                       std::max(content.y, labelVisibility.getValue() ? labelSize.y : 0));
        setComponentSize(room);
    }
    LuSizes sizes;
    getSize(sizes.size, sizes.minSize, sizes.maxSize);
    sizes.ask(size);
    if (fixedWidth.getValue())
        sizes.minSize.x = sizes.maxSize.x = sizes.size.x;
    if (fixedHeight.getValue())
        sizes.minSize.y = sizes.maxSize.y = sizes.size.y;
    if (m_firstBuild)
        m_sizes.takeAll();
    m_sizes.write(sizes);
    setDefaultState();
    m_position = position;
    if (is2D) {
        if (!existWidget(m_widget)) {
            createComponentWidget(parent);
            m_firstBuild = 0;
        }
        updateComponentWidget();
    } else {
        // A class that never says that it is built has its nodes all the same.
        if (!isBuilt3D() && !m_mainScale) {
            create3DDialogComponent();
            m_firstBuild = 0;
        }
        update3DDialogComponent();
    }
    attachSensors();
}

void LuDialogComponent::attachSensors() {
    // All of them are made together.
    if (m_edgeStyleSensor)
        return;
    attachSensor(m_labelVisibilitySensor, labelVisibility);
    attachSensor(m_edgeStyleSensor, edgeStyle);
    for (int field = LuSizeFields::WIDTH; field <= LuSizeFields::MAX_HEIGHT; ++field)
        attachSensor(m_sizes.getSensor(field), m_sizes.getField(field));
}

void LuDialogComponent::setSize(int newWidth, int newHeight, int newMinWidth, int newMinHeight,
                                int newMaxWidth, int newMaxHeight) {
    m_sizes.write({{newWidth, newHeight}, {newMinWidth, newMinHeight}, {newMaxWidth, newMaxHeight}});
}

void LuDialogComponent::setDefaultState() { m_sizes.markOpen(fixedWidth.getValue(), fixedHeight.getValue()); }

void LuDialogComponent::getDefaultState(LvVec2i32& size, LvVec2i32& minSize, LvVec2i32& maxSize) const {
    const LuSizes& user = m_sizes.getUserSizes();
    size = user.size;
    minSize = user.minSize;
    maxSize = user.maxSize;
}

void LuDialogComponent::resetSize() {
    m_componentInitSize = {-1, -1};
    m_componentSize = m_labelSize = m_labelInitSize = {0, 0};
    // What the user has set goes too: the next build's sizes are computed ones, and stay out of files.
    height.setValue(0);
    width.setValue(0);
}

void LuDialogComponent::updateFromSensor(LuSensor* sensor) {
    const bool shows3D = isBuilt3D() && canBeTraversed();
    if (sensor == m_labelVisibilitySensor) {
        if (m_built2D)
            changeLabelVisibility();
        if (shows3D)
            change3DLabelVisibility();
    } else if (sensor == m_edgeStyleSensor) {
        if (m_built2D)
            changeEdgeStyle();
        if (shows3D)
            change3DEdgeStyle();
    } else if (const int field = m_sizes.findField(sensor); field == LuSizeFields::WIDTH) {
        changeWidth();
    } else if (field == LuSizeFields::HEIGHT) {
        changeHeight();
    } else if (field >= 0) {
        changeMinMaxSize();
    } else {
        LuTopComponent::updateFromSensor(sensor);
    }
}

void LuDialogComponent::changeEnable() {
    LuWin::enableWindow(m_widget, enable.getValue());
    if (m_parent && m_parent->isDialogGroup())
        static_cast<LuDialogGroup*>(m_parent)->childEnableChanged(this);
}

void LuDialogComponent::changeWidgetEnable(int isEnabled) {
    LuWin::enableWindow(m_widget, isEnabled && enable.getValue());
}

void LuDialogComponent::changeWidth() { m_sizes.takeSize(0); }

void LuDialogComponent::changeHeight() { m_sizes.takeSize(1); }

void LuDialogComponent::changeMinMaxSize() { m_sizes.takeLimits(); }

void LuDialogComponent::get2DComponentSize(LvVec2i32& size, LvVec2i32& position) const {
    const int inset = getEdgeInset();
    // The room is always that of the widest edge.
    size.setValue(luAddSize(width.getValue(), -EDGE_ROOM), luAddSize(height.getValue(), -EDGE_ROOM));
    position.setValue(inset, inset);
    if (labelVisibility.getValue()) {
        const std::int64_t column = std::int64_t{2} + m_labelSize.x;
        position.x = luAddSize(position.x, column);
        size.x = luAddSize(size.x, -column);
    }
}

void LuDialogComponent::get3DComponentSize(LvVec2i32& size, LvVec2i32& position) const {
    size.setValue(luAddSize(width.getValue(), -EDGE_ROOM), luAddSize(height.getValue(), -EDGE_ROOM));
    double left = 3;
    if (labelVisibility.getValue()) {
        left = m_labelSize.x + 5.0;
        size.x = luAddSize(size.x, -(std::int64_t{2} + m_labelSize.x));
    }
    const double center = size.x * 0.5 + left - width.getValue() * 0.5;
    position.setValue(luClampSize(static_cast<std::int64_t>(center)), 0);
}

int LuDialogComponent::getEdgeInset() const {
    switch (edgeStyle.getValue()) {
    case SHADOW_IN:
        return 2;
    case SHADOW_OUT:
        return 0;
    default:
        return 3;
    }
}
