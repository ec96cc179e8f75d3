// SPDX-License-Identifier: MIT
// Texts as they are seen.
#include "platform/lumora/actions/LuGetBoundingBoxAction.h"
#include "platform/lumora/nodes/LuText3.h"
#include "tests/platform/lumora/gl/GLTest.h"

namespace {

class TextPictureTest : public GLTest {
protected:
    /// The part of a picture that isn't black: columns and rows, both ends included; a width of 0 for none.
    struct Extent {
        int left = 1000, right = -1000, bottom = 1000, top = -1000;
        int getWidth() const { return std::max(right - left + 1, 0); }
    };
    static Extent getExtent(const LuPicture& picture) {
        Extent extent;
        for (int y = -50; y < 50; ++y) {
            for (int x = -50; x < 50; ++x) {
                if (at(picture, x, y).red <= 10)
                    continue;
                extent.left = std::min(extent.left, x);
                extent.right = std::max(extent.right, x);
                extent.bottom = std::min(extent.bottom, y);
                extent.top = std::max(extent.top, y);
            }
        }
        return extent;
    }
    Extent draw(const std::string& text) {
        return getExtent(GLTest::draw("Material { diffuseColor 1 1 1 } Font { size 24 } " + text));
    }

    /// From the right, or from behind: the scene turned about y.
    Extent drawTurned(const char* quaternion, const std::string& text) {
        return draw(std::string("Rotation { rotation ") + quaternion + " } " + text);
    }
    static constexpr const char* FROM_RIGHT = "0 -0.7071068 0 0.7071068";
    static constexpr const char* FROM_BEHIND = "0 1 0 0";
};

TEST_F(TextPictureTest, text_fillsItsBoundingBox) {
    LuSeparator* const scene =
        read("Material { diffuseColor 1 1 1 } Font { size 24 } Text3 { string [ \"Ag_\" \"Wy\" ] }");
    LuGetBoundingBoxAction action;
    action.apply(scene);
    const LvBox3f& box = action.getBoundingBox();
    const Extent extent = getExtent(GLTest::draw(scene));
    EXPECT_NEAR(static_cast<float>(extent.left), box.min.x, 1.1F);
    EXPECT_NEAR(static_cast<float>(extent.right + 1), box.max.x, 1.1F);
    EXPECT_NEAR(static_cast<float>(extent.bottom), box.min.y, 1.1F);
    EXPECT_NEAR(static_cast<float>(extent.top + 1), box.max.y, 1.1F);
}

TEST_F(TextPictureTest, lastCharacter_standsBehindTheAdvanceOfThoseBeforeIt) {
    LuTraversalState state;
    state.fontSize = 24;
    const float advance = LuText3::getLineWidth(state, "xyz ");
    const Extent alone = draw("Text3 { string \"I\" }");
    const Extent all = draw("Text3 { string \"xyz I\" }");
    EXPECT_NEAR(static_cast<float>(all.right - alone.right), advance, 1.1F);
}

TEST_F(TextPictureTest, justification_saysWhichEndStandsAtTheOrigin) {
    const Extent left = draw("Text3 { string \"HHH\" }");
    const Extent right = draw("Text3 { string \"HHH\" justification RIGHT }");
    const Extent center = draw("Text3 { string \"HHH\" justification CENTER }");
    EXPECT_GE(left.left, 0);
    EXPECT_LT(right.right, 0);
    EXPECT_NEAR(center.left + center.right, 0, 2);
    EXPECT_EQ(left.getWidth(), right.getWidth());
}

TEST_F(TextPictureTest, lines_standBelowEachOther) {
    const Extent one = draw("Text3 { string \"H\" }");
    const Extent three = draw("Text3 { string [ \"H\" \"\" \"H\" ] spacing 0.5 }");
    EXPECT_EQ(three.top, one.top);
    EXPECT_EQ(three.bottom, one.bottom - 24);
}

TEST_F(TextPictureTest, front_isFlatAndSeenFromBehindToo) {
    EXPECT_EQ(drawTurned(FROM_RIGHT, "Text3 { string \"HH\" }").getWidth(), 0);
    EXPECT_GT(drawTurned(FROM_BEHIND, "Text3 { string \"HH\" }").getWidth(), 20);
}

TEST_F(TextPictureTest, sides_reachFromTheFrontToTheBack) {
    // One unit deep, stretched to ten.
    const Extent extent =
        drawTurned(FROM_RIGHT, "Scale { scaleFactor 1 1 10 } Text3 { string \"H\" parts SIDES }");
    EXPECT_NEAR(extent.getWidth(), 10, 1);
    EXPECT_GT(extent.top - extent.bottom, 12);
}

TEST_F(TextPictureTest, back_liesBehindTheFront) {
    const std::string hidden = "Material { diffuseColor 0 0 0 ambientColor 0 0 0 }"
                               " Translation { translation 20 8 -0.5 } Cube { width 60 height 60 depth 0.2 }";
    const std::string text = "Separator { Text3 { string \"H\" parts ";
    EXPECT_GT(draw(text + "FRONT } } " + hidden).getWidth(), 0);
    EXPECT_EQ(draw(text + "BACK } } " + hidden).getWidth(), 0);
}

TEST_F(TextPictureTest, sidesOfARoundLetter_areLitSmoothly) {
    m_renderer.setHeadlight(0);
    const LuPicture picture =
        GLTest::draw("Material { diffuseColor 1 1 1 ambientColor 0 0 0 } DirectionalLight { direction 0 0 -1 "
                     "} Font { size 80 }"
                     " Rotation { rotation 0.5 0 0 0.8660254 } Translation { translation -30 -20 0 }"
                     " Scale { scaleFactor 1 1 30 } Text3 { string \"O\" parts SIDES }");
    EXPECT_GT(countShades(picture), 300);
}

TEST_F(TextPictureTest, charactersOfAllKinds_areDrawn) {
    for (const char* character : {"\u0416", "\u00e9", "\u20ac", "\u6f22", "\U0001F600"})
        EXPECT_GT(draw(std::string("Text3 { string \"") + character + "\" }").getWidth(), 3) << character;
    EXPECT_EQ(draw("Text3 { string \" \" }").getWidth(), 0);
    EXPECT_EQ(draw("Text3 { }").getWidth(), 0);
}

TEST_F(TextPictureTest, unknownFont_isReplaced) {
    expectMessageContaining("LuFontFace::find", "No font family \"Nowhere In This Test\"");
    EXPECT_GT(draw("Font { name \"Nowhere In This Test\" size 24 } Text3 { string \"H\" }").getWidth(), 5);
}

TEST_F(TextPictureTest, fontInFront_reachesTextsInSeparatorsAfterIt) {
    LuSeparator* const scene =
        read("Material { diffuseColor 1 1 1 } Font { size 10 } Separator { Text3 { string \"H\" } }");
    const Extent small = getExtent(GLTest::draw(scene));
    scene->getChild(1)->set("size 40");
    EXPECT_GT(getExtent(GLTest::draw(scene)).top, 2 * small.top);
}

TEST_F(TextPictureTest, textSeenFromNear_hasRoundCurves) {
    // The outline of an O of 80 pixels: no column jumps by more than its neighbours' slope allows.
    const LuPicture picture =
        GLTest::draw("Material { diffuseColor 1 1 1 } Font { size 100 } Translation { translation -40 -35 0 }"
                     " Text3 { string \"O\" }");
    std::vector<int> tops;
    for (int x = -50; x < 50; ++x) {
        int top = 49;
        while (top >= -50 && at(picture, x, top).red < 128)
            --top;
        if (top >= 0)
            tops.push_back(top);
    }
    ASSERT_GT(tops.size(), 50U);
    const auto highest = static_cast<std::size_t>(std::max_element(tops.begin(), tops.end()) - tops.begin());
    EXPECT_TRUE(std::is_sorted(tops.begin(), tops.begin() + static_cast<std::ptrdiff_t>(highest)));
    EXPECT_GT(countShades(picture), 60);
}

/// Shows stars.
class HiddenText : public LuText3 {
protected:
    std::string_view getShownLine(int) const override { return "***"; }
};

TEST_F(TextPictureTest, subclass_showsWhatItSays) {
    Held<HiddenText> hidden;
    hidden->string.setValue("secret and much longer");
    Held<LuText3> stars;
    stars->string.setValue("***");
    EXPECT_EQ(GLTest::draw(hidden.get()).getPixels(), GLTest::draw(stars.get()).getPixels());
}

} // namespace
