// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/gl/LuOffscreenRenderer.h"
#include "platform/lumora/io/LuInput.h"
#include "platform/lumora/nodes/LuGroup.h"
#include "tests/host/TestHost.h"
#include "tests/host/ToolkitTest.h"

#include <algorithm>
#include <array>
#include <string>

/// A test that draws scenes and looks at the pixels.
class GLTest : public ToolkitTest {
protected:
    /// A scene from text, with a reference; the test holds it. Text that can't be read gives an empty one.
    LuSeparator* read(const std::string& text) {
        LuInput input;
        input.setBuffer(text.data(), text.size());
        LuSeparator* const scene = LuDB::readAll(&input);
        EXPECT_TRUE(scene) << text;
        m_scenes.push_back(std::make_unique<Held<LuSeparator>>(scene ? scene : new LuSeparator));
        return m_scenes.back()->get();
    }

    /// A picture of 100 by 100 pixels from the front, the origin in its middle, on black, lit from the eye.
    LuPicture draw(LuNode* scene) {
        m_renderer.setSize(100, 100);
        m_renderer.lookFromFront(-50, 50);
        LuPicture picture;
        EXPECT_TRUE(m_renderer.render(scene, picture));
        return picture;
    }
    LuPicture draw(const std::string& text) { return draw(read(text)); }

    /// The pixel at a point of the scene.
    static LuPicture::Pixel at(const LuPicture& picture, int x, int y) { return picture.at(50 + x, 49 - y); }

    /// The pixel's colour, as three numbers from 0 to 255.
    static std::string colorAt(const LuPicture& picture, int x, int y) {
        const LuPicture::Pixel pixel = at(picture, x, y);
        return std::to_string(pixel.red) + " " + std::to_string(pixel.green) + " " +
               std::to_string(pixel.blue);
    }

    /// Pixels between black and white: those of smooth edges, where all else is either.
    static int countShades(const LuPicture& picture) {
        return static_cast<int>(
            std::count_if(picture.getPixels().begin(), picture.getPixels().end(),
                          [](const LuPicture::Pixel& pixel) { return pixel.red > 20 && pixel.red < 235; }));
    }
    static bool isBlack(const LuPicture& picture) {
        return std::all_of(picture.getPixels().begin(), picture.getPixels().end(),
                           [](const LuPicture::Pixel& pixel) { return pixel == LuPicture::Pixel(); });
    }

    LuOffscreenRenderer m_renderer;

private:
    std::vector<std::unique_ptr<Held<LuSeparator>>> m_scenes;
};
