// SetupSheet.cpp : the sheet
//

#include "stdafx.h"
#include "StationSetup.h"
#include "SetupSheet.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

IMPLEMENT_DYNAMIC(CSetupSheet, CPropertySheet)

CSetupSheet::CSetupSheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
	: CPropertySheet(nIDCaption, pParentWnd, iSelectPage)
{
	AddPages();
}

CSetupSheet::CSetupSheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage)
	: CPropertySheet(pszCaption, pParentWnd, iSelectPage)
{
	AddPages();
}

CSetupSheet::~CSetupSheet()
{
}

void CSetupSheet::AddPages()
{
	AddPage(&m_instrument);
	AddPage(&m_atmosphere);
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
