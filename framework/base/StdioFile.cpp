#include "FileSystem.h"
#include "TextConvert.h"

#include <cstring>

using namespace fieldkit::detail;

IMPLEMENT_DYNAMIC(CStdioFile, CFile)

namespace {

constexpr UINT kBufferSize = 4096;
constexpr int kCtrlZ = 0x1A;

// A pair of bytes would be cut if a line of narrow text ended at any byte.
std::size_t BytesOfCharacter(BYTE lead) {
#ifdef _WIN32
    return IsDBCSLeadByte(lead) ? 2 : 1;
#else
    return lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 1;
#endif
}

} // namespace

CStdioFile::CStdioFile(LPCTSTR lpszFileName, UINT nOpenFlags) {
    CFileException error;
    if (!CStdioFile::Open(lpszFileName, nOpenFlags, &error))
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
}

CStdioFile::~CStdioFile() {
    try {
        CStdioFile::Close();
    } catch (CException* e) {
        e->Delete(); // nobody can be told any more
    }
}

BOOL CStdioFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError) {
    Abort();
    if (m_pBuffer == nullptr)
        m_pBuffer = std::make_unique<BYTE[]>(kBufferSize);
    m_bText = (nOpenFlags & typeBinary) == 0;
    return CFile::Open(lpszFileName, nOpenFlags, pError);
}

/// The next byte, kEnd behind the last one.
int CStdioFile::Peek() {
    if (m_bWriting || m_nFirst == m_nLast) {
        Settle();
        m_nLast = CFile::Read(m_pBuffer.get(), kBufferSize);
        if (m_nLast == 0)
            return kEnd;
    }
    return m_pBuffer[m_nFirst];
}

/// The next byte with the ends of lines converted.
int CStdioFile::Get() {
    int nByte = Peek();
    if (nByte == kEnd || (m_bText && nByte == kCtrlZ))
        return kEnd;
    ++m_nFirst;
    if (m_bText && nByte == '\r' && Peek() == '\n') {
        nByte = '\n';
        ++m_nFirst;
    }
    return nByte;
}

void CStdioFile::Put(BYTE by) {
    if (!m_bWriting) {
        Settle();
        m_bWriting = true;
    }
    if (m_nLast == kBufferSize)
        WriteBack();
    m_pBuffer[m_nLast++] = by;
}

// What the disk does not take is gone, as the exception says.
void CStdioFile::WriteBack() {
    const UINT nCount = std::exchange(m_nLast, 0);
    CFile::Write(m_pBuffer.get(), nCount);
}

/// Makes the file as it would be without the buffer.
void CStdioFile::Settle() {
    if (m_bWriting) {
        m_bWriting = false;
        WriteBack();
    } else if (m_nFirst != m_nLast) {
        const LONGLONG nAhead = m_nLast - m_nFirst;
        m_nFirst = m_nLast = 0;
        CFile::Seek(-nAhead, current);
    }
    m_nFirst = m_nLast = 0;
}

/// Hands out a line character by character, its end included.
/// @param nMax the most characters
/// @return false at the end of the file
template <class Sink>
bool CStdioFile::ReadLine(UINT nMax, Sink put) {
    UINT nDone = 0;
    for (wchar_t last = L'\0'; nDone < nMax && last != L'\n'; ++nDone) {
        const int nFirst = Get();
        if (nFirst == kEnd)
            break;
        const auto lead = static_cast<char>(nFirst);
        const std::size_t nBytes = m_bText ? BytesOfCharacter(static_cast<BYTE>(nFirst)) : 2;
        char bytes[4] = {lead};
        std::size_t nRead = 1;
        for (; nRead < nBytes && Peek() != kEnd; ++nRead)
            bytes[nRead] = static_cast<char>(Get());
        if (m_bText && nBytes == 1 && static_cast<unsigned char>(lead) < 0x80) {
            put(last = static_cast<wchar_t>(lead));
        } else if (m_bText) {
            for (const wchar_t ch : AfxWiden({bytes, nRead}))
                put(last = ch);
        } else {
            const unsigned nUnit = static_cast<unsigned char>(bytes[0]) | static_cast<unsigned char>(bytes[1])
                                                                              << 8;
            put(last = static_cast<wchar_t>(nUnit));
        }
    }
    return nDone != 0;
}

