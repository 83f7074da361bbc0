/// @file
/// The buffer of a string as an object. Included by afxstr.h.
#pragma once

#include "afxstrfwd_.h"

/// The buffer of a string while the object exists, for functions that write into it:
/// `GetWindowText(hWnd, CStrBuf(str, 100), 101)`.
template <class Char>
class CStrBufT {
public:
    using PXSTR = Char*;               ///< the buffer
    using PCXSTR = const Char*;        ///< the text in it
    using StringType = CStringT<Char>; ///< whose buffer it is

    /// Combined with |.
    ///@{
    static constexpr DWORD AUTO_LENGTH = 0x01; ///< the text ends at its first NUL
    static constexpr DWORD SET_LENGTH = 0x02;  ///< the text has the asked length from the beginning
    ///@}

    /// @param nMinLength characters that there is room for, and a NUL
    ///@{
    explicit CStrBufT(StringType& str) : CStrBufT(str, str.GetLength(), AUTO_LENGTH) {}
    CStrBufT(StringType& str, int nMinLength, DWORD dwFlags = AUTO_LENGTH)
        : m_str(str), m_pszBuffer((dwFlags & SET_LENGTH) != 0 ? str.GetBufferSetLength(nMinLength)
                                                              : str.GetBuffer(nMinLength)),
          m_nLength((dwFlags & AUTO_LENGTH) != 0 ? -1 : nMinLength) {}
    ///@}
    CStrBufT(const CStrBufT&) = delete;
    CStrBufT& operator=(const CStrBufT&) = delete;
    ~CStrBufT() { m_str.ReleaseBuffer(m_nLength); }

    /// The buffer.
    ///@{
    operator PXSTR() noexcept { return m_pszBuffer; }
    operator PCXSTR() const noexcept { return m_pszBuffer; }
    ///@}
    /// The length that the text is to have in the end.
    void SetLength(int nLength) noexcept { m_nLength = nLength; }

private:
    StringType& m_str;
    PXSTR m_pszBuffer;
    int m_nLength;
};

/// The buffers of strings.
///@{
using CStrBufW = CStrBufT<wchar_t>;
using CStrBufA = CStrBufT<char>;
using CStrBuf = CStrBufW;
///@}
