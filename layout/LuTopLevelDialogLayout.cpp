// SPDX-License-Identifier: MIT
#include "layout/LuTopLevelDialog.h"
#include "platform/lumora/io/LuDB.h"

namespace {

/// The title's height where the window system has not told one.
constexpr int DEFAULT_TITLE_HEIGHT = 24;

} // namespace

int LuTopLevelDialog::getTitleHeight() const { return m_titleHeight ? m_titleHeight : DEFAULT_TITLE_HEIGHT; }

/// The room for the children inside frame, title, scroll bars and menu.
LvVec2i32 LuTopLevelDialog::getInnerSize() {
    LvVec2i32 size(width.getValue(), height.getValue());
    fixSizeWithBorder(size, -1);
    return size;
}

void LuTopLevelDialog::computeNewChildrenHeight(const LvVec2i32& inner) {
    LuSizes needed;
    getDefaultSize(needed.size, needed.minSize, needed.maxSize);
    m_childSizes.distribute(1, std::int64_t{inner.y} - needed.size.y);
}

/// Builds the children one below the other by `build`, which gets the child, its size and its position.
template <class Build>
void LuTopLevelDialog::placeChildren(const LvVec2i32& inner, Build build) {
    computeNewChildrenHeight(inner);
    const int inset = margin.getValue();
    LvVec2i32 place(inset, inset);
    LvVec2i32 size(luClampSize(std::int64_t{inner.x} - std::int64_t{inset} * 2), 0);
    for (int i = 0; i < getNumChildren() && i < m_childSizes.getCount(); ++i) {
        LuTopComponent* const child = getChild(i);
        if (child->asMenuBar()) {
            build(child, size, place);
            continue;
        }
        size.y = m_childSizes[i].size.y;
        build(child, size, place);
        const LuDialogComponent* const sized = getSizedChild(i);
        const int taken = sized ? sized->height.getValue() : 0;
        place.y = luAddSize(place.y, std::int64_t{taken} + rowSpacing.getValue());
    }
}

void LuTopLevelDialog::updateChildren() {
    const int is2D = LuDBImpl::m_isHeadless ? 0 : 1;
    placeChildren(getInnerSize(), [this, is2D](LuTopComponent* child, LvVec2i32& size, LvVec2i32& place) {
        child->buildWidget(child->asMenuBar() ? m_baseWidget : m_topWidget, size, place, is2D);
    });
}

void LuTopLevelDialog::update3DChildren() {
    LvVec3f translation = get3DChildrenTranslation();
    placeChildren(getInnerSize(), [&translation](LuTopComponent* child, LvVec2i32& size, LvVec2i32& place) {
        child->set3DParentTranslation(translation);
        child->buildWidget(nullptr, size, place, 0);
    });
}
