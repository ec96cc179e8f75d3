// SPDX-License-Identifier: MIT
#include "apps/play/PlayScript.h"

#include "apps/play/PlayKeys.h"
#include "platform/lumora/base/LuDebugError.h"

#include <charconv>
#include <cstdio>
#include <fstream>
#include <sstream>

namespace {

constexpr const char* WHERE = "readPlayScript";

struct Word {
    std::string text;
    int column = 0; ///< From 1.
    bool isQuoted = false;
};

/// What an action is called, and how it is written.
struct Verb {
    const char* name;
    PlayStep::Action action;
    std::size_t leastWords; ///< Behind the verb.
    std::size_t mostWords;
    const char* usage;
};

constexpr Verb VERBS[] = {
    {"press", PlayStep::PRESS, 1, 1, "press ID"},
    {"release", PlayStep::RELEASE, 0, 0, "release"},
    {"drag", PlayStep::DRAG, 3, 3, "drag ID DX DY"},
    {"key", PlayStep::KEY, 1, 1, "key NAME"},
    {"type", PlayStep::TYPE, 1, 1, "type \"text\""},
    {"resize", PlayStep::RESIZE, 2, 2, "resize W H"},
    {"wait", PlayStep::WAIT, 0, 1, "wait [MILLISECONDS]"},
    {"snapshot", PlayStep::SNAPSHOT, 1, 1, "snapshot FILE"},
};

constexpr int LARGEST_NUMBER = 100000;

class LineReader {
public:
    LineReader(const std::string& name, int line) : m_name(name), m_line(line) {}

    bool read(std::string_view text, PlayStep& step, bool& isEmpty) {
        std::vector<Word> words;
        if (!split(text, words))
            return false;
        isEmpty = words.empty();
        if (isEmpty)
            return true;
        for (const Verb& verb : VERBS) {
            if (words[0].text == verb.name)
                return readAction(verb, words, step);
        }
        return fail(words[0].column,
                    "\"" + words[0].text +
                        "\" is no action; there are press, release, drag, key, type, resize, "
                        "wait and snapshot");
    }

private:
    bool fail(int column, const std::string& what) const {
        LuDebugError::post(WHERE, "%s:%d:%d: error: %s", m_name.c_str(), m_line, column, what.c_str());
        return false;
    }

    bool split(std::string_view text, std::vector<Word>& words) const {
        std::size_t at = 0;
        while (at < text.size()) {
            if (text[at] == ' ' || text[at] == '\t' || text[at] == '\r') {
                ++at;
                continue;
            }
            if (text[at] == '#')
                return true;
            Word word{{}, static_cast<int>(at) + 1, text[at] == '"'};
            if (!(word.isQuoted ? readQuoted(text, at, word) : readPlain(text, at, word)))
                return false;
            words.push_back(word);
        }
        return true;
    }

    static bool readPlain(std::string_view text, std::size_t& at, Word& word) {
        const std::size_t end = std::min(text.find_first_of(" \t\r#", at), text.size());
        word.text = text.substr(at, end - at);
        at = end;
        return true;
    }

    bool readQuoted(std::string_view text, std::size_t& at, Word& word) const {
        for (++at; at < text.size() && text[at] != '"'; ++at) {
            if (text[at] == '\\' && at + 1 < text.size())
                ++at;
            word.text += text[at];
        }
        if (at >= text.size())
            return fail(word.column, "the text has no closing quote");
        ++at;
        return true;
    }

    bool readAction(const Verb& verb, const std::vector<Word>& words, PlayStep& step) const {
        const std::size_t count = words.size() - 1;
        if (count < verb.leastWords || count > verb.mostWords)
            return fail(words[0].column, std::string("it is written: ") + verb.usage);
        step.action = verb.action;
        step.line = m_line;
        switch (verb.action) {
        case PlayStep::PRESS:
        case PlayStep::SNAPSHOT:
            step.target = words[1].text;
            return true;
        case PlayStep::DRAG:
            step.target = words[1].text;
            return readNumber(words[2], -LARGEST_NUMBER, step.amount.x) &&
                   readNumber(words[3], -LARGEST_NUMBER, step.amount.y);
        case PlayStep::RESIZE:
            return readNumber(words[1], 1, step.amount.x) && readNumber(words[2], 1, step.amount.y);
        case PlayStep::WAIT:
            return count == 0 || readNumber(words[1], 0, step.amount.x);
        case PlayStep::KEY:
            step.key = findPlayKey(words[1].text);
            return step.key != LuKeyboardEvent::ANY ||
                   fail(words[1].column, "\"" + words[1].text + "\" is no key");
        case PlayStep::TYPE:
            step.text = words[1].text;
            return words[1].isQuoted || fail(words[1].column, "the text needs quotes");
        case PlayStep::RELEASE:
            return true;
        }
        return true;
    }

    bool readNumber(const Word& word, int least, int& number) const {
        const char* const end = word.text.data() + word.text.size();
        const auto result = std::from_chars(word.text.data(), end, number);
        if (result.ec == std::errc() && result.ptr == end && number >= least && number <= LARGEST_NUMBER)
            return true;
        return fail(word.column, "\"" + word.text + "\" is no whole number from " + std::to_string(least) +
                                     " to " + std::to_string(LARGEST_NUMBER));
    }

    const std::string& m_name;
    int m_line;
};

} // namespace

bool readPlayScript(std::string_view text, const std::string& name, std::vector<PlayStep>& steps) {
    bool isGood = true;
    int line = 0;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        PlayStep step;
        bool isEmpty = true;
        if (!LineReader(name, ++line).read(text.substr(0, end), step, isEmpty))
            isGood = false;
        else if (!isEmpty)
            steps.push_back(step);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return isGood;
}

bool loadPlayScript(const std::string& path, std::vector<PlayStep>& steps) {
    std::ifstream file(path, std::ios::binary);
    // A folder can be opened, but not read. That a file is empty is no fault.
    file.peek();
    if (!file.is_open() || file.bad()) {
        LuDebugError::post(WHERE, "%s can't be read.", path.c_str());
        return false;
    }
    std::ostringstream content;
    content << file.rdbuf();
    return readPlayScript(content.str(), path, steps);
}
