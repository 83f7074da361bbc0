/// @file
/// CStdioFile. Included by afx.h.
#pragma once

#include "afxfile_.h"

#include <cstdio>
#include <memory>

/// A file of lines, buffered. As text (the default), lines end with CR LF in the file and with LF
/// here, Ctrl+Z ends reading, and wide text is narrow in the file: in the ANSI code page on Windows,
/// UTF-8 elsewhere. With typeBinary the characters are written as they are, 2 bytes each.
///
/// It is a CFile with a buffer of its own, and a stream of C only if it is made of one.
class AFX_CORE CStdioFile : public CFile {
    DECLARE_DYNAMIC(CStdioFile)
public:
    CStdioFile() = default;
    /// Opens the file; throws CFileException* if that fails.
    CStdioFile(LPCTSTR lpszFileName, UINT nOpenFlags);
    /// Works on a stream of C, which stays the caller's unless Close or Abort closes it: the destructor
    /// writes only what is in the buffer. Text and binary are as the stream has it.
    explicit CStdioFile(std::FILE* pOpenStream);
    ~CStdioFile() override;

    std::FILE* m_pStream = nullptr; ///< The stream that the file was made of, or null.

    /// Writes text; \n ends a line.
    virtual void WriteString(LPCTSTR lpsz);
    /// Reads up to the end of a line, which comes along as \n, or `nMax` - 1 characters.
    /// @return NULL at the end of the file, with nothing written.
    virtual LPTSTR ReadString(LPTSTR lpsz, UINT nMax);
    /// Reads a line without its end. @return zero at the end of the file, with an empty text.
    virtual BOOL ReadString(CString& rString);

    /// As CFile's; fails too if the file that was open before cannot take what was written to it.
    BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr) override;
    /// Counts the bytes of the file.
    ULONGLONG GetPosition() const override;
    ULONGLONG GetLength() const override;
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom) override;
    void SetLength(ULONGLONG dwNewLen) override;
    /// Bytes; the ends of lines are converted as in text.
    ///@{
    UINT Read(void* lpBuf, UINT nCount) override;
    void Write(const void* lpBuf, UINT nCount) override;
    ///@}
    void Flush() override;
    void Close() override;
    void Abort() override;
    /// Not supported: throws CNotSupportedException*.
    ///@{
    CFile* Duplicate() const override;
    void LockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    ///@}

private:
    static constexpr int kEnd = -1;
    static constexpr UINT kBufferSize = 4096;

    int Peek();
    int Get();
    void Put(BYTE by);
    bool GetCharacter(wchar_t& ch);
    void WriteBack();
    void Settle();
    void CloseStream();

    // Either bytes read and not used yet, from m_nFirst to m_nLast, or bytes to be written, up to
    // m_nLast.
    std::unique_ptr<BYTE[]> m_pBuffer = std::make_unique<BYTE[]>(kBufferSize);
    UINT m_nFirst = 0;
    UINT m_nLast = 0;
    bool m_bWriting = false;
    bool m_bText = true;
};
