// SPDX-License-Identifier: MIT
#include "platform/lumora/win/LuWinSlider.h"

#include "platform/lumora/win/LuWinGL.h"

#include <algorithm>
#include <climits>
#include <cmath>

namespace {

constexpr int THUMB_WIDTH = 10;
constexpr int BAR_INSET = 4; ///< Pixels above and below the bar.
constexpr int NUM_MARKS = 5;

/// How the thumb of the slider that is being drawn looks.
struct ThumbLook {
    bool isEnabled = true;
    bool hasFocus = false;
};
ThumbLook s_thumbLook;

short toShort(int value) { return static_cast<short>(std::clamp(value, SHRT_MIN, SHRT_MAX)); }

/// Pixels from (x0, y0) to (x1, y1), both included, in a colour of the system.
void fill(int x0, int y0, int x1, int y1, int systemColor) {
    if (x1 < x0 || y1 < y0)
        return;
    constexpr float FULL = 255;
    const COLORREF color = GetSysColor(systemColor);
    const auto getPart = [color](int shift) { return static_cast<float>(color >> shift & 255) / FULL; };
    const LuWinGL& gl = LuWinGL::get();
    gl.color3f(getPart(0), getPart(8), getPart(16));
    gl.rects(toShort(x0), toShort(y0), toShort(x1 + 1), toShort(y1 + 1));
}

void fillPlain(HDC dc, const LuWinSliderRectangle& place, int inset, int systemColor) {
    const RECT rect = {place.x0 + inset, place.y0 + inset, place.x1 + 1 - inset, place.y1 + 1 - inset};
    if (rect.left < rect.right && rect.top < rect.bottom)
        FillRect(dc, &rect, GetSysColorBrush(systemColor));
}

} // namespace

void LuDrawThumbUIRegion(short x1, short y1, short x2, short y2) {
    const auto [isEnabled, hasFocus] = s_thumbLook;
    fill(x1, y1, x2, y2, hasFocus ? COLOR_HIGHLIGHT : isEnabled ? COLOR_3DDKSHADOW : COLOR_BTNSHADOW);
    fill(x1 + 1, y1 + 1, x2 - 1, y2 - 1, COLOR_BTNHIGHLIGHT);
    fill(x1 + 2, y1 + 2, x2 - 1, y2 - 1, COLOR_BTNSHADOW);
    fill(x1 + 2, y1 + 2, x2 - 2, y2 - 2, COLOR_BTNFACE);
    const int middle = (x1 + x2) / 2;
    if (isEnabled)
        fill(middle, y1 + 4, middle, y2 - 4, COLOR_BTNTEXT);
}

LuWinSlider::LuWinSlider(HWND parent, const char* name, int notifies, int buildNow)
    : LuWinGDIWidget(parent, name), m_notifies(notifies != 0) {
    if (buildNow)
        setBaseWidget(buildWidget(parent));
}

LuWinSlider::~LuWinSlider() {
    // Who ends the slider hears no more of it: the drag just ends.
    m_isDragging = false;
    if (getNormalWindow() && GetCapture() == getNormalWindow())
        ReleaseCapture();
}

HWND LuWinSlider::buildWidget(HWND parent) { return createNormalWindow(parent); }

void LuWinSlider::setValue(float value, int redraws) {
    m_value = value > 0 ? std::min(value, 1.0F) : 0.0F;
    if (redraws)
        redraw();
}

void LuWinSlider::addValueChangedCallback(Callback function, void* data) {
    m_valueChanged.push_back({function, data});
}

void LuWinSlider::addFinishCallback(Callback function, void* data) { m_finish.push_back({function, data}); }

void LuWinSlider::removeFinishCallback(Callback function, void* data) {
    const auto found = std::find(m_finish.begin(), m_finish.end(), Listener{function, data});
    if (found != m_finish.end())
        m_finish.erase(found);
}

/// False when the slider has ended meanwhile.
bool LuWinSlider::call(const Listeners& listeners) {
    if (!m_notifies)
        return true;
    const std::weak_ptr<bool> life = m_life;
    const Listeners present = listeners;
    for (const Listener& listener : present) {
        // One that another has taken away is not called any more.
        if (std::find(listeners.begin(), listeners.end(), listener) == listeners.end())
            continue;
        listener.function(listener.data, m_value);
        if (life.expired())
            return false;
    }
    return true;
}

void LuWinSlider::getClientSize(int& width, int& height) const {
    RECT client{};
    if (IsWindow(getNormalWindow()))
        GetClientRect(getNormalWindow(), &client);
    width = client.right;
    height = client.bottom;
}

LuWinSliderRectangle LuWinSlider::getBarRectangle() const {
    int width = 0, height = 0;
    getClientSize(width, height);
    const int inset = std::min(BAR_INSET, height / 4);
    return {0, toShort(inset), toShort(width - 1), toShort(height - 1 - inset)};
}

