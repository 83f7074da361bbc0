#include "afx.h"

#include <algorithm>
#include <cwchar>

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

constexpr LPCTSTR kFileTexts[] = {
    L"No error occurred.",
    L"An unknown error occurred while accessing %s.",
    L"%s was not found.",
    L"%s contains an invalid path.",
    L"%s could not be opened because too many files are open.",
    L"Access to %s was denied.",
    L"An invalid file handle was associated with %s.",
    L"%s could not be removed because it is the current directory.",
    L"%s could not be created because the directory is full.",
    L"A position in %s could not be reached.",
    L"A hardware error was reported while accessing %s.",
    L"A sharing violation occurred while accessing %s.",
    L"A locking violation occurred while accessing %s.",
    L"The disk is full while accessing %s.",
    L"The end of %s was passed.",
};

constexpr LPCTSTR kArchiveTexts[] = {
    L"No error occurred.",
    L"An unknown error occurred while accessing %s.",
    L"%s is open for reading and was written to.",
    L"%s ends unexpectedly.",
    L"%s is open for writing and was read from.",
    L"%s has a bad format.",
    L"%s contains an unexpected object.",
    L"%s contains an object of an unknown version.",
    L"The buffer for %s is full.",
};

template <std::size_t N>
CString TextWithName(const LPCTSTR (&texts)[N], int cause, const CString& name) {
    const bool known = cause >= 0 && cause < static_cast<int>(N);
    CString text(texts[known ? cause : 1]);
    text.Replace(L"%s", name.IsEmpty() ? L"an unnamed file" : name.GetString());
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
    return GiveText(L"Out of memory.", lpszError, nMaxError, pnHelpContext);
}

BOOL CNotSupportedException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const {
    return GiveText(L"An unsupported operation was attempted.", lpszError, nMaxError, pnHelpContext);
}

BOOL CResourceException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const {
    return GiveText(L"A required resource was unavailable.", lpszError, nMaxError, pnHelpContext);
}

BOOL CInvalidArgException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const {
    return GiveText(L"An invalid argument was encountered.", lpszError, nMaxError, pnHelpContext);
}

BOOL CFileException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const {
    return GiveText(TextWithName(kFileTexts, m_cause, m_strFileName), lpszError, nMaxError, pnHelpContext);
}

void AFXAPI CFileException::ThrowOsError(LONG lOsError, LPCTSTR lpszFileName) {
    if (lOsError != 0)
        AfxThrowFileException(OsErrorToException(lOsError), lOsError, lpszFileName);
}

BOOL CArchiveException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const {
    return GiveText(TextWithName(kArchiveTexts, m_cause, m_strFileName), lpszError, nMaxError, pnHelpContext);
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
