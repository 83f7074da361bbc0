#include "FileSystem.h"
#include "ReadLine.h"
#include "TextConvert.h"

#include <cstring>
#include <utility>

using namespace fieldkit::detail;

IMPLEMENT_DYNAMIC(CStdioFile, CFile)

namespace {

constexpr int kCtrlZ = 0x1A;

// How narrow text is divided into characters.
#ifdef _WIN32
std::size_t BytesOfCharacter(BYTE lead) {
    return IsDBCSLeadByte(lead) ? 2 : 1;
}
bool IsTrailByte(int nByte) {
    return nByte >= '0'; // no code page has control characters, blanks or commas there
}
#else
std::size_t BytesOfCharacter(BYTE lead) {
    return lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 1;
}
bool IsTrailByte(int nByte) {
    return (nByte & 0xC0) == 0x80; // not kEnd either
}
#endif

} // namespace

CStdioFile::CStdioFile(LPCTSTR lpszFileName, UINT nOpenFlags) {
    CFileException error;
    if (!CStdioFile::Open(lpszFileName, nOpenFlags, &error))
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
}

CStdioFile::CStdioFile(std::FILE* pOpenStream) : m_pStream(pOpenStream) {
    m_hFile = filesystem::HandleOf(pOpenStream, m_bText);
}

CStdioFile::~CStdioFile() {
    try {
        if (m_pStream != nullptr)
            Settle();
        else
            CStdioFile::Close();
    } catch (CException* e) {
        e->Delete(); // nobody can be told any more
    }
}

BOOL CStdioFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError) {
    try {
        CStdioFile::Close();
    } catch (CFileException* e) {
        if (pError != nullptr) {
            pError->m_cause = e->m_cause;
            pError->m_lOsError = e->m_lOsError;
            pError->m_strFileName = e->m_strFileName;
        }
        e->Delete();
        return FALSE;
    }
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
    if (m_pStream != nullptr)
        CFileException::ThrowOsError(filesystem::WriteStream(m_pStream, m_pBuffer.get(), nCount),
                                     m_strFileName);
    else
        CFile::Write(m_pBuffer.get(), nCount);
}

/// Makes the file as it would be without the buffer.
void CStdioFile::Settle() {
    if (std::exchange(m_bWriting, false))
        return WriteBack();
    const LONGLONG nAhead = m_nLast - m_nFirst;
    m_nFirst = m_nLast = 0;
    if (nAhead != 0)
        CFile::Seek(-nAhead, current);
}

/// The next character; of a damaged one only what belongs to it is used up.
/// @return false at the end of the file
bool CStdioFile::GetCharacter(wchar_t& ch) {
    BYTE bytes[4];
    if (!m_bText) {
        if (CStdioFile::Read(bytes, 2) != 2)
            return false;
        ch = static_cast<wchar_t>(bytes[0] | bytes[1] << 8);
        return true;
    }
    const int nLead = Get();
    if (nLead == kEnd)
        return false;
    bytes[0] = static_cast<BYTE>(nLead);
    std::size_t nBytes = 1;
    for (const std::size_t nWhole = BytesOfCharacter(bytes[0]); nBytes < nWhole && IsTrailByte(Peek());)
        bytes[nBytes++] = static_cast<BYTE>(Get());
    ch = nLead < 0x80 ? static_cast<wchar_t>(nLead)
                      : AfxWiden({reinterpret_cast<const char*>(bytes), nBytes}).front();
    return true;
}

LPTSTR CStdioFile::ReadString(LPTSTR lpsz, UINT nMax) {
    return AfxReadString(lpsz, nMax, [this](wchar_t& ch) { return GetCharacter(ch); });
}

BOOL CStdioFile::ReadString(CString& rString) {
    return AfxReadString(rString, [this](wchar_t& ch) { return GetCharacter(ch); });
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
        CStdioFile::Abort();
        throw;
    }
    if (m_pStream != nullptr)
        CloseStream();
    else
        CFile::Close();
}

/// The stream closes the handle.
void CStdioFile::CloseStream() {
    m_hFile = hFileNull;
    std::fclose(std::exchange(m_pStream, nullptr));
}

void CStdioFile::Abort() {
    m_nFirst = m_nLast = 0;
    m_bWriting = false;
    if (m_pStream != nullptr)
        CloseStream();
    else
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