LuWinSliderRectangle LuWinSlider::getThumbRectangle() const {
    int width = 0, height = 0;
    getClientSize(width, height);
    const int travel = std::max(width - THUMB_WIDTH, 0);
    const auto x = static_cast<int>(std::lround(m_value * static_cast<float>(travel)));
    return {toShort(x), 0, toShort(std::min(x + THUMB_WIDTH, width) - 1), toShort(height - 1)};
}

LRESULT LuWinSlider::processEvent(UINT message, WPARAM wParam, LPARAM lParam) {
    const int x = static_cast<SHORT>(LOWORD(static_cast<DWORD_PTR>(lParam)));
    switch (message) {
    case WM_LBUTTONDOWN:
        press(x);
        return 0;
    case WM_MOUSEMOVE:
        if (m_isDragging)
            dragTo(x);
        return 0;
    case WM_LBUTTONUP:
        release(x);
        return 0;
    case WM_CAPTURECHANGED:
        if (reinterpret_cast<HWND>(lParam) != getNormalWindow())
            finishDrag();
        return 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_ENABLE:
        redraw();
        return 0;
    case WM_GETDLGCODE:
        return DLGC_WANTARROWS;
    default:
        return LuWinGDIWidget::processEvent(message, wParam, lParam);
    }
}

void LuWinSlider::press(int x) {
    const HWND window = getNormalWindow();
    // The window that has the focus until now hears of it, and may end this one.
    const std::weak_ptr<bool> life = m_life;
    SetFocus(window);
    if (life.expired() || !IsWindow(window))
        return;
    SetCapture(window);
    if (life.expired() || !IsWindow(window))
        return;
    const LuWinSliderRectangle thumb = getThumbRectangle();
    const bool isOnThumb = x >= thumb.x0 && x <= thumb.x1;
    m_grip = isOnThumb ? x - thumb.x0 : THUMB_WIDTH / 2;
    m_isDragging = true;
    m_pointerX = x;
    if (!isOnThumb) {
        m_pointerX = INT_MIN;
        dragTo(x);
    }
}

/// False when the slider has ended meanwhile.
bool LuWinSlider::dragTo(int x) {
    // A mouse that only trembles up and down leaves a value that lies between two pixels.
    if (x == m_pointerX)
        return true;
    m_pointerX = x;
    int width = 0, height = 0;
    getClientSize(width, height);
    const int travel = width - THUMB_WIDTH;
    if (travel <= 0)
        return true;
    const float value = std::clamp(static_cast<float>(x - m_grip) / static_cast<float>(travel), 0.0F, 1.0F);
    if (value == m_value)
        return true;
    setValue(value, 1);
    return call(m_valueChanged);
}

void LuWinSlider::release(int x) {
    if (m_isDragging && dragTo(x))
        finishDrag();
}

void LuWinSlider::finishDrag() {
    if (!m_isDragging)
        return;
    m_isDragging = false;
    if (getNormalWindow() && GetCapture() == getNormalWindow())
        ReleaseCapture();
    call(m_finish);
}

void LuWinSlider::onExpose() {
    s_thumbLook = {IsWindowEnabled(getNormalWindow()) != 0, GetFocus() == getNormalWindow()};
    drawSlider();
    drawMarks();
    s_thumbLook = {};
}

void LuWinSlider::drawSlider() {
    const LuWinSliderRectangle bar = getBarRectangle(), thumb = getThumbRectangle();
    fill(bar.x0, bar.y0, bar.x1, bar.y1, COLOR_BTNSHADOW);
    LuDrawThumbUIRegion(thumb.x0, thumb.y0, thumb.x1, thumb.y1);
    LuWinGL::get().flush();
}

void LuWinSlider::drawMarks() {
    const LuWinSliderRectangle bar = getBarRectangle(), thumb = getThumbRectangle();
    int width = 0, height = 0;
    getClientSize(width, height);
    const int travel = width - THUMB_WIDTH;
    for (int i = 0; i < NUM_MARKS; ++i) {
        const int x = THUMB_WIDTH / 2 + travel * i / (NUM_MARKS - 1);
        if (travel > 0 && (x < thumb.x0 || x > thumb.x1))
            fill(x, bar.y1 + 1, x, height - 1, COLOR_BTNSHADOW);
    }
}

void LuWinSlider::exposePlain(HDC dc) {
    fillPlain(dc, getBarRectangle(), 0, COLOR_BTNSHADOW);
    const LuWinSliderRectangle thumb = getThumbRectangle();
    const bool hasFocus = GetFocus() == getNormalWindow();
    fillPlain(dc, thumb, 0, hasFocus ? COLOR_HIGHLIGHT : COLOR_3DDKSHADOW);
    fillPlain(dc, thumb, 1, IsWindowEnabled(getNormalWindow()) ? COLOR_BTNHIGHLIGHT : COLOR_BTNFACE);
}
