// SPDX-License-Identifier: MIT
#include "apps/view/EventPrinter.h"

#include "controls/LuDialogCheckBox.h"
#include "controls/LuDialogPushButton.h"
#include "tests/host/ComponentTest.h"

namespace {

class EventPrinterTest : public ComponentTest {
protected:
    /// What is printed when a control calls its auditors.
    template <class Control>
    std::string print(const Held<Control>& control, void (EventPrinter::*operation)(Control*)) {
        testing::internal::CaptureStdout();
        EventPrinter printer;
        (printer.*operation)(control.get());
        return testing::internal::GetCapturedStdout();
    }
};

TEST_F(EventPrinterTest, pushButton_isPrintedWithItsText) {
    const Held<LuDialogPushButton> button;
    button->auditorID = "go";
    button->label = "If so:";
    button->buttonLabel = "Go";
    EXPECT_EQ(print(button, &EventPrinter::dialogPushButton), "dialogPushButton \"go\" \"If so:\" \"Go\"\n");
}

TEST_F(EventPrinterTest, checkBox_isPrintedWithItsState) {
    const Held<LuDialogCheckBox> box;
    box->auditorID = "fog";
    box->label = "Fog";
    box->onString = "Thick";
    EXPECT_EQ(print(box, &EventPrinter::dialogCheckBox), "dialogCheckBox \"fog\" \"Fog\" \"FALSE\"\n");
    box->state = true;
    EXPECT_EQ(print(box, &EventPrinter::dialogCheckBox), "dialogCheckBox \"fog\" \"Fog\" \"TRUE\"\n");
}

} // namespace
