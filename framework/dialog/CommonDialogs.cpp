// The system's own dialogs.
#include "afxdlgs.h"

#include <algorithm>
#include <iterator>

IMPLEMENT_DYNAMIC(CCommonDialog, CDialog)
IMPLEMENT_DYNAMIC(CFileDialog, CCommonDialog)
IMPLEMENT_DYNAMIC(CColorDialog, CCommonDialog)
IMPLEMENT_DYNAMIC(CFontDialog, CCommonDialog)
IMPLEMENT_DYNAMIC(CFindReplaceDialog, CCommonDialog)

struct AfxCommonAccess {
    /// The message that a colour dialog sends before it takes OK.
    static UINT ColorOk() {
        static const UINT nMessage = ::RegisterWindowMessage(COLOROKSTRING);
        return nMessage;
    }
    /// Attaches the object to the system's dialog when that is complete.
    template <class Parameters>
    static UINT_PTR CALLBACK Hook(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == ColorOk()) // the system sends it to the hook
            return static_cast<UINT_PTR>(::SendMessage(hWnd, message, wParam, lParam));
        if (message != WM_INITDIALOG)
            return 0;
        auto* pDialog =
            reinterpret_cast<CCommonDialog*>(reinterpret_cast<const Parameters*>(lParam)->lCustData);
        MSG msg = {};
        msg.message = message;
        return static_cast<UINT_PTR>(AfxCallGuarded(
            msg, [&] { return pDialog->SubclassWindow(hWnd) ? pDialog->OnInitDialog() : FALSE; }));
    }
    /// What all parameter structures have in common.
    template <class Parameters>
    static void Prepare(CCommonDialog* pDialog, Parameters& parameters) {
        parameters.lpfnHook = Hook<Parameters>;
        parameters.lCustData = reinterpret_cast<LPARAM>(pDialog);
        if (parameters.hwndOwner == nullptr)
            parameters.hwndOwner = CWnd::GetSafeOwner(pDialog->m_pParentWnd)->GetSafeHwnd();
    }
};

CCommonDialog::CCommonDialog(CWnd* pParentWnd) {
    m_pParentWnd = pParentWnd;
    m_bFullScreen = FALSE;
}

void CCommonDialog::OnOK() {
    if (UpdateData(TRUE))
        Default();
}

void CCommonDialog::OnCancel() {
    Default();
}

// --- Files --------------------------------------------------------------------------------

CFileDialog::CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt, LPCTSTR lpszFileName, DWORD dwFlags,
                         LPCTSTR lpszFilter, CWnd* pParentWnd, DWORD)
    : CCommonDialog(pParentWnd), m_bOpenFileDialog(bOpenFileDialog), m_strFilter(lpszFilter),
      m_strDefExt(lpszDefExt) {
    m_ofn.lStructSize = sizeof m_ofn;
    m_ofn.Flags = dwFlags | OFN_ENABLEHOOK | OFN_EXPLORER | OFN_ENABLESIZING;
    m_ofn.lpstrFile = m_szFileName;
    m_ofn.nMaxFile = static_cast<DWORD>(std::size(m_szFileName));
    if (lpszFileName != nullptr)
        ::lstrcpyn(m_szFileName, lpszFileName, static_cast<int>(std::size(m_szFileName)));
    if (lpszDefExt != nullptr)
        m_ofn.lpstrDefExt = m_strDefExt;
    if (!m_strFilter.IsEmpty()) {
        // The system ends each text by a zero, and the list by one more.
        LPTSTR pszFilter = m_strFilter.GetBuffer(m_strFilter.GetLength());
        std::replace(pszFilter, pszFilter + m_strFilter.GetLength(), _T('|'), _T('\0'));
        m_ofn.lpstrFilter = pszFilter;
    }
}

INT_PTR CFileDialog::DoModal() {
    AfxCommonAccess::Prepare(this, m_ofn);
    const BOOL bDone = m_bOpenFileDialog ? ::GetOpenFileName(&m_ofn) : ::GetSaveFileName(&m_ofn);
    return bDone ? IDOK : IDCANCEL;
}

CString CFileDialog::FromDialog(UINT message) const {
    CString strText;
    LPTSTR pszText = strText.GetBuffer(MAX_PATH);
    pszText[0] = 0;
    ::SendMessage(::GetParent(m_hWnd), message, MAX_PATH, reinterpret_cast<LPARAM>(pszText));
    strText.ReleaseBuffer();
    return strText;
}

