#include "afx.h"
#include "ArchiveObjects.h"
#include "TextConvert.h"

#include <algorithm>
#include <cstring>
#include <type_traits>

using namespace fieldkit::detail;

namespace {

constexpr int kSmallestBuffer = 128;

// The same value as unsigned bytes; copied, because a double is no integer.
template <std::size_t N>
using Bits = std::conditional_t<
    N == 1, std::uint8_t,
    std::conditional_t<N == 2, std::uint16_t, std::conditional_t<N == 4, std::uint32_t, std::uint64_t>>>;

} // namespace

CArchive::CArchive(CFile* pFile, UINT nMode, int nBufSize, void* lpBuf, int nCallerExceptions)
    : m_pFile(pFile), m_nMode(nMode), m_nBufSize(static_cast<UINT>(std::max(nBufSize, kSmallestBuffer))),
      m_nCallerExceptions(nCallerExceptions), m_nOwnExceptions(std::uncaught_exceptions()) {
    if (pFile == nullptr)
        AfxThrowInvalidArgException();
    if (lpBuf == nullptr || nBufSize < kSmallestBuffer)
        m_pOwnBuffer = std::make_unique<BYTE[]>(m_nBufSize);
    m_lpBufStart = m_pOwnBuffer != nullptr ? m_pOwnBuffer.get() : static_cast<BYTE*>(lpBuf);
    m_lpBufCur = m_lpBufStart;
    m_lpBufMax = IsLoading() ? m_lpBufStart : m_lpBufStart + m_nBufSize;
}

void CArchive::CloseUnlessUnwinding(int nCallerExceptions) {
    if (m_pFile == nullptr || (m_nMode & bNoFlushOnDelete) != 0)
        return;
    // unreachable: one count without the other, where all modules share one
    if (nCallerExceptions <= m_nCallerExceptions && std::uncaught_exceptions() <= m_nOwnExceptions) {
        Close();
        return;
    }
    try {
        Close();
    } catch (CException* e) {
        e->Delete(); // the first failure is the one to report
    } catch (...) {  // a derived file may throw what it likes, but not now
    }
}

void CArchive::Fail(int cause) const {
    AfxThrowArchiveException(cause, m_pFile != nullptr ? m_pFile->GetFilePath() : CString());
}

void CArchive::CheckMode(UINT nMode) const {
    if (m_pFile == nullptr)
        Fail(CArchiveException::genericException);
    if ((m_nMode & load) != nMode)
        Fail(nMode == load ? CArchiveException::writeOnly : CArchiveException::readOnly);
}

bool CArchive::FillBuffer() {
    const UINT count = m_pFile->Read(m_lpBufStart, m_nBufSize);
    m_lpBufCur = m_lpBufStart;
    m_lpBufMax = m_lpBufStart + count;
    return count != 0;
}

UINT CArchive::Read(void* lpBuf, UINT nMax) {
    CheckMode(load);
    auto* target = static_cast<BYTE*>(lpBuf);
    UINT left = nMax;
    while (left != 0 && (m_lpBufCur != m_lpBufMax || FillBuffer())) {
        const UINT count = std::min(left, static_cast<UINT>(m_lpBufMax - m_lpBufCur));
        target = std::copy_n(m_lpBufCur, count, target);
        m_lpBufCur += count;
        left -= count;
    }
    return nMax - left;
}

void CArchive::ReadAll(void* lpBuf, UINT nCount) {
    if (Read(lpBuf, nCount) != nCount)
        Fail(CArchiveException::endOfFile);
}

void CArchive::Write(const void* lpBuf, UINT nMax) {
    CheckMode(store);
    const auto* source = static_cast<const BYTE*>(lpBuf);
    while (nMax != 0) {
        if (m_lpBufCur == m_lpBufMax)
            Flush();
        const UINT count = std::min(nMax, static_cast<UINT>(m_lpBufMax - m_lpBufCur));
        m_lpBufCur = std::copy_n(source, count, m_lpBufCur);
        source += count;
        nMax -= count;
    }
}

void CArchive::Flush() {
    if (m_pFile == nullptr)
        return;
    BYTE* const used = m_lpBufCur;
    m_lpBufCur = m_lpBufStart;
    if (IsStoring()) {
        m_pFile->Write(m_lpBufStart, static_cast<UINT>(used - m_lpBufStart));
        return;
    }
    const LONGLONG unused = m_lpBufMax - used;
    m_lpBufMax = m_lpBufStart;
    if (unused != 0)
        m_pFile->Seek(-unused, CFile::current);
}

void CArchive::Close() {
    Flush();
    Abort();
}

void CArchive::Abort() noexcept {
    m_pFile = nullptr;
}

