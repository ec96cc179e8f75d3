// SPDX-License-Identifier: MIT
#pragma once

#include "core/LuPanelix.h"

#include <string>

/// A component that shows its protected side, and notes what the base calls.
class OpenPanelix : public LuPanelix {
public:
    using LuPanelix::addAuditor;
    using LuPanelix::compute3DDepth;
    using LuPanelix::getAuditor;
    using LuPanelix::getAuditorListLength;
    using LuPanelix::insertTextTo3DText;
    using LuPanelix::isLabelCachedBBox;
    using LuPanelix::m_material;
    using LuPanelix::m_pickStyle;
    using LuPanelix::measureText;
    using LuPanelix::readFromFile;
    using LuPanelix::removeAuditor;
    using LuPanelix::setLabelCacheBBox;
    using LuPanelix::setStringToText3;
    using LuPanelix::undoTransformMatrix;
    using LuPanelix::wrap3DTextLine;

    void build(int is2D) {
        LvVec2i32 none;
        buildWidget(nullptr, none, none, is2D);
    }
    void changeEnable() override { calls += "changeEnable "; }
    void change3DEnable() override {
        calls += "change3DEnable ";
        LuPanelix::change3DEnable();
    }
    void changeLabel() override { calls += "changeLabel "; }
    void set3DInactive() override {
        calls += "set3DInactive ";
        LuPanelix::set3DInactive();
    }
    const char* getLineEnd() const override { return lineEnd; }
    bool keepsEscapes() const override { return areEscapesKept; }
    bool isSingleLine() const override { return isOneLine; }
    bool isTopLevelDialog() const override { return isTopLevel; }
    bool isDialogGroup() const override { return isGroup; }

    std::string calls;
    const char* lineEnd = "\n";
    bool areEscapesKept = false;
    bool isOneLine = false;
    bool isTopLevel = false;
    bool isGroup = false;
};
