// SPDX-License-Identifier: MIT
#include "auditors/LuAuditor.h"

#include "auditors/LuDialogAuditor.h"
#include "auditors/LuDialogCheckBoxAuditor.h"
#include "auditors/LuDialogChoiceAuditor.h"
#include "auditors/LuDialogEditTextAuditor.h"
#include "auditors/LuDialogIntegerSliderAuditor.h"
#include "auditors/LuDialogPushButtonAuditor.h"
#include "auditors/LuDialogRealSliderAuditor.h"
#include "auditors/LuMenuCheckBoxAuditor.h"
#include "auditors/LuMenuFileSelectionAuditor.h"
#include "auditors/LuMenuPushButtonAuditor.h"
#include "auditors/LuMenuRadioButtonsAuditor.h"
#include "auditors/LuTabDialogAuditor.h"

#include <iterator>

LU_AUDITOR_SOURCE_WITH(LuAuditor, LuType::badType(), "Auditor")
LU_AUDITOR_SOURCE(LuDialogAuditor)
LU_AUDITOR_SOURCE(LuDialogCheckBoxAuditor)
LU_AUDITOR_SOURCE(LuDialogChoiceAuditor)
LU_AUDITOR_SOURCE(LuDialogEditTextAuditor)
LU_AUDITOR_SOURCE(LuDialogIntegerSliderAuditor)
LU_AUDITOR_SOURCE(LuDialogPushButtonAuditor)
LU_AUDITOR_SOURCE(LuDialogRealSliderAuditor)
LU_AUDITOR_SOURCE(LuMenuCheckBoxAuditor)
LU_AUDITOR_SOURCE(LuMenuFileSelectionAuditor)
LU_AUDITOR_SOURCE(LuMenuPushButtonAuditor)
LU_AUDITOR_SOURCE(LuMenuRadioButtonsAuditor)
LU_AUDITOR_SOURCE(LuTabDialogAuditor)

namespace {

struct AuditorClass {
    void (*init)();
    void (*exit)();
};

template <class Auditor>
constexpr AuditorClass row() {
    return {&Auditor::initClass, &Auditor::exitClass};
}

/// In the order of registration. LuTabDialogAuditor stays out of it on purpose.
constexpr AuditorClass s_classes[] = {
    row<LuAuditor>(),
    row<LuDialogAuditor>(),
    row<LuDialogPushButtonAuditor>(),
    row<LuDialogCheckBoxAuditor>(),
    row<LuDialogChoiceAuditor>(),
    row<LuDialogEditTextAuditor>(),
    row<LuDialogIntegerSliderAuditor>(),
    row<LuDialogRealSliderAuditor>(),
    row<LuMenuCheckBoxAuditor>(),
    row<LuMenuFileSelectionAuditor>(),
    row<LuMenuPushButtonAuditor>(),
    row<LuMenuRadioButtonsAuditor>(),
};

} // namespace

void LuAuditor::initClasses() {
    for (const AuditorClass& auditorClass : s_classes)
        auditorClass.init();
}

void LuAuditor::exitClasses() {
    for (auto auditorClass = std::rbegin(s_classes); auditorClass != std::rend(s_classes); ++auditorClass)
        auditorClass->exit();
}
