// SPDX-License-Identifier: MIT
#include "tests/random/RandomTexts.h"

#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuText3.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

std::string convertRandomText(const LvString& text) {
    return LuPanelix::convertToCString(text, nullptr).str();
}

Lines splitLines(const std::string& text) {
    Lines lines(1);
    for (const char character : text) {
        if (character == '\n')
            lines.emplace_back();
        else
            lines.back() += character;
    }
    return lines;
}

std::string printRandomNumber(double number) {
    char text[32] = "none";
    if (!std::isnan(number))
        std::snprintf(text, sizeof text, "%.10g", number);
    return text;
}

Lines getShownLines(LuDialogComponent& component, const char* part) {
    const auto* const group = static_cast<LuGroup*>(component.getPart(part, false));
    LuNode* const last = group ? group->getChild(group->getNumChildren() - 1) : nullptr;
    Lines lines;
    if (last && last->isOfType(LuText3::getClassTypeId())) {
        for (const LvString& line : static_cast<LuText3*>(last)->string.getValues())
            lines.push_back(line.str());
    }
    return lines;
}

void overwriteLines(Lines& shown, const Lines& lines) {
    if (shown.size() < lines.size())
        shown.resize(lines.size());
    std::copy(lines.begin(), lines.end(), shown.begin());
}
