// SPDX-License-Identifier: MIT
#include "core/LuPanelix.h"

#include "platform/lumora/nodes/LuText3.h"
#include "platform/lumora/win/LuWin.h"

#include <algorithm>

namespace {

/// Pixels that a label is larger than its text, on both axes.
constexpr int LABEL_ROOM = 3;

/// The font of all windows; null means the system's default font for dialogs, which is asked for on first
/// use because windows can't be relied on while the library is being loaded.
HFONT s_font = nullptr;

/// A hidden window whose device context measures texts. It is kept to the end of the process.
HWND s_measuringWindow = nullptr;

HWND getMeasuringWindow(const LvString& text) {
    if (!IsWindow(s_measuringWindow))
        s_measuringWindow = CreateWindowExW(0, L"BUTTON", text.toWide().c_str(), 0, 0, 0, 0, 0, nullptr,
                                            nullptr, LuWin::getInstance(), nullptr);
    return s_measuringWindow;
}

LvVec2i32 measureLine(HDC dc, std::string_view latin1) {
    SIZE extent{};
    GetTextExtentPoint32A(dc, latin1.data(), static_cast<int>(latin1.size()), &extent);
    return {extent.cx, extent.cy};
}

/// Calls `function` with each line of a text, without its line feed.
template <class Function>
void forEachLine(std::string_view text, Function function) {
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        function(text.substr(start, end - start));
        start = end + 1;
    }
}

} // namespace

void LuPanelix::setFont(HFONT font) { s_font = font; }

HFONT LuPanelix::getPanelixFont() {
    if (!s_font)
        s_font = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
    return s_font;
}

void LuPanelix::setWidgetFont(HWND window) {
    SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(getPanelixFont()), 1);
}

LvVec2i32 LuPanelix::getLabelPixelSize(LvString text, LuPanelix* component) {
    if (text.isEmpty())
        return {0, 0};
    const LvString shown = convertToCString(text, component);
    const HWND window = getMeasuringWindow(shown);
    setWidgetFont(window);
    const HDC dc = GetWindowDC(window);
    SelectObject(dc, getPanelixFont());
    const std::string latin1 = shown.toLatin1();
    const bool isSingleLine = (component && component->isSingleLine()) || getNumLines(shown) == 0;
    LvVec2i32 size;
    if (isSingleLine) {
        size = measureLine(dc, latin1);
    } else {
        int numLines = 0;
        forEachLine(latin1, [&](std::string_view line) {
            const LvVec2i32 lineSize = measureLine(dc, line);
            size = {std::max(size.x, lineSize.x), std::max(size.y, lineSize.y)};
            ++numLines;
        });
        size.y *= numLines;
    }
    ReleaseDC(window, dc);
    return size + LvVec2i32(LABEL_ROOM, LABEL_ROOM);
}

int LuPanelix::getNumLines(const LvString& text) {
    return static_cast<int>(std::count(text.view().begin(), text.view().end(), '\n'));
}

void LuPanelix::setStringToText3(LuText3* target, const LvString& text) {
    int index = 0;
    forEachLine(text.view(), [&](std::string_view line) { target->string.set1Value(index++, line); });
}

int LuPanelix::insertTextTo3DText(LvString text, LuText3* target, int line, int column) {
    LuMFString& lines = target->string;
    const int length = lines.getNum();
    line = std::max(line, 0);
    if (text.find("\n") != LvString::npos) {
        if (length - 1 > line + 1) {
            // Entries move by two: the last is overwritten, and the one behind the new line stays as well.
            for (int i = length; i >= line + 3; --i)
                lines.set1Value(i, LvString(lines[i - 2]));
        }
        lines.set1Value(line + 1, LvString());
        return line + 1;
    }
    if (line >= length) {
        lines.set1Value(line, text);
        return line;
    }
    const LvString before = lines[line].getSubString(0, column);
    const LvString after = column == -1 ? LvString() : lines[line].getSubString(column, -1);
    lines.set1Value(line, before + text + after);
    return line;
}

int LuPanelix::wrap3DTextLine(LuText3* target, int line, float maxWidth, LuGroup* properties,
                              LuPanelix* component) {
    if (line < 0 || line >= target->string.getNum())
        return line;
    auto* measured = new LuText3;
    measured->ref();
    auto* separator = new LuSeparator;
    separator->ref();
    separator->addChild(properties);
    separator->addChild(measured);
    const LvString text = target->string[line];
    const std::string_view source = text.view();
    for (std::size_t start = 0; start < source.size();) {
        std::size_t position = start;
        std::size_t lastStart = start;
        float width = 0;
        do {
            lastStart = position;
            LuUtf8::next(source, position);
            measured->string.setValue(LvString(source.substr(start, position - start)));
            component->m_bboxAction->apply(separator);
            width = component->m_bboxAction->getBoundingBox().getSize().x;
        } while (position < source.size() && width < maxWidth);
        // The character that crossed the limit stays at the end of the line and begins the next one too,
        // unless it is all that the line has: then the next line would be the same for ever.
        const bool isDoubled = width > maxWidth && lastStart > start;
        const std::size_t next = isDoubled ? lastStart : position;
        if (start > 0 || next < source.size()) {
            if (start > 0)
                target->string.insertSpace(++line, 1);
            target->string.set1Value(line, LvString(source.substr(start, position - start)));
        }
        start = next;
    }
    separator->unref();
    measured->unref();
    return line;
}
