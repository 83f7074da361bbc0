/// @file
/// A drive of the tests' own, for dialogs that begin at the root of the current drive.
#pragma once

#include "afx.h"

#include <initializer_list>

namespace testkit {

/// An empty drive that is the current one while the object exists; there is one at a time. Then
/// everything on it is deleted and the current folder is as before. The drive itself stays for the
/// next test: making one takes as long as the rest of a test. What cannot be made throws
/// std::runtime_error.
class Drive {
public:
    Drive();
    ~Drive();
    Drive(const Drive&) = delete;
    Drive& operator=(const Drive&) = delete;

    /// "X:"
    CString Letter() const { return m_strLetter; }
    /// "X:\"
    CString Root() const { return m_strLetter + L"\\"; }
    /// A path of any length for the system's functions. @param strPath from the root, as "\a\b"
    CString Long(const CString& strPath) const { return L"\\\\?\\" + m_strLetter + strPath; }

    /// Makes one. @param strPath from the root, as "\a\b"; it may be of any length
    ///@{
    void MakeFolder(const CString& strPath) const;
    void MakeFile(const CString& strPath, DWORD nBytes = 0) const;
    ///@}

    /// What MakeMany() makes.
    enum Kind { Files, Folders };
    /// Thousands of empty files or folders. Wine reads a folder for each file that it makes there.
    /// @param pszFormat name for a double from 0 to nCount - 1
    void MakeMany(Kind kind, const CString& strFolder, const char* pszFormat, int nCount);

    /// Empty files whose names this system would not make, as a server may have them. The last one
    /// is an ordinary name. @return false if no other system is there to make them
    bool MakeForeignFiles(const CString& strFolder, std::initializer_list<const char*> names);

    /// A link to a folder. @return false if this user may not make links
    bool MakeLink(const CString& strPath, const CString& strTarget);

    /// Takes the drive away, as a card that is pulled out. What is on it stays until the end.
    void Remove();

private:
    void MakeByUnix(const char* pszCommand, const CString& strLast);

    WCHAR m_szPrevious[MAX_PATH];
    CString m_strLetter;
    bool m_bByUnix = false; ///< There may be more than this system can delete, or too much.
    bool m_bRemoved = false;
};

} // namespace testkit
