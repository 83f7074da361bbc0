/// @file
/// CStringT: the text's memory, and what replaces, extends and hands out the text.
#pragma once

#include "afx.h"
#include "TextConvert.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <new>

namespace fieldkit::detail {

template <class Char>
constexpr Char kNoText[1] = {};

template <class Char>
const Char* OrEmpty(const Char* psz) noexcept {
    return psz != nullptr ? psz : kNoText<Char>;
}

inline std::size_t Count(int n) noexcept {
    return n > 0 ? static_cast<std::size_t>(n) : 0;
}

inline std::wstring Convert(std::string_view text) {
    return AfxWiden(text);
}

inline std::string Convert(std::wstring_view text) {
    return AfxNarrow(text);
}

/// A length as the interface counts it.
inline int ToLength(std::size_t n) {
    if (n > static_cast<std::size_t>(std::numeric_limits<int>::max()))
        AfxThrowMemoryException();
    return static_cast<int>(n);
}

/// A text that grows again doubles, so that each character is moved a few times only.
inline int GrownRoom(int nOld, int nNew) noexcept {
    constexpr auto kMost = static_cast<std::size_t>(std::numeric_limits<int>::max());
    return static_cast<int>(std::min(kMost, std::max(Count(nNew), 2 * Count(nOld))));
}

} // namespace fieldkit::detail

// The sources of the string class alone include this.
using namespace fieldkit::detail;

template <class Char>
void CStringT<Char>::ThrowIndex() {
    AfxThrowInvalidArgException();
}

template <class Char>
CStringData* CStringT<Char>::NewData(int nAllocLength) {
    static_assert(sizeof(CStringData) % alignof(Char) == 0 &&
                  offsetof(CStringNil, chEnd) == sizeof(CStringData));
    // Memory comes in steps of this many bytes anyway.
    constexpr std::size_t kStep = 16;
    const std::size_t nBytes =
        (sizeof(CStringData) + (std::max<std::size_t>(Count(nAllocLength), 1) + 1) * sizeof(Char) + kStep -
         1) /
        kStep * kStep;
    const std::size_t nRoom = (nBytes - sizeof(CStringData)) / sizeof(Char) - 1;
    constexpr std::size_t kMost = std::numeric_limits<int>::max();
    return new (::operator new(nBytes)) CStringData{1, 0, static_cast<int>(std::min(nRoom, kMost))};
}

template <class Char>
CStringData* CStringT<Char>::NewData(PCXSTR pch, int nLength, int nAllocLength) {
    CStringData* const pData = NewData(nAllocLength);
    pData->nDataLength = nLength;
    CopyChars(TextOf(pData), pch, nLength);
    TextOf(pData)[nLength] = Char();
    return pData;
}

template <class Char>
void CStringT<Char>::Free(CStringData* pData) noexcept {
    ::operator delete(pData);
}

/// Room for that many characters that nobody else sees, holding the text.
template <class Char>
typename CStringT<Char>::PXSTR CStringT<Char>::Own(int nAllocLength) {
    if (IsNil() || IsShared() || nAllocLength > GetAllocLength())
        Take(NewData(GetString(), GetLength(), std::max(nAllocLength, GetLength())));
    return TextOf(m_pData);
}

template <class Char>
CStringT<Char>::CStringT(XCHAR ch, int nRepeat) : CStringT() {
    if (nRepeat <= 0)
        return;
    std::fill_n(Own(nRepeat), nRepeat, ch);
    SetLength(nRepeat);
}

template <class Char>
CStringT<Char>::CStringT(PCXSTR pszSrc) : CStringT() {
#ifdef _WIN32
    if (pszSrc != nullptr && IS_INTRESOURCE(pszSrc)) {
        LoadString(static_cast<UINT>(reinterpret_cast<UINT_PTR>(pszSrc)));
        return;
    }
#endif
    if (const int nLength = StringLength(pszSrc); nLength != 0)
        m_pData = NewData(pszSrc, nLength, nLength);
}

template <class Char>
CStringT<Char>::CStringT(PCYSTR pszSrc) : CStringT() {
    *this = CStringT(pszSrc, CStringT<YCHAR>::StringLength(pszSrc));
}

template <class Char>
CStringT<Char>::CStringT(PCYSTR pchSrc, int nLength) : CStringT() {
    if (pchSrc == nullptr || nLength <= 0)
        return;
    const std::basic_string<Char> text = Convert(std::basic_string_view<YCHAR>{pchSrc, Count(nLength)});
    SetString(text.data(), ToLength(text.size()));
}

