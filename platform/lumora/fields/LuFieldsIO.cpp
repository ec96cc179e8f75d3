// SPDX-License-Identifier: MIT
#include "platform/lumora/fields/LuFields.h"

#include "platform/lumora/actions/LuWriteAction.h"
#include "platform/lumora/io/LuInput.h"
#include "platform/lumora/io/LuOutput.h"
#include "platform/lumora/nodes/LuNode.h"

#include <cmath>

namespace {

/// Lists up to this length stand on one line.
constexpr int LONGEST_LINE = 4;

bool readNumbers(LuInput* in, auto&... numbers) { return (in->read(numbers) && ...); }

void writeNumbers(LuOutput* out, auto first, auto... rest) {
    out->write(first);
    ((out->isBinary() ? void() : out->writeRaw(" "), out->write(rest)), ...);
}

bool readOne(LuInput* in, bool& value) { return in->read(value); }
bool readOne(LuInput* in, std::int32_t& value) { return in->read(value); }
bool readOne(LuInput* in, float& value) { return in->read(value); }
bool readOne(LuInput* in, LvString& value) { return in->read(value); }
bool readOne(LuInput* in, LvName& value) { return in->read(value); }
bool readOne(LuInput* in, LvVec2i32& value) { return readNumbers(in, value.x, value.y); }
bool readOne(LuInput* in, LvVec2f& value) { return readNumbers(in, value.x, value.y); }
bool readOne(LuInput* in, LvVec3f& value) { return readNumbers(in, value.x, value.y, value.z); }

bool readOne(LuInput* in, LvRotation& value) {
    constexpr float TOLERANCE = 1e-3F;
    if (!readNumbers(in, value.x, value.y, value.z, value.w))
        return false;
    const float length = std::hypot(std::hypot(value.x, value.y), std::hypot(value.z, value.w));
    return std::abs(length - 1) <= TOLERANCE ||
           in->postError("found a rotation of length %g, expected a unit quaternion: x y z w", length);
}

bool readOne(LuInput* in, LvMatrix& value) {
    for (int column = 0; column < 4; ++column) {
        for (int row = 0; row < 4; ++row) {
            if (!in->read(value.at(column, row)))
                return false;
        }
    }
    return true;
}

bool readOne(LuInput* in, LvPlane& value) {
    constexpr float SHORTEST = 1e-6F;
    constexpr float LONGEST = 1e6F;
    LvVec3f normal;
    float distance = 0;
    if (!readOne(in, normal) || !in->read(distance))
        return false;
    const float length = normal.length();
    if (!(length >= SHORTEST && length <= LONGEST))
        return in->postError("found a normal of length %g, expected a direction of length 1", length);
    value = LvPlane(normal, distance);
    return true;
}

void writeOne(LuOutput* out, bool value) { out->write(value); }
void writeOne(LuOutput* out, std::int32_t value) { out->write(value); }
void writeOne(LuOutput* out, float value) { out->write(value); }
void writeOne(LuOutput* out, const LvString& value) { out->write(value); }
void writeOne(LuOutput* out, LvName value) { out->write(value); }
void writeOne(LuOutput* out, const LvVec2i32& value) { writeNumbers(out, value.x, value.y); }
void writeOne(LuOutput* out, const LvVec2f& value) { writeNumbers(out, value.x, value.y); }
void writeOne(LuOutput* out, const LvVec3f& value) { writeNumbers(out, value.x, value.y, value.z); }
void writeOne(LuOutput* out, const LvRotation& value) {
    writeNumbers(out, value.x, value.y, value.z, value.w);
}
void writeOne(LuOutput* out, const LvPlane& value) {
    const LvVec3f& normal = value.getNormal();
    writeNumbers(out, normal.x, normal.y, normal.z, value.getDistanceFromOrigin());
}
void writeOne(LuOutput* out, const LvMatrix& value) {
    for (int i = 0; i < 16; ++i) {
        if (i > 0 && !out->isBinary())
            out->writeRaw(" ");
        out->write(value.at(i / 4, i % 4));
    }
}

bool reportUnknownName(LuInput* in, std::string_view word, const LuEnumData* enums) {
    std::string known = "a number";
    LuNearestName nearest(word);
    if (enums) {
        known.clear();
        for (const auto& [name, value] : enums->getValues()) {
            known += known.empty() ? "one of " : ", ";
            known += name.view();
            nearest.consider(name);
        }
    }
    return in->postError("found %s, expected %s%s", in->describeFound().c_str(), known.c_str(),
                         LuInput::proposal("the name", nearest.get()).c_str());
}

template <class T>
struct KindName;
template <>
struct KindName<bool> {
    static constexpr const char* NAME = "SFBool";
};
template <>
struct KindName<std::int32_t> {
    static constexpr const char* NAME = "SFInt32";
};
template <>
struct KindName<float> {
    static constexpr const char* NAME = "SFFloat";
};
template <>
struct KindName<LvString> {
    static constexpr const char* NAME = "SFString";
};
template <>
struct KindName<LvName> {
    static constexpr const char* NAME = "SFName";
};
template <>
struct KindName<LvVec2i32> {
    static constexpr const char* NAME = "SFVec2i32";
};
template <>
struct KindName<LvVec2f> {
    static constexpr const char* NAME = "SFVec2f";
};
template <>
struct KindName<LvVec3f> {
    static constexpr const char* NAME = "SFVec3f";
};
template <>
struct KindName<LvColor> {
    static constexpr const char* NAME = "SFColor";
};
template <>
struct KindName<LvRotation> {
    static constexpr const char* NAME = "SFRotation";
};
template <>
struct KindName<LvMatrix> {
    static constexpr const char* NAME = "SFMatrix";
};
template <>
struct KindName<LvPlane> {
    static constexpr const char* NAME = "SFPlane";
};
template <>
struct KindName<LuFilePath> {
    static constexpr const char* NAME = "SFFilePathString";
};

/// The least that a value takes in a binary file.
template <class T>
constexpr std::size_t LEAST_BYTES = std::is_base_of_v<LvString, T> ? 4 : sizeof(T);

} // namespace

