// Folders as the file dialogs read them: paths, entries, links.
#pragma once

#include "dialogs/detail/FileName.h"
#include "framework/detail/LongPath.h"

#include <afx.h>

#include <string>

namespace fieldkit::detail {

/// The root of the device's file system; on the desktop, of the current drive.
constexpr LPCTSTR kRootFolder = L"\\";

/// The path of an entry of a folder. The root brings its own backslash: two of them at the
/// beginning would make the entry's name the name of a server.
inline CString PathIn(const CString& strFolder, LPCTSTR pszName) {
    return strFolder == kRootFolder ? strFolder + pszName : strFolder + L"\\" + pszName;
}

/// The form of a folder's path that the system takes at any length and does not edit, without
/// a backslash at its end. To be used for the system alone, never shown.
inline std::wstring SystemPath(const CString& strFolder) {
    // With the backslash "C:" means the root of the drive, not its current folder.
    const CString strWanted = PathIn(strFolder, L"");
    std::wstring path = FullPath(strWanted);
    path.erase(path.find_last_not_of(L'\\') + 1);
    return LongForm(path);
}

/// Goes over the entries of one folder, in the order of the file system. A folder that cannot
/// be read has none.
class FolderSearch {
public:
    /// @param systemPath from SystemPath, or such a path with names behind it
    explicit FolderSearch(const std::wstring& systemPath)
        : m_hFind(::FindFirstFile((systemPath + L"\\*.*").c_str(), &m_entry)) {}
    ~FolderSearch() {
        if (IsOpen())
            ::FindClose(m_hFind);
    }
    FolderSearch(const FolderSearch&) = delete;
    FolderSearch& operator=(const FolderSearch&) = delete;

    /// Goes to the next entry, at first to the first one. @return false if there is none
    bool Next() {
        do {
            if (!IsOpen() || (!m_bAtFirst && !::FindNextFile(m_hFind, &m_entry)))
                return false;
            m_bAtFirst = false;
        } while (!IsEntryName(Name()));
        return true;
    }

    LPCTSTR Name() const { return m_entry.cFileName; }
    const WIN32_FIND_DATA& Entry() const { return m_entry; }
    bool IsFolder() const { return (m_entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0; }

    /// Whether the entry stands for a place somewhere else: a symbolic link, a junction, a
    /// mounted volume. Folders that the system keeps in a special way of its own (as one that is
    /// synchronised with a server) are none.
    bool IsLink() const {
        const DWORD nTag = m_entry.dwReserved0;
        return (m_entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
               (nTag == 0 || IsReparseTagNameSurrogate(nTag) != 0);
    }

private:
    bool IsOpen() const { return m_hFind != INVALID_HANDLE_VALUE; }

    WIN32_FIND_DATA m_entry = {}; // before the handle, whose initialisation fills it
    HANDLE m_hFind;
    bool m_bAtFirst = true;
};

} // namespace fieldkit::detail
