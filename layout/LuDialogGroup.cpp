// SPDX-License-Identifier: MIT
#include "layout/LuDialogGroup.h"

#include "auditors/LuDialogGroupAuditor.h"
#include "layout/LuTopLevelDialog.h"
#include "platform/lumora/io/LuDB.h"
#include "platform/lumora/io/LuOutput.h"

LU_KIT_SOURCE(LuDialogGroup, LuDialogComponent, "DialogGroup")

LuDialogGroup::LuDialogGroup() : LuChildHolder(LuAuditorContainer::GROUP) {
    LuKitConstructor constructor(s_class, this, &initClass);
    constructor.field("windowResizedByChildren", windowResizedByChildren);
    constructor.field("margin", margin);
    constructor.enumField("vScrollVisibility", vScrollVisibility, "ScrollVisibility",
                          {{"NEVER", NEVER}, {"ALWAYS", ALWAYS}, {"AUTO", AUTO}});
    constructor.enumField("hScrollVisibility", hScrollVisibility, "ScrollVisibility", {});
}

LuDialogGroup::~LuDialogGroup() { destroyChildWidgets(); }

void LuDialogGroup::fixSizeWithBorder(LvVec2i32& size, int sign) {
    if (m_scrollBars.vShown || vScrollVisibility.getValue() == ALWAYS)
        size.x = luAddSize(size.x, std::int64_t{sign} * SCROLL_BAR_ROOM);
    if (m_scrollBars.hShown || hScrollVisibility.getValue() == ALWAYS)
        size.y = luAddSize(size.y, std::int64_t{sign} * SCROLL_BAR_ROOM);
}

void LuDialogGroup::getOuterDefaultSizes(LuSizes& sizes) {
    getDefaultSize(sizes.size, sizes.minSize, sizes.maxSize);
    fixSizeWithBorder(sizes.size, 1);
    fixSizeWithBorder(sizes.minSize, 1);
    fixSizeWithBorder(sizes.maxSize, 1);
}

void LuDialogGroup::setChildrenSizes() {
    setChildrenLabelSize();
    setChildrenComponentSize();
}

void LuDialogGroup::buildWidget(HWND parent, LvVec2i32& size, LvVec2i32& position, int is2D) {
    LuDialogComponent::buildWidget(parent, size, position, is2D);
    if (!is2D && !m_parent && !m_groupAuditor)
        m_groupAuditor = std::make_unique<LuDialogGroupAuditor>();
    m_notBuilt = 0;
    setScrollProperties();
}

void LuDialogGroup::forgetSizes() {
    if (windowResizedByChildren.getValue()) {
        m_sizes.write(m_sizes.getUserSizes());
        setDefaultState();
    }
    m_childSizes.clear();
    m_componentInitSize = {-1, -1};
    m_labelInitSize = m_labelSize = {0, 0};
}

void LuDialogGroup::updateAfterSceneGraphChange() {
    LuDialogGroup* group = this;
    for (;;) {
        group->forgetSizes();
        LuPanelix* const parent = group->m_parent;
        if (!parent || !parent->canBeTraversed())
            return;
        if (parent->isTopLevelDialog()) {
            static_cast<LuTopLevelDialog*>(parent)->updateAfterSceneGraphChange();
            return;
        }
        if (!parent->isDialogGroup())
            return;
        group = static_cast<LuDialogGroup*>(parent);
    }
}

void LuDialogGroup::childrenRemoved() {
    forgetSizes();
    if (!m_parent || !m_parent->canBeTraversed())
        return;
    if (m_parent->isTopLevelDialog())
        static_cast<LuTopLevelDialog*>(m_parent)->updateAfterSceneGraphChange();
    else if (m_parent->isDialogGroup())
        static_cast<LuDialogGroup*>(m_parent)->updateAfterSceneGraphChange();
}

void LuDialogGroup::updateFromSensor(LuSensor* sensor) { LuDialogComponent::updateFromSensor(sensor); }

void LuDialogGroup::resetSize() {
    for (int i = 0; i < getNumChildren(); ++i)
        getChild(i)->resetSize();
}

void LuDialogGroup::setLabelSize(LvVec2i32& size) {
    LuDialogComponent::setLabelSize(size);
    setChildrenLabelSize();
}

void LuDialogGroup::setComponentSize(LvVec2i32& size) {
    LuDialogComponent::setComponentSize(size);
    setChildrenComponentSize();
}

void LuDialogGroup::changeEnable() {
    LuDialogComponent::changeEnable();
    changeWidgetEnable(enable.getValue());
}

void LuDialogGroup::changeWidgetEnable(int isEnabled) {
    for (int i = 0; i < getNumChildren(); ++i)
        getChild(i)->changeWidgetEnable(isEnabled ? enable.getValue() : 0);
}

void LuDialogGroup::applyWithoutAuditors(LuPanelix* component) {
    if (m_parent)
        m_parent->applyAuditor(component);
    else if (m_groupAuditor)
        dispatch(m_groupAuditor.get(), component);
}

bool LuDialogGroup::hidesChildrenFrom(LuOutput* out) const {
    return (out->isClusterTransfer() && LuDBImpl::isRunningCluster()) || LuDBImpl::isRunningART();
}
