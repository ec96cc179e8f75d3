// SPDX-License-Identifier: MIT
#include "platform/lumora/fields/LuFieldContainer.h"

#include <algorithm>

void LuEnumData::addValue(LvName name, int value) { m_values.emplace_back(name, value); }

bool LuEnumData::findValue(LvName name, int& value) const {
    for (const auto& [rowName, rowValue] : m_values) {
        if (rowName == name) {
            value = rowValue;
            return true;
        }
    }
    return false;
}

bool LuEnumData::findName(int value, LvName& name) const {
    for (const auto& [rowName, rowValue] : m_values) {
        if (rowValue == value) {
            name = rowName;
            return true;
        }
    }
    return false;
}

LuFieldData::LuFieldData(const LuFieldData* parent) {
    if (!parent)
        return;
    m_rows = parent->m_rows;
    m_enums = parent->m_enums;
    m_firstOwnEnum = m_enums.size();
}

LuFieldData::~LuFieldData() {
    for (std::size_t i = m_firstOwnEnum; i < m_enums.size(); ++i)
        delete m_enums[i];
}

void LuFieldData::addField(const LuFieldContainer* container, LvName name, const LuField* field) {
    const auto offset = reinterpret_cast<const char*>(field) - reinterpret_cast<const char*>(container);
    m_rows.push_back({name, offset, nullptr});
}

LuField* LuFieldData::getField(const LuFieldContainer* container, int index) const {
    const char* start = reinterpret_cast<const char*>(container);
    const char* field = start + m_rows[static_cast<std::size_t>(index)].offset;
    return reinterpret_cast<LuField*>(const_cast<char*>(field));
}

int LuFieldData::getIndex(LvName name) const {
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        if (m_rows[i].name == name)
            return static_cast<int>(i);
    }
    return -1;
}

LvName LuFieldData::findNearestName(std::string_view word) const {
    LuNearestName nearest(word);
    for (const Row& row : m_rows)
        nearest.consider(row.name);
    return nearest.get();
}

void LuFieldData::addEnumValue(LvName typeName, LvName name, int value) {
    // A derived class that takes an enum type up again starts its own: the parent's names stay the parent's.
    for (std::size_t i = m_firstOwnEnum; i < m_enums.size(); ++i) {
        if (m_enums[i]->getTypeName() == typeName) {
            m_enums[i]->addValue(name, value);
            return;
        }
    }
    m_enums.push_back(new LuEnumData(typeName));
    m_enums.back()->addValue(name, value);
}

const LuEnumData* LuFieldData::getEnumData(LvName typeName) const {
    const auto found = std::find_if(m_enums.rbegin(), m_enums.rend(), [typeName](const LuEnumData* data) {
        return data->getTypeName() == typeName;
    });
    return found == m_enums.rend() ? nullptr : *found;
}

const LuEnumData* LuFieldData::getEnumOfField(const LuFieldContainer* container, const LuField* field) const {
    const auto offset = reinterpret_cast<const char*>(field) - reinterpret_cast<const char*>(container);
    const auto found =
        std::find_if(m_rows.begin(), m_rows.end(), [offset](const Row& row) { return row.offset == offset; });
    return found == m_rows.end() ? nullptr : found->enums;
}

LuType LuFieldContainer::getClassTypeId() {
    static const LuType s_type = LuType::createType(LuBase::getClassTypeId(), "FieldContainer", nullptr, 0);
    return s_type;
}

int LuFieldContainer::getNumFields() const {
    const LuFieldData* data = getFieldData();
    return data ? data->getNumFields() : 0;
}

LuField* LuFieldContainer::getField(int index) const {
    return index >= 0 && index < getNumFields() ? getFieldData()->getField(this, index) : nullptr;
}

LuField* LuFieldContainer::getField(LvName name) const {
    const LuFieldData* data = getFieldData();
    const int index = data ? data->getIndex(name) : -1;
    return index < 0 ? nullptr : data->getField(this, index);
}

LvName LuFieldContainer::getFieldName(const LuField* field) const {
    for (int i = 0; i < getNumFields(); ++i) {
        if (getField(i) == field)
            return getFieldData()->getFieldName(i);
    }
    return {};
}

bool LuFieldContainer::fieldsAreEqual(const LuFieldContainer& other) const {
    if (getTypeId() != other.getTypeId())
        return false;
    for (int i = 0; i < getNumFields(); ++i) {
        if (!getField(i)->isSame(*other.getField(i)))
            return false;
    }
    return true;
}
