// SPDX-License-Identifier: MIT
#pragma once

#include "layout/LuChildHolder.h"
#include "layout/LuDialogComponent.h"

#include <memory>

class LuScale;
class LuTopLevelAuditor;
class LvPlaneProjector;

/// The root of a dialog: a frame window, and a panel in 3D. Its children, controls and a menu bar, are
/// stacked from the top; their labels and controls are aligned in two common columns.
///
/// | field                                    | windows                                                          | 3D                                                               |
/// |------------------------------------------|------------------------------------------------------------------|------------------------------------------------------------------|
/// | `label`                                  | the window's title                                               | the panel's title                                                |
/// | `width`, `height`                        | of the window with its frame; 0: from the children               | of the panel                                                     |
/// | `minWidth` ... `maxHeight`               | limits, for the user too; 0: from the children                   | limits                                                           |
/// | `position`                               | on the screen, follows the window                                | -                                                                |
/// | `position3D`                             | -                                                                | top-left corner, y growing downwards as in windows               |
/// | `resizable`                              | whether the user can change the size                             | -                                                                |
/// | `margin`, `rowSpacing`                   | pixels on all sides inside, and between two children             | the same                                                         |
/// | `modalFrame`                             | frame of a modal dialog, always on top                           | -                                                                |
/// | `hideChildren`                           | -                                                                | a drag of the panel hides the children; they don't follow a move |
/// | `minimized`                              | -                                                                | collapsed to a strip with the title                              |
/// | `minimized3DPosition`                    | -                                                                | top-left corner of the strip                                     |
/// | `independentMinimizedPosition`           | -                                                                | FALSE: of the two positions one follows the other                |
/// | `windowResizedByChildren`                | a change of the children brings back the sizes that the user set | the same                                                         |
/// | `vScrollVisibility`, `hScrollVisibility` | NEVER, ALWAYS, or AUTO: when the room is too small               | -                                                                |
///
/// A program builds the tree or loads it, calls buildDialog and show, and lets the messages of the window
/// system be handled. The children are owned by references.
class LuTopLevelDialog : public LuChildHolder<LuPanelix, LuTopComponent> {
    LU_KIT_HEADER(LuTopLevelDialog)
    LU_SKIN_HEADER(TopLevelDialog)

    LuTopLevelDialog();

    LuSFInt32 width{0};
    LuSFInt32 height{0};
    LuSFVec2i32 position;
    LuSFVec3f position3D;
    LuSFBool resizable{true};
    LuSFInt32 minWidth{0};
    LuSFInt32 minHeight{0};
    LuSFInt32 maxWidth{0};
    LuSFInt32 maxHeight{0};
    LuSFInt32 margin{0};
    LuSFInt32 rowSpacing{0};
    LuSFBool modalFrame{false};
    LuSFBool hideChildren{false};
    LuSFBool minimized{false};
    LuSFVec3f minimized3DPosition;
    LuSFBool independentMinimizedPosition{true};
    LuSFBool windowResizedByChildren{false};
    LuSFEnum vScrollVisibility{AUTO};
    LuSFEnum hScrollVisibility{AUTO};

    bool isTopLevelDialog() const override { return true; }

    /// Builds the dialog: hidden windows, or 3D geometry where the toolkit runs headless. With `embedded`
    /// the window `parent` becomes the base window, and its procedure is replaced; otherwise `parent` is only
    /// remembered.
    void buildDialog(HWND parent, int embedded);

    /// Shows and hides the base window, unless it is the application's.
    virtual void show();
    virtual void hide();

    /// Hides the dialog and gives up a reference.
    void close();

    /// What the system menu's Close does: hides the dialog; an embedded one ends the message loop. Gives 0.
    int destroyDialog();

    /// Resets the sizes and brings one rendition up to date; or each that exists.
    void updateDialogBuild(int is2D);
    void updateAfterSceneGraphChange();

    HWND getBaseWidget() const { return m_baseWidget; }
    /// The inner window, parent of the children.
    HWND getWidget() const { return m_topWidget; }
    HWND getCurrentFocusedWidget() const { return m_currentFocused; }
    void setCurrentFocusedWidget(HWND window) { m_currentFocused = window; }
    /// The window that the mouse wheel scrolls.
    HWND getCurrentScrolledWidget() const { return m_currentScrolled; }
    void setCurrentScrolledWidget(HWND window) { m_currentScrolled = window; }

    /// The first menu bar among the children, or null.
    LuMenuBar* widgetHasMenuBar() const;

    /// Write the fields as the layout's own doing: no sensor of this dialog fires.
    void setPosition(const LvVec2i32& newPosition);
    void setSize(int newWidth, int newHeight, int newMinWidth, int newMinHeight, int newMaxWidth,
                 int newMaxHeight);

    /// Marks the size fields that the user has left open as default.
    void setDefaultState();
    void getDefaultState(LvVec2i32& size, LvVec2i32& minSize, LvVec2i32& maxSize) const;

    void getSize(LvVec2i32& size, LvVec2i32& minSize, LvVec2i32& maxSize);
    void getDefaultSize(LvVec2i32& size, LvVec2i32& minSize, LvVec2i32& maxSize);

    /// Adds (`sign` 1) or takes off (-1) the frame, the title, scroll bars and the menu.
    void fixSizeWithBorder(LvVec2i32& size, int sign) const;

