/// @file
/// CString, the framework's string, and its narrow and wide forms.
#pragma once

#include "afxstrfwd_.h"
#include "afxstrop_.h"

#include <cstdarg>
#include <cstring>
#include <string_view>
#include <type_traits>
#include <utility>

/// A growing string that passes as a pointer to constant text wherever one is wanted.
///
/// Positions and lengths count characters from 0; of narrow text they count bytes. Extraction and
/// editing functions clamp what lies outside the text; GetAt, SetAt and operator[] throw
/// CInvalidArgException* instead. A NULL pointer counts as an empty string everywhere. Pointers into
/// the text itself are allowed as arguments. Comparisons end at the first NUL. Where memory runs out,
/// CMemoryException* or std::bad_alloc is thrown and the text is as it was.
///
/// Copies share one text and a count, and take their own when one of them changes: a copy costs some
/// nanoseconds. A string that has room of its own already keeps it and takes a short text in. Threads may use
/// copies of the same text at the same time, but not the same CString.
template <class Char>
class CStringT : public AfxStringOperators<Char> {
public:
    using XCHAR = Char;                                                          ///< its characters
    using YCHAR = std::conditional_t<std::is_same_v<Char, char>, wchar_t, char>; ///< those of the other form
    using PXSTR = XCHAR*;                                                        ///< its text
    using PCXSTR = const XCHAR*;                                                 ///< its text
    using PCYSTR = const YCHAR*;                                                 ///< text of the other form

    CStringT() noexcept : m_pData(&afxStringNil.data) {}
    /// Shares or takes over the text.
    ///@{
    CStringT(const CStringT& strSrc) : m_pData(strSrc.Share()) {}
    CStringT(CStringT&& strSrc) noexcept : m_pData(std::exchange(strSrc.m_pData, &afxStringNil.data)) {}
    ///@}
    /// `nRepeat` times the character; none for a negative number.
    CStringT(XCHAR ch, int nRepeat = 1);
    /// A copy of the text. On Windows, MAKEINTRESOURCE of a number loads that string.
    CStringT(PCXSTR pszSrc);
    /// The first `nLength` characters, NULs included.
    CStringT(PCXSTR pchSrc, int nLength) : CStringT() { SetString(pchSrc, nLength); }
    /// Text of the other form, converted by the ANSI code page on Windows, as UTF-8 elsewhere.
    ///@{
    CStringT(const CStringT<YCHAR>& strSrc) : CStringT(strSrc.GetString(), strSrc.GetLength()) {}
    CStringT(PCYSTR pszSrc);
    CStringT(PCYSTR pchSrc, int nLength);
    ///@}
    /// Narrow text.
    CStringT(const unsigned char* pszSrc) : CStringT(reinterpret_cast<const char*>(pszSrc)) {}
    ~CStringT() { Release(m_pData); }

    /// Replaces the text; text of the other form is converted as by the constructor.
    ///@{
    CStringT& operator=(const CStringT& strSrc) {
        if (this == &strSrc)
            return *this;
        if (strSrc.IsNil() || strSrc.GetLength() > GetAllocLength() || !HasSmallRoom())
            Take(strSrc.Share());
        else
            CopyIn(strSrc);
        return *this;
    }
    CStringT& operator=(CStringT&& strSrc) noexcept {
        std::swap(m_pData, strSrc.m_pData);
        return *this;
    }
    CStringT& operator=(const CStringT<YCHAR>& strSrc) { return *this = CStringT(strSrc); }
    CStringT& operator=(PCXSTR pszSrc) {
        SetString(pszSrc);
        return *this;
    }
    CStringT& operator=(PCYSTR pszSrc) { return *this = CStringT(pszSrc); }
    CStringT& operator=(const unsigned char* pszSrc) { return *this = CStringT(pszSrc); }
    CStringT& operator=(XCHAR ch) {
        SetString(&ch, 1);
        return *this;
    }
    CStringT& operator=(YCHAR ch) { return *this = CStringT(&ch, 1); }
    void SetString(PCXSTR pszSrc) { SetString(pszSrc, StringLength(pszSrc)); }
    void SetString(PCXSTR pchSrc, int nLength);
    ///@}

