// SPDX-License-Identifier: MIT
#include "platform/lumora/fields/LuFieldContainer.h"

#include "platform/lumora/io/LuInput.h"
#include "platform/lumora/io/LuOutput.h"

namespace {

/// A field's flag in a binary file.
constexpr std::int32_t IS_IGNORED = 1;

/// A field in a binary file takes its name's length, its flags and some value.
constexpr std::size_t LEAST_FIELD = 12;

bool reportUnknownField(LuInput* in, const LuFieldData& data, const LuFieldContainer* container,
                        std::string_view word) {
    const std::string shown(word.substr(0, 100));
    return in->postError("found \"%s\", expected a field of %s%s", shown.c_str(),
                         container->getTypeId().getName().getString(),
                         LuInput::proposal("the field", data.findNearestName(word)).c_str());
}

} // namespace

bool LuFieldData::read(LuInput* in, LuFieldContainer* container, bool errorOnUnknownField) const {
    return in->isBinary() ? readBinary(in, container) : readText(in, container, errorOnUnknownField);
}

bool LuFieldData::readText(LuInput* in, LuFieldContainer* container, bool errorOnUnknownField) const {
    for (;;) {
        const std::string_view word = in->readWord();
        if (word.empty())
            return !in->hasFailed();
        const LvName name = LvName::findExisting(word);
        const int index = name.isEmpty() ? -1 : getIndex(name);
        if (index < 0) {
            if (errorOnUnknownField)
                return reportUnknownField(in, *this, container, word);
            in->putBackWord();
            return true;
        }
        LuField* const field = getField(container, index);
        if (!container->readField(in, field))
            return false;
        field->setIgnored(in->readCharacter('~'));
    }
}

bool LuFieldData::readBinary(LuInput* in, LuFieldContainer* container) const {
    int count = 0;
    if (!in->readCount(count, LEAST_FIELD))
        return false;
    for (int i = 0; i < count; ++i) {
        std::string_view word;
        std::int32_t flags = 0;
        if (!in->readBinaryText(word))
            return false;
        const LvName name = LvName::findExisting(word);
        const int index = name.isEmpty() ? -1 : getIndex(name);
        if (index < 0)
            return reportUnknownField(in, *this, container, word);
        if (!in->read(flags))
            return false;
        if (flags & ~IS_IGNORED)
            return in->postError("found the flags %d of a field, expected 0 or 1", flags);
        LuField* const field = getField(container, index);
        if (!container->readField(in, field))
            return false;
        field->setIgnored((flags & IS_IGNORED) != 0);
    }
    return true;
}

void LuFieldData::write(LuOutput* out, const LuFieldContainer* container) const {
    std::int32_t count = 0;
    for (int i = 0; i < getNumFields(); ++i)
        count += getField(container, i)->isDefault() ? 0 : 1;
    if (out->isBinary())
        out->write(count);
    for (int i = 0; i < getNumFields(); ++i) {
        const LuField* field = getField(container, i);
        if (field->isDefault())
            continue;
        if (out->isBinary()) {
            out->write(getFieldName(i));
            out->write(field->isIgnored() ? IS_IGNORED : 0);
            field->writeValue(out);
            continue;
        }
        out->writeIndent();
        out->writeRaw(getFieldName(i).view());
        out->writeRaw(" ");
        field->writeValue(out);
        if (field->isIgnored())
            out->writeRaw(" ~");
        out->writeLineEnd();
    }
}

bool LuFieldContainer::readInstance(LuInput* in, unsigned short flags) {
    const LuFieldData* data = getFieldData();
    if (!data)
        return LuBase::readInstance(in, flags);
    const bool wasNotifying = enableNotify(false);
    if (!data->read(in, this, false))
        return false;
    if (flags != 0)
        return in->postError("found children, but a %s has none", getTypeId().getName().getString());
    enableNotify(wasNotifying);
    return true;
}

void LuFieldContainer::addWriteReference(LuOutput* out, bool) {
    if (!out->addReference(this))
        return;
    for (int i = 0; i < getNumFields(); ++i) {
        const LuField* field = getField(i);
        if (!field->isDefault())
            field->addWriteReferences(out);
    }
}

bool LuFieldContainer::set(const LvString& text) {
    const LuFieldData* data = getFieldData();
    LuInput in;
    in.setBuffer(text.getString(), static_cast<std::size_t>(text.getLength()));
    if (data && !data->read(&in, this, true))
        return false;
    if (in.isAtEnd())
        return !in.hasFailed();
    const std::string found = in.describeNext();
    return in.postError("found %s, expected a field of %s", found.c_str(), getTypeId().getName().getString());
}

LvString LuField::getText() const {
    LuOutput out;
    out.setWithoutHeader();
    LuOutput* const before = LuOutput::getCurrent();
    LuOutput::setCurrent(&out);
    addWriteReferences(&out);
    out.setStage(LuOutput::WRITE);
    writeValue(&out);
    LuOutput::setCurrent(before);
    std::string text = out.getBuffer();
    if (text.ends_with('\n'))
        text.pop_back();
    return text;
}

bool LuField::setText(const LvString& text) {
    LuInput in;
    in.setBuffer(text.getString(), static_cast<std::size_t>(text.getLength()));
    in.setSingleValue();
    return readValue(&in);
}
