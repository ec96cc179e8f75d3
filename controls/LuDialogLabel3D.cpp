// SPDX-License-Identifier: MIT
#include "controls/LuDialogLabel.h"

#include "core/LuTruncate.h"
#include "platform/lumora/nodes/LuText3.h"
#include "platform/lumora/nodes/LuTransforms.h"

namespace {

constexpr int LEFT_ROOM = 3; ///< Units between the edge of the component and its text.

/// Escapes the carriage returns, which convertToCString would drop: of those, only one behind a line feed is
/// to go from the lines in 3D.
LvString keepReturns(const LvString& text) {
    std::string kept;
    for (int i = 0; i < text.getLength(); ++i) {
        if (text[i] == '\r')
            kept += '\\';
        kept += text[i];
        if (text[i] == '\\' && i + 1 < text.getLength())
            kept += text[++i];
    }
    return kept;
}

} // namespace

void LuDialogLabel::create3DDialogLabel() {
    loadFontProperties();
    setPartAsDefault(labelProp, "DialogTextProperties");
    createText3D(labelSep, m_textTranslation, m_text3);
    change3DLabel();
    change3DLabelAlignment();
    setBuilt3D(1);
}

void LuDialogLabel::change3DLabel() {
    if (m_text3) {
        const LvString text = convertToCString(keepReturns(label.getValue()), nullptr);
        const float room = static_cast<float>(width.getValue()) - EDGE_ROOM;
        // The lines of the text before would stay behind those of a shorter one.
        m_text3->string.setNum(0);
        int line = 0;
        for (int start = 0; start <= text.getLength(); ++line) {
            const int found = text.find("\n", start);
            const int end = found == LvString::npos ? text.getLength() : found;
            line = insertTextTo3DText(text.getSubString(start, end), m_text3, line, 0);
            if (room > 0)
                line = wrap3DTextLine(m_text3, line, room, static_cast<LuGroup*>(labelProp.getValue()), this);
            start = end + 1;
            if (found != LvString::npos && start < text.getLength() && text[start] == '\r')
                ++start;
        }
    }
    LuControl::change3DLabel();
}

void LuDialogLabel::change3DLabelAlignment() {
    if (!m_text3)
        return;
    switch (labelAlignment.getValue()) {
    case LEFT:
        m_text3->justification = LuText3::LEFT;
        break;
    case CENTER:
        m_text3->justification = LuText3::CENTER;
        break;
    case RIGHT:
        m_text3->justification = LuText3::RIGHT;
        break;
    default:
        break;
    }
}

void LuDialogLabel::update3DLabel() {
    const LvBox3f& box = measureLabel(labelProp.getValue(), m_text3);
    const double half = width.getValue() * 0.5;
    double x = LEFT_ROOM - half;
    if (labelAlignment.getValue() == CENTER)
        x = -(double{box.max.x} + box.min.x) * 0.5;
    else if (labelAlignment.getValue() == RIGHT)
        x = half - LEFT_ROOM - (double{box.max.x} - box.min.x);
    m_textTranslation->translation = getTextPlace(static_cast<float>(luTruncate(x)), box);
}
