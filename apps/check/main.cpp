// SPDX-License-Identifier: MIT
#include "core/LuPanelix.h"
#include "platform/lumora/io/LuDB.h"
#include "platform/lumora/io/LuInput.h"

#include <CLI/CLI.hpp>

#include <cstdio>

namespace {

enum ExitStatus { GOOD = 0, FAULTY = 1, WRONG_USE = 2 };

/// Counts the faults of the file being read, and says each.
void printError(const LuReadError& error, void* data) {
    ++*static_cast<int*>(data);
    if (error.line > 0)
        std::printf("%s:%d:%d: error: %s\n", error.file.getString(), error.line, error.column,
                    error.text.getString());
    else if (error.offset > 0)
        std::printf("%s: error: at byte %zu: %s\n", error.file.getString(), error.offset,
                    error.text.getString());
    else
        std::printf("%s: error: %s\n", error.file.getString(), error.text.getString());
}

bool checkFile(const std::string& path) {
    int numErrors = 0;
    LuInput::setErrorHandler(&printError, &numErrors);
    LuInput input;
    bool isGood = input.openFile(path);
    if (isGood) {
        LuGroup* const root = LuDB::readAll(&input);
        isGood = root != nullptr;
        if (root) {
            root->ref();
            root->unref();
        }
        input.closeFile();
    }
    LuInput::setErrorHandler(nullptr, nullptr);
    return isGood && numErrors == 0;
}

} // namespace

int main(int argumentCount, char** arguments) {
    CLI::App app("Says what is wrong in dialog files, and where.\n"
                 "A fault is printed as FILE:LINE:COLUMN: error: ...; reading goes on with the next file.\n"
                 "Exit status: 0 all files are good, 1 a file has a fault, 2 wrong use.");
    std::vector<std::string> files;
    app.add_option("FILE", files, "Dialog files, text or binary")->required();
    // A path that begins with a slash is a file, not an option.
    app.allow_windows_style_options(false);
    try {
        app.parse(argumentCount, arguments);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? GOOD : WRONG_USE;
    }
    LuPanelix::init();
    bool areAllGood = true;
    for (const std::string& file : files)
        areAllGood = checkFile(file) && areAllGood;
    LuPanelix::finish();
    return areAllGood ? GOOD : FAULTY;
}
