// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LuType.h"

/// The root of the callback interfaces by which components tell a program what the user did.
///
/// A program derives from one of the auditors and attaches it with the component's addAuditor. Auditors are
/// neither counted nor owned: the program keeps each alive for as long as it is attached. They are called on
/// the thread of the event, and may detach themselves or others meanwhile.
class LuAuditor : public LuTypedObject {
public:
    static void initClass();
    static void exitClass();
    static LuType getClassTypeId() { return s_classTypeId; }
    LuType getTypeId() const override { return s_classTypeId; }

    /// Registers the types of all auditors but LuTabDialogAuditor, whose user calls its initClass.
    static void initClasses();

    /// Removes them, in reverse.
    static void exitClasses();

protected:
    LuAuditor() = default;
    ~LuAuditor() override = default;

private:
    static LuType s_classTypeId;
};

/// What each class of auditors says in its definition, and LU_AUDITOR_SOURCE in a source file.
#define LU_AUDITOR_HEADER(Class)                                                                             \
public:                                                                                                      \
    static void initClass();                                                                                 \
    static void exitClass();                                                                                 \
    static LuType getClassTypeId() { return s_classTypeId; }                                                 \
    LuType getTypeId() const override { return s_classTypeId; }                                              \
                                                                                                             \
private:                                                                                                     \
    static LuType s_classTypeId;                                                                             \
                                                                                                             \
public:

/// All auditors are registered directly below LuAuditor, with "Lu" in their names.
#define LU_AUDITOR_SOURCE(Class) LU_AUDITOR_SOURCE_WITH(Class, LuAuditor::getClassTypeId(), #Class)

#define LU_AUDITOR_SOURCE_WITH(Class, parentType, typeName)                                                  \
    LuType Class::s_classTypeId;                                                                             \
    void Class::initClass() { s_classTypeId = LuType::createType(parentType, typeName, nullptr, 0); }        \
    void Class::exitClass() {                                                                                \
        LuType::removeType(typeName);                                                                        \
        s_classTypeId = LuType::badType();                                                                   \
    }
