// SPDX-License-Identifier: MIT
#include "platform/lumora/io/LuInput.h"

#include "platform/lumora/base/LuBase.h"
#include "platform/lumora/base/LvFileHelper.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace {

LuInput::ErrorHandler s_errorHandler = nullptr;
void* s_errorData = nullptr;

bool isAbsolute(std::string_view path) {
    const bool hasDrive = path.size() > 1 && path[1] == ':';
    return hasDrive || (!path.empty() && (path[0] == '/' || path[0] == '\\'));
}

LvString join(const LvString& directory, const LvString& name) {
    if (directory.isEmpty())
        return name;
    const char last = directory[directory.getLength() - 1];
    return last == '/' || last == '\\' ? directory + name : directory + "/" + name;
}

LvString findFile(const LvString& name) {
    if (isAbsolute(name.view()))
        return name;
    LvStringList& directories = LuInput::getDirectories();
    for (int i = 0; i < directories.getLength(); ++i) {
        LvString path = join(*directories[i], name);
        if (LvFileHelper::isAccessible(path, LvFileHelper::EXISTS) && !LvFileHelper::isDirectory(path))
            return path;
    }
    return name;
}

} // namespace

LuInput::~LuInput() { closeFile(); }

void LuInput::setErrorHandler(ErrorHandler handler, void* data) {
    s_errorHandler = handler;
    s_errorData = data;
}

LvStringList& LuInput::getDirectories() {
    static LvStringList& s_directories = *new LvStringList;
    return s_directories;
}

void LuInput::clearDirectories() {
    LvStringList& directories = getDirectories();
    for (int i = 0; i < directories.getLength(); ++i)
        delete directories[i];
    directories.truncate(0);
}

void LuInput::addDirectoryFirst(const LvString& path) {
    LvStringList& directories = getDirectories();
    // The list can only be appended to, so the texts move up by one in place.
    directories.append(new LvString(path));
    for (int i = directories.getLength() - 1; i > 0; --i)
        std::swap(*directories[i], *directories[i - 1]);
}

void LuInput::addDirectoryLast(const LvString& path) { getDirectories().append(new LvString(path)); }

bool LuInput::openFile(const LvString& name, bool okIfNotFound, bool) {
    closeFile();
    const LvString path = findFile(name);
    if (okIfNotFound && !LvFileHelper::isAccessible(path, LvFileHelper::EXISTS))
        return false;
    std::string reason;
    if (!LvFileHelper::readWholeFile(path, m_content, reason)) {
        m_hasFailed = true;
        const LuReadError error{path, 0, 0, 0, LvString("the file can't be read: ") + reason.c_str()};
        if (s_errorHandler)
            s_errorHandler(error, s_errorData);
        else
            LuDebugError::post("LuInput::openFile", "%s: error: %s", path.getString(),
                               error.text.getString());
        return false;
    }
    start(m_content, path, true);
    return !m_hasFailed;
}

void LuInput::closeFile() {
    // What ends here may look at this table only if it reads a file, which it doesn't.
    for (const auto& [name, named] : m_named)
        named.object->unref();
    m_named.clear();
    m_content.clear();
    m_start = m_current = m_tokenStart = m_end = nullptr;
    m_level = nullptr;
    m_depth = 0;
    m_isBinary = false;
    m_hasFailed = false;
    m_isSingleValue = false;
    m_version = 2.0F;
}

void LuInput::setBuffer(const void* text, std::size_t length) {
    closeFile();
    start({static_cast<const char*>(text), length}, "text in memory", false);
}

void LuInput::start(std::string_view content, const LvString& fileName, bool needsHeader) {
    m_fileName = fileName;
    m_start = m_current = m_tokenStart = content.data();
    m_end = m_start + content.size();
    readHeader(needsHeader);
}

bool LuInput::readHeader(bool needsHeader) {
    static constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF";
    static constexpr std::string_view START = "#Lumora V";
    std::string_view rest(m_start, static_cast<std::size_t>(m_end - m_start));
    // Some editors begin every UTF-8 file so.
    if (rest.starts_with(BYTE_ORDER_MARK))
        rest.remove_prefix(BYTE_ORDER_MARK.size());
    m_current = m_tokenStart = rest.data();
    if (!rest.starts_with(START))
        return needsHeader ? postError("the first line is not \"#Lumora V2.0 ascii\" or "
                                       "\"#Lumora V2.0 binary\": this is no scene file")
                           : true;
    const std::size_t lineEnd = rest.find('\n');
    const std::string_view whole = rest.substr(0, lineEnd);
    std::string_view line = whole;
    while (!line.empty() && (line.back() == '\r' || line.back() == ' '))
        line.remove_suffix(1);
    line.remove_prefix(START.size());
    const std::string_view version = line.substr(0, 3);
    const std::string_view kind = line.substr(std::min<std::size_t>(3, line.size()));
    const bool isKnown = (version == "1.0" || version == "2.0") && (kind == " ascii" || kind == " binary");
    if (!isKnown)
        return postError("found \"%s\", expected version 1.0 or 2.0 and \"ascii\" or \"binary\"",
                         std::string(whole.substr(0, 60)).c_str());
    m_version = version == "1.0" ? 1.0F : 2.0F;
    m_isBinary = kind == " binary";
    if (m_isBinary && lineEnd == std::string_view::npos)
        return postError("the file ends in its first line");
    m_current += std::min(rest.size(), lineEnd == std::string_view::npos ? lineEnd : lineEnd + 1);
    m_tokenStart = m_current;
    return true;
}

