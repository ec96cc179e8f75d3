// SPDX-License-Identifier: MIT
// What Dear ImGui takes to make a frame of push buttons with texts in which nothing changes, all of them to
// be seen: from NewFrame to the end of Render, when its lists are ready for the driver. No driver is there.
#include "bench/DialogText.h"
#include "bench/Measure.h"

#include <imgui.h>

namespace {

constexpr int buttonsInRow = 10;
constexpr float buttonWidth = 120, buttonHeight = 20, rowHeight = 30;

void collectTexts(const bench::Item& item, std::vector<std::string>& texts) {
    if (item.kind == bench::Kind::PushButton)
        texts.push_back(item.text + "##" + item.id);
    for (const bench::Item& child : item.children)
        collectTexts(child, texts);
}

/// The buttons that were seen.
int makeFrame(const std::vector<std::string>& texts) {
    int seen = 0;
    ImGui::NewFrame();
    ImGui::SetNextWindowPos({0, 0});
    ImGui::SetNextWindowSize(ImGui::GetIO().DisplaySize);
    ImGui::Begin("Panel");
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (i % buttonsInRow != 0)
            ImGui::SameLine();
        ImGui::Button(texts[i].c_str(), {buttonWidth, buttonHeight});
        seen += ImGui::IsItemVisible() ? 1 : 0;
    }
    ImGui::End();
    ImGui::Render();
    return seen;
}

void measureFrame(int count) {
    std::vector<std::string> texts;
    collectTexts(bench::buttonDialog(count), texts);
    bench::require(static_cast<int>(texts.size()) == count, "there is a text for each button");

    ImGui::CreateContext();
    ImGuiIO& io = ImGui::GetIO();
    io.IniFilename = nullptr;
    io.DeltaTime = 1.0F / 60;
    io.DisplaySize = {1.5F * buttonsInRow * buttonWidth,
                      rowHeight * (static_cast<float>(count) / buttonsInRow + 4)};
    io.BackendFlags |= ImGuiBackendFlags_RendererHasVtxOffset;
    unsigned char* pixels = nullptr;
    int width = 0, height = 0;
    io.Fonts->GetTexDataAsAlpha8(&pixels, &width, &height);

    int seen = 0;
    // The first frames find out how large the window's content is.
    for (int i = 0; i < 3; ++i)
        seen = makeFrame(texts);
    bench::require(seen == count, "all buttons are seen");
    bench::measure("imgui-frame", count, 301, 1,
                   {.prepare = {}, .body = [&] { seen = makeFrame(texts); }, .clear = {}});
    bench::require(seen == count, "all buttons are seen in each frame");
    // A rectangle and some letters each.
    bench::require(ImGui::GetDrawData()->TotalVtxCount > count * 8, "all buttons are in the lists");
    ImGui::DestroyContext();
}

} // namespace

int main(int argc, char** argv) {
    for (const int count : bench::counts(argc, argv))
        measureFrame(count);
}
