/// @file
/// Conversions of text between its narrow and its wide form, as classes and as the older macros.
#pragma once

/// What programs ask for to see whether this header has been included.
#define __ATLCONV_H__

#include "afxstr.h"

#include <list>
#include <string>

namespace fieldkit::detail {

inline UINT ConversionPage(UINT nCodePage) {
    return nCodePage == 3 ? CP_ACP : nCodePage; // 3 stands for the thread's page, which is the system's
}

inline std::wstring ConvertText(const char* psz, UINT nCodePage) {
    const int nSize = ::MultiByteToWideChar(ConversionPage(nCodePage), 0, psz, -1, nullptr, 0);
    std::wstring text(static_cast<std::size_t>(nSize), L'\0');
    ::MultiByteToWideChar(ConversionPage(nCodePage), 0, psz, -1, text.data(), nSize);
    return text;
}
inline std::string ConvertText(const wchar_t* psz, UINT nCodePage) {
    const UINT nPage = ConversionPage(nCodePage);
    const int nSize = ::WideCharToMultiByte(nPage, 0, psz, -1, nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<std::size_t>(nSize), '\0');
    ::WideCharToMultiByte(nPage, 0, psz, -1, text.data(), nSize, nullptr, nullptr);
    return text;
}

/// A text in another form while the object exists; null stays null.
template <class To, class From>
class CConverted {
public:
    CConverted(const From* psz, UINT nCodePage = CP_ACP) : m_bNull(psz == nullptr) {
        if constexpr (std::is_same_v<To, From>)
            m_text = psz != nullptr ? psz : std::basic_string<To>();
        else if (psz != nullptr)
            m_text = ConvertText(psz, nCodePage);
        m_psz = m_bNull ? nullptr : m_text.data();
    }
    CConverted(const CConverted&) = delete;
    CConverted& operator=(const CConverted&) = delete;
    operator To*() const { return m_psz; }

private:
    std::basic_string<To> m_text;
    bool m_bNull;

public:
    To* m_psz; ///< The text, or null.
};

/// What the macros have converted, until the block ends.
class CConversions {
    template <class Texts, class Char>
    static auto* Keep(Texts& texts, const Char* psz) {
        return psz == nullptr ? nullptr : texts.emplace_back(ConvertText(psz, CP_ACP)).data();
    }

    std::list<std::wstring> m_wide;
    std::list<std::string> m_narrow;

public:
    wchar_t* Widen(const char* psz) { return Keep(m_wide, psz); }
    char* Narrow(const wchar_t* psz) { return Keep(m_narrow, psz); }
};

} // namespace fieldkit::detail

/// Text in the form that the name tells: A narrow, W wide, T that of TCHAR; `CA2W wide(narrow);`. The second
/// argument is a code page, CP_ACP without one. The text lives as long as the object.
///@{
using CA2W = fieldkit::detail::CConverted<wchar_t, char>;
using CW2A = fieldkit::detail::CConverted<char, wchar_t>;
using CA2A = fieldkit::detail::CConverted<char, char>;
using CW2W = fieldkit::detail::CConverted<wchar_t, wchar_t>;
using CA2CW = CA2W;
using CW2CA = CW2A;
using CA2T = CA2W;
using CA2CT = CA2W;
using CT2A = CW2A;
using CT2CA = CW2A;
using CW2T = CW2W;
using CW2CT = CW2W;
using CT2W = CW2W;
using CT2CW = CW2W;
///@}
/// The same with a size that is not needed here.
///@{
template <int = 128>
using CA2WEX = CA2W;
template <int = 128>
using CW2AEX = CW2A;
template <int = 128>
using CA2TEX = CA2W;
template <int = 128>
using CT2AEX = CW2A;
template <int = 128>
using CW2TEX = CW2W;
template <int = 128>
using CT2WEX = CW2W;
///@}

/// Converts into a buffer of `count` characters. @return the characters written, with the NUL; 0 if
/// there is not enough room
///@{
inline int _wcstombsz(char* mbstr, const wchar_t* wcstr, ULONG count) {
    return ::WideCharToMultiByte(CP_ACP, 0, wcstr, -1, mbstr, static_cast<int>(count), nullptr, nullptr);
}
inline int _mbstowcsz(wchar_t* wcstr, const char* mbstr, ULONG count) {
    return ::MultiByteToWideChar(CP_ACP, 0, mbstr, -1, wcstr, static_cast<int>(count));
}
///@}

/// Stands at the beginning of a block that uses the macros below.
#define USES_CONVERSION                                                                                      \
    [[maybe_unused]] fieldkit::detail::CConversions _convert;                                                \
    static_cast<void>(_convert)

/// Text in the other form, until the block with USES_CONVERSION ends. Null stays null.
///@{
#define A2W(psz) (_convert.Widen(psz))
#define W2A(psz) (_convert.Narrow(psz))
#define A2CW(psz) (static_cast<LPCWSTR>(A2W(psz)))
#define W2CA(psz) (static_cast<LPCSTR>(W2A(psz)))
#define A2T(psz) A2W(psz)
#define T2A(psz) W2A(psz)
#define A2CT(psz) A2CW(psz)
#define T2CA(psz) W2CA(psz)
#define A2OLE(psz) A2W(psz)
#define OLE2A(psz) W2A(psz)
#define OLE2CA(psz) W2CA(psz)
#define A2COLE(psz) A2CW(psz)
///@}
/// Text that has the form already.
///@{
#define T2W(psz) const_cast<LPWSTR>(static_cast<LPCWSTR>(psz))
#define W2T(psz) T2W(psz)
#define T2OLE(psz) T2W(psz)
#define OLE2T(psz) T2W(psz)
#define W2OLE(psz) T2W(psz)
#define OLE2W(psz) T2W(psz)
#define T2CW(psz) (static_cast<LPCWSTR>(psz))
#define W2CT(psz) T2CW(psz)
#define OLE2CT(psz) T2CW(psz)
#define T2COLE(psz) T2CW(psz)
///@}