bool LuInput::postError(const char* format, ...) {
    if (m_hasFailed)
        return false;
    m_hasFailed = true;
    char text[1024];
    std::va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);

    LuReadError error{m_fileName, 0, 0, static_cast<std::size_t>(m_tokenStart - m_start), text};
    std::string place = ":byte " + std::to_string(error.offset);
    if (!m_isBinary) {
        getLineAndColumn(error.line, error.column);
        place = ":" + std::to_string(error.line) + ":" + std::to_string(error.column);
    }
    // All that is read from now on finds the end of the file.
    m_current = m_tokenStart = m_end;
    if (s_errorHandler)
        s_errorHandler(error, s_errorData);
    else
        LuDebugError::post("LuInput", "%s%s: error: %s", m_fileName.getString(), place.c_str(), text);
    return false;
}

void LuInput::getLineAndColumn(int& line, int& column) const {
    line = 1 + static_cast<int>(std::count(m_start, m_tokenStart, '\n'));
    const char* lineStart = m_tokenStart;
    while (lineStart > m_start && lineStart[-1] != '\n')
        --lineStart;
    // Bytes that continue a character don't count.
    column = 1 + static_cast<int>(std::count_if(lineStart, m_tokenStart, [](char byte) {
                 return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
             }));
}

std::string LuInput::proposal(const char* kind, LvName name) {
    if (name.isEmpty())
        return {};
    return std::string("; is ") + kind + " \"" + name.getString() + "\" meant?";
}

bool LuInput::begin(Level& level) {
    if (m_depth == MAX_DEPTH)
        return postError("nodes are nested deeper than %d levels", MAX_DEPTH);
    if (!level.name.isEmpty()) {
        Named& named = m_named[level.name];
        level.object->ref();
        LuBase* const before = named.object;
        named = {level.object, 0, 0, true};
        if (before)
            before->unref();
    }
    ++m_depth;
    level.outer = m_level;
    m_level = &level;
    return true;
}

bool LuInput::end(Level& level) {
    m_level = const_cast<Level*>(level.outer);
    --m_depth;
    if (!level.name.isEmpty()) {
        // An object of the same name within this one has taken the name over.
        const auto found = m_named.find(level.name);
        if (found->second.object == level.object)
            found->second = {level.object, level.height, level.nodes, false};
    }
    include(level.height, level.nodes);
    if (m_level && m_level->nodes > MAX_NODES)
        return postError("the file holds more than %lld nodes, when each USE is counted in full",
                         static_cast<long long>(MAX_NODES));
    return !m_hasFailed;
}

/// Counts an object that has been read, or is used again, for the one that it stands in.
void LuInput::include(int height, std::int64_t nodes) {
    if (!m_level)
        return;
    m_level->height = std::max(m_level->height, height + 1);
    m_level->nodes += nodes;
}

LuBase* LuInput::findNamed(std::string_view name) {
    const auto found = m_named.find(LvName::findExisting(name));
    const std::string shown(name.substr(0, 100));
    if (name.empty() || found == m_named.end()) {
        LuNearestName nearest(name);
        for (const auto& [known, named] : m_named)
            nearest.consider(known);
        postError("USE of \"%s\", which no DEF before it names%s", shown.c_str(),
                  proposal("the name", nearest.get()).c_str());
        return nullptr;
    }
    const Named& named = found->second;
    if (named.isOpen) {
        postError("USE of \"%s\" within its own definition", shown.c_str());
        return nullptr;
    }
    if (m_depth + named.height > MAX_DEPTH) {
        postError("nodes are nested deeper than %d levels by the USE of \"%s\"", MAX_DEPTH, shown.c_str());
        return nullptr;
    }
    include(named.height, named.nodes);
    if (m_level && m_level->nodes > MAX_NODES) {
        postError("the file holds more than %lld nodes, when each USE is counted in full",
                  static_cast<long long>(MAX_NODES));
        return nullptr;
    }
    return named.object;
}
