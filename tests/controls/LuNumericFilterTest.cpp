// SPDX-License-Identifier: MIT
#include "controls/LuNumericFilter.h"

#include "tests/platform/win32/WindowFixture.h"

#include <clocale>

namespace {

struct TextCase {
    const char* text;
    bool isNumber;
};

TEST(LuNumericFilterTest, number_hasNothingBehindIt) {
    constexpr TextCase CASES[] = {
        {"0", true},    {"12", true},     {"-1", true},   {"+1", true},   {".5", true},    {"5.", true},
        {"-0.5", true}, {"1e5", true},    {"1E-5", true}, {" 1", true},   {"1 ", true},    {"0x1A", true},
        {"", false},    {" ", false},     {"-", false},   {"+", false},   {".", false},    {"1x", false},
        {"1,5", false}, {"1e", false},    {"1e+", false}, {"--1", false}, {"+-1", false},  {"1 2", false},
        {"0x", false},  {"1.2.3", false}, {"e5", false},  {"x", false},   {"1e999", true}, {"-1e-999", true},
    };
    for (const TextCase& c : CASES)
        EXPECT_EQ(luIsNumber(c.text), c.isNumber) << '"' << c.text << '"';
}

/// What happens in the edit box: texts have "|" at both ends of the selection, or once for the caret alone.
struct TypingCase {
    const char* name;
    const char* before;
    const char* typed; ///< "\x7f" stands for the Delete key.
    const char* after;
};

std::ostream& operator<<(std::ostream& out, const TypingCase& c) { return out << c.name; }

class LuNumericFilterEditTest : public WindowFixture {
protected:
    void SetUp() override {
        WindowFixture::SetUp();
        const HWND top = createTop();
        m_edit = createEdit("edit", top);
        ShowWindow(top, SW_SHOW);
        SetWindowTextA(m_edit, "");
        s_native = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrA(m_edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(filter)));
    }

    void set(const std::string& marked) {
        const std::size_t start = marked.find('|'), end = marked.rfind('|');
        std::string text = marked;
        std::erase(text, '|');
        SetWindowTextA(m_edit, text.c_str());
        SendMessageA(m_edit, EM_SETSEL, start, static_cast<LPARAM>(end - (end == start ? 0 : 1)));
    }

    std::string get() {
        char buffer[100] = "";
        GetWindowTextA(m_edit, buffer, sizeof buffer);
        DWORD start = 0, end = 0;
        SendMessageA(m_edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
        std::string marked = buffer;
        marked.insert(end, "|");
        return start == end ? marked : marked.insert(start, "|");
    }

    void type(const char* characters) {
        for (; *characters; ++characters) {
            if (*characters == '\x7f')
                SendMessageA(m_edit, WM_KEYDOWN, VK_DELETE, 1);
            else
                SendMessageA(m_edit, WM_CHAR, static_cast<unsigned char>(*characters), 1);
        }
    }

    static LRESULT CALLBACK filter(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message != WM_CHAR && message != WM_KEYDOWN)
            return CallWindowProcA(s_native, window, message, wParam, lParam);
        luFilterNumericEdit(s_native, window, message, wParam, lParam);
        return 0;
    }

    inline static WNDPROC s_native = nullptr;
    HWND m_edit = nullptr;
};

class LuNumericFilterTypingTest : public LuNumericFilterEditTest,
                                  public testing::WithParamInterface<TypingCase> {};

TEST_P(LuNumericFilterTypingTest, text_staysANumber) {
    const TypingCase& c = GetParam();
    set(c.before);
    type(c.typed);
    EXPECT_EQ(get(), c.after);
}

constexpr TypingCase TYPING[] = {
    {"digits", "|", "12", "12|"},
    {"fraction", "1|", ".5", "1.5|"},
    {"letter", "1|", "x", "1|"},
    {"letterInTheMiddle", "1|2", "x", "1|2"},
    {"letterOverASelection", "1|23|4", "x", "1|234"},
    {"secondPoint", "1.|5", ".", "1.|5"},
    {"loneMinus", "|", "-", "-|0|"},
    {"minusAndDigit", "|", "-7", "-7|"},
    {"minusInFront", "|5", "-", "-|5"},
    {"minusBehind", "5|", "-", "5|"},
    {"openExponent", "1|", "e", "1e|0|"},
    {"openCapitalExponent", "1|", "E", "1E|0|"},
    {"exponentAndDigit", "1|", "e5", "1e5|"},
    {"exponentWithoutANumber", "|", "e", "|"},
    {"secondExponent", "1e5|", "e", "1e5|"},
    {"negativeExponent", "1e|5", "-", "1e-|5"},
    {"emptied", "|12|", "\b", "|"},
    {"emptiedByDelete", "|12|", "\x7f", "|"},
    {"backspace", "12|", "\b", "1|"},
    {"backspaceToTheMinus", "-5|", "\b", "-|0|"},
    {"backspaceToTheExponent", "1e5|", "\b", "1e|0|"},
    {"backspaceOverWhatMustStay", "1|e5", "\b", "|1e5"},
    {"backspaceAtTheStart", "|12", "\b", "|12"},
    {"backspaceOfASelectionThatMustStay", "|1|e5", "\b", "|1e5"},
    {"delete", "|12", "\x7f", "|2"},
    {"deleteOfWhatMustStay", "|1e5", "\x7f", "|1e5"},
    {"deleteOfTheExponentsLetter", "1|e5", "\x7f", "1|5"},
};
INSTANTIATE_TEST_SUITE_P(Typing, LuNumericFilterTypingTest, testing::ValuesIn(TYPING),
                         [](const auto& typing) { return std::string(typing.param.name); });

TEST_F(LuNumericFilterEditTest, pastedText_isNotLookedAt) {
    SendMessageA(m_edit, EM_REPLACESEL, 0, reinterpret_cast<LPARAM>("abc"));
    EXPECT_EQ(get(), "abc|");
}

TEST_F(LuNumericFilterEditTest, longText_isCutWhenItIsPutBack) {
    set(std::string(70, '1') + "|");
    // The first 59 characters are a number still.
    type("2");
    EXPECT_EQ(get(), std::string(70, '1') + "2|");
    set("|" + std::string(70, '1'));
    type("x");
    EXPECT_EQ(get(), "|" + std::string(59, '1'));
}

TEST(LuNumericFilterTest, number_hasAPointWhateverTheLocale) {
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    for (const char* name : {"de_DE.UTF-8", "German_Germany.1252", "fr_FR.UTF-8", "C"}) {
        if (!std::setlocale(LC_NUMERIC, name))
            continue;
        EXPECT_TRUE(luIsNumber("1.5")) << name;
        EXPECT_FALSE(luIsNumber("1,5")) << name;
    }
    std::setlocale(LC_NUMERIC, before.c_str());
}

} // namespace
