// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LuType.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// One part of a kit class.
struct LuNodekitPart {
    LvName name;
    LuType type;        ///< What may stand in the part.
    LuType defaultType; ///< What the kit makes itself.
    bool nullByDefault = true;
    LvName parent;       ///< The part it is a child of; "this" for the kit itself.
    LvName rightSibling; ///< The part that comes after it; empty for none.
    bool isList = false;
    LuType listContainerType;
    LuType listItemType;
    bool isPublic = false;
    std::ptrdiff_t fieldOffset = 0; ///< Of the part's LuSFNode field within the kit.

    /// The numbers of `parent` and, or -1, of `rightSibling`; the catalogue fills them in.
    int parentNumber = 0;
    int rightSiblingNumber = -1;
};

/// The table of the parts of a class of kits. Entry 0 is the kit itself, named "this". It is made once for
/// the class.
class LuNodekitCatalog {
public:
    static constexpr int THIS_PART = 0;

    explicit LuNodekitCatalog(LuType kitType);

    /// A copy for a derived class. It is the caller's.
    LuNodekitCatalog* clone(LuType kitType) const;

    /// Adds a part. False for a name that is there already, a parent that isn't, or a bad type.
    bool addEntry(const LuNodekitPart& part);

    int getNumEntries() const { return static_cast<int>(m_parts.size()); }

    /// Index of a part by its name, or by the place of its field within the kit; or -1.
    int getPartNumber(LvName name) const;
    int getPartNumber(std::ptrdiff_t fieldOffset) const;
    LvName getName(int part) const { return getPart(part).name; }
    bool isPublic(int part) const { return getPart(part).isPublic; }
    const LuNodekitPart& getPart(int part) const { return m_parts[static_cast<std::size_t>(part)]; }

    /// True when a kit makes some of its parts itself, in its constructor.
    bool hasDefaultParts() const { return m_hasDefaultParts; }

private:
    void append(const LuNodekitPart& part);

    std::vector<LuNodekitPart> m_parts;
    std::vector<LvName> m_names; ///< Of the parts: searched often, and packed closely for that.

    /// The part whose field stands at each place of the kit where one may; -1 for none.
    std::vector<std::int16_t> m_partsAtPlaces;
    bool m_hasDefaultParts = false;
};