void CArchive::WriteCount(DWORD_PTR dwCount) {
    constexpr WORD kLong = 0xFFFF;
    if (dwCount < kLong) {
        *this << static_cast<WORD>(dwCount);
        return;
    }
    if (dwCount > 0xFFFFFFFFU)
        AfxThrowInvalidArgException();
    *this << kLong << static_cast<DWORD>(dwCount);
}

DWORD_PTR CArchive::ReadCount() {
    WORD shortCount = 0;
    *this >> shortCount;
    if (shortCount != 0xFFFF)
        return shortCount;
    DWORD count = 0;
    *this >> count;
    return count;
}

// Byte by byte from the lowest, so that the order does not depend on the processor.
template <class Value>
void CArchive::StoreValue(Value value) {
    Bits<sizeof(Value)> bits;
    std::memcpy(&bits, &value, sizeof(value));
    BYTE bytes[sizeof(Value)];
    for (std::size_t i = 0; i < sizeof(Value); ++i)
        bytes[i] = static_cast<BYTE>(static_cast<std::uint64_t>(bits) >> (8 * i));
    Write(bytes, sizeof(bytes));
}

template <class Value>
void CArchive::LoadValue(Value& value) {
    BYTE bytes[sizeof(Value)];
    // What the buffer holds needs no loop; of an archive that stores or is closed Read says so.
    if (IsLoading() && m_pFile != nullptr &&
        m_lpBufMax - m_lpBufCur >= static_cast<std::ptrdiff_t>(sizeof(Value))) {
        std::memcpy(bytes, m_lpBufCur, sizeof(Value));
        m_lpBufCur += sizeof(Value);
    } else {
        ReadAll(bytes, sizeof(bytes));
    }
    std::uint64_t wide = 0;
    for (std::size_t i = 0; i < sizeof(Value); ++i)
        wide |= static_cast<std::uint64_t>(bytes[i]) << (8 * i);
    const auto bits = static_cast<Bits<sizeof(Value)>>(wide);
    std::memcpy(&value, &bits, sizeof(value));
}

// The width is part of the archive's format.
#define ARCHIVE_VALUE(type, bytes)                                                                           \
    static_assert(sizeof(type) == bytes);                                                                    \
    CArchive& CArchive::operator<<(type value) {                                                             \
        StoreValue(value);                                                                                   \
        return *this;                                                                                        \
    }                                                                                                        \
    CArchive& CArchive::operator>>(type& value) {                                                            \
        LoadValue(value);                                                                                    \
        return *this;                                                                                        \
    }

ARCHIVE_VALUE(BYTE, 1)
ARCHIVE_VALUE(char, 1)
ARCHIVE_VALUE(short, 2)
ARCHIVE_VALUE(WORD, 2)
ARCHIVE_VALUE(int, 4)
ARCHIVE_VALUE(unsigned, 4)
ARCHIVE_VALUE(float, 4)
ARCHIVE_VALUE(double, 8)
ARCHIVE_VALUE(LONGLONG, 8)
ARCHIVE_VALUE(ULONGLONG, 8)
#ifdef _WIN32
ARCHIVE_VALUE(LONG, 4)
ARCHIVE_VALUE(DWORD, 4)
#endif
#undef ARCHIVE_VALUE

CArchive& CArchive::operator<<(bool b) {
    return *this << static_cast<BYTE>(b ? 1 : 0);
}

CArchive& CArchive::operator>>(bool& b) {
    BYTE by = 0;
    *this >> by;
    b = by != 0;
    return *this;
}

// 2 bytes in every archive, whatever the width of the character here.
CArchive& CArchive::operator<<(wchar_t ch) {
    constexpr WORD kReplacement = 0xFFFD;
    const std::u16string units = AfxToUtf16({&ch, 1});
    return *this << (units.size() == 1 ? static_cast<WORD>(units[0]) : kReplacement);
}

CArchive& CArchive::operator>>(wchar_t& ch) {
    WORD w = 0;
    *this >> w;
    ch = static_cast<wchar_t>(w);
    return *this;
}

// --- Points, sizes, rectangles --------------------------------------------------------------

CArchive& AFXAPI operator<<(CArchive& ar, const POINT& point) {
    return ar << point.x << point.y;
}
CArchive& AFXAPI operator<<(CArchive& ar, const SIZE& size) {
    return ar << size.cx << size.cy;
}
CArchive& AFXAPI operator<<(CArchive& ar, const RECT& rect) {
    return ar << rect.left << rect.top << rect.right << rect.bottom;
}
CArchive& AFXAPI operator>>(CArchive& ar, POINT& point) {
    return ar >> point.x >> point.y;
}
CArchive& AFXAPI operator>>(CArchive& ar, SIZE& size) {
    return ar >> size.cx >> size.cy;
}
CArchive& AFXAPI operator>>(CArchive& ar, RECT& rect) {
    return ar >> rect.left >> rect.top >> rect.right >> rect.bottom;
}
