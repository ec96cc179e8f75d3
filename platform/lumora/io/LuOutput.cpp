// SPDX-License-Identifier: MIT
#include "platform/lumora/io/LuOutput.h"

#include "platform/lumora/base/LuBase.h"
#include "platform/lumora/base/LuDebugError.h"
#include "platform/lumora/base/LvFileHelper.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

LuOutput* LuOutput::s_current = nullptr;

namespace {

bool isPlainWord(std::string_view name) {
    return !name.empty() && std::all_of(name.begin(), name.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
               c == '.' || c == '-';
    });
}

/// What a reader takes: valid UTF-8 without zero bytes.
std::string makeReadable(std::string_view text) {
    std::string result;
    for (std::size_t position = 0; position < text.size();) {
        const char32_t character = LuUtf8::next(text, position);
        if (character != 0)
            LuUtf8::append(result, character);
    }
    return result;
}

bool isReadable(std::string_view text) {
    return LuUtf8::validLength(text) == text.size() && text.find('\0') == text.npos;
}

} // namespace

bool LuOutput::openFile(const LvString& name) {
    closeFile();
    clearBuffer();
    m_fileName = name;
    m_file = LvFileHelper::openFile(name, "wb");
    if (!m_file)
        LuDebugError::post("LuOutput::openFile", "%s: can't be written: %s", name.getString(),
                           std::strerror(errno));
    return m_file != nullptr;
}

bool LuOutput::closeFile() {
    if (!m_file)
        return true;
    const bool isWritten = std::fwrite(m_buffer.data(), 1, m_buffer.size(), m_file) == m_buffer.size();
    const bool isClosed = std::fclose(m_file) == 0;
    m_file = nullptr;
    clearBuffer();
    if (isWritten && isClosed)
        return true;
    LuDebugError::post("LuOutput::closeFile", "%s: not everything could be written: %s",
                       m_fileName.getString(), std::strerror(errno));
    return false;
}

void LuOutput::clearBuffer() {
    m_buffer.clear();
    m_depth = 0;
    m_lastGenerated = 0;
    m_hasHeader = false;
    m_references.clear();
    m_names.clear();
}

void LuOutput::write(std::int32_t value) {
    if (!m_isBinary) {
        writeRaw(std::to_string(value));
        return;
    }
    const auto bits = static_cast<std::uint32_t>(value);
    const unsigned char bytes[] = {static_cast<unsigned char>(bits >> 24),
                                   static_cast<unsigned char>(bits >> 16),
                                   static_cast<unsigned char>(bits >> 8), static_cast<unsigned char>(bits)};
    writeBytes(bytes, sizeof bytes);
}

void LuOutput::write(float value) {
    constexpr float GREATEST = std::numeric_limits<float>::max();
    const float finite = std::isnan(value) ? 0.0F : std::clamp(value, -GREATEST, GREATEST);
    if (m_isBinary) {
        std::int32_t bits = 0;
        std::memcpy(&bits, &finite, sizeof bits);
        write(bits);
        return;
    }
    char text[32];
    const std::to_chars_result result = std::to_chars(text, text + sizeof text, finite);
    writeRaw({text, static_cast<std::size_t>(result.ptr - text)});
}

void LuOutput::write(bool value) {
    if (m_isBinary)
        write(static_cast<std::int32_t>(value));
    else
        writeRaw(value ? "TRUE" : "FALSE");
}

void LuOutput::write(std::string_view text) {
    if (!isReadable(text)) {
        write(std::string_view(makeReadable(text)));
        return;
    }
    if (!m_isBinary) {
        writeQuoted(text);
        return;
    }
    write(static_cast<std::int32_t>(text.size()));
    writeBytes(text.data(), text.size());
    m_buffer.append((4 - text.size() % 4) % 4, '\0');
}

void LuOutput::writeQuoted(std::string_view text) {
    m_buffer += '"';
    for (std::size_t i = 0; i < text.size(); ++i) {
        // A backslash in front of any other character stands for itself.
        const char next = i + 1 < text.size() ? text[i + 1] : '"';
        const bool needsEscape = text[i] == '"' || (text[i] == '\\' && (next == '"' || next == '\\'));
        if (needsEscape)
            m_buffer += '\\';
        m_buffer += text[i];
    }
    m_buffer += '"';
}

void LuOutput::writeRaw(std::string_view text) { m_buffer += text; }

void LuOutput::writeIndent() {
    if (isAtLineStart())
        m_buffer.append(static_cast<std::size_t>(m_depth) * 4, ' ');
}

void LuOutput::writeLineEnd() {
    if (!isAtLineStart())
        m_buffer += '\n';
}

void LuOutput::openBrace() {
    m_buffer += " {\n";
    ++m_depth;
}

void LuOutput::closeBrace() {
    --m_depth;
    if (m_buffer.ends_with("{\n"))
        m_buffer.pop_back();
    writeIndent();
    m_buffer += "}\n";
}

void LuOutput::writeIdentifier(std::string_view name) {
    if (m_isBinary || !isPlainWord(name))
        write(name);
    else
        writeRaw(name);
}

void LuOutput::writeFileHeader() {
    if (m_hasHeader)
        return;
    m_hasHeader = true;
    writeRaw(m_isBinary ? "#Lumora V2.0 binary\n" : "#Lumora V2.0 ascii\n\n");
}

void LuOutput::beginGraph() { m_references.clear(); }

bool LuOutput::addReference(const LuBase* object) {
    Reference& reference = m_references[object];
    if (++reference.count > 1)
        return false;
    const LvName name = object->getName();
    if (!name.isEmpty()) {
        NameUse& use = m_names[name];
        use.isAmbiguous = use.isAmbiguous || (use.object && use.object != object);
        use.object = object;
    }
    return true;
}

bool LuOutput::markWritten(const LuBase* object) {
    Reference& reference = m_references[object];
    const bool wasWritten = reference.isWritten;
    reference.isWritten = true;
    return wasWritten;
}

LvName LuOutput::getWrittenName(const LuBase* object) {
    Reference& reference = m_references[object];
    if (!reference.writtenName.isEmpty())
        return reference.writtenName;
    const LvName own = isGeneratedName(object->getName().view()) ? LvName() : object->getName();
    const bool isShared = reference.count > 1;
    LvName name = own;
    if (own.isEmpty() && isShared) {
        name = LvName(LvString("_" + std::to_string(++m_lastGenerated)));
    } else if (isShared && m_names[own].isAmbiguous) {
        int number = 0;
        do
            name = LvName(own.getString() + LvString("_" + std::to_string(++number)));
        while (m_names.count(name) != 0);
        m_names[name] = {object, false};
    }
    reference.writtenName = name;
    return name;
}

bool LuOutput::isGeneratedName(std::string_view name) {
    return name.size() > 1 && name[0] == '_' &&
           std::all_of(name.begin() + 1, name.end(), [](char c) { return c >= '0' && c <= '9'; });
}
