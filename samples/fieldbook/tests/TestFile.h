/// @file
/// Files that tests make and read.
#pragma once

#include <afx.h>

#include <string>

/// A name in the working folder; the file is removed at the end, with what can stand beside it.
struct CTestFile {
    explicit CTestFile(const CString& strPath) : m_strPath(strPath) { Remove(); }
    CTestFile(const CString& strPath, const std::string& content) : CTestFile(strPath) { Write(content); }
    ~CTestFile() { Remove(); }

    const CString& GetPath() const { return m_strPath; }

    void Write(const std::string& content) const {
        CFile file(m_strPath, CFile::modeCreate | CFile::modeWrite);
        file.Write(content.data(), static_cast<UINT>(content.size()));
    }

    std::string Read() const { return ReadFrom(m_strPath); }

    static std::string ReadFrom(const CString& strPath) {
        CFile file;
        if (!file.Open(strPath, CFile::modeRead))
            return "(no such file)";
        std::string content(static_cast<size_t>(file.GetLength()), '\0');
        file.Read(content.data(), static_cast<UINT>(content.size()));
        return content;
    }

    static bool Exists(const CString& strPath) {
        return ::GetFileAttributes(strPath) != INVALID_FILE_ATTRIBUTES;
    }

private:
    void Remove() {
        for (const wchar_t* pszSuffix : {L"", L".new", L".bak", L".bak.new"}) {
            const CString strPath = m_strPath + pszSuffix;
            ::SetFileAttributes(strPath, FILE_ATTRIBUTE_NORMAL);
            ::DeleteFile(strPath);
            ::RemoveDirectory(strPath);
        }
    }

    const CString m_strPath;
};
