// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvString.h"

#include <string>
#include <string_view>

/// Writes "." where `digits` have the decimal point of another locale.
void luReplaceDecimalPoint(std::string& digits, std::string_view point);

/// The printf format of a shown number. Files and programs bring it, so it is checked before it is used: it
/// needs one conversion that fits the number, with a width and a precision that do no harm, and may have text
/// and "%%" about that. Numbers look the same in every locale.
class LuNumberFormat {
public:
    /// What a format prints: WHOLE an int, by d, i, u, o, x or X; REAL a double, by f, e, g, a or their
    /// capitals, with or without an l.
    enum Kind { WHOLE, REAL };

    /// The greatest width and the greatest precision that a format may ask for.
    static constexpr int MAX_WIDTH = 99;

    /// `fallback` takes the place of texts that are no format of the kind. It is one itself.
    LuNumberFormat(Kind kind, const char* fallback);

    /// Takes a format, or reports that it is none and takes the fallback. The same text again is not read
    /// again.
    void set(const LvString& text);

    LvString print(int number) const;
    LvString print(double number) const;

private:
    /// What stands between the "%" and the letter, and what stands about them.
    struct Conversion {
        std::string before, after;
        std::string flags;
        int width = 0;
        int precision = -1; ///< -1 when there is none.
        char letter = 0;
    };

    const char* read(const std::string& text, Conversion& conversion) const;
    const char* readConversion(std::string_view text, std::size_t& at, Conversion& conversion) const;
    std::string getSpecification() const;
    LvString pad(std::string digits, bool isZeroPadded) const;

    Kind m_kind;
    LvString m_fallback;
    LvString m_text;
    Conversion m_conversion;
};