    /// The number of characters.
    int GetLength() const noexcept { return m_pData->nDataLength; }
    /// The number of characters that there is room for.
    int GetAllocLength() const noexcept { return m_pData->nAllocLength; }
    /// Whether there is no character.
    bool IsEmpty() const noexcept { return m_pData->nDataLength == 0; }
    /// Makes the text empty and gives its memory back.
    void Empty() noexcept { Take(&afxStringNil.data); }
    /// The character at `nIndex`; the terminating NUL at GetLength().
    XCHAR GetAt(int nIndex) const {
        if (nIndex < 0 || nIndex > GetLength())
            ThrowIndex();
        return GetString()[nIndex];
    }
    /// See GetAt.
    XCHAR operator[](int nIndex) const { return GetAt(nIndex); }
    /// Replaces the character at `nIndex`.
    void SetAt(int nIndex, XCHAR ch);
    /// The text, ended by NUL, valid until the string changes.
    ///@{
    operator PCXSTR() const noexcept { return GetString(); }
    PCXSTR GetString() const noexcept { return TextOf(m_pData); }
    ///@}

    /// Adds text at the end.
    ///@{
    CStringT& operator+=(const CStringT& str) {
        Append(str.GetString(), str.GetLength());
        return *this;
    }
    CStringT& operator+=(const CStringT<YCHAR>& str) { return *this += CStringT(str); }
    CStringT& operator+=(PCXSTR pszSrc) {
        Append(pszSrc);
        return *this;
    }
    CStringT& operator+=(PCYSTR pszSrc) { return *this += CStringT(pszSrc); }
    CStringT& operator+=(XCHAR ch) {
        AppendChar(ch);
        return *this;
    }
    CStringT& operator+=(YCHAR ch) { return *this += CStringT(&ch, 1); }
    void Append(PCXSTR pszSrc) { Append(pszSrc, StringLength(pszSrc)); }
    void Append(PCXSTR pchSrc, int nLength);
    void Append(const CStringT& strSrc) { *this += strSrc; }
    void AppendChar(XCHAR ch) {
        const int nLength = GetLength();
        if (nLength == GetAllocLength() || IsShared())
            return Append(&ch, 1);
        TextOf(m_pData)[nLength] = ch;
        SetLength(nLength + 1);
    }
    ///@}

    /// Both texts in one new string.
    static CStringT Join(PCXSTR pch1, int nLength1, PCXSTR pch2, int nLength2);

    /// Less than, equal to or greater than zero by the characters' numbers.
    int Compare(PCXSTR psz) const noexcept;
    /// Compare without regard to case.
    int CompareNoCase(PCXSTR psz) const;
    /// Compare in the order of the user's language, with and without regard to case.
    ///@{
    int Collate(PCXSTR psz) const noexcept;
    int CollateNoCase(PCXSTR psz) const noexcept;
    ///@}

    /// A part of the text: `nCount` characters from `nFirst`, from the beginning, or the last ones.
    ///@{
    CStringT Mid(int nFirst) const { return Mid(nFirst, GetLength()); }
    CStringT Mid(int nFirst, int nCount) const;
    CStringT Left(int nCount) const { return Mid(0, nCount); }
    CStringT Right(int nCount) const;
    ///@}
    /// The leading run of characters that are in `pszCharSet`.
    CStringT SpanIncluding(PCXSTR pszCharSet) const;
    /// The leading run of characters that are not in `pszCharSet`.
    CStringT SpanExcluding(PCXSTR pszCharSet) const;
    /// The next token at or after `iStart`, runs of delimiters skipped.
    /// @param iStart moved behind the token; -1 when there is none (the result is then empty).
    CStringT Tokenize(PCXSTR pszTokens, int& iStart) const;

    /// Changes the text in place: capitals, small letters, reverse order.
    ///@{
    CStringT& MakeUpper();
    CStringT& MakeLower();
    CStringT& MakeReverse();
    ///@}
    /// @return the number of replacements.
    int Replace(XCHAR chOld, XCHAR chNew);
    /// @return the number of replacements; 0 for an empty `pszOld`.
    int Replace(PCXSTR pszOld, PCXSTR pszNew);
    /// @return the number of characters removed.
    int Remove(XCHAR chRemove);
    /// @return the new length.
    int Insert(int nIndex, XCHAR ch) { return Insert(nIndex, &ch, 1); }
    /// See Insert.
    int Insert(int nIndex, PCXSTR psz) { return Insert(nIndex, psz, StringLength(psz)); }
    /// Deletes characters from `nIndex` on. @return the new length
    int Delete(int nIndex, int nCount = 1);
    /// Removes blanks, tabs and line ends, one character or those of a set, at the beginning, at
    /// the end or at both. @return the string itself
    ///@{
    CStringT& TrimLeft();
    CStringT& TrimLeft(XCHAR chTarget);
    CStringT& TrimLeft(PCXSTR pszTargets);
    CStringT& TrimRight();
    CStringT& TrimRight(XCHAR chTarget);
    CStringT& TrimRight(PCXSTR pszTargets);
    CStringT& Trim();
    CStringT& Trim(XCHAR chTarget);
    CStringT& Trim(PCXSTR pszTargets);
    ///@}

