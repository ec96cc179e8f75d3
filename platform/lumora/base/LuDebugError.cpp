// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LuDebugError.h"

#include <cstdarg>
#include <cstdio>

namespace {

LuDebugError::Handler s_handler = nullptr;
void* s_handlerData = nullptr;

std::string formatText(const char* format, va_list arguments) LU_PRINTF_FORMAT(1, 0);

std::string formatText(const char* format, va_list arguments) {
    va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    std::string text(length > 0 ? static_cast<std::size_t>(length) : 0, '\0');
    if (length > 0)
        std::vsnprintf(text.data(), text.size() + 1, format, again);
    va_end(again);
    return text;
}

void deliver(const LuDebugMessage& message) {
    if (s_handler)
        s_handler(message, s_handlerData);
    else
        std::fprintf(stderr, "%s: %s\n", message.where.c_str(), message.text.c_str());
}

} // namespace

void LuDebugError::post(const char* where, const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    const LuDebugMessage message{false, where, formatText(format, arguments)};
    va_end(arguments);
    deliver(message);
}

void LuDebugError::postInfo(const char* where, const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    const LuDebugMessage message{true, where, formatText(format, arguments)};
    va_end(arguments);
    deliver(message);
}

void LuDebugError::setHandler(Handler handler, void* data) {
    s_handler = handler;
    s_handlerData = data;
}
