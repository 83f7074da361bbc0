/// @file
/// How the dialogs of a program look, each on every screen: too many pictures to keep, so it is sums of
/// their pixels that are kept.
///
///     Looks looks(L"looks\\240x320.txt");
///     WhileOpen(dlg, [&] { EXPECT_EQ("", looks.Faults("points", dlg)); });
#pragma once

#include "testkit/Picture.h"

#include <map>
#include <string>

namespace testkit {

/// The sums of one screen. They are the same on machines with the same system and fonts.
class Looks {
public:
    /// @param path a file with a line for each window, its name and its sum; there need not be one
    explicit Looks(const std::wstring& path);
    /// Writes the sums of this run into the current folder, under the file's name with ".now" behind it; if
    /// the environment variable FIELDKIT_KEEP_PICTURES is set, into the file itself.
    ~Looks();
    Looks(const Looks&) = delete;
    Looks& operator=(const Looks&) = delete;

    /// Looks at a window of this thread with all that is in it, drawn anew and without a caret.
    /// @param name without spaces
    /// @return empty if it looks as it did; else that it does not. KeepScreen shows what it looks like.
    std::string Faults(const std::string& name, HWND hWnd);

private:
    std::wstring m_path;
    std::map<std::string, std::string> m_kept, m_now;
};

} // namespace testkit