    /// @return the position of the first match at or after `nStart`, -1 if there is none.
    int Find(XCHAR ch, int nStart = 0) const noexcept;
    /// See Find. An empty `pszSub` is found at once.
    int Find(PCXSTR pszSub, int nStart = 0) const noexcept;
    /// The last position of the character, -1 if there is none.
    int ReverseFind(XCHAR ch) const noexcept;
    /// The first position of a character of the set, -1 if there is none.
    int FindOneOf(PCXSTR pszCharSet) const noexcept;

    /// printf-like formatting. %s and %c take text of the string's own form, %S and %C of the other
    /// one; h always means narrow and l wide. I64 and ll mark 64-bit numbers, I and z those of pointer
    /// size. The decimal point is a point in every locale. A CString argument passes its text, which
    /// must be of the form that the conversion asks for; objects of other classes do not compile.
    ///@{
    template <class... Args>
    void Format(PCXSTR pszFormat, Args... args) {
        FormatList(pszFormat, AfxFormatArgument(args)...);
    }
    void FormatV(PCXSTR pszFormat, va_list argList);
    ///@}
    /// Format at the end of the text.
    ///@{
    template <class... Args>
    void AppendFormat(PCXSTR pszFormat, Args... args) {
        AppendFormatList(pszFormat, AfxFormatArgument(args)...);
    }
    void AppendFormatV(PCXSTR pszFormat, va_list argList);
    ///@}

    /// Room for at least `nMinBufferLength` characters and their NUL, holding the text.
    /// The length is unknown until ReleaseBuffer. Until then copies take a text of their own.
    PXSTR GetBuffer(int nMinBufferLength = 0);
    /// Sets the length and hands out the buffer; new characters are NUL.
    PXSTR GetBufferSetLength(int nLength);
    /// @param nNewLength the new length, -1 to end at the first NUL.
    void ReleaseBuffer(int nNewLength = -1);
    /// ReleaseBuffer with a length.
    void ReleaseBufferSetLength(int nNewLength) { ReleaseBuffer(nNewLength > 0 ? nNewLength : 0); }
    /// Keeps the text to this string: copies take their own, until UnlockBuffer. @return the text
    PXSTR LockBuffer() { return GetBuffer(); }
    /// Ends LockBuffer.
    void UnlockBuffer() noexcept;
    /// Makes room for that many characters.
    void Preallocate(int nLength);
    /// Cuts the text to a length.
    void Truncate(int nNewLength);
    /// Gives memory back that the text does not need.
    void FreeExtra();

    /// The length of a text in characters; 0 for NULL. Throws CMemoryException* beyond 2^31.
    static int StringLength(PCXSTR psz);
    /// Copies characters; the second form allows the two to overlap.
    ///@{
    static void CopyChars(PXSTR pchDest, PCXSTR pchSrc, int nChars) noexcept {
        std::memcpy(pchDest, pchSrc, static_cast<std::size_t>(nChars) * sizeof(XCHAR));
    }
    static void CopyCharsOverlapped(PXSTR pchDest, PCXSTR pchSrc, int nChars) noexcept {
        std::memmove(pchDest, pchSrc, static_cast<std::size_t>(nChars) * sizeof(XCHAR));
    }
    ///@}

#ifdef _WIN32
    /// Loads a string of the application's or an extension module's table, or of one module alone.
    /// @return zero, with the text empty, if no module has it.
    ///@{
    BOOL LoadString(UINT nID);
    BOOL LoadString(HINSTANCE hInstance, UINT nID);
    ///@}
    /// Format, AppendFormat and FormatMessage with a string of the table; an unknown one counts as
    /// empty.
    ///@{
    template <class... Args>
    void Format(UINT nFormatID, Args... args) {
        FormatList(Loaded(nFormatID), AfxFormatArgument(args)...);
    }
    template <class... Args>
    void AppendFormat(UINT nFormatID, Args... args) {
        AppendFormatList(Loaded(nFormatID), AfxFormatArgument(args)...);
    }
    template <class... Args>
    void FormatMessage(UINT nFormatID, Args... args) {
        FormatMessageList(Loaded(nFormatID), AfxFormatArgument(args)...);
    }
    ///@}
    /// Formatting by the system's rules, with numbered places: %1 for text, %2!d! for a number.
    ///@{
    template <class... Args>
    void FormatMessage(PCXSTR pszFormat, Args... args) {
        FormatMessageList(pszFormat, AfxFormatArgument(args)...);
    }
    void FormatMessageV(PCXSTR pszFormat, va_list* pArgList);
    ///@}
    /// The value of an environment variable. @return zero, with the text empty, if there is none.
    BOOL GetEnvironmentVariable(PCXSTR pszVar);
    /// The text as a BSTR of the system, which the caller frees. Throws CMemoryException* for want of memory;
    /// the old one of `*pbstr` is freed.
    ///@{
    wchar_t* AllocSysString() const;
    wchar_t* SetSysString(wchar_t** pbstr) const;
    ///@}
    /// Converts narrow text between the ANSI and the OEM code page. For CStringA only.
    ///@{
    void AnsiToOem();
    void OemToAnsi();
    ///@}
#endif

private:
    using View = std::basic_string_view<Char>;

