// Tool tips, status bars and tool bars.
#include "DrawnByOwner.h"
#include "window/WndProc.h"

using namespace fieldkit::detail;

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)
IMPLEMENT_DYNAMIC(CStatusBarCtrl, CWnd)
IMPLEMENT_DYNAMIC(CToolBarCtrl, CWnd)

// --- Tool tips ----------------------------------------------------------------------------

BOOL CToolTipCtrl::Create(CWnd* pParentWnd, DWORD dwStyle) {
    return CreateEx(0, TOOLTIPS_CLASS, nullptr, WS_POPUP | dwStyle, CW_USEDEFAULT, CW_USEDEFAULT,
                    CW_USEDEFAULT, CW_USEDEFAULT, HandleOf(pParentWnd), nullptr);
}

namespace {

/// A tool: a rectangle of a window that has a number, else a whole control of its parent.
TOOLINFO ToolOf(const CWnd* pWnd, UINT_PTR nIDTool) {
    TOOLINFO info = {};
    info.cbSize = TTTOOLINFOW_V2_SIZE; // what the system's controls of any version take
    info.hwnd = nIDTool != 0 ? pWnd->m_hWnd : ::GetParent(pWnd->m_hWnd);
    info.uFlags = nIDTool != 0 ? 0 : TTF_IDISHWND;
    info.uId = nIDTool != 0 ? nIDTool : reinterpret_cast<UINT_PTR>(pWnd->m_hWnd);
    return info;
}

} // namespace

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, LPCTSTR lpszText, LPCRECT lpRectTool, UINT_PTR nIDTool) {
    TOOLINFO info = ToolOf(pWnd, nIDTool);
    info.lpszText = const_cast<LPTSTR>(lpszText); // the control only reads it
    if (lpRectTool != nullptr)
        info.rect = *lpRectTool;
    return AfxSendPointer(m_hWnd, TTM_ADDTOOL, 0, &info);
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool, UINT_PTR nIDTool) {
    CString strText;
    strText.LoadString(nIDText);
    return AddTool(pWnd, strText, lpRectTool, nIDTool);
}

void CToolTipCtrl::DelTool(CWnd* pWnd, UINT_PTR nIDTool) {
    const TOOLINFO info = ToolOf(pWnd, nIDTool);
    AfxSendPointer(m_hWnd, TTM_DELTOOL, 0, &info);
}

void CToolTipCtrl::UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool) {
    TOOLINFO info = ToolOf(pWnd, nIDTool);
    info.lpszText = const_cast<LPTSTR>(lpszText);
    AfxSendPointer(m_hWnd, TTM_UPDATETIPTEXT, 0, &info);
}

void CToolTipCtrl::UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool) {
    CString strText;
    strText.LoadString(nIDText);
    UpdateTipText(strText, pWnd, nIDTool);
}

void CToolTipCtrl::GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool) const {
    constexpr int kLongest = 1024;
    TOOLINFO info = ToolOf(pWnd, nIDTool);
    info.lpszText = str.GetBuffer(kLongest);
    info.lpszText[0] = 0;
    AfxSendPointer(m_hWnd, TTM_GETTEXT, kLongest, &info);
    str.ReleaseBuffer();
}

BOOL CToolTipCtrl::GetToolInfo(CToolInfo& toolInfo, CWnd* pWnd, UINT_PTR nIDTool) const {
    static_cast<TOOLINFO&>(toolInfo) = ToolOf(pWnd, nIDTool);
    toolInfo.lpszText = toolInfo.szText;
    toolInfo.szText[0] = 0;
    return AfxSendPointer(m_hWnd, TTM_GETTOOLINFO, 0, static_cast<TOOLINFO*>(&toolInfo));
}

void CToolTipCtrl::SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect) {
    TOOLINFO info = ToolOf(pWnd, nIDTool);
    info.rect = *lpRect;
    AfxSendPointer(m_hWnd, TTM_NEWTOOLRECT, 0, &info);
}

