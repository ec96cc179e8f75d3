// SPDX-License-Identifier: MIT
#include "platform/lumora/win/LuWinCanvas.h"

#include "platform/lumora/win/LuWinGL.h"

namespace {

/// Windows that nobody sees.
class MemoryCanvas : public LuWinCanvas {
public:
    bool begin(int, int, COLORREF) override { return true; }
    void end(HDC) override {}
};

} // namespace

std::shared_ptr<LuWinCanvas> LuWinCanvas::make() { return std::make_shared<MemoryCanvas>(); }

const LuWinGL& LuWinCanvas::getSystemGL() {
    static constexpr LuWinGL NOTHING = {[](unsigned) {},
                                        [] {},
                                        [](float, float, float) {},
                                        [](const float*) {},
                                        [](short, short) {},
                                        [](short, short, short, short) {},
                                        [](unsigned) {},
                                        [](unsigned) {},
                                        [] {},
                                        [] {}};
    return NOTHING;
}
