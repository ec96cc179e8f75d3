// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LuDebugError.h"
#include "platform/lumora/base/LuType.h"
#include "platform/lumora/base/LvPList.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

class LuBase;
class LuFieldContainer;

/// The first fault of a file.
struct LuReadError {
    LvString file;          ///< The file's path, or "text in memory".
    int line = 0;           ///< From 1; 0 for a binary file.
    int column = 0;         ///< From 1, in characters; 0 for a binary file.
    std::size_t offset = 0; ///< In bytes from the start.
    LvString text;          ///< What was found and what was expected, one sentence.
};

/// Reads one scene file, text or binary (docs/file-format.md tells both).
///
/// The whole file is kept in memory while it is open, and its words are looked at there. Only the first
/// fault is reported; after it every read operation fails.
class LuInput {
public:
    /// Deeper files are refused, whether the depth is written out or made by USE.
    static constexpr int MAX_DEPTH = 256;

    /// So many nodes, with each USE counted as what it stands for, may a file hold: a few lines of nested USE
    /// would otherwise make a scene that no traversal gets to the end of.
    static constexpr std::int64_t MAX_NODES = 4'000'000;

    using ErrorHandler = void (*)(const LuReadError& error, void* data);

    LuInput() = default;
    ~LuInput();
    LuInput(const LuInput&) = delete;
    LuInput& operator=(const LuInput&) = delete;

    /// The handler takes the faults of all files in place of the error channel; null ends that. `data` is
    /// handed to each call and stays the caller's.
    static void setErrorHandler(ErrorHandler handler, void* data);

    /// Opens a file by its UTF-8 path. A relative name is looked for in the directories, in their order, and
    /// then as it is. False, with a message, when that fails; a file that is nowhere is reported unless
    /// `okIfNotFound`. `aliasing` is accepted and means nothing.
    bool openFile(const LvString& name, bool okIfNotFound = false, bool aliasing = false);

    /// Forgets the file and the names in it. Named objects that nobody else holds end.
    void closeFile();

    /// Reads from memory, which is not copied and must live until the end of reading. A text without a first
    /// line that names the format counts as a text of version 2.0.
    void setBuffer(const void* text, std::size_t length);

    /// The directories in which relative names are looked for; one list for the process. The texts belong to
    /// the list.
    static LvStringList& getDirectories();
    static void clearDirectories();
    static void addDirectoryFirst(const LvString& path);
    static void addDirectoryLast(const LvString& path);

    bool isBinary() const { return m_isBinary; }

    /// 1.0 or 2.0.
    float getVersion() const { return m_version; }

    /// Path of the file, or "text in memory".
    const LvString& getFileName() const { return m_fileName; }

    /// True after the first fault.
    bool hasFailed() const { return m_hasFailed; }

    /// True when nothing but white space and comments is left.
    bool isAtEnd();

    /// One value. False when it can't be read, which has been reported.
    bool read(std::int32_t& value);
    bool read(float& value);
    bool read(bool& value);
    bool read(LvString& value);
    bool read(LvName& value);

    /// How many objects or values of at least `bytesOfEach` follow in a binary file. False, with a message,
    /// for a number that the rest of the file can't hold.
    bool readCount(int& count, std::size_t bytesOfEach);

    /// Text: the next character behind white space and comments, without taking it; 0 at the end.
    char peekCharacter();

    /// Text: takes this character if it comes next.
    bool readCharacter(char expected);

    /// The same, but anything else is a fault. `purpose` completes the message: "after DEF A Cube".
    bool expectCharacter(char expected, const char* purpose);

    /// Text: the next word, empty when something else comes next. It lies in the file: valid until that is
    /// closed. A word ends at white space or one of { } [ ] " , # ~.
    std::string_view readWord();

    /// Text: puts the word that was read last back.
    void putBackWord() { m_current = m_tokenStart; }

    /// Text: takes this word if it comes next.
    bool readKeyword(std::string_view keyword);

    /// Text: a name, as a word or in quotes. `purpose` completes the message: "after DEF".
    bool readIdentifier(LvName& name, const char* purpose);

    /// A text of a binary file, as it lies there.
    bool readBinaryText(std::string_view& text);

    /// Ends the reading of a field's value. False, with a message, when only one value was to be read and
    /// more follows.
    bool endValue();

    /// From now on the whole text must be one value.
    void setSingleValue() { m_isSingleValue = true; }

    /// Reports a fault at the place of what was read last. The format is as for printf. Always false, so that
    /// an operation can end with it.
    bool postError(const char* format, ...) LU_PRINTF_FORMAT(2, 3);

    /// Text: messages point at this place of the file from now on.
    void pointAt(const char* place) { m_tokenStart = place; }

    /// What was read last, as messages name it: "Cube" with quotes, or "the end of the file".
    std::string describeFound() const;

    /// Same as describeFound, for what comes next; messages then point there.
    std::string describeNext();

    /// The end of a message that proposes a name; empty without one.
    static std::string proposal(const char* kind, LvName name);

    /// Objects that are being read, one within the other. `name` may be empty.
    struct Level {
        LuBase* object = nullptr;
        LvName name;
        const Level* outer = nullptr;
        int height = 1;         ///< Levels of the object's tree so far.
        std::int64_t nodes = 1; ///< Nodes in it so far, each USE counted in full.
    };

    /// Begins and ends an object. `begin` fails, with a message, when the file is nested too deeply.
    bool begin(Level& level);
    bool end(Level& level);

    /// The object that is being read, null at the top of a file.
    const LuBase* getEnclosing() const { return m_level ? m_level->object : nullptr; }

    /// The object of a name; null, with a message, when there is none or it is still being read.
    LuBase* findNamed(std::string_view name);

private:
    struct Named {
        LuBase* object = nullptr;
        int height = 0;
        std::int64_t nodes = 0;
        bool isOpen = false;
    };

    void start(std::string_view content, const LvString& fileName, bool needsHeader);
    bool readHeader(bool needsHeader);
    bool skipSpace();
    bool readNumberWord(std::string_view& word, const char* expected);
    bool readQuoted(LvString& value);
    bool unescape(std::string_view raw, LvString& value);
    bool readBytes(void* bytes, std::size_t length);
    bool checkText(std::string_view text);
    void getLineAndColumn(int& line, int& column) const;
    void include(int height, std::int64_t nodes);

    std::string m_content; ///< Of an open file.
    LvString m_fileName;
    const char* m_start = nullptr;
    const char* m_current = nullptr;
    const char* m_tokenStart = nullptr;
    const char* m_end = nullptr;
    float m_version = 2.0F;
    int m_depth = 0;
    bool m_isBinary = false;
    bool m_hasFailed = false;
    bool m_isSingleValue = false;
    Level* m_level = nullptr;
    std::unordered_map<LvName, Named> m_named;
};
