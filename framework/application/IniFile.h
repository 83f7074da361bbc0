// A file of settings: sections in brackets, one `entry=value` a line.
#pragma once

#include "afx.h"

#include <optional>

namespace fieldkit::detail {

class CIniFile {
public:
    /// @param lpszName a full path, or the name of a file in the user's folder for settings
    explicit CIniFile(LPCTSTR lpszName);

    /// The value; none if there is no such entry.
    std::optional<CString> Read(LPCTSTR lpszSection, LPCTSTR lpszEntry) const;
    /// A null entry takes the section away, a null value the entry.
    /// @return FALSE on failure, also for a text of more than one line, which no such file can hold
    BOOL Write(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue) const;

    const CString& Path() const { return m_strPath; }

private:
    void CreateUnicode() const;

    CString m_strPath;
};

} // namespace fieldkit::detail
