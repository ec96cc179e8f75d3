// SPDX-License-Identifier: MIT
#pragma once

#include "platform/fonts/LuFontSource.h"

/// What stands for a font where the system has none: each character is an empty box of half an em, a space
/// is a space.
class LuBoxFontSource : public LuFontSource {
public:
    const std::string& getFamily() const override { return m_family; }
    bool hasGlyph(char32_t) override { return true; }
    float loadGlyph(char32_t character, std::vector<LuOutlineContour>& outline) override;
    float getAscent() const override { return 0.8f; }
    float getDescent() const override { return 0.2f; }
    int loadPixelAdvance(char32_t character, int pixels) override;
    int loadLineHeight(int pixels) override { return pixels; }

private:
    std::string m_family = "boxes";
};
