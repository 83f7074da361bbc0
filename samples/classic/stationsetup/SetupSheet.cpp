// SetupSheet.cpp : the sheet
//

#include "stdafx.h"
#include "StationSetup.h"
#include "SetupSheet.h"

IMPLEMENT_DYNAMIC(CSetupSheet, CPropertySheet)

CSetupSheet::CSetupSheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
	: CPropertySheet(nIDCaption, pParentWnd, iSelectPage)
{
	AddPage(&m_instrument);
	AddPage(&m_output);
	m_psh.dwFlags |= PSH_NOCONTEXTHELP | PSH_NOAPPLYNOW;
}

BEGIN_MESSAGE_MAP(CSetupSheet, CPropertySheet)
	ON_WM_DESTROY()
	ON_NOTIFY_EX(TTN_NEEDTEXT, 0, &CSetupSheet::OnToolTipText)
END_MESSAGE_MAP()

BOOL CSetupSheet::OnInitDialog()
{
	BOOL bResult = CPropertySheet::OnInitDialog();
	SetIcon(AfxGetApp()->LoadIcon(IDR_MAINFRAME), FALSE);
	EnableToolTips(TRUE);
	CTabCtrl* pTab = GetTabControl();
	ASSERT(pTab != NULL);
	TRACE1("StationSetup: %d tabs\n", pTab->GetItemCount());
	return bResult;
}

void CSetupSheet::OnDestroy()
{
	AfxGetApp()->WriteProfileInt(_T("Use"), _T("Page"), GetActiveIndex());
	CPropertySheet::OnDestroy();
}

BOOL CSetupSheet::OnToolTipText(UINT /*id*/, NMHDR* pNMHDR, LRESULT* pResult)
{
	TOOLTIPTEXT* pTTT = (TOOLTIPTEXT*)pNMHDR;
	*pResult = 0;
	if (!(pTTT->uFlags & TTF_IDISHWND))
		return FALSE;
	UINT nID = ::GetDlgCtrlID((HWND)pNMHDR->idFrom);
	if (nID != IDOK)
		return FALSE;
	pTTT->hinst = AfxGetResourceHandle();
	pTTT->lpszText = MAKEINTRESOURCE(IDS_TIP_OK);
	return TRUE;
}
