// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LuBase.h"

#include "platform/lumora/fields/LuFieldContainer.h"
#include "platform/lumora/io/LuInput.h"
#include "platform/lumora/io/LuOutput.h"

namespace {

constexpr unsigned short HAS_CHILDREN = 2;

LuType findType(std::string_view word) {
    const LuType type = LuType::fromName(LvName::findExisting(word));
    const bool mayHavePrefix = type.isBad() && word.starts_with("Lu");
    return mayHavePrefix ? LuType::fromName(LvName::findExisting(word.substr(2))) : type;
}

bool isNumber(std::string_view word) {
    return !word.empty() && std::string_view("0123456789+-.").find(word[0]) != std::string_view::npos;
}

/// Reports a word that names neither a field of the object that is being read nor a type of what may stand
/// here. What follows the word tells which of the two was meant.
bool reportUnknown(LuInput* in, std::string_view word, LuType wanted) {
    const auto* enclosing = dynamic_cast<const LuFieldContainer*>(in->getEnclosing());
    const std::string found = in->describeFound();
    const char* const wantedName = wanted.getName().getString();
    if (!enclosing)
        return in->postError("found %s, expected a type of %s%s", found.c_str(), wantedName,
                             LuInput::proposal("the type", LuType::findNearestName(word, wanted)).c_str());
    const char* const className = enclosing->getTypeId().getName().getString();
    if (isNumber(word))
        return in->postError("found %s, expected a field of %s or \"}\"", found.c_str(), className);

    const char* const place = word.data();
    const bool isType = in->peekCharacter() == '{';
    in->pointAt(place);
    if (isType)
        return in->postError("found %s, which is neither a type of %s nor a field of %s%s", found.c_str(),
                             wantedName, className,
                             LuInput::proposal("the type", LuType::findNearestName(word, wanted)).c_str());
    const LuFieldData* data = enclosing->getFieldData();
    const LvName nearest = data ? data->findNearestName(word) : LvName();
    return in->postError("found %s, which is neither a field of %s nor a type of %s%s", found.c_str(),
                         className, wantedName, LuInput::proposal("the field", nearest).c_str());
}

/// What stands in front of an object's fields.
struct Header {
    bool isUse = false;
    std::string_view usedName;
    LvName name;
    LuType type;
    unsigned short flags = 0;
};

bool checkType(LuInput* in, const Header& header, LuType wanted) {
    if (!header.type.isDerivedFrom(wanted))
        return in->postError("found a node of type %s, expected one of type %s",
                             header.type.getName().getString(), wanted.getName().getString());
    return header.type.canCreateInstance() ||
           in->postError("the type %s is abstract: there are no nodes of it, only of types derived from it",
                         header.type.getName().getString());
}

bool readTextHeader(LuInput* in, LuType wanted, Header& header) {
    std::string_view word = in->readWord();
    if (word == "USE") {
        header.isUse = true;
        LvName name;
        if (in->peekCharacter() != '"') {
            header.usedName = in->readWord();
            return !header.usedName.empty() ||
                   in->postError("found %s, expected a name after USE", in->describeFound().c_str());
        }
        const bool isRead = in->read(name);
        header.usedName = name.view();
        return isRead;
    }
    if (word == "DEF") {
        if (!in->readIdentifier(header.name, "after DEF"))
            return false;
        word = in->readWord();
    }
    if (word.empty())
        return in->postError("found %s, expected a type of %s", in->describeFound().c_str(),
                             wanted.getName().getString());
    header.type = findType(word);
    if (header.type.isBad())
        return reportUnknown(in, word, wanted);
    return checkType(in, header, wanted);
}

/// `isEmpty` is set for the place of an object where there is none.
bool readBinaryHeader(LuInput* in, LuType wanted, Header& header, bool& isEmpty) {
    std::string_view typeName;
    if (!in->readBinaryText(typeName))
        return false;
    isEmpty = typeName.empty();
    if (isEmpty)
        return true;
    if (typeName == "USE") {
        header.isUse = true;
        return in->readBinaryText(header.usedName);
    }
    header.type = findType(typeName);
    if (header.type.isBad())
        return in->postError(
            "found the type \"%s\", expected a type of %s%s", std::string(typeName.substr(0, 100)).c_str(),
            wanted.getName().getString(),
            LuInput::proposal("the type", LuType::findNearestName(typeName, wanted)).c_str());
    if (!checkType(in, header, wanted))
        return false;
    std::int32_t flags = 0;
    if (!in->read(flags))
        return false;
    if (flags & ~HAS_CHILDREN)
        return in->postError("found the flags %d, expected 0 or 2", flags);
    header.flags = static_cast<unsigned short>(flags);
    return in->read(header.name);
}

/// After the fields and children of a text: the closing brace and nothing else.
bool readClosingBrace(LuInput* in, LuType type) {
    if (in->readCharacter('}'))
        return true;
    const std::string found = in->describeNext();
    const std::string_view word = in->readWord();
    const char* const typeName = type.getName().getString();
    const bool isChild = word == "USE" || word == "DEF" || !findType(word).isBad();
    if (isChild)
        return in->postError("found %s, but a %s has no children", found.c_str(), typeName);
    if (word.empty())
        return in->postError("found %s, expected a field of %s or \"}\"", found.c_str(), typeName);
    return reportUnknown(in, word, LuType::fromName("Node"));
}

bool readBody(LuInput* in, LuBase* object, const Header& header) {
    LuInput::Level level;
    level.object = object;
    level.name = header.name;
    if (!in->begin(level))
        return false;
    bool isRead = in->isBinary() || in->expectCharacter('{', "after the type of a node");
    isRead = isRead && object->readInstance(in, header.flags);
    isRead = isRead && (in->isBinary() || readClosingBrace(in, header.type));
    return in->end(level) && isRead;
}

} // namespace

