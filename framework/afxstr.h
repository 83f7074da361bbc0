/// @file
/// CString, the framework's Unicode string.
#pragma once

#include "afxtypes.h"

#include <cstdarg>
#include <string>

/// A growing wide-character string that passes as LPCTSTR wherever one is wanted.
///
/// Positions and lengths count TCHARs from 0. Extraction and editing functions clamp
/// what lies outside the text; GetAt, SetAt and operator[] throw CInvalidArgException*
/// instead. A NULL pointer counts as an empty string everywhere. Pointers into the
/// text itself are allowed as arguments. Comparisons end at the first NUL.
class AFX_CORE CString {
public:
    CString() noexcept = default;
    /// Copies or takes over the text.
    ///@{
    CString(const CString& stringSrc) = default;
    CString(CString&& stringSrc) noexcept = default;
    ///@}
    /// `nRepeat` times the character; none for a negative number.
    CString(TCHAR ch, int nRepeat = 1);
    /// A copy of the text.
    CString(LPCTSTR lpsz);
    /// The first `nLength` characters of `lpch`, NULs included.
    CString(LPCTSTR lpch, int nLength);
    /// Narrow text: the ANSI code page on Windows, UTF-8 elsewhere.
    CString(LPCSTR lpsz);
    /// @copydoc CString(LPCSTR)
    CString(LPCSTR lpch, int nLength);
    ~CString() = default;

    /// Replaces the text; narrow text is converted as by the constructor.
    ///@{
    CString& operator=(const CString& stringSrc) = default;
    CString& operator=(CString&& stringSrc) noexcept = default;
    CString& operator=(LPCTSTR lpsz);
    CString& operator=(LPCSTR lpsz);
    CString& operator=(TCHAR ch);
    CString& operator=(char ch);
    ///@}

    /// The number of characters.
    int GetLength() const noexcept { return static_cast<int>(m_text.size()); }
    /// Whether there is no character.
    BOOL IsEmpty() const noexcept { return m_text.empty() ? TRUE : FALSE; }
    /// Makes the text empty and gives its memory back.
    void Empty() noexcept;
    /// The character at `nIndex`; the terminating NUL at GetLength().
    TCHAR GetAt(int nIndex) const;
    /// See GetAt.
    TCHAR operator[](int nIndex) const { return GetAt(nIndex); }
    /// Replaces the character at `nIndex`.
    void SetAt(int nIndex, TCHAR ch);
    /// The text, ended by NUL, valid until the string changes.
    ///@{
    operator LPCTSTR() const noexcept { return m_text.c_str(); }
    LPCTSTR GetString() const noexcept { return m_text.c_str(); }
    ///@}

    /// Adds text at the end.
    ///@{
    CString& operator+=(const CString& string);
    CString& operator+=(LPCTSTR lpsz);
    CString& operator+=(LPCSTR lpsz);
    CString& operator+=(TCHAR ch);
    CString& operator+=(char ch);
    void Append(LPCTSTR lpsz) { *this += lpsz; }
    void Append(LPCTSTR lpch, int nLength);
    void AppendChar(TCHAR ch) { *this += ch; }
    ///@}

    /// Less than, equal to or greater than zero by the characters' numbers.
    int Compare(LPCTSTR lpsz) const noexcept;
    /// Compare without regard to case.
    int CompareNoCase(LPCTSTR lpsz) const noexcept;

    /// A part of the text: `nCount` characters from `nFirst`, from the beginning, or the last ones.
    ///@{
    CString Mid(int nFirst) const;
    CString Mid(int nFirst, int nCount) const;
    CString Left(int nCount) const;
    CString Right(int nCount) const;
    ///@}
    /// The leading run of characters that are in `lpszCharSet`.
    CString SpanIncluding(LPCTSTR lpszCharSet) const;
    /// The leading run of characters that are not in `lpszCharSet`.
    CString SpanExcluding(LPCTSTR lpszCharSet) const;
    /// The next token at or after `iStart`, runs of delimiters skipped.
    /// @param iStart moved behind the token; -1 when there is none (the result is then empty).
    CString Tokenize(LPCTSTR lpszTokens, int& iStart) const;

    /// Changes the text in place: capitals, small letters, reverse order.
    ///@{
    CString& MakeUpper();
    CString& MakeLower();
    CString& MakeReverse();
    ///@}
    /// @return the number of replacements.
    int Replace(TCHAR chOld, TCHAR chNew);
    /// @return the number of replacements; 0 for an empty `lpszOld`.
    int Replace(LPCTSTR lpszOld, LPCTSTR lpszNew);
    /// @return the number of characters removed.
    int Remove(TCHAR chRemove);
    /// @return the new length.
    int Insert(int nIndex, TCHAR ch);
    /// See Insert.
    int Insert(int nIndex, LPCTSTR lpsz);
    /// Deletes characters from `nIndex` on. @return the new length
    int Delete(int nIndex, int nCount = 1);
    /// Removes blanks, tabs and line ends, one character or those of a set, at the beginning, at
    /// the end or at both. @return the string itself
    ///@{
    CString& TrimLeft();
    CString& TrimLeft(TCHAR chTarget);
    CString& TrimLeft(LPCTSTR lpszTargets);
    CString& TrimRight();
    CString& TrimRight(TCHAR chTarget);
    CString& TrimRight(LPCTSTR lpszTargets);
    CString& Trim() { return TrimRight().TrimLeft(); }
    CString& Trim(TCHAR chTarget) { return TrimRight(chTarget).TrimLeft(chTarget); }
    CString& Trim(LPCTSTR lpszTargets);
    ///@}

