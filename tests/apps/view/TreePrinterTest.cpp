// SPDX-License-Identifier: MIT
#include "apps/view/TreePrinter.h"

#include "controls/LuDialogLabel.h"
#include "controls/LuDialogPushButton.h"
#include "tests/host/Json.h"
#include "tests/layout/DialogTest.h"

namespace {

using Numbers = std::vector<double>;
using Keys = std::vector<std::string>;

constexpr char DIALOG[] = R"(
    TopLevelDialog {
        auditorID "top" label "Tree \"1\"" margin 6
        RowDialog {
            DialogLabel { auditorID "text" label "Shall we?" }
            DialogPushButton { auditorID "yes" label "If so:" buttonLabel "Yes" enable FALSE }
        }
    }
)";

class TreePrinterTest : public DialogTest {
protected:
    TreePrinterTest() {
        m_dialog = read<LuTopLevelDialog>(DIALOG);
        m_dialog->buildDialog(nullptr, 0);
    }

    Json print() {
        const std::string text = printTreeAsJson(*m_dialog);
        const auto json = Json::parse(text);
        EXPECT_TRUE(json) << text;
        return json.value_or(Json());
    }
    template <class Component>
    Component* find(const char* id) {
        return static_cast<Component*>(m_dialog->searchForAuditorId(id));
    }

    LuTopLevelDialog* m_dialog = nullptr;
};

/// What the tree says of a component, further down too; nothing when there is no such component.
const Json& findById(const Json& tree, const std::string& id) {
    if (tree["auditorID"].text == id)
        return tree;
    for (const Json& child : tree["children"].items) {
        if (const Json& found = findById(child, id); found.kind != Json::Kind::NOTHING)
            return found;
    }
    return Json::getNothing();
}

Numbers toNumbers(LvVec2i32 pair) { return {static_cast<double>(pair.x), static_cast<double>(pair.y)}; }

TEST_F(TreePrinterTest, component_hasTheseMembers) {
    const Json tree = print();
    const Keys keys{"type", "auditorID", "position", "size", "fields", "windows", "children"};
    EXPECT_EQ(tree.getKeys(), keys);
    EXPECT_EQ(findById(tree, "yes").getKeys(), keys);
}

TEST_F(TreePrinterTest, children_standInTheirOrder) {
    const Json tree = print();
    EXPECT_EQ(tree["type"].text, "TopLevelDialog");
    ASSERT_EQ(tree["children"].items.size(), 1U);
    const Json& row = tree["children"][0];
    EXPECT_EQ(row["type"].text, "RowDialog");
    EXPECT_EQ(row["auditorID"].text, "");
    ASSERT_EQ(row["children"].items.size(), 2U);
    EXPECT_EQ(row["children"][0]["type"].text, "DialogLabel");
    EXPECT_EQ(row["children"][0]["auditorID"].text, "text");
    EXPECT_EQ(row["children"][1]["type"].text, "DialogPushButton");
    EXPECT_EQ(row["children"][1]["auditorID"].text, "yes");
    EXPECT_TRUE(row["children"][1]["children"].items.empty());
}

TEST_F(TreePrinterTest, everyFieldIsThere_inTheOrderOfTheClass_butNoPart) {
    const Json tree = print();
    for (const char* id : {"top", "text", "yes"}) {
        const LuPanelix* const below = find<LuPanelix>(id);
        const LuPanelix* const component = below ? below : m_dialog;
        Keys expected;
        for (int i = 0; i < component->getNumFields(); ++i) {
            if (!dynamic_cast<const LuSFNode*>(component->getField(i)))
                expected.push_back(component->getFieldData()->getFieldName(i).getString());
        }
        EXPECT_EQ(findById(tree, id)["fields"].getKeys(), expected) << id;
    }
    const Keys button = findById(tree, "yes")["fields"].getKeys();
    EXPECT_EQ(Keys(button.begin(), button.begin() + 4),
              (Keys{"enable", "label", "auditorID", "labelAlignment"}));
}

TEST_F(TreePrinterTest, fieldValues_areAsInAFile) {
    const Json tree = print();
    EXPECT_EQ(tree["fields"]["label"]["value"].text, "\"Tree \\\"1\\\"\"");
    EXPECT_EQ(tree["fields"]["margin"]["value"].text, "6");
    EXPECT_EQ(tree["fields"]["vScrollVisibility"]["value"].text, "AUTO");
    const Json button = findById(tree, "yes");
    EXPECT_EQ(button["fields"]["enable"]["value"].text, "FALSE");
    EXPECT_EQ(button["fields"]["buttonLabel"]["value"].text, "\"Yes\"");
}

TEST_F(TreePrinterTest, fieldsThatTheFileSets_areNotMarkedDefault) {
    const Json button = findById(print(), "yes");
    Keys set;
    for (const auto& [name, field] : button["fields"].members) {
        EXPECT_EQ(field.getKeys(), (Keys{"value", "default"})) << name;
        EXPECT_EQ(field["default"].kind, Json::Kind::BOOLEAN) << name;
        if (!field["default"].boolean)
            set.push_back(name);
    }
    EXPECT_EQ(set, (Keys{"enable", "label", "auditorID", "buttonLabel"}));
}

TEST_F(TreePrinterTest, rectangle_isTheComponents) {
    const Json tree = print();
    EXPECT_EQ(tree["position"].getNumbers(), toNumbers(m_dialog->position.getValue()));
    EXPECT_EQ(tree["size"].getNumbers(),
              (Numbers{double(m_dialog->width.getValue()), double(m_dialog->height.getValue())}));
    const auto* const button = find<LuDialogPushButton>("yes");
    const Json printed = findById(tree, "yes");
    EXPECT_EQ(printed["position"].getNumbers(), toNumbers(button->getPosition()));
    EXPECT_EQ(printed["size"].getNumbers(),
              (Numbers{double(button->width.getValue()), double(button->height.getValue())}));
    EXPECT_GT(printed["position"][1].number, findById(tree, "text")["position"][1].number);
}

