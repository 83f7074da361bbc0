// Files with which a test compares what it finds.
#pragma once

#include <string>

namespace testkit::detail {

/// Whether somebody wants what is found now to be kept: FIELDKIT_KEEP_PICTURES.
bool IsKeeping();
/// Without the carriage returns that a version control may add; empty if there is no file.
std::string ReadKept(const std::wstring& path);
bool WriteKept(const std::wstring& path, const std::string& text);
/// In the current folder, the kept file's name with ".now" behind it.
std::wstring NameOfNow(const std::wstring& path);

} // namespace testkit::detail