CString CFileDialog::GetPathName() const {
    return m_hWnd != nullptr ? FromDialog(CDM_GETFILEPATH) : CString(m_ofn.lpstrFile);
}

CString CFileDialog::GetFileName() const {
    const CString strPath = GetPathName();
    return strPath.Mid(strPath.ReverseFind(_T('\\')) + 1);
}

CString CFileDialog::GetFileExt() const {
    const CString strName = GetFileName();
    const int nPoint = strName.ReverseFind(_T('.'));
    return nPoint >= 0 ? strName.Mid(nPoint + 1) : CString();
}

CString CFileDialog::GetFileTitle() const {
    const CString strName = GetFileName();
    const int nPoint = strName.ReverseFind(_T('.'));
    return nPoint >= 0 ? strName.Left(nPoint) : strName;
}

CString CFileDialog::GetFolderPath() const {
    if (m_hWnd != nullptr)
        return FromDialog(CDM_GETFOLDERPATH);
    const CString strPath = GetPathName();
    return strPath.Left(std::max(strPath.ReverseFind(_T('\\')), 0));
}

POSITION CFileDialog::GetStartPosition() const {
    return reinterpret_cast<POSITION>(m_ofn.lpstrFile);
}

/// One file stands there whole; of several the folder comes first, then each name.
CString CFileDialog::GetNextPathName(POSITION& pos) const {
    const auto* pszName = reinterpret_cast<LPCTSTR>(pos);
    LPCTSTR pszNext = pszName + ::lstrlen(pszName) + 1;
    const bool bMany = (m_ofn.Flags & OFN_ALLOWMULTISELECT) != 0;
    CString strPath(pszName);
    if (bMany && (pszName != m_ofn.lpstrFile || *pszNext != 0)) {
        if (pszName == m_ofn.lpstrFile) {
            pszName = pszNext;
            pszNext += ::lstrlen(pszName) + 1;
        }
        strPath = m_ofn.lpstrFile;
        if (strPath.Right(1) != _T("\\"))
            strPath += _T('\\');
        strPath += pszName;
    }
    pos = bMany && *pszNext != 0 ? reinterpret_cast<POSITION>(const_cast<LPTSTR>(pszNext)) : nullptr;
    return strPath;
}

void CFileDialog::SetControlText(int nID, LPCTSTR lpsz) {
    ::SendMessage(::GetParent(m_hWnd), CDM_SETCONTROLTEXT, static_cast<WPARAM>(nID),
                  reinterpret_cast<LPARAM>(lpsz));
}

void CFileDialog::HideControl(int nID) {
    ::SendMessage(::GetParent(m_hWnd), CDM_HIDECONTROL, static_cast<WPARAM>(nID), 0);
}

void CFileDialog::SetDefExt(LPCTSTR lpsz) {
    ::SendMessage(::GetParent(m_hWnd), CDM_SETDEFEXT, 0, reinterpret_cast<LPARAM>(lpsz));
}

BOOL CFileDialog::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    const auto* pNotify = reinterpret_cast<const OFNOTIFY*>(lParam);
    if (pNotify->hdr.hwndFrom != ::GetParent(m_hWnd))
        return CCommonDialog::OnNotify(wParam, lParam, pResult);
    switch (pNotify->hdr.code) {
    case CDN_INITDONE:
        OnInitDone();
        break;
    case CDN_SELCHANGE:
        OnFileNameChange();
        break;
    case CDN_FOLDERCHANGE:
        OnFolderChange();
        break;
    case CDN_TYPECHANGE:
        OnTypeChange();
        break;
    case CDN_SHAREVIOLATION:
        *pResult = static_cast<LRESULT>(OnShareViolation(pNotify->pszFile));
        break;
    case CDN_FILEOK:
        *pResult = OnFileNameOK();
        break;
    default:
        return CCommonDialog::OnNotify(wParam, lParam, pResult);
    }
    // The system looks here as well.
    ::SetWindowLongPtr(m_hWnd, DWLP_MSGRESULT, *pResult);
    return TRUE;
}

// --- Colours ------------------------------------------------------------------------------

CColorDialog::CColorDialog(COLORREF clrInit, DWORD dwFlags, CWnd* pParentWnd) : CCommonDialog(pParentWnd) {
    m_cc.lStructSize = sizeof m_cc;
    m_cc.rgbResult = clrInit;
    m_cc.Flags = dwFlags | CC_RGBINIT | CC_ENABLEHOOK;
    m_cc.lpCustColors = GetSavedCustomColors();
}

