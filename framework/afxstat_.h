/// @file
/// CFileStatus and CFileFind, for Windows. Included by afx.h.
#pragma once

#include "afxfile_.h"
#include "afxtime_.h"

#ifdef _WIN32

#include <memory>

/// What the file system keeps of a file.
struct CFileStatus {
    CTime m_ctime;                     ///< made
    CTime m_mtime;                     ///< written last
    CTime m_atime;                     ///< read last
    ULONGLONG m_size = 0;              ///< bytes
    BYTE m_attribute = 0;              ///< CFile::Attribute
    TCHAR m_szFullName[MAX_PATH] = {}; ///< full path
};

/// Goes through the files of a folder:
/// `for (BOOL bMore = find.FindFile(L"*.txt"); bMore;) { bMore = find.FindNextFile(); ... }`.
/// What is asked of a file before FindNextFile was called throws CInvalidArgException*.
class AFX_CORE CFileFind : public CObject {
    DECLARE_DYNAMIC(CFileFind)
public:
    CFileFind() = default;
    ~CFileFind() override { CFileFind::Close(); }

    /// Starts a search. @param pstrName may have the wildcards * and ?; NULL stands for *.*.
    /// @return zero if nothing is found; GetLastError says why.
    virtual BOOL FindFile(LPCTSTR pstrName = nullptr, DWORD dwUnused = 0);
    /// Goes to the first or next file. @return zero if that was the last one.
    virtual BOOL FindNextFile();
    /// Ends the search.
    void Close();

    /// Name with extension, path from the root, name without extension, and the folder.
    ///@{
    virtual CString GetFileName() const;
    virtual CString GetFilePath() const;
    virtual CString GetFileTitle() const;
    virtual CString GetRoot() const { return m_strRoot; }
    ///@}
    /// The path as a file: address.
    virtual CString GetFileURL() const { return L"file://" + GetFilePath(); }
    /// Bytes.
    ULONGLONG GetLength() const;
    /// Universal time, and as CTime. @return zero if the time is unknown
    ///@{
    virtual BOOL GetLastWriteTime(FILETIME* pTimeStamp) const;
    virtual BOOL GetLastAccessTime(FILETIME* pTimeStamp) const;
    virtual BOOL GetCreationTime(FILETIME* pTimeStamp) const;
    virtual BOOL GetLastWriteTime(CTime& refTime) const;
    virtual BOOL GetLastAccessTime(CTime& refTime) const;
    virtual BOOL GetCreationTime(CTime& refTime) const;
    ///@}
    /// Whether one of the system's attributes is set; whether the entry is . or ...
    ///@{
    virtual BOOL MatchesMask(DWORD dwMask) const {
        return (Found().dwFileAttributes & dwMask) != 0 ? TRUE : FALSE;
    }
    virtual BOOL IsDots() const;
    BOOL IsReadOnly() const { return MatchesMask(FILE_ATTRIBUTE_READONLY); }
    BOOL IsDirectory() const { return MatchesMask(FILE_ATTRIBUTE_DIRECTORY); }
    BOOL IsCompressed() const { return MatchesMask(FILE_ATTRIBUTE_COMPRESSED); }
    BOOL IsSystem() const { return MatchesMask(FILE_ATTRIBUTE_SYSTEM); }
    BOOL IsHidden() const { return MatchesMask(FILE_ATTRIBUTE_HIDDEN); }
    BOOL IsTemporary() const { return MatchesMask(FILE_ATTRIBUTE_TEMPORARY); }
    BOOL IsNormal() const { return MatchesMask(FILE_ATTRIBUTE_NORMAL); }
    BOOL IsArchived() const { return MatchesMask(FILE_ATTRIBUTE_ARCHIVE); }
    ///@}

private:
    const WIN32_FIND_DATAW& Found() const;

    HANDLE m_hContext = INVALID_HANDLE_VALUE;
    std::unique_ptr<WIN32_FIND_DATAW> m_pFound; ///< what the caller sees
    std::unique_ptr<WIN32_FIND_DATAW> m_pNext;  ///< what the system has given beyond it
    CString m_strRoot;                          ///< with a separator at the end
};

#endif
