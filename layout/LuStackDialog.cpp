// SPDX-License-Identifier: MIT
#include "layout/LuStackDialog.h"

#include "platform/lumora/io/LuDB.h"

LuStackDialog::~LuStackDialog() { delete m_spacingSensor; }

std::int64_t LuStackDialog::getGaps() const {
    return std::int64_t{m_spacing.getValue()} * (std::int64_t{getNumChildren()} - 1);
}

LvVec2i32 LuStackDialog::getComponentInitSize() {
    if (m_componentInitSize.x != -1)
        return m_componentInitSize;
    const int cross = 1 - m_axis;
    LvVec2i32 total(luClampSize(std::int64_t{margin.getValue()} * 2),
                    luClampSize(std::int64_t{margin.getValue()} * 2));
    for (int i = 0; i < getNumChildren(); ++i) {
        getChild(i)->setStackAxis(m_axis);
        const LvVec2i32 child = getChild(i)->getComponentInitSize();
        total[m_axis] = luAddSize(total[m_axis], child[m_axis]);
        total[cross] = std::max(total[cross], child[cross]);
    }
    total[m_axis] = luAddSize(total[m_axis], getGaps());
    m_componentInitSize = total;
    return total;
}

void LuStackDialog::fixSizeWithBorder(LvVec2i32& size, int sign) {
    const std::int64_t room = std::int64_t{sign} * EDGE_ROOM;
    size.setValue(luAddSize(size.x, room), luAddSize(size.y, room));
    LuDialogGroup::fixSizeWithBorder(size, sign);
}

void LuStackDialog::fixPosWithComponentBorder(LvVec2i32& position) const {
    const int inset = getEdgeInset();
    position.setValue(luAddSize(position.x, inset), luAddSize(position.y, inset));
}

void LuStackDialog::getDefaultSize(LvVec2i32& size, LvVec2i32& minSize, LvVec2i32& maxSize) {
    updateChildrenSizeDB();
    for (int i = 0; i < m_childSizes.getCount(); ++i) {
        LuDialogComponent* const child = getChild(i);
        if (!child)
            break;
        LuSizes& sizes = m_childSizes[i];
        child->getSize(sizes.size, sizes.minSize, sizes.maxSize);
    }
    const LuSizes total = m_childSizes.getTotal(m_axis, margin.getValue(), getGaps());
    size = total.size;
    minSize = total.minSize;
    maxSize = total.maxSize;
}

/// Gives the children their part of the group's inner size, which is the result.
LvVec2i32 LuStackDialog::distribute() {
    LvVec2i32 inner(width.getValue(), height.getValue());
    fixSizeWithBorder(inner, -1);
    if (edgeStyle.getValue() == NONE)
        inner[m_axis] = luAddSize(inner[m_axis], EDGE_ROOM);
    LuSizes needed;
    getDefaultSize(needed.size, needed.minSize, needed.maxSize);
    m_childSizes.distribute(m_axis, std::int64_t{inner[m_axis]} - needed.size[m_axis]);
    return inner;
}

/// Builds the children one behind the other. `cross` is the inner size that they share.
template <class Build>
void LuStackDialog::placeChildren(LvVec2i32 position, int cross, Build build) {
    std::int64_t shared = std::int64_t{cross} - std::int64_t{margin.getValue()} * 2;
    if (edgeStyle.getValue() == NONE) {
        // Without an edge the children use its room, too.
        shared += EDGE_ROOM;
        position.setValue(luAddSize(position.x, -3), luAddSize(position.y, -3));
    }
    LvVec2i32 size;
    size[1 - m_axis] = luClampSize(shared);
    for (int i = 0; i < m_childSizes.getCount(); ++i) {
        LuDialogComponent* const child = getChild(i);
        if (!child)
            return;
        size[m_axis] = m_childSizes[i].size[m_axis];
        build(child, size, position);
        const int taken = m_axis == 0 ? child->width.getValue() : child->height.getValue();
        position[m_axis] = luAddSize(position[m_axis], std::int64_t{taken} + m_spacing.getValue());
    }
}

void LuStackDialog::updateChildren() {
    const int is2D = LuDBImpl::m_isHeadless ? 0 : 1;
    // The spacing may change before there is anything to lay out in.
    if (is2D ? !existWidget(m_widget) : !isBuilt3D())
        return;
    const LvVec2i32 inner = distribute();
    LvVec2i32 position(margin.getValue(), margin.getValue());
    fixPosWithComponentBorder(position);
    placeChildren(position, inner[1 - m_axis],
                  [this, is2D](LuDialogComponent* child, LvVec2i32& childSize, LvVec2i32& childPosition) {
                      child->buildWidget(m_widget, childSize, childPosition, is2D);
                  });
    if (is2D)
        updateGroupWidgetScrollPosition();
}

void LuStackDialog::update3DChildren() {
    const LvVec2i32 inner = distribute();
    LvVec2i32 position(luAddSize(margin.getValue(), 3), luAddSize(margin.getValue(), 3));
    LvVec3f translation;
    apply3DTranslation(mainCptSeparator.getValue(), m_depth, translation);
    placeChildren(
        position, inner[1 - m_axis],
        [this, &translation](LuDialogComponent* child, LvVec2i32& childSize, LvVec2i32& childPosition) {
            child->set3DParentTranslation(translation);
            child->buildWidget(m_widget, childSize, childPosition, 0);
        });
}

void LuStackDialog::buildWidget(HWND parent, LvVec2i32& size, LvVec2i32& position, int is2D) {
    updateChildrenSizeDB();
    const bool isFirst2D = is2D && !existWidget(m_widget);
    const bool isFirst3D = !is2D && !isBuilt3D();
    LuDialogGroup::buildWidget(parent, size, position, is2D);
    if (is2D) {
        updateChildren();
    } else {
        update3DChildren();
        setBuilt3D(1);
    }
    // What the group's own state means to the children is settled once they are there.
    if (isFirst2D)
        changeWidgetEnable(enable.getValue());
    if (isFirst3D)
        change3DWidgetEnable(enable.getValue());
}

void LuStackDialog::updateFromSensor(LuSensor* sensor) {
    if (sensor == m_spacingSensor)
        updateChildren();
    else
        LuDialogGroup::updateFromSensor(sensor);
}
