// OutputPage.cpp : where measurements are written to, and how
//

#include "stdafx.h"
#include "StationSetup.h"
#include "OutputPage.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

// The data exchange refuses a folder that does not exist.
static void AFXAPI DDV_FolderExists(CDataExchange* pDX, CString const& strFolder)
{
	if (!pDX->m_bSaveAndValidate)
		return;
	DWORD dwAttributes = ::GetFileAttributes(strFolder);
	if (dwAttributes != INVALID_FILE_ATTRIBUTES && (dwAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
		return;
	CString strPrompt;
	AfxFormatString1(strPrompt, IDS_BAD_FOLDER, strFolder);
	AfxMessageBox(strPrompt, MB_ICONEXCLAMATION, IDS_BAD_FOLDER);
	strPrompt.Empty();
	pDX->Fail();
}

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
	DDX_Text(pDX, IDC_FOLDER, settings.strFolder);
	DDV_FolderExists(pDX, settings.strFolder);
	DDX_LBBits(pDX, IDC_COLUMNS, settings.dwColumns);
	DDX_Radio(pDX, IDC_SEP_COMMA, settings.nSeparator);
}

BEGIN_MESSAGE_MAP(COutputPage, CPropertyPage)
	ON_BN_CLICKED(IDC_BROWSE, &COutputPage::OnBrowse)
	ON_LBN_SELCHANGE(IDC_COLUMNS, &COutputPage::OnSelchangeColumns)
	ON_CONTROL_RANGE(BN_CLICKED, IDC_SEP_COMMA, IDC_SEP_SEMICOLON, &COutputPage::OnSeparator)
END_MESSAGE_MAP()

BOOL COutputPage::OnInitDialog()
{
	CPropertyPage::OnInitDialog();
	CheckRadioButton(IDC_SEP_COMMA, IDC_SEP_SEMICOLON, IDC_SEP_COMMA + theApp.m_settings.nSeparator);
	return TRUE;
}

// The folder of a file that the user picks.
void COutputPage::OnBrowse()
{
	CString strFilter;
	VERIFY(strFilter.LoadString(IDS_FILE_FILTER));
	CFileDialog dlg(FALSE, _T("csv"), _T("points.csv"), OFN_HIDEREADONLY | OFN_PATHMUSTEXIST, strFilter, this);
	GetDlgItemText(IDC_FOLDER, theApp.m_settings.strFolder);
	dlg.m_ofn.lpstrInitialDir = theApp.m_settings.strFolder;
	if (dlg.DoModal() != IDOK)
		return;
	CString strPath = dlg.GetPathName();
	strPath.Truncate(strPath.GetLength() - dlg.GetFileName().GetLength());
	SetDlgItemText(IDC_FOLDER, strPath);
	SetModified();
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

void COutputPage::OnSeparator(UINT /*nID*/)
{
	SetModified();
}

BOOL COutputPage::OnKillActive()
{
	CWaitCursor wait;
	return CPropertyPage::OnKillActive();
}

BOOL COutputPage::OnApply()
{
	theApp.m_settings.Save();
	return CPropertyPage::OnApply();
}
