// SPDX-License-Identifier: MIT
#pragma once

#include "core/LuTextSize.h"
#include "layout/LuDialogComponent.h"

/// What the controls share: the windows inside the carrier window, and the way to their parts.
///
/// It is no type of its own: each control is registered directly below LuDialogComponent.
class LuControl : public LuDialogComponent {
protected:
    LuControl() = default;

    /// Creates a window inside the carrier window, at (0, 0), with the component's font and enabling. `text`
    /// goes through convertToCString. Null on a failure, which has been reported.
    HWND createChild(const wchar_t* className, DWORD style, const LvString& text, DWORD exStyle = 0,
                     const LvVec2i32& size = {});

    /// Reports a child window that could not be created. The carrier's own failure has been reported already.
    HWND checkChild(HWND child);

    /// Keeps the component in the window's user data, and puts `procedure` before the window's own, which is
    /// stored in `previous`.
    void subclassChild(HWND child, WNDPROC procedure, WNDPROC& previous);

    /// Pixels in the carrier window. A child that does not exist is skipped here and below.
    static void placeChild(HWND child, const LvVec2i32& position, const LvVec2i32& size);
    static void showChild(HWND child, bool isShown);
    static void destroyChild(HWND& child);

    /// `text` goes through convertToCString.
    void setChildText(HWND child, const LvString& text);

    /// Enables the window unless the component's own field, or a container by `isAllowed`, says no.
    void enableChild(HWND child, bool isAllowed = true);

    /// Place and size of what fills the whole component, at the inset of the edge.
    void getContentPlace(LvVec2i32& position, LvVec2i32& size) const;

    /// The size of the component without the room of the edge, in scene units.
    LvVec3f getContentSize3D() const;

    /// The height of a label's window in pixels, and its y in the carrier window: in the middle of the height
    /// without `room`.
    void getLabelRow(int room, int& y, int& height);

    /// The style of a "STATIC" window that stands for the label alignment.
    DWORD getLabelAlignmentStyle() const;

    /// A child window with the input focus hands the keys that move the focus to the top-level dialog's
    /// window. Any other message, and a component without a top-level dialog: nothing happens.
    void handKeyToTopLevel(UINT message, WPARAM key, LPARAM lParam);

    /// Tells the top-level dialog, if there is one, that the user works with this window.
    void setCurrentFocusedChild(HWND child);

    /// A text in 3D: its node, the translation in front of it, and its box, measured when it is asked for.
    struct Text3D {
        LuTranslation* translation = nullptr;
        LuText3* node = nullptr;
        LvBox3f box = getUnsetBox();
    };

    /// Puts a text, of which only the front shows, behind all that a part holds, and its translation in
    /// front.
    void createText3D(const LuSFNode& part, LuTranslation*& translation, LuText3*& text);
    void createText3D(const LuSFNode& part, Text3D& text) { createText3D(part, text.translation, text.node); }

    /// Sets the lines of the text as they are. It stays in its place until it is placed anew.
    static void setText3D(Text3D& text, const LvString& string);
    const LvBox3f& getBox3D(Text3D& text, LuNode* properties);

    /// Makes a check mark of the unit shapes in a part, and gives the translation of its centre.
    LuTranslation* createCheckMark3D(const LuSFNode& part);

    /// The node of a part as a group; it is made when it isn't there.
    LuGroup* getGroupPart(const LuSFNode& part);

    /// Puts a node in front of a part among the children of the part above that.
    void insertBeforePart(LuNode* node, const LuSFNode& part, const LuSFNode& parent);

    /// Moves a text by half its height down, so that it stands in the middle of y 0. `x` is its left end.
    static LvVec3f getTextPlace(float x, const LvBox3f& box);

private:
    LuTextSize m_labelSizeInRow;
};