bool LuBase::read(LuInput* in, LuBase*& base, LuType type, bool isChild) {
    base = nullptr;
    if (in->hasFailed())
        return false;
    Header header;
    if (in->isBinary()) {
        bool isEmpty = false;
        if (isChild && !in->getEnclosing() && in->isAtEnd())
            return true;
        if (!readBinaryHeader(in, type, header, isEmpty) || isEmpty)
            return !in->hasFailed();
    } else {
        const char next = in->peekCharacter();
        if (isChild && (next == '}' || in->isAtEnd()))
            return true;
        if (!readTextHeader(in, type, header))
            return false;
    }
    if (header.isUse) {
        LuBase* const used = in->findNamed(header.usedName);
        if (!used)
            return false;
        header.type = used->getTypeId();
        if (!checkType(in, header, type))
            return false;
        base = used;
        return true;
    }
    auto* const object = static_cast<LuBase*>(header.type.createInstance());
    object->ref();
    if (!LuOutput::isGeneratedName(header.name.view()))
        object->setName(header.name);
    if (!readBody(in, object, header)) {
        object->unref();
        return false;
    }
    object->unrefNoDestroy();
    base = object;
    return true;
}

bool LuBase::readInstance(LuInput* in, unsigned short flags) {
    std::int32_t fields = 0;
    if (!in->isBinary())
        return true;
    if (!in->read(fields))
        return false;
    return (fields == 0 && flags == 0) || in->postError("found fields or children of an object without any");
}

void LuBase::addWriteReference(LuOutput* out, bool) { out->addReference(this); }

bool LuBase::shouldWrite() {
    const LuOutput* out = LuOutput::getCurrent();
    return !out || out->isCounted(this);
}

bool LuBase::writeHeader(LuOutput* out, bool isGroup, bool) {
    const bool isUse = out->markWritten(this);
    const LvName name = out->getWrittenName(this);
    if (out->isBinary()) {
        out->write(isUse ? "USE" : getTypeId().getName().getString());
        if (!isUse)
            out->write(std::int32_t(isGroup ? HAS_CHILDREN : 0));
        out->write(name);
        return isUse;
    }
    out->writeIndent();
    if (!name.isEmpty()) {
        out->writeRaw(isUse ? "USE " : "DEF ");
        out->writeIdentifier(name.view());
        out->writeRaw(isUse ? "" : " ");
    }
    if (isUse) {
        out->writeLineEnd();
        return true;
    }
    out->writeRaw(getTypeId().getName().view());
    out->openBrace();
    return false;
}

void LuBase::writeFooter(LuOutput* out) {
    if (!out->isBinary())
        out->closeBrace();
}