BOOL CToolTipCtrl::HitTest(CWnd* pWnd, CPoint pt, LPTOOLINFO lpToolInfo) const {
    TTHITTESTINFO hit = {};
    hit.hwnd = pWnd->m_hWnd;
    hit.pt = pt;
    hit.ti.cbSize = TTTOOLINFOW_V2_SIZE;
    if (!AfxSendPointer(m_hWnd, TTM_HITTEST, 0, &hit))
        return FALSE;
    *lpToolInfo = hit.ti;
    return TRUE;
}

// --- Status bars --------------------------------------------------------------------------

namespace {

/// The control tells length and frame in the two words of one number.
int LengthAndType(int nAnswer, int* pType) {
    if (pType != nullptr)
        *pType = HIWORD(nAnswer);
    return LOWORD(nAnswer);
}

} // namespace

int CStatusBarCtrl::GetTextLength(int nPane, int* pType) const {
    return LengthAndType(AfxSendInt(m_hWnd, SB_GETTEXTLENGTH, static_cast<WPARAM>(nPane)), pType);
}

int CStatusBarCtrl::GetText(LPTSTR lpszText, int nPane, int* pType) const {
    return LengthAndType(AfxSendPointer(m_hWnd, SB_GETTEXT, static_cast<WPARAM>(nPane), lpszText), pType);
}

CString CStatusBarCtrl::GetText(int nPane, int* pType) const {
    CString strText;
    GetText(strText.GetBuffer(GetTextLength(nPane)), nPane, pType);
    strText.ReleaseBuffer();
    return strText;
}

BOOL CStatusBarCtrl::GetBorders(int& nHorz, int& nVert, int& nSpacing) const {
    int borders[3] = {};
    if (!GetBorders(borders))
        return FALSE;
    nHorz = borders[0];
    nVert = borders[1];
    nSpacing = borders[2];
    return TRUE;
}

void CStatusBarCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CStatusBarCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return DrawnByOwner(*this, message, lParam) || CWnd::OnChildNotify(message, wParam, lParam, pResult);
}

// --- Tool bars ----------------------------------------------------------------------------

BOOL CToolBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    if (!CWnd::Create(TOOLBARCLASSNAME, nullptr, dwStyle, rect, pParentWnd, nID))
        return FALSE;
    SetButtonStructSize(sizeof(TBBUTTON));
    return TRUE;
}

int CToolBarCtrl::AddBitmap(int nNumButtons, UINT nBitmapID) {
    const TBADDBITMAP add = {AfxFindResourceHandle(MAKEINTRESOURCE(nBitmapID), RT_BITMAP), nBitmapID};
    return AfxSendPointer(m_hWnd, TB_ADDBITMAP, static_cast<WPARAM>(nNumButtons), &add);
}

int CToolBarCtrl::AddBitmap(int nNumButtons, CBitmap* pBitmap) {
    const TBADDBITMAP add = {nullptr, reinterpret_cast<UINT_PTR>(pBitmap->GetSafeHandle())};
    return AfxSendPointer(m_hWnd, TB_ADDBITMAP, static_cast<WPARAM>(nNumButtons), &add);
}

int CToolBarCtrl::AddString(UINT nStringID) {
    CString strText;
    strText.LoadString(nStringID);
    const int nLength = strText.GetLength();
    LPTSTR pszText = strText.GetBuffer(nLength + 1);
    pszText[nLength] = pszText[nLength + 1] = 0;
    return AddStrings(pszText);
}

CImageList* CToolBarCtrl::SetImageList(CImageList* pImageList) {
    return ExchangeImages(m_hWnd, TB_SETIMAGELIST, pImageList);
}
CImageList* CToolBarCtrl::GetImageList() const {
    return ExchangeImages(m_hWnd, TB_GETIMAGELIST);
}
CToolTipCtrl* CToolBarCtrl::GetToolTips() const {
    return AskForWindow<CToolTipCtrl>(m_hWnd, TB_GETTOOLTIPS);
}
void CToolBarCtrl::SetToolTips(CToolTipCtrl* pTip) {
    SendMessage(TB_SETTOOLTIPS, reinterpret_cast<WPARAM>(HandleOf(pTip)));
}
