// SPDX-License-Identifier: MIT
#pragma once

#include "layout/LuSizes.h"
#include "layout/LuTopComponent.h"

class LuScale;

/// A sized component: a control, or a group of them. It owns the size protocol, the label column, the edge
/// and the carrier window that holds a control's own windows.
///
/// | field                    | effect in both renditions                                            |
/// |--------------------------|----------------------------------------------------------------------|
/// | `width`, `height`        | the whole component, label included; 0 leaves it to the class        |
/// | `fixedWidth`, `fixedHeight` | the layout never changes that side                                |
/// | `minWidth` ... `maxHeight` | limits; 0 leaves them to the class                                 |
/// | `labelVisibility`        | whether the label shows and takes room                               |
/// | `edgeStyle`              | NONE, SHADOW_IN, SHADOW_OUT                                          |
///
/// A change of a size field takes effect on the next build.
///
/// The protocol, for each child of a container: `setLabelSize` and `setComponentSize` come before
/// `buildWidget`. A component without a parent does this for itself.
class LuDialogComponent : public LuTopComponent {
    LU_KIT_HEADER(LuDialogComponent)
    LU_SKIN_HEADER(DialogComponent)

    enum EdgeStyle { NONE = 0, SHADOW_IN = 1, SHADOW_OUT = 2 };

    /// What width and height lose for the edge, whatever its style.
    static constexpr int EDGE_ROOM = 6;

    LuDialogComponent();

    LuSFInt32 width{0};
    LuSFInt32 height{0};
    LuSFBool fixedWidth{false};
    LuSFBool fixedHeight{false};
    LuSFInt32 minWidth{0};
    LuSFInt32 minHeight{0};
    LuSFInt32 maxWidth{0};
    LuSFInt32 maxHeight{0};
    LuSFBool labelVisibility{true};
    LuSFEnum edgeStyle{NONE};

    /// The carrier window; null while there is none.
    HWND getWidget() const { return m_widget; }
    LvVec2i32 getPosition() const { return m_position; }

    void getSize(LvVec2i32& size, LvVec2i32& minSize, LvVec2i32& maxSize) override;
    void buildWidget(HWND parent, LvVec2i32& size, LvVec2i32& position, int is2D) override;
    void destroyWidget() override;
    void updateFromSensor(LuSensor* sensor) override;
    void resetSize() override;
    void changeEnable() override;
    void changeLabelAlignment() override {}
    void getBoundingBox(LuGetBoundingBoxAction* action) override;

    /// The window of the label; null for a component without one.
    virtual HWND getLabelWidget() { return nullptr; }

    /// Takes an event that came to the carrier window: a notification code or a message.
    virtual void eventNotify(unsigned int event, std::uint64_t value);

    /// The sizes that the container gives: the label column, and the room beside it.
    virtual void setLabelSize(LvVec2i32& size) { m_labelSize = size; }
    virtual void setComponentSize(LvVec2i32& size) { m_componentSize = size; }

    /// The natural sizes of the content and of the label.
    virtual LvVec2i32 getComponentInitSize() { return {0, 0}; }
    virtual LvVec2i32 getLabelInitSize();
    virtual void setFocus() {} ///< Takes the input focus, where the component has a use for it.
    virtual void changeWidgetEnable(int enable); ///< A container takes input, or takes none.

    /// What stands for size fields that are 0.
    virtual void getDefaultSize(LvVec2i32& size, LvVec2i32& minSize, LvVec2i32& maxSize);
    virtual void changeLabelVisibility() {} ///< This and the next bring a field to the windows.
    virtual void changeEdgeStyle();
    virtual void updateComponentWidget(); ///< Gives the carrier window its place and size.
    virtual void changeWidth(); ///< This and the next two take a field for the user's. No layout follows.
    virtual void changeHeight();
    virtual void changeMinMaxSize();
    virtual void change3DLabelVisibility() {} ///< This and the next bring a field to 3D.
    virtual void change3DEdgeStyle();

    /// Room and place of the control beside the label: in the carrier window; and in 3D, where the place is
    /// the offset of its centre from the component's.
    void get2DComponentSize(LvVec2i32& size, LvVec2i32& position) const;
    void get3DComponentSize(LvVec2i32& size, LvVec2i32& position) const;

    /// Tells along which axis the container adds its children up: 0 side by side, 1 one below the other.
    virtual void setStackAxis(int) {}

    /// Whether WM_DRAWITEM goes to eventNotify.
    virtual bool drawsItems() const { return false; }

    /// Writes the six size fields as the layout's own doing, and marks what the user has left open.
    void setSize(int newWidth, int newHeight, int newMinWidth, int newMinHeight, int newMaxWidth,
                 int newMaxHeight);
    void setDefaultState();

    /// The sizes as the user set them, 0 for what was left open.
    void getDefaultState(LvVec2i32& size, LvVec2i32& minSize, LvVec2i32& maxSize) const;

protected:
    ~LuDialogComponent() override;

    /// Pixels from the carrier window's edge to the content, by the edge style: 3, 2 or 0.
    int getEdgeInset() const;

    /// What stands for size fields that are 0, seen from outside: a group adds its border.
    virtual void getOuterDefaultSizes(LuSizes& sizes);

    /// Hands label and component sizes to the children, before a build that starts in 3D.
    virtual void setChildrenSizes() {}

    /// Column and row dialogs have no frame transform: their children stand in front of the whole frame.
    virtual bool hasMainTransform() const { return true; }

    void create3DDialogComponent();
    void update3DDialogComponent();

    /// Builds in 3D with notification off, as the first traversal by a bounding-box action does.
    void buildFromTraversal();

    LuSFNode mainCptSeparator;
    LuSFNode edgeStyleSwitch;
    LuSFNode edgeStyleNone;
    LuSFNode edgeStyleShadowIn;
    LuSFNode edgeStyleShadowOut;

    HWND m_widget = nullptr;
    HWND m_labelWidget = nullptr;
    HWND m_spareWidget = nullptr;
    int m_ownsWidget = 1;
    int m_firstBuild = 1;
    LvVec2i32 m_componentSize;
    LvVec2i32 m_labelSize;
    LvVec2i32 m_componentInitSize{-1, -1};
    LvVec2i32 m_labelInitSize;
    LvVec2i32 m_position;
    LuFieldSensor* m_labelVisibilitySensor = nullptr;
    LuFieldSensor* m_edgeStyleSensor = nullptr;
    LuSizeFields m_sizes{width, height, minWidth, minHeight, maxWidth, maxHeight};
    LuTranslation* m_mainTranslation = nullptr;
    LuScale* m_mainScale = nullptr;
    LuTransform* m_mainTransform = nullptr;
    float m_depth = -1.0F;

private:
    void createComponentWidget(HWND parent);
    DWORD getExtendedStyle() const;
    void attachSensors();
};
