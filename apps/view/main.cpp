// SPDX-License-Identifier: MIT
#include "apps/play/ScenePlayer.h"
#include "apps/play/WindowPlayer.h"
#include "apps/view/EventPrinter.h"
#include "apps/view/LoadedDialog.h"
#include "apps/view/PanelScene.h"
#include "apps/view/Screen.h"
#include "apps/view/SkinChoice.h"
#include "apps/view/Snapshot.h"
#include "apps/view/TreePrinter.h"
#include "platform/lumora/base/LuDebugError.h"
#include "platform/lumora/base/LuPreferences.h"
#include "platform/lumora/base/LvFileHelper.h"
#include "platform/lumora/io/LuDB.h"
#include "platform/lumora/viewer/LuViewer.h"
#include "platform/lumora/win/LuWin.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>

namespace {

enum ExitStatus { GOOD = 0, FAULTY = 1, WRONG_USE = 2 };

struct Options {
    std::vector<std::string> files;
    std::string id;
    std::string skin;
    std::string tree;
    std::string snapshot;
    std::string play;
    std::string size = "800x600";
    std::string camera = "front";
    LvVec2i32 pixels;
    bool areEventsPrinted = false;
    bool hasScene = false;
    bool hasBoth = false;

    bool showsScene() const { return hasScene || hasBoth; }
    bool showsWindows() const { return !hasScene || hasBoth; }
};

/// "WxH"; an empty text when it is good, as CLI11 has it.
std::string readSize(const std::string& text, LvVec2i32& size) {
    constexpr int LARGEST = 8192;
    char rest = 0;
    if (std::sscanf(text.c_str(), "%5dx%5d%c", &size.x, &size.y, &rest) == 2 && size.x > 0 && size.y > 0 &&
        size.x <= LARGEST && size.y <= LARGEST)
        return {};
    return "it is written 800x600, and at most 8192x8192";
}

/// A variable of a script that is not set makes an empty name.
std::string checkFile(const std::string& name) { return name.empty() ? "the file has no name" : ""; }

void addOptions(CLI::App& app, Options& options) {
    app.add_option("FILE", options.files, "Dialog files, text or binary")->required();
    app.add_option("--id", options.id, "Show the component with this auditorID")->type_name("ID");
    app.add_flag("--events", options.areEventsPrinted,
                 "Print a line for each auditor call: operation, auditorID, label, value");
    app.add_option("--tree", options.tree,
                   "Print the tree and end: type, auditorID, position, size; or all as json")
        ->expected(0, 1)
        ->default_str("text")
        ->check(CLI::IsMember({"text", "json"}))
        ->type_name("[json]");
    auto* scene = app.add_flag("--scene", options.hasScene, "Show the dialogs as panels in a scene");
    app.add_flag("--both", options.hasBoth, "Show windows and scene of the same dialogs")->excludes(scene);
    app.add_option("--size", options.size, "The size of the scene's picture or window; 800x600 without it")
        ->check([&options](const std::string& text) { return readSize(text, options.pixels); })
        ->type_name("WxH");
    app.add_option("--camera", options.camera,
                   "How the scene is seen: front, one unit a pixel (without it), or tilted")
        ->check(CLI::IsMember({"front", "tilted"}).description(""))
        ->type_name("front|tilted");
    app.add_option(
           "--play", options.play,
           "Play the actions of a file to the dialogs and end: to the scene with --scene, otherwise to "
           "the windows")
        ->check(checkFile)
        ->type_name("FILE");
    app.add_option(
           "--snapshot", options.snapshot,
           "Write a picture of what shows and end: of the scene with --scene, otherwise of the windows")
        ->check(checkFile)
        ->type_name("FILE.png");
    app.add_option(
           "--skin", options.skin,
           "The skin of the 3D rendition: a directory, or the name of one in the skins folders that the "
           "environment's PANELIX_SKINS_DIR and LUMORAHOME tell. Where neither is set, there are those that "
           "came with the sources: default and slate")
        ->type_name("NAME");
}

/// The dialogs of the files, and where they show.
class Show {
public:
    explicit Show(const Options& options) : m_options(options), m_scene(options.pixels) {}

    int run();

private:
    bool load();
    bool play();
    bool takeSnapshot(const std::string& path);
    bool runUntilClosed();
    bool takeWindowSnapshot(const std::string& path);
    bool isAnyVisible() const;

