// SPDX-License-Identifier: MIT
#include "platform/fonts/gdi/LuGdiSource.h"
#include "platform/lumora/base/LvString.h"

#include <map>
#include <memory>
#include <set>
#include <string>

namespace {

using Families = std::set<std::wstring>;

/// Collects the families of outline fonts; `data` is the Families. Those that begin with an at sign are
/// the same fonts turned for vertical text.
int CALLBACK collectFamily(const LOGFONTW* font, const TEXTMETRICW*, DWORD type, LPARAM data) {
    if (!(type & RASTER_FONTTYPE) && font->lfFaceName[0] != L'@')
        reinterpret_cast<Families*>(data)->insert(font->lfFaceName);
    return 1;
}

/// The families of outline fonts that answer to a name; all with an empty one.
Families listFamilies(const std::wstring& name) {
    Families families;
    // A longer name is none of GDI's, and its beginning might be.
    if (name.size() >= LF_FACESIZE)
        return families;
    LOGFONTW font{};
    font.lfCharSet = DEFAULT_CHARSET;
    name.copy(font.lfFaceName, LF_FACESIZE - 1);
    HDC context = CreateCompatibleDC(nullptr);
    EnumFontFamiliesExW(context, &font, collectFamily, reinterpret_cast<LPARAM>(&families), 0);
    DeleteDC(context);
    return families;
}

/// GDI's outline fonts, each opened when wanted.
class SystemFonts {
public:
    static SystemFonts& get() {
        // Never destroyed, as the faces that use it.
        static SystemFonts& s_fonts = *new SystemFonts;
        return s_fonts;
    }

    LuFontSource* findFamily(std::string_view family, bool& isExact) {
        const std::wstring name = LvString(std::string(family)).toWide();
        const Families families = name.empty() ? Families() : listFamilies(name);
        isExact = !families.empty();
        // By the spelling of the system, so that a font is opened once. Some family of its choice is what GDI
        // gives without a name.
        return open(isExact ? *families.begin() : std::wstring());
    }

    LuFontSource* findCharacter(char32_t character) {
        for (const auto& [family, source] : m_sources) {
            if (source && source->hasGlyph(character))
                return source.get();
        }
        if (!m_isListed) {
            m_families = listFamilies({});
            m_isListed = true;
        }
        for (const std::wstring& family : m_families) {
            if (m_sources.find(family) != m_sources.end())
                continue;
            // Only a font that helps is kept open.
            std::unique_ptr<LuGdiSource> source(LuGdiSource::create(family));
            if (source && source->hasGlyph(character))
                return (m_sources[family] = std::move(source)).get();
        }
        return nullptr;
    }

private:
    LuFontSource* open(const std::wstring& family) {
        const auto [place, isNew] = m_sources.try_emplace(family);
        if (isNew)
            place->second.reset(LuGdiSource::create(family));
        return place->second.get();
    }

    std::map<std::wstring, std::unique_ptr<LuGdiSource>> m_sources;
    Families m_families;
    bool m_isListed = false;
};

} // namespace

LuFontSource* LuFontLibrary::findFamily(std::string_view family, bool& isExact) {
    return SystemFonts::get().findFamily(family, isExact);
}

LuFontSource* LuFontLibrary::findCharacter(char32_t character, const LuFontSource&) {
    return SystemFonts::get().findCharacter(character);
}