COLORREF* CColorDialog::GetSavedCustomColors() {
    constexpr COLORREF kWhite = RGB(255, 255, 255);
    static COLORREF colors[16] = {kWhite, kWhite, kWhite, kWhite, kWhite, kWhite, kWhite, kWhite,
                                  kWhite, kWhite, kWhite, kWhite, kWhite, kWhite, kWhite, kWhite};
    return colors;
}

INT_PTR CColorDialog::DoModal() {
    AfxCommonAccess::Prepare(this, m_cc);
    return ::ChooseColor(&m_cc) ? IDOK : IDCANCEL;
}

void CColorDialog::SetCurrentColor(COLORREF clr) {
    SendMessage(::RegisterWindowMessage(SETRGBSTRING), 0, static_cast<LPARAM>(clr));
}

LRESULT CColorDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != AfxCommonAccess::ColorOk())
        return CCommonDialog::WindowProc(message, wParam, lParam);
    m_cc.rgbResult = reinterpret_cast<const CHOOSECOLOR*>(lParam)->rgbResult;
    return OnColorOK();
}

// --- Fonts --------------------------------------------------------------------------------

CFontDialog::CFontDialog(LPLOGFONT lplfInitial, DWORD dwFlags, CDC* pdcPrinter, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd) {
    m_cf.lStructSize = sizeof m_cf;
    m_cf.Flags = dwFlags | CF_ENABLEHOOK;
    m_cf.lpLogFont = &m_lf;
    m_cf.lpszStyle = m_szStyleName;
    if (lplfInitial != nullptr) {
        m_lf = *lplfInitial;
        m_cf.Flags |= CF_INITTOLOGFONTSTRUCT;
    }
    if (pdcPrinter != nullptr) {
        m_cf.hDC = pdcPrinter->m_hDC;
        m_cf.Flags |= CF_PRINTERFONTS;
    }
}

INT_PTR CFontDialog::DoModal() {
    AfxCommonAccess::Prepare(this, m_cf);
    return ::ChooseFont(&m_cf) ? IDOK : IDCANCEL;
}

void CFontDialog::GetCurrentFont(LPLOGFONT lplf) {
    if (m_hWnd != nullptr)
        SendMessage(WM_CHOOSEFONT_GETLOGFONT, 0, reinterpret_cast<LPARAM>(lplf));
    else
        *lplf = m_lf;
}

// --- Searching ----------------------------------------------------------------------------

CFindReplaceDialog::CFindReplaceDialog() : CCommonDialog(nullptr) {
    m_fr.lStructSize = sizeof m_fr;
    m_fr.Flags = FR_ENABLEHOOK;
    m_fr.lpstrFindWhat = m_szFindWhat;
    m_fr.wFindWhatLen = sizeof m_szFindWhat;
    m_fr.lpstrReplaceWith = m_szReplaceWith;
    m_fr.wReplaceWithLen = sizeof m_szReplaceWith;
}

BOOL CFindReplaceDialog::Create(BOOL bFindDialogOnly, LPCTSTR lpszFindWhat, LPCTSTR lpszReplaceWith,
                                DWORD dwFlags, CWnd* pParentWnd) {
    m_pParentWnd = pParentWnd;
    m_fr.Flags |= dwFlags;
    if (lpszFindWhat != nullptr)
        ::lstrcpyn(m_szFindWhat, lpszFindWhat, static_cast<int>(std::size(m_szFindWhat)));
    if (lpszReplaceWith != nullptr)
        ::lstrcpyn(m_szReplaceWith, lpszReplaceWith, static_cast<int>(std::size(m_szReplaceWith)));
    AfxCommonAccess::Prepare(this, m_fr);
    const HWND hWnd = bFindDialogOnly ? ::FindText(&m_fr) : ::ReplaceText(&m_fr);
    return hWnd != nullptr;
}

CFindReplaceDialog* CFindReplaceDialog::GetNotifier(LPARAM lParam) {
    return static_cast<CFindReplaceDialog*>(
        reinterpret_cast<CCommonDialog*>(reinterpret_cast<const FINDREPLACE*>(lParam)->lCustData));
}

void CFindReplaceDialog::PostNcDestroy() {
    CCommonDialog::PostNcDestroy();
    delete this;
}
