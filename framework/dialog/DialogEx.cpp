#include "afxdialogex.h"

IMPLEMENT_DYNAMIC(CDialogEx, CDialog)

// clang-format off
BEGIN_MESSAGE_MAP(CDialogEx, CDialog)
    ON_WM_ERASEBKGND()
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()
// clang-format on

CDialogEx::~CDialogEx() {
    if (m_bAutoDestroy)
        ::DeleteObject(m_hBitmap);
}

void CDialogEx::SetBackgroundColor(COLORREF color, BOOL bRepaint) {
    m_brush.DeleteObject();
    if (color != static_cast<COLORREF>(-1))
        m_brush.CreateSolidBrush(color);
    if (bRepaint && m_hWnd != nullptr)
        Invalidate();
}

void CDialogEx::SetBackgroundImage(HBITMAP hBitmap, BackgroundLocation location, BOOL bAutoDestroy,
                                   BOOL bRepaint) {
    if (m_bAutoDestroy)
        ::DeleteObject(m_hBitmap);
    m_hBitmap = hBitmap;
    m_bAutoDestroy = bAutoDestroy;
    m_location = location;
    if (bRepaint && m_hWnd != nullptr)
        Invalidate();
}

BOOL CDialogEx::SetBackgroundImage(UINT uiBmpResId, BackgroundLocation location, BOOL bRepaint) {
    CBitmap bitmap;
    if (!bitmap.LoadBitmap(uiBmpResId))
        return FALSE;
    SetBackgroundImage(static_cast<HBITMAP>(bitmap.Detach()), location, TRUE, bRepaint);
    return TRUE;
}

BOOL CDialogEx::OnEraseBkgnd(CDC* pDC) {
    CRect client;
    GetClientRect(client);
    if (m_brush.m_hObject != nullptr)
        pDC->FillRect(client, &m_brush);
    else
        CDialog::OnEraseBkgnd(pDC);
    if (m_hBitmap == nullptr)
        return TRUE;
    BITMAP size = {};
    ::GetObject(m_hBitmap, sizeof size, &size);
    const HDC hMemory = ::CreateCompatibleDC(pDC->m_hDC);
    const HGDIOBJ hBefore = ::SelectObject(hMemory, m_hBitmap);
    const bool bTile = m_location == BACKGR_TILE;
    const bool bRight = m_location == BACKGR_TOPRIGHT || m_location == BACKGR_BOTTOMRIGHT;
    const bool bBottom = m_location == BACKGR_BOTTOMLEFT || m_location == BACKGR_BOTTOMRIGHT;
    const LONG nLeft = bRight ? client.right - size.bmWidth : 0;
    const LONG nTop = bBottom ? client.bottom - size.bmHeight : 0;
    for (LONG y = nTop; y == nTop || (bTile && y < client.bottom); y += size.bmHeight)
        for (LONG x = nLeft; x == nLeft || (bTile && x < client.right); x += size.bmWidth)
            ::BitBlt(pDC->m_hDC, x, y, size.bmWidth, size.bmHeight, hMemory, 0, 0, SRCCOPY);
    ::SelectObject(hMemory, hBefore);
    ::DeleteDC(hMemory);
    return TRUE;
}

/// Texts, group boxes and check boxes let the background through.
HBRUSH CDialogEx::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor) {
    const HBRUSH hDefault = CDialog::OnCtlColor(pDC, pWnd, nCtlColor);
    const bool bOwn = m_brush.m_hObject != nullptr || m_hBitmap != nullptr;
    if (!bOwn || nCtlColor != CTLCOLOR_STATIC)
        return hDefault;
    pDC->SetBkMode(TRANSPARENT);
    return m_hBitmap != nullptr ? static_cast<HBRUSH>(::GetStockObject(HOLLOW_BRUSH))
                                : static_cast<HBRUSH>(m_brush.m_hObject);
}
