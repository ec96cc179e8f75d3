// SPDX-License-Identifier: MIT
// What LuPanelix::loadFromFile takes to make the shared dialog from its file.
#include "bench/DialogText.h"
#include "bench/Measure.h"
#include "bench/panelix/ReadDialog.h"
#include "core/LuPanelix.h"

#include <filesystem>
#include <fstream>

namespace {

/// A folder of its own for the dialog's file, removed at the end.
class Folder {
public:
    Folder() {
        std::string name = (std::filesystem::temp_directory_path() / "panelix-load.XXXXXX").string();
        bench::require(mkdtemp(name.data()) != nullptr, "a temporary folder can be made");
        m_path = name;
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder() { std::filesystem::remove_all(m_path); }

    std::string write(const std::string& text) const {
        const std::string name = (m_path / "dialog.lum").string();
        std::ofstream(name, std::ios::binary) << text;
        return name;
    }

private:
    std::filesystem::path m_path;
};

} // namespace

int main(int argc, char** argv) {
    const Folder folder;
    for (const int count : bench::counts(argc, argv)) {
        const std::string name = folder.write(bench::panelixText(bench::mixedDialog(count)));
        LuPanelix* dialog = nullptr;
        // A file is read once and then kept until the library ends, so each repeat is a life of the library.
        const bench::Sample sample{.prepare = [] { LuPanelix::init(); },
                                   .body = [&] { dialog = LuPanelix::loadFromFile(name.c_str(), ""); },
                                   .clear =
                                       [&] {
                                           bench::require(dialog != nullptr, "the file gives a dialog");
                                           bench::findButton(static_cast<LuTopLevelDialog&>(*dialog),
                                                             count - 1);
                                           dialog->unref();
                                           LuPanelix::finish();
                                       }};
        bench::measure("panelix-load", count, bench::repeatsFor(count), count, sample);
    }
}
