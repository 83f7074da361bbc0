// OutputPage.cpp : how measurements are written
//

#include "stdafx.h"
#include "StationSetup.h"
#include "OutputPage.h"

// The marked lines of a list, a bit a line.
static void AFXAPI DDX_LBBits(CDataExchange* pDX, int nIDC, DWORD& dwBits)
{
	HWND hWndCtrl = pDX->PrepareCtrl(nIDC);
	int nCount = (int)::SendMessage(hWndCtrl, LB_GETCOUNT, 0, 0);
	if (pDX->m_bSaveAndValidate)
		dwBits = 0;
	for (int i = 0; i < nCount; i++)
	{
		if (!pDX->m_bSaveAndValidate)
			::SendMessage(hWndCtrl, LB_SETSEL, (dwBits >> i) & 1, i);
		else if (::SendMessage(hWndCtrl, LB_GETSEL, i, 0) > 0)
			dwBits |= 1 << i;
	}
}

IMPLEMENT_DYNCREATE(COutputPage, CPropertyPage)

COutputPage::COutputPage() : CPropertyPage(COutputPage::IDD)
{
}

void COutputPage::DoDataExchange(CDataExchange* pDX)
{
	SETTINGS& settings = theApp.m_settings;
	CPropertyPage::DoDataExchange(pDX);
	DDX_Control(pDX, IDC_COLUMNS, m_wndColumns);
	DDX_LBBits(pDX, IDC_COLUMNS, settings.dwColumns);
	DDX_Radio(pDX, IDC_SEP_COMMA, settings.nSeparator);
}

BEGIN_MESSAGE_MAP(COutputPage, CPropertyPage)
	ON_LBN_DBLCLK(IDC_COLUMNS, &COutputPage::OnDblclkColumns)
	ON_LBN_SELCHANGE(IDC_COLUMNS, &COutputPage::OnSelchangeColumns)
	ON_CONTROL_RANGE(BN_CLICKED, IDC_SEP_COMMA, IDC_SEP_SEMICOLON, &COutputPage::OnSeparator)
END_MESSAGE_MAP()

BOOL COutputPage::OnInitDialog()
{
	CPropertyPage::OnInitDialog();
	int nTabs[] = { 18, 62 };
	m_wndColumns.SetTabStops(2, nTabs);
	m_wndColumns.SetHorizontalExtent(120);
	m_wndColumns.SetTopIndex(0);
	CheckRadioButton(IDC_SEP_COMMA, IDC_SEP_SEMICOLON, IDC_SEP_COMMA + theApp.m_settings.nSeparator);
	return TRUE;
}

void COutputPage::OnSelchangeColumns()
{
	CArray<int, int> selected;
	int nCount = m_wndColumns.GetSelCount();
	selected.SetSize(nCount);
	m_wndColumns.GetSelItems(nCount, selected.GetData());
	if (nCount == 0)
		m_wndColumns.SetSel(0); // a file without columns is none
	SetModified();
}

// All of them.
void COutputPage::OnDblclkColumns()
{
	m_wndColumns.SetSel(-1);
	SetModified();
}

void COutputPage::OnSeparator(UINT /*nID*/)
{
	SetModified();
}

BOOL COutputPage::OnApply()
{
	theApp.m_settings.Save();
	return CPropertyPage::OnApply();
}