template <class Char>
void CStringT<Char>::SetString(PCXSTR pchSrc, int nLength) {
    if (pchSrc == nullptr || nLength <= 0) {
        Empty();
    } else if (pchSrc == GetString() && nLength == GetLength()) {
        return; // its own text, or one that it shares
    } else if (IsNil() || IsShared() || nLength > GetAllocLength()) {
        Take(NewData(pchSrc, nLength, nLength)); // copied before the old text goes: it may be a piece of it
    } else {
        CopyCharsOverlapped(TextOf(m_pData), pchSrc, nLength);
        SetLength(nLength);
    }
}

template <class Char>
void CStringT<Char>::SetAt(int nIndex, XCHAR ch) {
    if (nIndex < 0 || nIndex >= GetLength())
        ThrowIndex();
    Own(GetLength())[nIndex] = ch;
}

template <class Char>
void CStringT<Char>::Append(PCXSTR pchSrc, int nLength) {
    if (pchSrc == nullptr || nLength <= 0)
        return;
    const int nOld = GetLength();
    const int nNew = ToLength(Count(nOld) + Count(nLength));
    if (!IsNil() && !IsShared() && nNew <= GetAllocLength()) {
        CopyCharsOverlapped(TextOf(m_pData) + nOld, pchSrc, nLength);
    } else {
        CStringData* const pData = NewData(GetString(), nOld, GrownRoom(nOld, nNew));
        CopyChars(TextOf(pData) + nOld, pchSrc, nLength);
        Take(pData);
    }
    SetLength(nNew);
}

template <class Char>
CStringT<Char> CStringT<Char>::Join(PCXSTR pch1, int nLength1, PCXSTR pch2, int nLength2) {
    CStringT joined;
    const int nLength = ToLength(Count(nLength1) + Count(nLength2));
    if (nLength == 0)
        return joined;
    constexpr int kRoom = 24; // for what a longer sum adds to it
    joined.m_pData = NewData(OrEmpty(pch1), nLength1, std::max(nLength, kRoom));
    CopyChars(TextOf(joined.m_pData) + nLength1, OrEmpty(pch2), nLength2);
    joined.SetLength(nLength);
    return joined;
}

// The memory is marked as the caller's alone, because he writes to it when he likes.
template <class Char>
typename CStringT<Char>::PXSTR CStringT<Char>::GetBuffer(int nMinBufferLength) {
    const int nLength = GetLength();
    PXSTR const pch = Own(std::max({nMinBufferLength, nLength, 1}));
    std::fill(pch + nLength, pch + GetAllocLength() + 1, Char());
    m_pData->nRefs.store(-1, std::memory_order_relaxed);
    return pch;
}

template <class Char>
typename CStringT<Char>::PXSTR CStringT<Char>::GetBufferSetLength(int nLength) {
    const int nNew = std::max(nLength, 0);
    PXSTR const pch = GetBuffer(nNew);
    SetLength(nNew);
    return pch;
}

template <class Char>
void CStringT<Char>::ReleaseBuffer(int nNewLength) {
    PXSTR const pch = Own(1);
    const int nMost = GetAllocLength();
    if (nNewLength < 0)
        nNewLength = static_cast<int>(std::find(pch, pch + nMost, Char()) - pch);
    SetLength(std::min(nNewLength, nMost));
    UnlockBuffer();
}

template <class Char>
void CStringT<Char>::UnlockBuffer() noexcept {
    if (m_pData->nRefs.load(std::memory_order_relaxed) < 0)
        m_pData->nRefs.store(1, std::memory_order_relaxed);
}

template <class Char>
void CStringT<Char>::Preallocate(int nLength) {
    Own(std::max(nLength, 1));
}

template <class Char>
void CStringT<Char>::Truncate(int nNewLength) {
    if (nNewLength < GetLength())
        Keep(0, Count(nNewLength));
}

template <class Char>
void CStringT<Char>::FreeExtra() {
    if (GetLength() == 0)
        Empty();
    else
        Take(NewData(GetString(), GetLength(), GetLength()));
}

template <class Char>
int CStringT<Char>::StringLength(PCXSTR psz) {
    return psz != nullptr ? ToLength(std::char_traits<Char>::length(psz)) : 0;
}
