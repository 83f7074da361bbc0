/// @file
/// A path's split into folder, name and extension, on its text alone.
#pragma once

#include <string_view>

namespace fieldkit::detail {

/// Views into the path that was split.
struct PathParts {
    std::wstring_view folder;    ///< with drive or server; no slash at its end unless it is a drive's root
    std::wstring_view name;      ///< without extension
    std::wstring_view extension; ///< without its dot
};

/// Splits a path. See TVResolveFilePath() for the rules.
PathParts SplitPath(std::wstring_view path);

} // namespace fieldkit::detail
