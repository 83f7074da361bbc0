/// @file
/// CStringT: what changes the text in place.
#pragma once

#include "StringText.h"

#include <functional>

namespace fieldkit::detail {

// The C library's own answer differs between systems and locales, above all for the
// ideographic space U+3000, so the white space that Trim removes is listed here.
inline bool IsWhiteSpace(wchar_t ch) noexcept {
    if (ch < 0x80)
        return ch == L' ' || (ch >= L'\t' && ch <= L'\r');
    switch (ch) {
    case 0x85:
    case 0xA0:
    case 0x1680:
    case 0x2028:
    case 0x2029:
    case 0x202F:
    case 0x205F:
    case 0x3000:
        return true;
    default:
        return ch >= 0x2000 && ch <= 0x200A;
    }
}

// A byte above 0x7F is a part of a character that is not known here.
inline bool IsWhiteSpace(char ch) noexcept {
    return ch == ' ' || (ch >= '\t' && ch <= '\r');
}

/// The ends of what is left when the characters that go are taken from the front or the back.
template <class Char, class Goes>
std::size_t TrimmedFront(std::basic_string_view<Char> text, Goes goes) {
    return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), goes) - text.begin());
}

template <class Char, class Goes>
std::size_t TrimmedEnd(std::basic_string_view<Char> text, Goes goes) {
    return static_cast<std::size_t>(text.rend() - std::find_if_not(text.rbegin(), text.rend(), goes));
}

} // namespace fieldkit::detail

/// Shortens the text to a piece of it.
template <class Char>
CStringT<Char>& CStringT<Char>::Keep(std::size_t nFirst, std::size_t nEnd) {
    const int nLength = nFirst < nEnd ? static_cast<int>(nEnd - nFirst) : 0;
    if (nLength == GetLength())
        return *this;
    if (nLength > 0 && IsShared()) // room for the whole: most likely the next text to be shortened is as long
        Take(NewData(GetString() + nFirst, nLength, GetLength()));
    else
        SetString(GetString() + nFirst, nLength);
    return *this;
}

template <class Char>
CStringT<Char>& CStringT<Char>::TrimLeft() {
    return Keep(TrimmedFront(Text(), [](Char ch) { return IsWhiteSpace(ch); }), Text().size());
}

template <class Char>
CStringT<Char>& CStringT<Char>::TrimRight() {
    return Keep(0, TrimmedEnd(Text(), [](Char ch) { return IsWhiteSpace(ch); }));
}

template <class Char>
CStringT<Char>& CStringT<Char>::Trim() {
    const auto goes = [](Char ch) { return IsWhiteSpace(ch); };
    return Keep(TrimmedFront(Text(), goes), TrimmedEnd(Text(), goes));
}

template <class Char>
CStringT<Char>& CStringT<Char>::TrimLeft(XCHAR chTarget) {
    return Keep(std::min(Text().find_first_not_of(chTarget), Text().size()), Text().size());
}

// npos + 1 is 0: a text of nothing but targets goes entirely.
template <class Char>
CStringT<Char>& CStringT<Char>::TrimRight(XCHAR chTarget) {
    return Keep(0, Text().find_last_not_of(chTarget) + 1);
}

template <class Char>
CStringT<Char>& CStringT<Char>::Trim(XCHAR chTarget) {
    return Keep(Text().find_first_not_of(chTarget), Text().find_last_not_of(chTarget) + 1);
}

template <class Char>
CStringT<Char>& CStringT<Char>::TrimLeft(PCXSTR pszTargets) {
    return Keep(std::min(Text().find_first_not_of(OrEmpty(pszTargets)), Text().size()), Text().size());
}

template <class Char>
CStringT<Char>& CStringT<Char>::TrimRight(PCXSTR pszTargets) {
    return Keep(0, Text().find_last_not_of(OrEmpty(pszTargets)) + 1);
}