template <class T>
const char* LuValueIO<T>::singleName() {
    return KindName<T>::NAME;
}

template <class T>
const char* LuValueIO<T>::multipleName() {
    static const std::string s_name = std::string("MF") + (KindName<T>::NAME + 2);
    return s_name.c_str();
}

template <class T>
bool LuValueIO<T>::read(LuInput* in, T& value) {
    return readOne(in, value);
}

template <class T>
void LuValueIO<T>::write(LuOutput* out, const T& value) {
    writeOne(out, value);
}

template <class T>
bool LuSFValue<T>::readValue(LuInput* in) {
    T value{};
    if (!LuValueIO<T>::read(in, value) || !in->endValue())
        return false;
    setValue(value);
    return true;
}

template <class T>
bool LuMFValue<T>::readValue(LuInput* in) {
    std::vector<T> values;
    const auto readNext = [&] { return LuValueIO<T>::read(in, values.emplace_back()); };
    if (in->isBinary()) {
        int count = 0;
        if (!in->readCount(count, LEAST_BYTES<T>))
            return false;
        values.reserve(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i) {
            if (!readNext())
                return false;
        }
    } else if (in->readCharacter('[')) {
        while (!in->readCharacter(']')) {
            if (!readNext())
                return false;
            in->readCharacter(',');
        }
    } else if (!readNext()) {
        return false;
    }
    if (!in->endValue())
        return false;
    setValues(values);
    return true;
}

template <class T>
void LuMFValue<T>::writeValue(LuOutput* out) const {
    if (out->isBinary()) {
        out->write(static_cast<std::int32_t>(getNum()));
        for (const T& value : m_values)
            LuValueIO<T>::write(out, value);
        return;
    }
    if (getNum() == 1) {
        LuValueIO<T>::write(out, m_values[0]);
        return;
    }
    const bool isLong = getNum() > LONGEST_LINE;
    out->writeRaw(isLong ? "[\n" : "[ ");
    out->indent();
    for (int i = 0; i < getNum(); ++i) {
        if (isLong)
            out->writeIndent();
        LuValueIO<T>::write(out, m_values[static_cast<std::size_t>(i)]);
        const bool isLast = i + 1 == getNum();
        out->writeRaw(isLong ? (isLast ? "\n" : ",\n") : (isLast ? " " : ", "));
    }
    out->outdent();
    out->writeIndent();
    out->writeRaw("]");
}

