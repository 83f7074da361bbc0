/// @file
/// Texts with links, and buttons with a menu. Included by afxcmn.h.
///
/// A member that is one message to the control means what that message means, and has its result.
#pragma once

#include "afxctl_.h"
#include "afxmenu_.h"

#include <commctrl.h>

/// A text with links in it, written as in <a id="more" href="points.htm">text</a>. Links count from
/// 0. A tap on one comes as the notification NM_CLICK, with an NMLINK.
///
/// Needs the newer controls, which a program asks for in its manifest: without it Create gives FALSE,
/// and a dialog with such a control does not open.
class AFX_CORE CLinkCtrl : public CWnd {
    DECLARE_DYNAMIC(CLinkCtrl)
public:
    CLinkCtrl() = default;
    /// Creates the control as a child. @return FALSE if the system refuses
    ///@{
    virtual BOOL Create(LPCTSTR lpszLinkMarkup, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
        return CWnd::Create(WC_LINK, lpszLinkMarkup, dwStyle, rect, pParentWnd, nID);
    }
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
        return Create(nullptr, dwStyle, rect, pParentWnd, nID);
    }
    ///@}
    using CWnd::Create;

    /// The height in pixels that shows all of the text in the present width.
    int GetIdealHeight() const { return AfxSendInt(m_hWnd, LM_GETIDEALHEIGHT); }
    /// @param cxMax the greatest width in pixels @param pSize receives the size @return its height
    int GetIdealSize(int cxMax, SIZE* pSize) const {
        return AfxSendPointer(m_hWnd, LM_GETIDEALHEIGHT, static_cast<WPARAM>(cxMax), pSize);
    }
    /// @return FALSE if there is no such link
    ///@{
    BOOL GetItem(PLITEM pItem) const { return AfxSendPointer(m_hWnd, LM_GETITEM, 0, pItem); }
    BOOL SetItem(PLITEM pItem) { return AfxSendPointer(m_hWnd, LM_SETITEM, 0, pItem); }
    BOOL HitTest(PLHITTESTINFO phti) const { return AfxSendPointer(m_hWnd, LM_HITTEST, 0, phti); }
    BOOL GetItemID(int nLink, CString& strID) const;
    BOOL SetItemID(int nLink, LPCTSTR szID);
    BOOL GetItemUrl(int nLink, CString& strUrl) const;
    BOOL SetItemUrl(int nLink, LPCTSTR szUrl);
    ///@}
    /// The same into an array of cch characters, 0 at its end; a longer text is cut.
    ///@{
    BOOL GetItemID(int nLink, LPTSTR szID, UINT cchID) const;
    BOOL GetItemUrl(int nLink, LPTSTR szUrl, UINT cchUrl) const;
    ///@}
    /// @param nMask the LIS_... bits that count @return FALSE if there is no such link
    ///@{
    BOOL GetItemState(int nLink, UINT* pnState, UINT nMask = LIS_FOCUSED | LIS_ENABLED | LIS_VISITED) const;
    BOOL SetItemState(int nLink, UINT nState, UINT nMask = LIS_FOCUSED | LIS_ENABLED | LIS_VISITED);
    ///@}
};

/// A button whose right part opens a menu. Its commands go to the button's parent.
class AFX_CORE CSplitButton : public CButton {
    DECLARE_DYNAMIC(CSplitButton)
public:
    CSplitButton() = default;
    /// As SetDropDownMenu.
    ///@{
    CSplitButton(UINT nMenuId, UINT nSubMenuId) : m_nMenuId(nMenuId), m_nSubMenuId(nSubMenuId) {}
    explicit CSplitButton(CMenu* pMenu) : m_pMenu(pMenu) {}
    ///@}
    /// Creates the control as a child; BS_SPLITBUTTON is added. @return FALSE if the system refuses
    BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override {
        return CButton::Create(lpszCaption, dwStyle | BS_SPLITBUTTON, rect, pParentWnd, nID);
    }
    using CButton::Create;

    /// The menu that opens. @param nMenuId a resource, loaded anew each time @param nSubMenuId which of
    /// its menus, counted from 0
    void SetDropDownMenu(UINT nMenuId, UINT nSubMenuId);
    /// @param pMenu a popup menu; not owned, and needed as long as the button lives
    void SetDropDownMenu(CMenu* pMenu);

protected:
    afx_msg void OnDropDown(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

private:
    CMenu* m_pMenu = nullptr;
    UINT m_nMenuId = 0;
    UINT m_nSubMenuId = 0;
};
