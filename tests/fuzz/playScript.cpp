// SPDX-License-Identifier: MIT
#include "apps/play/PlayScript.h"
#include "platform/lumora/base/LuDebugError.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr const char* NAME = "a.play";
constexpr int LARGEST = 100000;

void require(bool isTrue, const char* what) {
    if (isTrue)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

std::string quote(const std::string& text) {
    std::string quoted = "\"";
    for (const char character : text) {
        if (character == '"' || character == '\\')
            quoted += '\\';
        quoted += character;
    }
    return quoted + '"';
}

/// A step as it is written; nothing for a key, whose name the step doesn't keep.
std::string write(const PlayStep& step) {
    const std::string amount = std::to_string(step.amount.x) + " " + std::to_string(step.amount.y);
    switch (step.action) {
    case PlayStep::PRESS:
        return "press " + quote(step.target);
    case PlayStep::RELEASE:
        return "release";
    case PlayStep::DRAG:
        return "drag " + quote(step.target) + " " + amount;
    case PlayStep::KEY:
        return "";
    case PlayStep::TYPE:
        return "type " + quote(step.text);
    case PlayStep::RESIZE:
        return "resize " + amount;
    case PlayStep::WAIT:
        return "wait " + std::to_string(step.amount.x);
    case PlayStep::SNAPSHOT:
        return "snapshot " + quote(step.target);
    }
    return "";
}

bool isWithinLimits(const PlayStep& step) {
    const int least = step.action == PlayStep::DRAG ? -LARGEST : 0;
    return std::min(step.amount.x, step.amount.y) >= least &&
           std::max(step.amount.x, step.amount.y) <= LARGEST;
}

int s_faults = 0;

bool read(std::string_view text, std::vector<PlayStep>& steps) {
    s_faults = 0;
    LuDebugError::setHandler(
        [](const LuDebugMessage& message, void*) {
            ++s_faults;
            require(message.text.rfind(std::string(NAME) + ":", 0) == 0, "a fault without its place");
        },
        nullptr);
    return readPlayScript(text, NAME, steps);
}

} // namespace

/// The input is a play file. Each line is a step, a fault or nothing, and the steps can be written and read
/// again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    std::vector<PlayStep> steps;
    const bool isGood = read(text, steps);
    require(isGood == (s_faults == 0), "a fault without a message, or a message without a fault");
    const auto lines = std::count(text.begin(), text.end(), '\n') + 1;
    require(static_cast<std::ptrdiff_t>(steps.size()) + s_faults <= lines,
            "more steps and faults than lines");

    std::string written;
    int line = 0;
    for (const PlayStep& step : steps) {
        require(step.line > line && step.line <= lines, "a step from a line that is not there");
        require(isWithinLimits(step), "a number out of its limits");
        line = step.line;
        written += write(step) + "\n";
    }
    std::vector<PlayStep> again;
    require(read(written, again), "what was written is at fault");
    steps.erase(std::remove_if(steps.begin(), steps.end(),
                               [](const PlayStep& step) { return step.action == PlayStep::KEY; }),
                steps.end());
    require(steps.size() == again.size(), "a step is lost");
    for (std::size_t i = 0; i < steps.size(); ++i)
        require(write(steps[i]) == write(again[i]), "a step that was read again differs");
    return 0;
}
