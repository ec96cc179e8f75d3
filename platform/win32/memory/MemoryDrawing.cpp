// SPDX-License-Identifier: MIT
#include "platform/win32/memory/MemoryWindow.h"

#include "platform/fonts/LuFontFace.h"
#include "platform/lumora/base/LvString.h"
#include "platform/win32/memory/MemoryWindowSystem.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

enum class Kind { FREE, FONT, BRUSH, CONTEXT };

/// A font, a brush or a device context. Its handle is made of its place in the table.
struct DrawingObject {
    Kind kind = Kind::FREE;
    bool isStock = false;
    std::uint32_t generation = 0;
    LOGFONTA description{};
    const LuFontFace* face = nullptr; ///< Looked up at the first measuring.
    HFONT selected = nullptr;         ///< For a device context.
    HWND window = nullptr;            ///< For a device context.
    COLORREF color = 0;
};

constexpr std::uint64_t firstHandle = 0x100;
constexpr int numStockObjects = 20;
constexpr int defaultFontHeight = -11;
constexpr int defaultCellHeight = 16;

using Objects = std::vector<DrawingObject>;

bool isStockFont(int index) {
    return (index >= 10 && index <= 14) || index == 16 || index == DEFAULT_GUI_FONT;
}

Objects& getObjects() {
    static Objects& s_objects = *[] {
        auto* objects = new Objects(numStockObjects);
        for (int i = 0; i < numStockObjects; ++i) {
            DrawingObject& object = (*objects)[static_cast<std::size_t>(i)];
            object.isStock = true;
            object.kind = isStockFont(i) ? Kind::FONT : i <= NULL_BRUSH ? Kind::BRUSH : Kind::FREE;
            object.description.lfHeight = i == DEFAULT_GUI_FONT ? defaultFontHeight : defaultCellHeight;
            object.description.lfWeight = FW_NORMAL;
            std::strcpy(object.description.lfFaceName, "Tahoma");
        }
        return objects;
    }();
    return s_objects;
}

DrawingObject* findObject(const void* handle, Kind kind) {
    const auto value = reinterpret_cast<std::uint64_t>(handle);
    const std::uint64_t index = (value & 0xffffffff) - firstHandle;
    Objects& objects = getObjects();
    if (index >= objects.size())
        return nullptr;
    DrawingObject& object = objects[index];
    return object.kind == kind && object.generation == value >> 32 ? &object : nullptr;
}

void* getObjectHandle(const DrawingObject& object) {
    const auto index = static_cast<std::uint64_t>(&object - getObjects().data());
    return reinterpret_cast<void*>(std::uint64_t{object.generation} << 32 | (index + firstHandle));
}

DrawingObject& makeObject(Kind kind) {
    Objects& objects = getObjects();
    auto free = std::find_if(objects.begin(), objects.end(), [](const DrawingObject& object) {
        return object.kind == Kind::FREE && !object.isStock;
    });
    if (free == objects.end())
        free = objects.insert(objects.end(), DrawingObject{});
    free->kind = kind;
    return *free;
}

void freeObject(DrawingObject& object) {
    const std::uint32_t generation = object.generation + 1;
    object = DrawingObject{};
    object.generation = generation;
}

/// The em size in pixels. A positive height is that of a cell, so the face's own measures are taken off.
int getEmPixels(const DrawingObject& font) {
    const LONG height = font.description.lfHeight;
    if (height < 0)
        return -height;
    const float cell = font.face->getAscent() + font.face->getDescent();
    const auto pixels = static_cast<float>(height == 0 ? defaultCellHeight : height);
    return std::max(1, static_cast<int>(cell > 0 ? pixels / cell : pixels));
}

DrawingObject* findSelectedFont(HDC dc) {
    const DrawingObject* context = findObject(dc, Kind::CONTEXT);
    DrawingObject* font = context ? findObject(context->selected, Kind::FONT) : nullptr;
    if (font && !font->face)
        font->face = LuFontFace::find(LvString::fromLatin1(font->description.lfFaceName).view());
    return font;
}

