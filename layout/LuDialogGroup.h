// SPDX-License-Identifier: MIT
#pragma once

#include "layout/LuChildHolder.h"
#include "layout/LuDialogComponent.h"

#include <memory>

class LuDialogGroupAuditor;

/// A component that holds others: the base of columns, rows and tabs, which lay their children out.
///
/// | field                                    | effect                                                               |
/// |------------------------------------------|----------------------------------------------------------------------|
/// | `windowResizedByChildren`                | a change of the children gives the group the size that they need now |
/// | `margin`                                 | pixels kept free on all four sides inside                            |
/// | `vScrollVisibility`, `hScrollVisibility` | NEVER, ALWAYS, or AUTO: when the room is too small; windows only     |
///
/// The children are owned by references. After the first build every change of them rebuilds the dialog that
/// the group belongs to.
class LuDialogGroup : public LuChildHolder<LuDialogComponent, LuDialogComponent> {
    LU_KIT_HEADER(LuDialogGroup)

    /// Pixels that a scroll bar takes.
    static constexpr int SCROLL_BAR_ROOM = 16;

    LuDialogGroup();

    LuSFBool windowResizedByChildren{true};
    LuSFInt32 margin{0};
    LuSFEnum vScrollVisibility{AUTO};
    LuSFEnum hScrollVisibility{AUTO};

    bool isDialogGroup() const override { return true; }

    /// Adds (`sign` 1) or takes off (-1) what stands between the group's outside and the room for its
    /// children.
    virtual void fixSizeWithBorder(LvVec2i32& size, int sign);

    /// Hands the children their sizes, before they are built.
    virtual void setChildrenComponentSize() {}
    virtual void setChildrenLabelSize() {}

    /// The children have changed: forgets sizes up to the top of the dialog and lets that build anew. Below
    /// no top-level dialog nothing is built.
    void updateAfterSceneGraphChange();

    /// Whether the children stand relative to the corner of this group's frame in 3D.
    virtual bool placesChildren() const { return false; }

    /// The `enable` of a child has changed.
    virtual void childEnableChanged(LuDialogComponent*) {}

    void reportAgain(LuPanelix&) override { applyAuditors(); }
    void buildWidget(HWND parent, LvVec2i32& size, LvVec2i32& position, int is2D) override;
    void destroyWidget() override;
    void updateFromSensor(LuSensor* sensor) override;
    void resetSize() override;
    void setLabelSize(LvVec2i32& size) override;
    void setComponentSize(LvVec2i32& size) override;
    void changeEnable() override;
    void changeWidgetEnable(int isEnabled) override;

    void show3D(int show) override;
    void change3DPosition() override;
    void change3DEnable() override;
    void change3DWidgetEnable(int isEnabled) override;
    void getBoundingBox(LuGetBoundingBoxAction* action) override;

protected:
    ~LuDialogGroup() override;

    /// Shows the scroll bars that the carrier window needs.
    void setScrollProperties();

    /// Brings the children back in step with the scroll bars after a layout.
    void updateGroupWidgetScrollPosition() { m_scrollBars.scrollToPosition(m_widget, true); }

    /// Makes the table of the children's sizes anew when their number has changed.
    void updateChildrenSizeDB() { m_childSizes.setCount(getNumChildren()); }
    void createGroupWidget(LvVec2i32&, LvVec2i32&) {}

    void getOuterDefaultSizes(LuSizes& sizes) override;
    void setChildrenSizes() override;
    void childrenChanged() override { updateAfterSceneGraphChange(); }
    void childrenRemoved() override;
    void applyWithoutAuditors(LuPanelix* component) override;
    bool hidesChildrenFrom(LuOutput* out) const override;

private:
    void forgetSizes();

    std::unique_ptr<LuDialogGroupAuditor> m_groupAuditor;
};

extern template class LuChildHolder<LuDialogComponent, LuDialogComponent>;