TEST_F(TreePrinterTest, windowsOfADialog_areItsFrameAndItsArea) {
    const Json tree = print();
    const Json& windows = tree["windows"];
    ASSERT_EQ(windows.items.size(), 2U);
    EXPECT_EQ(windows[0].getKeys(),
              (Keys{"class", "text", "position", "size", "style", "exStyle", "enabled", "visible"}));
    EXPECT_EQ(windows[0]["class"].text, "LuTopLevelDialogBase");
    EXPECT_EQ(windows[0]["text"].text, "Tree \"1\"");
    EXPECT_EQ(windows[1]["class"].text, "LuTopLevelDialog");
}

TEST_F(TreePrinterTest, windowsOfAControl_areItsCarrierAndItsParts) {
    const Json tree = print();
    const Json button = findById(tree, "yes");
    const auto* const component = find<LuDialogPushButton>("yes");
    Json label, native;
    for (const Json& window : button["windows"].items) {
        if (window["text"].text == "If so:")
            label = window;
        if (window["class"].text == "Button")
            native = window;
    }
    EXPECT_EQ(button["windows"].items.size(), 3U);
    EXPECT_EQ(label["class"].text, "Static");
    EXPECT_EQ(native["text"].text, "Yes");
    EXPECT_FALSE(native["enabled"].boolean);
    EXPECT_TRUE(findById(tree, "text")["windows"][0]["enabled"].boolean);
    EXPECT_EQ(native["position"].getNumbers(), toNumbers(getCorner(component->getButtonWidget())));
    EXPECT_EQ(native["size"].getNumbers(), toNumbers(getExtent(component->getButtonWidget())));
    EXPECT_EQ(button["windows"][0]["position"].getNumbers(), button["position"].getNumbers());
    EXPECT_EQ(button["windows"][0]["size"].getNumbers(), button["size"].getNumbers());
}

TEST_F(TreePrinterTest, styles_areThoseOfTheWindows) {
    const Json tree = print();
    const HWND frame = m_dialog->getBaseWidget();
    const HWND native = find<LuDialogPushButton>("yes")->getButtonWidget();
    const auto getStyle = [](HWND window, int which) {
        return static_cast<double>(static_cast<DWORD>(GetWindowLongPtrA(window, which)));
    };
    EXPECT_EQ(tree["windows"][0]["style"].number, getStyle(frame, GWL_STYLE));
    EXPECT_EQ(tree["windows"][0]["exStyle"].number, getStyle(frame, GWL_EXSTYLE));
    const Json button = findById(tree, "yes");
    for (const Json& window : button["windows"].items) {
        const auto style = static_cast<DWORD>(window["style"].number);
        EXPECT_TRUE(style & WS_CHILD) << window["class"].text;
        if (window["class"].text == "Button") {
            EXPECT_EQ(window["style"].number, getStyle(native, GWL_STYLE));
        }
    }
}

TEST_F(TreePrinterTest, windows_areVisibleOnceTheDialogShows) {
    const Json before = print();
    EXPECT_FALSE(before["windows"][0]["visible"].boolean);
    m_dialog->show();
    const Json tree = print();
    EXPECT_TRUE(tree["windows"][0]["visible"].boolean);
    EXPECT_TRUE(findById(tree, "yes")["windows"][0]["visible"].boolean);
}

TEST_F(TreePrinterTest, checkBox_showsItsStateAndTheTextOfItsWindow) {
    auto* const dialog = read<LuTopLevelDialog>("TopLevelDialog { DialogCheckBox { auditorID \"fog\" state "
                                                "TRUE onString \"Thick\" offString \"None\" } }");
    dialog->buildDialog(nullptr, 0);
    const auto json = Json::parse(printTreeAsJson(*dialog));
    ASSERT_TRUE(json);
    const Json fog = findById(*json, "fog");
    EXPECT_EQ(fog["type"].text, "DialogCheckBox");
    EXPECT_EQ(fog["fields"]["state"]["value"].text, "TRUE");
    EXPECT_EQ(fog["fields"]["offString"]["value"].text, "\"None\"");
    Keys texts;
    for (const Json& window : fog["windows"].items) {
        if (window["class"].text == "Button")
            texts.push_back(window["text"].text);
    }
    EXPECT_EQ(texts, Keys({"Thick"}));
}

TEST_F(TreePrinterTest, componentWithoutWindows_hasNone) {
    const Held<LuDialogLabel> label;
    const auto json = Json::parse(printTreeAsJson(*label));
    ASSERT_TRUE(json);
    EXPECT_EQ((*json)["windows"].kind, Json::Kind::LIST);
    EXPECT_TRUE((*json)["windows"].items.empty());
}

TEST_F(TreePrinterTest, lines_haveTypeIdPositionAndSize) {
    const auto* const text = find<LuDialogLabel>("text");
    const auto get = [](int value) { return std::to_string(value); };
    const std::string lines = printTree(*m_dialog);
    EXPECT_EQ(lines.find("TopLevelDialog \"top\" at 0 0 size "), 0U) << lines;
    EXPECT_NE(lines.find("\n  RowDialog \"\" at "), std::string::npos) << lines;
    EXPECT_NE(lines.find("\n    DialogLabel \"text\" at " + get(text->getPosition().x) + " " +
                         get(text->getPosition().y) + " size " + get(text->width.getValue()) + " " +
                         get(text->height.getValue()) + "\n"),
              std::string::npos)
        << lines;
}

} // namespace
