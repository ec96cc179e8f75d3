// SPDX-License-Identifier: MIT
#include "platform/lumora/win/LuWinCanvas.h"

#include "platform/lumora/win/LuWinGL.h"

namespace {

struct State {
    LuWinCanvas::Maker maker = nullptr;
    std::weak_ptr<LuWinCanvas> shared;
    bool hasFailed = false;
    const LuWinGL* operations = nullptr;
};

State& getState() {
    static State s_state;
    return s_state;
}

} // namespace

std::shared_ptr<LuWinCanvas> LuWinCanvas::getShared() {
    State& state = getState();
    std::shared_ptr<LuWinCanvas> canvas = state.shared.lock();
    if (canvas || state.hasFailed)
        return canvas;
    canvas = state.maker ? state.maker() : make();
    state.shared = canvas;
    state.hasFailed = !canvas;
    return canvas;
}

void LuWinCanvas::setMaker(Maker maker) {
    State& state = getState();
    state.maker = maker;
    state.shared.reset();
    state.hasFailed = false;
}

const LuWinGL& LuWinGL::get() {
    const LuWinGL* const operations = getState().operations;
    return operations ? *operations : LuWinCanvas::getSystemGL();
}

void LuWinGL::set(const LuWinGL* operations) { getState().operations = operations; }
