// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/fields/LuField.h"

#include <cstddef>
#include <utility>

/// The names and numbers of an enum field.
class LuEnumData {
public:
    explicit LuEnumData(LvName typeName) : m_typeName(typeName) {}

    LvName getTypeName() const { return m_typeName; }
    void addValue(LvName name, int value);

    /// False when there is no such name or number.
    bool findValue(LvName name, int& value) const;
    bool findName(int value, LvName& name) const;

    const std::vector<std::pair<LvName, int>>& getValues() const { return m_values; }

private:
    LvName m_typeName;
    std::vector<std::pair<LvName, int>> m_values;
};

/// The table of the fields and enums of a class. It is made once for the class; an object costs its fields.
class LuFieldData {
public:
    /// Starts with what the parent class has.
    explicit LuFieldData(const LuFieldData* parent = nullptr);
    ~LuFieldData();
    LuFieldData(const LuFieldData&) = delete;
    LuFieldData& operator=(const LuFieldData&) = delete;

    /// Adds a row for a member of the object's class.
    void addField(const LuFieldContainer* container, LvName name, const LuField* field);

    int getNumFields() const { return static_cast<int>(m_rows.size()); }
    LvName getFieldName(int index) const { return m_rows[static_cast<std::size_t>(index)].name; }
    LuField* getField(const LuFieldContainer* container, int index) const;

    /// Index of a field by its name, or -1.
    int getIndex(LvName name) const;
    LvName findNearestName(std::string_view word) const;

    /// Adds a name to an enum type, which comes into being with its first name.
    void addEnumValue(LvName typeName, LvName name, int value);
    const LuEnumData* getEnumData(LvName typeName) const;

    /// Says which enum the field that was added last is of; and tells it of a field of an object. Null for
    /// other fields.
    void setEnumOfLastField(LvName typeName) { m_rows.back().enums = getEnumData(typeName); }
    const LuEnumData* getEnumOfField(const LuFieldContainer* container, const LuField* field) const;

    /// Reads fields by name and value for as long as words of the file name fields of the class. A word that
    /// names none is left to the caller, who may find a child there; with `errorOnUnknownField` it is a
    /// failure.
    bool read(LuInput* in, LuFieldContainer* container, bool errorOnUnknownField) const;

    /// Writes the fields whose default flag is clear.
    void write(LuOutput* out, const LuFieldContainer* container) const;

private:
    bool readText(LuInput* in, LuFieldContainer* container, bool errorOnUnknownField) const;
    bool readBinary(LuInput* in, LuFieldContainer* container) const;

    struct Row {
        LvName name;
        std::ptrdiff_t offset;
        const LuEnumData* enums = nullptr; ///< Of an enum field.
    };
    std::vector<Row> m_rows;
    std::vector<LuEnumData*> m_enums; ///< Those of the parent too.
    std::size_t m_firstOwnEnum = 0;
};

/// An object with fields.
class LuFieldContainer : public LuBase {
public:
    static LuType getClassTypeId();

    /// The table of the object's class; null for a class without fields.
    virtual const LuFieldData* getFieldData() const { return nullptr; }

    /// A field by its name, null when there is none.
    LuField* getField(LvName name) const;

    /// The name of one of this object's fields; empty for any other.
    LvName getFieldName(const LuField* field) const;

    int getNumFields() const;
    LuField* getField(int index) const;

    /// Sets fields from text, as it stands between the braces of a file. False, with a message, when it
    /// can't be read.
    bool set(const LvString& text);

    /// True when both have the same type and equal values in all fields.
    bool fieldsAreEqual(const LuFieldContainer& other) const;

    /// Reads the value of one of this object's fields.
    virtual bool readField(LuInput* in, LuField* field) { return field->readValue(in); }

    bool readInstance(LuInput* in, unsigned short flags) override;
    void addWriteReference(LuOutput* out, bool isFromField = false) override;
};

inline void LuField::touch() { valueChanged(false); }

inline void LuField::valueChanged(bool clearDefault) {
    if (clearDefault)
        m_isDefault = false;
    // Most fields are set while an object is set up, when nobody has to be told.
    if (!m_observers.isEmpty() || (m_container && m_container->tellsOfChanges()))
        tellOfChange(nullptr);
}
