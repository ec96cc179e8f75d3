// SPDX-License-Identifier: MIT
#pragma once

#include "layout/LuDialogGroup.h"

/// What columns and rows have in common: the children follow each other along the main axis, with a spacing
/// between them, and share the size on the other axis.
class LuStackDialog : public LuDialogGroup {
public:
    void buildWidget(HWND parent, LvVec2i32& size, LvVec2i32& position, int is2D) override;
    void updateFromSensor(LuSensor* sensor) override;
    LvVec2i32 getComponentInitSize() override;
    void getDefaultSize(LvVec2i32& size, LvVec2i32& minSize, LvVec2i32& maxSize) override;
    void changeEdgeStyle() override { LuDialogComponent::changeEdgeStyle(); }
    void fixSizeWithBorder(LvVec2i32& size, int sign) override;
    bool placesChildren() const override { return true; }

protected:
    /// `mainAxis` is 0 for x, 1 for y; `spacing` is the field of the derived class.
    LuStackDialog(int mainAxis, const LuSFInt32& spacing) : m_axis(mainAxis), m_spacing(spacing) {}
    ~LuStackDialog() override;

    /// Called by the derived constructor, once its field is there.
    void watchSpacing(LuSFInt32& spacing) { attachSensor(m_spacingSensor, spacing); }

    bool hasMainTransform() const override { return false; }

private:
    void updateChildren();
    void update3DChildren();
    void fixPosWithComponentBorder(LvVec2i32& position) const;
    LvVec2i32 distribute();
    std::int64_t getGaps() const;

    template <class Build>
    void placeChildren(LvVec2i32 position, int cross, Build build);

    const int m_axis;
    const LuSFInt32& m_spacing;
    LuFieldSensor* m_spacingSensor = nullptr;
};
