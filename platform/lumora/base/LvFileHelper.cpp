// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LvFileHelper.h"

#include "platform/lumora/base/LuPreferences.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <memory>
#include <system_error>
#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

/// A device can deliver bytes without end; no file of ours comes near this.
constexpr std::size_t LARGEST_FILE = std::size_t{1} << 30;

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

bool isNameStart(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_'; }
bool isNamePart(char c) { return isNameStart(c) || (c >= '0' && c <= '9'); }

/// Finds the variable that begins with the '$' at `start`. Gives its name, and its end in `end`; the empty
/// name when there is none.
std::string_view findVariable(std::string_view text, std::size_t start, std::size_t& end) {
    std::size_t first = start + 1;
    if (first < text.size() && text[first] == '{') {
        ++first;
        const std::size_t brace = text.find('}', first);
        if (brace == std::string_view::npos)
            return {};
        end = brace + 1;
        return text.substr(first, brace - first);
    }
    if (first >= text.size() || !isNameStart(text[first]))
        return {};
    end = first;
    while (end < text.size() && isNamePart(text[end]))
        ++end;
    return text.substr(first, end - first);
}

/// A path with a zero byte would name another file than it says.
bool holdsZero(const LvString& path) { return path.view().find('\0') != std::string_view::npos; }

std::string describe(int error) {
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return "it does not exist";
    case EACCES:
    case EPERM:
        return "it may not be read";
    default:
        return "the system says: " + std::generic_category().message(error);
    }
}

} // namespace

bool LvFileHelper::isAccessible(const LvString& path, int access) {
    if (path.isEmpty() || holdsZero(path))
        return false;
#ifdef _WIN32
    return _waccess(path.toWide().c_str(), access) == 0;
#else
    return ::access(path.getString(), access) == 0;
#endif
}

bool LvFileHelper::isDirectory(const LvString& path) {
    std::error_code ignored;
#ifdef _WIN32
    return std::filesystem::is_directory(path.toWide(), ignored);
#else
    return std::filesystem::is_directory(path.str(), ignored);
#endif
}

LvString LvFileHelper::toUnixPath(const LvString& path) {
    std::string result = path.str();
    std::replace(result.begin(), result.end(), '\\', '/');
    return result;
}

LvString LvFileHelper::expandString(const LvString& text) {
    const std::string_view source = text.view();
    std::string result;
    for (std::size_t position = 0; position < source.size();) {
        std::size_t end = position + 1;
        if (source[position] == '$') {
            const std::string name(findVariable(source, position, end));
            const char* value = name.empty() ? nullptr : LuPreferences::getValue(name.c_str());
            if (value) {
                result += value;
                position = end;
                continue;
            }
            end = position + 1;
        }
        result += source.substr(position, end - position);
        position = end;
    }
    return result;
}

std::FILE* LvFileHelper::openFile(const LvString& path, const char* mode) {
    if (holdsZero(path)) {
        errno = ENOENT;
        return nullptr;
    }
#ifdef _WIN32
    return _wfopen(path.toWide().c_str(), LvString(mode).toWide().c_str());
#else
    return std::fopen(path.getString(), mode);
#endif
}

bool LvFileHelper::readWholeFile(const LvString& path, std::string& content, std::string& reason) {
    content.clear();
    reason.clear();
    if (isDirectory(path)) {
        reason = "it is a directory";
        return false;
    }
    const std::unique_ptr<std::FILE, CloseFile> file(openFile(path, "rb"));
    if (!file) {
        reason = describe(errno);
        return false;
    }
    std::array<char, 65536> block;
    while (const std::size_t count = std::fread(block.data(), 1, block.size(), file.get())) {
        if (content.size() + count > LARGEST_FILE) {
            reason = "it is larger than 1 GiB";
            break;
        }
        content.append(block.data(), count);
    }
    if (reason.empty() && std::ferror(file.get()))
        reason = describe(errno);
    if (!reason.empty())
        content = std::string();
    return reason.empty();
}
