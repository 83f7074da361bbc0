/// @file
/// CDumpContext, and helpers for debugging. Included by afx.h.
#pragma once

#include "afxobj_.h"

#include <cstdlib>

class CFile;

/// Takes what objects write about themselves, for the debugger's output or a file.
class AFX_CORE CDumpContext {
public:
    /// @param pFile receives narrow text and must outlive this; NULL: the output of TRACE.
    explicit CDumpContext(CFile* pFile = nullptr) : m_pFile(pFile) {}
    CDumpContext(const CDumpContext&) = delete;
    CDumpContext& operator=(const CDumpContext&) = delete;

    /// How deep objects write: 0 for themselves alone, more for what they hold too.
    ///@{
    int GetDepth() const { return m_nDepth; }
    void SetDepth(int nNewDepth) { m_nDepth = nNewDepth; }
    ///@}
    /// Hands everything to the disk.
    void Flush();
    /// Writes bytes as hexadecimal numbers. @param nWidth bytes a line @param lpszLine in front of each
    void HexDump(LPCTSTR lpszLine, const BYTE* pby, int nBytes, int nWidth);

    /// Write a value as text; an object by its Dump.
    ///@{
    CDumpContext& operator<<(LPCWSTR lpsz);
    CDumpContext& operator<<(LPCSTR lpsz);
    CDumpContext& operator<<(const void* lp);
    CDumpContext& operator<<(const CObject* pOb);
    CDumpContext& operator<<(const CObject& ob) { return *this << &ob; }
    CDumpContext& operator<<(double d);
    CDumpContext& operator<<(LONGLONG n);
    CDumpContext& operator<<(ULONGLONG n);
    ///@}
    /// The same for the narrower numbers.
    template <class Number, class = std::enable_if_t<std::is_arithmetic_v<Number>>>
    CDumpContext& operator<<(Number n) {
        if constexpr (std::is_floating_point_v<Number>)
            return *this << static_cast<double>(n);
        else if constexpr (std::is_signed_v<Number>)
            return *this << static_cast<LONGLONG>(n);
        else
            return *this << static_cast<ULONGLONG>(n);
    }

private:
    CFile* m_pFile;
    int m_nDepth = 0;
};

/// The output of TRACE as a dump context.
extern AFX_CORE CDumpContext afxDump;

/// Writes an object to the debugger's output.
AFX_CORE void AFXAPI AfxDump(const CObject* pOb);

/// Whether memory can be read, and written if asked. Here: whether there is a pointer, as an answer
/// for any address would be a guess.
///@{
inline BOOL AFXAPI AfxIsValidAddress(const void* lp, UINT_PTR /*nBytes*/, BOOL /*bReadWrite*/ = TRUE) {
    return lp != nullptr ? TRUE : FALSE;
}
inline BOOL AFXAPI AfxIsValidString(LPCWSTR lpsz, int /*nLength*/ = -1) {
    return lpsz != nullptr ? TRUE : FALSE;
}
inline BOOL AFXAPI AfxIsValidString(LPCSTR lpsz, int /*nLength*/ = -1) {
    return lpsz != nullptr ? TRUE : FALSE;
}
///@}

/// Ends the program at once.
[[noreturn]] inline void AFXAPI AfxAbort() {
    std::abort();
}

/// The piece of a text with that number, counted from 0 between separators.
/// @param rString receives it; empty if there is none.
/// @return zero if there are fewer pieces.
AFX_CORE BOOL AFXAPI AfxExtractSubString(CString& rString, LPCTSTR lpszFullString, int iSubString,
                                         TCHAR chSep = L'\n');