BOOL measure(HDC dc, std::string_view text, SIZE* size) {
    const DrawingObject* font = findSelectedFont(dc);
    if (!font || !size)
        return FALSE;
    *size = {0, 0};
    if (text.empty())
        return TRUE;
    const LuPixelExtent extent = font->face->getTextExtent(text, getEmPixels(*font));
    *size = {extent.width, extent.height};
    return TRUE;
}

HFONT createFont(const LOGFONTA& description) {
    DrawingObject& object = makeObject(Kind::FONT);
    object.description = description;
    return static_cast<HFONT>(getObjectHandle(object));
}

} // namespace

int LuMemoryWindowSystem::getNumDrawingObjects() {
    const Objects& objects = getObjects();
    return static_cast<int>(std::count_if(objects.begin(), objects.end(), [](const DrawingObject& object) {
        return object.kind != Kind::FREE && !object.isStock;
    }));
}

HGDIOBJ GetStockObject(int index) {
    if (index < 0 || index >= numStockObjects)
        return nullptr;
    const DrawingObject& object = getObjects()[static_cast<std::size_t>(index)];
    return object.kind == Kind::FREE ? nullptr : getObjectHandle(object);
}

HFONT CreateFontA(int height, int width, int escapement, int orientation, int weight, DWORD italic,
                  DWORD underline, DWORD strikeOut, DWORD charSet, DWORD outPrecision, DWORD clipPrecision,
                  DWORD quality, DWORD pitchAndFamily, LPCSTR faceName) {
    LOGFONTA font{};
    font.lfHeight = height;
    font.lfWidth = width;
    font.lfEscapement = escapement;
    font.lfOrientation = orientation;
    font.lfWeight = weight;
    font.lfItalic = italic != 0;
    font.lfUnderline = underline != 0;
    font.lfStrikeOut = strikeOut != 0;
    font.lfCharSet = static_cast<BYTE>(charSet);
    font.lfOutPrecision = static_cast<BYTE>(outPrecision);
    font.lfClipPrecision = static_cast<BYTE>(clipPrecision);
    font.lfQuality = static_cast<BYTE>(quality);
    font.lfPitchAndFamily = static_cast<BYTE>(pitchAndFamily);
    if (faceName)
        std::strncpy(font.lfFaceName, faceName, LF_FACESIZE - 1);
    return createFont(font);
}

HFONT CreateFontW(int height, int width, int escapement, int orientation, int weight, DWORD italic,
                  DWORD underline, DWORD strikeOut, DWORD charSet, DWORD outPrecision, DWORD clipPrecision,
                  DWORD quality, DWORD pitchAndFamily, LPCWSTR faceName) {
    const std::string name = faceName ? narrowToAnsi(faceName) : std::string();
    return CreateFontA(height, width, escapement, orientation, weight, italic, underline, strikeOut, charSet,
                       outPrecision, clipPrecision, quality, pitchAndFamily,
                       faceName ? name.c_str() : nullptr);
}

HBRUSH CreateSolidBrush(COLORREF color) {
    DrawingObject& object = makeObject(Kind::BRUSH);
    object.color = color;
    return static_cast<HBRUSH>(getObjectHandle(object));
}

BOOL DeleteObject(HGDIOBJ handle) {
    for (Kind kind : {Kind::FONT, Kind::BRUSH}) {
        if (DrawingObject* object = findObject(handle, kind)) {
            if (!object->isStock)
                freeObject(*object);
            return TRUE;
        }
    }
    return FALSE;
}

int GetObjectA(HGDIOBJ handle, int size, LPVOID data) {
    const DrawingObject* font = findObject(handle, Kind::FONT);
    if (!font)
        return 0;
    if (!data)
        return static_cast<int>(sizeof(LOGFONTA));
    const auto count = std::min<std::size_t>(static_cast<std::size_t>(std::max(size, 0)), sizeof(LOGFONTA));
    std::memcpy(data, &font->description, count);
    return static_cast<int>(count);
}

