/// @file
/// Pictures that a test compares with what they were when somebody last looked at them.
///
///     EXPECT_EQ("", PictureFaults(Picture::Of(plan), L"pictures\\plan.txt"));
///
/// They are kept as text, a character a pixel, so that a change can be read where changes are read. They
/// are the same on machines with the same system and fonts.
#pragma once

#include "testkit/Picture.h"

namespace testkit {

/// Compares a picture with the one in a file.
/// @param path of the file; if the environment variable FIELDKIT_KEEP_PICTURES is set, it becomes the
///             picture instead. The folder must be there.
/// @return empty if they are alike; else what is wrong. The picture is then in the current folder, under
///         the file's name with ".now" behind it.
std::string PictureFaults(const Picture& picture, const std::wstring& path);

} // namespace testkit
