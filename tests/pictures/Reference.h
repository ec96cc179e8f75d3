// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LuPicture.h"

#include <string>

/// Expects a picture to look like the file NAME.png of this folder.
///
/// A colour that is off by up to 24 of 255 counts as the same, and one pixel in 500 may be off by more: as
/// much as the edges of outlines that come from another font service, or samples placed otherwise, make. A
/// failure leaves what was drawn, and where it differs, in the folder for test output, and says so.
///
/// With PANELIX_NEW_REFERENCES set the file is written instead, and the test fails, so that nobody takes it
/// for a comparison.
void expectLikeReference(const LuPicture& picture, const std::string& name);

/// Expects the same of two pictures that the test has drawn; a failure leaves both, by the name.
void expectLikePicture(const LuPicture& picture, const LuPicture& expected, const std::string& name);

/// What that comparison has to say against the picture; nothing when it looks like the reference.
std::string compareWithReference(const LuPicture& picture, const std::string& name);

/// Reads a PNG file; an empty picture when it can't be read.
LuPicture readPng(const std::string& path);