HDC GetDC(HWND window) {
    if (window && !findMemoryWindowOrFail(window))
        return nullptr;
    DrawingObject& object = makeObject(Kind::CONTEXT);
    object.window = window;
    object.selected = static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
    return static_cast<HDC>(getObjectHandle(object));
}

HDC GetWindowDC(HWND window) { return GetDC(window); }

int ReleaseDC(HWND, HDC dc) {
    DrawingObject* context = findObject(dc, Kind::CONTEXT);
    if (!context)
        return 0;
    freeObject(*context);
    return 1;
}

HGDIOBJ SelectObject(HDC dc, HGDIOBJ handle) {
    DrawingObject* context = findObject(dc, Kind::CONTEXT);
    if (!context || !findObject(handle, Kind::FONT))
        return nullptr;
    HFONT previous = context->selected;
    context->selected = static_cast<HFONT>(handle);
    return previous;
}

BOOL GetTextExtentPoint32A(HDC dc, LPCSTR text, int length, SIZE* size) {
    if (length < 0 || (!text && length > 0)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    const std::string_view bytes(text ? text : "", text ? static_cast<std::size_t>(length) : 0);
    // Most texts are plain ASCII, which needs no conversion.
    const auto isAscii = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
    if (std::all_of(bytes.begin(), bytes.end(), isAscii))
        return measure(dc, bytes, size);
    return measure(dc, LvString::fromWide(widenAnsi(text, length)).view(), size);
}

BOOL GetTextExtentPoint32W(HDC dc, LPCWSTR text, int length, SIZE* size) {
    if (length < 0 || (!text && length > 0)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    const std::wstring_view wide(text ? text : L"", text ? static_cast<std::size_t>(length) : 0);
    return measure(dc, LvString::fromWide(wide).view(), size);
}

BOOL GetTextMetricsA(HDC dc, TEXTMETRICA* metrics) {
    const DrawingObject* font = findSelectedFont(dc);
    if (!font || !metrics)
        return FALSE;
    const int em = getEmPixels(*font);
    *metrics = TEXTMETRICA{};
    metrics->tmHeight = font->face->getTextExtent("x", em).height;
    metrics->tmDescent = static_cast<LONG>(std::lround(font->face->getDescent() * static_cast<float>(em)));
    metrics->tmAscent = metrics->tmHeight - metrics->tmDescent;
    metrics->tmInternalLeading = metrics->tmHeight - em;
    metrics->tmAveCharWidth = font->face->getTextExtent("x", em).width;
    metrics->tmMaxCharWidth = font->face->getTextExtent("W", em).width;
    metrics->tmWeight = font->description.lfWeight;
    metrics->tmDigitizedAspectX = metrics->tmDigitizedAspectY = GetDeviceCaps(dc, LOGPIXELSY);
    return TRUE;
}

int GetDeviceCaps(HDC, int index) {
    constexpr int pixelsPerInch = 96;
    return index == LOGPIXELSX || index == LOGPIXELSY ? pixelsPerInch : 0;
}

HDC BeginPaint(HWND window, PAINTSTRUCT* paint) {
    if (!paint || !findMemoryWindowOrFail(window))
        return nullptr;
    *paint = PAINTSTRUCT{};
    paint->hdc = GetDC(window);
    GetClientRect(window, &paint->rcPaint);
    return paint->hdc;
}

BOOL EndPaint(HWND window, const PAINTSTRUCT* paint) { return paint && ReleaseDC(window, paint->hdc); }

int FillRect(HDC dc, const RECT* rect, HBRUSH brush) {
    return rect && findObject(dc, Kind::CONTEXT) && findObject(brush, Kind::BRUSH);
}

HBRUSH GetSysColorBrush(int index) {
    static HBRUSH s_brushes[COLOR_3DLIGHT + 16] = {};
    if (index < 0 || index >= static_cast<int>(std::size(s_brushes)))
        return nullptr;
    HBRUSH& brush = s_brushes[index];
    if (!brush) {
        brush = CreateSolidBrush(GetSysColor(index));
        findObject(brush, Kind::BRUSH)->isStock = true;
    }
    return brush;
}
