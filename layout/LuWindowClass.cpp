// SPDX-License-Identifier: MIT
#include "layout/LuWindowClass.h"

#include "platform/lumora/win/LuWin.h"

std::string LuWindowClass::getRealName() const {
    std::string realName = name;
    WNDCLASSA known{};
    if (LuWin::getClassInfo(LuWin::getInstance(), name, realName, known))
        return realName;
    WNDCLASSA fresh{};
    fresh.style = style;
    fresh.lpfnWndProc = procedure;
    fresh.cbWndExtra = 8;
    fresh.hInstance = LuWin::getInstance();
    fresh.hIcon = getIcon ? getIcon() : nullptr;
    fresh.hCursor = cursor;
    fresh.hbrBackground = CreateSolidBrush(GetSysColor(COLOR_BTNFACE));
    fresh.lpszClassName = name;
    if (LuWin::registerClass(fresh, realName))
        return realName;
    // A registered class owns its brush; this one was not taken.
    DeleteObject(fresh.hbrBackground);
    LuWin::createSimpleErrorDialog(nullptr, title, failure, nullptr);
    return name;
}