template <class Char>
CStringT<Char>& CStringT<Char>::Trim(PCXSTR pszTargets) {
    const View targets = OrEmpty(pszTargets);
    return Keep(Text().find_first_not_of(targets), Text().find_last_not_of(targets) + 1);
}

template <class Char>
CStringT<Char>& CStringT<Char>::MakeUpper() {
    AfxMakeUpper(Own(GetLength()), Text().size());
    return *this;
}

template <class Char>
CStringT<Char>& CStringT<Char>::MakeLower() {
    AfxMakeLower(Own(GetLength()), Text().size());
    return *this;
}

template <class Char>
CStringT<Char>& CStringT<Char>::MakeReverse() {
    PXSTR const pch = Own(GetLength());
    std::reverse(pch, pch + GetLength());
    return *this;
}

template <class Char>
int CStringT<Char>::Replace(XCHAR chOld, XCHAR chNew) {
    const auto nCount = std::count(Text().begin(), Text().end(), chOld);
    if (chOld == chNew || nCount == 0)
        return 0;
    PXSTR const pch = Own(GetLength());
    std::replace(pch, pch + GetLength(), chOld, chNew);
    return static_cast<int>(nCount);
}

template <class Char>
int CStringT<Char>::Replace(PCXSTR pszOld, PCXSTR pszNew) {
    const View from = OrEmpty(pszOld);
    const View to = OrEmpty(pszNew);
    if (from.empty())
        return 0;
    CStringT result;
    std::size_t done = 0;
    int nCount = 0;
    for (std::size_t at = Text().find(from); at != View::npos; at = Text().find(from, done)) {
        if (nCount++ == 0)
            result.Preallocate(GetLength());
        result.Append(GetString() + done, static_cast<int>(at - done));
        result.Append(to.data(), static_cast<int>(to.size()));
        done = at + from.size();
    }
    if (nCount > 0) {
        result.Append(GetString() + done, static_cast<int>(Text().size() - done));
        *this = std::move(result);
    }
    return nCount;
}

template <class Char>
int CStringT<Char>::Remove(XCHAR chRemove) {
    if (Text().find(chRemove) == View::npos)
        return 0;
    const int nOld = GetLength();
    PXSTR const pch = Own(nOld);
    SetLength(static_cast<int>(std::remove(pch, pch + nOld, chRemove) - pch));
    return nOld - GetLength();
}

template <class Char>
int CStringT<Char>::Insert(int nIndex, PCXSTR psz, int nLength) {
    if (nLength == 0)
        return GetLength();
    const int nOld = GetLength();
    const int nNew = ToLength(Count(nOld) + Count(nLength));
    const int nAt = std::clamp(nIndex, 0, nOld);
    PCXSTR const pchOld = GetString();
    const bool bOwnPiece = std::less_equal<>()(pchOld, psz) && std::less_equal<>()(psz, pchOld + nOld);
    if (IsNil() || IsShared() || nNew > GetAllocLength() || bOwnPiece) {
        CStringT longer;
        longer.Preallocate(GrownRoom(nOld, nNew));
        longer.Append(pchOld, nAt);
        longer.Append(psz, nLength);
        longer.Append(pchOld + nAt, nOld - nAt);
        *this = std::move(longer);
    } else {
        PXSTR const pchAt = TextOf(m_pData) + nAt;
        CopyCharsOverlapped(pchAt + nLength, pchAt, nOld - nAt);
        CopyChars(pchAt, psz, nLength);
        SetLength(nNew);
    }
    return nNew;
}

template <class Char>
int CStringT<Char>::Delete(int nIndex, int nCount) {
    const int nOld = GetLength();
    const int nAt = std::clamp(nIndex, 0, nOld);
    const int nGone = std::clamp(nCount, 0, nOld - nAt);
    if (nGone > 0) {
        PXSTR const pch = Own(nOld);
        CopyCharsOverlapped(pch + nAt, pch + nAt + nGone, nOld - nAt - nGone);
        SetLength(nOld - nGone);
    }
    return GetLength();
}
