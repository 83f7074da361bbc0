/// @file
/// CStringT: formatting.
#pragma once

#include "StringText.h"

#include <memory>

namespace fieldkit::detail {

/// Collects a text, a short one without asking for memory.
template <class Char>
class CTextBuffer {
public:
    CTextBuffer() = default;
    CTextBuffer(const CTextBuffer&) = delete;
    CTextBuffer& operator=(const CTextBuffer&) = delete;

    const Char* Data() const { return m_pText; }
    std::size_t Size() const { return m_nSize; }
    /// Room for that many characters at the end, which the caller fills.
    Char* Extend(std::size_t nCount) {
        if (nCount > m_nRoom - m_nSize)
            Grow(nCount);
        Char* const pEnd = m_pText + m_nSize;
        m_nSize += nCount;
        return pEnd;
    }
    template <class Other>
    void Append(const Other* pText, std::size_t nCount) {
        std::copy_n(pText, nCount, Extend(nCount));
    }
    void Fill(std::size_t nCount, Char ch) { std::fill_n(Extend(nCount), nCount, ch); }

private:
    void Grow(std::size_t nCount) {
        const std::size_t nRoom = std::max(m_nSize + nCount, 2 * m_nRoom);
        std::unique_ptr<Char[]> pLarger(new Char[nRoom]);
        std::copy_n(m_pText, m_nSize, pLarger.get());
        m_pLarge = std::move(pLarger);
        m_pText = m_pLarge.get();
        m_nRoom = nRoom;
    }

    static constexpr std::size_t kSmall = 256;
    Char m_small[kSmall];
    std::unique_ptr<Char[]> m_pLarge;
    Char* m_pText = m_small;
    std::size_t m_nSize = 0;
    std::size_t m_nRoom = kSmall;
};

/// Adds what a format and its arguments make.
///@{
void AfxFormatText(CTextBuffer<wchar_t>& out, const wchar_t* pszFormat, va_list argList);
void AfxFormatText(CTextBuffer<char>& out, const char* pszFormat, va_list argList);
///@}

} // namespace fieldkit::detail

// Made apart first: the arguments may be pieces of the text.
template <class Char>
void CStringT<Char>::FormatV(PCXSTR pszFormat, va_list argList) {
    CTextBuffer<Char> out;
    AfxFormatText(out, OrEmpty(pszFormat), argList);
    SetString(out.Data(), ToLength(out.Size()));
}

template <class Char>
void CStringT<Char>::AppendFormatV(PCXSTR pszFormat, va_list argList) {
    CTextBuffer<Char> out;
    AfxFormatText(out, OrEmpty(pszFormat), argList);
    Append(out.Data(), ToLength(out.Size()));
}

// What an exception leaves open here, va_end, does nothing on any processor that this is built for.
template <class Char>
void CStringT<Char>::FormatList(PCXSTR pszFormat, ...) {
    va_list argList;
    va_start(argList, pszFormat);
    FormatV(pszFormat, argList);
    va_end(argList);
}

template <class Char>
void CStringT<Char>::AppendFormatList(PCXSTR pszFormat, ...) {
    va_list argList;
    va_start(argList, pszFormat);
    AppendFormatV(pszFormat, argList);
    va_end(argList);
}
