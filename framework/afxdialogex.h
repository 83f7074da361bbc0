/// @file
/// CDialogEx: dialogs with a background of their own.
#pragma once

/// What programs ask for to see whether this header has been included.
#define __AFXDIALOGEX_H__

#include "afxwin.h"

/// A dialog with a colour or a picture behind its controls.
class AFX_CORE CDialogEx : public CDialog {
    DECLARE_DYNAMIC(CDialogEx)
public:
    /// Where the picture goes: all over, or once into a corner.
    enum BackgroundLocation {
        BACKGR_TILE,
        BACKGR_TOPLEFT,
        BACKGR_TOPRIGHT,
        BACKGR_BOTTOMLEFT,
        BACKGR_BOTTOMRIGHT
    };

    CDialogEx() = default;
    explicit CDialogEx(UINT nIDTemplate, CWnd* pParent = nullptr) : CDialog(nIDTemplate, pParent) {}
    explicit CDialogEx(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr)
        : CDialog(lpszTemplateName, pParentWnd) {}
    ~CDialogEx() override;

    /// @param color -1 for the system's
    void SetBackgroundColor(COLORREF color, BOOL bRepaint = TRUE);
    /// @param hBitmap null for none @param bAutoDestroy the bitmap is deleted with the dialog
    void SetBackgroundImage(HBITMAP hBitmap, BackgroundLocation location = BACKGR_TILE,
                            BOOL bAutoDestroy = TRUE, BOOL bRepaint = TRUE);
    /// The same with a bitmap of the resources. @return FALSE if there is none
    BOOL SetBackgroundImage(UINT uiBmpResId, BackgroundLocation location = BACKGR_TILE, BOOL bRepaint = TRUE);

protected:
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    DECLARE_MESSAGE_MAP()

private:
    CBrush m_brush;              ///< Of the colour; none for the system's.
    HBITMAP m_hBitmap = nullptr; ///< The picture, or null.
    BOOL m_bAutoDestroy = FALSE; ///< The picture is owned.
    BackgroundLocation m_location = BACKGR_TILE;
};
