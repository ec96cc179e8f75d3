// SPDX-License-Identifier: MIT
#include "apps/view/EventPrinter.h"

#include "controls/LuDialogCheckBox.h"
#include "controls/LuDialogIntegerSlider.h"
#include "controls/LuDialogPushButton.h"
#include "controls/LuDialogRealSlider.h"

#include <cstdio>

namespace {

void printEvent(const char* operation, const LuPanelix& component, const LvString& value) {
    std::printf("%s \"%s\" \"%s\" \"%s\"\n", operation, component.auditorID.getValue().getString(),
                component.label.getValue().getString(), value.getString());
    // Whoever reads the lines through a pipe wants each when it happens.
    std::fflush(stdout);
}

} // namespace

void EventPrinter::dialogPushButton(LuDialogPushButton* button) {
    printEvent("dialogPushButton", *button, button->buttonLabel.getValue());
}

void EventPrinter::dialogCheckBox(LuDialogCheckBox* checkBox) {
    printEvent("dialogCheckBox", *checkBox, checkBox->state.getText());
}

void EventPrinter::dialogIntegerSlider(LuDialogIntegerSlider* slider) {
    printEvent("dialogIntegerSlider", *slider, slider->value.getText());
}

void EventPrinter::dialogRealSlider(LuDialogRealSlider* slider) {
    printEvent("dialogRealSlider", *slider, slider->value.getText());
}