    /// The steps of a layout of the windows: the inner window's size, whatever the argument; its scroll bars;
    /// the children, where the toolkit runs headless in 3D; their place by the bars.
    void updateTopLevelWidget(const LvVec2i32& size);
    void setScrollProperties();
    void updateChildren();
    void updateTopLevelWidgetScrollPosition() { m_scrollBars.scrollToPosition(m_topWidget, false); }

    /// The size of the frame in 3D: (width, height, 1), while collapsed (width, 20, 1).
    LvVec3f getTopLevelSize() const;

    /// Shows or hides the children in 3D, and not the frame.
    void show3DChildren(int show);

    void buildWidget(HWND parent, LvVec2i32& size, LvVec2i32& position, int is2D) override;
    void updateFromSensor(LuSensor* sensor) override;
    void resetSize() override;
    void changeEnable() override;
    void changeLabel() override;

    /// Take the field for the user's. No layout follows.
    virtual void changeWidth() { m_sizes.takeSize(0); }
    virtual void changeHeight() { m_sizes.takeSize(1); }

    void show3D(int show) override;
    void change3DPosition() override;
    void change3DLabel() override;
    void getBoundingBox(LuGetBoundingBoxAction* action) override;

    /// What a press on the panel, a motion with it, and its release do. A press on the frame drags the panel
    /// in its own plane; the release of a press on the minimise button, wherever it comes, collapses or
    /// restores it.
    void draggerStartCallback3D();
    void draggerMotionCallback3D();
    void draggerFinishCallback3D();

    /// What the messages of the windows do; for the window procedures.
    LRESULT handleBaseMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT handleInnerMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

protected:
    ~LuTopLevelDialog() override;

    void childrenChanged() override { updateAfterSceneGraphChange(); }
    void applyWithoutAuditors(LuPanelix* component) override;

private:
    void initWidgetConstant();
    void attachSensors();
    LuDialogComponent* getSizedChild(int index) const;
    LuTopComponent* findMenuBar() const;
    void setChildrenLabelSize();
    void setChildrenComponentSize();
    int getTitleHeight() const;
    LvVec2i32 getInnerSize();
    void computeNewChildrenHeight(const LvVec2i32& inner);
    template <class Build>
    void placeChildren(const LvVec2i32& inner, Build build);

    void createBaseWidget(HWND parent);
    void createTopLevelWidget();
    void updateBaseWidget();
    DWORD getBaseStyle() const;
    void changePosition();
    void changeResizable();
    void changeModalFrame();
    void readWheelLines();
    void handleResize(HWND window, WPARAM wParam);
    void handleWheel(WPARAM wParam);
    void handleKey(UINT message, WPARAM wParam);
    void handleMenu(WPARAM wParam);

    void create3DTopLevelDialog();
    void update3DTopLevelDialog();
    void update3DLabel();
    void update3DChildren();
    void update3DChildrenPosition();
    LvVec3f get3DChildrenTranslation();
    void updateMinimizedState();
    void followPositionInUse();
    void changeIndependentPosition();
    void minimize3DDialog();
    void restore3DDialog();
    static void startCB3D(void* data, LuDragger* dragger);
    static void motionCB3D(void* data, LuDragger* dragger);
    static void finishCB3D(void* data, LuDragger* dragger);
    void startDrag3D();
    void write3DPosition(const LvVec3f& corner);

    LuSFNode frameSep;
    LuSFNode frame;
    LuSFNode labelSep;
    LuSFNode labelProp;
    LuSFNode minSep;
    LuSFNode minSwtch;
    LuSFNode minReleased;
    LuSFNode minPressed;

    HWND m_baseWidget = nullptr;
    HWND m_topWidget = nullptr;
    HWND m_currentFocused = nullptr;
    HWND m_currentScrolled = nullptr;
    int m_embedded = 0;
    int m_firstBuild = 1;
    int m_frameX = 0;
    int m_frameY = 0;
    int m_menuHeight = 0;
    int m_scrollBarWidth = 0;
    int m_titleHeight = 0; ///< 0 while no window has told it.
    std::unique_ptr<LuTopLevelAuditor> m_topAuditor;

    LuFieldSensor* m_marginSensor = nullptr;
    LuFieldSensor* m_modalFrameSensor = nullptr;
    LuFieldSensor* m_rowSpacingSensor = nullptr;
    LuFieldSensor* m_resizableSensor = nullptr;
    LuFieldSensor* m_positionSensor = nullptr;
    LuFieldSensor* m_position3DSensor = nullptr;
    LuFieldSensor* m_minimizedSensor = nullptr;
    LuFieldSensor* m_independentMinimizedPositionSensor = nullptr;
    LuFieldSensor* m_minimized3DPositionSensor = nullptr;
    LuSizeFields m_sizes{width, height, minWidth, minHeight, maxWidth, maxHeight};

    LuScale* m_frameScale = nullptr;
    LuTranslation* m_frameTranslation = nullptr;
    LuTransform* m_frameTransform = nullptr;
    LuTranslation* m_labelTranslation = nullptr;
    LuText3* m_labelText = nullptr;
    LuTranslation* m_minTranslation = nullptr;
    std::unique_ptr<LvPlaneProjector> m_projector; ///< The plane of the drag.
    LvVec3f m_dragWorldPoint;                      ///< Where the drag is, in the scene.
    LvVec3f m_dragStart;                           ///< The position at the start of the drag.
    float m_depth = -1.0F;
    int m_firstMinimize = 1;
};
