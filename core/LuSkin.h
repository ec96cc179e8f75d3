// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <vector>

/// The skin of one class: the file it comes from, the text that stands in for a missing file, and the DEF
/// names of its groups. All instances of the class share the groups.
class LuSkin {
public:
    /// `text` lives as long as the program.
    LuSkin(const char* file, const char* text, std::initializer_list<const char*> names)
        : m_file(file), m_text(text), m_names(names) {}

    /// Reads the skin before the first use by the class. Later calls do nothing.
    void loadOnFirstUse();

    /// Reads the skin again and gives the groups in use the new geometry.
    void change();

    int isLoaded() const { return m_isLoaded; }
    void setLoaded(int isLoaded) { m_isLoaded = isLoaded; }

private:
    const char* m_file;
    const char* m_text;
    std::vector<const char*> m_names;
    int m_isLoaded = 0;
    bool m_isFirstRead = true;
};

/// The static operations of a class that has a skin; the source file defines s_skin and the text `Text`.
#define LU_SKIN_HEADER(Text)                                                                                 \
public:                                                                                                      \
    static const char* Text;                                                                                 \
    static void change3DSkin() { s_skin.change(); }                                                          \
    static int isSkinLoaded() { return s_skin.isLoaded(); }                                                  \
    static void setSkinLoaded(int isLoaded) { s_skin.setLoaded(isLoaded); }                                  \
                                                                                                             \
private:                                                                                                     \
    static LuSkin s_skin;                                                                                    \
                                                                                                             \
public:
