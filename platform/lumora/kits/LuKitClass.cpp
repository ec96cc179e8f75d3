// SPDX-License-Identifier: MIT
#include "platform/lumora/kits/LuBaseKit.h"

namespace {

LuNodeClass& prepareClass(LuKitClass& kitClass, void (*initClass)()) {
    // The type comes first: its parent's table is what the class's own starts from.
    if (kitClass.classTypeId.isBad())
        initClass();
    return kitClass;
}

} // namespace

LuKitConstructor::LuKitConstructor(LuKitClass& kitClass, LuBaseKit* kit, void (*initClass)())
    : m_class(kitClass), m_kit(kit), m_fields(prepareClass(kitClass, initClass), kit) {
    m_class.isBuiltIn = true;
    if (!m_class.firstInstance)
        return;
    if (m_class.nodekitCatalog)
        return;
    const LuNodekitCatalog* parent =
        m_class.parentNodekitCatalogPtr ? *m_class.parentNodekitCatalogPtr : nullptr;
    m_class.nodekitCatalog =
        parent ? parent->clone(m_class.classTypeId) : new LuNodekitCatalog(m_class.classTypeId);
}

LuKitConstructor::~LuKitConstructor() {
    if (m_class.nodekitCatalog->hasDefaultParts())
        m_kit->createDefaultParts();
}

void LuKitConstructor::field(const char* name, LuField& field) { m_fields.field(name, field); }

void LuKitConstructor::enumField(const char* name, LuSFEnum& field, const char* typeName,
                                 std::initializer_list<std::pair<const char*, int>> values) {
    m_fields.enumField(name, field, typeName, values);
}

bool LuKitConstructor::part(const char* name, LuSFNode& partField, const char* type, const char* parent,
                            bool isPublic) {
    field(name, partField);
    if (!m_class.firstInstance)
        return true;
    LuNodekitPart part;
    part.name = name;
    part.type = LuType::fromName(type);
    part.defaultType = part.type;
    part.parent = parent;
    part.isPublic = isPublic;
    part.fieldOffset = reinterpret_cast<const char*>(&partField) -
                       reinterpret_cast<const char*>(static_cast<const LuFieldContainer*>(m_kit));
    if (m_class.nodekitCatalog->addEntry(part))
        return true;
    m_kit->catalogError(name);
    return false;
}

void luInitKitClass(LuKitClass& kitClass, LuType parent, LuFieldData** parentFieldData,
                    LuNodekitCatalog** parentCatalog, const char* typeName, LuType::CreateMethod create) {
    kitClass.classMutex.lock();
    luInitNodeClass(kitClass, parent, parentFieldData, typeName, create);
    kitClass.classMutex.unlock();
    kitClass.parentNodekitCatalogPtr = parentCatalog;
}

void luExitKitClass(LuKitClass& kitClass) {
    LuType::removeType(kitClass.classTypeId.getName());
    kitClass.classTypeId = LuType::badType();
    delete kitClass.fieldData;
    kitClass.fieldData = nullptr;
    kitClass.parentFieldData = nullptr;
    kitClass.firstInstance = true;
    delete kitClass.nodekitCatalog;
    kitClass.nodekitCatalog = nullptr;
}

LuFieldData* luGetFieldData(LuKitClass& kitClass) {
    kitClass.classMutex.lock();
    if (!kitClass.fieldData)
        kitClass.fieldData = new LuFieldData(kitClass.parentFieldData ? *kitClass.parentFieldData : nullptr);
    kitClass.classMutex.unlock();
    return kitClass.fieldData;
}
