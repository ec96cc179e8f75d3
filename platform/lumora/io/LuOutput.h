// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvName.h"

#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <unordered_map>

class LuBase;

/// Writes one scene file, text or binary (docs/file-format.md tells both).
///
/// Without an open file what is written collects in memory. A graph is written in two stages: the first
/// counts who is used more than once, the second writes.
class LuOutput {
public:
    enum Stage { COUNT_REFS, WRITE };

    LuOutput() = default;
    ~LuOutput() { closeFile(); }
    LuOutput(const LuOutput&) = delete;
    LuOutput& operator=(const LuOutput&) = delete;

    /// Opens a file by its UTF-8 path, an older one is replaced. False, with a message, when that fails.
    bool openFile(const LvString& name);

    /// Writes what is left and closes. False, with a message, when not everything could be written. Without
    /// an open file nothing happens.
    bool closeFile();

    /// To be chosen before anything is written; text at the start.
    void setBinary(bool isBinary) { m_isBinary = isBinary; }
    bool isBinary() const { return m_isBinary; }

    /// What has been written while no file was open.
    const std::string& getBuffer() const { return m_buffer; }

    /// Forgets what is in memory, and what names have been used.
    void clearBuffer();

    Stage getStage() const { return m_stage; }
    void setStage(Stage stage) { m_stage = stage; }

    /// Marks what is written as meant for another process of a cluster.
    bool isClusterTransfer() const { return m_isClusterTransfer; }
    void setClusterTransfer(bool isTransfer) { m_isClusterTransfer = isTransfer; }

    /// One value: in text as it stands in a file, in binary in four bytes or more. Numbers that are not
    /// finite become the nearest that are, zeros where there is no nearest: files hold finite numbers.
    void write(std::int32_t value);
    void write(float value);
    void write(bool value);
    void write(std::string_view text);
    void write(const LvString& text) { write(text.view()); }
    void write(LvName name) { write(name.view()); }
    void write(const char* text) { write(std::string_view(text)); }

    /// Text: characters as they are.
    void writeRaw(std::string_view text);

    /// Text: indents for the objects and lists that are open, at the start of a line.
    void writeIndent();

    /// Text: ends a line that has begun.
    void writeLineEnd();

    /// Text: the braces of an object, and the steps of the indentation.
    void openBrace();
    void closeBrace();
    void indent() { ++m_depth; }
    void outdent() { --m_depth; }

    /// Text: a name as a word, or in quotes where it can't be one.
    void writeIdentifier(std::string_view name);

    /// The first line of the file, unless it has been written.
    void writeFileHeader();

    /// Only a value is written: the first line stays away.
    void setWithoutHeader() { m_hasHeader = true; }

    /// Begins the counting for a new graph. Names that the file holds already stay taken.
    void beginGraph();

    /// Counts one more place that uses the object; true for the first.
    bool addReference(const LuBase* object);

    /// True once the object has been counted.
    bool isCounted(const LuBase* object) const { return m_references.count(object) != 0; }

    /// True when the object has been written before. Otherwise it counts as written from now on.
    bool markWritten(const LuBase* object);

    /// The name to write after DEF or USE; empty for an object that needs none.
    LvName getWrittenName(const LuBase* object);

    /// The output whose graph is being written; null when none is.
    static LuOutput* getCurrent() { return s_current; }
    static void setCurrent(LuOutput* output) { s_current = output; }

    /// True for the names that the writer makes for objects without one: an underscore and digits. They stay
    /// within the file: a reader gives them to no object.
    static bool isGeneratedName(std::string_view name);

private:
    struct Reference {
        int count = 0;
        bool isWritten = false;
        LvName writtenName;
    };
    /// How the names of a graph are used: one that stands for several objects can't serve for USE.
    struct NameUse {
        const LuBase* object = nullptr;
        bool isAmbiguous = false;
    };

    void writeBytes(const void* bytes, std::size_t length) {
        m_buffer.append(static_cast<const char*>(bytes), length);
    }
    void writeQuoted(std::string_view text);
    bool isAtLineStart() const { return m_buffer.empty() || m_buffer.back() == '\n'; }

    std::string m_buffer;
    LvString m_fileName;
    std::FILE* m_file = nullptr;
    Stage m_stage = COUNT_REFS;
    int m_depth = 0;
    int m_lastGenerated = 0;
    bool m_isBinary = false;
    bool m_hasHeader = false;
    bool m_isClusterTransfer = false;
    std::unordered_map<const LuBase*, Reference> m_references;
    std::unordered_map<LvName, NameUse> m_names;
    static LuOutput* s_current;
};