LPTSTR CStdioFile::ReadString(LPTSTR lpsz, UINT nMax) {
    if (lpsz == nullptr || nMax == 0)
        AfxThrowInvalidArgException();
    LPTSTR p = lpsz;
    if (!ReadLine(nMax - 1, [&](wchar_t ch) { *p++ = ch; }))
        return nullptr;
    *p = L'\0';
    return lpsz;
}

BOOL CStdioFile::ReadString(CString& rString) {
    CString strLine;
    const bool bAny = ReadLine(static_cast<UINT>(-1), [&](wchar_t ch) { strLine += ch; });
    if (!strLine.IsEmpty() && strLine[strLine.GetLength() - 1] == L'\n')
        strLine.Truncate(strLine.GetLength() - 1);
    rString = std::move(strLine);
    return bAny ? TRUE : FALSE;
}

void CStdioFile::WriteString(LPCTSTR lpsz) {
    if (lpsz == nullptr)
        AfxThrowInvalidArgException();
    if (m_bText) {
        const std::string bytes = AfxNarrow(lpsz);
        Write(bytes.data(), static_cast<UINT>(bytes.size()));
        return;
    }
    for (const char16_t unit : AfxToUtf16(lpsz)) {
        Put(static_cast<BYTE>(unit));
        Put(static_cast<BYTE>(unit >> 8));
    }
}

UINT CStdioFile::Read(void* lpBuf, UINT nCount) {
    auto* const pBytes = static_cast<BYTE*>(lpBuf);
    UINT nDone = 0;
    for (; nDone < nCount; ++nDone) {
        const int nByte = Get();
        if (nByte == kEnd)
            break;
        pBytes[nDone] = static_cast<BYTE>(nByte);
    }
    return nDone;
}

void CStdioFile::Write(const void* lpBuf, UINT nCount) {
    const auto* const pBytes = static_cast<const BYTE*>(lpBuf);
    for (UINT i = 0; i < nCount; ++i) {
        if (m_bText && pBytes[i] == '\n')
            Put('\r');
        Put(pBytes[i]);
    }
}

ULONGLONG CStdioFile::GetPosition() const {
    const ULONGLONG nFile = CFile::GetPosition();
    return m_bWriting ? nFile + m_nLast : nFile - (m_nLast - m_nFirst);
}

ULONGLONG CStdioFile::GetLength() const {
    const ULONGLONG nFile = CFile::GetLength();
    return m_bWriting && GetPosition() > nFile ? GetPosition() : nFile;
}

ULONGLONG CStdioFile::Seek(LONGLONG lOff, UINT nFrom) {
    Settle();
    return CFile::Seek(lOff, nFrom);
}

void CStdioFile::SetLength(ULONGLONG dwNewLen) {
    Settle();
    CFile::SetLength(dwNewLen);
}

void CStdioFile::Flush() {
    Settle();
    CFile::Flush();
}

void CStdioFile::Close() {
    if (m_hFile == hFileNull)
        return;
    try {
        Settle();
    } catch (...) {
        CFile::Abort();
        throw;
    }
    CFile::Close();
}

void CStdioFile::Abort() {
    m_nFirst = m_nLast = 0;
    m_bWriting = false;
    CFile::Abort();
}

CFile* CStdioFile::Duplicate() const {
    AfxThrowNotSupportedException();
}

void CStdioFile::LockRange(ULONGLONG /*dwPos*/, ULONGLONG /*dwCount*/) {
    AfxThrowNotSupportedException();
}

void CStdioFile::UnlockRange(ULONGLONG /*dwPos*/, ULONGLONG /*dwCount*/) {
    AfxThrowNotSupportedException();
}
