// SPDX-License-Identifier: MIT
#pragma once

#include "layout/LuDialogComponent.h"

#include <vector>

/// Children that stand one below the other have their labels and controls aligned in two columns. Both
/// operations get each child by its index; null stands for one that takes no part.

/// Gives all children the width of the widest visible label. An invisible label keeps its own height with
/// `keepsHiddenHeight`, else it has none.
template <class GetChild>
void luSetCommonLabelSize(int count, GetChild getChild, bool keepsHiddenHeight) {
    // Measuring a text is what costs here: each label is measured once.
    std::vector<int> heights;
    heights.reserve(static_cast<std::size_t>(count));
    int widest = 0;
    for (int i = 0; i < count; ++i) {
        LuDialogComponent* const child = getChild(i);
        const bool isVisible = child && child->labelVisibility.getValue();
        const LvVec2i32 size =
            isVisible || (child && keepsHiddenHeight) ? child->getLabelInitSize() : LvVec2i32();
        heights.push_back(size.y);
        if (isVisible)
            widest = std::max(widest, size.x);
    }
    for (int i = 0; i < count; ++i) {
        LvVec2i32 size(widest, heights[static_cast<std::size_t>(i)]);
        if (LuDialogComponent* child = getChild(i))
            child->setLabelSize(size);
    }
}

/// Gives all children the width of the widest content, and each the height that its content or its visible
/// label needs.
template <class GetChild>
void luSetCommonComponentSize(int count, GetChild getChild) {
    int widest = 0;
    for (int i = 0; i < count; ++i) {
        if (LuDialogComponent* child = getChild(i))
            widest = std::max(widest, child->getComponentInitSize().x);
    }
    for (int i = 0; i < count; ++i) {
        LuDialogComponent* const child = getChild(i);
        if (!child)
            continue;
        const int labelHeight = child->labelVisibility.getValue() ? child->getLabelInitSize().y : 0;
        LvVec2i32 size(widest, std::max(child->getComponentInitSize().y, labelHeight));
        child->setComponentSize(size);
    }
}
