// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvGeometry.h"
#include "platform/lumora/base/LvMatrix.h"
#include "platform/lumora/base/LvVec.h"
#include "platform/lumora/fields/LuFieldContainer.h"
#include "platform/lumora/fields/LuValueList.h"

#include <cstdint>

class LuNode;

/// The name of a value type's fields and its form in files, once for single and for multiple values. Each is
/// defined for the value types of the field kinds below.
template <class T>
struct LuValueIO {
    static const char* singleName();
    static const char* multipleName();
    static bool read(LuInput* in, T& value);
    static void write(LuOutput* out, const T& value);
};

/// A field of one value.
template <class T>
class LuSFValue : public LuField {
public:
    LuSFValue() = default;
    explicit LuSFValue(const T& value) : m_value(value) {}

    const T& getValue() const { return m_value; }
    void setValue(const T& value) {
        m_value = value;
        valueChanged();
    }

    /// The same as if a sensor, which may be null, were not attached meanwhile.
    void setValueUnheardBy(LuSensor* sensor, const T& value) {
        m_value = value;
        valueChangedUnheardBy(sensor);
    }
    LuSFValue& operator=(const T& value) {
        setValue(value);
        return *this;
    }
    friend bool operator==(const LuSFValue& field, const T& value) { return field.m_value == value; }

    const char* getTypeName() const override { return LuValueIO<T>::singleName(); }
    bool readValue(LuInput* in) override;
    void writeValue(LuOutput* out) const override { LuValueIO<T>::write(out, m_value); }
    bool isSame(const LuField& other) const override;
    void copyFrom(const LuField& other) override;

private:
    T m_value{};
};

/// A field of any number of values. An index beyond the end makes the list longer with default values.
template <class T>
class LuMFValue : public LuField {
public:
    LuMFValue() = default;
    explicit LuMFValue(const T& value) : m_values(value) {}

    int getNum() const { return static_cast<int>(m_values.size()); }

    /// The value at an index, which must lie within the list.
    const T& operator[](int index) const { return m_values[static_cast<std::size_t>(index)]; }
    const LuValueList<T>& getValues() const { return m_values; }

    /// Makes this the only value.
    void setValue(const T& value) {
        m_values.assign(value);
        valueChanged();
    }
    void setValues(const std::vector<T>& values) {
        m_values.assignAll(values);
        valueChanged();
    }
    void set1Value(int index, T value);
    void setNum(int length);

    /// Opens a gap of `count` default values before the value at `index`.
    void insertSpace(int index, int count);

    /// Removes `count` values from `index` on; -1 all of them to the end.
    void deleteValues(int index, int count);

    const char* getTypeName() const override { return LuValueIO<T>::multipleName(); }
    bool readValue(LuInput* in) override;
    void writeValue(LuOutput* out) const override;
    bool isSame(const LuField& other) const override;
    void copyFrom(const LuField& other) override;

private:
    LuValueList<T> m_values;
};

/// The path of a file; kept apart from other texts so that tools can tell.
struct LuFilePath : LvString {
    using LvString::LvString;
    LuFilePath() = default;
    LuFilePath(const LvString& text) : LvString(text) {}
};

using LuSFBool = LuSFValue<bool>;
using LuSFInt32 = LuSFValue<std::int32_t>;
using LuSFFloat = LuSFValue<float>;
using LuSFString = LuSFValue<LvString>;
using LuSFName = LuSFValue<LvName>;
using LuSFVec2i32 = LuSFValue<LvVec2i32>;
using LuSFVec2f = LuSFValue<LvVec2f>;
using LuSFVec3f = LuSFValue<LvVec3f>;
using LuSFColor = LuSFValue<LvColor>;
using LuSFRotation = LuSFValue<LvRotation>;
using LuSFMatrix = LuSFValue<LvMatrix>;
using LuSFPlane = LuSFValue<LvPlane>;
using LuSFFilePathString = LuSFValue<LuFilePath>;
using LuMFInt32 = LuMFValue<std::int32_t>;
using LuMFFloat = LuMFValue<float>;
using LuMFString = LuMFValue<LvString>;
using LuMFVec2f = LuMFValue<LvVec2f>;
using LuMFVec3f = LuMFValue<LvVec3f>;
using LuMFColor = LuMFValue<LvColor>;

// The members are compiled once, in LuFields.cpp and LuFieldsIO.cpp.
extern template class LuSFValue<bool>;
extern template class LuSFValue<std::int32_t>;
extern template class LuSFValue<float>;
extern template class LuSFValue<LvString>;
extern template class LuSFValue<LvName>;
extern template class LuSFValue<LvVec2i32>;
extern template class LuSFValue<LvVec2f>;
extern template class LuSFValue<LvVec3f>;
extern template class LuSFValue<LvColor>;
extern template class LuSFValue<LvRotation>;
extern template class LuSFValue<LvMatrix>;
extern template class LuSFValue<LvPlane>;
extern template class LuSFValue<LuFilePath>;
extern template class LuMFValue<std::int32_t>;
extern template class LuMFValue<float>;
extern template class LuMFValue<LvString>;
extern template class LuMFValue<LvVec2f>;
extern template class LuMFValue<LvVec3f>;
extern template class LuMFValue<LvColor>;

/// A field of one number out of a list of names; files hold the name.
class LuSFEnum : public LuField {
public:
    LuSFEnum() = default;
    explicit LuSFEnum(int value) : m_value(value) {}

    int getValue() const { return m_value; }

    /// Takes any number, as users of the field may: one without a name is written as a number.
    void setValue(int value) {
        m_value = value;
        valueChanged();
    }
    LuSFEnum& operator=(int value) {
        setValue(value);
        return *this;
    }
    /// The names, which belong to the class's LuFieldData. Null for a field of no object.
    const LuEnumData* getEnums() const;

    const char* getTypeName() const override { return "SFEnum"; }
    bool readValue(LuInput* in) override;
    void writeValue(LuOutput* out) const override;
    bool isSame(const LuField& other) const override;
    void copyFrom(const LuField& other) override;

private:
    int m_value = 0;
};

/// A field that holds a node, with a reference, or none. A change in the node counts as a change of the
/// field.
class LuSFNode : public LuField {
public:
    LuSFNode() : LuField(true) {}
    ~LuSFNode() override;

    LuNode* getValue() const { return m_node; }
    void setValue(LuNode* node);
    LuSFNode& operator=(LuNode* node) {
        setValue(node);
        return *this;
    }

    const char* getTypeName() const override { return "SFNode"; }
    bool readValue(LuInput* in) override;
    void writeValue(LuOutput* out) const override;
    void addWriteReferences(LuOutput* out) const override;
    bool isSame(const LuField& other) const override;
    void copyFrom(const LuField& other) override;

private:
    void hold(LuNode* node);

    LuNode* m_node = nullptr;
};
