// SPDX-License-Identifier: MIT
#include "tests/pictures/Reference.h"

#include "tests/host/TestHost.h"

#define STB_IMAGE_IMPLEMENTATION
#define STB_IMAGE_STATIC
#define STBI_ONLY_PNG
#include <stb/stb_image.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace {

constexpr int SAME_COLOUR = 24;     ///< Difference of a channel up to which two pixels are alike.
constexpr int PIXELS_PER_ODD = 500; ///< One pixel in so many may be farther off.

int getDistance(const LuPicture::Pixel& left, const LuPicture::Pixel& right) {
    return std::max({std::abs(left.red - right.red), std::abs(left.green - right.green),
                     std::abs(left.blue - right.blue)});
}

/// Black where two pictures of one size are the same, white where they are not alike.
LuPicture makeDifference(const LuPicture& left, const LuPicture& right) {
    LuPicture difference(left.getWidth(), left.getHeight());
    for (std::size_t i = 0; i < left.getPixels().size(); ++i) {
        const int distance = getDistance(left.getPixels()[i], right.getPixels()[i]);
        const auto level = static_cast<std::uint8_t>(distance > SAME_COLOUR ? 255 : distance * 4);
        difference.getPixels()[i] = {level, level, level, 255};
    }
    return difference;
}

int countOdd(const LuPicture& left, const LuPicture& right) {
    int count = 0;
    for (std::size_t i = 0; i < left.getPixels().size(); ++i)
        count += getDistance(left.getPixels()[i], right.getPixels()[i]) > SAME_COLOUR ? 1 : 0;
    return count;
}

std::string getReferencePath(const std::string& name) { return "tests/pictures/" + name + ".png"; }

/// What is to be said against a picture; nothing when it looks like the expected one, which is called `what`.
std::string compare(const LuPicture& picture, const LuPicture& expected, const std::string& name,
                    const std::string& what) {
    const bool isSameSize =
        picture.getWidth() == expected.getWidth() && picture.getHeight() == expected.getHeight();
    const int odd = isSameSize ? countOdd(picture, expected) : 0;
    if (isSameSize && odd * PIXELS_PER_ODD <= static_cast<int>(expected.getPixels().size()))
        return {};
    const std::string drawn = getTestOutputFolder() + "/" + name + ".png";
    picture.writePng(drawn);
    if (expected.isEmpty())
        return what + " can't be read; what was drawn is " + drawn;
    if (!isSameSize)
        return what + " is of another size; what was drawn is " + drawn;
    const std::string difference = getTestOutputFolder() + "/" + name + "-difference.png";
    makeDifference(picture, expected).writePng(difference);
    return std::to_string(odd) + " of " + std::to_string(expected.getPixels().size()) +
           " pixels are not those of " + what + "; what was drawn is " + drawn + ", where it differs " +
           difference;
}

} // namespace

LuPicture readPng(const std::string& path) {
    int width = 0, height = 0, channels = 0;
    stbi_uc* const data = stbi_load(path.c_str(), &width, &height, &channels, 4);
    if (!data)
        return {};
    LuPicture picture(width, height);
    std::memcpy(picture.getPixels().data(), data, picture.getPixels().size() * sizeof(LuPicture::Pixel));
    stbi_image_free(data);
    return picture;
}

std::string compareWithReference(const LuPicture& picture, const std::string& name) {
    const std::string reference = getReferencePath(name);
    return compare(picture, readPng(reference), name, reference);
}

void expectLikePicture(const LuPicture& picture, const LuPicture& expected, const std::string& name) {
    const std::string path = getTestOutputFolder() + "/" + name + "-expected.png";
    const std::string fault = compare(picture, expected, name, path);
    EXPECT_EQ(fault, "");
    if (!fault.empty())
        expected.writePng(path);
}

void expectLikeReference(const LuPicture& picture, const std::string& name) {
    if (!std::getenv("PANELIX_NEW_REFERENCES")) {
        EXPECT_EQ(compareWithReference(picture, name), "");
        return;
    }
    EXPECT_TRUE(picture.writePng(getReferencePath(name)));
    ADD_FAILURE() << getReferencePath(name) << " has been written anew; look at it before you keep it.";
}
