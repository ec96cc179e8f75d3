// SPDX-License-Identifier: MIT
#include "apps/view/TreePrinter.h"

#include "layout/LuDialogComponent.h"
#include "layout/LuTopLevelDialog.h"
#include "platform/lumora/win/LuWin.h"

#include <set>

namespace {

bool isComponent(const LuNode* node) { return node->isOfType(LuPanelix::getClassTypeId()); }

std::vector<LuPanelix*> getComponents(const LuPanelix& component) {
    std::vector<LuPanelix*> components;
    const LuChildList& children = *component.getChildren();
    for (int i = 0; i < children.getLength(); ++i) {
        if (isComponent(children[i]))
            components.push_back(static_cast<LuPanelix*>(children[i]));
    }
    return components;
}

struct Rectangle {
    LvVec2i32 position;
    LvVec2i32 size;
};

Rectangle getRectangle(const LuPanelix& component) {
    if (component.isOfType(LuTopLevelDialog::getClassTypeId())) {
        const auto& dialog = static_cast<const LuTopLevelDialog&>(component);
        return {dialog.position.getValue(), {dialog.width.getValue(), dialog.height.getValue()}};
    }
    if (component.isOfType(LuDialogComponent::getClassTypeId())) {
        const auto& sized = static_cast<const LuDialogComponent&>(component);
        return {sized.getPosition(), {sized.width.getValue(), sized.height.getValue()}};
    }
    return {};
}

/// The window that holds the windows of a component's children, and its own.
HWND getCarrier(const LuPanelix& component) {
    if (component.isOfType(LuTopLevelDialog::getClassTypeId()))
        return static_cast<const LuTopLevelDialog&>(component).getWidget();
    if (component.isOfType(LuDialogComponent::getClassTypeId()))
        return static_cast<const LuDialogComponent&>(component).getWidget();
    return nullptr;
}

/// A component's windows from the outside in, without those of the components below it.
std::vector<HWND> getWindows(const LuPanelix& component) {
    std::vector<HWND> windows;
    if (component.isOfType(LuTopLevelDialog::getClassTypeId()))
        windows.push_back(static_cast<const LuTopLevelDialog&>(component).getBaseWidget());
    const HWND carrier = getCarrier(component);
    windows.push_back(carrier);
    std::set<HWND> others;
    for (const LuPanelix* child : getComponents(component))
        others.insert(getCarrier(*child));
    for (HWND child = GetWindow(carrier, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (!others.contains(child))
            windows.push_back(child);
    }
    std::erase_if(windows, [](HWND window) { return !IsWindow(window); });
    return windows;
}

void printLines(const LuPanelix& component, int depth, std::string& out) {
    const Rectangle rectangle = getRectangle(component);
    out.append(static_cast<std::size_t>(depth) * 2, ' ');
    out += component.getTypeId().getName().view();
    out += " \"" + component.auditorID.getValue().str() + "\"";
    out += " at " + std::to_string(rectangle.position.x) + " " + std::to_string(rectangle.position.y);
    out += " size " + std::to_string(rectangle.size.x) + " " + std::to_string(rectangle.size.y) + "\n";
    for (const LuPanelix* child : getComponents(component))
        printLines(*child, depth + 1, out);
}

/// Writes JSON with two spaces for each level.
class JsonWriter {
public:
    explicit JsonWriter(std::string& out) : m_out(out) {}

    void begin(char bracket) {
        m_out += bracket;
        ++m_depth;
        m_isFirst = true;
    }
    void end(char bracket) {
        --m_depth;
        if (!m_isFirst)
            newLine();
        m_out += bracket;
        m_isFirst = false;
    }
    void item() {
        if (!m_isFirst)
            m_out += ',';
        m_isFirst = false;
        newLine();
    }
    void key(std::string_view name) {
        item();
        text(name);
        m_out += ": ";
    }
    void text(std::string_view value) {
        m_out += '"';
        for (const char character : value)
            escape(character);
        m_out += '"';
    }
    void raw(std::string_view value) { m_out += value; }
    void number(long long value) { m_out += std::to_string(value); }
    void boolean(bool value) { m_out += value ? "true" : "false"; }

private:
    void newLine() {
        m_out += '\n';
        m_out.append(static_cast<std::size_t>(m_depth) * 2, ' ');
    }
    void escape(char character) {
        static constexpr char DIGITS[] = "0123456789abcdef";
        if (character == '"' || character == '\\') {
            m_out += '\\';
            m_out += character;
        } else if (static_cast<unsigned char>(character) < 0x20) {
            m_out += "\\u00";
            m_out += DIGITS[(character >> 4) & 15];
            m_out += DIGITS[character & 15];
        } else {
            m_out += character;
        }
    }

    std::string& m_out;
    int m_depth = 0;
    bool m_isFirst = true;
};

void writePair(JsonWriter& json, std::string_view name, LvVec2i32 pair) {
    json.key(name);
    json.raw("[" + std::to_string(pair.x) + ", " + std::to_string(pair.y) + "]");
}

void writeFields(JsonWriter& json, const LuPanelix& component) {
    json.key("fields");
    json.begin('{');
    for (int i = 0; i < component.getNumFields(); ++i) {
        const LuField& field = *component.getField(i);
        // The parts of the 3D rendition are nodes, not values.
        if (dynamic_cast<const LuSFNode*>(&field))
            continue;
        json.key(component.getFieldData()->getFieldName(i).view());
        json.begin('{');
        json.key("value");
        json.text(field.getText().view());
        json.key("default");
        json.boolean(field.isDefault());
        json.end('}');
    }
    json.end('}');
}

void writeWindow(JsonWriter& json, HWND window) {
    char className[256] = "";
    GetClassNameA(window, className, static_cast<int>(sizeof className));
    RECT rect{};
    GetWindowRect(window, &rect);
    const bool isChild = (GetWindowLongPtrA(window, GWL_STYLE) & WS_CHILD) != 0;
    POINT corner{rect.left, rect.top};
    if (isChild)
        ScreenToClient(GetParent(window), &corner);
    json.begin('{');
    json.key("class");
    json.text(className);
    json.key("text");
    json.text(LuWin::getWindowText(window).view());
    writePair(json, "position", {static_cast<int>(corner.x), static_cast<int>(corner.y)});
    writePair(json, "size",
              {static_cast<int>(rect.right - rect.left), static_cast<int>(rect.bottom - rect.top)});
    json.key("style");
    json.number(static_cast<long long>(static_cast<unsigned>(GetWindowLongPtrA(window, GWL_STYLE))));
    json.key("exStyle");
    json.number(static_cast<long long>(static_cast<unsigned>(GetWindowLongPtrA(window, GWL_EXSTYLE))));
    json.key("enabled");
    json.boolean(IsWindowEnabled(window) != 0);
    json.key("visible");
    json.boolean(IsWindowVisible(window) != 0);
    json.end('}');
}

void writeComponent(JsonWriter& json, const LuPanelix& component) {
    const Rectangle rectangle = getRectangle(component);
    json.begin('{');
    json.key("type");
    json.text(component.getTypeId().getName().view());
    json.key("auditorID");
    json.text(component.auditorID.getValue().view());
    writePair(json, "position", rectangle.position);
    writePair(json, "size", rectangle.size);
    writeFields(json, component);
    json.key("windows");
    json.begin('[');
    for (const HWND window : getWindows(component)) {
        json.item();
        writeWindow(json, window);
    }
    json.end(']');
    json.key("children");
    json.begin('[');
    for (const LuPanelix* child : getComponents(component)) {
        json.item();
        writeComponent(json, *child);
    }
    json.end(']');
    json.end('}');
}

} // namespace

std::string printTree(LuPanelix& component) {
    std::string out;
    printLines(component, 0, out);
    return out;
}

std::string printTreeAsJson(LuPanelix& component) {
    std::string out;
    JsonWriter json(out);
    writeComponent(json, component);
    return out + "\n";
}
