// SPDX-License-Identifier: MIT
#include "platform/fonts/LuFontFace.h"

#include "platform/fonts/LuBoxFontSource.h"
#include "platform/fonts/LuCachedFontFace.h"
#include "platform/lumora/base/LuDebugError.h"

#include <map>
#include <memory>
#include <string>

namespace {

class Faces {
public:
    const LuFontFace* find(std::string_view family) {
        // One text after the other has the same.
        if (m_last && m_lastName == family)
            return m_last;
        m_last = findByName(family);
        m_lastName = family;
        return m_last;
    }

private:
    const LuFontFace* findByName(std::string_view family) {
        const auto place = m_byName.find(family);
        if (place != m_byName.end())
            return place->second;
        const LuFontFace* face = open(family);
        m_byName.emplace(family, face);
        return face;
    }

    const LuFontFace* open(std::string_view family) {
        const std::string name(family);
        bool isExact = false;
        LuFontSource* source = LuFontLibrary::findFamily(family, isExact);
        if (!source) {
            LuDebugError::post("LuFontFace::find",
                               "No font for \"%s\": the system has none, boxes stand for characters",
                               name.c_str());
            source = &m_boxes;
        } else if (!isExact) {
            LuDebugError::post("LuFontFace::find", "No font family \"%s\", \"%s\" takes its place",
                               name.c_str(), source->getFamily().c_str());
        }
        std::unique_ptr<LuCachedFontFace>& face = m_bySource[source];
        if (!face)
            face = std::make_unique<LuCachedFontFace>(*source);
        return face.get();
    }

    std::string m_lastName;
    const LuFontFace* m_last = nullptr;
    LuBoxFontSource m_boxes;
    std::map<std::string, const LuFontFace*, std::less<>> m_byName;
    std::map<LuFontSource*, std::unique_ptr<LuCachedFontFace>> m_bySource;
};

} // namespace

const LuFontFace* LuFontFace::find(std::string_view family) {
    // Never destroyed: other statics may measure texts while the process ends.
    static Faces& s_faces = *new Faces;
    return s_faces.find(family);
}