    /// @return the position of the first match at or after `nStart`, -1 if there is none.
    int Find(TCHAR ch, int nStart = 0) const noexcept;
    /// See Find. An empty `lpszSub` is found at once.
    int Find(LPCTSTR lpszSub, int nStart = 0) const noexcept;
    /// The last position of the character, -1 if there is none.
    int ReverseFind(TCHAR ch) const noexcept;
    /// The first position of a character of the set, -1 if there is none.
    int FindOneOf(LPCTSTR lpszCharSet) const noexcept;

    /// printf-like formatting: %s and %ls take wide strings, %S and %hs narrow ones, %c
    /// and %C likewise; I64 and ll mark 64-bit numbers, I and z those of pointer size.
    /// Pass GetString(), not the CString itself: only plain values go through `...`.
    void Format(LPCTSTR lpszFormat, ...);
    /// Format with its arguments in a list, or added at the end of the text.
    ///@{
    void FormatV(LPCTSTR lpszFormat, va_list argList);
    void AppendFormat(LPCTSTR lpszFormat, ...);
    void AppendFormatV(LPCTSTR lpszFormat, va_list argList);
    ///@}

    /// Room for at least `nMinBufLength` characters and their NUL, holding the text.
    /// The length is unknown until ReleaseBuffer.
    LPTSTR GetBuffer(int nMinBufLength = 0);
    /// Sets the length and hands out the buffer; new characters are NUL.
    LPTSTR GetBufferSetLength(int nNewLength);
    /// @param nNewLength the new length, -1 to end at the first NUL.
    void ReleaseBuffer(int nNewLength = -1);
    /// Gives memory back that the text does not need.
    void FreeExtra() { m_text.shrink_to_fit(); }

#ifdef _WIN32
    /// Loads a string of the application's or an extension module's table.
    /// @return zero, with the text empty, if no module has it.
    BOOL LoadString(UINT nID);
    /// Format with a string of the table; an unknown one gives an empty text.
    void Format(UINT nFormatID, ...);
#endif

private:
    std::wstring m_text;
};

/// Both texts in one new string.
///@{
AFX_CORE CString AFXAPI operator+(const CString& string1, const CString& string2);
AFX_CORE CString AFXAPI operator+(const CString& string, LPCTSTR lpsz);
AFX_CORE CString AFXAPI operator+(LPCTSTR lpsz, const CString& string);
AFX_CORE CString AFXAPI operator+(const CString& string, LPCSTR lpsz);
AFX_CORE CString AFXAPI operator+(LPCSTR lpsz, const CString& string);
AFX_CORE CString AFXAPI operator+(const CString& string, TCHAR ch);
AFX_CORE CString AFXAPI operator+(TCHAR ch, const CString& string);
AFX_CORE CString AFXAPI operator+(const CString& string, char ch);
AFX_CORE CString AFXAPI operator+(char ch, const CString& string);
///@}

// Narrow text compares too: it converts to a CString first.
// clang-format off
/// Compare as by CString::Compare.
///@{
inline bool operator==(const CString& s1, const CString& s2) { return s1.Compare(s2) == 0; }
inline bool operator==(const CString& s1, LPCTSTR s2) { return s1.Compare(s2) == 0; }
inline bool operator==(LPCTSTR s1, const CString& s2) { return s2.Compare(s1) == 0; }
inline bool operator==(const CString& s1, TCHAR ch) { return s1.GetLength() == 1 && s1[0] == ch; }
inline bool operator==(TCHAR ch, const CString& s2) { return s2 == ch; }
inline bool operator!=(const CString& s1, const CString& s2) { return !(s1 == s2); }
inline bool operator!=(const CString& s1, LPCTSTR s2) { return !(s1 == s2); }
inline bool operator!=(LPCTSTR s1, const CString& s2) { return !(s1 == s2); }
inline bool operator!=(const CString& s1, TCHAR ch) { return !(s1 == ch); }
inline bool operator!=(TCHAR ch, const CString& s2) { return !(s2 == ch); }
inline bool operator<(const CString& s1, const CString& s2) { return s1.Compare(s2) < 0; }
inline bool operator<(const CString& s1, LPCTSTR s2) { return s1.Compare(s2) < 0; }
inline bool operator<(LPCTSTR s1, const CString& s2) { return s2.Compare(s1) > 0; }
inline bool operator>(const CString& s1, const CString& s2) { return s1.Compare(s2) > 0; }
inline bool operator>(const CString& s1, LPCTSTR s2) { return s1.Compare(s2) > 0; }
inline bool operator>(LPCTSTR s1, const CString& s2) { return s2.Compare(s1) < 0; }
inline bool operator<=(const CString& s1, const CString& s2) { return s1.Compare(s2) <= 0; }
inline bool operator<=(const CString& s1, LPCTSTR s2) { return s1.Compare(s2) <= 0; }
inline bool operator<=(LPCTSTR s1, const CString& s2) { return s2.Compare(s1) >= 0; }
inline bool operator>=(const CString& s1, const CString& s2) { return s1.Compare(s2) >= 0; }
inline bool operator>=(const CString& s1, LPCTSTR s2) { return s1.Compare(s2) >= 0; }
inline bool operator>=(LPCTSTR s1, const CString& s2) { return s2.Compare(s1) <= 0; }
///@}
// clang-format on
