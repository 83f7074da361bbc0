#include "afx.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>

IMPLEMENT_DYNAMIC(CMemFile, CFile)

CMemFile::CMemFile(UINT nGrowBytes) : m_nGrowBytes(nGrowBytes) {}

CMemFile::CMemFile(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes) {
    CMemFile::Attach(lpBuffer, nBufferSize, nGrowBytes);
}

CMemFile::~CMemFile() {
    CMemFile::Close();
}

void CMemFile::Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes) {
    CMemFile::Close();
    m_lpBuffer = lpBuffer;
    m_nBufferSize = lpBuffer != nullptr ? nBufferSize : 0;
    m_nGrowBytes = nGrowBytes;
    m_nFileSize = nGrowBytes == 0 ? m_nBufferSize : 0;
    m_bAutoDelete = FALSE;
}

BYTE* CMemFile::Detach() {
    BYTE* lpBuffer = m_lpBuffer;
    m_bAutoDelete = FALSE;
    CMemFile::Close();
    return lpBuffer;
}

void CMemFile::Close() {
    if (m_lpBuffer != nullptr && m_bAutoDelete)
        Free(m_lpBuffer);
    m_lpBuffer = nullptr;
    m_nPosition = 0;
    m_nBufferSize = 0;
    m_nFileSize = 0;
    m_bAutoDelete = TRUE;
}

void CMemFile::Abort() {
    Close();
}

void CMemFile::Flush() {}

BOOL CMemFile::Open(LPCTSTR lpszFileName, UINT /*nOpenFlags*/, CFileException* pError) {
    if (pError != nullptr) {
        pError->m_cause = CFileException::genericException;
        pError->m_strFileName = lpszFileName;
    }
    return FALSE; // there is nothing on the disk to open
}

CFile* CMemFile::Duplicate() const {
    AfxThrowNotSupportedException();
}

void CMemFile::LockRange(ULONGLONG /*dwPos*/, ULONGLONG /*dwCount*/) {
    AfxThrowNotSupportedException();
}

void CMemFile::UnlockRange(ULONGLONG /*dwPos*/, ULONGLONG /*dwCount*/) {
    AfxThrowNotSupportedException();
}

BYTE* CMemFile::Alloc(std::size_t nBytes) {
    return static_cast<BYTE*>(std::malloc(nBytes));
}

BYTE* CMemFile::Realloc(BYTE* lpMem, std::size_t nBytes) {
    return static_cast<BYTE*>(std::realloc(lpMem, nBytes));
}

BYTE* CMemFile::Memcpy(BYTE* lpMemTarget, const BYTE* lpMemSource, std::size_t nBytes) {
    return static_cast<BYTE*>(std::memcpy(lpMemTarget, lpMemSource, nBytes));
}

void CMemFile::Free(BYTE* lpMem) {
    std::free(lpMem);
}

void CMemFile::GrowFile(std::size_t dwNewLen) {
    if (dwNewLen <= m_nBufferSize)
        return;
    if (m_nGrowBytes == 0 || dwNewLen > std::numeric_limits<std::size_t>::max() - m_nGrowBytes)
        AfxThrowMemoryException();
    const std::size_t newSize = (dwNewLen + m_nGrowBytes - 1) / m_nGrowBytes * m_nGrowBytes;
    BYTE* lpNew = m_lpBuffer == nullptr ? Alloc(newSize) : Realloc(m_lpBuffer, newSize);
    if (lpNew == nullptr)
        AfxThrowMemoryException();
    m_lpBuffer = lpNew;
    m_nBufferSize = newSize;
}

ULONGLONG CMemFile::GetPosition() const {
    return m_nPosition;
}

ULONGLONG CMemFile::GetLength() const {
    return m_nFileSize;
}

ULONGLONG CMemFile::Seek(LONGLONG lOff, UINT nFrom) {
    const std::size_t origins[] = {0, m_nPosition, m_nFileSize};
    if (nFrom >= std::size(origins))
        AfxThrowInvalidArgException();
    const auto origin = static_cast<LONGLONG>(origins[nFrom]);
    constexpr auto kLast = static_cast<LONGLONG>(
        std::min<ULONGLONG>(std::numeric_limits<std::size_t>::max(), std::numeric_limits<LONGLONG>::max()));
    if (lOff < -origin || lOff > kLast - origin)
        AfxThrowFileException(CFileException::badSeek);
    m_nPosition = static_cast<std::size_t>(origin + lOff);
    return m_nPosition;
}

void CMemFile::SetLength(ULONGLONG dwNewLen) {
    // unreachable: where size_t has 64 bits
    if (dwNewLen > std::numeric_limits<std::size_t>::max())
        AfxThrowMemoryException();
    const auto length = static_cast<std::size_t>(dwNewLen);
    GrowFile(length);
    if (length > m_nFileSize)
        std::memset(m_lpBuffer + m_nFileSize, 0, length - m_nFileSize);
    m_nFileSize = length;
    m_nPosition = std::min(m_nPosition, length);
}

UINT CMemFile::Read(void* lpBuf, UINT nCount) {
    if (nCount == 0 || m_nPosition >= m_nFileSize)
        return 0;
    const std::size_t count = std::min<std::size_t>(nCount, m_nFileSize - m_nPosition);
    Memcpy(static_cast<BYTE*>(lpBuf), m_lpBuffer + m_nPosition, count);
    m_nPosition += count;
    return static_cast<UINT>(count);
}

void CMemFile::Write(const void* lpBuf, UINT nCount) {
    if (nCount == 0)
        return;
    // unreachable: where size_t has 64 bits, since Seek ends at the last LONGLONG
    if (m_nPosition > std::numeric_limits<std::size_t>::max() - nCount)
        AfxThrowMemoryException();
    const std::size_t newEnd = m_nPosition + nCount;
    GrowFile(newEnd);
    if (m_nPosition > m_nFileSize) // a gap left by Seek reads as zeros, as in a file on disk
        std::memset(m_lpBuffer + m_nFileSize, 0, m_nPosition - m_nFileSize);
    Memcpy(m_lpBuffer + m_nPosition, static_cast<const BYTE*>(lpBuf), nCount);
    m_nPosition = newEnd;
    m_nFileSize = std::max(m_nFileSize, newEnd);
}
