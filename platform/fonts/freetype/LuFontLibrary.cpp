// SPDX-License-Identifier: MIT
#include "platform/fonts/freetype/LuFreeTypeSource.h"

#include <cstdlib>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include <fontconfig/fontconfig.h>

namespace {

/// Wine's typefaces, among them Tahoma. Systems do not list the folder with their fonts.
constexpr const char WINE_FONTS[] = "/usr/share/wine/fonts";

struct PatternDeleter {
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
using Pattern = std::unique_ptr<FcPattern, PatternDeleter>;

struct FontSetDeleter {
    void operator()(FcFontSet* set) const { FcFontSetDestroy(set); }
};
using FontSet = std::unique_ptr<FcFontSet, FontSetDeleter>;

struct CharSetDeleter {
    void operator()(FcCharSet* set) const { FcCharSetDestroy(set); }
};
using CharSet = std::unique_ptr<FcCharSet, CharSetDeleter>;

const FcChar8* fcText(const char* text) { return reinterpret_cast<const FcChar8*>(text); }

bool hasFamily(FcPattern* pattern, const std::string& family) {
    FcChar8* name = nullptr;
    for (int i = 0; FcPatternGetString(pattern, FC_FAMILY, i, &name) == FcResultMatch; ++i) {
        if (FcStrCmpIgnoreCase(name, fcText(family.c_str())) == 0)
            return true;
    }
    return false;
}

/// The fonts that fontconfig lists, opened by FreeType when wanted.
class SystemFonts {
public:
    static SystemFonts& get() {
        // Never destroyed, as the faces that use it.
        static SystemFonts& s_fonts = *new SystemFonts;
        return s_fonts;
    }

    LuFontSource* findFamily(std::string_view family, bool& isExact) {
        const std::string name(family);
        const Pattern pattern = makePattern(name, 0);
        if (!pattern)
            return nullptr;
        FcResult result = FcResultNoMatch;
        const FontSet fonts(FcFontSort(m_config, pattern.get(), FcTrue, nullptr, &result));
        for (int i = 0; fonts && i < fonts->nfont; ++i) {
            if (LuFontSource* source = open(fonts->fonts[i])) {
                isExact = hasFamily(fonts->fonts[i], name);
                return source;
            }
        }
        return nullptr;
    }

    LuFontSource* findCharacter(char32_t character, const std::string& family) {
        const Pattern pattern = makePattern(family, character);
        if (!pattern)
            return nullptr;
        FcResult result = FcResultNoMatch;
        const Pattern match(FcFontMatch(m_config, pattern.get(), &result));
        LuFontSource* source = match ? open(match.get()) : nullptr;
        return source && source->hasGlyph(character) ? source : nullptr;
    }

private:
    SystemFonts() {
        if (FT_Init_FreeType(&m_freeType) != 0)
            return;
        // A configuration of our own: fonts that we add are not seen by others in the process.
        m_config = FcInitLoadConfigAndFonts();
        if (m_config && !std::getenv("FONTCONFIG_FILE"))
            FcConfigAppFontAddDir(m_config, fcText(WINE_FONTS));
        // Fontconfig hides its pointers from leak detectors: what it holds has to be given back. Fonts that
        // are open stay so.
        std::atexit([] { get().closeConfiguration(); });
    }

    void closeConfiguration() {
        if (m_config)
            FcConfigDestroy(m_config);
        m_config = nullptr;
    }

    /// Upright outlines of a family; with the wish for a character unless it is 0.
    Pattern makePattern(const std::string& family, char32_t character) const {
        Pattern pattern(m_config ? FcPatternCreate() : nullptr);
        if (!pattern)
            return nullptr;
        FcPatternAddString(pattern.get(), FC_FAMILY, fcText(family.c_str()));
        FcPatternAddBool(pattern.get(), FC_SCALABLE, FcTrue);
        FcPatternAddBool(pattern.get(), FC_OUTLINE, FcTrue);
        if (character != 0) {
            const CharSet characters(FcCharSetCreate());
            FcCharSetAddChar(characters.get(), character);
            FcPatternAddCharSet(pattern.get(), FC_CHARSET, characters.get());
        }
        FcConfigSubstitute(m_config, pattern.get(), FcMatchPattern);
        FcDefaultSubstitute(pattern.get());
        return pattern;
    }

    /// The font of a pattern; null when its file is no scalable font.
    LuFontSource* open(FcPattern* pattern) {
        FcChar8* file = nullptr;
        FcChar8* family = nullptr;
        int index = 0;
        if (FcPatternGetString(pattern, FC_FILE, 0, &file) != FcResultMatch)
            return nullptr;
        FcPatternGetString(pattern, FC_FAMILY, 0, &family);
        FcPatternGetInteger(pattern, FC_INDEX, 0, &index);
        const char* path = reinterpret_cast<const char*>(file);
        const auto [place, isNew] = m_sources.try_emplace({path, index});
        FT_Face face = nullptr;
        if (isNew && FT_New_Face(m_freeType, path, index, &face) == 0) {
            if (FT_IS_SCALABLE(face) && face->units_per_EM > 0)
                place->second = std::make_unique<LuFreeTypeSource>(
                    face, family ? reinterpret_cast<const char*>(family) : path);
            else
                FT_Done_Face(face);
        }
        return place->second.get();
    }

    FT_Library m_freeType = nullptr;
    FcConfig* m_config = nullptr;
    std::map<std::pair<std::string, int>, std::unique_ptr<LuFreeTypeSource>> m_sources;
};

} // namespace

LuFontSource* LuFontLibrary::findFamily(std::string_view family, bool& isExact) {
    return SystemFonts::get().findFamily(family, isExact);
}

LuFontSource* LuFontLibrary::findCharacter(char32_t character, const LuFontSource& source) {
    return SystemFonts::get().findCharacter(character, source.getFamily());
}
