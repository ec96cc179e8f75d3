// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvName.h"

#include <cstdint>

class LuTypedObject;

/// A run-time type: an entry of the process-wide tree of types. Small; pass it by value.
///
/// The test "is derived from" costs the same however deep the tree is.
class LuType {
public:
    using CreateMethod = LuTypedObject* (*)();

    /// The bad type, the parent of all root types.
    LuType() = default;
    static LuType badType() { return {}; }

    /// Makes a type below `parent`. `name` is the name without "Lu" where the class is written to files.
    /// `create` makes an instance, null for an abstract type; `data` is the class's action method index.
    /// A name that a type has already gives that type.
    static LuType createType(LuType parent, LvName name, CreateMethod create, int data);

    /// Forgets a type by its name; false when there is none.
    static bool removeType(LvName name);

    /// The type of a name, with or without its "Lu"; the bad type when there is none.
    static LuType fromName(LvName name);

    /// The registered name nearest to a mistyped one among the types derived from `base`; empty when none is
    /// close.
    static LvName findNearestName(std::string_view word, LuType base);

    bool isBad() const { return m_index == 0; }
    LvName getName() const;
    LuType getParent() const;
    int getData() const;
    bool isDerivedFrom(LuType base) const;
    bool canCreateInstance() const;

    /// A new instance without a reference; null for an abstract type.
    LuTypedObject* createInstance() const;

    friend bool operator==(LuType, LuType) = default;

private:
    explicit LuType(int index) : m_index(static_cast<std::uint16_t>(index)) {}

    std::uint16_t m_index = 0;
};

/// An object that knows its type at run time.
class LuTypedObject {
public:
    virtual LuType getTypeId() const = 0;

    /// True for the object's type and every type above it.
    bool isOfType(LuType type) const { return getTypeId().isDerivedFrom(type); }

protected:
    LuTypedObject() = default;
    LuTypedObject(const LuTypedObject&) = default;
    LuTypedObject& operator=(const LuTypedObject&) = default;
    virtual ~LuTypedObject() = default;
};

/// The distance of two words in edits (insert, remove, replace, swap of neighbours), without regard to case;
/// what tells a nearest known name.
int luEditDistance(std::string_view left, std::string_view right);

/// Picks the candidate nearest to `word` that is close enough to be meant; feed it every candidate.
class LuNearestName {
public:
    explicit LuNearestName(std::string_view word) : m_word(word) {}
    void consider(LvName candidate);
    LvName get() const { return m_best; }

private:
    std::string_view m_word;
    LvName m_best;
    int m_bestDistance = 0;
};
