/// @file
/// CStringT: what compares and searches, and gives parts of the text.
#pragma once

#include "StringText.h"

template <class Char>
int CStringT<Char>::Compare(PCXSTR psz) const noexcept {
    return AfxCompare(GetString(), OrEmpty(psz));
}

template <class Char>
int CStringT<Char>::CompareNoCase(PCXSTR psz) const {
    return AfxCompareNoCase(GetString(), OrEmpty(psz));
}

template <class Char>
int CStringT<Char>::Collate(PCXSTR psz) const noexcept {
    return AfxCollate(GetString(), OrEmpty(psz), false);
}

template <class Char>
int CStringT<Char>::CollateNoCase(PCXSTR psz) const noexcept {
    return AfxCollate(GetString(), OrEmpty(psz), true);
}

template <class Char>
CStringT<Char> CStringT<Char>::Mid(int nFirst, int nCount) const {
    const int nAt = std::clamp(nFirst, 0, GetLength());
    const int nLength = std::clamp(nCount, 0, GetLength() - nAt);
    return nLength == GetLength() ? *this : CStringT(GetString() + nAt, nLength);
}

template <class Char>
CStringT<Char> CStringT<Char>::Right(int nCount) const {
    return Mid(GetLength() - std::clamp(nCount, 0, GetLength()));
}

// Both end at the first NUL of the text, like the C library's functions.
template <class Char>
CStringT<Char> CStringT<Char>::SpanIncluding(PCXSTR pszCharSet) const {
    return Left(static_cast<int>(std::min(View(GetString()).find_first_not_of(OrEmpty(pszCharSet)),
                                          std::char_traits<Char>::length(GetString()))));
}

template <class Char>
CStringT<Char> CStringT<Char>::SpanExcluding(PCXSTR pszCharSet) const {
    return Left(static_cast<int>(std::min(View(GetString()).find_first_of(OrEmpty(pszCharSet)),
                                          std::char_traits<Char>::length(GetString()))));
}

template <class Char>
CStringT<Char> CStringT<Char>::Tokenize(PCXSTR pszTokens, int& iStart) const {
    const View tokens = OrEmpty(pszTokens);
    const std::size_t first =
        iStart < 0 ? View::npos : Text().find_first_not_of(tokens, static_cast<std::size_t>(iStart));
    if (first == View::npos) {
        iStart = -1;
        return {};
    }
    const std::size_t end = std::min(Text().find_first_of(tokens, first), Text().size());
    iStart = static_cast<int>(std::min(end + 1, Text().size()));
    return {GetString() + first, static_cast<int>(end - first)};
}

template <class Char>
int CStringT<Char>::Find(XCHAR ch, int nStart) const noexcept {
    return nStart < 0 ? -1 : static_cast<int>(Text().find(ch, static_cast<std::size_t>(nStart)));
}

template <class Char>
int CStringT<Char>::Find(PCXSTR pszSub, int nStart) const noexcept {
    if (pszSub == nullptr || nStart < 0)
        return -1;
    return static_cast<int>(Text().find(pszSub, static_cast<std::size_t>(nStart)));
}

template <class Char>
int CStringT<Char>::ReverseFind(XCHAR ch) const noexcept {
    return static_cast<int>(Text().rfind(ch));
}

template <class Char>
int CStringT<Char>::FindOneOf(PCXSTR pszCharSet) const noexcept {
    return static_cast<int>(Text().find_first_of(OrEmpty(pszCharSet)));
}
