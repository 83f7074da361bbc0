#include "util/BufferedAsciiFile.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr UINT kBlockSize = 65536;

} // namespace

CBufferedAsciiFile::~CBufferedAsciiFile() {
    SettleAnyhow();
}

// --- The block -------------------------------------------------------------------------------

void CBufferedAsciiFile::Allocate() {
    if (m_pBlock == nullptr)
        m_pBlock = std::unique_ptr<BYTE[]>(new BYTE[kBlockSize]);
}

/// Reads the next block.
/// @return false at the end of the file, and where less than a block can be read
bool CBufferedAsciiFile::ReadAhead() {
    Allocate();
    m_nNext = m_nEnd = 0;
    m_nBlock = CFile::GetPosition();
    try {
        m_nEnd = CFile::Read(m_pBlock.get(), kBlockSize);
    } catch (CFileException* e) {
        // Some byte ahead cannot be read, it may be locked. It is reported when its turn comes.
        e->Delete();
        CFile::Seek(static_cast<LONGLONG>(m_nBlock), begin);
    }
    return m_nEnd != 0;
}

/// Whatever fails here leaves the block as it is, and the next time writes it to the same place.
void CBufferedAsciiFile::WriteBack() {
    CFile::Seek(static_cast<LONGLONG>(m_nBlock), begin);
    CFile::Write(m_pBlock.get(), m_nEnd);
    m_nNext = m_nEnd = 0;
    m_bWriting = false;
}

/// Makes the file as it would be without the block.
void CBufferedAsciiFile::Settle() {
    if (m_bWriting)
        WriteBack();
    else if (m_nEnd != 0)
        CFile::Seek(static_cast<LONGLONG>(m_nBlock + m_nNext), begin);
    m_nNext = m_nEnd = 0;
}

void CBufferedAsciiFile::SettleAnyhow() noexcept {
    try {
        if (m_bWriting)
            WriteBack();
    } catch (CException* e) {
        e->Delete(); // nobody can be told
    }
    m_nNext = m_nEnd = 0;
    m_bWriting = false;
}

// --- Transfers -------------------------------------------------------------------------------

UINT CBufferedAsciiFile::Read(void* lpBuf, UINT nCount) {
    if (m_bWriting)
        WriteBack();
    auto* const pTarget = static_cast<BYTE*>(lpBuf);
    if (nCount == 1 && m_nNext != m_nEnd) { // what ReadString asks for
        *pTarget = m_pBlock[m_nNext++];
        return 1;
    }
    for (UINT nDone = 0;;) {
        const UINT nPiece = std::min(nCount - nDone, m_nEnd - m_nNext);
        if (nPiece != 0)
            std::memcpy(pTarget + nDone, m_pBlock.get() + m_nNext, nPiece);
        m_nNext += nPiece;
        nDone += nPiece;
        if (nDone == nCount)
            return nDone;
        m_nNext = m_nEnd = 0; // used up: the file is where the block ended
        if (nCount - nDone >= kBlockSize || !ReadAhead())
            return nDone + CFile::Read(pTarget + nDone, nCount - nDone);
    }
}

void CBufferedAsciiFile::Write(const void* lpBuf, UINT nCount) {
    if (nCount == 0)
        return;
    if (!m_bWriting)
        Settle();
    else if (nCount > kBlockSize - m_nEnd)
        WriteBack();
    if (nCount > kBlockSize) {
        CFile::Write(lpBuf, nCount);
        return;
    }
    Allocate();
    if (m_nEnd == 0)
        m_nBlock = CFile::GetPosition();
    std::memcpy(m_pBlock.get() + m_nEnd, lpBuf, nCount);
    m_nNext = m_nEnd += nCount;
    m_bWriting = true;
}

// --- The file --------------------------------------------------------------------------------

ULONGLONG CBufferedAsciiFile::GetPosition() const {
    return m_nEnd != 0 ? m_nBlock + m_nNext : CFile::GetPosition();
}

ULONGLONG CBufferedAsciiFile::GetLength() const {
    const ULONGLONG nLength = CFile::GetLength();
    return m_bWriting ? std::max(nLength, m_nBlock + m_nEnd) : nLength;
}

BOOL CBufferedAsciiFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError) {
    SettleAnyhow();
    return CAsciiFile::Open(lpszFileName, nOpenFlags, pError);
}

CFile* CBufferedAsciiFile::Duplicate() const {
    AfxThrowNotSupportedException();
}

ULONGLONG CBufferedAsciiFile::Seek(LONGLONG lOff, UINT nFrom) {
    Settle();
    return CAsciiFile::Seek(lOff, nFrom);
}

void CBufferedAsciiFile::SetLength(ULONGLONG dwNewLen) {
    Settle();
    CAsciiFile::SetLength(dwNewLen);
}

void CBufferedAsciiFile::LockRange(ULONGLONG dwPos, ULONGLONG dwCount) {
    Settle();
    CAsciiFile::LockRange(dwPos, dwCount);
}

void CBufferedAsciiFile::UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount) {
    Settle();
    CAsciiFile::UnlockRange(dwPos, dwCount);
}

void CBufferedAsciiFile::Flush() {
    Settle();
    CAsciiFile::Flush();
}

void CBufferedAsciiFile::Close() {
    try {
        Settle();
    } catch (...) {
        m_bWriting = false; // it is lost, as the exception tells
        Abort();
        throw;
    }
    CAsciiFile::Close();
}

void CBufferedAsciiFile::Abort() {
    SettleAnyhow();
    CAsciiFile::Abort();
}
