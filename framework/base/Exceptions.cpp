#include "MessageText.h"

#include "afxres.h"

#include <algorithm>
#include <cwchar>

using namespace fieldkit::detail;

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)
IMPLEMENT_DYNAMIC(CFileException, CException)
IMPLEMENT_DYNAMIC(CArchiveException, CException)

namespace {

CMemoryException g_memoryException(FALSE);
CNotSupportedException g_notSupportedException(FALSE);
CResourceException g_resourceException(FALSE);
CUserException g_userException(FALSE);
CInvalidArgException g_invalidArgException(FALSE);

BOOL GiveText(LPCTSTR text, LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext) {
    if (pnHelpContext != nullptr)
        *pnHelpContext = 0;
    if (lpszError == nullptr || nMaxError == 0)
        return FALSE;
    const std::size_t length = std::min<std::size_t>(std::wcslen(text), nMaxError - 1);
    std::copy_n(text, length, lpszError);
    lpszError[length] = L'\0';
    return *text != L'\0' ? TRUE : FALSE;
}

// Where there is no string table: natively, and before the framework has one.
constexpr LPCTSTR kFileTexts[] = {
    L"No error occurred.",
    L"An unknown error occurred while accessing %1.",
    L"%1 was not found.",
    L"%1 contains an invalid path.",
    L"%1 could not be opened because too many files are open.",
    L"Access to %1 was denied.",
    L"An invalid file handle was associated with %1.",
    L"%1 could not be removed because it is the current directory.",
    L"%1 could not be created because the directory is full.",
    L"A position in %1 could not be reached.",
    L"A hardware error was reported while accessing %1.",
    L"A sharing violation occurred while accessing %1.",
    L"A locking violation occurred while accessing %1.",
    L"The disk is full while accessing %1.",
    L"The end of %1 was passed.",
};

constexpr LPCTSTR kArchiveTexts[] = {
    L"No error occurred.",
    L"An unknown error occurred while accessing %1.",
    L"%1 is open for reading and was written to.",
    L"%1 ends unexpectedly.",
    L"%1 is open for writing and was read from.",
    L"%1 has a bad format.",
    L"%1 contains an unexpected object.",
    L"%1 contains an object of an unknown version.",
    L"The buffer for %1 is full.",
};

/// The text of a number in the string table, into the caller's buffer: needs no memory.
BOOL GiveText(UINT nID, LPCTSTR fallback, LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext) {
    const BOOL given = GiveText(fallback, lpszError, nMaxError, pnHelpContext);
    if (given)
        AfxMessageText(nID, lpszError, nMaxError);
    return given;
}

CString Text(UINT nID, LPCTSTR fallback) {
    constexpr UINT kMaxText = 256;
    TCHAR text[kMaxText];
    GiveText(nID, fallback, text, kMaxText, nullptr);
    return text;
}

/// @param nFirst the number of the text of cause 0
template <std::size_t N>
CString TextWithName(UINT nFirst, const LPCTSTR (&texts)[N], int cause, const CString& name) {
    const UINT known = cause >= 0 && cause < static_cast<int>(N) ? static_cast<UINT>(cause) : 1;
    CString text = Text(nFirst + known, texts[known]);
    text.Replace(L"%1", name.IsEmpty() ? Text(AFX_IDS_UNNAMED_FILE, L"an unnamed file") : name);
    return text;
}

} // namespace

void CException::Delete() {
    if (m_bAutoDelete)
        delete this;
}

BOOL CException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const {
    return GiveText(L"", lpszError, nMaxError, pnHelpContext);
}

BOOL CMemoryException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const {
    return GiveText(AFX_IDS_MEMORY_EXCEPTION, L"Out of memory.", lpszError, nMaxError, pnHelpContext);
}

BOOL CNotSupportedException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const {
    return GiveText(AFX_IDS_NOT_SUPPORTED_EXCEPTION, L"An unsupported operation was attempted.", lpszError,
                    nMaxError, pnHelpContext);
}

BOOL CResourceException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const {
    return GiveText(AFX_IDS_RESOURCE_EXCEPTION, L"A required resource was unavailable.", lpszError, nMaxError,
                    pnHelpContext);
}

BOOL CInvalidArgException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const {
    return GiveText(AFX_IDS_INVALID_ARG_EXCEPTION, L"An invalid argument was encountered.", lpszError,
                    nMaxError, pnHelpContext);
}

BOOL CFileException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const {
    return GiveText(TextWithName(AFX_IDP_FILE_NONE, kFileTexts, m_cause, m_strFileName), lpszError, nMaxError,
                    pnHelpContext);
}

void AFXAPI CFileException::ThrowOsError(LONG lOsError, LPCTSTR lpszFileName) {
    if (lOsError != 0)
        AfxThrowFileException(OsErrorToException(lOsError), lOsError, lpszFileName);
}

BOOL CArchiveException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const {
    return GiveText(TextWithName(AFX_IDP_ARCH_NONE, kArchiveTexts, m_cause, m_strFileName), lpszError,
                    nMaxError, pnHelpContext);
}

void AFXAPI AfxThrowMemoryException() {
    throw &g_memoryException;
}
void AFXAPI AfxThrowNotSupportedException() {
    throw &g_notSupportedException;
}
void AFXAPI AfxThrowResourceException() {
    throw &g_resourceException;
}
void AFXAPI AfxThrowUserException() {
    throw &g_userException;
}
void AFXAPI AfxThrowInvalidArgException() {
    throw &g_invalidArgException;
}

void AFXAPI AfxThrowFileException(int cause, LONG lOsError, LPCTSTR lpszFileName) {
    throw new CFileException(cause, lOsError, lpszFileName);
}

void AFXAPI AfxThrowArchiveException(int cause, LPCTSTR lpszArchiveName) {
    throw new CArchiveException(cause, lpszArchiveName);
}
