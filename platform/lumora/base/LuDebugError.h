// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#if defined(__MINGW32__)
#define LU_PRINTF_FORMAT(formatIndex, firstArgument)                                                         \
    __attribute__((format(gnu_printf, formatIndex, firstArgument)))
#else
#define LU_PRINTF_FORMAT(formatIndex, firstArgument)                                                         \
    __attribute__((format(printf, formatIndex, firstArgument)))
#endif

/// One message on its way through the error channel.
struct LuDebugMessage {
    bool isInfo = false; ///< true for postInfo: a help for debugging, not a fault.
    std::string where;   ///< The operation that speaks, "LuPanelix::loadFromFile".
    std::string text;    ///< UTF-8, without a line end.
};

/// The error channel of the toolkit and of everything above it.
///
/// Without a handler a message goes to the standard error stream as "where: text". A handler takes all
/// messages instead; tests use it to collect them, applications to show them.
class LuDebugError {
public:
    using Handler = void (*)(const LuDebugMessage& message, void* data);

    /// Posts a fault; `format` and what follows are as for printf.
    static void post(const char* where, const char* format, ...) LU_PRINTF_FORMAT(2, 3);

    /// Posts information for debugging.
    static void postInfo(const char* where, const char* format, ...) LU_PRINTF_FORMAT(2, 3);

    /// Replaces the handler; null brings back the standard error stream. `data` is handed to each call and
    /// stays the caller's.
    static void setHandler(Handler handler, void* data);
};
