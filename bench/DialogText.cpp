// SPDX-License-Identifier: MIT
#include "bench/DialogText.h"

namespace bench {

namespace {

constexpr int childrenOfGroup = 10;

Kind kindOfControl(int index) {
    switch (index % childrenOfGroup) {
    case 0:
    case 5:
    case 8:
        return Kind::Label;
    case 3:
        return Kind::Separator;
    default:
        return Kind::PushButton;
    }
}

Item makeControl(Kind kind, int index) {
    const std::string number = std::to_string(index);
    switch (kind) {
    case Kind::Label:
        return {kind, "Parameter " + number, "", {}};
    case Kind::PushButton:
        return {kind, "Apply change " + number, "button" + number, {}};
    default:
        return {kind, "", "", {}};
    }
}

int levelsFor(int controls) {
    int levels = 1;
    for (int room = childrenOfGroup; room < controls; room *= childrenOfGroup)
        ++levels;
    return levels;
}

/// Makes a group of 'levels' levels and puts up to 'end' controls into it, the first with the number 'next'.
Item makeGroup(int levels, int& next, int end, bool mixed) {
    Item group{levels % 2 == 1 ? Kind::Row : Kind::Column, "", "", {}};
    for (int i = 0; i < childrenOfGroup && next < end; ++i) {
        if (levels > 1) {
            group.children.push_back(makeGroup(levels - 1, next, end, mixed));
        } else {
            group.children.push_back(makeControl(mixed ? kindOfControl(next) : Kind::PushButton, next));
            ++next;
        }
    }
    return group;
}

Item makeDialog(int controls, bool mixed) {
    int next = 0;
    return makeGroup(levelsFor(controls), next, controls, mixed);
}

void writePanelix(const Item& item, const std::string& indent, std::string& out) {
    switch (item.kind) {
    case Kind::Label:
        out += indent + "DialogLabel { label \"" + item.text + "\" }\n";
        return;
    case Kind::Separator:
        out += indent + "DialogSeparator { }\n";
        return;
    case Kind::PushButton:
        out +=
            indent + "DialogPushButton { auditorID \"" + item.id + "\" buttonLabel \"" + item.text + "\" }\n";
        return;
    case Kind::Column:
    case Kind::Row:
        out += indent + (item.kind == Kind::Row ? "RowDialog {\n" : "ColumnDialog {\n");
        for (const Item& child : item.children)
            writePanelix(child, indent + "  ", out);
        out += indent + "}\n";
        return;
    }
}

void writeQtWidget(const std::string& attributes, const std::string& property, const std::string& indent,
                   std::string& out) {
    out += indent + "<widget " + attributes + ">\n";
    out += indent + " " + property + "\n";
    out += indent + "</widget>\n";
}

std::string qtTextProperty(const std::string& text) {
    return "<property name=\"text\"><string>" + text + "</string></property>";
}

void writeQt(const Item& item, const std::string& indent, std::string& out) {
    switch (item.kind) {
    case Kind::Label:
        writeQtWidget("class=\"QLabel\"", qtTextProperty(item.text), indent, out);
        return;
    case Kind::Separator:
        writeQtWidget("class=\"Line\"",
                      "<property name=\"orientation\"><enum>Qt::Horizontal</enum></property>", indent, out);
        return;
    case Kind::PushButton:
        writeQtWidget("class=\"QPushButton\" name=\"" + item.id + "\"", qtTextProperty(item.text), indent,
                      out);
        return;
    case Kind::Column:
    case Kind::Row:
        out +=
            indent + "<layout class=\"" + (item.kind == Kind::Row ? "QVBoxLayout" : "QHBoxLayout") + "\">\n";
        for (const Item& child : item.children) {
            out += indent + " <item>\n";
            writeQt(child, indent + "  ", out);
            out += indent + " </item>\n";
        }
        out += indent + "</layout>\n";
        return;
    }
}

} // namespace

Item mixedDialog(int controls) { return makeDialog(controls, true); }

Item buttonDialog(int controls) { return makeDialog(controls, false); }

int countGroups(const Item& item) {
    int groups = item.kind == Kind::Row || item.kind == Kind::Column ? 1 : 0;
    for (const Item& child : item.children)
        groups += countGroups(child);
    return groups;
}

std::string panelixText(const Item& item) {
    std::string out = "#Lumora V2.0 ascii\nTopLevelDialog {\n  label \"Parameters\"\n";
    writePanelix(item, "  ", out);
    return out + "}\n";
}

std::string qtText(const Item& item) {
    std::string out = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                      "<ui version=\"4.0\">\n"
                      " <class>Parameters</class>\n"
                      " <widget class=\"QWidget\" name=\"Parameters\">\n"
                      "  <property name=\"windowTitle\"><string>Parameters</string></property>\n";
    writeQt(item, "  ", out);
    return out + " </widget>\n</ui>\n";
}

} // namespace bench
