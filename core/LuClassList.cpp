// SPDX-License-Identifier: MIT
#include "core/LuClassList.h"

#include "auditors/LuAuditor.h"
#include "controls/LuDialogCheckBox.h"
#include "controls/LuDialogIntegerSlider.h"
#include "controls/LuDialogLabel.h"
#include "controls/LuDialogPushButton.h"
#include "controls/LuDialogRealSlider.h"
#include "controls/LuDialogSeparator.h"
#include "controls/LuEditTextSkin.h"
#include "core/LuPanelix.h"
#include "layout/LuColumnDialog.h"
#include "layout/LuRowDialog.h"
#include "layout/LuTopLevelDialog.h"

#include <algorithm>
#include <iterator>

namespace {

struct ComponentClass {
    void (*init)();
    void (*exit)();
};

template <class Class>
constexpr ComponentClass row() {
    return {&Class::initClass, &Class::exitClass};
}

constexpr ComponentClass CLASSES[] = {
    row<LuPanelix>(),          row<LuTopComponent>(),   row<LuDialogComponent>(),
    row<LuDialogCheckBox>(),   row<LuDialogGroup>(),    row<LuColumnDialog>(),
    row<LuRowDialog>(),        row<LuDialogLabel>(),    row<LuDialogPushButton>(),
    row<LuDialogSeparator>(),  row<LuDialogSlider>(),   row<LuDialogIntegerSlider>(),
    row<LuDialogRealSlider>(), row<LuTopLevelDialog>(),
};

} // namespace

void luInitComponentClasses() {
    for (const ComponentClass& componentClass : CLASSES)
        componentClass.init();
    LuAuditor::initClasses();
}

void luExitComponentClasses() {
    LuAuditor::exitClasses();
    std::for_each(std::rbegin(CLASSES), std::rend(CLASSES), [](const ComponentClass& c) { c.exit(); });
}

void luChangeSkinOfComponentClasses() {
    LuDialogComponent::change3DSkin();
    LuDialogCheckBox::change3DSkin();
    LuEditTextSkin::change3DSkin();
    LuDialogPushButton::change3DSkin();
    LuDialogSeparator::change3DSkin();
    LuDialogSlider::change3DSkin();
    LuTopLevelDialog::change3DSkin();
}