    const Options& m_options;
    EventPrinter m_printer;
    PanelScene m_scene;
    LoadedDialogs m_dialogs;
};

bool Show::load() {
    if (!loadDialogs(m_options.files, m_options.id, m_options.areEventsPrinted ? &m_printer : nullptr,
                     m_dialogs))
        return false;
    for (const auto& dialog : m_dialogs) {
        if (m_options.showsWindows())
            (*dialog)->buildDialog(nullptr, 0);
        // Without a display there are no windows; the library has said so.
        if (m_options.showsWindows() && !(*dialog)->getBaseWidget())
            return false;
        if (m_options.showsScene())
            m_scene.add(dialog->get());
    }
    if (m_options.showsScene())
        m_scene.look(m_options.camera == "tilted" ? PanelScene::TILTED : PanelScene::FRONT);
    return true;
}

bool Show::isAnyVisible() const {
    return std::any_of(m_dialogs.begin(), m_dialogs.end(),
                       [](const auto& dialog) { return dialog->isVisible(); });
}

bool Show::takeWindowSnapshot(const std::string& path) {
    std::vector<HWND> windows;
    for (const auto& dialog : m_dialogs)
        windows.push_back((*dialog)->getBaseWidget());
    LuWin::processMessages();
    return writeSnapshot(windows, path);
}

bool Show::takeSnapshot(const std::string& path) {
    return m_options.hasScene ? m_scene.writePicture(path) : takeWindowSnapshot(path);
}

bool Show::play() {
    std::vector<PlayStep> steps;
    if (!loadPlayScript(m_options.play, steps))
        return false;
    std::vector<LuTopLevelDialog*> dialogs;
    for (const auto& dialog : m_dialogs)
        dialogs.push_back(dialog->get());
    const auto snapshot = [this](const std::string& path) { return takeSnapshot(path); };
    if (m_options.hasScene)
        return ScenePlayer(m_scene.getRoot(), m_scene.getCamera(), m_scene.getRegion(), snapshot)
            .play(steps, dialogs);
    return WindowPlayer(snapshot).play(steps, dialogs);
}

bool Show::runUntilClosed() {
    std::unique_ptr<LuViewer> viewer;
    if (m_options.showsScene()) {
        viewer = LuViewer::create("panelix-view", m_options.pixels.x, m_options.pixels.y);
        if (!viewer)
            return false;
        m_scene.showIn(viewer->getView());
        viewer->show();
    }
    if (!viewer && !isScreenThere())
        return false;
    while ((viewer ? viewer->isOpen() : isAnyVisible()) && LuViewer::waitForEvents()) {
    }
    return true;
}

int Show::run() {
    if (!load())
        return FAULTY;
    if (!m_options.tree.empty()) {
        for (const auto& dialog : m_dialogs) {
            LuPanelix& component = dialog->component();
            std::fputs((m_options.tree == "json" ? printTreeAsJson(component) : printTree(component)).c_str(),
                       stdout);
        }
        return GOOD;
    }
    if (m_options.showsWindows()) {
        for (const auto& dialog : m_dialogs)
            (*dialog)->show();
    }
    if (!m_options.play.empty() && !play())
        return FAULTY;
    if (!m_options.snapshot.empty() && !takeSnapshot(m_options.snapshot))
        return FAULTY;
    if (m_options.play.empty() && m_options.snapshot.empty())
        return runUntilClosed() ? GOOD : FAULTY;
    return GOOD;
}

/// Where nothing tells of a folder of skins, those that came with the sources are taken, if they are there.
void findSkins() {
    if (LuPanelix::getSkinsDirectories().isEmpty() && LvFileHelper::isAccessible(PANELIX_SKINS, 0))
        LuPreferences::setString("PANELIX_SKINS_DIR", PANELIX_SKINS);
}

} // namespace

int main(int argumentCount, char** arguments) {
    CLI::App app(
        "Shows the dialogs of files as windows, as panels in a scene, or as both; ends when the last of "
        "them, or the scene's window, has been closed.\n"
        "Exit status: 0 all went well, 1 a file, the skin or the picture is at fault, 2 wrong use.");
    Options options;
    readSize(options.size, options.pixels);
    addOptions(app, options);
    // A path that begins with a slash is a file, not an option.
    app.allow_windows_style_options(false);
    try {
        app.parse(argumentCount, arguments);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? GOOD : WRONG_USE;
    }
    // Windows, be they real or in memory, or none.
    LuDBImpl::m_isHeadless = !options.showsWindows();
    findSkins();
    LuPanelix::init();
    int status = FAULTY;
    if (const std::string complaint = takeSkin(options.skin); complaint.empty())
        status = Show(options).run();
    else
        LuDebugError::post("panelix-view", "%s", complaint.c_str());
    LuPanelix::finish();
    return status;
}