bool LuSFEnum::readValue(LuInput* in) {
    std::int32_t value = 0;
    const char next = in->isBinary() ? '0' : in->peekCharacter();
    const bool isNumber = (next >= '0' && next <= '9') || next == '-' || next == '+';
    if (isNumber) {
        if (!in->read(value) || !in->endValue())
            return false;
        setValue(value);
        return true;
    }
    const std::string_view word = in->readWord();
    const LvName name = LvName::findExisting(word);
    const LuEnumData* const enums = getEnums();
    if (!enums || name.isEmpty() || !enums->findValue(name, value))
        return reportUnknownName(in, word, enums);
    if (!in->endValue())
        return false;
    setValue(value);
    return true;
}

void LuSFEnum::writeValue(LuOutput* out) const {
    LvName name;
    const LuEnumData* const enums = out->isBinary() ? nullptr : getEnums();
    const bool hasName = enums && enums->findName(m_value, name);
    if (hasName)
        out->writeRaw(name.view());
    else
        out->write(static_cast<std::int32_t>(m_value));
}

bool LuSFNode::readValue(LuInput* in) {
    LuBase* base = nullptr;
    const bool isNull = !in->isBinary() && in->readKeyword("NULL");
    if (!isNull && !LuBase::read(in, base, LuNode::getClassTypeId(), false))
        return false;
    auto* const node = static_cast<LuNode*>(base);
    if (!in->endValue()) {
        if (node) {
            node->ref();
            node->unref();
        }
        return false;
    }
    setValue(node);
    return true;
}

void LuSFNode::writeValue(LuOutput* out) const {
    if (m_node)
        LuWriteAction(out).continueToApply(m_node);
    else if (out->isBinary())
        out->write("");
    else
        out->writeRaw("NULL");
}

void LuSFNode::addWriteReferences(LuOutput* out) const {
    if (m_node)
        LuWriteAction(out).continueToApply(m_node);
}

template struct LuValueIO<bool>;
template struct LuValueIO<std::int32_t>;
template struct LuValueIO<float>;
template struct LuValueIO<LvString>;
template struct LuValueIO<LvName>;
template struct LuValueIO<LvVec2i32>;
template struct LuValueIO<LvVec2f>;
template struct LuValueIO<LvVec3f>;
template struct LuValueIO<LvColor>;
template struct LuValueIO<LvRotation>;
template struct LuValueIO<LvMatrix>;
template struct LuValueIO<LvPlane>;
template struct LuValueIO<LuFilePath>;
template bool LuSFValue<bool>::readValue(LuInput*);
template bool LuSFValue<std::int32_t>::readValue(LuInput*);
template bool LuSFValue<float>::readValue(LuInput*);
template bool LuSFValue<LvString>::readValue(LuInput*);
template bool LuSFValue<LvName>::readValue(LuInput*);
template bool LuSFValue<LvVec2i32>::readValue(LuInput*);
template bool LuSFValue<LvVec2f>::readValue(LuInput*);
template bool LuSFValue<LvVec3f>::readValue(LuInput*);
template bool LuSFValue<LvColor>::readValue(LuInput*);
template bool LuSFValue<LvRotation>::readValue(LuInput*);
template bool LuSFValue<LvMatrix>::readValue(LuInput*);
template bool LuSFValue<LvPlane>::readValue(LuInput*);
template bool LuSFValue<LuFilePath>::readValue(LuInput*);
template bool LuMFValue<std::int32_t>::readValue(LuInput*);
template bool LuMFValue<float>::readValue(LuInput*);
template bool LuMFValue<LvString>::readValue(LuInput*);
template bool LuMFValue<LvVec2f>::readValue(LuInput*);
template bool LuMFValue<LvVec3f>::readValue(LuInput*);
template bool LuMFValue<LvColor>::readValue(LuInput*);
template void LuMFValue<std::int32_t>::writeValue(LuOutput*) const;
template void LuMFValue<float>::writeValue(LuOutput*) const;
template void LuMFValue<LvString>::writeValue(LuOutput*) const;
template void LuMFValue<LvVec2f>::writeValue(LuOutput*) const;
template void LuMFValue<LvVec3f>::writeValue(LuOutput*) const;
template void LuMFValue<LvColor>::writeValue(LuOutput*) const;