    static Char* TextOf(CStringData* pData) noexcept {
        return reinterpret_cast<Char*>(pData + 1);
    }
    View Text() const noexcept {
        return {GetString(), static_cast<std::size_t>(GetLength())};
    }
    bool IsNil() const noexcept {
        return m_pData->nAllocLength == 0;
    }
    bool IsShared() const noexcept {
        return m_pData->nRefs.load(std::memory_order_acquire) > 1;
    }
    void SetLength(int nLength) noexcept {
        m_pData->nDataLength = nLength;
        TextOf(m_pData)[nLength] = Char();
    }

    CStringData* Share() const {
        if (IsNil())
            return m_pData;
        if (m_pData->nRefs.load(std::memory_order_relaxed) < 0)
            return NewData(GetString(), GetLength(), GetLength());
        m_pData->nRefs.fetch_add(1, std::memory_order_relaxed);
        return m_pData;
    }
    static void Release(CStringData* pData) noexcept {
        if (pData->nAllocLength == 0)
            return;
        // The only owner needs no locked operation: nobody else can share what he does not give.
        // unreachable: the second without the first, unless another thread drops its copy meanwhile
        if (pData->nRefs.load(std::memory_order_acquire) <= 1 ||
            pData->nRefs.fetch_sub(1, std::memory_order_acq_rel) == 1)
            Free(pData);
    }
    /// Room that is this string's alone and not worth giving back for another text: copying that is
    /// quicker than sharing it, freeing the room and asking for new one at the next change.
    bool HasSmallRoom() const noexcept {
        constexpr int kSmall = 256;
        return GetAllocLength() <= kSmall && m_pData->nRefs.load(std::memory_order_acquire) == 1 && !IsNil();
    }
    void CopyIn(const CStringT& strSrc) noexcept {
        CopyChars(TextOf(m_pData), strSrc.GetString(), strSrc.GetLength());
        SetLength(strSrc.GetLength());
    }
    void Take(CStringData* pData) noexcept {
        Release(std::exchange(m_pData, pData));
    }

    [[noreturn]] static void ThrowIndex();
    // Made and freed by the framework's own module only.
    static CStringData* NewData(int nAllocLength);
    static CStringData* NewData(PCXSTR pch, int nLength, int nAllocLength);
    static void Free(CStringData* pData) noexcept;
    PXSTR Own(int nAllocLength);
    int Insert(int nIndex, PCXSTR psz, int nLength);
    CStringT& Keep(std::size_t nFirst, std::size_t nEnd);
    void FormatList(PCXSTR pszFormat, ...);
    void AppendFormatList(PCXSTR pszFormat, ...);
#ifdef _WIN32
    void FormatMessageList(PCXSTR pszFormat, ...);
    static CStringT Loaded(UINT nID) {
        CStringT str;
        str.LoadString(nID);
        return str;
    }
#endif

    CStringData* m_pData;
};

// Users of the DLL make the inline members themselves, as the compiler exports only the others.
#if !defined(_WIN32) || defined(FIELDKIT_STATIC) || defined(FRAMEWORK_EXPORTS)
extern template class AFX_CORE CStringT<wchar_t>;
extern template class AFX_CORE CStringT<char>;
#endif

#include "afxstrbuf_.h"
