#include "afxext.h"

#include <utility>

IMPLEMENT_DYNAMIC(CBitmapButton, CButton)

BOOL CBitmapButton::LoadBitmaps(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel,
                                LPCTSTR lpszBitmapResourceFocus, LPCTSTR lpszBitmapResourceDisabled) {
    const std::pair<CBitmap&, LPCTSTR> bitmaps[] = {{m_bitmap, lpszBitmapResource},
                                                    {m_bitmapSel, lpszBitmapResourceSel},
                                                    {m_bitmapFocus, lpszBitmapResourceFocus},
                                                    {m_bitmapDisabled, lpszBitmapResourceDisabled}};
    BOOL bAll = TRUE;
    for (const auto& [bitmap, pszName] : bitmaps) {
        bitmap.DeleteObject();
        if (pszName != nullptr && !bitmap.LoadBitmap(pszName))
            bAll = FALSE;
    }
    return bAll && m_bitmap.m_hObject != nullptr;
}

BOOL CBitmapButton::LoadBitmaps(UINT nIDBitmapResource, UINT nIDBitmapResourceSel,
                                UINT nIDBitmapResourceFocus, UINT nIDBitmapResourceDisabled) {
    return LoadBitmaps(MAKEINTRESOURCE(nIDBitmapResource), MAKEINTRESOURCE(nIDBitmapResourceSel),
                       MAKEINTRESOURCE(nIDBitmapResourceFocus), MAKEINTRESOURCE(nIDBitmapResourceDisabled));
}

BOOL CBitmapButton::AutoLoad(UINT nID, CWnd* pParent) {
    if (!SubclassDlgItem(nID, pParent))
        return FALSE;
    CString strName;
    GetWindowText(strName);
    LoadBitmaps(strName + _T("U"), strName + _T("D"), strName + _T("F"), strName + _T("X"));
    if (m_bitmap.m_hObject == nullptr)
        return FALSE;
    SizeToContent();
    return TRUE;
}

void CBitmapButton::SizeToContent() {
    BITMAP info = {};
    m_bitmap.GetBitmap(&info);
    SetWindowPos(nullptr, 0, 0, info.bmWidth, info.bmHeight, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CBitmapButton::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) {
    const UINT nState = lpDrawItemStruct->itemState;
    CBitmap* pBitmap = &m_bitmap;
    if (nState & ODS_SELECTED && m_bitmapSel.m_hObject != nullptr)
        pBitmap = &m_bitmapSel;
    else if (nState & ODS_FOCUS && m_bitmapFocus.m_hObject != nullptr)
        pBitmap = &m_bitmapFocus;
    else if (nState & ODS_DISABLED && m_bitmapDisabled.m_hObject != nullptr)
        pBitmap = &m_bitmapDisabled;
    CDC* pDC = CDC::FromHandle(lpDrawItemStruct->hDC);
    CDC picture;
    if (pBitmap->m_hObject == nullptr || !picture.CreateCompatibleDC(pDC))
        return;
    CBitmap* pPrevious = picture.SelectObject(pBitmap);
    const CRect rect(lpDrawItemStruct->rcItem);
    pDC->BitBlt(rect.left, rect.top, rect.Width(), rect.Height(), &picture, 0, 0, SRCCOPY);
    picture.SelectObject(pPrevious);
}
